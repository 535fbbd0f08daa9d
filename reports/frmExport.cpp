#include "reports/frmExport.h"

#include "core/base/RunTimeError.h"
#include "core/common/Handlers.h"
#include "core/common/Messages.h"
#include "core/common/Sheet.h"
#include "core/forms/Fields.h"
#include "core/forms/LabelButton.h"
#include "core/session/Session.h"
#include "reports/ReportView.h"
#include "reports/SpreadsheetFile.h"
#include "reports/SpreadsheetPage.h"

#include "ui_frmExport.h"

#include <QDir>
#include <QFileInfo>
#include <QShortcut>

using namespace Qt::StringLiterals;

namespace {

const QString Title = u"软件操作提示"_s;
const QString FileFilter = u"Excel文件 （*.xls）|*.xls|Excel 2007文件 （*.xlsx）|*.xlsx"_s;
const QString Statement = u"RptAmount"_s;
constexpr int PathLength = 1000; // letters; the longest path that systems take has four bytes for each

/// A file named after the report, in the user's own folder.
QString ProposedFile()
{
    const ReportView* report = OpenReport();
    QString name = report ? report->Caption(ReportView::Line::Title).trimmed() : QString();
    return QDir::homePath() + u'/' + name.replace(u'/', u'-');
}

} // namespace

frmExport::frmExport(QWidget* owner)
    : FormWindow(owner, SlotUse::Untouched), ui(std::make_unique<Ui::frmExport>())
{
    ui->setupUi(this);
    const auto choose = [this] { ChooseFile(); };
    const auto run = [this] { Export(); };
    Chain()
        .Field(ui->txtFileName)
        .AtMost(PathLength)
        .TakesQuotes()
        .OnKey(Qt::Key_F2, choose)
        .OnDoubleClick(choose)
        .OnEnter(run);
    OnPress(ui->cmdGetFileName, choose, QKeySequence(u"Alt+B"_s));
    OnPress(ui->cmdExport, run, QKeySequence(u"Alt+S"_s));
    OnPress(ui->cmdCancel, [this] { close(); });
    connect(new QShortcut(QKeySequence(Qt::Key_Escape), this), &QShortcut::activated, this, &QWidget::close);
}

frmExport::~frmExport() = default;

void frmExport::ChooseFile()
{
    const QString typed = ui->txtFileName->text().trimmed();
    const QString chosen = AskFile({.title = u"导出报表到Excel"_s,
                                    .filter = FileFilter,
                                    .start = typed.isEmpty() ? ProposedFile() : SpreadsheetPath(typed),
                                    .isSave = true});
    if (!chosen.isEmpty())
        WriteText(ui->txtFileName, chosen);
    Chain().ReturnTo(ui->txtFileName);
}

void frmExport::Export()
{
    const QString name = ui->txtFileName->text().trimmed();
    if (name.isEmpty()) {
        Refuse(u"请先选择文件存储路径！"_s);
        return;
    }
    const ReportView* report = OpenReport();
    if (!report || report->Content().RowCount() == 0) {
        Refuse(u"该报表没有具体内容，导出停止！"_s);
        return;
    }
    if (!report->IsWhole()) {
        Refuse(u"该报表没有查完，内容不全，导出停止！请重新查询。"_s);
        return;
    }
    ExportToXls(*report, name);
}

void frmExport::ExportToXls(const ReportView& report, const QString& fileName)
{
    const QString path = SpreadsheetPath(fileName);
    WriteText(ui->txtFileName, path);
    if (QFileInfo(path).isDir()) {
        Refuse(u"这是一个文件夹，请在后面写上文件名！"_s);
        return;
    }
    if (IsOpenElsewhere(path)) {
        Refuse(u"文件正被别的程序打开，请先关闭它，或者换一个文件名！"_s);
        return;
    }
    if (QFileInfo::exists(path) &&
        !AskBeforeDestroying(u"文件“%1”已存在，是否覆盖？"_s.arg(QFileInfo(path).fileName()), Title)) {
        Chain().ReturnTo(ui->txtFileName);
        return;
    }
    try {
        WriteSpreadsheet(SpreadsheetPage(report, Session::CurrentMenuKey == Statement), path);
    } catch (const RunTimeError& error) {
        Refuse(error.Description());
        return;
    }
    ShowInfo(u"导出Excel文件成功！"_s, Title);
    Chain().ReturnTo(ui->txtFileName);
}

void frmExport::Refuse(const QString& text)
{
    ShowInfo(text, Title);
    Chain().ReturnTo(ui->txtFileName);
}

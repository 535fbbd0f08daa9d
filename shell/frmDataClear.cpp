#include "shell/frmDataClear.h"

#include "core/base/IniFile.h"
#include "core/base/Numbers.h"
#include "core/base/ProgramFiles.h"
#include "core/base/RunTimeError.h"
#include "core/common/Handlers.h"
#include "core/common/Messages.h"
#include "core/forms/ProgressWindow.h"
#include "core/forms/WindowRegistry.h"
#include "core/gateway/DataGateway.h"

#include "ui_frmDataClear.h"

#include <QScopeGuard>
#include <QShortcut>

using namespace Qt::StringLiterals;

namespace {

QString TableIni()
{
    return ProgramPath(u"\\Data\\Table.ini"_s);
}

/// A value of the n-th table, counted from 1.
QString TableValue(int n, const QString& key)
{
    return ReadIniValue(TableIni(), u"T%1"_s.arg(n), key);
}

} // namespace

frmDataClear::frmDataClear(QWidget* owner)
    : FormWindow(owner, SlotUse::Takes), ui(std::make_unique<Ui::frmDataClear>())
{
    ui->setupUi(this);
    // Enter does not clear, not even in the last field: one Enter too many must cost nothing here.
    Chain().List(ui->lstTable);
    Chain().Check(ui->chkAll).EnterTo(ui->lstTable);
    OnPress(ui->cmdSubmit, [this] { Clear(); });
    OnPress(ui->cmdCancel, [this] { close(); });
    connect(ui->chkAll, &QCheckBox::toggled, this, &frmDataClear::TickAll);
    connect(new QShortcut(QKeySequence(u"Alt+A"_s), this), &QShortcut::activated, ui->chkAll,
            &QCheckBox::toggle);
}

frmDataClear::~frmDataClear() = default;

void frmDataClear::OnLoad()
{
    if (!FileExists(TableIni())) {
        ShowInfo(u"找不到系统所需要的配置文件！"_s);
        return;
    }
    const auto tables = ToInt16(LeadingNumber(ReadIniValue(TableIni(), u"TableInfo"_s, u"TableNum"_s)));
    for (int n = 1; n <= tables; ++n) {
        auto* line = new QListWidgetItem(TableValue(n, u"TableText"_s), ui->lstTable);
        line->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        line->setCheckState(Qt::Unchecked);
    }
    ui->lstTable->setCurrentRow(0);
}

void frmDataClear::TickAll(bool ticked)
{
    for (int row = 0; row < ui->lstTable->count(); ++row)
        ui->lstTable->item(row)->setCheckState(ticked ? Qt::Checked : Qt::Unchecked);
}

void frmDataClear::Clear()
{
    if (!AskBeforeDestroying(u"真的要清空这些数据表吗？注意：清空过后数据将不可恢复！"_s))
        return;
    GuardedUnlogged([this] {
        ClearTicked();
        ShowInfo(u"数据清空完毕!"_s);
    });
}

void frmDataClear::ClearTicked()
{
    auto* progress = dynamic_cast<ProgressWindow*>(Windows().Show(u"frmScroll"_s, this));
    if (!progress)
        throw RunTimeError(u"此功能在本版本中尚未提供。"_s);
    // Also when a statement is refused: its words must not stand behind the progress.
    const auto close = qScopeGuard([this, progress] {
        progress->close();
        activateWindow();
    });
    const int lines = ui->lstTable->count();
    progress->Begin(lines);
    for (int i = 0; i < lines; ++i) {
        const QListWidgetItem* line = ui->lstTable->item(i);
        if (line->checkState() == Qt::Checked) {
            progress->Tell(u"正在清空"_s + line->text() + u"中的数据"_s);
            Gateway().DeleteRows(TableValue(i + 1, u"TableName"_s).trimmed(), QString());
        }
        progress->Reach(i + 1);
    }
}

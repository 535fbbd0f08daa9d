#include "reports/frmReport.h"

#include "core/base/Twips.h"
#include "core/common/Bills.h"
#include "core/common/Handlers.h"
#include "core/common/Lookups.h"
#include "core/common/Messages.h"
#include "core/forms/FunctionWindows.h"
#include "core/forms/WindowRegistry.h"
#include "core/gateway/DataGateway.h"
#include "core/session/Session.h"
#include "reports/AmountReport.h"
#include "reports/ReportLayout.h"
#include "reports/ReportListMenu.h"
#include "reports/ReportPrinting.h"
#include "reports/ReportProgress.h"

#include "ui_frmReport.h"

#include <QFont>
#include <QHeaderView>
#include <QLabel>
#include <QResizeEvent>
#include <QShortcut>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int Edge = 8; // pixels between the list, its keys and the edges of the window

/// The buttons that act on a report.
const QStringList ReportButtons{u"mnuPreview"_s, u"mnuPrint"_s, u"mnuSearch"_s, u"mnuExport"_s};

// The one report whose rows a user puts in another order.
const QString SortedReport = u"RptPRDDescribe"_s;
constexpr int FirstSortedColumn = 2;
constexpr int LastSortedKey = 9; // Ctrl+9
constexpr int FewestRowsToSort = 4;

/// The document behind a report's row: who may correct it, and where.
struct RowDocument {
    QString menuKey;
    QString entry;     ///< of the main menu, which must be on
    int numberColumn;  ///< sub-item
    QString table;     ///< that must hold the number
    QString key;       ///< its column
    QString condition; ///< behind it
    QString missing;   ///< what is said when it does not
    QString (*window)();
};

const std::vector<RowDocument>& RowDocuments()
{
    static const std::vector<RowDocument> documents{
        {u"RptSaleDetail"_s, u"menuESale"_s, 1, u"Sal_List"_s, u"SalNo"_s, u" And bolCheckOut='0'"_s,
         u"没找到相应的单号或该单已结算！"_s, [] { return u"frmSale"_s; }},
        {u"RptCheckOutDetail"_s, u"menuECheckOut"_s, 1, u"CheckOut"_s, u"CheckNo"_s, QString(),
         u"没找到相应的单号！"_s, &SettlementWindow},
        {u"RptFee"_s, u"menuFee"_s, 2, u"Fee_List"_s, u"FeeNo"_s, QString(), u"没找到相应的单号！"_s,
         [] { return u"frmFee"_s; }},
    };
    return documents;
}

const RowDocument* DocumentBehind(const QString& menuKey)
{
    const auto found = std::find_if(RowDocuments().begin(), RowDocuments().end(),
                                    [&menuKey](const RowDocument& each) { return each.menuKey == menuKey; });
    return found == RowDocuments().end() ? nullptr : &*found;
}

int Pixels(double twips)
{
    return qRound(twips / TwipsPerPixel);
}

} // namespace

frmReport::frmReport(QWidget* owner)
    : FormWindow(owner, SlotUse::Takes), ui(std::make_unique<Ui::frmReport>())
{
    ui->setupUi(this);
    setFocusProxy(ui->lvReport);
    new ReportListMenu(ui->lvReport);
    OnPress(
        ui->CmdClose, [this] { close(); }, QKeySequence(u"Alt+C"_s));
    connect(new QShortcut(Qt::Key_Escape, this, nullptr, nullptr, Qt::WidgetWithChildrenShortcut),
            &QShortcut::activated, this, [this] { RunHandler([this] { close(); }); });
    connect(ui->lvReport, &ListGrid::RowChosen, this,
            [this](int row) { RunHandler([this, row] { OpenDocument(row); }); });
    ui->lvReport->header()->setSectionsClickable(true);
    connect(ui->lvReport->header(), &QHeaderView::sectionClicked, this,
            [this](int column) { RunHandler([this, column] { SortBy(column); }); });
    for (int column = FirstSortedColumn; column <= LastSortedKey; ++column)
        connect(new QShortcut(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_0 + column)), this,
                              nullptr, nullptr, Qt::WidgetWithChildrenShortcut),
                &QShortcut::activated, this,
                [this, column] { RunHandler([this, column] { SortBy(column); }); });
}

frmReport::~frmReport() = default;

void frmReport::OnLoad()
{
    if (QWidget* frame = MainFrame())
        resize(frame->size());
    ui->lblCompName->setText(GetCompName());
    const double fontSize = GetReportFont(u"FontSize"_s).toDouble();
    if (fontSize > 0) {
        QFont font = ui->lvReport->font();
        font.setPointSizeF(fontSize);
        ui->lvReport->setFont(font);
    }
    LayOut();
}

void frmReport::resizeEvent(QResizeEvent* event)
{
    FormWindow::resizeEvent(event);
    LayOut();
}

void frmReport::LayOut()
{
    const auto centre = [this](QLabel* label, double top) {
        label->adjustSize();
        const int width = std::min(label->width(), this->width());
        label->setGeometry((this->width() - width) / 2, Pixels(top), width, label->height());
    };
    centre(ui->lblCompName, ReportLayout::CompNameTop);
    centre(ui->lblReportName, ReportLayout::ReportNameTop);
    centre(ui->lblSearchStr, ReportLayout::SearchStrTop);

    const int left = Pixels(ReportLayout::Left);
    ui->CmdClose->adjustSize();
    ui->CmdClose->move(width() - left - ui->CmdClose->width(), height() - Edge - ui->CmdClose->height());
    ui->lblKeys->adjustSize();
    ui->lblKeys->move(left, ui->CmdClose->geometry().center().y() - ui->lblKeys->height() / 2);
    const int top = Pixels(ReportLayout::ListTop);
    ui->lvReport->setGeometry(left, top, width() - 2 * left, ui->CmdClose->y() - Edge - top);
}

void frmReport::ShowData(bool useColStatus)
{
    m_query = ReportQuery::OfSession(m_condition, useColStatus);
    m_isWhole = false;
    ui->lvReport->SetColumns({});
    ui->lvReport->setHeaderHidden(m_query.menuKey == AmountReportKey);
    QStringList keys{u"Esc 关闭"_s};
    if (DocumentBehind(m_query.menuKey))
        keys.prepend(u"Enter 打开单据"_s);
    if (m_query.menuKey == SortedReport)
        keys.prepend(u"Ctrl+2 … Ctrl+9 按第几列排序"_s);
    ui->lblKeys->setText(keys.join(u"　"));
    ui->lblReportName->setText(GetReportTitle(m_query.menuKey));
    TellCondition(u"（已中断，不是全部）"_s); // unless it comes to its end
    {
        ReportProgress progress(this, ui->lvReport);
        try {
            m_isWhole = BuildReport(m_query, progress);
        } catch (const AnswerCancelled&) {
            m_isWhole = false; // stopped in the middle of a statement
        }
    }
    TellCondition(m_isWhole ? QString() : u"（已停止，不是全部）"_s);
    ui->lvReport->MakeCurrent(0);
    ::EnableToolbar(ReportButtons);
}

void frmReport::TellCondition(const QString& ending)
{
    ui->lblSearchStr->setText(Session::ConditionCaption + ending);
    LayOut();
}

QString frmReport::Caption(Line line) const
{
    switch (line) {
    case Line::Company:
        return ui->lblCompName->text();
    case Line::Title:
        return ui->lblReportName->text();
    case Line::Condition:
        break;
    }
    return ui->lblSearchStr->text();
}

const Sheet& frmReport::Content() const
{
    return ui->lvReport->Content();
}

void frmReport::OpenDocument(int row)
{
    Session::EditMode = false;
    const RowDocument* document = DocumentBehind(m_query.menuKey);
    if (!document || !::IsEntryEnabled(document->entry))
        return;
    const QString number = ui->lvReport->SubItem(row, document->numberColumn);
    if (number.isEmpty())
        return;
    if (Gateway()
            .SelectRows(document->table, document->key,
                        document->key + u'=' + Quoted(number) + document->condition)
            .Eof()) {
        ShowInfo(document->missing);
        return;
    }
    if (!MayEditBill(number)) {
        ShowInfo(u"你无权限可修改此单！"_s);
        return;
    }
    const QString window = document->window();
    Session::EditMode = Windows().LoadsBills(window);
    ShowBill(window, number);
}

void frmReport::SortBy(int column)
{
    if (m_query.menuKey != SortedReport || column < FirstSortedColumn || column >= Content().ColumnCount() ||
        Content().RowCount() < FewestRowsToSort)
        return;
    ui->lvReport->SortByNumber(column, m_nextSort);
    m_nextSort = m_nextSort == Qt::AscendingOrder ? Qt::DescendingOrder : Qt::AscendingOrder;
}

void frmReport::ToolbarSearch()
{
    ShowFunctionWindow(u"frmSearchCond"_s);
}

void frmReport::ToolbarDelete()
{
    // Under another key than the rows were read for, their first column is no ticket of a deposit return.
    const int row = ui->lvReport->SelectedRow();
    if (Session::CurrentMenuKey != u"RptForegift" || m_query.menuKey != Session::CurrentMenuKey || row < 0 ||
        Content().KindOf(row) != Sheet::RowKind::Record)
        return;
    Gateway().DeleteRows(u"Foregift_RTN"_s, u"SalNo="_s + Quoted(ui->lvReport->SelectedKey()));
    ShowData(true);
    ui->lvReport->MakeCurrent(row);
}

void frmReport::ToolbarPreview()
{
    PrintReport(false);
}

void frmReport::ToolbarPrint()
{
    PrintReport(true);
}

void frmReport::ToolbarExport()
{
    ShowFunctionWindow(u"frmExport"_s);
}

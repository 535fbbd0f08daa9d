#include "reports/frmSetField.h"

#include "core/common/Formats.h"
#include "core/common/Handlers.h"
#include "core/common/Lookups.h"
#include "core/forms/FunctionWindows.h"
#include "core/forms/WindowRegistry.h"
#include "core/gateway/DataGateway.h"
#include "core/session/Session.h"
#include "reports/ReportView.h"

#include "ui_frmSetField.h"

#include <QScopeGuard>
#include <QShortcut>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

const QString ColumnWindow = u"frmSetCol"_s;

bool Always()
{
    return true;
}

bool IsOfAll()
{
    return Session::ConditionAll;
}

bool HasKey()
{
    return !Session::ConditionKey.isEmpty();
}

bool IsDetail()
{
    return Session::ReportKind == u"Detail";
}

struct DefinitionRule {
    QString menuKey;
    bool (*applies)();
    QString definition;
};

/// The definition of a report with several layouts, the first rule that applies. All other reports have the
/// one of their own name.
const std::vector<DefinitionRule>& DefinitionRules()
{
    static const std::vector<DefinitionRule> rules{
        {u"RptSaleDescribe"_s, IsOfAll, u"RptSaleDescribe"_s},
        {u"RptSaleDescribe"_s, Always, u"RptSaleDescribe2"_s},
        {u"RptCheque"_s, IsDetail, u"RptChequeDetail"_s},
        {u"RptCheque"_s, Always, u"RptChequeDescribe"_s},
        {u"RptSales"_s, IsDetail, u"RptSalesDetail"_s},
        {u"RptSales"_s, HasKey, u"RptSalesDescribe2"_s},
        {u"RptSales"_s, Always, u"RptSalesDescribe"_s},
        {u"RptStoreDescribe"_s, HasKey, u"RptStoreDescribe2"_s},
        {u"RptStoreDescribe"_s, Always, u"RptStoreDescribe"_s},
        {u"RptFee"_s, IsDetail, u"RptFeeDetail"_s},
        {u"RptFee"_s, Always, u"RptFeeDescribe"_s},
        {u"RptPRDDescribe"_s, HasKey, u"RptPRDDescribe2"_s},
        {u"RptPRDDescribe"_s, Always, u"RptPRDDescribe"_s},
    };
    return rules;
}

QString DefinitionOnScreen()
{
    const auto rule = std::ranges::find_if(DefinitionRules(), [](const DefinitionRule& candidate) {
        return candidate.menuKey == Session::CurrentMenuKey && candidate.applies();
    });
    return rule == DefinitionRules().end() ? Session::CurrentMenuKey : rule->definition;
}

const std::vector<SheetColumn>& Headings()
{
    using Kind = SheetColumn::Kind;
    static const std::vector<SheetColumn> headings{
        {u"字段编号"_s, 1350, Kind::Text},   {u"字段名称"_s, 2400, Kind::Text},
        {u"字段长度"_s, 1350, Kind::Number}, {u"排序"_s, 900, Kind::Number},
        {u"显示否"_s, 1050, Kind::Flag},
    };
    return headings;
}

} // namespace

frmSetField::frmSetField(QWidget* owner)
    : FormWindow(owner, SlotUse::Untouched), ui(std::make_unique<Ui::frmSetField>())
{
    ui->setupUi(this);
    ui->lvRptCol->SetColumns(Headings());
    Chain().List(ui->lvRptCol).OnEnter([this] { EditColumn(ui->lvRptCol->SelectedRow()); });
    connect(ui->lvRptCol, &ListGrid::RowChosen, this,
            [this](int row) { RunHandler([this, row] { EditColumn(row); }); });
    OnPress(ui->cmdSubmit, [this] { RebuildReport(); });
    OnPress(ui->cmdCancel, [this] { close(); });
    connect(new QShortcut(QKeySequence(Qt::Key_Escape), this), &QShortcut::activated, this, &QWidget::close);
}

frmSetField::~frmSetField() = default;

void frmSetField::OnLoad()
{
    ui->txtRptTitle->setText(GetReportTitle(Session::CurrentMenuKey));
    ShowRptCol();
}

void frmSetField::ShowRptCol()
{
    const int selected = std::max(0, ui->lvRptCol->SelectedRow());
    ui->lvRptCol->ClearRows();
    Session::SetColName = DefinitionOnScreen();
    for (RecordSet rows =
             Gateway().SelectRows(u"DFN_RptCol"_s, u"ColID,ColName,ColWidth,ColOrder,ColStatus"_s,
                                  u"RptName="_s + Quoted(Session::SetColName) + u" Order By ColID"_s);
         !rows.Eof(); rows.MoveNext())
        ui->lvRptCol->AddRow(
            {rows.Text(0), rows.Text(1), rows.Text(2), rows.Text(3), CheckMark(rows.Text(4))});
    ui->lvRptCol->SelectRow(selected);
}

void frmSetField::EditColumn(int row)
{
    if (row < 0)
        return;
    Form* column = Windows().Load(ColumnWindow, this);
    if (!column) {
        TellNotProvided();
        return;
    }
    {
        auto unload = qScopeGuard([column] { column->Widget()->close(); });
        column->SetKey(ui->lvRptCol->SubItem(row, 1));
        unload.dismiss();
    }
    Windows().ShowModal(ColumnWindow, this);
}

void frmSetField::RebuildReport()
{
    // Away while the report builds: a modal window would keep the keys from its progress. Back again when a
    // width or a place that was typed stops it.
    hide();
    auto back = qScopeGuard([this] {
        show();
        activateWindow();
    });
    if (ReportView* report = OpenReport())
        report->ShowData(true);
    back.dismiss();
    close();
}

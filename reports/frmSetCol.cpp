#include "reports/frmSetCol.h"

#include "core/common/Handlers.h"
#include "core/forms/WindowRegistry.h"
#include "core/gateway/DataGateway.h"
#include "core/session/Session.h"

#include "ui_frmSetCol.h"

#include <QShortcut>

using namespace Qt::StringLiterals;

namespace {

// Characters that the columns hold.
constexpr int NameLength = 60;
constexpr int WidthLength = 20;
constexpr int OrderLength = 10;

QString Trimmed(QLineEdit* box)
{
    WriteText(box, box->text().trimmed());
    return box->text();
}

} // namespace

frmSetCol::frmSetCol(QWidget* owner)
    : FormWindow(owner, SlotUse::Untouched), ui(std::make_unique<Ui::frmSetCol>())
{
    ui->setupUi(this);
    Chain().Field(ui->txtColID).OnChange([this] { ShowColumn(); }).OutsideChain();
    Chain().Field(ui->txtColName).AtMost(NameLength);
    Chain().Field(ui->txtColWidth).AtMost(WidthLength);
    Chain().Field(ui->txtColOrder).AtMost(OrderLength);
    Chain().Check(ui->chkColStatus).OnEnter([this] { Save(); });
    OnPress(ui->cmdSubmit, [this] { Save(); });
    OnPress(ui->cmdCancel, [this] { close(); });
    connect(new QShortcut(QKeySequence(Qt::Key_Escape), this), &QShortcut::activated, this, &QWidget::close);
}

frmSetCol::~frmSetCol() = default;

void frmSetCol::SetKey(const QString& key)
{
    WriteText(ui->txtColID, key);
}

void frmSetCol::ShowColumn()
{
    for (QLineEdit* box : {ui->txtColName, ui->txtColWidth, ui->txtColOrder})
        box->clear();
    ui->chkColStatus->setChecked(false);
    const RecordSet column = Gateway().SelectRows(u"DFN_RptCol"_s, u"ColName,ColWidth,ColOrder,ColStatus"_s,
                                                  u"RptName="_s + Quoted(Session::SetColName) +
                                                      u" And ColID="_s + Quoted(ui->txtColID->text()));
    if (column.Eof())
        return;
    ui->txtColName->setText(column.Text(0));
    ui->txtColWidth->setText(column.Text(1));
    ui->txtColOrder->setText(column.Text(2));
    ui->chkColStatus->setChecked(column.Text(3) == u"1");
}

void frmSetCol::Save()
{
    GuardedUnlogged([this] {
        const QString name = Trimmed(ui->txtColName);
        const QString width = Trimmed(ui->txtColWidth);
        const QString order = Trimmed(ui->txtColOrder);
        const QString status = ui->chkColStatus->isChecked() ? u"1"_s : u"0"_s;
        Gateway().UpdateRows(u"DFN_RptCol"_s,
                             u"ColName="_s + Quoted(name) + u",ColWidth="_s + Quoted(width) +
                                 u",ColOrder="_s + Quoted(order) + u",ColStatus="_s + Quoted(status),
                             u"RptName="_s + Quoted(Session::SetColName) + u" And ColID="_s +
                                 Quoted(ui->txtColID->text()));
        if (Form* columns = Windows().Find(u"frmSetField"_s))
            columns->RefreshList();
        close();
    });
}

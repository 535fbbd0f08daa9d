#include "masterdata/frmCustList.h"

#include "core/base/Numbers.h"
#include "core/common/Handlers.h"
#include "core/common/Messages.h"
#include "core/forms/Fields.h"
#include "core/forms/FunctionWindows.h"
#include "core/gateway/DataGateway.h"

#include "ui_frmCustList.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

const QString Columns =
    u"CustName,CustAddress,CustCharge,CustTel,CustFax,CustMobile,CreditMoney,bolControl"_s;

/// A limit that the column cannot hold would be stored as the largest it can, without a word.
/// @throws OverflowError
void CheckColumnHolds(const QString& limit)
{
    if (const std::optional<double> number = ParseNumber(limit))
        SqlNumber(*number);
}

} // namespace

frmCustList::frmCustList(QWidget* owner)
    : FormWindow(owner, SlotUse::Takes), ui(std::make_unique<Ui::frmCustList>())
{
    ui->setupUi(this);
    Chain().Field(ui->txtCustName).AtMost(60).OnChange([this] { LookUp(); });
    Chain().Field(ui->txtCustCharge).AtMost(60);
    Chain().Field(ui->txtCustAddress).AtMost(255);
    Chain().Field(ui->txtCustTel).AtMost(50);
    Chain().Field(ui->txtCustFax).AtMost(50);
    Chain().Field(ui->txtCustMobile).AtMost(50);
    Chain().Field(ui->txtCreditMoney).Numeric(u"信用额度的内容只能是数字！"_s).KeptWhenRefused().AtMost(20);
    Chain().Check(ui->chkControl).OnEnter([this] { Save(); });
    OnPress(ui->cmdSubmit, [this] { Save(); });
    OnPress(ui->cmdCancel, [this] { close(); });
}

frmCustList::~frmCustList() = default;

void frmCustList::SetKey(const QString& key)
{
    WriteText(ui->txtCustName, key);
}

void frmCustList::LookUp()
{
    if (ui->txtCustName->text().isEmpty())
        return;
    // Also when the lookup fails: an update of a missing row would save nothing, and the address and the
    // limit on the screen would go in under the new name.
    m_isFound = false;
    ClearBuyer();
    const RecordSet row = Gateway().SelectRows(u"Cust_List"_s, Columns,
                                               u"CustName="_s + Quoted(ui->txtCustName->text().trimmed()));
    m_isFound = !row.Eof();
    if (m_isFound)
        ShowBuyer(row);
}

// The name is left as it is typed: the compare ignores a blank at its end, behind which more may come.
void frmCustList::ShowBuyer(const RecordSet& row)
{
    WriteText(ui->txtCustAddress, row.Text(1));
    WriteText(ui->txtCustCharge, row.Text(2));
    WriteText(ui->txtCustTel, row.Text(3));
    WriteText(ui->txtCustFax, row.Text(4));
    WriteText(ui->txtCustMobile, row.Text(5));
    WriteText(ui->txtCreditMoney, row.Text(6));
    ui->chkControl->setChecked(row.Text(7) == u"1");
}

void frmCustList::ClearBuyer()
{
    for (QLineEdit* box :
         {ui->txtCustAddress, ui->txtCustCharge, ui->txtCustTel, ui->txtCustFax, ui->txtCustMobile})
        WriteText(box, QString());
    WriteText(ui->txtCreditMoney, u"0"_s);
    ui->chkControl->setChecked(false);
}

void frmCustList::Save()
{
    Guarded(u"保存销货客户"_s, [this] {
        const QString name = ui->txtCustName->text().trimmed();
        const QString address = Quoted(ui->txtCustAddress->text().trimmed());
        const QString charge = Quoted(ui->txtCustCharge->text().trimmed());
        const QString tel = Quoted(ui->txtCustTel->text().trimmed());
        const QString fax = Quoted(ui->txtCustFax->text().trimmed());
        const QString mobile = Quoted(ui->txtCustMobile->text().trimmed());
        const QString credit = ui->txtCreditMoney->text().trimmed();
        const QString control = Quoted(ui->chkControl->isChecked() ? u"1"_s : u"0"_s);
        if (name.isEmpty()) {
            Refuse(ui->txtCustName, u"请填写客户名称！"_s);
            return;
        }
        CheckColumnHolds(credit);
        // The limit goes in as it is typed: one that is no number is refused by the server.
        if (m_isFound) {
            Gateway().UpdateRows(
                u"Cust_List"_s,
                u"CustAddress=%1,CustCharge=%2,CustTel=%3,CustFax=%4,CustMobile=%5,CreditMoney=%6,bolControl=%7"_s
                    .arg(address, charge, tel, fax, mobile, credit, control),
                u"CustName="_s + Quoted(name));
        } else {
            Gateway().InsertRow(
                u"Cust_List"_s, Columns,
                QStringList{Quoted(name), address, charge, tel, fax, mobile, credit, control}.join(u','));
        }
        WriteText(ui->txtCustName, QString());
        ClearBuyer();
        FocusAndSelect(ui->txtCustName);
        RefreshOpenList();
    });
}

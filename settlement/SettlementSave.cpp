#include "core/base/Clock.h"
#include "core/base/Numbers.h"
#include "core/common/Bills.h"
#include "core/common/Handlers.h"
#include "core/common/Lookups.h"
#include "core/common/Messages.h"
#include "core/forms/Fields.h"
#include "core/gateway/DataGateway.h"
#include "core/session/Session.h"
#include "printing/Documents.h"
#include "settlement/SettlementForm.h"
#include "settlement/SettlementRecords.h"

#include <QLabel>
#include <QLineEdit>

using namespace Qt::StringLiterals;

// The saving half of SettlementForm: one settlement as a sequence of statements, with nothing around
// them. A failure on the way leaves what ran before it, and the untouched bill counter makes the next
// opening of the window find the number taken.

void SettlementForm::SaveSettlement()
{
    Guarded(u"保存或修改结算信息"_s, [this] {
        const SettlementControls& c = m_controls;
        if (c.txtGTotalPrice->text().isEmpty()) {
            ShowInfo(u"实得金额为负数，不能进行结算。"_s);
            return;
        }
        const QString prdNo = c.txtPRDNo->text().trimmed();
        if (prdNo.isEmpty())
            return;

        const QDateTime now = Clock::Now();
        const QString today = FormatDate(now.date());
        const QString checkNo = StoredBillNo(c.txtCheckNo->text());
        Gateway().InsertRow(u"CheckOut"_s, CheckOutColumns, CheckOutValues(checkNo, today));
        if (!CheckNoExists(checkNo)) {
            ShowInfo(u"数据无法提交，请检查数据！"_s);
            return;
        }
        // The document is the window: it prints while the fields are filled.
        PrintDocument(PrintedAs(), PrintStyle(), *this);
        // Both look for the open lot of this number, so they come before it is closed.
        if (LotIsFixed(prdNo))
            CarryForwardLot(prdNo, now);
        CloseLot(checkNo, today);
        BumpBillCounter(Session::CurrentUserID, BillSeries::Settlements, today);
        MakeRoomForNextLot();
    });
}

QString SettlementForm::CheckOutValues(const QString& checkNo, const QString& checkDate) const
{
    const SettlementControls& c = m_controls;
    QStringList values;
    const auto text = [&values](const QString& value) { values << u"'"_s + value + u"'"_s; };
    // A figure left blank is no number here, and stops the save before its first statement.
    const auto number = [&values](const QLineEdit* box) { values << SqlNumber(RequiredNumber(box->text())); };

    text(m_lotId);
    text(checkNo);
    text(checkDate);
    text(c.txtPRDNo->text().trimmed());
    text(c.txtPRDName->text());
    number(c.txtNum);
    number(c.txtSuttle);
    number(c.txtAmount);
    number(c.txtListNum);
    text(c.txtCustName->text());
    text(Store());
    for (const QLineEdit* fee : c.Deductions())
        number(fee);
    number(c.txtLTotalPrice);
    number(c.txtGTotalPrice);
    text(c.txtCheckUser->text().trimmed());
    text(c.txtPayUser->text().trimmed());
    text(Session::CurrentUserID);
    for (const QLineEdit* rate : {c.txtPer_LManage, c.txtPer_LElect, c.txtPer_LUnload, c.txtPer_LSani})
        text(rate->text().trimmed());
    return values.join(u',');
}

void SettlementForm::CloseLot(const QString& checkNo, const QString& today)
{
    const QString ofLot = u"ID='"_s + m_lotId + u"'"_s;
    const QString closed = u"bolCheckOut='1',CheckDate='"_s + today + u"',CheckNo='"_s + checkNo + u"'"_s;
    Gateway().UpdateRows(u"PRD_List"_s, u"bolCheckOut='1',CheckNo='"_s + checkNo + u"'"_s, ofLot);
    Gateway().UpdateRows(u"Sal_List"_s, closed, ofLot);
    Gateway().UpdateRows(u"CustDebit"_s, closed, ofLot);
}

void SettlementForm::MakeRoomForNextLot()
{
    for (QLineEdit* box : TextBoxes()) {
        // The payer stays for the next settlement.
        if (box != m_controls.txtCheckDate && box != m_controls.txtPayUser)
            WriteText(box, QString());
    }
    m_controls.lblPriceUCase->clear();
    WriteText(m_controls.txtCheckNo, NextBillNo(BillSeries::Settlements));
    FocusAndSelect(m_controls.txtPRDNo);
}

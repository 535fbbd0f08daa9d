#include "core/base/Clock.h"
#include "core/common/Bills.h"
#include "core/common/Handlers.h"
#include "core/common/Lookups.h"
#include "core/common/Messages.h"
#include "core/forms/Fields.h"
#include "core/gateway/DataGateway.h"
#include "core/session/Session.h"
#include "printing/Documents.h"
#include "settlement/SettlementFields.h"
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
        if (c.txtPRDNo->text().trimmed().isEmpty())
            return;

        const QDateTime now = Clock::Now();
        const QString today = FormatDate(now.date());
        Settlement settlement = SettlementOnSheet();
        settlement.checkDate = today; // the sheet still says when the window was opened
        InsertSettlement(settlement);
        if (!CheckNoExists(settlement.checkNo)) {
            ShowInfo(u"数据无法提交，请检查数据！"_s);
            return;
        }
        // The document is the window: it prints while the fields are filled.
        PrintDocument(PrintedAs(), PrintStyle(), *this);
        // Both look for the open lot of this number, so they come before it is closed.
        if (LotIsFixed(settlement.prdNo))
            CarryForwardLot(settlement.prdNo, now);
        CloseLot(settlement.checkNo, today);
        BumpBillCounter(Session::CurrentUserID, BillSeries::Settlements, today);
        MakeRoomForNextLot();
    });
}

Settlement SettlementForm::SettlementOnSheet() const
{
    Settlement settlement;
    settlement.id = m_lotId;
    settlement.store = Store();
    settlement.receiver = Session::CurrentUserID;
    // A figure left blank is no number here, and stops the save before its first statement.
    ReadSettlementFields(this, settlement);
    return settlement;
}

void SettlementForm::CloseLot(const QString& checkNo, const QString& today)
{
    const QString ofLot = u"ID="_s + Quoted(m_lotId);
    const QString number = u",CheckNo="_s + Quoted(checkNo);
    const QString closed = u"bolCheckOut='1',CheckDate="_s + Quoted(today) + number;
    Gateway().UpdateRows(u"PRD_List"_s, u"bolCheckOut='1'"_s + number, ofLot);
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

#include "till/frmSale.h"

#include "core/base/Clock.h"
#include "core/base/Numbers.h"
#include "core/common/Bills.h"
#include "core/common/Credit.h"
#include "core/common/Handlers.h"
#include "core/common/Lookups.h"
#include "core/common/Messages.h"
#include "core/forms/Fields.h"
#include "core/session/Session.h"
#include "printing/Documents.h"
#include "till/SaleLot.h"
#include "till/TicketTotals.h"

#include "ui_frmSale.h"

using namespace Qt::StringLiterals;

// The other half of the till: what happens between 保存 and the next ticket.

namespace {

// Entries that decide: of cmbSaleType, and of cmbCheckStatus (结账).
constexpr int CreditSale = 1;
constexpr int StatusClosed = 1;

} // namespace

void frmSale::SaveTicket()
{
    Guarded(u"保存收银信息"_s, [this] {
        if (m_isRecalcDue)
            RecalcTicket();
        const QDateTime now = Clock::Now();
        Ticket ticket = ReadTicket(now);
        if (!IsComplete(ticket) || !PassesCreditTest(ticket))
            return;
        ticket.fSaleDate = BusinessDate(now, GetDeadline());
        if (!LotIsOpen(ticket.id)) {
            Refuse(ui->txtPRDNo, u"该编号已被结算，不能进行收银处理，请确认。"_s);
            return;
        }
        SaveNewTicket(ticket);
    });
}

Ticket frmSale::ReadTicket(const QDateTime& now) const
{
    const auto number = [](const QLineEdit* box) { return TextToDouble(box->text()); };
    Ticket ticket;
    ticket.salNo = StoredBillNo(ui->txtSalNo->text());
    ticket.vendee = ui->txtVendee->text();
    ticket.saleDate = FormatDate(now.date());
    ticket.saleTime = FormatTime(now.time());
    ticket.id = m_lotId;
    ticket.prdNo = ui->txtPRDNo->text();
    ticket.prdName = ui->txtPRDName->text();
    ticket.custName = ui->lblCustName->text();
    ticket.store = m_lotStore;
    ticket.pArea = ui->lblPArea->text();
    ticket.num = number(ui->txtNum);
    ticket.suttle = number(ui->txtSuttle);
    ticket.upr = number(ui->txtUPR);
    ticket.perPack = number(ui->txtPerPack);
    ticket.packAmount = number(ui->txtPackAmount);
    ticket.perForegift = number(ui->txtPerForegift);
    ticket.foregiftAmount = number(ui->txtForegiftAmount);
    ticket.amount = number(ui->txtAmount);
    ticket.totalAmount = number(ui->txtTotalAmount);
    ticket.listNo = ui->txtListNo->text();
    ticket.salesId = ui->txtSalesID->text();
    ticket.saleType = ui->cmbSaleType->currentIndex();
    ticket.itm = m_batchCount + 1;
    ticket.receiver = Session::CurrentUserID;
    return ticket;
}

bool frmSale::IsComplete(const Ticket& ticket)
{
    const bool lacksDeposit =
        !ticket.prdNo.isEmpty() && LotHasDeposit(ticket.id) && ToInt16(ticket.perForegift) == 0;
    if (lacksDeposit)
        return Refuse(ui->txtPerForegift, u"押包装必须填写！"_s);
    if (ui->txtUPR->text().isEmpty())
        return Refuse(ui->txtUPR, u"请填写批价！"_s);
    if (ticket.salesId.isEmpty())
        return Refuse(ui->txtSalesID, u"工号不能为空！"_s);
    return true;
}

bool frmSale::PassesCreditTest(const Ticket& ticket)
{
    if (ticket.saleType != CreditSale)
        return true;
    if (ticket.vendee.isEmpty())
        return Refuse(ui->txtVendee, u"赊销时购买方不能为空！"_s);
    if (CheckCreditLimit(ticket.vendee, ticket.totalAmount, 0))
        return true;
    ShowInfo(u"已超出购买方信用额度，可用信用额度为"_s + NumberText(Session::CreditLeft) + u"元。"_s);
    return false;
}

void frmSale::SaveNewTicket(const Ticket& ticket)
{
    if (!StockSuffices(ticket))
        return;
    // Without a number there is no ticket, only the screen is readied for the next one.
    if (!ticket.prdNo.isEmpty() && !BookNewTicket(ticket))
        return;
    EmptyOpenBoxes();
    if (ClosesBatch())
        CloseBatch();
    else
        CarryBatchOn();
    BumpBillCounter(Session::CurrentUserID, BillSeries::Tickets, ticket.saleDate);
    EmptyTicket();
    // The figures go all the same, and the number is used up: without a word they would seem to be saved.
    ui->FlblNotice->setText(ticket.prdNo.isEmpty()
                                ? u"没有编号，这一单没有保存；\n单号%1已用掉。"_s.arg(ui->txtSalNo->text())
                                : QString());
    if (!LeaveWhenOutOfStep())
        ui->txtSalNo->setText(NextBillNo(BillSeries::Tickets));
}

bool frmSale::StockSuffices(const Ticket& ticket)
{
    if (Session::SaleStockControl != u"1")
        return true;
    const double limit = StockLimit(ticket.id);
    if (ticket.num <= limit)
        return true;
    return Refuse(ui->txtNum, u"库存不足！仅允许销售"_s + NumberText(limit) + u"件。"_s);
}

bool frmSale::BookNewTicket(const Ticket& ticket)
{
    if (!BookTicket(ticket)) {
        ShowInfo(u"数据无法提交，请检查数据！"_s);
        return false;
    }
    CountIntoBatch();
    ApplyTicket(ticket, [this] { PrintDocument(Document::SaleList, m_printStyle, *this); });
    return true;
}

void frmSale::CountIntoBatch()
{
    ++m_batchCount;
    ui->lblTotal->setText(ClosesBatch()
                              ? u"共%1张，合计金额%2元。"_s.arg(m_batchCount).arg(ui->FlblTPrice01->text())
                              : QString());
}

void frmSale::CarryBatchOn()
{
    m_batchTotal = TextToDouble(ui->FlblTPrice01->text());
    FocusAndSelect(ui->txtVendee);
}

void frmSale::CloseBatch()
{
    ShowLastBatch(ui->FlblTPrice01->text());
    m_batchTotal = 0;
    ShowThisBatch(QString());
    FocusAndSelect(ui->txtRPrice);
    m_batchCount = 0;
}

void frmSale::EmptyOpenBoxes()
{
    const auto boxes = TextBoxes();
    for (QLineEdit* box : boxes) {
        if (!box->isReadOnly())
            WriteText(box, QString());
    }
}

void frmSale::EmptyTicket()
{
    ui->cmbSaleType->setCurrentIndex(0);
    ui->cmbCheckStatus->setCurrentIndex(0);
    for (QLineEdit* box : {ui->txtVendee, ui->txtPRDName, ui->txtAmount, ui->txtPackAmount,
                           ui->txtForegiftAmount, ui->txtTotalAmount})
        box->clear();
    ui->lblCustName->clear();
    ui->lblPArea->clear();
}

bool frmSale::ClosesBatch() const
{
    return ui->cmbCheckStatus->currentIndex() == StatusClosed;
}

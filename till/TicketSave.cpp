#include "till/frmSale.h"

#include "core/base/Clock.h"
#include "core/base/Numbers.h"
#include "core/common/Bills.h"
#include "core/common/Credit.h"
#include "core/common/Handlers.h"
#include "core/common/Lookups.h"
#include "core/common/Messages.h"
#include "core/forms/Fields.h"
#include "core/gateway/DataGateway.h"
#include "core/session/Session.h"
#include "printing/Documents.h"
#include "till/TicketTotals.h"

#include "ui_frmSale.h"

using namespace Qt::StringLiterals;

// The other half of the till: what happens between 保存 and the next ticket.

namespace {

// Entries that decide: of cmbSaleType, and of cmbCheckStatus (结账).
constexpr int CreditSale = 1;
constexpr int StatusClosed = 1;

void InsertTicket(const Ticket& ticket)
{
    const QStringList values{
        Quoted(ticket.vendee),
        Quoted(ticket.saleDate),
        Quoted(ticket.businessDate),
        Quoted(ticket.saleTime),
        Quoted(ticket.custName),
        Quoted(ticket.prdNo),
        Quoted(ticket.prdName),
        SqlNumber(ticket.num),
        SqlNumber(ticket.suttle),
        SqlNumber(ticket.upr),
        SqlNumber(ticket.perPack),
        SqlNumber(ticket.packAmount),
        SqlNumber(ticket.perForegift),
        SqlNumber(ticket.foregiftAmount),
        SqlNumber(ticket.amount),
        SqlNumber(ticket.totalAmount),
        Quoted(ticket.listNo),
        Quoted(ticket.store),
        Quoted(Session::CurrentUserID),
        Quoted(ticket.lotId),
        Quoted(ticket.salNo),
        Quoted(ticket.salesId),
        Quoted(ticket.pArea),
        Quoted(QString::number(ticket.saleType)),
        Quoted(QString::number(ticket.itm)),
    };
    Gateway().InsertRow(u"Sal_List"_s,
                        u"Vendee,SaleDate,FSaleDate,SaleTime,CustName,PRDNo,PRDName,Num,Suttle,UPR,"
                        "PerPack,PackAmount,PerForegift,ForegiftAmount,Amount,TotalAmount,ListNo,Store,"
                        "Receiver,ID,SalNo,SalesID,PArea,SaleType,ITM"_s,
                        values.join(u','));
}

/// The crates that left with the buyer against a deposit. A lot without a crate type moves none.
void CountCratesOut(const Ticket& ticket)
{
    if (ticket.num <= 0 || ticket.perForegift <= 0)
        return;
    const RecordSet pack = Gateway().SelectRows(u"PRD_List"_s, u"PackNo"_s,
                                                u"ID="_s + Quoted(ticket.lotId) + u" And PackNo<>''"_s);
    if (!pack.Eof())
        Gateway().UpdateRows(u"DFN_Pack"_s, u"Num_Pack=Num_Pack+"_s + SqlNumber(ticket.num),
                             u"PackNo="_s + Quoted(pack.Text(0)));
}

} // namespace

void frmSale::SaveTicket()
{
    Guarded(u"保存收银信息"_s, [this] {
        const QDateTime now = Clock::Now();
        Ticket ticket = ReadTicket(now);
        if (!IsComplete(ticket) || !PassesCreditTest(ticket))
            return;
        ticket.businessDate = BusinessDate(now, GetDeadline());
        if (!LotIsOpen(ticket.lotId)) {
            Refuse(ui->txtPRDNo, u"该编号已被结算，不能进行收银处理，请确认。"_s);
            return;
        }
        if (m_ticketMode == TicketMode::New)
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
    ticket.lotId = m_lotId;
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
    return ticket;
}

bool frmSale::IsComplete(const Ticket& ticket)
{
    const bool lacksDeposit =
        !ticket.prdNo.isEmpty() && LotHasDeposit(ticket.lotId) && ToInt16(ticket.perForegift) == 0;
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
    if (CheckCreditLimit(ticket.vendee, ticket.totalAmount, m_oldTotalAmount))
        return true;
    ShowInfo(u"已超出购买方信用额度，可用信用额度为"_s + NumberText(Session::CreditLeft) + u"元。"_s);
    return false;
}

void frmSale::SaveNewTicket(const Ticket& ticket)
{
    if (!StockSuffices(ticket))
        return;
    // Without a number there is no ticket, only the screen is readied for the next one.
    if (!ticket.prdNo.isEmpty() && !BookTicket(ticket))
        return;
    EmptyOpenBoxes();
    if (ClosesBatch())
        CloseBatch();
    else
        CarryBatchOn();
    BumpBillCounter(Session::CurrentUserID, BillSeries::Tickets, FormatDate(Clock::Now().date()));
    EmptyTicket();
    if (!LeaveWhenOutOfStep())
        ui->txtSalNo->setText(NextBillNo(BillSeries::Tickets));
}

bool frmSale::StockSuffices(const Ticket& ticket)
{
    if (Session::SaleStockControl != u"1")
        return true;
    const double limit = StockLimit(ticket.lotId);
    if (ticket.num <= limit)
        return true;
    return Refuse(ui->txtNum, u"库存不足！仅允许销售"_s + NumberText(limit) + u"件。"_s);
}

bool frmSale::BookTicket(const Ticket& ticket)
{
    InsertTicket(ticket);
    if (!TicketExists(ticket.salNo)) {
        ShowInfo(u"数据无法提交，请检查数据！"_s);
        return false;
    }
    CountIntoBatch();
    Gateway().UpdateRows(u"PRD_List"_s, u"Num_Sal=Num_Sal-"_s + SqlNumber(ticket.num),
                         u"ID="_s + Quoted(ticket.lotId));
    PrintDocument(Document::SaleList, m_printStyle, *this);
    CountCratesOut(ticket);
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

bool frmSale::Refuse(QWidget* field, const QString& why)
{
    ShowInfo(why);
    FocusAndSelect(field);
    return false;
}

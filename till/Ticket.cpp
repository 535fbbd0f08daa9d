#include "till/Ticket.h"

#include "core/base/Numbers.h"
#include "core/common/Bills.h"
#include "core/common/Lookups.h"
#include "core/gateway/DataGateway.h"
#include "till/SaleLot.h"

#include <QStringList>

#include <algorithm>
#include <type_traits>
#include <variant>

using namespace Qt::StringLiterals;

const QString ArchivedColumns =
    u"Vendee,SaleDate,SaleTime,PRDNo,PRDName,Num,Suttle,UPR,PerPack,PackAmount,PerForegift,"
    "ForegiftAmount,Amount,TotalAmount,ListNo,Store,Receiver,ID,SalNo,SalesID,PArea,FSaleDate,"
    "SaleType,ITM,CustName,bForegiftRTN"_s;

namespace {

const QString NewColumns =
    u"Vendee,SaleDate,FSaleDate,SaleTime,CustName,PRDNo,PRDName,Num,Suttle,UPR,PerPack,PackAmount,"
    "PerForegift,ForegiftAmount,Amount,TotalAmount,ListNo,Store,Receiver,ID,SalNo,SalesID,PArea,SaleType,"
    "ITM"_s;
const QString FlagColumn = u",bForegiftRTN"_s;
const QString AdjusterColumns = u",EReceiver,EDate,ETime"_s;

/// Where a column of Sal_List is kept; what kind of column it is follows from the member.
struct TicketColumn {
    using Member =
        std::variant<QString Ticket::*, double Ticket::*, int Ticket::*, std::optional<int> Ticket::*>;

    QString name;
    Member member;
};

const TicketColumn& ColumnOf(const QString& name)
{
    static const TicketColumn columns[] = {
        {u"SalNo"_s, &Ticket::salNo},
        {u"Vendee"_s, &Ticket::vendee},
        {u"SaleDate"_s, &Ticket::saleDate},
        {u"SaleTime"_s, &Ticket::saleTime},
        {u"FSaleDate"_s, &Ticket::fSaleDate},
        {u"ID"_s, &Ticket::id},
        {u"PRDNo"_s, &Ticket::prdNo},
        {u"PRDName"_s, &Ticket::prdName},
        {u"CustName"_s, &Ticket::custName},
        {u"Store"_s, &Ticket::store},
        {u"PArea"_s, &Ticket::pArea},
        {u"Num"_s, &Ticket::num},
        {u"Suttle"_s, &Ticket::suttle},
        {u"UPR"_s, &Ticket::upr},
        {u"PerPack"_s, &Ticket::perPack},
        {u"PackAmount"_s, &Ticket::packAmount},
        {u"PerForegift"_s, &Ticket::perForegift},
        {u"ForegiftAmount"_s, &Ticket::foregiftAmount},
        {u"Amount"_s, &Ticket::amount},
        {u"TotalAmount"_s, &Ticket::totalAmount},
        {u"ListNo"_s, &Ticket::listNo},
        {u"SalesID"_s, &Ticket::salesId},
        {u"SaleType"_s, &Ticket::saleType},
        {u"ITM"_s, &Ticket::itm},
        {u"Receiver"_s, &Ticket::receiver},
        {u"bForegiftRTN"_s, &Ticket::bForegiftRTN},
        {u"EReceiver"_s, &Ticket::eReceiver},
        {u"EDate"_s, &Ticket::eDate},
        {u"ETime"_s, &Ticket::eTime},
    };
    const auto* const column = std::ranges::find(columns, name, &TicketColumn::name);
    Q_ASSERT(column != std::end(columns));
    return *column;
}

/// How a row writes its whole numbers; texts are quoted and figures bare in both.
enum class WholeNumbers { Quoted, Bare };

/// A member as a value of a statement. A place in the batch that is not known is an empty text.
struct ValueWriter {
    WholeNumbers style;

    QString operator()(const QString& text) const { return Quoted(text); }
    QString operator()(double figure) const { return SqlNumber(figure); }
    QString operator()(int whole) const
    {
        const QString text = QString::number(whole);
        return style == WholeNumbers::Quoted ? Quoted(text) : text;
    }
    QString operator()(const std::optional<int>& whole) const
    {
        return whole ? (*this)(*whole) : Quoted(QString());
    }
};

/// A value of a row into a member.
struct ValueReader {
    const Field& field;

    void operator()(QString& text) const { text = field.Text(); }
    void operator()(double& figure) const { figure = NullToZero(field.Value); }
    void operator()(int& whole) const { whole = field.Value.toInt(); }
    void operator()(std::optional<int>& whole) const { whole = field.Value.toInt(); }
};

void InsertRowOf(const QString& table, const QString& columns, const Ticket& ticket, WholeNumbers style)
{
    QStringList values;
    for (const QString& name : columns.split(u','))
        values << std::visit([&](auto member) { return ValueWriter{style}(ticket.*member); },
                             ColumnOf(name).member);
    Gateway().InsertRow(table, columns, values.join(u','));
}

/// Which way the goods of a ticket move, and their crates with them.
enum class Way { Out, Back };

void MovePieces(const Ticket& ticket, Way way)
{
    Gateway().UpdateRows(u"PRD_List"_s,
                         (way == Way::Out ? u"Num_Sal=Num_Sal-"_s : u"Num_Sal=Num_Sal+"_s) +
                             SqlNumber(ticket.num),
                         u"ID="_s + Quoted(ticket.id));
}

/// Crates move with pieces against a deposit. A lot without a crate type moves none.
void MoveCrates(const Ticket& ticket, Way way)
{
    if (ticket.num <= 0 || ticket.perForegift <= 0)
        return;
    const QString packNo = CrateTypeOf(ticket.id);
    if (packNo.isEmpty())
        return;
    Gateway().UpdateRows(u"DFN_Pack"_s,
                         (way == Way::Out ? u"Num_Pack=Num_Pack+"_s : u"Num_Pack=Num_Pack-"_s) +
                             SqlNumber(ticket.num),
                         u"PackNo="_s + Quoted(packNo));
}

QString OfNumber(const QString& salNo)
{
    return u"SalNo="_s + Quoted(salNo);
}

} // namespace

Ticket TicketOfRow(const RecordSet& row, const QString& columns)
{
    Ticket ticket;
    const QStringList names = columns.split(u',');
    for (int i = 0; i < names.size(); ++i) {
        const Field field = row.Fields(i);
        std::visit([&](auto member) { ValueReader{field}(ticket.*member); }, ColumnOf(names[i]).member);
    }
    return ticket;
}

std::optional<Ticket> FindTicket(const QString& salNo)
{
    const RecordSet row = Gateway().SelectRows(u"Sal_List"_s, ArchivedColumns, OfNumber(salNo));
    if (row.Eof())
        return std::nullopt;
    return TicketOfRow(row, ArchivedColumns);
}

bool TicketExists(const QString& salNo)
{
    return !Gateway().SelectRows(u"Sal_List"_s, u"PRDNo"_s, OfNumber(salNo)).Eof();
}

bool BookTicket(const Ticket& ticket)
{
    InsertRowOf(u"Sal_List"_s, ticket.IsAdjusted() ? NewColumns + FlagColumn + AdjusterColumns : NewColumns,
                ticket, WholeNumbers::Quoted);
    return TicketExists(ticket.salNo);
}

void ApplyTicket(const Ticket& ticket, const std::function<void()>& print)
{
    MovePieces(ticket, Way::Out);
    print();
    MoveCrates(ticket, Way::Out);
}

void ArchiveTicket(Ticket old, const QString& adjuster, const QString& date, const QString& time)
{
    old.eReceiver = adjuster;
    old.eDate = date;
    old.eTime = time;
    InsertRowOf(u"Sal_List_B"_s, ArchivedColumns + AdjusterColumns, old, WholeNumbers::Bare);
}

void UndoTicket(const Ticket& old)
{
    MovePieces(old, Way::Back);
    MoveCrates(old, Way::Back);
}

bool RedoTicket(Ticket ticket)
{
    std::optional<Ticket> old;
    if (!ticket.prdNo.isEmpty())
        old = FindTicket(ticket.salNo);
    if (old) {
        ArchiveTicket(*old, ticket.eReceiver, ticket.eDate, ticket.eTime);
        UndoTicket(*old);
        ticket.saleDate = old->saleDate;
        ticket.saleTime = old->saleTime;
        ticket.fSaleDate = old->fSaleDate;
    }
    ticket.itm = old ? old->itm : std::nullopt;
    ticket.bForegiftRTN = old ? old->bForegiftRTN : QString();
    ticket.receiver = WriterOfBill(ticket.salNo);
    Gateway().DeleteRows(u"Sal_List"_s, OfNumber(ticket.salNo));
    return BookTicket(ticket);
}

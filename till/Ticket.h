#pragma once

#include <QString>

#include <functional>
#include <optional>

class RecordSet;

/// One ticket: a row of Sal_List. A new one is as the till's screen shows it, every figure read back from
/// its text: what is saved is what the buyer was shown, one decimal included.
struct Ticket {
    QString salNo; ///< without "NO."
    QString vendee;
    QString saleDate;
    QString saleTime;
    QString fSaleDate; ///< the market day the sale counts for
    QString id;        ///< the lot, PRD_List.ID
    QString prdNo;
    QString prdName;
    QString custName; ///< the lot's owner
    QString store;
    QString pArea;
    double num = 0;    ///< pieces
    double suttle = 0; ///< kilograms; 0: sold by the piece
    double upr = 0;    ///< yuan per kilogram or piece
    double perPack = 0;
    double packAmount = 0;
    double perForegift = 0;
    double foregiftAmount = 0;
    double amount = 0;
    double totalAmount = 0;
    QString listNo;
    QString salesId;
    int saleType = 0;       ///< entry of cmbSaleType; 1 is credit
    std::optional<int> itm; ///< place in the batch, from 1; none where it is not known any more
    QString receiver;       ///< the cashier who wrote it
    QString bForegiftRTN;   ///< "1": its deposit was paid back. Written with an adjustment only

    // The last adjustment; empty on a ticket never adjusted.
    QString eReceiver;
    QString eDate;
    QString eTime;

    bool IsAdjusted() const { return !eReceiver.isEmpty(); }
};

/// The columns that an adjustment reads of the ticket as it stood, and keeps in Sal_List_B.
extern const QString ArchivedColumns;

/// The ticket of the row that a record set stands on, which was selected with this comma list of columns.
/// What was not asked for stays empty. @throws EndOfDataError without a row
Ticket TicketOfRow(const RecordSet& row, const QString& columns);

/// The ticket of a number (without "NO."), with its ArchivedColumns. One statement. @throws DatabaseError
std::optional<Ticket> FindTicket(const QString& salNo);

/// True when a ticket stands under the number (without "NO."). @throws DatabaseError
bool TicketExists(const QString& salNo);

// The booking of a ticket: plain statements, one after the other, with nothing around them. What ran
// before a failure stays. @throws DatabaseError, OverflowError for all of them.

/// Writes the row of the ticket, and of an adjusted one its return flag and its adjuster with it. False
/// when it does not stand afterwards. Neither stock nor crates have moved yet.
bool BookTicket(const Ticket& ticket);

/// What follows a booking: the pieces leave the lot, `print` makes the document of the ticket as it is on
/// the screen, then the crates leave with the buyer.
void ApplyTicket(const Ticket& ticket, const std::function<void()>& print);

/// Writes a ticket, as it stood, to the history, with who puts it there, and when.
void ArchiveTicket(Ticket old, const QString& adjuster, const QString& date, const QString& time);

/// Takes back what a ticket did: its pieces and its crates come back to the lot that it sold, which need
/// not be the lot of the ticket that replaces it. The row itself stays.
void UndoTicket(const Ticket& old);

/// Replaces the ticket of the number by this one, which names its adjuster: what stood goes to the
/// history, is undone and deleted; the row is written anew, and BookTicket's answer given. The new row
/// keeps days, time, place in the batch and return flag of the old one, and belongs to the cashier the
/// number begins with. A ticket that an earlier attempt has deleted already is written with the days of
/// `ticket`, without place and flag. What follows a booking is left to the caller (ApplyTicket).
bool RedoTicket(Ticket ticket);

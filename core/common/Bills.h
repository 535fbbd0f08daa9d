#pragma once

#include <QString>

#include <cstdint>

// Bill numbers. Count_Bill keeps the last number used per series (TID), user (UID) and day.

/// Series of Count_Bill.
namespace BillSeries {
extern const QString Tickets;     ///< "01": Sal_List.SalNo
extern const QString Settlements; ///< "03": CheckOut.CheckNo
extern const QString Lots;        ///< "C01": PRD_List.ID, per day for all users
extern const QString Expenses;    ///< "FL": Fee_List.FeeNo
} // namespace BillSeries

/// "NO." + CurrentUserID + today's "yymmdd" + the serial, padded to three digits and whole beyond that:
/// "NO.05060309012".
QString BuildBillNo(const QString& serial);

/// The next number of a series for the current user and today, as BuildBillNo shows it. Reserves
/// nothing: only a successful save moves the counter. @throws DatabaseError
QString NextBillNo(const QString& series);

/// A shown number without its "NO.", as it is stored: everything from the fourth character on.
QString StoredBillNo(const QString& shownNumber);

/// Moves a counter by one; a counter that does not exist yet starts at 1. @throws DatabaseError
void BumpBillCounter(const QString& uid, const QString& tid, const QString& currDate);

/// A serial as three digits, "007"; "" from 1000 on, which lot keys never reach in an honest day.
QString ThreeDigits(std::int16_t n);

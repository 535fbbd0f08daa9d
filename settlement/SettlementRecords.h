#pragma once

#include <QString>

class QDateTime;

// What a settlement asks of other tables, and does to its lot.

/// True when a settlement has this number (without "NO."). @throws DatabaseError
bool CheckNoExists(const QString& checkNo);

/// How many till tickets the lot has. @throws DatabaseError
int CountLotTickets(const QString& lotId);

/// Opens a new lot under the same number with what is unsold of the open lot, be it nothing: what a
/// locked lot does at its settlement. The old lot must still be open, and stays as it is. The new lot's
/// key takes the next serial of the day's lot counter. `now` dates the new lot.
/// @throws DatabaseError, also when another workstation took the same key at the same moment;
/// OverflowError when the day's counter is beyond sixteen bits
void CarryForwardLot(const QString& prdNo, const QDateTime& now);

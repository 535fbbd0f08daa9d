#pragma once

#include <QDateTime>
#include <QString>

/// What a ticket comes to, in yuan.
struct TicketTotals {
    double amount = 0; ///< the goods alone, at one decimal
    double total = 0;  ///< what the buyer owes: goods, packing fee and deposit
};

/// Quantity times price: by net weight (kilograms) when there is one, else by the piece. The goods' value
/// is rounded to one decimal, halves away from zero; fee and deposit go in as they are. `roundToYuan`
/// rounds the total alone to whole yuan, so the parts need not add up to it.
/// @throws OverflowError when the figures are beyond a double
TicketTotals ComputeTicketTotals(double num, double suttle, double upr, double packAmount,
                                 double foregiftAmount, bool roundToYuan);

/// The market day a sale counts for, "yyyy-mm-dd": today, or tomorrow once the clock has reached the
/// cut-off. The cut-off "hh:mm:ss" is compared as text, as it was typed; "00:00:00" means none.
QString BusinessDate(const QDateTime& now, const QString& deadline);

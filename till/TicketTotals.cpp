#include "till/TicketTotals.h"

#include "core/base/Clock.h"
#include "core/base/Numbers.h"

namespace {
constexpr int AmountDecimals = 1;
}

TicketTotals ComputeTicketTotals(double num, double suttle, double upr, double packAmount,
                                 double foregiftAmount, bool roundToYuan)
{
    const double quantity = suttle != 0 ? suttle : num;
    TicketTotals totals;
    totals.amount = RoundedText(quantity * upr, AmountDecimals, false).toDouble();
    totals.total = Settled(packAmount + totals.amount + foregiftAmount);
    if (roundToYuan)
        totals.total = RoundHalfUp(totals.total);
    return totals;
}

QString BusinessDate(const QDateTime& now, const QString& deadline)
{
    const bool isPast = deadline != u"00:00:00" && FormatTime(now.time()) >= deadline;
    return FormatDate(now.date().addDays(isPast ? 1 : 0));
}

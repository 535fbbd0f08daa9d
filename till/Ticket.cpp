#include "till/Ticket.h"

#include "core/common/Lookups.h"
#include "core/gateway/DataGateway.h"
#include "till/TicketTotals.h"

using namespace Qt::StringLiterals;

bool TicketExists(const QString& salNo)
{
    return !Gateway().SelectRows(u"Sal_List"_s, u"PRDNo"_s, u"SalNo='"_s + salNo + u"'"_s).Eof();
}

bool LotIsOpen(const QString& lotId)
{
    return !Gateway()
                .SelectRows(u"PRD_List"_s, u"PRDNo"_s, u"ID='"_s + lotId + u"' And bolCheckOut='0'"_s)
                .Eof();
}

double StockLimit(const QString& lotId)
{
    const QString lot = u"ID='"_s + lotId + u"'"_s;
    const auto changed = [&lot](const QString& type) {
        return SumField(u"EStore_List"_s, u"Num"_s, lot + u" And EStoreType='"_s + type + u"'"_s);
    };
    LotMovements movements;
    movements.delivered = SumField(u"PRD_List"_s, u"Num"_s, lot);
    movements.added = changed(u"0"_s);
    movements.movedOut = changed(u"1"_s);
    movements.lost = changed(u"2"_s);
    movements.sold = SumField(u"Sal_List"_s, u"Num"_s, lot);
    return StockLeft(movements);
}

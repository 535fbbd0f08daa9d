#include "till/Ticket.h"

#include "core/common/LotStock.h"
#include "core/gateway/DataGateway.h"

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
    LotStock stock = ReadStockChanges(lotId, SumDelivered(lotId));
    stock.sold = SumSold(lotId);
    return stock.Left();
}

#include "core/common/LotStock.h"

#include "core/base/Numbers.h"
#include "core/common/Lookups.h"
#include "core/gateway/DataGateway.h"

using namespace Qt::StringLiterals;

namespace {

// EStore_List.EStoreType
const QString Added = u"0"_s;
const QString MovedOut = u"1"_s;
const QString Lost = u"2"_s;

QString OfLot(const QString& lotId)
{
    return u"ID="_s + Quoted(lotId);
}

double SumChanges(const QString& lotId, const QString& type)
{
    return SumField(u"EStore_List"_s, u"Num"_s, OfLot(lotId) + u" And EStoreType="_s + Quoted(type));
}

} // namespace

double LotStock::Arrived() const
{
    return Settled(delivered + added);
}

double LotStock::StayedForSale() const
{
    return Settled(delivered + added - movedOut - lost);
}

double LotStock::Left() const
{
    return Settled(delivered + added - movedOut - lost - sold);
}

double SumDelivered(const QString& lotId)
{
    return SumField(u"PRD_List"_s, u"Num"_s, OfLot(lotId));
}

double SumAdded(const QString& lotId)
{
    return SumChanges(lotId, Added);
}

double SumSold(const QString& lotId)
{
    return SumField(u"Sal_List"_s, u"Num"_s, OfLot(lotId));
}

LotStock ReadStockChanges(const QString& lotId, double delivered)
{
    LotStock stock{.delivered = delivered};
    stock.added = SumAdded(lotId);
    stock.movedOut = SumChanges(lotId, MovedOut);
    stock.lost = SumChanges(lotId, Lost);
    return stock;
}

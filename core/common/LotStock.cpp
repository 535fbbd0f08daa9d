#include "core/common/LotStock.h"

#include "core/base/Numbers.h"

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

#include "goods/LotStock.h"

#include "core/base/Numbers.h"

double LotStock::Arrived() const
{
    return AtColumnScale(delivered + added);
}

double LotStock::StayedForSale() const
{
    return AtColumnScale(delivered + added - movedOut - lost);
}

double LotStock::Left() const
{
    return AtColumnScale(delivered + added - movedOut - lost - sold);
}

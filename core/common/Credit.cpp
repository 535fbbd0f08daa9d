#include "core/common/Credit.h"

#include "core/base/Numbers.h"
#include "core/common/Lookups.h"
#include "core/gateway/DataGateway.h"
#include "core/session/Session.h"

using namespace Qt::StringLiterals;

bool CheckCreditLimit(const QString& buyer, double newAmount, double oldAmount)
{
    const RecordSet limit = Gateway().SelectRows(u"Cust_List"_s, u"CreditMoney"_s,
                                                 u"CustName='"_s + buyer + u"' And bolControl='1'"_s);
    if (limit.Eof())
        return true;
    const double creditMoney = NullToZero(limit.Fields(0).Value);
    const double used = SumField(u"Sal_List"_s, u"TotalAmount"_s,
                                 u"Vendee='"_s + buyer + u"' And SaleType='1' And bolReturn='0'"_s);
    const double need = Settled(used - oldAmount + newAmount);
    if (creditMoney >= need)
        return true;
    Session::CreditLeft = Settled(creditMoney - used + oldAmount);
    return false;
}

#include "core/common/Bills.h"

#include "core/base/Clock.h"
#include "core/base/Numbers.h"
#include "core/common/Lookups.h"
#include "core/gateway/DataGateway.h"
#include "core/session/Session.h"

using namespace Qt::StringLiterals;

const QString BillSeries::Tickets = u"01"_s;
const QString BillSeries::Settlements = u"03"_s;
const QString BillSeries::Lots = u"C01"_s;
const QString BillSeries::Expenses = u"FL"_s;

namespace {
constexpr int SerialDigits = 3;
constexpr int PrefixLength = 3; // "NO."
} // namespace

QString BuildBillNo(const QString& serial)
{
    const QString day = Clock::Now().date().toString(u"yyMMdd"_s);
    return u"NO."_s + Session::CurrentUserID + day + serial.rightJustified(SerialDigits, u'0');
}

QString NextBillNo(const QString& series)
{
    const RecordSet counter =
        Gateway().SelectRows(u"Count_Bill"_s, u"CurrNumber"_s,
                             u"CurrDate='"_s + FormatDate(Clock::Now().date()) + u"' And TID='"_s + series +
                                 u"' And UID='"_s + Session::CurrentUserID + u"'"_s);
    const double serial = counter.Eof() ? 1 : NullToZero(counter.Fields(0).Value) + 1;
    return BuildBillNo(NumberText(serial));
}

QString StoredBillNo(const QString& shownNumber)
{
    return shownNumber.mid(PrefixLength);
}

void BumpBillCounter(const QString& uid, const QString& tid, const QString& currDate)
{
    const QString where =
        u"UID='"_s + uid + u"' And TID='"_s + tid + u"' And CurrDate='"_s + currDate + u"'"_s;
    if (Gateway().SelectRows(u"Count_Bill"_s, u"CurrNumber"_s, where).Eof()) {
        Gateway().InsertRow(u"Count_Bill"_s, u"TID,UID,CurrDate,CurrNumber"_s,
                            u"'"_s + tid + u"','"_s + uid + u"','"_s + currDate + u"',1"_s);
    } else {
        Gateway().UpdateRows(u"Count_Bill"_s, u"CurrNumber=CurrNumber+1"_s, where);
    }
}

QString ThreeDigits(std::int16_t n)
{
    if (n >= 1000)
        return QString();
    return (n < 10 ? u"00"_s : n < 100 ? u"0"_s : QString()) + QString::number(n);
}

#include "settlement/SettlementRecords.h"

#include "core/base/Clock.h"
#include "core/base/Numbers.h"
#include "core/common/Bills.h"
#include "core/common/Lookups.h"
#include "core/gateway/DataGateway.h"

#include <QDateTime>
#include <QStringList>

#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

const QString CheckOutColumns =
    u"ID,CheckNo,CheckDate,PRDNo,PRDName,Num,Suttle,Amount,ListNum,CustName,Store,LManagePrice,LPackPrice,"
    "LUnloadPrice,LExpendPrice,LSanitationPrice,LElectPrice,LRecoupPrice,LChillPrice,LFieldPrice,"
    "LOtherPrice,LTotalPrice,GTotalPrice,CheckUser,PayUser,Receiver,Per_LManage,Per_LElect,Per_LUnload,"
    "Per_LSani"_s;

bool CheckNoExists(const QString& checkNo)
{
    return !Gateway().SelectRows(u"CheckOut"_s, u"PRDNo"_s, u"CheckNo='"_s + checkNo + u"'"_s).Eof();
}

int CountLotTickets(const QString& lotId)
{
    return Gateway()
        .SelectRows(u"Sal_List"_s, u"Count(*)"_s, u"ID='"_s + lotId + u"'"_s)
        .Fields(0)
        .Value.toInt();
}

namespace {

/// The key of the day's next lot. The day's first one opens the counter at 1.
QString NextLotId(const QString& today, const QDateTime& now)
{
    const RecordSet counter =
        Gateway().SelectRows(u"Count_Bill"_s, u"CurrNumber"_s,
                             u"CurrDate='"_s + today + u"' And TID='"_s + BillSeries::Lots + u"'"_s);
    std::int16_t serial = 1;
    if (counter.Eof()) {
        Gateway().InsertRow(u"Count_Bill"_s, u"TID,CurrDate,CurrNumber"_s,
                            u"'"_s + BillSeries::Lots + u"','"_s + today + u"',1"_s);
    } else {
        serial = ToInt16(NullToZero(counter.Fields(0).Value) + 1);
    }
    return now.date().toString(u"yyyyMMdd"_s) + ThreeDigits(serial);
}

/// The new lot: the old one's row as it stands, but for its key, its pieces, the money and the dates.
void InsertCarriedLot(const RecordSet& oldLot, const QString& newId, const QDateTime& now)
{
    const auto text = [&oldLot](int column) { return u"'"_s + oldLot.Text(column) + u"'"_s; };
    const auto number = [&oldLot](int column) { return SqlNumber(NullToZero(oldLot.Fields(column).Value)); };
    const QString unsold = number(4);
    const QString today = u"'"_s + FormatDate(now.date()) + u"'"_s;
    const std::vector<std::pair<QString, QString>> newLot{
        {u"ID"_s, u"'"_s + newId + u"'"_s},
        {u"PID"_s, text(0)},
        {u"CustID"_s, text(1)},
        {u"PRDNo"_s, text(2)},
        {u"PRDName"_s, text(3)},
        {u"Num"_s, unsold},
        {u"Num_Sal"_s, unsold},
        {u"PType"_s, text(5)},
        {u"MPercent"_s, number(6)},
        {u"CustInDate"_s, today},
        {u"Store"_s, text(7)},
        {u"PArea"_s, text(8)},
        {u"bolPack"_s, text(9)},
        {u"CustName"_s, text(10)},
        {u"CardNO"_s, text(11)},
        {u"VerifyID"_s, text(12)},
        {u"Address"_s, text(13)},
        {u"DebitPrice"_s, u"0"_s},
        {u"Tel"_s, text(14)},
        {u"Fax"_s, text(15)},
        {u"Mobile"_s, text(16)},
        {u"Memo"_s, u"''"_s},
        {u"bolFixed"_s, text(17)},
        {u"Receiver"_s, text(18)},
        {u"PRDNo_S"_s, text(19)},
        {u"PerForegift"_s, text(20)},
        {u"PackNo"_s, text(21)},
        {u"CustFInDate"_s, today},
        {u"CustInTime"_s, u"'"_s + FormatTime(now.time()) + u"'"_s},
    };
    QStringList columns;
    QStringList values;
    for (const auto& [column, value] : newLot) {
        columns << column;
        values << value;
    }
    Gateway().InsertRow(u"PRD_List"_s, columns.join(u','), values.join(u','));
}

} // namespace

void CarryForwardLot(const QString& prdNo, const QDateTime& now)
{
    const QString today = FormatDate(now.date());
    const QString newId = NextLotId(today, now);
    const RecordSet oldLot = Gateway().SelectRows(
        u"PRD_List"_s,
        u"PID,CustID,PRDNo,PRDName,Num_Sal,PType,MPercent,Store,PArea,bolPack,CustName,CardNO,VerifyID,"
        "Address,Tel,Fax,Mobile,bolFixed,Receiver,PRDNo_S,PerForegift,PackNo"_s,
        u"PRDNo='"_s + prdNo + u"' And bolCheckOut='0'"_s);
    if (!oldLot.Eof())
        InsertCarriedLot(oldLot, newId, now);
    // On the day's first lot this leaves the counter at 2 with one lot opened: number 2 is never given.
    if (!Gateway().SelectRows(u"PRD_List"_s, u"PRDNo"_s, u"ID='"_s + newId + u"'"_s).Eof()) {
        Gateway().UpdateRows(u"Count_Bill"_s, u"CurrNumber=CurrNumber+1"_s,
                             u"TID='"_s + BillSeries::Lots + u"' And CurrDate='"_s + today + u"'"_s);
    }
}

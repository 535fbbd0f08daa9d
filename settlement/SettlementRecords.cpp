#include "settlement/SettlementRecords.h"

#include "core/base/Clock.h"
#include "core/base/Numbers.h"
#include "core/common/Bills.h"
#include "core/common/ColumnNames.h"
#include "core/common/Lookups.h"
#include "core/gateway/DataGateway.h"

#include <QDateTime>
#include <QStringList>

#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

bool CheckNoExists(const QString& checkNo)
{
    return !Gateway().SelectRows(u"CheckOut"_s, u"PRDNo"_s, u"CheckNo="_s + Quoted(checkNo)).Eof();
}

int CountLotTickets(const QString& lotId)
{
    return Gateway()
        .SelectRows(u"Sal_List"_s, u"Count(*)"_s, u"ID="_s + Quoted(lotId))
        .Fields(0)
        .Value.toInt();
}

namespace {

/// What a carried lot takes from the old one's row.
const ColumnNames CarriedColumns(
    u"PID,CustID,PRDNo,PRDName,Num_Sal,PType,MPercent,Store,PArea,bolPack,CustName,CardNO,VerifyID,"
    "Address,Tel,Fax,Mobile,bolFixed,Receiver,PRDNo_S,PerForegift,PackNo"_s);

/// The key of the day's next lot. The day's first one opens the counter at 1.
QString NextLotId(const QString& today, const QDateTime& now)
{
    const RecordSet counter =
        Gateway().SelectRows(u"Count_Bill"_s, u"CurrNumber"_s,
                             u"CurrDate="_s + Quoted(today) + u" And TID="_s + Quoted(BillSeries::Lots));
    std::int16_t serial = 1;
    if (counter.Eof()) {
        Gateway().InsertRow(u"Count_Bill"_s, u"TID,CurrDate,CurrNumber"_s,
                            Quoted(BillSeries::Lots) + u',' + Quoted(today) + u",1"_s);
    } else {
        serial = ToInt16(NullToZero(counter.Fields(0).Value) + 1);
    }
    return now.date().toString(u"yyyyMMdd"_s) + ThreeDigits(serial);
}

/// The new lot: the old one's row as it stands, but for its key, its pieces, the money and the dates.
void InsertCarriedLot(const RecordSet& oldLot, const QString& newId, const QDateTime& now)
{
    const auto text = [&oldLot](const QString& column) {
        return Quoted(oldLot.Text(CarriedColumns.At(column)));
    };
    const auto number = [&oldLot](const QString& column) {
        return SqlNumber(NullToZero(oldLot.Fields(CarriedColumns.At(column)).Value));
    };
    const QString unsold = number(u"Num_Sal"_s);
    const QString today = Quoted(FormatDate(now.date()));
    const std::vector<std::pair<QString, QString>> newLot{
        {u"ID"_s, Quoted(newId)},
        {u"PID"_s, text(u"PID"_s)},
        {u"CustID"_s, text(u"CustID"_s)},
        {u"PRDNo"_s, text(u"PRDNo"_s)},
        {u"PRDName"_s, text(u"PRDName"_s)},
        {u"Num"_s, unsold},
        {u"Num_Sal"_s, unsold},
        {u"PType"_s, text(u"PType"_s)},
        {u"MPercent"_s, number(u"MPercent"_s)},
        {u"CustInDate"_s, today},
        {u"Store"_s, text(u"Store"_s)},
        {u"PArea"_s, text(u"PArea"_s)},
        {u"bolPack"_s, text(u"bolPack"_s)},
        {u"CustName"_s, text(u"CustName"_s)},
        {u"CardNO"_s, text(u"CardNO"_s)},
        {u"VerifyID"_s, text(u"VerifyID"_s)},
        {u"Address"_s, text(u"Address"_s)},
        {u"DebitPrice"_s, u"0"_s},
        {u"Tel"_s, text(u"Tel"_s)},
        {u"Fax"_s, text(u"Fax"_s)},
        {u"Mobile"_s, text(u"Mobile"_s)},
        {u"Memo"_s, Quoted(QString())},
        {u"bolFixed"_s, text(u"bolFixed"_s)},
        {u"Receiver"_s, text(u"Receiver"_s)},
        {u"PRDNo_S"_s, text(u"PRDNo_S"_s)},
        {u"PerForegift"_s, text(u"PerForegift"_s)},
        {u"PackNo"_s, text(u"PackNo"_s)},
        {u"CustFInDate"_s, today},
        {u"CustInTime"_s, Quoted(FormatTime(now.time()))},
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
    const RecordSet oldLot = Gateway().SelectRows(u"PRD_List"_s, CarriedColumns.Text(),
                                                  u"PRDNo="_s + Quoted(prdNo) + u" And bolCheckOut='0'"_s);
    if (!oldLot.Eof())
        InsertCarriedLot(oldLot, newId, now);
    // On the day's first lot this leaves the counter at 2 with one lot opened: number 2 is never given.
    if (!Gateway().SelectRows(u"PRD_List"_s, u"PRDNo"_s, u"ID="_s + Quoted(newId)).Eof()) {
        Gateway().UpdateRows(u"Count_Bill"_s, u"CurrNumber=CurrNumber+1"_s,
                             u"TID="_s + Quoted(BillSeries::Lots) + u" And CurrDate="_s + Quoted(today));
    }
}

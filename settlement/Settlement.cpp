#include "settlement/Settlement.h"

#include "core/base/Numbers.h"
#include "core/common/Lookups.h"
#include "core/gateway/DataGateway.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

const std::array<SettlementColumn, 30>& SettlementColumns()
{
    using Box = SettlementColumn::Box;
    static const std::array<SettlementColumn, 30> columns{{
        {u"ID"_s, &Settlement::id, Box::None},
        {u"CheckNo"_s, &Settlement::checkNo, Box::BillNo},
        {u"CheckDate"_s, &Settlement::checkDate, Box::Date},
        {u"PRDNo"_s, &Settlement::prdNo, Box::Trimmed},
        {u"PRDName"_s, &Settlement::prdName, Box::Plain},
        {u"Num"_s, &Settlement::num, Box::Plain},
        {u"Suttle"_s, &Settlement::suttle, Box::Plain},
        {u"Amount"_s, &Settlement::amount, Box::Plain},
        {u"ListNum"_s, &Settlement::listNum, Box::Plain},
        {u"CustName"_s, &Settlement::custName, Box::Plain},
        {u"Store"_s, &Settlement::store, Box::None},
        {u"LManagePrice"_s, &Settlement::lManagePrice, Box::Plain},
        {u"LPackPrice"_s, &Settlement::lPackPrice, Box::Plain},
        {u"LUnloadPrice"_s, &Settlement::lUnloadPrice, Box::Plain},
        {u"LExpendPrice"_s, &Settlement::lExpendPrice, Box::Plain},
        {u"LSanitationPrice"_s, &Settlement::lSanitationPrice, Box::Plain},
        {u"LElectPrice"_s, &Settlement::lElectPrice, Box::Plain},
        {u"LRecoupPrice"_s, &Settlement::lRecoupPrice, Box::Plain},
        {u"LChillPrice"_s, &Settlement::lChillPrice, Box::Plain},
        {u"LFieldPrice"_s, &Settlement::lFieldPrice, Box::Plain},
        {u"LOtherPrice"_s, &Settlement::lOtherPrice, Box::Plain},
        {u"LTotalPrice"_s, &Settlement::lTotalPrice, Box::Plain},
        {u"GTotalPrice"_s, &Settlement::gTotalPrice, Box::Plain},
        {u"CheckUser"_s, &Settlement::checkUser, Box::Trimmed},
        {u"PayUser"_s, &Settlement::payUser, Box::Trimmed},
        {u"Receiver"_s, &Settlement::receiver, Box::None},
        {u"Per_LManage"_s, &Settlement::perLManage, Box::Trimmed},
        {u"Per_LElect"_s, &Settlement::perLElect, Box::Trimmed},
        {u"Per_LUnload"_s, &Settlement::perLUnload, Box::Trimmed},
        {u"Per_LSani"_s, &Settlement::perLSani, Box::Trimmed},
    }};
    return columns;
}

const std::array<const SettlementColumn*, 28>& ShownSettlementColumns()
{
    static const auto shown = [] {
        const std::array<QString, 28> names{
            u"PRDNo"_s,        u"CustName"_s,    u"Store"_s,        u"CheckDate"_s,    u"LManagePrice"_s,
            u"LElectPrice"_s,  u"LPackPrice"_s,  u"LUnloadPrice"_s, u"LExpendPrice"_s, u"LSanitationPrice"_s,
            u"LRecoupPrice"_s, u"LChillPrice"_s, u"LFieldPrice"_s,  u"LOtherPrice"_s,  u"LTotalPrice"_s,
            u"GTotalPrice"_s,  u"CheckUser"_s,   u"PayUser"_s,      u"ListNum"_s,      u"ID"_s,
            u"PRDName"_s,      u"Num"_s,         u"Suttle"_s,       u"Amount"_s,       u"Per_LManage"_s,
            u"Per_LElect"_s,   u"Per_LUnload"_s, u"Per_LSani"_s};
        std::array<const SettlementColumn*, 28> columns{};
        std::ranges::transform(names, columns.begin(), [](const QString& name) {
            return &*std::ranges::find(SettlementColumns(), name, &SettlementColumn::name);
        });
        return columns;
    }();
    return shown;
}

namespace {

QString StoredColumns()
{
    QStringList names;
    for (const SettlementColumn& column : SettlementColumns())
        names << column.name;
    return names.join(u',');
}

/// The values as they stand in a statement, in the order of the columns.
QString Values(const Settlement& settlement)
{
    QStringList values;
    for (const SettlementColumn& column : SettlementColumns()) {
        if (const auto* text = std::get_if<QString Settlement::*>(&column.member))
            values << Quoted(settlement.**text);
        else
            values << SqlNumber(settlement.*std::get<double Settlement::*>(column.member));
    }
    return values.join(u',');
}

void Take(Settlement& settlement, const SettlementColumn& column, const Field& field)
{
    if (const auto* text = std::get_if<QString Settlement::*>(&column.member))
        settlement.** text = field.Text();
    else
        settlement.*std::get<double Settlement::*>(column.member) = NullToZero(field.Value);
}

QString OfNumber(const QString& checkNo)
{
    return u"CheckNo="_s + Quoted(checkNo);
}

} // namespace

void InsertSettlement(const Settlement& settlement)
{
    Gateway().InsertRow(u"CheckOut"_s, StoredColumns(), Values(settlement));
}

std::optional<Settlement> ReadSettlement(const QString& checkNo)
{
    QStringList names;
    for (const SettlementColumn* column : ShownSettlementColumns())
        names << column->name;
    const RecordSet row = Gateway().SelectRows(u"CheckOut"_s, names.join(u','), OfNumber(checkNo));
    if (row.Eof())
        return std::nullopt;
    Settlement settlement;
    settlement.checkNo = checkNo;
    int position = 0;
    for (const SettlementColumn* column : ShownSettlementColumns())
        Take(settlement, *column, row.Fields(position++));
    return settlement;
}

bool ArchiveSettlement(const QString& checkNo)
{
    const RecordSet row = Gateway().SelectRows(u"CheckOut"_s, StoredColumns(), OfNumber(checkNo));
    if (row.Eof())
        return false;
    Settlement settlement;
    int position = 0;
    for (const SettlementColumn& column : SettlementColumns())
        Take(settlement, column, row.Fields(position++));
    Gateway().InsertRow(u"CheckOut_B"_s, StoredColumns(), Values(settlement));
    return true;
}

#include "core/common/Lookups.h"

#include "core/base/Numbers.h"
#include "core/gateway/DataGateway.h"

#include <optional>

using namespace Qt::StringLiterals;

namespace {

std::optional<Field> FirstValue(const QString& table, const QString& field, const QString& where)
{
    const RecordSet rows = Gateway().SelectRows(table, field, where);
    if (rows.Eof())
        return std::nullopt;
    return rows.Fields(0);
}

QString FirstText(const QString& table, const QString& field, const QString& where,
                  const QString& noRow = QString())
{
    const auto value = FirstValue(table, field, where);
    return value ? value->Text() : noRow;
}

bool HasRow(const QString& table, const QString& field, const QString& where)
{
    return FirstValue(table, field, where).has_value();
}

/// The reading of flags that are on in doubt: anything but "0", so that "" and NULL are on.
bool IsNotZero(const QString& table, const QString& field, const QString& where)
{
    const auto value = FirstValue(table, field, where);
    return value && value->Text() != u"0";
}

} // namespace

QString GetCompName()
{
    return FirstText(u"Sys_Define"_s, u"CompName"_s, QString());
}

QString GetDepartName()
{
    return FirstText(u"Sys_Define"_s, u"DepartName"_s, QString());
}

bool IsPrintOnSave()
{
    return FirstText(u"Sys_Define"_s, u"PrintType"_s, QString()) == u"1";
}

bool IsVerifyOn()
{
    return FirstText(u"Sys_Define"_s, u"bolVerify"_s, QString()) == u"1";
}

QString GetDeadline()
{
    const QString deadline = FirstText(u"Sys_Define"_s, u"Deadline"_s, QString());
    return deadline.isEmpty() ? u"00:00:00"_s : deadline;
}

std::int16_t GetOrientation()
{
    return ToInt16(LeadingNumber(FirstText(u"Sys_Define"_s, u"Orientation"_s, QString(), u"1"_s)));
}

QString GetUserField(const QString& whereColumn, const QString& value, const QString& field)
{
    return FirstText(u"User_List"_s, field, whereColumn + u'=' + Quoted(value));
}

bool HasMenuRight(const QString& user, const QString& menuName)
{
    return HasRow(u"User_Menu"_s, u"MenuName"_s,
                  u"UserID="_s + Quoted(user) + u" And MenuName="_s + Quoted(menuName));
}

bool UserSearchAll(const QString& user)
{
    return IsNotZero(u"User_List"_s, u"bolSearch"_s, u"UserID="_s + Quoted(user));
}

bool UserMayEdit(const QString& user)
{
    return IsNotZero(u"User_List"_s, u"bolEdit"_s, u"UserID="_s + Quoted(user));
}

bool UserMustMatchAddress(const QString& user)
{
    return FirstText(u"User_List"_s, u"bolIP"_s, u"UserID="_s + Quoted(user)) == u"1";
}

QString GetReportTitle(const QString& reportName)
{
    return FirstText(u"DFN_RptTitle"_s, u"RptTitle"_s, u"RptName="_s + Quoted(reportName));
}

QVariant GetReportFont(const QString& field)
{
    const auto value = FirstValue(u"DRptFont"_s, field, QString());
    return value ? value->Value : QVariant(QString());
}

bool LotHasDeposit(const QString& lotId)
{
    return IsNotZero(u"PRD_List"_s, u"bolPack"_s, u"ID="_s + Quoted(lotId));
}

bool LotVerifyMatches(const QString& prdNo, const QString& code)
{
    return HasRow(u"PRD_List"_s, u"PRDNo"_s,
                  u"PRDNo="_s + Quoted(prdNo) + u" And VerifyID="_s + Quoted(code) +
                      u" And bolCheckOut='0'"_s);
}

bool LotIsFixed(const QString& prdNo)
{
    return FirstText(u"PRD_List"_s, u"bolFixed"_s, u"PRDNo="_s + Quoted(prdNo) + u" And bolCheckOut='0'"_s) ==
           u"1";
}

bool LotMatches(const QString& prdNo, const QString& lotId)
{
    return HasRow(u"PRD_List"_s, u"PRDNo"_s, u"PRDNo="_s + Quoted(prdNo) + u" And ID="_s + Quoted(lotId));
}

bool StoreExists(const QString& store)
{
    return HasRow(u"Store"_s, u"Store"_s, u"Store="_s + Quoted(store));
}

bool SalesExists(const QString& salesId)
{
    return salesId.isEmpty() || HasRow(u"Sales"_s, u"SalesID"_s, u"SalesID="_s + Quoted(salesId));
}

QString GetSalesName(const QString& salesId)
{
    if (salesId.isEmpty())
        return QString();
    return FirstText(u"Sales"_s, u"SalesName"_s, u"SalesID="_s + Quoted(salesId));
}

double GetPaperLeft(const QString& paperId)
{
    const auto value = FirstValue(u"DFN_Paper"_s, u"LeftArea"_s, u"PaperID="_s + Quoted(paperId));
    return value ? NullToZero(value->Value) : 0;
}

double GetPaperTop(const QString& paperId)
{
    const auto value = FirstValue(u"DFN_Paper"_s, u"TopArea"_s, u"PaperID="_s + Quoted(paperId));
    return value ? NullToZero(value->Value) : 0;
}

QString GetPrintStyle(const QString& paperId)
{
    return FirstText(u"DFN_Paper"_s, u"PrintStyle"_s, u"PaperID="_s + Quoted(paperId), u"0"_s);
}

bool IsRoundOn(const QString& countId)
{
    return IsNotZero(u"DFN_Round"_s, u"bolRound"_s, u"CountID="_s + Quoted(countId));
}

QString GetFeeCountID(const QString& feeId)
{
    return FirstText(u"DFN_CheckFee"_s, u"CountID"_s, u"FeeID="_s + Quoted(feeId), u"0"_s);
}

double NullToZero(const QVariant& value)
{
    return value.isNull() ? 0 : value.toDouble();
}

double SumField(const QString& table, const QString& field, const QString& where)
{
    const RecordSet sum = Gateway().SelectRows(table, u"SUM("_s + field + u')', where);
    return TextToDouble(sum.Text(0));
}

#include "core/common/ReportColumns.h"

#include "core/base/Numbers.h"
#include "core/gateway/DataGateway.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr double WidestColumn = 32767; // twips: more than the longest paper

SheetColumn::Kind KindOf(const QString& align)
{
    if (align == u"1")
        return SheetColumn::Kind::Number;
    return align == u"2" ? SheetColumn::Kind::Centred : SheetColumn::Kind::Text;
}

} // namespace

QString ShownColumns(const QString& reportName, bool normal)
{
    // The two blanks before "And" are how the statement has always been written.
    return u"RptName='"_s + reportName +
           (normal ? u"'  And ColStatus='1' Order By ColOrder ASC"_s
                   : u"'  And TempStatus='1' Order By TempOrder ASC"_s);
}

std::vector<SheetColumn> ReportColumns(const QString& reportName, bool normal)
{
    RecordSet rows = Gateway().SelectRows(
        u"DFN_RptCol"_s, u"ColName,ColWidth,ColAlign,ColStatus,ColOrder,TempStatus,TempOrder"_s,
        ShownColumns(reportName, normal));
    std::vector<SheetColumn> columns;
    for (; !rows.Eof(); rows.MoveNext()) {
        const double width = std::clamp(RequiredNumber(rows.Text(1)), 0.0, WidestColumn);
        columns.push_back({rows.Text(0), static_cast<int>(width), KindOf(rows.Text(2))});
    }
    return columns;
}

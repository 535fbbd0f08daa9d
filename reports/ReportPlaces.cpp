#include "reports/ReportPlaces.h"

#include "core/base/Numbers.h"
#include "core/base/RunTimeError.h"
#include "core/common/Lookups.h"
#include "core/common/ReportColumns.h"
#include "core/gateway/DataGateway.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// More than a report has columns. A place behind it has no heading, and one mistyped as 1000000 would cost
// each row as many texts.
constexpr int FarthestPlace = 99;

int PositionOf(const QString& id)
{
    const int position = ToInt16(RequiredNumber(id));
    if (position < 0 || position > LastPosition)
        throw OutOfBoundsError();
    return position;
}

} // namespace

ReportPlaces::ReportPlaces(const QString& reportName, bool normal)
{
    RecordSet rows =
        Gateway().SelectRows(u"DFN_RptCol"_s, normal ? u"ColID,ColOrder"_s : u"ColID,TempOrder"_s,
                             ShownColumns(reportName, normal));
    for (; !rows.Eof(); rows.MoveNext()) {
        const double order = NullToZero(rows.Fields(1).Value);
        const bool stands = order >= 1 && order <= FarthestPlace;
        m_places.push_back({rows.Text(0), stands ? static_cast<int>(order) : 0});
        m_width = std::max(m_width, m_places.back().order);
    }
}

QStringList ReportPlaces::Arrange(const RowValues& values)
{
    QStringList subItems;
    subItems.resize(m_width);
    for (Place& place : m_places) {
        if (place.position < 0)
            place.position = PositionOf(place.id);
        if (place.order > 0)
            subItems[place.order - 1] = values[static_cast<std::size_t>(place.position)];
    }
    return subItems;
}

int ReportPlaces::PlaceOf(int position) const
{
    const QString id = QString::number(position).rightJustified(2, u'0');
    const auto place =
        std::find_if(m_places.begin(), m_places.end(), [&id](const Place& each) { return each.id == id; });
    return place == m_places.end() ? 0 : place->order;
}

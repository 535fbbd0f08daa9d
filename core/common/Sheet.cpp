#include "core/common/Sheet.h"

#include "core/base/Numbers.h"

#include <algorithm>
#include <numeric>
#include <utility>

Qt::Alignment SheetColumn::Alignment() const
{
    switch (kind) {
    case Kind::Number:
        return Qt::AlignRight;
    case Kind::Centred:
    case Kind::Flag:
        return Qt::AlignHCenter;
    case Kind::Text:
        break;
    }
    return Qt::AlignLeft;
}

void Sheet::SetColumns(std::vector<SheetColumn> columns)
{
    m_rows.clear();
    m_columns = std::move(columns);
    m_columns.insert(m_columns.begin(), SheetColumn{});
}

void Sheet::SetWidth(int position, int twips)
{
    if (position > 0 && position < ColumnCount())
        m_columns[static_cast<std::size_t>(position)].widthTwips = twips;
}

int Sheet::Width() const
{
    return std::accumulate(m_columns.begin(), m_columns.end(), 0,
                           [](int sum, const SheetColumn& column) { return sum + column.widthTwips; });
}

Sheet::RowKind Sheet::KindOf(int row) const
{
    return HasRow(row) ? m_rows[static_cast<std::size_t>(row)].kind : RowKind::Spacer;
}

QString Sheet::Text(int row, int position) const
{
    return HasRow(row) && position > 0 ? m_rows[static_cast<std::size_t>(row)].subItems.value(position - 1)
                                       : QString();
}

void Sheet::SetText(int row, int position, const QString& text)
{
    if (!HasRow(row) || position < 1)
        return;
    QStringList& subItems = m_rows[static_cast<std::size_t>(row)].subItems;
    if (subItems.size() < position)
        subItems.resize(position);
    subItems[position - 1] = text;
}

std::vector<int> Sheet::SortByNumber(int position, Qt::SortOrder order)
{
    // The numbers are read once, not at each compare: thirty thousand rows are half a million compares.
    std::vector<double> keys;
    keys.reserve(m_rows.size());
    for (const Row& row : m_rows)
        keys.push_back(ParseNumber(row.subItems.value(position - 1)).value_or(0));
    std::vector<int> formerly(m_rows.size());
    std::iota(formerly.begin(), formerly.end(), 0);
    const auto firstOther = std::stable_partition(formerly.begin(), formerly.end(),
                                                  [this](int row) { return KindOf(row) == RowKind::Record; });
    std::stable_sort(formerly.begin(), firstOther, [&keys, order](int a, int b) {
        const double left = keys[static_cast<std::size_t>(a)];
        const double right = keys[static_cast<std::size_t>(b)];
        return order == Qt::AscendingOrder ? left < right : right < left;
    });
    std::vector<Row> sorted;
    sorted.reserve(m_rows.size());
    for (const int row : formerly)
        sorted.push_back(std::move(m_rows[static_cast<std::size_t>(row)]));
    m_rows = std::move(sorted);
    return formerly;
}

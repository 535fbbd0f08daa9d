#include "core/forms/SheetModel.h"

#include <utility>

namespace {

int AlignmentOf(const SheetColumn& column)
{
    return static_cast<int>((column.Alignment() | Qt::AlignVCenter).toInt());
}

} // namespace

void SheetModel::Show(Sheet sheet)
{
    beginResetModel();
    m_sheet = std::move(sheet);
    endResetModel();
}

void SheetModel::SetColumns(std::vector<SheetColumn> columns)
{
    beginResetModel();
    m_sheet.SetColumns(std::move(columns));
    endResetModel();
}

void SheetModel::Clear()
{
    if (m_sheet.RowCount() == 0)
        return;
    beginRemoveRows({}, 0, m_sheet.RowCount() - 1);
    m_sheet.Clear();
    endRemoveRows();
}

void SheetModel::Append(std::vector<Sheet::Row> rows)
{
    if (rows.empty())
        return;
    const int first = m_sheet.RowCount();
    beginInsertRows({}, first, first + static_cast<int>(rows.size()) - 1);
    for (Sheet::Row& row : rows)
        m_sheet.Append(std::move(row));
    endInsertRows();
}

void SheetModel::SetText(int row, int position, const QString& text)
{
    m_sheet.SetText(row, position, text);
    if (const QModelIndex cell = index(row, position); cell.isValid())
        emit dataChanged(cell, cell, {Qt::DisplayRole});
}

void SheetModel::SortByNumber(int position, Qt::SortOrder order)
{
    emit layoutAboutToBeChanged({}, QAbstractItemModel::VerticalSortHint);
    const std::vector<int> formerly = m_sheet.SortByNumber(position, order);
    std::vector<int> now(formerly.size());
    for (std::size_t row = 0; row < formerly.size(); ++row)
        now[static_cast<std::size_t>(formerly[row])] = static_cast<int>(row);
    // The selection and the current row go with their texts.
    const QModelIndexList kept = persistentIndexList();
    for (const QModelIndex& cell : kept)
        changePersistentIndex(cell, index(now[static_cast<std::size_t>(cell.row())], cell.column()));
    emit layoutChanged({}, QAbstractItemModel::VerticalSortHint);
}

int SheetModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_sheet.RowCount();
}

int SheetModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_sheet.ColumnCount();
}

QVariant SheetModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    if (role == Qt::DisplayRole)
        return m_sheet.Text(index.row(), index.column());
    if (role == Qt::TextAlignmentRole)
        return AlignmentOf(m_sheet.Column(index.column()));
    return {};
}

QVariant SheetModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= m_sheet.ColumnCount())
        return {};
    if (role == Qt::DisplayRole)
        return m_sheet.Column(section).heading;
    if (role == Qt::TextAlignmentRole)
        return AlignmentOf(m_sheet.Column(section));
    return {};
}

Qt::ItemFlags SheetModel::flags(const QModelIndex& index) const
{
    return index.isValid() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren
                           : Qt::NoItemFlags;
}

#pragma once

#include "core/common/Sheet.h"

#include <QAbstractTableModel>

#include <vector>

/// A sheet for a view to show: texts are handed out as they are asked for, so that a list costs what is
/// visible and not what it holds.
class SheetModel : public QAbstractTableModel {
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    const Sheet& Content() const { return m_sheet; }

    /// Shows another sheet, rows and columns.
    void Show(Sheet sheet);
    void SetColumns(std::vector<SheetColumn> columns);
    /// Keeps what is drawn as it is: for a width that was dragged.
    void SetWidth(int position, int twips) { m_sheet.SetWidth(position, twips); }
    void Clear();
    /// One notice to the view for all rows.
    void Append(std::vector<Sheet::Row> rows);
    void SetText(int row, int position, const QString& text);
    void SortByNumber(int position, Qt::SortOrder order);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    Sheet m_sheet;
};

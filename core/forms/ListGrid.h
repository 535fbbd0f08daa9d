#pragma once

#include "core/common/Sheet.h"

#include <QString>
#include <QStringList>
#include <QTreeView>

#include <vector>

class SheetModel;

/// The list of a window: a sheet on the screen. Rows count from 0 as shown, sub-items from 1, as in the
/// sheet; printers and exports read Content(), which has the widths as the user left them.
class ListGrid : public QTreeView {
    Q_OBJECT

public:
    explicit ListGrid(QWidget* parent = nullptr);

    const Sheet& Content() const;

    /// Shows another sheet, rows and columns.
    void Show(Sheet sheet);
    /// Replaces the headings, the blank one in front included, and drops the rows.
    void SetColumns(std::vector<SheetColumn> columns);
    void ClearRows();
    /// Appends a row; the first text is sub-item 1.
    void AddRow(const QStringList& subItems, Sheet::RowKind kind = Sheet::RowKind::Record);
    /// Appends many at once, which is cheaper by far while the list is visible.
    void AddRows(std::vector<Sheet::Row> rows);
    void SetSubItem(int row, int index, const QString& text);
    /// Sheet::SortByNumber; what is selected or current goes with its row.
    void SortByNumber(int index, Qt::SortOrder order);

    int RowCount() const { return Content().RowCount(); }
    /// "" where there is none.
    QString SubItem(int row, int index) const { return Content().Text(row, index); }
    /// Twips: the width as defined, or the pixels times 15 once a user has dragged the column. 0 for the
    /// blank column in front and where there is none.
    int ColumnWidthTwips(int index) const;
    /// Where a row stands on the viewport, over all its columns; empty for a row that is not there.
    QRect RowRect(int row) const;

    /// The selected row, -1 without one.
    int SelectedRow() const;
    /// Selects a row and makes it current; a row that is not there leaves neither.
    void SelectRow(int row);
    /// Sub-item 1 of the selected row, "" without one.
    QString SelectedKey() const { return SubItem(SelectedRow(), 1); }

    /// The row where the arrow keys start, -1 without one. Without a selection it is marked by a frame.
    int CurrentRow() const;
    /// Makes a row current (the last one, for a row behind it) and selects nothing: the next arrow key,
    /// blank or click selects.
    void MakeCurrent(int row);

signals:
    /// Double click on a row, or Enter in the list.
    void RowChosen(int row);
    /// The right button, the menu key or Shift+F10: a popup belongs here, in global coordinates.
    void PopupAsked(const QPoint& globalPosition);

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void drawRow(QPainter* painter, const QStyleOptionViewItem& option,
                 const QModelIndex& index) const override;

private:
    void LayOutColumns();
    /// The cell of a row that stands for it where a view asks for a cell.
    QModelIndex Cell(int row) const;

    SheetModel* m_model;
    bool m_isLayingOut = false;
};

/// Sets a list's columns to those of a report; without any the list keeps its columns and rows. See
/// ReportColumns. @throws DatabaseError, TypeMismatchError
void LoadColumnHeaders(ListGrid* list, const QString& reportName, bool normal);

#pragma once

#include <QString>
#include <QStringList>
#include <QTreeWidget>

#include <vector>

/// A list with sub-items by position: each row has a blank text of width 0 in front (column 0), so that
/// sub-item 1 is the first column a user sees, and the row's key in every list.
class ListGrid : public QTreeWidget {
    Q_OBJECT

public:
    struct Column {
        QString header;
        int widthTwips = 0;
        Qt::Alignment alignment = Qt::AlignLeft;
    };

    explicit ListGrid(QWidget* parent = nullptr);

    /// Replaces the headers, the blank one in front included, and drops the rows.
    void SetColumns(const std::vector<Column>& columns);

    void ClearRows();
    /// Appends a row; the first text is sub-item 1.
    void AddRow(const QStringList& subItems);
    int RowCount() const { return topLevelItemCount(); }

    /// Sub-item of a row, both counted as the screen shows them: rows from 0, sub-items from 1. "" where
    /// there is none.
    QString SubItem(int row, int index) const;

    /// The selected row, -1 when none is, even if one is current.
    int SelectedRow() const;
    void SelectRow(int row);
    /// The row that the next arrow key selects, with nothing selected until then.
    void MakeCurrent(int row);
    /// Sub-item 1 of the selected row, "" without one.
    QString SelectedKey() const { return SubItem(SelectedRow(), 1); }

    /// Twips: the width as defined, or the pixels times 15 once a user has dragged the column. The blank
    /// column in front is 0.
    int ColumnWidthTwips(int index) const;

signals:
    /// Double click on a row, or Enter in the list.
    void RowChosen(int row);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    std::vector<int> m_widths;
    std::vector<Qt::Alignment> m_alignments;
    bool m_isSettingColumns = false;
};

/// Sets a list's columns from the DFN_RptCol rows of a report: those shown in the normal layout, or with
/// `normal` false those of the alternate one. Without rows the list keeps its columns.
/// @throws DatabaseError
void LoadColumnHeaders(ListGrid* list, const QString& reportName, bool normal);

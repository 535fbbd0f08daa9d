#pragma once

#include <QString>
#include <QStringList>

#include <vector>

/// One column of a list: its heading, its width, and where its values stand.
struct SheetColumn {
    enum class Kind {
        Text,    ///< to the left
        Number,  ///< to the right
        Centred, ///< in the middle
        Flag,    ///< in the middle; the tables hold "0" or "1", shown is a check mark
    };

    QString heading;
    int widthTwips = 0;
    Kind kind = Kind::Text;

    Qt::Alignment Alignment() const;
};

/// A list as data: columns, and rows of texts by position. The list window, the report window, the
/// printer and the export read it; it knows no widget and no statement.
///
/// Position 0 is a row's own text, which is blank, under a heading without words of width 0. The texts
/// that a user sees are the sub-items from 1 on; sub-item 1 is the row's key in every list.
class Sheet {
public:
    enum class RowKind {
        Record,
        Spacer, ///< the empty row above a total
        Total,
    };
    struct Row {
        QStringList subItems; ///< from position 1
        RowKind kind = RowKind::Record;
    };

    /// Replaces the columns, those from position 1, and drops the rows.
    void SetColumns(std::vector<SheetColumn> columns);
    /// Counts the blank column in front: positions go from 0 to below this.
    int ColumnCount() const { return static_cast<int>(m_columns.size()); }
    /// @throws std::out_of_range for a position without a column.
    const SheetColumn& Column(int position) const { return m_columns.at(static_cast<std::size_t>(position)); }
    /// The blank column keeps its width of 0, and a position without a column is ignored.
    void SetWidth(int position, int twips);
    /// Twips of all columns together.
    int Width() const;

    void Clear() { m_rows.clear(); }
    void Append(Row row) { m_rows.push_back(std::move(row)); }
    int RowCount() const { return static_cast<int>(m_rows.size()); }
    /// Spacer where there is no such row.
    RowKind KindOf(int row) const;

    /// The text at a position of a row as shown, rows from 0; "" where there is none. Texts behind the
    /// last column are kept and read, but no column shows them.
    QString Text(int row, int position) const;
    /// Writes a text from position 1 on; the row grows as far as it must. Without such a row, nothing.
    void SetText(int row, int position, const QString& text);

    /// Orders the records by the numbers at a position, grouping and currency sign read over; a text that
    /// is no number counts as 0. Equal ones keep their order both ways, and spacers and totals end up
    /// behind all records, in their order. Answers where each row stood before.
    std::vector<int> SortByNumber(int position, Qt::SortOrder order);

private:
    bool HasRow(int row) const { return row >= 0 && row < RowCount(); }

    std::vector<SheetColumn> m_columns{SheetColumn{}};
    std::vector<Row> m_rows;
};

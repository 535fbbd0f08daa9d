#pragma once

#include <QString>

#include <array>

class ReportView;
class Sheet;

/// How a cell of a spreadsheet looks.
struct CellLook {
    bool isBold = false;
    int points = 10;              ///< size of the letters
    Qt::Alignment alignment = {}; ///< a direction that is not named is the spreadsheet's own choice
    bool isBordered = false;      ///< a thin line on all four sides
    bool isText = false;          ///< number format "@": what stands there is a text, whatever it looks like

    bool operator==(const CellLook&) const = default;
};

/// A report as a page of a spreadsheet: the one description that every format of file is written from. Rows
/// and columns count from 0. Texts are read from the report as they are asked for and not copied, so the
/// page lives no longer than the report stays as it is.
class SpreadsheetPage {
public:
    /// What no spreadsheet of ours goes beyond: columns A to Z.
    static constexpr int MostColumns = 26;
    /// Letters that a cell holds; a longer text is cut there.
    static constexpr int MostLetters = 32767;

    /// Cells of one page look in one of these ways.
    enum class Look {
        Plain, ///< what lies outside the table
        Company,
        Title,
        Condition,
        Heading,
        Body,
    };
    static constexpr int LookCount = 6;
    static const CellLook& Details(Look look);

    /// A page without a cell.
    SpreadsheetPage() = default;
    /// The income and expense statement is a grid without headings: its row of headings is empty, and its
    /// last column lies outside the table.
    SpreadsheetPage(const ReportView& report, bool isStatement);

    int RowCount() const;
    /// Columns that have a width of their own and may hold texts.
    int ColumnCount() const { return m_columns; }
    /// Columns of the table: captions are merged across them, borders end with them.
    int TableWidth() const { return m_tableWidth; }

    /// Width of a column in characters; 0 hides it.
    double ColumnWidth(int column) const;
    /// Points.
    double RowHeight(int row) const;
    /// The row is one cell across the table.
    bool IsMerged(int row) const;
    Look LookOf(int row, int column) const;
    /// In a merged row only the first column has a text.
    QString Text(int row, int column) const;

private:
    QString Words(int row, int column) const;

    const Sheet* m_sheet = nullptr; ///< the report's rows
    std::array<QString, 3> m_captions;
    int m_columns = 0;
    int m_tableWidth = 0;
    bool m_hasHeadings = false;
};

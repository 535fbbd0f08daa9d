#include "reports/SpreadsheetPage.h"

#include "core/common/Sheet.h"
#include "reports/ReportView.h"

#include <algorithm>

namespace {
constexpr int CaptionRows = 3;
constexpr int HeadingRow = CaptionRows;
constexpr int FirstBodyRow = HeadingRow + 1;

constexpr double CaptionHeight = 0.8 / 0.035; // points: 0.8 cm at 0.035 cm a point
constexpr double UsualHeight = 15;            // points
constexpr double TwipsPerCharacter = 100;
constexpr double WidestColumn = 255; // characters; no spreadsheet takes more
} // namespace

const CellLook& SpreadsheetPage::Details(Look look)
{
    static const std::array<CellLook, LookCount> looks{{
        {},
        {.isBold = true, .points = 16, .alignment = Qt::AlignHCenter},
        {.isBold = true, .points = 14, .alignment = Qt::AlignHCenter},
        {.alignment = Qt::AlignLeft | Qt::AlignVCenter},
        {.isBold = true, .alignment = Qt::AlignHCenter, .isBordered = true},
        {.isBordered = true, .isText = true},
    }};
    return looks.at(static_cast<std::size_t>(look));
}

SpreadsheetPage::SpreadsheetPage(const ReportView& report, bool isStatement)
    : m_sheet(&report.Content()), m_captions{report.Caption(ReportView::Line::Company),
                                             report.Caption(ReportView::Line::Title),
                                             report.Caption(ReportView::Line::Condition)},
      m_columns(std::max(0, m_sheet->ColumnCount() - 1)),
      m_tableWidth(std::max(0, isStatement ? m_columns - 1 : m_columns)), m_hasHeadings(!isStatement)
{}

int SpreadsheetPage::RowCount() const
{
    return m_sheet ? FirstBodyRow + m_sheet->RowCount() : 0;
}

double SpreadsheetPage::ColumnWidth(int column) const
{
    return std::clamp(m_sheet->Column(column + 1).widthTwips / TwipsPerCharacter, 0.0, WidestColumn);
}

double SpreadsheetPage::RowHeight(int row) const
{
    return row < CaptionRows ? CaptionHeight : UsualHeight;
}

bool SpreadsheetPage::IsMerged(int row) const
{
    return row < CaptionRows && m_tableWidth > 1;
}

SpreadsheetPage::Look SpreadsheetPage::LookOf(int row, int column) const
{
    if (column >= m_tableWidth)
        return Look::Plain;
    constexpr std::array rows{Look::Company, Look::Title, Look::Condition, Look::Heading, Look::Body};
    return rows.at(static_cast<std::size_t>(std::min(row, FirstBodyRow)));
}

QString SpreadsheetPage::Text(int row, int column) const
{
    QString words = Words(row, column);
    if (words.size() <= MostLetters)
        return words;
    return words.left(words[MostLetters - 1].isHighSurrogate() ? MostLetters - 1 : MostLetters);
}

QString SpreadsheetPage::Words(int row, int column) const
{
    if (row < CaptionRows)
        return column == 0 ? m_captions.at(static_cast<std::size_t>(row)) : QString();
    if (row == HeadingRow)
        return m_hasHeadings ? m_sheet->Column(column + 1).heading : QString();
    return m_sheet->Text(row - FirstBodyRow, column + 1);
}

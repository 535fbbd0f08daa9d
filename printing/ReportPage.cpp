#include "printing/ReportPage.h"

#include "printing/DrawingSurface.h"
#include "printing/clsPrint.h"

using namespace Qt::StringLiterals;

namespace {

constexpr double FirstTop = 873.18;   // 1.54 cm: where the first caption stands
constexpr double PageTop = 793.8;     // 1.4 cm: where the headings of the next pages stand
constexpr double BottomMargin = 567;  // 1 cm
constexpr double RowHeight = 260;     // a row's frame is higher; the next row's begins inside it
constexpr double NumberDrop = 100;    // from the last row to the number of the page
constexpr double HeadingPadding = 80; // what a cell is higher than its text
constexpr double CellPadding = 70;
const QString FullFrame = u"1111"_s;
const QString OpenAtTheTop = u"1011"_s; // rows share the edge between them

class ReportDrawing {
public:
    ReportDrawing(clsPrint& page, const ReportPage& report, double leftOffset)
        : m_page(page), m_report(report),
          m_topOffset(report.captions.empty() ? 0 : FirstTop - report.captions.front().top),
          m_left(leftOffset == 0 ? page.PaperWidth() / 2 - report.sheet.Width() / 2.0
                                 : report.listLeft + leftOffset)
    {}

    int Draw(int lastPage)
    {
        DrawCaptions();
        m_page.SetFontName(m_report.listFont.family());
        m_page.SetFontSize(PointsOf(m_report.listFont));
        m_y = m_report.listTop + m_topOffset;
        DrawHeadings();
        const double limit = m_page.PaperHeight() - m_topOffset - BottomMargin;
        for (int row = 0; row < m_report.sheet.RowCount(); ++row) {
            m_y += RowHeight;
            DrawRow(row);
            // The pen is below the row by now, so one row may stand below the limit. What comes behind the
            // last row, then, is a page of headings alone.
            if (m_page.CurrentY() <= limit)
                continue;
            if (m_pageNo == lastPage)
                break;
            DrawPageNumber();
            m_page.NewPage();
            ++m_pageNo;
            m_y = PageTop;
            DrawHeadings();
        }
        DrawPageNumber();
        return m_pageNo;
    }

private:
    void DrawCaptions()
    {
        m_page.SetFontName(m_report.captionFont.family());
        m_page.SetFontSize(PointsOf(m_report.captionFont));
        m_page.SetFontBold(m_report.captionFont.bold());
        for (const ReportPage::Caption& caption : m_report.captions) {
            MoveTo(m_page.PaperWidth() / 2 - m_page.TextWidth(caption.text) / 2, caption.top + m_topOffset);
            m_page.PrintPrint(caption.text);
        }
    }

    /// The blank column in front is drawn like the others: a frame without width.
    void DrawHeadings()
    {
        double x = m_left;
        for (int column = 0; column < m_report.sheet.ColumnCount(); ++column) {
            QString text = m_report.sheet.Column(column).heading;
            x = DrawCell(x, column, text, u"C"_s, HeadingPadding, FullFrame);
        }
        m_page.NewLineBG(0);
    }

    /// Everything to the left behind a blank, figures as well.
    void DrawRow(int row)
    {
        double x = m_left;
        for (int column = 0; column < m_report.sheet.ColumnCount(); ++column) {
            QString text = u' ' + m_report.sheet.Text(row, column);
            x = DrawCell(x, column, text, u"L"_s, CellPadding, OpenAtTheTop);
        }
        m_page.NewLineBG(0);
    }

    /// Answers where the next cell begins.
    double DrawCell(double x, int column, QString& text, const QString& align, double padding,
                    const QString& sides)
    {
        const int width = m_report.sheet.Column(column).widthTwips;
        MoveTo(x, m_y);
        m_page.BoxOut(text, width, align, padding, sides);
        return x + width;
    }

    void DrawPageNumber()
    {
        MoveTo(m_page.PaperWidth() / 2, m_page.CurrentY() + NumberDrop);
        m_page.PrintPrint(u'.' + QString::number(m_pageNo) + u'.');
    }

    void MoveTo(double x, double y)
    {
        m_page.SetCurrentX(static_cast<float>(x));
        m_page.SetCurrentY(static_cast<float>(y));
    }

    clsPrint& m_page;
    const ReportPage& m_report;
    double m_topOffset; ///< from the design to the first sheet
    double m_left;
    double m_y = 0; ///< of the present row
    int m_pageNo = 1;
};

} // namespace

int DrawReport(clsPrint& page, const ReportPage& report, double leftOffset, int lastPage)
{
    return ReportDrawing(page, report, leftOffset).Draw(lastPage);
}

#include "printing/clsPrint.h"

#include "printing/DrawingLog.h"
#include "printing/SystemPrinter.h"
#include "printing/ctlPreview.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString LineProbe = u"AA"_s;
const QString CellProbe = u"XX的"_s; // both scripts, so that a cell is high enough for either

constexpr double PreviewLineGap = 10;
constexpr double PreviewMargin = 50;
constexpr int NarrowestStretch = 50; // percent; narrower than half, nobody reads it

/// Twips, upright.
struct PageSize {
    QStringView name;
    double width;
    double height;
};
constexpr PageSize KnownPages[] = {{u"A4", 11907, 16832}, {u"A5", 8392, 11907}};

void DropLastCharacter(QString& text)
{
    const bool isPair = text.size() > 1 && text.back().isLowSurrogate();
    text.chop(isPair ? 2 : 1);
}

} // namespace

DrawingSurface& clsPrint::Target() const
{
    return IsPrinter ? static_cast<DrawingSurface&>(m_printer) : m_preview->Canvas();
}

void clsPrint::NewLine()
{
    SetCurrentY(CurrentY() + TextHeight(LineProbe));
    SetCurrentX(static_cast<float>(LeftMargin));
}

void clsPrint::NewLineBG(double extra)
{
    SetCurrentY(static_cast<float>(CurrentY() + TextHeight(LineProbe) + LineGap + extra));
    SetCurrentX(static_cast<float>(LeftMargin));
}

void clsPrint::CenterPrn(double width)
{
    LeftMargin = width <= 0 ? PreviewMargin : std::max(0.0, (Target().ScaleWidth() - width) / 2);
    SetCurrentX(static_cast<float>(LeftMargin));
    SetCurrentY(static_cast<float>(TopMargin));
}

void clsPrint::PrintSetPsize(const QString& paper, double width, double height)
{
    const QString name = paper.toUpper();
    const auto* known = std::ranges::find(KnownPages, QStringView(name), &PageSize::name);
    const bool isKnown = known != std::end(KnownPages);
    PageWidth = isKnown ? known->width : width;
    PageHeight = isKnown ? known->height : height;
}

void clsPrint::SelectTarget(ctlPreview& preview)
{
    m_preview = &preview;
    LineGap = PreviewLineGap;
    IsPrinter = false;
    CenterPrn(preview.ScaleWidth());
    TopMargin = PreviewMargin;
    CopyPrinterMetrics(preview);
}

void clsPrint::CopyPrinterMetrics(ctlPreview& preview)
{
    preview.SetPaperWidth(m_printer.ScaleWidth());
    preview.SetPaperHeight(m_printer.ScaleHeight());
    preview.SetScaleHeight(m_printer.ScaleHeight());
    preview.SetScaleWidth(m_printer.ScaleWidth());
}

void clsPrint::PrintStartDoc(SystemPrinter& target, double scale)
{
    Scale = scale;
    IsPrinter = true;
    LineGap = 0; // none of what an earlier preview left
    TopMargin = 0;
    LeftMargin = 0;
    if (m_log)
        m_log->Note(u"start printer"_s, {scale});
    target.KillDoc();        // what an earlier document left open when it failed
    target.Print(QString()); // opens the job
}

void clsPrint::PrintStartDoc(ctlPreview& target, double scale)
{
    Scale = scale;
    SelectTarget(target);
    if (m_log)
        m_log->Note(u"start preview"_s, {scale, PageWidth, PageHeight});
    target.Cls();
    target.StartDoc(Scale, PageWidth, PageHeight);
}

void clsPrint::PrintSet(float x, float y, ColorValue color)
{
    if (m_log)
        m_log->Note(u"point"_s, {x, y, double(color)});
    if (IsPrinter)
        m_printer.Point(x, y, color);
    else
        m_preview->PsetA(x, y, color);
}

float clsPrint::TextWidth(const QString& text) const
{
    return Target().TextWidth(text);
}

float clsPrint::TextHeight(const QString& text) const
{
    return Target().TextHeight(text);
}

void clsPrint::PrintPrint(const QString& text)
{
    if (m_log) {
        QFont font = Font();
        font.setPointSizeF(FontSize());
        m_log->NoteText(text, CurrentX(), CurrentY(), font);
    }
    if (IsPrinter)
        m_printer.Print(text);
    else
        m_preview->PrintA(text);
}

void clsPrint::PrintFitted(const QString& text, double width)
{
    QString ink = text;
    while (ink.endsWith(u' '))
        ink.chop(1);
    const double natural = TextWidth(ink);
    const double room = std::max(0.0, width);
    if (natural > room)
        Target().SetFontStretch(std::max(NarrowestStretch, static_cast<int>(100 * room / natural)));
    PrintPrint(text);
    Target().SetFontStretch(QFont::Unstretched);
}

void clsPrint::PrintLine(float x1, float y1, float x2, float y2)
{
    if (m_log)
        m_log->Note(u"line"_s, {x1, y1, x2, y2, double(DrawWidth())});
    if (IsPrinter)
        m_printer.Line(x1, y1, x2, y2);
    else
        m_preview->LineA(x1, y1, x2, y2);
}

void clsPrint::PrintBox(float x1, float y1, float x2, float y2)
{
    if (m_log)
        m_log->Note(u"box"_s, {x1, y1, x2, y2, double(DrawWidth())});
    if (IsPrinter)
        m_printer.Box(x1, y1, x2, y2);
    else
        m_preview->BoxA(x1, y1, x2, y2);
}

void clsPrint::PrintFilledBox(float x1, float y1, float x2, float y2, ColorValue color)
{
    if (m_log)
        m_log->Note(u"filled box"_s, {x1, y1, x2, y2, double(color)});
    if (IsPrinter)
        m_printer.FilledBox(x1, y1, x2, y2, color);
    else
        m_preview->BoxF(x1, y1, x2, y2, color);
}

void clsPrint::PrintCircle(float x, float y, float radius)
{
    if (m_log)
        m_log->Note(u"circle"_s, {x, y, radius});
    if (IsPrinter)
        m_printer.Circle(x, y, radius);
    else
        m_preview->CircleA(x, y, radius);
}

void clsPrint::NewPage()
{
    if (m_log)
        m_log->Note(u"new page"_s);
    if (IsPrinter)
        m_printer.NewPage();
    else
        m_preview->Cls();
}

void clsPrint::PrintPicture(const QImage& picture, float x, float y, float width, float height)
{
    if (m_log)
        m_log->Note(u"picture"_s, {x, y, width, height});
    if (IsPrinter)
        m_printer.PaintPicture(picture, x, y, width, height);
    else
        m_preview->PaintPicture(picture, x, y, width, height);
}

QString clsPrint::EndDoc()
{
    if (m_log)
        m_log->Note(u"end"_s);
    return IsPrinter ? m_printer.EndDoc() : QString();
}

float clsPrint::CurrentX() const
{
    return Target().CurrentX();
}

float clsPrint::CurrentY() const
{
    return Target().CurrentY();
}

void clsPrint::SetCurrentX(float x)
{
    Target().SetCurrentX(x);
}

void clsPrint::SetCurrentY(float y)
{
    Target().SetCurrentY(y);
}

ColorValue clsPrint::BackColor() const
{
    return Target().BackColor();
}

ColorValue clsPrint::ForeColor() const
{
    return Target().ForeColor();
}

void clsPrint::SetBackColor(ColorValue color)
{
    Target().SetBackColor(color);
}

void clsPrint::SetForeColor(ColorValue color)
{
    Target().SetForeColor(color);
}

const QFont& clsPrint::Font() const
{
    return Target().Font();
}

void clsPrint::SetFont(const QFont& font)
{
    Target().SetFont(font);
}

void clsPrint::SetFontName(const QString& name)
{
    Target().SetFontName(name);
}

float clsPrint::FontSize() const
{
    const bool isZoomed = !IsPrinter && Scale > 0;
    return isZoomed ? static_cast<float>(Target().FontSize() / Scale) : Target().FontSize();
}

void clsPrint::SetFontSize(float points)
{
    Target().SetFontSize(IsPrinter ? points : static_cast<float>(points * Scale));
}

bool clsPrint::FontBold() const
{
    return Font().bold();
}

bool clsPrint::FontItalic() const
{
    return Font().italic();
}

bool clsPrint::FontStrikethru() const
{
    return Font().strikeOut();
}

bool clsPrint::FontUnderline() const
{
    return Font().underline();
}

void clsPrint::SetFontBold(bool on)
{
    Target().SetFontBold(on);
}

void clsPrint::SetFontItalic(bool on)
{
    Target().SetFontItalic(on);
}

void clsPrint::SetFontStrikethru(bool on)
{
    Target().SetFontStrikethru(on);
}

void clsPrint::SetFontUnderline(bool on)
{
    Target().SetFontUnderline(on);
}

int clsPrint::DrawWidth() const
{
    return Target().DrawWidth();
}

int clsPrint::DrawStyle() const
{
    return Target().DrawStyle();
}

int clsPrint::DrawMode() const
{
    return Target().DrawMode();
}

void clsPrint::SetDrawWidth(int width)
{
    Target().SetDrawWidth(width);
}

void clsPrint::SetDrawStyle(int style)
{
    Target().SetDrawStyle(style);
}

void clsPrint::SetDrawMode(int mode)
{
    Target().SetDrawMode(mode);
}

float clsPrint::PaperWidth() const
{
    return Target().ScaleWidth();
}

float clsPrint::PaperHeight() const
{
    return Target().ScaleHeight();
}

clsPrint::Cell clsPrint::CellAtPen(double width, double height) const
{
    const float x = CurrentX();
    const float y = CurrentY();
    return {.left = x,
            .top = y,
            .right = static_cast<float>(x + width + LineGap),
            .bottom = static_cast<float>(y + TextHeight(CellProbe) + height + LineGap)};
}

void clsPrint::DrawEdges(const Cell& cell, const QString& sides)
{
    const float ends[4][4] = {{cell.left, cell.top, cell.left, cell.bottom},
                              {cell.left, cell.top, cell.right, cell.top},
                              {cell.right, cell.top, cell.right, cell.bottom},
                              {cell.left, cell.bottom, cell.right, cell.bottom}};
    const int before = DrawWidth();
    for (qsizetype i = 0; i < std::min<qsizetype>(4, sides.size()); ++i) {
        const int width = sides.at(i).digitValue();
        if (width <= 0)
            continue;
        SetDrawWidth(width);
        PrintLine(ends[i][0], ends[i][1], ends[i][2], ends[i][3]);
    }
    SetDrawWidth(before);
}

void clsPrint::FillCell(const Cell& cell, QString& text, double width, QChar align, double height)
{
    while (width > 0 && !text.isEmpty() && TextWidth(text) > width)
        DropLastCharacter(text);

    double x = cell.left + LineGap;
    if (align == u'R')
        x = cell.left + width - TextWidth(text);
    else if (align == u'C')
        x = cell.left + (width - TextWidth(text)) / 2;
    SetCurrentX(static_cast<float>(x));
    SetCurrentY(static_cast<float>(cell.top + (height + LineGap) / 2));
    PrintPrint(text);

    SetCurrentX(cell.right);
    SetCurrentY(cell.top);
}

void clsPrint::BoxOut(QString& text, double width, const QString& align, double height, const QString& sides)
{
    const Cell cell = CellAtPen(width, height);
    DrawEdges(cell, sides);
    const QString side = align.toUpper();
    FillCell(cell, text, width, side == u"R" ? u'R' : side == u"C" ? u'C' : u'L', height);
}

void clsPrint::BoxOutA(QString& text, double width, const QString& align, double height)
{
    const Cell cell = CellAtPen(width, height);
    const int before = DrawWidth();
    SetDrawWidth(1);
    PrintBox(cell.left, cell.top, cell.right, cell.bottom);
    SetDrawWidth(before);
    const bool isRight = align == u"R" || align == u"r";
    const bool isCentred = align == u"C" || align == u"c";
    FillCell(cell, text, width, isRight ? u'R' : isCentred ? u'C' : u'L', height);
}

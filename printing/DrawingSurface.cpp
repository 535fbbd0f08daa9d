#include "printing/DrawingSurface.h"

#include "core/base/Twips.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int TwipsPerPoint = 20;
constexpr double LargestFont = 32767; // twips: taller than the longest paper
constexpr int TwipsPerDrawWidth = 10;
constexpr int BlackMode = 1;
constexpr int NoMode = 11;
constexpr int WhiteMode = 16;

QColor ToColor(ColorValue value)
{
    return {value & 0xFF, (value >> 8) & 0xFF, (value >> 16) & 0xFF};
}

Qt::PenStyle ToPenStyle(int drawStyle)
{
    switch (drawStyle) {
    case 1:
        return Qt::DashLine;
    case 2:
        return Qt::DotLine;
    case 3:
        return Qt::DashDotLine;
    case 4:
        return Qt::DashDotDotLine;
    case 5:
        return Qt::NoPen;
    default:
        return Qt::SolidLine;
    }
}

/// The pieces of a text that stand on lines of their own.
QStringList LinesOf(QString text)
{
    return text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n').split(u'\n');
}

/// Height and ascent of one line with the fonts that its scripts really take.
struct LineMetrics {
    LineMetrics(const QString& line, const QFont& font)
    {
        QTextLayout layout(line.isEmpty() ? u" "_s : line, font);
        layout.beginLayout();
        const QTextLine shape = layout.createLine();
        layout.endLayout();
        height = shape.height();
        ascent = shape.ascent();
    }

    double height = 0;
    double ascent = 0;
};

} // namespace

float PointsOf(const QFont& font)
{
    const double ownPixels = double(font.pixelSize()) * TwipsPerPixel / TwipsPerPoint;
    return static_cast<float>(font.pointSizeF() > 0 ? font.pointSizeF() : ownPixels);
}

DrawingSurface::DrawingSurface()
{
    m_font.setPointSizeF(11);
}

void DrawingSurface::SetFont(const QFont& font)
{
    const double points = font.pointSizeF() > 0 ? font.pointSizeF() : m_font.pointSizeF();
    m_font = font;
    m_font.setPointSizeF(points);
}

void DrawingSurface::SetFontName(const QString& name)
{
    m_font.setFamily(name);
}

void DrawingSurface::SetFontSize(float points)
{
    if (points > 0)
        m_font.setPointSizeF(points);
}

void DrawingSurface::SetFontBold(bool on)
{
    m_font.setBold(on);
}

void DrawingSurface::SetFontItalic(bool on)
{
    m_font.setItalic(on);
}

void DrawingSurface::SetFontUnderline(bool on)
{
    m_font.setUnderline(on);
}

void DrawingSurface::SetFontStrikethru(bool on)
{
    m_font.setStrikeOut(on);
}

void DrawingSurface::SetFontStretch(int percent)
{
    m_font.setStretch(percent);
}

QFont DrawingSurface::PageFont() const
{
    QFont font = m_font;
    // A unit of the page is a twip. A preview of no size at all divides by nothing.
    font.setPixelSize(qRound(std::clamp(m_font.pointSizeF() * TwipsPerPoint / Zoom(), 1.0, LargestFont)));
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

float DrawingSurface::TextWidth(const QString& text) const
{
    const QFontMetricsF metrics(PageFont());
    double widest = 0;
    for (const QString& line : LinesOf(text))
        widest = std::max(widest, metrics.horizontalAdvance(line));
    return static_cast<float>(widest);
}

float DrawingSurface::TextHeight(const QString& text) const
{
    const QFont font = PageFont();
    double height = 0;
    for (const QString& line : LinesOf(text))
        height += LineMetrics(line, font).height;
    return static_cast<float>(height);
}

bool DrawingSurface::Prepare(QPainter& painter, ColorValue color) const
{
    if (m_drawMode == NoMode)
        return false;
    const ColorValue ink = m_drawMode == BlackMode ? 0 : m_drawMode == WhiteMode ? White : color;
    QPen pen(ToColor(ink), std::max(0, m_drawWidth) * TwipsPerDrawWidth, ToPenStyle(m_drawStyle),
             Qt::SquareCap, Qt::MiterJoin);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    return true;
}

void DrawingSurface::Print(const QString& text)
{
    const QFont font = PageFont();
    double y = m_y;
    Paint([this, &text, &font, &y](QPainter& painter) {
        const int style = m_drawStyle;
        m_drawStyle = 0; // letters are never dashed
        const bool draws = Prepare(painter, m_foreColor);
        m_drawStyle = style;
        painter.setFont(font);
        for (const QString& line : LinesOf(text)) {
            const LineMetrics metrics(line, font);
            if (draws && !line.isEmpty())
                painter.drawText(QPointF(m_x, y + metrics.ascent), line);
            y += metrics.height;
        }
    });
    m_x = 0;
    m_y += TextHeight(text);
}

void DrawingSurface::Line(float x1, float y1, float x2, float y2)
{
    Paint([=, this](QPainter& painter) {
        if (Prepare(painter, 0))
            painter.drawLine(QPointF(x1, y1), QPointF(x2, y2));
    });
}

void DrawingSurface::Box(float x1, float y1, float x2, float y2)
{
    Paint([=, this](QPainter& painter) {
        if (Prepare(painter, 0))
            painter.drawRect(QRectF(QPointF(x1, y1), QPointF(x2, y2)).normalized());
    });
}

void DrawingSurface::FilledBox(float x1, float y1, float x2, float y2, ColorValue color)
{
    Paint([=, this](QPainter& painter) {
        if (Prepare(painter, color))
            painter.fillRect(QRectF(QPointF(x1, y1), QPointF(x2, y2)).normalized(), painter.pen().color());
    });
}

void DrawingSurface::Circle(float x, float y, float radius)
{
    Paint([=, this](QPainter& painter) {
        if (Prepare(painter, 0))
            painter.drawEllipse(QPointF(x, y), std::max(0.F, radius), std::max(0.F, radius));
    });
}

void DrawingSurface::Point(float x, float y, ColorValue color)
{
    Paint([=, this](QPainter& painter) {
        if (Prepare(painter, color))
            painter.drawPoint(QPointF(x, y));
    });
}

void DrawingSurface::PaintPicture(const QImage& picture, float x, float y, float width, float height)
{
    Paint([=, &picture](QPainter& painter) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(QRectF(x, y, width, height), picture);
    });
}

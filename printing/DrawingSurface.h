#pragma once

#include <QFont>
#include <QImage>
#include <QString>

#include <functional>

class QPainter;

/// A colour as the system writes it: red in the lowest byte, then green, then blue. 0 is black.
using ColorValue = std::int32_t;
inline constexpr ColorValue White = 0xFFFFFF;

/// The size of a control's font in points; where a font has pixels instead, they are those of the forms, 15
/// twips each.
float PointsOf(const QFont& font);

/// A pen on a page: position, font, colours and line style, and what can be drawn with them. All
/// coordinates are twips of the printed page, 1440 to the inch; what a twip is on the device is the
/// device's business. Text is measured in twips of the page too, free of the device's resolution, so
/// that a line breaks alike on every target.
class DrawingSurface {
public:
    DrawingSurface();
    virtual ~DrawingSurface() = default;
    DrawingSurface(const DrawingSurface&) = delete;
    DrawingSurface& operator=(const DrawingSurface&) = delete;

    /// Width and height of the page, in twips.
    virtual float ScaleWidth() const = 0;
    virtual float ScaleHeight() const = 0;

    float CurrentX() const { return m_x; }
    float CurrentY() const { return m_y; }
    void SetCurrentX(float x) { m_x = x; }
    void SetCurrentY(float y) { m_y = y; }

    ColorValue ForeColor() const { return m_foreColor; }
    ColorValue BackColor() const { return m_backColor; }
    void SetForeColor(ColorValue color) { m_foreColor = color; }
    void SetBackColor(ColorValue color) { m_backColor = color; }

    /// The font by name, style and size in points.
    const QFont& Font() const { return m_font; }
    void SetFont(const QFont& font);
    void SetFontName(const QString& name);
    /// Points.
    float FontSize() const { return static_cast<float>(m_font.pointSizeF()); }
    /// A size that is not above 0 is no size, and leaves the font as it is.
    void SetFontSize(float points);
    void SetFontBold(bool on);
    void SetFontItalic(bool on);
    void SetFontUnderline(bool on);
    void SetFontStrikethru(bool on);
    /// Width of the letters in percent of what the font has; 100 is as it stands.
    void SetFontStretch(int percent);

    /// Line width; 1 is a half point, the thinnest rule that every printer draws alike.
    int DrawWidth() const { return m_drawWidth; }
    void SetDrawWidth(int width) { m_drawWidth = width; }
    /// 0 solid, 1 dashes, 2 dots, 3 and 4 mixed, 5 no line.
    int DrawStyle() const { return m_drawStyle; }
    void SetDrawStyle(int style) { m_drawStyle = style; }
    /// How ink meets what is there: 13 covers it, 1 is always black, 16 always white, 11 leaves it.
    int DrawMode() const { return m_drawMode; }
    void SetDrawMode(int mode) { m_drawMode = mode; }

    /// Twips. Trailing blanks count.
    float TextWidth(const QString& text) const;
    /// Twips, of the tallest script in the text; each line of it counts.
    float TextHeight(const QString& text) const;

    /// Prints with the pen's position as the upper left corner of the text, then puts the pen at the
    /// left edge, a line below. Further lines of the text start under the first.
    void Print(const QString& text);
    void Line(float x1, float y1, float x2, float y2);
    void Box(float x1, float y1, float x2, float y2);
    void FilledBox(float x1, float y1, float x2, float y2, ColorValue color);
    void Circle(float x, float y, float radius);
    void Point(float x, float y, ColorValue color);
    void PaintPicture(const QImage& picture, float x, float y, float width, float height);

protected:
    /// Runs `draw` with a painter whose unit is the twip of the page, or not at all when there is
    /// nothing to draw on.
    virtual void Paint(const std::function<void(QPainter&)>& draw) = 0;

    /// How many times larger than on paper the device shows the page. A font's points are the device's.
    virtual double Zoom() const { return 1; }

private:
    QFont PageFont() const;
    /// False when the draw mode leaves the page as it is.
    bool Prepare(QPainter& painter, ColorValue color) const;

    float m_x = 0;
    float m_y = 0;
    ColorValue m_foreColor = 0;
    ColorValue m_backColor = White;
    QFont m_font;
    int m_drawWidth = 1;
    int m_drawStyle = 0;
    int m_drawMode = 13;
};

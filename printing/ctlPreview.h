#pragma once

#include "printing/DrawingSurface.h"

#include <QImage>
#include <QWidget>

class QScrollBar;

/// The canvas of the preview: what was drawn stays until it is wiped. Its outer size is what it takes
/// on the screen, its scale is the page; the two differ by the zoom.
class PageCanvas : public QWidget, public DrawingSurface {
    Q_OBJECT

public:
    explicit PageCanvas(QWidget* parent);

    float ScaleWidth() const override { return m_scaleWidth; }
    float ScaleHeight() const override { return m_scaleHeight; }
    void SetScaleWidth(float twips) { m_scaleWidth = twips; }
    void SetScaleHeight(float twips) { m_scaleHeight = twips; }

    /// Outer size, twips of the screen. A new size wipes the canvas. One that no memory holds, or none
    /// at all, leaves nothing to draw on.
    float OuterWidth() const { return m_outerWidth; }
    float OuterHeight() const { return m_outerHeight; }
    void SetOuterSize(float width, float height);

    /// Wipes the canvas to its BackColor. The pen stays where it is.
    void Cls();

    /// What stands on it, one pixel to 15 twips of the screen.
    const QImage& Picture() const { return m_picture; }

signals:
    void Clicked();

protected:
    void Paint(const std::function<void(QPainter&)>& draw) override;
    double Zoom() const override;
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    QImage m_picture;
    float m_outerWidth = 0;
    float m_outerHeight = 0;
    float m_scaleWidth = 0;
    float m_scaleHeight = 0;
};

/// The preview: one canvas behind a cover that shows a part of it, with two scroll bars. It keeps no
/// pages, so that of several the last is seen. Its measures are twips, 15 to the pixel of the screen.
class ctlPreview : public QWidget {
    Q_OBJECT

public:
    explicit ctlPreview(QWidget* parent = nullptr);

    /// A page of `width` x `height` twips at the zoom `scale`, blank, scrolled to its corner. A page
    /// or a zoom that no canvas can take leaves nothing to draw on, without a word.
    void StartDoc(double scale, double width, double height);

    void PsetA(float x, float y, ColorValue color);
    void LineA(float x1, float y1, float x2, float y2);
    void BoxA(float x1, float y1, float x2, float y2);
    void BoxF(float x1, float y1, float x2, float y2, ColorValue color);
    void CircleA(float x, float y, float radius);
    void PrintA(const QString& text);
    void PaintPicture(const QImage& picture, float x, float y, float width, float height);
    void Cls();
    /// Places the canvas for the scroll bars' values.
    void Refresh();

    /// Twips of the page.
    float TextWidth(const QString& text) const { return picPageDoc->TextWidth(text); }
    float TextHeight(const QString& text) const { return picPageDoc->TextHeight(text); }

    float CurrentX() const { return picPageDoc->CurrentX(); }
    float CurrentY() const { return picPageDoc->CurrentY(); }
    void SetCurrentX(float x) { picPageDoc->SetCurrentX(x); }
    void SetCurrentY(float y) { picPageDoc->SetCurrentY(y); }
    ColorValue BackColor() const { return picPageDoc->BackColor(); }
    ColorValue ForeColor() const { return picPageDoc->ForeColor(); }
    void SetBackColor(ColorValue color) { picPageDoc->SetBackColor(color); }
    void SetForeColor(ColorValue color) { picPageDoc->SetForeColor(color); }
    const QFont& Font() const { return picPageDoc->Font(); }
    void SetFont(const QFont& font) { picPageDoc->SetFont(font); }
    QString FontName() const { return picPageDoc->Font().family(); }
    void SetFontName(const QString& name) { picPageDoc->SetFontName(name); }
    /// Points on the canvas: the document's size times the zoom, as the caller has worked it out.
    float FontSize() const { return picPageDoc->FontSize(); }
    void SetFontSize(float points) { picPageDoc->SetFontSize(points); }
    bool FontBold() const { return picPageDoc->Font().bold(); }
    void SetFontBold(bool on) { picPageDoc->SetFontBold(on); }
    bool FontItalic() const { return picPageDoc->Font().italic(); }
    void SetFontItalic(bool on) { picPageDoc->SetFontItalic(on); }
    bool FontStrikethru() const { return picPageDoc->Font().strikeOut(); }
    void SetFontStrikethru(bool on) { picPageDoc->SetFontStrikethru(on); }
    bool FontUnderline() const { return picPageDoc->Font().underline(); }
    void SetFontUnderline(bool on) { picPageDoc->SetFontUnderline(on); }
    int DrawWidth() const { return picPageDoc->DrawWidth(); }
    void SetDrawWidth(int width) { picPageDoc->SetDrawWidth(width); }
    int DrawStyle() const { return picPageDoc->DrawStyle(); }
    void SetDrawStyle(int style) { picPageDoc->SetDrawStyle(style); }
    int DrawMode() const { return picPageDoc->DrawMode(); }
    void SetDrawMode(int mode) { picPageDoc->SetDrawMode(mode); }

    /// Outer size of the canvas, twips of the screen.
    float PaperWidth() const { return picPageDoc->OuterWidth(); }
    float PaperHeight() const { return picPageDoc->OuterHeight(); }
    void SetPaperWidth(float twips);
    void SetPaperHeight(float twips);
    /// Size of the page, twips.
    float ScaleWidth() const { return picPageDoc->ScaleWidth(); }
    float ScaleHeight() const { return picPageDoc->ScaleHeight(); }
    void SetScaleWidth(float twips) { picPageDoc->SetScaleWidth(twips); }
    void SetScaleHeight(float twips) { picPageDoc->SetScaleHeight(twips); }

    /// 1: the control has a ground of its own.
    static int BackStyle() { return 1; }
    /// 1: there is a line around the control.
    static int BorderStyle() { return 1; }

    /// What is drawn on.
    DrawingSurface& Canvas() { return *picPageDoc; }
    /// The page as it stands.
    const QImage& Picture() const { return picPageDoc->Picture(); }

signals:
    /// The canvas was clicked.
    void Click();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    /// One axis of the scrolling: its bar, and how its values stand to twips.
    struct Axis {
        QScrollBar* bar = nullptr;
        double scrollRatio = 1;
    };

    void LayOut();
    void LayOutAxis(Axis& axis, double canvas, double cover);
    double Position(const Axis& axis, double canvas, double cover) const;

    QScrollBar* VSPageDoc;
    QScrollBar* HSPageDoc;
    QWidget* picPageCover;
    PageCanvas* picPageDoc;
    Axis m_across; ///< ScrollRatioX
    Axis m_down;   ///< ScrollRatioY
};

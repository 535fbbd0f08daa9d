#include "printing/ctlPreview.h"

#include "core/base/Twips.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr double PageMargin = 100; // twips between the canvas and the cover, a third of it
constexpr int LargestBarValue = 32767;
constexpr int LineStep = 20 * TwipsPerPixel;
constexpr double MostPixels = 20000; // of one side; a page at any zoom worth looking at is far below

int ToPixels(double twips)
{
    return static_cast<int>(std::lround(twips / TwipsPerPixel));
}

ColorValue ToColorValue(const QColor& color)
{
    return color.red() | color.green() << 8 | color.blue() << 16;
}

} // namespace

PageCanvas::PageCanvas(QWidget* parent) : QWidget(parent)
{
    resize(0, 0);
}

void PageCanvas::SetOuterSize(float width, float height)
{
    m_outerWidth = width;
    m_outerHeight = height;
    const bool fits = width > 0 && height > 0 && width / TwipsPerPixel <= MostPixels &&
                      height / TwipsPerPixel <= MostPixels; // false for what is no number, too
    m_picture = fits ? QImage(ToPixels(width), ToPixels(height), QImage::Format_RGB32) : QImage();
    resize(m_picture.size());
    Cls();
}

void PageCanvas::Cls()
{
    const ColorValue ground = BackColor();
    if (!m_picture.isNull())
        m_picture.fill(qRgb(ground & 0xFF, (ground >> 8) & 0xFF, (ground >> 16) & 0xFF));
    update();
}

void PageCanvas::Paint(const std::function<void(QPainter&)>& draw)
{
    if (m_picture.isNull() || m_scaleWidth <= 0 || m_scaleHeight <= 0)
        return;
    QPainter painter(&m_picture);
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.scale(m_picture.width() / double(m_scaleWidth), m_picture.height() / double(m_scaleHeight));
    draw(painter);
    update();
}

double PageCanvas::Zoom() const
{
    return m_outerWidth > 0 && m_scaleWidth > 0 ? m_outerWidth / m_scaleWidth : 1;
}

void PageCanvas::paintEvent(QPaintEvent* /*event*/)
{
    QPainter(this).drawImage(0, 0, m_picture);
}

void PageCanvas::mouseReleaseEvent(QMouseEvent* /*event*/)
{
    emit Clicked();
}

ctlPreview::ctlPreview(QWidget* parent)
    : QWidget(parent), VSPageDoc(new QScrollBar(Qt::Vertical, this)),
      HSPageDoc(new QScrollBar(Qt::Horizontal, this)), picPageCover(new QWidget(this)),
      picPageDoc(new PageCanvas(picPageCover)), m_across{.bar = HSPageDoc}, m_down{.bar = VSPageDoc}
{
    VSPageDoc->setObjectName(u"VSPageDoc"_s);
    HSPageDoc->setObjectName(u"HSPageDoc"_s);
    picPageCover->setObjectName(u"picPageCover"_s);
    picPageDoc->setObjectName(u"picPageDoc"_s);
    picPageCover->setStyleSheet(u"#picPageCover { background: #8d9ba8; }"_s);
    setFocusPolicy(Qt::StrongFocus);
    SetBackColor(ToColorValue(palette().color(QPalette::Button)));
    SetForeColor(ToColorValue(palette().color(QPalette::ButtonText)));
    SetFont(font());
    setAutoFillBackground(true);
    for (QScrollBar* bar : {VSPageDoc, HSPageDoc}) {
        bar->setSingleStep(LineStep);
        connect(bar, &QScrollBar::valueChanged, this, &ctlPreview::Refresh);
    }
    connect(picPageDoc, &PageCanvas::Clicked, this, &ctlPreview::Click);
    LayOut();
}

void ctlPreview::StartDoc(double scale, double width, double height)
{
    picPageDoc->SetOuterSize(static_cast<float>(scale * width), static_cast<float>(scale * height));
    picPageDoc->SetScaleWidth(static_cast<float>(width));
    picPageDoc->SetScaleHeight(static_cast<float>(height));
    VSPageDoc->setValue(0);
    HSPageDoc->setValue(0);
    picPageDoc->Cls();
    LayOut();
}

void ctlPreview::PsetA(float x, float y, ColorValue color)
{
    picPageDoc->Point(x, y, color);
}

void ctlPreview::LineA(float x1, float y1, float x2, float y2)
{
    picPageDoc->Line(x1, y1, x2, y2);
}

void ctlPreview::BoxA(float x1, float y1, float x2, float y2)
{
    picPageDoc->Box(x1, y1, x2, y2);
}

void ctlPreview::BoxF(float x1, float y1, float x2, float y2, ColorValue color)
{
    picPageDoc->FilledBox(x1, y1, x2, y2, color);
}

void ctlPreview::CircleA(float x, float y, float radius)
{
    picPageDoc->Circle(x, y, radius);
}

void ctlPreview::PrintA(const QString& text)
{
    picPageDoc->Print(text);
}

void ctlPreview::PaintPicture(const QImage& picture, float x, float y, float width, float height)
{
    picPageDoc->PaintPicture(picture, x, y, width, height);
}

void ctlPreview::Cls()
{
    picPageDoc->Cls();
}

void ctlPreview::SetPaperWidth(float twips)
{
    picPageDoc->SetOuterSize(twips, picPageDoc->OuterHeight());
}

void ctlPreview::SetPaperHeight(float twips)
{
    picPageDoc->SetOuterSize(picPageDoc->OuterWidth(), twips);
}

void ctlPreview::LayOut()
{
    const int coverWidth = width() - VSPageDoc->sizeHint().width();
    const int coverHeight = height() - HSPageDoc->sizeHint().height();
    picPageCover->move(0, 0);
    if (coverWidth * TwipsPerPixel > 100)
        picPageCover->resize(coverWidth, picPageCover->height());
    if (coverHeight * TwipsPerPixel > 400)
        picPageCover->resize(picPageCover->width(), coverHeight);
    const QSize cover = picPageCover->size();
    VSPageDoc->setGeometry(cover.width(), 0, VSPageDoc->sizeHint().width(), cover.height());
    HSPageDoc->setGeometry(0, cover.height(), cover.width(), HSPageDoc->sizeHint().height());

    picPageDoc->move(ToPixels(3 * PageMargin), ToPixels(3 * PageMargin));
    LayOutAxis(m_across, PaperWidth(), cover.width() * TwipsPerPixel);
    LayOutAxis(m_down, PaperHeight(), cover.height() * TwipsPerPixel);
    Refresh();
}

void ctlPreview::LayOutAxis(Axis& axis, double canvas, double cover)
{
    const double range = canvas - cover + 6 * PageMargin;
    int most = LargestBarValue;
    if (range > LargestBarValue)
        axis.scrollRatio = LargestBarValue / range;
    else
        most = static_cast<int>(std::lround(range));
    axis.bar->setRange(0, std::max(0, most));
    axis.bar->setPageStep(
        static_cast<int>(std::clamp(cover * axis.scrollRatio, 1.0, double(LargestBarValue))));
    axis.bar->setEnabled(cover - canvas <= 6 * PageMargin);
}

double ctlPreview::Position(const Axis& axis, double canvas, double cover) const
{
    const double value = axis.bar->value();
    const bool isScaled = canvas - cover + 6 * PageMargin > LargestBarValue;
    return 3 * PageMargin - (isScaled ? value / axis.scrollRatio : value);
}

void ctlPreview::Refresh()
{
    const QSize cover = picPageCover->size() * TwipsPerPixel;
    picPageDoc->move(ToPixels(Position(m_across, PaperWidth(), cover.width())),
                     ToPixels(Position(m_down, PaperHeight(), cover.height())));
}

void ctlPreview::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    LayOut();
}

void ctlPreview::paintEvent(QPaintEvent* event)
{
    QWidget::paintEvent(event);
    QPainter painter(this);
    painter.setPen(hasFocus() ? QColor(0xe0, 0x7b, 0x00) : QColor(0x98, 0xa2, 0xad));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void ctlPreview::keyPressEvent(QKeyEvent* event)
{
    const auto move = [](QScrollBar* bar, QScrollBar::SliderAction action) { bar->triggerAction(action); };
    switch (event->key()) {
    case Qt::Key_Up:
        return move(VSPageDoc, QScrollBar::SliderSingleStepSub);
    case Qt::Key_Down:
        return move(VSPageDoc, QScrollBar::SliderSingleStepAdd);
    case Qt::Key_PageUp:
        return move(VSPageDoc, QScrollBar::SliderPageStepSub);
    case Qt::Key_PageDown:
        return move(VSPageDoc, QScrollBar::SliderPageStepAdd);
    case Qt::Key_Home:
        return move(VSPageDoc, QScrollBar::SliderToMinimum);
    case Qt::Key_End:
        return move(VSPageDoc, QScrollBar::SliderToMaximum);
    case Qt::Key_Left:
        return move(HSPageDoc, QScrollBar::SliderSingleStepSub);
    case Qt::Key_Right:
        return move(HSPageDoc, QScrollBar::SliderSingleStepAdd);
    default:
        QWidget::keyPressEvent(event);
    }
}

void ctlPreview::wheelEvent(QWheelEvent* event)
{
    QCoreApplication::sendEvent(VSPageDoc, event);
}

#include "core/forms/LabelButton.h"

#include <QMouseEvent>
#include <QPainter>
#include <QShortcut>
#include <QStyle>
#include <QStyleOption>

using namespace Qt::StringLiterals;

namespace {
constexpr int Gap = 6;          // pixels between caption and key
constexpr double KeySize = 0.8; // of the caption's height
} // namespace

LabelButton::LabelButton(QWidget* parent) : QLabel(parent)
{
    setFocusPolicy(Qt::NoFocus);
    setAlignment(Qt::AlignCenter);
    setCursor(Qt::PointingHandCursor);
}

void LabelButton::SetKey(const QKeySequence& key)
{
    m_key = key;
    auto* shortcut = new QShortcut(key, window());
    connect(shortcut, &QShortcut::activated, this, [this] {
        if (isEnabled() && isVisible())
            emit PressedByKey();
    });
    setToolTip(key.toString(QKeySequence::NativeText));
    updateGeometry();
}

QSize LabelButton::sizeHint() const
{
    QFont small = font();
    small.setPointSizeF(small.pointSizeF() * KeySize);
    const int key = m_key.isEmpty() ? 0 : Gap + QFontMetrics(small).horizontalAdvance(m_key.toString());
    return {fontMetrics().horizontalAdvance(text()) + key + 28, fontMetrics().height() + 12};
}

void LabelButton::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);

    const QString key = m_key.toString();
    QFont small = font();
    small.setPointSizeF(small.pointSizeF() * KeySize);
    const int captionWidth = fontMetrics().horizontalAdvance(text());
    const int keyWidth = key.isEmpty() ? 0 : Gap + QFontMetrics(small).horizontalAdvance(key);
    const bool keyFits = captionWidth + keyWidth + 8 <= width();
    const int left = (width() - captionWidth - (keyFits ? keyWidth : 0)) / 2;

    painter.setPen(
        palette().color(isEnabled() ? QPalette::Normal : QPalette::Disabled, QPalette::WindowText));
    painter.drawText(QRect(left, 0, captionWidth + 1, height()), Qt::AlignVCenter | Qt::AlignLeft, text());
    if (keyFits && !key.isEmpty()) {
        painter.setFont(small);
        painter.setOpacity(0.65);
        painter.drawText(QRect(left + captionWidth + Gap, 0, keyWidth, height()),
                         Qt::AlignVCenter | Qt::AlignLeft, key);
    }
}

void LabelButton::mousePressEvent(QMouseEvent* event)
{
    m_isDown = event->button() == Qt::LeftButton;
}

void LabelButton::mouseReleaseEvent(QMouseEvent* event)
{
    const bool pressed =
        m_isDown && event->button() == Qt::LeftButton && rect().contains(event->position().toPoint());
    m_isDown = false;
    if (pressed && isEnabled())
        emit Pressed();
}

void LabelButton::mouseDoubleClickEvent(QMouseEvent* /*event*/)
{
    // The second press of a double click: the first has done its work.
    m_isDown = false;
}

void LabelButton::enterEvent(QEnterEvent* event)
{
    QLabel::enterEvent(event);
    emit Hovered(true);
}

void LabelButton::leaveEvent(QEvent* event)
{
    QLabel::leaveEvent(event);
    emit Hovered(false);
}

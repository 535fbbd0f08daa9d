#include "core/forms/WholeText.h"

#include <QFont>
#include <QFontMetricsF>
#include <QLabel>
#include <QLineEdit>
#include <QStyle>
#include <QStyleOptionFrame>

#include <algorithm>

namespace {

constexpr double SmallestPoints = 8;
constexpr double PointStep = 0.5;
constexpr int Narrowest = QFont::Unstretched / 2;
constexpr int StretchStep = 5;
constexpr int MarginsInBox = 2 * 2; // pixels that a box keeps free beside its text, for the cursor

bool Fits(const QFont& font, const QString& text, double room)
{
    return QFontMetricsF(font).horizontalAdvance(text) <= room;
}

/// A new font is a new layout of the whole control, and most texts need none.
void SetFont(QWidget* control, const QFont& font)
{
    if (control->font() != font)
        control->setFont(font);
}

void Narrow(QWidget* control, const QString& text, double room)
{
    QFont font = control->font();
    int stretch = QFont::Unstretched;
    font.setStretch(stretch);
    while (!Fits(font, text, room) && stretch > Narrowest)
        font.setStretch(stretch -= StretchStep);
    SetFont(control, font);
}

/// The room for the text of a box, in pixels, when its frame is at its widest: that of the focus.
double RoomIn(const QLineEdit* box)
{
    QStyleOptionFrame option;
    option.initFrom(box);
    option.state |= QStyle::State_HasFocus;
    return box->style()->subElementRect(QStyle::SE_LineEditContents, &option, box).width() - MarginsInBox;
}

} // namespace

void ShowWhole(QLabel* label, const QString& text, double scale)
{
    static const char* const own = "ownPoints";
    label->ensurePolished();
    if (!label->property(own).isValid())
        label->setProperty(own, label->font().pointSizeF());
    QFont font = label->font();
    double points = std::max(SmallestPoints, label->property(own).toDouble() * scale);
    font.setPointSizeF(points);
    while (!Fits(font, text, label->contentsRect().width()) && points > SmallestPoints)
        font.setPointSizeF(points -= PointStep);
    SetFont(label, font);
    label->setText(text);
}

void ShowNarrowed(QLabel* label, const QString& text)
{
    label->ensurePolished();
    Narrow(label, text, label->contentsRect().width());
    label->setText(text);
}

void KeepNarrowed(QLineEdit* box)
{
    // The style takes its time to tell the room, and most keystrokes write several boxes.
    QObject::connect(box, &QLineEdit::textChanged, box,
                     [box, measured = -1, room = 0.0](const QString& text) mutable {
                         if (measured != box->width()) {
                             box->ensurePolished();
                             measured = box->width();
                             room = RoomIn(box);
                         }
                         Narrow(box, text, room);
                     });
}

#include "core/forms/HoverBox.h"

#include "core/base/Twips.h"

#include <QFrame>

using namespace Qt::StringLiterals;

namespace {
constexpr int Margin = (70 + TwipsPerPixel / 2) / TwipsPerPixel; // 70 twips in pixels
constexpr int Thickness = 1;
} // namespace

HoverLines MakeHoverLines(QWidget* form)
{
    HoverLines lines{};
    for (QFrame*& line : lines) {
        line = new QFrame(form);
        line->setObjectName(u"linHover"_s);
        line->setFrameShape(QFrame::NoFrame);
        line->setAttribute(Qt::WA_TransparentForMouseEvents);
        line->hide();
    }
    return lines;
}

void ShowHoverBox(const QWidget* label, const HoverLines& lines)
{
    const QPoint corner = label->mapTo(lines[0]->parentWidget(), QPoint(0, 0));
    const QRect box = QRect(corner, label->size()).adjusted(-Margin, -Margin, Margin, Margin);
    lines[0]->setGeometry(box.left(), box.top(), box.width(), Thickness);
    lines[1]->setGeometry(box.left(), box.bottom(), box.width(), Thickness);
    lines[2]->setGeometry(box.left(), box.top(), Thickness, box.height());
    lines[3]->setGeometry(box.right(), box.top(), Thickness, box.height());
    for (QFrame* line : lines) {
        line->raise();
        line->show();
    }
}

void HideHoverBox(const HoverLines& lines)
{
    if (!lines[0]->isVisible())
        return;
    for (QFrame* line : lines)
        line->hide();
}

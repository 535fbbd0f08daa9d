#include "shell/TreeIcons.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace {

constexpr int Side = 40; // twice the size it is shown in, for sharp screens
const QColor Ink(0x10, 0x57, 0x85);
const QColor Accent(0xe0, 0x7b, 0x00);

/// Head and shoulders, `centre` and `width` in pixels of the picture.
void DrawPerson(QPainter& painter, qreal centre, qreal width, const QColor& color)
{
    const qreal bottom = 36;
    const qreal neck = bottom - width * 0.5;
    QPainterPath person;
    person.moveTo(centre - width / 2, bottom);
    person.cubicTo(centre - width / 2, neck - width * 0.12, centre + width / 2, neck - width * 0.12,
                   centre + width / 2, bottom);
    person.closeSubpath();
    painter.setPen(QPen(Qt::white, 2)); // keeps it apart from a dark selection and from its neighbour
    painter.setBrush(color);
    painter.drawPath(person);
    painter.drawEllipse(QPointF(centre, neck - width * 0.22), width * 0.27, width * 0.27);
}

template <typename Draw>
QIcon Drawn(Draw draw)
{
    QPixmap picture(Side, Side);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    draw(painter);
    return QIcon(picture);
}

} // namespace

QIcon AllUsersIcon()
{
    return Drawn([](QPainter& painter) {
        DrawPerson(painter, 27, 22, Accent);
        DrawPerson(painter, 15, 26, Ink);
    });
}

QIcon UserIcon()
{
    return Drawn([](QPainter& painter) { DrawPerson(painter, 20, 28, Ink); });
}

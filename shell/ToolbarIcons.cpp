#include "shell/ToolbarIcons.h"

#include <QHash>
#include <QPainter>
#include <QPixmap>

using namespace Qt::StringLiterals;

namespace {

constexpr int Side = 32;
const QColor Ink(0x10, 0x57, 0x85);
const QColor Paper(0xff, 0xff, 0xff);
const QColor Accent(0xe0, 0x7b, 0x00);

void Sheet(QPainter& painter)
{
    painter.setBrush(Paper);
    painter.drawRect(7, 4, 18, 24);
}

void Lines(QPainter& painter, int from)
{
    for (int y = from; y < 26; y += 5)
        painter.drawLine(11, y, 21, y);
}

void DrawNew(QPainter& painter)
{
    Sheet(painter);
    painter.setPen(QPen(Accent, 3));
    painter.drawLine(16, 11, 16, 21);
    painter.drawLine(11, 16, 21, 16);
}

void DrawSave(QPainter& painter)
{
    painter.setBrush(Ink);
    painter.drawRect(5, 5, 22, 22);
    painter.fillRect(10, 5, 12, 8, Paper);
    painter.fillRect(9, 17, 14, 10, Paper);
}

void DrawPreview(QPainter& painter)
{
    Sheet(painter);
    painter.setBrush(QColor(0xdf, 0xea, 0xf2));
    painter.drawEllipse(QPoint(19, 18), 7, 7);
    painter.setPen(QPen(Accent, 3));
    painter.drawLine(24, 23, 29, 28);
}

void DrawPrint(QPainter& painter)
{
    painter.setBrush(Paper);
    painter.drawRect(10, 4, 12, 9);
    painter.setBrush(Ink);
    painter.drawRoundedRect(4, 12, 24, 10, 2, 2);
    painter.setBrush(Paper);
    painter.drawRect(9, 18, 14, 10);
    painter.drawLine(12, 23, 20, 23);
}

void DrawEdit(QPainter& painter)
{
    Sheet(painter);
    Lines(painter, 10);
    painter.setPen(QPen(Accent, 4, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(15, 22, 27, 8);
}

void DrawSearch(QPainter& painter)
{
    painter.setBrush(QColor(0xdf, 0xea, 0xf2));
    painter.drawEllipse(QPoint(14, 14), 9, 9);
    painter.setPen(QPen(Accent, 4, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(21, 21, 27, 27);
}

void DrawDelete(QPainter& painter)
{
    painter.setPen(QPen(QColor(0xb3, 0x26, 0x1e), 4, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(8, 8, 24, 24);
    painter.drawLine(24, 8, 8, 24);
}

void DrawExport(QPainter& painter)
{
    Sheet(painter);
    Lines(painter, 9);
    painter.setPen(QPen(Accent, 3));
    painter.drawLine(16, 18, 29, 18);
    painter.drawLine(25, 14, 29, 18);
    painter.drawLine(25, 22, 29, 18);
}

void DrawHelp(QPainter& painter)
{
    painter.setBrush(Ink);
    painter.drawEllipse(QPoint(16, 16), 12, 12);
    painter.setPen(Paper);
    QFont font = painter.font();
    font.setPixelSize(18);
    font.setBold(true);
    painter.setFont(font);
    painter.drawText(QRect(0, 0, Side, Side), Qt::AlignCenter, u"?"_s);
}

void DrawExit(QPainter& painter)
{
    painter.setBrush(Paper);
    painter.drawRect(6, 4, 14, 24);
    painter.setPen(QPen(Accent, 3));
    painter.drawLine(14, 16, 28, 16);
    painter.drawLine(24, 12, 28, 16);
    painter.drawLine(24, 20, 28, 16);
}

} // namespace

QIcon ToolbarIcon(const QString& key)
{
    static const QHash<QString, void (*)(QPainter&)> drawings{
        {u"mnuNew"_s, DrawNew},       {u"mnuSave"_s, DrawSave},     {u"mnuPreview"_s, DrawPreview},
        {u"mnuPrint"_s, DrawPrint},   {u"mnuEdit"_s, DrawEdit},     {u"mnuSearch"_s, DrawSearch},
        {u"mnuDelete"_s, DrawDelete}, {u"mnuExport"_s, DrawExport}, {u"mnuHelp"_s, DrawHelp},
        {u"mnuExit"_s, DrawExit},
    };
    QPixmap picture(Side, Side);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Ink, 2));
    if (const auto draw = drawings.value(key))
        draw(painter);
    return QIcon(picture);
}

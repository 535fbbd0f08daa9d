#include "shell/NumberedMenuBar.h"

#include <QPaintEvent>
#include <QPainter>
#include <QShortcut>

using namespace Qt::StringLiterals;

namespace {

constexpr double KeySize = 0.72; // of the captions
constexpr int RightMargin = 5;   // pixels; the skin leaves the room behind the captions

QString KeyOf(qsizetype index)
{
    return u"Alt+%1"_s.arg(index + 1);
}

} // namespace

NumberedMenuBar::NumberedMenuBar(QWidget* parent) : QMenuBar(parent)
{}

QMenu* NumberedMenuBar::AddMenu(const QString& caption)
{
    const QString key = KeyOf(actions().size());
    QMenu* menu = addMenu(caption);
    menu->menuAction()->setToolTip(caption + u" ("_s + key + u')');
    auto* open = new QShortcut(QKeySequence(key), window());
    connect(open, &QShortcut::activated, this, [this, menu] { setActiveAction(menu->menuAction()); });
    return menu;
}

void NumberedMenuBar::paintEvent(QPaintEvent* event)
{
    QMenuBar::paintEvent(event);
    QPainter painter(this);
    QFont small = font();
    small.setPointSizeF(small.pointSizeF() * KeySize);
    painter.setFont(small);
    painter.setOpacity(0.65);
    const QList<QAction*> menus = actions();
    for (qsizetype i = 0; i < menus.size(); ++i) {
        painter.setPen(menus[i] == activeAction() ? Qt::white : palette().color(QPalette::WindowText));
        painter.drawText(actionGeometry(menus[i]).adjusted(0, 0, -RightMargin, 0),
                         Qt::AlignRight | Qt::AlignVCenter, KeyOf(i));
    }
}

#include "core/forms/Skin.h"

#include <QApplication>
#include <QFile>
#include <QFont>
#include <QIcon>
#include <QPainter>
#include <QWidget>

using namespace Qt::StringLiterals;

// The resources of a static library must be asked for, outside any namespace.
static void InitialiseResources()
{
    Q_INIT_RESOURCE(forms);
}

namespace {

/// An orange on its leaf, for the title bars and the task bar.
QIcon ProgramIcon()
{
    QPixmap picture(64, 64);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xe0, 0x7b, 0x00));
    painter.drawEllipse(QPoint(32, 37), 25, 25);
    painter.setBrush(QColor(0x2f, 0x8f, 0x5b));
    painter.drawEllipse(QPoint(41, 10), 14, 7);
    return QIcon(picture);
}

const QString& StyleSheet()
{
    static const QString sheet = [] {
        InitialiseResources();
        QFile file(u":/forms/skin.css"_s);
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }();
    return sheet;
}

} // namespace

void InstallSkin(QApplication& application)
{
    // Left to plain fallback, the system picks Japanese forms of the glyphs.
    QFont::insertSubstitution(u"宋体"_s, u"Noto Serif CJK SC"_s);
    QFont font(u"Noto Sans CJK SC"_s);
    font.setPointSize(11);
    QApplication::setFont(font);
    QApplication::setStyle(u"Fusion"_s); // looks alike on every desktop
    application.setStyleSheet(StyleSheet());
    QApplication::setWindowIcon(ProgramIcon());
}

void ApplyWindowSkin(QWidget* form)
{
    form->setAttribute(Qt::WA_StyledBackground);
}

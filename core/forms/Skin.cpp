#include "core/forms/Skin.h"

#include <QApplication>
#include <QFile>
#include <QFont>
#include <QWidget>

using namespace Qt::StringLiterals;

// The resources of a static library must be asked for, outside any namespace.
static void InitialiseResources()
{
    Q_INIT_RESOURCE(forms);
}

namespace {

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
}

void ApplyWindowSkin(QWidget* form)
{
    form->setAttribute(Qt::WA_StyledBackground);
}

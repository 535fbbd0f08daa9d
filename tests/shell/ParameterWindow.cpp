#include "tests/shell/ParameterWindow.h"

#include "app/StartProgram.h"
#include "core/base/IniFile.h"
#include "core/forms/Fields.h"
#include "printing/PrintQueue.h"

#include <QAbstractButton>
#include <QFile>
#include <QPixmap>

using namespace Qt::StringLiterals;

const QString ParameterWindow::Name = u"frmParameter"_s;

void ParameterWindow::SetUp()
{
    WindowTest::SetUp();
    RegisterWindows();
    SetPaperSizes(QList<PaperSize>{{u"A4"_s, 9}, {u"A5"_s, 11}, {u"结算纸"_s, 256}});
    QPixmap picture(80, 20);
    picture.fill(Qt::red);
    ASSERT_TRUE(picture.save(InFolder(u"cover.png"_s)));
    WriteProgramFile(u"Data/BCover.ini"_s, u"[Pic]\nPicStatus=0\nFileName=\n"_s);
}

void ParameterWindow::TearDown()
{
    SetPaperSizes(std::nullopt);
    WindowTest::TearDown();
}

QWidget* ParameterWindow::OpenSettings()
{
    QWidget* window = Open(Name);
    TakeStatements();
    return window;
}

void ParameterWindow::Turn(int page)
{
    Press(static_cast<Qt::Key>(Qt::Key_0 + page), Qt::AltModifier);
}

void ParameterWindow::GoTo(const QString& control)
{
    FocusAndSelect(Find<QWidget>(Name, control));
    Settle();
    EXPECT_EQ(FocusName(), control);
}

void ParameterWindow::TypeInto(const QString& control, const QString& text)
{
    GoTo(control);
    if (text.isEmpty())
        Press(Qt::Key_Delete);
    Type(text);
}

void ParameterWindow::Tick(const QString& control)
{
    GoTo(control);
    Press(Qt::Key_Space);
}

void ParameterWindow::Choose(const QString& control, int index)
{
    GoTo(control);
    for (int steps = 0; steps < 20 && List(control)->currentIndex() != index; ++steps)
        Press(List(control)->currentIndex() < index ? Qt::Key_Down : Qt::Key_Up);
    EXPECT_EQ(List(control)->currentIndex(), index);
}

void ParameterWindow::Submit()
{
    Press(Qt::Key_S, Qt::AltModifier);
}

bool ParameterWindow::IsTicked(const QString& control)
{
    return Find<QAbstractButton>(Name, control)->isChecked();
}

QString ParameterWindow::CoverIni(const QString& key) const
{
    return ReadIniValue(InFolder(u"Data/BCover.ini"_s), u"Pic"_s, key);
}

QString ParameterWindow::PaperSizeInIni() const
{
    return ReadIniValue(InFolder(u"Config.ini"_s), u"Define"_s, u"PaperSize"_s);
}

void ParameterWindow::MakeUnwritable(const QString& ini)
{
    // The kernel's own files refuse writing to everybody, the superuser included.
    QFile::remove(InFolder(ini));
    ASSERT_TRUE(QFile::link(u"/proc/version"_s, InFolder(ini)));
}

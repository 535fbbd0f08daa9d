#include "tests/tour/Tour.h"

#include "core/forms/WindowRegistry.h"
#include "tests/support/Keys.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPixmap>
#include <QProcess>
#include <QScreen>
#include <QTest>
#include <QTimer>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {
constexpr int PollEvery = 15; // milliseconds between two looks for a box
}

void Say(const QString& line)
{
    std::printf("%s\n", qPrintable(line));
    std::fflush(stdout);
}

Tour::Tour(const QDir& pictures, const QString& database) : m_pictures(pictures), m_watch(database)
{}

void Tour::Step(const QString& title)
{
    Say(u"\n== "_s + title);
}

void Tour::Picture(const QString& name)
{
    Settle();
    PictureAsItIs(name);
}

void Tour::PictureAsItIs(const QString& name)
{
    const QString file = u"%1-%2.png"_s.arg(++m_pictureNumber, 2, 10, QChar(u'0')).arg(name);
    const QPixmap screen = QApplication::primaryScreen()->grabWindow(0);
    if (!screen.save(m_pictures.filePath(file))) {
        ++m_failures;
        Say(u"   ! cannot write "_s + file);
    }
    Say(u"   picture "_s + file);
}

void Tour::PrintChanges()
{
    const QStringList changes = m_watch.Changes();
    for (const QString& line : changes)
        Say(u"   "_s + line);
    if (changes.isEmpty())
        Say(u"   nothing written"_s);
}

void Tour::Check(const QString& what, const QString& expected, const QString& actual)
{
    if (expected == actual) {
        Say(u"   ok  %1: %2"_s.arg(what, actual));
        return;
    }
    ++m_failures;
    Say(u"   !!  %1: expected %2, found %3"_s.arg(what, expected, actual));
}

void Tour::CheckValue(const QString& select, const QString& expected)
{
    const auto rows = m_watch.Connection().Rows(select);
    QString found;
    for (const QStringList& row : rows)
        found += (found.isEmpty() ? QString() : u" / "_s) + row.join(u' ');
    Check(select, expected, found);
}

void Tour::CheckText(const QString& window, const QString& control, const QString& expected)
{
    QString found = u"(no such control)"_s;
    if (Form* form = Windows().Find(window)) {
        if (const auto* box = form->Widget()->findChild<QLineEdit*>(control))
            found = box->text();
        else if (const auto* label = form->Widget()->findChild<QLabel*>(control))
            found = label->text();
    }
    Check(window + u'.' + control, expected, found);
}

void Tour::ChooseMenu(int top, int entry)
{
    WaitForWindow(u"frmMain"_s);
    QWidget* frame = Windows().Find(u"frmMain"_s)->Widget();
    QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : frame,
                    static_cast<Qt::Key>(Qt::Key_0 + top), Qt::AltModifier);
    WaitFor([] { return qobject_cast<QMenu*>(QApplication::activePopupWidget()) != nullptr; });
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (!menu)
        return;
    for (int i = 0; i < menu->actions().size() && menu->activeAction() != menu->actions().value(entry - 1);
         ++i)
        QTest::keyClick(menu, Qt::Key_Down);
    QTest::keyClick(menu, Qt::Key_Return);
    Settle();
}

QWidget* Tour::WaitForWindow(const QString& name)
{
    WaitFor([&name] { return Windows().Find(name) && Windows().Find(name)->Widget()->isVisible(); });
    Form* form = Windows().Find(name);
    if (!form) {
        ++m_failures;
        Say(u"   !!  %1 did not open"_s.arg(name));
        return nullptr;
    }
    QWidget* window = form->Widget()->window();
    window->activateWindow();
    WaitFor([window] { return QApplication::activeWindow() == window; });
    return form->Widget();
}

void Tour::ExpectBox(const QString& text, const QString& picture, Qt::Key answer)
{
    CheckBoxCame();
    m_boxText = text;
    m_boxPicture = picture;
    m_boxAnswer = answer;
    m_awaitsBox = true;
    QTimer::singleShot(PollEvery, this, &Tour::AnswerBox);
}

void Tour::KeepDocuments(const QString& folder, int expected)
{
    const QDir printed(folder);
    const QStringList files = printed.entryList({u"*.pdf"_s}, QDir::Files, QDir::Name);
    Check(u"documents in "_s + folder, QString::number(expected), QString::number(files.size()));
    for (int i = 0; i < files.size(); ++i) {
        const QString title = files[i].section(u'-', 2, 2).remove(u".pdf"_s);
        const QString kept = m_pictures.filePath(u"paper-%1-%2"_s.arg(i + 1, 2, 10, QChar(u'0')).arg(title));
        QFile::copy(printed.filePath(files[i]), kept + u".pdf"_s);
        const bool isDrawn = QProcess::execute(u"pdftoppm"_s, {u"-r"_s, u"80"_s, u"-png"_s, u"-singlefile"_s,
                                                               kept + u".pdf"_s, kept}) == 0;
        Check(u"picture of "_s + files[i], u"drawn"_s, isDrawn ? u"drawn"_s : u"not drawn"_s);
    }
}

void Tour::AnswerBox()
{
    if (!m_awaitsBox)
        return;
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box || QApplication::activeWindow() != box) {
        QTimer::singleShot(PollEvery, this, &Tour::AnswerBox);
        return;
    }
    m_awaitsBox = false;
    Check(u"box"_s, m_boxText, box->text());
    if (!m_boxPicture.isEmpty())
        Picture(m_boxPicture);
    QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : box, m_boxAnswer);
}

void Tour::CheckBoxCame()
{
    if (!m_awaitsBox)
        return;
    m_awaitsBox = false;
    ++m_failures;
    Say(u"   !!  this box never came: "_s + m_boxText);
}

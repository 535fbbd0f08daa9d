#include "tests/support/Keys.h"

#include "tests/support/TestText.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QInputMethodEvent>
#include <QTest>
#include <QWidget>

QString FocusName()
{
    const QWidget* focus = QApplication::focusWidget();
    return focus ? focus->objectName() : QString();
}

void Settle()
{
    for (int i = 0; i < 3; ++i) {
        QApplication::sendPostedEvents();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QApplication::processEvents();
    }
}

void Press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    // Without a focus widget the toolkit gives keys to the active window.
    QWidget* focus = QApplication::focusWidget() ? QApplication::focusWidget() : QApplication::activeWindow();
    if (!focus) {
        ADD_FAILURE() << "no widget has the focus";
        return;
    }
    QTest::keyClick(focus, key, modifiers);
    Settle();
}

void Type(const QString& text)
{
    for (const QChar character : text) {
        QWidget* focus = QApplication::focusWidget();
        if (!focus) {
            ADD_FAILURE() << "no widget has the focus for " << text.toStdString();
            return;
        }
        if (character.unicode() < 0x80) {
            QTest::keyClick(focus, character.toLatin1());
        } else {
            QInputMethodEvent commit;
            commit.setCommitString(QString(character));
            QApplication::sendEvent(focus, &commit);
        }
        Settle();
    }
}

void Enter(const QString& control, const QString& text)
{
    EXPECT_EQ(FocusName(), control);
    Type(text);
    Press(Qt::Key_Return);
}

void Click(QWidget* control)
{
    QTest::mouseClick(control, Qt::LeftButton, Qt::NoModifier, control->rect().center());
    Settle();
}

void DoubleClick(QWidget* control)
{
    QTest::mouseDClick(control, Qt::LeftButton, Qt::NoModifier, control->rect().center());
    Settle();
}

void WaitFor(const std::function<bool()>& condition)
{
    QElapsedTimer timer;
    timer.start();
    while (!condition()) {
        if (timer.hasExpired(10000)) {
            ADD_FAILURE() << "waited ten seconds for a condition that never came";
            return;
        }
        QApplication::processEvents(QEventLoop::AllEvents, 20);
    }
    Settle();
}

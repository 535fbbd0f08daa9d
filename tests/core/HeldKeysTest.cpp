#include "core/common/Messages.h"
#include "core/forms/LabelButton.h"
#include "tests/core/ProbeForm.h"
#include "tests/support/WindowTest.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QWindow>

using namespace Qt::StringLiterals;

// How the toolkit asks whether a key is a shortcut, with the time that the display gave it.
Q_GUI_EXPORT bool qt_sendShortcutOverrideEvent(QObject* receiver, ulong timestamp, int key,
                                               Qt::KeyboardModifiers modifiers, const QString& text,
                                               bool autorepeat, ushort count);

namespace {

quint64 now = 1'000'000; // milliseconds, as the display counts them

/// A key as it comes from the display: to the window in front, with a time and without the flag.
class Keyboard {
public:
    static void Down(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, const QString& text = {})
    {
        QWindow* window = QApplication::activeWindow()->windowHandle();
        if (!qt_sendShortcutOverrideEvent(window, now, key, modifiers, text, false, 1))
            Send(window, QEvent::KeyPress, key, modifiers, text);
        Settle();
    }

    static void Up(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        Send(QApplication::activeWindow()->windowHandle(), QEvent::KeyRelease, key, modifiers, {});
        Settle();
    }

    /// Pressed and let go, as a hand does it.
    static void Tap(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        Down(key, modifiers);
        now += 80;
        Up(key, modifiers);
        now += 120;
    }

    /// Held down, as X tells it: each repetition is a release and a press of the same moment.
    static void Repeat(Qt::Key key, int times, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
                       const QString& text = {})
    {
        for (int i = 0; i < times; ++i) {
            now += i == 0 ? 660 : 40;
            Up(key, modifiers);
            Down(key, modifiers, text);
        }
    }

private:
    static void Send(QWindow* window, QEvent::Type type, Qt::Key key, Qt::KeyboardModifiers modifiers,
                     const QString& text)
    {
        QKeyEvent event(type, key, modifiers, text);
        event.setTimestamp(now);
        QCoreApplication::sendEvent(window, &event);
    }
};

class HeldKeys : public WindowTest {
protected:
    void OpenProbe()
    {
        RegisterProbe(u"frmProbe"_s, [this](ProbeForm& form) {
            form.Chain().Field(form.Add(u"txtA"_s));
            form.Chain().Field(form.Add(u"txtB"_s)).OnKey(Qt::Key_F2, Note(u"picked"_s));
            form.Chain().Field(form.Add(u"txtC"_s)).OnEnter(Note(u"saved"_s));
            form.OnPress(form.Add<LabelButton>(u"cmdSubmit"_s), Note(u"pressed"_s));
            form.OnPress(form.Add<QPushButton>(u"cmdAll"_s), Note(u"all"_s), QKeySequence(u"Alt+A"_s));
        });
        Open(u"frmProbe"_s);
    }
    std::function<void()> Note(const QString& what)
    {
        return [this, what] { log << what; };
    }
    void TearDown() override
    {
        now += 10'000; // no key of one test is down in the next
        WindowTest::TearDown();
    }

    QStringList log;
};

} // namespace

TEST_F(HeldKeys, AHeldEnterWalksOnThroughTheFieldsAndDoesNotSave)
{
    OpenProbe();
    Keyboard::Down(Qt::Key_Return);
    EXPECT_EQ(FocusName(), u"txtB"_s);
    Keyboard::Repeat(Qt::Key_Return, 5);
    EXPECT_EQ(FocusName(), u"txtC"_s);
    EXPECT_EQ(log, QStringList());
    now += 30;
    Keyboard::Up(Qt::Key_Return);
    now += 30;
    Keyboard::Tap(Qt::Key_Return);
    EXPECT_EQ(log, QStringList{u"saved"_s});
}

TEST_F(HeldKeys, ADisplayThatSendsNoReleasesIsUnderstoodAsWell)
{
    OpenProbe();
    for (int i = 0; i < 5; ++i) {
        Keyboard::Down(Qt::Key_Return);
        now += 500;
    }
    EXPECT_EQ(FocusName(), u"txtC"_s);
    EXPECT_EQ(log, QStringList());
    now += 5000; // the release was lost to another program
    Keyboard::Tap(Qt::Key_Return);
    EXPECT_EQ(log, QStringList{u"saved"_s});
}

TEST_F(HeldKeys, AKeyThatIsPressedQuicklyIsNotHeld)
{
    OpenProbe();
    Keyboard::Tap(Qt::Key_Return);
    Keyboard::Tap(Qt::Key_Return);
    for (int i = 0; i < 3; ++i) {
        Keyboard::Down(Qt::Key_Return);
        now += 1;
        Keyboard::Up(Qt::Key_Return);
        now += 1;
    }
    EXPECT_EQ(log.size(), 3);
}

TEST_F(HeldKeys, AHeldShortcutPressesItsButtonOnceAndTypesNothing)
{
    OpenProbe();
    for (const auto& [key, text] : {std::pair(Qt::Key_S, u"s"_s), std::pair(Qt::Key_A, u"a"_s)}) {
        Keyboard::Down(key, Qt::AltModifier, text);
        Keyboard::Repeat(key, 5, Qt::AltModifier, text);
        now += 30;
        Keyboard::Up(key, Qt::AltModifier);
        now += 30;
    }
    EXPECT_EQ(log, (QStringList{u"pressed"_s, u"all"_s}));
    EXPECT_EQ(TextOf(u"frmProbe"_s, u"txtA"_s), QString());
    Keyboard::Tap(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(log.last(), u"pressed"_s);
    EXPECT_EQ(log.size(), 3);
}

TEST_F(HeldKeys, AHeldLetterIsTypedOnAndAHeldSpacePressesAButtonOnce)
{
    OpenProbe();
    Keyboard::Down(Qt::Key_X, Qt::NoModifier, u"x"_s);
    Keyboard::Repeat(Qt::Key_X, 3, Qt::NoModifier, u"x"_s);
    EXPECT_EQ(TextOf(u"frmProbe"_s, u"txtA"_s), u"xxxx"_s);
    Find<QPushButton>(u"frmProbe"_s, u"cmdAll"_s)->setFocus();
    Keyboard::Down(Qt::Key_Space, Qt::NoModifier, u" "_s);
    Keyboard::Repeat(Qt::Key_Space, 5, Qt::NoModifier, u" "_s);
    now += 30;
    Keyboard::Up(Qt::Key_Space);
    EXPECT_EQ(log, QStringList{u"all"_s});
}

TEST_F(HeldKeys, AHeldKeyOfAFieldActsOnce)
{
    OpenProbe();
    Keyboard::Tap(Qt::Key_Return);
    Keyboard::Down(Qt::Key_F2);
    Keyboard::Repeat(Qt::Key_F2, 5);
    EXPECT_EQ(log, QStringList{u"picked"_s});
}

namespace {

struct BoxKey {
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    const char* text;
    bool answer;
};

class BoxOverAHeldKey : public HeldKeys, public ::testing::WithParamInterface<BoxKey> {};

} // namespace

TEST_P(BoxOverAHeldKey, IsAnsweredByTheKeyPressedAnewOnly)
{
    OpenProbe();
    SetMessagePresenter(nullptr);
    const auto [key, modifiers, text, answer] = GetParam();
    const QString typed = QString::fromLatin1(text);
    Keyboard::Down(key, modifiers, typed); // the key that brought the box
    bool isStanding = false;
    QTimer::singleShot(0, qApp, [&] {
        WaitFor([] { return qobject_cast<QMessageBox*>(QApplication::activeWindow()) != nullptr; });
        Keyboard::Repeat(key, 8, modifiers, typed);
        now += 30;
        Keyboard::Up(key, modifiers);
        isStanding = QApplication::activeModalWidget() != nullptr;
        now += 30;
        Keyboard::Down(key, modifiers, typed);
        now += 30;
        if (QApplication::activeModalWidget())
            Keyboard::Up(key, modifiers);
    });
    EXPECT_EQ(AskYesNo(u"真的？"_s), answer);
    EXPECT_TRUE(isStanding) << "the held key answered";
    SetMessagePresenter(&boxes);
}

TEST_F(HeldKeys, ABoxIsAnsweredAlthoughTheReleaseOfTheKeyThatBroughtItWasLost)
{
    OpenProbe();
    Keyboard::Tap(Qt::Key_Return);
    Keyboard::Tap(Qt::Key_Return);
    SetMessagePresenter(nullptr);
    Keyboard::Down(Qt::Key_Return);
    bool isAnswered = false;
    QTimer::singleShot(0, qApp, [&] {
        WaitFor([] { return qobject_cast<QMessageBox*>(QApplication::activeWindow()) != nullptr; });
        now += 300; // the release went to the window behind the box, which gets no keys
        Keyboard::Down(Qt::Key_Return);
        isAnswered = QApplication::activeModalWidget() == nullptr;
        now += 1500;
        if (!isAnswered)
            Keyboard::Down(Qt::Key_Return);
    });
    EXPECT_TRUE(AskYesNo(u"真的？"_s));
    EXPECT_TRUE(isAnswered) << "a key pressed anew was taken for a held one";
    // Nor was that of the second key heard, which closed the box.
    now += 200;
    SetMessagePresenter(&boxes);
    WaitFor([] { return QApplication::focusWidget() != nullptr; });
    Keyboard::Tap(Qt::Key_Return);
    EXPECT_EQ(log, (QStringList{u"saved"_s, u"saved"_s}));
}

INSTANTIATE_TEST_SUITE_P(Keys, BoxOverAHeldKey,
                         ::testing::Values(BoxKey{Qt::Key_Return, Qt::NoModifier, "\r", true},
                                           BoxKey{Qt::Key_Enter, Qt::KeypadModifier, "\r", true},
                                           BoxKey{Qt::Key_Space, Qt::NoModifier, " ", true},
                                           BoxKey{Qt::Key_Y, Qt::NoModifier, "y", true},
                                           BoxKey{Qt::Key_N, Qt::NoModifier, "n", false},
                                           BoxKey{Qt::Key_N, Qt::AltModifier, "n", false},
                                           BoxKey{Qt::Key_Escape, Qt::NoModifier, "", false}));

#include "core/forms/ProgressWindow.h"
#include "tests/core/ProbeForm.h"
#include "tests/support/WindowTest.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QProgressBar>
#include <QTest>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace {

/// Two names for the one class, as the program registers it; below it a window that would take the keys.
class Progress : public WindowTest {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        Windows().Register(Name, [](QWidget* owner) { return new ProgressWindow(owner); });
        RegisterProbe(u"frmProbe"_s, [](ProbeForm& form) { form.Add(u"txtBelow"_s); });
        below = Open(u"frmProbe"_s);
    }
    ProgressWindow& Show() { return *dynamic_cast<ProgressWindow*>(Windows().Show(Name, below)); }
    QString Label() { return Find<QLabel>(Name, u"lblKeys"_s)->text(); }
    QProgressBar& Bar() { return *Find<QProgressBar>(Name, u"pbarStatus"_s); }
    /// A key that arrives while a run is under way: it waits in the queue of the desktop's events.
    static void ArrivesMeanwhile(QWidget* window, Qt::Key key)
    {
        QTest::sendKeyEvent(QTest::Press, window->windowHandle(), key, QString(), Qt::NoModifier);
    }

    const QString Name = u"frmProgress"_s;
    QWidget* below = nullptr;
};

} // namespace

TEST_F(Progress, ShowsTheStepsFromNoneToAll)
{
    ProgressWindow& progress = Show();
    EXPECT_EQ(progress.windowTitle(), u"执行状态"_s);
    progress.Begin(30);
    EXPECT_TRUE(progress.windowHandle()->isExposed());
    EXPECT_EQ(Bar().minimum(), 0);
    EXPECT_EQ(Bar().maximum(), 30);
    EXPECT_EQ(Bar().value(), 0);
    progress.Tell(u"正在统计"_s);
    EXPECT_EQ(Find<QLabel>(Name, u"lbl01"_s)->text(), u"正在统计"_s);
    progress.Reach(7);
    EXPECT_EQ(Bar().value(), 7);
    progress.Reach(30);
    EXPECT_EQ(Bar().value(), 30);
    EXPECT_FALSE(progress.IsCancelled());
}

TEST_F(Progress, EscCancelsWhereTheRunAllowsIt)
{
    ProgressWindow& progress = Show();
    progress.AllowCancel();
    progress.Begin(3);
    EXPECT_TRUE(Find<QLabel>(Name, u"lblKeys"_s)->isVisible());
    EXPECT_EQ(Label(), u"Esc 取消"_s);
    int done = 0;
    while (done < 3 && !progress.IsCancelled()) {
        if (done == 1)
            Press(Qt::Key_Escape);
        progress.Reach(++done);
    }
    EXPECT_EQ(done, 2) << "the step under way is finished, the next is not begun";
    EXPECT_EQ(Label(), u"正在取消……"_s);
    EXPECT_EQ(Windows().Find(Name), &progress) << "the run closes it";
    progress.Begin(3);
    EXPECT_FALSE(progress.IsCancelled()) << "a second run begins afresh";
    EXPECT_EQ(Label(), u"Esc 取消"_s);
}

TEST_F(Progress, EscIsNothingWhereTheRunDoesNotAllowIt)
{
    ProgressWindow& progress = Show();
    progress.Begin(3);
    EXPECT_FALSE(Find<QLabel>(Name, u"lblKeys"_s)->isVisible());
    Press(Qt::Key_Escape);
    progress.Reach(1);
    EXPECT_FALSE(progress.IsCancelled());
    EXPECT_EQ(Windows().Find(Name), &progress);
}

TEST_F(Progress, OtherKeysCancelNothingAndReachNoWindowBelow)
{
    ProgressWindow& progress = Show();
    progress.AllowCancel();
    progress.Begin(3);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space, Qt::Key_X}) {
        ArrivesMeanwhile(&progress, key);
        ArrivesMeanwhile(below, key);
    }
    progress.Tell(u"x"_s);
    EXPECT_FALSE(progress.IsCancelled());
    EXPECT_EQ(TextOf(u"frmProbe"_s, u"txtBelow"_s), QString());
    EXPECT_TRUE(progress.isVisible());
}

TEST_F(Progress, TheDesktopCannotCloseItUnderARun)
{
    for (const bool allowed : {false, true}) {
        ProgressWindow& progress = Show();
        if (allowed)
            progress.AllowCancel();
        progress.Begin(3);
        QCloseEvent byTheDesktop;
        QSpontaneKeyEvent::setSpontaneous(&byTheDesktop);
        qApp->notify(&progress, &byTheDesktop);
        EXPECT_FALSE(byTheDesktop.isAccepted());
        EXPECT_TRUE(progress.isVisible());
        EXPECT_EQ(progress.IsCancelled(), allowed);
        EXPECT_EQ(Windows().Find(Name), &progress);
        progress.close();
        Settle();
        EXPECT_EQ(Windows().Find(Name), nullptr);
    }
}

TEST_F(Progress, ManySmallStepsAreNotEachPainted)
{
    struct Painter : QObject {
        bool eventFilter(QObject*, QEvent* event) override
        {
            if (event->type() == QEvent::Paint)
                ++paints;
            return false;
        }
        int paints = 0;
    } painter;
    ProgressWindow& progress = Show();
    progress.Begin(30000);
    Bar().installEventFilter(&painter);
    for (int step = 1; step <= 30000; ++step)
        progress.Reach(step);
    EXPECT_GE(painter.paints, 1) << "the last one is";
    EXPECT_LT(painter.paints, 1000);
    EXPECT_EQ(Bar().value(), 30000);
}

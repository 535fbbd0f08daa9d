#include "core/base/RunTimeError.h"
#include "core/common/Handlers.h"
#include "core/forms/Fields.h"
#include "core/forms/FunctionWindows.h"
#include "core/session/Session.h"
#include "tests/core/ProbeForm.h"
#include "tests/support/WindowTest.h"

#include <QApplication>
#include <QCloseEvent>
#include <QPointer>

using namespace Qt::StringLiterals;

namespace {

class Registry : public WindowTest {
protected:
    void TearDown() override
    {
        Windows().SetAllUnloadedHandler(nullptr);
        WindowTest::TearDown();
    }

    static ProbeForm* Probe(const QString& name) { return dynamic_cast<ProbeForm*>(Windows().Find(name)); }

    /// Counts how often the process would end.
    void CountEnds()
    {
        Windows().SetAllUnloadedHandler([this] { ++m_ends; });
    }

    int m_ends = 0;
};

} // namespace

TEST_F(Registry, AWindowClosedWhileItsOwnHandlerWaitsForABoxLivesUntilTheHandlerEnds)
{
    QPointer<QLineEdit> box;
    RegisterProbe(u"frmProbe"_s, [&box](ProbeForm& form) {
        box = form.Add(u"txtA"_s);
        form.Chain().Field(box).OnEnter([&box] {
            ShowInfo(u"问"_s);
            ASSERT_FALSE(box.isNull());
            FocusAndSelect(box);
        });
    });
    Open(u"frmProbe"_s);
    boxes.Expect(u"问"_s);
    boxes.WhileOpen([] {
        RunHandler([] { Windows().Find(u"frmProbe"_s)->Widget()->close(); });
        Settle();
    });
    Press(Qt::Key_Return);

    EXPECT_EQ(Windows().Find(u"frmProbe"_s), nullptr);
    Settle();
    EXPECT_TRUE(box.isNull());
}

TEST_F(Registry, AModalWindowThatClosesInsideAHandlerReturnsToItsCaller)
{
    RegisterProbe(u"frmPicker"_s, [](ProbeForm& form) {
        auto* name = form.Add(u"txtName"_s);
        form.Chain().Field(name).OnEnter([&form] { form.close(); });
    });
    QString seen;
    RegisterProbe(u"frmProbe"_s, [&seen](ProbeForm& form) {
        auto* box = form.Add(u"txtA"_s);
        form.Chain().Field(box).OnEnter([&seen, &form] {
            QMetaObject::invokeMethod(
                &form,
                [] {
                    WaitFor([] { return FocusName() == u"txtName"; });
                    Press(Qt::Key_Return);
                },
                Qt::QueuedConnection);
            Windows().ShowModal(u"frmPicker"_s, &form);
            seen = Windows().Find(u"frmPicker"_s) ? u"open"_s : u"closed"_s;
        });
    });
    Open(u"frmProbe"_s);
    Press(Qt::Key_Return);

    EXPECT_EQ(seen, u"closed"_s);
    EXPECT_EQ(FocusName(), u"txtA"_s);
}

TEST_F(Registry, AnOwnedWindowThatGoesWithItsOwnerIsForgotten)
{
    CountEnds();
    RegisterProbe(u"frmOwner"_s, nullptr);
    RegisterProbe(u"frmOwned"_s, nullptr);
    QWidget* owner = Open(u"frmOwner"_s);
    Windows().Show(u"frmOwned"_s, owner);
    Settle();

    owner->close();
    Settle();
    EXPECT_EQ(Windows().Find(u"frmOwned"_s), nullptr);
    EXPECT_EQ(m_ends, 1);
}

TEST_F(Registry, ThereIsOneOfEachWindowUnderItsName)
{
    RegisterProbe(u"frmProbe"_s, [](ProbeForm& form) { form.Add(u"txtA"_s); });
    QWidget* first = Open(u"frmProbe"_s);
    EXPECT_EQ(first->objectName(), u"frmProbe"_s);
    EXPECT_EQ(Open(u"frmProbe"_s), first);
    EXPECT_TRUE(first->isVisible());
    EXPECT_EQ(FocusName(), u"txtA"_s);
    EXPECT_EQ(Windows().Find(u"frmOther"_s), nullptr);
}

TEST_F(Registry, ALoadedWindowRunsItsFirstStatementsOnceAndIsNotSeen)
{
    int loads = 0;
    RegisterProbe(u"frmProbe"_s, [&loads](ProbeForm& form) { form.onLoad = [&loads] { ++loads; }; });
    Form* form = Windows().Load(u"frmProbe"_s, nullptr);
    ASSERT_NE(form, nullptr);
    EXPECT_FALSE(form->Widget()->isVisible());
    EXPECT_EQ(Windows().Load(u"frmProbe"_s, nullptr), form);
    EXPECT_EQ(Windows().Show(u"frmProbe"_s, nullptr), form);
    EXPECT_TRUE(form->Widget()->isVisible());
    EXPECT_EQ(loads, 1);
}

TEST_F(Registry, AWindowThatClosesItselfOnLoadingIsNotOpened)
{
    CountEnds();
    RegisterProbe(
        u"frmProbe"_s,
        [](ProbeForm& form) {
            form.onLoad = [&form] {
                ShowInfo(u"不能打开"_s);
                form.close();
            };
        },
        SlotUse::Takes);
    boxes.Expect(u"不能打开"_s);
    EXPECT_EQ(Windows().Show(u"frmProbe"_s, nullptr), nullptr);
    EXPECT_EQ(Windows().Find(u"frmProbe"_s), nullptr);
    EXPECT_TRUE(Session::WindowSlotFree);
    Settle();
    EXPECT_EQ(m_ends, 1);
    boxes.Expect(u"不能打开"_s);
    Windows().ShowModal(u"frmProbe"_s, nullptr);
}

TEST_F(Registry, WhatALoadThrowsComesOutAndTheWindowIsGone)
{
    CountEnds();
    RegisterProbe(
        u"frmProbe"_s, [](ProbeForm& form) { form.onLoad = [] { throw RunTimeError(u"坏了"_s); }; },
        SlotUse::Takes);
    EXPECT_THROW(Windows().Show(u"frmProbe"_s, nullptr), RunTimeError);
    EXPECT_EQ(Windows().Find(u"frmProbe"_s), nullptr);
    EXPECT_TRUE(Session::WindowSlotFree);
    EXPECT_THROW(Windows().ShowModal(u"frmProbe"_s, nullptr), RunTimeError);
    Settle();
    EXPECT_GE(m_ends, 1);
}

TEST_F(Registry, AWindowThatFailsToLoadIsGoneEvenIfItDoesNotWantToClose)
{
    class Stubborn : public ProbeForm {
    public:
        explicit Stubborn(QWidget* owner) : ProbeForm(owner, SlotUse::Untouched, nullptr) {}
        void closeEvent(QCloseEvent* event) override { event->ignore(); }
    };
    Windows().Register(u"frmProbe"_s, [](QWidget* owner) {
        auto* form = new Stubborn(owner);
        form->onLoad = [] { throw RunTimeError(u"坏了"_s); };
        return form;
    });
    EXPECT_THROW(Windows().Load(u"frmProbe"_s, nullptr), RunTimeError);
    EXPECT_EQ(Windows().Find(u"frmProbe"_s), nullptr);
}

TEST_F(Registry, TheSlotIsTakenAndFreedAsTheWindowSays)
{
    const struct {
        SlotUse use;
        bool whileOpen;
        bool afterwards;
    } cases[] = {
        {SlotUse::Takes, false, true}, {SlotUse::Frees, false, true}, {SlotUse::Untouched, false, false}};
    for (const auto& c : cases) {
        Session::WindowSlotFree = c.use == SlotUse::Takes;
        RegisterProbe(u"frmProbe"_s, nullptr, c.use);
        QWidget* window = Open(u"frmProbe"_s);
        EXPECT_EQ(Session::WindowSlotFree, c.whileOpen);
        window->close();
        EXPECT_EQ(Session::WindowSlotFree, c.afterwards);
        Settle();
    }
}

TEST_F(Registry, TheProcessEndsWhenNoWindowIsLoadedShownOrNot)
{
    CountEnds();
    RegisterProbe(u"frmFirst"_s, nullptr);
    RegisterProbe(u"frmSecond"_s, nullptr);
    QWidget* first = Open(u"frmFirst"_s);
    Windows().Load(u"frmSecond"_s, nullptr);
    first->close();
    Settle();
    EXPECT_EQ(m_ends, 0) << "a window that is loaded and not shown keeps the process";
    Windows().Find(u"frmSecond"_s)->Widget()->close();
    Settle();
    EXPECT_EQ(m_ends, 1);
}

TEST_F(Registry, OneWindowMayCloseJustBeforeTheNextIsLoaded)
{
    CountEnds();
    RegisterProbe(u"frmFirst"_s, nullptr);
    RegisterProbe(u"frmSecond"_s, nullptr);
    Open(u"frmFirst"_s)->close();
    Windows().Show(u"frmSecond"_s, nullptr);
    Settle();
    EXPECT_EQ(m_ends, 0);
}

TEST_F(Registry, ClosingTwiceIsClosingOnce)
{
    CountEnds();
    RegisterProbe(u"frmProbe"_s, nullptr, SlotUse::Takes);
    QWidget* window = Open(u"frmProbe"_s);
    window->close();
    Session::WindowSlotFree = false;
    window->close();
    EXPECT_FALSE(Session::WindowSlotFree);
    Settle();
    EXPECT_EQ(m_ends, 1);
}

TEST_F(Registry, AModalWindowHoldsItsCallerAndItsOwnerGetsTheKeyboardBack)
{
    RegisterProbe(u"frmProbe"_s, [](ProbeForm& form) { form.Add(u"txtA"_s); });
    RegisterProbe(u"frmPrompt"_s, [](ProbeForm& form) { form.Add(u"txtNo"_s); });
    RegisterProbe(u"frmInner"_s, [](ProbeForm& form) { form.Add(u"txtInner"_s); });
    QWidget* owner = Open(u"frmProbe"_s);
    QStringList log;
    QMetaObject::invokeMethod(
        owner,
        [&log] {
            WaitFor([] { return FocusName() == u"txtNo"; });
            QWidget* prompt = Windows().Find(u"frmPrompt"_s)->Widget();
            EXPECT_EQ(QApplication::activeModalWidget(), prompt);
            QMetaObject::invokeMethod(
                prompt,
                [&log] {
                    WaitFor([] { return FocusName() == u"txtInner"; });
                    Windows().Find(u"frmInner"_s)->Widget()->close();
                    log << u"inner closed"_s;
                },
                Qt::QueuedConnection);
            Windows().ShowModal(u"frmInner"_s, prompt);
            log << u"inner returned"_s;
            WaitFor([] { return FocusName() == u"txtNo"; });
            prompt->close();
        },
        Qt::QueuedConnection);
    Windows().ShowModal(u"frmPrompt"_s, owner);
    log << u"prompt returned"_s;
    EXPECT_EQ(log, (QStringList{u"inner closed"_s, u"inner returned"_s, u"prompt returned"_s}));
    WaitFor([] { return FocusName() == u"txtA"; });
}

TEST_F(Registry, AFunctionThatTheProgramDoesNotHaveSaysSo)
{
    boxes.Expect(u"此功能在本版本中尚未提供。"_s);
    ShowFunctionWindow(u"frmNoSuchWindow"_s);
    EXPECT_EQ(Windows().Show(u"frmNoSuchWindow"_s, nullptr), nullptr);
    Windows().ShowModal(u"frmNoSuchWindow"_s, nullptr);
    EXPECT_TRUE(Session::WindowSlotFree);
}

TEST_F(Registry, AFunctionWindowIsOwnedByTheMainWindow)
{
    RegisterProbe(u"frmMain"_s, nullptr);
    RegisterProbe(u"frmProbe"_s, nullptr);
    EXPECT_EQ(MainFrame(), nullptr);
    QWidget* frame = Open(u"frmMain"_s);
    EXPECT_EQ(MainFrame(), frame);
    ShowFunctionWindow(u"frmProbe"_s);
    QWidget* window = Windows().Find(u"frmProbe"_s)->Widget();
    EXPECT_EQ(window->parentWidget(), frame);
    EXPECT_TRUE(window->isWindow());
    EXPECT_FALSE(window->isModal());
}

TEST_F(Registry, TheStallsSettlementIsTheLayoutOfItsStyle)
{
    for (const QString& style : {QString(), u"0"_s, u"2"_s, u"A"_s}) {
        Session::CheckOutStyle = style;
        EXPECT_EQ(SettlementWindow(), u"frmCheckOut"_s) << style.toStdString();
    }
    Session::CheckOutStyle = u"1"_s;
    EXPECT_EQ(SettlementWindow(), u"frmCheckOutA"_s);
}

TEST_F(Registry, ARecordIsLoadedByItsKeyBeforeItsWindowIsSeen)
{
    RegisterProbe(u"frmSales"_s, [](ProbeForm& form) {
        auto* key = form.Add(u"txtSalesID"_s);
        form.Chain().Field(key);
        form.onKey = [&form, key](const QString& text) {
            EXPECT_FALSE(form.isVisible());
            WriteText(key, text);
        };
    });
    ShowRecord(u"frmSales"_s, u"07"_s);
    WaitFor([] { return FocusName() == u"txtSalesID"; });
    EXPECT_EQ(TextOf(u"frmSales"_s, u"txtSalesID"_s), u"07"_s);
    EXPECT_EQ(Find(u"frmSales"_s, u"txtSalesID"_s)->selectedText(), u"07"_s);

    boxes.Expect(u"此功能在本版本中尚未提供。"_s);
    ShowRecord(u"frmFeeType"_s, u"07"_s);
}

TEST_F(Registry, AnEditWindowThatClosesOnLoadingIsNotLoadedTwice)
{
    int loads = 0;
    RegisterProbe(u"frmSales"_s, [&loads](ProbeForm& form) {
        form.onLoad = [&loads, &form] {
            ++loads;
            form.close();
        };
    });
    ShowRecord(u"frmSales"_s, u"07"_s);
    EXPECT_EQ(loads, 1);
}

TEST_F(Registry, AKeyThatCannotBeReadLeavesTheEditWindowOpenToSee)
{
    RegisterProbe(u"frmSales"_s, [](ProbeForm& form) {
        form.onKey = [](const QString&) { throw RunTimeError(u"坏了"_s); };
    });
    EXPECT_THROW(ShowRecord(u"frmSales"_s, u"'"_s), RunTimeError);
    ASSERT_NE(Windows().Find(u"frmSales"_s), nullptr);
    EXPECT_TRUE(Windows().Find(u"frmSales"_s)->Widget()->isVisible());
}

TEST_F(Registry, AnOwnedWindowStandsOverTheMiddleOfItsOwner)
{
    RegisterProbe(u"frmOwner"_s, [](ProbeForm& form) { form.resize(900, 600); });
    RegisterProbe(u"frmOwned"_s, nullptr);
    QWidget* owner = Open(u"frmOwner"_s);
    Form* owned = Windows().Show(u"frmOwned"_s, owner);
    const QPoint distance = owned->Widget()->geometry().center() - owner->geometry().center();
    EXPECT_LT(distance.manhattanLength(), 5);
}

TEST_F(Registry, APromptComesBackAfterTheFinishedWindowHasClosedAndItsHandlerIsOver)
{
    QStringList log;
    const auto note = [&log] {
        log << (Probe(u"frmBill"_s) ? u"bill open"_s : u"bill gone"_s) +
                   (Session::WindowSlotFree ? u", slot free"_s : u", slot taken"_s);
    };
    RegisterProbe(u"frmPrompt"_s, [&](ProbeForm& form) {
        form.Chain().Field(form.Add(u"txtListNO"_s));
        form.onLoad = note;
    });
    RegisterProbe(
        u"frmBill"_s,
        [&](ProbeForm& form) {
            form.Chain().Field(form.Add(u"txtA"_s)).OnEnter([&] {
                form.CloseThenShow(u"frmPrompt"_s);
                note();
                ShowInfo(u"已保存"_s);
                note();
            });
        },
        SlotUse::Takes);
    Open(u"frmBill"_s);
    boxes.Expect(u"已保存"_s);
    boxes.WhileOpen([] { Settle(); });
    Press(Qt::Key_Return);
    EXPECT_EQ(log,
              (QStringList{u"bill gone, slot free"_s, u"bill gone, slot free"_s, u"bill gone, slot free"_s}));
    ASSERT_NE(Probe(u"frmPrompt"_s), nullptr);
    EXPECT_EQ(FocusName(), u"txtListNO"_s);
}

TEST_F(Registry, NoPromptComesOverAWindowThatDoesNotClose)
{
    RegisterProbe(u"frmPrompt"_s, nullptr);
    RegisterProbe(u"frmBill"_s, [](ProbeForm& form) {
        form.refusesToClose = true;
        form.Chain().Field(form.Add(u"txtA"_s)).OnEnter([&form] { form.CloseThenShow(u"frmPrompt"_s); });
    });
    Open(u"frmBill"_s);
    Press(Qt::Key_Return);
    EXPECT_NE(Probe(u"frmBill"_s), nullptr);
    EXPECT_EQ(Probe(u"frmPrompt"_s), nullptr);
}

TEST_F(Registry, ARefusedFieldGetsTheCursorAfterTheMessage)
{
    RegisterProbe(u"frmProbe"_s, [](ProbeForm& form) {
        auto* first = form.Add(u"txtA"_s);
        form.Chain().Field(first);
        form.Chain().Field(form.Add(u"txtB"_s)).OnEnter([&form, first] {
            EXPECT_FALSE(form.Refuse(first, u"请填写编号！"_s));
        });
    });
    Open(u"frmProbe"_s);
    Enter(u"txtA"_s, u"abc"_s);
    boxes.Expect(u"请填写编号！"_s);
    boxes.WhileOpen([] { EXPECT_EQ(FocusName(), u"txtB"_s); });
    Press(Qt::Key_Return);
    EXPECT_EQ(FocusName(), u"txtA"_s);
    EXPECT_EQ(TextOf(u"frmProbe"_s, u"txtA"_s), u"abc"_s);
    EXPECT_EQ(Find(u"frmProbe"_s, u"txtA"_s)->selectedText(), u"abc"_s);
}

#include "core/base/RunTimeError.h"
#include "core/common/Handlers.h"
#include "core/forms/Fields.h"
#include "core/forms/LabelButton.h"
#include "core/gateway/DataGateway.h"
#include "tests/core/ProbeForm.h"
#include "tests/support/WindowTest.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QToolTip>

using namespace Qt::StringLiterals;

namespace {

/// A window with the fields txtA, txtB and txtC. What the window's rules do is noted in `log`.
class Chain : public WindowTest {
protected:
    using Wire = std::function<void(ProbeForm&, QLineEdit*, QLineEdit*, QLineEdit*)>;

    void OpenWith(const Wire& wire)
    {
        RegisterProbe(u"frmProbe"_s, [wire](ProbeForm& form) {
            auto* a = form.Add(u"txtA"_s);
            auto* b = form.Add(u"txtB"_s);
            auto* c = form.Add(u"txtC"_s);
            wire(form, a, b, c);
        });
        Open(u"frmProbe"_s);
    }

    /// The chain txtA, txtB, txtC, each of which notes when it is left.
    void OpenPlain()
    {
        OpenWith([this](ProbeForm& form, QLineEdit* a, QLineEdit* b, QLineEdit* c) {
            for (QLineEdit* box : {a, b, c})
                form.Chain().Field(box).OnLeave(Note(u"left "_s + box->objectName()));
        });
    }

    std::function<void()> Note(const QString& what)
    {
        return [this, what] { log << what; };
    }
    QLineEdit* Box(const QString& name) { return Find(u"frmProbe"_s, name); }
    QString Text(const QString& name) { return Box(name)->text(); }
    ProbeForm& Form() { return *dynamic_cast<ProbeForm*>(Windows().Find(u"frmProbe"_s)); }

    static void Empty()
    {
        Press(Qt::Key_A, Qt::ControlModifier);
        Press(Qt::Key_Backspace);
    }

    static void Paste(const QString& text)
    {
        QApplication::clipboard()->setText(text);
        Press(Qt::Key_V, Qt::ControlModifier);
    }

    QStringList log;
};

/// Waits for a message box and presses a key in it; returns its title and text.
QString AnswerBox(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    WaitFor([] {
        return QApplication::activeModalWidget() &&
               QApplication::activeWindow() == QApplication::activeModalWidget();
    });
    const auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    const QString words = box ? box->windowTitle() + u'|' + box->text() : QString();
    Press(key, modifiers);
    return words;
}

[[noreturn]] void Fail()
{
    throw RunTimeError(u"坏了"_s);
}

} // namespace

// Keys

TEST_F(Chain, EnterAndDownMoveOnAndUpMovesBackWithTheTextSelected)
{
    OpenPlain();
    Press(Qt::Key_Down);
    Type(u"bb"_s);
    Press(Qt::Key_Down);
    Type(u"cc"_s);
    Press(Qt::Key_Up);
    Press(Qt::Key_Up);
    EXPECT_EQ(FocusName(), u"txtA"_s);
    Press(Qt::Key_Return);
    EXPECT_EQ(FocusName(), u"txtB"_s);
    EXPECT_EQ(Box(u"txtB"_s)->selectedText(), u"bb"_s);
    Press(Qt::Key_Down);
    EXPECT_EQ(FocusName(), u"txtC"_s);
    EXPECT_EQ(Box(u"txtC"_s)->selectedText(), u"cc"_s);
    Press(Qt::Key_Up);
    EXPECT_EQ(FocusName(), u"txtB"_s);
    EXPECT_EQ(Box(u"txtB"_s)->selectedText(), u"bb"_s);
    Press(Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(FocusName(), u"txtC"_s);
}

TEST_F(Chain, TheEndsOfTheChainHoldTheFocus)
{
    OpenPlain();
    Press(Qt::Key_Up);
    EXPECT_EQ(FocusName(), u"txtA"_s);
    for (int i = 0; i < 4; ++i)
        Press(Qt::Key_Down);
    EXPECT_EQ(FocusName(), u"txtC"_s);
    Press(Qt::Key_Return);
    EXPECT_EQ(FocusName(), u"txtC"_s);
}

TEST_F(Chain, EnterWithShiftOrControlIsNoEnter)
{
    OpenPlain();
    Press(Qt::Key_Return, Qt::ShiftModifier);
    Press(Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(FocusName(), u"txtA"_s);
}

TEST_F(Chain, HiddenAndDisabledControlsArePassedOverLockedOnesAreNot)
{
    OpenWith([](ProbeForm& form, QLineEdit* a, QLineEdit* b, QLineEdit* c) {
        auto* off = form.Add(u"txtOff"_s);
        for (QLineEdit* box : {a, b, off, c})
            form.Chain().Field(box);
        a->setReadOnly(true);
        b->hide();
        off->setEnabled(false);
    });
    EXPECT_EQ(FocusName(), u"txtA"_s) << "a locked field takes part";
    Press(Qt::Key_Return);
    EXPECT_EQ(FocusName(), u"txtC"_s);
    Press(Qt::Key_Up);
    EXPECT_EQ(FocusName(), u"txtA"_s);
    Box(u"txtB"_s)->show();
    Press(Qt::Key_Return);
    EXPECT_EQ(FocusName(), u"txtB"_s);
}

TEST_F(Chain, TheFirstFocusIsOnTheFirstControlThatCanTakeIt)
{
    OpenWith([](ProbeForm& form, QLineEdit* a, QLineEdit* b, QLineEdit* c) {
        form.Chain().Field(a);
        form.Chain().Field(b);
        form.Chain().Field(c).OutsideChain();
        a->setEnabled(false);
    });
    EXPECT_EQ(FocusName(), u"txtB"_s);
}

TEST_F(Chain, EnterSubmitsAndDownDoesNot)
{
    OpenWith([this](ProbeForm& form, QLineEdit* a, QLineEdit* b, QLineEdit* /*c*/) {
        form.Chain().Field(a);
        form.Chain().Field(b).OnEnter(Note(u"saved"_s));
    });
    Press(Qt::Key_Down);
    Press(Qt::Key_Down);
    EXPECT_EQ(log, QStringList());
    Press(Qt::Key_Return);
    EXPECT_EQ(log, QStringList{u"saved"_s});
    EXPECT_EQ(FocusName(), u"txtB"_s);
}

TEST_F(Chain, WhatComesBeforeMovingOnRunsForEnterAndDownAndNotForUp)
{
    OpenWith([this](ProbeForm& form, QLineEdit* a, QLineEdit* b, QLineEdit* c) {
        form.Chain().Field(a);
        form.Chain().Field(b).BeforeMovingOn(Note(u"looked up"_s));
        form.Chain().Field(c);
    });
    Press(Qt::Key_Return);
    Press(Qt::Key_Return);
    EXPECT_EQ(FocusName(), u"txtC"_s);
    Press(Qt::Key_Up);
    Press(Qt::Key_Down);
    Press(Qt::Key_Up);
    Press(Qt::Key_Up);
    EXPECT_EQ(FocusName(), u"txtA"_s);
    EXPECT_EQ(log, (QStringList{u"looked up"_s, u"looked up"_s}));
}

TEST_F(Chain, ARefusalBeforeMovingOnComesBack)
{
    OpenWith([this](ProbeForm& form, QLineEdit* a, QLineEdit* b, QLineEdit* /*c*/) {
        form.Chain().Field(a).BeforeMovingOn([this, &form, a] {
            ShowInfo(u"不行"_s);
            form.Chain().ReturnTo(a);
        });
        form.Chain().Field(b).OnLeave(Note(u"left b"_s));
    });
    boxes.Expect(u"不行"_s);
    Enter(u"txtA"_s, u"x"_s);
    EXPECT_EQ(FocusName(), u"txtA"_s);
    EXPECT_EQ(Box(u"txtA"_s)->selectedText(), u"x"_s);
    EXPECT_EQ(log, QStringList());
}

TEST_F(Chain, AFieldCanHoldTheFocusUntilItIsFilled)
{
    OpenWith([](ProbeForm& form, QLineEdit* a, QLineEdit* b, QLineEdit* /*c*/) {
        form.Chain().Field(a).MovesOnWhenFilled();
        form.Chain().Field(b);
    });
    Press(Qt::Key_Return);
    Press(Qt::Key_Down);
    EXPECT_EQ(FocusName(), u"txtA"_s);
    Type(u"  "_s);
    Press(Qt::Key_Return);
    EXPECT_EQ(FocusName(), u"txtA"_s);
    Type(u"x"_s);
    Press(Qt::Key_Return);
    EXPECT_EQ(FocusName(), u"txtB"_s);
}

TEST_F(Chain, EnterAndUpCanHaveTheirOwnTargets)
{
    OpenWith([](ProbeForm& form, QLineEdit* a, QLineEdit* b, QLineEdit* c) {
        form.Chain().Field(a).EnterTo(c);
        form.Chain().Field(b);
        form.Chain().Field(c).UpTo(a);
    });
    Press(Qt::Key_Return);
    EXPECT_EQ(FocusName(), u"txtC"_s);
    Press(Qt::Key_Up);
    EXPECT_EQ(FocusName(), u"txtA"_s);
    Press(Qt::Key_Down);
    EXPECT_EQ(FocusName(), u"txtB"_s);
}

TEST_F(Chain, AControlOutsideTheChainHasItsKeysAndNoNeighbours)
{
    OpenWith([this](ProbeForm& form, QLineEdit* a, QLineEdit* b, QLineEdit* c) {
        form.Chain().Field(a);
        form.Chain().Field(b).OutsideChain().OnEnter(Note(u"entered"_s)).OnLeave(Note(u"left"_s));
        form.Chain().Field(c);
    });
    Press(Qt::Key_Return);
    EXPECT_EQ(FocusName(), u"txtC"_s);
    FocusAndSelect(Box(u"txtB"_s));
    Press(Qt::Key_Down);
    Press(Qt::Key_Up);
    EXPECT_EQ(FocusName(), u"txtB"_s);
    Press(Qt::Key_Return);
    EXPECT_EQ(log, (QStringList{u"left"_s, u"entered"_s}));
    Click(Box(u"txtA"_s));
    EXPECT_EQ(log, (QStringList{u"left"_s, u"entered"_s, u"left"_s}));
}

TEST_F(Chain, AComboChoosesWithUpAndDownAndIsLeftUpwardsFromItsFirstEntryOnly)
{
    OpenWith([](ProbeForm& form, QLineEdit* a, QLineEdit* b, QLineEdit* /*c*/) {
        auto* combo = form.Add<QComboBox>(u"cmbKind"_s);
        combo->addItems({u"现金"_s, u"赊销"_s, u"其它"_s});
        form.Chain().Field(a);
        form.Chain().Combo(combo);
        form.Chain().Field(b);
    });
    auto* combo = Find<QComboBox>(u"frmProbe"_s, u"cmbKind"_s);
    Press(Qt::Key_Return);
    EXPECT_EQ(FocusName(), u"cmbKind"_s);
    Press(Qt::Key_Down);
    Press(Qt::Key_Down);
    EXPECT_EQ(combo->currentIndex(), 2);
    Press(Qt::Key_Up);
    Press(Qt::Key_Up);
    EXPECT_EQ(combo->currentIndex(), 0);
    EXPECT_EQ(FocusName(), u"cmbKind"_s);
    Press(Qt::Key_Up);
    EXPECT_EQ(FocusName(), u"txtA"_s);
    Press(Qt::Key_Down);
    Press(Qt::Key_Down);
    Press(Qt::Key_Return);
    EXPECT_EQ(combo->currentIndex(), 1);
    EXPECT_EQ(FocusName(), u"txtB"_s);
}

TEST_F(Chain, RadioButtonsAreWalkedByEnterAndChosenBySpace)
{
    OpenWith([](ProbeForm& form, QLineEdit* a, QLineEdit* /*b*/, QLineEdit* /*c*/) {
        auto* first = form.Add<QRadioButton>(u"optFirst"_s);
        auto* second = form.Add<QRadioButton>(u"optSecond"_s);
        first->setChecked(true);
        form.Chain().Field(a);
        form.Chain().Check(first);
        form.Chain().Check(second);
    });
    const auto isSecond = [this] { return Find<QRadioButton>(u"frmProbe"_s, u"optSecond"_s)->isChecked(); };
    Press(Qt::Key_Return);
    Press(Qt::Key_Down);
    EXPECT_EQ(FocusName(), u"optSecond"_s);
    EXPECT_FALSE(isSecond()) << "walking over it chooses nothing";
    Press(Qt::Key_Space);
    EXPECT_TRUE(isSecond());
    Press(Qt::Key_Up);
    Press(Qt::Key_Up);
    EXPECT_EQ(FocusName(), u"txtA"_s);
}

TEST_F(Chain, ACheckBoxTurnsWithSpaceAndMovesOnWithEnter)
{
    OpenWith([](ProbeForm& form, QLineEdit* a, QLineEdit* b, QLineEdit* /*c*/) {
        auto* check = form.Add<QCheckBox>(u"chkFixed"_s);
        form.Chain().Field(a);
        form.Chain().Check(check);
        form.Chain().Field(b);
    });
    Press(Qt::Key_Down);
    EXPECT_EQ(FocusName(), u"chkFixed"_s);
    Press(Qt::Key_Space);
    EXPECT_TRUE(Find<QCheckBox>(u"frmProbe"_s, u"chkFixed"_s)->isChecked());
    Press(Qt::Key_Up);
    EXPECT_EQ(FocusName(), u"txtA"_s);
    Press(Qt::Key_Down);
    Press(Qt::Key_Return);
    EXPECT_EQ(FocusName(), u"txtB"_s);
    EXPECT_TRUE(Find<QCheckBox>(u"frmProbe"_s, u"chkFixed"_s)->isChecked());
}

TEST_F(Chain, AFieldHasKeysAndADoubleClickOfItsOwn)
{
    OpenWith([this](ProbeForm& form, QLineEdit* a, QLineEdit* b, QLineEdit* /*c*/) {
        form.Chain().Field(a).OnKey(Qt::Key_F2, Note(u"F2"_s)).OnDoubleClick(Note(u"double"_s));
        form.Chain().Field(b);
        a->setReadOnly(true);
    });
    Press(Qt::Key_F2);
    DoubleClick(Box(u"txtA"_s));
    FocusAndSelect(Box(u"txtB"_s));
    Press(Qt::Key_F2);
    DoubleClick(Box(u"txtB"_s));
    EXPECT_EQ(log, (QStringList{u"F2"_s, u"double"_s}));
}

// The numeric field

TEST_F(Chain, ATextThatIsNoNumberIsToldEmptiedAndKeepsTheFocus)
{
    OpenWith([this](ProbeForm& form, QLineEdit* a, QLineEdit* b, QLineEdit* /*c*/) {
        form.Chain().Field(a).Numeric(u"数量填写错误！"_s).OnChange([this, a] { log << a->text(); });
        form.Chain().Field(b);
    });
    Type(u"1."_s);
    EXPECT_EQ(Text(u"txtA"_s), u"1."_s);
    for (const QString& wrong : {u"x"_s, u" "_s, u"１"_s, u"'"_s, u"\\"_s, u"-"_s, u"一"_s}) {
        Box(u"txtA"_s)->selectAll();
        boxes.Expect(u"数量填写错误！"_s);
        Type(wrong);
        EXPECT_EQ(Text(u"txtA"_s), QString()) << wrong.toStdString();
        EXPECT_EQ(FocusName(), u"txtA"_s);
    }
    Type(u"5"_s);
    boxes.Expect(u"数量填写错误！"_s);
    Type(u"k"_s);
    EXPECT_EQ(Text(u"txtA"_s), QString());
    EXPECT_EQ(log, (QStringList{u"1"_s, u"1."_s, u"5"_s})) << "its change counts for numbers only";
}

TEST_F(Chain, ANegativeNumberIsPastedOrTypedFromBehind)
{
    OpenWith([](ProbeForm& form, QLineEdit* a, QLineEdit* /*b*/, QLineEdit* /*c*/) {
        form.Chain().Field(a).Numeric(u"错"_s);
    });
    Paste(u"-12.5"_s);
    EXPECT_EQ(Text(u"txtA"_s), u"-12.5"_s);
    Empty();
    Type(u"5"_s);
    Press(Qt::Key_Home);
    Type(u"-"_s);
    EXPECT_EQ(Text(u"txtA"_s), u"-5"_s);
    Empty();
    boxes.Expect(u"错"_s);
    Paste(u"1e999"_s);
    EXPECT_EQ(Text(u"txtA"_s), QString());
}

TEST_F(Chain, AnEmptiedNumberNeitherTestsNorRecalculates)
{
    OpenWith([this](ProbeForm& form, QLineEdit* a, QLineEdit* /*b*/, QLineEdit* /*c*/) {
        form.Chain().Field(a).Numeric(u"错"_s).OnChange(Note(u"recalculated"_s));
    });
    Type(u"7"_s);
    Press(Qt::Key_Backspace);
    EXPECT_EQ(Text(u"txtA"_s), QString());
    EXPECT_EQ(log, QStringList{u"recalculated"_s});
}

TEST_F(Chain, ARefusedTextCanStaySelected)
{
    OpenWith([this](ProbeForm& form, QLineEdit* a, QLineEdit* /*b*/, QLineEdit* /*c*/) {
        form.Chain().Field(a).Numeric(u"错"_s).KeptWhenRefused().OnChange(Note(u"changed"_s));
    });
    boxes.Expect(u"错"_s);
    Paste(u"12x"_s);
    EXPECT_EQ(Text(u"txtA"_s), u"12x"_s);
    EXPECT_EQ(Box(u"txtA"_s)->selectedText(), u"12x"_s);
    EXPECT_EQ(FocusName(), u"txtA"_s);
    EXPECT_EQ(log, QStringList());
}

TEST_F(Chain, AWriteFromCodeIsAChangeAndWritingTheSameTextIsNone)
{
    OpenWith([this](ProbeForm& form, QLineEdit* a, QLineEdit* b, QLineEdit* /*c*/) {
        form.Chain().Field(a).Numeric(u"错"_s).OnChange([this, a] { log << a->text(); });
        form.Chain().Field(b).OnChange([this, b] { log << b->text(); });
    });
    WriteText(Box(u"txtA"_s), u"5"_s);
    WriteText(Box(u"txtA"_s), u"5"_s);
    WriteText(Box(u"txtB"_s), u"x"_s);
    WriteText(Box(u"txtB"_s), QString());
    WriteText(Box(u"txtB"_s), QString());
    EXPECT_EQ(log, (QStringList{u"5"_s, u"x"_s, QString()}));
}

TEST_F(Chain, LeftEmptyANumberBecomesZeroAndIsShownWithItsDecimals)
{
    OpenWith([this](ProbeForm& form, QLineEdit* a, QLineEdit* b, QLineEdit* c) {
        form.Chain().Field(a).Numeric(u"错"_s).ZeroWhenLeftEmpty().OnChange([this, a] { log << a->text(); });
        form.Chain().Field(b).Numeric(u"错"_s).ShownWith(2).OnChange([this, b] { log << b->text(); });
        form.Chain().Field(c).ZeroWhenLeftEmpty().ShownWith(1);
    });
    Press(Qt::Key_Return);
    EXPECT_EQ(Text(u"txtA"_s), u"0"_s);
    Enter(u"txtB"_s, u"1234.5"_s);
    EXPECT_EQ(Text(u"txtB"_s), u"1,234.50"_s);
    EXPECT_EQ(log, (QStringList{u"0"_s, u"1"_s, u"12"_s, u"123"_s, u"1234"_s, u"1234."_s, u"1234.5"_s,
                                u"1,234.50"_s}));
    Press(Qt::Key_Up);
    EXPECT_EQ(Text(u"txtC"_s), u"0.0"_s);
    Empty();
    Press(Qt::Key_Up);
    EXPECT_EQ(Text(u"txtB"_s), QString()) << "an empty field stays empty unless it is told otherwise";
}

TEST_F(Chain, NothingTypedIsCutWithoutAWord)
{
    OpenWith([](ProbeForm& form, QLineEdit* a, QLineEdit* /*b*/, QLineEdit* /*c*/) {
        form.Chain().Field(a).AtMost(5);
    });
    Type(u"一二三四五"_s);
    EXPECT_EQ(QToolTip::text(), QString());
    Type(u"6"_s);
    EXPECT_EQ(Text(u"txtA"_s), u"一二三四五"_s);
    EXPECT_EQ(QToolTip::text(), u"最多5个字"_s);
    QToolTip::hideText();
}

TEST_F(Chain, ALimitCutsWhatComesInAndNothingThatStands)
{
    OpenWith([this](ProbeForm& form, QLineEdit* a, QLineEdit* /*b*/, QLineEdit* /*c*/) {
        form.Chain().Field(a).AtMost(6).OnChange([this, a] { log << a->text(); });
    });
    Paste(u"abcdefgh"_s);
    EXPECT_EQ(Text(u"txtA"_s), u"abcdef"_s);
    Press(Qt::Key_Home);
    Type(u"x"_s);
    Paste(u"yz"_s);
    EXPECT_EQ(Text(u"txtA"_s), u"abcdef"_s);
    EXPECT_EQ(Box(u"txtA"_s)->cursorPosition(), 0);
    EXPECT_EQ(log, QStringList{u"abcdef"_s}) << "what is not taken is no change";
    Press(Qt::Key_Right, Qt::ShiftModifier);
    Press(Qt::Key_Right, Qt::ShiftModifier);
    Paste(u"一二三"_s);
    EXPECT_EQ(Text(u"txtA"_s), u"一二cdef"_s);
    EXPECT_EQ(Box(u"txtA"_s)->cursorPosition(), 2);
    Press(Qt::Key_Delete);
    Type(u"三"_s);
    EXPECT_EQ(log, (QStringList{u"abcdef"_s, u"一二cdef"_s, u"一二def"_s, u"一二三def"_s}));
    QToolTip::hideText();
}

TEST_F(Chain, ALimitCutsNoRareCharacterInTwo)
{
    OpenWith([](ProbeForm& form, QLineEdit* a, QLineEdit* /*b*/, QLineEdit* /*c*/) {
        form.Chain().Field(a).AtMost(4);
    });
    Paste(u"一二三𠮷"_s); // the last one takes two places
    EXPECT_EQ(Text(u"txtA"_s), u"一二三"_s);
    Press(Qt::Key_Backspace);
    Paste(u"𠮷"_s);
    EXPECT_EQ(Text(u"txtA"_s), u"一二𠮷"_s);
    QToolTip::hideText();
}

TEST_F(Chain, ALimitDoesNotCutWhatTheProgramWrites)
{
    OpenWith([](ProbeForm& form, QLineEdit* a, QLineEdit* b, QLineEdit* c) {
        form.Chain().Field(a).AtMost(16).Numeric(u"错"_s).ShownWith(2);
        form.Chain().Field(b).AtMost(4);
        form.Chain().Field(c);
    });
    Enter(u"txtA"_s, u"123456789012345"_s);
    EXPECT_EQ(Text(u"txtA"_s), u"123,456,789,012,345.00"_s);
    WriteText(Box(u"txtB"_s), u"abcdef"_s);
    EXPECT_EQ(Text(u"txtB"_s), u"abcdef"_s);
    EXPECT_EQ(QToolTip::text(), QString());
    Press(Qt::Key_End);
    Type(u"g"_s);
    EXPECT_EQ(Text(u"txtB"_s), u"abcdef"_s) << "full is full";
    EXPECT_EQ(QToolTip::text(), u"最多4个字"_s);
    Press(Qt::Key_Backspace);
    EXPECT_EQ(Text(u"txtB"_s), u"abcde"_s);
    QToolTip::hideText();
}

TEST_F(Chain, BreaksAndTabsBecomeABlankHoweverTheyCome)
{
    OpenWith([this](ProbeForm& form, QLineEdit* a, QLineEdit* /*b*/, QLineEdit* /*c*/) {
        auto* combo = form.Add<QComboBox>(u"cmbStyle"_s);
        combo->setEditable(true);
        form.Chain().Field(a).OnChange([this, a] { log << a->text(); });
    });
    Paste(u"一\r\n二\t三\n四"_s + QChar(0x2028) + u"五"_s);
    EXPECT_EQ(Text(u"txtA"_s), u"一 二 三 四 五"_s);
    EXPECT_EQ(log, QStringList{u"一 二 三 四 五"_s});
    EXPECT_EQ(Box(u"txtA"_s)->cursorPosition(), 9);

    QInputMethodEvent commit;
    commit.setCommitString(u"\n六"_s);
    QApplication::sendEvent(Box(u"txtA"_s), &commit);
    EXPECT_EQ(Text(u"txtA"_s), u"一 二 三 四 五 六"_s);

    QMimeData data;
    data.setText(u"七\n"_s);
    QDragEnterEvent enter(QPoint(1, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(Box(u"txtA"_s), &enter);
    QDropEvent drop(QPointF(1, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(Box(u"txtA"_s), &drop);
    EXPECT_EQ(Text(u"txtA"_s), u"七 一 二 三 四 五 六"_s);
    EXPECT_EQ(log.size(), 3);

    for (QWidget* outside : {static_cast<QWidget*>(Box(u"txtB"_s)),
                             static_cast<QWidget*>(Find<QComboBox>(u"frmProbe"_s, u"cmbStyle"_s))}) {
        outside->setFocus();
        Empty();
        Paste(u"a\nb"_s);
    }
    EXPECT_EQ(Text(u"txtB"_s), u"a b"_s);
    EXPECT_EQ(Find<QComboBox>(u"frmProbe"_s, u"cmbStyle"_s)->currentText(), u"a b"_s);
}

TEST_F(Chain, AQuoteOrABackslashIsTakenWithAHint)
{
    OpenWith([](ProbeForm& form, QLineEdit* a, QLineEdit* b, QLineEdit* c) {
        form.Chain().Field(a);
        form.Chain().Field(b).TakesQuotes();
        form.Chain().Field(c);
        c->setEchoMode(QLineEdit::Password);
    });
    for (const QString& field : {u"txtA"_s, u"txtC"_s}) {
        FocusAndSelect(Box(field));
        Type(u"O"_s);
        EXPECT_EQ(QToolTip::text(), QString());
        for (const QString& character : {u"'"_s, u"\\"_s}) {
            Type(character);
            EXPECT_EQ(QToolTip::text(), u"' 和 \\ 存不进去"_s);
            QToolTip::hideText();
        }
        EXPECT_EQ(Text(field), u"O'\\"_s);
    }
    FocusAndSelect(Box(u"txtB"_s));
    Type(u"'\\"_s);
    EXPECT_EQ(QToolTip::text(), QString());
    EXPECT_EQ(Text(u"txtB"_s), u"'\\"_s);
}

TEST_F(Chain, ALockedBoxShowsTheBeginningOfALongText)
{
    const QString longText = u"很长的一段文字"_s.repeated(20);
    OpenWith([longText](ProbeForm& form, QLineEdit* a, QLineEdit* b, QLineEdit* c) {
        form.Chain().Field(a);
        form.Chain().Field(b);
        Lock(b);
        c->setReadOnly(true); // in no chain
        c->setText(longText);
    });
    EXPECT_EQ(Box(u"txtC"_s)->cursorPosition(), 0);
    for (const QString& field : {u"txtB"_s, u"txtC"_s}) {
        Box(field)->setText(u'又' + longText);
        EXPECT_EQ(Box(field)->cursorPosition(), 0) << field.toStdString();
    }
    Press(Qt::Key_Down);
    EXPECT_EQ(FocusName(), u"txtB"_s);
    EXPECT_EQ(Box(u"txtB"_s)->selectedText(), u'又' + longText);
    EXPECT_EQ(Box(u"txtB"_s)->cursorPosition(), 0);
    WriteText(Box(u"txtA"_s), longText);
    EXPECT_EQ(Box(u"txtA"_s)->cursorPosition(), longText.size()) << "where one types on";
}

TEST_F(Chain, ACombosChoiceAndACheckBoxsTurnAreChanges)
{
    OpenWith([this](ProbeForm& form, QLineEdit* /*a*/, QLineEdit* /*b*/, QLineEdit* /*c*/) {
        auto* combo = form.Add<QComboBox>(u"cmbKind"_s);
        auto* style = form.Add<QComboBox>(u"cmbStyle"_s);
        style->setEditable(true);
        form.Chain().Combo(combo).OnChange([this, combo] { log << combo->currentText(); });
        form.Chain().Combo(style).OnChange([this, style] { log << style->currentText(); });
        form.Chain().Check(form.Add<QCheckBox>(u"chkFixed"_s)).OnChange(Note(u"turned"_s));
        combo->addItems({u"现金"_s, u"赊销"_s});
    });
    EXPECT_EQ(log, QStringList{u"现金"_s});
    Press(Qt::Key_Down);
    Press(Qt::Key_Return);
    Type(u"ab"_s);
    Press(Qt::Key_Return);
    Press(Qt::Key_Space);
    Find<QCheckBox>(u"frmProbe"_s, u"chkFixed"_s)->setChecked(false);
    EXPECT_EQ(log, (QStringList{u"现金"_s, u"赊销"_s, u"a"_s, u"ab"_s, u"turned"_s, u"turned"_s}));
}

// Leaving

TEST_F(Chain, AFieldIsLeftByKeyByClickByTabAndByCode)
{
    OpenPlain();
    Press(Qt::Key_Return);
    EXPECT_EQ(log, QStringList{u"left txtA"_s});
    Click(Box(u"txtC"_s));
    EXPECT_EQ(log.last(), u"left txtB"_s);
    Press(Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_EQ(log.last(), u"left txtC"_s);
    EXPECT_EQ(FocusName(), u"txtB"_s);
    FocusAndSelect(Box(u"txtA"_s));
    EXPECT_EQ(log.last(), u"left txtB"_s);
    EXPECT_EQ(log.size(), 4);
}

TEST_F(Chain, ABoxAPopupAMenuAndAnotherWindowAreNoLeaving)
{
    OpenPlain();
    Type(u"x"_s);

    QWidget other;
    auto* field = new QLineEdit(&other);
    other.show();
    other.activateWindow();
    field->setFocus();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&other));
    Settle();
    EXPECT_EQ(log, QStringList());
    Form().activateWindow();
    WaitFor([] { return FocusName() == u"txtA"; });

    QMenu menu;
    menu.addAction(u"a"_s);
    menu.popup(Form().mapToGlobal(QPoint(5, 5)));
    Settle();
    menu.close();
    Settle();
    EXPECT_EQ(FocusName(), u"txtA"_s);
    EXPECT_EQ(log, QStringList());
}

TEST_F(Chain, ARealBoxIsNoLeavingAndGivesTheKeyboardBack)
{
    OpenPlain();
    SetMessagePresenter(nullptr);
    QString words;
    for (const Qt::Key key : {Qt::Key_Y, Qt::Key_N, Qt::Key_Escape}) {
        const auto modifiers = key == Qt::Key_Escape ? Qt::NoModifier : Qt::AltModifier;
        QMetaObject::invokeMethod(
            &Form(), [&words, key, modifiers] { words = AnswerBox(key, modifiers); }, Qt::QueuedConnection);
        EXPECT_EQ(AskYesNo(u"真的<b>？"_s), key == Qt::Key_Y);
        EXPECT_EQ(words, u"系统提示|真的<b>？"_s);
        WaitFor([] { return FocusName() == u"txtA"; });
    }
    QMetaObject::invokeMethod(
        &Form(), [&words] { words = AnswerBox(Qt::Key_Return); }, Qt::QueuedConnection);
    ShowInfo(u"好"_s, u"软件提示"_s);
    EXPECT_EQ(words, u"软件提示|好"_s);
    WaitFor([] { return FocusName() == u"txtA"; });
    EXPECT_EQ(log, QStringList());
    SetMessagePresenter(&boxes);
}

TEST_F(Chain, ARefusalInARealBoxComesBackToTheField)
{
    OpenWith([this](ProbeForm& form, QLineEdit* a, QLineEdit* b, QLineEdit* /*c*/) {
        form.Chain().Field(a).OnLeave([this, &form, a] {
            log << u"left txtA"_s;
            ShowInfo(u"不存在！"_s);
            form.Chain().ReturnTo(a);
        });
        form.Chain().Field(b).OnLeave(Note(u"left txtB"_s));
    });
    SetMessagePresenter(nullptr);
    for (int i = 1; i <= 2; ++i) {
        QMetaObject::invokeMethod(
            &Form(), [] { AnswerBox(Qt::Key_Return); }, Qt::QueuedConnection);
        if (i == 1)
            Press(Qt::Key_Return);
        else
            Click(Box(u"txtB"_s));
        WaitFor([] { return FocusName() == u"txtA"; });
        EXPECT_EQ(log.size(), i);
        EXPECT_FALSE(log.contains(u"left txtB"_s));
    }
    SetMessagePresenter(&boxes);
}

TEST_F(Chain, ClosingTheWindowLeavesNoField)
{
    OpenPlain();
    Form().close();
    Settle();
    EXPECT_EQ(log, QStringList());
}

TEST_F(Chain, ALabelButtonLeavesNoField)
{
    OpenWith([this](ProbeForm& form, QLineEdit* a, QLineEdit* /*b*/, QLineEdit* /*c*/) {
        form.Chain().Field(a).OnLeave(Note(u"left"_s)).ZeroWhenLeftEmpty();
        form.OnPress(form.Add<LabelButton>(u"cmdSubmit"_s), Note(u"pressed"_s));
    });
    Click(Find<LabelButton>(u"frmProbe"_s, u"cmdSubmit"_s));
    EXPECT_EQ(log, QStringList{u"pressed"_s});
    EXPECT_EQ(FocusName(), u"txtA"_s);
    EXPECT_EQ(Text(u"txtA"_s), QString());
}

TEST_F(Chain, AButtonsKeyFirstLeavesTheFieldAsEnterWould)
{
    OpenWith([this](ProbeForm& form, QLineEdit* a, QLineEdit* b, QLineEdit* c) {
        form.Chain()
            .Field(a)
            .ZeroWhenLeftEmpty()
            .ShownWith(1)
            .BeforeMovingOn(Note(u"looked up"_s))
            .OnLeave(Note(u"left"_s));
        form.Chain().Field(b).OnLeave(Note(u"left b"_s));
        form.Chain().Field(c);
        form.OnPress(form.Add<LabelButton>(u"cmdSubmit"_s), [this, a, b] {
            log << u"saved "_s + a->text();
            FocusAndSelect(b);
        });
        form.OnPress(form.Add<QPushButton>(u"cmdAll"_s), Note(u"all"_s), QKeySequence(u"Alt+A"_s));
    });
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(log, (QStringList{u"looked up"_s, u"left"_s, u"saved 0.0"_s}))
        << "once, whatever the save does";
    EXPECT_EQ(FocusName(), u"txtB"_s);
    log.clear();
    Press(Qt::Key_A, Qt::AltModifier);
    EXPECT_EQ(log, (QStringList{u"left b"_s, u"all"_s}));
    log.clear();
    Press(Qt::Key_Down);
    EXPECT_EQ(log, QStringList{u"left b"_s}) << "after that it is left as ever";
}

TEST_F(Chain, AButtonsKeyPressesNothingWhenTheFieldRefuses)
{
    OpenWith([this](ProbeForm& form, QLineEdit* a, QLineEdit* /*b*/, QLineEdit* /*c*/) {
        form.Chain().Field(a).OnLeave([&form, a] {
            ShowInfo(u"不存在！"_s);
            form.Chain().ReturnTo(a);
        });
        form.OnPress(form.Add<LabelButton>(u"cmdSubmit"_s), Note(u"pressed"_s));
        form.OnPress(form.Add<QPushButton>(u"cmdAll"_s), Note(u"all"_s), QKeySequence(u"Alt+A"_s));
        form.OnPress(form.Add<LabelButton>(u"cmdCancel"_s), Note(u"closing"_s));
    });
    for (const Qt::Key key : {Qt::Key_S, Qt::Key_A}) {
        boxes.Expect(u"不存在！"_s);
        Press(key, Qt::AltModifier);
        boxes.Verify();
        EXPECT_EQ(FocusName(), u"txtA"_s);
    }
    EXPECT_EQ(log, QStringList());
    Press(Qt::Key_C, Qt::AltModifier);
    EXPECT_EQ(log, QStringList{u"closing"_s}) << "closing asks nothing of the field";
    Click(Find<LabelButton>(u"frmProbe"_s, u"cmdSubmit"_s));
    EXPECT_EQ(log, (QStringList{u"closing"_s, u"pressed"_s}));
}

TEST_F(Chain, AButtonsKeyAndEnterDoNothingWhenTheLeaveFails)
{
    for (const bool isThrown : {true, false}) {
        OpenWith([this, isThrown](ProbeForm& form, QLineEdit* a, QLineEdit* b, QLineEdit* /*c*/) {
            // A write from code may fail without ending the routine that wrote.
            form.Chain().Field(a).OnEnter(Note(u"saved"_s)).OnLeave([isThrown, b] {
                if (isThrown)
                    Fail();
                b->setText(b->text() + u'x');
            });
            form.Chain().Field(b).OnChange([] { Fail(); });
            form.OnPress(form.Add<LabelButton>(u"cmdSubmit"_s), Note(u"pressed"_s));
        });
        boxes.Expect(u"坏了"_s);
        Press(Qt::Key_S, Qt::AltModifier);
        boxes.Expect(u"坏了"_s);
        Press(Qt::Key_Return);
        boxes.Verify();
        EXPECT_EQ(log, QStringList()) << isThrown;
        EXPECT_EQ(FocusName(), u"txtA"_s);
        Windows().DropAll();
    }
}

TEST_F(Chain, AButtonsKeyLooksNothingUpForAnEmptyFieldThatHoldsTheFocus)
{
    OpenWith([this](ProbeForm& form, QLineEdit* a, QLineEdit* /*b*/, QLineEdit* /*c*/) {
        form.Chain()
            .Field(a)
            .MovesOnWhenFilled()
            .BeforeMovingOn(Note(u"looked up"_s))
            .OnEnter(Note(u"entered"_s));
        form.OnPress(form.Add<LabelButton>(u"cmdSubmit"_s), Note(u"pressed"_s));
    });
    Press(Qt::Key_S, Qt::AltModifier);
    Press(Qt::Key_Return);
    EXPECT_EQ(log, QStringList{u"pressed"_s});
    Type(u"x"_s);
    Press(Qt::Key_Return);
    EXPECT_EQ(log, (QStringList{u"pressed"_s, u"looked up"_s, u"entered"_s}));
}

TEST_F(Chain, ARefusedLeaveComesBackWithoutLeavingTheFieldBetween)
{
    OpenWith([this](ProbeForm& form, QLineEdit* a, QLineEdit* b, QLineEdit* c) {
        form.Chain().Field(a).OnLeave([this, &form, a] {
            log << u"left txtA"_s;
            if (a->text() == u"bad") {
                ShowInfo(u"不存在！"_s);
                form.Chain().ReturnTo(a);
            }
        });
        form.Chain().Field(b).OnLeave(Note(u"left txtB"_s));
        form.Chain().Field(c).OnLeave(Note(u"left txtC"_s));
    });
    boxes.Expect(u"不存在！"_s);
    Enter(u"txtA"_s, u"bad"_s);
    EXPECT_EQ(FocusName(), u"txtA"_s);
    EXPECT_EQ(Box(u"txtA"_s)->selectedText(), u"bad"_s);
    boxes.Expect(u"不存在！"_s);
    Click(Box(u"txtC"_s));
    EXPECT_EQ(FocusName(), u"txtA"_s);
    Enter(u"txtA"_s, u"good"_s);
    EXPECT_EQ(FocusName(), u"txtB"_s);
    EXPECT_EQ(log, (QStringList{u"left txtA"_s, u"left txtA"_s, u"left txtA"_s}));
    Press(Qt::Key_Return);
    EXPECT_EQ(log.last(), u"left txtB"_s) << "after the return fields are left again";
}

TEST_F(Chain, TheLastReturnAskedForCounts)
{
    OpenPlain();
    Form().Chain().ReturnTo(Box(u"txtB"_s));
    Form().Chain().ReturnTo(Box(u"txtC"_s));
    Settle();
    EXPECT_EQ(FocusName(), u"txtC"_s);
    EXPECT_EQ(log, QStringList());
    Press(Qt::Key_Up);
    EXPECT_EQ(log, QStringList{u"left txtC"_s});
}

TEST_F(Chain, AReturnToAControlThatIsGoneIsForgotten)
{
    OpenPlain();
    auto* gone = new QLineEdit(&Form());
    Form().Chain().ReturnTo(gone);
    delete gone;
    Settle();
    EXPECT_EQ(FocusName(), u"txtA"_s);
    Press(Qt::Key_Return);
    EXPECT_EQ(log, QStringList{u"left txtA"_s});
}

TEST_F(Chain, AFailureOnLeavingIsShownAndTheFocusStaysWhereItWent)
{
    OpenWith([](ProbeForm& form, QLineEdit* a, QLineEdit* b, QLineEdit* /*c*/) {
        form.Chain().Field(a).OnLeave([] { Fail(); });
        form.Chain().Field(b);
    });
    boxes.Expect(u"坏了"_s);
    Press(Qt::Key_Return);
    EXPECT_EQ(FocusName(), u"txtB"_s);
    boxes.Verify();
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);
}

// Handlers and saves

TEST_F(Chain, AFailureInsideASaveIsShownAndLoggedUnderItsLabel)
{
    OpenPlain();
    boxes.Expect(u"坏了"_s);
    Form().Guarded(u"保存收银信息"_s, [this] {
        log << u"first"_s;
        Fail();
    });
    EXPECT_EQ(log, QStringList{u"first"_s});
    EXPECT_EQ(Db().Rows(u"SELECT ErrUserName,ErrDescription,ErrSource,ErrDate,ErrTime FROM ErrInfo"_s),
              (std::vector<QStringList>{
                  {u"管理员"_s, u"坏了"_s, u"保存收银信息"_s, u"2026-03-09"_s, u"10:00:00"_s}}));
    boxes.Expect(u"坏了"_s);
    Form().GuardedUnlogged([] { Fail(); });
    EXPECT_EQ(Count(u"ErrInfo"_s), 1);
}

TEST_F(Chain, TheFocusMovesOfASaveLeaveNoField)
{
    OpenWith([this](ProbeForm& form, QLineEdit* a, QLineEdit* b, QLineEdit* /*c*/) {
        form.Chain().Field(a).OnLeave(Note(u"left txtA"_s));
        form.Chain().Field(b).OnLeave(Note(u"left txtB"_s)).OnEnter([&form, a, b] {
            form.Guarded(u"保存"_s, [a, b] {
                WriteText(b, QString());
                FocusAndSelect(a);
            });
        });
    });
    Press(Qt::Key_Return);
    Press(Qt::Key_Return);
    EXPECT_EQ(FocusName(), u"txtA"_s);
    EXPECT_EQ(log, (QStringList{u"left txtA"_s, u"left txtB"_s})) << "by its Enter, and not by the save";
    Press(Qt::Key_Return);
    EXPECT_EQ(log.size(), 3) << "after the save fields are left again";
    EXPECT_EQ(log.last(), u"left txtA"_s);
}

TEST_F(Chain, AFailedChangeEndsTheRoutineThatWrote)
{
    OpenWith([this](ProbeForm& form, QLineEdit* a, QLineEdit* b, QLineEdit* /*c*/) {
        form.Chain().Field(a).OnEnter([this, &form, b] {
            form.Guarded(u"保存"_s, [this, b] {
                WriteText(b, u"x"_s);
                log << u"went on"_s;
            });
        });
        form.Chain().Field(b).OnChange([] { Fail(); });
    });
    boxes.Expect(u"坏了"_s);
    Press(Qt::Key_Return);
    EXPECT_EQ(log, QStringList());
    EXPECT_EQ(Count(u"ErrInfo"_s, u"ErrSource='保存'"_s), 1);
    EXPECT_EQ(Text(u"txtB"_s), u"x"_s);
}

TEST_F(Chain, AFailedChangeOfTypingIsShownOnce)
{
    OpenWith([](ProbeForm& form, QLineEdit* a, QLineEdit* /*b*/, QLineEdit* /*c*/) {
        form.Chain().Field(a).OnChange(
            [a] { Gateway().SelectRows(u"Sales"_s, u"SalesID"_s, u"SalesID='"_s + a->text() + u"'"_s); });
    });
    boxes.ExpectContaining(u"SQL syntax"_s);
    Type(u"'"_s);
    boxes.Verify();
    EXPECT_EQ(Text(u"txtA"_s), u"'"_s);
    Type(u"'"_s);
    EXPECT_EQ(Text(u"txtA"_s), u"''"_s);
}

TEST_F(Chain, FailuresInsideAHandlerAreShownOnceWhenItEnds)
{
    OpenWith([this](ProbeForm& form, QLineEdit* a, QLineEdit* b, QLineEdit* c) {
        form.Chain().Field(a).OnEnter([this, b, c] {
            b->setText(u"1"_s);
            c->setText(u"1"_s);
            log << u"end of the handler"_s;
        });
        form.Chain().Field(b).OnChange([] { Fail(); });
        form.Chain().Field(c).OnChange([] { throw RunTimeError(u"也坏了"_s); });
    });
    boxes.Expect(u"坏了"_s);
    boxes.WhileOpen([this] { EXPECT_EQ(log, QStringList{u"end of the handler"_s}); });
    Press(Qt::Key_Return);
    boxes.Verify();
}

TEST_F(Chain, AFailureThatWaitsDoesNotEndAHandlerOfTheBoxAbove)
{
    OpenWith([this](ProbeForm& form, QLineEdit* a, QLineEdit* b, QLineEdit* c) {
        form.Chain().Field(a).OnEnter([b] {
            b->setText(u"1"_s);
            ShowInfo(u"问"_s);
        });
        form.Chain().Field(b).OnChange([] { Fail(); });
        form.Chain().Field(c).OnChange(Note(u"changed"_s));
    });
    boxes.Expect(u"问"_s);
    boxes.Expect(u"坏了"_s);
    boxes.WhileOpen([this] {
        RunHandler([this] {
            WriteText(Box(u"txtC"_s), u"x"_s);
            log << u"went on"_s;
        });
        EXPECT_EQ(log, (QStringList{u"changed"_s, u"went on"_s}));
    });
    Press(Qt::Key_Return);
    boxes.Verify();
}

TEST_F(Chain, AHandlerInANestedLoopShowsItsOwnFailureAtOnce)
{
    OpenWith([](ProbeForm& form, QLineEdit* a, QLineEdit* /*b*/, QLineEdit* /*c*/) {
        form.Chain().Field(a).OnEnter([] {
            const NestedLoop nested;
            RunHandler([] { Fail(); });
            throw RunTimeError(u"其后"_s);
        });
    });
    boxes.Expect(u"坏了"_s);
    boxes.Expect(u"其后"_s);
    Press(Qt::Key_Return);
    boxes.Verify();
}

TEST_F(Chain, WhatIsPutOffWaitsForTheEndOfTheHandlerItsBoxesAndItsFailure)
{
    OpenWith([this](ProbeForm& form, QLineEdit* a, QLineEdit* /*b*/, QLineEdit* /*c*/) {
        form.Chain().Field(a).OnEnter([this] {
            AfterHandler([] { ShowInfo(u"事后"_s); });
            ShowInfo(u"问"_s);
            log << u"went on"_s;
            throw RunTimeError(u"坏了"_s);
        });
    });
    boxes.Expect(u"问"_s);
    boxes.Expect(u"坏了"_s);
    boxes.Expect(u"事后"_s);
    boxes.WhileOpen([this] {
        RunHandler([this] { log << u"another handler"_s; });
        Settle();
    });
    Press(Qt::Key_Return);
    boxes.Verify();
    EXPECT_EQ(log, (QStringList{u"another handler"_s, u"went on"_s}));
}

TEST_F(Chain, WhatIsPutOffOutsideAnyHandlerRunsFromTheEventLoop)
{
    AfterHandler([] { ShowInfo(u"事后"_s); });
    EXPECT_EQ(boxes.Seen(), QStringList());
    boxes.Expect(u"事后"_s);
    Settle();
}

TEST_F(Chain, NoFailureOfOursOrOfTheLibraryCrossesTheEventLoop)
{
    OpenWith([](ProbeForm& form, QLineEdit* a, QLineEdit* b, QLineEdit* /*c*/) {
        form.Chain().Field(a).OnEnter([] { throw std::runtime_error("oops"); });
        form.Chain().Field(b);
    });
    boxes.ExpectContaining(u"oops"_s);
    Press(Qt::Key_Return);
    EXPECT_EQ(FocusName(), u"txtA"_s);
    Press(Qt::Key_Down);
    EXPECT_EQ(FocusName(), u"txtB"_s);
}

TEST_F(Chain, AHandlerMayCloseItsWindow)
{
    OpenWith([this](ProbeForm& form, QLineEdit* a, QLineEdit* b, QLineEdit* /*c*/) {
        form.Chain().Field(a).BeforeMovingOn([&form] { form.close(); }).OnLeave(Note(u"left"_s));
        form.Chain().Field(b);
    });
    Press(Qt::Key_Return);
    EXPECT_EQ(Windows().Find(u"frmProbe"_s), nullptr);
    EXPECT_EQ(boxes.Seen(), QStringList());
}

TEST_F(Chain, TheTextBoxesOfAFormAreItsOwn)
{
    OpenWith([](ProbeForm& form, QLineEdit* /*a*/, QLineEdit* /*b*/, QLineEdit* /*c*/) {
        form.Add<QComboBox>(u"cmbKind"_s)->setEditable(true);
    });
    QStringList names;
    for (const QLineEdit* box : Form().TextBoxes())
        names << box->objectName();
    EXPECT_EQ(names, (QStringList{u"txtA"_s, u"txtB"_s, u"txtC"_s}));
}

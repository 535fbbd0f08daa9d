#include "app/StartProgram.h"
#include "core/common/Handlers.h"
#include "core/gateway/DataGateway.h"
#include "core/session/Session.h"
#include "tests/support/MenuCatalogue.h"
#include "tests/support/WindowTest.h"

#include <QApplication>
#include <QCheckBox>
#include <QFile>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QTest>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace {

const QString Window = u"frmDataClear"_s;
const QString Question = u"真的要清空这些数据表吗？注意：清空过后数据将不可恢复！"_s;
const QString Done = u"数据清空完毕!"_s;

/// What frmScroll shows at one moment, "" while it is not on the screen.
QString Progress()
{
    Form* scroll = Windows().Find(u"frmScroll"_s);
    if (!scroll || !scroll->Widget()->isVisible())
        return {};
    const auto* bar = scroll->Widget()->findChild<QProgressBar*>(u"pbarStatus"_s);
    return u"%1 %2/%3"_s.arg(scroll->Widget()->findChild<QLabel*>(u"lbl01"_s)->text())
        .arg(bar->value())
        .arg(bar->maximum());
}

class ClearingWindow : public WindowTest {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        RegisterWindows();
        Db().Run(
            u"INSERT INTO Sal_List (SalNo) VALUES ('1'),('2'); INSERT INTO Fee_List (FeeNo) VALUES ('1');"
            "INSERT INTO CustDebit (ID) VALUES ('1'),('1'),('1');"
            "INSERT INTO PRD_List (ID,Num,Num_Sal) VALUES ('1',100,70);"
            "INSERT INTO DFN_Pack (PackNo,Num_PACK) VALUES ('1',30)"_s);
    }

    /// Table.ini with these tables, as "text|name".
    void WriteTables(const QStringList& tables, const QString& number = QString())
    {
        QString ini =
            u"[TableInfo]\nTableNum=%1\n"_s.arg(number.isNull() ? QString::number(tables.size()) : number);
        for (qsizetype i = 0; i < tables.size(); ++i)
            ini += u"[T%1]\nTableText=%2\nTableName=%3\n"_s.arg(i + 1).arg(tables[i].section(u'|', 0, 0),
                                                                           tables[i].section(u'|', 1));
        WriteProgramFile(u"Data/Table.ini"_s, ini);
    }
    void OpenThree()
    {
        WriteTables({u"收银清单|Sal_List"_s, u"费用记录|Fee_List"_s, u"客户预支|CustDebit"_s});
        Open(Window);
        TakeStatements();
    }

    QListWidget* Lines() { return Find<QListWidget>(Window, u"lstTable"_s); }
    QString Ticks()
    {
        QString ticks;
        for (int row = 0; row < Lines()->count(); ++row)
            ticks += Lines()->item(row)->checkState() == Qt::Checked ? u'1' : u'0';
        return ticks;
    }
    void Submit() { Press(Qt::Key_S, Qt::AltModifier); }
    QString Left()
    {
        QStringList counts;
        for (const QString& table : {u"Sal_List"_s, u"Fee_List"_s, u"CustDebit"_s})
            counts << QString::number(Count(table));
        return counts.join(u' ');
    }
    /// Calls `look` before each statement, in place of the log.
    void WatchStatements(const std::function<void(const QString&)>& look)
    {
        Gateway().SetStatementObserver(look);
    }
};

} // namespace

TEST_F(ClearingWindow, LoadListsTheTextsOfTheIniUnticked)
{
    WriteTables({u"收银清单|Sal_List"_s, u"费用记录|Fee_List"_s, u"第三张|CustDebit"_s}, u"2"_s);
    Open(Window);
    EXPECT_EQ(Windows().Find(Window)->Widget()->windowTitle(), u"数据清空"_s);
    EXPECT_EQ(Find<QLabel>(Window, u"lblTable"_s)->text(), u"请复选要清空的数据库表名"_s);
    ASSERT_EQ(Lines()->count(), 2);
    EXPECT_EQ(Lines()->item(0)->text(), u"收银清单"_s);
    EXPECT_EQ(Lines()->item(1)->text(), u"费用记录"_s);
    EXPECT_EQ(Ticks(), u"00"_s);
    EXPECT_EQ(TakeStatements(), QStringList());
    EXPECT_EQ(FocusName(), u"lstTable"_s);
}

TEST_F(ClearingWindow, TheTickedTablesAreEmptiedInOrderAndNothingElse)
{
    OpenThree();
    Lines()->item(0)->setCheckState(Qt::Checked);
    Lines()->item(2)->setCheckState(Qt::Checked);
    boxes.ExpectDestroying(Question, true);
    boxes.Expect(Done);
    Submit();
    EXPECT_EQ(TakeStatements(), (QStringList{u"DELETE FROM Sal_List"_s, u"DELETE FROM CustDebit"_s}));
    EXPECT_EQ(Left(), u"0 1 0"_s);
    EXPECT_EQ(Value(u"SELECT Num_Sal FROM PRD_List"_s), u"70.000000"_s) << "no counter is adjusted";
    EXPECT_EQ(Value(u"SELECT Num_PACK FROM DFN_Pack"_s), u"30.000000"_s);
    EXPECT_EQ(Count(u"User_List"_s), 1);
    EXPECT_EQ(Windows().Find(u"frmScroll"_s), nullptr);
    EXPECT_NE(Windows().Find(Window), nullptr);
    EXPECT_EQ(Ticks(), u"101"_s);
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);
}

TEST_F(ClearingWindow, NoLeavesEverything)
{
    OpenThree();
    Press(Qt::Key_Space);
    boxes.ExpectDestroying(Question, false);
    Submit();
    EXPECT_EQ(TakeStatements(), QStringList());
    EXPECT_EQ(Left(), u"2 1 3"_s);
    EXPECT_EQ(Ticks(), u"100"_s);
}

TEST_F(ClearingWindow, WithNothingTickedOrNothingListedItAsksAndReportsAllTheSame)
{
    OpenThree();
    boxes.ExpectDestroying(Question, true);
    boxes.Expect(Done);
    Submit();
    EXPECT_EQ(TakeStatements(), QStringList());
    EXPECT_EQ(Left(), u"2 1 3"_s);
    Windows().Find(Window)->Widget()->close();
    Settle();

    WriteTables({u"收银清单|Sal_List"_s}, u"0"_s);
    Open(Window);
    EXPECT_EQ(Lines()->count(), 0);
    boxes.ExpectDestroying(Question, true);
    boxes.Expect(Done);
    Submit();
    EXPECT_EQ(TakeStatements(), QStringList());
    EXPECT_EQ(Left(), u"2 1 3"_s);
}

TEST_F(ClearingWindow, WithoutTheIniItSaysSoStaysAndStillAsks)
{
    boxes.Expect(u"找不到系统所需要的配置文件！"_s);
    Open(Window);
    EXPECT_EQ(Lines()->count(), 0);
    boxes.ExpectDestroying(Question, true);
    boxes.Expect(Done);
    Submit();
    EXPECT_EQ(TakeStatements(), QStringList());
    EXPECT_NE(Windows().Find(Window), nullptr);
}

TEST_F(ClearingWindow, TheNumberOfTablesIsReadAsASixteenBitInteger)
{
    struct Case {
        QString number;
        int lines;
    };
    for (const Case& each : std::initializer_list<Case>{{u""_s, 0},
                                                        {u"abc"_s, 0},
                                                        {u"-3"_s, 0},
                                                        {u"1 Tabelle"_s, 1},
                                                        {u"2.5"_s, 2},
                                                        {u"１"_s, 0},
                                                        {u"4"_s, 4}}) {
        WriteTables({u"甲|Sal_List"_s, u"乙|Fee_List"_s, u"丙|CustDebit"_s}, each.number);
        Open(Window);
        EXPECT_EQ(Lines()->count(), each.lines) << each.number.toStdString();
        Windows().Find(Window)->Widget()->close();
        Settle();
    }
    WriteTables({}, u"40000"_s);
    boxes.Expect(u"溢出"_s);
    RunHandler([] { Windows().Show(Window, nullptr); });
    Settle();
    EXPECT_EQ(Windows().Find(Window), nullptr);
    EXPECT_TRUE(Session::WindowSlotFree);
}

TEST_F(ClearingWindow, NamesAreReadWhenTheyAreNeededAndTrimmed)
{
    WriteTables({u"收银清单|\"  Sal_List \""_s});
    Open(Window);
    Press(Qt::Key_Space);
    boxes.ExpectDestroying(Question, true);
    boxes.Expect(Done);
    Submit();
    EXPECT_EQ(TakeStatements(), QStringList{u"DELETE FROM Sal_List"_s});

    WriteTables({u"收银清单|Fee_List"_s}); // changed while the window is open
    boxes.ExpectDestroying(Question, true);
    boxes.Expect(Done);
    Submit();
    EXPECT_EQ(TakeStatements(), QStringList{u"DELETE FROM Fee_List"_s});
}

TEST_F(ClearingWindow, ALineWithoutATableNameFailsAndWhatWasClearedStaysCleared)
{
    WriteTables({u"收银清单|Sal_List"_s, u"空的|"_s, u"客户预支|CustDebit"_s});
    Open(Window);
    Press(Qt::Key_A, Qt::AltModifier);
    EXPECT_EQ(Ticks(), u"111"_s);
    boxes.ExpectDestroying(Question, true);
    boxes.ExpectContaining(u"SQL syntax"_s);
    Submit();
    EXPECT_EQ(TakeStatements(), (QStringList{u"DELETE FROM Sal_List"_s, u"DELETE FROM "_s}));
    EXPECT_EQ(Left(), u"0 1 3"_s);
    EXPECT_EQ(Windows().Find(u"frmScroll"_s), nullptr) << "it does not stay behind the words";
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);
    EXPECT_NE(Windows().Find(Window), nullptr);
}

TEST_F(ClearingWindow, ATableThatIsNotThereIsToldInTheServersWords)
{
    WriteTables({u"收银清单|Sal_List"_s, u"没有的|Nirgends"_s, u"引号|Fee_List'"_s});
    Open(Window);
    Lines()->item(1)->setCheckState(Qt::Checked);
    boxes.ExpectDestroying(Question, true);
    boxes.ExpectContaining(u"Nirgends' doesn't exist"_s);
    Submit();
    Lines()->item(1)->setCheckState(Qt::Unchecked);
    Lines()->item(2)->setCheckState(Qt::Checked);
    boxes.ExpectDestroying(Question, true);
    boxes.ExpectContaining(u"SQL syntax"_s);
    Submit();
    EXPECT_EQ(Left(), u"2 1 3"_s);
}

TEST_F(ClearingWindow, EachStatementThatFailsEndsItWithoutALogRowAndWithoutTheLastWords)
{
    struct Case {
        int statement;
        Refusal how;
        QString words;
        QString left;
    };
    const std::vector<Case> cases{
        {1, Refusal::Signalled, u"演练故障"_s, u"2 1 3"_s},
        {2, Refusal::MissingTable, u"doesn't exist"_s, u"0 1 3"_s},
        {2, Refusal::Signalled, u"演练故障"_s, u"0 1 3"_s},
        {3, Refusal::Signalled, u"演练故障"_s, u"0 0 3"_s},
    };
    OpenThree();
    Press(Qt::Key_A, Qt::AltModifier);
    for (const Case& each : cases) {
        Db().Run(
            u"DELETE FROM Sal_List; DELETE FROM Fee_List; INSERT INTO Sal_List (SalNo) VALUES ('1'),('2');"
            "INSERT INTO Fee_List (FeeNo) VALUES ('1')"_s);
        FailStatement(each.statement, each.how);
        boxes.ExpectDestroying(Question, true);
        boxes.ExpectContaining(each.words);
        boxes.WhileOpen([] { EXPECT_EQ(Windows().Find(u"frmScroll"_s), nullptr); });
        Submit();
        EXPECT_EQ(Left(), each.left) << each.statement;
        EXPECT_FALSE(Session::WindowSlotFree) << "this window is still open";
    }
    FailStatement(1, Refusal::LostLink);
    boxes.ExpectDestroying(Question, true);
    boxes.ExpectContaining(u"erver"_s);
    Submit();
    EXPECT_EQ(Left(), u"0 0 3"_s);
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);
    EXPECT_FALSE(boxes.Seen().contains(Done));
}

TEST_F(ClearingWindow, TheProgressTellsWhatIsBeingClearedAndMovesOnEveryLine)
{
    OpenThree();
    Lines()->item(0)->setCheckState(Qt::Checked);
    Lines()->item(2)->setCheckState(Qt::Checked);
    QStringList seen;
    WatchStatements([&seen](const QString& statement) { seen << statement + u" : "_s + Progress(); });
    boxes.ExpectDestroying(Question, true);
    boxes.WhileOpen([] { EXPECT_EQ(Windows().Find(u"frmScroll"_s), nullptr) << "asked before it shows"; });
    boxes.Expect(Done);
    Submit();
    EXPECT_EQ(seen, (QStringList{u"DELETE FROM Sal_List : 正在清空收银清单中的数据 0/3"_s,
                                 u"DELETE FROM CustDebit : 正在清空客户预支中的数据 2/3"_s}));
}

TEST_F(ClearingWindow, TheProgressIsPaintedBeforeEachTableIsCleared)
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
    OpenThree();
    Press(Qt::Key_A, Qt::AltModifier);
    QList<int> paints;
    WatchStatements([&](const QString&) {
        QWidget* label = Windows().Find(u"frmScroll"_s)->Widget()->findChild<QLabel*>(u"lbl01"_s);
        if (paints.isEmpty())
            label->installEventFilter(&painter);
        EXPECT_TRUE(label->window()->windowHandle()->isExposed());
        paints << painter.paints;
    });
    boxes.ExpectDestroying(Question, true);
    boxes.Expect(Done);
    Submit();
    ASSERT_EQ(paints.size(), 3);
    EXPECT_GT(paints[1], paints[0]);
    EXPECT_GT(paints[2], paints[1]);
}

TEST_F(ClearingWindow, KeysPressedMeanwhileStartNothing)
{
    OpenThree();
    Press(Qt::Key_A, Qt::AltModifier);
    QStringList sent;
    WatchStatements([&](const QString& statement) {
        sent << statement;
        // Delivered at once, past the queue that holds keys back: the windows below are blocked as well.
        for (const QString& name : {Window, u"frmScroll"_s}) {
            QWindow* window = Windows().Find(name)->Widget()->windowHandle();
            for (const Qt::Key key : {Qt::Key_S, Qt::Key_C, Qt::Key_A})
                qt_handleKeyEvent(window, QEvent::KeyPress, key, Qt::AltModifier, QString(), false, 1);
            qt_handleKeyEvent(window, QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, u" "_s, false, 1);
        }
    });
    boxes.ExpectDestroying(Question, true);
    boxes.Expect(Done);
    Submit();
    EXPECT_EQ(sent, (QStringList{u"DELETE FROM Sal_List"_s, u"DELETE FROM Fee_List"_s,
                                 u"DELETE FROM CustDebit"_s}));
    EXPECT_EQ(boxes.Seen(), (QStringList{Question, Done}));
    EXPECT_EQ(Ticks(), u"111"_s);
    EXPECT_NE(Windows().Find(Window), nullptr);
}

TEST_F(ClearingWindow, AllTicksAndUnticksEveryLine)
{
    OpenThree();
    Press(Qt::Key_Return);
    EXPECT_EQ(FocusName(), u"chkAll"_s);
    Press(Qt::Key_Space);
    EXPECT_EQ(Ticks(), u"111"_s);
    Lines()->item(1)->setCheckState(Qt::Unchecked);
    EXPECT_EQ(Ticks(), u"101"_s);
    EXPECT_TRUE(Find<QCheckBox>(Window, u"chkAll"_s)->isChecked());
    Press(Qt::Key_Space);
    EXPECT_EQ(Ticks(), u"000"_s);
    Press(Qt::Key_A, Qt::AltModifier); // from anywhere
    EXPECT_EQ(Ticks(), u"111"_s);
}

TEST_F(ClearingWindow, EnterAndTheArrowsWalkAndNeverClear)
{
    OpenThree();
    Press(Qt::Key_Down);
    Press(Qt::Key_Space);
    EXPECT_EQ(Ticks(), u"010"_s);
    for (const QString& control : {u"chkAll"_s, u"lstTable"_s, u"chkAll"_s}) {
        Press(Qt::Key_Return);
        EXPECT_EQ(FocusName(), control);
    }
    Press(Qt::Key_Down);
    Press(Qt::Key_Up);
    EXPECT_EQ(FocusName(), u"lstTable"_s);
    EXPECT_EQ(TakeStatements(), QStringList());
}

TEST_F(ClearingWindow, TheInstallationsFileListsTablesThatAreThereAndClearsThemAll)
{
    ASSERT_TRUE(
        QFile::copy(SourcePath(u"packaging/files/Data/Table.ini"_s), ProgramFolder() + u"/Data/Table.ini"_s));
    Open(Window);
    EXPECT_EQ(Lines()->count(), 14);
    Press(Qt::Key_A, Qt::AltModifier);
    boxes.ExpectDestroying(Question, true);
    boxes.Expect(Done);
    Submit();
    const QStringList statements = TakeStatements();
    EXPECT_EQ(statements.size(), 14);
    for (const QString& table :
         {u"PRD_List"_s, u"EStore_List"_s, u"Sal_List"_s, u"Sal_List_B"_s, u"Foregift_RTN"_s, u"Pack_List"_s,
          u"DFN_Pack_B"_s, u"CheckOut"_s, u"CheckOut_B"_s, u"CustDebit"_s, u"Fee_List"_s, u"Count_Bill"_s,
          u"ErrInfo"_s, u"Cust_List"_s}) {
        EXPECT_EQ(statements.count(u"DELETE FROM "_s + table), 1) << table.toStdString();
        EXPECT_EQ(Count(table), 0) << table.toStdString();
    }
    EXPECT_EQ(Count(u"User_List"_s), 1);
    EXPECT_EQ(Count(u"User_Menu"_s), MenuCatalogue().size());
    EXPECT_EQ(Count(u"DFN_Pack"_s), 1);
}

TEST_F(ClearingWindow, TakesTheSlotAndFreesItOnClosing)
{
    OpenThree();
    EXPECT_FALSE(Session::WindowSlotFree);
    boxes.ExpectDestroying(Question, true);
    boxes.Expect(Done);
    Submit();
    EXPECT_FALSE(Session::WindowSlotFree) << "the progress does not free it";
    Press(Qt::Key_C, Qt::AltModifier);
    EXPECT_TRUE(Session::WindowSlotFree);
}

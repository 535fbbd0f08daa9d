#include "core/base/RunTimeError.h"
#include "core/common/Lookups.h"
#include "core/session/Session.h"
#include "masterdata/frmStore.h"
#include "tests/support/WindowTest.h"

#include <QListWidget>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString ListStatement = u"SELECT Store FROM Store"_s;

QString LookUpOf(const QString& store)
{
    return u"SELECT Store FROM Store WHERE Store='%1'"_s.arg(store);
}
QString InsertOf(const QString& store)
{
    return u"INSERT INTO Store (Store) VALUES ('%1')"_s.arg(store);
}
QString DeleteOf(const QString& store)
{
    return u"DELETE FROM Store WHERE Store='%1'"_s.arg(store);
}

class StoreWindow : public WindowTest {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        Windows().Register(u"frmStore"_s, [](QWidget* owner) { return new frmStore(owner); });
    }

    void OpenWith(const QStringList& stores)
    {
        for (const QString& store : stores)
            Db().Run(InsertOf(store));
        Open(u"frmStore"_s);
        EXPECT_EQ(TakeStatements(), QStringList{ListStatement});
    }

    QListWidget* List() { return Find<QListWidget>(u"frmStore"_s, u"lstStore"_s); }
    QStringList Listed()
    {
        QStringList stores;
        for (int row = 0; row < List()->count(); ++row)
            stores << List()->item(row)->text();
        return stores;
    }
    QStringList Stored()
    {
        QStringList stores;
        for (const QStringList& row : Db().Rows(ListStatement))
            stores << row[0];
        return stores;
    }
    void ClickRow(int row)
    {
        QTest::mouseClick(List()->viewport(), Qt::LeftButton, Qt::NoModifier,
                          List()->visualItemRect(List()->item(row)).center());
        Settle();
    }
    void ClickDelete() { Click(Find<QPushButton>(u"frmStore"_s, u"cmdDel"_s)); }
    QString Typed() { return TextOf(u"frmStore"_s, u"txtStore"_s); }

    void ExpectLogged(const QString& description)
    {
        EXPECT_EQ(Db().Rows(u"SELECT ErrUserName,ErrDescription,ErrSource,ErrDate,ErrTime FROM ErrInfo"_s),
                  (std::vector<QStringList>{
                      {u"管理员"_s, description, u"保存仓位信息"_s, u"2026-03-09"_s, u"10:00:00"_s}}));
    }
};

} // namespace

TEST_F(StoreWindow, OpensWithTheStoresListedAndTheFocusInTheField)
{
    OpenWith({u"A区"_s, u"B区"_s});
    EXPECT_EQ(Listed(), (QStringList{u"A区"_s, u"B区"_s}));
    EXPECT_EQ(FocusName(), u"txtStore"_s);
    EXPECT_EQ(Windows().Find(u"frmStore"_s)->Widget()->windowTitle(), u"仓位管理"_s);
}

TEST_F(StoreWindow, EnterAddsTheTrimmedNameAndIsReadyForTheNext)
{
    OpenWith({u"A区"_s});
    Enter(u"txtStore"_s, u" B区 "_s);
    EXPECT_EQ(TakeStatements(), (QStringList{LookUpOf(u"B区"_s), InsertOf(u"B区"_s), ListStatement}));
    EXPECT_EQ(Stored(), (QStringList{u"A区"_s, u"B区"_s}));
    EXPECT_EQ(Listed(), (QStringList{u"A区"_s, u"B区"_s}));
    EXPECT_EQ(Typed(), QString());
    Enter(u"txtStore"_s, u"C区"_s);
    EXPECT_EQ(Count(u"Store"_s), 3);
}

TEST_F(StoreWindow, TheSaveButtonAddsTooByMouseAndByKey)
{
    OpenWith({});
    Type(u"A区"_s);
    Click(Find<QPushButton>(u"frmStore"_s, u"cmdSubmit"_s));
    EXPECT_EQ(FocusName(), u"txtStore"_s);
    Type(u"B区"_s);
    Press(Qt::Key_S, Qt::AltModifier);
    Type(u"C区"_s);
    Press(Qt::Key_Tab);
    EXPECT_EQ(FocusName(), u"lstStore"_s);
    Press(Qt::Key_Tab);
    EXPECT_EQ(FocusName(), u"cmdSubmit"_s);
    Press(Qt::Key_Return);
    EXPECT_EQ(Stored(), (QStringList{u"A区"_s, u"B区"_s, u"C区"_s}));
}

TEST_F(StoreWindow, AnEmptyNameDoesNothing)
{
    OpenWith({u"A区"_s});
    Press(Qt::Key_Return);
    Enter(u"txtStore"_s, u"   "_s);
    EXPECT_EQ(TakeStatements(), QStringList());
    EXPECT_EQ(Count(u"Store"_s), 1);
}

TEST_F(StoreWindow, AStoreThatDiffersInCaseOnlyIsTheSame)
{
    OpenWith({u"a1"_s});
    boxes.Expect(u"仓位重复！"_s);
    Enter(u"txtStore"_s, u"A1"_s);
    EXPECT_EQ(TakeStatements(), QStringList{LookUpOf(u"A1"_s)});
    EXPECT_EQ(Stored(), QStringList{u"a1"_s});
    EXPECT_EQ(Typed(), u"A1"_s);
    EXPECT_EQ(FocusName(), u"txtStore"_s);
    Enter(u"txtStore"_s, u"Ａ１"_s); // full-width letters are others
    EXPECT_EQ(Count(u"Store"_s), 2);
}

TEST_F(StoreWindow, TheChosenStoresAreDeletedFromFirstToLastWithoutAQuestion)
{
    OpenWith({u"A区"_s, u"B区"_s, u"C区"_s, u"D区"_s});
    ClickRow(3);
    ClickRow(0);
    ClickRow(2);
    ClickRow(2); // a second click takes it back
    ClickDelete();
    EXPECT_EQ(TakeStatements(), (QStringList{DeleteOf(u"A区"_s), DeleteOf(u"D区"_s), ListStatement}));
    EXPECT_EQ(Stored(), (QStringList{u"B区"_s, u"C区"_s}));
    EXPECT_EQ(Listed(), (QStringList{u"B区"_s, u"C区"_s}));
}

TEST_F(StoreWindow, WithNoStoreChosenDeleteDoesNothing)
{
    OpenWith({u"A区"_s});
    ClickDelete();
    Press(Qt::Key_D, Qt::AltModifier);
    EXPECT_EQ(TakeStatements(), QStringList());
    ClickRow(0);
    ClickRow(0);
    Press(Qt::Key_D, Qt::AltModifier);
    EXPECT_EQ(TakeStatements(), QStringList());
    EXPECT_EQ(Stored(), QStringList{u"A区"_s});
}

TEST_F(StoreWindow, StoresAreChosenAndDeletedByKeysAlone)
{
    OpenWith({u"A区"_s, u"B区"_s, u"C区"_s});
    Press(Qt::Key_Down);
    EXPECT_EQ(FocusName(), u"lstStore"_s);
    Press(Qt::Key_Up); // from the first row back to the field
    EXPECT_EQ(FocusName(), u"txtStore"_s);
    Press(Qt::Key_Tab);
    EXPECT_EQ(FocusName(), u"lstStore"_s);
    Press(Qt::Key_Space);
    Press(Qt::Key_Down);
    Press(Qt::Key_Down);
    Press(Qt::Key_Space, Qt::ControlModifier);
    Press(Qt::Key_Up); // chooses nothing, and stays in the list
    EXPECT_EQ(FocusName(), u"lstStore"_s);
    Press(Qt::Key_Return); // in the list Enter does nothing
    Press(Qt::Key_Tab);
    Press(Qt::Key_Tab);
    EXPECT_EQ(FocusName(), u"cmdDel"_s);
    Press(Qt::Key_Return);
    EXPECT_EQ(TakeStatements(), (QStringList{DeleteOf(u"A区"_s), DeleteOf(u"C区"_s), ListStatement}));
    EXPECT_EQ(Stored(), QStringList{u"B区"_s});
}

TEST_F(StoreWindow, ADeletedStoreStaysOnItsLotsAndIsRefusedOnNewEntriesOnly)
{
    Db().Run(u"INSERT INTO PRD_List (ID,PRDNo,Store) VALUES ('20260309001','A-001','A区')"_s);
    OpenWith({u"A区"_s});
    EXPECT_TRUE(StoreExists(u"A区"_s));
    ClickRow(0);
    ClickDelete();
    EXPECT_EQ(Value(u"SELECT Store FROM PRD_List"_s), u"A区"_s);
    EXPECT_FALSE(StoreExists(u"A区"_s));
}

TEST_F(StoreWindow, EachStatementOfASaveThatFailsIsShownAndEndsIt)
{
    struct Case {
        int statement;
        Refusal how;
        QString words;
        QStringList stored;
        QStringList listed;
        bool isLogged;
    };
    const QStringList before{u"A区"_s};
    const std::vector<Case> cases{
        {1, Refusal::MissingTable, u"doesn't exist"_s, before, before, false}, // is it there already
        {2, Refusal::Signalled, u"演练故障"_s, before, before, true},          // the insert
        {3, Refusal::MissingTable, u"doesn't exist"_s, {u"A区"_s, u"B区"_s}, {}, false}, // the list
    };
    OpenWith(before);
    for (const Case& each : cases) {
        Find(u"frmStore"_s, u"txtStore"_s)->setFocus();
        Press(Qt::Key_A, Qt::ControlModifier);
        Type(u"B区"_s);
        FailStatement(each.statement, each.how);
        boxes.ExpectContaining(each.words);
        Press(Qt::Key_Return);
        TakeStatements();
        EXPECT_EQ(Stored(), each.stored);
        EXPECT_EQ(Listed(), each.listed);
        EXPECT_EQ(Typed(), u"B区"_s);
        EXPECT_EQ(FocusName(), u"txtStore"_s);
        if (each.isLogged)
            ExpectLogged(u"演练故障"_s);
        else
            EXPECT_EQ(Count(u"ErrInfo"_s), 0);
        Db().Run(u"DELETE FROM ErrInfo"_s);
    }
}

TEST_F(StoreWindow, ADeleteThatFailsHalfWayLeavesWhatRanAndTheListAsItWas)
{
    OpenWith({u"A区"_s, u"B区"_s, u"C区"_s});
    for (int row : {0, 1, 2})
        ClickRow(row);
    FailStatement(2, Refusal::Signalled);
    boxes.Expect(u"演练故障"_s);
    ClickDelete();
    EXPECT_EQ(TakeStatements(), (QStringList{DeleteOf(u"A区"_s), DeleteOf(u"B区"_s)}));
    EXPECT_EQ(Stored(), (QStringList{u"B区"_s, u"C区"_s}));
    EXPECT_EQ(Listed(), (QStringList{u"A区"_s, u"B区"_s, u"C区"_s}));
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);

    Press(Qt::Key_D, Qt::AltModifier); // the choice still stands
    EXPECT_EQ(Stored(), QStringList());
    EXPECT_EQ(Listed(), QStringList());
}

TEST_F(StoreWindow, ALostConnectionSavesNothingAndLosesNothingTyped)
{
    OpenWith({});
    Type(u"A区"_s);
    FailStatement(1, Refusal::LostLink);
    boxes.ExpectContaining(u"erver"_s); // "Server has gone away", "Lost connection to server"
    Press(Qt::Key_Return);
    EXPECT_EQ(Stored(), QStringList());
    EXPECT_EQ(Typed(), u"A区"_s);
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);
}

TEST_F(StoreWindow, AStoreTakenByAnotherDeskBetweenTheTestAndTheInsertIsRefusedByTheKey)
{
    OpenWith({});
    Type(u"A区"_s);
    Db().Run(
        u"CREATE TRIGGER sabotage BEFORE INSERT ON Store FOR EACH ROW SIGNAL SQLSTATE '23000' SET MESSAGE_TEXT='Duplicate entry'"_s);
    boxes.ExpectContaining(u"Duplicate entry"_s);
    Press(Qt::Key_Return);
    EXPECT_EQ(Stored(), QStringList());
    EXPECT_EQ(Typed(), u"A区"_s);
}

TEST_F(StoreWindow, QuoteBackslashLongTextAndHugeNumberLoseNothing)
{
    OpenWith({});
    for (const QString& text : {u"A'B"_s, u"A\\"_s}) {
        Press(Qt::Key_A, Qt::ControlModifier);
        Type(text);
        boxes.ExpectContaining(u"SQL syntax"_s);
        Press(Qt::Key_Return);
        EXPECT_EQ(Typed(), text);
        EXPECT_EQ(Stored(), QStringList());
    }
    Press(Qt::Key_A, Qt::ControlModifier);
    Enter(u"txtStore"_s, u"A\\B"_s);
    Enter(u"txtStore"_s, QString(80, u'9'));
    EXPECT_EQ(Count(u"Store"_s, u"Store='AB'"_s), 1);
    EXPECT_EQ(Count(u"Store"_s, u"Store='%1'"_s.arg(QString(60, u'9'))), 1);
    EXPECT_EQ(Count(u"Store"_s), 2);
}

TEST_F(StoreWindow, AStoreWithAQuoteCannotBeDeletedHere)
{
    Db().Run(u"INSERT INTO Store VALUES ('A''B')"_s);
    OpenWith({});
    ClickRow(0);
    boxes.ExpectContaining(u"SQL syntax"_s);
    ClickDelete();
    EXPECT_EQ(Stored(), QStringList{u"A'B"_s});
}

TEST_F(StoreWindow, ALoadThatFailsLeavesNoWindow)
{
    FailStatement(1, Refusal::MissingTable);
    EXPECT_THROW(Windows().Show(u"frmStore"_s, nullptr), RunTimeError);
    Settle();
    EXPECT_EQ(Windows().Find(u"frmStore"_s), nullptr);
    EXPECT_TRUE(Session::WindowSlotFree);
}

TEST_F(StoreWindow, TakesTheSlotAndFreesItOnClosing)
{
    OpenWith({});
    EXPECT_FALSE(Session::WindowSlotFree);
    Press(Qt::Key_C, Qt::AltModifier);
    EXPECT_TRUE(Session::WindowSlotFree);
    EXPECT_EQ(Windows().Find(u"frmStore"_s), nullptr);
}

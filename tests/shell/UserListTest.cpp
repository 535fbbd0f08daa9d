#include "app/StartProgram.h"
#include "core/common/Lookups.h"
#include "core/gateway/DataGateway.h"
#include "core/session/Session.h"
#include "tests/support/WindowTest.h"

#include <QApplication>
#include <QCheckBox>
#include <QKeyEvent>

using namespace Qt::StringLiterals;

namespace {

const QString Window = u"frmUserList"_s;
const QString LookUp =
    u"SELECT UserName,UserPWD,UserIP,bolIP,bolSearch,bolEdit FROM User_List WHERE UserID='%1'"_s;
const QString Insert =
    u"INSERT INTO User_List (UserID,UserName,UserPWD,UserIP,bolIP,bolSearch,bolEdit) VALUES (%1)"_s;
const QString AllUsers =
    u"SELECT UserID,UserName,UserPWD,UserIP,bolIP,bolSearch,bolEdit FROM User_List ORDER BY UserID"_s;
const QString ListRows = u"SELECT UserID,UserName,UserPWD,UserIP,bolIP FROM User_List Order By UserID"_s;
const QStringList Fields{u"txtUserID"_s, u"txtUserName"_s, u"txtUserPWD"_s, u"txtUserIP"_s};
const QStringList Checks{u"chkIP"_s, u"chkSearch"_s, u"chkEdit"_s};
const QStringList Manager{u"01"_s, u"管理员"_s, u"1"_s, QString(), u"0"_s, u"1"_s, u"1"_s};

class UserWindow : public WindowTest {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        RegisterWindows();
        Open(Window);
        TakeStatements();
    }

    void AddUser(const QString& values) { Db().Run(u"INSERT INTO User_List VALUES (%1)"_s.arg(values)); }

    QString Shown(const QString& field) { return TextOf(Window, field); }
    QCheckBox* Box(const QString& name) { return Find<QCheckBox>(Window, name); }
    /// The texts of the fields, then the check boxes as flags.
    QStringList ShownUser()
    {
        QStringList shown;
        for (const QString& field : Fields)
            shown << Shown(field);
        for (const QString& check : Checks)
            shown << (Box(check)->isChecked() ? u"1"_s : u"0"_s);
        return shown;
    }
    void Replace(const QString& field, const QString& text)
    {
        Find(Window, field)->setFocus();
        Press(Qt::Key_A, Qt::ControlModifier);
        Type(text);
    }
    void Paste(const QString& field, const QString& text)
    {
        auto* box = Find(Window, field);
        box->setFocus();
        box->selectAll();
        box->insert(text);
        Settle();
    }
    void FillIn(const QString& id, const QString& name, const QString& password)
    {
        Replace(u"txtUserID"_s, id);
        Replace(u"txtUserName"_s, name);
        Replace(u"txtUserPWD"_s, password);
        TakeStatements();
    }
    void Submit() { Press(Qt::Key_S, Qt::AltModifier); }
    void OpenListBehind()
    {
        Session::CurrentMenuKey = u"UserList"_s;
        Windows().Load(u"frmDataList"_s, nullptr);
        TakeStatements();
    }
    void ExpectLogged(const QString& description)
    {
        EXPECT_EQ(Db().Rows(u"SELECT ErrUserName,ErrDescription,ErrSource,ErrDate,ErrTime FROM ErrInfo"_s),
                  (std::vector<QStringList>{
                      {u"管理员"_s, description, u"新增或修改用户信息"_s, u"2026-03-09"_s, u"10:00:00"_s}}));
    }

    const QStringList Blank{QString(), QString(), QString(), QString(), u"0"_s, u"0"_s, u"0"_s};
};

} // namespace

TEST_F(UserWindow, EnterWalksTheFieldsAndTheTicksAndTheLastOneSaves)
{
    OpenListBehind();
    EXPECT_EQ(Windows().Find(Window)->Widget()->windowTitle(), u"用户信息"_s);
    EXPECT_EQ(ShownUser(), Blank);
    Enter(u"txtUserID"_s, u"05"_s);
    EXPECT_EQ(TakeStatements(), (QStringList{LookUp.arg(u"0"_s), LookUp.arg(u"05"_s)}));
    Enter(u"txtUserName"_s, u" 小陈 "_s);
    Enter(u"txtUserPWD"_s, u"abc"_s);
    EXPECT_EQ(Find(Window, u"txtUserPWD"_s)->echoMode(), QLineEdit::Normal);
    Enter(u"txtUserIP"_s, u"192.168.0.7"_s);
    EXPECT_EQ(FocusName(), u"chkIP"_s);
    Press(Qt::Key_Space);
    Press(Qt::Key_Return);
    EXPECT_EQ(FocusName(), u"chkSearch"_s);
    Press(Qt::Key_Return);
    EXPECT_EQ(FocusName(), u"chkEdit"_s);
    Press(Qt::Key_Space);
    EXPECT_EQ(TakeStatements(), QStringList());
    Press(Qt::Key_Return);

    EXPECT_EQ(TakeStatements(), (QStringList{Insert.arg(u"'05','小陈','abc','192.168.0.7','1','0','1'"_s),
                                             LookUp.arg(QString()), ListRows}));
    EXPECT_EQ(Db().Rows(AllUsers),
              (std::vector<QStringList>{
                  Manager, {u"05"_s, u"小陈"_s, u"abc"_s, u"192.168.0.7"_s, u"1"_s, u"0"_s, u"1"_s}}));
    EXPECT_EQ(ShownUser(), Blank);
    EXPECT_EQ(FocusName(), u"txtUserID"_s);
    EXPECT_NE(Windows().Find(Window), nullptr) << "open for the next user";
    EXPECT_EQ(Count(u"User_Menu"_s, u"UserID='05'"_s), 0) << "a new user may do nothing yet";
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);
}

TEST_F(UserWindow, DownAndUpWalkTooAndDownDoesNotSave)
{
    const QStringList order = Fields + Checks;
    for (const QString& control : order) {
        EXPECT_EQ(FocusName(), control);
        Press(Qt::Key_Down);
    }
    for (qsizetype i = order.size() - 1; i >= 0; --i) {
        EXPECT_EQ(FocusName(), order[i]);
        Press(Qt::Key_Up);
    }
    EXPECT_EQ(TakeStatements(), QStringList());
}

TEST_F(UserWindow, TypingAKnownNumberFillsTheFormAndTurnsTheSaveIntoAnUpdate)
{
    AddUser(u"'05','小陈','abc','10.0.0.5','1','0','1'"_s);
    AddUser(u"'0','零号','z','','0','1','0'"_s);
    Type(u"0"_s);
    EXPECT_EQ(ShownUser(), (QStringList{u"0"_s, u"零号"_s, u"z"_s, QString(), u"0"_s, u"1"_s, u"0"_s}));
    Type(u"5"_s);
    EXPECT_EQ(ShownUser(),
              (QStringList{u"05"_s, u"小陈"_s, u"abc"_s, u"10.0.0.5"_s, u"1"_s, u"0"_s, u"1"_s}));
    Replace(u"txtUserPWD"_s, u"neu"_s);
    Box(u"chkSearch"_s)->setFocus();
    Press(Qt::Key_Space);
    TakeStatements();
    Submit();

    EXPECT_EQ(
        TakeStatements(),
        (QStringList{
            u"UPDATE User_List SET UserName='小陈',UserPWD='neu',UserIP='10.0.0.5',bolIP='1',bolSearch='1',bolEdit='1' WHERE UserID='05'"_s,
            LookUp.arg(QString())}));
    EXPECT_EQ(
        Db().Rows(AllUsers),
        (std::vector<QStringList>{{u"0"_s, u"零号"_s, u"z"_s, QString(), u"0"_s, u"1"_s, u"0"_s},
                                  Manager,
                                  {u"05"_s, u"小陈"_s, u"neu"_s, u"10.0.0.5"_s, u"1"_s, u"1"_s, u"1"_s}}));
    EXPECT_EQ(ShownUser(), Blank);
    EXPECT_EQ(FocusName(), u"txtUserID"_s);
}

TEST_F(UserWindow, TypingOnPastAKnownNumberClearsEverythingAndInsertsAnother)
{
    Type(u"01"_s);
    EXPECT_EQ(ShownUser(), Manager);
    Type(u"7"_s);
    EXPECT_EQ(ShownUser(), (QStringList{u"017"_s} + Blank.mid(1)));
    Replace(u"txtUserName"_s, u"甲"_s);
    Replace(u"txtUserPWD"_s, u"7"_s);
    TakeStatements();
    Submit();
    EXPECT_EQ(TakeStatements().value(0), Insert.arg(u"'017','甲','7','','0','0','0'"_s));
    EXPECT_EQ(Db().Rows(AllUsers)[0], Manager);
}

TEST_F(UserWindow, OpenedForEditingItShowsTheUser)
{
    Windows().Find(Window)->SetKey(u"01"_s);
    EXPECT_EQ(TakeStatements(), QStringList{LookUp.arg(u"01"_s)});
    EXPECT_EQ(ShownUser(), Manager);
}

TEST_F(UserWindow, TheNumberIsFoundWithoutRegardToCaseAndBlanksAndTheRowKeepsIts)
{
    AddUser(u"'ab','甲','1','','0','0','0'"_s);
    Type(u" AB "_s);
    EXPECT_EQ(Shown(u"txtUserID"_s), u" AB "_s);
    EXPECT_EQ(Shown(u"txtUserName"_s), u"甲"_s);
    Replace(u"txtUserName"_s, u"乙"_s);
    TakeStatements();
    Submit();
    EXPECT_TRUE(TakeStatements().value(0).endsWith(u" WHERE UserID='AB'"_s));
    EXPECT_EQ(Value(u"SELECT CONCAT(UserID,UserName) FROM User_List WHERE UserID='ab'"_s), u"ab乙"_s);
    EXPECT_EQ(Count(u"User_List"_s), 2);
}

TEST_F(UserWindow, AnEmptiedNumberIsLookedUpTooAndFindsAUserWithoutOne)
{
    Type(u"0"_s);
    Replace(u"txtUserName"_s, u"甲"_s);
    Find(Window, u"txtUserID"_s)->setFocus();
    TakeStatements();
    Press(Qt::Key_End);
    Press(Qt::Key_Backspace);
    EXPECT_EQ(TakeStatements(), QStringList{LookUp.arg(QString())});
    EXPECT_EQ(ShownUser(), Blank);

    AddUser(u"'','无号','9','','0','1','0'"_s);
    Type(u"x"_s);
    Press(Qt::Key_Backspace);
    EXPECT_EQ(Shown(u"txtUserName"_s), u"无号"_s);
    boxes.Expect(u"请填写用户编号！"_s);
    Submit();
    EXPECT_EQ(Shown(u"txtUserName"_s), u"无号"_s);
}

TEST_F(UserWindow, WhatIsMissingIsToldInOrderWithTheFocusThere)
{
    struct Case {
        QString field;
        QString message;
    };
    const std::vector<Case> cases{{u"txtUserID"_s, u"请填写用户编号！"_s},
                                  {u"txtUserName"_s, u"请填写用户姓名！"_s},
                                  {u"txtUserPWD"_s, u"请填写用户密码！"_s},
                                  {u"txtUserIP"_s, u"请填写用户IP！"_s}};
    for (std::size_t i = 0; i < cases.size(); ++i) {
        for (const QString& text : {QString(), u"  "_s}) {
            // The ones before it are filled in, those behind it are not.
            Replace(u"txtUserID"_s, u"x"_s);
            Paste(u"txtUserID"_s, i > 0 ? u"05"_s : text);
            for (std::size_t j = 1; j < i; ++j)
                Replace(cases[j].field, u"甲"_s);
            if (i > 0)
                Paste(cases[i].field, text);
            Box(u"chkIP"_s)->setChecked(true);
            Box(u"chkEdit"_s)->setFocus();
            TakeStatements();
            boxes.Expect(cases[i].message);
            Submit();
            EXPECT_EQ(FocusName(), cases[i].field);
            EXPECT_EQ(TakeStatements(), QStringList());
        }
    }
    EXPECT_EQ(Count(u"User_List"_s), 1);
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);
}

TEST_F(UserWindow, AnAddressWithoutTheLockIsKeptAndBindsNobody)
{
    FillIn(u"05"_s, u"小陈"_s, u"5"_s);
    Replace(u"txtUserIP"_s, u"10.9.9.9"_s);
    Submit();
    EXPECT_EQ(Value(u"SELECT UserIP FROM User_List WHERE UserID='05'"_s), u"10.9.9.9"_s);
    EXPECT_FALSE(UserMustMatchAddress(u"05"_s));
}

TEST_F(UserWindow, WhetherOthersBillsAreSeenAndAdjustedCountsAtOnce)
{
    AddUser(u"'05','小陈','5','','0','0','0'"_s);
    EXPECT_FALSE(UserSearchAll(u"05"_s));
    EXPECT_FALSE(UserMayEdit(u"05"_s));
    Type(u"05"_s);
    Box(u"chkSearch"_s)->setFocus();
    Press(Qt::Key_Space);
    Submit();
    EXPECT_TRUE(UserSearchAll(u"05"_s));
    EXPECT_FALSE(UserMayEdit(u"05"_s));

    Type(u"05"_s);
    Box(u"chkSearch"_s)->setFocus();
    Press(Qt::Key_Space);
    Press(Qt::Key_Return);
    Press(Qt::Key_Space);
    Press(Qt::Key_Return);
    EXPECT_FALSE(UserSearchAll(u"05"_s));
    EXPECT_TRUE(UserMayEdit(u"05"_s));
    EXPECT_FALSE(UserSearchAll(u"99"_s)) << "a user who is not there";
}

TEST_F(UserWindow, AUserRemovedMeanwhileIsUpdatedIntoNothing)
{
    AddUser(u"'05','小陈','5','','0','0','0'"_s);
    Type(u"05"_s);
    Db().Run(u"DELETE FROM User_List WHERE UserID='05'"_s);
    Submit();
    EXPECT_EQ(Db().Rows(AllUsers), (std::vector<QStringList>{Manager}));
    EXPECT_EQ(ShownUser(), Blank);
}

TEST_F(UserWindow, AUserAddedMeanwhileIsRefusedByTheServerAndNothingTypedIsLost)
{
    FillIn(u"05"_s, u"小陈"_s, u"5"_s);
    AddUser(u"'05','别人','1','','0','0','0'"_s);
    boxes.ExpectContaining(u"Duplicate entry"_s);
    Submit();
    EXPECT_EQ(ShownUser().mid(0, 3), (QStringList{u"05"_s, u"小陈"_s, u"5"_s}));
    EXPECT_EQ(Value(u"SELECT UserName FROM User_List WHERE UserID='05'"_s), u"别人"_s);
    EXPECT_EQ(Count(u"ErrInfo"_s), 0) << "the server's words carry quotes, which break their own row";
}

TEST_F(UserWindow, EachStatementOfTheSaveThatFailsLeavesWhatRanBeforeIt)
{
    struct Case {
        int statement;
        Refusal how;
        QString words;
        int rows;     ///< users then
        int logged;   ///< rows of ErrInfo
        QString name; ///< what the name field shows
    };
    const std::vector<Case> cases{
        {1, Refusal::Signalled, u"演练故障"_s, 1, 1, u"小陈"_s},
        {1, Refusal::MissingTable, u"doesn't exist"_s, 1, 0, u"小陈"_s},
        {2, Refusal::MissingTable, u"doesn't exist"_s, 2, 0, QString()}, // the look-up of the emptied number
        {3, Refusal::MissingTable, u"doesn't exist"_s, 2, 0, QString()}, // the list behind
    };
    OpenListBehind();
    for (const Case& each : cases) {
        Db().Run(u"DELETE FROM User_List WHERE UserID='05'; DELETE FROM ErrInfo"_s);
        FillIn(u"05"_s, u"小陈"_s, u"5"_s);
        FailStatement(each.statement, each.how);
        boxes.ExpectContaining(each.words);
        Submit();
        EXPECT_EQ(Count(u"User_List"_s), each.rows) << each.statement;
        EXPECT_EQ(Count(u"ErrInfo"_s), each.logged) << each.statement;
        EXPECT_EQ(Shown(u"txtUserName"_s), each.name) << each.statement;
        if (each.logged == 1)
            ExpectLogged(each.words);
        EXPECT_EQ(Count(u"User_Menu"_s, u"UserID<>'01'"_s), 0);
    }
}

TEST_F(UserWindow, AFailedUpdateIsShownAndLoggedAndTheOldRowStands)
{
    Type(u"01"_s);
    Replace(u"txtUserPWD"_s, u"neu"_s);
    FailStatement(1, Refusal::Signalled);
    boxes.Expect(u"演练故障"_s);
    Submit();
    EXPECT_EQ(Db().Rows(AllUsers), (std::vector<QStringList>{Manager}));
    ExpectLogged(u"演练故障"_s);
    EXPECT_EQ(Shown(u"txtUserPWD"_s), u"neu"_s);
    Submit();
    EXPECT_EQ(Value(u"SELECT UserPWD FROM User_List"_s), u"neu"_s) << "the next press saves";
}

TEST_F(UserWindow, ALostConnectionSavesNothingAndLosesNothingTyped)
{
    FillIn(u"05"_s, u"小陈"_s, u"5"_s);
    FailStatement(1, Refusal::LostLink);
    boxes.ExpectContaining(u"erver"_s); // "Server has gone away", "Lost connection to server"
    Submit();
    EXPECT_EQ(Count(u"User_List"_s), 1);
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);
    EXPECT_EQ(ShownUser().mid(0, 3), (QStringList{u"05"_s, u"小陈"_s, u"5"_s}));
}

TEST_F(UserWindow, AfterAFailedLookUpNothingOfTheUserBeforeGoesInUnderTheNewNumber)
{
    Type(u"01"_s);
    FailStatement(1, Refusal::MissingTable);
    boxes.ExpectContaining(u"doesn't exist"_s);
    Type(u"8"_s);
    boxes.Expect(u"请填写用户姓名！"_s);
    Submit();
    EXPECT_EQ(ShownUser().mid(0, 3), (QStringList{u"018"_s, QString(), QString()}));
    EXPECT_EQ(Count(u"User_List"_s), 1);

    // A new user, not an update of a missing one.
    Type(u"小陈"_s);
    Replace(u"txtUserPWD"_s, u"5"_s);
    Submit();
    EXPECT_EQ(Value(u"SELECT UserName FROM User_List WHERE UserID='018'"_s), u"小陈"_s);
}

TEST_F(UserWindow, AQuoteInTheNumberBreaksEveryStatementThatMentionsIt)
{
    Type(u"0"_s);
    boxes.ExpectContaining(u"SQL syntax"_s);
    Type(u"'"_s);
    Replace(u"txtUserName"_s, u"甲"_s);
    Replace(u"txtUserPWD"_s, u"1"_s);
    boxes.ExpectContaining(u"SQL syntax"_s);
    Submit();
    EXPECT_EQ(Shown(u"txtUserID"_s), u"0'"_s);
    EXPECT_EQ(Count(u"User_List"_s), 1);
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);
}

TEST_F(UserWindow, AQuoteOrABackslashInTheOtherFieldsDoesWhatItDoesToTheStatement)
{
    FillIn(u"05"_s, u"甲"_s, u"1"_s);
    for (const QString& field : Fields.mid(1)) {
        for (const QString& text : {u"O'Neil"_s, u"A\\"_s}) {
            Replace(field, text);
            boxes.ExpectContaining(u"error in your SQL syntax"_s);
            Submit();
            EXPECT_EQ(Shown(field), text);
            EXPECT_EQ(Shown(u"txtUserID"_s), u"05"_s);
        }
        Replace(field, u"A\\B"_s);
    }
    EXPECT_EQ(Count(u"User_List"_s), 1);
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);
    Submit();
    EXPECT_EQ(Db().Rows(AllUsers)[1],
              (QStringList{u"05"_s, u"AB"_s, u"AB"_s, u"AB"_s, u"0"_s, u"0"_s, u"0"_s}));
}

TEST_F(UserWindow, NumbersOfAnyWidthAndLettersAreTextLikeAnyOther)
{
    for (const QString& id : {u"１２"_s, u"x"_s, u"99999999999999999999"_s, u"-1"_s}) {
        FillIn(id, u"甲"_s, u"１２"_s);
        Submit();
        EXPECT_EQ(Count(u"User_List"_s, u"UserID='%1' AND UserPWD='１２'"_s.arg(id)), 1) << id.toStdString();
    }
}

TEST_F(UserWindow, NoMoreIsTakenThanTheColumnsHold)
{
    const QList<int> widths{30, 60, 60, 50};
    for (qsizetype i = 0; i < Fields.size(); ++i) {
        Paste(Fields[i], QString(400, u'１'));
        EXPECT_EQ(Shown(Fields[i]), QString(widths[i], u'１'));
    }
    Submit();
    EXPECT_EQ(
        Db().Rows(
            u"SELECT CHAR_LENGTH(UserID),CHAR_LENGTH(UserName),CHAR_LENGTH(UserPWD),CHAR_LENGTH(UserIP) FROM User_List WHERE UserID<>'01'"_s),
        (std::vector<QStringList>{{u"30"_s, u"60"_s, u"60"_s, u"50"_s}}));
}

TEST_F(UserWindow, AnEnterHeldDownSavesOnce)
{
    FillIn(u"05"_s, u"甲"_s, u"1"_s);
    Box(u"chkEdit"_s)->setFocus();
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, u"\r"_s, true);
    QApplication::sendEvent(Box(u"chkEdit"_s), &held);
    EXPECT_EQ(TakeStatements(), QStringList());
    Press(Qt::Key_Return);
    EXPECT_EQ(Count(u"User_List"_s), 2);
}

TEST_F(UserWindow, TakesTheSlotAndFreesItOnClosing)
{
    EXPECT_FALSE(Session::WindowSlotFree);
    Press(Qt::Key_C, Qt::AltModifier);
    EXPECT_TRUE(Session::WindowSlotFree);
    EXPECT_EQ(Windows().Find(Window), nullptr);
}

#include "core/base/RunTimeError.h"
#include "tests/core/LogonCase.h"

using namespace Qt::StringLiterals;

namespace {

class SessionOf : public LogonCase {
protected:
    void SetUp() override
    {
        LogonCase::SetUp();
        Gateway().OpenConnection(ProgramPath(u"\\Data\\Data.ini"_s));
        Session::CurrentUserID = u"01"_s;
        Session::CurrentUserName = u"管理员"_s;
        TakeStatements();
    }

    /// Logs the first user on through the real screen, at the stopped clock.
    void LogOn()
    {
        Open(u"frmLogon"_s);
        Type(u"管理员"_s);
        Press(Qt::Key_Return);
        Enter(u"txtUserPWD"_s, u"1"_s);
        EXPECT_TRUE(IsLoaded(u"frmMain"_s));
    }
};

} // namespace

TEST_F(SessionOf, AStartWritesItsRowAndReadsTheSettingsKept)
{
    Db().Run(u"UPDATE Sys_Define SET Control_Sale='1',CheckOutStyle='1'"_s);
    SetClock(u"2026-03-09 07:05:03"_s);
    StartSession();
    EXPECT_EQ(TakeStatements(),
              (QStringList{u"INSERT INTO User_Status (UserID,CheckID,LogDate,LogTime) VALUES "
                           "('01','070503','2026-03-09','07:05:03')"_s,
                           u"SELECT Control_Sale,CheckOutStyle FROM Sys_Define"_s}));
    EXPECT_EQ(Session::SessionCheckID, u"070503"_s);
    EXPECT_EQ(Session::SaleStockControl, u"1"_s);
    EXPECT_EQ(Session::CheckOutStyle, u"1"_s);
    EXPECT_EQ(Session::PaperSizeCode, 9);
}

TEST_F(SessionOf, TheCheckIdCountsTwentyFourHours)
{
    SetClock(u"2026-03-09 23:59:58"_s);
    StartSession();
    EXPECT_EQ(Session::SessionCheckID, u"235958"_s);
}

TEST_F(SessionOf, WithoutASettingsRowTheSettingsStayAsTheyWere)
{
    Db().Run(u"DELETE FROM Sys_Define"_s);
    Session::SaleStockControl = u"x"_s;
    StartSession();
    EXPECT_EQ(Session::SaleStockControl, u"x"_s);
}

TEST_F(SessionOf, SettingsAreThoseOfTheStart)
{
    StartSession();
    Db().Run(u"UPDATE Sys_Define SET Control_Sale='1'"_s);
    EXPECT_EQ(Session::SaleStockControl, u"0"_s);
}

TEST_F(SessionOf, TheLastUserIsRememberedOnAWorkstationOnly)
{
    const QString before = ReadFile(u"Config.ini"_s);
    for (const QString& flag : {u""_s, u"0"_s, u"2"_s}) {
        Session::ClientFlag = flag;
        StartSession();
        EXPECT_EQ(ReadFile(u"Config.ini"_s), before);
    }
    Session::ClientFlag = u"1"_s;
    StartSession();
    EXPECT_EQ(ReadFile(u"Config.ini"_s), QString(before).replace(u"UserName="_s, u"UserName=管理员"_s));
}

TEST_F(SessionOf, AProgramFolderThatCannotBeWrittenKeepsNoUserOut)
{
    Session::ClientFlag = u"1"_s;
    SetProgramDirectory(ProgramFolder() + u"/no/such/folder"_s);
    EXPECT_NO_THROW(StartSession());
    EXPECT_EQ(Sessions(), u"01 100000"_s);
    EXPECT_EQ(Session::PaperSizeCode, 9);
    EXPECT_EQ(Session::SaleStockControl, u"0"_s);
}

TEST_F(SessionOf, ThePaperCodeIsTheSystemFiles)
{
    const struct {
        QString line;
        int code;
    } cases[] = {{u"PaperSize=11"_s, 11}, {u"PaperSize="_s, 0},     {QString(), 0},
                 {u"PaperSize=abc"_s, 0}, {u"PaperSize=8.5"_s, 8},  {u"PaperSize=9.5"_s, 10},
                 {u"PaperSize=-3"_s, -3}, {u"PaperSize=12 x"_s, 12}};
    for (const auto& c : cases) {
        WriteProgramFile(u"Config.ini"_s, u"[Define]\n"_s + c.line + u'\n');
        StartSession();
        EXPECT_EQ(Session::PaperSizeCode, c.code) << c.line.toStdString();
    }
    RemoveFile(u"Config.ini"_s);
    StartSession();
    EXPECT_EQ(Session::PaperSizeCode, 9);
    WriteProgramFile(u"Config.ini"_s, u"[Define]\nPaperSize=40000\n"_s);
    EXPECT_THROW(StartSession(), OverflowError);
}

TEST_F(SessionOf, APaperCodeThatOverflowsStopsTheMainWindowsLoad)
{
    WriteProgramFile(u"Config.ini"_s, u"[Define]\nPaperSize=40000\n"_s);
    Open(u"frmLogon"_s);
    Type(u"管理员"_s);
    Press(Qt::Key_Return);
    boxes.Expect(u"溢出"_s);
    Enter(u"txtUserPWD"_s, u"1"_s);
    EXPECT_FALSE(IsLoaded(u"frmMain"_s));
    EXPECT_FALSE(IsLoaded(u"frmSpash"_s));
}

TEST_F(SessionOf, ASessionOwnsItsUserWhileTheRowCarriesItsMark)
{
    StartSession();
    TakeStatements();
    EXPECT_TRUE(CheckSession());
    EXPECT_EQ(TakeStatements(), QStringList{u"SELECT CheckID FROM User_Status WHERE UserID='01'"_s});
    Db().Run(u"UPDATE User_Status SET CheckID='100001'"_s);
    EXPECT_FALSE(CheckSession());
    Db().Run(u"DELETE FROM User_Status"_s);
    EXPECT_FALSE(CheckSession());
    Db().Run(u"INSERT INTO User_Status VALUES ('02','100000','',''),('01','ab','','')"_s);
    EXPECT_FALSE(CheckSession()) << "another user's mark";
    Session::SessionCheckID = u"AB"_s;
    EXPECT_TRUE(CheckSession()) << "the case does not count";
}

TEST_F(SessionOf, OfTwoRowsTheServersFirstCounts)
{
    StartSession();
    Db().Run(u"INSERT INTO User_Status VALUES ('01','110000','2026-03-09','11:00:00')"_s);
    EXPECT_EQ(CheckSession(),
              Db().Rows(u"SELECT CheckID FROM User_Status WHERE UserID='01'"_s)[0][0] == u"100000");
}

TEST_F(SessionOf, AnEndDeletesTheOwnRowOnlyAndClosesTheConnection)
{
    StartSession();
    Db().Run(
        u"INSERT INTO User_Status VALUES ('02','100000','2026-03-09','10:00:00'),('01','110000','2026-03-09','11:00:00')"_s);
    TakeStatements();
    EndSession();
    EXPECT_EQ(TakeStatements(),
              QStringList{u"DELETE FROM User_Status WHERE UserID='01' And CheckID='100000'"_s});
    EXPECT_EQ(Sessions(), u"02 100000,01 110000"_s);
    EXPECT_THROW(Gateway().SelectRows(u"User_List"_s, u"UserID"_s, QString()), DatabaseError);
}

TEST_F(SessionOf, AnEndThatFailsClosesTheConnectionAllTheSame)
{
    StartSession();
    FailStatement(1, Refusal::Signalled);
    EXPECT_THROW(EndSession(), DatabaseError);
    EXPECT_EQ(Count(u"User_Status"_s), 1);
    EXPECT_THROW(Gateway().SelectRows(u"User_List"_s, u"UserID"_s, QString()), DatabaseError);
}

TEST_F(SessionOf, ALaterLogonElsewhereDisplacesTheEarlierSession)
{
    LogOn();
    const QStringList logon = TakeStatements();
    EXPECT_TRUE(CheckSession());

    // The same user, five minutes later, on another workstation: the statements of a logon, over a
    // connection of its own.
    for (const QString& statement : logon) {
        if (!statement.startsWith(u"SELECT"_s))
            Db().Run(QString(statement)
                         .replace(u"'100000'"_s, u"'100500'"_s)
                         .replace(u"10:00:00"_s, u"10:05:00"_s));
    }
    EXPECT_EQ(Sessions(), u"01 100500"_s);
    EXPECT_FALSE(CheckSession());
    EXPECT_TRUE(IsLoaded(u"frmMain"_s)) << "nothing closes by itself";
    Gateway().UpdateRows(u"Sys_Define"_s, u"CompName='x'"_s, QString());

    EndSession();
    EXPECT_EQ(Sessions(), u"01 100500"_s) << "the displaced session deletes nothing";

    // Seen from the later one.
    Gateway().OpenConnection(Session::DataIniPath);
    Session::SessionCheckID = u"100500"_s;
    EXPECT_TRUE(CheckSession());
    EndSession();
    EXPECT_EQ(Count(u"User_Status"_s), 0);
}

TEST_F(SessionOf, TwoSessionsOfOneSecondDoNotDisplaceEachOther)
{
    LogOn();
    for (const QString& statement : TakeStatements()) {
        if (!statement.startsWith(u"SELECT"_s))
            Db().Run(statement);
    }
    EXPECT_EQ(Sessions(), u"01 100000"_s);
    EXPECT_TRUE(CheckSession());
}

TEST_F(SessionOf, ARowLeftByADeadSessionGoesWithTheNextLogon)
{
    LogOn();
    Gateway().CloseConnection();
    Windows().DropAll();
    Settle();
    SetClock(u"2026-03-09 11:00:00"_s);
    LogOn();
    EXPECT_EQ(Sessions(), u"01 110000"_s);
}

TEST_F(SessionOf, OnlyAWorkstationCanBeOutOfStep)
{
    Session::ServerDate = u"2026-03-08"_s;
    for (const QString& flag : {u""_s, u"0"_s}) {
        Session::ClientFlag = flag;
        EXPECT_FALSE(IsOutOfStepWithServer());
    }
    Session::ClientFlag = u"1"_s;
    EXPECT_TRUE(IsOutOfStepWithServer());
    Session::ServerDate = u"2026-03-09"_s;
    EXPECT_FALSE(IsOutOfStepWithServer());
    SetClock(u"2026-03-10 00:00:00"_s);
    EXPECT_TRUE(IsOutOfStepWithServer()) << "a till left open over midnight";
    Session::ServerDate = QString();
    EXPECT_TRUE(IsOutOfStepWithServer()) << "the date never arrived";
}

TEST_F(SessionOf, AResetIsHowAProcessStarts)
{
    StartSession();
    Session::CreditLeft = 5;
    Session::EditMode = Session::ConditionAll = true;
    Session::CurrentMenuKey = u"Sale"_s;
    Session::FeeLabelKey = u"L0"_s;
    Session::Reset();
    EXPECT_EQ(Session::SessionCheckID + Session::CurrentUserID + Session::CurrentUserName +
                  Session::CurrentMenuKey + Session::FeeLabelKey + Session::SaleStockControl +
                  Session::DataIniPath,
              QString());
    EXPECT_EQ(Session::PaperSizeCode, 0);
    EXPECT_EQ(Session::CreditLeft, 0);
    EXPECT_FALSE(Session::EditMode || Session::ConditionAll || Session::WindowSlotFree);
}

#include "tests/core/LogonCase.h"

using namespace Qt::StringLiterals;

namespace {

/// The logon screen of an installation with several account sets: 总店 is the database of the test, 分店
/// another one with a user of its own, 旧帐 names a file that is not there, and the last names none.
class MultiLogon : public LogonCase {
protected:
    void SetUp() override
    {
        LogonCase::SetUp();
        WriteConfig(QString());
        WriteProgramFile(
            u"Data/Second.ini"_s,
            u"[DataProp]\nServerName=localhost\n[DBType]\nDrive=MYSQL\n[MYSQL]\nConnStr=%1\n"_s.arg(
                m_second.ConnectionText()));
        SideConnection(m_second.Name())
            .Run(
                u"UPDATE User_List SET UserPWD='two'; INSERT INTO User_List (UserID,UserName,UserPWD) VALUES "
                "('09','分店员','9')"_s);
    }

    /// `client`: the workstation flag of the first account set.
    void WriteConfig(const QString& client)
    {
        WriteProgramFile(
            u"Config.ini"_s,
            u"[Define]\nAccNum=4\nClient=1\nUserName=管理员\nPaperSize=9\nSplashTime=20\n"
            "[Acc1]\nAccName=总店\nConnFile=\\Data\\Data.ini\nClient=%1\n"
            "[Acc2]\nAccName=分店\nConnFile=\\data\\SECOND.ini\nClient=0\n"
            "[Acc3]\nAccName=旧帐\nConnFile=\\Data\\Old.ini\nClient=\n[Acc4]\nAccName=空\n"_s.arg(client));
    }
    /// Chooses the account set by keyboard and moves on to the name.
    void ChooseSet(int number)
    {
        auto* sets = Find<QComboBox>(u"frmMultiLogon"_s, u"cmbAccName"_s);
        sets->setFocus();
        Press(Qt::Key_Home);
        for (int i = 1; i < number; ++i)
            Press(Qt::Key_Down);
        EXPECT_EQ(sets->currentIndex(), number - 1);
        Press(Qt::Key_Return);
        EXPECT_EQ(FocusName(), u"txtUserName"_s);
    }
    void TypeUser(const QString& name, const QString& password)
    {
        EXPECT_EQ(FocusName(), u"txtUserName"_s);
        Find(u"frmMultiLogon"_s, u"txtUserName"_s)->selectAll();
        Enter(u"txtUserName"_s, name);
        Find(u"frmMultiLogon"_s, u"txtUserPWD"_s)->selectAll();
        Enter(u"txtUserPWD"_s, password);
    }
    /// Name of the database behind the program's connection.
    static QString Connected() { return Gateway().SelectRows(u"DUAL"_s, u"DATABASE()"_s, QString()).Text(0); }

    TestDatabase m_second;
};

} // namespace

TEST_F(MultiLogon, ShowsTheAccountSetsInOrderAndTheLastUser)
{
    TakeStatements();
    Open(u"frmMultiLogon"_s);
    auto* sets = Find<QComboBox>(u"frmMultiLogon"_s, u"cmbAccName"_s);
    QStringList names;
    for (int i = 0; i < sets->count(); ++i)
        names << sets->itemText(i);
    EXPECT_EQ(names, (QStringList{u"总店"_s, u"分店"_s, u"旧帐"_s, u"空"_s}));
    EXPECT_EQ(sets->currentIndex(), 0);
    EXPECT_FALSE(sets->isEditable());
    EXPECT_EQ(TextOf(u"frmMultiLogon"_s, u"txtUserName"_s), u"管理员"_s);
    EXPECT_EQ(Find(u"frmMultiLogon"_s, u"txtUserPWD"_s)->echoMode(), QLineEdit::Password);
    EXPECT_EQ(TakeStatements(), QStringList()) << "nothing is opened before the first submit";
}

TEST_F(MultiLogon, NameAndPasswordLeadIntoTheChosenSet)
{
    Open(u"frmMultiLogon"_s);
    TakeStatements();
    ChooseSet(2);
    TypeUser(u" 分店员 "_s, u" 9 "_s);
    EXPECT_EQ(TakeStatements(),
              (QStringList{u"SELECT UserID,UserName,UserPWD,UserIP FROM User_List WHERE UserName='分店员'"_s,
                           u"DELETE FROM User_Status WHERE UserID='09' Or UserID=''"_s,
                           u"SELECT bolIP FROM User_List WHERE UserID='09'"_s,
                           u"INSERT INTO User_Status (UserID,CheckID,LogDate,LogTime) VALUES "
                           "('09','100000','2026-03-09','10:00:00')"_s,
                           u"SELECT Control_Sale,CheckOutStyle FROM Sys_Define"_s}));
    EXPECT_EQ(Connected(), m_second.Name());
    EXPECT_EQ(Session::DataIniPath, ProgramFolder() + u"/Data/Second.ini"_s);
    EXPECT_EQ(Session::ClientFlag, u"0"_s) << "the flag of the set, not of the installation";
    EXPECT_FALSE(IsLoaded(u"frmMultiLogon"_s));
    EXPECT_EQ(Count(u"User_Status"_s), 0);
    WaitFor([] { return IsShown(u"frmMain"_s); });
}

TEST_F(MultiLogon, ARowThatTheNameBroughtItselfIsNoUserAndTheNameIsNoLongerThanTheColumn)
{
    Open(u"frmMultiLogon"_s);
    ChooseSet(1);
    boxes.Expect(u"不存在的用户名！"_s);
    TypeUser(u"x' union select '01','管理员','p','' where ''='"_s, u"p"_s);
    EXPECT_FALSE(IsLoaded(u"frmMain"_s));
    EXPECT_EQ(Session::CurrentUserID, QString());
    ChooseSet(1);
    Find(u"frmMultiLogon"_s, u"txtUserName"_s)->selectAll();
    Type(QString(61, u'1'));
    EXPECT_EQ(TextOf(u"frmMultiLogon"_s, u"txtUserName"_s), QString(60, u'1'));
}

TEST_F(MultiLogon, EnterInTheNameMovesOnOnlyWhenThereIsOne)
{
    Open(u"frmMultiLogon"_s);
    Press(Qt::Key_Return);
    EXPECT_EQ(FocusName(), u"txtUserName"_s);
    Press(Qt::Key_Backspace);
    Press(Qt::Key_Return);
    EXPECT_EQ(FocusName(), u"txtUserName"_s);
    Type(u"a"_s);
    Press(Qt::Key_Return);
    EXPECT_EQ(FocusName(), u"txtUserPWD"_s);
}

TEST_F(MultiLogon, AnEmptyNameOrPasswordIsToldWithTheFocusOnIt)
{
    Open(u"frmMultiLogon"_s);
    TakeStatements();
    boxes.Expect(u"密码为空！"_s);
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(FocusName(), u"txtUserPWD"_s);
    Find(u"frmMultiLogon"_s, u"txtUserName"_s)->setText(u"  "_s);
    boxes.Expect(u"用户名为空！"_s);
    Enter(u"txtUserPWD"_s, u"1"_s);
    EXPECT_EQ(FocusName(), u"txtUserName"_s);
    EXPECT_TRUE(IsShown(u"frmMultiLogon"_s));
    EXPECT_EQ(TakeStatements(), QStringList());
    EXPECT_EQ(Session::DataIniPath, QString());
}

TEST_F(MultiLogon, AnUnknownNameAWrongPasswordAndAWrongAddressKeepTheScreen)
{
    AddUser(u"'02','张三','2','','1'"_s);
    Db().Run(
        u"INSERT INTO User_Status VALUES ('02','080000','2026-03-09','08:00:00'),('01','070000','2026-03-09','07:00:00')"_s);
    Open(u"frmMultiLogon"_s);
    ChooseSet(1);
    boxes.Expect(u"不存在的用户名！"_s);
    TypeUser(u"无名"_s, u"1"_s);
    ChooseSet(1);
    boxes.Expect(u"用户名与密码不匹配！"_s);
    TypeUser(u"管理员"_s, u"2"_s);
    EXPECT_EQ(Sessions(), u"01 070000,02 080000"_s);
    ChooseSet(1);
    boxes.Expect(u"对不起，用户IP身份验证失败！"_s);
    TypeUser(u"张三"_s, u"2"_s);
    EXPECT_EQ(Sessions(), u"01 070000"_s) << "the refused address has ended the earlier session";
    EXPECT_EQ(Session::CurrentUserID, u"02"_s);
    EXPECT_TRUE(IsShown(u"frmMultiLogon"_s));
    EXPECT_FALSE(IsLoaded(u"frmMain"_s));
}

TEST_F(MultiLogon, AnotherSetAfterAWrongPasswordStaysOnTheFirstDatabase)
{
    const QString first = Value(u"SELECT DATABASE()"_s);
    Open(u"frmMultiLogon"_s);
    ChooseSet(1);
    boxes.Expect(u"用户名与密码不匹配！"_s);
    TypeUser(u"管理员"_s, u"wrong"_s);
    ChooseSet(2);
    boxes.Expect(u"用户名与密码不匹配！"_s);
    TypeUser(u"管理员"_s, u"two"_s);
    EXPECT_EQ(Connected(), first);
    EXPECT_EQ(Session::DataIniPath, ProgramFolder() + u"/Data/Second.ini"_s);
    EXPECT_EQ(Session::ClientFlag, u"0"_s);
    ChooseSet(2);
    TypeUser(u"管理员"_s, u"1"_s);
    EXPECT_EQ(Connected(), first);
    EXPECT_EQ(Sessions(), u"01 100000"_s);
}

TEST_F(MultiLogon, AMissingConnectionFileIsToldAndLetsTheNextSubmitConnectAnew)
{
    Open(u"frmMultiLogon"_s);
    ChooseSet(1);
    boxes.Expect(u"用户名与密码不匹配！"_s);
    TypeUser(u"管理员"_s, u"wrong"_s);
    for (const int set : {3, 4}) {
        ChooseSet(set);
        boxes.Expect(u"数据库配置文件未找到，请检查系统文件的完整性!"_s);
        TypeUser(u"管理员"_s, u"1"_s);
        EXPECT_TRUE(IsShown(u"frmMultiLogon"_s));
        EXPECT_EQ(Session::ClientFlag, QString()) << "the flag of the set before";
    }
    ChooseSet(2);
    TypeUser(u"管理员"_s, u"two"_s);
    EXPECT_EQ(Connected(), m_second.Name());
    EXPECT_TRUE(IsLoaded(u"frmMain"_s));
}

TEST_F(MultiLogon, AFailedConnectionIsToldWithTheDriversWordsBelow)
{
    UnplugServer();
    Open(u"frmMultiLogon"_s);
    for (int i = 0; i < 2; ++i) {
        ChooseSet(1);
        boxes.ExpectContaining(u"数据库连接失败，错误信息如下：\r\n"_s);
        TypeUser(u"管理员"_s, u"1"_s);
        EXPECT_EQ(boxes.Seen().last(), u"数据库连接失败，错误信息如下：\r\n"_s + Gateway().LastError());
        EXPECT_TRUE(Gateway().LastError().contains(u"/nowhere/mysql.sock"_s));
        EXPECT_TRUE(IsShown(u"frmMultiLogon"_s));
    }
    ChooseSet(2);
    TypeUser(u"管理员"_s, u"two"_s);
    EXPECT_EQ(Connected(), m_second.Name());
    EXPECT_EQ(Gateway().LastError(), QString());
}

TEST_F(MultiLogon, AWorkstationInStepRemembersDateAndUser)
{
    WriteConfig(u"1"_s);
    SetClockToServersToday();
    AddUser(u"'02','张三','2','','0'"_s);
    Open(u"frmMultiLogon"_s);
    ChooseSet(1);
    TypeUser(u"张三"_s, u"2"_s);
    EXPECT_TRUE(IsLoaded(u"frmMain"_s));
    EXPECT_EQ(Session::ClientFlag, u"1"_s);
    EXPECT_EQ(Session::ServerDate, Value(u"SELECT DATE_FORMAT(CURDATE(),'%Y-%m-%d')"_s));
    EXPECT_TRUE(ReadFile(u"Config.ini"_s).contains(u"\nUserName=张三\n"_s));
}

TEST_F(MultiLogon, AWorkstationOutOfStepIsClosed)
{
    WriteConfig(u"1"_s);
    Open(u"frmMultiLogon"_s);
    TakeStatements();
    ChooseSet(1);
    boxes.Expect(u"本地时间与服务器时间不同步，请修正后再登录！"_s);
    boxes.WhileOpen([] { EXPECT_TRUE(IsShown(u"frmMultiLogon"_s)); });
    TypeUser(u"管理员"_s, u"1"_s);
    EXPECT_FALSE(IsLoaded(u"frmMultiLogon"_s));
    EXPECT_FALSE(IsLoaded(u"frmDBC"_s));
    EXPECT_EQ(TakeStatements(), QStringList()) << "the date is asked before the connection is opened";
    EXPECT_EQ(m_ends, 1);
}

TEST_F(MultiLogon, AWorkstationWithoutServerNameIsClosedWithoutTheConnectionScreen)
{
    WriteConfig(u"1"_s);
    ChangeDataIni(u"ServerName=localhost"_s, u"ServerName="_s);
    Open(u"frmMultiLogon"_s);
    ChooseSet(1);
    boxes.Expect(u"数据库配置错误，请重新配置！"_s);
    TypeUser(u"管理员"_s, u"1"_s);
    EXPECT_FALSE(IsLoaded(u"frmMultiLogon"_s));
    EXPECT_FALSE(IsLoaded(u"frmDBC"_s));
    EXPECT_EQ(m_ends, 1);
}

TEST_F(MultiLogon, AWorkstationWhoseServerIsSilentIsSentToTheConnectionScreen)
{
    WriteConfig(u"1"_s);
    UnplugServer();
    Open(u"frmMultiLogon"_s);
    ChooseSet(1);
    boxes.Expect(u"服务端未启动或配置错误！"_s);
    boxes.WhileOpen([] {
        EXPECT_TRUE(IsLoaded(u"frmMultiLogon"_s));
        EXPECT_FALSE(IsLoaded(u"frmDBC"_s));
    });
    TypeUser(u"管理员"_s, u"1"_s);
    EXPECT_FALSE(IsLoaded(u"frmMultiLogon"_s));
    EXPECT_TRUE(IsShown(u"frmDBC"_s));
    EXPECT_EQ(TextOf(u"frmDBC"_s, u"txtServer"_s), u"localhost"_s)
        << "it is about the file of the chosen set";
    EXPECT_EQ(m_ends, 0);
}

TEST_F(MultiLogon, AMainMachineNeverAsksForTheDate)
{
    Open(u"frmMultiLogon"_s);
    ChooseSet(1);
    TypeUser(u"管理员"_s, u"1"_s);
    EXPECT_EQ(Session::ServerDate, QString());
    EXPECT_TRUE(ReadFile(u"Config.ini"_s).contains(u"\nUserName=管理员\n"_s));
    EXPECT_TRUE(IsLoaded(u"frmMain"_s));
}

TEST_F(MultiLogon, StrangeNamesDoNoHarm)
{
    Open(u"frmMultiLogon"_s);
    for (const QString& name : {u"'"_s, u"a\\"_s}) {
        ChooseSet(1);
        boxes.ExpectContaining(u"SQL syntax"_s);
        TypeUser(name, u"1"_s);
    }
    ChooseSet(1);
    boxes.Expect(u"不存在的用户名！"_s);
    TypeUser(u"１"_s, u"1"_s);
    EXPECT_TRUE(IsShown(u"frmMultiLogon"_s));
}

TEST_F(MultiLogon, CancelEndsTheProcess)
{
    Open(u"frmMultiLogon"_s);
    Press(Qt::Key_C, Qt::AltModifier);
    EXPECT_EQ(m_ends, 1);
}

TEST_F(MultiLogon, ANumberOfSetsBeyondSixteenBitsOverflows)
{
    WriteProgramFile(u"Config.ini"_s, u"[Define]\nAccNum=40000\n"_s);
    EXPECT_THROW(Windows().Show(u"frmMultiLogon"_s, nullptr), OverflowError);
    EXPECT_FALSE(IsLoaded(u"frmMultiLogon"_s));
}

TEST_F(MultiLogon, WithoutANumberOfSetsThereIsNoneToChoose)
{
    for (const QString& line : {QString(), u"AccNum=\n"_s, u"AccNum=abc\n"_s, u"AccNum=-2\n"_s}) {
        WriteProgramFile(u"Config.ini"_s, u"[Define]\nUserName=a\n"_s + line);
        Open(u"frmMultiLogon"_s);
        EXPECT_EQ(Find<QComboBox>(u"frmMultiLogon"_s, u"cmbAccName"_s)->count(), 0) << line.toStdString();
        boxes.Expect(u"数据库配置文件未找到，请检查系统文件的完整性!"_s);
        Find(u"frmMultiLogon"_s, u"txtUserPWD"_s)->setText(u"1"_s);
        Press(Qt::Key_S, Qt::AltModifier);
        Windows().Find(u"frmMultiLogon"_s)->Widget()->close();
        Settle();
    }
}

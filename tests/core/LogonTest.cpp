#include "core/logon/Logon.h"
#include "core/session/LocalAddress.h"
#include "tests/core/LogonCase.h"

#include <QFileInfo>
#include <QHostAddress>
#include <QLineEdit>
#include <QProcess>
#include <QTest>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

/// The logon screen of an installation with one account set.
class Logon : public LogonCase {
protected:
    void BeWorkstation()
    {
        WriteProgramFile(
            u"Config.ini"_s,
            u"[Define]\nAccNum=1\nClient=1\nUserName=\nPaperSize=9\nSplashTime=20\n[Acc1]\nConnFile=\\Other.ini\n"_s);
    }
    QStringList Names()
    {
        const auto* combo = Find<QComboBox>(u"frmLogon"_s, u"cmbUserName"_s);
        QStringList names;
        for (int i = 0; i < combo->count(); ++i)
            names << combo->itemText(i);
        return names;
    }
    void TypeUser(const QString& name, const QString& password)
    {
        EXPECT_EQ(FocusName(), u"cmbUserName"_s);
        Type(name);
        Press(Qt::Key_Return);
        Enter(u"txtUserPWD"_s, password);
    }
};

} // namespace

TEST_F(Logon, NameAndPasswordLeadToTheMainWindowBehindTheSplash)
{
    TakeStatements();
    Open(u"frmLogon"_s);
    EXPECT_EQ(Session::DataIniPath, ProgramFolder() + u"/Data/Data.ini"_s);
    EXPECT_EQ(TakeStatements(), QStringList{u"SELECT UserName FROM User_List"_s});
    TypeUser(u"管理员"_s, u"1"_s);

    EXPECT_EQ(TakeStatements(),
              (QStringList{u"SELECT UserID,UserName,UserPWD,UserIP FROM User_List WHERE UserName='管理员'"_s,
                           u"DELETE FROM User_Status WHERE UserID='01' Or UserID=''"_s,
                           u"SELECT bolIP FROM User_List WHERE UserID='01'"_s,
                           u"INSERT INTO User_Status (UserID,CheckID,LogDate,LogTime) VALUES "
                           "('01','100000','2026-03-09','10:00:00')"_s,
                           u"SELECT Control_Sale,CheckOutStyle FROM Sys_Define"_s}));
    EXPECT_FALSE(IsLoaded(u"frmLogon"_s));
    EXPECT_TRUE(IsLoaded(u"frmMain"_s));
    EXPECT_EQ(Session::CurrentUserID, u"01"_s);
    EXPECT_EQ(Session::CurrentUserName, u"管理员"_s);
    EXPECT_EQ(Sessions(), u"01 100000"_s);
    WaitFor([] { return IsShown(u"frmMain"_s) && !IsLoaded(u"frmSpash"_s); });
    EXPECT_EQ(m_ends, 0);
}

TEST_F(Logon, TheUsersAreOfferedInTheServersOrderAndNoneIsChosen)
{
    AddUser(u"'02','张三','2','','0'"_s);
    AddUser(u"'03','李四','3','','0'"_s);
    QStringList order;
    for (const QStringList& row : Db().Rows(u"SELECT UserName FROM User_List"_s))
        order << row[0];
    Open(u"frmLogon"_s);
    EXPECT_EQ(Names(), order);
    EXPECT_EQ(Names().size(), 3);
    EXPECT_EQ(Find<QComboBox>(u"frmLogon"_s, u"cmbUserName"_s)->currentText(), QString());
    EXPECT_EQ(FocusName(), u"cmbUserName"_s);
    for (int i = 0; i <= order.indexOf(u"张三"_s); ++i)
        Press(Qt::Key_Down);
    Press(Qt::Key_Return);
    Enter(u"txtUserPWD"_s, u"2"_s);
    EXPECT_EQ(Session::CurrentUserID, u"02"_s);
}

TEST_F(Logon, ATypedNameIsNotCompletedToAnother)
{
    AddUser(u"'02','Wang2','2','','0'"_s);
    Open(u"frmLogon"_s);
    boxes.Expect(u"没有当前记录。"_s);
    TypeUser(u"Wang"_s, u"2"_s);
    EXPECT_EQ(Session::CurrentUserID, QString());
    EXPECT_EQ(Find<QComboBox>(u"frmLogon"_s, u"cmbUserName"_s)->currentText(), u"Wang"_s);
}

TEST_F(Logon, TheSubmitButtonIsEnterInThePassword)
{
    Open(u"frmLogon"_s);
    Type(u"管理员"_s);
    Press(Qt::Key_Return);
    Type(u"1"_s);
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_TRUE(IsLoaded(u"frmMain"_s));
}

TEST_F(Logon, NameAndPasswordCountWithoutTheBlanksAroundThem)
{
    Db().Run(u"UPDATE User_List SET UserPWD='  Ab c ' WHERE UserID='01'"_s);
    Open(u"frmLogon"_s);
    TypeUser(u"  管理员 "_s, u" Ab c"_s);
    EXPECT_EQ(Session::CurrentUserID, u"01"_s);
}

TEST_F(Logon, ThePasswordsCaseCountsAndTheNamesDoesNot)
{
    AddUser(u"'02','Wang','Secret','','0'"_s);
    Open(u"frmLogon"_s);
    boxes.Expect(u"用户名与密码不匹配！"_s);
    TypeUser(u"WANG"_s, u"secret"_s);
    EXPECT_TRUE(IsShown(u"frmLogon"_s));
    EXPECT_EQ(Session::CurrentUserID, QString());
    EXPECT_EQ(FocusName(), u"txtUserPWD"_s);
    Find(u"frmLogon"_s, u"txtUserPWD"_s)->selectAll();
    Enter(u"txtUserPWD"_s, u"Secret"_s);
    EXPECT_EQ(Session::CurrentUserID, u"02"_s);
    EXPECT_EQ(Session::CurrentUserName, u"Wang"_s) << "the stored spelling";
}

TEST_F(Logon, AnEmptyNameOrPasswordIsToldWithTheFocusOnIt)
{
    Open(u"frmLogon"_s);
    TakeStatements();
    boxes.Expect(u"用户名为空！"_s);
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(FocusName(), u"cmbUserName"_s);
    Type(u"  "_s);
    Press(Qt::Key_Return);
    boxes.Expect(u"用户名为空！"_s);
    Enter(u"txtUserPWD"_s, u"1"_s);
    EXPECT_EQ(FocusName(), u"cmbUserName"_s);
    Type(u"管理员"_s);
    Press(Qt::Key_Return);
    Find(u"frmLogon"_s, u"txtUserPWD"_s)->clear();
    boxes.Expect(u"密码为空！"_s);
    Enter(u"txtUserPWD"_s, u"   "_s);
    EXPECT_EQ(FocusName(), u"txtUserPWD"_s);
    EXPECT_TRUE(IsShown(u"frmLogon"_s));
    EXPECT_EQ(TakeStatements(), QStringList());
}

TEST_F(Logon, AnUnknownNameFailsAtReadingItsRow)
{
    Open(u"frmLogon"_s);
    boxes.Expect(u"没有当前记录。"_s);
    TypeUser(u"无名"_s, u"1"_s);
    EXPECT_TRUE(IsShown(u"frmLogon"_s));
    EXPECT_EQ(Session::CurrentUserID, QString());
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);
}

TEST_F(Logon, AttemptsAreNotCounted)
{
    Open(u"frmLogon"_s);
    Type(u"管理员"_s);
    Press(Qt::Key_Return);
    for (int i = 0; i < 12; ++i) {
        boxes.Expect(u"用户名与密码不匹配！"_s);
        Find(u"frmLogon"_s, u"txtUserPWD"_s)->selectAll();
        Enter(u"txtUserPWD"_s, u"x%1"_s.arg(i));
    }
    EXPECT_EQ(Count(u"User_Status"_s), 0);
    Find(u"frmLogon"_s, u"txtUserPWD"_s)->selectAll();
    Enter(u"txtUserPWD"_s, u"1"_s);
    EXPECT_TRUE(IsLoaded(u"frmMain"_s));
}

TEST_F(Logon, StrangeNamesAndPasswordsDoNoHarm)
{
    Open(u"frmLogon"_s);
    auto* name = Find<QComboBox>(u"frmLogon"_s, u"cmbUserName"_s);
    const struct {
        QString name;
        QString box;
    } cases[] = {{u"'"_s, u"SQL syntax"_s},
                 {u"x' Or '1'='1"_s, u"没有当前记录。"_s},
                 {u"a\\"_s, u"SQL syntax"_s},
                 {QString(3000, u'长'), u"没有当前记录。"_s},
                 {u"１２"_s, u"没有当前记录。"_s}};
    for (const auto& c : cases) {
        name->setFocus();
        name->setEditText(c.name);
        boxes.ExpectContaining(c.box);
        Press(Qt::Key_Return);
        Find(u"frmLogon"_s, u"txtUserPWD"_s)->selectAll();
        Enter(u"txtUserPWD"_s, u"''\\"_s);
        boxes.Verify();
        EXPECT_TRUE(IsShown(u"frmLogon"_s));
    }
    EXPECT_EQ(Count(u"User_List"_s), 1);
}

TEST_F(Logon, ARowThatTheNameBroughtItselfIsNoUser)
{
    const QString statement = u"x' union select '01','管理员','p','' where ''='"_s;
    ASSERT_LE(statement.size(), 60);
    Open(u"frmLogon"_s);
    TakeStatements();
    for (const QString& name : {statement, u"管理员'#"_s, u"管理员' or '1'='1"_s}) {
        auto* combo = Find<QComboBox>(u"frmLogon"_s, u"cmbUserName"_s);
        combo->setFocus();
        combo->lineEdit()->selectAll();
        Type(name);
        Press(Qt::Key_Return);
        Find(u"frmLogon"_s, u"txtUserPWD"_s)->selectAll();
        boxes.Expect(u"没有当前记录。"_s);
        Enter(u"txtUserPWD"_s, name == statement ? u"p"_s : u"1"_s);
        EXPECT_EQ(TakeStatements(),
                  QStringList{u"SELECT UserID,UserName,UserPWD,UserIP FROM User_List WHERE UserName='"_s +
                              name + u"'"_s})
            << "as it was typed, and nothing after it";
        EXPECT_FALSE(IsLoaded(u"frmMain"_s));
        EXPECT_EQ(Session::CurrentUserID, QString());
    }
}

TEST_F(Logon, ANameIsFoundAsTheServerComparesIt)
{
    AddUser(u"'02','Élodie Ångström','2','','0'"_s);
    Gateway().OpenConnection(ProgramPath(u"\\Data\\Data.ini"_s));
    for (const QString& typed : {u"élodie ångström"_s, u"ELODIE ANGSTROM"_s, u"Elodie Ångström "_s}) {
        Session::CurrentUserID.clear();
        EXPECT_TRUE(TryLogon(typed, u"2"_s, UnknownName::Refuse)) << typed.toStdString();
        EXPECT_EQ(Session::CurrentUserID, u"02"_s);
    }
    boxes.Expect(u"不存在的用户名！"_s);
    EXPECT_FALSE(TryLogon(u"Elodie  Angstrom"_s, u"2"_s, UnknownName::Refuse));
}

TEST_F(Logon, TheNameFieldTakesNoMoreThanTheColumn)
{
    Open(u"frmLogon"_s);
    Type(QString(61, u'1'));
    EXPECT_EQ(Find<QComboBox>(u"frmLogon"_s, u"cmbUserName"_s)->currentText(), QString(60, u'1'));
    EXPECT_EQ(Value(u"SELECT CHARACTER_MAXIMUM_LENGTH FROM information_schema.COLUMNS WHERE "
                    "TABLE_SCHEMA=DATABASE() AND TABLE_NAME='User_List' AND COLUMN_NAME='UserName'"_s),
              u"60"_s);
}

TEST_F(Logon, ThePasswordIsNotShown)
{
    Open(u"frmLogon"_s);
    Press(Qt::Key_Return);
    Type(u"ab1"_s);
    EXPECT_EQ(Find(u"frmLogon"_s, u"txtUserPWD"_s)->displayText(), u"***"_s);
    EXPECT_EQ(Windows().Find(u"frmLogon"_s)->Widget()->windowTitle(), u"用户登录"_s);
}

TEST_F(Logon, CancelEndsTheProcess)
{
    Open(u"frmLogon"_s);
    Press(Qt::Key_C, Qt::AltModifier);
    EXPECT_FALSE(IsLoaded(u"frmLogon"_s));
    EXPECT_EQ(m_ends, 1);
}

// Earlier sessions and addresses

TEST_F(Logon, ALogonEndsTheUsersEarlierSessionAndSweepsRowsOfNobody)
{
    Db().Run(u"INSERT INTO User_Status VALUES ('01','080000','2026-03-09','08:00:00'),"
             "('01','070000','2026-03-01','07:00:00'),('','060000','2026-03-01','06:00:00'),"
             "('02','090000','2026-03-09','09:00:00')"_s);
    Open(u"frmLogon"_s);
    TypeUser(u"管理员"_s, u"1"_s);
    EXPECT_EQ(Sessions(), u"02 090000,01 100000"_s);
}

TEST_F(Logon, AWrongPasswordLeavesTheEarlierSessionAlone)
{
    Db().Run(u"INSERT INTO User_Status VALUES ('01','080000','2026-03-09','08:00:00')"_s);
    Open(u"frmLogon"_s);
    boxes.Expect(u"用户名与密码不匹配！"_s);
    TypeUser(u"管理员"_s, u"2"_s);
    EXPECT_EQ(Sessions(), u"01 080000"_s);
}

TEST_F(Logon, ARefusedAddressHasAlreadyEndedTheEarlierSession)
{
    AddUser(u"'02','张三','2','203.0.113.9','1'"_s);
    Db().Run(u"INSERT INTO User_Status VALUES ('02','080000','2026-03-09','08:00:00')"_s);
    Open(u"frmLogon"_s);
    boxes.Expect(u"对不起，用户IP身份验证失败！"_s);
    TypeUser(u"张三"_s, u"2"_s);
    EXPECT_EQ(Count(u"User_Status"_s), 0);
    EXPECT_TRUE(IsShown(u"frmLogon"_s));
    EXPECT_FALSE(IsLoaded(u"frmMain"_s));
    EXPECT_EQ(Session::CurrentUserID, u"02"_s);
    EXPECT_EQ(Session::CurrentUserName, u"张三"_s);
}

TEST_F(Logon, AnAddressThatIsRequiredAndEmptyFitsNobody)
{
    AddUser(u"'02','张三','2','','1'"_s);
    Open(u"frmLogon"_s);
    boxes.Expect(u"对不起，用户IP身份验证失败！"_s);
    TypeUser(u"张三"_s, u"2"_s);
    EXPECT_FALSE(IsLoaded(u"frmMain"_s));
}

TEST_F(Logon, TheWorkstationsOwnAddressFitsAndBlanksAroundItDoNot)
{
    AddUser(u"'02','张三','2','%1','1'"_s.arg(LocalIP()));
    AddUser(u"'03','李四','3',' %1','1'"_s.arg(LocalIP()));
    AddUser(u"'04','赵六','4','203.0.113.9','0'"_s);
    Open(u"frmLogon"_s);
    boxes.Expect(u"对不起，用户IP身份验证失败！"_s);
    TypeUser(u"李四"_s, u"3"_s);
    FocusName();
    Press(Qt::Key_Up);
    Find<QComboBox>(u"frmLogon"_s, u"cmbUserName"_s)->setEditText(u"张三"_s);
    Press(Qt::Key_Return);
    Enter(u"txtUserPWD"_s, u"2"_s);
    EXPECT_TRUE(IsLoaded(u"frmMain"_s));
    EXPECT_EQ(Session::CurrentUserID, u"02"_s);
}

TEST_F(Logon, AnAddressIsNotAskedForWithoutTheFlag)
{
    AddUser(u"'04','赵六','4','203.0.113.9','0'"_s);
    Open(u"frmLogon"_s);
    TypeUser(u"赵六"_s, u"4"_s);
    EXPECT_TRUE(IsLoaded(u"frmMain"_s));
}

TEST(LocalAddress, IsTheFirstOfTheMachinesOwn)
{
    // Another's word for it: "hostname -I" lists what stands beside the loopback.
    QProcess tool;
    tool.start(u"hostname"_s, {u"-I"_s});
    ASSERT_TRUE(tool.waitForFinished() && tool.exitCode() == 0) << "hostname -I does not run here";
    QStringList addresses = QString::fromLatin1(tool.readAllStandardOutput()).split(u' ', Qt::SkipEmptyParts);
    addresses.removeIf([](const QString& text) {
        return QHostAddress(text.trimmed()).protocol() != QAbstractSocket::IPv4Protocol;
    });
    if (addresses.isEmpty()) {
        std::printf("this machine has the loopback alone: no other address could be compared\n");
        EXPECT_EQ(LocalIP(), u"127.0.0.1"_s);
        return;
    }
    EXPECT_TRUE(addresses.contains(LocalIP())) << LocalIP().toStdString();
}

// Files and connections that fail

TEST_F(Logon, WithoutAConnectionFileTheScreenClosesAtOnce)
{
    RemoveFile(u"Data/Data.ini"_s);
    boxes.Expect(u"数据库配置文件未找到,请重新配置!"_s);
    EXPECT_EQ(Windows().Show(u"frmLogon"_s, nullptr), nullptr);
    Settle();
    EXPECT_FALSE(IsLoaded(u"frmDBC"_s));
    EXPECT_EQ(m_ends, 1);
    EXPECT_EQ(TakeStatements(), QStringList());
}

TEST_F(Logon, WithoutASystemFileTheScreenClosesToo)
{
    RemoveFile(u"Config.ini"_s);
    boxes.Expect(u"系统配置文件未找到，程序中止。"_s);
    EXPECT_EQ(Windows().Show(u"frmLogon"_s, nullptr), nullptr);
    Settle();
    EXPECT_EQ(m_ends, 1);
}

TEST_F(Logon, OnAMainMachineAFailedOpenIsToldInTheDriversWordsAndTheScreenStays)
{
    UnplugServer();
    boxes.ExpectContaining(u"/nowhere/mysql.sock"_s);
    Open(u"frmLogon"_s);
    EXPECT_EQ(Names(), QStringList());
    EXPECT_EQ(Session::ServerDate, QString());
    boxes.ExpectContaining(u"/nowhere/mysql.sock"_s);
    TypeUser(u"管理员"_s, u"1"_s);
    EXPECT_TRUE(IsShown(u"frmLogon"_s));
    EXPECT_FALSE(IsLoaded(u"frmMain"_s));
}

TEST_F(Logon, AnyOtherFlagThanOneIsTheMainMachine)
{
    for (const QString& flag : {u""_s, u"0"_s, u"2"_s, u"yes"_s}) {
        WriteProgramFile(u"Config.ini"_s, u"[Define]\nClient=%1\n"_s.arg(flag));
        Open(u"frmLogon"_s);
        EXPECT_EQ(Session::ClientFlag, flag);
        EXPECT_EQ(Names(), QStringList{u"管理员"_s});
        EXPECT_EQ(Session::ServerDate, QString());
        Windows().Find(u"frmLogon"_s)->Widget()->close();
        Settle();
    }
}

TEST_F(Logon, TheFirstAccountSetsSectionIsIgnored)
{
    WriteProgramFile(
        u"Config.ini"_s,
        u"[Define]\nAccNum=1\nClient=\n[Acc1]\nAccName=x\nConnFile=\\Data\\Nowhere.ini\nClient=1\n"_s);
    Open(u"frmLogon"_s);
    EXPECT_EQ(Session::ClientFlag, QString());
    EXPECT_EQ(Session::DataIniPath, ProgramFolder() + u"/Data/Data.ini"_s);
    EXPECT_EQ(Names(), QStringList{u"管理员"_s});
}

// Workstations

TEST_F(Logon, AWorkstationInStepWithTheServerOffersTheUsersOnceTheDateIsThere)
{
    BeWorkstation();
    SetClockToServersToday();
    Open(u"frmLogon"_s);
    WaitFor([this] { return !Names().isEmpty(); });
    EXPECT_EQ(Names(), QStringList{u"管理员"_s});
    EXPECT_EQ(Session::ServerDate, Value(u"SELECT DATE_FORMAT(CURDATE(),'%Y-%m-%d')"_s));
    TypeUser(u"管理员"_s, u"1"_s);
    EXPECT_TRUE(IsLoaded(u"frmMain"_s));
    EXPECT_TRUE(ReadFile(u"Config.ini"_s).contains(u"\nUserName=管理员\n"_s));
}

TEST_F(Logon, AWorkstationOutOfStepIsClosed)
{
    BeWorkstation();
    boxes.Expect(u"本地时间与服务器时间不同步，请修正后再登录！"_s);
    boxes.WhileOpen([] { EXPECT_TRUE(IsShown(u"frmLogon"_s)); });
    Windows().Show(u"frmLogon"_s, nullptr);
    WaitFor([] { return !IsLoaded(u"frmLogon"_s); });
    EXPECT_FALSE(IsLoaded(u"frmDBC"_s));
    EXPECT_EQ(Session::ServerDate, Value(u"SELECT DATE_FORMAT(CURDATE(),'%Y-%m-%d')"_s));
    EXPECT_EQ(m_ends, 1);
}

TEST_F(Logon, AWorkstationWithoutServerNameIsSentToTheConnectionScreen)
{
    BeWorkstation();
    ChangeDataIni(u"ServerName=localhost"_s, u"ServerName="_s);
    boxes.Expect(u"数据库配置错误,请重新配置！"_s);
    boxes.WhileOpen([] { EXPECT_FALSE(IsLoaded(u"frmDBC"_s)); });
    EXPECT_EQ(Windows().Show(u"frmLogon"_s, nullptr), nullptr);
    Settle();
    EXPECT_TRUE(IsShown(u"frmDBC"_s));
    EXPECT_EQ(m_ends, 0);
    EXPECT_EQ(TakeStatements(), QStringList());
}

TEST_F(Logon, AWorkstationWhoseServerIsSilentIsSentToTheConnectionScreen)
{
    BeWorkstation();
    UnplugServer();
    boxes.Expect(u"服务端未启动或配置错误！"_s);
    boxes.WhileOpen([] {
        EXPECT_TRUE(IsLoaded(u"frmLogon"_s));
        EXPECT_FALSE(IsLoaded(u"frmDBC"_s));
    });
    Windows().Show(u"frmLogon"_s, nullptr);
    WaitFor([] { return !IsLoaded(u"frmLogon"_s); });
    EXPECT_TRUE(IsShown(u"frmDBC"_s));
    EXPECT_EQ(m_ends, 0);
    EXPECT_EQ(Session::ServerDate, QString());
}

TEST_F(Logon, TheScreenIsUsableWhileTheDateIsOnItsWay)
{
    BeWorkstation();
    SetClockToServersToday();
    Windows().Show(u"frmLogon"_s, nullptr);
    // The answer comes through the event loop, which has not run yet.
    auto* name = Find<QComboBox>(u"frmLogon"_s, u"cmbUserName"_s);
    name->setEditText(u"管理员"_s);
    auto* password = Find(u"frmLogon"_s, u"txtUserPWD"_s);
    password->setText(u"1"_s);
    EXPECT_EQ(Session::ServerDate, QString());
    QTest::keyClick(password, Qt::Key_Return);
    EXPECT_TRUE(IsLoaded(u"frmMain"_s));
    WaitFor([] { return !Session::ServerDate.isEmpty(); });
    EXPECT_EQ(Session::ServerDate, Value(u"SELECT DATE_FORMAT(CURDATE(),'%Y-%m-%d')"_s));
    EXPECT_TRUE(IsLoaded(u"frmMain"_s));
}

TEST_F(Logon, ATypedNameOutlivesTheArrivalOfTheUsers)
{
    BeWorkstation();
    SetClockToServersToday();
    Windows().Show(u"frmLogon"_s, nullptr);
    Find<QComboBox>(u"frmLogon"_s, u"cmbUserName"_s)->setEditText(u"管"_s);
    WaitFor([this] { return !Names().isEmpty(); });
    EXPECT_EQ(Find<QComboBox>(u"frmLogon"_s, u"cmbUserName"_s)->currentText(), u"管"_s);
}

TEST_F(Logon, AMismatchThatArrivesAfterTheScreenClosedTroublesNobody)
{
    BeWorkstation();
    Windows().Show(u"frmLogon"_s, nullptr);
    Windows().Find(u"frmLogon"_s)->Widget()->close();
    WaitFor([] { return !Session::ServerDate.isEmpty(); });
    EXPECT_EQ(boxes.Seen(), QStringList());
}

TEST_F(Logon, AMismatchThatArrivesOverAnOpenBoxClosesTheScreenUnderIt)
{
    BeWorkstation();
    Windows().Show(u"frmLogon"_s, nullptr);
    boxes.Expect(u"用户名为空！"_s);
    boxes.Expect(u"本地时间与服务器时间不同步，请修正后再登录！"_s);
    boxes.WhileOpen([] { WaitFor([] { return !IsLoaded(u"frmLogon"_s); }); });
    QTest::keyClick(Find(u"frmLogon"_s, u"txtUserPWD"_s), Qt::Key_Return);
    EXPECT_FALSE(IsLoaded(u"frmLogon"_s));
    Settle();
    EXPECT_EQ(m_ends, 1);
}

// The main window fails to load

TEST_F(Logon, AnErrorInTheMainWindowsLoadIsToldAndNothingStaysOpen)
{
    Open(u"frmLogon"_s);
    Type(u"管理员"_s);
    Press(Qt::Key_Return);
    FailStatement(4, Refusal::Signalled);
    boxes.Expect(u"演练故障"_s);
    boxes.WhileOpen([this] {
        Settle();
        EXPECT_EQ(m_ends, 0) << "the process ends over the open box";
    });
    Enter(u"txtUserPWD"_s, u"1"_s);
    EXPECT_FALSE(IsLoaded(u"frmMain"_s));
    EXPECT_FALSE(IsLoaded(u"frmSpash"_s));
    Settle();
    EXPECT_GE(m_ends, 1);
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);
}

TEST_F(Logon, AMainWindowThatFailsAfterItsSessionBeganTakesTheSessionBack)
{
    Db().Run(u"INSERT INTO User_Status VALUES ('02','100000','2026-03-09','10:00:00')"_s);
    Open(u"frmLogon"_s);
    Type(u"管理员"_s);
    Press(Qt::Key_Return);
    FailStatement(5, Refusal::MissingTable); // behind the row of User_Status
    boxes.ExpectContaining(u"Sys_Define"_s);
    boxes.WhileOpen([this] {
        Settle();
        EXPECT_EQ(m_ends, 0);
    });
    Enter(u"txtUserPWD"_s, u"1"_s);
    EXPECT_EQ(Sessions(), u"02 100000"_s) << "his own alone";
    EXPECT_THROW(Gateway().SelectRows(u"Sales"_s, u"SalesID"_s, QString()), DatabaseError);
    Settle();
    EXPECT_GE(m_ends, 1);
}

TEST_F(Logon, AConnectionLostInTheMainWindowsLoadIsToldOnce)
{
    Open(u"frmLogon"_s);
    Type(u"管理员"_s);
    Press(Qt::Key_Return);
    FailStatement(5, Refusal::LostLink);
    boxes.ExpectContaining(u"请先记下屏幕上的内容"_s);
    Enter(u"txtUserPWD"_s, u"1"_s);
    Settle();
    EXPECT_GE(m_ends, 1);
}

// The splash

TEST_F(Logon, AClickOnTheSplashLeavesTheMainWindowLoadedAndHidden)
{
    WriteProgramFile(u"Config.ini"_s, u"[Define]\n"_s);
    Open(u"frmLogon"_s);
    TypeUser(u"管理员"_s, u"1"_s);
    ASSERT_TRUE(IsShown(u"frmSpash"_s));
    EXPECT_TRUE(IsLoaded(u"frmMain"_s));
    EXPECT_FALSE(IsShown(u"frmMain"_s));
    EXPECT_EQ(Windows().Find(u"frmSpash"_s)->Widget()->parentWidget(),
              Windows().Find(u"frmMain"_s)->Widget());
    Click(Windows().Find(u"frmSpash"_s)->Widget());
    EXPECT_FALSE(IsLoaded(u"frmSpash"_s));
    EXPECT_TRUE(IsLoaded(u"frmMain"_s));
    EXPECT_FALSE(IsShown(u"frmMain"_s));
    EXPECT_EQ(Sessions(), u"01 100000"_s);
    EXPECT_EQ(m_ends, 0) << "the process lives on";
}

TEST_F(Logon, TheSplashStaysAsLongAsTheSystemFileSays)
{
    const struct {
        QString value;
        int milliseconds;
    } cases[] = {{u""_s, 65535},    {u"0"_s, 65535},     {u"-5"_s, 65535},   {u"65536"_s, 65535},
                 {u"abc"_s, 65535}, {u"20.5"_s, 65535},  {u"800x"_s, 65535}, {u"1"_s, 1},
                 {u"800"_s, 800},   {u"65535"_s, 65535}, {u"３"_s, 65535},   {u"99999999999"_s, 65535}};
    for (const auto& c : cases) {
        WriteProgramFile(u"Config.ini"_s, u"[Define]\nSplashTime=%1\n"_s.arg(c.value));
        Form* splash = Windows().Load(u"frmSpash"_s, nullptr);
        EXPECT_EQ(splash->Widget()->findChild<QTimer*>()->interval(), c.milliseconds)
            << c.value.toStdString();
        splash->Widget()->close();
        Settle();
    }
    WriteProgramFile(u"Config.ini"_s, u"[Define]\n"_s);
    EXPECT_EQ(Windows().Load(u"frmSpash"_s, nullptr)->Widget()->findChild<QTimer*>()->interval(), 65535);
}

// The connection screen

TEST_F(Logon, TheConnectionScreenShowsTheFileButNeverItsPassword)
{
    Session::DataIniPath = ProgramPath(u"\\Data\\Data.ini"_s);
    WriteProgramFile(
        u"Data/Data.ini"_s,
        u"[DataProp]\nServerName=db\nUserID=till\nPWD=secret\nDataBase=Shop\n[Other]\nKeep=1\n"_s);
    Open(u"frmDBC"_s);
    EXPECT_EQ(TextOf(u"frmDBC"_s, u"txtServer"_s), u"db"_s);
    EXPECT_EQ(TextOf(u"frmDBC"_s, u"txtUID"_s), u"till"_s);
    EXPECT_EQ(TextOf(u"frmDBC"_s, u"txtPWD"_s), QString());
    EXPECT_EQ(TextOf(u"frmDBC"_s, u"txtDatabase"_s), u"Shop"_s);
    EXPECT_EQ(Find(u"frmDBC"_s, u"txtPWD"_s)->echoMode(), QLineEdit::Password);
    EXPECT_EQ(Windows().Find(u"frmDBC"_s)->Widget()->windowTitle(), u"数据库配置"_s);
    boxes.Expect(u"请重新启动程序！"_s);
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_FALSE(IsLoaded(u"frmDBC"_s));
    EXPECT_EQ(
        ReadFile(u"Data/Data.ini"_s),
        u"[DataProp]\nServerName=db\nUserID=till\nPWD=\nDataBase=Shop\n[Other]\nKeep=1\n[DBType]\nDrive="
        u"MYSQL\n"
        "[MYSQL]\nConnStr=DRIVER={MySQL ODBC 3.51 Driver};SERVER=db;DATABASE=Orvane_PUB;UID=root;PWD=;\n"_s)
        << "saving without typing the password blanks it; only the server of the text follows the form";
    EXPECT_EQ(m_ends, 1);
}

TEST_F(Logon, TheConnectionScreenWritesWhatIsTyped)
{
    Session::DataIniPath = ProgramPath(u"\\Data\\New.ini"_s);
    Open(u"frmDBC"_s);
    EXPECT_EQ(TextOf(u"frmDBC"_s, u"txtUID"_s), u"root"_s);
    EXPECT_EQ(TextOf(u"frmDBC"_s, u"txtDatabase"_s), u"Orvane_PUB"_s);
    Enter(u"txtServer"_s, u"服务器1"_s);
    Enter(u"txtUID"_s, u"a'b"_s);
    Enter(u"txtPWD"_s, u"p;w\\"_s);
    Type(u"Shop"_s);
    boxes.Expect(u"请重新启动程序！"_s);
    Click(Find<QWidget>(u"frmDBC"_s, u"cmdOK"_s));
    EXPECT_EQ(
        ReadFile(u"Data/New.ini"_s),
        u"[DataProp]\nServerName=服务器1\nUserID=a'b\nPWD=p;w\\\nDataBase=Shop\n[DBType]\nDrive=MYSQL\n"
        "[MYSQL]\nConnStr=DRIVER={MySQL ODBC 3.51 Driver};SERVER=服务器1;DATABASE=Orvane_PUB;UID=root;PWD=;\n"_s);
}

TEST_F(Logon, EnterInTheLastFieldOfTheConnectionScreenSaves)
{
    Session::DataIniPath = ProgramPath(u"\\Data\\New.ini"_s);
    Open(u"frmDBC"_s);
    Enter(u"txtServer"_s, u"db"_s);
    Press(Qt::Key_Return);
    Press(Qt::Key_Return);
    EXPECT_EQ(FocusName(), u"txtDatabase"_s);
    EXPECT_EQ(ReadFile(u"Data/New.ini"_s), QString());
    boxes.Expect(u"请重新启动程序！"_s);
    Press(Qt::Key_Return);
    EXPECT_FALSE(IsLoaded(u"frmDBC"_s));
    EXPECT_TRUE(ReadFile(u"Data/New.ini"_s).startsWith(u"[DataProp]\nServerName=db\nUserID=root\nPWD=\n"_s));
    EXPECT_FALSE(QFile::exists(ProgramFolder() + u"/Data/New.ini.old"_s)) << "there was none before";
}

TEST_F(Logon, TheConnectionScreenKeepsTheFileItReplacesOnceAndPrivate)
{
    Session::DataIniPath = ProgramPath(u"\\Data\\Data.ini"_s);
    const QString good =
        u"[DataProp]\nPWD=secret\n[DBType]\nDrive=MYSQL\n[MYSQL]\nConnStr=SERVER=db;PORT=3307;UID=till;PWD=secret;DATABASE=Shop;\n"_s;
    const QString kept = ProgramFolder() + u"/Data/Data.ini.old"_s;
    WriteProgramFile(u"Data/Data.ini"_s, good);
    WriteProgramFile(u"Data/Data.ini.old"_s, u"an older one\n"_s);
    QFile::setPermissions(Session::DataIniPath, QFile::ReadOwner | QFile::WriteOwner);
    QFile::setPermissions(kept, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther);
    Open(u"frmDBC"_s);
    EXPECT_EQ(TextOf(u"frmDBC"_s, u"txtServer"_s), u"db"_s) << "what the connection text says";
    EXPECT_EQ(TextOf(u"frmDBC"_s, u"txtUID"_s), u"till"_s);
    EXPECT_EQ(TextOf(u"frmDBC"_s, u"txtPWD"_s), QString());
    EXPECT_EQ(TextOf(u"frmDBC"_s, u"txtDatabase"_s), u"Shop"_s);
    boxes.Expect(u"请重新启动程序！"_s);
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_TRUE(ReadFile(u"Data/Data.ini"_s).contains(u"UID=root;PWD=;"_s));
    EXPECT_EQ(ReadFile(u"Data/Data.ini.old"_s), good);
    EXPECT_EQ(QFile::permissions(kept) &
                  (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther),
              QFile::Permissions());
}

TEST_F(Logon, AConnectionFileThatCannotBeReadIsNamed)
{
    // The kernel's own file refuses reading to everybody, the superuser included.
    RemoveFile(u"Data/Data.ini"_s);
    const QString ini = ProgramFolder() + u"/Data/Data.ini"_s;
    ASSERT_TRUE(QFile::link(u"/proc/self/mem"_s, ini));
    boxes.ExpectContaining(u"无法读取文件："_s + ini);
    Open(u"frmLogon"_s);
    EXPECT_TRUE(IsShown(u"frmLogon"_s));

    boxes.ExpectContaining(u"无法读取文件："_s + ini);
    Open(u"frmDBC"_s);
    EXPECT_EQ(TextOf(u"frmDBC"_s, u"txtUID"_s), u"root"_s);
    boxes.ExpectContaining(u"无法读取文件："_s + ini);
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_TRUE(IsShown(u"frmDBC"_s));
    EXPECT_TRUE(QFileInfo(ini).isSymLink()) << "not replaced by a file of one line";
}

TEST_F(Logon, CancelOnTheConnectionScreenWritesNothing)
{
    Session::DataIniPath = ProgramPath(u"\\Data\\Data.ini"_s);
    const QString before = ReadFile(u"Data/Data.ini"_s);
    Open(u"frmDBC"_s);
    Type(u"elsewhere"_s);
    Press(Qt::Key_C, Qt::AltModifier);
    EXPECT_FALSE(IsLoaded(u"frmDBC"_s));
    EXPECT_EQ(ReadFile(u"Data/Data.ini"_s), before);
}

TEST_F(Logon, AConnectionFileThatCannotBeWrittenIsTold)
{
    Session::DataIniPath = ProgramFolder() + u"/no/such/folder.ini"_s;
    Open(u"frmDBC"_s);
    boxes.ExpectContaining(u"无法写入文件"_s);
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_TRUE(IsShown(u"frmDBC"_s));
}

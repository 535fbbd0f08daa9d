#include "core/base/ProgramFiles.h"
#include "core/gateway/ConnectionSettings.h"
#include "core/gateway/DataGateway.h"
#include "core/session/ServerDate.h"
#include "tests/support/WindowTest.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QTcpServer>

using namespace Qt::StringLiterals;

namespace {

class Gate : public WindowTest {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        TakeStatements();
    }

    QString Ini() const { return ProgramPath(u"\\Data\\Data.ini"_s); }

    /// A connection ini with this connection text.
    void Connect(const QString& text)
    {
        WriteProgramFile(u"Data/Data.ini"_s, u"[DBType]\nDrive=MYSQL\n[MYSQL]\nConnStr=%1\n"_s.arg(text));
    }
};

} // namespace

TEST_F(Gate, AnOrderClauseAloneGetsNoWhereAndAConditionGetsOne)
{
    Gateway().SelectRows(u"User_List"_s, u"UserName"_s, QString());
    Gateway().SelectRows(u"User_List"_s, u"UserName"_s, u" Order By UserID"_s, 0);
    Gateway().SelectRows(u"User_List"_s, u"DISTINCT UserName"_s, u"UserID='01' Order By UserID"_s);
    EXPECT_EQ(
        TakeStatements(),
        (QStringList{u"SELECT UserName FROM User_List"_s, u"SELECT UserName FROM User_List Order By UserID"_s,
                     u"SELECT DISTINCT UserName FROM User_List WHERE UserID='01' Order By UserID"_s}));
}

TEST_F(Gate, StatementsAreComposedAsTheyAreGiven)
{
    Gateway().InsertRow(u"Sales"_s, u"SalesID,SalesName"_s, u"'07','张三'"_s);
    Gateway().UpdateRows(u"Sales"_s, u"SalesName='李四'"_s, u"SalesID='07'"_s);
    Gateway().DeleteRows(u"Sales"_s, u"SalesID='08'"_s);
    EXPECT_EQ(TakeStatements(), (QStringList{u"INSERT INTO Sales (SalesID,SalesName) VALUES ('07','张三')"_s,
                                             u"UPDATE Sales SET SalesName='李四' WHERE SalesID='07'"_s,
                                             u"DELETE FROM Sales WHERE SalesID='08'"_s}));
    EXPECT_EQ(Value(u"SELECT SalesName FROM Sales"_s), u"李四"_s);
}

TEST_F(Gate, AnEmptyWhereChangesOrDeletesEveryRow)
{
    Db().Run(u"INSERT INTO Sales VALUES ('07','a'),('08','b')"_s);
    Gateway().UpdateRows(u"Sales"_s, u"SalesName='x'"_s, QString());
    EXPECT_EQ(Count(u"Sales"_s, u"SalesName='x'"_s), 2);
    Gateway().DeleteRows(u"Sales"_s, QString());
    EXPECT_EQ(TakeStatements(), (QStringList{u"UPDATE Sales SET SalesName='x'"_s, u"DELETE FROM Sales"_s}));
    EXPECT_EQ(Count(u"Sales"_s), 0);
}

TEST_F(Gate, AWhereOfABlankIsNoEmptyWhere)
{
    Db().Run(u"INSERT INTO Sales VALUES ('07','a')"_s);
    EXPECT_THROW(Gateway().DeleteRows(u"Sales"_s, u" "_s), DatabaseError);
    EXPECT_EQ(Count(u"Sales"_s), 1);
}

TEST_F(Gate, AnEmptyResultIsAtItsEndAtOnceAndCannotBeRead)
{
    Db().Run(u"DELETE FROM Sys_Define"_s);
    RecordSet rows = Gateway().SelectRows(u"Sys_Define"_s, u"CompName"_s, QString());
    EXPECT_TRUE(rows.Eof());
    EXPECT_EQ(rows.RecordCount(), 0);
    EXPECT_THROW(rows.Fields(0), EndOfDataError);
    EXPECT_THROW(rows.MoveNext(), EndOfDataError);
    try {
        rows.Text(0);
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.Description(), u"没有当前记录。"_s);
    }
}

TEST_F(Gate, ARecordSetIsReadForwardByPosition)
{
    Db().Run(u"INSERT INTO Sales VALUES ('07','a'),('08','b')"_s);
    RecordSet rows = Gateway().SelectRows(u"Sales"_s, u"SalesName,SalesID"_s, u" Order By SalesID"_s);
    EXPECT_EQ(rows.RecordCount(), 2);
    EXPECT_EQ(rows.Text(1), u"07"_s);
    EXPECT_THROW(rows.Fields(2), OutOfBoundsError);
    EXPECT_THROW(rows.Fields(-1), OutOfBoundsError);
    rows.MoveNext();
    EXPECT_EQ(rows.Text(0), u"b"_s);
    EXPECT_FALSE(rows.Eof());
    rows.MoveNext();
    EXPECT_TRUE(rows.Eof());
    EXPECT_THROW(rows.Fields(0), EndOfDataError);
    EXPECT_EQ(rows.RecordCount(), 2);
}

TEST_F(Gate, ARecordSetStaysReadableWhileOtherStatementsRun)
{
    Db().Run(u"INSERT INTO Sales VALUES ('07','a'),('08','b'),('09','c')"_s);
    RecordSet rows = Gateway().SelectRows(u"Sales"_s, u"SalesID,SalesName"_s, u" Order By SalesID"_s);
    QStringList seen;
    for (; !rows.Eof(); rows.MoveNext()) {
        seen << rows.Text(1);
        Gateway().UpdateRows(u"Sales"_s, u"SalesName='x'"_s, u"SalesID='%1'"_s.arg(rows.Text(0)));
        RecordSet inner = Gateway().SelectRows(u"Sales"_s, u"Count(*)"_s, QString());
        EXPECT_EQ(inner.Text(0), u"3"_s);
    }
    EXPECT_EQ(seen, (QStringList{u"a"_s, u"b"_s, u"c"_s}));
    EXPECT_EQ(Count(u"Sales"_s, u"SalesName='x'"_s), 3);
    Gateway().CloseConnection();
    EXPECT_EQ(rows.RecordCount(), 3);
}

TEST_F(Gate, ASumOverNothingIsOneRowWithANull)
{
    RecordSet sum = Gateway().SelectRows(u"EStore_List"_s, u"SUM(Num),COUNT(*)"_s, u"ID='x'"_s);
    ASSERT_EQ(sum.RecordCount(), 1);
    EXPECT_TRUE(sum.Fields(0).Value.isNull());
    EXPECT_EQ(sum.Text(0), QString());
    EXPECT_EQ(sum.Fields(1).Value, QVariant(qlonglong(0)));
}

TEST_F(Gate, ValuesHaveTheirColumnsNaturalType)
{
    Db().Run(
        u"INSERT INTO Sal_List (SalNo,Num,Suttle,Amount,SaleType,SaleDate) VALUES ('1',40,40.5,10.125,1,'2026-03-09')"_s);
    RecordSet row = Gateway().SelectRows(
        u"Sal_List"_s, u"Num,Suttle,Amount,SaleType,SaleDate,SUM(Num),COUNT(*),CheckDate"_s, QString());
    EXPECT_EQ(row.Fields(0).Value, QVariant(40.0));
    EXPECT_EQ(row.Text(0), u"40"_s) << "never 40.000000";
    EXPECT_EQ(row.Text(1), u"40.5"_s);
    EXPECT_EQ(row.Text(2), u"10.125"_s);
    EXPECT_EQ(row.Fields(3).Value, QVariant(qlonglong(1)));
    EXPECT_EQ(row.Fields(4).Value, QVariant(u"2026-03-09"_s));
    EXPECT_EQ(row.Fields(5).Value, QVariant(40.0));
    EXPECT_EQ(row.Fields(6).Value, QVariant(qlonglong(1)));
    EXPECT_FALSE(row.Fields(7).Value.isNull());
    EXPECT_EQ(row.Text(7), QString());
}

TEST_F(Gate, ChineseAndRareCharactersComeBackAsTheyWent)
{
    const QString name = u"张三丰 𠮷野 ¥ é"_s;
    Gateway().InsertRow(u"Sales"_s, u"SalesID,SalesName"_s, u"'07','%1'"_s.arg(name));
    EXPECT_EQ(Gateway().SelectRows(u"Sales"_s, u"SalesName"_s, QString()).Text(0), name);
    EXPECT_EQ(Value(u"SELECT SalesName FROM Sales"_s), name);
}

TEST_F(Gate, NothingIsEscaped)
{
    Gateway().InsertRow(u"Sales"_s, u"SalesID,SalesName"_s, u"'07','A\\B%20<b>'"_s);
    EXPECT_EQ(Value(u"SELECT SalesName FROM Sales"_s), u"AB%20<b>"_s) << "the server eats a backslash";
    EXPECT_THROW(Gateway().InsertRow(u"Sales"_s, u"SalesID,SalesName"_s, u"'08','O'Neil'"_s), DatabaseError);
    EXPECT_THROW(Gateway().InsertRow(u"Sales"_s, u"SalesID,SalesName"_s, u"'08','a\\'"_s), DatabaseError);
    EXPECT_EQ(Count(u"Sales"_s), 1);
}

TEST_F(Gate, OneCallIsOneStatement)
{
    Db().Run(u"INSERT INTO Sales VALUES ('07','a')"_s);
    EXPECT_THROW(Gateway().SelectRows(u"Sales"_s, u"SalesID"_s, u"SalesID='x'; DELETE FROM Sales"_s),
                 DatabaseError);
    EXPECT_EQ(Count(u"Sales"_s), 1);
}

TEST_F(Gate, ARefusedStatementCarriesTheServersOwnWords)
{
    Db().Run(u"INSERT INTO Sales VALUES ('07','a')"_s);
    const struct {
        std::function<void()> run;
        QString statement;
    } cases[] = {
        {[] { Gateway().InsertRow(u"Sales"_s, u"SalesID"_s, u"'07'"_s); },
         u"INSERT INTO Sales (SalesID) VALUES ('07')"_s},
        {[] { Gateway().SelectRows(u"Sales"_s, u"Nobody"_s, QString()); }, u"SELECT Nobody FROM Sales"_s},
        {[] { Gateway().UpdateRows(u"Sales"_s, u"Nobody=1"_s, QString()); }, u"UPDATE Sales SET Nobody=1"_s},
        {[] { Gateway().DeleteRows(u"Sales"_s, u"Nobody=1"_s); }, u"DELETE FROM Sales WHERE Nobody=1"_s},
    };
    for (const auto& c : cases) {
        try {
            c.run();
            ADD_FAILURE() << "no exception";
        } catch (const DatabaseError& error) {
            EXPECT_EQ(error.Description(), Db().Try(c.statement));
            EXPECT_NE(error.Description(), QString());
        }
    }
    EXPECT_EQ(Gateway().LastError(), QString()) << "only a failed open is kept";
}

TEST_F(Gate, ALostConnectionIsARefusedStatementAndIsNotOpenedAgain)
{
    FailStatement(1, Refusal::LostLink);
    EXPECT_THROW(Gateway().SelectRows(u"Sales"_s, u"SalesID"_s, QString()), DatabaseError);
    EXPECT_THROW(Gateway().SelectRows(u"Sales"_s, u"SalesID"_s, QString()), DatabaseError);
    EXPECT_THROW(Gateway().InsertRow(u"Sales"_s, u"SalesID"_s, u"'07'"_s), DatabaseError);
    EXPECT_EQ(Count(u"Sales"_s), 0);
    Gateway().OpenConnection(Ini());
    EXPECT_EQ(Gateway().SelectRows(u"Sales"_s, u"SalesID"_s, QString()).RecordCount(), 0);
}

TEST_F(Gate, StatementsThatRanBeforeARefusedOneStay)
{
    Gateway().InsertRow(u"Sales"_s, u"SalesID"_s, u"'07'"_s);
    EXPECT_EQ(Count(u"Sales"_s), 1) << "seen by another workstation before anything else runs";
    EXPECT_THROW(Gateway().InsertRow(u"Sales"_s, u"SalesID"_s, u"'07'"_s), DatabaseError);
    EXPECT_EQ(Count(u"Sales"_s), 1);
}

TEST_F(Gate, TheConnectionIsLaxAndComparesWithoutCaseAndTrailingBlanks)
{
    const RecordSet settings = Gateway().SelectRows(
        u"DUAL"_s, u"@@session.sql_mode,@@collation_connection,@@character_set_client,@@autocommit"_s,
        QString());
    EXPECT_EQ(settings.Text(0), QString());
    EXPECT_EQ(settings.Text(1), u"utf8mb4_general_ci"_s);
    EXPECT_EQ(settings.Text(2), u"utf8mb4"_s);
    EXPECT_EQ(settings.Text(3), u"1"_s);

    Db().Run(u"INSERT INTO Sales VALUES ('Ab','a')"_s);
    const auto found = [](const QString& key) {
        return !Gateway().SelectRows(u"Sales"_s, u"SalesID"_s, u"SalesID='"_s + key + u"'"_s).Eof();
    };
    EXPECT_TRUE(found(u"AB"_s));
    EXPECT_TRUE(found(u"ab   "_s));
    EXPECT_FALSE(found(u" ab"_s));
    EXPECT_FALSE(found(u"Ａｂ"_s)) << "full-width letters are others";
    EXPECT_EQ(Gateway().SelectRows(u"DUAL"_s, u"'a'='A ','Ａ'='A'"_s, QString()).Text(0), u"1"_s);
    EXPECT_EQ(Gateway().SelectRows(u"DUAL"_s, u"'a'='A ','Ａ'='A'"_s, QString()).Text(1), u"0"_s);
}

TEST_F(Gate, ALaxServerTakesWhatTheStatementsLeaveOut)
{
    EXPECT_NE(Value(u"SELECT @@global.sql_mode"_s), QString()) << "the server's own mode is a strict one";
    Gateway().InsertRow(u"Sal_List"_s, u"SalNo,ITM"_s, u"'1',''"_s);
    Gateway().InsertRow(u"Sal_List"_s, u"SalNo,ListNo"_s, u"'2','x'"_s);
    EXPECT_EQ(Value(u"SELECT ITM FROM Sal_List WHERE SalNo='1'"_s), u"0"_s);
    EXPECT_EQ(
        Gateway().SelectRows(u"Sal_List"_s, u"ListNo,SalNo"_s, u"SalNo<>'' Group By ListNo"_s).RecordCount(),
        2);
}

TEST_F(Gate, AssignmentsOfOneUpdateRunFromLeftToRight)
{
    Db().Run(u"INSERT INTO PRD_List (ID,Num,Num_Sal) VALUES ('1',100,70)"_s);
    Gateway().UpdateRows(u"PRD_List"_s, u"Num_Sal=Num_Sal-Num+80,Num=80"_s, u"ID='1'"_s);
    EXPECT_EQ(Db().Rows(u"SELECT Num_Sal,Num FROM PRD_List"_s),
              (std::vector<QStringList>{{u"50.000000"_s, u"80.000000"_s}}));
}

TEST_F(Gate, AFailedOpenLeavesTheDriversTextAndAGoodOneNone)
{
    Connect(u"SERVER=localhost;SOCKET=/nowhere/mysql.sock;DATABASE=x;UID=root;PWD=;"_s);
    EXPECT_NO_THROW(Gateway().OpenConnection(Ini()));
    EXPECT_TRUE(Gateway().LastError().contains(u"/nowhere/mysql.sock"_s))
        << qPrintable(Gateway().LastError());
    try {
        Gateway().SelectRows(u"User_List"_s, u"UserName"_s, QString());
        ADD_FAILURE() << "no exception";
    } catch (const DatabaseError& error) {
        EXPECT_EQ(error.Description(), Gateway().LastError());
    }

    Connect(u"SOCKET=%1;DATABASE=no_such_database;UID=root;"_s.arg(TestServer::Instance().Socket()));
    Gateway().OpenConnection(Ini());
    EXPECT_EQ(Gateway().LastError(), u"Unknown database 'no_such_database'"_s);

    Connect(u"SOCKET=%1;DATABASE=mysql;UID=nobody;PWD=x;"_s.arg(TestServer::Instance().Socket()));
    Gateway().OpenConnection(Ini());
    EXPECT_TRUE(Gateway().LastError().contains(u"Access denied"_s)) << qPrintable(Gateway().LastError());

    Connect(u"SOCKET=%1;DATABASE=mysql;UID=root;"_s.arg(TestServer::Instance().Socket()));
    Gateway().OpenConnection(Ini());
    EXPECT_EQ(Gateway().LastError(), QString());
    EXPECT_EQ(Gateway().SelectRows(u"DUAL"_s, u"DATABASE()"_s, QString()).Text(0), u"mysql"_s);
}

TEST_F(Gate, AStatementWithoutAConnectionIsRefused)
{
    Gateway().CloseConnection();
    try {
        Gateway().SelectRows(u"User_List"_s, u"UserName"_s, QString());
        ADD_FAILURE() << "no exception";
    } catch (const DatabaseError& error) {
        EXPECT_EQ(error.Description(), u"数据库尚未连接。"_s);
    }
    EXPECT_NO_THROW(Gateway().CloseConnection());
}

TEST_F(Gate, AServerThatNeverAnswersIsGivenUpAfterTenSeconds)
{
    QTcpServer silent; // takes connections and says nothing
    ASSERT_TRUE(silent.listen(QHostAddress::LocalHost));
    WriteProgramFile(
        u"Data/Data.ini"_s,
        u"[DataProp]\nServerName=127.0.0.1\n[DBType]\nDrive=MYSQL\n[MYSQL]\nConnStr=SERVER=127.0.0.1;PORT=%1;UID=root;\n"_s
            .arg(silent.serverPort()));
    std::optional<std::optional<QString>> date;
    QElapsedTimer timer;
    timer.start();
    FetchServerDateLater(Ini(), qApp, [&date](const std::optional<QString>& answer) { date = answer; });
    EXPECT_LT(timer.elapsed(), 1000) << "asking for the date holds nobody up";
    Gateway().OpenConnection(Ini());
    EXPECT_LT(timer.elapsed(), 14000);
    EXPECT_NE(Gateway().LastError(), QString());
    WaitFor([&date] { return date.has_value(); });
    EXPECT_EQ(*date, std::nullopt);
}

TEST_F(Gate, TheServersDateIsAskedOverAConnectionOfItsOwn)
{
    const QString today = Value(u"SELECT DATE_FORMAT(CURDATE(),'%Y-%m-%d')"_s);
    Gateway().CloseConnection();
    EXPECT_EQ(FetchServerDate(Ini()), today);
    EXPECT_EQ(TakeStatements(), QStringList());

    std::optional<QString> answer;
    FetchServerDateLater(Ini(), qApp, [&answer](const std::optional<QString>& date) { answer = date; });
    WaitFor([&answer] { return answer.has_value(); });
    EXPECT_EQ(answer, today);

    Connect(u"SOCKET=/nowhere/mysql.sock;UID=root;"_s);
    EXPECT_EQ(FetchServerDate(Ini()), std::nullopt);
}

TEST_F(Gate, AnAnswerForAReceiverThatIsGoneIsDropped)
{
    int answers = 0;
    auto receiver = std::make_unique<QObject>();
    FetchServerDateLater(Ini(), receiver.get(), [&answers](const std::optional<QString>&) { ++answers; });
    receiver.reset();
    bool second = false;
    FetchServerDateLater(Ini(), qApp, [&second](const std::optional<QString>&) { second = true; });
    WaitFor([&second] { return second; });
    EXPECT_EQ(answers, 0);
}

TEST(ConnectionText, KeysIgnoreCaseAndValuesMayStandInBraces)
{
    const struct {
        QString text;
        QString server, user, password, database, socket;
        unsigned int port;
    } cases[] = {
        {u"DRIVER={MySQL ODBC 3.51 Driver};SERVER=db;DATABASE=Orvane_PUB;UID=root;PWD=;"_s, u"db"_s,
         u"root"_s, u""_s, u"Orvane_PUB"_s, u""_s, 0},
        {u"server=db;User=u;Password=p;Port=3307;Database=d;Socket=/run/x.sock"_s, u"db"_s, u"u"_s, u"p"_s,
         u"d"_s, u"/run/x.sock"_s, 3307},
        {u" SERVER = db ; UID = u ; PWD = {a;b=c} ; DATABASE = d "_s, u"db"_s, u"u"_s, u"a;b=c"_s, u"d"_s,
         u""_s, 0},
        {u"SERVER={};PWD={ x };UID={u"_s, u""_s, u"u"_s, u" x "_s, u""_s, u""_s, 0},
        {u"PWD=a=b;SERVER=db"_s, u"db"_s, u""_s, u"a=b"_s, u""_s, u""_s, 0},
        {u"OPTION=3;STMT=;SERVER=db;;;"_s, u"db"_s, u""_s, u""_s, u""_s, u""_s, 0},
        {u"SERVER"_s, u""_s, u""_s, u""_s, u""_s, u""_s, 0},
        {u"SERVER=;nonsense;UID=u"_s, u""_s, u"u"_s, u""_s, u""_s, u""_s, 0},
        {u"=;=x;SERVER=db;PORT=abc"_s, u"db"_s, u""_s, u""_s, u""_s, u""_s, 0},
        {u"PWD={a}}b;{c};UID=u;SERVER={x}}}"_s, u"x}"_s, u"u"_s, u"a}b;{c"_s, u""_s, u""_s, 0},
        {u"PWD=密码;UID=用户;SERVER=db"_s, u"db"_s, u"用户"_s, u"密码"_s, u""_s, u""_s, 0},
        {u""_s, u""_s, u""_s, u""_s, u""_s, u""_s, 0},
        {u";"_s, u""_s, u""_s, u""_s, u""_s, u""_s, 0},
        {u"{"_s, u""_s, u""_s, u""_s, u""_s, u""_s, 0},
    };
    for (const auto& c : cases) {
        const ConnectionSettings settings = ParseConnectionText(c.text);
        EXPECT_EQ(settings.server, c.server) << c.text.toStdString();
        EXPECT_EQ(settings.user, c.user) << c.text.toStdString();
        EXPECT_EQ(settings.password, c.password) << c.text.toStdString();
        EXPECT_EQ(settings.database, c.database) << c.text.toStdString();
        EXPECT_EQ(settings.socket, c.socket) << c.text.toStdString();
        EXPECT_EQ(settings.port, c.port) << c.text.toStdString();
    }
}

TEST_F(Gate, WhatTheInstallerWritesIsReadBack)
{
    for (const QString& password :
         {QString(), u"plain"_s, u"a;b=c"_s, u"x}y{z"_s, u" blanks "_s, u"\"q\""_s, u"'s'"_s, u"密码}"_s}) {
        QProcess tool;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"ORVANE_DB_PASSWORD"_s, password);
        tool.setProcessEnvironment(environment);
        tool.start(SourcePath(u"packaging/connection-ini"_s),
                   {u"--ini"_s, Ini(), u"--host"_s, u"db.example"_s, u"--port"_s, u"3307"_s, u"--user"_s,
                    u"till"_s, u"--database"_s, u"Orvane_PUB"_s});
        ASSERT_TRUE(tool.waitForFinished() && tool.exitCode() == 0)
            << tool.readAllStandardError().constData();
        const ConnectionSettings settings = ReadConnectionSettings(Ini());
        EXPECT_EQ(settings.server, u"db.example"_s);
        EXPECT_EQ(settings.port, 3307U);
        EXPECT_EQ(settings.user, u"till"_s);
        EXPECT_EQ(settings.password, password);
        EXPECT_EQ(settings.database, u"Orvane_PUB"_s);
    }
}

TEST_F(Gate, TheConnectionTextDecidesAloneWhereThereIsOne)
{
    const QString keys = u"[DataProp]\nServerName=other\nUserID=someone\nPWD=secret\nDataBase=elsewhere\n"_s;
    WriteProgramFile(
        u"Data/Data.ini"_s,
        keys +
            u"[DBType]\nDrive=Special\n[MYSQL]\nConnStr=SERVER=wrong;\n[SPECIAL]\nConnStr=SERVER=db;UID=u;\n"_s);
    ConnectionSettings settings = ReadConnectionSettings(Ini());
    EXPECT_EQ(settings.server, u"db"_s);
    EXPECT_EQ(settings.user, u"u"_s);
    EXPECT_EQ(settings.password, QString());
    EXPECT_EQ(settings.database, QString());

    for (const QString& rest :
         {QString(), u"[DBType]\nDrive=MYSQL\n"_s, u"[DBType]\nDrive=MYSQL\n[MYSQL]\nConnStr=\n"_s,
          u"[DBType]\nDrive=\n[MYSQL]\nConnStr=SERVER=wrong;\n"_s}) {
        WriteProgramFile(u"Data/Data.ini"_s, keys + rest);
        settings = ReadConnectionSettings(Ini());
        EXPECT_EQ(settings.server, u"other"_s);
        EXPECT_EQ(settings.user, u"someone"_s);
        EXPECT_EQ(settings.password, u"secret"_s);
        EXPECT_EQ(settings.database, u"elsewhere"_s);
    }
}

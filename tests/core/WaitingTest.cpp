#include "core/common/Waiting.h"
#include "core/base/ProgramFiles.h"
#include "core/common/Handlers.h"
#include "core/common/Messages.h"
#include "core/gateway/DataGateway.h"
#include "core/session/ServerDate.h"
#include "tests/support/StoppingProxy.h"
#include "tests/support/WindowTest.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QTest>
#include <QTimer>

#include <functional>
#include <memory>

#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>

using namespace Qt::StringLiterals;

namespace {

const QString LostAdvice =
    u"与数据库的连接断了，程序不会重新连接：此前已保存的仍然有效，请先记下屏幕上的内容，关闭程序后重新登录。"_s;

class Painted : public QWidget {
public:
    int paintings = 0;

protected:
    void paintEvent(QPaintEvent* /*event*/) override { ++paintings; }
};

/// The program's connection goes over a cable that can be pulled.
class Waiting : public WindowTest {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        InstallWaitCursor();
        WriteProgramFile(
            u"Data/Cable.ini"_s,
            u"[DataProp]\nServerName=127.0.0.1\n[DBType]\nDrive=MYSQL\n[MYSQL]\nConnStr=SERVER=127.0.0.1;PORT=%1;DATABASE=%2;UID=root;PWD=;\n"_s
                .arg(m_cable.Port())
                .arg(Value(u"SELECT DATABASE()"_s)));
        Gateway().OpenConnection(CableIni());
        ASSERT_EQ(Gateway().LastError(), QString());
        TakeStatements();
        m_clock.start();
    }
    void TearDown() override
    {
        WindowTest::TearDown();
        Gateway().SetWaitView(nullptr);
    }

    static QString CableIni() { return ProgramPath(u"\\Data\\Cable.ini"_s); }
    static QString Ask(const QString& expression)
    {
        return Gateway().SelectRows(u"DUAL"_s, expression, QString()).Text(0);
    }
    /// The failure of a statement, which must come.
    static std::unique_ptr<DatabaseError> FailureOf(const std::function<void()>& statement)
    {
        try {
            statement();
        } catch (const DatabaseError& error) {
            return std::make_unique<DatabaseError>(error);
        }
        ADD_FAILURE() << "no exception";
        return std::make_unique<DatabaseError>(QString());
    }

    StoppingProxy m_cable;
    QElapsedTimer m_clock;
};

} // namespace

TEST_F(Waiting, AQuickAnswerShowsNothing)
{
    QTimer::singleShot(0, qApp, [] { ADD_FAILURE() << "an event came in the middle of a statement"; });
    EXPECT_EQ(Ask(u"SLEEP(0.2)"_s), u"0"_s);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    QCoreApplication::removePostedEvents(qApp);
}

TEST_F(Waiting, AWaitThatIsFeltShowsTheCursorAndTheWindowsPaint)
{
    Painted window;
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    Settle();
    const int before = window.paintings;
    Qt::CursorShape shape = Qt::ArrowCursor;
    bool wasWaiting = false;
    QTimer::singleShot(700, qApp, [&] {
        wasWaiting = Gateway().IsWaiting();
        if (const QCursor* cursor = QApplication::overrideCursor())
            shape = cursor->shape();
        window.update();
    });
    int paintings = 0;
    QTimer::singleShot(900, qApp, [&] { paintings = Gateway().IsWaiting() ? window.paintings : 0; });
    EXPECT_EQ(Ask(u"SLEEP(1.5)"_s), u"0"_s);
    EXPECT_TRUE(wasWaiting);
    EXPECT_EQ(shape, Qt::WaitCursor);
    EXPECT_GT(paintings, before);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_FALSE(Gateway().IsWaiting());
}

TEST_F(Waiting, NothingIsSentOrClosedInTheMiddleOfAStatement)
{
    QString refusal;
    QStringList order;
    QTimer::singleShot(700, qApp, [&] {
        refusal = FailureOf([] { Ask(u"1"_s); })->Description();
        Gateway().CloseConnection();
        Gateway().OpenConnection(CableIni());
        AfterWait([&order] { order << u"after "_s + Ask(u"2"_s); });
        order << u"during"_s;
    });
    order << u"answer "_s + Ask(u"SLEEP(1.2)"_s);
    EXPECT_EQ(order, (QStringList{u"during"_s, u"answer 0"_s})) << "not before the handler has gone on";
    WaitFor([&order] { return order.size() == 3; });
    EXPECT_EQ(order.last(), u"after 2"_s);
    EXPECT_EQ(refusal, u"上一条语句还没有答复。"_s);
    EXPECT_EQ(Gateway().LastError(), QString());
    AfterWait([&order] { order << u"at once"_s; });
    EXPECT_EQ(order.last(), u"at once"_s);
}

TEST_F(Waiting, AServerThatFallsSilentIsGivenUpAfterTenSecondsForGood)
{
    m_cable.Stop();
    const auto lost = FailureOf([] { Gateway().InsertRow(u"Sales"_s, u"SalesID"_s, u"'07'"_s); });
    EXPECT_GE(m_clock.elapsed(), 9900);
    EXPECT_LT(m_clock.elapsed(), 12000);
    EXPECT_TRUE(lost->IsConnectionLost());
    EXPECT_FALSE(lost->Description().isEmpty());
    EXPECT_EQ(lost->Advice(), LostAdvice);

    m_cable.GoOn();
    m_clock.restart();
    const auto gone = FailureOf([] { Ask(u"5"_s); });
    EXPECT_LT(m_clock.elapsed(), 1000) << "a save of ten statements does not wait ten times";
    EXPECT_TRUE(gone->IsConnectionLost()) << "the late answer is not read as this one's";
    EXPECT_EQ(gone->Advice(), LostAdvice);

    Gateway().OpenConnection(CableIni());
    EXPECT_EQ(Ask(u"6"_s), u"6"_s);
}

TEST_F(Waiting, ALongAnswerMayTakeItsTime)
{
    int asked = 0;
    {
        const DataGateway::LongAnswer longAnswer(Gateway(), [&asked] {
            ++asked;
            return true;
        });
        EXPECT_EQ(Ask(u"SLEEP(10.6)"_s), u"0"_s);
    }
    EXPECT_GT(asked, 100);
    asked = 0;
    Ask(u"SLEEP(0.8)"_s);
    EXPECT_EQ(asked, 0) << "over with its scope";
}

TEST_F(Waiting, ALongAnswerIsCancelledOnTheServerAndTheConnectionStands)
{
    int asked = 0;
    {
        const DataGateway::LongAnswer longAnswer(Gateway(), [&asked] { return ++asked < 5; });
        EXPECT_THROW(Ask(u"SLEEP(30)"_s), AnswerCancelled);
    }
    EXPECT_EQ(asked, 5) << "not asked again";
    EXPECT_LT(m_clock.elapsed(), 5000);
    EXPECT_EQ(
        Value(u"SELECT COUNT(*) FROM information_schema.PROCESSLIST WHERE INFO LIKE 'SELECT SLEEP(30)%'"_s),
        u"0"_s);
    EXPECT_EQ(Ask(u"7"_s), u"7"_s);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(Waiting, RowsOfACancelledAnswerAreNotTakenForTheNext)
{
    {
        const DataGateway::LongAnswer longAnswer(Gateway(), [] { return false; });
        EXPECT_THROW(Gateway().SelectRows(u"seq_1_to_20000"_s, u"seq,SLEEP(0.001)"_s, QString()),
                     AnswerCancelled);
    }
    EXPECT_EQ(Gateway().SelectRows(u"seq_1_to_20000"_s, u"seq"_s, QString()).RecordCount(), 20000);
}

TEST_F(Waiting, AStatementLongerThanTheNetworkTakesAtOnceGoesThrough)
{
    const QString text(3'000'000, u'货');
    EXPECT_EQ(Ask(u"CHAR_LENGTH('%1')"_s.arg(text)), u"3000000"_s);
    EXPECT_EQ(Ask(u"REPEAT('货',3000000)"_s), text);
}

TEST_F(Waiting, TheNetworkProbesAnIdleConnection)
{
    int found = 0;
    const QStringList files = QDir(u"/proc/self/fd"_s).entryList(QDir::System | QDir::Files);
    for (const QString& file : files) {
        const int socket = file.toInt();
        sockaddr_in peer{};
        socklen_t size = sizeof peer;
        if (getpeername(socket, reinterpret_cast<sockaddr*>(&peer), &size) != 0 ||
            peer.sin_family != AF_INET || ntohs(peer.sin_port) != m_cable.Port())
            continue;
        ++found;
        const auto option = [socket](int level, int name) {
            int value = 0;
            socklen_t length = sizeof value;
            getsockopt(socket, level, name, &value, &length);
            return value;
        };
        EXPECT_EQ(option(SOL_SOCKET, SO_KEEPALIVE), 1);
        EXPECT_EQ(option(IPPROTO_TCP, TCP_KEEPIDLE), 30);
        EXPECT_EQ(option(IPPROTO_TCP, TCP_KEEPINTVL), 10);
        EXPECT_EQ(option(IPPROTO_TCP, TCP_KEEPCNT), 3);
    }
    EXPECT_EQ(found, 1);
}

TEST_F(Waiting, TheServersDateIsGivenUpAfterFiveSeconds)
{
    EXPECT_EQ(FetchServerDate(CableIni()), Value(u"SELECT DATE_FORMAT(CURDATE(),'%Y-%m-%d')"_s));
    m_cable.Stop();
    m_clock.restart();
    EXPECT_EQ(FetchServerDate(CableIni()), std::nullopt);
    EXPECT_LT(m_clock.elapsed(), 7000);
    m_cable.GoOn();
}

TEST_F(Waiting, ALostConnectionIsToldWithWhatToDoAndARefusedStatementWithout)
{
    FailStatement(1, Refusal::MissingTable);
    boxes.Expect(Db().Try(u"SELECT 1 FROM Sales_away"_s).replace(u"Sales_away"_s, u"Sales"_s));
    RunHandler([] { Gateway().SelectRows(u"Sales"_s, u"SalesID"_s, QString()); });
    FailStatement(1, Refusal::LostLink);
    for (int time = 0; time < 2; ++time) {
        QString words;
        boxes.ExpectContaining(u"\r\n"_s + LostAdvice);
        RunHandler([&words] {
            try {
                Gateway().SelectRows(u"Sales"_s, u"SalesID"_s, QString());
            } catch (const RunTimeError& error) {
                words = error.Description();
                throw;
            }
        });
        EXPECT_EQ(boxes.Seen().last(), words + u"\r\n"_s + LostAdvice);
        EXPECT_FALSE(words.contains(u"连接"_s)) << "the driver's own";
        EXPECT_FALSE(words.isEmpty());
    }
}

TEST_F(Waiting, AConnectionThatNeverStoodIsNoLostOne)
{
    WriteProgramFile(u"Data/Cable.ini"_s,
                     u"[DBType]\nDrive=MYSQL\n[MYSQL]\nConnStr=SOCKET=/nowhere/mysql.sock;UID=root;\n"_s);
    Gateway().OpenConnection(CableIni());
    const auto refused = FailureOf([] { Ask(u"1"_s); });
    EXPECT_FALSE(refused->IsConnectionLost());
    EXPECT_EQ(refused->Advice(), QString());
}

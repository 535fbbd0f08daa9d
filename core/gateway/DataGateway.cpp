#include "core/gateway/DataGateway.h"

#include "core/gateway/Connection.h"
#include "core/gateway/ConnectionSettings.h"

#include <errmsg.h>

#include <algorithm>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

// Milliseconds. Statements are answered in one or two; a wait that is felt is shown; a server that says
// nothing for so long is not coming back while a buyer stands at the till.
constexpr int UnseenWait = 500;
constexpr int BetweenLooks = 50;
constexpr int LongestSilence = 10000;
constexpr int CancelTime = 2000;

/// The client's own codes for a connection that broke, or had broken before the statement.
bool IsLost(unsigned int code)
{
    return code == CR_SERVER_GONE_ERROR || code == CR_SERVER_LOST || code == CR_SERVER_LOST_EXTENDED;
}

} // namespace

QString DatabaseError::Advice() const
{
    return m_isLost
               ? u"与数据库的连接断了，程序不会重新连接：此前已保存的仍然有效，请先记下屏幕上的内容，关闭程序后重新登录。"_s
               : QString();
}

/// One statement's wait for its answer.
class DataGateway::Wait : public Patience {
public:
    explicit Wait(DataGateway& gateway) : m_gateway(gateway)
    {
        m_gateway.m_isWaiting = true;
        m_clock.start();
        m_silence.start();
    }
    ~Wait() override
    {
        if (m_isSeen && m_gateway.m_view)
            m_gateway.m_view->Ended();
        m_gateway.m_isWaiting = false;
    }

    bool Await(int socket, short events) override
    {
        m_silence.restart();
        for (;;) {
            const auto untilLook = static_cast<int>(std::max<qint64>(0, m_nextLook - m_clock.elapsed()));
            const bool isReady = IsReady(socket, events, untilLook);
            if (m_clock.elapsed() >= m_nextLook)
                Look();
            if (isReady)
                return true;
            if ((m_isCancelled || !m_gateway.m_mayGoOn) && m_silence.elapsed() >= LongestSilence)
                return false;
        }
    }

    bool IsCancelled() const { return m_isCancelled; }

private:
    void Look()
    {
        if (m_gateway.m_view) {
            if (!std::exchange(m_isSeen, true))
                m_gateway.m_view->Began();
            m_gateway.m_view->GoesOn();
        }
        if (!m_isCancelled && m_gateway.m_mayGoOn && !m_gateway.m_mayGoOn()) {
            m_isCancelled = true;
            m_gateway.CancelOnServer();
            m_silence.restart();
        }
        m_nextLook = m_clock.elapsed() + BetweenLooks;
    }

    DataGateway& m_gateway;
    QElapsedTimer m_clock;
    QElapsedTimer m_silence; ///< since the server was heard last
    qint64 m_nextLook = UnseenWait;
    bool m_isSeen = false;
    bool m_isCancelled = false;
};

DataGateway::LongAnswer::LongAnswer(DataGateway& gateway, std::function<bool()> mayGoOn)
    : m_gateway(gateway), m_outer(std::exchange(gateway.m_mayGoOn, std::move(mayGoOn)))
{}

DataGateway::LongAnswer::~LongAnswer()
{
    m_gateway.m_mayGoOn = std::move(m_outer);
}

DataGateway::DataGateway() = default;
DataGateway::~DataGateway() = default;

void DataGateway::OpenConnection(const QString& iniPath)
{
    if (m_isWaiting)
        return;
    CloseConnection();
    m_lastError.clear();
    try {
        m_settings = std::make_unique<ConnectionSettings>(ReadConnectionSettings(iniPath));
    } catch (const RunTimeError& error) {
        m_lastError = error.Description();
        return;
    }
    auto connection = std::make_unique<Connection>();
    Wait wait(*this);
    if (connection->Open(*m_settings, wait))
        m_connection = std::move(connection);
    else
        m_lastError = connection->Error();
}

void DataGateway::CloseConnection()
{
    if (!m_isWaiting)
        m_connection.reset();
}

void DataGateway::CancelOnServer() const
{
    Connection second;
    Deadline deadline(CancelTime);
    if (second.Open(*m_settings, deadline))
        second.Send("KILL QUERY " + QByteArray::number(static_cast<qulonglong>(m_connection->Number())),
                    deadline);
}

Connection& DataGateway::Ready(const QString& statement)
{
    if (m_observer)
        m_observer(statement);
    if (m_isWaiting)
        throw DatabaseError(u"上一条语句还没有答复。"_s);
    if (!m_connection)
        throw DatabaseError(m_lastError.isEmpty() ? u"数据库尚未连接。"_s : m_lastError);
    return *m_connection;
}

void DataGateway::Check(bool isGood, const Wait& wait) const
{
    const bool isLost = !isGood && IsLost(m_connection->ErrorCode());
    if (wait.IsCancelled() && !isLost)
        throw AnswerCancelled();
    if (!isGood)
        throw DatabaseError(m_connection->Error(), isLost);
}

void DataGateway::Run(const QString& statement)
{
    Connection& connection = Ready(statement);
    Wait wait(*this);
    Check(connection.Send(statement.toUtf8(), wait), wait);
}

RecordSet DataGateway::SelectRows(const QString& table, const QString& fields, const QString& where,
                                  int /*spare*/)
{
    const bool isTail = where.isEmpty() || where.startsWith(u' ');
    const QString statement =
        u"SELECT "_s + fields + u" FROM "_s + table + (isTail ? QString() : u" WHERE "_s) + where;
    Connection& connection = Ready(statement);
    Wait wait(*this);
    const bool isSent = connection.Send(statement.toUtf8(), wait);
    std::optional<RecordSet> rows = isSent ? connection.Take(wait) : std::nullopt;
    Check(rows.has_value(), wait);
    return std::move(*rows);
}

void DataGateway::InsertRow(const QString& table, const QString& fields, const QString& values)
{
    Run(u"INSERT INTO "_s + table + u" ("_s + fields + u") VALUES ("_s + values + u')');
}

void DataGateway::UpdateRows(const QString& table, const QString& assignments, const QString& where)
{
    Run(u"UPDATE "_s + table + u" SET "_s + assignments +
        (where.isEmpty() ? QString() : u" WHERE "_s + where));
}

void DataGateway::DeleteRows(const QString& table, const QString& where)
{
    Run(u"DELETE FROM "_s + table + (where.isEmpty() ? QString() : u" WHERE "_s + where));
}

DataGateway& Gateway()
{
    static DataGateway gateway;
    return gateway;
}

QString Quoted(const QString& text)
{
    return u'\'' + text + u'\'';
}

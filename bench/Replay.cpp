#include "bench/Replay.h"

#include "core/gateway/ConnectionSettings.h"

#include <mysql.h>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;
using Clock = std::chrono::steady_clock;

void GiveUp(const QString& why)
{
    std::fprintf(stderr, "orvane-bench: %s\n", qPrintable(why));
    std::exit(1);
}

struct Replay::Connection {
    MYSQL* handle = mysql_init(nullptr);

    Connection() = default;
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    ~Connection() { mysql_close(handle); }

    /// The whole result, nullptr for a statement without one.
    MYSQL_RES* Send(const QByteArray& statement)
    {
        MYSQL_RES* result = nullptr;
        if (mysql_real_query(handle, statement.constData(), static_cast<unsigned long>(statement.size())) ==
            0)
            result = mysql_store_result(handle);
        if (mysql_errno(handle) != 0)
            GiveUp(QString::fromUtf8(mysql_error(handle)) + u": "_s + QString::fromUtf8(statement));
        return result;
    }

    void Do(const QByteArray& statement)
    {
        if (MYSQL_RES* result = Send(statement))
            mysql_free_result(result);
    }
};

Replay::Replay(const QString& iniPath) : m_connection(std::make_unique<Connection>())
{
    const ConnectionSettings settings = ReadConnectionSettings(iniPath);
    mysql_options(m_connection->handle, MYSQL_SET_CHARSET_NAME, "utf8mb4");
    const QByteArray socket = settings.socket.toUtf8();
    if (mysql_real_connect(m_connection->handle, settings.server.toUtf8().constData(),
                           settings.user.toUtf8().constData(), settings.password.toUtf8().constData(),
                           settings.database.toUtf8().constData(), settings.port,
                           socket.isEmpty() ? nullptr : socket.constData(), 0) == nullptr)
        GiveUp(QString::fromUtf8(mysql_error(m_connection->handle)));
    m_connection->Do("SET NAMES utf8mb4 COLLATE utf8mb4_general_ci");
    m_connection->Do("SET SESSION sql_mode=''");
}

Replay::~Replay() = default;

void Replay::Run(const std::vector<QByteArray>& statements, Sample& sample)
{
    sample.statements = static_cast<int>(statements.size());
    const auto start = Clock::now();
    auto before = start;
    for (const QByteArray& statement : statements) {
        m_connection->Do(statement);
        const auto now = Clock::now();
        if (!statement.startsWith("SELECT")) {
            ++sample.writes;
            sample.replayWrites += now - before;
        }
        before = now;
    }
    sample.replay = before - start;
}

void Replay::Do(const QString& statement)
{
    m_connection->Do(statement.toUtf8());
}

QStringList Replay::Column(const QString& select)
{
    QStringList values;
    MYSQL_RES* result = m_connection->Send(select.toUtf8());
    while (MYSQL_ROW row = mysql_fetch_row(result))
        values << QString::fromUtf8(row[0]);
    mysql_free_result(result);
    return values;
}

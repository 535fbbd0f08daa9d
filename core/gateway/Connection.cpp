#include "core/gateway/Connection.h"

#include <QVariant>

#include <mysql.h>

#include <algorithm>
#include <cerrno>
#include <memory>
#include <utility>
#include <vector>

#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>

namespace {

// The library runs an operation that can pause on a stack of its own. Its default is too short for the
// look-up of a host name, which may load modules of the system.
constexpr std::size_t OperationStack = std::size_t{512} * 1024;

// Seconds. A server that was unplugged while a till stood idle is found dead before the next ticket, and
// a router on the way does not forget the connection.
constexpr int IdleBeforeProbe = 30;
constexpr int BetweenProbes = 10;
constexpr int ProbesUnanswered = 3;

QVariant NaturalValue(const MYSQL_FIELD& column, const char* bytes, unsigned long length)
{
    if (bytes == nullptr)
        return {};
    switch (column.type) {
    case MYSQL_TYPE_TINY:
    case MYSQL_TYPE_SHORT:
    case MYSQL_TYPE_LONG:
    case MYSQL_TYPE_INT24:
    case MYSQL_TYPE_LONGLONG:
        return QByteArray::fromRawData(bytes, static_cast<qsizetype>(length)).toLongLong();
    case MYSQL_TYPE_DECIMAL:
    case MYSQL_TYPE_NEWDECIMAL:
    case MYSQL_TYPE_FLOAT:
    case MYSQL_TYPE_DOUBLE:
        return QByteArray::fromRawData(bytes, static_cast<qsizetype>(length)).toDouble();
    default:
        return QString::fromUtf8(bytes, static_cast<qsizetype>(length));
    }
}

short PollEvents(int wanted)
{
    return static_cast<short>(((wanted & MYSQL_WAIT_READ) != 0 ? POLLIN : 0) |
                              ((wanted & MYSQL_WAIT_WRITE) != 0 ? POLLOUT : 0) |
                              ((wanted & MYSQL_WAIT_EXCEPT) != 0 ? POLLPRI : 0));
}

void KeepAlive(int socket)
{
    const auto set = [socket](int level, int option, int value) {
        setsockopt(socket, level, option, &value, sizeof value); // a unix socket takes none of them
    };
    set(SOL_SOCKET, SO_KEEPALIVE, 1);
    set(IPPROTO_TCP, TCP_KEEPIDLE, IdleBeforeProbe);
    set(IPPROTO_TCP, TCP_KEEPINTVL, BetweenProbes);
    set(IPPROTO_TCP, TCP_KEEPCNT, ProbesUnanswered);
}

/// Carries an operation of the library through: `start` begins it, `resume` goes on with it once the socket
/// is ready for what it waits for. Both return what is waited for next, 0 at the end.
template <typename Start, typename Resume>
void CarryOut(MYSQL* handle, Patience& patience, Start start, Resume resume)
{
    bool isGivenUp = false;
    for (int wanted = start(); wanted != 0;) {
        isGivenUp =
            isGivenUp || !patience.Await(static_cast<int>(mysql_get_socket(handle)), PollEvents(wanted));
        // Told of a timeout, the library closes the connection and ends the operation with its own words.
        wanted = resume(isGivenUp ? MYSQL_WAIT_TIMEOUT : wanted);
    }
}

} // namespace

bool IsReady(int socket, short events, int milliseconds)
{
    QElapsedTimer clock;
    clock.start();
    pollfd wait{socket, events, 0};
    for (;;) {
        const int left = std::max(0, milliseconds - static_cast<int>(clock.elapsed()));
        const int ready = poll(&wait, 1, left);
        if (ready >= 0 || errno != EINTR)
            return ready != 0; // what poll cannot tell, the operation itself will
    }
}

bool Deadline::Await(int socket, short events)
{
    return IsReady(socket, events, m_milliseconds - static_cast<int>(m_clock.elapsed()));
}

Connection::Connection() : m_handle(mysql_init(nullptr))
{
    mysql_options(m_handle, MYSQL_OPT_NONBLOCK, &OperationStack);
    mysql_options(m_handle, MYSQL_SET_CHARSET_NAME, "utf8mb4");
}

Connection::~Connection()
{
    mysql_close(m_handle);
}

void Connection::PrepareThreads()
{
    mysql_library_init(0, nullptr, nullptr);
}

void Connection::EndThread()
{
    mysql_thread_end();
}

bool Connection::Open(const ConnectionSettings& settings, Patience& patience)
{
    const QByteArray server = settings.server.toUtf8();
    const QByteArray user = settings.user.toUtf8();
    const QByteArray password = settings.password.toUtf8();
    const QByteArray database = settings.database.toUtf8();
    const QByteArray socket = settings.socket.toUtf8();
    MYSQL* opened = nullptr;
    CarryOut(
        m_handle, patience,
        [&] {
            return mysql_real_connect_start(&opened, m_handle, server.constData(), user.constData(),
                                            password.constData(), database.constData(), settings.port,
                                            socket.isEmpty() ? nullptr : socket.constData(), 0);
        },
        [&](int ready) { return mysql_real_connect_cont(&opened, m_handle, ready); });
    if (opened == nullptr)
        return false;
    KeepAlive(static_cast<int>(mysql_get_socket(m_handle)));
    // The columns' collation ignores case and trailing blanks; literals must compare alike. A lax mode is
    // needed by statements that leave columns out or group by one column and read others. A till left
    // open over night or over the holidays keeps its connection.
    return Send("SET NAMES utf8mb4 COLLATE utf8mb4_general_ci", patience) &&
           Send("SET SESSION sql_mode='',wait_timeout=31536000", patience);
}

bool Connection::Send(const QByteArray& statement, Patience& patience)
{
    int failure = 0;
    CarryOut(
        m_handle, patience,
        [&] {
            return mysql_real_query_start(&failure, m_handle, statement.constData(),
                                          static_cast<unsigned long>(statement.size()));
        },
        [&](int ready) { return mysql_real_query_cont(&failure, m_handle, ready); });
    return failure == 0;
}

std::optional<RecordSet> Connection::Take(Patience& patience)
{
    MYSQL_RES* taken = nullptr;
    CarryOut(
        m_handle, patience, [&] { return mysql_store_result_start(&taken, m_handle); },
        [&](int ready) { return mysql_store_result_cont(&taken, m_handle, ready); });
    const std::unique_ptr<MYSQL_RES, decltype(&mysql_free_result)> result(taken, &mysql_free_result);
    if (!result)
        return std::nullopt;
    const unsigned int columns = mysql_num_fields(result.get());
    const MYSQL_FIELD* types = mysql_fetch_fields(result.get());
    std::vector<RecordSet::Row> rows;
    rows.reserve(mysql_num_rows(result.get()));
    while (MYSQL_ROW row = mysql_fetch_row(result.get())) {
        const unsigned long* lengths = mysql_fetch_lengths(result.get());
        RecordSet::Row values;
        values.reserve(columns);
        for (unsigned int i = 0; i < columns; ++i)
            values.push_back(NaturalValue(types[i], row[i], lengths[i]));
        rows.push_back(std::move(values));
    }
    return RecordSet(std::move(rows));
}

QString Connection::Error() const
{
    return QString::fromUtf8(mysql_error(m_handle));
}

unsigned int Connection::ErrorCode() const
{
    return mysql_errno(m_handle);
}

unsigned long Connection::Number() const
{
    return mysql_thread_id(m_handle);
}

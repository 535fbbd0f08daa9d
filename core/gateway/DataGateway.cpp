#include "core/gateway/DataGateway.h"

#include "core/gateway/ConnectionSettings.h"

#include <mysql.h>

using namespace Qt::StringLiterals;

namespace {

// Seconds. An unplugged server must not freeze a till; a long report must not be cut off.
constexpr unsigned int ConnectTimeout = 10;
constexpr unsigned int AnswerTimeout = 300;

QString DriverText(MYSQL* handle)
{
    return QString::fromUtf8(mysql_error(handle));
}

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

} // namespace

struct DataGateway::Connection {
    MYSQL* handle = mysql_init(nullptr);

    Connection() = default;
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    ~Connection() { mysql_close(handle); }

    bool Open(const ConnectionSettings& settings)
    {
        mysql_options(handle, MYSQL_OPT_CONNECT_TIMEOUT, &ConnectTimeout);
        mysql_options(handle, MYSQL_OPT_READ_TIMEOUT, &AnswerTimeout);
        mysql_options(handle, MYSQL_OPT_WRITE_TIMEOUT, &AnswerTimeout);
        mysql_options(handle, MYSQL_SET_CHARSET_NAME, "utf8mb4");
        const QByteArray server = settings.server.toUtf8();
        const QByteArray user = settings.user.toUtf8();
        const QByteArray password = settings.password.toUtf8();
        const QByteArray database = settings.database.toUtf8();
        const QByteArray socket = settings.socket.toUtf8();
        if (mysql_real_connect(handle, server.constData(), user.constData(), password.constData(),
                               database.constData(), settings.port,
                               socket.isEmpty() ? nullptr : socket.constData(), 0) == nullptr)
            return false;
        // The columns' collation ignores case and trailing blanks; literals must compare alike. A lax
        // mode is needed by statements that leave columns out or group by one column and read others. A
        // till left open over night or over the holidays keeps its connection.
        return mysql_query(handle, "SET NAMES utf8mb4 COLLATE utf8mb4_general_ci") == 0 &&
               mysql_query(handle, "SET SESSION sql_mode='',wait_timeout=31536000") == 0;
    }
};

DataGateway::DataGateway() = default;
DataGateway::~DataGateway() = default;

void DataGateway::OpenConnection(const QString& iniPath)
{
    CloseConnection();
    m_lastError.clear();
    auto connection = std::make_unique<Connection>();
    if (connection->Open(ReadConnectionSettings(iniPath)))
        m_connection = std::move(connection);
    else
        m_lastError = DriverText(connection->handle);
}

void DataGateway::CloseConnection()
{
    m_connection.reset();
}

void DataGateway::Send(const QString& statement)
{
    if (m_observer)
        m_observer(statement);
    if (!m_connection)
        throw DatabaseError(m_lastError.isEmpty() ? u"数据库尚未连接。"_s : m_lastError);
    const QByteArray bytes = statement.toUtf8();
    if (mysql_real_query(m_connection->handle, bytes.constData(), static_cast<unsigned long>(bytes.size())) !=
        0)
        throw DatabaseError(DriverText(m_connection->handle));
}

RecordSet DataGateway::SelectRows(const QString& table, const QString& fields, const QString& where,
                                  int /*spare*/)
{
    const bool isTail = where.isEmpty() || where.startsWith(u' ');
    Send(u"SELECT "_s + fields + u" FROM "_s + table + (isTail ? QString() : u" WHERE "_s) + where);

    const std::unique_ptr<MYSQL_RES, decltype(&mysql_free_result)> result(
        mysql_store_result(m_connection->handle), &mysql_free_result);
    if (!result)
        throw DatabaseError(DriverText(m_connection->handle));
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

void DataGateway::InsertRow(const QString& table, const QString& fields, const QString& values)
{
    Send(u"INSERT INTO "_s + table + u" ("_s + fields + u") VALUES ("_s + values + u')');
}

void DataGateway::UpdateRows(const QString& table, const QString& assignments, const QString& where)
{
    Send(u"UPDATE "_s + table + u" SET "_s + assignments +
         (where.isEmpty() ? QString() : u" WHERE "_s + where));
}

void DataGateway::DeleteRows(const QString& table, const QString& where)
{
    Send(u"DELETE FROM "_s + table + (where.isEmpty() ? QString() : u" WHERE "_s + where));
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

#include "tests/support/TestServer.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStorageInfo>
#include <QTemporaryDir>

#include <mysql.h>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void GiveUp(const QString& why)
{
    std::fprintf(stderr, "%s\n", qPrintable(why));
    std::exit(3);
}

const QString& TemplateName()
{
    static const QString name = u"orvane_template_%1"_s.arg(QCoreApplication::applicationPid());
    return name;
}

void RunTool(const QString& tool, const QStringList& arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(SourcePath(tool), arguments);
    if (!process.waitForFinished(120000) || process.exitCode() != 0)
        GiveUp(tool + u": "_s + QString::fromUtf8(process.readAll()));
}

/// Where the server keeps its data: in memory where the machine offers it. A database is made and dropped
/// for each test, and on a busy disk that is most of a run's time.
QString DataFolder()
{
    constexpr qint64 Room = qint64(1) << 30; // bytes; a run takes about a quarter of it
    const QString memory = u"/dev/shm"_s;
    const QStorageInfo storage(memory);
    const bool hasRoom = storage.isValid() && storage.fileSystemType() == "tmpfs" &&
                         storage.bytesAvailable() > Room && QFileInfo(memory).isWritable();
    return hasRoom ? memory : QDir::tempPath();
}

} // namespace

QString SourcePath(const QString& file)
{
    return QString::fromUtf8(ORVANE_SOURCE_DIR) + u'/' + file;
}

TestServer& TestServer::Instance()
{
    static TestServer server;
    return server;
}

TestServer::TestServer() : m_socket(qEnvironmentVariable("ORVANE_TEST_SOCKET"))
{
    if (!m_socket.isEmpty())
        return;
    QTemporaryDir directory(DataFolder() + u"/orvane-test-XXXXXX"_s);
    directory.setAutoRemove(false);
    m_directory = directory.path();
    RunTool(u"packaging/local-server"_s, {u"start"_s, m_directory, u"--fast"_s});
    m_socket = m_directory + u"/mysql.sock"_s;
}

void TestServer::Stop()
{
    SideConnection().Run(u"DROP DATABASE IF EXISTS "_s + TemplateName());
    if (m_directory.isEmpty())
        return;
    RunTool(u"packaging/local-server"_s, {u"stop"_s, m_directory});
    QDir(m_directory).removeRecursively();
    m_directory.clear();
}

struct SideConnection::Handle {
    MYSQL* mysql = mysql_init(nullptr);
    Handle() = default;
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    ~Handle() { mysql_close(mysql); }
};

SideConnection::SideConnection(const QString& database) : m_handle(std::make_unique<Handle>())
{
    mysql_options(m_handle->mysql, MYSQL_SET_CHARSET_NAME, "utf8mb4");
    if (mysql_real_connect(m_handle->mysql, nullptr, "root", "",
                           database.isEmpty() ? nullptr : database.toUtf8().constData(), 0,
                           TestServer::Instance().Socket().toUtf8().constData(),
                           CLIENT_MULTI_STATEMENTS) == nullptr)
        GiveUp(QString::fromUtf8(mysql_error(m_handle->mysql)));
}

SideConnection::~SideConnection() = default;

QString SideConnection::Try(const QString& sql)
{
    const QByteArray bytes = sql.toUtf8();
    int status =
        mysql_real_query(m_handle->mysql, bytes.constData(), static_cast<unsigned long>(bytes.size()));
    while (status == 0) {
        if (MYSQL_RES* result = mysql_store_result(m_handle->mysql))
            mysql_free_result(result);
        status = mysql_next_result(m_handle->mysql);
    }
    return status > 0 ? QString::fromUtf8(mysql_error(m_handle->mysql)) : QString();
}

void SideConnection::Run(const QString& sql)
{
    const QString refusal = Try(sql);
    if (!refusal.isEmpty())
        GiveUp(refusal + u"\n"_s + sql.left(500));
}

std::vector<QStringList> SideConnection::Rows(const QString& select)
{
    const QByteArray bytes = select.toUtf8();
    if (mysql_real_query(m_handle->mysql, bytes.constData(), static_cast<unsigned long>(bytes.size())) != 0)
        GiveUp(QString::fromUtf8(mysql_error(m_handle->mysql)) + u"\n"_s + select);
    MYSQL_RES* result = mysql_store_result(m_handle->mysql);
    std::vector<QStringList> rows;
    const unsigned int columns = mysql_num_fields(result);
    while (MYSQL_ROW row = mysql_fetch_row(result)) {
        QStringList values;
        for (unsigned int i = 0; i < columns; ++i)
            values << (row[i] ? QString::fromUtf8(row[i]) : u"<NULL>"_s);
        rows.push_back(values);
    }
    mysql_free_result(result);
    return rows;
}

QString SideConnection::Value(const QString& select)
{
    const auto rows = Rows(select);
    if (rows.size() != 1 || rows[0].size() != 1)
        GiveUp(u"not one value: "_s + select);
    return rows[0][0];
}

namespace {

/// The tables of the template; makes the template at the first call.
const QStringList& TemplateTables()
{
    static const QStringList tables = [] {
        SideConnection().Run(u"DROP DATABASE IF EXISTS "_s + TemplateName());
        RunTool(u"packaging/create-account-set"_s, {u"--socket"_s, TestServer::Instance().Socket(),
                                                    u"--user"_s, u"root"_s, u"--database"_s, TemplateName()});
        QStringList names;
        for (const QStringList& row : SideConnection(TemplateName()).Rows(u"SHOW TABLES"_s))
            names << row[0];
        return names;
    }();
    return tables;
}

} // namespace

TestDatabase::TestDatabase()
{
    static int serial = 0;
    m_name = u"orvane_test_%1_%2"_s.arg(QCoreApplication::applicationPid()).arg(++serial);
    QString sql = u"CREATE DATABASE %1 CHARACTER SET utf8mb4 COLLATE utf8mb4_general_ci;"_s.arg(m_name);
    for (const QString& table : TemplateTables()) {
        sql += u"CREATE TABLE %1.%2 LIKE %3.%2; INSERT INTO %1.%2 SELECT * FROM %3.%2;"_s.arg(m_name, table,
                                                                                              TemplateName());
    }
    SideConnection().Run(sql);
}

TestDatabase::~TestDatabase()
{
    SideConnection().Run(u"DROP DATABASE "_s + m_name);
}

QString TestDatabase::ConnectionText() const
{
    return u"DRIVER={MySQL ODBC 3.51 Driver};SERVER=localhost;SOCKET=%1;DATABASE=%2;UID=root;PWD=;"_s.arg(
        TestServer::Instance().Socket(), m_name);
}

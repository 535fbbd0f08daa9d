#pragma once

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

/// Where a file of the source tree stands ("packaging/connection-ini"), for tests that run a tool.
QString SourcePath(const QString& file);

/// The private database server of a test run: the one that ORVANE_TEST_SOCKET names, or one that this
/// process starts in a temporary folder and stops at its end.
class TestServer {
public:
    static TestServer& Instance();

    /// Path of the server's unix socket.
    QString Socket() const { return m_socket; }

    /// Drops what the run left on the server, and stops a server started here. Called once, at the end
    /// of the process.
    void Stop();

private:
    TestServer();

    QString m_socket;
    QString m_directory; ///< empty for a server that somebody else started
};

/// A connection of the tests' own, beside the program's: what it reads is what really stands in the
/// tables, what it does is another workstation's doing.
class SideConnection {
public:
    explicit SideConnection(const QString& database = QString());
    ~SideConnection();
    SideConnection(const SideConnection&) = delete;
    SideConnection& operator=(const SideConnection&) = delete;

    /// Runs one statement or several; a refused one ends the test process with its text.
    void Run(const QString& sql);
    /// Runs one statement and tells the refusal's text; empty when it went well.
    QString Try(const QString& sql);
    /// All rows of a select, every value as the server's text, NULL as "<NULL>".
    std::vector<QStringList> Rows(const QString& select);
    /// The only value of a select.
    QString Value(const QString& select);

private:
    struct Handle;
    std::unique_ptr<Handle> m_handle;
};

/// A database of a test case's own, made from the schema and its seed rows; dropped at the end.
class TestDatabase {
public:
    TestDatabase();
    ~TestDatabase();
    TestDatabase(const TestDatabase&) = delete;
    TestDatabase& operator=(const TestDatabase&) = delete;

    const QString& Name() const { return m_name; }
    /// The connection text of a connection ini.
    QString ConnectionText() const;

private:
    QString m_name;
};

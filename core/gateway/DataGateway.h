#pragma once

#include "core/base/RunTimeError.h"
#include "core/gateway/RecordSet.h"

#include <QString>

#include <functional>
#include <memory>

/// A statement that the server refused, or one sent without a connection. The description is the
/// driver's own text.
class DatabaseError : public RunTimeError {
public:
    using RunTimeError::RunTimeError;
};

/// The one way to the database. Callers compose their SQL text themselves; nothing is escaped, bound,
/// retried or grouped into a transaction here: each statement stands for itself, and a save is a
/// sequence of them. A lost connection shows as a refused statement, and is not opened again.
class DataGateway {
public:
    DataGateway();
    ~DataGateway();
    DataGateway(const DataGateway&) = delete;
    DataGateway& operator=(const DataGateway&) = delete;

    /// Reads the connection ini and opens the connection: utf8mb4 with case and trailing blanks ignored
    /// in compares, and a lax SQL mode. Does not throw: a failure leaves its text in LastError.
    void OpenConnection(const QString& iniPath);

    /// SELECT fields FROM table, then the where text: nothing when it is empty; as it stands when it
    /// begins with a blank (an order clause alone); else behind WHERE. `spare` has no effect.
    /// @throws DatabaseError
    RecordSet SelectRows(const QString& table, const QString& fields, const QString& where, int spare = 0);

    /// INSERT INTO table (fields) VALUES (values). @throws DatabaseError
    void InsertRow(const QString& table, const QString& fields, const QString& values);

    /// UPDATE table SET assignments WHERE where; an empty where changes every row. @throws DatabaseError
    void UpdateRows(const QString& table, const QString& assignments, const QString& where);

    /// DELETE FROM table WHERE where; an empty where deletes every row. @throws DatabaseError
    void DeleteRows(const QString& table, const QString& where);

    void CloseConnection();

    /// The text of the last failed OpenConnection, empty after a good one.
    QString LastError() const { return m_lastError; }

    /// Called with each statement's text just before it is sent. For the tests' log and the bench.
    using StatementObserver = std::function<void(const QString&)>;
    void SetStatementObserver(StatementObserver observer) { m_observer = std::move(observer); }

private:
    struct Connection;

    void Send(const QString& statement);

    std::unique_ptr<Connection> m_connection;
    QString m_lastError;
    StatementObserver m_observer;
};

/// A text as a value of a statement, between quotes. Quotes and backslashes in it go in as they were typed.
QString Quoted(const QString& text);

/// The database object of the process, created on first use.
DataGateway& Gateway();

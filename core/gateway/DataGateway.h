#pragma once

#include "core/base/RunTimeError.h"
#include "core/gateway/RecordSet.h"

#include <QString>

#include <functional>
#include <memory>
#include <utility>

class Connection;
struct ConnectionSettings;

/// A statement that the server refused, or one sent without a connection. The description is the
/// driver's own text.
class DatabaseError : public RunTimeError {
public:
    explicit DatabaseError(QString description, bool isLost = false)
        : RunTimeError(std::move(description)), m_isLost(isLost)
    {}

    /// True when the connection broke, or had broken before.
    bool IsConnectionLost() const { return m_isLost; }
    QString Advice() const override;

private:
    bool m_isLost;
};

/// A long answer was cancelled by whoever waited for it. The connection stands.
class AnswerCancelled : public RunTimeError {
public:
    AnswerCancelled() : RunTimeError(QStringLiteral("查询已取消。")) {}
};

/// What the user sees while an answer is long in coming. The calls come from inside a statement: none may
/// send another, close the connection or throw.
class WaitView {
public:
    WaitView() = default;
    virtual ~WaitView() = default;
    WaitView(const WaitView&) = delete;
    WaitView& operator=(const WaitView&) = delete;

    virtual void Began() = 0;  ///< half a second has passed
    virtual void GoesOn() = 0; ///< some twenty times a second from then on
    virtual void Ended() = 0;  ///< once after Began, whatever came of it
};

/// The one way to the database. Callers compose their SQL text themselves; nothing is escaped, bound,
/// retried or grouped into a transaction here: each statement stands for itself, and a save is a
/// sequence of them. A lost connection shows as a refused statement, and is not opened again. A server
/// silent for ten seconds is a lost connection, unless a LongAnswer stands.
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

    /// Not while an answer is awaited: nothing happens then.
    void CloseConnection();

    /// The text of the last failed OpenConnection, empty after a good one.
    QString LastError() const { return m_lastError; }

    /// Called with each statement's text just before it is sent. For the tests' log and the bench.
    using StatementObserver = std::function<void(const QString&)>;
    void SetStatementObserver(StatementObserver observer) { m_observer = std::move(observer); }

    /// Told of waits from half a second on; nullptr for none. The caller keeps ownership.
    void SetWaitView(WaitView* view) { m_view = view; }
    /// True while an answer is awaited, which code run by a WaitView may ask: another statement is refused
    /// until then.
    bool IsWaiting() const { return m_isWaiting; }

    /// While one stands, an answer may take as long as `mayGoOn` says true. It is asked from half a second
    /// on, some twenty times a second, under the rules of WaitView. False cancels the statement on the
    /// server, over a second connection, and the statement throws AnswerCancelled; a server that does not
    /// even take that is a lost connection after ten seconds.
    class LongAnswer {
    public:
        LongAnswer(DataGateway& gateway, std::function<bool()> mayGoOn);
        ~LongAnswer();
        LongAnswer(const LongAnswer&) = delete;
        LongAnswer& operator=(const LongAnswer&) = delete;

    private:
        DataGateway& m_gateway;
        std::function<bool()> m_outer;
    };

private:
    class Wait;

    Connection& Ready(const QString& statement);
    void Run(const QString& statement);
    void Check(bool isGood, const Wait& wait) const;
    void CancelOnServer() const;

    std::unique_ptr<Connection> m_connection;
    std::unique_ptr<ConnectionSettings> m_settings; ///< of the connection
    QString m_lastError;
    StatementObserver m_observer;
    WaitView* m_view = nullptr;
    std::function<bool()> m_mayGoOn;
    bool m_isWaiting = false;
};

/// A text as a value of a statement, between quotes. Quotes and backslashes in it go in as they were typed.
QString Quoted(const QString& text);

/// The database object of the process, created on first use.
DataGateway& Gateway();

#pragma once

#include "core/gateway/ConnectionSettings.h"
#include "core/gateway/RecordSet.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QString>

#include <optional>

// The client library's own types, which nobody else needs to see.
struct st_mysql;

/// How long somebody waits for the server, and what he does meanwhile.
class Patience {
public:
    Patience() = default;
    virtual ~Patience() = default;
    Patience(const Patience&) = delete;
    Patience& operator=(const Patience&) = delete;

    /// Waits until `socket` is ready for `events` (those of poll). False when it is given up.
    virtual bool Await(int socket, short events) = 0;
};

/// Gives up so many milliseconds after it was made, however often the server has been heard since.
class Deadline : public Patience {
public:
    explicit Deadline(int milliseconds) : m_milliseconds(milliseconds) { m_clock.start(); }
    bool Await(int socket, short events) override;

private:
    int m_milliseconds;
    QElapsedTimer m_clock;
};

/// Waits on a socket for so many milliseconds at the most (none: only looks). True when it is ready.
bool IsReady(int socket, short events, int milliseconds);

/// One connection to the server, as every part of the program enters it: utf8mb4 with case and trailing
/// blanks ignored in compares, a lax SQL mode, a dead server noticed by the network itself. Nothing blocks
/// but the Patience that a call is given; a call that was given up leaves no connection behind, so that a
/// late answer is never read as the answer of the next statement. Used by one thread at a time.
class Connection {
public:
    Connection();
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    /// To be called by the main thread before a second one makes a connection.
    static void PrepareThreads();
    /// To be called at its end by a second thread that made one.
    static void EndThread();

    /// Once, before anything else. False: Error tells why.
    bool Open(const ConnectionSettings& settings, Patience& patience);
    /// Sends a statement and waits for what the server says to it. False: Error tells why.
    bool Send(const QByteArray& statement, Patience& patience);
    /// The rows of the select that was sent last. None: Error tells why.
    std::optional<RecordSet> Take(Patience& patience);

    /// The driver's text of the last failure.
    QString Error() const;
    /// The driver's code of the last failure, 0 without one.
    unsigned int ErrorCode() const;
    /// The number by which the server knows the connection.
    unsigned long Number() const;

private:
    st_mysql* m_handle;
};

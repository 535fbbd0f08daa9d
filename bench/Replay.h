#pragma once

#include "bench/Samples.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

/// Ends the measurement: a number measured on the wrong thing is worse than none.
[[noreturn]] void GiveUp(const QString& why);

/// The C client alone: a connection set up like the gateway's, beside it, that sends statements and
/// fetches their results and does nothing with them.
class Replay {
public:
    /// Connects to what the connection ini says.
    explicit Replay(const QString& iniPath);
    ~Replay();
    Replay(const Replay&) = delete;
    Replay& operator=(const Replay&) = delete;

    /// Sends the statements in their order and fills in the replay's fields of the sample.
    void Run(const std::vector<QByteArray>& statements, Sample& sample);

    /// For what has to be prepared or looked up. Not timed.
    void Do(const QString& statement);
    /// The first column of a select.
    QStringList Column(const QString& select);

private:
    struct Connection;
    std::unique_ptr<Connection> m_connection;
};

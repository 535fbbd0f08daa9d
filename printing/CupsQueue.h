#pragma once

#include <QByteArray>
#include <QList>
#include <QPageSize>
#include <QString>

#include <cups/cups.h>

#include <memory>

/// The default print queue, asked over one connection that gives up on a print server that does not
/// answer. Only plain requests go over it: the library's helpers that look for queues or make jobs fall
/// back on a connection of their own, which waits a minute for each answer.
class CupsQueue {
public:
    enum class State {
        None,   ///< no print server, or one without a default queue
        Silent, ///< the server took the question and did not answer in time
        Known
    };

    /// Asks which queue is the default: the one that LPDEST or PRINTER names, else the server's own.
    CupsQueue();

    State Found() const { return m_state; }

    /// The sizes of an attribute that names papers ("media-supported", "media-default"), in the queue's
    /// order. Empty when the queue tells none.
    QList<QPageSize> Papers(const char* attribute);

    /// Hands over a PDF document of one paper, in one request: the queue has all of it or nothing. Empty
    /// when the queue took it, else why not, without quotes.
    QString Refusal(const QString& title, const QPageSize& paper, bool isLandscape,
                    const QByteArray& document);

private:
    template <auto Close>
    struct Closer {
        template <typename Handle>
        void operator()(Handle* handle) const
        {
            Close(handle);
        }
    };
    using Message = std::unique_ptr<ipp_t, Closer<ippDelete>>;

    Message Request(ipp_op_t operation) const;

    std::unique_ptr<http_t, Closer<httpClose>> m_connection;
    QByteArray m_name;
    State m_state = State::None;
};

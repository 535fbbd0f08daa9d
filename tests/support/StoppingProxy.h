#pragma once

#include <QtGlobal>

#include <atomic>
#include <thread>

/// A cable to the test server that can be pulled: passes connections of 127.0.0.1 on to the server's socket,
/// until it is told to pass nothing more. What was sent meanwhile goes on its way when it is told to go on.
class StoppingProxy {
public:
    StoppingProxy();
    ~StoppingProxy();
    StoppingProxy(const StoppingProxy&) = delete;
    StoppingProxy& operator=(const StoppingProxy&) = delete;

    quint16 Port() const { return m_port; }
    void Stop() { m_isStopped = true; }
    void GoOn() { m_isStopped = false; }

private:
    void Run();

    int m_listener = -1;
    quint16 m_port = 0;
    std::atomic<bool> m_isStopped = false;
    std::atomic<bool> m_isOver = false;
    std::thread m_thread;
};

#include "tests/support/StoppingProxy.h"

#include "tests/support/TestServer.h"

#include <QByteArray>

#include <algorithm>
#include <array>
#include <cstring>
#include <stdexcept>
#include <utility>
#include <vector>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

constexpr int RoundTime = 5; // milliseconds

int ConnectToServer()
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const QByteArray path = TestServer::Instance().Socket().toLocal8Bit();
    std::memcpy(address.sun_path, path.constData(),
                std::min<std::size_t>(sizeof address.sun_path - 1, static_cast<std::size_t>(path.size())));
    const int server = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (connect(server, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0)
        return server;
    close(server);
    return -1;
}

/// False when either end has closed.
bool PassOn(int from, int to)
{
    std::array<char, 65536> bytes{};
    const ssize_t got = recv(from, bytes.data(), bytes.size(), 0);
    for (ssize_t sent = 0; sent < got;) {
        const ssize_t now = send(to, bytes.data() + sent, static_cast<std::size_t>(got - sent), MSG_NOSIGNAL);
        if (now <= 0)
            return false;
        sent += now;
    }
    return got > 0;
}

} // namespace

StoppingProxy::StoppingProxy() : m_listener(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0))
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    if (bind(m_listener, reinterpret_cast<const sockaddr*>(&address), size) != 0 ||
        listen(m_listener, 8) != 0)
        throw std::runtime_error("the proxy finds no port");
    getsockname(m_listener, reinterpret_cast<sockaddr*>(&address), &size);
    m_port = ntohs(address.sin_port);
    m_thread = std::thread([this] { Run(); });
}

StoppingProxy::~StoppingProxy()
{
    m_isOver = true;
    m_thread.join();
    close(m_listener);
}

void StoppingProxy::Run()
{
    std::vector<std::pair<int, int>> ends; // client and server
    while (!m_isOver) {
        std::vector<pollfd> waits{{m_listener, POLLIN, 0}};
        for (const auto& [client, server] : ends) {
            waits.push_back({client, POLLIN, 0});
            waits.push_back({server, POLLIN, 0});
        }
        if (m_isStopped) {
            poll(nullptr, 0, RoundTime);
            continue;
        }
        poll(waits.data(), waits.size(), RoundTime);
        for (std::size_t i = ends.size(); i-- > 0;) {
            const auto [client, server] = ends[i];
            const bool stands = (waits[2 * i + 1].revents == 0 || PassOn(client, server)) &&
                                (waits[2 * i + 2].revents == 0 || PassOn(server, client));
            if (stands)
                continue;
            close(client);
            close(server);
            ends.erase(ends.begin() + static_cast<std::ptrdiff_t>(i));
        }
        if (waits[0].revents != 0) {
            const int client = accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC);
            const int server = ConnectToServer();
            if (client >= 0 && server >= 0)
                ends.emplace_back(client, server);
        }
    }
    for (const auto& [client, server] : ends) {
        close(client);
        close(server);
    }
}

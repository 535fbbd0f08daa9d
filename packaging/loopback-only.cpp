// Loaded into the program by "./run vnc": what listens on every address listens on 127.0.0.1 instead.
// Qt's VNC platform has no option for the address and asks no password.
#include <arpa/inet.h>
#include <dlfcn.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include <cstring>

extern "C" int bind(int socket, const sockaddr* address, socklen_t length)
{
    using Bind = int (*)(int, const sockaddr*, socklen_t);
    static const Bind next = reinterpret_cast<Bind>(dlsym(RTLD_NEXT, "bind"));

    if (address != nullptr && address->sa_family == AF_INET && length >= sizeof(sockaddr_in)) {
        sockaddr_in local;
        std::memcpy(&local, address, sizeof local);
        local.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        return next(socket, reinterpret_cast<const sockaddr*>(&local), sizeof local);
    }
    if (address != nullptr && address->sa_family == AF_INET6 && length >= sizeof(sockaddr_in6)) {
        // A socket of both families reaches 127.0.0.1 through its mapped address.
        sockaddr_in6 local;
        std::memcpy(&local, address, sizeof local);
        inet_pton(AF_INET6, "::ffff:127.0.0.1", &local.sin6_addr);
        return next(socket, reinterpret_cast<const sockaddr*>(&local), sizeof local);
    }
    return next(socket, address, length);
}

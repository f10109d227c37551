#include "sdk/demo/http/loopbacklistener.h"

#include "sdk/demo/site/logging.h"
#include "sdk/threadpriority.h"

#include <array>
#include <cerrno>
#include <cstdint>
#include <system_error>

#include <arpa/inet.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <unistd.h>

namespace sdk::demo {

namespace {

/// Returns the port, 0 on failure.
int bindLoopback(int socket, int port)
{
    // Allows a port to be reused while connections of its last listener linger.
    const int on = 1;
    setsockopt(socket, SOL_SOCKET, SO_REUSEADDR, &on, sizeof(on));
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<std::uint16_t>(port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    auto *const general = reinterpret_cast<sockaddr *>(&address);
    socklen_t size = sizeof(address);
    if (bind(socket, general, size) != 0 || listen(socket, SOMAXCONN) != 0 ||
        getsockname(socket, general, &size) != 0)
        return 0;
    return ntohs(address.sin_port);
}

} // namespace

std::unique_ptr<LoopbackListener> LoopbackListener::open(int port, ConnectionTaker taker)
{
    const int socket = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    const int wakeUp = eventfd(0, EFD_CLOEXEC);
    // The object owns both descriptors, and closes them on failure.
    std::unique_ptr<LoopbackListener> listener(new LoopbackListener(socket, wakeUp, std::move(taker)));
    if (socket < 0 || wakeUp < 0)
        return nullptr;
    listener->m_port = bindLoopback(socket, port);
    if (listener->m_port == 0)
        return nullptr;
    try {
        listener->m_thread = std::thread([listener = listener.get()] { listener->acceptConnections(); });
    } catch (const std::system_error &error) {
        qCWarning(demoLog, "No thread for a local port: %s", error.what());
        return nullptr;
    }
    return listener;
}

LoopbackListener::~LoopbackListener()
{
    if (m_thread.joinable()) {
        const std::uint64_t one = 1;
        // Cannot fail: the counter is far from full, and the descriptor is open.
        [[maybe_unused]] const ssize_t written = write(m_wakeUp, &one, sizeof(one));
        m_thread.join();
    }
    if (m_socket >= 0)
        close(m_socket);
    if (m_wakeUp >= 0)
        close(m_wakeUp);
}

void LoopbackListener::acceptConnections() const
{
    giveWayToWindow(); // also the threads of the connections
    std::array watched = {pollfd{m_socket, POLLIN, 0}, pollfd{m_wakeUp, POLLIN, 0}};
    for (;;) {
        if (poll(watched.data(), watched.size(), -1) < 0 && errno != EINTR)
            return;
        if (watched[1].revents != 0)
            return;
        if (watched[0].revents == 0)
            continue;
        const int connection = accept4(m_socket, nullptr, nullptr, SOCK_CLOEXEC);
        if (connection >= 0) {
            m_taker(connection, m_port);
        } else if (errno == EMFILE || errno == ENFILE || errno == ENOBUFS || errno == ENOMEM) {
            // The connection stays in the queue: an immediate retry would keep a processor busy.
            constexpr int pause = 100;
            poll(&watched[1], 1, pause);
        }
    }
}

} // namespace sdk::demo

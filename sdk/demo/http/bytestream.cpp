#include "sdk/demo/http/bytestream.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>

#include <poll.h>
#include <sys/socket.h>

namespace sdk::demo {

bool isReadable(int socket, std::chrono::milliseconds patience)
{
    const auto end = std::chrono::steady_clock::now() + patience;
    for (;;) {
        const auto left =
            std::chrono::duration_cast<std::chrono::milliseconds>(end - std::chrono::steady_clock::now());
        pollfd watched = {socket, POLLIN, 0};
        const int ready = poll(&watched, 1, static_cast<int>(std::max<std::int64_t>(left.count(), 0)));
        if (ready >= 0 || errno != EINTR)
            return ready > 0;
    }
}

ssize_t PlainStream::receive(char *bytes, std::size_t size, std::chrono::milliseconds patience)
{
    return isReadable(m_socket, patience) ? recv(m_socket, bytes, size, 0) : 0;
}

ssize_t PlainStream::send(const char *bytes, std::size_t size)
{
    ssize_t count = 0;
    do {
        count = ::send(m_socket, bytes, size, MSG_NOSIGNAL);
    } while (count < 0 && errno == EINTR);
    return count;
}

void PlainStream::finishSending()
{
    shutdown(m_socket, SHUT_WR);
}

} // namespace sdk::demo

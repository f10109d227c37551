#include "site/http/bytestream.h"

#include <cerrno>

#include <poll.h>
#include <sys/socket.h>

namespace site {

bool isReadable(int socket, std::chrono::milliseconds patience)
{
    pollfd watched = {socket, POLLIN, 0};
    return poll(&watched, 1, static_cast<int>(patience.count())) > 0;
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

} // namespace site

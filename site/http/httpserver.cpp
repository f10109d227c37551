#include "site/http/httpserver.h"

#include "site/http/serverconnection.h"
#include "site/network/sockettext.h"

#include <algorithm>
#include <system_error>

#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>

namespace site {

namespace {

/// Timeouts of a client that does not read, or does not send in a handshake.
constexpr timeval receiveTimeout = {15, 0};

} // namespace

HttpServer::~HttpServer()
{
    close([](const Connection &) { return true; });
}

void HttpServer::accept(int listener, const QString &mac,
                        const std::shared_ptr<const sdk::demo::DeviceKey> &key)
{
    FileDescriptor socket(accept4(listener, nullptr, nullptr, SOCK_CLOEXEC));
    if (!socket.isOpen())
        return;
    close([](const Connection &connection) { return connection.isOver; });
    const SocketAddress own = ownAddress(socket.number());
    const std::lock_guard lock(m_mutex);
    const auto count =
        std::count_if(m_connections.begin(), m_connections.end(),
                      [&mac](const Connection &connection) { return connection.receiver.mac == mac; });
    if (count >= mostConnectionsOfDevice)
        return;
    m_connections.push_back({std::move(socket), {mac, own.address, own.port, key != nullptr, {}}, key});
    Connection &connection = m_connections.back();
    connection.receiver.stop = connection.stop.get_token();
    try {
        connection.thread = std::thread([this, &connection] { serve(connection); });
    } catch (const std::system_error &) {
        m_connections.pop_back(); // no thread can be created
    }
}

void HttpServer::serve(Connection &connection)
{
    const int socket = connection.socket.number();
    const int on = 1;
    setsockopt(socket, SOL_SOCKET, SO_SNDTIMEO, &receiveTimeout, sizeof(receiveTimeout));
    setsockopt(socket, SOL_SOCKET, SO_RCVTIMEO, &receiveTimeout, sizeof(receiveTimeout));
    setsockopt(socket, IPPROTO_TCP, TCP_NODELAY, &on, sizeof(on));
    if (connection.key) {
        sdk::demo::EncryptedStream stream(socket, connection.key);
        if (stream.accept())
            ServerConnection(m_service, m_clock, stream, connection.receiver).serve();
    } else {
        sdk::demo::PlainStream stream(socket);
        ServerConnection(m_service, m_clock, stream, connection.receiver).serve();
    }
    const std::lock_guard lock(m_mutex);
    shutdown(socket, SHUT_RDWR);
    connection.isOver = true;
}

void HttpServer::closeAllOf(const QString &mac)
{
    close([&mac](const Connection &connection) { return connection.receiver.mac == mac; });
}

void HttpServer::close(const std::function<bool(const Connection &)> &isMeant)
{
    std::list<Connection> closed;
    {
        const std::lock_guard lock(m_mutex);
        for (auto next = m_connections.begin(); next != m_connections.end();) {
            const auto connection = next++;
            if (!isMeant(*connection))
                continue;
            connection->stop.request_stop();
            shutdown(connection->socket.number(), SHUT_RDWR);
            closed.splice(closed.end(), m_connections, connection);
        }
    }
    for (Connection &connection : closed)
        connection.thread.join();
}

} // namespace site

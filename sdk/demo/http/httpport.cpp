#include "sdk/demo/http/httpport.h"

#include "sdk/demo/http/httpconnection.h"
#include "sdk/demo/http/httpresponder.h"
#include "sdk/demo/site/logging.h"

#include <system_error>

#include <sys/socket.h>
#include <unistd.h>

namespace sdk::demo {

std::unique_ptr<HttpPort> HttpPort::open(HttpResponder &responder, Role role, int port)
{
    std::unique_ptr<HttpPort> opened(new HttpPort(responder, role));
    opened->m_listener = LoopbackListener::open(
        port, [taker = opened.get()](int socket, int localPort) { taker->take(socket, localPort); });
    return opened->m_listener ? std::move(opened) : nullptr;
}

HttpPort::~HttpPort()
{
    m_listener.reset();
    m_stop.request_stop();
    {
        const std::lock_guard lock(m_mutex);
        for (const Connection &connection : m_connections) {
            if (!connection.isOver)
                shutdown(connection.socket, SHUT_RDWR);
        }
    }
    for (Connection &connection : m_connections)
        connection.thread.join();
}

void HttpPort::take(int socket, int localPort)
{
    const std::lock_guard lock(m_mutex);
    m_connections.remove_if([](Connection &connection) {
        if (connection.isOver)
            connection.thread.join();
        return connection.isOver;
    });
    if (m_connections.size() == mostConnections) {
        close(socket);
        return;
    }
    Connection &connection = m_connections.emplace_back(Connection{socket});
    try {
        connection.thread = std::thread([this, &connection, localPort] { serve(connection, localPort); });
    } catch (const std::system_error &error) {
        qCWarning(demoLog, "No thread for a connection to the web service: %s", error.what());
        close(socket);
        m_connections.pop_back();
    }
}

void HttpPort::serve(Connection &connection, int localPort)
{
    const int responderPort = m_role == Role::Proxy ? HttpResponder::proxy : localPort;
    HttpConnection(m_responder, connection.socket, responderPort, m_stop.get_token()).serve();
    // With the lock held: the destructor shuts down open sockets.
    const std::lock_guard lock(m_mutex);
    close(connection.socket);
    connection.isOver = true;
}

} // namespace sdk::demo

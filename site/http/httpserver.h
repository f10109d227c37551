// The connections to the web services of all devices.
#pragma once

#include "sdk/demo/http/encryption.h"
#include "site/http/httpexchange.h"
#include "site/network/filedescriptor.h"

#include <list>
#include <mutex>
#include <stop_token>
#include <thread>

namespace sdk {
class Clock;
}

namespace site {

/// Serves each connection on a separate thread. Thread-safe. The destructor ends the connections.
class HttpServer
{
public:
    /// The limit of connections of one device; further ones are closed.
    static constexpr int mostConnectionsOfDevice = 16;

    /// Both must outlive the server.
    HttpServer(HttpService &service, sdk::Clock &clock) : m_service(service), m_clock(clock) {}
    ~HttpServer();
    HttpServer(const HttpServer &) = delete;
    HttpServer &operator=(const HttpServer &) = delete;

    /// Accepts the pending connection of `listener`, which belongs to the device. With `key`, the connection
    /// uses TLS.
    void accept(int listener, const QString &mac,
                const std::shared_ptr<const sdk::demo::DeviceKey> &key = {});

    /// Ends the connections to the device, even during a response, and waits for their threads.
    void closeAllOf(const QString &mac);

private:
    struct Connection
    {
        FileDescriptor socket;
        HttpReceiver receiver;
        std::shared_ptr<const sdk::demo::DeviceKey> key; // null without TLS
        std::stop_source stop = {};
        bool isOver = false; // its thread returns immediately
        std::thread thread = {};
    };

    void serve(Connection &connection);
    void close(const std::function<bool(const Connection &)> &isMeant);

    HttpService &m_service;
    sdk::Clock &m_clock;
    std::mutex m_mutex;
    std::list<Connection> m_connections;
};

} // namespace site

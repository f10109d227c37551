// One connection to the web service, from its first request to its end.
#pragma once

#include "sdk/demo/http/bytestream.h"
#include "sdk/demo/http/httpresponder.h"

#include <QByteArray>

#include <chrono>
#include <memory>
#include <stop_token>

namespace sdk::demo {

/// Answers the requests of a connection, one after another, on the calling thread. It ends with the client,
/// with a request that is none, after a time without one, and soon after a stop together with
/// shutdown(socket).
class HttpConnection
{
public:
    /// From the first byte of a request until it is complete, and between two requests.
    static constexpr std::chrono::seconds requestTime{15};

    /// `socket` is a connected one; the caller closes it. `localPort` is as in HttpRoute.
    HttpConnection(HttpResponder &responder, int socket, int localPort, std::stop_token stop);

    void serve();

private:
    using Deadline = std::chrono::steady_clock::time_point;

    [[nodiscard]] bool isProxy() const;
    /// What follows a request "CONNECT" is encrypted, and for a device. False when the connection is over.
    bool enterTunnel(const HttpRequest &request);
    /// As a device does that is not there; the proxy says so in the end. False when the connection is over.
    bool standSilent(HttpReply &reply) const;

    /// Returns Ok with a request, None when there is no further one, else what to refuse it with.
    HttpStatus receiveRequest(HttpRequest &request);
    /// Appends what has come to m_received. Returns false at the end, and when nothing comes in time.
    bool receiveMore(Deadline deadline);

    /// Returns false when the connection cannot be used any more.
    bool sendReply(const HttpReply &reply, bool hasBody, bool keepsConnection) const;
    bool sendBody(const HttpReply &reply) const;
    bool send(QByteArrayView bytes) const;

    /// Takes in what the client still sends, so that it reads the answer before the connection ends.
    void linger();

    HttpResponder &m_responder;
    const int m_socket;
    const std::stop_token m_stop;
    HttpRoute m_route;
    std::unique_ptr<ByteStream> m_stream; // over the socket
    QByteArray m_received;                // and not yet used
};

} // namespace sdk::demo

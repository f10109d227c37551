// One connection to the web service, from its first request to its end.
#pragma once

#include "sdk/demo/http/bytestream.h"
#include "sdk/demo/http/httpresponder.h"

#include <QByteArray>

#include <chrono>
#include <memory>
#include <stop_token>

namespace sdk::demo {

/// Responds to the requests of a connection, one after another, on the calling thread. The connection ends
/// when the client closes it, after a request that does not keep it (HttpRequest::keepsConnection), after
/// HEAD and an invalid request, after a timeout, and soon after a stop that is followed by shutdown(socket).
class HttpConnection
{
public:
    /// The timeout from the start of the connection, or the response to the last request, until the next
    /// request is complete, in real time.
    static constexpr std::chrono::seconds requestTime{15};

    /// `responder` must outlive the connection. `socket` is connected; the caller closes it after serve().
    /// `localPort` is the local port of the port agent at which the connection was accepted, or
    /// HttpResponder::proxy for a connection to the proxy. `stop` ends the delays of responses.
    HttpConnection(HttpResponder &responder, int socket, int localPort, std::stop_token stop);

    /// Serves the connection and returns at its end. To be called once. Returns immediately if `localPort`
    /// does not accept HTTP.
    void serve();

private:
    using Deadline = std::chrono::steady_clock::time_point;

    [[nodiscard]] bool isProxy() const;
    /// Handles a request "CONNECT", after which the connection is encrypted and leads to a device. Returns
    /// false if the connection has ended.
    bool enterTunnel(const HttpRequest &request);
    /// Handles a request without a response: the client gets none from a device, and an error from the proxy
    /// after the timeout. Returns false if the connection has ended.
    bool withholdResponse(HttpResponse &response) const;

    /// Returns Ok with a request, None if there is no further one, otherwise the status of the refusal.
    HttpStatus receiveRequest(HttpRequest &request);
    /// Appends received bytes to m_received. Returns false at the end of the stream and after a timeout.
    bool receiveMore(Deadline deadline);

    /// Returns false if the connection has ended.
    bool sendResponse(const HttpResponse &response, bool hasBody, bool keepsConnection) const;
    bool sendBody(const HttpResponse &response) const;
    bool send(QByteArrayView bytes) const;

    /// Reads and discards remaining input, so that the client receives the response before the connection
    /// closes.
    void linger();

    HttpResponder &m_responder;
    const int m_socket;
    const std::stop_token m_stop;
    HttpRoute m_route;
    std::unique_ptr<ByteStream> m_stream; // over the socket
    QByteArray m_received;                // not yet processed
};

} // namespace sdk::demo

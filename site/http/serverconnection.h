// One connection to a device's web service.
#pragma once

#include "sdk/demo/http/bytestream.h"
#include "site/http/httpexchange.h"

#include <chrono>

namespace sdk {
class Clock;
}

namespace site {

/// Responds to the requests of one connection, one after another.
class ServerConnection
{
public:
    /// The timeout from the start of the connection, or the response to the last request, until the head of
    /// the next request is complete; and the timeout between two chunks of a body.
    static constexpr std::chrono::seconds requestTime{30};

    /// The limit in bytes of a body that is passed to HttpService::respond().
    static constexpr qsizetype longestKeptBody = qsizetype{128} * 1024;
    /// The limit in bytes of a body for HttpService::bodyReceiver().
    static constexpr qint64 longestBody = qint64{512} * 1024 * 1024;

    /// All arguments except the receiver must outlive the connection. `clock` times the delays of responses;
    /// timeouts use the system's clock.
    ServerConnection(HttpService &service, sdk::Clock &clock, sdk::demo::ByteStream &stream,
                     HttpReceiver receiver);

    /// Responds on the calling thread, and returns when the connection is over:
    /// - The client has closed it or does not keep it.
    /// - A request is invalid or too long: the client gets an error response.
    /// - A timeout expires, or the stream of the client ends, in the middle of a request: the client gets the
    ///   status 408. Before the first byte of a request it gets no response.
    /// - The service gives no response, or refuses the body: the client gets no response.
    /// - The response was to HEAD, or had HttpResponse::isBroken or hasNoHead.
    /// - HttpReceiver::stop is requested. This ends the delay of a response. Other waits end only when
    ///   shutdown() is called for the socket.
    ///
    /// The caller closes the stream. To be called once.
    void serve();

private:
    // These return Ok, the status of an error response, or None to end the connection without a response.
    sdk::demo::HttpStatus receiveHead(sdk::demo::HttpRequest &head);
    sdk::demo::HttpStatus receiveBody(const sdk::demo::HttpRequest &head, QByteArray &body);

    /// Returns false at the end of the connection and after `patience` without data.
    bool receiveMore(std::chrono::milliseconds patience);

    // These return false when the connection must end: it is unusable, or HttpReceiver::stop is requested
    // during a delay. sendResponse() does so also after a response with HttpResponse::isBroken or hasNoHead.
    bool sendResponse(const sdk::demo::HttpResponse &response, bool hasBody, bool keepsConnection) const;
    bool sendBody(const sdk::demo::HttpResponse &response) const;
    bool send(QByteArrayView bytes) const;

    /// Reads the remaining data of the client, so that the client receives the response before the connection
    /// ends.
    void linger();

    HttpService &m_service;
    sdk::Clock &m_clock;
    sdk::demo::ByteStream &m_stream;
    const HttpReceiver m_receiver;
    QByteArray m_received; // and not yet processed
};

} // namespace site

// One connection to a device's web service.
#pragma once

#include "sdk/demo/http/bytestream.h"
#include "site/http/httpexchange.h"

#include <chrono>

namespace sdk {
class Clock;
}

namespace site {

/// Responds to the requests of a connection, one after another, on the calling thread. It ends when the
/// client closes the connection, at an invalid request, after a timeout, and soon after a stop together with
/// shutdown() of its socket.
class ServerConnection
{
public:
    /// The timeout from the first byte of a request until its head is complete, between two requests, and
    /// between two chunks of a body.
    static constexpr std::chrono::seconds requestTime{30};

    static constexpr qsizetype longestKeptBody = qsizetype{128} * 1024;
    static constexpr qint64 longestBody = qint64{512} * 1024 * 1024;

    /// All arguments except the receiver must outlive the connection.
    ServerConnection(HttpService &service, sdk::Clock &clock, sdk::demo::ByteStream &stream,
                     HttpReceiver receiver);

    void serve();

private:
    sdk::demo::HttpStatus receiveHead(sdk::demo::HttpRequest &head);
    sdk::demo::HttpStatus receiveBody(const sdk::demo::HttpRequest &head, QByteArray &body);
    bool receiveMore(std::chrono::milliseconds patience);

    /// Returns false when the connection is unusable.
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

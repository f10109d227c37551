// One connection to a device's web service.
#pragma once

#include "sdk/demo/internal/bytestream.h"
#include "site/http/httpexchange.h"

#include <chrono>

namespace sdk {
class Clock;
}

namespace site {

/// Answers the requests of a connection, one after another, on the calling thread. It ends with the client,
/// with a request that is none, after a time without one, and soon after a stop together with
/// shutdown() of its socket.
class ServerConnection
{
public:
    /// From the first byte of a request until its head is complete, between two requests, and between two
    /// pieces of a body.
    static constexpr std::chrono::seconds requestTime{30};

    static constexpr qsizetype longestKeptBody = qsizetype{128} * 1024;
    static constexpr qint64 longestBody = qint64{512} * 1024 * 1024;

    /// All but the receiver must outlive the connection.
    ServerConnection(HttpService &service, sdk::Clock &clock, sdk::demo::ByteStream &stream,
                     HttpReceiver receiver);

    void serve();

private:
    sdk::demo::HttpStatus receiveHead(sdk::demo::HttpRequest &head);
    sdk::demo::HttpStatus receiveBody(const sdk::demo::HttpRequest &head, QByteArray &body);
    bool receiveMore(std::chrono::milliseconds patience);

    /// Returns false when the connection cannot be used any more.
    bool sendReply(const sdk::demo::HttpReply &reply, bool hasBody, bool keepsConnection) const;
    bool sendBody(const sdk::demo::HttpReply &reply) const;
    bool send(QByteArrayView bytes) const;

    /// Takes in what the client still sends, so that it reads the answer before the connection ends.
    void linger();

    HttpService &m_service;
    sdk::Clock &m_clock;
    sdk::demo::ByteStream &m_stream;
    const HttpReceiver m_receiver;
    QByteArray m_received; // and not yet used
};

} // namespace site

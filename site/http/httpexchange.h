// A request to a device over HTTP, and what answers it.
#pragma once

#include "sdk/demo/internal/httpmessage.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <stop_token>

namespace site {

/// Who received a request, and where.
struct HttpReceiver
{
    QString mac;               ///< the device
    QString address;           ///< of the device, that the client has connected to
    int port = 0;              ///< of the device
    bool isSecure = false;     ///< over TLS
    std::stop_token stop = {}; ///< of the connection: who waits ends then
};

/// Takes a body in pieces as they come. Returns false to hang up.
using BodyTaker = std::function<bool(QByteArrayView piece)>;

/// Threads of connections call its functions.
class HttpService
{
public:
    virtual ~HttpService() = default;

    /// Called before the body of a request is read: what takes the body, when it may be too large to keep;
    /// empty for a body that answer() gets.
    [[nodiscard]] virtual BodyTaker bodyTaker(const HttpReceiver &receiver,
                                              const sdk::demo::HttpRequest &head) = 0;

    /// HttpStatus::None for a request that gets no answer: the connection ends.
    [[nodiscard]] virtual sdk::demo::HttpReply
    answer(const HttpReceiver &receiver, const sdk::demo::HttpRequest &head, const QByteArray &body) = 0;
};

} // namespace site

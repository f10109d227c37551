// A request to a device over HTTP, and the service that responds to it.
#pragma once

#include "sdk/demo/http/httpmessage.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <stop_token>

namespace site {

/// The receiver of a request.
struct HttpReceiver
{
    QString mac;               ///< the device
    QString address;           ///< of the device, as the client has reached it
    int port = 0;              ///< of the device
    bool isSecure = false;     ///< over TLS
    std::stop_token stop = {}; ///< of the connection: ends waits
};

/// Receives a body in chunks. Returns false to close the connection.
using BodyReceiver = std::function<bool(QByteArrayView chunk)>;

/// Its functions are called on threads of connections.
class HttpService
{
public:
    virtual ~HttpService() = default;

    /// Called before the body of a request is read. Returns the function that receives the body, if it may be
    /// too large to keep; empty for a body that is passed to respond().
    [[nodiscard]] virtual BodyReceiver bodyReceiver(const HttpReceiver &receiver,
                                                    const sdk::demo::HttpRequest &head) = 0;

    /// HttpStatus::None for no response: the connection is closed.
    [[nodiscard]] virtual sdk::demo::HttpResponse
    respond(const HttpReceiver &receiver, const sdk::demo::HttpRequest &head, const QByteArray &body) = 0;
};

} // namespace site

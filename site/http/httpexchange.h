// A request to a device over HTTP, and the service that responds to it.
#pragma once

#include "sdk/demo/http/httpmessage.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <stop_token>

namespace site {

/// The device that receives a request, and its end of the connection.
struct HttpReceiver
{
    QString mac;               ///< of the device
    QString address;           ///< of the device, IPv4 or IPv6, as the client has reached it
    int port = 0;              ///< of the device, as the client has reached it
    bool isSecure = false;     ///< over TLS
    std::stop_token stop = {}; ///< requested when the server ends the connection; a wait for the response
                               ///< ends then
};

/// Receives a body in chunks, which are valid during the call, on the thread of the connection. Returns false
/// to close the connection without a response.
using BodyReceiver = std::function<bool(QByteArrayView chunk)>;

/// Responds to the requests to all devices. Its functions are called on the threads of connections, several
/// at a time.
class HttpService
{
public:
    virtual ~HttpService() = default;

    /// Called before the body of a request is read, also for a request without a body. Returns a function for
    /// a body that may be too large to keep; respond() gets an empty body then. Returns an empty function for
    /// a body that is passed to respond(); a longer one than 128 KiB is refused then. A body longer than
    /// 512 MiB is refused in any case, without a call.
    [[nodiscard]] virtual BodyReceiver bodyReceiver(const HttpReceiver &receiver,
                                                    const sdk::demo::HttpRequest &head) = 0;

    /// Called when the body was read completely. Returns the response; with HttpStatus::None, the connection
    /// is closed without a response.
    [[nodiscard]] virtual sdk::demo::HttpResponse
    respond(const HttpReceiver &receiver, const sdk::demo::HttpRequest &head, const QByteArray &body) = 0;
};

} // namespace site

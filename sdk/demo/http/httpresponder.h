// The responses of the site's web service.
#pragma once

#include "sdk/demo/http/encryption.h"
#include "sdk/demo/http/httpauthentication.h"
#include "sdk/demo/http/httpmessage.h"
#include "sdk/demo/site/devicereach.h"

#include <QHash>

#include <memory>
#include <mutex>

namespace sdk {
class Clock;
}

namespace sdk::demo {

class SiteState;

/// The destination of a connection: the proxy, a local port of the port agent, or a device behind a tunnel
/// (CONNECT) through the proxy.
struct HttpRoute
{
    int localPort = 0; ///< a local port of the port agent, or HttpResponder::proxy
    QString host = {}; ///< address of the device for a tunnel through the proxy; otherwise empty
    int port = 0;      ///< HTTPS port of the device for a tunnel through the proxy; otherwise 0
};

/// The result of a request for a tunnel through the proxy.
struct HttpTunnel
{
    HttpResponse refusal = {}; ///< the response to the client if `key` is null; its status may be None
    HttpRoute route = {};      ///< of the later requests through the tunnel
    std::shared_ptr<const DeviceKey> key = {}; ///< of the device; null if the tunnel is refused
};

/// Responds for all devices of a site. Locks the site for short periods, so a caller must not hold the site's
/// lock. Thread-safe: used by the threads of all connections.
class HttpResponder
{
public:
    /// The time, on the site's clock, for which HttpConnection keeps a connection open whose request gets no
    /// response. It is longer than the timeouts of clients.
    static constexpr std::chrono::milliseconds silence = std::chrono::seconds(10);

    /// Stands for the proxy where a local port of the port agent is expected.
    static constexpr int proxy = 0;

    /// `site` must outlive the responder.
    explicit HttpResponder(SiteState &site) : m_site(site) {}

    /// The site's clock.
    [[nodiscard]] Clock &clock() const;

    /// Whether `localPort` accepts HTTP: true for `proxy`, and for a local port that is mapped to a device's
    /// web port.
    [[nodiscard]] bool isHttpPort(int localPort) const;

    /// Checks the credentials of a request over `route`, runs its command, applies the HTTP faults of the
    /// device to the response, and adds the request to the site's log as "HTTP". Returns the response:
    /// Unauthorized with a challenge for invalid credentials, MethodNotAllowed for a method other than GET
    /// and POST, BadGateway if nothing listens at the address and port, BadRequest for an invalid address,
    /// BadRequest or NotImplemented for one that the proxy does not support, otherwise that of
    /// runHttpCommand(). Its status is None if the device is silent.
    [[nodiscard]] HttpResponse respond(const HttpRoute &route, const HttpRequest &request) const;

    /// Decides about a request "CONNECT" to the proxy and adds it to the site's log as "HTTP". A tunnel leads
    /// to the HTTPS port of a device. It is refused for any other destination, and if the device cannot get a
    /// key. The first tunnel to a device generates its key.
    [[nodiscard]] HttpTunnel openTunnel(const HttpRequest &request);

private:
    /// The MAC of the device at an address. Without a device, returns an empty string and sets `response`.
    [[nodiscard]] QString reachedDevice(const QString &host, int port, DevicePort kind,
                                        HttpResponse &response) const;
    /// Generated for the first request.
    [[nodiscard]] std::shared_ptr<const DeviceKey> keyOf(const QString &mac);
    void record(const QString &mac, const HttpRequest &request, const HttpTarget &target,
                const HttpCredentials &credentials, HttpStatus status) const;
    [[nodiscard]] HttpResponse responseOfDevice(const QString &mac, const HttpRequest &request,
                                                const HttpTarget &target, HttpCredentials &credentials) const;

    SiteState &m_site;
    const HttpAuthentication m_authentication;
    std::mutex m_keysMutex;
    QHash<QString, std::shared_ptr<const DeviceKey>> m_keys; ///< by MAC
};

} // namespace sdk::demo

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

/// The destination of a connection.
struct HttpRoute
{
    int localPort = 0; ///< of the port agent, or HttpResponder::proxy
    QString host = {}; ///< address of the device for a tunnel through the proxy; otherwise empty
    int port = 0;      ///< port of the device for such a tunnel
};

/// The result of a request for a tunnel through the proxy.
struct HttpTunnel
{
    HttpResponse refusal = {}; ///< the response without a key
    HttpRoute route = {};
    std::shared_ptr<const DeviceKey> key = {}; ///< of the device; null if the tunnel is refused
};

/// Thread-safe.
class HttpResponder
{
public:
    /// The time until a request without a response ends, on the site's clock. It is longer than the timeouts
    /// of clients.
    static constexpr std::chrono::milliseconds silence = std::chrono::seconds(10);

    /// Stands for the proxy where a local port of the port agent is expected.
    static constexpr int proxy = 0;

    /// `site` must outlive the responder.
    explicit HttpResponder(SiteState &site) : m_site(site) {}

    [[nodiscard]] Clock &clock() const;

    /// Whether `localPort` accepts HTTP: the proxy, and a port of the port agent for a device's web port.
    [[nodiscard]] bool isHttpPort(int localPort) const;

    /// Responds to a request over `route` and adds it to the site's log. HttpStatus::None for a request
    /// without a response.
    [[nodiscard]] HttpResponse respond(const HttpRoute &route, const HttpRequest &request) const;

    /// Opens the tunnel of a request "CONNECT" to the proxy and adds the request to the site's log. The
    /// tunnel leads to the HTTPS port of a device.
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

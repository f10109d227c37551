// What the web service of the site answers to a request.
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

/// Where a connection leads.
struct HttpRoute
{
    int localPort = 0; ///< of the port agent, or HttpResponder::proxy
    QString host = {}; ///< of a tunnel through the proxy: the device's address; else empty
    int port = 0;      ///< of such a tunnel: at the device
};

/// What comes of the request for a tunnel through the proxy.
struct HttpTunnel
{
    HttpReply refusal = {}; ///< without a key
    HttpRoute route = {};
    std::shared_ptr<const DeviceKey> key = {}; ///< of the device at its end; null if the tunnel is refused
};

/// Thread-safe.
class HttpResponder
{
public:
    /// How long a request is held that nobody answers, on the site's clock; longer than clients wait.
    static constexpr std::chrono::milliseconds silence = std::chrono::seconds(10);

    /// The local port of the proxy in the place of one of the port agent.
    static constexpr int proxy = 0;

    /// `site` must outlive the responder.
    explicit HttpResponder(SiteState &site) : m_site(site) {}

    [[nodiscard]] Clock &clock() const;

    /// Whether what listens at `localPort` speaks HTTP: the proxy, and a tunnel to a device's web port.
    [[nodiscard]] bool speaksHttp(int localPort) const;

    /// The answer to a request that came over `route`, and the request in the site's record.
    /// HttpStatus::None for one that gets no answer.
    [[nodiscard]] HttpReply answer(const HttpRoute &route, const HttpRequest &request) const;

    /// The tunnel that a request "CONNECT" to the proxy asks for, and the request in the site's record. It
    /// leads to the port at which a device serves HTTPS.
    [[nodiscard]] HttpTunnel openTunnel(const HttpRequest &request);

private:
    /// The device that a connection leads to. Without one `reply` says why.
    [[nodiscard]] QString reachedDevice(const QString &host, int port, DevicePort kind,
                                        HttpReply &reply) const;
    /// Made at the first request.
    [[nodiscard]] std::shared_ptr<const DeviceKey> keyOf(const QString &mac);
    void record(const QString &mac, const HttpRequest &request, const HttpTarget &target,
                const HttpCredentials &credentials, HttpStatus status) const;
    [[nodiscard]] HttpReply answerOfDevice(const QString &mac, const HttpRequest &request,
                                           const HttpTarget &target, HttpCredentials &credentials) const;

    SiteState &m_site;
    const HttpAuthentication m_authentication;
    std::mutex m_keysMutex;
    QHash<QString, std::shared_ptr<const DeviceKey>> m_keys; ///< by MAC
};

} // namespace sdk::demo

// A complete simulated site in this process, for trying the application, for training and for reproducing
// faults.
#pragma once

#include "sdk/demo/site/sitestate.h"
#include "sdk/sdklibraries.h"

#include <QStringList>

#include <memory>
#include <mutex>
#include <optional>

namespace sdk::demo {

class DemoNetLibrary;
class DemoP2PAgentLibrary;
class HttpPort;
class HttpResponder;

/// A SiteState (devices, clock, log of requests) with the libraries and the web service on it. Thread-safe.
/// The network library and the port agent of libraries() share the ownership of the site. The last reference
/// to the site or to one of them must not be released inside a handler: the destructor waits for handlers.
class DemoSite final : public SiteState, public std::enable_shared_from_this<DemoSite>
{
public:
    /// The scene names that open() accepts, the default first: "office", ..., and at the end "fleet:N", in
    /// which N stands for a number of devices. For lists of choices and error messages.
    [[nodiscard]] static QStringList knownScenes();

    /// Opens a built-in scene, a fleet ("fleet:500", 1 to maximumSceneDevices), or the scene file at a path.
    /// Returns null on failure and sets `error` (may be null) to an English sentence with the reason; on
    /// success `error` is set to an empty string. `clock` is not null; it is the clock of the complete site.
    [[nodiscard]] static std::shared_ptr<DemoSite> open(const QString &sceneNameOrFile,
                                                        std::shared_ptr<Clock> clock, QString *error);

    /// A site of a given scene, of which it has a copy. `clock` as in open().
    [[nodiscard]] static std::shared_ptr<DemoSite> create(const Scene &scene, std::shared_ptr<Clock> clock);

    ~DemoSite() override;
    DemoSite(const DemoSite &) = delete;
    DemoSite &operator=(const DemoSite &) = delete;

    /// The libraries of the site. The decoder is null. Every call returns the same objects.
    [[nodiscard]] SdkLibraries libraries();

    [[nodiscard]] std::optional<Tunnel> tunnel(int localPort) const override;

    /// The port agent, which the site owns. Tests break its tunnels.
    [[nodiscard]] DemoP2PAgentLibrary &portAgent() const { return *m_portAgent; }

    /// The URL of the HTTP proxy to the devices' web services: "http://127.0.0.1:40123". Through it, a client
    /// reaches the simulated addresses. The first call opens the proxy, which closes with the site. Empty if
    /// the host provides no port or thread; the next call tries again.
    [[nodiscard]] QString httpProxy();

    /// The responder of the proxy and of the port agent's tunnels.
    [[nodiscard]] HttpResponder &httpResponder() const { return *m_httpResponder; }

private:
    DemoSite(const Scene &scene, std::shared_ptr<Clock> clock);

    const std::shared_ptr<ConfigLibrary> m_config;
    const std::unique_ptr<HttpResponder> m_httpResponder;
    // Last, and the agent before the users of its ports: threads end before the objects that they use.
    std::unique_ptr<DemoP2PAgentLibrary> m_portAgent;
    std::unique_ptr<DemoNetLibrary> m_net;
    std::mutex m_httpProxyMutex; // guards the opening of the proxy
    std::unique_ptr<HttpPort> m_httpProxy;
};

} // namespace sdk::demo

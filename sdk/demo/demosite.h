// A whole simulated site in this process: try the tool, train, reproduce a fault.
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

/// Thread-safe. The libraries keep the site alive; the last of them must not be released inside a handler.
class DemoSite final : public SiteState, public std::enable_shared_from_this<DemoSite>
{
public:
    /// Names that open() takes, the default one first: "office", ..., "fleet:N".
    [[nodiscard]] static QStringList knownScenes();

    /// Opens a scene that comes with the program, a fleet ("fleet:500", 1 to 20000 devices), or the scene
    /// file of that path. Returns null on failure and sets `error` (may be null) to a sentence that says why.
    /// `clock` is not null: everything on the site takes its time from it.
    [[nodiscard]] static std::shared_ptr<DemoSite> open(const QString &sceneNameOrFile,
                                                        std::shared_ptr<Clock> clock, QString *error);

    /// A site of a scene made elsewhere.
    [[nodiscard]] static std::shared_ptr<DemoSite> create(const Scene &scene, std::shared_ptr<Clock> clock);

    ~DemoSite() override;
    DemoSite(const DemoSite &) = delete;
    DemoSite &operator=(const DemoSite &) = delete;

    /// The roles that the site fills, the same ones at every call.
    [[nodiscard]] SdkLibraries libraries();

    [[nodiscard]] std::optional<Tunnel> tunnel(int localPort) const override;

    /// The port agent, which knows where local ports lead, and whose tunnels a test can break.
    [[nodiscard]] DemoP2PAgentLibrary &portAgent() const { return *m_portAgent; }

    /// The HTTP proxy through which the devices' web services are reached: "http://127.0.0.1:40123". It is
    /// opened by the first call and ends with the site. Empty when the computer gives no port.
    [[nodiscard]] QString httpProxy();

    /// What the proxy and the tunnels of the port agent answer with.
    [[nodiscard]] HttpResponder &httpResponder() const { return *m_httpResponder; }

private:
    DemoSite(const Scene &scene, std::shared_ptr<Clock> clock);

    const std::shared_ptr<ConfigLibrary> m_config;
    const std::unique_ptr<HttpResponder> m_httpResponder;
    // Last, the agent before those that look at its ports: threads end before what they use.
    std::unique_ptr<DemoP2PAgentLibrary> m_portAgent;
    std::unique_ptr<DemoNetLibrary> m_net;
    std::mutex m_httpProxyMutex; // opening the proxy
    std::unique_ptr<HttpPort> m_httpProxy;
};

} // namespace sdk::demo

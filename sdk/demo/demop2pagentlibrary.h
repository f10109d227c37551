// The port agent on a simulated site.
#pragma once

#include "sdk/demo/agentevents.h"
#include "sdk/demo/site/sitestate.h"
#include "sdk/p2pagentlibrary.h"

#include <QJsonObject>
#include <QString>

#include <memory>
#include <mutex>
#include <optional>
#include <vector>

namespace sdk::demo {

class HttpPort;
class HttpResponder;

/// Maps ports of the site's devices with a P2P ID to TCP ports of 127.0.0.1. A local port that is mapped to a
/// device's web port serves HTTP. At any other local port, connections are closed immediately: sessions reach
/// their device through SiteState::tunnel(), without a connection. Every call of an operation is added to the
/// site's log, the server secret only as its length. Thread-safe.
class DemoP2PAgentLibrary : public P2PAgentLibrary
{
public:
    /// `site` and `httpResponder` must outlive the agent. `httpResponder` serves the mapped web ports.
    DemoP2PAgentLibrary(SiteState &site, HttpResponder &httpResponder);

    /// As OAgent_ClientRelease(): waits for a running handler.
    ~DemoP2PAgentLibrary() override;

    bool OAgent_ClientInit(const P2PAgentServices &services) override;
    void OAgent_SetMessageCallback(P2PAgentMessageHandler handler, void *user) override;
    bool OAgent_ClientGetDeviceLocalPort(const char *deviceId, std::int32_t devicePort,
                                         std::int32_t *localPorts, std::int32_t capacity,
                                         std::int32_t &count) override;
    bool OAgent_ClientAddPort(const char *deviceId, std::int32_t devicePort, std::int32_t &localPort,
                              std::int32_t flag) override;
    bool OAgent_ClientDelPort(std::int32_t localPort) override;
    void OAgent_ClientRelease() override;

    /// The target of `localPort`, also if its tunnel is broken; nullopt for a port that the agent has not
    /// opened or has closed.
    [[nodiscard]] std::optional<Tunnel> tunnel(int localPort) const;

    /// Breaks the tunnel behind `localPort` permanently (Tunnel::isBroken) and reports TunnelBroken. Returns
    /// false if the port is not open, or the tunnel is broken already.
    bool breakTunnel(int localPort);

private:
    struct Mapping
    {
        QByteArray deviceId;
        Tunnel tunnel;
        std::unique_ptr<HttpPort> listener;
    };

    void record(const char *operation, const QJsonObject &request, const QString &mac = {}) const;
    [[nodiscard]] QString macOf(const QString &deviceId) const;
    void release();

    SiteState &m_site;
    HttpResponder &m_httpResponder; // serves the web ports
    AgentEvents m_events;
    std::mutex m_lifeMutex; // serialises start and release
    mutable std::mutex m_mutex;
    bool m_isStarted = false;
    std::vector<Mapping> m_mappings; // in the order of their creation
};

} // namespace sdk::demo

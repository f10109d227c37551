#include "sdk/demo/demop2pagentlibrary.h"

#include "sdk/clock.h"
#include "sdk/demo/http/httpport.h"
#include "sdk/demo/http/httpresponder.h"
#include "sdk/demo/site/logging.h"
#include "sdk/demo/site/sitestate.h"

#include <algorithm>

namespace sdk::demo {

namespace {

constexpr int highestAgentPort = 65535;

auto leadsThrough(int localPort)
{
    return [localPort](const auto &mapping) {
        return mapping.listener->port() == localPort;
    };
}

} // namespace

DemoP2PAgentLibrary::DemoP2PAgentLibrary(SiteState &site, HttpResponder &httpResponder)
    : m_site(site), m_httpResponder(httpResponder), m_events(site.clock())
{
}

DemoP2PAgentLibrary::~DemoP2PAgentLibrary()
{
    release();
}

bool DemoP2PAgentLibrary::OAgent_ClientInit(const P2PAgentServices &services)
{
    const auto text = [](const char *bytes) {
        return QString::fromLocal8Bit(bytes);
    };
    record("OAgent_ClientInit", {{QStringLiteral("tunnelHost"), text(services.tunnelHost)},
                                 {QStringLiteral("tunnelPort"), services.tunnelPort},
                                 {QStringLiteral("relayHost"), text(services.relayHost)},
                                 {QStringLiteral("relayPort"), services.relayPort},
                                 {QStringLiteral("serverSecretLength"), text(services.serverSecret).size()},
                                 {QStringLiteral("domain"), text(services.domain)},
                                 {QStringLiteral("restAddress"), text(services.restAddress)},
                                 {QStringLiteral("mediaHost"), text(services.mediaHost)},
                                 {QStringLiteral("mediaPort"), services.mediaPort}});
    if (AgentEvents::isInsideHandler())
        return false;
    const std::lock_guard life(m_lifeMutex);
    const std::lock_guard lock(m_mutex);
    if (m_isStarted)
        return false;
    m_isStarted = m_events.start();
    return m_isStarted;
}

void DemoP2PAgentLibrary::OAgent_SetMessageCallback(P2PAgentMessageHandler handler, void *user)
{
    record("OAgent_SetMessageCallback", {{QStringLiteral("hasHandler"), handler != nullptr}});
    m_events.setHandler(handler, user);
}

bool DemoP2PAgentLibrary::OAgent_ClientGetDeviceLocalPort(const char *deviceId, std::int32_t devicePort,
                                                          std::int32_t *localPorts, std::int32_t capacity,
                                                          std::int32_t &count)
{
    const QByteArray requested(deviceId);
    record("OAgent_ClientGetDeviceLocalPort",
           {{QStringLiteral("deviceId"), QString::fromLocal8Bit(requested)},
            {QStringLiteral("devicePort"), devicePort},
            {QStringLiteral("capacity"), capacity}},
           macOf(QString::fromLocal8Bit(requested)));
    count = 0;
    const std::lock_guard lock(m_mutex);
    if (!m_isStarted || capacity < 0 || (capacity > 0 && !localPorts))
        return false;
    for (const Mapping &mapping : m_mappings) {
        if (count < capacity && mapping.deviceId == requested && mapping.tunnel.devicePort == devicePort &&
            !mapping.tunnel.isBroken)
            localPorts[count++] = mapping.listener->port();
    }
    return true;
}

bool DemoP2PAgentLibrary::OAgent_ClientAddPort(const char *deviceId, std::int32_t devicePort,
                                               std::int32_t &localPort, std::int32_t flag)
{
    const QByteArray requested(deviceId);
    const QString mac = macOf(QString::fromLocal8Bit(requested));
    record("OAgent_ClientAddPort",
           {{QStringLiteral("deviceId"), QString::fromLocal8Bit(requested)},
            {QStringLiteral("devicePort"), devicePort},
            {QStringLiteral("localPort"), localPort},
            {QStringLiteral("flag"), flag}},
           mac);
    const std::optional<SceneDevice> device = m_site.device(mac);
    if (!device || device->hasFault(Fault::NoAnswer) || devicePort < 1 || devicePort > highestAgentPort ||
        localPort < 0 || localPort > highestAgentPort)
        return false;
    const std::lock_guard lock(m_mutex);
    if (!m_isStarted)
        return false;
    std::unique_ptr<HttpPort> listener = HttpPort::open(m_httpResponder, HttpPort::Role::Tunnel, localPort);
    if (!listener)
        return false;
    localPort = listener->port();
    m_mappings.push_back({requested, {mac, devicePort, false}, std::move(listener)});
    m_events.add(P2PAgentEvent::TunnelOpened, requested, localPort);
    return true;
}

bool DemoP2PAgentLibrary::OAgent_ClientDelPort(std::int32_t localPort)
{
    std::unique_ptr<HttpPort> listener;
    QString mac;
    {
        const std::lock_guard lock(m_mutex);
        const auto found = std::find_if(m_mappings.begin(), m_mappings.end(), leadsThrough(localPort));
        if (found != m_mappings.end()) {
            mac = found->tunnel.mac;
            listener = std::move(found->listener);
            m_mappings.erase(found);
        }
    }
    record("OAgent_ClientDelPort", {{QStringLiteral("localPort"), localPort}}, mac);
    return listener != nullptr;
}

void DemoP2PAgentLibrary::OAgent_ClientRelease()
{
    record("OAgent_ClientRelease", {});
    if (AgentEvents::isInsideHandler())
        qCWarning(demoLog, "OAgent_ClientRelease was called from a handler and would be a deadlock: ignored");
    else
        release();
}

void DemoP2PAgentLibrary::release()
{
    const std::lock_guard life(m_lifeMutex);
    std::vector<Mapping> mappings;
    {
        const std::lock_guard lock(m_mutex);
        m_isStarted = false;
        mappings.swap(m_mappings);
    }
    m_events.stop();
}

std::optional<Tunnel> DemoP2PAgentLibrary::tunnel(int localPort) const
{
    const std::lock_guard lock(m_mutex);
    const auto found = std::find_if(m_mappings.begin(), m_mappings.end(), leadsThrough(localPort));
    return found == m_mappings.end() ? std::nullopt : std::optional(found->tunnel);
}

bool DemoP2PAgentLibrary::breakTunnel(int localPort)
{
    const std::lock_guard lock(m_mutex);
    const auto found = std::find_if(m_mappings.begin(), m_mappings.end(), leadsThrough(localPort));
    if (found == m_mappings.end() || found->tunnel.isBroken)
        return false;
    found->tunnel.isBroken = true;
    m_events.add(P2PAgentEvent::TunnelBroken, found->deviceId, localPort);
    return true;
}

QString DemoP2PAgentLibrary::macOf(const QString &deviceId) const
{
    QString mac;
    m_site.forEachDevice([&](const SceneDevice &device) {
        if (mac.isEmpty() && !deviceId.isEmpty() && device.p2pId == deviceId)
            mac = device.mac;
    });
    return mac;
}

void DemoP2PAgentLibrary::record(const char *operation, const QJsonObject &request, const QString &mac) const
{
    m_site.requests().add({QString::fromLatin1(operation), mac, request, m_site.clock().now()});
}

} // namespace sdk::demo

#include "device/registry/p2pports.h"

#include "device/store/logging.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QSettings>

#include <algorithm>
#include <array>
#include <utility>

namespace {

/// The same for all services, so it is not a setting.
constexpr const char *serverSecret = "tamsvelorink";

/// The key of the first missing or invalid setting; empty for none.
QString faultOf(const P2PSettings &settings)
{
    const std::pair<const char *, const QString &> hosts[] = {{"p2p/tunnel", settings.tunnelHost},
                                                              {"p2p/trans", settings.relayHost},
                                                              {"p2p/saas", settings.restAddress},
                                                              {"p2p/mnserver", settings.mediaHost}};
    for (const auto &[key, host] : hosts) {
        if (host.trimmed().isEmpty())
            return QLatin1String(key);
    }
    constexpr int highestPort = 65535;
    const std::pair<const char *, int> ports[] = {{"p2p/tunnel_port", settings.tunnelPort},
                                                  {"p2p/trans_port", settings.relayPort},
                                                  {"p2p/mnport", settings.mediaPort}};
    for (const auto &[key, port] : ports) {
        if (port < 1 || port > highestPort)
            return QLatin1String(key);
    }
    return {};
}

/// Starts the agent. Invalid settings are passed on, since the agent may not need them. Null if it does not
/// start.
std::shared_ptr<sdk::P2PAgentLibrary> started(std::shared_ptr<sdk::P2PAgentLibrary> library,
                                              const P2PSettings &settings,
                                              sdk::P2PAgentMessageHandler handler)
{
    if (!library)
        return nullptr;
    if (const QString fault = faultOf(settings); !fault.isEmpty())
        qCWarning(logDevice) << "P2PPorts: the setting" << fault << "of the port agent is missing or wrong";
    const QByteArray tunnelHost = settings.tunnelHost.toLocal8Bit();
    const QByteArray relayHost = settings.relayHost.toLocal8Bit();
    const QByteArray domain = settings.domain.toLocal8Bit();
    const QByteArray restAddress = settings.restAddress.toLocal8Bit();
    const QByteArray mediaHost = settings.mediaHost.toLocal8Bit();
    const sdk::P2PAgentServices services = {.tunnelHost = tunnelHost.constData(),
                                            .tunnelPort = settings.tunnelPort,
                                            .relayHost = relayHost.constData(),
                                            .relayPort = settings.relayPort,
                                            .serverSecret = serverSecret,
                                            .domain = domain.constData(),
                                            .restAddress = restAddress.constData(),
                                            .mediaHost = mediaHost.constData(),
                                            .mediaPort = settings.mediaPort};
    if (!library->OAgent_ClientInit(services)) {
        qCWarning(logDevice) << "P2PPorts: the port agent cannot be started with tunnel"
                             << settings.tunnelHost << settings.tunnelPort << "and relay"
                             << settings.relayHost << settings.relayPort;
        return nullptr;
    }
    library->OAgent_SetMessageCallback(handler, nullptr);
    return library;
}

} // namespace

P2PSettings P2PSettings::builtIn()
{
    return {.tunnelHost = QStringLiteral("tunnel.kelda.example"),
            .tunnelPort = 7885,
            .relayHost = QStringLiteral("relay.kelda.example"),
            .relayPort = 443,
            .domain = QStringLiteral("kelda"),
            .restAddress = QStringLiteral("https://api.kelda.example"),
            .mediaHost = QStringLiteral("video.kelda.example"),
            .mediaPort = 8300};
}

P2PSettings P2PSettings::read(const QString &file)
{
    if (!QFileInfo::exists(file))
        return builtIn();
    const QSettings settings(file, QSettings::IniFormat);
    const auto text = [&settings](const char *key) {
        return settings.value(QLatin1String(key)).toString();
    };
    const auto number = [&text](const char *key) {
        return text(key).toInt();
    };
    return {.tunnelHost = text("p2p/tunnel"),
            .tunnelPort = number("p2p/tunnel_port"),
            .relayHost = text("p2p/trans"),
            .relayPort = number("p2p/trans_port"),
            .domain = text("p2p/domain"),
            .restAddress = text("p2p/saas"),
            .mediaHost = text("p2p/mnserver"),
            .mediaPort = number("p2p/mnport")};
}

P2PPorts::P2PPorts(std::shared_ptr<sdk::P2PAgentLibrary> library, const P2PSettings &settings,
                   sdk::P2PAgentMessageHandler handler)
    : m_library(started(std::move(library), settings, handler)), m_settingFault(faultOf(settings))
{
}

P2PPorts::~P2PPorts()
{
    if (m_library)
        m_library->OAgent_ClientRelease();
}

QString P2PPorts::faultText() const
{
    if (!m_settingFault.isEmpty())
        return QCoreApplication::translate("P2PPorts", "p2p.ini 中的 %1 缺失或无效").arg(m_settingFault);
    return m_library ? QString() : QCoreApplication::translate("P2PPorts", "P2P端口代理没有启动");
}

int P2PPorts::portFor(const QString &deviceId, int devicePort, int requestedPort)
{
    if (requestedPort > 0 && requestedPort != devicePort)
        return 0;
    if (!m_library)
        return 0;
    const std::lock_guard lock(m_requestMutex);
    return findOrAddPort(deviceId, devicePort, requestedPort);
}

int P2PPorts::claim(const QString &deviceId, int devicePort)
{
    if (!m_library)
        return 0;
    const std::lock_guard lock(m_requestMutex);
    const int port = findOrAddPort(deviceId, devicePort, 0);
    if (port > 0)
        ++m_claims[port];
    return port;
}

void P2PPorts::giveBack(int localPort, const std::function<bool()> &isListed)
{
    const std::lock_guard lock(m_requestMutex);
    if (--m_claims[localPort] > 0)
        return;
    m_claims.remove(localPort);
    if (!isKnown(localPort) && !isListed())
        release(localPort);
}

int P2PPorts::findOrAddPort(const QString &deviceId, int devicePort, int requestedPort)
{
    std::array<std::int32_t, sdk::maximumLocalPorts> ports{};
    std::int32_t count = 0;
    if (!m_library->OAgent_ClientGetDeviceLocalPort(deviceId.toLocal8Bit().constData(), devicePort,
                                                    ports.data(), static_cast<std::int32_t>(ports.size()),
                                                    count))
        count = 0;
    count = std::clamp(count, 0, static_cast<std::int32_t>(ports.size()));

    if (count == 0)
        return addPort(deviceId, devicePort, 0);
    if (count == 1) {
        // A mapping onto the device's own port number is kept for callers that request it.
        const bool sameNumber = ports[0] == devicePort;
        if (sameNumber)
            return requestedPort == 0 ? addPort(deviceId, devicePort, 0) : ports[0];
        return requestedPort == 0 ? ports[0] : addPort(deviceId, devicePort, requestedPort);
    }
    const auto end = ports.begin() + count;
    const auto other =
        std::find_if(ports.begin(), end, [devicePort](std::int32_t port) { return port != devicePort; });
    return other == end ? 0 : *other;
}

int P2PPorts::addPort(const QString &deviceId, int devicePort, int localPort)
{
    std::int32_t port = localPort;
    constexpr std::int32_t noFlag = 0;
    return m_library->OAgent_ClientAddPort(deviceId.toLocal8Bit().constData(), devicePort, port, noFlag)
               ? port
               : 0;
}

void P2PPorts::release(int localPort)
{
    if (m_library && localPort > 0)
        m_library->OAgent_ClientDelPort(localPort);
}

void P2PPorts::note(int loginPort)
{
    const std::lock_guard lock(m_mutex);
    if (loginPort > 0 && !m_webPorts.contains(loginPort))
        m_webPorts.insert(loginPort, 0);
}

bool P2PPorts::isKnown(int loginPort) const
{
    const std::lock_guard lock(m_mutex);
    return m_webPorts.contains(loginPort);
}

void P2PPorts::pair(int loginPort, int webPort)
{
    const std::lock_guard lock(m_mutex);
    if (loginPort > 0)
        m_webPorts.insert(loginPort, webPort);
}

int P2PPorts::webPortOf(int loginPort) const
{
    const std::lock_guard lock(m_mutex);
    return m_webPorts.value(loginPort);
}

void P2PPorts::releaseDevice(int loginPort)
{
    int webPort = 0;
    {
        const std::lock_guard lock(m_mutex);
        webPort = m_webPorts.take(loginPort);
    }
    release(loginPort);
    release(webPort);
}

void P2PPorts::releaseUnneeded(const std::function<bool(int loginPort)> &isNeeded)
{
    QList<int> known;
    {
        const std::lock_guard lock(m_mutex);
        known = m_webPorts.keys();
    }
    for (const int loginPort : std::as_const(known)) {
        if (!isNeeded(loginPort))
            releaseDevice(loginPort);
    }
}

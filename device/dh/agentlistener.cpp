#include "device/dh/agentlistener.h"

#include "device/registry/loginresult.h"
#include "device/store/devicerow.h"
#include "device/store/devicestore.h"
#include "device/store/logging.h"

#include <mutex>
#include <utility>

namespace {

// The agent's callback is a plain function without user data: the current listener is global.
std::mutex agentListenerMutex;
AgentListener *agentListener = nullptr;

} // namespace

AgentListener::AgentListener(std::shared_ptr<DeviceStore> store, BackEndSignals &backEndSignals)
    : m_store(std::move(store)), m_signals(backEndSignals)
{
    const std::lock_guard lock(agentListenerMutex);
    agentListener = this;
}

AgentListener::~AgentListener()
{
    const std::lock_guard lock(agentListenerMutex);
    if (agentListener == this)
        agentListener = nullptr;
}

void AgentListener::take(sdk::P2PAgentEvent event, const char *deviceId, std::int32_t localPort)
{
    switch (event) {
    case sdk::P2PAgentEvent::ServiceConnected:
        qCInfo(logDevice) << "P2P: the service is connected";
        return;
    case sdk::P2PAgentEvent::ServiceLost:
        qCWarning(logDevice) << "P2P: the service is lost";
        pass({}, 0);
        return;
    case sdk::P2PAgentEvent::TunnelOpened:
        qCInfo(logDevice) << "P2P: port" << localPort << "leads to" << deviceId;
        return;
    case sdk::P2PAgentEvent::TunnelBroken:
        qCWarning(logDevice) << "P2P: the tunnel to" << deviceId << "on port" << localPort << "is broken";
        pass(QString::fromUtf8(deviceId), localPort);
        return;
    }
    qCWarning(logDevice) << "P2P: event" << static_cast<int>(event) << "of" << deviceId << localPort;
}

void AgentListener::pass(const QString &deviceId, int localPort)
{
    const std::lock_guard lock(agentListenerMutex);
    if (!agentListener)
        return;
    // The queued call is dropped when the back end, which owns the listener, is destroyed.
    agentListener->m_signals.queue(
        [listener = agentListener, deviceId, localPort] { listener->noteBrokenTunnel(deviceId, localPort); });
}

void AgentListener::noteBrokenTunnel(const QString &deviceId, int localPort)
{
    const bool isListed =
        m_store->changeRowAt(QStringLiteral("127.0.0.1:%1").arg(localPort), [](QJsonObject &row) {
            row.insert(DeviceRowKey::res, resultCode(LoginResult::NetworkFailure));
        });
    // A row may be missing: tunnels to web pages have none, and a search may have removed it.
    if (isListed || deviceId.isEmpty())
        m_signals.emitNow<&CDeviceBase::signalCDeviceTunnelBroken>(deviceId, localPort);
}

// The port agent's events.
#pragma once

#include "device/registry/backendsignals.h"
#include "sdk/p2pagentlibrary.h"

#include <QString>

#include <memory>

class DeviceStore;

/// A tunnel that broke is reported to the user: the device's row gets the result of a network failure, and
/// signalCDeviceTunnelBroken is emitted, both on the scene's thread. The loss of the service is reported the
/// same way, without a device. The object that was made last gets the events. Begins and ends on the scene's
/// thread.
class AgentListener
{
public:
    AgentListener(std::shared_ptr<DeviceStore> store, BackEndSignals &backEndSignals);
    ~AgentListener();
    AgentListener(const AgentListener &) = delete;
    AgentListener &operator=(const AgentListener &) = delete;

    /// Takes an event, and logs it. On a thread of the agent.
    static void take(sdk::P2PAgentEvent event, const char *deviceId, std::int32_t localPort);

private:
    static void pass(const QString &deviceId, int localPort);
    void noteBrokenTunnel(const QString &deviceId, int localPort);

    const std::shared_ptr<DeviceStore> m_store;
    BackEndSignals &m_signals;
};

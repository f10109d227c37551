// Handles the events of the port agent.
#pragma once

#include "device/registry/backendsignals.h"
#include "sdk/p2pagentlibrary.h"

#include <QString>

#include <memory>

class DeviceStore;

/// Reports broken tunnels: sets the result of the device's row to a network failure and emits
/// signalCDeviceTunnelBroken, both on the main thread. A tunnel without a row is not reported. The loss of
/// the service is reported with an empty device and port 0. Only the object created last receives events.
/// Created and destroyed on the main thread by CDeviceDH.
class AgentListener
{
public:
    /// `backEndSignals` must outlive this object.
    AgentListener(std::shared_ptr<DeviceStore> store, BackEndSignals &backEndSignals);
    ~AgentListener();
    AgentListener(const AgentListener &) = delete;
    AgentListener &operator=(const AgentListener &) = delete;

    /// Logs an event and passes it to the current listener. Called on a thread of the agent.
    static void take(sdk::P2PAgentEvent event, const char *deviceId, std::int32_t localPort);

private:
    static void pass(const QString &deviceId, int localPort);
    void noteBrokenTunnel(const QString &deviceId, int localPort);

    const std::shared_ptr<DeviceStore> m_store;
    BackEndSignals &m_signals;
};

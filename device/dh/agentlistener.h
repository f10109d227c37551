// Handles the events of the port agent.
#pragma once

#include "device/registry/backendsignals.h"
#include "sdk/p2pagentlibrary.h"

#include <QString>

#include <memory>

class DeviceStore;

/// Reports broken tunnels to devices behind NAT, on the main thread: sets "res" of the row at the tunnel's
/// local port to a network failure and emits signalCDeviceTunnelBroken. A tunnel without a row is not
/// reported. The loss of the agent's service is reported by the signal with an empty device and port 0; no
/// row changes then. If there are several listeners, only the one created last receives events. Created and
/// destroyed on the main thread by CDeviceDH.
class AgentListener
{
public:
    /// `backEndSignals` must outlive this object.
    AgentListener(std::shared_ptr<DeviceStore> store, BackEndSignals &backEndSignals);
    ~AgentListener();
    AgentListener(const AgentListener &) = delete;
    AgentListener &operator=(const AgentListener &) = delete;

    /// Logs an event. Also queues it for the current listener, if there is one, if the service is lost or a
    /// tunnel is broken. Returns immediately; the text `deviceId` (a P2P ID) is copied. Called on a thread of
    /// the agent.
    static void take(sdk::P2PAgentEvent event, const char *deviceId, std::int32_t localPort);

private:
    static void pass(const QString &deviceId, int localPort);
    void noteBrokenTunnel(const QString &deviceId, int localPort);

    const std::shared_ptr<DeviceStore> m_store;
    BackEndSignals &m_signals;
};

// The port agent's roles: reaching devices behind NAT by their P2P ID.
#pragma once

#include <cstdint>

namespace sdk {

/// Where the services of the agent are. Texts are 8-bit and not null.
struct P2PAgentServices
{
    const char *tunnelHost;
    std::int32_t tunnelPort;
    const char *relayHost;
    std::int32_t relayPort;
    const char *serverSecret;
    const char *domain;
    const char *restAddress;
    const char *mediaHost;
    std::int32_t mediaPort;
};

/// What an event of the agent is about.
enum class P2PAgentEvent : std::int32_t
{
    ServiceConnected = 1,
    ServiceLost = 2,
    TunnelOpened = 3,
    TunnelBroken = 4,
};

/// Receives events on a thread of the agent. `deviceId` is empty for events of the service, `localPort` is
/// then 0.
using P2PAgentMessageHandler = void (*)(P2PAgentEvent event, const char *deviceId, std::int32_t localPort,
                                        void *user);

inline constexpr int maximumLocalPorts = 10;

/// Maps ports of remote devices to local ports of 127.0.0.1. Operations may be called from any thread. Those
/// that return a flag return false on failure.
class P2PAgentLibrary
{
public:
    virtual ~P2PAgentLibrary() = default;

    /// Starts the agent. The texts are copied.
    virtual bool OAgent_ClientInit(const P2PAgentServices &services) = 0;

    /// The handler of all later events; null for none.
    virtual void OAgent_SetMessageCallback(P2PAgentMessageHandler handler, void *user) = 0;

    /// Which local ports lead to this port of the device now: fills `localPorts`, which has room for
    /// `capacity` numbers, and sets `count`. No mapping is no failure.
    virtual bool OAgent_ClientGetDeviceLocalPort(const char *deviceId, std::int32_t devicePort,
                                                 std::int32_t *localPorts, std::int32_t capacity,
                                                 std::int32_t &count) = 0;

    /// Maps a port of the device. `localPort` is the wish, 0 for any, and afterwards the port that was given.
    virtual bool OAgent_ClientAddPort(const char *deviceId, std::int32_t devicePort, std::int32_t &localPort,
                                      std::int32_t flag) = 0;

    /// Removes a mapping. Connections through it are closed.
    virtual bool OAgent_ClientDelPort(std::int32_t localPort) = 0;

    /// Removes all mappings and stops the agent. No handler runs after it has returned.
    virtual void OAgent_ClientRelease() = 0;
};

} // namespace sdk

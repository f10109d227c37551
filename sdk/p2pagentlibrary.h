// The interface of the port agent: access to devices behind NAT by their P2P ID.
#pragma once

#include <cstdint>

namespace sdk {

/// The addresses of the agent's services. Strings are 8-bit and not null.
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

/// The type of an event of the agent.
enum class P2PAgentEvent : std::int32_t
{
    ServiceConnected = 1,
    ServiceLost = 2,
    TunnelOpened = 3,
    TunnelBroken = 4,
};

/// Receives events on a thread of the agent. For events of the service, `deviceId` is empty and `localPort`
/// is 0.
using P2PAgentMessageHandler = void (*)(P2PAgentEvent event, const char *deviceId, std::int32_t localPort,
                                        void *user);

/// The capacity with which callers call OAgent_ClientGetDeviceLocalPort.
inline constexpr int maximumLocalPorts = 10;

/// Maps ports of remote devices to local ports of 127.0.0.1. Operations may be called from any thread. Those
/// that return a bool return false on failure.
class P2PAgentLibrary
{
public:
    virtual ~P2PAgentLibrary() = default;

    /// Starts the agent. The strings are copied.
    virtual bool OAgent_ClientInit(const P2PAgentServices &services) = 0;

    /// Sets the handler of all later events; null for none.
    virtual void OAgent_SetMessageCallback(P2PAgentMessageHandler handler, void *user) = 0;

    /// Fills `localPorts`, which has room for `capacity` numbers, with the local ports that are mapped to
    /// this port of the device, and sets `count` to their number, which may be 0.
    virtual bool OAgent_ClientGetDeviceLocalPort(const char *deviceId, std::int32_t devicePort,
                                                 std::int32_t *localPorts, std::int32_t capacity,
                                                 std::int32_t &count) = 0;

    /// Maps a port of the device. `localPort` is the requested local port, 0 for any; it is set to the
    /// assigned port. `flag` is always 0.
    virtual bool OAgent_ClientAddPort(const char *deviceId, std::int32_t devicePort, std::int32_t &localPort,
                                      std::int32_t flag) = 0;

    /// Removes a mapping. Connections through it are closed.
    virtual bool OAgent_ClientDelPort(std::int32_t localPort) = 0;

    /// Removes all mappings and stops the agent. No handler runs after the return.
    virtual void OAgent_ClientRelease() = 0;
};

} // namespace sdk

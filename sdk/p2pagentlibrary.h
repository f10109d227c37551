// The interface of the port agent: it maps ports of devices behind NAT, found by their P2P ID, to local ports
// (TCP, 127.0.0.1). The host reaches such a device at the local port.
#pragma once

#include <cstdint>

namespace sdk {

/// The addresses of the agent's services on the internet: the tunnel, the relay, a web service and the media
/// service. Strings are 8-bit, ended by a zero, and not null. Hosts are names or addresses, ports are 1 to
/// 65535, `restAddress` is a URL, `domain` may be empty. `serverSecret` is the key that the services share
/// with this application; it is never logged.
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
    ServiceConnected = 1, ///< the agent is connected to its services
    ServiceLost = 2,      ///< the agent has lost that connection
    TunnelOpened = 3,     ///< a local port is mapped
    TunnelBroken = 4, ///< no data pass through a local port any more; its mapping exists until it is removed
};

/// Receives events on a thread of the agent, one at a time. `deviceId` is the P2P ID of the device, and is
/// valid during the call. For ServiceConnected and ServiceLost, `deviceId` is empty and `localPort` is 0.
using P2PAgentMessageHandler = void (*)(P2PAgentEvent event, const char *deviceId, std::int32_t localPort,
                                        void *user);

/// The `capacity` that callers use for OAgent_ClientGetDeviceLocalPort, not a limit of the agent.
inline constexpr int maximumLocalPorts = 10;

/// Maps ports of remote devices to local ports of 127.0.0.1. A device is identified by its P2P ID,
/// `deviceId`. Operations may be called from any thread. Those that return a bool return false on failure,
/// and before OAgent_ClientInit.
class P2PAgentLibrary
{
public:
    virtual ~P2PAgentLibrary() = default;

    /// Starts the agent; it connects to its services in the background and reports ServiceConnected. The
    /// strings are copied. Returns false if the agent has been started already.
    virtual bool OAgent_ClientInit(const P2PAgentServices &services) = 0;

    /// Sets the handler of all later events; null for none. `user` is passed to it. May be called before
    /// OAgent_ClientInit. A running call of the previous handler may end after the return.
    virtual void OAgent_SetMessageCallback(P2PAgentMessageHandler handler, void *user) = 0;

    /// Fills `localPorts`, which has room for `capacity` numbers, with the local ports that are mapped to
    /// `devicePort` of the device, and sets `count` to the number of filled entries. Broken tunnels, and
    /// ports beyond `capacity`, are left out. Sends nothing. Returns true also if there are none.
    virtual bool OAgent_ClientGetDeviceLocalPort(const char *deviceId, std::int32_t devicePort,
                                                 std::int32_t *localPorts, std::int32_t capacity,
                                                 std::int32_t &count) = 0;

    /// Maps `devicePort` of the device to a further local port, also if it is mapped already. `localPort` is
    /// the requested local port, 0 for any free one, and is set to the assigned port. `flag` is always 0. A
    /// success is also reported as TunnelOpened. Returns false, with `localPort` unchanged, if the device is
    /// unknown to the services or does not respond, or the local port is in use.
    virtual bool OAgent_ClientAddPort(const char *deviceId, std::int32_t devicePort, std::int32_t &localPort,
                                      std::int32_t flag) = 0;

    /// Removes the mapping of `localPort`. Connections through it are closed. Returns false for a port that
    /// the agent has not mapped.
    virtual bool OAgent_ClientDelPort(std::int32_t localPort) = 0;

    /// Removes all mappings and stops the agent. No handler runs after the return, so this must not be called
    /// from a handler. OAgent_ClientInit may follow.
    virtual void OAgent_ClientRelease() = 0;
};

} // namespace sdk

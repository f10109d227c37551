// The sockets of a search. One for each interface sends probes and receives the responses. One for each of
// the two groups receives the messages that devices send on their own.
#pragma once

#include "sdk/onvif/discovery/networkaddress.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace sdk::onvif {

/// Owns the sockets. Used by one thread, except wake(), which any thread may call.
class DiscoverySockets
{
public:
    /// Called with a datagram of up to 65536 bytes, which is valid during the call. `localAddress` is the
    /// address of the interface that received it, empty if unknown.
    using Receiver = std::function<void(std::string_view datagram, const SocketAddress &sender,
                                        const std::string &localAddress)>;

    DiscoverySockets();
    ~DiscoverySockets();
    DiscoverySockets(const DiscoverySockets &) = delete;
    DiscoverySockets &operator=(const DiscoverySockets &) = delete;

    /// Called after sending from an address of this host, or after its socket could not be opened. `error` is
    /// the system's error number, 0 on success.
    using SendObserver = std::function<void(const std::string &localAddress, int error)>;

    /// Opens the sockets. To be called once. Returns the number of sockets that send to a group; those of
    /// loopback interfaces do not. `observer` is called for each interface whose socket cannot be opened. A
    /// failure of the sockets that receive from the groups is ignored.
    std::size_t open(const SendObserver &observer = {});

    /// Sends a message to the group of its address family through every interface except loopback interfaces.
    /// Returns the number of sockets that sent it. `observer` is called for each socket, also on an error.
    std::size_t sendToGroups(const std::string &message, const SendObserver &observer = {});

    /// Sends a message to one address, from the first socket of its family that can send it. Returns 0 when
    /// one has sent it, otherwise the system's error number of the last failure other than EINVAL;
    /// ENETUNREACH if there is none, as without a socket of the family.
    [[nodiscard]] int sendTo(const std::string &message, const SocketAddress &address);

    /// Waits up to `milliseconds` until a datagram arrives or wake() is called. Passes the datagrams that
    /// have arrived to `receiver` on the calling thread, at most 1000, so that a continuous sender does not
    /// block the caller.
    void receive(int milliseconds, const Receiver &receiver);

    /// Ends a wait in receive(); if none runs, the next one ends immediately.
    void wake() const;

private:
    static constexpr int maximumDatagrams = 1000;

    struct Socket
    {
        int descriptor = -1;
        bool isIPv4 = true;
        unsigned int interfaceIndex = 0;
        std::string localAddress;
        bool sendsToGroup = false;
    };

    /// Returns the system's error, 0 for none.
    int addInterface(const NetworkInterface &networkInterface);
    void addListener(bool isIPv4, const std::vector<NetworkInterface> &interfaces);
    [[nodiscard]] std::string localAddressOf(const Socket &socket, unsigned int interfaceIndex) const;

    std::vector<Socket> m_sockets;
    int m_wakeDescriptor = -1;
};

} // namespace sdk::onvif

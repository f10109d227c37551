// The sockets of a search: one for each interface, and one for each group, which receives unsolicited
// messages of devices.
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
    /// Called with a datagram. `localAddress` is the address of the interface that received it, empty if
    /// unknown.
    using Receiver = std::function<void(std::string_view datagram, const SocketAddress &sender,
                                        const std::string &localAddress)>;

    DiscoverySockets();
    ~DiscoverySockets();
    DiscoverySockets(const DiscoverySockets &) = delete;
    DiscoverySockets &operator=(const DiscoverySockets &) = delete;

    /// Called after sending from an address of this host, or after its socket could not be opened. `error` is
    /// the system's error number, 0 on success.
    using SendObserver = std::function<void(const std::string &localAddress, int error)>;

    /// Opens the sockets. Returns the number of sockets that send to a group; those of loopback interfaces do
    /// not. `observer` is called for each interface whose socket cannot be opened.
    std::size_t open(const SendObserver &observer = {});

    /// Sends a message to the group through every interface except loopback interfaces. Returns the number of
    /// sockets that sent it. `observer` is called for each of them, also on an error.
    std::size_t sendToGroups(const std::string &message, const SendObserver &observer = {});

    /// Sends a message to one address, from the first socket of its family that can. Returns the system's
    /// error, 0 for none.
    [[nodiscard]] int sendTo(const std::string &message, const SocketAddress &address);

    /// Waits up to `milliseconds` for datagrams and passes the received ones to `receiver`, at most
    /// `maximumDatagrams`, so that a continuous sender does not block the caller.
    void receive(int milliseconds, const Receiver &receiver);

    /// Ends a wait in receive().
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

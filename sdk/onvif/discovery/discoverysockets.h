// The sockets of a search: one for each interface, and one for each group to hear messages that devices send
// on their own.
#pragma once

#include "sdk/onvif/discovery/networkaddress.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace sdk::onvif {

/// Owns the sockets. Used by one thread, but wake() by any.
class DiscoverySockets
{
public:
    /// Called with a datagram. `localAddress` is that of the interface it came through, or empty.
    using Receiver = std::function<void(std::string_view datagram, const SocketAddress &sender,
                                        const std::string &localAddress)>;

    DiscoverySockets();
    ~DiscoverySockets();
    DiscoverySockets(const DiscoverySockets &) = delete;
    DiscoverySockets &operator=(const DiscoverySockets &) = delete;

    /// Opens a socket on each interface. Returns the number of interfaces that can be searched.
    std::size_t open();

    /// Sends a message to the group through every interface. Returns how many interfaces took it.
    std::size_t sendToGroups(const std::string &message);

    /// Sends a message to one address. False if it cannot be sent.
    bool sendTo(const std::string &message, const SocketAddress &address);

    /// Waits up to `milliseconds` for datagrams and hands those that are there to `receiver`, at most
    /// `maximumDatagrams`: a sender that never pauses must not keep the caller here.
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

    void addInterface(const NetworkInterface &networkInterface);
    void addListener(bool isIPv4, const std::vector<NetworkInterface> &interfaces);

    std::vector<Socket> m_sockets;
    int m_wakeDescriptor = -1;
};

} // namespace sdk::onvif

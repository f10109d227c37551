#include "site/discovery/discoveryport.h"

#include "sdk/clock.h"
#include "sdk/demo/demosite.h"
#include "site/deviceidentity.h"
#include "site/network/deviceinterface.h"
#include "site/network/poller.h"

#include <array>
#include <atomic>
#include <cstring>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>

using namespace Qt::StringLiterals;

namespace site {

namespace {

constexpr const char *ipv4Group = "239.255.255.250";
constexpr const char *ipv6Group = "ff02::c";
constexpr std::size_t largestDatagram = 65536;

/// True if the datagram with the control data of `message` was sent to a group.
bool wasSentToGroup(msghdr &message)
{
    for (cmsghdr *head = CMSG_FIRSTHDR(&message); head; head = CMSG_NXTHDR(&message, head)) {
        if (head->cmsg_level == IPPROTO_IP && head->cmsg_type == IP_PKTINFO) {
            in_pktinfo information = {};
            std::memcpy(&information, CMSG_DATA(head), sizeof(information));
            return IN_MULTICAST(ntohl(information.ipi_addr.s_addr));
        }
        if (head->cmsg_level == IPPROTO_IPV6 && head->cmsg_type == IPV6_PKTINFO) {
            in6_pktinfo information = {};
            std::memcpy(&information, CMSG_DATA(head), sizeof(information));
            return IN6_IS_ADDR_MULTICAST(&information.ipi6_addr);
        }
    }
    return false;
}

} // namespace

struct DiscoveryPort::Sockets
{
    FileDescriptor ipv4;
    FileDescriptor ipv6;
    std::int64_t instance = 0;
    std::atomic<std::int64_t> messages = 0;

    [[nodiscard]] const FileDescriptor &of(int ipVersion) const { return ipVersion == 6 ? ipv6 : ipv4; }
    [[nodiscard]] DiscoverySequence next() { return {instance, ++messages}; }

    void sendToGroup(int ipVersion, const QByteArray &bytes) const
    {
        sockaddr_storage destination = {};
        socklen_t size = 0;
        if (ipVersion == 6) {
            auto &address = reinterpret_cast<sockaddr_in6 &>(destination);
            address.sin6_family = AF_INET6;
            address.sin6_port = htons(port);
            inet_pton(AF_INET6, ipv6Group, &address.sin6_addr);
            size = sizeof(address);
        } else {
            auto &address = reinterpret_cast<sockaddr_in &>(destination);
            address.sin_family = AF_INET;
            address.sin_port = htons(port);
            inet_pton(AF_INET, ipv4Group, &address.sin_addr);
            size = sizeof(address);
        }
        send(ipVersion, bytes, destination, size);
    }
    void send(int ipVersion, const QByteArray &bytes, const sockaddr_storage &destination,
              socklen_t size) const
    {
        // A lost datagram is not sent again, as on a real network.
        (void)sendto(of(ipVersion).number(), bytes.constData(), static_cast<std::size_t>(bytes.size()), 0,
                     reinterpret_cast<const sockaddr *>(&destination), size);
    }
};

DiscoveryPort::DiscoveryPort(sdk::demo::DemoSite &site, Poller &poller, const SiteOptions &options,
                             QString mac, const DeviceInterface &interface)
    : m_site(site), m_poller(poller), m_options(options), m_mac(std::move(mac)),
      m_sockets(std::make_shared<Sockets>())
{
    m_sockets->instance = site.clock().now() / 1000;
    const std::optional<sdk::demo::SceneDevice> device = site.device(m_mac);
    if (!device)
        return;
    if (!device->address.isEmpty())
        m_sockets->ipv4 = interface.openDatagrams(port, QLatin1String(ipv4Group));
    if (!device->ipv6.isEmpty())
        m_sockets->ipv6 = interface.openDatagrams(port, QLatin1String(ipv6Group));
    for (const int ipVersion : {4, 6}) {
        if (m_sockets->of(ipVersion).isOpen())
            m_poller.watch(m_sockets->of(ipVersion).number(), [this, ipVersion] { receive(ipVersion); });
    }
}

DiscoveryPort::~DiscoveryPort()
{
    for (const int ipVersion : {4, 6}) {
        if (m_sockets->of(ipVersion).isOpen())
            m_poller.remove(m_sockets->of(ipVersion).number());
    }
}

bool DiscoveryPort::isOpen() const
{
    return m_sockets->ipv4.isOpen() || m_sockets->ipv6.isOpen();
}

void DiscoveryPort::sendHello()
{
    sendToGroups(helloMessage);
}

void DiscoveryPort::sendBye()
{
    sendToGroups(byeMessage);
}

void DiscoveryPort::sendToGroups(Announcement message)
{
    const std::optional<sdk::demo::SceneDevice> device = m_site.device(m_mac);
    if (!device || device->inOtherSegment)
        return;
    const DeviceManner manner = m_options.mannerOf(*device);
    for (const int ipVersion : {4, 6}) {
        const DiscoveryIdentity identity = discoveryIdentity(*device, manner, ipVersion);
        m_sockets->sendToGroup(ipVersion, message(identity, m_sockets->next(), manner.xml));
    }
}

void DiscoveryPort::receive(int ipVersion)
{
    QByteArray bytes(static_cast<qsizetype>(largestDatagram), Qt::Uninitialized);
    sockaddr_storage source = {};
    std::array<char, 256> control = {};
    iovec buffer = {bytes.data(), largestDatagram};
    msghdr message = {};
    message.msg_name = &source;
    message.msg_namelen = sizeof(source);
    message.msg_iov = &buffer;
    message.msg_iovlen = 1;
    message.msg_control = control.data();
    message.msg_controllen = control.size();
    const ssize_t size = recvmsg(m_sockets->of(ipVersion).number(), &message, 0);
    const std::optional<sdk::demo::SceneDevice> device = m_site.device(m_mac);
    if (size <= 0 || !device || (device->inOtherSegment && wasSentToGroup(message)))
        return;
    bytes.truncate(size);
    const std::optional<DiscoveryRequest> request = readDiscoveryRequest(bytes);
    const DeviceManner manner = m_options.mannerOf(*device);
    if (!request || !matches(*request, discoveryIdentity(*device, manner, ipVersion)))
        return;
    m_site.requests().add(
        {u"Discovery"_s,
         m_mac,
         {{u"kind"_s, request->kind == DiscoveryRequest::Kind::Probe ? u"probe"_s : u"resolve"_s},
          {u"ipVersion"_s, ipVersion}},
         m_site.clock().now()});
    std::chrono::milliseconds delay = device->latency;
    if (const auto late = device->fault(sdk::demo::Fault::LateAnswer))
        delay += std::chrono::milliseconds(late->number);
    const int times = device->hasFault(sdk::demo::Fault::AnswerTwice) ? 2 : 1;
    m_poller.after(delay, [=, &site = m_site, mac = m_mac, request = *request, length = message.msg_namelen,
                           weak = std::weak_ptr(m_sockets)] {
        const std::shared_ptr<Sockets> sockets = weak.lock();
        const std::optional<sdk::demo::SceneDevice> now = site.device(mac);
        if (!sockets || !now)
            return;
        for (int count = 0; count < times; ++count) {
            sockets->send(
                ipVersion,
                responseTo(request, discoveryIdentity(*now, manner, ipVersion), sockets->next(), manner.xml),
                source, length);
        }
    });
}

} // namespace site

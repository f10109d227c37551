#include "site/network/netlink.h"

#include "site/network/filedescriptor.h"

#include <algorithm>
#include <cerrno>

#include <linux/netlink.h>
#include <linux/rtnetlink.h>
#include <sys/socket.h>

namespace site {

namespace {

std::span<const std::byte> bytesOf(const auto &value)
{
    return {reinterpret_cast<const std::byte *>(&value), sizeof(value)};
}

int readResponse(int socket)
{
    alignas(nlmsghdr) std::array<std::byte, 4096> response;
    ssize_t size = 0;
    do
        size = recv(socket, response.data(), response.size(), 0);
    while (size < 0 && errno == EINTR);
    nlmsghdr head = {};
    nlmsgerr error = {};
    if (size < static_cast<ssize_t>(sizeof(head) + sizeof(error)))
        return EPROTO;
    std::memcpy(&head, response.data(), sizeof(head));
    std::memcpy(&error, response.data() + sizeof(head), sizeof(error));
    return head.nlmsg_type == NLMSG_ERROR ? -error.error : EPROTO;
}

} // namespace

void NetlinkRequest::begin(std::uint16_t type, std::uint16_t flags, std::span<const std::byte> body)
{
    nlmsghdr head = {};
    head.nlmsg_type = type;
    head.nlmsg_flags = static_cast<std::uint16_t>(NLM_F_REQUEST | NLM_F_ACK | flags);
    append(bytesOf(head));
    append(body);
}

void NetlinkRequest::add(std::uint16_t attribute, std::span<const std::byte> value)
{
    const rtattr head = {static_cast<std::uint16_t>(RTA_LENGTH(value.size())), attribute};
    append(bytesOf(head));
    append(value);
}

void NetlinkRequest::add(std::uint16_t attribute, std::string_view text)
{
    add(attribute, std::span(reinterpret_cast<const std::byte *>(text.data()), text.size()));
}

std::size_t NetlinkRequest::beginNested(std::uint16_t attribute)
{
    const std::size_t offset = m_size;
    add(attribute, std::span<const std::byte>());
    return offset;
}

void NetlinkRequest::endNested(std::size_t nested)
{
    if (!m_fits)
        return;
    const auto length = static_cast<std::uint16_t>(m_size - nested);
    std::memcpy(m_bytes.data() + nested + offsetof(rtattr, rta_len), &length, sizeof(length));
}

void NetlinkRequest::append(std::span<const std::byte> bytes)
{
    const std::size_t padded = NLMSG_ALIGN(bytes.size());
    m_fits = m_fits && m_size + padded <= largest;
    if (!m_fits)
        return;
    std::copy(bytes.begin(), bytes.end(), m_bytes.begin() + static_cast<std::ptrdiff_t>(m_size));
    m_size += padded;
}

int NetlinkRequest::send()
{
    if (!m_fits)
        return EMSGSIZE;
    const auto length = static_cast<std::uint32_t>(m_size);
    std::memcpy(m_bytes.data() + offsetof(nlmsghdr, nlmsg_len), &length, sizeof(length));
    const FileDescriptor socket(::socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC, NETLINK_ROUTE));
    sockaddr_nl kernel = {};
    kernel.nl_family = AF_NETLINK;
    if (!socket.isOpen() || sendto(socket.number(), m_bytes.data(), m_size, 0,
                                   reinterpret_cast<const sockaddr *>(&kernel), sizeof(kernel)) < 0)
        return errno;
    return readResponse(socket.number());
}

} // namespace site

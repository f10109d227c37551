// Requests to the Linux kernel about interfaces, addresses and routes.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <string_view>

namespace site {

/// One request to the kernel's routing service, built from a head and attributes (rtnetlink). Its size is
/// limited to 1024 bytes: send() refuses a larger one, which is a programming error. Not thread-safe.
class NetlinkRequest
{
public:
    /// `type` is one of RTM_*, `flags` are NLM_F_*; NLM_F_REQUEST and NLM_F_ACK are added. `body` is the
    /// structure of the type, such as ifinfomsg.
    template<typename Body>
    NetlinkRequest(std::uint16_t type, std::uint16_t flags, const Body &body)
    {
        begin(type, flags, {reinterpret_cast<const std::byte *>(&body), sizeof(body)});
    }

    // Add an attribute with that number and a copy of its value. A text has no final zero byte.
    void add(std::uint16_t attribute, std::span<const std::byte> value);
    void add(std::uint16_t attribute, std::string_view text);
    template<typename Number>
    void addNumber(std::uint16_t attribute, Number number)
    {
        add(attribute, std::span(reinterpret_cast<const std::byte *>(&number), sizeof(number)));
    }

    /// Attributes that are added until endNested() are nested in `attribute`. Returns the argument of
    /// endNested().
    [[nodiscard]] std::size_t beginNested(std::uint16_t attribute);
    void endNested(std::size_t nested);

    /// Sends the request to the kernel in the network namespace of the calling thread, and waits for the
    /// response. Returns 0, or the error number: that of the kernel or the socket, EMSGSIZE for a request
    /// that is too large, or EPROTO for an unexpected response.
    [[nodiscard]] int send();

private:
    static constexpr std::size_t largest = 1024;

    void begin(std::uint16_t type, std::uint16_t flags, std::span<const std::byte> body);
    void append(std::span<const std::byte> bytes);

    alignas(4) std::array<std::byte, largest> m_bytes = {};
    std::size_t m_size = 0;
    bool m_fits = true;
};

} // namespace site

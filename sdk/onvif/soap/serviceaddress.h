// The address of a service of a device.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace sdk::onvif {

/// A service over HTTP or HTTPS.
struct ServiceAddress
{
    bool isSecure = false; ///< HTTPS
    std::string host = {}; ///< an address without brackets, or a name
    int port = 80;
    std::string path = "/onvif/device_service"; ///< begins with "/"; with its query
    std::string identity = {};                  ///< the device's MAC, otherwise its UUID; empty if unknown

    /// The URL with the port, without the identity.
    [[nodiscard]] std::string url() const;
    [[nodiscard]] bool operator==(const ServiceAddress &) const = default;
};

/// The port of HTTP or HTTPS for a URL without a port.
inline constexpr int httpPort = 80;
inline constexpr int httpsPort = 443;

/// Whether HTTPS is assumed at a port whose protocol is unknown.
[[nodiscard]] constexpr bool isHttpsPort(int port)
{
    constexpr int otherHttpsPort = 8443;
    return port == httpsPort || port == otherHttpsPort;
}

/// Reads an absolute http or https URL; the identity is empty. Nothing for any other scheme, and for a URL
/// with an account, with spaces, control or non-ASCII characters, without a host, with an invalid port, or of
/// more than 2048 bytes.
[[nodiscard]] std::optional<ServiceAddress> serviceAddressOf(std::string_view url);

/// The address of the service at `url` for a client that reached the device at `reached`. The host is always
/// the host of `reached`, since the URL contains the address as the device knows it, and the message may be
/// forged. Scheme and port are those of `url` if its host is the reached host, otherwise those of `reached`,
/// since a router may forward the port. If `reached` is HTTPS, a service over HTTP is replaced by HTTPS at
/// the port of `reached`, since HTTP would expose the encrypted data. The identity is that of `reached`.
/// Nothing if serviceAddressOf(url) is nothing.
[[nodiscard]] std::optional<ServiceAddress> serviceAt(const ServiceAddress &reached, std::string_view url);

/// `host` as a URL contains it: an IPv6 address gets brackets, any other host is unchanged.
[[nodiscard]] std::string bracketed(std::string_view host);

} // namespace sdk::onvif

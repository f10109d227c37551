// Where a service of a device is reached.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace sdk::onvif {

/// A service over HTTP or HTTPS.
struct ServiceAddress
{
    bool isSecure = false; ///< HTTPS
    std::string host = {}; ///< an address without brackets
    int port = 80;
    std::string path = "/onvif/device_service"; ///< with its query
    std::string identity = {};                  ///< the device's MAC, else its UUID; empty if unknown

    [[nodiscard]] std::string url() const;
    [[nodiscard]] bool operator==(const ServiceAddress &) const = default;
};

/// The port of HTTP or HTTPS when a URL names none.
inline constexpr int httpPort = 80;
inline constexpr int httpsPort = 443;

/// Whether a port that nothing else is known of is asked over HTTPS.
[[nodiscard]] constexpr bool isHttpsPort(int port)
{
    constexpr int otherHttpsPort = 8443;
    return port == httpsPort || port == otherHttpsPort;
}

/// Reads an absolute http or https URL. Nothing for any other scheme, for a URL with an account in it, with
/// control characters or blanks, without a host or with a port that is none.
[[nodiscard]] std::optional<ServiceAddress> serviceAddressOf(std::string_view url);

/// Where the service at `url` is asked by a client that reached the device at `reached`. A device names its
/// services by its own view of the network; its message may also be forged. So the host is always the one
/// that was reached. The port is the named one when the URL has the reached host, else the reached one: the
/// way may lead through a port of a router. A service of a device that was reached over HTTPS is never asked
/// over HTTP: what encryption protected would be readable. The identity stays that of `reached`.
[[nodiscard]] std::optional<ServiceAddress> serviceAt(const ServiceAddress &reached, std::string_view url);

/// "[...]" around an IPv6 address.
[[nodiscard]] std::string bracketed(std::string_view host);

} // namespace sdk::onvif

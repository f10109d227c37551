// Checks of address strings in scenes and requests.
#pragma once

#include <QString>

namespace sdk::demo {

/// Four decimal octets, without leading zeros.
[[nodiscard]] bool isIpv4Address(const QString &text);

/// A dotted mask with all ones before all zeros.
[[nodiscard]] bool isIpv4Mask(const QString &text);

/// The canonical form of an IPv6 address; empty for an invalid one. Zones ("%eth0") are not accepted.
[[nodiscard]] QString canonicalIpv6Address(const QString &text);

/// Lower-case "02:1a:c5:00:40:17"; empty for anything except six pairs of hexadecimal digits with colons.
[[nodiscard]] QString canonicalMac(const QString &text);

} // namespace sdk::demo

// Checking addresses that a scene or a request gives as text.
#pragma once

#include <QString>

namespace sdk::demo {

/// Four decimal octets, without leading zeros.
[[nodiscard]] bool isIpv4Address(const QString &text);

/// A dotted mask whose ones all stand before its zeros.
[[nodiscard]] bool isIpv4Mask(const QString &text);

/// The one canonical spelling of an IPv6 address; empty when `text` is none. Zones ("%eth0") are not
/// accepted.
[[nodiscard]] QString canonicalIpv6Address(const QString &text);

/// Lower-case "02:1a:c5:00:40:17"; empty when `text` is not six pairs of hexadecimal digits with colons.
[[nodiscard]] QString canonicalMac(const QString &text);

} // namespace sdk::demo

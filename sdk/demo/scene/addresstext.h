// Checks of address strings in scenes and requests.
#pragma once

#include <QString>

namespace sdk::demo {

/// Whether `text` is four decimal octets with dots, without leading zeros. True for "0.0.0.0".
[[nodiscard]] bool isIpv4Address(const QString &text);

/// Whether `text` is a dotted mask with all ones before all zeros. True for "0.0.0.0" and "255.255.255.255".
[[nodiscard]] bool isIpv4Mask(const QString &text);

/// The canonical form of an IPv6 address, by which addresses are compared: "fd00::31". Empty for an invalid
/// one. Zones ("%eth0") are not accepted.
[[nodiscard]] QString canonicalIpv6Address(const QString &text);

/// The MAC in lower case: "02:1a:c5:00:40:17". Empty if `text` is not six pairs of hexadecimal digits with
/// colons.
[[nodiscard]] QString canonicalMac(const QString &text);

} // namespace sdk::demo

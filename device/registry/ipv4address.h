// Arithmetic on dotted IPv4 addresses.
#pragma once

#include <QString>

#include <cstdint>
#include <optional>

/// The address as a number in host order, its first octet in the highest byte. Nothing unless `text` is
/// exactly four decimal octets from 0 to 255 between single points, without signs or blanks.
[[nodiscard]] std::optional<std::uint32_t> ipv4Number(QStringView text);

/// The dotted text of an address number.
[[nodiscard]] QString ipv4Text(std::uint32_t address);

/// Octet `position` (0 the first, 3 the last) of an address.
[[nodiscard]] constexpr std::uint32_t ipv4Octet(std::uint32_t address, int position)
{
    return (address >> (8 * (3 - position))) & 0xFF;
}

/// True for a subnet mask: ones from the left, then zeros, and at least one of each.
[[nodiscard]] constexpr bool isSubnetMask(std::uint32_t mask)
{
    const std::uint32_t hosts = ~mask;
    return mask != 0 && hosts != 0 && (hosts & (hosts + 1)) == 0;
}

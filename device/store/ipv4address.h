// Arithmetic on dotted IPv4 addresses.
#pragma once

#include <QString>

#include <cstdint>
#include <optional>

/// The address as a number in host byte order. nullopt unless `text` consists of four decimal octets (0 to
/// 255, one to three digits, also with leading zeros) separated by dots, without signs, spaces or a port.
[[nodiscard]] std::optional<std::uint32_t> ipv4Number(QStringView text);

/// The dotted notation of an address in host byte order, without leading zeros.
[[nodiscard]] QString ipv4Text(std::uint32_t address);

/// Octet `position` of an address in host byte order; `position` is 0 for the first to 3 for the last.
[[nodiscard]] constexpr std::uint32_t ipv4Octet(std::uint32_t address, int position)
{
    return (address >> (8 * (3 - position))) & 0xFF;
}

/// Whether `mask` (in host byte order) is a subnet mask: one bits followed by zero bits, at least one of
/// each.
[[nodiscard]] constexpr bool isSubnetMask(std::uint32_t mask)
{
    const std::uint32_t hosts = ~mask;
    return mask != 0 && hosts != 0 && (hosts & (hosts + 1)) == 0;
}

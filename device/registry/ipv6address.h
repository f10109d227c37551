#pragma once

#include <QStringView>

#include <array>
#include <cstdint>
#include <optional>

/// The address in network order. Nothing unless `text` is an IPv6 address (RFC 4291, its last two groups may
/// be written as an IPv4 address). A zone behind "%" is left out.
[[nodiscard]] std::optional<std::array<std::uint8_t, 16>> ipv6Bytes(QStringView text);

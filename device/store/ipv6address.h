#pragma once

#include <QStringView>

#include <array>
#include <cstdint>
#include <optional>

/// The address in network byte order. nullopt unless `text` is an IPv6 address (RFC 4291; its last two groups
/// may be an IPv4 address) without brackets and port. A zone after "%" is ignored.
[[nodiscard]] std::optional<std::array<std::uint8_t, 16>> ipv6Bytes(QStringView text);

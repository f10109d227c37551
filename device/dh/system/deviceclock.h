// The clock of a device, compared with that of this computer.
#pragma once

#include "sdk/systemblocks.h"

#include <QDateTime>
#include <QString>

#include <cstdint>
#include <optional>

namespace sdk {
class NetLibrary;
} // namespace sdk

/// What a device answers when it is asked for its time; none on a failure, whose error of the library is set,
/// and, without an error, for what is no date and time.
[[nodiscard]] std::optional<QDateTime> readDeviceClock(sdk::NetLibrary &net, std::int64_t loginHandle,
                                                       std::uint32_t &error);

/// The time of a device, and by how much its clock is ahead of `here` or behind it, in the user's language.
[[nodiscard]] QString deviceClockText(const QDateTime &device, const QDateTime &here);

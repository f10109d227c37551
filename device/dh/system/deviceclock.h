// Reads the clock of a device and compares it with the host's.
#pragma once

#include "sdk/systemblocks.h"

#include <QDateTime>
#include <QString>

#include <cstdint>
#include <optional>

namespace sdk {
class NetLibrary;
} // namespace sdk

/// The date and time that a device shows, as a QDateTime in UTC: daylight saving of the host does not apply
/// to it. On failure nullopt: `error` is the library's error, or 0 if the response is not a valid time. `net`
/// must not be null. Blocks for up to 3 s; any thread.
[[nodiscard]] std::optional<QDateTime> readDeviceClock(sdk::NetLibrary &net, std::int64_t loginHandle,
                                                       std::uint32_t &error);

/// Text with the time of readDeviceClock() and its difference to `here`, the host's local time, in the user's
/// language. The dates and times that both show are compared.
[[nodiscard]] QString deviceClockText(const QDateTime &device, const QDateTime &here);

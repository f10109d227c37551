// Blocks of the upgrade of a device's firmware.
#pragma once

#include <cstddef>
#include <cstdint>

namespace sdk {

/// How far an upgrade is. It goes through the phases in their order.
enum class UpgradePhase : std::int32_t
{
    Sending = 1, ///< the file goes to the device, which can still drop it
    Writing = 2, ///< the device replaces its firmware and cannot be stopped
    Done = 3,    ///< the firmware is written; the device reboots, and its sessions have ended
    Failed = 4,  ///< the device keeps the firmware that it had
};

/// What a device tells of its upgrade.
struct UpgradeProgress
{
    std::uint32_t size; ///< sizeof(UpgradeProgress)
    UpgradePhase phase;
    std::int32_t percent; ///< of the phase, 0 to 100
    std::uint32_t error;  ///< a NetError with Failed, else 0
};
static_assert(sizeof(UpgradeProgress) == 16);
static_assert(offsetof(UpgradeProgress, error) == 12);

/// Called on a thread of the library, once at a time for each upgrade. `progress` ends with the call. After
/// Done or Failed nothing more comes.
using UpgradeProgressHandler = void (*)(std::int64_t upgradeHandle, const UpgradeProgress *progress,
                                        void *user);

} // namespace sdk

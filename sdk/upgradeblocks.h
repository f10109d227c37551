// Blocks of the upgrade of a device's firmware.
#pragma once

#include <cstddef>
#include <cstdint>

namespace sdk {

/// The phases of an upgrade, in the order Sending, Writing, Done. Failed may come instead of any of them. If
/// the device requests the complete file once more, Sending and Writing follow again.
enum class UpgradePhase : std::int32_t
{
    Sending = 1, ///< the file is sent to the device; the upgrade can be cancelled
    Writing = 2, ///< the device replaces its firmware; the upgrade cannot be cancelled
    Done = 3,    ///< the device has accepted the firmware and reboots; its sessions end
    Failed = 4,  ///< the upgrade has ended without success; the device usually keeps its previous firmware
};

/// The progress of an upgrade.
struct UpgradeProgress
{
    std::uint32_t size; ///< sizeof(UpgradeProgress)
    UpgradePhase phase;
    std::int32_t percent; ///< of `phase`, 0 to 100; 0 with Failed
    std::uint32_t error;  ///< a NetError with Failed, otherwise 0
};
static_assert(sizeof(UpgradeProgress) == 16);
static_assert(offsetof(UpgradeProgress, error) == 12);

/// Called on a thread of the library, one call at a time for each upgrade. `progress` is valid during the
/// call. Done or Failed is the last call. A cancelled upgrade reports neither of them. `user` is that of
/// NetStartUpgrade.
using UpgradeProgressHandler = void (*)(std::int64_t upgradeHandle, const UpgradeProgress *progress,
                                        void *user);

} // namespace sdk

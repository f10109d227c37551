// The effects of maintenance on a simulated device.
#pragma once

#include "sdk/demo/scene/scene.h"
#include "sdk/firmwarehead.h"
#include "sdk/neterror.h"

#include <QByteArray>

namespace sdk::demo {

/// The duration of a reboot, unless the device has Fault::RebootTakes.
inline constexpr std::chrono::seconds usualReboot{20};

// A returned error is NetError::None, or NotSupported if the device refuses and stays unchanged. It refuses
// invalid values, and by its faults. `now` is the time on the site's clock, in ms since 1970. Sessions are
// not changed: after a reboot the caller ends them.

/// Sets the device's clock to `time` (the time that it shows), from which it continues.
[[nodiscard]] NetError setDeviceTime(SceneDevice &device, const TimeRecord &time, std::int64_t now);

/// Any value but Pal and Ntsc is invalid.
[[nodiscard]] NetError setVideoStandard(SceneDevice &device, VideoStandard standard);

/// Stores the keys in `text`, which is JSON of the form {"<name>": {...}}, of the configuration `name` of the
/// device itself, not of a channel; its other keys keep their values. An unknown name, and a text that
/// unpackConfigText() refuses, are refused.
[[nodiscard]] NetError setConfiguration(SceneDevice &device, const QString &name, const QByteArray &text);

/// The device is offline from `now` on, for usualReboot or the time of Fault::RebootTakes. Refused with
/// Fault::RefusesReboot.
[[nodiscard]] NetError reboot(SceneDevice &device, std::int64_t now);

/// The same two seconds later, so that the client still receives the response. A repeated request before that
/// time is accepted and does not delay the reboot.
[[nodiscard]] NetError rebootAfterResponse(SceneDevice &device, std::int64_t now);

/// The device deletes its accounts, its configuration and the settings of its channels, sets the video
/// standard to PAL, and reboots. It keeps its address, its name, its version, its clock and its faults. It is
/// uninitialised afterwards. A device without initialisation (NotReported) has the account "admin" with the
/// password "admin" instead. It reboots also with Fault::RefusesReboot.
[[nodiscard]] NetError resetToFactory(SceneDevice &device, std::int64_t now);

/// The device has the version of the firmware and reboots, as by reboot(), but also with
/// Fault::RefusesReboot. With Fault::UpgradeKeepsVersion it keeps its version, with
/// Fault::UpgradeNeverReturns it stays offline.
void installFirmware(SceneDevice &device, const FirmwareHead &firmware, std::int64_t now);

/// Changes the password of the account `user`. A wrong old password, an unknown user and an empty new
/// password are refused.
[[nodiscard]] NetError changePassword(SceneDevice &device, const QString &user, const QString &oldPassword,
                                      const QString &newPassword);

/// Records that the device has accepted a password for a login or a request. When that was the last time that
/// Fault::PasswordChangesAfter allows, "-2" is appended to the passwords of all accounts, and the fault is
/// cleared. No effect without that fault.
void noteLogin(SceneDevice &device);

} // namespace sdk::demo

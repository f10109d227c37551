// The effects of maintenance on a simulated device.
#pragma once

#include "sdk/demo/scene/scene.h"
#include "sdk/firmwarehead.h"
#include "sdk/neterror.h"

#include <QByteArray>

namespace sdk::demo {

/// The duration of a reboot, unless the device has Fault::RebootTakes.
inline constexpr std::chrono::seconds usualReboot{20};

// A returned error is NetError::None, or NotSupported if the device refuses and stays unchanged. `now` is the
// time on the site's clock, in ms since 1970.

/// Sets the device's clock, which continues from that time.
[[nodiscard]] NetError setDeviceTime(SceneDevice &device, const TimeRecord &time, std::int64_t now);

[[nodiscard]] NetError setVideoStandard(SceneDevice &device, VideoStandard standard);

/// Overrides the keys in `text` of the configuration `name` of the device. An unknown name, and JSON that its
/// record cannot hold, are refused.
[[nodiscard]] NetError setConfiguration(SceneDevice &device, const QString &name, const QByteArray &text);

[[nodiscard]] NetError reboot(SceneDevice &device, std::int64_t now);

/// The same after a short delay, so that the HTTP client receives the response, also to a repeated request.
[[nodiscard]] NetError rebootAfterResponse(SceneDevice &device, std::int64_t now);

/// The device deletes its accounts, its configuration and the settings of its channels, and reboots. It keeps
/// its address and its clock. It is uninitialised afterwards; a device without initialisation has the account
/// "admin" with the password "admin".
[[nodiscard]] NetError resetToFactory(SceneDevice &device, std::int64_t now);

/// The device installs the firmware and reboots.
void installFirmware(SceneDevice &device, const FirmwareHead &firmware, std::int64_t now);

/// A wrong old password, an unknown user and an empty new password are refused.
[[nodiscard]] NetError changePassword(SceneDevice &device, const QString &user, const QString &oldPassword,
                                      const QString &newPassword);

/// Records that the device has accepted a password for a login or a request. With Fault::PasswordChangesAfter
/// this may have been the last time: from then on its passwords end with "-2".
void noteLogin(SceneDevice &device);

} // namespace sdk::demo

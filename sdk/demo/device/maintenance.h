// What maintenance does to a simulated device.
#pragma once

#include "sdk/demo/scene/scene.h"
#include "sdk/firmwarehead.h"
#include "sdk/neterror.h"

#include <QByteArray>

namespace sdk::demo {

/// How long a device is away for a reboot, unless its fault says otherwise.
inline constexpr std::chrono::seconds usualReboot{20};

// Each returns NetError::None, or NotSupported when the device refuses; it is unchanged then. `now` is the
// time on the site's clock.

/// Sets the device's own clock, which runs on from there.
[[nodiscard]] NetError setDeviceTime(SceneDevice &device, const TimeRecord &time, std::int64_t now);

[[nodiscard]] NetError setVideoStandard(SceneDevice &device, VideoStandard standard);

/// Lays the configuration text `name` over the device's own; refuses one that it does not know or that its
/// record cannot hold.
[[nodiscard]] NetError setConfiguration(SceneDevice &device, const QString &name, const QByteArray &text);

[[nodiscard]] NetError reboot(SceneDevice &device, std::int64_t now);

/// The same a moment later, so that whoever asked over HTTP gets the answer, and a client that asks twice
/// gets both.
[[nodiscard]] NetError rebootAfterAnswer(SceneDevice &device, std::int64_t now);

/// The device forgets its accounts and its configuration and reboots. It keeps its address and its clock.
[[nodiscard]] NetError resetToFactory(SceneDevice &device, std::int64_t now);

/// The device has the firmware and reboots with it.
void installFirmware(SceneDevice &device, const FirmwareHead &firmware, std::int64_t now);

[[nodiscard]] NetError changePassword(SceneDevice &device, const QString &user, const QString &oldPassword,
                                      const QString &newPassword);

/// The device has taken a password for a login or a request. With Fault::PasswordChangesAfter this may have
/// been the last time: from then on its passwords end with "-2".
void noteLogin(SceneDevice &device);

} // namespace sdk::demo

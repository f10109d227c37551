// The configurations of a device by the operations of its device service.
#pragma once

#include "sdk/onvif/session/onvifsession.h"
#include "sdk/systemblocks.h"

#include <string>
#include <string_view>

namespace sdk::onvif {

/// The configuration text of a device: "Network", "DVRIP", "Https", "NTP" or "Locales". On failure `error` is
/// set and the text is empty; NotSupported for any other name.
[[nodiscard]] std::string systemConfiguration(OnvifSession &session, std::string_view name,
                                              OnvifSession::Deadline deadline, NetError &error);

/// Writes "NTP" or "Locales". The port of the time server and the period of its requests have no counterpart
/// in the standard and are not sent.
[[nodiscard]] NetError setSystemConfiguration(OnvifSession &session, std::string_view name,
                                              std::string_view text, OnvifSession::Deadline deadline);

/// Sets the clock. `time` is the local time in the device's zone.
[[nodiscard]] NetError setDeviceTime(OnvifSession &session, const TimeRecord &time,
                                     OnvifSession::Deadline deadline);

/// The device's interface with the session's address, otherwise the first interface with IPv4.
[[nodiscard]] const DeviceInterface *interfaceInUse(const std::vector<DeviceInterface> &interfaces,
                                                    std::string_view address);

/// True if the device reports the MACs of its interfaces and `mac` is not among them. Several devices may
/// have the same address, so that another device than the intended one may respond.
[[nodiscard]] bool isOtherDevice(const std::vector<DeviceInterface> &interfaces, const std::string &mac);

/// The port of an enabled protocol, 0 if the device has none.
[[nodiscard]] int portOf(const std::vector<DeviceProtocol> &protocols, std::string_view name);

} // namespace sdk::onvif

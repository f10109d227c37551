// The configurations of a device by the operations of its device service.
#pragma once

#include "sdk/onvif/session/onvifsession.h"
#include "sdk/systemblocks.h"

#include <string>
#include <string_view>

namespace sdk::onvif {

/// The configuration text of a device: "Network", "DVRIP", "Https", "NTP" or "Locales". On failure `error` is
/// set and the text is empty: NotSupported for any other name, and for "Network" of a device without an
/// interface.
[[nodiscard]] std::string systemConfiguration(OnvifSession &session, std::string_view name,
                                              OnvifSession::Deadline deadline, NetError &error);

/// Writes "NTP" or "Locales". NotSupported for any other name, InvalidValue for an invalid text. The port of
/// the time server and the period of its requests have no counterpart in the standard and are not sent.
[[nodiscard]] NetError setSystemConfiguration(OnvifSession &session, std::string_view name,
                                              std::string_view text, OnvifSession::Deadline deadline);

/// Sets the clock. `time` is the local time in the device's zone.
[[nodiscard]] NetError setDeviceTime(OnvifSession &session, const TimeRecord &time,
                                     OnvifSession::Deadline deadline);

/// The interface with that IPv4 or IPv6 address, otherwise the first enabled one with IPv4; null if there is
/// none.
[[nodiscard]] const DeviceInterface *interfaceInUse(const std::vector<DeviceInterface> &interfaces,
                                                    std::string_view address);

/// True if the device reports the MACs of all its interfaces, `mac` is not empty and `mac` is not among them.
/// Several devices may have the same address, so that another device than the intended one may respond.
[[nodiscard]] bool isOtherDevice(const std::vector<DeviceInterface> &interfaces, const std::string &mac);

/// The port of an enabled protocol, 0 if the device has none.
[[nodiscard]] int portOf(const std::vector<DeviceProtocol> &protocols, std::string_view name);

} // namespace sdk::onvif

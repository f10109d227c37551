// The configurations of a device by the operations of its device service.
//
// The functions with a session send requests to the device, and block until `deadline` at most. They return
// NetError::None on success. Their errors include those of the requests.
#pragma once

#include "sdk/onvif/session/onvifsession.h"
#include "sdk/systemblocks.h"

#include <string>
#include <string_view>

namespace sdk::onvif {

/// The configuration text of a device: "Network", "DVRIP", "Https", "NTP" or "Locales". On failure `error` is
/// set and the text is empty: NotSupported for any other name, and for "Network" of a device without an
/// interface. The gateway and the host name of "Network" and the server of "NTP" are empty if only their
/// requests fail. "NTP" has the constant port 123 and period 1440, and the zone 0 (UTC) for an offset without
/// a number and for an unreadable zone. "Locales" has a constant time format.
[[nodiscard]] std::string systemConfiguration(OnvifSession &session, std::string_view name,
                                              OnvifSession::Deadline deadline, NetError &error);

/// Writes "NTP" or "Locales". NotSupported for any other name. InvalidValue for an invalid text, and for
/// daylight saving that is enabled without a begin or an end. The request contains all settings of the clock:
/// those that `text` lacks are read from the device first and sent back. So a clock that does not follow NTP
/// is set to the time that was just read. "NTP" writes the time server before the clock, and only if NTP is
/// enabled and `text` has a server; after an error of the clock, the server stays written. The port of the
/// time server, the period of its requests and the time format have no counterpart in the standard and are
/// not sent. "Locales" without daylight saving removes its rule from the zone of the device.
[[nodiscard]] NetError setSystemConfiguration(OnvifSession &session, std::string_view name,
                                              std::string_view text, OnvifSession::Deadline deadline);

/// Sets the clock. `time` is the local time in the device's zone. The clock no longer follows NTP afterwards.
/// InvalidValue for an invalid time.
[[nodiscard]] NetError setDeviceTime(OnvifSession &session, const TimeRecord &time,
                                     OnvifSession::Deadline deadline);

/// The interface with the IPv4 or IPv6 `address`, otherwise the first enabled one with IPv4; null if there is
/// none. An IPv6 address may have the interface of this host behind "%". The result points into `interfaces`.
[[nodiscard]] const DeviceInterface *interfaceInUse(const std::vector<DeviceInterface> &interfaces,
                                                    std::string_view address);

/// True if the device that reports `interfaces` is certainly not the one with `mac`: it reports the MACs of
/// all its interfaces, and `mac` is not among them. False if `mac` or `interfaces` is empty. Several devices
/// may have the same address, so that another device than the intended one may respond.
[[nodiscard]] bool isOtherDevice(const std::vector<DeviceInterface> &interfaces, const std::string &mac);

/// The port of the protocol `name` (DeviceProtocol::name); 0 if the device lacks it or has disabled it.
[[nodiscard]] int portOf(const std::vector<DeviceProtocol> &protocols, std::string_view name);

} // namespace sdk::onvif

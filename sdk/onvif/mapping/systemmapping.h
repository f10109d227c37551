// The configurations of a whole device by the operations of its device service.
#pragma once

#include "sdk/onvif/session/onvifsession.h"
#include "sdk/systemblocks.h"

#include <string>
#include <string_view>

namespace sdk::onvif {

/// The text of a configuration of the whole device: "Network", "DVRIP", "Https", "NTP" or "Locales". On
/// failure `error` is set and the text is empty; NotSupported for any other name.
[[nodiscard]] std::string systemConfiguration(OnvifSession &session, std::string_view name,
                                              OnvifSession::Deadline deadline, NetError &error);

/// Writes "NTP" or "Locales". The port of the time server and the period of its requests have no counterpart
/// in the standard and are not sent.
[[nodiscard]] NetError setSystemConfiguration(OnvifSession &session, std::string_view name,
                                              std::string_view text, OnvifSession::Deadline deadline);

/// Sets the clock by hand. `time` is what the device shall show in its own zone.
[[nodiscard]] NetError setDeviceTime(OnvifSession &session, const TimeRecord &time,
                                     OnvifSession::Deadline deadline);

/// The interface of the device that has the session's address, else the first one with IPv4.
[[nodiscard]] const DeviceInterface *interfaceInUse(const std::vector<DeviceInterface> &interfaces,
                                                    std::string_view address);

/// Whether the device reports the MACs of its interfaces, and `mac` is none of them: several devices may have
/// one address, and the one that answers need not be the one that is meant.
[[nodiscard]] bool isOtherDevice(const std::vector<DeviceInterface> &interfaces, const std::string &mac);

/// The port of an enabled protocol, 0 if the device has none.
[[nodiscard]] int portOf(const std::vector<DeviceProtocol> &protocols, std::string_view name);

} // namespace sdk::onvif

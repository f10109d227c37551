// Details that a device reports after a login.
#pragma once

#include "device/dh/session/configsession.h"

#include <QVariantMap>

/// Reads attributes, addresses, ports and channel states. Keys: "serial", "vision" (version), "model",
/// "mac", "hostName", "address", "submask", "gateway", "dhcp", "servicePort", "maximumConnections",
/// "webPort", "httpsPort" (0: off), "rtspPort", "channelCount", "connectedCount", "alarmInputs" and "disks".
/// "dhcp" is a bool, ports and counts are integers, the others texts. A refused value and an empty text have
/// no key; a number that the device does not report may be 0. If the device does not respond, the remaining
/// values are not requested, and the map contains those read before. Blocks for the timeouts of the library;
/// any thread.
[[nodiscard]] QVariantMap loginDetail(const ConfigSession &session);

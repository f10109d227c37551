// Details that a device reports after a login.
#pragma once

#include "device/dh/session/configsession.h"

#include <QVariantMap>

/// Reads attributes, addresses, ports and channel states. Keys: "serial", "vision", "model", "mac",
/// "hostName", "address", "submask", "gateway", "dhcp", "servicePort", "maximumConnections", "webPort",
/// "httpsPort" (0: off), "rtspPort", "channelCount", "connectedCount", "alarmInputs" and "disks". "dhcp" is a
/// bool, ports and counts are integers, the others texts. Keys without a response are missing. Stops if the
/// device does not respond. Blocks for the timeouts of the library; any thread.
[[nodiscard]] QVariantMap loginDetail(const ConfigSession &session);

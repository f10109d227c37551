// What a device tells of itself once it is logged in to.
#pragma once

#include "device/dh/session/configsession.h"

#include <QVariantMap>

/// Asks for attributes, addresses, ports and the state of the channels. Keys are "serial", "vision", "model",
/// "mac", "hostName", "address", "submask", "gateway", "dhcp", "servicePort", "maximumConnections",
/// "webPort", "httpsPort" (0 while it is off), "rtspPort", "channelCount", "connectedCount", "alarmInputs"
/// and "disks"; those of an answer that does not come are missing. Blocks for the waits of the library; a
/// device that is away is asked no further.
[[nodiscard]] QVariantMap loginDetail(const ConfigSession &session);

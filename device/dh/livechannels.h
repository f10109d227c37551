// The channels of a device as the live view and the snapshots see them.
#pragma once

#include "device/dh/configsession.h"

#include <QList>
#include <QString>
#include <QVariantList>

/// For each of `count` channels whether it has a camera. One that the device says nothing of counts as
/// connected, and so do all when it does not answer within a second.
[[nodiscard]] QList<bool> connectedChannels(const ConfigSession &session, int count);

/// Maps of "channel" (from 0), "name" (the device's, else its number) and "connected". Blocks for a request
/// per channel, while the device is there.
[[nodiscard]] QVariantList liveChannels(const ConfigSession &session, int count);

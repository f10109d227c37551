// The channels of a device as the live view and the snapshots see them.
#pragma once

#include "device/dh/session/configsession.h"

#include <QList>
#include <QString>
#include <QVariantList>

/// For each of the `count` channels that a device tells of whether it has a camera. A device that tells of
/// none has one; those beyond ChannelNames::maximumChannels are left out. A channel that the device says
/// nothing of counts as connected, and so do all when it does not answer within a second.
[[nodiscard]] QList<bool> connectedChannels(const ConfigSession &session, int count);

/// Maps of "channel" (from 0), "name" (the device's, else its number) and "connected", for the channels of
/// connectedChannels(). Blocks for a request per channel, while the device is there.
[[nodiscard]] QVariantList liveChannels(const ConfigSession &session, int count);

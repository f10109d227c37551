// Channels of a device for live view and snapshots.
#pragma once

#include "device/dh/session/configsession.h"

#include <QList>
#include <QString>
#include <QVariantList>

/// Whether each of `count` channels has a camera. At least one and at most ChannelNames::maximumChannels
/// entries. A channel without a reported state counts as connected, and so do all if the device refuses the
/// request or does not respond within a second. Blocks; any thread.
[[nodiscard]] QList<bool> connectedChannels(const ConfigSession &session, int count);

/// Maps of "channel" (from 0), "name" (reported by the device, otherwise made of the number from 1) and
/// "connected" for the channels of connectedChannels(). Sends one request for each channel until the device
/// stops responding. Blocks; any thread.
[[nodiscard]] QVariantList liveChannels(const ConfigSession &session, int count);

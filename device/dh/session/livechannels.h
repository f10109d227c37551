// Channels of a device for live view and snapshots.
#pragma once

#include "device/dh/session/configsession.h"

#include <QList>
#include <QString>
#include <QVariantList>

/// Whether each of `count` channels has a camera, by channel from 0. `count` is limited to 1 to
/// ChannelNames::maximumChannels. A channel without a reported state counts as connected, and so do all if
/// the device refuses the request or does not respond within a second. Blocks; any thread.
[[nodiscard]] QList<bool> connectedChannels(const ConfigSession &session, int count);

/// Maps of "channel" (from 0), "name" (reported by the device; without one made of the number from 1) and
/// "connected" for the channels of connectedChannels(). After the requests of connectedChannels(), sends one
/// request for each channel. If the device stops responding, the remaining channels have no reported name.
/// Blocks; any thread.
[[nodiscard]] QVariantList liveChannels(const ConfigSession &session, int count);

// Copies encode settings to another device.
#pragma once

#include "device/dh/encode/channelchoice.h"
#include "device/dh/encode/encodestate.h"
#include "device/dh/encode/valuetables.h"
#include "device/registry/devicestep.h"

#include <QStringList>

/// Result of copyEncodeSettings().
struct EncodeCopyOutcome
{
    int result = 0;      ///< result code of rows: 0, a LoginResult, 10 or 999
    QStringList skipped; ///< names, in the user's language, of the settings and items that were not copied
};

/// Copies `from` to the channel with the same number of the device of `session`. Settings that the device
/// does not support keep their value. Items are written completely. An item that was not read from one of the
/// two devices is not written. Result 10: the settings of the device cannot be read. Result 999: the device
/// refused an item. Result NotDone: `control` has ended the step; some items may have been written. Blocks;
/// any thread.
[[nodiscard]] EncodeCopyOutcome copyEncodeSettings(const ValueTables &tables, const EncodeState &from,
                                                   const ChannelChoice &channels,
                                                   const ConfigSession &session, const StepControl &control);

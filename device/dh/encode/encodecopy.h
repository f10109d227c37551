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
    QStringList skipped; ///< names of the settings that were not copied
};

/// Copies `from` to the channel with the same number of the device of `session`. Settings that the device
/// does not support keep their value. Items are written completely, except for those that were not read from
/// either device. Result 999: the device refused an item. Writes nothing if `control` ends the step before.
/// Blocks; any thread.
[[nodiscard]] EncodeCopyOutcome copyEncodeSettings(const ValueTables &tables, const EncodeState &from,
                                                   const ChannelChoice &channels,
                                                   const ConfigSession &session, const StepControl &control);

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
    int result = 0;      ///< 0, another LoginResult, or 10, see copyEncodeSettings()
    QStringList skipped; ///< names, in the user's language, of the settings and items that were not copied
};

/// Copies `from` to the selected channel and kind of main stream (`channels`) of the device of `session`, and
/// to the sub stream of that channel. The settings of that device are read first. A setting that the device
/// does not support keeps its value, and the other settings of its item are copied. An item that was not read
/// from one of the two devices is not written; an item that one of them does not have is neither written nor
/// listed as skipped. Result 0: all other items were written; settings may have been skipped. Result 10: the
/// device returns an invalid configuration or no capabilities; nothing was written. Result 999: the device
/// refused an item; the others were written. If the settings cannot be read because of an error, the result
/// is the LoginResult of that error (also 999), and nothing was written. NetworkFailure is also the result if
/// the device stops responding while the items are written. Result NotDone: `control` has ended the step;
/// some items may have been written. Blocks for the timeouts of the device library; any thread.
[[nodiscard]] EncodeCopyOutcome copyEncodeSettings(const ValueTables &tables, const EncodeState &from,
                                                   const ChannelChoice &channels,
                                                   const ConfigSession &session, const StepControl &control);

// Taking the encode settings of one device over to another.
#pragma once

#include "device/dh/encode/channelchoice.h"
#include "device/dh/encode/encodestate.h"
#include "device/dh/encode/valuetables.h"
#include "device/registry/devicestep.h"

#include <QStringList>

struct EncodeCopyOutcome
{
    int result = 0;      ///< as rows have it: 0, a login result, 10 or 999
    QStringList skipped; ///< names of the settings that the device cannot do and kept its own for
};

/// Copies `from` to the channel of the same number of the device of `session`. What the device tells that it
/// cannot do is left as it is there; the items are written whole, but for those that were not read of either
/// device, and 999 says that it refused one of them. Nothing is written when `control` ends the step before.
[[nodiscard]] EncodeCopyOutcome copyEncodeSettings(const ValueTables &tables, const EncodeState &from,
                                                   const ChannelChoice &channels,
                                                   const ConfigSession &session, const StepControl &control);

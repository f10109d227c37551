// Tables of device codes and the texts of the configuration pages.
#pragma once

#include "sdk/encodeblocks.h"

#include <QString>
#include <QStringList>

#include <array>
#include <cstdint>
#include <vector>

/// Maps codes of the devices to texts. In a list of names the index is the code, unless stated otherwise.
/// Immutable after construction; any thread.
class ValueTables
{
public:
    /// Uses the translations of the language at the time of construction.
    ValueTables();

    const QStringList StreamTypeNames;                 ///< kinds of main streams: normal, motion, alarm
    const QStringList VideoCompressionNames;           ///< by bit of a compression mask
    const QStringList H264ProfileNames;                ///< by profile - 1
    const QStringList ResolutionNames;                 ///< "720P", "1080P", ...; the index is not a code
    const std::vector<sdk::FrameSize> ResolutionSizes; ///< by index in ResolutionNames
    const std::array<std::int32_t, 64> BitRateSteps;   ///< kbit/s, ascending, then zeros
    const QStringList AudioCompressionNames;           ///< by format code of capabilities; empty: not offered
    const std::array<std::int32_t, 64> AudioSamplingFrequencies; ///< Hz, then zeros
    const QStringList DayNightModeNames;                         ///< by sdk::CameraMode: day, night, normal
    const QStringList BackLightModeNames;                        ///< by sdk::BackLightItem::backMode

    /// The name of an audio format in configurations and items, which use another numbering than
    /// capabilities (AudioCompressionNames). Empty for an unknown format.
    [[nodiscard]] static QString audioFormatToName(int format);

    /// The reverse of audioFormatToName(); 0 for an unknown name. Both variants of G.723 give the format of
    /// G.726.
    [[nodiscard]] static int audioNameToFormat(const QString &name);

    /// The index of exactly this size in ResolutionNames; -1 if it has no name.
    [[nodiscard]] int resolutionIndexFromSize(int width, int height) const;

    /// Sets `width` and `height` (pixels) to the size with this index in ResolutionNames and returns true.
    /// Returns false, and leaves the arguments unchanged, if the index is out of range.
    bool resolutionSizeFromIndex(int index, int &width, int &height) const;
};

// Tables of device codes and the texts of the configuration pages.
#pragma once

#include "sdk/encodeblocks.h"

#include <QString>
#include <QStringList>

#include <array>
#include <cstdint>
#include <vector>

/// Maps codes to texts. In a list of names the index is the code, unless stated otherwise. Immutable after
/// construction.
class ValueTables
{
public:
    /// Uses the translations of the current language.
    ValueTables();

    const QStringList StreamTypeNames;       ///< kinds of main streams
    const QStringList VideoCompressionNames; ///< by bit of a compression mask
    const QStringList H264ProfileNames;      ///< by profile - 1
    const QStringList ResolutionNames;
    const std::vector<sdk::FrameSize> ResolutionSizes; ///< by index in ResolutionNames
    const std::array<std::int32_t, 64> BitRateSteps;   ///< kbit/s, ascending, then zeros
    const QStringList AudioCompressionNames;           ///< by format code of capabilities; empty: not offered
    const std::array<std::int32_t, 64> AudioSamplingFrequencies; ///< Hz, then zeros
    const QStringList DayNightModeNames;
    const QStringList BackLightModeNames;

    /// The name of an audio format. Configurations and items use a different numbering than capabilities:
    /// this function and audioNameToFormat() use theirs. Empty for an unknown format.
    [[nodiscard]] static QString audioFormatToName(int format);

    /// 0 for an unknown name. Both variants of G.723 are written as G.726.
    [[nodiscard]] static int audioNameToFormat(const QString &name);

    /// The index of exactly this size in ResolutionNames; -1 if it has no name.
    [[nodiscard]] int resolutionIndexFromSize(int width, int height) const;

    /// Returns false, and leaves the arguments unchanged, if the index is out of range.
    bool resolutionSizeFromIndex(int index, int &width, int &height) const;
};

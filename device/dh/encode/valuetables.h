// The numbers of devices and the texts that the configuration pages show for them.
#pragma once

#include "sdk/encodeblocks.h"

#include <QString>
#include <QStringList>

#include <array>
#include <cstdint>
#include <vector>

/// The tables between codes and texts. In a list of names the place is the code. Built once and never
/// changed; a page sees texts only, and sends the chosen one back.
class ValueTables
{
public:
    /// Takes the translated names in the language of the moment.
    ValueTables();

    const QStringList StreamTypeNames;       ///< kinds of main streams
    const QStringList VideoCompressionNames; ///< by bit of a compression mask
    const QStringList H264ProfileNames;      ///< by profile value less 1
    const QStringList ResolutionNames;
    const std::vector<sdk::PictureSize> ResolutionSizes; ///< by place in ResolutionNames
    const std::array<std::int32_t, 64> BitRateSteps;     ///< kbit/s, rising, then zeros
    const QStringList AudioCompressionNames; ///< by format code of capabilities; empty: not offered
    const std::array<std::int32_t, 64> AudioSamplingFrequencies; ///< Hz, then zeros
    const QStringList DayNightModeNames;
    const QStringList BackLightModeNames;

    /// The other numbering of audio formats, that of configurations and items. Empty for an unknown value.
    [[nodiscard]] static QString audioFormatToName(int format);

    /// 0 for an unknown name. Both kinds of G.723 are written as G.726.
    [[nodiscard]] static int audioNameToFormat(const QString &name);

    /// The place of exactly this size, -1 when it has no name.
    [[nodiscard]] int resolutionIndexFromSize(int width, int height) const;

    /// Returns false, with the arguments unchanged, when there is no such place.
    bool resolutionSizeFromIndex(int index, int &width, int &height) const;
};

// What a capability block lets a page offer, and what a chosen text stands for.
#pragma once

#include "device/dh/encode/valuetables.h"

#include <optional>

/// Lists of one kind of stream, from its capability block. A block comes from a device: counts beyond their
/// bounds are cut, bits and codes that nobody knows are left out, a block that is not filled offers nothing.
class EncodeChoices
{
public:
    /// Both must outlive this object.
    EncodeChoices(const ValueTables &tables, const sdk::EncodeCapabilityBlock &block)
        : m_tables(tables), m_block(block)
    {
    }

    /// With H.264 an entry for each profile that the device reports stands in place of "H264". Profiles
    /// without a name have no entry.
    [[nodiscard]] QStringList compressions() const;

    /// Whether the compression of this code is offered, with this profile where it is H.264 and the device
    /// reports its profiles. A `profile` that is none of 1 to 4 stands for any.
    [[nodiscard]] bool offersCompression(int code, int profile) const;

    /// The same size may stand there more than once when sizes depend on the compression.
    [[nodiscard]] QStringList resolutions() const;

    /// Whether pictures of this size are offered with the compression of this code.
    [[nodiscard]] bool offersSize(int compression, int width, int height) const;

    /// Steps from the block's minimum to its maximum, of the first 32.
    [[nodiscard]] QStringList bitRates() const;

    [[nodiscard]] QStringList audioCompressions() const;

    /// In hertz, of the audio format with this text. Those of the tables if the device reports none.
    [[nodiscard]] QList<int> samplingFrequencies(const QString &audioCompression) const;

    [[nodiscard]] bool isMissing(sdk::EncodeValue value) const;

    /// Whether the device reports profiles of H.264, known ones or not.
    [[nodiscard]] bool hasProfiles() const;

private:
    [[nodiscard]] bool isFilled() const { return m_block.size == sizeof(m_block); }
    void appendSizes(QStringList &names, const sdk::PictureSizeList &list) const;

    const ValueTables &m_tables;
    const sdk::EncodeCapabilityBlock &m_block;
};

/// A compression with, for H.264, its profile.
struct CompressionChoice
{
    int code = 0;
    int profile = 0; ///< 1 to 4; 0 when the compression has none
};

/// Whether `value` is a profile of H.264: 1 to 4.
[[nodiscard]] bool isH264Profile(int value);

/// The profile whose name has no letter, which "H264" alone stands for.
inline constexpr int profileWithoutLetter = 2;

/// What a compression text stands for; nothing for an unknown one. "H264" without a profile stands for the
/// profile whose name has no letter.
[[nodiscard]] std::optional<CompressionChoice> compressionChoice(const ValueTables &tables,
                                                                 const QString &name);

/// The text of a compression; "H264" when the profile is none of 1 to 4. Empty for an unknown code.
[[nodiscard]] QString compressionName(const ValueTables &tables, int code, int profile);

struct ResolutionChoice
{
    int width = 0; ///< 1 to 65535
    int height = 0;
};

/// What a resolution text stands for, a name or "width*height"; nothing for any other text.
[[nodiscard]] std::optional<ResolutionChoice> resolutionChoice(const ValueTables &tables,
                                                               const QString &name);

/// The name of a size, or "width*height"; empty while there is no size.
[[nodiscard]] QString resolutionName(const ValueTables &tables, int width, int height);

// Choices of the encode page from a capability block, and conversion of choices to codes.
#pragma once

#include "device/dh/encode/valuetables.h"

#include <optional>

/// The lists of choices for one kind of stream (a kind of main stream, or the sub stream), from its
/// capability block. The block comes from a device and is not trusted: counts are limited, unknown bits and
/// codes are left out, and a block whose size is not set has no choices. The functions use the block as it is
/// at the time of the call.
class EncodeChoices
{
public:
    /// Both must outlive this object.
    EncodeChoices(const ValueTables &tables, const sdk::EncodeCapabilityBlock &block)
        : m_tables(tables), m_block(block)
    {
    }

    /// Names of the compressions, in the order of their codes. For H.264 one entry for each reported profile
    /// replaces "H264"; profiles without a name are left out.
    [[nodiscard]] QStringList compressions() const;

    /// Whether a compression (by code) is offered. For H.264 on a device that reports profiles, `profile` (1
    /// to 4) must be one of them; with any other value of `profile`, the device must report at least one of
    /// the profiles 1 to 4.
    [[nodiscard]] bool offersCompression(int code, int profile) const;

    /// Names of the sizes, see resolutionName(). If the sizes depend on the compression, those of all
    /// offered compressions, so that a size may be in the list more than once.
    [[nodiscard]] QStringList resolutions() const;

    /// Whether this size (in pixels) is offered with a compression (by code).
    [[nodiscard]] bool offersSize(int compression, int width, int height) const;

    /// Bit rates in kbit/s as decimal texts: those of the first 32 steps of the tables that are between the
    /// block's minimum and maximum. A minimum above all of these steps, and a maximum below all of them, is
    /// ignored.
    [[nodiscard]] QStringList bitRates() const;

    [[nodiscard]] QStringList audioCompressions() const; ///< names of the audio formats

    /// Sampling frequencies in Hz for an audio format by its name in audioCompressions(); those of the
    /// tables if the device reports none for this format. Never empty.
    [[nodiscard]] QList<int> samplingFrequencies(const QString &audioCompression) const;

    /// Whether the device reports that it does not have this value. False if the block is empty.
    [[nodiscard]] bool isMissing(sdk::EncodeValue value) const;

    /// Whether the device reports any profile of H.264, including unknown ones.
    [[nodiscard]] bool hasProfiles() const;

private:
    [[nodiscard]] bool isFilled() const { return m_block.size == sizeof(m_block); }
    void appendSizes(QStringList &names, const sdk::FrameSizeList &list) const;

    const ValueTables &m_tables;
    const sdk::EncodeCapabilityBlock &m_block;
};

/// A compression code and, for H.264, its profile.
struct CompressionChoice
{
    int code = 0;
    int profile = 0; ///< 1 to 4; 0 if the compression has none
};

/// Whether `value` is a profile of H.264 (1 to 4).
[[nodiscard]] bool isH264Profile(int value);

/// The profile whose name has no letter; the name "H264" means this profile.
inline constexpr int profileWithoutLetter = 2;

/// The compression with this name; nullopt for an unknown name. "H264" gives profileWithoutLetter.
[[nodiscard]] std::optional<CompressionChoice> compressionChoice(const ValueTables &tables,
                                                                 const QString &name);

/// The name of a compression; for H.264 that of `profile`, or "H264" if `profile` is not 1 to 4. Empty for an
/// unknown code.
[[nodiscard]] QString compressionName(const ValueTables &tables, int code, int profile);

/// A frame size in pixels.
struct ResolutionChoice
{
    int width = 0;  ///< 1 to 65535
    int height = 0; ///< 1 to 65535
};

/// The size with this name, or of a text "width*height"; nullopt for any other text.
[[nodiscard]] std::optional<ResolutionChoice> resolutionChoice(const ValueTables &tables,
                                                               const QString &name);

/// The name of a size, or "width*height" without one; empty for an invalid size.
[[nodiscard]] QString resolutionName(const ValueTables &tables, int width, int height);

// The capabilities of a simulated device's encoder, and its default settings.
#pragma once

#include "sdk/demo/scene/scene.h"
#include "sdk/encodeblocks.h"

#include <QMap>

namespace sdk::demo {

/// The capabilities of the encoder for one kind of stream.
struct StreamAbilities
{
    QList<int> compressions; ///< compression codes (encodeblocks.h)
    QList<int> profiles;     ///< of H.264, 1 to 4; empty: the device accepts any
    QList<FrameSize> sizes;
    QMap<int, QList<FrameSize>> sizesByCompression; ///< by compression code; replaces `sizes` unless empty
    int minimumBitRate = 0;                         ///< kbit/s
    int maximumBitRate = 0;                         ///< kbit/s
    int maximumFrameRate = 0;                       ///< frames per second
    QList<int> audioFormats;        ///< codes of EncodeCapabilityBlock::audioFormats; empty: without audio
    QList<int> samplingFrequencies; ///< Hz, for every format; empty: the device accepts any

    /// The frame sizes with a compression code; empty if `sizesByCompression` is used and lacks the code.
    [[nodiscard]] QList<FrameSize> sizesOf(int compression) const
    {
        return sizesByCompression.isEmpty() ? sizes : sizesByCompression.value(compression);
    }

    /// The encoder's highest bit rate in kbit/s for a frame size in pixels: 1 for each 50 pixels, between
    /// minimumBitRate and maximumBitRate. maximumBitRate for a side of 0 or less.
    [[nodiscard]] int maximumBitRateOf(int width, int height) const;
};

/// The capabilities for `kind` in the scene ("encode": "sub" for Sub, "main" for the other kinds); a missing
/// key has the value of a typical camera.
[[nodiscard]] StreamAbilities streamAbilities(const SceneDevice &device, StreamKind kind);

/// The capability block of a stream. Its maximum bit rate is that for the frame size in `format`; the other
/// values of `format` are not used. With Fault::OddCapabilities some values are invalid.
[[nodiscard]] EncodeCapabilityBlock capabilityBlock(const SceneDevice &device, StreamKind kind,
                                                    const EncodeStreamRecord &format);

// Default items of the device, within its capabilities. Their words "size" and "stream" are set.

[[nodiscard]] VideoFormatItem usualVideoFormat(const SceneDevice &device, StreamKind kind);
[[nodiscard]] VideoProfileItem usualVideoProfile(const SceneDevice &device, StreamKind kind);
[[nodiscard]] AudioCompressionItem usualAudioCompression(const SceneDevice &device, StreamKind kind);
[[nodiscard]] AudioFormatItem usualAudioFormat(const SceneDevice &device, StreamKind kind);

// Whether the device accepts an item, by its capabilities and its faults (RefusesItem, RefusesBitRatesAbove).
// False if the word "stream" of the item is not streamNumber() of a kind, 1 to 4.

[[nodiscard]] bool takes(const SceneDevice &device, const VideoFormatItem &item);
[[nodiscard]] bool takes(const SceneDevice &device, const VideoProfileItem &item);
[[nodiscard]] bool takes(const SceneDevice &device, const AudioCompressionItem &item);
[[nodiscard]] bool takes(const SceneDevice &device, const AudioFormatItem &item);

} // namespace sdk::demo

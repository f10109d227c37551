// The capabilities of a simulated device's encoder, and its default settings.
#pragma once

#include "sdk/demo/scene/scene.h"
#include "sdk/encodeblocks.h"

#include <QMap>

namespace sdk::demo {

/// One kind of stream, from the scene's capabilities ("encode": "main", "sub") or those of a typical camera.
struct StreamAbilities
{
    QList<int> compressions; ///< compression codes
    QList<int> profiles;     ///< of H.264, 1 to 4
    QList<FrameSize> sizes;
    QMap<int, QList<FrameSize>> sizesByCompression; ///< replaces `sizes` unless it is empty
    int minimumBitRate = 0;                         ///< kbit/s
    int maximumBitRate = 0;                         ///< kbit/s
    int maximumFrameRate = 0;                       ///< frames per second
    QList<int> audioFormats;                        ///< as EncodeCapabilityBlock::audioFormats
    QList<int> samplingFrequencies;                 ///< Hz

    [[nodiscard]] QList<FrameSize> sizesOf(int compression) const
    {
        return sizesByCompression.isEmpty() ? sizes : sizesByCompression.value(compression);
    }

    /// The encoder's highest bit rate for a frame size in pixels, in kbit/s.
    [[nodiscard]] int maximumBitRateOf(int width, int height) const;
};

[[nodiscard]] StreamAbilities streamAbilities(const SceneDevice &device, StreamKind kind);

/// The capability block of a stream with the settings `format`.
[[nodiscard]] EncodeCapabilityBlock capabilityBlock(const SceneDevice &device, StreamKind kind,
                                                    const EncodeStreamRecord &format);

// Default items of the device.

[[nodiscard]] VideoFormatItem usualVideoFormat(const SceneDevice &device, StreamKind kind);
[[nodiscard]] VideoProfileItem usualVideoProfile(const SceneDevice &device, StreamKind kind);
[[nodiscard]] AudioCompressionItem usualAudioCompression(const SceneDevice &device, StreamKind kind);
[[nodiscard]] AudioFormatItem usualAudioFormat(const SceneDevice &device, StreamKind kind);

// Whether the device accepts an item, by its capabilities and its faults.

[[nodiscard]] bool takes(const SceneDevice &device, const VideoFormatItem &item);
[[nodiscard]] bool takes(const SceneDevice &device, const VideoProfileItem &item);
[[nodiscard]] bool takes(const SceneDevice &device, const AudioCompressionItem &item);
[[nodiscard]] bool takes(const SceneDevice &device, const AudioFormatItem &item);

} // namespace sdk::demo

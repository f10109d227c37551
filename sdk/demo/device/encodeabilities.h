// What the encoder of a simulated device can do, and its settings before anybody changed them.
#pragma once

#include "sdk/demo/scene/scene.h"
#include "sdk/encodeblocks.h"

#include <QMap>

namespace sdk::demo {

/// One kind of stream, from the scene's capabilities ("encode": "main", "sub") or those of a usual camera.
struct StreamAbilities
{
    QList<int> compressions; ///< codes
    QList<int> profiles;     ///< of H.264
    QList<PictureSize> sizes;
    QMap<int, QList<PictureSize>> sizesByCompression; ///< not empty: `sizes` does not hold
    int minimumBitRate = 0;
    int maximumBitRate = 0;
    int maximumFrameRate = 0;
    QList<int> audioFormats; ///< codes as capabilities number them
    QList<int> samplingFrequencies;

    [[nodiscard]] QList<PictureSize> sizesOf(int compression) const
    {
        return sizesByCompression.isEmpty() ? sizes : sizesByCompression.value(compression);
    }

    /// The encoder spends no more than this on pictures of a size.
    [[nodiscard]] int maximumBitRateOf(int width, int height) const;
};

[[nodiscard]] StreamAbilities streamAbilities(const SceneDevice &device, StreamKind kind);

/// The block that tells the abilities while a stream is set as `format` says.
[[nodiscard]] EncodeCapabilityBlock capabilityBlock(const SceneDevice &device, StreamKind kind,
                                                    const EncodeStreamRecord &format);

// Items as the device has them by itself.

[[nodiscard]] VideoFormatItem usualVideoFormat(const SceneDevice &device, StreamKind kind);
[[nodiscard]] VideoProfileItem usualVideoProfile(const SceneDevice &device, StreamKind kind);
[[nodiscard]] AudioCompressionItem usualAudioCompression(const SceneDevice &device, StreamKind kind);
[[nodiscard]] AudioFormatItem usualAudioFormat(const SceneDevice &device, StreamKind kind);

// Whether the device takes an item, by its abilities and its faults.

[[nodiscard]] bool takes(const SceneDevice &device, const VideoFormatItem &item);
[[nodiscard]] bool takes(const SceneDevice &device, const VideoProfileItem &item);
[[nodiscard]] bool takes(const SceneDevice &device, const AudioCompressionItem &item);
[[nodiscard]] bool takes(const SceneDevice &device, const AudioFormatItem &item);

} // namespace sdk::demo

// Converts decoded audio to the format of delivery.
#pragma once

#include "sdk/ffmpeg/internal/avpointers.h"

#include <span>
#include <vector>

namespace sdk::ffmpeg {

/// Not thread-safe.
class SoundConverter
{
public:
    SoundConverter() = default;
    ~SoundConverter();
    SoundConverter(const SoundConverter &) = delete;
    SoundConverter &operator=(const SoundConverter &) = delete;

    /// The samples as 16-bit mono, valid until the next call and as long as `frame`. Empty if the conversion
    /// fails.
    [[nodiscard]] std::span<const std::int16_t> convert(const AVFrame &frame);

private:
    [[nodiscard]] bool prepare(const AVFrame &frame);

    AvPointer<SwrContext> m_resampler;
    AVSampleFormat m_format = AV_SAMPLE_FMT_NONE; // the input format of m_resampler
    AVChannelLayout m_layout{};
    int m_rate = 0;
    std::vector<std::int16_t> m_samples;
};

} // namespace sdk::ffmpeg

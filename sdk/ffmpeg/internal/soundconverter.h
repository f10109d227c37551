// Decoded sound as it is delivered.
#pragma once

#include "sdk/ffmpeg/internal/avpointers.h"

#include <span>
#include <vector>

namespace sdk::ffmpeg {

/// On one thread.
class SoundConverter
{
public:
    SoundConverter() = default;
    ~SoundConverter();
    SoundConverter(const SoundConverter &) = delete;
    SoundConverter &operator=(const SoundConverter &) = delete;

    /// The samples as 16 bits of one channel, which end with the next call; none when they cannot be
    /// converted.
    [[nodiscard]] std::span<const std::int16_t> convert(const AVFrame &frame);

private:
    [[nodiscard]] bool prepare(const AVFrame &frame);

    AvPointer<SwrContext> m_resampler;
    AVSampleFormat m_format = AV_SAMPLE_FMT_NONE; // what m_resampler is made for
    AVChannelLayout m_layout{};
    int m_rate = 0;
    std::vector<std::int16_t> m_samples;
};

} // namespace sdk::ffmpeg

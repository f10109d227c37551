// Converts decoded audio to the format of DecodedFrameType::Sound.
#pragma once

#include "sdk/ffmpeg/internal/avpointers.h"

#include <span>
#include <vector>

namespace sdk::ffmpeg {

/// Keeps FFmpeg's resampler for the next frame of the same format. Not thread-safe.
class SoundConverter
{
public:
    SoundConverter() = default;
    ~SoundConverter();
    SoundConverter(const SoundConverter &) = delete;
    SoundConverter &operator=(const SoundConverter &) = delete;

    /// The samples of `frame` as 16-bit mono with the same sample rate; several channels are mixed. They may
    /// be in the memory of `frame`: they are valid until the next call and not longer than `frame`. Empty if
    /// the conversion fails, for a frame without samples, a rate outside 1000 to 384000 Hz and more than 16
    /// channels.
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

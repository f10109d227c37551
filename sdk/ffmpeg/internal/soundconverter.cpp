#include "sdk/ffmpeg/internal/soundconverter.h"

namespace sdk::ffmpeg {

namespace {

constexpr int lowestRate = 1000;
constexpr int highestSampleRate = 384000;
constexpr int mostChannels = 16;

} // namespace

SoundConverter::~SoundConverter()
{
    av_channel_layout_uninit(&m_layout);
}

std::span<const std::int16_t> SoundConverter::convert(const AVFrame &frame)
{
    const int channels = frame.ch_layout.nb_channels;
    if (frame.nb_samples <= 0 || frame.sample_rate < lowestRate || frame.sample_rate > highestSampleRate ||
        channels <= 0 || channels > mostChannels) {
        return {};
    }
    const auto samples = static_cast<std::size_t>(frame.nb_samples);
    if (channels == 1 && (frame.format == AV_SAMPLE_FMT_S16 || frame.format == AV_SAMPLE_FMT_S16P))
        return {reinterpret_cast<const std::int16_t *>(frame.data[0]), samples};
    if (!prepare(frame))
        return {};
    m_samples.resize(samples); // the same number: the rate does not change
    auto *out = reinterpret_cast<std::uint8_t *>(m_samples.data());
    const int count = swr_convert(m_resampler.get(), &out, frame.nb_samples,
                                  const_cast<const std::uint8_t **>(frame.extended_data), frame.nb_samples);
    return count > 0 ? std::span<const std::int16_t>(m_samples).first(static_cast<std::size_t>(count))
                     : std::span<const std::int16_t>();
}

bool SoundConverter::prepare(const AVFrame &frame)
{
    if (m_resampler && m_format == frame.format && m_rate == frame.sample_rate &&
        av_channel_layout_compare(&m_layout, &frame.ch_layout) == 0) {
        return true;
    }
    m_resampler.reset();
    m_format = static_cast<AVSampleFormat>(frame.format);
    m_rate = frame.sample_rate;
    AVChannelLayout mono = AV_CHANNEL_LAYOUT_MONO;
    SwrContext *resampler = nullptr;
    if (av_channel_layout_copy(&m_layout, &frame.ch_layout) < 0 ||
        swr_alloc_set_opts2(&resampler, &mono, AV_SAMPLE_FMT_S16, m_rate, &m_layout, m_format, m_rate, 0,
                            nullptr) < 0) {
        return false;
    }
    m_resampler.reset(resampler);
    if (swr_init(m_resampler.get()) < 0)
        m_resampler.reset();
    return m_resampler != nullptr;
}

} // namespace sdk::ffmpeg

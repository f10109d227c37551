#include "sdk/demo/streams/audioencoder.h"

#include "sdk/demo/site/logging.h"
#include "sdk/demo/streams/videoencoder.h"

#include <array>
#include <cmath>
#include <numbers>

namespace sdk::demo {

namespace {

AVCodecID codecIdOf(SoundCodec codec)
{
    switch (codec) {
    case SoundCodec::G711A:
        return AV_CODEC_ID_PCM_ALAW;
    case SoundCodec::G711Mu:
        return AV_CODEC_ID_PCM_MULAW;
    case SoundCodec::Aac:
        return AV_CODEC_ID_AAC;
    case SoundCodec::Pcm:
        return AV_CODEC_ID_PCM_S16LE;
    case SoundCodec::None:
        break;
    }
    return AV_CODEC_ID_NONE;
}

/// A frame with the samples for `context`; null without memory.
AvPointer<AVFrame> frameFor(const AVCodecContext &context)
{
    // Codecs with a variable frame size get the samples of one video frame.
    constexpr int framesASecond = 25;
    AvPointer<AVFrame> frame(av_frame_alloc());
    if (!frame)
        return nullptr;
    frame->format = context.sample_fmt;
    frame->sample_rate = context.sample_rate;
    frame->nb_samples = context.frame_size > 0 ? context.frame_size : context.sample_rate / framesASecond;
    if (av_channel_layout_copy(&frame->ch_layout, &context.ch_layout) < 0 ||
        av_frame_get_buffer(frame.get(), 0) < 0)
        return nullptr;
    return frame;
}

} // namespace

std::unique_ptr<AudioEncoder> AudioEncoder::open(const StreamSettings &settings, double pitch)
{
    const AVCodec *codec = avcodec_find_encoder(codecIdOf(settings.sound));
    AvPointer<AVCodecContext> context(codec ? avcodec_alloc_context3(codec) : nullptr);
    if (!context) {
        qCWarning(demoLog, "No encoder for the audio of a live stream (codec %d)",
                  static_cast<int>(settings.sound));
        return nullptr;
    }
    constexpr AVChannelLayout oneChannel = AV_CHANNEL_LAYOUT_MONO;
    constexpr int bitsOfSample = 2; // of AAC
    context->sample_fmt = settings.sound == SoundCodec::Aac ? AV_SAMPLE_FMT_FLTP : AV_SAMPLE_FMT_S16;
    context->sample_rate = settings.samplingFrequency;
    context->log_level_offset = onlyErrors;
    context->ch_layout = oneChannel;
    context->time_base = {1, settings.samplingFrequency};
    context->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
    if (settings.sound == SoundCodec::Aac)
        context->bit_rate = static_cast<std::int64_t>(settings.samplingFrequency) * bitsOfSample;
    const int error = avcodec_open2(context.get(), codec, nullptr);
    AvPointer<AVFrame> frame = error < 0 ? nullptr : frameFor(*context);
    if (!frame) {
        qCWarning(demoLog, "The audio of a live stream cannot be encoded (%d Hz): %s",
                  settings.samplingFrequency, avErrorText(error).c_str());
        return nullptr;
    }
    // Not make_unique: the constructor is private.
    return std::unique_ptr<AudioEncoder>(new AudioEncoder(std::move(context), std::move(frame), pitch));
}

double AudioEncoder::pitchOf(std::int32_t channel)
{
    constexpr double lowest = 220; // Hz
    constexpr std::array halfTones = {0, 2, 4, 7, 9, 12, 14, 16, 19, 21};
    constexpr double halfTonesOfOctave = 12;
    const auto step = static_cast<std::size_t>(channel) % halfTones.size();
    return lowest * std::exp2(halfTones[step] / halfTonesOfOctave);
}

bool AudioEncoder::encodeUntil(double seconds, EncodedPackets &packets)
{
    const double end = seconds * m_context->sample_rate;
    // The audio of a pause is left out.
    constexpr int longestSound = 2; // seconds
    if (end - static_cast<double>(m_samples) > longestSound * m_context->sample_rate)
        m_samples = static_cast<std::int64_t>(end) - m_frame->nb_samples;
    while (static_cast<double>(m_samples + m_frame->nb_samples) <= end) {
        // The encoder may still refer to the samples of the last call.
        if (av_frame_make_writable(m_frame.get()) < 0)
            return false;
        fillFrame();
        if (avcodec_send_frame(m_context.get(), m_frame.get()) < 0 ||
            !receivePackets(*m_context, soundTrack, packets))
            return false;
    }
    return true;
}

void AudioEncoder::fillFrame()
{
    constexpr float loudest = 32767;
    for (int index = 0; index < m_frame->nb_samples; ++index) {
        const float sample = sampleAt(m_samples + index);
        if (m_context->sample_fmt == AV_SAMPLE_FMT_FLTP)
            reinterpret_cast<float *>(m_frame->data[0])[index] = sample;
        else
            reinterpret_cast<std::int16_t *>(m_frame->data[0])[index] =
                static_cast<std::int16_t>(sample * loudest);
    }
    m_frame->pts = m_samples;
    m_samples += m_frame->nb_samples;
}

float AudioEncoder::sampleAt(std::int64_t index) const
{
    // The volume rises every two seconds, which makes interruptions audible.
    constexpr double loudness = 0.1;
    constexpr double swellsASecond = 0.5;
    const double turns = static_cast<double>(index) / m_context->sample_rate * 2 * std::numbers::pi;
    const double swell = 1 - std::cos(turns * swellsASecond);
    return static_cast<float>(loudness * (1 + swell) / 3 * std::sin(turns * m_pitch));
}

} // namespace sdk::demo

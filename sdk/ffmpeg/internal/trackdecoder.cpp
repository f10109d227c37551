#include "sdk/ffmpeg/internal/trackdecoder.h"

#include "sdk/ffmpeg/internal/logging.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace sdk::ffmpeg {

TrackDecoder::TrackDecoder(AvPointer<AVCodecContext> context, AvPointer<AVFrame> frame, const AVStream &track)
    : m_context(std::move(context)), m_frame(std::move(frame)), m_track(track.index),
      m_containerRate(track.avg_frame_rate),
      // The H.265 decoder generates missing references of the first frames. The H.264 decoder waits for a key
      // frame.
      m_waitsForKey(m_context->codec_id == AV_CODEC_ID_HEVC)
{
}

std::unique_ptr<TrackDecoder> TrackDecoder::open(const AVStream &track)
{
    const AVCodec *codec = avcodec_find_decoder(track.codecpar->codec_id);
    AvPointer<AVCodecContext> context(avcodec_alloc_context3(codec));
    AvPointer<AVFrame> frame(av_frame_alloc());
    if (!codec || !context || !frame || avcodec_parameters_to_context(context.get(), track.codecpar) < 0)
        return nullptr;
    context->pkt_timebase = track.time_base;
    context->thread_count = 1;
    context->max_pixels = mostPixels;
    // Cropping is exact; frames are copied anyway.
    context->flags |= AV_CODEC_FLAG_UNALIGNED;
    if (avcodec_open2(context.get(), codec, nullptr) < 0)
        return nullptr;
    return std::unique_ptr<TrackDecoder>(new TrackDecoder(std::move(context), std::move(frame), track));
}

bool TrackDecoder::decode(const AVPacket &packet, const FrameHandler &handler)
{
    if (m_waitsForKey && (packet.flags & AV_PKT_FLAG_KEY) == 0)
        return true;
    m_waitsForKey = false;
    const LoggedErrors errors;
    const bool isTaken = avcodec_send_packet(m_context.get(), &packet) == 0;
    ++m_held;
    const bool hasMissingReferences = codec() == AV_CODEC_ID_HEVC && errors.any();
    const bool isUndamaged = takeFrames(handler) && isTaken && !hasMissingReferences;
    // The decoder reports only the size of its reorder buffer. Frames beyond it are dropped.
    const int held = std::clamp(m_held, 0, std::max(0, m_context->has_b_frames));
    if (isUndamaged && m_context->skip_frame == AVDISCARD_NONREF)
        m_dropped += std::max(0, m_held - held);
    m_held = held;
    return isUndamaged;
}

void TrackDecoder::restart()
{
    avcodec_flush_buffers(m_context.get());
    m_dropped += std::exchange(m_held, 0);
}

void TrackDecoder::setHurried(bool isHurried)
{
    m_context->skip_frame = isHurried ? AVDISCARD_NONREF : AVDISCARD_DEFAULT;
}

void TrackDecoder::finish(const FrameHandler &handler)
{
    if (avcodec_send_packet(m_context.get(), nullptr) == 0)
        static_cast<void>(takeFrames(handler));
}

bool TrackDecoder::takeFrames(const FrameHandler &handler)
{
    bool isUndamaged = true;
    int result = 0;
    while ((result = avcodec_receive_frame(m_context.get(), m_frame.get())) == 0) {
        --m_held;
        if (m_frame->decode_error_flags == 0 && (m_frame->flags & AV_FRAME_FLAG_CORRUPT) == 0)
            handler(*m_frame);
        else
            isUndamaged = false;
    }
    return isUndamaged && (result == AVERROR(EAGAIN) || result == AVERROR_EOF);
}

int TrackDecoder::frameRate() const
{
    constexpr double highestRate = 1000;
    for (const AVRational &rate : {m_containerRate, m_context->framerate}) {
        const double value = rate.num > 0 && rate.den > 0 ? av_q2d(rate) : 0;
        if (value > 0 && value <= highestRate)
            return static_cast<int>(std::lround(value));
    }
    return 0;
}

} // namespace sdk::ffmpeg

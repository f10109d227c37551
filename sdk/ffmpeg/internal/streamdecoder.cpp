#include "sdk/ffmpeg/internal/streamdecoder.h"

#include "sdk/clock.h"
#include "sdk/ffmpeg/internal/planarframe.h"

#include <utility>

namespace sdk::ffmpeg {

namespace {

/// The interval of delivered frames of a late stream, in milliseconds: each frame costs a copy and a repaint.
constexpr std::int64_t hurriedPeriod = 80;

/// The codec name for DecoderStatus.
std::string_view nameOf(const std::unique_ptr<TrackDecoder> &decoder)
{
    if (!decoder)
        return {};
    switch (decoder->codec()) {
    case AV_CODEC_ID_H264:
        return "H.264";
    case AV_CODEC_ID_HEVC:
        return "H.265";
    case AV_CODEC_ID_MJPEG:
        return "MJPEG";
    case AV_CODEC_ID_AAC:
        return "AAC";
    case AV_CODEC_ID_PCM_ALAW:
        return "G.711A";
    case AV_CODEC_ID_PCM_MULAW:
        return "G.711Mu";
    default:
        return "PCM";
    }
}

std::unique_ptr<TrackDecoder> decoderOf(const AVStream *track)
{
    return track ? TrackDecoder::open(*track) : nullptr;
}

} // namespace

StreamDecoder::StreamDecoder(StreamSource &source, FrameRing &ring, StreamObserver &observer,
                             const Clock *liveClock, std::stop_token stop)
    : m_source(source), m_ring(ring), m_observer(observer), m_liveClock(liveClock), m_stop(std::move(stop)),
      m_demuxer(source, m_stop)
{
}

void StreamDecoder::run()
{
    if (!open())
        return;
    while (fillBacklog()) {
        if (m_liveClock)
            skipLateFrames();
        const bool isUndamaged = m_backlog.isEmpty() || decode(*m_backlog.take());
        m_source.setHeldBytes(m_backlog.bytes());
        if (!isUndamaged)
            m_observer.damaged();
    }
    if (m_video && !m_stop.stop_requested())
        m_video->finish([this](const AVFrame &frame) { deliverFrame(frame); });
}

bool StreamDecoder::open()
{
    if (!m_demuxer.open())
        return false;
    m_video = decoderOf(
        m_demuxer.track(AVMEDIA_TYPE_VIDEO, {AV_CODEC_ID_H264, AV_CODEC_ID_HEVC, AV_CODEC_ID_MJPEG}));
    m_sound = decoderOf(
        m_demuxer.track(AVMEDIA_TYPE_AUDIO, {AV_CODEC_ID_AAC, AV_CODEC_ID_PCM_ALAW, AV_CODEC_ID_PCM_MULAW,
                                             AV_CODEC_ID_PCM_S16LE, AV_CODEC_ID_PCM_S16BE}));
    m_observer.codecsFound(nameOf(m_video), nameOf(m_sound));
    return true;
}

bool StreamDecoder::fillBacklog()
{
    if (m_stop.stop_requested() || (m_backlog.isEmpty() && !readPacket()))
        return false;
    // Only if it is late: reading may wait for the rest of a packet.
    while (m_liveClock && m_backlog.delay(m_liveClock->now()) > PacketBacklog::noticeableDelay &&
           m_source.hasBytes() && readPacket()) {
    }
    return !m_stop.stop_requested();
}

bool StreamDecoder::readPacket()
{
    m_source.setHeldBytes(m_backlog.bytes());
    AvPointer<AVPacket> packet(av_packet_alloc());
    m_hasEnded = m_hasEnded || !packet || !m_demuxer.read(*packet);
    if (m_demuxer.takeDamage())
        m_observer.damaged();
    if (m_hasEnded)
        return false;
    const bool isVideo = m_video && packet->stream_index == m_video->track();
    m_backlog.add(std::move(packet), isVideo, m_source.arrival());
    return true;
}

void StreamDecoder::skipLateFrames()
{
    const std::int64_t now = m_liveClock->now();
    const PacketBacklog::Skip skip = m_backlog.skip(now);
    if (skip.frames > 0)
        m_observer.skipped(skip.frames);
    m_isHurried = m_backlog.delay(now) > PacketBacklog::noticeableDelay;
    if (!m_video)
        return;
    if (skip.isInterrupted)
        m_video->restart();
    m_video->setHurried(m_isHurried);
    reportDropped();
}

void StreamDecoder::reportDropped()
{
    if (const int frames = m_video->takeDropped(); frames > 0)
        m_observer.skipped(frames);
}

bool StreamDecoder::decode(const AVPacket &packet)
{
    if (m_video && packet.stream_index == m_video->track()) {
        const bool isUndamaged =
            m_video->decode(packet, [this](const AVFrame &frame) { deliverFrame(frame); });
        reportDropped();
        return isUndamaged;
    }
    if (m_sound && packet.stream_index == m_sound->track())
        return m_sound->decode(packet, [this](const AVFrame &frame) { deliverSound(frame); });
    return true;
}

void StreamDecoder::deliverFrame(const AVFrame &frame)
{
    if (m_stop.stop_requested())
        return;
    if (m_liveClock) {
        const std::int64_t now = m_liveClock->now();
        const std::int64_t pause = now - m_delivery; // negative if the clock was set back
        if (m_isHurried && !m_backlog.isEmpty() && pause >= 0 && pause < hurriedPeriod) {
            m_observer.skipped(1);
            return;
        }
        m_delivery = now;
    }
    const bool isUsable = isUsableSize(frame.width, frame.height);
    const std::size_t size = isUsable ? frameSize(frame.width, frame.height) : 0;
    std::uint8_t *const bytes = isUsable ? m_ring.next(size) : nullptr;
    if (!bytes || !m_frameConverter.write(frame, bytes)) {
        m_observer.damaged();
        return;
    }
    m_observer.decoded({bytes, size}, {.width = frame.width,
                                       .height = frame.height,
                                       .reserved = 0,
                                       .type = DecodedFrameType::Video,
                                       .rate = m_video->frameRate(),
                                       .colour = FrameConverter::colourOf(frame)});
    m_ring.noteDelivered();
}

void StreamDecoder::deliverSound(const AVFrame &frame)
{
    if (m_stop.stop_requested())
        return;
    const std::span<const std::int16_t> samples = m_soundConverter.convert(frame);
    if (samples.empty()) {
        m_observer.damaged();
        return;
    }
    m_observer.decoded({reinterpret_cast<const std::uint8_t *>(samples.data()), samples.size_bytes()},
                       {.width = 0,
                        .height = 0,
                        .reserved = 0,
                        .type = DecodedFrameType::Sound,
                        .rate = frame.sample_rate,
                        .colour = {}});
}

} // namespace sdk::ffmpeg

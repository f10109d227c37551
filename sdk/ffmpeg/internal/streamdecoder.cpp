#include "sdk/ffmpeg/internal/streamdecoder.h"

#include "sdk/ffmpeg/internal/logging.h"
#include "sdk/ffmpeg/internal/planarpicture.h"

#include <utility>

namespace sdk::ffmpeg {

namespace {

/// As DecoderStatus has it.
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

StreamDecoder::StreamDecoder(StreamSource &source, PictureRing &ring, StreamObserver &observer,
                             std::stop_token stop)
    : m_ring(ring), m_observer(observer), m_stop(std::move(stop)), m_demuxer(source, m_stop)
{
}

bool StreamDecoder::run()
{
    if (!open())
        return false;
    const AvPointer<AVPacket> packet(av_packet_alloc());
    unsigned errors = errorLines();
    while (packet && m_demuxer.read(*packet)) {
        const bool isWhole = decode(*packet);
        av_packet_unref(packet.get());
        if (!isWhole || errorLines() != errors)
            m_observer.damaged();
        errors = errorLines();
    }
    if (m_pictures && !m_stop.stop_requested())
        m_pictures->finish([this](const AVFrame &frame) { deliverPicture(frame); });
    return true;
}

bool StreamDecoder::open()
{
    if (!m_demuxer.open())
        return false;
    m_pictures = decoderOf(
        m_demuxer.track(AVMEDIA_TYPE_VIDEO, {AV_CODEC_ID_H264, AV_CODEC_ID_HEVC, AV_CODEC_ID_MJPEG}));
    m_sound = decoderOf(
        m_demuxer.track(AVMEDIA_TYPE_AUDIO, {AV_CODEC_ID_AAC, AV_CODEC_ID_PCM_ALAW, AV_CODEC_ID_PCM_MULAW,
                                             AV_CODEC_ID_PCM_S16LE, AV_CODEC_ID_PCM_S16BE}));
    m_observer.codecsFound(nameOf(m_pictures), nameOf(m_sound));
    return true;
}

bool StreamDecoder::decode(const AVPacket &packet)
{
    if (m_pictures && packet.stream_index == m_pictures->track())
        return m_pictures->decode(packet, [this](const AVFrame &frame) { deliverPicture(frame); });
    if (m_sound && packet.stream_index == m_sound->track())
        return m_sound->decode(packet, [this](const AVFrame &frame) { deliverSound(frame); });
    return true;
}

void StreamDecoder::deliverPicture(const AVFrame &frame)
{
    if (m_stop.stop_requested())
        return;
    const bool isUsable = isUsableSize(frame.width, frame.height);
    const std::size_t size = isUsable ? pictureSize(frame.width, frame.height) : 0;
    std::uint8_t *const bytes = isUsable ? m_ring.next(size) : nullptr;
    if (!bytes || !m_pictureConverter.write(frame, bytes)) {
        m_observer.damaged();
        return;
    }
    m_observer.decoded({bytes, size}, {.width = frame.width,
                                       .height = frame.height,
                                       .reserved = 0,
                                       .type = DecodedFrameType::Picture,
                                       .rate = m_pictures->pictureRate(),
                                       .colour = PictureConverter::colourOf(frame)});
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

#include "sdk/onvif/live/internal/remuxer.h"

#include <utility>

namespace sdk::onvif {

using streams::AvPointer;
using streams::MatroskaWriter;

namespace {

constexpr AVRational microsecond = {1, 1000000};

std::int64_t microsecondsNow()
{
    return std::chrono::duration_cast<std::chrono::microseconds>(
               std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

} // namespace

std::unique_ptr<Remuxer> Remuxer::of(const AVStream &video, const AVStream *sound,
                                     std::atomic<bool> &mustRestart, BytesHandler handler)
{
    std::unique_ptr<FrameFormat> format = FrameFormat::of(*video.codecpar);
    if (!format)
        return nullptr;
    // Not make_unique: the constructor is private.
    return std::unique_ptr<Remuxer>(
        new Remuxer(video, sound, std::move(format), mustRestart, std::move(handler)));
}

Remuxer::Remuxer(const AVStream &video, const AVStream *sound, std::unique_ptr<FrameFormat> format,
                 std::atomic<bool> &mustRestart, BytesHandler handler)
    : m_video(video), m_sound(sound), m_format(std::move(format)), m_mustRestart(mustRestart),
      m_handler(std::move(handler)),
      m_assembler(video.codecpar->codec_id,
                  [this](std::span<const std::uint8_t> bytes, std::int64_t time) { addFrame(bytes, time); })
{
}

bool Remuxer::add(const AVPacket &packet)
{
    if (packet.stream_index == m_video.index) {
        m_lastFragment = std::chrono::steady_clock::now();
        m_assembler.add({packet.data, static_cast<std::size_t>(packet.size)}, packet.pts);
        return true;
    }
    if (m_sound && packet.stream_index == m_sound->index && m_writer) {
        const AvPointer<AVPacket> sound(av_packet_clone(&packet));
        if (!sound)
            return false;
        sound->stream_index = streams::soundTrack;
        sound->time_base = m_sound->time_base;
        sound->flags |= AV_PKT_FLAG_KEY;
        write(*sound, m_soundTimes);
    }
    return false;
}

void Remuxer::deliverWaiting()
{
    if (m_assembler.hasFrame() && std::chrono::steady_clock::now() - m_lastFragment >= longestWait)
        m_assembler.finish();
}

void Remuxer::addFrame(std::span<const std::uint8_t> bytes, std::int64_t time)
{
    const bool isKey = m_format->examine(bytes);
    if (isKey && (!m_writer || m_mustRestart || !m_format->isSame(*m_written)) && !begin())
        return;
    if (!m_writer)
        return;
    const AvPointer<AVPacket> frame(av_packet_alloc());
    if (!frame)
        return;
    // The packet borrows the bytes.
    frame->data = const_cast<std::uint8_t *>(bytes.data());
    frame->size = static_cast<int>(bytes.size());
    frame->stream_index = streams::videoTrack;
    frame->time_base = m_video.time_base;
    frame->pts = time;
    frame->flags = isKey ? AV_PKT_FLAG_KEY : 0;
    write(*frame, m_videoTimes);
}

bool Remuxer::begin()
{
    m_mustRestart = false;
    m_written = m_format->parameters();
    const MatroskaWriter::Track video = {m_written.get(), m_video.avg_frame_rate};
    const MatroskaWriter::Track sound = {m_sound ? m_sound->codecpar : nullptr};
    m_writer = m_written ? MatroskaWriter::open(video, m_sound ? &sound : nullptr) : nullptr;
    if (m_written && !m_writer && m_sound) { // the description of the sound is incomplete
        m_sound = nullptr;
        m_writer = MatroskaWriter::open(video, nullptr);
    }
    m_hasFailed = !m_writer;
    return m_writer != nullptr;
}

void Remuxer::write(AVPacket &packet, Timeline &timeline)
{
    std::optional<std::int64_t> time;
    if (packet.pts != AV_NOPTS_VALUE)
        time = av_rescale_q(packet.pts, packet.time_base, microsecond);
    packet.pts = timeline.continuousTime(time, microsecondsNow());
    packet.dts = packet.pts;
    packet.duration = 0;
    packet.time_base = microsecond;
    if (!m_writer->write(packet)) {
        m_hasFailed = true;
        return;
    }
    const std::vector<std::uint8_t> bytes = m_writer->takeBytes();
    if (!bytes.empty())
        m_handler(bytes);
}

} // namespace sdk::onvif

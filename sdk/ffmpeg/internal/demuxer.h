// The demuxer of one live stream.
#pragma once

#include "sdk/ffmpeg/internal/avpointers.h"
#include "sdk/ffmpeg/internal/streamsource.h"

#include <initializer_list>
#include <utility>

namespace sdk::ffmpeg {

/// Reads from a source until its stream ends, or a stop is requested. Not thread-safe.
class Demuxer
{
public:
    /// `source` must outlive the demuxer.
    Demuxer(StreamSource &source, std::stop_token stop);
    ~Demuxer();
    Demuxer(const Demuxer &) = delete;
    Demuxer &operator=(const Demuxer &) = delete;

    /// Reads the head of the stream. Returns false if it is invalid. To be called once, before the other
    /// functions.
    [[nodiscard]] bool open();

    /// The first track with one of these codecs, owned by the demuxer; null without one.
    [[nodiscard]] const AVStream *track(AVMediaType type, std::initializer_list<AVCodecID> codecs) const;

    /// Waits for the next packet of any track. Returns false at the end of the stream.
    [[nodiscard]] bool read(AVPacket &packet);

    /// Returns whether read() has detected damage since the last call. It skips damaged data up to the next
    /// cluster.
    [[nodiscard]] bool takeDamage() { return std::exchange(m_isDamaged, false); }

private:
    static int readBytes(void *demuxer, std::uint8_t *destination, int size);
    static int isInterrupted(void *demuxer);

    StreamSource &m_source;
    const std::stop_token m_stop;
    AvPointer<AVIOContext> m_input;
    AvPointer<AVFormatContext> m_format;
    bool m_isDamaged = false;
};

} // namespace sdk::ffmpeg

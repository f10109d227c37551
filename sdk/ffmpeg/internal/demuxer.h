// The demuxer of one live stream.
#pragma once

#include "sdk/ffmpeg/internal/avpointers.h"
#include "sdk/ffmpeg/internal/streamsource.h"

#include <initializer_list>
#include <utility>

namespace sdk::ffmpeg {

/// Reads the encoded packets of the current stream of a StreamSource (Matroska), up to the end of the stream
/// or a request to stop. The blocking functions wait for input of the port. Not thread-safe: used by the
/// decoding thread.
class Demuxer
{
public:
    /// `source` must outlive the demuxer. A request on `stop` ends the waits.
    Demuxer(StreamSource &source, std::stop_token stop);
    ~Demuxer();
    Demuxer(const Demuxer &) = delete;
    Demuxer &operator=(const Demuxer &) = delete;

    /// Waits for the head of the stream, which describes its tracks, and reads it. Returns false if it is
    /// invalid or incomplete, and after a request to stop. To be called once. The other functions require the
    /// result true.
    [[nodiscard]] bool open();

    /// The first track of this type with one of these codecs; null if there is none. The demuxer owns it.
    [[nodiscard]] const AVStream *track(AVMediaType type, std::initializer_list<AVCodecID> codecs) const;

    /// Waits for the next packet of any track and moves it into `packet`, which is empty before. Returns
    /// false at the end of the stream, after a request to stop, and if a packet is larger than 8 MB: the
    /// stream cannot be read further then.
    [[nodiscard]] bool read(AVPacket &packet);

    /// Returns whether read() has found damaged data since the last call of takeDamage(). read() skips
    /// damaged data up to the next cluster, a group of packets in Matroska.
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

// The decoder of one live stream.
#pragma once

#include "sdk/decoderlibrary.h"
#include "sdk/ffmpeg/internal/demuxer.h"
#include "sdk/ffmpeg/internal/frameconverter.h"
#include "sdk/ffmpeg/internal/framering.h"
#include "sdk/ffmpeg/internal/packetbacklog.h"
#include "sdk/ffmpeg/internal/soundconverter.h"
#include "sdk/ffmpeg/internal/trackdecoder.h"

#include <string_view>

namespace sdk {
class Clock;
}

namespace sdk::ffmpeg {

/// Receives the output of a stream, on the decoding thread.
class StreamObserver
{
public:
    virtual ~StreamObserver() = default;

    /// Called once, when the head of the stream was read; not called for an invalid head. The names are those
    /// of DecoderStatus, and empty for a track that is missing or cannot be decoded.
    virtual void codecsFound(std::string_view video, std::string_view audio) = 0;

    /// A frame of video or a chunk of audio, in the format that DecodedFrameType states. The bytes of video
    /// are in the FrameRing, and valid until two more frames of video were delivered. The bytes of audio are
    /// valid during the call.
    virtual void decoded(std::span<const std::uint8_t> bytes, const DecodedFrameInformation &information) = 0;

    /// A part of the stream could not be decoded, converted or kept in memory. Called once for each part.
    virtual void damaged() = 0;

    /// `frames` late frames of video were dropped.
    virtual void skipped(int frames) = 0;
};

/// Decodes one stream from its head to its end, on the thread that calls run(), and passes its frames and
/// sound to an observer. A port has one object for each stream of its input. Not thread-safe.
class StreamDecoder
{
public:
    /// Decodes the current stream of `source`. Frames are written to the memory of `ring`. `source`, `ring`,
    /// `observer` and `liveClock` must outlive the decoder. `liveClock` is the clock of the arrival times of
    /// `source`. Late frames are dropped by this clock. If it is null, no frame is dropped as late.
    StreamDecoder(StreamSource &source, FrameRing &ring, StreamObserver &observer, const Clock *liveClock,
                  std::stop_token stop);

    /// Decodes until the stream ends or a stop is requested. An invalid head ends the stream. The frames in
    /// the reorder buffer are delivered at the end of the stream, not after a request to stop. To be called
    /// once.
    void run();

private:
    [[nodiscard]] bool open();

    /// Waits for a packet if the backlog is empty. While the next packet of a live stream is late, it also
    /// reads the packets that have arrived. Returns false if the backlog is empty at the end of the stream,
    /// and after a request to stop.
    [[nodiscard]] bool fillBacklog();
    [[nodiscard]] bool readPacket();
    void skipLateFrames();
    void reportDropped();
    [[nodiscard]] bool decode(const AVPacket &packet);
    void deliverFrame(const AVFrame &frame);
    void deliverSound(const AVFrame &frame);

    StreamSource &m_source;
    FrameRing &m_ring;
    StreamObserver &m_observer;
    const Clock *const m_liveClock;
    const std::stop_token m_stop;
    Demuxer m_demuxer;
    PacketBacklog m_backlog;
    bool m_hasEnded = false;               // the demuxer has reached the end
    bool m_isHurried = false;              // the current packet is late
    std::int64_t m_delivery = 0;           // time of the last delivered frame, on the live clock
    std::unique_ptr<TrackDecoder> m_video; // null without video
    std::unique_ptr<TrackDecoder> m_sound;
    FrameConverter m_frameConverter;
    SoundConverter m_soundConverter;
};

} // namespace sdk::ffmpeg

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

    /// The codecs as in DecoderStatus; empty for a missing track.
    virtual void codecsFound(std::string_view video, std::string_view audio) = 0;

    /// A frame of video or audio. Video is in the ring; audio is valid during the call.
    virtual void decoded(std::span<const std::uint8_t> bytes, const DecodedFrameInformation &information) = 0;

    /// A part of the stream could not be decoded.
    virtual void damaged() = 0;

    /// `frames` late frames were dropped.
    virtual void skipped(int frames) = 0;
};

/// Decodes from the head of the stream to its end. Not thread-safe.
class StreamDecoder
{
public:
    /// `liveClock` has timed the arrival of `source`; with it, late frames are dropped. It may be null.
    StreamDecoder(StreamSource &source, FrameRing &ring, StreamObserver &observer, const Clock *liveClock,
                  std::stop_token stop);

    /// Decodes until the stream ends or a stop is requested. An invalid head ends the stream.
    void run();

private:
    [[nodiscard]] bool open();

    /// Reads the next packet into the backlog and, while that is late, all available packets. Returns false
    /// at the end.
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

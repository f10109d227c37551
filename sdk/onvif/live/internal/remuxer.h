// Writes the received tracks of a device to the container of live streams.
#pragma once

#include "sdk/onvif/live/internal/frameassembler.h"
#include "sdk/onvif/live/internal/frameformat.h"
#include "sdk/onvif/live/internal/timeline.h"
#include "sdk/streams/matroskawriter.h"

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>
#include <span>

namespace sdk::onvif {

/// Assembles the frames of a video track, and writes them and the packets of a sound track, with continuous
/// timestamps, to the container of live streams (Matroska). Everything before the first key frame is dropped.
/// A header is written before the first key frame, before each key frame with another size or other parameter
/// sets, and on `mustRestart`. Used by one thread, except `mustRestart`.
class Remuxer
{
public:
    /// Receives the bytes of the container: complete packets, after a header if one is due. They are valid
    /// during the call. Called by add(), deliverWaiting() and finish().
    using BytesHandler = std::function<void(std::span<const std::uint8_t>)>;

    /// A frame counts as complete if no fragment follows within this time. The time is longer than the delay
    /// of a connection after a lost packet. Above three frames per second, the next frame arrives earlier and
    /// completes it.
    static constexpr std::chrono::milliseconds longestWait{300};

    /// `sound` is null for a stream without sound. The tracks must outlive the remuxer. Any thread may set
    /// `mustRestart`, which must outlive the remuxer, to request a new header at the next key frame. The
    /// remuxer resets it with that header. Returns null for a video codec that no decoder port supports. If
    /// the description of the sound is incomplete, the container has no sound.
    [[nodiscard]] static std::unique_ptr<Remuxer> of(const AVStream &video, const AVStream *sound,
                                                     std::atomic<bool> &mustRestart, BytesHandler handler);
    Remuxer(const Remuxer &) = delete;
    Remuxer &operator=(const Remuxer &) = delete;

    /// Adds a packet of any track of the session, with its timestamp in the time base of its track. Packets
    /// of other tracks are ignored. The packet stays the caller's. Returns true if it belongs to the video
    /// track.
    bool add(const AVPacket &packet);

    /// Writes the present frame if no fragment has followed within `longestWait`. To be called repeatedly
    /// while no data arrive.
    void deliverWaiting();

    /// Writes the present frame. To be called after the last packet.
    void finish() { m_assembler.finish(); }

    /// True after the first key frame.
    [[nodiscard]] bool hasBegun() const { return m_writer != nullptr; }

    /// True if the container could not be written. The owner then ends the stream.
    [[nodiscard]] bool hasFailed() const { return m_hasFailed; }

private:
    Remuxer(const AVStream &video, const AVStream *sound, std::unique_ptr<FrameFormat> format,
            std::atomic<bool> &mustRestart, BytesHandler handler);
    void addFrame(std::span<const std::uint8_t> bytes, std::int64_t time);
    [[nodiscard]] bool begin();
    void write(AVPacket &packet, Timeline &timeline);

    const AVStream &m_video;
    const AVStream *m_sound;
    const std::unique_ptr<FrameFormat> m_format;
    std::atomic<bool> &m_mustRestart;
    const BytesHandler m_handler;
    FrameAssembler m_assembler;
    std::chrono::steady_clock::time_point m_lastFragment;
    Timeline m_videoTimes;
    Timeline m_soundTimes;
    std::unique_ptr<streams::MatroskaWriter> m_writer;
    streams::AvPointer<AVCodecParameters> m_written; // the video parameters of m_writer
    bool m_hasFailed = false;
};

} // namespace sdk::onvif

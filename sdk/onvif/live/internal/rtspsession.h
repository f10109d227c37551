// The RTSP session of a live stream.
#pragma once

#include "sdk/onvif/live/internal/replywatch.h"
#include "sdk/onvif/live/internal/rtspurl.h"
#include "sdk/streams/avpointers.h"

#include <chrono>
#include <functional>
#include <optional>
#include <stop_token>
#include <string>

namespace sdk::onvif {

/// FFmpeg's RTSP client with limits of time (RtspTimeouts), of the size of responses and the number of tracks
/// (ReplyWatch), and of the addresses that it may connect to. It delivers packets; the caller assembles
/// frames. Used by the thread that creates it.
class RtspSession
{
public:
    using Time = std::chrono::steady_clock::time_point;

    /// Connects to nothing yet. A stop ends the session with StreamEnd::Stopped. `whenWaiting` (not empty) is
    /// called by read() about ten times per second while no data arrive, and also between data.
    RtspSession(RtspAddress address, const RtspTimeouts &timeouts, std::stop_token stop,
                std::function<void()> whenWaiting);

    /// Closes the session. Sends TEARDOWN with a timeout of 0.2 s, except after a refused password.
    ~RtspSession();
    RtspSession(const RtspSession &) = delete;
    RtspSession &operator=(const RtspSession &) = delete;

    /// To be called once. Blocks until the device plays, RtspTimeouts::response has passed or a stop is
    /// requested. RtspTimeouts::keyFrame and silence start at the return. Returns false on failure; end()
    /// then has the reason.
    [[nodiscard]] bool open();

    /// The first track in one of these encodings; null if there is none. To be called after open() has
    /// returned true. The track is valid as long as the session.
    [[nodiscard]] const AVStream *track(AVMediaType type, std::initializer_list<AVCodecID> codecs) const;

    /// Blocks until a packet of any track has arrived; the caller unreferences it. Returns false after the
    /// end of the session, also when a timeout has passed or a stop is requested; end() then has the reason.
    [[nodiscard]] bool read(AVPacket &packet);

    /// To be called after each video packet: starts RtspTimeouts::silence again.
    void noteVideoPacket() { m_dataBy = std::chrono::steady_clock::now() + m_timeouts.silence; }

    /// To be called after the first key frame: ends RtspTimeouts::keyFrame.
    void noteKeyFrame() { m_keyFrameBy.reset(); }

    /// The reason of the session's end. Valid after open() or read() has returned false.
    [[nodiscard]] StreamEnd end() const { return m_end.value_or(StreamEnd::Failed); }

    /// A description of the reason in English for logs, without secrets; empty for StreamEnd::Stopped.
    [[nodiscard]] const std::string &text() const { return m_text; }

private:
    static int isInterrupted(void *session);
    [[nodiscard]] bool isInterrupted();
    void checkTimes(Time now);
    void endWith(StreamEnd end, std::string text);
    void endWithError(int error);
    [[nodiscard]] StreamEnd endOfError(int error) const;

    const RtspAddress m_address;
    const RtspTimeouts m_timeouts;
    const std::stop_token m_stop;
    const std::function<void()> m_whenWaiting;
    ReplyWatch m_watch;
    AVFormatContext *m_format = nullptr; // not an AvPointer: the callbacks use it while it opens
    std::optional<StreamEnd> m_end;
    std::string m_text;
    bool m_isConnecting = true;
    std::optional<Time> m_responseBy;
    std::optional<Time> m_keyFrameBy;
    std::optional<Time> m_dataBy;
    std::optional<Time> m_closedBy;
};

} // namespace sdk::onvif

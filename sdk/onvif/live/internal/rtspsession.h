// The session in which a device sends a live stream.
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

/// FFmpeg's RTSP client within bounds of time, of size and of where it may go. On one thread.
class RtspSession
{
public:
    using Time = std::chrono::steady_clock::time_point;

    /// `whenWaiting` is called about ten times a second while nothing arrives, from within read().
    RtspSession(RtspAddress address, const RtspTimeouts &timeouts, std::stop_token stop,
                std::function<void()> whenWaiting);

    /// Tells the device that it is over, and waits only a moment for that.
    ~RtspSession();
    RtspSession(const RtspSession &) = delete;
    RtspSession &operator=(const RtspSession &) = delete;

    /// Blocks until the device plays. Returns false with an end.
    [[nodiscard]] bool open();

    /// The first track in one of these encodings; null without one.
    [[nodiscard]] const AVStream *track(AVMediaType type, std::initializer_list<AVCodecID> codecs) const;

    /// Blocks until a piece of any track has come. Returns false with an end.
    [[nodiscard]] bool read(AVPacket &packet);

    /// A piece of a picture has come.
    void notePicturePiece() { m_dataBy = std::chrono::steady_clock::now() + m_timeouts.silence; }

    /// The first picture that needs no earlier one has come.
    void noteKeyPicture() { m_keyPictureBy.reset(); }

    /// Why the session is over. Valid after a false.
    [[nodiscard]] StreamEnd end() const { return m_end.value_or(StreamEnd::Failed); }

    /// What is known of that, without secrets.
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
    std::optional<Time> m_answerBy;
    std::optional<Time> m_keyPictureBy;
    std::optional<Time> m_dataBy;
    std::optional<Time> m_closedBy;
};

} // namespace sdk::onvif

// A live stream of a device over RTSP.
#pragma once

#include "sdk/onvif/live/streamend.h"

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <mutex>
#include <optional>
#include <span>
#include <string>
#include <thread>

namespace sdk::onvif {

/// How long a device may take.
struct RtspTimeouts
{
    std::chrono::milliseconds answer{5000}; ///< from the start until it plays
    std::chrono::milliseconds keyPicture{
        20000}; ///< from then on until the first picture that needs no earlier one
    std::chrono::milliseconds silence{10000}; ///< between two pieces of a picture
};

/// What to open a stream with.
struct RtspOrder
{
    /// rtsp://ADDRESS[:PORT][/PATH][?QUERY]. The address is numeric: names are not looked up. An account in
    /// it is an error.
    std::string url;
    std::string account; ///< empty for none. UTF-8
    std::string password;
    RtspTimeouts timeouts;
};

/// One live stream with a thread of its own, on which both handlers run. Pictures in H.264, H.265 or MJPEG
/// and sound in G.711, AAC or PCM are put into the container of streams::MatroskaWriter as they are; other
/// tracks are left out. A stream begins with a picture that needs no earlier one; it starts again, with
/// another header, when the size or the parameters of its pictures change.
///
/// A password that is refused is not sent again. The data come over the connection of the session, or by UDP
/// from a device that does not offer that.
class RtspStream
{
public:
    /// Gets the next bytes of the container: a header, or a whole packet. They end with the call, which
    /// should be short: meanwhile nothing is received.
    using DataHandler = std::function<void(std::span<const std::uint8_t> bytes)>;

    /// Called once, after the last data. `text` says more about the reason, in English, for logs; there are
    /// no secrets in it.
    using EndHandler = std::function<void(StreamEnd end, const std::string &text)>;

    /// Starts at once and returns at once. Throws std::system_error when there is no thread.
    RtspStream(RtspOrder order, DataHandler dataHandler, EndHandler endHandler);

    /// As stop().
    ~RtspStream();
    RtspStream(const RtspStream &) = delete;
    RtspStream &operator=(const RtspStream &) = delete;

    /// Blocks until the device plays (nothing is returned) or the stream has ended, at most a little longer
    /// than RtspTimeouts::answer. For any thread, but not for a handler.
    [[nodiscard]] std::optional<StreamEnd> waitForAnswer();

    /// Makes the container start again, with its header, at the next picture that needs no earlier one. For
    /// any thread.
    void beginAnew() { m_mustBeginAnew = true; }

    /// Lets the stream end as stop() does, and returns at once. For any thread.
    void requestStop() { m_thread.request_stop(); }

    /// Ends the stream, if it has not ended by itself, with StreamEnd::Stopped, and returns within a fraction
    /// of a second. No handler runs any more then. For one thread at a time, but not for a handler.
    void stop();

private:
    struct Outcome
    {
        StreamEnd end;
        std::string text;
    };

    void run(const std::stop_token &stop);
    [[nodiscard]] Outcome receive(const std::stop_token &stop);
    void setAnswer(std::optional<StreamEnd> answer);

    const RtspOrder m_order;
    const DataHandler m_dataHandler;
    const EndHandler m_endHandler;
    std::atomic<bool> m_mustBeginAnew = false;

    std::mutex m_mutex;
    std::condition_variable m_answered;
    bool m_hasAnswer = false;
    std::optional<StreamEnd> m_answer; // valid with m_hasAnswer
    std::jthread m_thread;             // last: it ends before what it uses
};

} // namespace sdk::onvif

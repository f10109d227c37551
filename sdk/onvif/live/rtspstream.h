// A live stream of a device over RTSP.
#pragma once

#include "sdk/onvif/live/rtsporder.h"
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

/// One live stream with its thread, on which both handlers run. The first video track in H.264, H.265 or
/// MJPEG and the first sound track in G.711, AAC or 16-bit PCM are written without re-encoding to the
/// container of streams::MatroskaWriter (endless Matroska). Other tracks are dropped. The data start with a
/// header and a key frame. They start again, with another header, when the size or the parameters of the
/// frames change.
///
/// A refused password is not sent again. The RTP transport is interleaved in the connection of the session,
/// or UDP for a device that does not support interleaved transport.
class RtspStream
{
public:
    /// Receives the next bytes of the container: complete packets. A header precedes the first packet in the
    /// same call. The bytes are valid during the call, which should be short, since no data are received
    /// meanwhile.
    using DataHandler = std::function<void(std::span<const std::uint8_t> bytes)>;

    /// Called once, after the last data, for every reason including StreamEnd::Stopped. `text` describes the
    /// reason in English, for logs, without secrets; it may be empty.
    using EndHandler = std::function<void(StreamEnd end, const std::string &text)>;

    /// Starts the stream and returns immediately. Errors of `order` are reported as the end of the stream.
    /// Throws std::system_error when no thread can be created. The handlers must not be empty.
    RtspStream(RtspOrder order, DataHandler dataHandler, EndHandler endHandler);

    /// As stop().
    ~RtspStream();
    RtspStream(const RtspStream &) = delete;
    RtspStream &operator=(const RtspStream &) = delete;

    /// Blocks until the device plays a stream with a decodable video track, and then returns nothing, also if
    /// the stream has ended since. If the stream ends before, returns the reason. Blocks slightly longer than
    /// RtspTimeouts::response at most. For any thread, but not for a handler.
    [[nodiscard]] std::optional<StreamEnd> waitForResponse();

    /// Makes the container start again, with its header, at the next key frame. For any thread.
    void restart() { m_mustRestart = true; }

    /// Requests the end of the stream as stop() does, and returns immediately. For any thread.
    void requestStop() { m_thread.request_stop(); }

    /// Ends the stream with StreamEnd::Stopped, unless it has already ended. Blocks until the thread has
    /// ended, a fraction of a second and the duration of a running handler at most. No handler runs after the
    /// call. For one thread at a time, but not for a handler.
    void stop();

private:
    struct Outcome
    {
        StreamEnd end;
        std::string text;
    };

    void run(const std::stop_token &stop);
    [[nodiscard]] Outcome receive(const std::stop_token &stop);
    void setResponse(std::optional<StreamEnd> response);

    const RtspOrder m_order;
    const DataHandler m_dataHandler;
    const EndHandler m_endHandler;
    std::atomic<bool> m_mustRestart = false;

    std::mutex m_mutex;
    std::condition_variable m_responded;
    bool m_hasResponse = false;
    std::optional<StreamEnd> m_response; // valid with m_hasResponse
    std::jthread m_thread;               // the last member: its thread uses the others
};

} // namespace sdk::onvif

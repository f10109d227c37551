// An open live stream.
#pragma once

#include "sdk/demo/streams/avpointers.h"
#include "sdk/streamblocks.h"
#include "sdk/streams/matroskawriter.h"

#include <QString>

#include <atomic>
#include <cstdint>
#include <mutex>
#include <optional>
#include <span>

namespace sdk::demo {

class LiveProduction;

/// The parameters of a stream.
struct LiveStreamOrder
{
    std::int64_t loginHandle = 0; ///< of the session
    QString mac;                  ///< of the device
    std::int32_t channel = 0;     ///< from 0
    LiveStreamKind kind = LiveStreamKind::Main;
    std::int64_t startTime = 0; ///< the earliest time of data, on the site's clock, in ms since 1970
};

/// One viewer of a LiveSource, which encodes for all viewers of a channel. A stream writes the encoded
/// packets to its own container and passes the bytes to its handler, on the source's thread. Thread-safe,
/// except for the functions of that thread.
class LiveStream
{
public:
    /// The maximum size of a chunk of data, in bytes.
    static constexpr std::size_t maximumChunk = 16384;

    /// `handle` is passed to the handler.
    LiveStream(std::int64_t handle, LiveStreamOrder order) : m_handle(handle), m_order(std::move(order)) {}

    [[nodiscard]] const LiveStreamOrder &order() const { return m_order; }

    /// Sets the handler; null removes it. The previous handler is not running after the return, so this must
    /// not be called from a handler. A handler that replaces another one continues its stream. A handler that
    /// replaces null gets a new header and a key frame first. If the stream has ended while no handler was
    /// set, `handler` is called with RealDataType::End during this call.
    void setHandler(RealDataHandler handler, void *user);

    /// Whether a handler is set and the stream has not ended. The data may start later, at the start time.
    [[nodiscard]] bool isWatched() const { return m_hasHandler && !m_hasEnded; }

    /// Whether the calling thread is inside a handler of any stream of this process.
    [[nodiscard]] static bool isInsideHandler();

    /// Ends the stream without a call of the handler. Does not wait for a running handler.
    void close() { m_hasEnded = true; }

    /// Makes the next frame of the source a key frame.
    void requestKeyFrame() { m_isKeyFrameRequested = true; }

    // Functions of the source's thread. For each frame it calls prepare(), encodes the frame, and calls
    // send().

    /// Prepares for the next frame of `production`. Returns whether it must be a key frame.
    [[nodiscard]] bool prepare(const LiveProduction &production);

    /// The number of sent frames since the stream was opened.
    [[nodiscard]] int frames() const { return m_frames; }

    /// Sends the packets of the prepared frame to the handler, in chunks. If the container cannot be written,
    /// the frame is dropped and the stream restarts.
    void send(const EncodedPackets &packets);

    /// Makes the next frame start with a new header and be a key frame.
    void restart() { m_writer.reset(); }

    /// Ends the stream and calls the handler with RealDataType::End; without a handler, the next one that is
    /// set. No effect on a stream that has ended. The handle stays valid until it is closed.
    void end(StreamEndReason reason);

private:
    void deliver(std::span<const std::uint8_t> bytes);
    /// Passes the end to the handler, if both exist. The caller holds the mutex.
    void reportEnd();
    /// Calls the handler. The caller holds the mutex.
    void call(RealDataType type, std::span<const std::uint8_t> bytes, std::int64_t parameter) const;

    const std::int64_t m_handle;
    const LiveStreamOrder m_order;
    std::atomic<bool> m_hasEnded = false;
    std::atomic<bool> m_isKeyFrameRequested = false;
    std::atomic<bool> m_hasHandler = false; // whether m_handler is set; read without the lock

    std::mutex m_mutex; // held while the handler runs
    RealDataHandler m_handler = nullptr;
    void *m_user = nullptr;
    std::int64_t m_restarts = 0;          // counts the handlers that have replaced null
    std::optional<StreamEndReason> m_end; // an end that no handler has received yet

    // members of the source's thread
    std::unique_ptr<streams::MatroskaWriter> m_writer;
    std::int64_t m_sentRestarts = 0; // the m_restarts that m_writer belongs to
    int m_frames = 0;
};

} // namespace sdk::demo

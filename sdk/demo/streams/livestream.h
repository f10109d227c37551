// A live stream that was opened by its handle.
#pragma once

#include "sdk/demo/streams/avpointers.h"
#include "sdk/streamblocks.h"
#include "sdk/streams/matroskawriter.h"

#include <QString>

#include <atomic>
#include <cstdint>
#include <mutex>
#include <span>

namespace sdk::demo {

class LiveProduction;

/// What a stream was opened with.
struct LiveStreamOrder
{
    std::int64_t loginHandle = 0;
    QString mac;
    std::int32_t channel = 0;
    LiveStreamKind kind = LiveStreamKind::Main;
    std::int64_t begins = 0; ///< on the site's clock: nothing is sent before
};

/// One watcher of a LiveSource. Thread-safe, except what is said to be for the source's thread.
class LiveStream
{
public:
    /// Pieces of data are no larger.
    static constexpr std::size_t largestPiece = 16384;

    LiveStream(std::int64_t handle, LiveStreamOrder order) : m_handle(handle), m_order(std::move(order)) {}

    [[nodiscard]] const LiveStreamOrder &order() const { return m_order; }

    /// Null for none. The handler that was set before runs no more after the return, so this must not be
    /// called from one. One that follows on none gets the stream from a beginning, one that follows on
    /// another goes on where that was.
    void setHandler(RealDataHandler handler, void *user);

    /// Whether somebody gets data, or would.
    [[nodiscard]] bool isWatched() const { return m_hasHandler && !m_hasEnded; }

    /// Whether the calling thread is inside a handler of any stream of this process.
    [[nodiscard]] static bool isInsideHandler();

    /// Nothing is sent any more.
    void close() { m_hasEnded = true; }

    void askForKeyPicture() { m_wantsKeyPicture = true; }

    // For the source's thread

    /// Gets ready for the next picture of `production`. Returns whether that has to be one that needs no
    /// earlier one.
    [[nodiscard]] bool prepare(const LiveProduction &production);

    /// How many pictures have been sent.
    [[nodiscard]] int pictures() const { return m_pictures; }

    /// Brings the packets of a picture that it was prepared for to the handler.
    void send(const EncodedPackets &packets);

    /// Forgets the beginning that was sent: the next picture begins anew.
    void beginAnew() { m_writer.reset(); }

    /// The device sends no more, which the handler is called with. The handle stays until it is closed.
    void end(StreamEndReason reason);

private:
    void deliver(std::span<const std::uint8_t> bytes);
    /// Calls the handler. With the mutex.
    void call(RealDataType type, std::span<const std::uint8_t> bytes, std::int64_t parameter) const;

    const std::int64_t m_handle;
    const LiveStreamOrder m_order;
    std::atomic<bool> m_hasEnded = false;
    std::atomic<bool> m_wantsKeyPicture = false;
    std::atomic<bool> m_hasHandler = false; // tells of m_handler without the lock

    std::mutex m_mutex; // held while the handler runs
    RealDataHandler m_handler = nullptr;
    void *m_user = nullptr;
    std::int64_t m_beginning = 0; // counts the handlers that follow on none

    // Of the source's thread
    std::unique_ptr<streams::MatroskaWriter> m_writer;
    std::int64_t m_sentBeginning = 0; // that m_writer writes for
    int m_pictures = 0;
};

} // namespace sdk::demo

// One port of the decoder library.
#pragma once

#include "sdk/decoderlibrary.h"
#include "sdk/ffmpeg/internal/framering.h"
#include "sdk/ffmpeg/internal/inputqueue.h"
#include "sdk/ffmpeg/internal/streamdecoder.h"
#include "sdk/ffmpeg/internal/streamsource.h"

#include <memory>
#include <mutex>
#include <thread>

namespace sdk::ffmpeg {

/// A port decodes the bytes of live streams, which input() receives, to frames and sound, which it passes to
/// the handler. The operations are those of DecoderLibrary, with the same rules for threads: input() and
/// status() may run at the same time as any other function; two others must not run at the same time, and no
/// function may be called from the handler. Between play() and stop() the port has a thread, which decodes
/// and calls the handler. Without a handler, frames and sound are dropped.
class DecoderPort final : private StreamObserver
{
public:
    /// `number` is passed to the handler. `clock` (not null) times the input.
    DecoderPort(std::int32_t number, std::shared_ptr<const Clock> clock)
        : m_number(number), m_clock(std::move(clock))
    {
    }

    /// Stops decoding, waits for the thread and frees the port's frames.
    ~DecoderPort() override;

    DecoderPort(const DecoderPort &) = delete;
    DecoderPort &operator=(const DecoderPort &) = delete;

    /// Opens the port and clears its status. `header` is the first part of the input and is copied; it may be
    /// empty. `bufferSize` is the number of undecoded bytes up to which input() accepts more. Returns false
    /// if the port is open, and if `bufferSize` is 0 or smaller than the header.
    [[nodiscard]] bool open(std::span<const std::uint8_t> header, std::size_t bufferSize);

    /// Late frames and sound are dropped from the next play() on. Not to be called while the port plays.
    void setLive() { m_isLive = true; }

    /// Sets the handler (null for none) and the `user` that it gets. Waits for a running call of the previous
    /// handler, which does not run after the return.
    void setHandler(DecodeHandler handler, void *user);

    /// Starts the thread. Returns false if the port is not open or plays, and if no thread can be started.
    [[nodiscard]] bool play();

    /// Copies the bytes. Returns false, with nothing copied, if the port is not open or its buffer has no
    /// room for all of them.
    [[nodiscard]] bool input(std::span<const std::uint8_t> bytes);

    /// Ends the thread and waits for it. The port stays open and keeps its input: a further play() continues
    /// with the next stream header in it. Returns false if the port does not play.
    bool stop();

    /// Stops, and discards the input. Returns false if the port is not open.
    bool close();

    /// The status of the open port; after close(), the last one with `waitingBytes` 0. Empty before open().
    [[nodiscard]] DecoderStatus status() const;

    /// Whether the calling thread runs the handler of any port.
    [[nodiscard]] static bool isInsideHandler();

private:
    /// The input between open() and close().
    struct Input
    {
        explicit Input(std::size_t limit) : queue(limit) {}
        InputQueue queue;
        StreamSource source{queue}; // used by the decoding thread
    };

    void run(const std::stop_token &stop);
    void codecsFound(std::string_view video, std::string_view audio) override;
    void decoded(std::span<const std::uint8_t> bytes, const DecodedFrameInformation &information) override;
    void damaged() override;
    void skipped(int frames) override;
    [[nodiscard]] std::shared_ptr<Input> currentInput() const;

    const std::int32_t m_number;
    const std::shared_ptr<const Clock> m_clock;
    bool m_isLive = false; // late frames are dropped; constant while the port plays

    mutable std::mutex m_mutex;     // guards the two members below
    std::shared_ptr<Input> m_input; // null while closed
    DecoderStatus m_status{};

    std::mutex m_handlerMutex; // held while the handler runs
    DecodeHandler m_handler = nullptr;
    void *m_user = nullptr;

    FrameRing m_ring; // used by the decoding thread
    std::jthread m_thread;
};

} // namespace sdk::ffmpeg

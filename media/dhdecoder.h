#pragma once

#include "media/slidingsum.h"
#include "sdk/decoderlibrary.h"
#include "sdk/streamblocks.h"

#include <QObject>
#include <QString>

#include <atomic>
#include <cstdint>
#include <memory>
#include <mutex>

namespace sdk {
class Clock;
}

class VideoDataObserver;

/// Codecs and statistics of a live stream, as in sdk::DecoderStatus.
struct StreamFigures
{
    QString videoCodec;              ///< empty until known
    QString audioCodec;              ///< empty without audio
    double framesPerSecond = 0;      ///< during the last second
    double kilobitsPerSecond = 0;    ///< received during the last second, with data that was dropped
    std::uint32_t waitingBytes = 0;  ///< received and not decoded yet
    std::uint32_t damages = 0;       ///< damaged parts of the stream since the start
    std::uint32_t skippedFrames = 0; ///< dropped because they were late, since the start
};

/// Decodes one live stream with the decoder library: receives the bytes of the stream on a thread of the
/// network library and passes decoded frames and audio to an observer on a thread of the decoder library. The
/// owner registers realDataCallback() with the network library.
///
/// Start(), Stop() and figures() are called on one thread, which is not the thread of the decoder library.
class CDHDecoder : public QObject
{
    Q_OBJECT
public:
    /// `observer` must outlive the decoder. If `library` is null, every start fails. `clock` must not be
    /// null.
    CDHDecoder(VideoDataObserver *observer, std::shared_ptr<sdk::DecoderLibrary> library,
               std::shared_ptr<sdk::Clock> clock);

    /// As Stop().
    ~CDHDecoder() override;

    /// Opens a port of the decoder library, in the mode of real-time streams, and starts decoding. Returns
    /// false on failure; no port is open then. Must not be called again before Stop().
    bool Start();

    /// Closes the port, if one is open, and waits for its thread. When it returns, the observer is no longer
    /// called and the bytes of its frames are freed. Always returns true.
    bool Stop();

    /// Passes the next bytes of the stream to the decoder, which copies them. Returns false if they were
    /// dropped: no port is open, or its buffer of 8 MB is full. Any thread.
    bool inputData(const std::uint8_t *data, std::uint32_t size);

    /// Colour space of the frame that the observer is called with. To be called by the observer during that
    /// call.
    [[nodiscard]] sdk::FrameColour frameColour() const { return m_frameColour; }

    /// The strings are empty and the numbers 0 while no port is open.
    [[nodiscard]] StreamFigures figures() const;

    /// Callback of the decoder library: passes the frame to the observer. `user` is the CDHDecoder.
    static void decodeCallback(std::int32_t port, const std::uint8_t *data, std::int32_t size,
                               const sdk::DecodedFrameInformation *information, void *user);

    /// Callback of the network library. `user` is the CDHDecoder. `dataType` is an sdk::RealDataType: Stream
    /// passes the bytes to inputData(), End emits streamEnded(). `parameter` is the sdk::StreamEndReason for
    /// End.
    static void realDataCallback(std::int64_t streamHandle, std::uint32_t dataType, const std::uint8_t *data,
                                 std::uint32_t size, std::int64_t parameter, void *user);

Q_SIGNALS:
    /// The network library has reported the end of a stream. Emitted on a thread of that library.
    void streamEnded(qint64 streamHandle, sdk::StreamEndReason reason);

private:
    static constexpr std::int32_t noPort = -1;

    void deliver(const std::uint8_t *data, std::int32_t size,
                 const sdk::DecodedFrameInformation &information);

    VideoDataObserver *const m_observer;
    const std::shared_ptr<sdk::DecoderLibrary> m_library;
    const std::shared_ptr<sdk::Clock> m_clock;
    std::atomic<std::int32_t> m_port = noPort;
    sdk::FrameColour m_frameColour = sdk::FrameColour::Bt601Limited; ///< decoder's thread only
    mutable std::mutex m_sumsMutex;                                  ///< guards the two members below
    SlidingSum m_bytes;
    SlidingSum m_frames;
};

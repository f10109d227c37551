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

/// What a live stream is and how it runs.
struct StreamFigures
{
    QString videoCodec;         ///< empty until the stream has told
    QString audioCodec;         ///< empty without sound
    double picturesASecond = 0; ///< during the last second
    double kilobitsASecond = 0; ///< likewise, of what came over the network
    std::uint32_t waitingBytes = 0;
    std::uint32_t damages = 0;
    std::uint32_t skippedPictures = 0; ///< too late to be shown, since the start
};

/// One live stream through the decoder library: takes the bytes of the stream on a thread of the network
/// library and hands decoded pictures and sound to an observer, on a thread of the decoder library.
///
/// Start() and Stop() are called on one thread.
class CDHDecoder : public QObject
{
    Q_OBJECT
public:
    /// `observer` outlives the decoder. Without a `library` no start succeeds.
    CDHDecoder(VideoDataObserver *observer, std::shared_ptr<sdk::DecoderLibrary> library,
               std::shared_ptr<sdk::Clock> clock);
    ~CDHDecoder() override;

    /// Opens a port. Not to be called again before Stop().
    bool Start();

    /// Closes the port, if one is open; the observer is not called any more then. Always true.
    bool Stop();

    /// Takes the next bytes of the stream, on any thread. False when they were dropped, as they all are while
    /// no port is open.
    bool inputData(const std::uint8_t *data, std::uint32_t size);

    /// Of the picture that the observer is being called with, for its call.
    [[nodiscard]] sdk::PictureColour pictureColour() const { return m_pictureColour; }

    /// On the thread of Start() and Stop().
    [[nodiscard]] StreamFigures figures() const;

    /// Handlers for the libraries; `user` is the decoder.
    static void decodeCallback(std::int32_t port, const std::uint8_t *data, std::int32_t size,
                               const sdk::DecodedFrameInformation *information, void *user);
    static void realDataCallback(std::int64_t streamHandle, std::uint32_t dataType, const std::uint8_t *data,
                                 std::uint32_t size, std::int64_t parameter, void *user);

Q_SIGNALS:
    /// A stream has ended by itself. On a thread of the network library.
    void streamEnded(qint64 streamHandle, sdk::StreamEndReason reason);

private:
    static constexpr std::int32_t noPort = -1;

    void handOn(const std::uint8_t *data, std::int32_t size, const sdk::DecodedFrameInformation &information);

    VideoDataObserver *const m_observer;
    const std::shared_ptr<sdk::DecoderLibrary> m_library;
    const std::shared_ptr<sdk::Clock> m_clock;
    std::atomic<std::int32_t> m_port = noPort;
    sdk::PictureColour m_pictureColour = sdk::PictureColour::Bt601Limited; ///< decoder's thread only
    mutable std::mutex m_sumsMutex;
    SlidingSum m_bytes;
    SlidingSum m_pictures;
};

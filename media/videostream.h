#pragma once

#include "media/audiooutput.h"
#include "media/currentframe.h"
#include "media/dhdecoder.h"
#include "media/streamopening.h"
#include "media/streamwatch.h"
#include "media/videodataobserver.h"
#include "sdk/sdklibraries.h"
#include "sdk/streamblocks.h"

#include <QObject>
#include <QString>
#include <QTimer>

#include <atomic>
#include <cstdint>
#include <memory>

/// The live stream of one channel: requests it, has it decoded, keeps the latest frame, buffers its audio and
/// detects missing frames. It can be started again after stop(). When the device ends the stream, text()
/// changes and the stream stays open until stop().
///
/// Functions are called on the thread that created the object, and signals are emitted there, unless stated
/// otherwise. A stream for snapshots may live on any thread. Without an event loop, startInBackground() does
/// not work, and neither missing frames nor the end of the stream are reported. Audio is played on the main
/// thread only.
class VideoStream : public QObject, public VideoDataObserver
{
    Q_OBJECT
public:
    /// Without a network or decoder library (null) every start fails. The clock must not be null.
    explicit VideoStream(sdk::SdkLibraries libraries, QObject *parent = nullptr);

    /// Closes the stream as stop(), without isStreamingChanged(). The decoder's thread may emit its signals
    /// until then.
    ~VideoStream() override;

    /// Blocks until the device has responded. Returns false on failure, with the reason in text(). isOpen()
    /// must be false. If no decoder port is free, the start succeeds and no frame arrives.
    bool start(const StreamOpening::Request &request);

    /// As start(), but does not block. isOpen() must be false, and is true from the call on. Emits
    /// startEnded() when the device has responded, unless stop() is called first.
    void startInBackground(const StreamOpening::Request &request);

    /// Closes the stream or cancels a start, and clears currentFrame(). Waits for the decoder's thread.
    /// text() does not change.
    void stop();

    /// Whether a stream is open or a start in the background is pending. If it is true, stop() must be called
    /// before the next start. A failed start can leave an open stream.
    [[nodiscard]] bool isOpen() const { return m_handle != 0 || m_opening; }

    /// True from a successful start to stop(), also after the device has ended the stream.
    [[nodiscard]] bool isStreaming() const { return m_isStreaming; }

    /// Why the last start failed or the stream has ended, in the user's language. It stays until the next
    /// successful start; empty otherwise.
    [[nodiscard]] QString text() const { return m_text; }

    /// Codecs and statistics of the stream; empty strings and 0 while no stream is decoded.
    [[nodiscard]] StreamFigures figures() const { return m_decoder->figures(); }

    /// The latest frame; incomplete before the first frame and after stop(). Any thread.
    [[nodiscard]] CurrentFrame &currentFrame() { return m_frame; }

    /// Writes the current frame as JPEG to `path`, replacing an existing file. `quality` is 1 to 100. The
    /// folder must exist. Returns false without a frame and if the file cannot be written; an existing file
    /// is unchanged then.
    bool saveFrame(const QString &path, int quality);

    /// Whether the audio of the stream is buffered for playAudio(); false initially.
    [[nodiscard]] bool hasAudio() const { return m_hasAudio; }

    /// Returns true if the value has changed.
    bool setHasAudio(bool hasAudio) { return m_hasAudio.exchange(hasAudio) != hasAudio; }

    /// Plays the buffered audio. The owner calls it after audioArrived().
    void playAudio() { m_audio.drain(); }

    /// Opens the audio output with the current sample rate. The owner calls it after sampleRateChanged().
    void openAudio() { m_audio.reopen(); }

    /// Called by the decoder on its thread.
    void onDecodedFrame(const std::uint8_t *data, std::int32_t size, std::int32_t width, std::int32_t height,
                        sdk::DecodedFrameType type, std::int32_t rate, std::int32_t reserved) override;

Q_SIGNALS:
    void frameArrived();      ///< emitted on the decoder's thread
    void audioArrived();      ///< emitted on the decoder's thread, with the audio buffer locked
    void sampleRateChanged(); ///< emitted on the decoder's thread
    void textChanged();
    void isStreamingChanged();
    /// The end of startInBackground(). `isStreaming` is its result: false on failure, with the reason in
    /// text(). `mayTryOther` is true if the start has failed for this stream only: the device responds and
    /// accepts the session, so a request for the other stream of the channel may succeed. It is also true for
    /// a failure without an error number.
    void startEnded(bool isStreaming, bool mayTryOther);
    /// No frame has arrived for 8 s since the start, or for 4 s since the last frame. Emitted once for each
    /// timeout; the stream stays open and may recover.
    void framesMissing();

private:
    static constexpr int watchInterval = 250; // milliseconds

    [[nodiscard]] std::shared_ptr<sdk::NetLibrary> usableNet() const;
    bool finishStart(const StreamOpening::Result &opened, std::int32_t channel);
    bool failStart(const char *logLine, std::uint32_t error);
    void close();
    void noteEnd(qint64 handle, sdk::StreamEndReason reason);
    [[nodiscard]] static QString endText(sdk::StreamEndReason reason);
    void watch();
    void setText(const QString &text);
    void setIsStreaming(bool isStreaming);

    const sdk::SdkLibraries m_libraries;
    const std::shared_ptr<CDHDecoder> m_decoder;
    CurrentFrame m_frame;
    AudioOutput m_audio;
    std::atomic<bool> m_hasAudio = false;
    StreamWatch m_watch;
    QTimer m_watchTimer;
    std::int64_t m_handle = 0;                ///< of the open stream; 0 for none
    std::unique_ptr<StreamOpening> m_opening; ///< the pending start in the background; null for none
    QString m_text;
    bool m_isStreaming = false;
};

#pragma once

#include <QByteArray>
#include <QElapsedTimer>
#include <QMutex>

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>

class QAudioSink;
class QIODevice;
class QMediaDevices;
class QObject;

/// The audio of one live stream: buffers decoded samples on the decoder's thread and writes them to the
/// system's default output on the main thread. Samples are 16-bit mono, as DecodedFrameType::Sound. Functions
/// are called on the thread that created the object unless stated otherwise. No output is open before the
/// first reopen().
class AudioOutput
{
public:
    static constexpr std::int32_t bufferSize = 102400; ///< in bytes

    /// `owner` is the parent of the audio sink and outlives this object. `outputsChanged` is called on the
    /// main thread when the system's outputs have changed. An object that is created on another thread than
    /// the main thread plays nothing and never calls `outputsChanged`.
    AudioOutput(QObject *owner, const std::function<void()> &outputsChanged);

    /// Closes the output, which runs an event loop.
    ~AudioOutput();

    AudioOutput(const AudioOutput &) = delete;
    AudioOutput &operator=(const AudioOutput &) = delete;

    /// Sets the sample rate in Hz. Returns whether it has changed. Decoder's thread.
    bool noteSampleRate(std::int32_t rate) { return m_sampleRate.exchange(rate) != rate; }

    /// Copies `size` bytes of samples to the buffer, or drops them all if they would fill it. Calls `pushed`
    /// in both cases, with the buffer locked: `pushed` must not call this object. Decoder's thread.
    void push(const std::uint8_t *data, std::int32_t size, const std::function<void()> &pushed);

    /// Writes the buffered samples to the output, which drops those beyond its free space, and clears the
    /// buffer. Without an output the samples are dropped. After the first reopen(), it also calls reopen() if
    /// the output was removed or is not the default one any more. Debian 12 does not report such changes, so
    /// they are checked at most once a second.
    void drain();

    /// Clears the buffer, closes the output and opens the default one with the current sample rate. No output
    /// is open afterwards if there is none, or for a rate outside 1 to 384000 Hz. Closing runs an event loop,
    /// in which a call of this function only clears the buffer.
    void reopen();

    [[nodiscard]] bool isOpen() const { return m_sink != nullptr; }

    /// Number of buffered bytes, less than bufferSize. Any thread.
    [[nodiscard]] std::int32_t fill() const;

    /// Runs an event loop for up to 200 ms, until Qt has released an output that was just closed. Must be
    /// called before the process ends, which otherwise crashes occasionally. Main thread.
    static void awaitRelease();

private:
    static constexpr int checkInterval = 1000; // milliseconds

    void close();
    void checkOutput();

    QObject *const m_owner;
    std::unique_ptr<QMediaDevices> m_devices;
    const std::shared_ptr<std::uint8_t[]> m_buffer;
    mutable QMutex m_mutex; ///< guards the buffer and the fill
    std::int32_t m_fill = 0;
    std::atomic<std::int32_t> m_sampleRate = 0;
    std::unique_ptr<QAudioSink> m_sink;
    QIODevice *m_device = nullptr; ///< owned by the sink
    bool m_isClosing = false;      ///< no output is opened then; checkOutput() finds a change later
    QByteArray m_output;           ///< identifier of the last opened output; empty for none
    QElapsedTimer m_lastCheck;
};

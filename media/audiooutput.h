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

/// The sound of one live view: gathers decoded sound on the decoder's thread and writes it to the system's
/// default output on the thread of the view.
class AudioOutput
{
public:
    static constexpr std::int32_t bufferSize = 102400; ///< bytes

    /// `owner` becomes the parent of what plays and outlives this object. `outputsChanged` is called on its
    /// thread when the system's outputs have changed. Views of other threads than the application's, which
    /// play nothing, do not watch them.
    AudioOutput(QObject *owner, const std::function<void()> &outputsChanged);
    ~AudioOutput();

    AudioOutput(const AudioOutput &) = delete;
    AudioOutput &operator=(const AudioOutput &) = delete;

    /// Returns true when the samples a second are others than before. On the decoder's thread.
    bool noteSampleRate(std::int32_t rate) { return m_sampleRate.exchange(rate) != rate; }

    /// Keeps 16-bit samples until they are written, or drops them all when the buffer has no room; calls
    /// `pushed` in both cases, with the buffer locked. On the decoder's thread.
    void push(const std::uint8_t *data, std::int32_t size, const std::function<void()> &pushed);

    /// Writes the gathered samples to the output, which drops those that it has no room for. Opens the output
    /// again when it was removed or another one is the default. Not every system reports that (the sound
    /// library of Debian 12 does not), so it is checked once a second.
    void drain();

    /// Plays from now on with the current sample rate on the current default output, if there is one. Does
    /// nothing where outputs are not watched.
    void reopen();

    [[nodiscard]] bool isOpen() const { return m_sink != nullptr; }

    /// Bytes that wait to be written.
    [[nodiscard]] std::int32_t fill() const;

    /// To be called before the process ends: lets the event loop run until the sound library has let go of an
    /// output that was closed just now. It crashes otherwise, in some of a hundred cases.
    static void letGo();

private:
    static constexpr int lookInterval = 1000; // milliseconds

    void close();
    void look();

    QObject *const m_owner;
    std::unique_ptr<QMediaDevices> m_devices;
    const std::shared_ptr<std::uint8_t[]> m_buffer;
    mutable QMutex m_mutex; ///< guards the buffer and the fill
    std::int32_t m_fill = 0;
    std::atomic<std::int32_t> m_sampleRate = 0;
    std::unique_ptr<QAudioSink> m_sink;
    QIODevice *m_device = nullptr; ///< the sink's
    bool m_isClosing = false;      ///< nothing is opened then; look() finds a changed output later
    QByteArray m_output;           ///< identity of the output that was opened last; empty for none
    QElapsedTimer m_lastLook;
};

#include "media/audiooutput.h"

#include "media/logging.h"

#include <QAudioDevice>
#include <QAudioFormat>
#include <QAudioSink>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QIODevice>
#include <QMediaDevices>
#include <QThread>
#include <QTimer>

#include <cstring>

namespace {

constexpr std::int32_t highestSampleRate = 384000; // higher rates are invalid
constexpr qint64 releaseTime = 200;                // milliseconds

QElapsedTimer lastClosed; ///< valid once an output was closed; main thread only

} // namespace

AudioOutput::AudioOutput(QObject *owner, const std::function<void()> &outputsChanged)
    : m_owner(owner), m_buffer(std::make_unique<std::uint8_t[]>(bufferSize))
{
    if (QCoreApplication::instance() && QThread::currentThread() == QCoreApplication::instance()->thread()) {
        m_devices = std::make_unique<QMediaDevices>();
        QObject::connect(m_devices.get(), &QMediaDevices::audioOutputsChanged, owner, outputsChanged);
    }
}

AudioOutput::~AudioOutput()
{
    close();
}

void AudioOutput::push(const std::uint8_t *data, std::int32_t size, const std::function<void()> &pushed)
{
    const QMutexLocker lock(&m_mutex);
    if (data && size >= 0 && std::int64_t(m_fill) + size < bufferSize) {
        std::memcpy(m_buffer.get() + m_fill, data, static_cast<std::size_t>(size));
        m_fill += size;
    } else {
        qCDebug(logMedia) << "Error RealplayManager::pushToAudioBuffer m_audioBufferCurSize + size >= "
                             "MAX_AUDIO_BUFFER_SIZE";
    }
    pushed();
}

void AudioOutput::drain()
{
    checkOutput();
    const QMutexLocker lock(&m_mutex);
    if (m_device && m_fill > 0) {
        if (m_sink->bytesFree() < m_fill)
            qCDebug(logMedia)
                << "RealplayManager::onSlotAudioFrameUpdate m_audioSink->bytesFree() < m_audioBufferCurSize";
        m_device->write(reinterpret_cast<const char *>(m_buffer.get()), m_fill);
    }
    m_fill = 0;
}

void AudioOutput::checkOutput()
{
    // The audio server has ended the stream and removed the output. A write would block the process
    // permanently in Qt.
    if (m_sink && m_sink->bytesFree() < 0) {
        close();
        m_output.clear();
    }
    if (m_isClosing || !m_lastCheck.isValid() || !m_lastCheck.hasExpired(checkInterval))
        return;
    m_lastCheck.start();
    if (QMediaDevices::defaultAudioOutput().id() != m_output)
        reopen();
}

void AudioOutput::reopen()
{
    {
        const QMutexLocker lock(&m_mutex);
        m_fill = 0;
    }
    if (!m_devices || m_isClosing)
        return;
    QAudioFormat format;
    format.setSampleFormat(QAudioFormat::Int16);
    format.setChannelCount(1);
    format.setSampleRate(m_sampleRate);
    const QAudioDevice device = QMediaDevices::defaultAudioOutput();
    close();
    m_output = device.id();
    m_lastCheck.start();
    // The rate is 0 if the outputs change before the first audio.
    if (device.isNull() || format.sampleRate() <= 0 || format.sampleRate() > highestSampleRate)
        return;
    m_sink = std::make_unique<QAudioSink>(device, format, m_owner);
    m_device = m_sink->start();
}

std::int32_t AudioOutput::fill() const
{
    const QMutexLocker lock(&m_mutex);
    return m_fill;
}

void AudioOutput::awaitRelease()
{
    if (!lastClosed.isValid() || lastClosed.hasExpired(releaseTime))
        return;
    QEventLoop loop;
    QTimer::singleShot(static_cast<int>(releaseTime - lastClosed.elapsed()), &loop, &QEventLoop::quit);
    loop.exec();
}

void AudioOutput::close()
{
    if (!m_sink)
        return;
    // The sink's destructor runs an event loop, which calls drain() and reopen().
    m_isClosing = true;
    m_device = nullptr;
    std::unique_ptr<QAudioSink> sink = std::move(m_sink);
    sink->stop();
    sink.reset();
    m_isClosing = false;
    lastClosed.start();
}

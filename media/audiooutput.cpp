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

constexpr std::int32_t highestSampleRate = 384000; // beyond, it is no sound
constexpr qint64 letGoTime = 200;                  // milliseconds

QElapsedTimer lastClosed; ///< valid when an output was closed; main thread only

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
    look();
    const QMutexLocker lock(&m_mutex);
    if (m_device && m_fill > 0) {
        if (m_sink->bytesFree() < m_fill)
            qCDebug(logMedia)
                << "RealplayManager::onSlotAudioFrameUpdate m_audioSink->bytesFree() < m_audioBufferCurSize";
        m_device->write(reinterpret_cast<const char *>(m_buffer.get()), m_fill);
    }
    m_fill = 0;
}

void AudioOutput::look()
{
    // The server has ended the stream, with its output. The toolkit notices only by writing to it, and locks
    // up the whole process then, for good.
    if (m_sink && m_sink->bytesFree() < 0) {
        close();
        m_output.clear();
    }
    if (m_isClosing || !m_lastLook.isValid() || !m_lastLook.hasExpired(lookInterval))
        return;
    m_lastLook.start();
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
    m_lastLook.start();
    // The outputs may change before the first sound has told its rate.
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

void AudioOutput::letGo()
{
    if (!lastClosed.isValid() || lastClosed.hasExpired(letGoTime))
        return;
    QEventLoop loop;
    QTimer::singleShot(static_cast<int>(letGoTime - lastClosed.elapsed()), &loop, &QEventLoop::quit);
    loop.exec();
}

void AudioOutput::close()
{
    if (!m_sink)
        return;
    // The sink's destructor runs an event loop, in which sound arrives and outputs change.
    m_isClosing = true;
    m_device = nullptr;
    std::unique_ptr<QAudioSink> sink = std::move(m_sink);
    sink->stop();
    sink.reset();
    m_isClosing = false;
    lastClosed.start();
}

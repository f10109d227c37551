#include "media/videostream.h"

#include "device/registry/loginresult.h"
#include "media/logging.h"
#include "sdk/clock.h"
#include "sdk/neterror.h"
#include "sdk/netlibrary.h"

#include <QThread>

#include <utility>
#include <vector>

namespace {

constexpr std::uint32_t streamAsSent = 1; // flag of NetSetRealDataCallback

/// Whether the error concerns only the requested stream. The device responds and accepts the session.
bool concernsOneStream(std::uint32_t error)
{
    switch (static_cast<sdk::NetError>(error)) {
    case sdk::NetError::Refused:
    case sdk::NetError::DeviceBusy:
    case sdk::NetError::ConnectFailed:
    case sdk::NetError::Cancelled:
    case sdk::NetError::UnknownCertificate:
    case sdk::NetError::ChangedCertificate:
        return false;
    default:
        return !isDeviceAway(error) && !isLoginRefused(error);
    }
}

/// Why a device provides no stream; empty if the error has no description.
QString failureText(std::uint32_t error)
{
    const auto code = static_cast<sdk::NetError>(error);
    if (code == sdk::NetError::DeviceBusy)
        return resultName(deviceBusy);
    const LoginResult result = loginResultOf(error);
    const bool isNamed =
        result != LoginResult::NetworkFailure || isDeviceAway(error) || code == sdk::NetError::ConnectFailed;
    return isNamed ? resultName(resultCode(result)) : QString();
}

} // namespace

VideoStream::VideoStream(sdk::SdkLibraries libraries, QObject *parent)
    : QObject(parent), m_libraries(std::move(libraries)),
      m_decoder(std::make_shared<CDHDecoder>(this, m_libraries.decoder, m_libraries.clock)),
      m_audio(this, [this] { openAudio(); })
{
    connect(m_decoder.get(), &CDHDecoder::streamEnded, this, &VideoStream::noteEnd, Qt::QueuedConnection);
    m_watchTimer.setInterval(watchInterval);
    connect(&m_watchTimer, &QTimer::timeout, this, &VideoStream::watch);
}

VideoStream::~VideoStream()
{
    close();
}

std::shared_ptr<sdk::NetLibrary> VideoStream::usableNet() const
{
    return m_libraries.decoder ? m_libraries.net : nullptr;
}

bool VideoStream::start(const StreamOpening::Request &request)
{
    m_decoder->Start(); // if it fails, the stream runs and its data is dropped
    return finishStart(StreamOpening::open(usableNet().get(), request), request.channel);
}

void VideoStream::startInBackground(const StreamOpening::Request &request)
{
    m_decoder->Start();
    m_opening = std::make_unique<StreamOpening>(
        usableNet(), request, this, [this, channel = request.channel](const StreamOpening::Result &opened) {
            const bool isStreaming = finishStart(opened, channel);
            Q_EMIT startEnded(isStreaming, !isStreaming && concernsOneStream(opened.error));
        });
}

bool VideoStream::finishStart(const StreamOpening::Result &opened, std::int32_t channel)
{
    m_opening.reset();
    m_handle = opened.handle;
    qCDebug(logMedia) << "m_lRealHandle" << m_handle;
    if (m_handle == 0)
        return failStart("open stream fail", opened.error);

    qCDebug(logMedia) << "lRealHandle" << m_handle;
    m_watch.start(m_libraries.clock->now());
    if (!m_libraries.net->NetSetRealDataCallback(m_handle, &CDHDecoder::realDataCallback, m_decoder.get(),
                                                 streamAsSent)) {
        return failStart("open failed", 0); // the next stop() closes the stream
    }
    setText(QString());
    m_libraries.net->NetStreamFollowUp(m_handle, channel, 0);
    if (thread()->eventDispatcher()) // timers need one
        m_watchTimer.start();
    setIsStreaming(true);
    return true;
}

bool VideoStream::failStart(const char *logLine, std::uint32_t error)
{
    m_decoder->Stop();
    const QString reason = failureText(error);
    setText(reason.isEmpty() ? tr("播放失败") : tr("播放失败：%1").arg(reason));
    qCDebug(logMedia) << logLine;
    return false;
}

void VideoStream::stop()
{
    close();
    setIsStreaming(false);
}

void VideoStream::close()
{
    m_watchTimer.stop();
    m_opening.reset();
    m_frame.clearSize();
    if (m_handle != 0) {
        m_libraries.net->NetSetRealDataCallback(m_handle, nullptr, nullptr, streamAsSent);
        m_libraries.net->NetStopRealStream(m_handle);
    }
    m_decoder->Stop();
    m_handle = 0;
    m_frame.clear(); // a last frame may have arrived since, and the decoder has freed its bytes
}

void VideoStream::noteEnd(qint64 handle, sdk::StreamEndReason reason)
{
    if (handle == m_handle) // the report of an earlier stream may arrive late
        setText(endText(reason));
}

QString VideoStream::endText(sdk::StreamEndReason reason)
{
    switch (reason) {
    case sdk::StreamEndReason::ConnectionLost:
        return tr("与设备的连接已中断");
    case sdk::StreamEndReason::EndedByDevice:
        return tr("设备结束了视频流");
    case sdk::StreamEndReason::NoFrames:
        return tr("设备没有发送可显示的画面");
    case sdk::StreamEndReason::Refused:
        return tr("设备不再接受登录");
    case sdk::StreamEndReason::Malformed:
        return tr("设备发送的数据不是视频流");
    case sdk::StreamEndReason::Failed:
        break;
    }
    return tr("本机无法处理视频流");
}

void VideoStream::onDecodedFrame(const std::uint8_t *data, std::int32_t size, std::int32_t width,
                                 std::int32_t height, sdk::DecodedFrameType type, std::int32_t rate,
                                 std::int32_t /*reserved*/)
{
    switch (type) {
    case sdk::DecodedFrameType::Video:
        m_watch.noteFrame(m_libraries.clock->now());
        m_frame.set(data, size, width, height, m_decoder->frameColour());
        Q_EMIT frameArrived();
        return;
    case sdk::DecodedFrameType::Sound:
        if (!m_hasAudio)
            return;
        if (m_audio.noteSampleRate(rate))
            Q_EMIT sampleRateChanged();
        m_audio.push(data, size, [this] { Q_EMIT audioArrived(); });
        return;
    }
}

void VideoStream::watch()
{
    if (m_watch.hasTimedOut(m_libraries.clock->now()))
        Q_EMIT framesMissing();
}

bool VideoStream::saveFrame(const QString &path, int quality)
{
    // A copy: writing a file with the lock held would block the decoder.
    std::vector<std::uint8_t> bytes;
    std::int32_t width = 0;
    std::int32_t height = 0;
    sdk::FrameColour colour = {};
    m_frame.read([&](const VideoFrame &frame) {
        if (!frame.isComplete())
            return;
        bytes.assign(frame.data, frame.data + frame.size);
        width = frame.width;
        height = frame.height;
        colour = frame.colour;
    });
    return m_libraries.decoder &&
           m_libraries.decoder->DecoderSaveFrame(bytes.empty() ? nullptr : bytes.data(), width, height,
                                                 sdk::SavedImageType::Jpeg, quality,
                                                 path.toLocal8Bit().constData(), colour);
}

void VideoStream::setText(const QString &text)
{
    if (m_text == text)
        return;
    m_text = text;
    Q_EMIT textChanged();
}

void VideoStream::setIsStreaming(bool isStreaming)
{
    if (m_isStreaming == isStreaming)
        return;
    m_isStreaming = isStreaming;
    Q_EMIT isStreamingChanged();
}

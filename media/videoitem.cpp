#include "media/videoitem.h"

#include "device/registry/devicefactory.h"
#include "device/registry/devicefamily.h"
#include "device/registry/loginresult.h"
#include "device/registry/mapkeys.h"
#include "media/dhdecoder.h"
#include "media/itemrender.h"
#include "media/logging.h"
#include "sdk/clock.h"
#include "sdk/neterror.h"
#include "sdk/netlibrary.h"

#include <vector>

namespace {

constexpr std::uint32_t streamAsSent = 1; // flag of NetSetRealDataCallback

sdk::SdkLibraries &registeredLibraries()
{
    static sdk::SdkLibraries libraries;
    return libraries;
}

/// What an item works with; its clock is never null.
sdk::SdkLibraries itemLibraries()
{
    sdk::SdkLibraries libraries = registeredLibraries();
    if (!libraries.clock)
        libraries.clock = std::make_shared<sdk::SystemClock>();
    return libraries;
}

/// Whether nothing speaks against another stream of the channel: the device answers, and refuses this one
/// only.
bool isOfOneStream(std::uint32_t error)
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

/// Why a device gives no stream; empty for an error without a meaning of its own.
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

void VideoItem::registerLibraries(const sdk::SdkLibraries &libraries)
{
    registeredLibraries() = libraries;
}

VideoItem::VideoItem(QQuickItem *parent)
    : QQuickFramebufferObject(parent), m_libraries(itemLibraries()),
      m_decoder(std::make_shared<CDHDecoder>(this, m_libraries.decoder, m_libraries.clock)),
      m_audio(this, [this] { onAudioFormatChanged(); })
{
    connect(this, &QQuickItem::widthChanged, this, &VideoItem::onSizeChanged);
    connect(this, &QQuickItem::heightChanged, this, &VideoItem::onSizeChanged);
    // Queued also for an item that gets its sound on its own thread: it is emitted with the buffer locked.
    connect(this, &VideoItem::sigAudioDataChanged, this, &VideoItem::onSigAudioDataChanged,
            Qt::QueuedConnection);
    connect(this, &VideoItem::sigSampleRateChanged, this, &VideoItem::onAudioFormatChanged);
    connect(m_decoder.get(), &CDHDecoder::streamEnded, this, &VideoItem::noteEnd, Qt::QueuedConnection);
    setMirrorVertically(true); // OpenGL's lines go upward
    m_watchTimer.setInterval(watchInterval);
    connect(&m_watchTimer, &QTimer::timeout, this, &VideoItem::watch);
}

VideoItem::~VideoItem()
{
    disconnect(m_repaint);
    closeStream();
}

bool VideoItem::start()
{
    return prepare() &&
           take(StreamOpening::ask(m_libraries.decoder ? m_libraries.net.get() : nullptr, order()));
}

void VideoItem::startInBackground()
{
    if (!prepare())
        return;
    m_opening = std::make_unique<StreamOpening>(
        m_libraries.decoder ? m_libraries.net : nullptr, order(), this,
        [this](const StreamOpening::Result &opened) {
            const bool isStreaming = take(opened);
            Q_EMIT startEnded(isStreaming, !isStreaming && isOfOneStream(opened.error));
        });
}

StreamOpening::Order VideoItem::order() const
{
    return {.loginHandle = m_loginHandle,
            .channel = m_channelId,
            .kind = static_cast<sdk::LiveStreamKind>(m_streamKind)};
}

bool VideoItem::prepare()
{
    qCDebug(logMedia) << "VideoItem::start()";
    if (m_streamHandle != 0 || m_opening)
        stop();
    CDeviceFactory *factory = CDeviceFactory::getinstance();
    if (!factory) {
        qCDebug(logMedia) << "CDeviceFactory::getinstance() fail";
        return false;
    }
    const qint64 loginHandle =
        m_session != 0 ? m_session : factory->getConfigData(dhFamily, SessionKey::loginHandle).toLongLong();
    if (loginHandle != m_loginHandle) {
        m_loginHandle = loginHandle;
        Q_EMIT isLoginHandleChanged();
    }
    qCDebug(logMedia) << "m_loginHandle" << m_loginHandle;
    m_decoder->Start(); // without it the stream runs all the same, and its data are dropped
    return true;
}

bool VideoItem::take(const StreamOpening::Result &opened)
{
    m_opening.reset();
    m_streamHandle = opened.handle;
    qCDebug(logMedia) << "m_lRealHandle" << m_streamHandle;
    if (m_streamHandle == 0)
        return failToOpen("open stream fail", opened.error);

    qCDebug(logMedia) << "lRealHandle" << m_streamHandle;
    m_watch.begin(m_libraries.clock->now());
    if (!m_libraries.net->NetSetRealDataCallback(m_streamHandle, &CDHDecoder::realDataCallback,
                                                 m_decoder.get(), streamAsSent)) {
        return failToOpen("open failed", 0); // the next stop() closes the stream
    }
    setText(QString());
    m_libraries.net->NetStreamFollowUp(m_streamHandle, m_channelId, 0);
    m_repaint = connect(this, &VideoItem::sigVideoDataChanged, this, &VideoItem::onSigVideoDataChanged);
    m_watchTimer.start();
    setIsStreaming(true);
    update(); // a picture may have come before the connection
    return true;
}

bool VideoItem::failToOpen(const char *reason, std::uint32_t error)
{
    m_decoder->Stop();
    const QString why = failureText(error);
    setText(why.isEmpty() ? tr("播放失败") : tr("播放失败：%1").arg(why));
    qCDebug(logMedia) << reason;
    return false;
}

void VideoItem::noteEnd(qint64 streamHandle, sdk::StreamEndReason reason)
{
    if (streamHandle == m_streamHandle) // else it was replaced since
        setText(endText(reason));
}

QString VideoItem::endText(sdk::StreamEndReason reason)
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

void VideoItem::stop()
{
    disconnect(m_repaint);
    closeStream();
    setIsStreaming(false);
    tellPictureSize();
    update();
}

void VideoItem::closeStream()
{
    qCDebug(logMedia) << "VideoItem::stop()";
    m_watchTimer.stop();
    m_opening.reset();
    m_picture.clearSize();
    if (m_streamHandle != 0) {
        m_libraries.net->NetSetRealDataCallback(m_streamHandle, nullptr, nullptr, streamAsSent);
        m_libraries.net->NetStopRealStream(m_streamHandle);
    }
    m_decoder->Stop();
    m_streamHandle = 0;
    m_picture.forget(); // a last one may have come meanwhile; the port's pictures have ended
}

void VideoItem::onDecodedFrame(const std::uint8_t *data, std::int32_t size, std::int32_t width,
                               std::int32_t height, sdk::DecodedFrameType type, std::int32_t rate,
                               std::int32_t /*reserved*/)
{
    switch (type) {
    case sdk::DecodedFrameType::Picture:
        m_watch.notePicture(m_libraries.clock->now());
        m_picture.set(data, size, width, height, m_decoder->pictureColour());
        Q_EMIT sigVideoDataChanged();
        return;
    case sdk::DecodedFrameType::Sound:
        if (!m_isAudioOutput)
            return;
        if (m_audio.noteSampleRate(rate))
            Q_EMIT sigSampleRateChanged();
        m_audio.push(data, size, [this] { Q_EMIT sigAudioDataChanged(); });
        return;
    }
}

void VideoItem::onSigVideoDataChanged()
{
    tellPictureSize();
    update();
}

void VideoItem::onSizeChanged()
{
    zoom({width() / 2, height() / 2}, 0);
}

void VideoItem::onSigAudioDataChanged()
{
    m_audio.drain();
}

void VideoItem::onAudioFormatChanged()
{
    m_audio.reopen();
}

void VideoItem::changeScale(double facotr, QPointF center)
{
    zoom(center, facotr);
}

void VideoItem::drag(double deltx, double delty)
{
    m_geometry.drag(deltx, delty, size());
    update();
}

void VideoItem::zoom(const QPointF &anchor, double steps)
{
    const int oldLevel = m_geometry.level();
    if (steps == 0)
        m_geometry.zoomTo(oldLevel, anchor, size());
    else
        m_geometry.zoomBy(steps, anchor, size());
    if (m_geometry.level() != oldLevel)
        Q_EMIT zoomLevelChanged();
    update();
}

void VideoItem::watch()
{
    if (m_watch.isOverdue(m_libraries.clock->now()))
        Q_EMIT videoErrorSig();
}

QVariantMap VideoItem::figures() const
{
    const StreamFigures figures = m_decoder->figures();
    return {
        {QStringLiteral("width"), std::max(m_pictureSize.width(), 0)},
        {QStringLiteral("height"), std::max(m_pictureSize.height(), 0)},
        {QStringLiteral("codec"), figures.videoCodec},
        {QStringLiteral("audioCodec"), figures.audioCodec},
        {QStringLiteral("rate"), figures.picturesASecond},
        {QStringLiteral("bitRate"), figures.kilobitsASecond},
        {QStringLiteral("waiting"), figures.waitingBytes},
        {QStringLiteral("damages"), figures.damages},
        {QStringLiteral("skipped"), figures.skippedPictures},
    };
}

bool VideoItem::savePicture(const QString &path, int quality)
{
    // A copy: the decoder must not wait for a file, and the library is not called with the picture locked.
    std::vector<std::uint8_t> bytes;
    std::int32_t width = 0;
    std::int32_t height = 0;
    sdk::PictureColour colour = {};
    m_picture.lookAt([&](const DecodedPicture &picture) {
        if (!picture.isWhole())
            return;
        bytes.assign(picture.data, picture.data + picture.size);
        width = picture.width;
        height = picture.height;
        colour = picture.colour;
    });
    return m_libraries.decoder &&
           m_libraries.decoder->DecoderSaveFrame(bytes.empty() ? nullptr : bytes.data(), width, height,
                                                 sdk::SavedPictureType::Jpeg, quality,
                                                 path.toLocal8Bit().constData(), colour);
}

void VideoItem::tellPictureSize()
{
    const QSize size =
        m_picture.lookAt([](const DecodedPicture &picture) { return QSize(picture.width, picture.height); });
    if (size == m_pictureSize)
        return;
    m_pictureSize = size;
    Q_EMIT videoInfoChangedSig();
}

void VideoItem::setIsAudioOutput(bool isAudioOutput)
{
    if (m_isAudioOutput.exchange(isAudioOutput) != isAudioOutput)
        Q_EMIT isAudioOutputChanged();
}

void VideoItem::setFillMode(FillModeType fillMode)
{
    if (m_fillMode == fillMode)
        return;
    m_fillMode = fillMode;
    Q_EMIT fillModeChanged();
    update();
}

void VideoItem::setChannelId(int channelId)
{
    if (m_channelId == channelId)
        return;
    m_channelId = channelId;
    Q_EMIT channelIdChanged();
}

void VideoItem::setSession(qint64 session)
{
    if (m_session == session)
        return;
    m_session = session;
    Q_EMIT sessionChanged();
}

void VideoItem::setUrl(const QString &url)
{
    if (m_url == url)
        return;
    m_url = url;
    Q_EMIT urlChanged();
}

void VideoItem::setStreamKind(StreamKind streamKind)
{
    if (m_streamKind == streamKind)
        return;
    m_streamKind = streamKind;
    Q_EMIT streamKindChanged();
}

void VideoItem::setText(const QString &text)
{
    if (m_text == text)
        return;
    m_text = text;
    Q_EMIT textChanged();
}

void VideoItem::setIsStreaming(bool isStreaming)
{
    if (m_isStreaming == isStreaming)
        return;
    m_isStreaming = isStreaming;
    Q_EMIT isStreamingChanged();
}

QString VideoItem::problemText() const
{
    switch (m_problem) {
    case PictureProblem::None:
        return {};
    case PictureProblem::NoShaders:
        return tr("无法显示画面：Shaders 文件夹中的文件缺失或无法使用");
    case PictureProblem::TooLarge:
        return tr("无法显示画面：显卡不支持这样大的画面");
    }
    return {};
}

void VideoItem::setPictureProblem(PictureProblem problem)
{
    if (m_problem == problem)
        return;
    m_problem = problem;
    Q_EMIT problemTextChanged();
}

VideoItem::Renderer *VideoItem::createRenderer() const
{
    return new ItemRender;
}

#include "media/videoitem.h"

#include "device/registry/devicefactory.h"
#include "device/registry/devicefamily.h"
#include "device/registry/mapkeys.h"
#include "media/itemrender.h"
#include "media/logging.h"
#include "sdk/clock.h"

#include <algorithm>
#include <memory>

namespace {

sdk::SdkLibraries &registeredLibraries()
{
    static sdk::SdkLibraries libraries;
    return libraries;
}

/// The registered libraries with a clock, which VideoStream requires.
sdk::SdkLibraries itemLibraries()
{
    sdk::SdkLibraries libraries = registeredLibraries();
    if (!libraries.clock)
        libraries.clock = std::make_shared<sdk::SystemClock>();
    return libraries;
}

} // namespace

void VideoItem::registerLibraries(const sdk::SdkLibraries &libraries)
{
    registeredLibraries() = libraries;
}

VideoItem::VideoItem(QQuickItem *parent) : QQuickFramebufferObject(parent), m_stream(itemLibraries())
{
    connect(this, &QQuickItem::widthChanged, this, &VideoItem::onSizeChanged);
    connect(this, &QQuickItem::heightChanged, this, &VideoItem::onSizeChanged);
    // Direct: these are forwarded on the decoder's thread.
    connect(&m_stream, &VideoStream::frameArrived, this, &VideoItem::sigVideoDataChanged,
            Qt::DirectConnection);
    connect(&m_stream, &VideoStream::audioArrived, this, &VideoItem::sigAudioDataChanged,
            Qt::DirectConnection);
    connect(&m_stream, &VideoStream::sampleRateChanged, this, &VideoItem::sigSampleRateChanged,
            Qt::DirectConnection);
    // Queued even if a caller delivers audio on the item's thread: the audio buffer is locked during the
    // signal.
    connect(this, &VideoItem::sigAudioDataChanged, this, &VideoItem::onSigAudioDataChanged,
            Qt::QueuedConnection);
    connect(this, &VideoItem::sigSampleRateChanged, this, &VideoItem::onAudioFormatChanged);
    connect(&m_stream, &VideoStream::textChanged, this, &VideoItem::textChanged);
    connect(&m_stream, &VideoStream::isStreamingChanged, this, &VideoItem::isStreamingChanged);
    connect(&m_stream, &VideoStream::framesMissing, this, &VideoItem::videoErrorSig);
    connect(&m_stream, &VideoStream::startEnded, this, [this](bool isStreaming, bool mayTryOther) {
        if (isStreaming)
            showFrames();
        Q_EMIT startEnded(isStreaming, mayTryOther);
    });
    setMirrorVertically(true); // OpenGL's lines are in upward order
}

VideoItem::~VideoItem()
{
    // The item emits no more signals. The decoder's thread may be in one until stop() returns.
    m_stream.disconnect(this);
    m_stream.stop();
}

bool VideoItem::start()
{
    if (!prepareStart() || !m_stream.start(request()))
        return false;
    showFrames();
    return true;
}

void VideoItem::startInBackground()
{
    if (prepareStart())
        m_stream.startInBackground(request());
}

StreamOpening::Request VideoItem::request() const
{
    return {.loginHandle = m_loginHandle,
            .channel = m_channelId,
            .kind = static_cast<sdk::LiveStreamKind>(m_streamKind)};
}

bool VideoItem::prepareStart()
{
    qCDebug(logMedia) << "VideoItem::start()";
    if (m_stream.isOpen())
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
    return true;
}

void VideoItem::showFrames()
{
    m_repaint = connect(this, &VideoItem::sigVideoDataChanged, this, &VideoItem::onSigVideoDataChanged);
    onSigVideoDataChanged(); // a frame may have arrived before the connection
}

void VideoItem::stop()
{
    disconnect(m_repaint);
    qCDebug(logMedia) << "VideoItem::stop()";
    m_stream.stop();
    updateFrameSize();
    update();
}

void VideoItem::onSigVideoDataChanged()
{
    updateFrameSize();
    update();
}

void VideoItem::onSizeChanged()
{
    zoom({width() / 2, height() / 2}, 0);
}

void VideoItem::onSigAudioDataChanged()
{
    m_stream.playAudio();
}

void VideoItem::onAudioFormatChanged()
{
    m_stream.openAudio();
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

QVariantMap VideoItem::figures() const
{
    const StreamFigures figures = m_stream.figures();
    return {
        {QStringLiteral("width"), std::max(m_frameSize.width(), 0)},
        {QStringLiteral("height"), std::max(m_frameSize.height(), 0)},
        {QStringLiteral("codec"), figures.videoCodec},
        {QStringLiteral("audioCodec"), figures.audioCodec},
        {QStringLiteral("rate"), figures.framesPerSecond},
        {QStringLiteral("bitRate"), figures.kilobitsPerSecond},
        {QStringLiteral("waiting"), figures.waitingBytes},
        {QStringLiteral("damages"), figures.damages},
        {QStringLiteral("skipped"), figures.skippedFrames},
    };
}

void VideoItem::updateFrameSize()
{
    const QSize size =
        currentFrame().read([](const VideoFrame &frame) { return QSize(frame.width, frame.height); });
    if (size == m_frameSize)
        return;
    m_frameSize = size;
    Q_EMIT videoInfoChangedSig();
}

void VideoItem::setIsAudioOutput(bool isAudioOutput)
{
    if (m_stream.setHasAudio(isAudioOutput))
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

FrameFill VideoItem::frameFill() const
{
    return m_fillMode == Stretch ? FrameFill::Stretch : FrameFill::PreserveAspectFit;
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

QString VideoItem::problemText() const
{
    switch (m_drawingError) {
    case DrawingError::None:
        return {};
    case DrawingError::NoShaders:
        return tr("无法显示画面：Shaders 文件夹中的文件缺失或无法使用");
    case DrawingError::TooLarge:
        return tr("无法显示画面：显卡不支持这样大的画面");
    }
    return {};
}

void VideoItem::setDrawingError(DrawingError error)
{
    if (m_drawingError == error)
        return;
    m_drawingError = error;
    Q_EMIT problemTextChanged();
}

VideoItem::Renderer *VideoItem::createRenderer() const
{
    return new ItemRender;
}

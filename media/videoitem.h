#pragma once

#include "media/drawingerror.h"
#include "media/drawnvideo.h"
#include "media/videostream.h"
#include "media/viewgeometry.h"
#include "sdk/sdklibraries.h"
#include "sdk/streamblocks.h"

#include <QQuickFramebufferObject>
#include <QSize>
#include <QString>
#include <QVariantMap>
#include <QtQml/qqmlregistration.h>

/// Draws the live stream of one channel with zoom and pan, and plays its audio if it is switched on. The
/// session is the current one of the back end or a given one. The item is transparent without a frame.
///
/// Lives on the main thread.
class VideoItem : public QQuickFramebufferObject, public DrawnVideo
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool isAudioOutput READ isAudioOutput WRITE setIsAudioOutput NOTIFY isAudioOutputChanged)
    Q_PROPERTY(qint64 loginHandle READ loginHandle NOTIFY isLoginHandleChanged)
    Q_PROPERTY(FillModeType fillMode READ fillMode WRITE setFillMode NOTIFY fillModeChanged)
    Q_PROPERTY(int channelId READ channelId WRITE setChannelId NOTIFY channelIdChanged)
    Q_PROPERTY(QString url READ url WRITE setUrl NOTIFY urlChanged)
    Q_PROPERTY(QString text READ text NOTIFY textChanged)
    Q_PROPERTY(StreamKind streamKind READ streamKind WRITE setStreamKind NOTIFY streamKindChanged)
    Q_PROPERTY(QSize frameSize READ frameSize NOTIFY videoInfoChangedSig)
    Q_PROPERTY(bool hasFrame READ hasFrame NOTIFY videoInfoChangedSig)
    Q_PROPERTY(int zoomLevel READ zoomLevel NOTIFY zoomLevelChanged)
    Q_PROPERTY(bool isStreaming READ isStreaming NOTIFY isStreamingChanged)
    Q_PROPERTY(QString problemText READ problemText NOTIFY problemTextChanged)
    Q_PROPERTY(double session READ sessionNumber WRITE setSessionNumber NOTIFY sessionChanged)
public:
    enum FillModeType
    {
        Stretch,           ///< the frame fills the item
        PreserveAspectFit, ///< the frame is as large as possible with its aspect ratio
    };
    Q_ENUM(FillModeType)

    enum StreamKind
    {
        Main = static_cast<int>(sdk::LiveStreamKind::Main),
        Sub = static_cast<int>(sdk::LiveStreamKind::Sub),
    };
    Q_ENUM(StreamKind)

    /// Sets the libraries of all items created afterwards, since QML creates items without arguments. Called
    /// before the first item is created, and with empty libraries after the last one is destroyed. Without
    /// libraries every start fails.
    static void registerLibraries(const sdk::SdkLibraries &libraries);

    explicit VideoItem(QQuickItem *parent = nullptr);

    /// Closes the stream.
    ~VideoItem() override;

    [[nodiscard]] bool isAudioOutput() const { return m_stream.hasAudio(); }
    void setIsAudioOutput(bool isAudioOutput);
    /// The session of the last start; 0 for none.
    [[nodiscard]] qint64 loginHandle() const { return m_loginHandle; }
    [[nodiscard]] FillModeType fillMode() const { return m_fillMode; }
    void setFillMode(FillModeType fillMode);
    /// The channel of the next start, from 0; -1 for none.
    [[nodiscard]] int channelId() const { return m_channelId; }
    void setChannelId(int channelId);
    /// The session handle of the next start; 0 for the current session of the back end.
    [[nodiscard]] qint64 session() const { return m_session; }
    void setSession(qint64 session);
    /// The same for QML, which represents integers up to 2^53.
    [[nodiscard]] double sessionNumber() const { return static_cast<double>(m_session); }
    void setSessionNumber(double session) { setSession(static_cast<qint64>(session)); }
    /// Not used by the item; free for QML.
    [[nodiscard]] QString url() const { return m_url; }
    void setUrl(const QString &url);
    /// Why the last start failed or the stream has ended, in the user's language; empty otherwise.
    [[nodiscard]] QString text() const { return m_stream.text(); }
    /// The stream of the channel that the next start requests.
    [[nodiscard]] StreamKind streamKind() const { return m_streamKind; }
    void setStreamKind(StreamKind streamKind);
    /// Size of the current frame in pixels; -1 x -1 before the first frame, 0 x 0 after stop().
    [[nodiscard]] QSize frameSize() const { return m_frameSize; }
    [[nodiscard]] bool hasFrame() const { return !m_frameSize.isEmpty(); }
    [[nodiscard]] int zoomLevel() const { return m_geometry.level(); } ///< 0 to ViewGeometry::maximumLevel
    /// True from a successful start to stop().
    [[nodiscard]] bool isStreaming() const { return m_stream.isStreaming(); }
    /// Why the current frame cannot be drawn, in the user's language; empty otherwise.
    [[nodiscard]] QString problemText() const;

    /// "width" and "height" of the frame in pixels, 0 without a frame; "codec" and "audioCodec", empty if
    /// missing or unknown; "rate" in frames per second and "bitRate" in kbit/s during the last second;
    /// "waiting": bytes that are not decoded yet; "damages" of the stream and "skipped" late frames since the
    /// start.
    Q_INVOKABLE [[nodiscard]] QVariantMap figures() const;

    // For the renderer.
    [[nodiscard]] const ViewGeometry &geometry() const override { return m_geometry; }
    [[nodiscard]] FrameFill frameFill() const override;
    [[nodiscard]] CurrentFrame &currentFrame() override { return m_stream.currentFrame(); }
    [[nodiscard]] DrawingError drawingError() const override { return m_drawingError; }
    void setDrawingError(DrawingError error) override;

    Renderer *createRenderer() const override;

Q_SIGNALS:
    // The order of the signals is fixed; new ones are appended.

    void isAudioOutputChanged();
    void isLoginHandleChanged();
    void videoInfoChangedSig(); ///< frameSize() or hasFrame() has changed
    void fillModeChanged();
    void channelIdChanged();
    void videoErrorSig(); ///< the stream delivers no frames; it may still recover
    void urlChanged();
    void sigVideoDataChanged(); ///< decoder's thread: a frame has arrived
    void sigAudioDataChanged(); ///< decoder's thread: audio has arrived
    void textChanged();
    void sigSampleRateChanged(); ///< decoder's thread
    void streamKindChanged();
    void zoomLevelChanged();
    void isStreamingChanged();
    void problemTextChanged();
    /// Emitted after startInBackground(). `mayTryOther`: the device responds, and may accept a request for
    /// the other stream of the channel.
    void startEnded(bool isStreaming, bool mayTryOther);
    void sessionChanged();

public Q_SLOTS:
    // The order of the slots is fixed; new ones are appended.

    /// Closes an open stream and starts the stream of the channel. Blocks until the device has responded; the
    /// window uses startInBackground(). Returns false on failure, with the reason in `text`.
    bool start();

    /// Closes the stream or cancels a start, and clears the item.
    void stop();

    void onSigVideoDataChanged(); ///< repaints
    void onSizeChanged();         ///< zooms about the centre
    void onSigAudioDataChanged(); ///< plays the buffered audio
    void onAudioFormatChanged();  ///< opens the audio output with the current sample rate

    /// Zooms by `facotr` notches of a mouse wheel (positive: in), a level for each and at least one, about
    /// the point `center` in the item's pixels.
    void changeScale(double facotr, QPointF center);

    /// Pans by a distance in the item's pixels.
    void drag(double deltx, double delty);

    /// As start(), but does not block. Emits startEnded() when the device has responded, unless stop() or
    /// another start is called first.
    void startInBackground();

private:
    bool prepareStart();
    [[nodiscard]] StreamOpening::Request request() const;
    void showFrames();
    void updateFrameSize();
    void zoom(const QPointF &anchor, double steps);

    VideoStream m_stream;
    ViewGeometry m_geometry;
    QMetaObject::Connection m_repaint; ///< while the stream runs
    qint64 m_session = 0;
    qint64 m_loginHandle = 0;
    FillModeType m_fillMode = PreserveAspectFit;
    StreamKind m_streamKind = Main;
    int m_channelId = -1;
    QString m_url;
    QSize m_frameSize; ///< as last reported by videoInfoChangedSig()
    DrawingError m_drawingError = DrawingError::None;
};

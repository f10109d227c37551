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
/// channel, the session and the kind of stream are those at the call of start(): a later change does not
/// affect a running stream. The item is transparent without a frame.
///
/// Lives on the main thread. The zoom and the centre remain from one stream to the next.
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
    /// before the first item is created, and with empty libraries after the last one is destroyed. Without a
    /// network or decoder library every start fails. Without a clock, items use the system's clock.
    static void registerLibraries(const sdk::SdkLibraries &libraries);

    explicit VideoItem(QQuickItem *parent = nullptr);

    /// Closes the stream.
    ~VideoItem() override;

    /// Whether the audio of the stream is played; initially false. It may change while a stream runs.
    [[nodiscard]] bool isAudioOutput() const { return m_stream.hasAudio(); }
    void setIsAudioOutput(bool isAudioOutput);
    /// The handle of the session that the last start used, also after stop(); 0 for none.
    [[nodiscard]] qint64 loginHandle() const { return m_loginHandle; }
    [[nodiscard]] FillModeType fillMode() const { return m_fillMode; }
    void setFillMode(FillModeType fillMode);
    /// The channel of the next start, from 0. With -1, the initial value, a start fails.
    [[nodiscard]] int channelId() const { return m_channelId; }
    void setChannelId(int channelId);
    /// The session handle of the next start. With 0, the initial value, the next start uses the back end's
    /// current session.
    [[nodiscard]] qint64 session() const { return m_session; }
    void setSession(qint64 session);
    /// The same for QML, which represents integers up to 2^53.
    [[nodiscard]] double sessionNumber() const { return static_cast<double>(m_session); }
    void setSessionNumber(double session) { setSession(static_cast<qint64>(session)); }
    /// A string of the QML code, which the item does not use.
    [[nodiscard]] QString url() const { return m_url; }
    void setUrl(const QString &url);
    /// Why the last start failed or the stream has ended, in the user's language. It stays until the next
    /// successful start, also after stop(); empty otherwise.
    [[nodiscard]] QString text() const { return m_stream.text(); }
    /// The stream of the channel that the next start requests; initially Main.
    [[nodiscard]] StreamKind streamKind() const { return m_streamKind; }
    void setStreamKind(StreamKind streamKind);
    /// Size of the current frame in pixels. -1 x -1 until the first frame or the first stop(); 0 x 0 from
    /// stop() to the next frame. It is not cleared when the device ends the stream.
    [[nodiscard]] QSize frameSize() const { return m_frameSize; }
    [[nodiscard]] bool hasFrame() const { return !m_frameSize.isEmpty(); }
    [[nodiscard]] int zoomLevel() const { return m_geometry.level(); } ///< 0 to ViewGeometry::maximumLevel
    /// True from a successful start to stop(), also after the device has ended the stream.
    [[nodiscard]] bool isStreaming() const { return m_stream.isStreaming(); }
    /// Why the current frame cannot be drawn, in the user's language; empty otherwise.
    [[nodiscard]] QString problemText() const;

    /// The keys and values:
    /// - "width", "height": of the frame in pixels (int); 0 without a frame
    /// - "codec", "audioCodec": as in DecoderStatus (string); empty if missing or unknown
    /// - "rate": frames per second during the last second (double)
    /// - "bitRate": received kbit/s during the last second (double)
    /// - "waiting": number of bytes that were received and not decoded yet
    /// - "damages": number of damaged parts of the stream since the start
    /// - "skipped": number of frames that were dropped as late since the start
    ///
    /// The strings are empty and the numbers 0 without an open stream.
    Q_INVOKABLE [[nodiscard]] QVariantMap figures() const;

    // For ItemRender, as DrawnVideo specifies.
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
    void videoErrorSig(); ///< no frame for 8 s since the start, or for 4 s since the last one; once each
    void urlChanged();
    void sigVideoDataChanged(); ///< emitted on the decoder's thread: a frame has arrived
    /// Emitted on the decoder's thread, with the audio buffer locked: audio has arrived. A connection must be
    /// queued.
    void sigAudioDataChanged();
    void textChanged();
    void sigSampleRateChanged(); ///< emitted on the decoder's thread: audio has another sample rate
    void streamKindChanged();
    void zoomLevelChanged();
    void isStreamingChanged();
    void problemTextChanged();
    /// The end of startInBackground(). `isStreaming` is its result: false on failure, with the reason in
    /// `text`. `mayTryOther`: the start has failed for this stream only, so that a request for the other
    /// stream of the channel may succeed.
    void startEnded(bool isStreaming, bool mayTryOther);
    void sessionChanged();

public Q_SLOTS:
    // The order of the slots is fixed; new ones are appended.

    /// Closes an open stream and starts the stream of the channel. Blocks until the device has responded; the
    /// window uses startInBackground(). Returns false on failure, with the reason in `text`. Without a device
    /// factory it returns false and does not change `text`.
    bool start();

    /// Closes the stream or cancels a start in the background, and makes the item transparent. startEnded()
    /// is not emitted for a cancelled start. `text` does not change.
    void stop();

    // Called by the item itself after its signals.
    void onSigVideoDataChanged(); ///< updates frameSize() and repaints
    void onSizeChanged();         ///< repaints with the same zoom level and the same centre
    void onSigAudioDataChanged(); ///< plays the buffered audio
    void onAudioFormatChanged();  ///< opens the audio output with the current sample rate

    /// Changes the zoom level by `facotr` (notches of a mouse wheel, positive: in), rounded to a whole number
    /// of levels and to at least one. No effect for 0. The point of the image at `center`, in pixels of the
    /// item, stays there if possible.
    void changeScale(double facotr, QPointF center);

    /// Moves the image by a distance in pixels of the item, as far as ViewGeometry permits.
    void drag(double deltx, double delty);

    /// As start(), but does not block. Emits startEnded() when the device has responded, unless stop() or
    /// another start is called first. Without a device factory it emits nothing.
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

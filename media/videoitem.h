#pragma once

#include "media/audiooutput.h"
#include "media/currentpicture.h"
#include "media/pictureproblem.h"
#include "media/streamopening.h"
#include "media/streamwatch.h"
#include "media/videodataobserver.h"
#include "media/viewgeometry.h"
#include "sdk/sdklibraries.h"
#include "sdk/streamblocks.h"

#include <QQuickFramebufferObject>
#include <QSize>
#include <QString>
#include <QTimer>
#include <QVariantMap>
#include <QtQml/qqmlregistration.h>

#include <atomic>
#include <cstdint>
#include <memory>

class CDHDecoder;

/// Shows one channel of the device that the user is logged in to, or of another session, with sound when it
/// is asked for: opens the live stream, has it decoded, and draws the pictures with zoom and pan. It is
/// transparent without a picture.
///
/// Everything is called on the item's thread. A view that is never shown may live on any thread; it has
/// neither sound nor, without an event loop, signals of its own thread.
class VideoItem : public QQuickFramebufferObject, public VideoDataObserver
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
    Q_PROPERTY(QSize pictureSize READ pictureSize NOTIFY videoInfoChangedSig)
    Q_PROPERTY(bool hasPicture READ hasPicture NOTIFY videoInfoChangedSig)
    Q_PROPERTY(int zoomLevel READ zoomLevel NOTIFY zoomLevelChanged)
    Q_PROPERTY(bool isStreaming READ isStreaming NOTIFY isStreamingChanged)
    Q_PROPERTY(QString problemText READ problemText NOTIFY problemTextChanged)
    Q_PROPERTY(double session READ sessionNumber WRITE setSessionNumber NOTIFY sessionChanged)
public:
    enum FillModeType
    {
        Stretch,           ///< the picture fills the item
        PreserveAspectFit, ///< it is as large as fits, in its own shape
    };
    Q_ENUM(FillModeType)

    enum StreamKind
    {
        Main = static_cast<int>(sdk::LiveStreamKind::Main),
        Sub = static_cast<int>(sdk::LiveStreamKind::Sub),
    };
    Q_ENUM(StreamKind)

    /// The libraries of every item that is made from then on. To be called before the first one is made, and
    /// with empty ones after the last has gone: this is how the scene can make items. Without libraries a
    /// start fails.
    static void registerLibraries(const sdk::SdkLibraries &libraries);

    explicit VideoItem(QQuickItem *parent = nullptr);

    /// Ends the stream as stop() does.
    ~VideoItem() override;

    [[nodiscard]] bool isAudioOutput() const { return m_isAudioOutput; }
    void setIsAudioOutput(bool isAudioOutput);
    /// Of the session that the stream was last started with, 0 for none.
    [[nodiscard]] qint64 loginHandle() const { return m_loginHandle; }
    [[nodiscard]] FillModeType fillMode() const { return m_fillMode; }
    void setFillMode(FillModeType fillMode);
    /// The channel that the next start() shows, from 0; -1 for none yet.
    [[nodiscard]] int channelId() const { return m_channelId; }
    void setChannelId(int channelId);
    /// Handle of the session that the next start() uses, 0 for the current one of the back end.
    [[nodiscard]] qint64 session() const { return m_session; }
    void setSession(qint64 session);
    /// The same for the scene, whose whole numbers go up to 2^53.
    [[nodiscard]] double sessionNumber() const { return static_cast<double>(m_session); }
    void setSessionNumber(double session) { setSession(static_cast<qint64>(session)); }
    /// Free for the scene.
    [[nodiscard]] QString url() const { return m_url; }
    void setUrl(const QString &url);
    /// What there is to say to the user: that the last start failed, why the stream has ended, or nothing.
    [[nodiscard]] QString text() const { return m_text; }
    /// Which stream of the channel the next start() shows.
    [[nodiscard]] StreamKind streamKind() const { return m_streamKind; }
    void setStreamKind(StreamKind streamKind);
    /// -1 x -1 before the first picture, 0 x 0 when the stream has ended.
    [[nodiscard]] QSize pictureSize() const { return m_pictureSize; }
    [[nodiscard]] bool hasPicture() const { return !m_pictureSize.isEmpty(); }
    [[nodiscard]] int zoomLevel() const { return m_geometry.level(); }
    /// True from a successful start() to stop().
    [[nodiscard]] bool isStreaming() const { return m_isStreaming; }
    /// Why a picture that has come cannot be drawn, for the user; empty when it can.
    [[nodiscard]] QString problemText() const;

    /// "width", "height" of the picture; "codec" and "audioCodec", empty when there is none or not yet;
    /// "rate" in pictures a second and "bitRate" in kbit/s during the last second; "waiting" bytes that are
    /// not decoded yet; "damages" of the stream and "skipped" pictures, which were too late, since its start.
    Q_INVOKABLE [[nodiscard]] QVariantMap figures() const;

    /// Writes the current picture to a file as JPEG, replacing it, with a quality of 1 to 100. False while
    /// there is no picture, and when the file cannot be written.
    bool savePicture(const QString &path, int quality);

    [[nodiscard]] const ViewGeometry &geometry() const { return m_geometry; }

    /// For the drawing side.
    [[nodiscard]] CurrentPicture &currentPicture() { return m_picture; }
    [[nodiscard]] PictureProblem pictureProblem() const { return m_problem; }
    void setPictureProblem(PictureProblem problem);

    Renderer *createRenderer() const override;

    void onDecodedFrame(const std::uint8_t *data, std::int32_t size, std::int32_t width, std::int32_t height,
                        sdk::DecodedFrameType type, std::int32_t rate, std::int32_t reserved) override;

Q_SIGNALS:
    // The order is kept, new ones go to the end.

    void isAudioOutputChanged();
    void isLoginHandleChanged();
    void videoInfoChangedSig(); ///< the picture's size is another, or there is a picture or none any more
    void fillModeChanged();
    void channelIdChanged();
    void videoErrorSig(); ///< a started stream brings no picture; it may come back by itself
    void urlChanged();
    void sigVideoDataChanged(); ///< on the decoder's thread: there is a new picture
    void sigAudioDataChanged(); ///< on the decoder's thread: there is sound to play
    void textChanged();
    void sigSampleRateChanged(); ///< on the decoder's thread
    void streamKindChanged();
    void zoomLevelChanged();
    void isStreamingChanged();
    void problemTextChanged();
    /// Of startInBackground(). `mayTryOther`: the device may have the other stream of the channel.
    void startEnded(bool isStreaming, bool mayTryOther);
    void sessionChanged();

public Q_SLOTS:
    // The order is kept as well.

    /// Shows the channel; blocks until the device has answered. On failure returns false, and `text` says so.
    /// A stream that runs is ended first.
    bool start();

    /// Ends the stream; the item is empty then. Harmless without a stream.
    void stop();

    void onSigVideoDataChanged();
    void onSizeChanged();
    void onSigAudioDataChanged();
    void onAudioFormatChanged();

    /// Zooms by `facotr` notches of a mouse wheel (positive: closer), a level each and at least one, about
    /// the point `center` in the item's pixels.
    void changeScale(double facotr, QPointF center);

    /// Moves the picture by so many pixels of the item.
    void drag(double deltx, double delty);

    /// As start(), but returns at once; startEnded() follows when the device has answered, unless stop() or
    /// another start comes first. On the thread of the application's window only.
    void startInBackground();

private:
    static constexpr int watchInterval = 250; // milliseconds

    bool prepare();
    [[nodiscard]] StreamOpening::Order order() const;
    bool take(const StreamOpening::Result &opened);
    bool failToOpen(const char *reason, std::uint32_t error);
    [[nodiscard]] static QString endText(sdk::StreamEndReason reason);
    void noteEnd(qint64 streamHandle, sdk::StreamEndReason reason);
    void closeStream();
    void watch();
    void tellPictureSize();
    void setText(const QString &text);
    void setIsStreaming(bool isStreaming);
    void zoom(const QPointF &anchor, double steps);

    const sdk::SdkLibraries m_libraries;
    const std::shared_ptr<CDHDecoder> m_decoder;
    CurrentPicture m_picture;
    AudioOutput m_audio;
    std::atomic<bool> m_isAudioOutput = false;
    ViewGeometry m_geometry;
    StreamWatch m_watch;
    QTimer m_watchTimer;
    QMetaObject::Connection m_repaint; ///< while the stream runs
    qint64 m_session = 0;
    qint64 m_loginHandle = 0;
    std::int64_t m_streamHandle = 0;          ///< 0 for none
    std::unique_ptr<StreamOpening> m_opening; ///< null unless a device is asked in the background
    FillModeType m_fillMode = PreserveAspectFit;
    StreamKind m_streamKind = Main;
    int m_channelId = -1;
    QString m_url;
    QString m_text;
    QSize m_pictureSize; ///< as the scene was told
    bool m_isStreaming = false;
    PictureProblem m_problem = PictureProblem::None;
};

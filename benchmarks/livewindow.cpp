#include "benchmarks/measurements.h"

#include "benchmarks/numberedstream.h"
#include "device/registry/devicefactory.h"
#include "media/videoitem.h"
#include "sdk/clock.h"
#include "sdk/ffmpeg/ffmpegdecoderlibrary.h"
#include "tests/media/quietnetlibrary.h"

#include <QDir>
#include <QFileInfo>
#include <QQuickWindow>
#include <QTest>

#include <array>
#include <atomic>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace {

constexpr int views = 9;

/// Sends streams to the handlers of channels. The handle of a stream is the number of its channel, from 1.
class SendingLibrary : public QuietNetLibrary
{
public:
    std::int64_t NetStartRealStream(std::int64_t, std::int32_t channel, std::uintptr_t,
                                    sdk::LiveStreamKind) override
    {
        return channel + 1;
    }
    bool NetSetRealDataCallback(std::int64_t streamHandle, sdk::RealDataHandler handler, void *user,
                                std::uint32_t) override
    {
        const std::lock_guard lock(m_mutex);
        m_receivers[static_cast<std::size_t>(streamHandle) - 1] = {handler, user};
        return true;
    }
    bool NetStopRealStream(std::int64_t) override { return true; }

    void send(int channel, const QByteArray &chunk)
    {
        const std::lock_guard lock(m_mutex);
        const Receiver &receiver = m_receivers[static_cast<std::size_t>(channel)];
        if (receiver.handler) {
            receiver.handler(channel + 1, 0, reinterpret_cast<const std::uint8_t *>(chunk.constData()),
                             static_cast<std::uint32_t>(chunk.size()), 0, receiver.user);
        }
    }

private:
    struct Receiver
    {
        sdk::RealDataHandler handler = nullptr;
        void *user = nullptr;
    };
    std::mutex m_mutex;
    std::array<Receiver, views> m_receivers;
};

/// Nine live views in a window, with the times at which their frames are on the screen.
class WatchedWindow
{
public:
    explicit WatchedWindow(NumberedStream::Time begin)
    {
        m_window.resize(1280, 720);
        const QSize size = m_window.size() / 3;
        for (int view = 0; view < views; ++view) {
            m_times.emplace_back(NumberedStream::startOf(view, views, begin));
            m_videos.push_back(std::make_unique<VideoItem>(m_window.contentItem()));
            VideoItem &video = *m_videos.back();
            video.setSize(size);
            video.setPosition(QPointF(size.width() * (view % 3), size.height() * (view / 3)));
            video.setChannelId(view);
            video.start();
        }
        // Both run on the render thread. The displayed frames are copied between the two.
        QObject::connect(
            &m_window, &QQuickWindow::afterSynchronizing, &m_window, [this] { readNumbers(); },
            Qt::DirectConnection);
        QObject::connect(
            &m_window, &QQuickWindow::frameSwapped, &m_window, [this] { noteShown(); }, Qt::DirectConnection);
        m_window.show();
    }
    ~WatchedWindow() { m_window.disconnect(); }
    WatchedWindow(const WatchedWindow &) = delete;
    WatchedWindow &operator=(const WatchedWindow &) = delete;

    [[nodiscard]] std::vector<FrameTimes> times()
    {
        const std::lock_guard lock(m_mutex);
        for (FrameTimes &view : m_times)
            view.end();
        return m_times;
    }
    [[nodiscard]] double skippedFrames() const
    {
        double skipped = 0;
        for (const auto &video : m_videos)
            skipped += video->figures().value(QStringLiteral("skipped")).toDouble();
        return skipped;
    }

private:
    void readNumbers()
    {
        for (std::size_t view = 0; view < views; ++view) {
            m_numbers[view] = m_videos[view]->currentFrame().read([](const VideoFrame &frame) {
                return frame.isComplete() ? NumberedStream::numberOf(frame.y()) : -1;
            });
        }
    }

    void noteShown()
    {
        const NumberedStream::Time now = std::chrono::steady_clock::now();
        const std::lock_guard lock(m_mutex);
        for (std::size_t view = 0; view < views; ++view) {
            if (m_numbers[view] >= 0)
                m_times[view].note(m_numbers[view], now);
        }
    }

    std::mutex m_mutex; // guards m_times
    std::vector<FrameTimes> m_times;
    std::array<int, views> m_numbers = {}; // of the frames that are being rendered; used by the render thread
    QQuickWindow m_window;
    std::vector<std::unique_ptr<VideoItem>> m_videos; // destroyed before the window
};

} // namespace

QList<BenchmarkResult> measureLiveWindow(const NumberedStream &stream)
{
    const auto net = std::make_shared<SendingLibrary>();
    sdk::SdkLibraries libraries;
    libraries.clock = std::make_shared<sdk::SystemClock>();
    libraries.net = net;
    libraries.decoder = std::make_shared<sdk::ffmpeg::FfmpegDecoderLibrary>();
    VideoItem::registerLibraries(libraries);
    const QString folder = QDir::currentPath();
    QDir::setCurrent(QFileInfo(QStringLiteral(CONFIGTOOLS_PROGRAM)).path()); // for the shaders

    QList<BenchmarkResult> results;
    {
        const NumberedStream::Time begin = std::chrono::steady_clock::now() + std::chrono::seconds(3);
        WatchedWindow window(begin);
        std::atomic<bool> isSent = false;
        const std::jthread camera([&] {
            stream.send(views, begin, [&](int view, const QByteArray &chunk) { net->send(view, chunk); });
            isSent = true;
        });
        constexpr int longestSending = 90000;
        if (!QTest::qWaitFor([&] { return isSent.load(); }, longestSending))
            qWarning("the streams did not end");
        results =
            resultsOf(QStringLiteral("nine live views of 1440p"), window.times(), window.skippedFrames());
    }
    QDir::setCurrent(folder);
    VideoItem::registerLibraries({});
    CDeviceFactory::deleteInstance();
    return results;
}

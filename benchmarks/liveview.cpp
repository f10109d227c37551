#include "benchmarks/measurements.h"

#include "device/dh/devicedh.h"
#include "device/registry/devicefactory.h"
#include "device/store/devicestore.h"
#include "media/videoitem.h"
#include "sdk/clock.h"
#include "sdk/demo/demosite.h"
#include "sdk/encodeblocks.h"
#include "sdk/ffmpeg/ffmpegdecoderlibrary.h"
#include "sdk/netlibrary.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QQuickWindow>
#include <QTest>

#include <memory>
#include <sys/resource.h>
#include <vector>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace {

constexpr int longWait = 15000;

/// A simulated recorder with a session, which ends with this object.
class LiveSite
{
public:
    LiveSite()
    {
        QString error;
        m_libraries.clock = std::make_shared<sdk::SystemClock>();
        const auto site = sdk::demo::DemoSite::open(QStringLiteral("office"), m_libraries.clock, &error);
        m_libraries = site->libraries();
        m_libraries.decoder = std::make_shared<sdk::ffmpeg::FfmpegDecoderLibrary>();
        VideoItem::registerLibraries(m_libraries);
        const auto store = std::make_shared<DeviceStore>(m_libraries.clock);
        CDeviceFactory::registerBackEnd(QStringLiteral("dh"), [libraries = m_libraries, store] {
            return std::make_shared<CDeviceDH>(store, libraries, [] { return SearchSettings(); });
        });
        CDeviceFactory::getinstance()->findAndLoginDevice(
            QStringLiteral("dh"), QStringLiteral("192.168.1.120:8800"), QStringLiteral("admin"),
            QStringLiteral("Office-2024"));
        // Shaders are looked up in the working directory.
        QDir::setCurrent(QFileInfo(QStringLiteral(CONFIGTOOLS_PROGRAM)).path());
    }
    ~LiveSite()
    {
        CDeviceFactory::deleteInstance();
        VideoItem::registerLibraries({});
        QDir::setCurrent(m_folder);
    }
    LiveSite(const LiveSite &) = delete;
    LiveSite &operator=(const LiveSite &) = delete;

    void setMainStream(int width, int height) const
    {
        using namespace std::chrono_literals;
        const qint64 login = CDeviceFactory::getinstance()
                                 ->getConfigData(QStringLiteral("dh"), QStringLiteral("loginHandle"))
                                 .toLongLong();
        const auto number = static_cast<std::uint32_t>(sdk::EncodeItem::VideoFormat);
        sdk::VideoFormatItem item = {};
        item.size = sizeof(item);
        m_libraries.net->NetGetItem(login, number, 0, &item, sizeof(item), 5000ms);
        item.width = width;
        item.height = height;
        item.frameRate = 25;
        m_libraries.net->NetSetItem(login, number, 0, &item, sizeof(item), 5000ms);
    }

private:
    const QString m_folder = QDir::currentPath();
    sdk::SdkLibraries m_libraries;
};

/// Processor time of this process in milliseconds.
double processorTime()
{
    rusage usage = {};
    getrusage(RUSAGE_SELF, &usage);
    const auto milliseconds = [](const timeval &time) {
        return static_cast<double>(time.tv_sec) * 1000 + static_cast<double>(time.tv_usec) / 1000;
    };
    return milliseconds(usage.ru_utime) + milliseconds(usage.ru_stime);
}

void awaitFrame(const VideoItem &video)
{
    if (!QTest::qWaitFor([&] { return video.hasFrame(); }, longWait))
        qWarning("no frame arrived");
}

BenchmarkResult measureShowing(const LiveSite &site, int width, int height)
{
    site.setMainStream(width, height);
    QQuickWindow window;
    window.resize(1280, 720);
    VideoItem video(window.contentItem());
    video.setSize(window.size());
    video.setChannelId(0);
    window.show();
    video.start();
    awaitFrame(video);
    constexpr int seconds = 5;
    int frames = 0;
    QObject::connect(&window, &QQuickWindow::frameSwapped, &window, [&] { ++frames; });
    const double before = processorTime();
    QTest::qWait(seconds * 1000);
    const double spent = processorTime() - before;
    video.stop();
    return {.subject =
                QStringLiteral("processor time per displayed frame, %1p, %2 frames/s, drawn in software, "
                               "with the simulated camera")
                    .arg(height)
                    .arg(frames / seconds),
            .value = spent / std::max(frames, 1),
            .unit = QStringLiteral("ms"),
            .budget = 2 * 1000.0 / 25, // of two cores, at 25 frames/s
            .peer = {},
            .largestRatio = {},
            .peerName = {}};
}

/// Resident memory of this process without free memory that the allocator keeps.
double usedMegabytes()
{
#ifdef __GLIBC__
    malloc_trim(0);
#endif
    return residentMegabytes(QCoreApplication::applicationPid());
}

QList<BenchmarkResult> measureStarts(const LiveSite &site)
{
    site.setMainStream(1280, 720);
    constexpr int settled = 10;
    constexpr int starts = 100;
    double settledMemory = 0;
    QList<double> firstFrames;
    VideoItem video;
    video.setChannelId(0);
    for (int start = 1; start <= starts; ++start) {
        QElapsedTimer time;
        time.start();
        video.start();
        awaitFrame(video);
        firstFrames.append(static_cast<double>(time.elapsed()));
        video.stop();
        if (start == settled)
            settledMemory = usedMegabytes();
    }
    return {{.subject = QStringLiteral("growth of memory from the 10th to the 100th live view"),
             .value = usedMegabytes() - settledMemory,
             .unit = QStringLiteral("MB"),
             .budget = 4, // fragmentation, and the log of requests of the simulated site
             .peer = {},
             .largestRatio = {},
             .peerName = {}},
            {.subject = QStringLiteral("from the start of a live view to its first frame, 720p"),
             .value = median(firstFrames),
             .unit = QStringLiteral("ms"),
             .budget = 500,
             .peer = {},
             .largestRatio = {},
             .peerName = {}}};
}

/// The growth of memory after nine live views in a window were closed.
BenchmarkResult measureMemoryAfterNine(const LiveSite &site)
{
    site.setMainStream(1920, 1080);
    constexpr int views = 9;
    constexpr int shownFor = 10000;
    constexpr int closedFor = 30000;
    const double before = residentMegabytes(QCoreApplication::applicationPid());
    {
        QQuickWindow window;
        window.resize(1280, 720);
        std::vector<std::unique_ptr<VideoItem>> videos;
        for (int view = 0; view < views; ++view) {
            videos.push_back(std::make_unique<VideoItem>(window.contentItem()));
            videos.back()->setSize(window.size() / 3.0);
            videos.back()->setPosition(
                {window.width() / 3.0 * (view % 3), window.height() / 3.0 * (view / 3)});
            videos.back()->setChannelId(0);
            videos.back()->start();
        }
        window.show();
        for (const auto &video : videos)
            awaitFrame(*video);
        QTest::qWait(shownFor);
    }
    QTest::qWait(closedFor);
    return {.subject = QStringLiteral("growth of memory half a minute after nine live views were closed"),
            .value = residentMegabytes(QCoreApplication::applicationPid()) - before,
            .unit = QStringLiteral("MB"),
            .budget = 60,
            .peer = {},
            .largestRatio = {},
            .peerName = {}};
}

} // namespace

QList<BenchmarkResult> measureLiveView()
{
    const LiveSite site;
    QList<BenchmarkResult> results = {measureShowing(site, 1280, 720), measureShowing(site, 1920, 1080)};
    results.append(measureMemoryAfterNine(site));
    results.append(measureStarts(site));
    return results;
}

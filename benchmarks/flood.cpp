#include "benchmarks/measurements.h"

#include "app/colourscheme.h"
#include "app/desktopscheme.h"
#include "app/localconfig.h"
#include "app/publication.h"
#include "benchmarks/iterationwatch.h"
#include "cgi/cgiconfigmanage.h"
#include "device/accounts/certificatestore.h"
#include "device/batch/batchengine.h"
#include "device/dh/devicedh.h"
#include "device/registry/devicefactory.h"
#include "device/store/devicestore.h"
#include "favourites/accountstore.h"
#include "sdk/blocktext.h"
#include "sdk/clock.h"
#include "tests/media/quietnetlibrary.h"

#include <QQmlApplicationEngine>
#include <QQuickStyle>
#include <QSignalSpy>
#include <QTest>

#include <atomic>
#include <random>
#include <thread>
#include <vector>

using namespace std::chrono_literals;

namespace {

constexpr int threads = 4;
constexpr int responsesPerSecond = 100'000;
constexpr auto pause = 10ms;

/// Sends responses with random MACs to a search until it is stopped.
class FloodingLibrary : public QuietNetLibrary
{
public:
    std::int64_t NetStartSearchDevices(const sdk::SearchParameter &parameter,
                                       std::chrono::milliseconds) override
    {
        if (!m_threads.empty())
            return 0;
        for (int thread = 0; thread < threads; ++thread)
            m_threads.emplace_back([this, parameter, thread](const std::stop_token &stop) {
                flood(parameter, static_cast<unsigned>(thread), stop);
            });
        return 1;
    }
    bool NetStopSearchDevices(std::int64_t) override
    {
        m_threads.clear();
        return true;
    }

    std::atomic<int> responses = 0;

private:
    void flood(const sdk::SearchParameter &parameter, unsigned seed, const std::stop_token &stop)
    {
        constexpr int share = responsesPerSecond / threads / (1s / pause);
        std::mt19937 random(seed);
        sdk::SearchResponse response{};
        response.size = sizeof(response);
        response.device.ipVersion = 4;
        sdk::setBlockText(response.device.address, "192.168.1.108");
        auto next = std::chrono::steady_clock::now();
        while (!stop.stop_requested()) {
            for (int number = 0; number < share; ++number) {
                sdk::setBlockText(response.device.mac, std::to_string(random()));
                parameter.handler(1, &response, parameter.user);
            }
            responses += share;
            std::this_thread::sleep_until(next += pause);
        }
    }

    std::vector<std::jthread> m_threads;
};

} // namespace

QList<BenchmarkResult> measureFlood()
{
    const auto net = std::make_shared<FloodingLibrary>();
    sdk::SdkLibraries libraries;
    libraries.clock = std::make_shared<sdk::SystemClock>();
    libraries.net = net;
    const auto store = std::make_shared<DeviceStore>(libraries.clock);
    CDeviceFactory::registerBackEnd(QStringLiteral("dh"), [libraries, store] {
        return std::make_shared<CDeviceDH>(store, libraries,
                                           [] { return SearchSettings{.localDomain = true}; });
    });
    const double before = residentMegabytes(QCoreApplication::applicationPid());
    IterationWatch iterations;
    {
        QQuickStyle::setStyle(QStringLiteral("Basic"));
        BatchEngine batchEngine(libraries.clock);
        DesktopScheme desktop{QString()};
        ColourScheme colours(desktop, *CLocalConfig::getinstance());
        QQmlApplicationEngine engine;
        engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
        publishToScene(engine, batchEngine, store, std::make_shared<CertificateStore>(QString()),
                       std::make_shared<AccountStore>(QString()), colours, libraries.net);
        QSignalSpy done(CDeviceFactory::getinstance(), &CDeviceFactory::signalSearchDone);
        engine.load(QUrl(QStringLiteral("qrc:/qt/qml/configtools/main.qml"))); // starts a search
        QTest::qWait(500);                                                     // the first frame

        iterations.start();
        done.wait(20000);
        QTest::qWait(1000);
        iterations.stop();
        qDeleteAll(engine.rootObjects());
    }
    const double memory = residentMegabytes(QCoreApplication::applicationPid()) - before;
    CLocalConfig::deleteInstance();
    CGIConfigManage::deleteInstance();
    CDeviceFactory::deleteInstance();
    const QString subject = QStringLiteral(" while %1 new devices respond").arg(net->responses);
    return {{.subject = QStringLiteral("longest iteration of the event loop") + subject,
             .value = static_cast<double>(iterations.longest()),
             .unit = QStringLiteral("ms"),
             .budget = 300,
             .peer = {},
             .largestRatio = {},
             .peerName = {}},
            {.subject = QStringLiteral("memory of window and rows") + subject,
             .value = memory,
             .unit = QStringLiteral("MB"),
             .budget = 250,
             .peer = {},
             .largestRatio = {},
             .peerName = {}}};
}

#include "benchmarks/measurements.h"

#include "benchmarks/iterationwatch.h"
#include "device/batch/batches.h"
#include "device/dh/devicedh.h"
#include "device/models/treemodel.h"
#include "device/registry/devicefactory.h"
#include "device/store/devicestore.h"
#include "sdk/clock.h"
#include "sdk/demo/demosite.h"

#include <QElapsedTimer>
#include <QEventLoop>

namespace {

constexpr int devices = 200;
constexpr int deadDevices = 10;
constexpr int responseTime = 200; // milliseconds

/// Cameras that respond slowly.
QList<sdk::demo::SceneDevice> slowCameras()
{
    QList<sdk::demo::SceneDevice> all;
    for (int number = 0; number < devices; ++number) {
        sdk::demo::SceneDevice device;
        device.mac = QStringLiteral("02:1a:c5:00:01:%1").arg(number, 2, 16, QLatin1Char('0'));
        device.address = QStringLiteral("192.168.1.%1").arg(number + 1);
        device.port = 37777;
        device.type = QStringLiteral("IPC");
        device.accounts = {{QStringLiteral("admin"), QStringLiteral("secret1")}};
        device.channels.resize(1);
        device.faults = {{.fault = sdk::demo::Fault::SlowAnswers, .number = responseTime, .text = {}}};
        all.append(device);
    }
    return all;
}

} // namespace

QList<BenchmarkResult> measureBatches()
{
    const QString family = QStringLiteral("dh");
    const auto clock = std::make_shared<sdk::SystemClock>();
    sdk::demo::Scene scene;
    scene.devices = slowCameras();
    const auto site = sdk::demo::DemoSite::create(scene, clock);
    const auto store = std::make_shared<DeviceStore>(clock);
    BatchEngine engine(clock);
    CDeviceFactory factory({{family, [&] {
                                 return std::make_shared<CDeviceDH>(store, site->libraries(),
                                                                    [] { return SearchSettings(); });
                             }}});
    factory.setDefaultAccount(family, QStringLiteral("admin"), QStringLiteral("secret1"));
    QEventLoop loop;
    QObject::connect(&factory, &CDeviceFactory::signalSearchDone, &loop, &QEventLoop::quit);
    factory.startSearch(family);
    loop.exec();
    for (int number = 0; number < deadDevices; ++number)
        site->setFault(scene.devices.at(number * devices / deadDevices).mac,
                       {.fault = sdk::demo::Fault::NoAnswer});

    OVTreeModel tree;
    tree.setDeviceFactory(&factory);
    tree.resetItems(QStringLiteral("removeuninit"), {});
    tree.setAllChecked(true);
    const QStringList ipports = tree.checkedDevices();
    const QString command = QStringLiteral("videoStandard");
    const QVariantMap data = {{QStringLiteral("videoStandard"), 1}};

    Batches batches(factory, engine, [] { return 8; });
    QElapsedTimer time;
    time.start();
    Batch *batch = batches.configureSystem(family, command, command, data, ipports);
    QObject::connect(
        batch, &Batch::resulted, &tree,
        [&tree](const QStringList &done, const QList<int> &results) { tree.takeResults(done, results, {}); });
    QObject::connect(batch, &Batch::finished, &loop, &QEventLoop::quit);
    IterationWatch iterations;
    iterations.start();
    loop.exec();
    iterations.stop();
    const double parallel = static_cast<double>(time.elapsed()) / 1000;

    time.start();
    factory.systemConfig(family, command, data, ipports);
    const double sequential = static_cast<double>(time.elapsed()) / 1000;
    return {{.subject = QStringLiteral("command to 200 devices, 10 of them without a response"),
             .value = parallel,
             .unit = QStringLiteral("s"),
             .budget = sequential / 6,
             .peer = sequential,
             .largestRatio = 1.0 / 6,
             .peerName = QStringLiteral("one after another")},
            {.subject = QStringLiteral("longest iteration of the event loop meanwhile"),
             .value = static_cast<double>(iterations.longest()),
             .unit = QStringLiteral("ms"),
             .budget = 50,
             .peer = {},
             .largestRatio = {},
             .peerName = {}}};
}

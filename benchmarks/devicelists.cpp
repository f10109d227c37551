#include "benchmarks/measurements.h"

#include "device/dh/devicedh.h"
#include "device/models/devicetablemodel.h"
#include "device/models/treerows.h"
#include "device/registry/devicefactory.h"
#include "device/store/devicerow.h"
#include "device/store/devicestore.h"
#include "sdk/blocktext.h"
#include "sdk/clock.h"

#include <thread>
#include <vector>

namespace {

constexpr int devices = 10000;
constexpr int threads = 4;
constexpr int runs = 9;

std::vector<sdk::SearchResponse> makeResponses(int count)
{
    std::vector<sdk::SearchResponse> responses(count);
    for (int number = 0; number < count; ++number) {
        sdk::SearchResponse &response = responses[number];
        response.size = sizeof(response);
        response.device.ipVersion = 4;
        response.device.port = 37777;
        response.device.initialisationState = 2;
        const QByteArray text = QByteArray::number(number);
        sdk::setBlockText(response.device.mac, ("02:1a:c5:" + text).toStdString());
        sdk::setBlockText(response.device.address,
                          QStringLiteral("10.0.%1.%2").arg(number / 250).arg(number % 250 + 1).toStdString());
        sdk::setBlockText(response.device.deviceType, number % 3 ? "IPC" : "NVR");
        sdk::setBlockText(response.device.detailModel, "B-2230-IR");
        sdk::setBlockText(response.device.deviceName, ("机房 " + text).toStdString());
        sdk::setBlockText(response.device.softwareVersion, "2.840.1");
    }
    return responses;
}

/// Delivers the responses from several threads.
void deliver(DeviceStore &store, const std::vector<sdk::SearchResponse> &responses)
{
    std::vector<std::thread> library;
    for (int thread = 0; thread < threads; ++thread) {
        library.emplace_back([&, thread] {
            for (std::size_t number = thread; number < responses.size(); number += threads)
                store.addResponse(responses[number]);
        });
    }
    for (std::thread &thread : library)
        thread.join();
}

/// The rebuild of the configuration pages' tree, which happens while devices are found.
BenchmarkResult measureTree(CDeviceFactory &factory)
{
    OVTreeModel tree;
    DeviceTreeRows rows;
    tree.setDeviceFactory(&factory);
    rows.setTree(&tree);
    tree.resetItems(QStringLiteral("removeuninit"), QString());
    tree.setAllChecked(true);
    return {.subject = QStringLiteral("rebuilding the tree with 10,000 devices"),
            .value =
                medianMilliseconds(runs, [&] { tree.resetItems(QStringLiteral("removeuninit"), QString()); }),
            .unit = QStringLiteral("ms"),
            .budget = 50,
            .peer = {},
            .largestRatio = {},
            .peerName = {}};
}

/// Changes every row once, the last row first.
BenchmarkResult measureChanges(DeviceStore &store, const QString &by,
                               bool (DeviceStore::*change)(const QString &, const DeviceStore::Change &),
                               QLatin1StringView key)
{
    QStringList names;
    for (const QVariant &row : store.ipv4Rows())
        names.prepend(row.toJsonObject().value(key).toString());
    int result = 0;
    const double time = medianMilliseconds(runs, [&] {
        ++result;
        for (const QString &name : std::as_const(names))
            (store.*change)(name, [result](QJsonObject &row) { row.insert(DeviceRowKey::res, result); });
    });
    return {.subject = QStringLiteral("10,000 rows changed one by one, by ") + by,
            .value = time,
            .unit = QStringLiteral("ms"),
            .budget = 100,
            .peer = {},
            .largestRatio = {},
            .peerName = {}};
}

} // namespace

QList<BenchmarkResult> measureDeviceLists()
{
    const auto clock = std::make_shared<sdk::SystemClock>();
    const std::vector<sdk::SearchResponse> responses = makeResponses(devices);
    const std::vector<sdk::SearchResponse> half(responses.begin(), responses.begin() + devices / 2);
    const auto adding = [&](const std::vector<sdk::SearchResponse> &some) {
        return medianMilliseconds(runs, [&] {
            DeviceStore store(clock);
            deliver(store, some);
        });
    };
    const double halfTime = adding(half);
    const BenchmarkResult rows = {.subject = QStringLiteral("10,000 responses from four threads to rows"),
                                  .value = adding(responses),
                                  .unit = QStringLiteral("ms"),
                                  .budget = 150,
                                  .peer = halfTime,
                                  .largestRatio = 2.6, // twice, with a tolerance for background load
                                  .peerName = QStringLiteral("half as many")};

    const auto store = std::make_shared<DeviceStore>(clock);
    deliver(*store, responses);
    sdk::SdkLibraries none;
    none.clock = clock;
    CDeviceFactory factory({{QStringLiteral("dh"), [&] {
                                 return std::make_shared<CDeviceDH>(store, none,
                                                                    [] { return SearchSettings(); });
                             }}});
    DeviceTableModel model;
    model.setDeviceFactory(&factory);
    bool text = false;
    const BenchmarkResult filter = {.subject = QStringLiteral("text filter over 10,000 rows"),
                                    .value = medianMilliseconds(runs,
                                                                [&] {
                                                                    text = !text;
                                                                    model.setSearchText(
                                                                        text ? QStringLiteral("77")
                                                                             : QStringLiteral("机房 9"));
                                                                }),
                                    .unit = QStringLiteral("ms"),
                                    .budget = 30,
                                    .peer = {},
                                    .largestRatio = {},
                                    .peerName = {}};
    return {
        rows, filter, measureTree(factory),
        measureChanges(*store, QStringLiteral("MAC"), &DeviceStore::changeRow, DeviceRowKey::mac),
        measureChanges(*store, QStringLiteral("address"), &DeviceStore::changeRowAt, DeviceRowKey::ipport)};
}

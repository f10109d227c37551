#include "benchmarks/measurements.h"

#include "device/dh/devicedh.h"
#include "device/registry/devicefactory.h"
#include "device/store/devicestore.h"
#include "sdk/demo/demosite.h"
#include "sdk/demo/scene/fleetgenerator.h"
#include "sdk/demo/steppableclock.h"
#include "sheets/qexcel.h"
#include "tests/device/dh/flowingclock.h"

#include <QFile>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>

namespace {

constexpr int devices = 10000;
constexpr int importedDevices = 1000;
constexpr int runs = 5;
constexpr int peerRuns = 3; // of several seconds each
const QString peerName = QStringLiteral("openpyxl");

/// A factory on a simulated site whose clock advances as soon as a thread waits for it: the measured time
/// excludes all waiting. The clock advances only during an operation, since the thread that advances it uses
/// processor time.
class Site
{
public:
    explicit Site(const sdk::demo::Scene &scene)
        : m_clock(std::make_shared<sdk::demo::SteppableClock>()),
          m_site(sdk::demo::DemoSite::create(scene, m_clock)),
          m_factory({{QStringLiteral("dh"), [this] {
                          return std::make_shared<CDeviceDH>(std::make_shared<DeviceStore>(m_clock),
                                                             m_site->libraries(),
                                                             [] { return SearchSettings(); });
                      }}})
    {
    }

    CDeviceFactory &factory() { return m_factory; }

    QStringList search()
    {
        QSignalSpy done(&m_factory, &CDeviceFactory::signalSearchDone);
        m_factory.startSearch(QStringLiteral("dh"));
        {
            const FlowingClock time(*m_clock);
            constexpr int patience = 60000;
            done.wait(patience);
        }
        QStringList macs;
        const QVariantList rows = m_factory.filterData(QStringLiteral("dh"), QStringLiteral("nofilter"));
        for (const QVariant &row : rows)
            macs.append(row.toJsonObject().value(QLatin1String("mac")).toString());
        return macs;
    }

    void import(const QString &list)
    {
        const FlowingClock time(*m_clock);
        m_factory.importDevice(QStringLiteral("dh"), list, QJSValue());
    }

private:
    const std::shared_ptr<sdk::demo::SteppableClock> m_clock;
    const std::shared_ptr<sdk::demo::DemoSite> m_site;
    CDeviceFactory m_factory;
};

/// The median time of the other library in milliseconds; nothing if it cannot run on this host.
std::optional<double> peerMilliseconds(const QStringList &arguments)
{
    QProcess peer;
    peer.start(QStringLiteral(CONFIGTOOLS_SYSTEM_PYTHON),
               QStringList{QStringLiteral(CONFIGTOOLS_SHEET_PEER)} + arguments +
                   QStringList{QString::number(peerRuns)});
    constexpr int patience = 120000;
    peer.waitForFinished(patience);
    bool isNumber = false;
    const double time = peer.readAllStandardOutput().trimmed().toDouble(&isNumber);
    return isNumber ? std::optional(time) : std::nullopt;
}

BenchmarkResult measureExport(const QTemporaryDir &folder)
{
    Site site(sdk::demo::FleetGenerator::generate(devices));
    const QStringList macs = site.search();
    const auto write = [&](const QString &name) {
        return site.factory().exportDevice(QStringLiteral("dh"), folder.path(), macs, name);
    };
    write(QStringLiteral("device.csv")); // the same strings for the peer
    return {.subject = QStringLiteral("export of %1 devices to xlsx").arg(macs.size()),
            .value = medianMilliseconds(runs, [&] { write(QStringLiteral("device.xlsx")); }),
            .unit = QStringLiteral("ms"),
            .budget = 1000,
            .peer = peerMilliseconds({QStringLiteral("write"), folder.filePath(QStringLiteral("device.csv")),
                                      folder.filePath(QStringLiteral("peer.xlsx"))}),
            .largestRatio = 0.1,
            .peerName = peerName};
}

BenchmarkResult measureChange(const QTemporaryDir &folder)
{
    const QString path = folder.filePath(QStringLiteral("device.xlsx"));
    constexpr int changedColumn = 19;
    int rows = 0;
    const auto change = [&] {
        QExcel workbook;
        if (!workbook.open(path))
            return;
        rows = workbook.usedRowCount() - 2;
        for (int row = 3; row < 3 + rows; ++row)
            workbook.setCellText(row, changedColumn, QStringLiteral("done %1").arg(row));
        workbook.save();
    };
    const double own = medianMilliseconds(runs, change);
    return {.subject = QStringLiteral("open, change a column of %1 rows, save").arg(rows),
            .value = own,
            .unit = QStringLiteral("ms"),
            .budget = 2000,
            .peer = peerMilliseconds({QStringLiteral("change"), path, QString::number(changedColumn)}),
            .largestRatio = 0.2,
            .peerName = peerName};
}

/// A list of devices with their accounts.
QString writeImportList(const QTemporaryDir &folder, const sdk::demo::Scene &scene)
{
    QFile file(folder.filePath(QStringLiteral("import.csv")));
    if (!file.open(QIODevice::WriteOnly))
        return {};
    file.write("IP地址/域名/注册ID/设备序列号,设备端口,用户名,密码,MAC\n");
    for (const sdk::demo::SceneDevice &device : scene.devices) {
        const sdk::demo::SceneAccount &account = device.accounts.constFirst();
        file.write(
            QStringLiteral("%1,%2,%3,%4,%5\n")
                .arg(device.address, QString::number(device.port), account.user, account.password, device.mac)
                .toUtf8());
    }
    return file.fileName();
}

BenchmarkResult measureImport(const QTemporaryDir &folder)
{
    sdk::demo::Scene scene = sdk::demo::FleetGenerator::generate(importedDevices * 2);
    scene.devices.removeIf([](const sdk::demo::SceneDevice &device) { return device.accounts.isEmpty(); });
    scene.devices.resize(importedDevices);
    const QString list = writeImportList(folder, scene);
    qsizetype imported = 0;
    const double own = medianMilliseconds(peerRuns, [&] {
        Site site(scene);
        site.import(list);
        imported = site.factory().filterData(QStringLiteral("dh"), QStringLiteral("nofilter")).size();
    });
    return {.subject = QStringLiteral("import of %1 devices, without waiting for them").arg(imported),
            .value = own,
            .unit = QStringLiteral("ms"),
            .budget = 3000,
            .peer = {},
            .largestRatio = {},
            .peerName = {}};
}

} // namespace

QList<BenchmarkResult> measureDeviceFiles()
{
    const QTemporaryDir folder;
    return {measureExport(folder), measureChange(folder), measureImport(folder)};
}

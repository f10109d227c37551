// A simulated site with the factory on it, and firmware files, for the tests of upgrades.
#pragma once

#include "device/batch/batchengine.h"
#include "device/dh/devicedh.h"
#include "device/registry/devicefactory.h"
#include "device/registry/upgradetools.h"
#include "device/store/devicerow.h"
#include "device/store/devicestore.h"
#include "sdk/demo/demosite.h"
#include "sdk/demo/steppableclock.h"
#include "sheets/qexcel.h"
#include "tests/device/dh/flowingclock.h"
#include "tests/device/dh/scenedevices.h"
#include "tests/files/filecontents.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

/// `count` cameras from 192.168.1.11 on, each with a row.
class UpgradeSite
{
public:
    explicit UpgradeSite(int count, const UpgradeLimits &limits = UpgradeLimits())
    {
        sdk::demo::Scene scene;
        for (int index = 0; index < count; ++index)
            scene.devices.append(sceneDevice(mac(index), address(index)));
        site = sdk::demo::DemoSite::create(scene, clock);
        factory = std::make_unique<CDeviceFactory>(CDeviceFactory::BackEndCreators{
            {family, [this, limits] {
                 return std::make_shared<CDeviceDH>(
                     store, site->libraries(), [] { return SearchSettings(); }, limits, engine);
             }}});
        for (int index = 0; index < count; ++index)
            store->upsertRow({{DeviceRowKey::mac, mac(index)},
                              {DeviceRowKey::ipport, ipport(index)},
                              {DeviceRowKey::model, QStringLiteral("B-2230-IR")},
                              {DeviceRowKey::upgraderes, -1}});
        factory->setDefaultAccount(family, QStringLiteral("admin"), QStringLiteral("secret1"));
        schedule = std::make_unique<QSignalSpy>(factory.get(), &CDeviceFactory::signalUpdateSchedule);
        ends = std::make_unique<QSignalSpy>(factory.get(), &CDeviceFactory::signalShowUpgradeFinishTip);
    }

    ~UpgradeSite() { endFactory(); }

    void endFactory()
    {
        schedule.reset();
        ends.reset();
        const FlowingClock time(*clock); // lets a running login end
        factory.reset();
    }

    [[nodiscard]] static QString mac(int index)
    {
        return QStringLiteral("02:1a:c5:00:00:%1").arg(index + 1, 2, 16, QLatin1Char('0'));
    }
    [[nodiscard]] static QString address(int index) { return QStringLiteral("192.168.1.%1").arg(11 + index); }
    [[nodiscard]] static QString ipport(int index) { return address(index) + QStringLiteral(":37777"); }

    /// Writes a firmware file and returns its path.
    [[nodiscard]] QString file(const QByteArray &content = firmware,
                               const QString &name = QStringLiteral("firmware.bin")) const
    {
        const QString path = folder.filePath(name);
        return writeFile(path, content) ? path : QString();
    }

    [[nodiscard]] static QStringList macs(const QList<int> &indexes)
    {
        QStringList macs;
        for (const int index : indexes)
            macs.append(mac(index));
        return macs;
    }

    /// Starts the upgrade of the devices with these indexes.
    void start(const QList<int> &indexes, const QString &path) const
    {
        factory->backEnd(family)->setUpgradeFiles(macs(indexes), path);
        factory->startUpgrade(family, macs(indexes));
    }

    /// Writes a workbook of these rows and returns its path.
    [[nodiscard]] QString workbook(const QList<QStringList> &rows,
                                   const QString &name = QStringLiteral("upgrades.xlsx")) const
    {
        QExcel excel;
        bool isWritten = excel.createWorkbook();
        const QStringList titles = {QStringLiteral("IP"),       QStringLiteral("端口"),
                                    QStringLiteral("用户名"),   QStringLiteral("密码"),
                                    QStringLiteral("升级文件"), QStringLiteral("结果")};
        for (int row = 0; row <= rows.size(); ++row) {
            const QStringList cells = row == 0 ? titles : rows.at(row - 1);
            for (int column = 0; column < cells.size(); ++column)
                isWritten &= excel.setCellText(row + 1, column + 1, cells.at(column));
        }
        const QString path = folder.filePath(name);
        return isWritten && excel.saveAs(path) ? path : QString();
    }

    /// The results in the first `rows` rows of a workbook.
    [[nodiscard]] static QStringList resultsOf(const QString &path, int rows)
    {
        QExcel excel;
        QStringList texts;
        const bool isOpen = excel.open(path);
        for (int row = 2; isOpen && row <= rows + 1; ++row)
            texts.append(excel.cellText(row, 6).value_or(QString()));
        return texts;
    }

    [[nodiscard]] QJsonValue value(int index, QLatin1StringView key) const
    {
        return store->row(mac(index)).value(key);
    }
    [[nodiscard]] int result(int index) const { return value(index, DeviceRowKey::upgraderes).toInt(-99); }
    [[nodiscard]] QString text(int index) const { return value(index, DeviceRowKey::upgradetext).toString(); }
    [[nodiscard]] int percent(int index) const { return value(index, DeviceRowKey::upgrade).toInt(-99); }

    /// Advances the clock until `isThere` returns true. False after a minute.
    template<typename Condition>
    [[nodiscard]] bool passUntil(const Condition &isThere) const
    {
        constexpr int longest = 60000;
        return QTest::qWaitFor(
            [&] {
                if (isThere())
                    return true;
                clock->advance(std::chrono::milliseconds(500));
                return false;
            },
            longest);
    }
    [[nodiscard]] bool passUntilEnd() const
    {
        return passUntil([this] { return !ends->isEmpty(); }) && !factory->hasDeviceUpgrading();
    }

    static constexpr const char *firmware = "BRELM-FIRMWARE 1\nmodel=B-2230-IR\nversion=2.900.0\n\nbytes";
    static inline const QString family = QStringLiteral("dh");
    QTemporaryDir folder;
    std::shared_ptr<sdk::demo::SteppableClock> clock = std::make_shared<sdk::demo::SteppableClock>();
    std::shared_ptr<BatchEngine> engine = std::make_shared<BatchEngine>(clock);
    std::shared_ptr<sdk::demo::DemoSite> site;
    std::shared_ptr<DeviceStore> store = std::make_shared<DeviceStore>(clock);
    std::unique_ptr<CDeviceFactory> factory;
    std::unique_ptr<QSignalSpy> schedule;
    std::unique_ptr<QSignalSpy> ends;
};

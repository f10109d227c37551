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

/// A simulated site with `count` cameras at 192.168.1.11 and the following addresses, each with a row in the
/// device list. Functions with an index mean the camera with this index, from 0. The clock stands still:
/// passUntil() advances it. Main thread.
class UpgradeSite
{
public:
    /// `limits` are the number of parallel upgrades and their timeouts.
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

    /// Destroys the factory. The clock advances meanwhile, so that a running login ends.
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

    /// Writes a firmware file in `folder` and returns its path; empty on failure. By default it is valid for
    /// the cameras, with the version 2.900.0.
    [[nodiscard]] QString file(const QByteArray &content = firmware,
                               const QString &name = QStringLiteral("firmware.bin")) const
    {
        const QString path = folder.filePath(name);
        return writeFile(path, content) ? path : QString();
    }

    /// The MACs of the cameras with these indexes.
    [[nodiscard]] static QStringList macs(const QList<int> &indexes)
    {
        QStringList macs;
        for (const int index : indexes)
            macs.append(mac(index));
        return macs;
    }

    /// Starts the upgrades of the cameras with these indexes with the firmware file `path`. Does not wait.
    void start(const QList<int> &indexes, const QString &path) const
    {
        factory->backEnd(family)->setUpgradeFiles(macs(indexes), path);
        factory->startUpgrade(family, macs(indexes));
    }

    /// Writes an upgrade document, a workbook with these rows below the titles, in `folder`. Returns its
    /// path; empty on failure. The columns are address, port, user name, password, firmware file and result.
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

    /// The results (column 6) of the first `rows` rows below the titles of a workbook; empty if it cannot be
    /// opened.
    [[nodiscard]] static QStringList resultsOf(const QString &path, int rows)
    {
        QExcel excel;
        QStringList texts;
        const bool isOpen = excel.open(path);
        for (int row = 2; isOpen && row <= rows + 1; ++row)
            texts.append(excel.cellText(row, 6).value_or(QString()));
        return texts;
    }

    /// A value of the row of a camera.
    [[nodiscard]] QJsonValue value(int index, QLatin1StringView key) const
    {
        return store->row(mac(index)).value(key);
    }
    /// The result or state of the upgrade, an UpgradeTools::Result; -1 before the start; -99 if it is
    /// missing.
    [[nodiscard]] int result(int index) const { return value(index, DeviceRowKey::upgraderes).toInt(-99); }
    /// The result or state as text for the user.
    [[nodiscard]] QString text(int index) const { return value(index, DeviceRowKey::upgradetext).toString(); }
    /// The progress of the upgrade in percent; -99 if it is missing.
    [[nodiscard]] int percent(int index) const { return value(index, DeviceRowKey::upgrade).toInt(-99); }

    /// Advances the clock in steps of 500 ms until `isThere` returns true. False after a minute of real time.
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
    /// Advances the clock until all upgrades have ended. False after a minute of real time.
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
    std::unique_ptr<QSignalSpy> schedule; ///< CDeviceFactory::signalUpdateSchedule(): progress of upgrades
    std::unique_ptr<QSignalSpy> ends;     ///< signalShowUpgradeFinishTip(): all started upgrades have ended
};

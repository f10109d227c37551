// Batches on devices that use open standards: commands, addresses, snapshots and firmware.
#include "device/registry/upgradetools.h"
#include "tests/files/filecontents.h"
#include "tests/tour/driver/commonsteps.h"
#include "tests/tour/driver/driver.h"
#include "tests/tour/driver/livewindow.h"
#include "tests/tour/driver/rows.h"
#include "tests/tour/steps.h"

#include <QCoreApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QStringList cameras = {u"192.168.1.101:80"_s, u"192.168.1.102:80"_s, u"192.168.1.106:80"_s};
const QString recorder = u"192.168.1.120:80"_s;
const QString model = u"B-2230-IR"_s; // of the cameras
const QString newVersion = u"3.000.1"_s;

bool allHave(const Rows &rows, const QStringList &ipports, const QByteArray &role,
             const std::function<bool(const QVariant &value)> &condition)
{
    return std::all_of(ipports.cbegin(), ipports.cend(), [&](const QString &ipport) {
        const int row = rows.rowOf("ipport", ipport);
        return row >= 0 && condition(rows.value(row, role));
    });
}

void walkCopiedSettings(Driver &driver)
{
    driver.click(u"tab2"_s);
    driver.click(u"device_"_s + cameras.at(0));
    driver.click(u"configTab0"_s);
    driver.await(
        u"the encode settings are shown"_s, [&] { return driver.find(u"copyButton"_s) != nullptr; }, 30);
    for (const QString &camera : cameras.mid(1))
        driver.click(u"tick_"_s + camera);
    driver.click(u"copyButton"_s);
    driver.click(u"previewButton"_s);
    driver.require(u"previewTable"_s);
    driver.report(u"copy-preview"_s, driver.text(u"batchCount"_s));
    driver.click(u"okButton"_s);
    awaitBatchEnd(driver);
    driver.check(!driver.find(u"footWarning"_s), u"each device has the settings"_s);
    driver.report(u"copied"_s, u"encode settings of one camera on two others"_s);
}

void walkClocks(Driver &driver)
{
    driver.click(u"tab3"_s);
    driver.click(u"systemTab0"_s);
    for (const QString &camera : cameras.mid(1))
        driver.click(u"tick_"_s + camera);
    driver.click(u"setTimeByPCButton"_s);
    driver.require(u"previewTable"_s);
    driver.click(u"okButton"_s);
    driver.await(
        u"all clocks are set"_s,
        [&] {
            return std::all_of(cameras.cbegin(), cameras.cend(), [&](const QString &camera) {
                return driver.require(u"device_"_s + camera)->property("result").toInt() == 0;
            });
        },
        40);
    awaitBatchEnd(driver);
    driver.report(u"system-batch"_s, u"the clocks of three devices"_s);
}

void walkCommands(Driver &driver)
{
    driver.click(u"tab4"_s);
    const Rows rows(driver, u"cgiTable"_s);
    tickRows(driver, rows, cameras);
    driver.click(u"batchCgiButton"_s);
    driver.fill(u"batchCgiCommand"_s, u"/cgi-bin/device?get=name"_s);
    driver.click(u"okButton"_s);
    driver.require(u"previewTable"_s);
    driver.click(u"okButton"_s);
    driver.await(
        u"each device has responded"_s,
        [&] {
            return allHave(rows, cameras, "result", [](const QVariant &response) {
                return response.toString().startsWith(u"name="_s);
            });
        },
        40);
    awaitBatchEnd(driver);
    driver.report(u"commands"_s, rows.value(rows.rowOf("ipport", cameras.at(0)), "result").toString());
}

/// Changes the addresses of two devices and restores them.
void walkAddresses(Driver &driver)
{
    driver.click(u"tab0"_s);
    driver.fill(u"searchField"_s, {});
    const Rows rows(driver);
    driver.await(u"all devices are shown"_s, [&] { return rows.count() >= 20; });
    const QStringList changed = cameras.mid(1);
    tickRows(driver, rows, changed);
    driver.click(u"batchModifyButton"_s);
    driver.fill(u"newStartField"_s, u"192.168.1.220"_s);
    driver.report(u"batch-addresses"_s, u"new addresses for two devices"_s);
    driver.click(u"okButton"_s);
    driver.await(
        u"the devices have new addresses"_s,
        [&] {
            return rows.rowOf("ipport", u"192.168.1.220:80"_s) >= 0 &&
                   rows.rowOf("ipport", u"192.168.1.221:80"_s) >= 0;
        },
        60);
    awaitBatchEnd(driver);
    driver.click(u"batchPanelButton"_s);
    const QString allSucceeded = driver.text(u"batchSummary"_s);
    driver.report(u"batch-panel"_s, allSucceeded);
    driver.await(
        u"no notice covers the buttons"_s, [&] { return !driver.find(u"toastText"_s); }, 30);
    driver.click(u"putBackButton"_s);
    driver.require(u"previewTable"_s);
    driver.click(u"okButton"_s);
    driver.await(
        u"the devices have their old addresses again"_s,
        [&] { return allHave(rows, changed, "ipport", [](const QVariant &) { return true; }); }, 60);
    awaitBatchEnd(driver);
    driver.check(driver.text(u"batchSummary"_s) == allSucceeded, u"no device has refused its old address"_s);
    driver.report(u"batch-put-back"_s, driver.text(u"batchSummary"_s));
    driver.click(u"okButton"_s); // closes the panel
    driver.await(u"the panel is closed"_s, [&] { return !driver.find(u"batchSummary"_s); });
}

void walkSnapshots(Driver &driver)
{
    Driver live(openLive(driver, recorder), driver.imageFolder() + u"/recorder"_s);
    live.click(u"liveSnapAllButton"_s);
    const QString expected = QCoreApplication::translate("SnapshotDialog", "成功 %n", nullptr, 11);
    awaitSnapshots(live, expected);
    live.report(u"snapshots"_s, live.text(u"snapshotSummary"_s));
    closeSnapshots(live, u"snap/192.168.1.120_80"_s, 11);
    closeLive(driver, live);
    driver.click(u"tab0"_s);
    driver.fill(u"searchField"_s, {});
}

void walkUpgrades(Driver &driver)
{
    const QString firmware = driver.imageFolder() + u"/cameras_%1.bin"_s.arg(newVersion);
    const QByteArray content = "BRELM-FIRMWARE 1\nmodel=" + model.toLatin1() +
                               "\nversion=" + newVersion.toLatin1() + "\n\n" + QByteArray(2000000, '\1');
    driver.check(writeFile(firmware, content), u"the firmware is written"_s);
    driver.click(u"tab1"_s);
    const Rows rows(driver, u"upgradeTable"_s);
    tickRows(driver, rows, cameras);
    driver.click(u"upgradeFileButton"_s);
    driver.acceptFileBox(firmware);
    driver.await(u"each has the file"_s, [&] {
        return allHave(rows, cameras, "filepath",
                       [&](const QVariant &file) { return file.toString() == firmware; });
    });
    driver.click(u"upgradeStartButton"_s);
    driver.require(u"upgradePreviewTable"_s);
    driver.report(u"upgrade-preview"_s, driver.text(u"batchCount"_s));
    driver.click(u"okButton"_s);
    driver.await(
        u"each is upgraded"_s,
        [&] {
            return allHave(rows, cameras, "upgraderes",
                           [](const QVariant &result) { return result.toInt() == UpgradeTools::Success; });
        },
        120);
    awaitBatchEnd(driver);
    driver.check(allHave(rows, cameras, "vision",
                         [](const QVariant &version) { return version.toString() == u'v' + newVersion; }),
                 u"the new version is shown"_s);
    driver.report(u"upgraded"_s, u"three cameras"_s);
}

} // namespace

void walkLabBatches(Driver &driver)
{
    walkCopiedSettings(driver);
    walkClocks(driver);
    walkCommands(driver);
    walkAddresses(driver);
    walkSnapshots(driver);
    walkUpgrades(driver);
}

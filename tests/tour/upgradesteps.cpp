#include "device/registry/upgradetools.h"
#include "device/store/devicerow.h"
#include "sdk/demo/demosite.h"
#include "sheets/qexcel.h"
#include "tests/files/filecontents.h"
#include "tests/tour/driver/commonsteps.h"
#include "tests/tour/driver/firmware.h"
#include "tests/tour/driver/openedaddresses.h"
#include "tests/tour/driver/rows.h"
#include "tests/tour/steps.h"

#include <QDir>

#include <algorithm>

using namespace Qt::StringLiterals;
using sdk::demo::Fault;

namespace {

const QString password = u"Office-2024"_s;
const QString newVersion = u"3.000.1"_s;
const QString newestVersion = u"3.000.2"_s; // set by the document

bool acceptsPassword(const sdk::demo::DemoSite &site, const QString &mac)
{
    const auto device = site.device(mac);
    return device && !device->isUninitialised() &&
           std::any_of(device->accounts.cbegin(), device->accounts.cend(),
                       [](const auto &account) { return account.password == password; });
}

/// The first rows whose devices accept the password and have a unique address.
QList<int> usableRows(const Driver &driver, const Rows &rows, const sdk::demo::DemoSite &site, int count)
{
    QList<int> found;
    for (int row = 0; row < rows.count() && found.size() < count; ++row) {
        if (acceptsPassword(site, rows.value(row, "mac").toString()) && !rows.value(row, "conflict").toBool())
            found.append(row);
    }
    driver.check(found.size() == count, u"there are %1 devices to upgrade"_s.arg(count));
    return found;
}

/// Makes six devices fast, except for the faults of some.
void prepareDevices(const Rows &rows, const QList<int> &indexes, sdk::demo::DemoSite &site)
{
    for (const int row : indexes) {
        const QString mac = rows.value(row, "mac").toString();
        site.setFault(mac, {Fault::UpgradeTakes, 3});
        site.setFault(mac, {Fault::RebootTakes, 2});
    }
    const auto mac = [&](int index) {
        return rows.value(indexes.at(index), "mac").toString();
    };
    site.setFault(mac(1), {Fault::UpgradeFailsAt, 47});
    site.setFault(mac(2), {Fault::UpgradeHangsAt, 63});
    site.setFault(mac(3), {Fault::UpgradeTakes, 60});
    // The device still writes after the other devices have ended.
    site.setFault(mac(5), {Fault::UpgradeTakes, 45});
}

/// Confirms the preview.
void beginUpgrades(Driver &driver, const QString &image)
{
    driver.require(u"upgradePreviewTable"_s);
    if (!image.isEmpty())
        driver.report(image, driver.text(u"batchCount"_s));
    driver.click(u"okButton"_s);
    driver.await(u"the preview is closed"_s, [&] { return !driver.find(u"upgradePreviewTable"_s); });
}

/// A search is refused during upgrades, and closing asks a question.
void expectHold(Driver &driver)
{
    driver.click(u"searchButton"_s);
    driver.await(u"a search is refused"_s, [&] {
        return driver.text(u"messageText"_s) ==
               translated("BusyState", "当前有设备正在升级中，请勿刷新设备！");
    });
    driver.click(u"okButton"_s);
    driver.await(u"the message is closed"_s, [&] { return driver.find(u"messageText"_s) == nullptr; });
    driver.click(u"closeButton"_s);
    driver.check(driver.text(u"messageText"_s)
                     .endsWith(translated("WindowPopups", "已开始写入的设备会自行完成升级，请勿断电。")),
                 u"the question explains that writing devices continue"_s);
    driver.report(u"upgrade-closing"_s, driver.text(u"messageText"_s));
    driver.click(u"cancelButton"_s);
    driver.await(u"the question is closed"_s, [&] { return driver.find(u"messageText"_s) == nullptr; });
}

/// The main page does not change a device that is being upgraded.
void expectRowHeldBack(const Driver &driver, const QString &mac)
{
    driver.click(u"tab0"_s);
    const int row = Rows(driver).rowOf("mac", mac);
    QMetaObject::invokeMethod(driver.require(u"deviceTable"_s), "show", Q_ARG(QVariant, row));
    const QString edit = u"edit%1"_s.arg(row);
    // A table updates changed rows over several frames.
    driver.await(u"its address change is disabled"_s, [&] { return !driver.require(edit)->isEnabled(); });
    driver.hover(edit);
    driver.await(u"the reason is shown"_s, [&] {
        return driver.texts(u"toolTip"_s)
            .contains(translated("ModifyIPActions", "设备正在升级，不能修改IP地址"));
    });
    const QString box = u"check%1"_s.arg(row);
    driver.click(box);
    driver.await(u"deleting it is disabled"_s,
                 [&] { return !driver.require(u"deleteButton"_s)->isEnabled(); });
    driver.click(box);
    driver.await(u"deleting others is enabled"_s,
                 [&] { return driver.require(u"deleteButton"_s)->isEnabled(); });
    driver.click(u"tab1"_s);
}

/// The devices with failed upgrades are filtered, retried, stopped, and finally upgraded.
void walkFailedUpgrades(Driver &driver, sdk::demo::DemoSite &site, const QStringList &macs,
                        const QString &folder)
{
    const Rows rows(driver, u"upgradeTable"_s);
    const auto allHave = [&](UpgradeTools::Result result) {
        return std::all_of(macs.cbegin(), macs.cend(), [&](const QString &mac) {
            return rows.value(rows.rowOf("mac", mac), "upgraderes").toInt() == result;
        });
    };
    for (const QString &mac : macs) {
        site.clearFault(mac, Fault::UpgradeFailsAt);
        site.clearFault(mac, Fault::UpgradeHangsAt);
        site.setFault(mac, {Fault::UpgradeTakes, 60});
    }
    const int all = rows.count();
    driver.click(u"failedFilter"_s);
    driver.await(u"only the failed devices are shown"_s, [&] {
        return rows.count() < all && std::all_of(macs.cbegin(), macs.cend(), [&](const QString &mac) {
                   return rows.rowOf("mac", mac) >= 0;
               });
    });
    driver.report(u"upgrade-failed"_s, driver.text(u"failedFilter"_s));
    driver.click(u"failedFilter"_s);
    driver.await(u"all devices are shown"_s, [&] { return rows.count() == all; });

    driver.click(u"upgradeRetryButton"_s);
    beginUpgrades(driver, {});
    driver.await(u"the devices receive the file"_s, [&] { return allHave(UpgradeTools::Sending); });
    driver.key(Qt::Key_Escape);
    driver.await(u"the devices are stopped"_s, [&] { return allHave(UpgradeTools::Stopped); });
    awaitBatchEnd(driver);
    driver.report(u"upgrade-stopped"_s, driver.text(u"footWarning"_s));

    for (const QString &mac : macs)
        site.setFault(mac, {Fault::UpgradeTakes, 1});
    driver.click(u"retryFailedButton"_s);
    driver.await(
        u"the devices are upgraded"_s, [&] { return allHave(UpgradeTools::Success); }, 30);
    awaitBatchEnd(driver);
    const QString path = folder + u"/results.csv"_s;
    driver.click(u"saveResultsButton"_s);
    driver.acceptFileBox(path);
    driver.await(u"the results are saved"_s,
                 [&] { return fileContents(path).count(newVersion.toLatin1()) == macs.size(); });
    driver.click(u"batchPanelButton"_s);
    driver.require(u"batchResults"_s);
    driver.report(u"upgrade-panel"_s, driver.text(u"batchSummary"_s));
    driver.click(u"okButton"_s);
    driver.await(u"the panel is closed"_s, [&] { return !driver.find(u"batchResults"_s); });
}

void walkTableUpgrade(Driver &driver, sdk::demo::DemoSite &site, const QString &folder)
{
    const Rows rows(driver, u"upgradeTable"_s);
    const QList<int> indexes = usableRows(driver, rows, site, 6);
    prepareDevices(rows, indexes, site);
    QStringList models;
    for (const int row : indexes)
        models.append(rows.value(row, "model").toString());
    models.removeDuplicates();
    writeFirmware(driver, folder, newestVersion, models);
    const QString firmware = writeFirmware(driver, folder, newVersion, models);
    const auto result = [&](int index) {
        return rows.value(indexes.at(index), "upgraderes").toInt();
    };

    driver.click(u"upgradeStartButton"_s);
    expectToast(driver, translated("UpgradeWork", "请选择一台设备"));
    const QString emptyFile = firmware + u".empty"_s;
    driver.check(writeFile(emptyFile, {}), u"there is an empty file"_s);
    driver.click(u"upgradeFile%1"_s.arg(indexes.at(0)));
    driver.acceptFileBox(emptyFile);
    driver.await(u"the empty file is refused"_s, [&] { return result(0) == UpgradeTools::FileEmpty; });
    driver.check(!driver.find(u"upgradePhase%1"_s.arg(indexes.at(0))), u"no progress is shown"_s);
    for (const int row : indexes)
        driver.click(u"check%1"_s.arg(row));
    driver.click(u"upgradeFileButton"_s);
    driver.acceptFileBox(firmware);
    driver.await(u"each device has the file"_s, [&] {
        return std::all_of(indexes.cbegin(), indexes.cend(),
                           [&](int row) { return rows.value(row, "filepath").toString() == firmware; });
    });
    driver.report(u"upgrade-files"_s, u"one file for six devices"_s);
    driver.click(u"upgradeStartButton"_s);
    beginUpgrades(driver, u"upgrade-preview"_s);
    driver.await(u"four devices run at a time"_s, [&] {
        return result(0) == UpgradeTools::Sending && result(4) == UpgradeTools::Waiting &&
               rows.value(indexes.at(0), "upgrade").toInt() > 20;
    });
    driver.report(u"upgrade-running"_s, driver.text(u"runningText"_s));
    expectRowHeldBack(driver, rows.value(indexes.at(3), "mac").toString()); // a slow upgrade
    expectHold(driver);
    driver.click(u"upgradeStop%1"_s.arg(indexes.at(3)));
    driver.await(u"one device is stopped"_s, [&] { return result(3) == UpgradeTools::Stopped; });
    driver.await(
        u"one device writes"_s, [&] { return result(5) == UpgradeTools::Writing; }, 60);
    driver.report(u"upgrade-writing"_s, u"a writing device cannot be stopped"_s);
    awaitBatchEnd(driver);
    const QList<int> expected = {UpgradeTools::Success, UpgradeTools::Failed,  UpgradeTools::Stuck,
                                 UpgradeTools::Stopped, UpgradeTools::Success, UpgradeTools::Success};
    for (int index = 0; index < 6; ++index)
        driver.check(result(index) == expected.at(index),
                     u"device %1 has the result %2"_s.arg(index).arg(expected.at(index)));
    driver.check(rows.value(indexes.at(0), "vision").toString() == u'v' + newVersion,
                 u"the new version is shown"_s);
    driver.report(u"upgrade-results"_s,
                  driver.texts(u"upgradeResult%1"_s.arg(indexes.at(2))).join(QString()));

    QStringList failed;
    for (const int index : {1, 2, 3})
        failed.append(rows.value(indexes.at(index), "mac").toString());
    walkFailedUpgrades(driver, site, failed, folder);
}

/// Fills a copy of the template with three devices. Returns its path.
QString writeDocument(const Driver &driver, const QStringList &addresses, const QString &folder)
{
    QExcel excel;
    bool isWritten = excel.open(QCoreApplication::applicationDirPath() + u"/template/"_s +
                                UpgradeTools::templateFileName());
    const QString firmware = firmwareName(newestVersion);
    const QStringList files = {firmware, firmware, u"missing.bin"_s};
    for (int index = 0; index < addresses.size(); ++index) {
        const int row = index + 2;
        isWritten &= excel.setCellText(row, 1, addresses.at(index).section(u':', 0, 0)) &&
                     excel.setCellText(row, 2, addresses.at(index).section(u':', 1)) &&
                     excel.setCellText(row, 3, u"admin"_s) &&
                     excel.setCellText(row, 4, index == 1 ? u"wrong"_s : password) &&
                     excel.setCellText(row, 5, files.at(index));
    }
    const QString path = folder + u"/upgrades.xlsx"_s;
    driver.check(isWritten && excel.saveAs(path), u"the document is written"_s);
    return path;
}

void walkDocumentUpgrade(Driver &driver, sdk::demo::DemoSite &site, const QString &folder)
{
    const Rows rows(driver, u"upgradeTable"_s);
    QStringList addresses;
    for (const int row : usableRows(driver, rows, site, 3))
        addresses.append(rows.value(row, "ipport").toString());
    const QString path = writeDocument(driver, addresses, folder);
    const OpenedAddresses files(u"file"_s);
    driver.click(u"upgradeTemplateButton"_s);
    const QString opened = files.last().toLocalFile();
    driver.check(QFileInfo(opened).isFile() &&
                     QFileInfo(opened).fileName() == UpgradeTools::templateFileName(),
                 u"the template is opened: %1"_s.arg(opened));
    driver.click(u"upgradeDocumentButton"_s);
    driver.acceptFileBox(path);
    beginUpgrades(driver, u"upgrade-document"_s);
    const QString twoOfThree =
        translated("OVFootBar", "%1 %2 / %3").arg(translated("UpgradeWork", "升级文档")).arg(2).arg(3);
    driver.await(u"two of three lines are done"_s, [&] {
        const QQuickItem *progress = driver.find(u"runningText"_s);
        return progress && progress->property("text").toString() == twoOfThree;
    });
    driver.report(u"upgrade-document-running"_s, driver.text(u"runningText"_s));
    driver.await(
        u"the results are reported"_s,
        [&] { return driver.text(u"messageText"_s).contains(QDir::toNativeSeparators(path)); }, 40);
    driver.report(u"upgrade-document-results"_s, driver.text(u"messageText"_s));
    driver.click(u"okButton"_s);
    driver.await(u"the message is closed"_s, [&] { return driver.find(u"messageText"_s) == nullptr; });
    QExcel excel;
    driver.check(excel.open(path), u"the document can be read"_s);
    driver.check(excel.cellText(2, 6).value_or(QString()).contains(newestVersion) &&
                     excel.cellText(3, 6) == UpgradeTools::text(UpgradeTools::WrongPassword) &&
                     excel.cellText(4, 6) == UpgradeTools::text(UpgradeTools::FileMissing),
                 u"the results are in the document"_s);
}

} // namespace

void walkUpgrade(Driver &driver, sdk::demo::DemoSite &site, const QString &folder)
{
    setDefaultPassword(driver, password);
    driver.click(u"tab1"_s);
    driver.fill(u"upgradeSearchField"_s, u"B-2"_s);
    driver.require(u"check5"_s);
    walkTableUpgrade(driver, site, folder);
    walkDocumentUpgrade(driver, site, folder);
    driver.fill(u"upgradeSearchField"_s, u"nothing of this kind"_s);
    driver.require(u"emptyTitle"_s);
    driver.report(u"upgrade-nothing"_s, driver.text(u"emptyTitle"_s));
    driver.fill(u"upgradeSearchField"_s, QString());
    driver.click(u"upgradeIpv6Choice"_s);
    driver.await(u"devices with an IPv6 address are shown"_s, [&] {
        const Rows rows(driver, u"upgradeTable"_s);
        return rows.count() > 0 && rows.value(0, "ipport").toString().startsWith(u'[');
    });
    driver.report(u"upgrade-ipv6"_s, driver.text(u"upgradeIpv6Choice"_s));
    driver.click(u"upgradeIpv4Choice"_s);
}

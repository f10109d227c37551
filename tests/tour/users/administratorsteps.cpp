// A user with two hundred devices: new passwords, clocks, copied settings, upgrades.
#include "device/registry/upgradetools.h"
#include "sdk/demo/demosite.h"
#include "sdk/demo/scene/fault.h"
#include "tests/tour/driver/commonsteps.h"
#include "tests/tour/driver/firmware.h"
#include "tests/tour/driver/rows.h"
#include "tests/tour/users/usersteps.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString newPassword = u"Fleet-2025"_s;

/// Waits until `count` devices have received the request `operation`.
void awaitRequests(const Driver &driver, sdk::demo::DemoSite &site, const QString &operation, int count)
{
    driver.await(
        u"%1 devices have received a request"_s.arg(count),
        [&] { return site.requests().of(operation).size() >= count; }, 60);
}

/// The cameras of one model are filtered, selected together and deselected.
void walkFilter(Driver &driver)
{
    const Rows rows(driver);
    const int all = rows.count();
    driver.fill(u"searchField"_s, u"B-22"_s);
    driver.await(u"only the cameras of one model are shown"_s,
                 [&] { return rows.count() > 20 && rows.count() < all; });
    driver.click(u"checkAllBox"_s);
    driver.check(rows.countOf("checked", true) == rows.count(), u"all of them are selected"_s);
    driver.report(u"filtered"_s, driver.text(u"selectedCount"_s));
    driver.click(u"checkAllBox"_s);
    driver.fill(u"searchField"_s, QString());
    driver.await(u"all devices are shown"_s, [&] { return rows.count() == all; });
    driver.check(rows.countOf("checked", true) == 0, u"none is selected"_s);
}

/// A search and closing are refused during a batch. The message names the batch.
void expectBatchUndisturbed(Driver &driver, const QString &name)
{
    driver.await(u"the preview is closed"_s, [&] { return !driver.find(u"previewTable"_s); });
    driver.key(Qt::Key_F5);
    driver.await(u"the search is refused"_s, [&] { return driver.find(u"messageText"_s) != nullptr; });
    driver.check(driver.text(u"messageText"_s).contains(name) && !isSearching(driver),
                 u"the message names the batch: %1"_s.arg(driver.text(u"messageText"_s)));
    driver.click(u"okButton"_s);
    driver.await(u"the message is closed"_s, [&] { return !driver.find(u"messageText"_s); });
    driver.check(!driver.window()->close() && driver.window()->isVisible(),
                 u"the window does not close during a batch"_s);
    driver.check(driver.text(u"messageText"_s).contains(name), u"the question names the batch"_s);
    driver.click(u"cancelButton"_s);
    driver.await(u"the question is closed"_s, [&] { return !driver.find(u"messageText"_s); });
    driver.check(isBatchRunning(driver), u"the batch still runs"_s);
}

/// At the end every device has its result, and no device received a wrong password.
void expectSuccess(Driver &driver, sdk::demo::DemoSite &site, const QString &step, int devices)
{
    awaitBatchEnd(driver);
    const QString outcome = QCoreApplication::translate("BatchReport", "%n 台设备成功", "", devices);
    driver.check(driver.text(u"selectedCount"_s).endsWith(outcome) && !driver.find(u"footWarning"_s),
                 u"every device is reported: %1"_s.arg(driver.text(u"selectedCount"_s)));
    const QList<sdk::demo::RecordedRequest> logins = site.requests().of(u"NetLoginSecure"_s);
    for (const sdk::demo::RecordedRequest &login : logins)
        driver.check(login.request.value("passwordMatches"_L1).toBool(),
                     u"%1 gets its own password"_s.arg(login.mac));
    driver.report(step, driver.text(u"selectedCount"_s));
}

/// Some cameras of one model that have accepted the new password, in the order of their addresses.
QList<sdk::demo::SceneDevice> someCameras(const Driver &driver, const sdk::demo::DemoSite &site)
{
    constexpr int wanted = 3;
    QList<sdk::demo::SceneDevice> found;
    const Rows rows(driver);
    for (int row = 0; row < rows.count() && found.size() < wanted; ++row) {
        const auto device = site.device(rows.value(row, "mac").toString());
        if (device && device->model.startsWith(u"B-22") && !rows.value(row, "conflict").toBool() &&
            std::ranges::any_of(device->accounts,
                                [](const auto &account) { return account.password == newPassword; }))
            found.append(*device);
    }
    driver.check(found.size() == wanted, u"enough cameras have the new password"_s);
    return found;
}

QString ipportOf(const sdk::demo::SceneDevice &device)
{
    return u"%1:%2"_s.arg(device.address).arg(device.port);
}

/// Copies the encode settings of the first camera to the others.
void walkCopiedSettings(Driver &driver, const QList<sdk::demo::SceneDevice> &cameras)
{
    driver.click(u"tab2"_s);
    driver.fill(u"treeSearchField"_s, cameras.at(0).address);
    driver.click(u"device_"_s + ipportOf(cameras.at(0)));
    driver.await(
        u"the encode settings are shown"_s, [&] { return driver.find(u"copyButton"_s) != nullptr; }, 30);
    for (const sdk::demo::SceneDevice &camera : cameras.mid(1)) {
        driver.fill(u"treeSearchField"_s, camera.address);
        driver.click(u"tick_"_s + ipportOf(camera));
    }
    driver.fill(u"treeSearchField"_s, QString());
    driver.click(u"copyButton"_s);
    driver.click(u"previewButton"_s);
    driver.require(u"previewTable"_s);
    driver.click(u"okButton"_s);
    driver.await(u"the preview is closed"_s, [&] { return !driver.find(u"previewTable"_s); });
    awaitBatchEnd(driver);
    driver.check(!driver.find(u"footWarning"_s), u"each camera has the settings"_s);
    driver.report(u"fleet-copied"_s, driver.text(u"selectedCount"_s));
}

void walkSomeUpgrades(Driver &driver, sdk::demo::DemoSite &site, const QList<sdk::demo::SceneDevice> &cameras)
{
    QStringList models;
    for (const sdk::demo::SceneDevice &camera : cameras) {
        models.append(camera.model);
        site.setFault(camera.mac, {.fault = sdk::demo::Fault::UpgradeTakes, .number = 3});
        site.setFault(camera.mac, {.fault = sdk::demo::Fault::RebootTakes, .number = 2});
    }
    models.removeDuplicates();
    const QString firmware = writeFirmware(driver, driver.imageFolder(), u"3.000.1"_s, models);
    driver.click(u"tab1"_s);
    const Rows rows(driver, u"upgradeTable"_s);
    for (const sdk::demo::SceneDevice &camera : cameras) {
        driver.fill(u"upgradeSearchField"_s, camera.address);
        driver.await(u"%1 is found"_s.arg(camera.address),
                     [&] { return rows.rowOf("mac", camera.mac) >= 0; });
        driver.click(u"check%1"_s.arg(rows.rowOf("mac", camera.mac)));
    }
    driver.fill(u"upgradeSearchField"_s, u"B-22"_s);
    driver.click(u"upgradeFileButton"_s);
    driver.acceptFileBox(firmware);
    driver.click(u"upgradeStartButton"_s);
    driver.require(u"upgradePreviewTable"_s);
    driver.report(u"fleet-upgrade-preview"_s, driver.text(u"batchCount"_s));
    driver.click(u"okButton"_s);
    driver.await(
        u"each camera has the new version"_s,
        [&] {
            return std::ranges::all_of(cameras, [&](const auto &camera) {
                return rows.value(rows.rowOf("mac", camera.mac), "upgraderes").toInt() ==
                       UpgradeTools::Success;
            });
        },
        120);
    awaitBatchEnd(driver);
    driver.report(u"fleet-upgraded"_s, driver.text(u"upgradeSummary"_s));
    driver.fill(u"upgradeSearchField"_s, QString());
    driver.click(u"tab3"_s);
}

} // namespace

void walkAdministrator(Driver &driver, sdk::demo::DemoSite &site)
{
    const QList<sdk::demo::SceneDevice> scene = site.devices();
    for (const sdk::demo::SceneDevice &device : scene)
        site.setFault(device.mac, {.fault = sdk::demo::Fault::SlowAnswers, .number = 400});
    driver.activate();
    awaitSearchEnd(driver);
    walkFilter(driver);
    driver.click(u"tab3"_s);
    driver.await(u"the tree has devices"_s, [&] { return driver.require(u"allDevicesBox"_s)->isEnabled(); });
    driver.click(u"allDevicesBox"_s);
    int devices = 0;
    driver.await(u"the devices of the fleet are ticked"_s, [&] {
        const QString selected = driver.text(u"selectedCount"_s);
        devices = QRegularExpression(u"^\\d+"_s).match(selected).captured().toInt();
        return devices > 150;
    });

    driver.click(u"systemTab4"_s);
    driver.fill(u"oldPasswordField"_s, u"Installer-2024"_s);
    driver.click(u"loginCheckButton"_s);
    driver.await(
        u"the old passwords are checked"_s,
        [&] { return !isBatchRunning(driver) && driver.require(u"newPasswordField"_s)->isEnabled(); }, 120);
    driver.fill(u"newPasswordField"_s, newPassword);
    driver.fill(u"confirmPasswordField"_s, newPassword);
    site.requests().clear();
    driver.click(u"modifyPasswordButton"_s);
    driver.require(u"previewTable"_s);
    driver.report(u"fleet-preview"_s, driver.text(u"batchCount"_s));
    driver.click(u"okButton"_s);
    awaitRequests(driver, site, u"NetModifyPassword"_s, 3);
    driver.key(Qt::Key_2, Qt::ControlModifier); // to another page
    driver.key(Qt::Key_4, Qt::ControlModifier);
    expectBatchUndisturbed(driver, QCoreApplication::translate("PageSystemConfig", "修改密码"));
    expectSuccess(driver, site, u"fleet-password"_s, devices);
    driver.check(site.requests().of(u"NetModifyPassword"_s).size() == devices &&
                     driver.text(u"oldPasswordField"_s).isEmpty(),
                 u"every password is changed"_s);

    site.requests().clear();
    driver.click(u"systemTab0"_s);
    driver.click(u"setTimeByPCButton"_s);
    driver.require(u"previewTable"_s);
    driver.click(u"okButton"_s);
    awaitRequests(driver, site, u"NetSetDeviceSetting"_s, 18);
    expectBatchUndisturbed(driver, QCoreApplication::translate("SystemTimePanel", "同步电脑时间"));
    expectSuccess(driver, site, u"fleet-time"_s, devices);

    driver.click(u"tab0"_s);
    const QList<sdk::demo::SceneDevice> cameras = someCameras(driver, site);
    walkCopiedSettings(driver, cameras);
    walkSomeUpgrades(driver, site, cameras);
}

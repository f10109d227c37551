// An impatient user with a wrong password: tries passwords, double-clicks everything, presses Escape, changes
// the tab during a batch, and closes the window.
#include "sdk/demo/demosite.h"
#include "sdk/demo/scene/fault.h"
#include "tests/tour/driver/commonsteps.h"
#include "tests/tour/driver/livewindow.h"
#include "tests/tour/driver/rows.h"
#include "tests/tour/users/usersteps.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString password = u"Office-2024"_s;
const QString camera = u"192.168.1.101:8800"_s;

/// Closing during a search is refused with one message.
void walkSearch(Driver &driver)
{
    driver.doubleClick(u"searchButton"_s);
    driver.await(u"a search runs"_s, [&] { return isSearching(driver); });
    driver.click(u"closeButton"_s);
    driver.click(u"closeButton"_s);
    const QString refusal = translated("BusyState", "正在搜索，请先停止搜索（Esc）或稍候再关闭");
    expectToast(driver, refusal);
    driver.check(driver.texts(u"toastText"_s).count(refusal) == 1, u"closing is refused with one message"_s);
    driver.report(u"closing-refused"_s, refusal);
    driver.key(Qt::Key_Escape);
    awaitSearchEnd(driver, 15);
    driver.click(u"searchButton"_s);
    awaitSearch(driver);
}

/// A double click opens a dialog once, and one Escape closes it.
void openTwice(Driver &driver, const QString &button, const QString &sign)
{
    driver.doubleClick(button);
    driver.require(sign);
    driver.key(Qt::Key_Escape);
    driver.awaitGone(sign);
    driver.key(Qt::Key_Escape);
    driver.check(driver.window()->isVisible() && !driver.find(sign), u"\"%1\" opened it once"_s.arg(button));
}

void walkDoubleClicks(Driver &driver)
{
    const Rows rows(driver);
    driver.await(u"the devices that were counted are listed"_s,
                 [&] { return QString::number(rows.count()) == driver.text(u"counterNumber"_s); });
    const int all = rows.count();
    driver.click(u"check0"_s);
    openTwice(driver, u"edit1"_s, u"newStartField"_s);
    openTwice(driver, u"detail1"_s, u"detailList"_s);
    openTwice(driver, u"deleteButton"_s, u"messageText"_s);
    openTwice(driver, u"exportButton"_s, u"format.csv"_s);
    openTwice(driver, u"batchModifyButton"_s, u"newStartField"_s);
    openTwice(driver, u"searchSettingsButton"_s, u"passwordField"_s);
    driver.check(rows.count() == all && rows.countOf("checked", true) == 1, u"the list is as it was"_s);
    driver.doubleClick(u"live2"_s); // not the camera of the login below
    QQuickWindow *live = awaitWindow(driver, u"liveWindow"_s);
    const QWindowList windows = QGuiApplication::topLevelWindows();
    driver.check(std::ranges::count_if(windows,
                                       [](const QWindow *window) {
                                           return window->objectName() == u"liveWindow" &&
                                                  window->isVisible();
                                       }) == 1,
                 u"one live window is open"_s);
    closeLive(driver, Driver(live, driver.imageFolder()));
    driver.activate();
    driver.click(u"check0"_s);
    driver.report(u"clicked-twice"_s, u"nothing is left open"_s);
}

/// Each wrong password is sent once and counted. The correct one is accepted afterwards.
void walkWrongPasswords(Driver &driver, sdk::demo::DemoSite &site)
{
    driver.doubleClick(u"tab2"_s);
    site.requests().clear();
    driver.doubleClick(u"device_"_s + camera);
    const auto isCounted = [&](int times) {
        const QString counted = QCoreApplication::translate("ReloginDialog", "密码错误，已 %n 次", "", times);
        return driver.find(u"devicePasswordField"_s) && driver.texts(u"fieldMessage"_s).contains(counted);
    };
    for (int times = 1; times <= 3; ++times) {
        driver.await(u"wrong password %1 is counted"_s.arg(times), [&] { return isCounted(times); });
        driver.check(site.requests().of("NetLoginSecure").size() == times, u"it was sent once"_s);
        if (times == 3)
            driver.report(u"wrong-passwords"_s, driver.texts(u"fieldMessage"_s).join(u' '));
        driver.fill(u"devicePasswordField"_s, times < 3 ? u"guess-%1"_s.arg(times) : password);
        driver.doubleClick(u"okButton"_s);
    }
    driver.require(u"encodeSaveButton"_s);
    driver.await(u"the device has responded"_s,
                 [&] { return driver.text(u"configState"_s) == translated("DeviceState", "已登录"); });
    driver.awaitGone(u"devicePasswordField"_s); // the dialog fades out
    driver.check(site.requests().of("NetLoginSecure").size() == 4, u"the right password is sent once"_s);
    driver.report(u"right-password"_s, driver.text(u"configDevice"_s));
}

/// A batch is started once. It continues while other pages are shown.
void walkBatch(Driver &driver, sdk::demo::DemoSite &site)
{
    const auto asked = [&site] {
        return site.requests().of(u"NetSetDeviceSetting"_s).size();
    };
    const QList<sdk::demo::SceneDevice> scene = site.devices();
    for (const sdk::demo::SceneDevice &device : scene)
        site.setFault(device.mac, {.fault = sdk::demo::Fault::SlowAnswers, .number = 3000});
    driver.click(u"tab3"_s);
    driver.click(u"systemTab0"_s);
    if (driver.require(u"allDevicesBox"_s)->property("checkState").toInt() != Qt::Checked)
        driver.click(u"allDevicesBox"_s);
    site.requests().clear();
    driver.doubleClick(u"setTimeByPCButton"_s);
    driver.require(u"previewTable"_s);
    driver.click(u"okButton"_s);
    driver.require(u"messageText"_s); // two devices have the same address
    driver.click(u"okButton"_s);
    driver.require(u"runningText"_s);
    for (int tab = 4; tab >= 0; --tab)
        driver.doubleClick(u"tab%1"_s.arg(tab));
    driver.require(u"runningText"_s);
    driver.report(u"other-page"_s, driver.text(u"runningText"_s));
    driver.click(u"tab3"_s);
    driver.await(
        u"a device has received a request"_s, [&] { return asked() > 0; }, 30);

    driver.doubleClick(u"closeButton"_s);
    driver.require(u"messageText"_s);
    driver.report(u"closing-asked"_s, driver.text(u"messageText"_s));
    driver.key(Qt::Key_Escape);
    driver.awaitGone(u"messageText"_s);
    driver.check(isBatchRunning(driver), u"the question was asked once, and the batch continues"_s);
}

} // namespace

void walkImpatient(Driver &driver, sdk::demo::DemoSite &site)
{
    walkSearch(driver);
    walkDoubleClicks(driver);
    walkWrongPasswords(driver, site);
    setDefaultPassword(driver, password);
    walkDeviceAccounts(driver, site);
    walkBatch(driver, site);
}

void walkEndDuringBatch(Driver &driver)
{
    driver.click(u"closeButton"_s);
    driver.require(u"messageText"_s);
    driver.click(u"okButton"_s);
}

#include "sdk/demo/demosite.h"
#include "sdk/demo/scene/fault.h"
#include "tests/tour/driver/commonsteps.h"
#include "tests/tour/driver/rows.h"
#include "tests/tour/driver/scenedevices.h"
#include "tests/tour/driver/scrolledtree.h"
#include "tests/tour/steps.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int noResult = -1;
constexpr int waitsForPassword = -2;
constexpr int wrongPassword = 2;
constexpr int unreachable = 5;

const QString first = u"192.168.1.104:8800"_s;
const QString second = u"192.168.1.106:8800"_s;
const QString third = u"192.168.1.105:8800"_s;
const QString password = u"Office-2024"_s;

int resultOf(const Driver &driver, const QString &device)
{
    return driver.require(u"device_"_s + device)->property("result").toInt();
}

void tick(const Driver &driver, const QString &device)
{
    driver.click(u"tick_"_s + device);
}

/// Presses a button and waits for the results of the three devices.
void apply(const Driver &driver, const QString &button, const QList<int> &expected)
{
    driver.click(button);
    driver.await(u"%1: the devices have the expected results"_s.arg(button), [&] {
        return QList<int>{resultOf(driver, first), resultOf(driver, second), resultOf(driver, third)} ==
               expected;
    });
    awaitBatchEnd(driver);
}

/// The same for a button that first shows a preview of the devices.
void applyListed(const Driver &driver, const QString &button, const QList<int> &expected)
{
    driver.click(button);
    driver.require(u"previewTable"_s);
    apply(driver, u"okButton"_s, expected);
}

void expectRefusal(const Driver &driver, const QString &button, const char *context, const char *message)
{
    driver.click(button);
    expectToast(driver, translated(context, message));
}

/// The search after the change of the settings keeps the marks of the three devices. They can be filtered.
void walkFailed(Driver &driver)
{
    const auto areAlone = [](int rows) {
        return rows == 3;
    };
    driver.click(u"tab0"_s);
    driver.click(u"failedFilter"_s);
    const Rows rows(driver);
    driver.await(u"the table has only the failed devices"_s, [&] { return areAlone(rows.count()); });
    driver.hover(u"failedSign"_s);
    driver.report(u"failed-only"_s, driver.text(u"toolTip"_s));
    driver.click(u"tab3"_s);
    driver.click(u"failedStates"_s);
    driver.await(u"the tree has only the failed devices, under their reason"_s,
                 [&] { return areAlone(driver.require(u"deviceTree"_s)->property("count").toInt() - 1); });
    driver.report(u"system-failed-only"_s, driver.text(u"failedStates"_s));
}

void walkTime(Driver &driver)
{
    setDefaultPassword(driver, u"not the password"_s);
    driver.click(u"tab3"_s);
    if (driver.find(u"clearMarksButton"_s)) // marks of other pages
        driver.click(u"clearMarksButton"_s);
    {
        // The tree has not had the keyboard before the first click.
        const ScrolledTree tree(driver);
        tree.tickGroup();
        tree.tickDevice();
        (void)tree.clickDevice();
        driver.turnWheel(driver.require(u"deviceTree"_s)->mapToScene({1, 1}), 100);
    }
    for (const QString &device : {first, second, third})
        tick(driver, device);
    driver.report(u"system-time"_s, driver.text(u"computerTime"_s));
    applyListed(driver, u"setTimeByPCButton"_s, {wrongPassword, wrongPassword, wrongPassword});
    driver.hover(u"resultSign"_s);
    driver.report(u"system-wrong-password"_s, driver.text(u"toolTip"_s));
    setDefaultPassword(driver, password);
    walkFailed(driver);
    applyListed(driver, u"setTimeByPCButton"_s, {0, 0, 0});
    driver.check(!driver.find(u"clearMarksButton"_s) && !driver.require(u"failedStates"_s)->isEnabled(),
                 u"devices that succeed lose their marks"_s);
    driver.report(u"system-time-by-pc"_s, u"three clocks are set"_s);

    driver.fill(u"manualTimeField"_s, u"2024-02-30 10:00:00"_s);
    expectRefusal(driver, u"setTimeByManualButton"_s, "OVDateTimeField", "请输入正确的时间");
    driver.report(u"system-no-time"_s, u"a nonexistent day"_s);
    driver.fill(u"manualTimeField"_s, u"2024-02-29 10:00:00"_s);
    applyListed(driver, u"setTimeByManualButton"_s, {0, 0, 0});
    apply(driver, u"readTimeButton"_s, {0, 0, 0});
    driver.await(u"the clocks of the devices are listed"_s, [&driver] {
        return driver.find(u"clockTable"_s) &&
               driver.require(u"clockTable"_s)->property("count").toInt() == 3;
    });
    driver.report(u"system-clocks"_s, u"the time of three devices"_s);
}

void walkZone(Driver &driver)
{
    driver.click(u"systemTab1"_s);
    driver.click(u"dstEnableBox"_s);
    driver.click(u"startWeekBox"_s);
    driver.report(u"system-weeks"_s, driver.texts(u"chosenText"_s).join(u' '));
    driver.click(u"choice4"_s); // the last one
    applyListed(driver, u"dstApplyButton"_s, {0, 0, 0});
    driver.click(u"dstByDate"_s);
    driver.require(u"startDayBox"_s);
    driver.report(u"system-zone"_s, driver.texts(u"chosenText"_s).join(u' '));

    driver.click(u"ntpSetBox"_s);
    expectRefusal(driver, u"ntpApplyButton"_s, "SystemZonePanel", "请输入NTP服务器");
    driver.fill(u"ntpServerField"_s, u"time server"_s);
    expectRefusal(driver, u"ntpApplyButton"_s, "SystemZonePanel", "请输入正确的IP地址或域名");
    driver.fill(u"ntpServerField"_s, u"192.168.1.1"_s);
    driver.fill(u"ntpPortField"_s, u"70000"_s);
    driver.check(driver.text(u"ntpPortField"_s) == u"65535"_s,
                 u"a port that is too large becomes the largest"_s);
    driver.fill(u"ntpPortField"_s, u"123"_s);
    driver.click(u"timeZoneBox"_s);
    driver.report(u"system-time-zones"_s, u"the zones of devices"_s);
    driver.click(u"choice1"_s);
    driver.fill(u"updatePeriodField"_s, u"0"_s);
    driver.click(u"ntpApplyButton"_s);
    driver.report(u"system-no-period"_s, driver.text(u"messageText"_s));
    driver.click(u"cancelButton"_s);
    driver.fill(u"updatePeriodField"_s, u"10"_s);
    driver.click(u"ntpApplyButton"_s);
    driver.require(u"previewTable"_s);
    driver.click(u"check2"_s);
    driver.report(u"system-preview"_s, driver.text(u"batchCount"_s));
    apply(driver, u"okButton"_s,
          {0, noResult, 0}); // the unticked device, the last one by address, has no result
}

void walkReboot(Driver &driver, sdk::demo::DemoSite &site)
{
    driver.click(u"systemTab2"_s);
    driver.click(u"autoRebootBox"_s);
    driver.report(u"system-reboot"_s, u"regular reboots, and an immediate one"_s);
    tick(driver, second);
    tick(driver, third);
    driver.click(u"rebootButton"_s);
    driver.require(u"messageText"_s);
    driver.report(u"system-reboot-question"_s, driver.text(u"messageText"_s));
    driver.click(u"cancelButton"_s);
    driver.await(u"the question is closed"_s, [&] { return !driver.find(u"messageText"_s); });
    driver.click(u"rebootButton"_s);
    driver.click(u"previewButton"_s);
    driver.require(u"previewTable"_s);
    driver.report(u"system-reboot-list"_s, driver.text(u"batchCount"_s));
    apply(driver, u"okButton"_s, {0, noResult, noResult});

    // The first device is rebooting, and remains offline during this step.
    const QString mac = macOf(site, first);
    site.setFault(mac, {.fault = sdk::demo::Fault::NoAnswer});
    tick(driver, second);
    tick(driver, third);
    applyListed(driver, u"autoMaintainButton"_s, {unreachable, 0, 0});
    site.clearFault(mac, sdk::demo::Fault::NoAnswer);
    driver.report(u"system-unreachable"_s, driver.text(u"footWarning"_s));
    tick(driver, first);
}

void walkPassword(Driver &driver)
{
    driver.click(u"systemTab4"_s);
    driver.fill(u"oldPasswordField"_s, u"not-the-one"_s);
    apply(driver, u"loginCheckButton"_s, {noResult, wrongPassword, wrongPassword});
    driver.fill(u"oldPasswordField"_s, password);
    apply(driver, u"loginCheckButton"_s, {noResult, waitsForPassword, waitsForPassword});
    driver.await(u"the new password can be entered"_s,
                 [&] { return driver.require(u"newPasswordField"_s)->isEnabled(); });
    const QString countdown = driver.text(u"countdownText"_s);
    driver.await(u"the countdown runs"_s, [&] { return driver.text(u"countdownText"_s) != countdown; });
    tick(driver, third);
    driver.await(u"another tick closes the editor"_s,
                 [&] { return !driver.require(u"newPasswordField"_s)->isEnabled(); });
    tick(driver, third);

    apply(driver, u"loginCheckButton"_s, {noResult, waitsForPassword, waitsForPassword});
    driver.fill(u"newPasswordField"_s, u"onlyletters"_s);
    expectRefusal(driver, u"modifyPasswordButton"_s, "SystemPasswordPanel",
                  "请至少包含数字、字母和常用字符中的两种，且不能存在非法字符。");
    driver.fill(u"newPasswordField"_s, u"Tour-2025"_s);
    driver.fill(u"confirmPasswordField"_s, u"Tour-2025"_s);
    driver.report(u"system-password"_s, driver.text(u"countdownText"_s));
    applyListed(driver, u"modifyPasswordButton"_s, {noResult, 0, 0});
    driver.check(!driver.require(u"newPasswordField"_s)->isEnabled(),
                 u"the editor is closed after the change"_s);
    driver.report(u"system-password-changed"_s, driver.text(u"selectedCount"_s));
}

void walkVideoAndReset(Driver &driver)
{
    driver.click(u"systemTab5"_s);
    driver.click(u"videoStandardBox"_s);
    driver.click(u"choice1"_s);
    applyListed(driver, u"videoStandardButton"_s, {noResult, 0, 0}); // with the new password
    driver.report(u"system-video"_s, driver.texts(u"chosenText"_s).join(u' '));

    driver.click(u"systemTab3"_s);
    driver.report(u"system-reset"_s, u"the effects of a reset"_s);
    tick(driver, second);
    driver.click(u"resetButton"_s);
    driver.require(u"messageText"_s);
    driver.report(u"system-reset-question"_s, driver.text(u"messageText"_s));
    apply(driver, u"okButton"_s, {noResult, noResult, 0});
}

void walkTree(Driver &driver)
{
    const auto rows = [&driver] {
        return driver.require(u"deviceTree"_s)->property("count").toInt();
    };
    const int all = rows();
    driver.click(u"open_IPC"_s);
    driver.await(u"a closed group hides its devices"_s, [&] { return rows() < all; });
    driver.click(u"open_IPC"_s);
    driver.key(Qt::Key_F, Qt::ControlModifier);
    driver.type(u"no such device"_s);
    driver.await(u"nothing matches"_s, [&] { return driver.find(u"emptyTitle"_s); });
    driver.report(u"system-empty"_s, driver.text(u"emptyTitle"_s));
    driver.click(u"emptyActionButton"_s);
    driver.require(u"device_"_s + first);
    driver.click(u"allDevicesBox"_s);
    driver.report(u"system-all"_s, driver.text(u"selectedCount"_s));
    driver.click(u"tab0"_s);
}

} // namespace

void walkSystem(Driver &driver, sdk::demo::DemoSite &site)
{
    walkTime(driver);
    walkZone(driver);
    walkReboot(driver, site);
    walkPassword(driver);
    walkVideoAndReset(driver);
    walkTree(driver);
}

#include "sdk/demo/demosite.h"
#include "sdk/demo/fault.h"
#include "tests/tour/driver.h"
#include "tests/tour/scenedevices.h"
#include "tests/tour/scrolledtree.h"
#include "tests/tour/steps.h"

#include <QCoreApplication>
#include <QQuickItem>

namespace {

constexpr int noResult = -1;
constexpr int waitsForPassword = -2;
constexpr int wrongPassword = 2;
constexpr int unreachable = 5;

const QString first = QStringLiteral("192.168.1.104:8800");
const QString second = QStringLiteral("192.168.2.0:8800");
const QString third = QStringLiteral("192.168.1.105:8800");
const QString password = QStringLiteral("Office-2024");

int resultOf(const Driver &driver, const QString &device)
{
    return driver.require(QStringLiteral("device_") + device)->property("result").toInt();
}

void tick(const Driver &driver, const QString &device)
{
    driver.click(QStringLiteral("tick_") + device);
}

/// Presses a button and waits for the results of the three devices.
void apply(const Driver &driver, const QString &button, const QList<int> &expected)
{
    driver.click(button);
    driver.await(QStringLiteral("%1: the devices' results are as they should").arg(button), [&] {
        return QList<int>{resultOf(driver, first), resultOf(driver, second), resultOf(driver, third)} ==
               expected;
    });
    driver.await(QStringLiteral("%1: the run ends").arg(button),
                 [&] { return driver.find(QStringLiteral("runningText")) == nullptr; });
}

void expectRefusal(const Driver &driver, const QString &button, const char *context, const char *message)
{
    driver.click(button);
    const QString expected = QCoreApplication::translate(context, message);
    driver.await(QStringLiteral("\"%1\" is said").arg(expected),
                 [&] { return driver.texts(QStringLiteral("toastText")).contains(expected); });
}

/// The account that found devices are logged in to with.
void setDefaultPassword(const Driver &driver, const QString &word)
{
    driver.click(QStringLiteral("searchSettingsButton"));
    driver.fill(QStringLiteral("passwordField"), word);
    driver.click(QStringLiteral("okButton"));
    driver.await(QStringLiteral("a search runs"),
                 [&] { return driver.window()->property("searching").toBool(); });
    driver.await(
        QStringLiteral("the search ends"), [&] { return !driver.window()->property("searching").toBool(); },
        30);
}

void walkTime(Driver &driver)
{
    setDefaultPassword(driver, QStringLiteral("not the password"));
    driver.click(QStringLiteral("tab3"));
    {
        // The first click is one into a tree that has not had the keyboard yet.
        const ScrolledTree tree(driver);
        tree.tickGroup();
        tree.tickDevice();
        (void)tree.clickDevice();
        driver.turnWheel(driver.require(QStringLiteral("deviceTree"))->mapToScene({1, 1}), 100);
    }
    for (const QString &device : {first, second, third})
        tick(driver, device);
    driver.report(QStringLiteral("system-time"), driver.text(QStringLiteral("computerTime")));
    apply(driver, QStringLiteral("setTimeByPCButton"), {wrongPassword, wrongPassword, wrongPassword});
    driver.hover(QStringLiteral("resultSign"));
    driver.report(QStringLiteral("system-wrong-password"), driver.text(QStringLiteral("toolTip")));
    setDefaultPassword(driver, password);
    apply(driver, QStringLiteral("setTimeByPCButton"), {0, 0, 0});
    driver.report(QStringLiteral("system-time-by-pc"), QStringLiteral("three clocks are set"));

    driver.fill(QStringLiteral("manualTimeField"), QStringLiteral("2024-02-30 10:00:00"));
    expectRefusal(driver, QStringLiteral("setTimeByManualButton"), "OVDateTimeField", "请输入正确的时间");
    driver.report(QStringLiteral("system-no-time"), QStringLiteral("a day that there is not"));
    driver.fill(QStringLiteral("manualTimeField"), QStringLiteral("2024-02-29 10:00:00"));
    apply(driver, QStringLiteral("setTimeByManualButton"), {0, 0, 0});
}

void walkZone(Driver &driver)
{
    driver.click(QStringLiteral("systemTab1"));
    driver.click(QStringLiteral("dstEnableBox"));
    driver.click(QStringLiteral("startWeekBox"));
    driver.report(QStringLiteral("system-weeks"), driver.texts(QStringLiteral("chosenText")).join(u' '));
    driver.click(QStringLiteral("choice4")); // the last one
    apply(driver, QStringLiteral("dstApplyButton"), {0, 0, 0});
    driver.click(QStringLiteral("dstByDate"));
    driver.require(QStringLiteral("startDayBox"));
    driver.report(QStringLiteral("system-zone"), driver.texts(QStringLiteral("chosenText")).join(u' '));

    driver.click(QStringLiteral("ntpSetBox"));
    expectRefusal(driver, QStringLiteral("ntpApplyButton"), "SystemZonePanel", "请输入NTP服务器");
    driver.fill(QStringLiteral("ntpServerField"), QStringLiteral("192.168.1.1"));
    driver.fill(QStringLiteral("ntpPortField"), QStringLiteral("70000"));
    driver.check(driver.text(QStringLiteral("ntpPortField")) == QStringLiteral("65535"),
                 QStringLiteral("a port that is too large becomes the largest"));
    driver.fill(QStringLiteral("ntpPortField"), QStringLiteral("123"));
    driver.click(QStringLiteral("timeZoneBox"));
    driver.report(QStringLiteral("system-time-zones"), QStringLiteral("the zones of devices"));
    driver.click(QStringLiteral("choice1"));
    apply(driver, QStringLiteral("ntpApplyButton"), {0, 0, 0});
}

void walkReboot(Driver &driver, sdk::demo::DemoSite &site)
{
    driver.click(QStringLiteral("systemTab2"));
    driver.click(QStringLiteral("autoRebootBox"));
    driver.report(QStringLiteral("system-reboot"),
                  QStringLiteral("reboots at regular times, and one at once"));
    tick(driver, second);
    tick(driver, third);
    driver.click(QStringLiteral("rebootButton"));
    driver.require(QStringLiteral("messageText"));
    driver.report(QStringLiteral("system-reboot-question"), driver.text(QStringLiteral("messageText")));
    driver.click(QStringLiteral("cancelButton"));
    driver.await(QStringLiteral("the question is gone"),
                 [&] { return !driver.find(QStringLiteral("messageText")); });
    driver.click(QStringLiteral("rebootButton"));
    apply(driver, QStringLiteral("okButton"), {0, noResult, noResult});

    // The first is away now, and stays so for as long as this takes.
    const QString mac = macOf(site, first);
    site.setFault(mac, {.fault = sdk::demo::Fault::NoAnswer, .number = 0, .text = {}});
    tick(driver, second);
    tick(driver, third);
    apply(driver, QStringLiteral("autoMaintainButton"), {unreachable, 0, 0});
    site.clearFault(mac, sdk::demo::Fault::NoAnswer);
    driver.report(QStringLiteral("system-unreachable"), driver.text(QStringLiteral("footWarning")));
    tick(driver, first);
}

void walkPassword(Driver &driver)
{
    driver.click(QStringLiteral("systemTab4"));
    driver.fill(QStringLiteral("oldPasswordField"), QStringLiteral("not-the-one"));
    apply(driver, QStringLiteral("loginCheckButton"), {noResult, wrongPassword, wrongPassword});
    driver.fill(QStringLiteral("oldPasswordField"), password);
    apply(driver, QStringLiteral("loginCheckButton"), {noResult, waitsForPassword, waitsForPassword});
    driver.await(QStringLiteral("the new password is asked for"),
                 [&] { return driver.require(QStringLiteral("newPasswordField"))->isEnabled(); });
    const QString countdown = driver.text(QStringLiteral("countdownText"));
    driver.await(QStringLiteral("the seconds go by"),
                 [&] { return driver.text(QStringLiteral("countdownText")) != countdown; });
    tick(driver, third);
    driver.await(QStringLiteral("another tick closes the editor"),
                 [&] { return !driver.require(QStringLiteral("newPasswordField"))->isEnabled(); });
    tick(driver, third);

    apply(driver, QStringLiteral("loginCheckButton"), {noResult, waitsForPassword, waitsForPassword});
    driver.fill(QStringLiteral("newPasswordField"), QStringLiteral("onlyletters"));
    expectRefusal(driver, QStringLiteral("modifyPasswordButton"), "SystemPasswordPanel",
                  "请至少包含数字、字母和常用字符中的两种，且不能存在非法字符。");
    driver.fill(QStringLiteral("newPasswordField"), QStringLiteral("Tour-2025"));
    driver.fill(QStringLiteral("confirmPasswordField"), QStringLiteral("Tour-2025"));
    driver.report(QStringLiteral("system-password"), driver.text(QStringLiteral("countdownText")));
    apply(driver, QStringLiteral("modifyPasswordButton"), {noResult, 0, 0});
    driver.check(!driver.require(QStringLiteral("newPasswordField"))->isEnabled(),
                 QStringLiteral("a password that is changed is done with"));
    driver.report(QStringLiteral("system-password-changed"), driver.text(QStringLiteral("selectedCount")));
}

void walkVideoAndReset(Driver &driver)
{
    driver.click(QStringLiteral("systemTab5"));
    driver.click(QStringLiteral("videoStandardBox"));
    driver.click(QStringLiteral("choice1"));
    apply(driver, QStringLiteral("videoStandardButton"), {noResult, 0, 0}); // with the new password
    driver.report(QStringLiteral("system-video"), driver.texts(QStringLiteral("chosenText")).join(u' '));

    driver.click(QStringLiteral("systemTab3"));
    driver.report(QStringLiteral("system-reset"), QStringLiteral("what a reset takes away"));
    tick(driver, second);
    driver.click(QStringLiteral("resetButton"));
    driver.require(QStringLiteral("messageText"));
    driver.report(QStringLiteral("system-reset-question"), driver.text(QStringLiteral("messageText")));
    apply(driver, QStringLiteral("okButton"), {noResult, noResult, 0});
}

void walkTree(Driver &driver)
{
    const auto rows = [&driver] {
        return driver.require(QStringLiteral("deviceTree"))->property("count").toInt();
    };
    const int all = rows();
    driver.click(QStringLiteral("open_IPC"));
    driver.await(QStringLiteral("a closed group hides its devices"), [&] { return rows() < all; });
    driver.click(QStringLiteral("open_IPC"));
    driver.key(Qt::Key_F, Qt::ControlModifier);
    driver.type(QStringLiteral("no such device"));
    driver.await(QStringLiteral("nothing matches"),
                 [&] { return driver.find(QStringLiteral("emptyTitle")); });
    driver.report(QStringLiteral("system-empty"), driver.text(QStringLiteral("emptyTitle")));
    driver.click(QStringLiteral("emptyActionButton"));
    driver.require(QStringLiteral("device_") + first);
    driver.click(QStringLiteral("allDevicesBox"));
    driver.report(QStringLiteral("system-all"), driver.text(QStringLiteral("selectedCount")));
    driver.click(QStringLiteral("tab0"));
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

#include "sdk/clock.h"
#include "sdk/demo/demosite.h"
#include "tests/tour/driver.h"
#include "tests/tour/steps.h"

#include <QCoreApplication>
#include <QQuickItem>

namespace {

/// Devices of the site that a search of the local segment lists by an IPv4 address.
int devicesInReach(bool otherSegmentToo)
{
    int devices = 0;
    const auto site =
        sdk::demo::DemoSite::open(QStringLiteral("office"), std::make_shared<sdk::SystemClock>(), nullptr);
    site->visitDevices([&](const sdk::demo::SceneDevice &device) {
        const bool set =
            !device.isRemote && !device.address.isEmpty() && device.address != QLatin1String("0.0.0.0");
        devices += set && (otherSegmentToo || !device.inOtherSegment) ? 1 : 0;
    });
    return devices;
}

bool isSearching(const Driver &driver)
{
    return driver.window()->property("searching").toBool();
}

int counter(const Driver &driver)
{
    return driver.text(QStringLiteral("counterNumber")).toInt();
}

int rows(const Driver &driver)
{
    return driver.require(QStringLiteral("deviceTable"))->property("count").toInt();
}

/// The settings stay open and say why they are refused.
void expectRefusal(const Driver &driver, const char *message)
{
    const QString expected = QCoreApplication::translate("SearchSettingsDialog", message);
    driver.await(QStringLiteral("\"%1\" is said").arg(expected),
                 [&] { return driver.texts(QStringLiteral("toastText")).contains(expected); });
    driver.check(driver.find(QStringLiteral("okButton")) != nullptr,
                 QStringLiteral("settings that are refused stay open"));
}

void awaitEndOfSearch(const Driver &driver, int seconds)
{
    driver.await(
        QStringLiteral("the search ends"), [&] { return !isSearching(driver); }, seconds);
}

void walkNothingToSearch(Driver &driver)
{
    driver.click(QStringLiteral("searchSettingsButton"));
    driver.click(QStringLiteral("localDomainBox"));
    driver.click(QStringLiteral("okButton"));
    driver.await(QStringLiteral("the page says that the settings name nothing to search"), [&] {
        return rows(driver) == 0 && driver.find(QStringLiteral("emptyTitle")) &&
               driver.text(QStringLiteral("emptyTitle")) ==
                   QCoreApplication::translate("ModifyIPEmptyState", "搜索设置中没有选择网段");
    });
    driver.report(QStringLiteral("nothing-to-search"), driver.text(QStringLiteral("emptyTitle")));
    driver.click(QStringLiteral("emptyActionButton")); // opens the settings
    driver.click(QStringLiteral("localDomainBox"));
    driver.key(Qt::Key_Escape);
    driver.await(QStringLiteral("the settings are closed"),
                 [&] { return !driver.find(QStringLiteral("okButton")); });
}

} // namespace

void walkFirstSearch(Driver &driver)
{
    // On a busy machine it is over before the tour begins; then another one is looked at in its place.
    if (!isSearching(driver)) {
        driver.check(counter(driver) > 0, QStringLiteral("the window has searched by itself"));
        driver.key(Qt::Key_F5);
    }
    driver.await(QStringLiteral("the first search runs"), [&] { return isSearching(driver); });
    driver.report(QStringLiteral("first-search"), QStringLiteral("the window searches by itself"));

    driver.await(QStringLiteral("devices appear while the search runs"),
                 [&] { return counter(driver) > 0 && rows(driver) > 0; });
    if (isSearching(driver)) {
        driver.click(QStringLiteral("closeButton"));
        const QString refusal = QCoreApplication::translate("MainWindow", "正在搜索，请稍候再关闭");
        driver.await(QStringLiteral("closing during a search is refused"),
                     [&] { return driver.texts(QStringLiteral("toastText")).contains(refusal); });
    }
    driver.report(QStringLiteral("counter-climbs"),
                  QStringLiteral("%1 devices so far, closing is refused").arg(counter(driver)));

    awaitEndOfSearch(driver, 15);
    const int expected = devicesInReach(false);
    driver.check(counter(driver) == expected && rows(driver) == expected,
                 QStringLiteral("%1 devices are counted and listed (%2, %3)")
                     .arg(expected)
                     .arg(counter(driver))
                     .arg(rows(driver)));
    driver.hover(QStringLiteral("searchButton"));
    driver.report(QStringLiteral("found"), QStringLiteral("%1 devices found").arg(counter(driver)));
}

void walkSearchSettings(Driver &driver)
{
    walkNothingToSearch(driver);
    driver.click(QStringLiteral("searchSettingsButton"));
    driver.report(QStringLiteral("search-settings"), QStringLiteral("search settings"));

    driver.click(QStringLiteral("localDomainBox"));
    driver.click(QStringLiteral("otherDomainBox"));
    driver.fill(QStringLiteral("startIpField"), QStringLiteral("192.168.3.1"));
    driver.fill(QStringLiteral("endIpField"), QStringLiteral("192.168.2.254"));
    driver.click(QStringLiteral("okButton"));
    expectRefusal(driver, "起始ip不可以大于结束ip");
    driver.report(QStringLiteral("search-settings-begin-above-end"),
                  QStringLiteral("the end in front of the begin"));
    driver.fill(QStringLiteral("endIpField"), QStringLiteral("192.168.20.1"));
    driver.click(QStringLiteral("okButton"));
    expectRefusal(driver, "仅支持跨16个网段搜索");
    driver.report(QStringLiteral("search-settings-too-many"), QStringLiteral("17 segments apart"));
    driver.fill(QStringLiteral("startIpField"), QStringLiteral("192.168.2"));
    driver.click(QStringLiteral("okButton"));
    expectRefusal(driver, "请输入正确的起始IP");
    driver.report(QStringLiteral("search-settings-no-address"), QStringLiteral("an unfinished address"));

    driver.fill(QStringLiteral("startIpField"), QStringLiteral("192.168.2.1"));
    driver.fill(QStringLiteral("endIpField"), QStringLiteral("192.168.2.254"));
    driver.click(QStringLiteral("okButton"));
    driver.await(QStringLiteral("accepted settings start a search"), [&] { return isSearching(driver); });
    awaitEndOfSearch(driver, 30);
    const int expected = devicesInReach(true);
    driver.check(counter(driver) == expected,
                 QStringLiteral("the other segment's devices are found as well: %1 (%2)")
                     .arg(expected)
                     .arg(counter(driver)));
    driver.report(QStringLiteral("other-segment"),
                  QStringLiteral("%1 devices with the other segment").arg(expected));
}

#include "sdk/clock.h"
#include "sdk/demo/demosite.h"
#include "tests/tour/steps.h"
#include "tests/tour/words.h"

using namespace Qt::StringLiterals;

namespace {

/// Devices of the site that a search of the local segment lists by an IPv4 address.
int devicesInReach(bool otherSegmentToo)
{
    int devices = 0;
    const auto site = sdk::demo::DemoSite::open(u"office"_s, std::make_shared<sdk::SystemClock>(), nullptr);
    site->forEachDevice([&](const sdk::demo::SceneDevice &device) {
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
    return driver.text(u"counterNumber"_s).toInt();
}

int rows(const Driver &driver)
{
    return driver.require(u"deviceTable"_s)->property("count").toInt();
}

/// The settings stay open and say why they are refused.
void expectRefusal(const Driver &driver, const char *message)
{
    expectToast(driver, translated("SearchSettingsDialog", message));
    driver.check(driver.find(u"okButton"_s) != nullptr, u"settings that are refused stay open"_s);
}

void awaitEndOfSearch(const Driver &driver, int seconds)
{
    driver.await(
        u"the search ends"_s, [&] { return !isSearching(driver); }, seconds);
}

/// A search of 17 segments takes two minutes. What it has found when it is stopped stays.
void walkStop(Driver &driver)
{
    driver.await(u"a device of the other segment is found"_s, [&] { return counter(driver) > 0; });
    driver.click(u"closeButton"_s);
    expectToast(driver, translated("BusyState", "正在搜索，请先停止搜索（Esc）或稍候再关闭"));
    driver.report(u"search-running"_s, u"%1 devices so far, closing is refused"_s.arg(counter(driver)));
    driver.click(u"stopButton"_s);
    awaitEndOfSearch(driver, 10);
    driver.check(rows(driver) == counter(driver) && counter(driver) > 0,
                 u"what a stopped search has found stays"_s);
}

} // namespace

void walkFirstSearch(Driver &driver)
{
    // On a busy machine it is over before the tour begins; then another one is looked at in its place.
    if (!isSearching(driver)) {
        driver.check(counter(driver) > 0, u"the window has searched by itself"_s);
        driver.key(Qt::Key_F5);
    }
    driver.await(u"the first search runs"_s, [&] { return isSearching(driver); });
    driver.report(u"first-search"_s, u"the window searches by itself"_s);

    driver.await(u"devices appear while the search runs"_s,
                 [&] { return counter(driver) > 0 && rows(driver) > 0; });
    driver.report(u"counter-climbs"_s, u"%1 devices so far"_s.arg(counter(driver)));

    awaitEndOfSearch(driver, 15);
    const int expected = devicesInReach(false);
    driver.check(
        counter(driver) == expected && rows(driver) == expected,
        u"%1 devices are counted and listed (%2, %3)"_s.arg(expected).arg(counter(driver)).arg(rows(driver)));
    driver.hover(u"searchButton"_s);
    driver.report(u"found"_s, u"%1 devices found"_s.arg(counter(driver)));
}

void walkSearchSettings(Driver &driver)
{
    // The rows of devices that batches failed with would stay through the searches.
    driver.click(u"clearMarksButton"_s);
    driver.await(u"no device is marked"_s, [&] { return !driver.find(u"clearMarksButton"_s); });
    driver.click(u"searchSettingsButton"_s);
    driver.report(u"search-settings"_s, u"search settings"_s);

    driver.click(u"localDomainBox"_s);
    driver.click(u"otherDomainBox"_s);
    driver.fill(u"startIpField"_s, u"192.168.3.1"_s);
    driver.fill(u"endIpField"_s, u"192.168.2.254"_s);
    driver.click(u"okButton"_s);
    expectRefusal(driver, "起始ip不可以大于结束ip");
    driver.report(u"search-settings-begin-above-end"_s, u"the end in front of the begin"_s);
    driver.fill(u"endIpField"_s, u"192.168.20.1"_s);
    driver.click(u"okButton"_s);
    expectRefusal(driver, "仅支持跨16个网段搜索");
    driver.report(u"search-settings-too-many"_s, u"17 segments apart"_s);
    driver.fill(u"startIpField"_s, u"192.168.2"_s);
    driver.click(u"okButton"_s);
    expectRefusal(driver, "请输入正确的起始IP");
    driver.report(u"search-settings-no-address"_s, u"an unfinished address"_s);

    driver.fill(u"startIpField"_s, u"192.168.2.1"_s);
    driver.fill(u"endIpField"_s, u"192.168.18.254"_s);
    driver.click(u"okButton"_s);
    driver.await(u"accepted settings start a search"_s, [&] { return isSearching(driver); });
    walkStop(driver);

    driver.click(u"searchSettingsButton"_s);
    driver.click(u"localDomainBox"_s);
    driver.fill(u"startIpField"_s, u"192.168.2.1"_s);
    driver.fill(u"endIpField"_s, u"192.168.2.254"_s);
    driver.click(u"okButton"_s);
    driver.await(u"the next search starts"_s, [&] { return isSearching(driver); });
    awaitEndOfSearch(driver, 30);
    const int expected = devicesInReach(true);
    driver.check(
        counter(driver) == expected,
        u"the other segment's devices are found as well: %1 (%2)"_s.arg(expected).arg(counter(driver)));
    driver.report(u"other-segment"_s, u"%1 devices with the other segment"_s.arg(expected));
}

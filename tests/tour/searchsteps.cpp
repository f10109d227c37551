#include "sdk/clock.h"
#include "sdk/demo/demosite.h"
#include "tests/tour/driver/commonsteps.h"
#include "tests/tour/driver/rows.h"
#include "tests/tour/steps.h"

using namespace Qt::StringLiterals;

namespace {

/// The number of IPv4 devices that a search finds.
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

int counter(const Driver &driver)
{
    return driver.text(u"counterNumber"_s).toInt();
}

/// Devices of the list, without those that are known only.
int rows(const Driver &driver)
{
    return Rows(driver).countOf("absent", false);
}

/// The settings stay open and show the reason of the refusal.
void expectRefusal(const Driver &driver, const char *message)
{
    expectToast(driver, translated("SearchSettingsDialog", message));
    driver.check(driver.find(u"okButton"_s) != nullptr, u"refused settings stay open"_s);
}

/// Stops a search of 17 segments, which takes two minutes. Its results are kept.
void walkStop(Driver &driver)
{
    driver.await(u"a device of the other segment is found"_s, [&] { return counter(driver) > 0; });
    driver.click(u"closeButton"_s);
    expectToast(driver, translated("BusyState", "正在搜索，请先停止搜索（Esc）或稍候再关闭"));
    driver.report(u"search-running"_s, u"%1 devices so far, closing is refused"_s.arg(counter(driver)));
    driver.click(u"stopButton"_s);
    awaitSearchEnd(driver, 10);
    driver.check(rows(driver) == counter(driver) && counter(driver) > 0,
                 u"the results of a stopped search are kept"_s);
}

} // namespace

void walkFirstSearch(Driver &driver)
{
    // On a busy machine the first search has ended before the tour starts. Another one is started then.
    if (!isSearching(driver)) {
        driver.check(counter(driver) > 0, u"the application has searched at its start"_s);
        driver.key(Qt::Key_F5);
    }
    driver.await(u"the first search runs"_s, [&] { return isSearching(driver); });
    driver.report(u"first-search"_s, u"the application searches at its start"_s);

    driver.await(u"devices appear while the search runs"_s,
                 [&] { return counter(driver) > 0 && rows(driver) > 0; });
    driver.report(u"counter-climbs"_s, u"%1 devices so far"_s.arg(counter(driver)));

    awaitSearchEnd(driver, 15);
    const int expected = devicesInReach(false);
    driver.check(
        counter(driver) == expected && rows(driver) == expected,
        u"%1 devices are counted and listed (%2, %3)"_s.arg(expected).arg(counter(driver)).arg(rows(driver)));
    driver.hover(u"searchButton"_s);
    driver.report(u"found"_s, u"%1 devices found"_s.arg(counter(driver)));
}

void walkSearchSettings(Driver &driver)
{
    // A search keeps the rows of devices with failed batches.
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
    driver.report(u"search-settings-begin-above-end"_s, u"the end is less than the start"_s);
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
    awaitSearchEnd(driver, 30);
    const int expected = devicesInReach(true);
    driver.check(
        counter(driver) == expected,
        u"the other segment's devices are found as well: %1 (%2)"_s.arg(expected).arg(counter(driver)));
    driver.report(u"other-segment"_s, u"%1 devices with the other segment"_s.arg(expected));
}

// A user whose list remains empty: a search of the local network does not reach the only device. It is added
// by its address, and found with other search settings. Without any device the user can open the demo site.
#include "tests/files/filecontents.h"
#include "tests/tour/driver/commonsteps.h"
#include "tests/tour/driver/rows.h"
#include "tests/tour/users/usersteps.h"

using namespace Qt::StringLiterals;

namespace {

const QString address = u"192.168.7.30"_s;
const QString password = u"Attic-2026"_s;

void awaitEmptyList(const Driver &driver)
{
    awaitSearchEnd(driver);
    driver.await(u"nothing is found"_s, [&] {
        return driver.find(u"emptyTitle"_s) &&
               driver.text(u"emptyTitle"_s) == translated("ModifyIPEmptyState", "没有找到设备");
    });
}

void awaitDevice(const Driver &driver)
{
    const Rows rows(driver);
    driver.await(
        u"the device is in the list"_s,
        [&] { return rows.count() == 1 && rows.value(0, "ipport").toString() == address + u":37777"_s; }, 30);
}

/// The report of a search without results.
void walkReport(Driver &driver)
{
    driver.click(u"emptyLink"_s);
    const QString summary = driver.text(u"reportSummary"_s);
    driver.check(summary == translated("SearchReportText", "没有找到设备。"),
                 u"the report states the result"_s);
    driver.report(u"search-report"_s, summary);
    driver.click(u"okButton"_s);
    expectToast(driver, translated("SearchReportDialog", "已复制到剪贴板"));
    driver.key(Qt::Key_Escape);
    driver.await(u"the report is closed"_s, [&] { return !driver.find(u"reportSummary"_s); });
}

void walkAddingByAddress(Driver &driver)
{
    driver.click(u"emptyAddButton"_s);
    driver.fill(u"addressField"_s, address);
    driver.fill(u"devicePasswordField"_s, password);
    driver.report(u"adding"_s, driver.text(u"addressField"_s));
    driver.click(u"okButton"_s);
    awaitDevice(driver);
    driver.await(u"the dialog is closed"_s, [&] { return !driver.find(u"addressField"_s); });
    driver.report(u"added"_s, driver.texts(u"toastText"_s).join(u' '));
    driver.click(u"check0"_s);
    driver.click(u"deleteButton"_s);
    driver.click(u"okButton"_s);
    awaitEmptyList(driver);
}

void walkSettings(Driver &driver)
{
    driver.click(u"emptySettingsButton"_s);
    driver.click(u"localDomainBox"_s);
    driver.click(u"okButton"_s);
    driver.await(u"the page states that the search settings are empty"_s, [&] {
        return driver.find(u"emptyTitle"_s) &&
               driver.text(u"emptyTitle"_s) == translated("ModifyIPEmptyState", "搜索设置中没有选择网段");
    });
    driver.report(u"nothing-to-search"_s, driver.text(u"emptyTitle"_s));
    driver.click(u"emptyActionButton"_s);
    driver.click(u"otherDomainBox"_s);
    driver.fill(u"startIpField"_s, u"192.168.7.1"_s);
    driver.fill(u"endIpField"_s, u"192.168.7.254"_s);
    driver.report(u"settings"_s, u"another network"_s);
    driver.click(u"okButton"_s);
    awaitDevice(driver);
    awaitSearchEnd(driver);
    driver.report(u"found"_s, driver.text(u"counterText"_s));
}

} // namespace

QString writeEmptyScene(const QString &folder)
{
    const QString path = folder + u"/scene.json"_s;
    const QString scene = uR"({"title": "Attic", "devices": [{
        "mac": "02:1a:c5:00:50:30", "address": "%1", "gateway": "192.168.7.1", "port": 37777,
        "name": "IPC", "type": "IPC", "model": "B-2230-IR", "version": "2.840.1", "serial": "3F0481913BR",
        "accounts": [{"user": "admin", "password": "%2"}], "channels": 1, "segment": "other"}]})"_s;
    return writeFile(path, scene.arg(address, password).toUtf8()) ? path : QString();
}

void walkNewcomer(Driver &driver)
{
    driver.activate();
    awaitEmptyList(driver);
    driver.check(driver.text(u"emptyHint"_s).contains(u"192.168.1."_s),
                 u"the networks that were searched are named: %1"_s.arg(driver.text(u"emptyHint"_s)));
    driver.report(u"nothing-found"_s, driver.text(u"emptyHint"_s));
    walkReport(driver);
    walkAddingByAddress(driver);
    walkSettings(driver);
}

void walkNoDevices(Driver &driver)
{
    driver.activate();
    awaitEmptyList(driver);
    driver.report(u"no-devices"_s, driver.text(u"emptyHint"_s));
}

void walkToDemoSite(Driver &driver)
{
    driver.click(u"emptyDemoLink"_s);
}

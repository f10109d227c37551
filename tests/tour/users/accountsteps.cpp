#include "device/batch/batch.h"
#include "sdk/demo/demosite.h"
#include "tests/tour/driver/commonsteps.h"
#include "tests/tour/driver/rows.h"
#include "tests/tour/users/usersteps.h"

using namespace Qt::StringLiterals;

namespace {

const QString device = u"192.168.1.102:8800"_s;
const QString otherDevice = u"192.168.1.103:8800"_s;
const QString branchDevice = u"192.168.1.104:8800"_s;
const QString branchMac = u"02:1a:c5:00:40:94"_s;

int treeRows(const Driver &driver)
{
    return driver.require(u"deviceTree"_s)->property("count").toInt();
}

/// Sets the clocks of the ticked devices. Returns the result of each device.
QList<int> setClocks(const Driver &driver, const QStringList &devices)
{
    QList<int> results;
    driver.click(u"setTimeByPCButton"_s);
    if (devices.size() > 1) { // one device needs no question
        driver.require(u"previewTable"_s);
        driver.click(u"okButton"_s);
    }
    driver.await(u"the devices have results, and the batch ends"_s, [&] {
        results.clear();
        for (const QString &ipport : devices)
            results.append(driver.require(u"device_"_s + ipport)->property("result").toInt());
        return !results.contains(-1) && !isBatchRunning(driver);
    });
    return results;
}

/// Two devices use the default account.
void walkDefaultAccount(Driver &driver, sdk::demo::DemoSite &site)
{
    driver.click(u"tab3"_s);
    driver.click(u"tick_"_s + device);
    driver.click(u"tick_"_s + otherDevice);
    driver.check(driver.require(u"allDevicesBox"_s)->property("checkState").toInt() == Qt::PartiallyChecked,
                 u"some of the devices are ticked"_s);
    site.requests().clear();
    driver.check(setClocks(driver, {device, otherDevice}) == QList<int>({0, 0}),
                 u"the devices accept the default account without a question"_s);
    driver.check(site.requests().of("NetLoginSecure").size() == 2, u"each device gets one login"_s);
}

/// The tree can show only devices without a login. A new search removes the results.
void walkStates(Driver &driver)
{
    const int all = treeRows(driver);
    driver.click(u"loggedOutStates"_s);
    driver.await(u"the devices that were logged in to are not shown"_s,
                 [&] { return treeRows(driver) < all && !driver.find(u"device_"_s + device); });
    driver.report(u"tree-logged-out"_s, driver.require(u"loggedOutStates"_s)->property("text").toString());
    driver.click(u"allStates"_s);
    driver.await(u"all devices are shown"_s, [&] { return driver.find(u"device_"_s + device); });
    searchAgain(driver);
    driver.await(u"the results of the earlier search are removed"_s, [&] {
        const QQuickItem *row = driver.find(u"device_"_s + device);
        return row && row->property("result").toInt() == -1 && !driver.find(u"resultSign"_s);
    });
}

void fillAccount(const Driver &driver, const QString &name, const QString &account, const QString &password)
{
    driver.fill(u"accountNameField"_s, name);
    driver.fill(u"accountUserField"_s, account);
    driver.fill(u"accountPasswordField"_s, password);
    driver.click(u"okButton"_s);
}

/// One device has a different account, which is selected for it. No other account is tried.
void walkAccounts(Driver &driver, sdk::demo::DemoSite &site)
{
    site.changeDevice(branchMac, [](auto &branch, const auto &) {
        branch.accounts = {{u"operator"_s, u"Branch-2024"_s}};
    });
    driver.click(u"menuButton"_s);
    driver.click(u"accountsItem"_s);
    driver.click(u"addAccountButton"_s);
    fillAccount(driver, u"Branch"_s, u"operator"_s, {});
    driver.await(u"an account without a password is refused"_s,
                 [&] { return !driver.texts(u"fieldMessage"_s).isEmpty(); });
    driver.report(u"account-refused"_s, driver.texts(u"fieldMessage"_s).join(u' '));
    fillAccount(driver, u"Branch"_s, u"operator"_s, u"Branch-2024"_s);
    driver.await(u"the account is listed"_s, [&] {
        return !driver.find(u"accountNameField"_s) && Rows(driver, u"accountsTable"_s).count() == 2;
    });
    driver.report(u"accounts"_s, u"%1 accounts"_s.arg(Rows(driver, u"accountsTable"_s).count()));
    driver.click(u"okButton"_s);
    driver.await(u"the dialog is closed"_s, [&] { return !driver.find(u"accountsTable"_s); });

    driver.rightClick(u"device_"_s + branchDevice);
    driver.report(u"account-menu"_s, u"the actions of a device"_s);
    driver.click(u"accountItem"_s);
    driver.await(u"the default account is the device's"_s,
                 [&] { return driver.require(u"accountsTable"_s)->property("currentIndex").toInt() == 0; });
    driver.click(u"row1"_s);
    driver.report(u"account-choice"_s, u"an account for one device"_s);
    driver.click(u"okButton"_s);
    driver.await(u"the account is selected"_s, [&] { return !driver.find(u"accountsTable"_s); });
    for (const QString &ipport : {device, otherDevice, branchDevice}) // some are still ticked
        if (driver.require(u"device_"_s + ipport)->property("tick").toInt() == Qt::Unchecked)
            driver.click(u"tick_"_s + ipport);
    site.requests().clear();
    driver.check(setClocks(driver, {device, branchDevice}) == QList<int>({0, 0}),
                 u"each device accepts its own account"_s);
    driver.check(site.requests().of("NetLoginSecure").size() == 3, u"no device gets two logins"_s);
    driver.report(u"account-of-device"_s, u"the clocks of three devices with two accounts"_s);
}

} // namespace

void walkDeviceAccounts(Driver &driver, sdk::demo::DemoSite &site)
{
    walkDefaultAccount(driver, site);
    walkStates(driver);
    walkAccounts(driver, site);
}

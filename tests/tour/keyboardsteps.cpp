#include "sdk/demo/demosite.h"
#include "tests/tour/rows.h"
#include "tests/tour/steps.h"
#include "tests/tour/words.h"

#include <QClipboard>
#include <QGuiApplication>

using namespace Qt::StringLiterals;

namespace {

bool hasKeyboard(const Driver &driver, const QString &name)
{
    const QQuickItem *item = driver.find(name);
    return item && item->hasActiveFocus();
}

/// Presses a key until the item has the keyboard.
void goTo(const Driver &driver, const QString &name, Qt::Key key, int most)
{
    for (int presses = 0; presses < most && !hasKeyboard(driver, name); ++presses)
        driver.key(key);
    driver.check(hasKeyboard(driver, name), u"%1 keys lead to \"%2\""_s.arg(most).arg(name));
}

void awaitMenu(const Driver &driver)
{
    driver.await(u"the menu is open"_s,
                 [&] { return driver.find(u"detailItem"_s) && driver.find(u"detailItem"_s)->height() > 0; });
}

void take(const Driver &driver, const QString &entry)
{
    goTo(driver, entry, Qt::Key_Down, 14);
    driver.key(Qt::Key_Return);
    driver.await(u"the menu is closed"_s, [&] { return !driver.find(u"detailItem"_s); });
}

/// From each control of the page, at most five Tabs lead to the table.
void walkWayToTheTable(Driver &driver)
{
    driver.key(Qt::Key_1, Qt::ControlModifier);
    driver.await(u"the table has the keyboard"_s, [&] { return hasKeyboard(driver, u"tableRows"_s); });
    int tabs = 0;
    do {
        driver.key(Qt::Key_Tab);
        ++tabs;
    } while (tabs < 20 && !hasKeyboard(driver, u"tableRows"_s));
    driver.key(Qt::Key_Home);
    for (const QString &start : {u"searchButton"_s, u"closeButton"_s, u"initialiseButton"_s, u"ipv6Choice"_s}) {
        driver.require(start)->forceActiveFocus(Qt::TabFocusReason);
        goTo(driver, u"tableRows"_s, Qt::Key_Tab, 5);
    }
    driver.report(u"keyboard-table"_s, u"%1 stops round the window"_s.arg(tabs));
}

void walkRow(Driver &driver)
{
    const Rows rows(driver);
    const int row = rows.rowOf("type", u"NVR"_s);
    const QString ipport = rows.value(row, "ipport").toString();
    driver.key(Qt::Key_End);
    driver.type(ipport);
    driver.check(driver.require(u"deviceTable"_s)->property("currentIndex").toInt() == row,
                 u"typing an address goes to its row"_s);
    driver.key(Qt::Key_F10, Qt::ShiftModifier);
    awaitMenu(driver);
    driver.report(u"keyboard-menu"_s, ipport);
    take(driver, u"copyAddressItem"_s);
    driver.check(QGuiApplication::clipboard()->text() == ipport.left(ipport.lastIndexOf(u':')),
                 u"the address is copied"_s);
    driver.key(Qt::Key_Return);
    driver.require(u"detailLoginButton"_s);
    driver.key(Qt::Key_Return);
    driver.await(u"the dialog says that it copies"_s, [&] { return driver.find(u"dialogNotice"_s) != nullptr; });
    driver.report(u"keyboard-details"_s, driver.text(u"dialogNotice"_s));
    driver.key(Qt::Key_Escape);
    driver.await(u"the details are closed"_s, [&] { return !driver.find(u"detailLoginButton"_s); });
}

/// Of the other pages.
void walkMenus(Driver &driver)
{
    for (const Qt::Key page : {Qt::Key_2, Qt::Key_5}) {
        driver.key(page, Qt::ControlModifier);
        driver.await(u"the page has the keyboard"_s, [&] {
            return driver.find(page == Qt::Key_2 ? u"upgradeTable"_s : u"cgiTable"_s) &&
                   hasKeyboard(driver, u"tableRows"_s);
        });
        driver.key(Qt::Key_Home);
        driver.key(Qt::Key_Menu);
        awaitMenu(driver);
        driver.report(u"keyboard-menu-%1"_s.arg(page - Qt::Key_0), u"the actions of this page"_s);
        driver.key(Qt::Key_Escape);
        driver.await(u"the menu is closed"_s, [&] { return !driver.find(u"detailItem"_s); });
    }
}

QString macAt(const sdk::demo::DemoSite &site, const QString &ipport)
{
    QString mac;
    site.visitDevices([&](const sdk::demo::SceneDevice &device) {
        if (ipport.startsWith(device.address + u':'))
            mac = device.mac;
    });
    return mac;
}

/// A wrong password twice, then the right one.
void walkWrongPassword(Driver &driver, sdk::demo::DemoSite &site)
{
    driver.key(Qt::Key_3, Qt::ControlModifier);
    driver.await(u"the tree has the keyboard"_s, [&] { return hasKeyboard(driver, u"deviceTree"_s); });
    driver.key(Qt::Key_Home);
    driver.key(Qt::Key_Down);
    driver.key(Qt::Key_Menu);
    awaitMenu(driver);
    driver.report(u"keyboard-tree-menu"_s, u"the actions of a device"_s);
    driver.key(Qt::Key_Escape);
    driver.await(u"the menu is closed"_s, [&] { return !driver.find(u"detailItem"_s); });
    const Rows tree(driver, u"deviceTree"_s);
    const QString mac = macAt(site, tree.value(1, "title").toString());
    site.setFault(mac, {.fault = sdk::demo::Fault::WrongPassword});
    driver.key(Qt::Key_Return);
    const auto shown = [&](const QString &text) {
        return hasKeyboard(driver, u"devicePasswordField"_s) && driver.find(u"triesHint"_s) &&
               driver.texts(u"fieldMessage"_s).join(u' ').contains(text);
    };
    driver.await(u"the first wrong password is counted"_s, [&] { return shown(u"1"_s); });
    driver.type(u"wrong"_s);
    driver.key(Qt::Key_Return);
    driver.await(u"the second one, too"_s, [&] { return shown(u"2"_s); });
    driver.report(u"keyboard-wrong-password"_s, driver.texts(u"fieldMessage"_s).join(u' '));
    site.clearFault(mac, sdk::demo::Fault::WrongPassword);
    driver.type(u"Office-2024"_s);
    driver.key(Qt::Key_Return);
    driver.require(u"encodeSaveButton"_s);
    driver.report(u"keyboard-logged-in"_s, driver.text(u"configDevice"_s));
}

} // namespace

void walkKeyboard(Driver &driver, sdk::demo::DemoSite &site)
{
    walkWayToTheTable(driver);
    walkRow(driver);
    walkMenus(driver);
    walkWrongPassword(driver, site);
    driver.key(Qt::Key_1, Qt::ControlModifier);
}

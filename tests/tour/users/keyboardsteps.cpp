// A user without a mouse.
#include "sdk/demo/demosite.h"
#include "tests/tour/driver/commonsteps.h"
#include "tests/tour/driver/rows.h"
#include "tests/tour/driver/scenedevices.h"
#include "tests/tour/users/usersteps.h"

#include <QClipboard>
#include <QGuiApplication>

using namespace Qt::StringLiterals;

namespace {

constexpr int tabsAroundWindow = 24; ///< upper limit

bool hasKeyboard(const Driver &driver, const QString &name)
{
    const QQuickItem *item = driver.find(name);
    return item && item->hasActiveFocus();
}

/// Presses a key until the item has the focus.
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

/// At most five Tabs lead from each control of the page to the table.
void walkToTheTable(Driver &driver)
{
    driver.key(Qt::Key_1, Qt::ControlModifier);
    // The last used control of the page has the focus again.
    constexpr int furthest = 5;
    for (int tab = 0; tab < furthest && !hasKeyboard(driver, u"tableRows"_s); ++tab)
        driver.key(Qt::Key_Tab);
    driver.check(hasKeyboard(driver, u"tableRows"_s), u"the table has the keyboard"_s);
    int tabs = 0;
    do {
        driver.key(Qt::Key_Tab);
        ++tabs;
    } while (tabs < 20 && !hasKeyboard(driver, u"tableRows"_s));
    driver.key(Qt::Key_Home);
    // Tab leads to the first control of a group, arrows to the others.
    const QList<std::pair<QString, QString>> starts = {{u"searchButton"_s, u"searchButton"_s},
                                                       {u"searchButton"_s, u"closeButton"_s},
                                                       {u"initialiseButton"_s, u"initialiseButton"_s},
                                                       {u"initialiseButton"_s, u"ipv4Choice"_s}};
    for (const auto &[first, start] : starts) {
        goTo(driver, first, Qt::Key_Tab, tabsAroundWindow);
        goTo(driver, start, Qt::Key_Right, 16);
        goTo(driver, u"tableRows"_s, Qt::Key_Tab, furthest);
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
    driver.await(u"the dialog confirms the copy"_s,
                 [&] { return driver.find(u"dialogNotice"_s) != nullptr; });
    driver.report(u"keyboard-details"_s, driver.text(u"dialogNotice"_s));
    driver.key(Qt::Key_Escape);
    driver.await(u"the details are closed"_s, [&] { return !driver.find(u"detailLoginButton"_s); });
}

/// The menus of the other pages.
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

/// A wrong password twice, then the correct one.
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
    const QString mac = macOf(site, tree.value(1, "title").toString());
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
    goTo(driver, u"followingBox"_s, Qt::Key_Tab, 3);
    driver.key(Qt::Key_Space);
    goTo(driver, u"devicePasswordField"_s, Qt::Key_Backtab, 2);
    driver.type(u"Office-2024"_s);
    driver.key(Qt::Key_Return);
    driver.require(u"encodeSaveButton"_s);
    driver.report(u"keyboard-logged-in"_s, driver.text(u"configDevice"_s));
}

bool isNaming(const Driver &driver, const QString &ipport)
{
    return driver.find(u"configDevice"_s) && driver.text(u"configDevice"_s).startsWith(ipport) &&
           hasKeyboard(driver, u"channelName0"_s);
}

/// Enter saves the name of a camera and opens the next one, which has the same account.
void walkNaming(Driver &driver)
{
    goTo(driver, u"configTab0"_s, Qt::Key_Tab, 5);
    driver.key(Qt::Key_Right);
    // The tabs are disabled while the image settings are read.
    driver.await(u"the tabs are enabled"_s, [&] {
        return driver.find(u"configTab1"_s) && driver.find(u"configTab1"_s)->isEnabled() &&
               driver.find(u"imageDefaultsButton"_s) && driver.find(u"imageDefaultsButton"_s)->isEnabled();
    });
    goTo(driver, u"configTab1"_s, Qt::Key_Tab, tabsAroundWindow);
    driver.key(Qt::Key_Right);
    driver.require(u"nameTable"_s);
    goTo(driver, u"tableRows"_s, Qt::Key_Tab, 5);
    driver.key(Qt::Key_Down);
    driver.key(Qt::Key_Return);
    const Rows tree(driver, u"deviceTree"_s);
    const auto ipport = [&](int row) {
        return tree.value(row, "title").toString();
    };
    for (const int row : {1, 2}) {
        driver.await(u"the name of a camera has the keyboard"_s,
                     [&] { return isNaming(driver, ipport(row)); });
        driver.type(u"Gate %1"_s.arg(row));
        driver.key(Qt::Key_Return);
    }
    driver.await(u"the next camera follows"_s, [&] { return isNaming(driver, ipport(3)); });
    for (const int row : {1, 2})
        driver.check(tree.value(row, "detail").toString().startsWith(u"Gate %1"_s.arg(row)),
                     u"the list shows the new name"_s);
    driver.report(u"keyboard-naming"_s, tree.value(1, "detail").toString());
}

/// Replaces the text of the focused field.
void retype(const Driver &driver, const QString &text)
{
    driver.key(Qt::Key_A, Qt::ControlModifier);
    driver.type(text);
}

/// One pattern names several cameras.
void walkPattern(Driver &driver)
{
    goTo(driver, u"deviceTree"_s, Qt::Key_Backtab, tabsAroundWindow);
    driver.key(Qt::Key_Home);
    driver.key(Qt::Key_Space);
    driver.await(u"the cameras are ticked"_s,
                 [&] { return driver.require(u"group_IPC"_s)->property("tick").toInt() == Qt::Checked; });
    goTo(driver, u"namePatternButton"_s, Qt::Key_Tab, tabsAroundWindow);
    driver.key(Qt::Key_Return);
    driver.await(u"the pattern has the keyboard"_s, [&] { return hasKeyboard(driver, u"patternField"_s); });
    retype(driver, u"{model}-{x}"_s);
    driver.key(Qt::Key_Return);
    driver.check(hasKeyboard(driver, u"patternField"_s) && driver.find(u"fieldMessage"_s),
                 u"an invalid pattern keeps the focus"_s);
    driver.report(u"keyboard-pattern-refused"_s, driver.text(u"fieldMessage"_s));
    retype(driver, u"Hall {n}-{ip4}"_s);
    goTo(driver, u"patternDigitsField"_s, Qt::Key_Tab, 3);
    retype(driver, u"2"_s);
    driver.report(u"keyboard-pattern"_s, driver.text(u"patternField"_s));
    driver.key(Qt::Key_Return);
    driver.await(u"a shared address is asked about"_s,
                 [&] { return driver.find(u"messageText"_s) != nullptr; });
    goTo(driver, u"okButton"_s, Qt::Key_Tab, 3);
    driver.key(Qt::Key_Return);
    const Rows tree(driver, u"deviceTree"_s);
    driver.await(u"the cameras have their names"_s,
                 [&] { return tree.value(2, "detail").toString().startsWith(u"Hall 02-102"_s); });
    // Devices with another password may pause the batch.
    driver.await(
        u"the batch is paused or ends"_s,
        [&] { return driver.find(u"continueButton"_s) || !isBatchRunning(driver); }, 30);
    if (driver.find(u"continueButton"_s)) {
        goTo(driver, u"continueButton"_s, Qt::Key_Tab, tabsAroundWindow);
        driver.key(Qt::Key_Right);
        driver.check(hasKeyboard(driver, u"stopButton"_s), u"the other button is next to it"_s);
        driver.key(Qt::Key_Return);
    }
    awaitBatchEnd(driver);
    driver.report(u"keyboard-named"_s, tree.value(2, "detail").toString());
}

} // namespace

void walkKeyboard(Driver &driver, sdk::demo::DemoSite &site)
{
    walkToTheTable(driver);
    walkRow(driver);
    walkMenus(driver);
    walkWrongPassword(driver, site);
    walkNaming(driver);
    walkPattern(driver);
    driver.key(Qt::Key_1, Qt::ControlModifier);
}

void walkOutByKeyboard(Driver &driver)
{
    goTo(driver, u"searchButton"_s, Qt::Key_Tab, tabsAroundWindow); // the first button of the title bar
    goTo(driver, u"closeButton"_s, Qt::Key_Right, 6);
    driver.key(Qt::Key_Space);
}

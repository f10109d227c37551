#include "device/sites/knowndevices.h"
#include "sdk/demo/demosite.h"
#include "tests/tour/driver/commonsteps.h"
#include "tests/tour/driver/driver.h"
#include "tests/tour/driver/rows.h"
#include "tests/tour/steps.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

/// A search, during which the known devices are greyed until they are found.
void walkGreyed(Driver &driver)
{
    const Rows rows(driver);
    driver.key(Qt::Key_F5);
    driver.await(u"the devices of the last list are greyed"_s,
                 [&] { return rows.countOf("absent", true) > 0; });
    driver.report(u"known-greyed"_s, u"%1 devices of the last list"_s.arg(rows.countOf("absent", true)));
    awaitSearchEnd(driver);
    driver.await(u"all of them are found again"_s, [&] { return rows.countOf("absent", true) == 0; });
}

void walkMissing(Driver &driver, sdk::demo::DemoSite &site)
{
    const Rows rows(driver);
    const QString mac = rows.value(1, "mac").toString();
    site.setFault(mac, {.fault = sdk::demo::Fault::NoAnswer});
    driver.key(Qt::Key_F5);
    awaitSearchEnd(driver);
    const int row = rows.rowOf("mac", mac);
    driver.check(row >= 0 && rows.value(row, "absent").toBool(), u"a device that was not found is greyed"_s);
    driver.await(u"it has a sign"_s, [&] { return driver.find(u"missingSign%1"_s.arg(row)); });
    driver.hover(u"missingSign%1"_s.arg(row));
    driver.report(u"known-missing"_s, driver.text(u"stateText%1"_s.arg(row)));

    // Without its entry in the site, the device is a new one.
    driver.rightClick(u"row%1"_s.arg(row));
    driver.report(u"known-menu"_s, u"the menu of a greyed row"_s);
    driver.click(u"forgetItem"_s);
    driver.await(u"the row is removed"_s, [&] { return rows.rowOf("mac", mac) < 0; });
    site.clearFault(mac, sdk::demo::Fault::NoAnswer);
    driver.key(Qt::Key_F5);
    awaitSearchEnd(driver);
    driver.await(u"the device is marked as new"_s, [&] {
        const int found = rows.rowOf("mac", mac);
        return found >= 0 && driver.find(u"newTag%1"_s.arg(found));
    });
    driver.report(u"known-new"_s, mac);
    driver.click(u"tab2"_s);
    driver.require(u"newTag"_s);
    driver.report(u"known-new-in-tree"_s, driver.text(u"newTag"_s));
    driver.click(u"tab0"_s);
}

void walkGroup(Driver &driver)
{
    const Rows rows(driver);
    const int second = rows.value(1, "absent").toBool() ? 2 : 1; // an absent row has no check box
    driver.click(u"check0"_s);
    driver.click(u"check%1"_s.arg(second));
    driver.rightClick(u"row0"_s);
    driver.report(u"group-menu"_s, u"the menu of a row"_s);
    driver.click(u"groupItem"_s);
    driver.fill(u"groupField"_s, u"A-1"_s);
    driver.report(u"group"_s, driver.text(u"groupField"_s));
    driver.click(u"okButton"_s);
    driver.await(u"both devices have the group"_s, [&] { return rows.countOf("group", u"A-1"_s) == 2; });
}

void openSiteMenu(Driver &driver)
{
    driver.click(u"menuButton"_s);
    driver.click(u"siteMenuItem"_s);
    driver.require(u"openSiteItem"_s);
}

void walkSites(Driver &driver, const QString &folder)
{
    driver.check(QDir().mkpath(folder), u"there is a folder for sites"_s);
    const QString path = folder + u"/office.site"_s;
    openSiteMenu(driver);
    driver.report(u"site-menu"_s, u"the menu of sites"_s);
    driver.click(u"saveSiteItem"_s);
    driver.acceptFileBox(path);
    driver.await(u"the site is saved"_s, [&] { return QFile::exists(path); });
    driver.report(u"site-saved"_s, driver.texts(u"toastText"_s).join(u' '));
    openSiteMenu(driver);
    driver.click(u"newSiteItem"_s);
    driver.report(u"site-new"_s, driver.text(u"messageText"_s));
    driver.click(u"okButton"_s);
    const Rows rows(driver);
    driver.await(u"the groups are removed"_s, [&] { return rows.countOf("group", u"A-1"_s) == 0; });
    openSiteMenu(driver);
    driver.report(u"site-recent"_s, driver.require(u"recentSite0"_s)->property("text").toString());
    driver.click(u"recentSite0"_s);
    driver.await(u"the groups are those of the site"_s, [&] { return rows.countOf("group", u"A-1"_s) == 2; });
}

/// The ticked devices as an encrypted list, and its import with a wrong passphrase.
void walkEncryptedList(Driver &driver, const QString &folder)
{
    driver.click(u"exportButton"_s);
    driver.click(u"passwords1"_s);
    driver.report(u"export-without-passwords"_s, driver.text(u"exportHint"_s));
    driver.click(u"passwords2"_s);
    driver.fill(u"newPassphrase"_s, u"eight and more"_s);
    driver.fill(u"repeatedPassphrase"_s, u"eight and more"_s);
    driver.report(u"export-encrypted"_s, driver.text(u"exportHint"_s));
    driver.click(u"okButton"_s);
    driver.acceptFileBox(folder);
    const QString path = folder + u"/device.devlist"_s;
    driver.await(u"the list is written"_s, [&] { return QFile::exists(path); });
    driver.click(u"importButton"_s);
    driver.acceptFileBox(path);
    driver.fill(u"passphraseField"_s, u"another one"_s);
    driver.report(u"passphrase"_s, u"the passphrase of the list"_s);
    driver.click(u"okButton"_s);
    driver.await(u"another passphrase is requested"_s, [&] {
        return driver.find(u"passphraseField"_s) && driver.text(u"passphraseField"_s).isEmpty() &&
               !driver.texts(u"dialogNotice"_s).isEmpty();
    });
    driver.report(u"passphrase-wrong"_s, driver.texts(u"dialogNotice"_s).join(u' '));
    driver.key(Qt::Key_Escape);
    driver.awaitGone(u"passphraseField"_s);
}

} // namespace

void walkKnown(Driver &driver, sdk::demo::DemoSite &site, const QString &folder)
{
    auto *known = driver.window()->property("knownDevices").value<KnownDevices *>();
    driver.check(known && known->count() > 20, u"the devices of the last start are known"_s);
    awaitSearchEnd(driver);
    driver.click(u"tab0"_s);
    walkGreyed(driver);
    walkMissing(driver, site);
    walkGroup(driver);
    walkSites(driver, folder);
    walkEncryptedList(driver, folder);
}

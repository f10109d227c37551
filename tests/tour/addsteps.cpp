#include "device/registry/devicefactory.h"
#include "tests/tour/driver/commonsteps.h"
#include "tests/tour/steps.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace {

const QString password = u"Office-2024"_s;
const QString branchAddress = u"192.168.2.21"_s; // not found by a search of the local segment
const QString remoteId = u"OV7QK2M4X9T3HD58"_s;

QVariantMap deviceAt(const QString &ipport)
{
    return CDeviceFactory::getinstance()->getDeviceInfo(u"dh"_s, ipport);
}

int rows(const Driver &driver)
{
    return driver.require(u"deviceTable"_s)->property("count").toInt();
}

int favourites(const Driver &driver)
{
    return driver.require(u"favouriteTable"_s)->property("count").toInt();
}

/// The dialog stays open and shows the reason as a message and under the field.
void expectRefusal(const Driver &driver, const char *message)
{
    const QString text = translated("AddDeviceDialog", message);
    driver.click(u"okButton"_s);
    expectToast(driver, text);
    driver.check(driver.find(u"portField"_s) != nullptr, u"the dialog stays open"_s);
}

/// Fills the fields that both dialogs have, and confirms.
void confirm(const Driver &driver, const QString &port, const QString &withPassword)
{
    driver.fill(u"portField"_s, port);
    driver.fill(u"devicePasswordField"_s, withPassword);
    driver.click(u"okButton"_s);
}

void markAsFavourite(const Driver &driver, const QString &note)
{
    driver.click(u"favouriteBox"_s);
    driver.fill(u"noteField"_s, note);
}

void awaitEndOfDialog(const Driver &driver)
{
    driver.await(u"the dialog closes"_s, [&] { return !driver.find(u"portField"_s); });
}

void walkAddingByAddress(Driver &driver)
{
    driver.click(u"addButton"_s);
    driver.report(u"add-menu"_s, u"the ways to add a device"_s);
    driver.click(u"addIpItem"_s);
    driver.require(u"portField"_s);
    driver.report(u"add-ip"_s, u"a device by its address"_s);
    expectRefusal(driver, "请输入正确的IP");
    driver.report(u"add-ip-no-address"_s, u"no address"_s);
    driver.fill(u"addressField"_s, u"192.168.1.101"_s);
    expectRefusal(driver, "请输入密码");
    driver.fill(u"portField"_s, QString());
    driver.fill(u"devicePasswordField"_s, password);
    expectRefusal(driver, "请输入端口");

    confirm(driver, u"8800"_s, password);
    expectToast(driver, translated("ResultNames", "设备已存在"));
    driver.fill(u"addressField"_s, branchAddress);
    confirm(driver, u"8800"_s, u"wrong"_s);
    expectToast(driver, translated("ResultNames", "密码错误"));
    driver.report(u"add-ip-wrong-password"_s, u"the wrong password"_s);

    const int before = rows(driver);
    markAsFavourite(driver, u"分店 till 1"_s);
    driver.report(u"add-ip-favourite"_s, u"with a note for the favourites"_s);
    confirm(driver, u"8800"_s, password);
    awaitEndOfDialog(driver);
    driver.check(rows(driver) == before + 1 && !deviceAt(branchAddress + u":8800"_s).isEmpty(),
                 u"the device is in the list"_s);
    driver.report(u"added-ip"_s, driver.texts(u"toastText"_s).last());
}

void walkAddingByP2p(Driver &driver)
{
    driver.click(u"addButton"_s);
    driver.click(u"addP2pItem"_s);
    expectRefusal(driver, "请输入P2P ID");
    driver.fill(u"p2pIdField"_s, u"OV00NOSUCHDEVICE"_s);
    confirm(driver, u"8800"_s, password);
    driver.await(u"the dialog stays open and can be used again"_s,
                 [&] { return driver.require(u"p2pIdField"_s)->isEnabled(); });
    driver.report(u"add-p2p-unknown"_s, u"an unknown ID has no tunnel"_s);

    const int before = rows(driver);
    driver.fill(u"p2pIdField"_s, remoteId);
    markAsFavourite(driver, u"Construction site"_s);
    confirm(driver, u"8800"_s, password);
    awaitEndOfDialog(driver);
    driver.check(rows(driver) == before + 1, u"the remote device is in the list"_s);
    driver.report(u"added-p2p"_s, driver.texts(u"toastText"_s).last());
}

void walkAddingFavourites(Driver &driver)
{
    driver.click(u"addButton"_s);
    driver.click(u"addFavouriteItem"_s);
    driver.require(u"favouriteTable"_s);
    driver.check(favourites(driver) == 2, u"two favourites are listed"_s);
    driver.report(u"favourites"_s, u"the saved favourites"_s);

    // The device at the address is already listed. The remote device gets another login.
    driver.click(u"note0"_s);
    driver.key(Qt::Key_A, Qt::ControlModifier);
    driver.click(u"okButton"_s);
    const QString added = translated("AddDevicesByFavoritesWindow", "已添加");
    driver.await(u"each row shows its result"_s, [&] {
        return driver.text(u"addResult0"_s) == translated("ResultNames", "设备已存在") &&
               driver.text(u"addResult1"_s) == added;
    });
    driver.report(u"favourites-added"_s, driver.texts(u"addResult0"_s).last());

    const QString ipport = branchAddress + u":8800"_s;
    CDeviceFactory::getinstance()->setDeleteDevice(u"dh"_s, deviceAt(ipport).value(u"mac"_s).toString(),
                                                   u"IPV4"_s);
    driver.doubleClick(u"note0"_s);
    driver.await(u"a device that was deleted is added by a double click"_s,
                 [&] { return driver.text(u"addResult0"_s) == added && !deviceAt(ipport).isEmpty(); });
}

void walkChangingFavourites(Driver &driver)
{
    driver.click(u"editNote0"_s);
    driver.fill(u"noteEditor"_s, u"收银台 till 2"_s);
    driver.report(u"favourite-note"_s, u"a note is edited in the table"_s);
    driver.key(Qt::Key_Return);
    driver.await(u"the note is changed"_s, [&] { return driver.text(u"note0"_s) == u"收银台 till 2"_s; });
    driver.fill(u"favouriteFilter"_s, u"TILL 2"_s);
    driver.check(favourites(driver) == 1, u"the filter leaves one favourite"_s);
    driver.fill(u"favouriteFilter"_s, u"no such note"_s);
    driver.report(u"favourites-filtered"_s, driver.texts(u"emptyTitle"_s).last());
    driver.click(u"emptyActionButton"_s);

    driver.click(u"deleteFavourite0"_s);
    driver.report(u"favourite-delete"_s, driver.text(u"messageText"_s));
    driver.key(Qt::Key_Escape);
    driver.check(favourites(driver) == 2, u"nothing is deleted without confirmation"_s);
    for (int left = 1; left >= 0; --left) {
        driver.await(u"favourites can be deleted"_s,
                     [&] { return driver.require(u"deleteFavourite0"_s)->isEnabled(); });
        driver.click(u"deleteFavourite0"_s);
        driver.require(u"messageText"_s);
        driver.click(u"okButton"_s);
        driver.await(u"%1 favourites are left"_s.arg(left), [&] { return favourites(driver) == left; });
    }
    driver.report(u"favourites-empty"_s, driver.texts(u"emptyTitle"_s).last());
    driver.key(Qt::Key_Escape);
    driver.await(u"the favourites close"_s, [&] { return !driver.find(u"favouriteTable"_s); });
    const QDir folder(QCoreApplication::applicationDirPath() + u"/fav"_s);
    driver.check(folder.exists() && folder.isEmpty(), u"no file is left in the folder"_s);
}

} // namespace

void walkAdding(Driver &driver)
{
    walkAddingByAddress(driver);
    walkAddingByP2p(driver);
    walkAddingFavourites(driver);
    walkChangingFavourites(driver);
}

#include "device/devicefactory.h"
#include "tests/tour/driver.h"
#include "tests/tour/steps.h"

#include <QCoreApplication>
#include <QDir>
#include <QQuickItem>

namespace {

const QString password = QStringLiteral("Office-2024");
const QString branchAddress =
    QStringLiteral("192.168.2.21"); // a search of the local segment does not find it
const QString remoteId = QStringLiteral("OV7QK2M4X9T3HD58");

QVariantMap deviceAt(const QString &ipport)
{
    return CDeviceFactory::getinstance()->getDeviceInfo(QStringLiteral("dh"), ipport);
}

int rows(const Driver &driver)
{
    return driver.require(QStringLiteral("deviceTable"))->property("count").toInt();
}

int favourites(const Driver &driver)
{
    return driver.require(QStringLiteral("favouriteTable"))->property("count").toInt();
}

void expectToast(const Driver &driver, const QString &text)
{
    driver.await(QStringLiteral("\"%1\" is said").arg(text),
                 [&] { return driver.texts(QStringLiteral("toastText")).contains(text); });
}

/// The dialog stays open and says, as a message and under the field, why it does not go on.
void expectRefusal(const Driver &driver, const char *message)
{
    const QString text = QCoreApplication::translate("AddDeviceDialog", message);
    driver.click(QStringLiteral("okButton"));
    expectToast(driver, text);
    driver.check(driver.find(QStringLiteral("portField")) != nullptr,
                 QStringLiteral("the dialog stays open"));
}

/// Fills the fields that both kinds of device have, and asks for the device.
void confirm(const Driver &driver, const QString &port, const QString &withPassword)
{
    driver.fill(QStringLiteral("portField"), port);
    driver.fill(QStringLiteral("devicePasswordField"), withPassword);
    driver.click(QStringLiteral("okButton"));
}

void markAsFavourite(const Driver &driver, const QString &note)
{
    driver.click(QStringLiteral("favouriteBox"));
    driver.fill(QStringLiteral("noteField"), note);
}

void awaitEndOfDialog(const Driver &driver)
{
    driver.await(QStringLiteral("the dialog closes"),
                 [&] { return !driver.find(QStringLiteral("portField")); });
}

void walkAddingByAddress(Driver &driver)
{
    driver.click(QStringLiteral("addButton"));
    driver.report(QStringLiteral("add-menu"), QStringLiteral("the ways to add a device"));
    driver.click(QStringLiteral("addIpItem"));
    driver.require(QStringLiteral("portField"));
    driver.report(QStringLiteral("add-ip"), QStringLiteral("a device by its address"));
    expectRefusal(driver, "请输入正确的IP");
    driver.report(QStringLiteral("add-ip-no-address"), QStringLiteral("no address"));
    driver.fill(QStringLiteral("addressField"), QStringLiteral("192.168.1.101"));
    expectRefusal(driver, "请输入密码");
    driver.fill(QStringLiteral("portField"), QString());
    driver.fill(QStringLiteral("devicePasswordField"), password);
    expectRefusal(driver, "请输入端口");

    confirm(driver, QStringLiteral("8800"), password);
    expectToast(driver, QCoreApplication::translate("ResultNames", "设备已存在"));
    driver.fill(QStringLiteral("addressField"), branchAddress);
    confirm(driver, QStringLiteral("8800"), QStringLiteral("wrong"));
    expectToast(driver, QCoreApplication::translate("ResultNames", "密码错误"));
    driver.report(QStringLiteral("add-ip-wrong-password"), QStringLiteral("the wrong password"));

    const int before = rows(driver);
    markAsFavourite(driver, QStringLiteral("分店 till 1"));
    driver.report(QStringLiteral("add-ip-favourite"), QStringLiteral("with a note for the favourites"));
    confirm(driver, QStringLiteral("8800"), password);
    awaitEndOfDialog(driver);
    driver.check(rows(driver) == before + 1 && !deviceAt(branchAddress + QStringLiteral(":8800")).isEmpty(),
                 QStringLiteral("the device is in the list"));
    driver.report(QStringLiteral("added-ip"), driver.texts(QStringLiteral("toastText")).last());
}

void walkAddingByP2p(Driver &driver)
{
    driver.click(QStringLiteral("addButton"));
    driver.click(QStringLiteral("addP2pItem"));
    expectRefusal(driver, "请输入P2P ID");
    driver.fill(QStringLiteral("p2pIdField"), QStringLiteral("OV00NOSUCHDEVICE"));
    confirm(driver, QStringLiteral("8800"), password);
    driver.await(QStringLiteral("the dialog stays open and can be used again"),
                 [&] { return driver.require(QStringLiteral("p2pIdField"))->isEnabled(); });
    driver.report(QStringLiteral("add-p2p-unknown"), QStringLiteral("no port leads to an unknown ID"));

    const int before = rows(driver);
    driver.fill(QStringLiteral("p2pIdField"), remoteId);
    markAsFavourite(driver, QStringLiteral("Construction site"));
    confirm(driver, QStringLiteral("8800"), password);
    awaitEndOfDialog(driver);
    driver.check(rows(driver) == before + 1, QStringLiteral("the remote device is in the list"));
    driver.report(QStringLiteral("added-p2p"), driver.texts(QStringLiteral("toastText")).last());
}

void walkAddingFavourites(Driver &driver)
{
    driver.click(QStringLiteral("addButton"));
    driver.click(QStringLiteral("addFavouriteItem"));
    driver.require(QStringLiteral("favouriteTable"));
    driver.check(favourites(driver) == 2, QStringLiteral("two favourites are listed"));
    driver.report(QStringLiteral("favourites"), QStringLiteral("what was saved"));

    // The device at the address is in the list already; the remote one is only logged in to again.
    driver.click(QStringLiteral("note0"));
    driver.key(Qt::Key_A, Qt::ControlModifier);
    driver.click(QStringLiteral("okButton"));
    const QString added = QCoreApplication::translate("AddDevicesByFavoritesWindow", "已添加");
    driver.await(QStringLiteral("each row says how it went"), [&] {
        return driver.text(QStringLiteral("addResult0")) ==
                   QCoreApplication::translate("ResultNames", "设备已存在") &&
               driver.text(QStringLiteral("addResult1")) == added;
    });
    driver.report(QStringLiteral("favourites-added"), driver.texts(QStringLiteral("addResult0")).last());

    const QString ipport = branchAddress + QStringLiteral(":8800");
    CDeviceFactory::getinstance()->setDeleteDevice(QStringLiteral("dh"),
                                                   deviceAt(ipport).value(QStringLiteral("mac")).toString(),
                                                   QStringLiteral("IPV4"));
    driver.doubleClick(QStringLiteral("note0"));
    driver.await(QStringLiteral("a device that was deleted is added by a double click"), [&] {
        return driver.text(QStringLiteral("addResult0")) == added && !deviceAt(ipport).isEmpty();
    });
}

void walkChangingFavourites(Driver &driver)
{
    driver.click(QStringLiteral("editNote0"));
    driver.fill(QStringLiteral("noteEditor"), QStringLiteral("收银台 till 2"));
    driver.report(QStringLiteral("favourite-note"), QStringLiteral("a note is edited in its place"));
    driver.key(Qt::Key_Return);
    driver.await(QStringLiteral("the note is changed"),
                 [&] { return driver.text(QStringLiteral("note0")) == QStringLiteral("收银台 till 2"); });
    driver.fill(QStringLiteral("favouriteFilter"), QStringLiteral("TILL 2"));
    driver.check(favourites(driver) == 1, QStringLiteral("the filter leaves one favourite"));
    driver.fill(QStringLiteral("favouriteFilter"), QStringLiteral("no such note"));
    driver.report(QStringLiteral("favourites-filtered"), driver.texts(QStringLiteral("emptyTitle")).last());
    driver.click(QStringLiteral("emptyActionButton"));

    driver.click(QStringLiteral("deleteFavourite0"));
    driver.report(QStringLiteral("favourite-delete"), driver.text(QStringLiteral("messageText")));
    driver.key(Qt::Key_Escape);
    driver.check(favourites(driver) == 2, QStringLiteral("nothing is deleted unconfirmed"));
    for (int left = 1; left >= 0; --left) {
        driver.click(QStringLiteral("deleteFavourite0"));
        driver.require(QStringLiteral("messageText"));
        driver.click(QStringLiteral("okButton"));
        driver.await(QStringLiteral("%1 favourites are left").arg(left),
                     [&] { return favourites(driver) == left; });
    }
    driver.report(QStringLiteral("favourites-empty"), driver.texts(QStringLiteral("emptyTitle")).last());
    driver.key(Qt::Key_Escape);
    driver.await(QStringLiteral("the favourites close"),
                 [&] { return !driver.find(QStringLiteral("favouriteTable")); });
    const QDir folder(QCoreApplication::applicationDirPath() + QStringLiteral("/fav"));
    driver.check(folder.exists() && folder.isEmpty(), QStringLiteral("no file is left in the folder"));
}

} // namespace

void walkAdding(Driver &driver)
{
    walkAddingByAddress(driver);
    walkAddingByP2p(driver);
    walkAddingFavourites(driver);
    walkChangingFavourites(driver);
}

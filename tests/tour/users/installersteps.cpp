// An installer with twelve new cameras and recorders, six of which still have the same address: searches,
// sets one password, twelve addresses in one range and names from a pattern, fetches and saves images, and
// exports the list.
#include "tests/files/filecontents.h"
#include "tests/tour/driver/commonsteps.h"
#include "tests/tour/driver/otherwindow.h"
#include "tests/tour/driver/rows.h"
#include "tests/tour/users/usersteps.h"

#include <QImage>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int devices = 12;
constexpr int cameras = 9; // the other devices are recorders
constexpr int channelsOfRecorder = 16;
constexpr int firstHost = 201;
const QString newPassword = u"Lobby-2026"_s;

QString addressOf(int index)
{
    return u"192.168.1.%1"_s.arg(firstHost + index);
}

void selectAll(const Driver &driver)
{
    const Rows rows(driver);
    if (rows.countOf("checked", true) < rows.count())
        driver.click(u"checkAllBox"_s);
    driver.check(rows.countOf("checked", true) == devices, u"all devices are selected"_s);
}

void walkFound(Driver &driver)
{
    const Rows rows(driver);
    driver.await(
        u"twelve factory-new devices are listed"_s,
        [&] {
            return !isSearching(driver) && rows.count() == devices && rows.countOf("state", false) == devices;
        },
        30);
    driver.report(u"found"_s, driver.text(u"footWarning"_s));
}

/// The first password is used for the devices afterwards, also after a search.
void walkFirstPassword(Driver &driver)
{
    const Rows rows(driver);
    selectAll(driver);
    driver.click(u"initialiseButton"_s);
    driver.require(u"initialiseTable"_s);
    driver.report(u"initialise"_s, u"the devices to be initialised"_s);
    driver.click(u"okButton"_s);
    driver.fill(u"firstPasswordField"_s, newPassword);
    driver.fill(u"confirmationField"_s, newPassword);
    driver.check(driver.require(u"keepForDevices"_s)->property("checked").toBool(),
                 u"the new account is kept unless the user decides otherwise"_s);
    driver.click(u"keepNot"_s);
    driver.report(u"account-not-kept"_s, u"the new account is not to be kept"_s);
    driver.click(u"keepForDevices"_s);
    driver.report(u"account-keeping"_s, driver.require(u"keepForDevices"_s)->property("text").toString());
    driver.click(u"okButton"_s);
    driver.await(
        u"each device is initialised"_s,
        [&] { return rows.countOf("res", 0) == devices && rows.countOf("state", false) == 0; }, 60);
    awaitBatchEnd(driver);
    driver.await(u"a notice confirms that the account is stored"_s,
                 [&] { return driver.texts(u"toastText"_s).join(u' ').contains(QString::number(devices)); });
    driver.report(u"account-kept"_s, driver.texts(u"toastText"_s).join(u" / "_s));
    driver.click(u"searchButton"_s);
    awaitSearch(driver);
    driver.check(rows.countOf("state", false) == 0, u"the next search finds no factory-new device"_s);
}

void walkAddresses(Driver &driver)
{
    const Rows rows(driver);
    selectAll(driver);
    driver.click(u"batchModifyButton"_s);
    driver.fill(u"newStartField"_s, addressOf(0));
    driver.require(u"planTable"_s);
    driver.report(u"addresses-plan"_s, driver.text(u"batchCount"_s));
    driver.click(u"okButton"_s);
    const auto rowOf = [&](int number) {
        return rows.rowOf("ipport", addressOf(number) + u":8800"_s);
    };
    driver.await(
        u"each device has a unique address"_s,
        [&] {
            int found = 0;
            for (int number = 0; number < devices; ++number)
                found += rowOf(number) >= 0 ? 1 : 0;
            return found == devices;
        },
        120);
    awaitBatchEnd(driver);
    driver.check(rows.countOf("conflict", true) == 0 && !driver.find(u"footWarning"_s),
                 u"no two devices have the same address"_s);
    driver.report(u"addresses"_s, driver.text(u"selectedCount"_s));
    searchAgain(driver);
    for (int number = 0; number < devices; ++number)
        driver.check(rowOf(number) >= 0, u"a search finds %1"_s.arg(addressOf(number)));
}

/// No dialog asks for a password: each device has a stored one.
void walkNames(Driver &driver)
{
    driver.click(u"tab2"_s);
    driver.click(u"device_"_s + addressOf(0) + u":8800"_s);
    driver.require(u"encodeSaveButton"_s);
    driver.click(u"configTab2"_s);
    driver.require(u"nameTable"_s);
    driver.click(u"tick_IPC"_s);
    driver.click(u"tick_SD"_s);
    driver.click(u"tick_NVR"_s); // the pattern skips recorders
    driver.click(u"namePatternButton"_s);
    driver.require(u"namePreview"_s);
    driver.fill(u"patternField"_s, u"Lobby {n}"_s);
    driver.fill(u"patternDigitsField"_s, u"2"_s);
    driver.report(u"names-preview"_s, driver.text(u"patternField"_s));
    driver.click(u"okButton"_s);
    driver.await(u"the batch starts"_s, [&] { return !driver.find(u"namePreview"_s); });
    awaitBatchEnd(driver);
    driver.check(!driver.find(u"devicePasswordField"_s) && !driver.find(u"footWarning"_s),
                 u"each device has accepted its name"_s);
    const Rows tree(driver, u"deviceTree"_s);
    const auto names = [&tree] {
        QStringList details;
        for (int row = 0; row < tree.count(); ++row)
            details.append(tree.value(row, "detail").toString());
        return details;
    };
    for (int number = 1; number <= cameras; ++number) {
        const QString name = u"Lobby %1"_s.arg(number, 2, 10, QLatin1Char('0'));
        driver.await(u"one device has the name %1"_s.arg(name), [&names, &name] {
            return std::ranges::count_if(
                       names(), [&name](const QString &detail) { return detail.startsWith(name); }) == 1;
        });
    }
    driver.report(u"names"_s, names().join(u", "_s));
}

/// Checks that every channel of a device has an image or a reason for its absence. Returns the files of the
/// images.
QStringList imagesOf(const Driver &gallery, const QString &ipport, bool isRecorder)
{
    const Rows cells(gallery, u"galleryGrid"_s);
    const QString folder = u"snap/"_s + QString(ipport).replace(u':', u'_');
    QStringList files;
    int channels = 0;
    for (int cell = 0; cell < cells.count(); ++cell) {
        if (cells.value(cell, "ipport").toString() != ipport)
            continue;
        ++channels;
        const QString channel = cells.value(cell, "channel").toString();
        if (!cells.value(cell, "image").toString().isEmpty())
            files.append(u"%1/%2.jpg"_s.arg(folder, channel));
        else
            gallery.check(isRecorder && !cells.value(cell, "message").toString().isEmpty(),
                          u"channel %1 of %2 has an image or shows the reason"_s.arg(channel, ipport));
    }
    gallery.check(channels == (isRecorder ? channelsOfRecorder : 1),
                  u"%1 shows %2 channels"_s.arg(ipport).arg(channels));
    return files;
}

void walkImages(Driver &driver, const QString &folder)
{
    driver.click(u"tab0"_s);
    const Rows rows(driver);
    selectAll(driver);
    for (int row = 0; row < rows.count(); ++row) {
        const QString name = rows.value(row, "name").toString();
        driver.check(rows.value(row, "type").toString() == u"NVR" || name.startsWith(u"Lobby "),
                     u"the table has the new name of a camera: %1"_s.arg(name));
    }
    driver.report(u"named"_s, driver.text(u"selectedCount"_s));
    driver.click(u"galleryButton"_s);
    QQuickWindow *window = awaitWindow(driver, u"galleryWindow"_s);
    Driver gallery(window, folder + u"/gallery"_s);
    gallery.await(
        u"all images are fetched"_s, [&] { return gallery.find(u"galleryAgainButton"_s) != nullptr; }, 120);
    QStringList images;
    for (int row = 0; row < rows.count(); ++row)
        images += imagesOf(gallery, rows.value(row, "ipport").toString(),
                           rows.value(row, "type").toString() == u"NVR");
    gallery.report(u"images"_s, gallery.text(u"gallerySummary"_s));
    gallery.click(u"gallerySaveButton"_s);
    gallery.await(
        u"the images are saved"_s, [&] { return gallery.find(u"galleryFolder"_s) != nullptr; }, 60);
    gallery.report(u"images-saved"_s, gallery.text(u"gallerySummary"_s));
    for (const QString &path : std::as_const(images))
        gallery.check(!QImage(path).isNull(), u"%1 is an image"_s.arg(path));
    gallery.click(u"liveCloseButton"_s);
    awaitClosed(driver, gallery);
    driver.activate();
}

void walkList(Driver &driver, const QString &folder)
{
    selectAll(driver);
    driver.click(u"exportButton"_s);
    driver.click(u"format.csv"_s);
    driver.click(u"okButton"_s);
    driver.acceptFileBox(folder);
    const QString path = folder + u"/device.csv"_s;
    driver.await(u"the list is written"_s, [&] {
        const QByteArray list = fileContents(path);
        for (int number = 0; number < devices; ++number) {
            if (!list.contains(addressOf(number).toLatin1()))
                return false;
        }
        return true;
    });
    driver.check(!fileContents(path).contains(newPassword.toLatin1()), u"no password is in the list"_s);
    driver.report(u"list"_s, driver.texts(u"toastText"_s).join(u" / "_s));
}

} // namespace

void walkInstaller(Driver &driver)
{
    const QString &folder = driver.imageFolder();
    driver.activate();
    walkFound(driver);
    walkFirstPassword(driver);
    walkAddresses(driver);
    walkNames(driver);
    walkImages(driver, folder);
    walkList(driver, folder);
}

// The images of the manual. Each step shows one task of the manual in the state that its text describes.
#include "device/registry/upgradetools.h"
#include "sdk/demo/demosite.h"
#include "sdk/demo/scene/fault.h"
#include "tests/files/filecontents.h"
#include "tests/tour/driver/commonsteps.h"
#include "tests/tour/driver/livewindow.h"
#include "tests/tour/driver/rows.h"
#include "tests/tour/steps.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

using namespace Qt::StringLiterals;
using sdk::demo::Fault;

namespace {

const QString camera = u"192.168.1.101:8800"_s;
const QString recorder = u"192.168.1.120:8800"_s;
const QString smallRecorder = u"192.168.1.121:8801"_s;
const QString branchAddress = u"192.168.2.21"_s;
const QString remoteId = u"OV7QK2M4X9T3HD58"_s;
const QString password = u"Office-2024"_s;
const QStringList cameras = {camera, u"192.168.1.102:8800"_s, u"192.168.1.103:8800"_s,
                             u"192.168.1.106:8800"_s};

void close(const Driver &driver, const QString &sign)
{
    driver.key(Qt::Key_Escape);
    driver.awaitGone(sign);
}

/// A notice is not part of the described state.
void awaitNoNotice(const Driver &driver)
{
    driver.hover(u"titleDragArea"_s); // a notice stays open while the pointer is over it
    driver.await(
        u"no notice is shown"_s, [&] { return !driver.find(u"toastText"_s); }, 30);
}

void untickAll(const Driver &driver)
{
    const Rows rows(driver);
    while (rows.countOf("checked", true) > 0)
        driver.click(u"checkAllBox"_s);
}

void awaitFrames(const Driver &driver, int views)
{
    driver.await(
        u"the live views show frames"_s,
        [&] {
            for (int index = 0; index < views; ++index) {
                const QQuickItem *player = driver.find(u"liveCell%1"_s.arg(index));
                if (!player || !player->property("playing").toBool())
                    return false;
            }
            return true;
        },
        30);
}

/// Gives another window the size of the main window.
void resizeLikeMain(const Driver &driver, QQuickWindow *other)
{
    other->resize(driver.window()->size());
    driver.await(u"the window has the size of the main window"_s,
                 [&] { return other->size() == driver.window()->size(); });
}

void showDevices(const Driver &driver)
{
    driver.await(
        u"devices are found, and the search ends"_s,
        [&] { return driver.text(u"counterNumber"_s).toInt() > 0 && !isSearching(driver); }, 30);
    tickRows(driver, Rows(driver), cameras);
    driver.click(u"row2"_s);
    driver.hover(u"titleDragArea"_s);
    driver.save(u"main"_s);

    driver.click(u"searchSettingsButton"_s);
    driver.click(u"otherDomainBox"_s);
    driver.fill(u"startIpField"_s, u"192.168.2.1"_s);
    driver.fill(u"endIpField"_s, u"192.168.4.254"_s);
    driver.save(u"search-settings"_s);
    close(driver, u"startIpField"_s);
}

void showChanges(const Driver &driver)
{
    driver.click(u"batchModifyButton"_s);
    driver.fill(u"newStartField"_s, u"192.168.1.151"_s);
    driver.require(u"planTable"_s);
    driver.save(u"addresses"_s);
    close(driver, u"planTable"_s);

    driver.click(u"checkAllBox"_s);
    driver.click(u"initialiseButton"_s);
    driver.require(u"initialiseTable"_s);
    driver.click(u"okButton"_s);
    driver.fill(u"firstPasswordField"_s, u"Site-2031-North"_s);
    driver.fill(u"confirmationField"_s, u"Site-2031-North"_s);
    driver.save(u"initialise"_s);
    close(driver, u"firstPasswordField"_s);
    close(driver, u"initialiseTable"_s);
    untickAll(driver);
}

void addAccount(const Driver &driver, const QString &name, const QString &user)
{
    driver.click(u"addAccountButton"_s);
    driver.fill(u"accountNameField"_s, name);
    driver.fill(u"accountUserField"_s, user);
    driver.fill(u"accountPasswordField"_s, u"Branch-2024"_s);
    driver.click(u"okButton"_s);
    driver.awaitGone(u"accountNameField"_s);
}

void showAccounts(const Driver &driver)
{
    const bool chinese = driver.text(u"counterText"_s).contains(u"台设备"_s);
    driver.click(u"menuButton"_s);
    driver.click(u"accountsItem"_s);
    addAccount(driver, chinese ? u"一号楼"_s : u"Building 1"_s, u"admin"_s);
    addAccount(driver, chinese ? u"分店"_s : u"Branch"_s, u"operator"_s);
    driver.save(u"accounts"_s);
    driver.click(u"okButton"_s);
    driver.awaitGone(u"accountsTable"_s);
}

/// Adds a device and saves it as a favourite with a note.
void addFavourite(const Driver &driver, const QString &item, const QString &field, const QString &address,
                  const QString &note)
{
    driver.click(u"addButton"_s);
    driver.click(item);
    driver.fill(field, address);
    driver.fill(u"portField"_s, u"8800"_s);
    driver.fill(u"devicePasswordField"_s, password);
    driver.click(u"favouriteBox"_s);
    driver.fill(u"noteField"_s, note);
    driver.click(u"okButton"_s);
    driver.awaitGone(u"portField"_s);
}

void showFavourites(const Driver &driver)
{
    const bool chinese = driver.text(u"counterText"_s).contains(u"台设备"_s);
    addFavourite(driver, u"addIpItem"_s, u"addressField"_s, branchAddress,
                 chinese ? u"分店，收银台"_s : u"Branch, till 1"_s);
    addFavourite(driver, u"addP2pItem"_s, u"p2pIdField"_s, remoteId,
                 chinese ? u"工地"_s : u"Construction site"_s);
    awaitNoNotice(driver);
    driver.click(u"addButton"_s);
    driver.click(u"addFavouriteItem"_s);
    driver.require(u"favouriteTable"_s);
    driver.save(u"favourites"_s);
    close(driver, u"favouriteTable"_s);
}

/// Fills accounts into an exported list. The password of the second device is wrong.
void fillAccounts(const Driver &driver, const QString &path)
{
    constexpr int userColumn = 9;
    QStringList lines = QString::fromUtf8(fileContents(path)).split(u'\n');
    for (qsizetype line = 1; line < lines.size(); ++line) {
        QStringList cells = lines.at(line).split(u',');
        if (cells.size() <= userColumn + 1)
            continue;
        cells[userColumn] = u"admin"_s;
        cells[userColumn + 1] = line == 2 ? u"wrong"_s : password;
        lines[line] = cells.join(u',');
    }
    driver.check(writeFile(path, lines.join(u'\n').toUtf8()), u"the list is filled in"_s);
}

void showImport(const Driver &driver, const QString &folder)
{
    const QString path = folder + u"/device.csv"_s;
    tickRows(driver, Rows(driver), cameras);
    driver.click(u"exportButton"_s);
    driver.click(u"format.csv"_s);
    driver.click(u"okButton"_s);
    driver.acceptFileBox(folder);
    driver.await(u"the list is written"_s, [&] { return QFile::exists(path); });
    awaitNoNotice(driver);
    fillAccounts(driver, path);
    driver.click(u"importButton"_s);
    driver.acceptFileBox(path);
    driver.require(u"reportTable"_s);
    awaitBatchEnd(driver);
    awaitNoNotice(driver);
    driver.save(u"import"_s);
    QFile::remove(path);
    driver.click(u"okButton"_s);
    driver.awaitGone(u"reportTable"_s);
    untickAll(driver);
}

/// Writes a firmware file for the cameras and returns its path.
QString writeFirmware(const Driver &driver, const QString &folder)
{
    const QString path = folder + u"/cameras_3.000.1.bin"_s;
    const QByteArray content =
        "BRELM-FIRMWARE 1\nmodel=B-2230-IR,B-2812-Z4\nversion=3.000.1\n\n" + QByteArray(100000, '\1');
    driver.check(writeFile(path, content), u"the firmware is written"_s);
    return path;
}

void showUpgrade(const Driver &driver, sdk::demo::DemoSite &site, const QString &folder)
{
    driver.click(u"tab1"_s);
    driver.fill(u"upgradeSearchField"_s, u"B-2"_s);
    const Rows rows(driver, u"upgradeTable"_s);
    tickRows(driver, rows, cameras);
    QList<int> indexes;
    for (const QString &ipport : cameras)
        indexes.append(rows.rowOf("ipport", ipport));
    const auto mac = [&](int index) {
        return rows.value(indexes.at(index), "mac").toString();
    };
    for (int index = 0; index < indexes.size(); ++index)
        site.setFault(mac(index), {Fault::UpgradeTakes, index == 0 ? 1 : 20});
    site.setFault(mac(0), {Fault::RebootTakes, 1});
    site.setFault(mac(1), {Fault::UpgradeFailsAt, 10});

    const QString firmware = writeFirmware(driver, folder);
    driver.click(u"upgradeFileButton"_s);
    driver.acceptFileBox(firmware);
    driver.click(u"upgradeStartButton"_s);
    driver.require(u"upgradePreviewTable"_s);
    driver.click(u"okButton"_s);
    driver.awaitGone(u"upgradePreviewTable"_s);
    driver.await(
        u"one device is upgraded, one has failed, and the others receive the file"_s,
        [&] {
            return rows.value(indexes.at(0), "upgraderes") == UpgradeTools::Success &&
                   rows.value(indexes.at(1), "upgraderes") == UpgradeTools::Failed &&
                   rows.value(indexes.at(3), "upgrade").toInt() > 20;
        },
        60);
    awaitNoNotice(driver);
    driver.save(u"upgrade"_s);
    driver.click(u"stopButton"_s);
    awaitBatchEnd(driver);
    for (int index = 0; index < indexes.size(); ++index)
        site.clearFault(mac(index), Fault::UpgradeTakes);
    site.clearFault(mac(0), Fault::RebootTakes);
    site.clearFault(mac(1), Fault::UpgradeFailsAt);
    QFile::remove(firmware);
    driver.click(u"clearMarksButton"_s);
    driver.fill(u"upgradeSearchField"_s, QString());
}

void showConfiguration(const Driver &driver)
{
    driver.click(u"tab2"_s);
    driver.fill(u"treeSearchField"_s, recorder.section(u':', 0, 0));
    driver.click(u"device_"_s + recorder);
    driver.require(u"encodeSaveButton"_s);
    awaitConfigIdle(driver);
    driver.save(u"encode"_s);

    driver.fill(u"treeSearchField"_s, QString());
    driver.click(u"device_"_s + camera);
    awaitConfigIdle(driver);
    driver.click(u"configTab1"_s);
    awaitConfigIdle(driver);
    driver.await(
        u"the live view shows a frame"_s,
        [&] {
            const QQuickItem *video = driver.find(u"liveVideo"_s);
            return video && video->property("hasFrame").toBool();
        },
        30);
    driver.save(u"image"_s);
    driver.click(u"configTab0"_s);
    awaitConfigIdle(driver);
}

/// The zones of devices, and a batch that is paused by wrong passwords.
void showSystem(const Driver &driver, sdk::demo::DemoSite &site)
{
    driver.click(u"tab3"_s);
    driver.click(u"tick_IPC"_s);
    driver.click(u"systemTab1"_s);
    driver.save(u"system"_s);

    driver.click(u"systemTab0"_s);
    // A batch is paused by the fifth refusal in a row only while devices are waiting. More devices than
    // refusals and parallel steps together make this independent of the order of the responses.
    const QStringList types = {u"IPC"_s, u"SD"_s, u"NVR"_s};
    driver.click(u"open_IPC"_s); // closed, so that the other groups are visible
    for (const QString &type : types.sliced(1))
        driver.click(u"tick_"_s + type);
    driver.click(u"open_IPC"_s);
    QStringList refusing;
    site.forEachDevice([&](const sdk::demo::SceneDevice &device) {
        if (types.contains(device.type))
            refusing.append(device.mac);
    });
    for (const QString &mac : std::as_const(refusing))
        site.setFault(mac, {.fault = Fault::WrongPassword});
    driver.click(u"setTimeByPCButton"_s);
    driver.require(u"previewTable"_s);
    driver.click(u"okButton"_s);
    driver.require(u"messageText"_s); // two devices have one address
    driver.click(u"okButton"_s);
    driver.require(u"continueButton"_s);
    driver.save(u"batch-paused"_s);
    driver.click(u"stopButton"_s);
    awaitBatchEnd(driver);
    for (const QString &mac : std::as_const(refusing))
        site.clearFault(mac, Fault::WrongPassword);

    awaitNoNotice(driver);
    driver.click(u"batchPanelButton"_s);
    driver.require(u"batchResults"_s);
    driver.save(u"batches"_s);
    driver.click(u"okButton"_s);
    driver.awaitGone(u"batchResults"_s);
    driver.click(u"clearMarksButton"_s);
}

/// Sends a command to the first row and waits for its response.
void sendCommand(const Driver &driver, const QString &command)
{
    driver.fill(u"cgiCommand0"_s, command);
    driver.key(Qt::Key_Escape); // closes the suggestions
    driver.click(u"cgiSend0"_s);
    driver.await(u"the command has a result"_s, [&] {
        return !isBatchRunning(driver) &&
               !Rows(driver, u"cgiTable"_s).value(0, "result").toString().isEmpty();
    });
}

void showCommands(const Driver &driver)
{
    driver.click(u"tab4"_s);
    driver.fill(u"cgiSearchField"_s, camera.section(u':', 0, 0));
    driver.await(u"only one device is shown"_s, [&] { return Rows(driver, u"cgiTable"_s).count() == 1; });
    sendCommand(driver, u"/cgi-bin/device?get=version"_s);
    driver.fill(u"cgiSearchField"_s, QString());
    awaitNoNotice(driver);
    driver.save(u"cgi"_s);
}

void showLive(const Driver &driver, const QString &folder)
{
    const Driver live(openLive(driver, recorder), folder);
    resizeLikeMain(driver, live.window());
    awaitFrames(live, 4);
    live.save(u"live"_s);
    live.click(u"liveSnapAllButton"_s);
    awaitSnapshotsEnd(live);
    live.save(u"snapshots"_s);
    live.key(Qt::Key_Escape);
    live.awaitGone(u"snapshotGrid"_s);
    closeLive(driver, live);
    driver.activate();
    driver.fill(u"searchField"_s, QString());
}

void showGallery(const Driver &driver, const QString &folder)
{
    untickAll(driver);
    tickRows(driver, Rows(driver), cameras + QStringList{smallRecorder, u"192.168.1.140:8800"_s});
    driver.click(u"galleryButton"_s);
    const Driver gallery(awaitWindow(driver, u"galleryWindow"_s), folder);
    resizeLikeMain(driver, gallery.window());
    gallery.await(
        u"all images are fetched"_s, [&] { return gallery.find(u"galleryAgainButton"_s) != nullptr; }, 60);
    gallery.save(u"gallery"_s);
    gallery.key(Qt::Key_Escape);
    awaitClosed(driver, gallery);
    driver.activate();
}

} // namespace

void takeManualImages(Driver &driver, sdk::demo::DemoSite &site)
{
    const QString &folder = driver.imageFolder();
    showDevices(driver);
    showChanges(driver);
    showAccounts(driver);
    showFavourites(driver);
    showImport(driver, folder);
    showUpgrade(driver, site, folder);
    showConfiguration(driver);
    showSystem(driver, site);
    showCommands(driver);
    showLive(driver, folder);
    showGallery(driver, folder);

    const QStringList saved = QDir(folder).entryList({u"*.png"_s}, QDir::Files, QDir::Name);
    QStringList expected =
        QString::fromUtf8(fileContents(u":/manual/images.txt"_s)).split(u'\n', Qt::SkipEmptyParts);
    expected.replaceInStrings(QRegularExpression(u"$"_s), u".png"_s);
    expected.sort();
    driver.check(saved == expected, u"the images are those of the manual: %1"_s.arg(saved.join(u' ')));
}

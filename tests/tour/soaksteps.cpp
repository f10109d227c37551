// Rounds of work on devices with faults, for hours in one process. After each round the process has nothing
// to do, and its figures are compared with those of earlier rounds.
#include "sdk/demo/demosite.h"
#include "sdk/demo/scene/fault.h"
#include "tests/tour/driver/configpage.h"
#include "tests/tour/driver/firmware.h"
#include "tests/tour/driver/livewindow.h"
#include "tests/tour/driver/processfigures.h"
#include "tests/tour/driver/rows.h"
#include "tests/tour/driver/timedapplication.h"
#include "tests/tour/steps.h"

#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QTest>
#include <QTextStream>

#include <cstdlib>

using namespace Qt::StringLiterals;
using sdk::demo::Fault;

namespace {

const QString password = u"Office-2024"_s;
const QString healthy = u"192.168.1.203"_s; // only responds twice to a search
const QString favourite = u"192.168.1.233"_s;
const QString model = u"B-2230-IR"_s; // of the cameras
constexpr int batchSeconds = 300;

QString ipportOf(const QString &address)
{
    return address + u":8800"_s;
}

void setSearchText(const Driver &driver, const QString &field, const QString &text, const Rows &rows,
                   const std::function<bool(int count)> &isDone)
{
    driver.fill(field, text);
    driver.await(u"the rows with \"%1\" are shown"_s.arg(text), [&] { return isDone(rows.count()); });
}

/// Ticks all rows that the table shows.
void tickAll(const Driver &driver, const Rows &rows)
{
    for (int tries = 0; rows.countOf("checked", true) < rows.count(); ++tries) {
        driver.check(tries < 2, u"all rows are ticked"_s);
        driver.click(u"checkAllBox"_s);
    }
}

/// Waits for the start and the end of a batch on which the user has just decided.
void awaitBatch(const Driver &driver)
{
    driver.require(u"runningText"_s);
    awaitBatchEnd(driver, batchSeconds);
}

void showAllDevices(const Driver &driver, const Rows &rows)
{
    driver.click(u"tab0"_s);
    setSearchText(driver, u"searchField"_s, {}, rows, [](int count) { return count > 20; });
}

void workOnSearch(const Driver &driver)
{
    driver.click(u"tab0"_s);
    const Rows rows(driver);
    searchAgain(driver);
    showAllDevices(driver, rows);
}

/// One device has been reset by the previous round. Others refuse, or are never initialised.
void workOnFirstPasswords(const Driver &driver)
{
    tickAll(driver, Rows(driver));
    driver.click(u"initialiseButton"_s);
    driver.require(u"initialiseTable"_s);
    driver.click(u"okButton"_s);
    driver.fill(u"firstPasswordField"_s, password);
    driver.fill(u"confirmationField"_s, password);
    driver.click(u"okButton"_s);
    driver.awaitGone(u"firstPasswordField"_s);
    awaitBatchEnd(driver, batchSeconds);
}

/// Changes the addresses of ten devices and restores them.
void workOnAddresses(const Driver &driver, const sdk::demo::DemoSite &site)
{
    const Rows rows(driver);
    setSearchText(driver, u"searchField"_s, u"192.168.1.22"_s, rows, [](int count) { return count == 10; });
    const QString mac = rows.value(0, "mac").toString();
    const QString before = site.device(mac)->address;
    tickAll(driver, rows);
    driver.click(u"batchModifyButton"_s);
    driver.fill(u"newStartField"_s, u"192.168.1.150"_s);
    driver.click(u"okButton"_s);
    driver.await(
        u"a device has a new address"_s, [&] { return site.device(mac)->address != before; }, batchSeconds);
    awaitBatchEnd(driver, batchSeconds);
    driver.click(u"batchPanelButton"_s);
    driver.click(u"putBackButton"_s);
    driver.require(u"previewTable"_s);
    driver.click(u"okButton"_s);
    driver.await(
        u"the device has its old address again"_s, [&] { return site.device(mac)->address == before; },
        batchSeconds);
    awaitBatchEnd(driver, batchSeconds);
    driver.click(u"okButton"_s); // closes the panel
    driver.awaitGone(u"batchSummary"_s);
}

/// Changes a value, if the device has it, and saves. What the device refuses is discarded.
void changeSettings(const Driver &driver)
{
    const auto press = [&driver](const QString &slider) {
        const QQuickItem *item = driver.find(slider);
        if (!item || !item->isEnabled())
            return;
        pressOnSlider(driver, slider, numberOf(driver, slider) > 10 ? Qt::Key_Left : Qt::Key_Right);
        awaitConfigIdle(driver);
    };
    press(u"mainFrameRateSlider"_s);
    if (driver.find(u"encodeSaveButton"_s) && driver.find(u"changeMark"_s)) {
        driver.click(u"encodeSaveButton"_s);
        awaitConfigIdle(driver);
    }
    if (driver.find(u"changeMark"_s)) {
        driver.click(u"encodeRefreshButton"_s);
        driver.click(u"okButton"_s);
        awaitConfigIdle(driver);
    }
    driver.click(u"configTab1"_s);
    awaitConfigIdle(driver);
    press(u"picture_brightnessSlider"_s);
    driver.click(u"configTab0"_s);
    awaitConfigIdle(driver);
}

void workOnSettings(const Driver &driver)
{
    driver.click(u"tab2"_s);
    // Devices that refuse settings, or report invalid ones, and one without faults.
    for (const int host : {203, 207, 208, 209, 215, 223, 224, 225, 226, 233}) {
        const QString address = u"192.168.1.%1"_s.arg(host);
        driver.fill(u"treeSearchField"_s, address);
        choose(driver, ipportOf(address));
        changeSettings(driver);
    }
    driver.fill(u"treeSearchField"_s, {});
}

/// The clocks of all devices.
void workOnSystem(const Driver &driver)
{
    driver.click(u"tab3"_s);
    driver.click(u"systemTab0"_s);
    if (driver.require(u"allDevicesBox"_s)->property("checkState").toInt() != Qt::Checked)
        driver.click(u"allDevicesBox"_s);
    driver.click(u"readTimeButton"_s);
    awaitBatch(driver);
    driver.click(u"setTimeByPCButton"_s);
    driver.require(u"previewTable"_s);
    driver.click(u"okButton"_s);
    awaitBatch(driver);
    driver.click(u"allDevicesBox"_s);
}

void workOnCommands(const Driver &driver)
{
    driver.click(u"tab4"_s);
    tickAll(driver, Rows(driver, u"cgiTable"_s));
    driver.click(u"batchCgiButton"_s);
    driver.fill(u"batchCgiCommand"_s, u"/cgi-bin/device?get=all"_s);
    driver.click(u"okButton"_s);
    driver.require(u"previewTable"_s);
    driver.click(u"okButton"_s);
    awaitBatch(driver);
    driver.require(u"dialogCloseButton"_s); // of the list of failed devices
    driver.key(Qt::Key_Escape);
    driver.awaitGone(u"dialogCloseButton"_s);
}

/// Live views of recorders with all snapshots, and of a camera whose stream starts late.
void workOnLiveViews(const Driver &driver)
{
    for (const int host : {210, 215, 211}) {
        const QString ipport = ipportOf(u"192.168.1.%1"_s.arg(host));
        const Driver live(openLive(driver, ipport), driver.imageFolder());
        live.await(
            u"the live view of %1 shows a frame"_s.arg(ipport),
            [&] {
                const QQuickItem *player = live.find(u"liveCell0"_s);
                const QQuickItem *video = player ? player->findChild<QQuickItem *>(u"liveVideo"_s) : nullptr;
                return video && !video->property("frameSize").toSize().isEmpty();
            },
            60);
        if (live.find(u"liveSnapAllButton"_s)) {
            live.click(u"liveSnapAllButton"_s);
            live.require(u"snapshotGrid"_s);
            live.await(
                u"each channel has a snapshot or a reason"_s,
                [&] { return !live.find(u"snapshotStopButton"_s); }, batchSeconds);
            live.key(Qt::Key_Escape);
            live.awaitGone(u"snapshotGrid"_s);
        }
        closeLive(driver, live);
    }
    driver.activate();
}

/// The images of all devices.
void workOnImages(const Driver &driver)
{
    const Rows rows(driver);
    showAllDevices(driver, rows);
    tickAll(driver, rows);
    driver.click(u"galleryButton"_s);
    const Driver gallery(awaitWindow(driver, u"galleryWindow"_s), driver.imageFolder());
    gallery.await(
        u"all images are fetched"_s, [&] { return gallery.find(u"galleryAgainButton"_s) != nullptr; },
        batchSeconds);
    gallery.click(u"gallerySaveButton"_s);
    gallery.await(
        u"the images are saved"_s, [&] { return gallery.find(u"galleryFolder"_s) != nullptr; }, 60);
    gallery.click(u"liveCloseButton"_s);
    awaitClosed(driver, gallery);
    driver.activate();
}

/// Deletes a device, adds it by its address as a favourite, and deletes the favourite.
void workOnFavourites(const Driver &driver)
{
    const Rows rows(driver);
    setSearchText(driver, u"searchField"_s, favourite, rows, [](int count) { return count == 1; });
    tickAll(driver, rows);
    driver.click(u"deleteButton"_s);
    driver.click(u"okButton"_s);
    driver.await(u"the device is deleted"_s, [&] { return rows.count() == 0; });
    driver.fill(u"searchField"_s, {});
    driver.click(u"addButton"_s);
    driver.click(u"addIpItem"_s);
    driver.fill(u"addressField"_s, favourite);
    driver.click(u"favouriteBox"_s);
    driver.fill(u"noteField"_s, u"note"_s);
    driver.fill(u"portField"_s, u"8800"_s);
    driver.fill(u"devicePasswordField"_s, password);
    driver.click(u"okButton"_s);
    driver.awaitGone(u"portField"_s);

    driver.click(u"addButton"_s);
    driver.click(u"addFavouriteItem"_s);
    driver.click(u"deleteFavourite0"_s);
    driver.require(u"messageText"_s);
    driver.click(u"okButton"_s);
    driver.await(u"no favourite is left"_s, [&] { return !driver.find(u"note0"_s); });
    driver.awaitGone(u"messageText"_s);
    driver.click(u"cancelButton"_s);
    driver.awaitGone(u"favouriteTable"_s);
}

/// Writes all devices into a list in each format, and reads a list.
void workOnLists(const Driver &driver)
{
    const Rows rows(driver);
    showAllDevices(driver, rows);
    tickAll(driver, rows);
    const QString folder = driver.imageFolder() + u"/lists"_s;
    QDir().mkpath(folder);
    for (const QString &format : {u".csv"_s, u".xml"_s, u".xlsx"_s}) {
        const QString path = folder + u"/device"_s + format;
        QFile::remove(path);
        driver.click(u"exportButton"_s);
        driver.click(u"format"_s + format);
        driver.click(u"okButton"_s);
        driver.acceptFileBox(folder);
        driver.await(u"%1 is written"_s.arg(path), [&] { return QFile::exists(path); });
        if (driver.find(u"reportTable"_s)) { // values that an import would change
            driver.click(u"okButton"_s);
            driver.awaitGone(u"reportTable"_s);
        }
    }
    driver.click(u"importButton"_s);
    driver.acceptFileBox(folder + u"/device.xlsx"_s);
    driver.await(
        u"the devices that failed are listed"_s, [&] { return driver.find(u"reportTable"_s) != nullptr; },
        batchSeconds);
    driver.click(u"okButton"_s);
    driver.awaitGone(u"reportTable"_s);
}

/// Upgrades of devices of which one succeeds.
void workOnUpgrades(const Driver &driver, sdk::demo::DemoSite &site, int round)
{
    driver.click(u"tab1"_s);
    const Rows rows(driver, u"upgradeTable"_s);
    for (const QString &address :
         {healthy, u"192.168.1.213"_s, u"192.168.1.234"_s, u"192.168.1.235"_s, u"192.168.1.236"_s}) {
        setSearchText(driver, u"upgradeSearchField"_s, address, rows, [](int count) { return count == 1; });
        const QString mac = rows.value(0, "mac").toString();
        site.setFault(mac, {.fault = Fault::UpgradeTakes, .number = 2});
        site.setFault(mac, {.fault = Fault::RebootTakes, .number = 2});
        tickAll(driver, rows);
    }
    setSearchText(driver, u"upgradeSearchField"_s, {}, rows, [](int count) { return count > 20; });
    driver.click(u"upgradeFileButton"_s);
    driver.acceptFileBox(writeFirmware(driver, driver.imageFolder(), u"3.000.%1"_s.arg(round), {model}));
    driver.click(u"upgradeStartButton"_s);
    driver.require(u"upgradePreviewTable"_s);
    driver.click(u"okButton"_s);
    driver.awaitGone(u"upgradePreviewTable"_s);
    awaitBatch(driver);
    driver.click(u"checkAllBox"_s);
    if (rows.countOf("checked", true) > 0)
        driver.click(u"checkAllBox"_s);
}

/// Resets a device, which the next round initialises again.
void workOnReset(const Driver &driver)
{
    driver.click(u"tab3"_s);
    driver.click(u"systemTab3"_s);
    driver.fill(u"treeSearchField"_s, healthy);
    driver.click(u"tick_"_s + ipportOf(healthy));
    driver.click(u"resetButton"_s);
    driver.require(u"cancelButton"_s); // the panel has a text with the name of that of the question
    driver.click(u"okButton"_s);
    driver.awaitGone(u"cancelButton"_s);
    awaitBatchEnd(driver, batchSeconds);
    driver.fill(u"treeSearchField"_s, {});
    if (driver.find(u"clearMarksButton"_s))
        driver.click(u"clearMarksButton"_s);
}

void work(const Driver &driver, sdk::demo::DemoSite &site, int round)
{
    site.requests().clear();
    const std::initializer_list<std::pair<QString, std::function<void()>>> subjects = {
        {u"search"_s,
         [&] {
             workOnSearch(driver);
         }},
        {u"first passwords"_s,
         [&] {
             workOnFirstPasswords(driver);
         }},
        {u"addresses"_s,
         [&] {
             workOnAddresses(driver, site);
         }},
        {u"settings"_s,
         [&] {
             workOnSettings(driver);
         }},
        {u"system"_s,
         [&] {
             workOnSystem(driver);
         }},
        {u"commands"_s,
         [&] {
             workOnCommands(driver);
         }},
        {u"live views"_s,
         [&] {
             workOnLiveViews(driver);
         }},
        {u"images"_s,
         [&] {
             workOnImages(driver);
         }},
        {u"favourites"_s,
         [&] {
             workOnFavourites(driver);
         }},
        {u"lists"_s,
         [&] {
             workOnLists(driver);
         }},
        {u"upgrades"_s,
         [&] {
             workOnUpgrades(driver, site, round);
         }},
        {u"reset"_s,
         [&] {
             workOnReset(driver);
         }},
    };
    QTextStream out(stderr);
    for (const auto &[subject, perform] : subjects) {
        QElapsedTimer timer;
        timer.start();
        perform();
        out << "  " << subject << ": " << timer.elapsed() / 1000 << " s" << Qt::endl;
    }
}

/// Waits until work in the background has ended: the counts are at most those of the first round, or have not
/// changed for longer than threads of a pool wait for their next task.
void awaitRest(const Driver &driver, const QList<ProcessFigures> &rounds)
{
    constexpr qint64 longerThanPools = 35000;
    ProcessFigures counts = processCounts();
    QElapsedTimer unchanged;
    unchanged.start();
    driver.await(
        u"the process is at rest"_s,
        [&] {
            const ProcessFigures now = processCounts();
            if (now.threads != counts.threads || now.descriptors != counts.descriptors)
                unchanged.restart();
            counts = now;
            return unchanged.elapsed() > longerThanPools ||
                   (!rounds.isEmpty() && now.threads <= rounds.first().threads &&
                    now.descriptors <= rounds.first().descriptors);
        },
        batchSeconds);
}

} // namespace

int soakMinutes()
{
    constexpr int standard = 120;
    bool isNumber = false;
    const int minutes = qEnvironmentVariableIntValue("CONFIGTOOLS_SOAK_MINUTES", &isNumber);
    return isNumber && minutes > 0 ? minutes : standard;
}

void walkSoak(Driver &driver, sdk::demo::DemoSite &site)
{
    constexpr int fewestRounds = 3;
    const QDeadlineTimer end(std::chrono::minutes{soakMinutes()});
    auto *application = static_cast<TimedApplication *>(QCoreApplication::instance());
    QTextStream out(stdout);
    const auto line = [&out](const QStringList &cells) {
        for (const QString &cell : cells)
            out << cell.rightJustified(13);
        out << Qt::endl;
    };
    line({u"round"_s, u"seconds"_s, u"memory MB"_s, u"heap MB"_s, u"threads"_s, u"descriptors"_s,
          u"objects"_s, u"event ms"_s});
    driver.activate();
    awaitSearchEnd(driver);
    QList<ProcessFigures> rounds;
    while (rounds.size() < fewestRounds || !end.hasExpired()) {
        QElapsedTimer timer;
        timer.start();
        const int round = static_cast<int>(rounds.size()) + 1;
        (void)application->takeLongest();
        work(driver, site, round);
        const qint64 longest = application->takeLongest();
        awaitRest(driver, rounds);
        rounds.append(processFigures());
        const ProcessFigures &figures = rounds.constLast();
        line({QString::number(round), QString::number(timer.elapsed() / 1000),
              QString::number(figures.megabytes, 'f', 1), QString::number(figures.heapMegabytes, 'f', 1),
              QString::number(figures.threads), QString::number(figures.descriptors),
              QString::number(figures.objects), QString::number(longest)});
    }
    const QStringList growth = growthOf(rounds);
    for (const QString &figure : growth)
        out << "Growth: " << figure << Qt::endl;
    driver.check(growth.isEmpty(), u"nothing grows in %1 rounds"_s.arg(rounds.size()));
    out << "No growth in " << rounds.size() << " rounds" << Qt::endl;
}

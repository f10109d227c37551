#include "sdk/demo/demosite.h"
#include "sdk/demo/scene/fault.h"
#include "tests/tour/driver/livewindow.h"
#include "tests/tour/driver/otherwindow.h"
#include "tests/tour/driver/rows.h"
#include "tests/tour/steps.h"

#include <QDir>
#include <QImage>

using namespace Qt::StringLiterals;

namespace {

const QString refusing = u"192.168.1.103:8800"_s;
const QString refusingMac = u"02:1a:c5:00:40:6f"_s;
const QString freshDevice = u"192.168.1.108:8800"_s;
const QStringList chosen = {
    u"192.168.1.101:8800"_s, u"192.168.1.102:8800"_s, refusing, u"192.168.1.104:8800"_s, freshDevice,
    u"192.168.1.121:8801"_s, u"192.168.1.140:8800"_s};

void walkImages(Driver &gallery)
{
    gallery.await(u"the first image is shown"_s, [&] { return gallery.find(u"galleryImage"_s) != nullptr; });
    gallery.report(u"fetching"_s, gallery.text(u"gallerySummary"_s));
    gallery.await(
        u"all images are fetched"_s, [&] { return gallery.find(u"galleryAgainButton"_s) != nullptr; }, 60);
    gallery.check(gallery.texts(u"galleryTitle"_s).size() > chosen.size(),
                  u"a recorder has an image for each channel"_s);
    gallery.report(u"fetched"_s,
                   gallery.text(u"gallerySummary"_s) + u", "_s + gallery.text(u"galleryFailures"_s));
    gallery.key(Qt::Key_Right);
    gallery.key(Qt::Key_Down);
    gallery.hover(u"galleryTitle"_s);
    gallery.report(u"selected"_s, gallery.text(u"gallerySummary"_s));
    gallery.key(Qt::Key_S, Qt::ControlModifier);
    gallery.await(u"the images are saved"_s, [&] { return gallery.find(u"galleryFolder"_s) != nullptr; });
    gallery.report(u"saved"_s, gallery.text(u"gallerySummary"_s));
    gallery.check(!QImage(u"snap/192.168.1.101_8800/0.jpg"_s).isNull(), u"an image is in the folder"_s);
    gallery.key(Qt::Key_Home);
}

void awaitPlaying(const Driver &live, const QList<int> &indexes)
{
    live.await(u"the live views show frames"_s, [&] {
        for (const int index : indexes) {
            const QQuickItem *player = live.find(u"liveCell%1"_s.arg(index));
            if (!player || !player->property("playing").toBool())
                return false;
        }
        return true;
    });
}

void walkNavigation(Driver &live)
{
    awaitPlaying(live, {0});
    live.report(u"first"_s, live.text(u"liveDevicePosition"_s) + u' ' + live.text(u"liveTitle"_s));
    live.key(Qt::Key_PageDown);
    live.await(u"the next device is shown"_s, [&] { return live.text(u"liveAddress"_s) == chosen.at(1); });
    awaitPlaying(live, {0});
    live.hover(u"liveLaterButton"_s);
    live.report(u"next"_s, live.text(u"liveDevicePosition"_s) + u' ' + live.text(u"liveTitle"_s));
    live.click(u"liveEarlierButton"_s);
    awaitPlaying(live, {0});
}

void walkSeveralDevices(Driver &live)
{
    live.click(u"liveAddButton"_s);
    live.await(u"the cell shows the refused login"_s,
               [&] { return live.find(u"liveRetryButton"_s) != nullptr; });
    awaitPlaying(live, {0, 1, 3, 4, 5});
    live.report(u"several"_s, live.texts(u"liveChannelName"_s).join(u", "_s));
    live.click(u"liveRemove1"_s);
    live.await(u"the device is removed"_s,
               [&] { return !live.texts(u"liveChannelName"_s).join(u' ').contains(u"Reception"_s); });
    live.report(u"removed"_s, live.texts(u"liveChannelName"_s).join(u", "_s));
}

} // namespace

void walkGallery(Driver &driver, sdk::demo::DemoSite &site, const QString &folder)
{
    site.setFault(refusingMac, {.fault = sdk::demo::Fault::WrongPassword});
    tickRows(driver, Rows(driver), chosen);
    driver.hover(u"galleryButton"_s);
    driver.report(u"gallery-button"_s, u"%1 devices are ticked"_s.arg(chosen.size()));
    driver.click(u"galleryButton"_s);
    Driver gallery(awaitWindow(driver, u"galleryWindow"_s), folder);
    walkImages(gallery);

    gallery.key(Qt::Key_Return);
    Driver live(awaitWindow(driver, u"liveWindow"_s), folder + u"/live"_s);
    walkNavigation(live);
    walkSeveralDevices(live);
    closeLive(driver, live);
    gallery.activate();
    gallery.key(Qt::Key_Escape);
    awaitClosed(driver, gallery);
    site.clearFault(refusingMac, sdk::demo::Fault::WrongPassword);
}

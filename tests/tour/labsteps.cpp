// The main operations on devices that use open standards, over real sockets.
#include "tests/tour/driver/commonsteps.h"
#include "tests/tour/driver/driver.h"
#include "tests/tour/driver/livewindow.h"
#include "tests/tour/driver/rows.h"
#include "tests/tour/steps.h"

using namespace Qt::StringLiterals;

namespace {

const QString camera = u"192.168.1.101:80"_s;
const QString factoryNew = u"192.168.1.108:80"_s;
const QString password = u"Office-2024"_s;

void walkFound(Driver &driver)
{
    awaitSearchEnd(driver, 60);
    const Rows rows(driver);
    driver.await(u"the devices of the site are listed"_s, [&] { return rows.count() >= 20; });
    const int row = rows.rowOf("ipport", camera);
    driver.check(row >= 0 && rows.value(row, "mac").toString() == u"02:1a:c5:00:40:25"_s &&
                     rows.value(row, "model").toString() == u"B-2230-IR"_s,
                 u"a camera is listed with its MAC and model"_s);
    driver.report(u"found"_s, u"%1 devices"_s.arg(rows.count()));
}

void walkFirstPassword(Driver &driver)
{
    const Rows rows(driver);
    findDevice(driver, factoryNew);
    driver.check(!rows.value(0, "state").toBool(), u"a factory-new device is recognised"_s);
    driver.click(u"check0"_s);
    driver.click(u"initialiseButton"_s);
    driver.require(u"initialiseTable"_s);
    driver.click(u"okButton"_s);
    driver.fill(u"firstPasswordField"_s, password);
    driver.fill(u"confirmationField"_s, password);
    driver.click(u"okButton"_s);
    driver.await(
        u"the device has its first password"_s, [&] { return rows.value(0, "res").toInt() == 0; }, 30);
    driver.await(
        u"the row shows the new state"_s, [&] { return rows.value(0, "state").toBool(); }, 30);
    driver.report(u"first-password"_s, rows.value(0, "ipport").toString());
}

void walkAddress(Driver &driver)
{
    const Rows rows(driver);
    const QString mac = rows.value(0, "mac").toString();
    setDefaultPassword(driver, password); // an address change requires the administrator's login
    findDevice(driver, factoryNew);
    driver.click(u"edit0"_s);
    driver.fill(u"newStartField"_s, u"192.168.1.208"_s);
    driver.key(Qt::Key_Return);
    driver.await(
        u"the address was changed"_s, [&] { return rows.count() == 0 && !isBatchRunning(driver); }, 40);
    driver.click(u"emptyActionButton"_s);
    driver.await(
        u"the row has the new address"_s,
        [&] {
            const int row = rows.rowOf("mac", mac);
            return row >= 0 && rows.value(row, "ipport").toString() == u"192.168.1.208:80"_s &&
                   rows.value(row, "res").toInt() == 0;
        },
        40);
    driver.report(u"address"_s, u"192.168.1.208"_s);
}

void walkSettings(Driver &driver)
{
    driver.click(u"tab2"_s);
    driver.click(u"device_"_s + camera);
    driver.await(
        u"the encode settings are shown"_s, [&] { return driver.find(u"encodeSaveButton"_s) != nullptr; },
        30);
    awaitConfigIdle(driver);
    driver.report(u"encode"_s, driver.text(u"configDevice"_s));
    driver.check(!driver.require(u"mainStreamTypeChoice"_s)->isEnabled(),
                 u"missing stream types are not offered"_s);
    QQuickItem *slider = driver.require(u"mainFrameRateSlider"_s);
    slider->childItems().constFirst()->forceActiveFocus(Qt::TabFocusReason);
    driver.key(Qt::Key_Left);
    const int rate = slider->property("value").toInt();
    driver.click(u"encodeSaveButton"_s);
    expectToast(driver, translated("EncodeWork", "保存成功"));
    awaitConfigIdle(driver);
    driver.check(driver.require(u"mainFrameRateSlider"_s)->property("value").toInt() == rate,
                 u"the device has the new frame rate"_s);
    driver.report(u"encode-saved"_s, u"%1 frames per second"_s.arg(rate));

    driver.click(u"configTab1"_s);
    driver.await(
        u"the image settings are shown"_s, [&] { return driver.find(u"group_picture"_s) != nullptr; }, 30);
    awaitConfigIdle(driver);
    driver.check(!driver.find(u"picture_hue"_s), u"missing settings are hidden"_s);
    QQuickItem *brightness = driver.require(u"picture_brightnessSlider"_s);
    const int before = brightness->property("value").toInt();
    brightness->childItems().constFirst()->forceActiveFocus(Qt::TabFocusReason);
    driver.key(before > 50 ? Qt::Key_PageDown : Qt::Key_PageUp);
    driver.await(u"the brightness is changed"_s, [&] {
        return driver.require(u"picture_brightnessSlider"_s)->property("value").toInt() != before;
    });
    awaitConfigIdle(driver);
    driver.report(u"image"_s, u"brightness %1"_s.arg(brightness->property("value").toInt()));
}

void walkLiveView(Driver &driver)
{
    Driver live(openLive(driver, camera), driver.imageFolder() + u"/live"_s);
    live.await(
        u"the live view shows a frame"_s,
        [&] {
            const QQuickItem *player = live.find(u"liveCell0"_s);
            const QQuickItem *video = player ? player->findChild<QQuickItem *>(u"liveVideo"_s) : nullptr;
            return video && !video->property("frameSize").toSize().isEmpty();
        },
        40);
    live.report(u"live"_s, u"live video"_s);
    closeLive(driver, live);
}

void walkSystemTime(Driver &driver)
{
    driver.click(u"tab3"_s);
    driver.click(u"tick_"_s + camera);
    driver.click(u"systemTab0"_s);
    driver.click(u"setTimeByPCButton"_s);
    driver.await(
        u"the clock is set"_s,
        [&] { return driver.require(u"device_"_s + camera)->property("result").toInt() == 0; }, 30);
    driver.report(u"system-time"_s, u"the clock is set"_s);
    driver.click(u"systemTab5"_s);
    driver.check(!driver.require(u"videoStandardButton"_s)->isEnabled(),
                 u"a setting that such devices do not have is disabled"_s);
    driver.report(u"video-standard"_s, u"not available"_s);
}

} // namespace

void walkLab(Driver &driver)
{
    walkFound(driver);
    walkFirstPassword(driver);
    walkAddress(driver);
    walkSettings(driver);
    walkLiveView(driver);
    walkSystemTime(driver);
}

#include "sdk/demo/demosite.h"
#include "sdk/demo/scene/fault.h"
#include "sdk/encodeblocks.h"
#include "tests/tour/driver/commonsteps.h"
#include "tests/tour/driver/configpage.h"
#include "tests/tour/driver/scenedevices.h"
#include "tests/tour/driver/scrolledtree.h"
#include "tests/tour/steps.h"

#include <QJsonArray>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

constexpr int copiedCompletely = 0;
constexpr int copiedPartly = -3;

const QString first = u"192.168.1.101:8800"_s;
const QString second = u"192.168.1.102:8800"_s;
const QString old = u"192.168.1.105:8800"_s; // has MPEG4 only
const QString last = u"192.168.1.104:8800"_s;
const QString recorder = u"192.168.1.120:8800"_s;
const QString twoLamps = u"192.168.1.103:8800"_s;
const QString password = u"Office-2024"_s;

QString shownBy(const Driver &driver, const QString &choice)
{
    return driver.require(choice)->property("displayText").toString();
}

void setNumber(const Driver &driver, const QString &field, int number)
{
    driver.require(field)->forceActiveFocus(Qt::TabFocusReason); // scrolls it into view
    driver.fill(field, QString::number(number));
    driver.key(Qt::Key_Return);
}

/// The recorders are below the cameras, outside the visible area.
void chooseRecorder(const Driver &driver)
{
    const QQuickItem *tree = driver.require(u"deviceTree"_s);
    const int rows = tree->property("count").toInt();
    driver.click(u"open_IPC"_s);
    driver.await(u"the group of the cameras is closed"_s, [&] {
        const QQuickItem *row = driver.find(u"device_"_s + recorder);
        return tree->property("count").toInt() < rows && row && row->y() + row->height() < tree->height();
    });
    choose(driver, recorder);
    driver.click(u"open_IPC"_s);
    driver.await(u"the group of the cameras is open again"_s,
                 [&] { return tree->property("count").toInt() == rows; });
}

/// A refused login asks for the account and continues with it.
void walkLogin(Driver &driver)
{
    driver.click(u"tab2"_s);
    driver.report(u"config-none"_s, driver.text(u"emptyTitle"_s));
    const QQuickItem *deviceTree = driver.require(u"deviceTree"_s);
    {
        // The tree has not had the keyboard before the first click.
        const ScrolledTree tree(driver);
        const QString device = tree.clickDevice();
        driver.check(deviceTree->property("chosenDevice").toString() == device,
                     u"the login is one to the device that was clicked"_s);
        driver.require(u"devicePasswordField"_s);
        driver.click(u"cancelButton"_s);
        driver.await(u"the login is cancelled"_s, [&] { return !driver.find(u"devicePasswordField"_s); });
        tree.tickGroup();
        tree.tickDevice();
        driver.turnWheel(deviceTree->mapToScene({1, 1}), 100);
    }
    driver.click(u"device_"_s + first);
    driver.require(u"devicePasswordField"_s);
    driver.report(u"config-refused"_s, driver.text(u"configState"_s));
    driver.fill(u"devicePasswordField"_s, password);
    driver.click(u"okButton"_s);
    driver.require(u"encodeSaveButton"_s);
    awaitConfigIdle(driver);
    driver.report(u"config-encode"_s, driver.text(u"configDevice"_s));
}

void walkStreams(Driver &driver)
{
    driver.check(shownBy(driver, u"mainEncodeModeChoice"_s).startsWith(u"H.264"),
                 u"the main stream's compression is shown"_s);
    pick(driver, u"mainEncodeModeChoice"_s, 1);
    pick(driver, u"mainResolutionChoice"_s, 1);
    pick(driver, u"mainControlChoice"_s, 0);
    driver.check(!driver.require(u"mainQualitySlider"_s)->isEnabled(),
                 u"the quality is disabled if the bit rate is fixed"_s);
    pick(driver, u"mainControlChoice"_s, 1);
    driver.check(driver.require(u"mainQualitySlider"_s)->isEnabled(),
                 u"the quality is enabled if the bit rate varies"_s);
    slide(driver, u"mainQualitySlider"_s, Qt::Key_Left, 3);
    slide(driver, u"mainFrameRateSlider"_s, Qt::Key_PageDown, 23);
    driver.click(u"mainBitRateChoice"_s);
    driver.report(u"config-bit-rates"_s, u"listed bit rates, and a custom one"_s);
    driver.key(Qt::Key_End);
    driver.key(Qt::Key_Return);
    driver.fill(u"mainBitRateField"_s, u"3000"_s);
    driver.key(Qt::Key_Return);
    pick(driver, u"subResolutionChoice"_s, 2);
    slide(driver, u"subFrameRateSlider"_s, Qt::Key_Home, 1);
    driver.click(u"subAudioSwitch"_s);
    driver.report(u"config-changed"_s, driver.text(u"encodeNotice"_s));
}

/// Changes are not discarded without a question.
void walkLeaving(Driver &driver)
{
    for (const QString &way : {u"device_"_s + second, u"configTab1"_s, u"tab0"_s}) {
        driver.click(way);
        driver.require(u"messageText"_s);
        if (way == u"tab0")
            driver.report(u"config-leaving"_s, driver.text(u"messageText"_s));
        driver.click(u"cancelButton"_s);
        driver.await(u"the question is closed"_s, [&] { return !driver.find(u"messageText"_s); });
    }
    driver.check(driver.find(u"encodeSaveButton"_s) != nullptr, u"the changes are still there"_s);
}

void walkSaving(Driver &driver, sdk::demo::DemoSite &site)
{
    const QString mac = macOf(site, first);
    const int item = static_cast<int>(sdk::EncodeItem::AudioFormat);
    site.setFault(mac, {.fault = sdk::demo::Fault::RefusesItem, .number = item});
    driver.click(u"encodeSaveButton"_s);
    const QString refused = translated("EncodeConfig", "主码流编码音频格式") + u'\n' +
                            translated("EncodeConfig", "辅码流编码音频格式配置") + u'\n' +
                            translated("EncodeWork", "保存失败");
    expectToast(driver, refused);
    driver.report(u"config-item-refused"_s, driver.text(u"encodeNotice"_s));
    site.clearFault(mac, sdk::demo::Fault::RefusesItem);
    driver.click(u"encodeSaveButton"_s);
    expectToast(driver, translated("EncodeWork", "保存成功"));
    awaitConfigIdle(driver);
    driver.check(!driver.find(u"changeMark"_s), u"no unsaved change is left"_s);

    choose(driver, second);
    driver.click(u"device_"_s + first);
    awaitConfigIdle(driver);
    driver.check(driver.text(u"mainBitRateField"_s) == u"3000" &&
                     numberOf(driver, u"mainFrameRateSlider"_s) == 23,
                 u"the next login reads the saved values"_s);
    driver.report(u"config-saved"_s, shownBy(driver, u"mainEncodeModeChoice"_s));
}

/// Settings that cannot be read are neither shown as values nor written.
void walkUnread(Driver &driver, sdk::demo::DemoSite &site)
{
    const QString mac = macOf(site, first);
    const auto item = static_cast<int>(sdk::EncodeItem::AudioCompression);
    const auto asked = [&](const QString &operation) {
        return site.requests().of(operation).size();
    };
    site.setFault(mac, {.fault = sdk::demo::Fault::WithholdsItem, .number = item});
    driver.click(u"encodeRefreshButton"_s);
    awaitConfigIdle(driver);
    driver.check(!driver.require(u"mainAudioSwitch"_s)->isEnabled() &&
                     driver.require(u"mainQualitySlider"_s)->isEnabled(),
                 u"only unread settings are disabled"_s);
    driver.report(u"config-unread"_s, driver.text(u"encodeNotice"_s));
    const qsizetype before = asked(u"NetSetItem"_s);
    driver.click(u"encodeSaveButton"_s);
    awaitConfigIdle(driver);
    driver.check(asked(u"NetSetItem"_s) == before + 6, u"only read settings are written"_s);
    driver.report(u"config-unread-saved"_s, driver.text(u"encodeNotice"_s));
    site.clearFault(mac, sdk::demo::Fault::WithholdsItem);
    driver.click(u"encodeRefreshButton"_s);
    awaitConfigIdle(driver);
}

int resultOf(const Driver &driver, const QString &device)
{
    return driver.require(u"device_"_s + device)->property("result").toInt();
}

void walkCopying(Driver &driver)
{
    for (const QString &device : {second, last, old})
        driver.click(u"tick_"_s + device);
    driver.click(u"copyButton"_s);
    driver.report(u"config-copy"_s, driver.text(u"messageText"_s));
    driver.click(u"previewButton"_s);
    driver.require(u"previewTable"_s);
    driver.report(u"config-copy-list"_s, driver.text(u"batchCount"_s));
    driver.click(u"okButton"_s);
    driver.await(u"each device has its result"_s, [&] {
        return resultOf(driver, second) == copiedCompletely && resultOf(driver, old) == copiedPartly &&
               resultOf(driver, last) == copiedCompletely;
    });
    awaitBatchEnd(driver);
    driver.hover(u"resultSign"_s); // of the lowest row
    driver.await(u"the settings that were not copied are listed"_s,
                 [&] { return driver.find(u"toolTip"_s) != nullptr; });
    driver.report(u"config-copied"_s, driver.text(u"toolTip"_s));
}

void walkChannels(Driver &driver)
{
    chooseRecorder(driver);
    pick(driver, u"encodeChannelChoice"_s, 7);
    driver.report(u"config-unplugged"_s, driver.text(u"emptyTitle"_s));
    pick(driver, u"encodeChannelChoice"_s, 1);
    driver.check(driver.require(u"encodeChannelChoice"_s)->property("count").toInt() == 16,
                 u"the recorder has 16 channels"_s);
    driver.report(u"config-recorder"_s, driver.text(u"configDevice"_s));
    choose(driver, old);
    driver.report(u"config-old"_s, shownBy(driver, u"mainEncodeModeChoice"_s));
}

/// Discarded changes are removed.
void walkDiscarding(Driver &driver)
{
    pick(driver, u"mainControlChoice"_s, 0);
    driver.click(u"configTab1"_s);
    driver.require(u"messageText"_s);
    driver.click(u"okButton"_s);
    driver.require(u"channelLiveView"_s);
    awaitConfigIdle(driver);
    driver.click(u"configTab0"_s);
    driver.require(u"encodeSaveButton"_s);
    awaitConfigIdle(driver);
    driver.check(driver.require(u"mainControlChoice"_s)->property("currentIndex").toInt() == 1,
                 u"discarded settings are read again"_s);
}

void walkImage(Driver &driver, sdk::demo::DemoSite &site)
{
    choose(driver, first);
    driver.click(u"configTab1"_s);
    awaitConfigIdle(driver);
    driver.await(u"the live view shows a frame"_s,
                 [&] { return driver.require(u"liveVideo"_s)->property("hasFrame").toBool(); });
    driver.report(u"config-image"_s, driver.text(u"liveChannelName"_s));
    slide(driver, u"picture_brightnessSlider"_s, Qt::Key_PageUp, 60);
    pick(driver, u"picture_colorStyle"_s, 2);
    driver.click(u"mirror_value"_s);
    awaitConfigIdle(driver);
    driver.fill(u"channelNameField"_s, u"East gate"_s);
    driver.key(Qt::Key_Return);
    awaitConfigIdle(driver);
    driver.check(driver.text(u"liveChannelName"_s) == u"East gate", u"the channel has its new name"_s);
    driver.click(u"imageSubject1"_s);
    pick(driver, u"shutterChoice"_s, 4);
    pick(driver, u"backMode_backlightmode"_s, 1);
    driver.report(u"config-exposure"_s, shownBy(driver, u"shutterChoice"_s));

    setNumber(driver, u"regionLeft"_s, 7000);
    driver.report(u"config-region"_s, driver.text(u"regionError"_s));
    setNumber(driver, u"regionRight"_s, 8000);
    awaitConfigIdle(driver);
    driver.check(!driver.find(u"regionError"_s) && driver.text(u"regionLeft"_s) == u"7000",
                 u"both sides of a region are written together"_s);

    site.setFault(macOf(site, first), {.fault = sdk::demo::Fault::RefusesItem, .number = 1318});
    driver.click(u"imageSubject0"_s);
    slide(driver, u"picture_hue"_s, Qt::Key_Right, 51);
    const int sharpness = numberOf(driver, u"sharpness_value"_s);
    driver.require(u"sharpness_value"_s)->childItems().constFirst()->forceActiveFocus(Qt::TabFocusReason);
    driver.key(Qt::Key_Right);
    expectToast(driver, translated("ImageWork", "没有修改：%1。显示的是设备现有的值")
                            .arg(translated("EncodeForm", "设备不支持此操作")));
    driver.check(numberOf(driver, u"sharpness_value"_s) == sharpness, u"a refused value is reset"_s);
    driver.report(u"config-image-refused"_s, driver.text(u"configState"_s));
    site.clearFault(macOf(site, first), sdk::demo::Fault::RefusesItem);
    driver.click(u"imageDefaultsButton"_s);
    driver.await(u"the defaults are set"_s,
                 [&] { return numberOf(driver, u"picture_brightnessSlider"_s) == 50; });
    awaitConfigIdle(driver);

    choose(driver, twoLamps);
    driver.click(u"imageSubject2"_s);
    driver.check(driver.find(u"lightControlEx_mixMode"_s) && !driver.find(u"lightControl_controlMode"_s),
                 u"a camera shows only the settings that it has"_s);
    pick(driver, u"lightControlEx_Sensitive"_s, 2);
    slide(driver, u"lightControlEx_Brightness"_s, Qt::Key_End, 100);
    driver.report(u"config-light"_s, shownBy(driver, u"lightControlEx_mixMode"_s));
    pick(driver, u"switchModeChoice"_s, 1);
    driver.click(u"imageSubject0"_s);
    driver.check(numberOf(driver, u"picture_brightnessSlider"_s) == 40,
                 u"the night has separate image settings"_s);
    chooseRecorder(driver);
    driver.click(u"imageSubject1"_s);
    driver.report(u"config-image-none"_s, driver.text(u"emptyTitle"_s));
}

/// A device that no longer responds in its session.
void walkLostLogin(Driver &driver, sdk::demo::DemoSite &site)
{
    const QString mac = macOf(site, last);
    const sdk::demo::FaultSetting noResponse = {.fault = sdk::demo::Fault::NoAnswer};
    const QString loggedIn = translated("DeviceState", "已登录");
    choose(driver, last);
    pick(driver, u"mainControlChoice"_s, 0);
    site.setFault(mac, noResponse);
    pick(driver, u"subResolutionChoice"_s, 1);
    driver.report(u"config-lost-changes"_s, driver.text(u"encodeNotice"_s));
    driver.check(driver.find(u"mainControlChoice"_s) != nullptr, u"the changes are still in view"_s);
    site.clearFault(mac, sdk::demo::Fault::NoAnswer);
    driver.click(u"encodeRefreshButton"_s);
    driver.click(u"okButton"_s); // discards the changes
    awaitConfigIdle(driver);
    driver.check(driver.text(u"configState"_s) == loggedIn, u"refreshing logs in again"_s);

    driver.click(u"configTab1"_s);
    awaitConfigIdle(driver);
    site.setFault(mac, noResponse);
    pick(driver, u"switchModeChoice"_s, 1);
    driver.report(u"config-lost"_s, driver.text(u"emptyTitle"_s));
    site.clearFault(mac, sdk::demo::Fault::NoAnswer);
    driver.click(u"device_"_s + last);
    awaitConfigIdle(driver);
    driver.check(driver.find(u"switchModeChoice"_s) && driver.text(u"configState"_s) == loggedIn,
                 u"selecting the device again logs in again"_s);
    driver.click(u"configTab0"_s);
    awaitConfigIdle(driver);
}

/// A device with invalid data, and one that is offline.
void walkOddDevices(Driver &driver, sdk::demo::DemoSite &site)
{
    const QString mac = macOf(site, second);
    site.setFault(mac, {.fault = sdk::demo::Fault::OddCapabilities});
    site.setFault(mac, {.fault = sdk::demo::Fault::OddConfiguration, .number = 0, .text = u"Encode"_s});
    choose(driver, second);
    driver.click(u"imageSubject1"_s);
    driver.report(u"config-odd-image"_s, driver.text(u"configState"_s));
    driver.click(u"configTab0"_s);
    expectToast(driver, translated("ConfigSession", "获取设备配置失败"));
    awaitConfigIdle(driver);
    driver.report(u"config-odd-encode"_s, driver.text(u"encodeNotice"_s));
    site.clearFault(mac, sdk::demo::Fault::OddCapabilities);
    site.clearFault(mac, sdk::demo::Fault::OddConfiguration);

    site.setFault(macOf(site, last), {.fault = sdk::demo::Fault::NoAnswer});
    choose(driver, last);
    driver.report(u"config-away"_s, driver.text(u"configState"_s));
    site.clearFault(macOf(site, last), sdk::demo::Fault::NoAnswer);
    driver.click(u"emptyActionButton"_s);
    driver.require(u"encodeSaveButton"_s);
    awaitConfigIdle(driver);
    driver.click(u"tab0"_s);
}

} // namespace

void walkConfiguration(Driver &driver, sdk::demo::DemoSite &site)
{
    walkLogin(driver);
    setDefaultPassword(driver, password);
    walkStreams(driver);
    walkLeaving(driver);
    walkSaving(driver, site);
    walkUnread(driver, site);
    walkCopying(driver);
    walkChannels(driver);
    walkDiscarding(driver);
    walkImage(driver, site);
    driver.click(u"configTab0"_s);
    walkLostLogin(driver, site);
    driver.click(u"configTab1"_s);
    walkOddDevices(driver, site);
}

// The camera image page on a simulated site: every change is a separate request.
#include "device/forms/encodeform.h"
#include "tests/datatable.h"
#include "tests/device/dh/configsite.h"

using sdk::demo::Fault;
using sdk::demo::FaultSetting;
using sdk::demo::SceneDevice;

namespace {

const QStringList groups = {"picture",  "sharpness",    "mirror",        "stable",
                            "exposure", "backMode",     "whiteBalance",  "dayNight",
                            "inDefog",  "lightControl", "lightControlEx"};

SceneDevice camera()
{
    SceneDevice device = configDevice(1, "IPC", 2);
    device.capabilities = {
        {"camera", QJsonArray({"picture", "sharpness", "mirror", "stable", "exposure", "backLight",
                               "whiteBalance", "dayNight", "defog", "light", "mixedLight"})}};
    return device;
}

} // namespace

class TestCameraConfig : public QObject
{
    Q_OBJECT
private:
    std::unique_ptr<ConfigSite> m_site;

    void read() const
    {
        m_site->factory->getCameraConfig("dh");
        m_site->factory->getVideoInByChangeChannel("dh");
    }

    void open(const SceneDevice &device)
    {
        m_site.reset();
        m_site = std::make_unique<ConfigSite>(QList<SceneDevice>{device});
        QCOMPARE(m_site->login(device), 0);
        read();
        m_site->site->requests().clear();
    }

    QVariant value(const QString &group, const QString &subKey) const
    {
        return m_site->get(group).toMap().value(subKey);
    }

    QStringList supported() const
    {
        QStringList names;
        for (const QString &group : groups) {
            if (value(group, "support").toBool())
                names.append(group);
        }
        return names;
    }

private Q_SLOTS:
    void cleanup() { m_site.reset(); }

    void eachCameraShowsWhatItSupports()
    {
        open(camera());
        QCOMPARE(supported(), groups);
        QCOMPARE(value("exposure", "allExposureType").toStringList().size(), 4);
        QCOMPARE(value("backMode", "allBackModeType").toStringList(),
                 QStringList({"关闭", "背光补偿", "宽动态", "强光抑制"}));
        QCOMPARE(value("exposure", "ranges").toMap().value("3D").toMap().value("max").toInt(), 4);
        QCOMPARE(value("lightControlEx", "ranges").toMap().value("Brightness").toMap().value("min").toInt(),
                 1);
        QCOMPARE(m_site->get("allSwitchMode").toStringList(), QStringList({"白天", "夜晚", "普通"}));
        QCOMPARE(m_site->get("curChannelName").toString(), "东门 1");
        m_site->set("curChannelName", QString::fromUtf8("\u202E 大\u200F门"));
        QCOMPARE(m_site->get("curChannelName").toString(), "大门");

        open(configDevice(3, "NVR", 16));
        QCOMPARE(supported(), QStringList({"picture"}));
        m_site->set("mirror", true);
        QVERIFY(m_site->site->requests().all().isEmpty());

        SceneDevice old = configDevice(4, "IPC", 1);
        old.initialisation = sdk::InitialisationBits::NotReported;
        open(old);
        QVERIFY(!supported().contains("lightControlEx"));
        QCOMPARE(value("whiteBalance", "allType").toStringList(), QStringList({"自动", "自然光"}));
        QCOMPARE(m_site->get("allSwitchMode").toStringList(), QStringList({"白天"}));
    }

    void aChangeIsWrittenImmediately_data()
    {
        // writes: the written items
        // lastItem: some fields of the last one
        const auto addRow = dataTable<QString, QString, QVariant, QStringList, QVariantMap>(
            {"key", "subKey", "value", "writes", "lastItem"});
        const auto row = [&addRow](const char *key, const char *subKey, const QVariant &value,
                                   const char *write, const QVariantMap &lastItem) {
            addRow(qPrintable(QString(key) + ' ' + subKey), key, subKey, value, QString(write).split(','),
                   lastItem);
        };
        const char *picture = "1301/0@1 64 5000";
        row("picture", "brightnessSlider", 70, picture, {{"brightness", 70}});
        row("picture", "contrastSlider", 71, picture, {{"contrast", 71}});
        row("picture", "saturationSlider", 72, picture, {{"saturation", 72}});
        row("picture", "hue", 73, picture, {{"hue", 73}});
        row("picture", "colorStyle", 3, picture, {{"colorStyle", 3}});
        row("picture", "gamma", 1000, picture, {{"gamma", 100}}); // limited to the range
        row("sharpness", "", 33, "1318/0@1 20 5000", {{"sharpness", 33}});
        row("mirror", "", true, "1302/0@1 20 5000", {{"mirror", 1}, {"rotate", 0}});
        row("mirror", "Rotate", 3, "1302/0@1 20 5000", {{"rotate", 3}, {"mirror", 0}});
        row("stable", "", true, "1303/0@1 12 5000", {{"stable", 1}});
        const char *exposure = "1306/0@1 64 5000";
        row("exposure", "antiFlicker", 1, exposure, {{"antiFlicker", 1}, {"exposure", 0}});
        row("exposure", "value", 2, exposure, {{"exposure", 2}});
        row("exposure", "dbExposureValue1", 0.25, exposure, {{"shortestShutter", 0.25}});
        row("exposure", "dbExposureValue2", 80, exposure, {{"longestShutter", 80}});
        row("exposure", "GainValue", 6, exposure, {{"gain", 6}});
        row("exposure", "GainMin", "7", exposure, {{"gainMinimum", 7}});
        row("exposure", "GainMax", 87, exposure, {{"gainMaximum", 87}});
        row("exposure", "Compensation", 61, exposure, {{"compensation", 61}});
        row("exposure", "irisAuto", false, exposure, {{"irisAutomatic", 0}});
        row("exposure", "3DType", 0, "1306/0@1 64 5000,1320/0@1 16 5000", {{"type", 0}});
        row("exposure", "3D", 4, "1306/0@1 64 5000,1320/0@1 16 5000", {{"level", 4}});
        const char *backLight = "1309/0@1 40 5000";
        row("backMode", "backmode", 2, backLight, {{"backMode", 2}});
        row("backMode", "backlightmode", 1, backLight, {{"backLightMode", 1}});
        row("backMode", "WideDynamic", 21, backLight, {{"wideDynamic", 21}});
        row("backMode", "GlareInhibition", 22, backLight, {{"glareInhibition", 22}});
        row("backMode", "BacklightRegion",
            QVariantMap{{"Top", 10}, {"Bottom", 20}, {"Left", 30}, {"Right", 40}}, backLight,
            {{"regionTop", 10}, {"regionBottom", 20}, {"regionLeft", 30}, {"regionRight", 40}});
        const char *whiteBalance = "1315/0@1 28 5000";
        row("whiteBalance", "whiteBalanceType", 4, whiteBalance, {{"type", 4}});
        row("whiteBalance", "GainBlue", 23, whiteBalance, {{"gainBlue", 23}});
        row("whiteBalance", "GainRed", 24, whiteBalance, {{"gainRed", 24}});
        const char *dayNight = "1316/0@1 20 5000";
        row("dayNight", "Type", 2, dayNight, {{"type", 2}});
        row("dayNight", "Sensitivity", 3, dayNight, {{"sensitivity", 3}});
        row("dayNight", "SwitchDelay", 9, dayNight, {{"switchDelay", 9}});
        row("inDefog", "DefogMode", 1, "1317/0@1 32 5000", {{"defogMode", 1}});
        row("inDefog", "Intensity", 25, "1317/0@1 32 5000", {{"intensity", 25}});
        const char *light = "1311/0@1 24 5000";
        row("lightControl", "controlMode", 1, light, {{"controlMode", 1}});
        row("lightControl", "LightMode", 2, light, {{"lightMode", 2}});
        row("lightControl", "NearLight", 12, light, {{"nearLight", 12}});
        row("lightControl", "FarLight", 13, light, {{"farLight", 13}});
        row("lightControl", "Correction", 14, light, {{"correction", 14}});
        const char *mixedLight = "1324/0@1 40 5000";
        row("lightControlEx", "controlMode", 1, mixedLight, {{"controlMode", 1}});
        row("lightControlEx", "mixMode", 1, mixedLight, {{"mixMode", 1}});
        row("lightControlEx", "LightMode", 2, mixedLight, {{"lightMode", 2}});
        row("lightControlEx", "Sensitive", 5, mixedLight, {{"sensitive", 5}});
        row("lightControlEx", "Correction", 15, mixedLight, {{"correction", 15}});
        row("lightControlEx", "Brightness", 16, mixedLight, {{"brightness", 16}});
        row("lightControlEx", "Delay", "17", mixedLight, {{"delay", 17}});
        row("curDayNightMode", "", 1, "1316/1@1 20 5000", {{"mode", 1}});
        row("curBackLightMode", "", 3, backLight, {{"backMode", 3}});
        row("curChannelName", "", "大门", "1108/0@1 260 5000", {{"size", 260}});
        row("curColorStyle", "", 1, "1301/0@1 1544 5000", {});
        row("setDefault", "", "", picture, {{"brightness", 50}, {"colorStyle", 2}});
    }

    void aChangeIsWrittenImmediately()
    {
        QFETCH(QString, key);
        QFETCH(QString, subKey);
        QFETCH(QVariant, value);
        QFETCH(QVariantMap, lastItem);
        open(camera());
        m_site->set("curVideoChannel", 1);
        read();
        const QVariant before = m_site->get(key);
        m_site->site->requests().clear();
        m_site->set(key, value, subKey);
        QTEST(m_site->askedItems("NetSetItem"), "writes");
        const QJsonObject written = m_site->asked("NetSetItem").last();
        for (auto field = lastItem.cbegin(); field != lastItem.cend(); ++field)
            QCOMPARE(written.value(field.key()).toVariant().toString(), field.value().toString());
        // Only "inDefog" is read before it is written.
        QCOMPARE(m_site->asked("NetGetItem").size(), key == "inDefog" ? 1 : 0);

        // The device stores the value for this channel.
        const QVariant kept = m_site->get(key);
        QVERIFY(kept != before || key == "setDefault");
        QCOMPARE(m_site->login(camera()), 0);
        m_site->set("curVideoChannel", 1);
        read();
        if (key != "curDayNightMode") // a setting of the page, not of the device
            QCOMPARE(m_site->get(key), kept);
    }

    void configurationsAreWritten_data()
    {
        // items: the number of items written in addition
        const auto row = dataTable<QString, QString, int, QString, QString, int>(
            {"key", "subKey", "value", "name", "field", "items"});
        row("brightness", "curBrightness", "", 77, "VideoColor", "brightness", 0);
        row("contrast", "curContrast", "", 78, "VideoColor", "contrast", 0);
        row("defaults", "setDefault", "", 50, "VideoColor", "hue", 1);
        row("lights", "lightControlEx", "Delay", 81, "Lighting_V2", "delay", 1);
    }

    void configurationsAreWritten()
    {
        QFETCH(QString, key);
        QFETCH(QString, subKey);
        QFETCH(int, value);
        QFETCH(QString, name);
        QFETCH(QString, field);
        open(camera());
        m_site->set("curSwitchMode", 1); // night
        m_site->factory->getVideoIn("dh");
        m_site->set(key, value, subKey);
        QCOMPARE(m_site->asked("NetSetNewConfig").size(), 1);
        const QJsonObject request = m_site->asked("NetSetNewConfig").first();
        QCOMPARE(valuesOf(request, "name textSize wait"), name + "|4096|3000");
        const QJsonObject text = request.value("text").toObject().value(name).toObject();
        QCOMPARE(text.value("night").toObject().value(field).toInt(), value);
        QVERIFY(text.value("day").toObject().value(field).toInt() != value || key == "setDefault");
        QTEST(static_cast<int>(m_site->asked("NetSetItem").size()), "items");
    }

    void modesAndChannelsAreRead()
    {
        open(camera());
        QSignalSpy byMode(m_site->factory.get(), &CDeviceFactory::signalChangeVideoType);
        QSignalSpy byChannel(m_site->factory.get(), &CDeviceFactory::signalChangeVideoChannel);
        m_site->set("picture", 12, "hue");
        m_site->set("curSwitchMode", 1);
        m_site->factory->getVideoIn("dh");
        QCOMPARE(value("picture", "hue").toInt(), 50);
        QCOMPARE(value("picture", "brightnessSlider").toInt(), 40);
        for (const QString &read : m_site->askedItems("NetGetItem"))
            QVERIFY2(read.contains("/1@0 ") || read.startsWith("1311/"), qPrintable(read));
        m_site->set("curSwitchMode", 3); // it does not exist
        m_site->set("curSwitchMode", 0);
        m_site->factory->getVideoIn("dh");
        QCOMPARE(value("picture", "hue").toInt(), 12);
        QCOMPARE(byMode.size(), 2);
        m_site->set("curVideoChannel", 1);
        read();
        QCOMPARE(value("picture", "hue").toInt(), 50);
        QCOMPARE(m_site->get("curChannelName").toString(), "东门 2");
        QCOMPARE(byChannel.size(), 1);
    }

    void coloursAreNotWrittenToAnotherChannel()
    {
        open(camera());
        m_site->set("curVideoChannel", 1);
        read();
        m_site->set("curSwitchMode", 1); // night
        m_site->factory->getVideoIn("dh");
        m_site->set("picture", 88, "hue");
        m_site->set("curSwitchMode", 0);
        m_site->factory->getVideoIn("dh");
        m_site->factory->getEncodeCaps("dh"); // reads the colours of the first channel
        m_site->set("setDefault", "");
        const QJsonObject written = m_site->asked("NetSetNewConfig").first();
        QCOMPARE(written.value("channel").toInt(), 1);
        const QJsonObject colours = written.value("text").toObject().value("VideoColor").toObject();
        QCOMPARE(colours.value("night").toObject().value("hue").toInt(), 88);
    }

    void aRefusedChangeRestoresTheDevicesValue()
    {
        SceneDevice device = camera();
        open(device);
        QSignalSpy changed(m_site->factory.get(), &CDeviceFactory::signalChangeVideoType);
        QSignalSpy reason(m_site->factory.get(), &CDeviceFactory::signalGetDeviceCapRet);
        m_site->site->setFault(device.mac, {Fault::RefusesItem, 1320, {}});
        m_site->set("exposure", 4, "3D");
        QCOMPARE(reason, QList<QVariantList>({{static_cast<int>(sdk::NetError::NotSupported)}}));
        QCOMPARE(m_site->asked("NetSetItem").size(), 2);
        QCOMPARE(value("exposure", "3D").toInt(), 2);
        m_site->site->setFault(device.mac, {Fault::RefusesConfiguration, 0, "VideoColor"});
        m_site->set("curGamma", 9);
        QCOMPARE(value("picture", "gamma").toInt(), 50);
        QCOMPARE(changed.size(), 2);

        QSignalSpy result(m_site->factory.get(), &CDeviceFactory::signalGetDeviceCapRet);
        m_site->site->removeDevice(device.mac); // offline: the values read before remain
        m_site->set("inDefog", 1, "DefogMode");
        m_site->set("stable", true);
        QCOMPARE(value("stable", "value").toBool(), false);
        QCOMPARE(supported(), groups);
        QCOMPARE(changed.size(), 4);
        QCOMPARE(result.size(), 2);
        read();
        QCOMPARE(result.size(), 3);
        for (const QList<QVariant> &reported : result)
            QVERIFY(EncodeForm::isDeviceAway(reported.first().toInt()));
        QVERIFY(supported().isEmpty());
    }

    void anUnreadModeIsReadAgain()
    {
        const SceneDevice device = camera();
        open(device);
        QSignalSpy result(m_site->factory.get(), &CDeviceFactory::signalGetDeviceCapRet);
        m_site->site->setFault(device.mac, {Fault::NoAnswer, 0, {}});
        m_site->set("curSwitchMode", 1);
        QVERIFY(supported().isEmpty()); // the read items belong to the previous mode
        m_site->factory->getVideoIn("dh");
        QCOMPARE(m_site->asked("NetGetItem").size(), 1); // every further request would time out
        QCOMPARE(result.size(), 1);
        QVERIFY(EncodeForm::isDeviceAway(result.first().first().toInt()));
        QVERIFY(supported().isEmpty());
        m_site->set("stable", true); // unread values are not overwritten
        QVERIFY(m_site->asked("NetSetItem").isEmpty());
        m_site->site->clearFault(device.mac, Fault::NoAnswer);
        m_site->factory->getVideoIn("dh");
        QCOMPARE(result.size(), 1);
        QCOMPARE(supported(), groups);
        QCOMPARE(value("picture", "brightnessSlider").toInt(), 40);

        m_site->set("curVideoChannel", 1); // the values belong to the first channel
        m_site->set("stable", true);
        m_site->set("curBrightness", 70);
        QVERIFY(m_site->asked("NetSetItem").isEmpty() && m_site->asked("NetSetNewConfig").isEmpty());
        m_site->site->requests().clear();
        m_site->net->silentItem = 1108; // read after the capabilities
        m_site->factory->getCameraConfig("dh");
        QCOMPARE(result.size(), 2);
        QVERIFY(EncodeForm::isDeviceAway(result.last().first().toInt()));
        QVERIFY(!m_site->get("curChannelName").isValid());
    }

    void invalidValuesAreNotSent()
    {
        open(camera());
        m_site->set("picture", "bright", "brightnessSlider");
        m_site->set("picture", 5, "noSuchSubKey");
        m_site->set("exposure", 9, "value");
        m_site->set("exposure", -1, "dbExposureValue1");
        m_site->set("exposure", qQNaN(), "Compensation");
        m_site->set("backMode", QVariantMap{{"Top", 1}}, "BacklightRegion");
        m_site->set("dayNight", QVariant(), "Type");
        m_site->set("curDayNightMode", 3);
        m_site->set("lightControlEx", 2, "Sensitive");
        m_site->set("lightControlEx", 6, "Sensitive");
        m_site->set("curChannelName", QString::fromUtf8("\u200F "));
        m_site->set("noSuchKey", 1);
        QVERIFY(m_site->site->requests().all().isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestCameraConfig)
#include "tst_cameraconfig.moc"

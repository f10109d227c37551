// The camera image page on a simulated site: every change is one request of its own.
#include "device/dh/camerachanges.h"
#include "device/encodeform.h"
#include "sdk/neterror.h"
#include "tests/device/dh/configsite.h"

#include <QSignalSpy>
#include <QTest>

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

    void camerasDifferInWhatTheySupport()
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

    void aChangeIsWrittenAtOnce_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("subKey");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QStringList>("writes"); // of items
        QTest::addColumn<QString>("field");      // of the first
        QTest::addColumn<double>("number");
        const auto row = [](const char *key, const char *subKey, const QVariant &value, const QString &write,
                            const char *field, double number) {
            QTest::addRow("%s %s", key, subKey)
                << key << subKey << value << write.split(',') << field << number;
        };
        row("picture", "brightnessSlider", 70, "1301/0@1 64 5000", "brightness", 70);
        row("picture", "colorStyle", 3, "1301/0@1 64 5000", "colorStyle", 3);
        row("picture", "gamma", 1000, "1301/0@1 64 5000", "gamma", 100); // into the range
        row("sharpness", "", 33, "1318/0@1 20 5000", "sharpness", 33);
        row("mirror", "", true, "1302/0@1 20 5000", "mirror", 1);
        row("mirror", "Rotate", 3, "1302/0@1 20 5000", "rotate", 3);
        row("stable", "", true, "1303/0@1 12 5000", "stable", 1);
        row("exposure", "value", 2, "1306/0@1 64 5000", "exposure", 2);
        row("exposure", "dbExposureValue1", 0.25, "1306/0@1 64 5000", "shortestShutter", 0.25);
        row("exposure", "GainMin", "7", "1306/0@1 64 5000", "gainMinimum", 7);
        row("exposure", "irisAuto", false, "1306/0@1 64 5000", "irisAutomatic", 0);
        row("exposure", "3D", 4, "1306/0@1 64 5000,1320/0@1 16 5000", "compensation", 50);
        row("backMode", "backmode", 2, "1309/0@1 40 5000", "backMode", 2);
        row("backMode", "BacklightRegion",
            QVariantMap{{"Top", 10}, {"Bottom", 20}, {"Left", 30}, {"Right", 40}}, "1309/0@1 40 5000",
            "regionRight", 40);
        row("whiteBalance", "whiteBalanceType", 4, "1315/0@1 28 5000", "type", 4);
        row("dayNight", "SwitchDelay", 9, "1316/0@1 20 5000", "switchDelay", 9);
        row("inDefog", "DefogMode", 1, "1317/0@1 32 5000", "defogMode", 1);
        row("lightControl", "NearLight", 12, "1311/0@1 24 5000", "nearLight", 12);
        row("lightControlEx", "Sensitive", 5, "1324/0@1 40 5000", "sensitive", 5);
        row("curDayNightMode", "", 1, "1316/1@1 20 5000", "mode", 1);
        row("curBackLightMode", "", 3, "1309/0@1 40 5000", "backMode", 3);
        row("curChannelName", "", "大门", "1108/0@1 260 5000", "size", 260);
        row("curColorStyle", "", 1, "1301/0@1 1544 5000", "blockSize", 1544);
        row("setDefault", "", "", "1301/0@1 64 5000", "brightness", 50);
    }

    void aChangeIsWrittenAtOnce()
    {
        QFETCH(QString, key);
        QFETCH(QString, subKey);
        QFETCH(QVariant, value);
        QFETCH(QString, field);
        open(camera());
        m_site->set("curVideoChannel", 1);
        read();
        m_site->site->requests().clear();
        m_site->set(key, value, subKey);
        QTEST(m_site->askedItems("NetSetItem"), "writes");
        QTEST(m_site->asked("NetSetItem").first().value(field).toDouble(), "number");
        // Only one group is read before it is written.
        QCOMPARE(m_site->asked("NetGetItem").size(), key == "inDefog" ? 1 : 0);

        // The device keeps it, on this channel.
        const QVariant kept = m_site->get(key);
        QCOMPARE(m_site->login(camera()), 0);
        m_site->set("curVideoChannel", 1);
        read();
        if (key != "curDayNightMode") // chosen for the page, not by the device
            QCOMPARE(m_site->get(key), kept);
    }

    void configurationsAreWritten_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("subKey");
        QTest::addColumn<int>("value");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("field");
        QTest::addColumn<int>("items"); // written beside it
        QTest::newRow("brightness") << "curBrightness"
                                    << "" << 77 << "VideoColor"
                                    << "brightness" << 0;
        QTest::newRow("contrast") << "curContrast"
                                  << "" << 78 << "VideoColor"
                                  << "contrast" << 0;
        QTest::newRow("saturation") << "curSaturation"
                                    << "" << 79 << "VideoColor"
                                    << "saturation" << 0;
        QTest::newRow("gamma") << "curGamma"
                               << "" << 80 << "VideoColor"
                               << "gamma" << 0;
        QTest::newRow("defaults") << "setDefault"
                                  << "" << 50 << "VideoColor"
                                  << "hue" << 1;
        QTest::newRow("lights") << "lightControlEx"
                                << "Delay" << 81 << "Lighting_V2"
                                << "delay" << 1;
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
        QCOMPARE(request.value("name").toString(), name);
        QCOMPARE(request.value("textSize").toInt(), 4096);
        QCOMPARE(request.value("wait").toInt(), 3000);
        const QJsonObject text = request.value("text").toObject().value(name).toObject();
        QCOMPARE(text.value("night").toObject().value(field).toInt(), value);
        QVERIFY(text.value("day").toObject().value(field).toInt() != value || key == "setDefault");
        QTEST(static_cast<int>(m_site->asked("NetSetItem").size()), "items");
    }

    void bothWaysToTheSameItemKnowOfEachOther()
    {
        open(camera());
        m_site->set("backMode", 20, "WideDynamic");
        m_site->set("curBackLightMode", 2);
        m_site->set("backMode", 30, "GlareInhibition");
        m_site->set("dayNight", 9, "SwitchDelay");
        m_site->set("curDayNightMode", 1); // the night gets what the day has
        m_site->set("dayNight", 3, "Sensitivity");
        QCOMPARE(m_site->get("curDayNightMode").toInt(), 1);
        QCOMPARE(m_site->get("curBackLightMode").toInt(), 2);
        const QList<QJsonObject> writes = m_site->asked("NetSetItem");
        QCOMPARE(writes.size(), 6);
        QCOMPARE(writes.at(1).value("wideDynamic").toInt(), 20);
        QCOMPARE(writes.at(2).value("wideDynamic").toInt(), 20);
        QCOMPARE(writes.at(2).value("backMode").toInt(), 2);
        QCOMPARE(writes.at(4).value("switchDelay").toInt(), 9);
        QCOMPARE(writes.at(5).value("mode").toInt(), 0); // the page still shows the day
        QCOMPARE(writes.at(5).value("switchDelay").toInt(), 9);
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
        m_site->set("curSwitchMode", 3); // there is none
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

    void theEncodePageReadsTheColours()
    {
        open(camera());
        m_site->set("curBrightness", 91);
        QCOMPARE(m_site->login(camera()), 0);
        QSignalSpy result(m_site->factory.get(), &CDeviceFactory::signalGetDeviceCapRet);
        m_site->factory->getEncodeCaps("dh");
        QCOMPARE(result.first().first().toInt(), 0);
        QCOMPARE(m_site->get("curBrightness").toInt(), 91);
        const QJsonObject text = m_site->asked("NetGetNewConfig").last();
        QCOMPARE(text.value("name").toString(), "VideoColor");
        QCOMPARE(text.value("textSize").toInt(), 4096);
        QCOMPARE(text.value("wait").toInt(), 3000);
    }

    void theColoursOfOneChannelAreNotWrittenToAnother()
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

    void aRefusedChangeShowsWhatTheDeviceHas()
    {
        SceneDevice device = camera();
        open(device);
        QSignalSpy changed(m_site->factory.get(), &CDeviceFactory::signalChangeVideoType);
        m_site->site->setFault(device.mac, {Fault::RefusesItem, 1320, {}});
        m_site->set("exposure", 4, "3D");
        QCOMPARE(m_site->asked("NetSetItem").size(), 2);
        QCOMPARE(value("exposure", "3D").toInt(), 2);
        m_site->site->setFault(device.mac, {Fault::RefusesConfiguration, 0, "VideoColor"});
        m_site->set("curGamma", 9);
        QCOMPARE(value("picture", "gamma").toInt(), 50);
        QCOMPARE(changed.size(), 2);

        QSignalSpy result(m_site->factory.get(), &CDeviceFactory::signalGetDeviceCapRet);
        m_site->site->removeDevice(device.mac); // away: what is known stays
        m_site->set("inDefog", 1, "DefogMode");
        m_site->set("stable", true);
        QCOMPARE(value("stable", "value").toBool(), false);
        QCOMPARE(supported(), groups);
        QCOMPARE(changed.size(), 4);
        QCOMPARE(result.size(), 2);
        read();
        QCOMPARE(result.size(), 3);
        for (const QList<QVariant> &told : result)
            QVERIFY(EncodeForm::isDeviceAway(told.first().toInt()));
        QVERIFY(supported().isEmpty());
    }

    void aModeThatWasNotReadIsReadTheNextTime()
    {
        const SceneDevice device = camera();
        open(device);
        QSignalSpy result(m_site->factory.get(), &CDeviceFactory::signalGetDeviceCapRet);
        m_site->site->setFault(device.mac, {Fault::NoAnswer, 0, {}});
        m_site->set("curSwitchMode", 1);
        m_site->factory->getVideoIn("dh");
        QCOMPARE(m_site->asked("NetGetItem").size(), 1); // every further one would wait
        QCOMPARE(result.size(), 1);
        QVERIFY(EncodeForm::isDeviceAway(result.first().first().toInt()));
        QVERIFY(supported().isEmpty());
        m_site->set("stable", true); // not over what is not known
        QVERIFY(m_site->asked("NetSetItem").isEmpty());
        m_site->site->clearFault(device.mac, Fault::NoAnswer);
        m_site->factory->getVideoIn("dh");
        QCOMPARE(result.size(), 1);
        QCOMPARE(supported(), groups);
        QCOMPARE(value("picture", "brightnessSlider").toInt(), 40);
    }

    void nonsenseIsNotSent()
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
        m_site->set("noSuchKey", 1);
        QVERIFY(m_site->site->requests().all().isEmpty());
    }

    void theWidestRangeHasAMiddle()
    {
        CameraState state;
        state.capabilities.groups = 1u << static_cast<std::uint32_t>(sdk::CameraGroup::Picture);
        state.capabilities.picture = {std::numeric_limits<std::int32_t>::min(),
                                      std::numeric_limits<std::int32_t>::max()};
        QCOMPARE(changeCamera("setDefault", "", "", ValueTables(), state).size(), 1);
        QCOMPARE(state.picture.gamma, -1);
    }

    void oddCapabilitiesGiveAUsablePage()
    {
        SceneDevice device = camera();
        device.faults = {{Fault::OddCapabilities}};
        open(device);
        QCOMPARE(value("exposure", "allExposureType").toStringList().size(), 4);
        const QVariantMap range = value("picture", "ranges").toMap().value("hue").toMap();
        QVERIFY(range.value("min").toInt() < range.value("max").toInt());
        m_site->set("picture", 60, "hue");
        QCOMPARE(value("picture", "hue").toInt(), 60);
        for (const FaultSetting &fault : {FaultSetting{Fault::OddConfiguration, 0, "VideoColor"},
                                          FaultSetting{Fault::OverLongConfiguration, 0, "VideoColor"}}) {
            m_site->site->setFault(device.mac, fault);
            read();
            // What is not known is not written back in part.
            m_site->set("curBrightness", 70);
            m_site->set("setDefault", "");
            QVERIFY(m_site->asked("NetSetNewConfig").isEmpty());
            QCOMPARE(value("picture", "brightnessSlider").toInt(), 50);
        }
    }
};

QTEST_GUILESS_MAIN(TestCameraConfig)
#include "tst_cameraconfig.moc"

// The encode page on a simulated site: shown values, requests to the device and their results.
#include "device/forms/encodeform.h"
#include "sdk/encodeblocks.h"
#include "tests/datatable.h"
#include "tests/device/dh/configsite.h"

using sdk::demo::Fault;
using sdk::demo::FaultSetting;
using sdk::demo::SceneDevice;

namespace {

QJsonArray list(const QVariantList &values)
{
    return QJsonArray::fromVariantList(values);
}

SceneDevice modernCamera()
{
    return configDevice(1, "IPC", 1);
}

SceneDevice oldCamera()
{
    SceneDevice device = configDevice(2, "IPC", 1);
    const QJsonObject stream = {
        {"compressions", list({0})},          {"profiles", list({})}, {"sizes", list({"704*576", "352*288"})},
        {"bitRates", list({64, 2048})},       {"frameRate", 12},      {"audioFormats", list({2})},
        {"samplingFrequencies", list({8000})}};
    device.capabilities = {{"encode", QJsonObject{{"main", stream}, {"sub", stream}}}};
    return device;
}

SceneDevice recorder()
{
    SceneDevice device = configDevice(3, "NVR", 16);
    device.channels[5].connected = false;
    return device;
}

} // namespace

class TestEncodeConfig : public QObject
{
    Q_OBJECT
private:
    std::unique_ptr<ConfigSite> m_site;

    int read()
    {
        QSignalSpy result(m_site->factory.get(), &CDeviceFactory::signalGetDeviceCapRet);
        m_site->factory->getEncodeCaps("dh");
        return result.size() == 1 ? result.first().first().toInt() : 99;
    }

    QString confirm()
    {
        QSignalSpy result(m_site->factory.get(), &CDeviceFactory::signalConfirmEncodeConfig);
        m_site->factory->confirmConfigData("dh");
        return result.size() == 1 ? result.first().first().toString() : QStringLiteral("no signal");
    }

    /// Logs in to `device` with these faults and reads its page.
    int open(SceneDevice device, const QList<FaultSetting> &faults = {})
    {
        m_site.reset();
        device.faults = faults;
        m_site = std::make_unique<ConfigSite>(QList<SceneDevice>{device});
        return m_site->login(device) == 0 ? read() : 99;
    }

    /// Copies the settings of `source` to `target`. Returns the result in the row of `target`.
    /// `prepare` runs after the source has been read.
    QString copy(
        const SceneDevice &source, const SceneDevice &target, const std::function<void()> &prepare = [] {})
    {
        m_site = std::make_unique<ConfigSite>(QList{source, target});
        m_site->factory->getLoginDevice("dh", target.address, "admin", "secret1", "37777");
        if (m_site->login(source) != 0 || read() != 0)
            return QStringLiteral("not read");
        prepare();
        QSignalSpy results(m_site->factory.get(), &CDeviceFactory::signalRetToCopyConfig);
        m_site->factory->copyConfigToDevice("dh", {ipportOf(target)});
        if (results.size() != 1 || results.first().at(1).toInt() != 0)
            return QStringLiteral("not copied");
        return m_site->factory->getDeviceInfo("dh", ipportOf(target)).value("result").toString();
    }

    /// "item/stream" of the requests of an operation on items.
    QString requestedItems(const QString &operation) const
    {
        QStringList items;
        for (const QString &line : m_site->askedItems(operation))
            items.append(line.section('@', 0, 0));
        return items.join(' ');
    }

    QJsonObject written(int item, int stream) const
    {
        QJsonObject last;
        for (const QJsonObject &request : m_site->asked("NetSetItem")) {
            if (request.value("item") == item && request.value("stream") == stream)
                last = request;
        }
        return last;
    }

private Q_SLOTS:
    void cleanup() { m_site.reset(); }

    void savingWritesTheEightItems()
    {
        QCOMPARE(open(recorder()), 0);
        m_site->set("curChannel", 2);
        QCOMPARE(read(), 0);
        m_site->set("curEncodeMode", "H.264 H");
        m_site->set("curResolution", "1080P");
        m_site->set("curBitStream", "2000");
        m_site->set("bitstreamControl", 0);
        m_site->set("frameRate", 12);
        m_site->set("quality", 6);
        m_site->set("curAudioCompression", "AAC");
        m_site->set("subCurSamplingFrequency", "16000");
        m_site->set("subVideoEnable", false);
        m_site->set("subAudioEnable", 0);
        QCOMPARE(confirm(), "");
        QCOMPARE(
            m_site->askedItems("NetSetItem"),
            QStringList({"1100/1@2 44 5000", "1103/1@2 12 5000", "1104/1@2 16 5000", "1105/1@2 28 5000",
                         "1100/4@2 44 5000", "1103/4@2 12 5000", "1104/4@2 16 5000", "1105/4@2 28 5000"}));
        QCOMPARE(valuesOf(written(1100, 1), "compression width bitRate bitRateControl frameRate quality"),
                 "7|1920|2000|0|12|6");
        QCOMPARE(written(1103, 1).value("profile").toInt(), 4);
        QCOMPARE(written(1104, 1).value("format").toInt(), 5);
        QCOMPARE(written(1105, 4).value("samplingFrequency").toInt(), 16000);
        QCOMPARE(written(1100, 4).value("videoEnable").toInt(), 0);
        QCOMPARE(written(1104, 4).value("audioEnable").toInt(), 0);

        // The device has stored the values for this channel only. A later login reads them.
        QCOMPARE(m_site->login(recorder()), 0);
        QCOMPARE(read(), 0);
        QCOMPARE(m_site->get("curResolution").toString(), "2688*1520");
        m_site->set("curChannel", 2);
        QCOMPARE(read(), 0);
        QCOMPARE(m_site->shown("curEncodeMode curResolution curBitStream"),
                 "H.264 H|1080P|-1"); // not a listed bit rate
        QCOMPARE(m_site->shown("subCurSamplingFrequency subSamplingFrequency"), "16000|8000,16000");
    }

    void theSubStreamsSizeIsWrittenImmediately_data()
    {
        // limit: higher bit rates are refused
        const auto row = dataTable<int, int, int>({"limit", "writes", "bitRate"});
        row("accepted", 1000000, 1, 512);
        row("accepted at a lower bit rate", 64, 4, 64); // after 512, 32 and 48
    }

    void theSubStreamsSizeIsWrittenImmediately()
    {
        QFETCH(int, limit);
        QFETCH(int, writes);
        QFETCH(int, bitRate);
        SceneDevice device = recorder();
        const QJsonObject sub = {{"bitRates", list({64, 4096})}};
        device.capabilities = {{"encode", QJsonObject{{"sub", sub}}}};
        QCOMPARE(open(device, {{Fault::RefusesBitRatesAbove, limit}}), 0);
        m_site->set("curVideoChannel", 4);
        m_site->set("curChannel", 2);
        QCOMPARE(read(), 0);
        m_site->site->requests().clear();
        QSignalSpy refused(m_site->factory.get(), &CDeviceFactory::signalConfirmEncodeConfig);
        m_site->set("subCurResolution", "CIF");
        QCOMPARE(refused.isEmpty() ? QString() : refused.first().first().toString(),
                 limit < 32 ? "辅码流编码视频格式属性\n" : "");
        QCOMPARE(m_site->asked("NetSetItem").size(), writes);
        QCOMPARE(m_site->askedItems("NetSetItem").last(), "1100/4@4 44 5000"); // the other page's channel
        QCOMPARE(m_site->asked("NetSetItem").first().value("bitRate").toInt(), 512);
        QVERIFY(m_site->asked("NetGetItem").isEmpty());
        QCOMPARE(m_site->asked("NetGetNewConfig").first().value("channel").toInt(), 2);
        QCOMPARE(m_site->asked("NetQueryCapabilities").size(), 1);
        QCOMPARE(m_site->get("subCurResolution").toString(), "CIF");
        QVERIFY(m_site->get("takenItems").toList().isEmpty()); // it was written to another channel
        m_site->site->clearFault(device.mac, Fault::RefusesBitRatesAbove);
        m_site->set("curVideoChannel", 2);
        m_site->set("subCurResolution", "CIF");
        QCOMPARE(m_site->get("takenItems").toList(), QVariantList{4});
        QCOMPARE(confirm(), "");
        QCOMPARE(written(1100, 4).value("bitRate").toInt(), bitRate);
    }

    void missingFeaturesAreNotOffered_data()
    {
        // missing: in both streams
        // shown: "exists", "hasAudio", then the enabled settings; the switch of missing sound is hidden
        using sdk::EncodeValue;
        const auto row = dataTable<QVariantList, QList<EncodeValue>, QString, QString>(
            {"audioFormats", "missing", "shown", "writes"});
        const QString audioWrites = "1100/1 1103/1 1104/1 1105/1 1100/4 1103/4 1104/4 1105/4";
        row("nothing", {2, 4}, {}, "exists hasAudio audioCompression audioEnable control videoEnable",
            audioWrites);
        row("a choice of formats", {2}, {}, "exists hasAudio audioEnable control videoEnable", audioWrites);
        row("sound", {}, {}, "exists audioEnable control videoEnable", "1100/1 1103/1 1100/4 1103/4");
        row("switches", {2, 4},
            {EncodeValue::AudioSwitch, EncodeValue::StreamSwitch, EncodeValue::BitRateControl},
            "exists hasAudio audioCompression", audioWrites);
        row("the stream", {2, 4}, {EncodeValue::Stream}, "hasAudio audioCompression audioEnable", "");
    }

    void missingFeaturesAreNotOffered()
    {
        QFETCH(QVariantList, audioFormats);
        QFETCH(QList<sdk::EncodeValue>, missing);
        QFETCH(QString, shown);
        SceneDevice device = modernCamera();
        const QJsonObject stream = {{"audioFormats", list(audioFormats)}};
        device.capabilities = {{"encode", QJsonObject{{"main", stream}, {"sub", stream}}}};
        m_site = std::make_unique<ConfigSite>(QList<SceneDevice>{device});
        m_site->net->changeEncodeCapabilities = [missing](sdk::EncodeCapabilities &capabilities) {
            for (const sdk::EncodeValue value : missing) {
                for (sdk::EncodeCapabilityBlock &block : capabilities.blocks)
                    block.missingValues |= 1U << static_cast<unsigned>(value);
            }
        };
        // A device without the setting does not have the item either.
        if (!missing.isEmpty() && missing.first() == sdk::EncodeValue::Stream)
            m_site->site->setFault(device.mac, {Fault::WithholdsItem, 1100, QString()});
        if (audioFormats.isEmpty())
            m_site->site->setFault(device.mac, {Fault::WithholdsItem, 1105, QString()});
        QCOMPARE(m_site->login(device), 0);
        QCOMPARE(read(), 0);
        EncodeForm form;
        form.setDeviceFactory(m_site->factory.get());
        QStringList seen;
        for (const QString &name : {QString("exists"), QString("hasAudio")}) {
            if (form.subStream().value(name).toBool())
                seen.append(name);
        }
        for (const QString name : {"audioCompression", "audioEnable", "control", "videoEnable"}) {
            if (form.subStream().value(name).toMap().value("usable").toBool())
                seen.append(name);
        }
        QCOMPARE(seen.join(' '), shown);
        QCOMPARE(form.unreadItems(), QStringList());
        QCOMPARE(confirm(), "");
        QTEST(requestedItems("NetSetItem"), "writes");
        QCOMPARE(m_site->get("takenItems").toList().size(), m_site->asked("NetSetItem").size());
    }

    void aSamplingFrequencyFollowsItsFormat()
    {
        m_site = std::make_unique<ConfigSite>(QList<SceneDevice>{modernCamera()});
        m_site->net->changeEncodeCapabilities = [](sdk::EncodeCapabilities &capabilities) {
            for (sdk::EncodeCapabilityBlock &block : capabilities.blocks) {
                block.audioRates = {{{.format = 2, .frequency = 8000},
                                     {.format = 8, .frequency = 16000},
                                     {.format = 8, .frequency = 48000},
                                     {.format = 8, .frequency = -1}}};
                block.audioRateCount = 4;
            }
        };
        QCOMPARE(m_site->login(modernCamera()), 0);
        QCOMPARE(read(), 0);
        const QString keys = "curAudioCompression curSamplingFrequency samplingFrequency";
        QCOMPARE(m_site->shown(keys), "G711a|8000|8000");
        m_site->set("curAudioCompression", "AAC");
        QCOMPARE(m_site->shown(keys), "AAC|16000|16000,48000");
        m_site->set("curSamplingFrequency", "48000");
        m_site->set("curAudioCompression", "AAC");
        QCOMPARE(m_site->shown(keys), "AAC|48000|16000,48000");
        m_site->set("curAudioCompression", "G711u"); // the device reports no frequency of it
        QCOMPARE(m_site->shown(keys), "G711u|8000|8000");
        m_site->set("curAudioCompression", "G999"); // is ignored: it has no format
        QCOMPARE(m_site->shown(keys), "G711u|8000|8000");
        QCOMPARE(m_site->shown("subCurSamplingFrequency subSamplingFrequency"), "8000|8000");
    }

    void aFailedReadReportsItsReason_data()
    {
        // overlay: of the main stream's width; empty: none
        const auto row = dataTable<std::optional<Fault>, QString, int>({"fault", "overlay", "result"});
        row("refused", Fault::RefusesConfiguration, "", static_cast<int>(sdk::NetError::NotSupported));
        row("no JSON", Fault::OddConfiguration, "", 1);
        row("no capabilities", Fault::RefusesCapabilities, "", 10);
        row("offline", Fault::NoAnswer, "", static_cast<int>(sdk::NetError::ConnectTimeout));
        row("number out of range", {}, "70000", 1);
    }

    void aFailedReadReportsItsReason()
    {
        QFETCH(std::optional<Fault>, fault);
        QFETCH(QString, overlay);
        SceneDevice device = modernCamera();
        if (!overlay.isEmpty()) {
            const QJsonObject stream = {{"width", overlay.toInt()}};
            device.configuration = {{"Encode", QJsonObject{{"mainNormal", stream}}}};
        }
        m_site = std::make_unique<ConfigSite>(QList<SceneDevice>{device});
        QCOMPARE(m_site->login(device), 0);
        if (fault)
            m_site->site->setFault(device.mac, {*fault, 0, QStringLiteral("Encode")});
        QTEST(read(), "result");
        for (const char *key :
             {"encodeMode", "resolution", "bitStream", "audioCompression", "subEncodeMode", "frameRateMax"})
            QVERIFY2(m_site->get(key).isValid(), key);
        QVERIFY(m_site->get("encodeMode").toStringList().size() < 20);
        QVERIFY(m_site->get("resolution").toStringList().size() <= 64);
        QVERIFY(!m_site->get("resolution").toStringList().contains("0*0"));
        QVERIFY(m_site->get("frameRateMax").toInt() >= 0);
    }

    void unreadItemsAreNotWritten_data()
    {
        // fault: while another channel is read
        // silentItem: 0: none
        // writes: of a later save without faults
        const auto row = dataTable<std::optional<Fault>, int, bool, QString, QString>(
            {"fault", "silentItem", "isAway", "reads", "writes"});
        row("refused", Fault::WithholdsItem, 0, false,
            "1100/1 1103/1 1104/1 1105/1 1100/4 1103/4 1104/4 1105/4",
            "1100/1 1103/1 1105/1 1100/4 1103/4 1105/4");
        row("no response at the first item", {}, 1100, true, "1100/1", "");
        row("configuration refused", Fault::RefusesConfiguration, 0, false, "", "");
        row("no response at all", Fault::NoAnswer, 0, true, "", "");
    }

    void unreadItemsAreNotWritten()
    {
        QFETCH(std::optional<Fault>, fault);
        QFETCH(int, silentItem);
        QFETCH(QString, writes);
        const SceneDevice device = recorder();
        QCOMPARE(open(device), 0);
        m_site->set("curStreamType", 1);
        QVERIFY(confirm().contains("没有读到")); // the read settings belong to the first stream
        m_site->set("curStreamType", 0);
        QCOMPARE(read(), 0);
        m_site->set("curChannel", 2);
        QVERIFY(confirm().contains("没有读到")); // the read settings belong to the first channel
        QVERIFY(m_site->asked("NetSetItem").isEmpty());
        if (fault)
            m_site->site->setFault(device.mac, {*fault, 1104, "Encode"});
        m_site->net->silentItem = silentItem;
        m_site->site->requests().clear();
        const int result = read();
        QTEST(EncodeForm::isDeviceAway(result), "isAway");
        QTEST(requestedItems("NetGetItem"), "reads");
        QCOMPARE(m_site->asked("NetGetNewConfig").size(),
                 result == 0 ? 2 : 1); // "VideoColor" follows only then
        QVERIFY(!m_site->get("audioEnable").isValid());

        if (fault)
            m_site->site->clearFault(device.mac, *fault);
        m_site->net->silentItem = 0;
        m_site->set("subCurResolution", "CIF");
        m_site->set("audioEnable", 1);
        QCOMPARE(requestedItems("NetSetItem"), writes.contains("1100/4") ? "1100/4" : "");
        m_site->site->requests().clear();
        const QString unsaved = confirm();
        QCOMPARE(requestedItems("NetSetItem"), writes);
        const auto unread = 8 - writes.split(' ', Qt::SkipEmptyParts).size();
        QCOMPARE(unsaved.count("（没有读到，未写入）\n"), unread);
        QVERIFY(unsaved.contains("主码流编码音频压缩格式（"));
        QCOMPARE(m_site->get("unreadItems").toStringList().size(), unread);
    }

    void aCopySkipsItemsThatCannotBeRead_data()
    {
        const auto row = dataTable<bool, int, QString>({"ofSource", "item", "names"});
        row("target", false, 1104, "主码流编码音频压缩格式、辅码流编码音频压缩格式");
        row("source", true, 1104,
            "主码流编码音频压缩格式、主码流编码音频格式、辅码流编码音频压缩格式、辅码流编码音频格式配置");
    }

    void aCopySkipsItemsThatCannotBeRead()
    {
        QFETCH(bool, ofSource);
        QFETCH(int, item);
        QFETCH(QString, names);
        SceneDevice source = modernCamera();
        SceneDevice target = configDevice(6, "IPC", 1);
        (ofSource ? source : target).faults = {{Fault::WithholdsItem, item}};
        const QString skipped = copy(source, target);
        QCOMPARE(m_site->asked("NetSetItem").size(), 7 - names.count("、"));
        QVERIFY(written(item, 1).isEmpty());
        QCOMPARE(skipped, "未复制：" + names);
    }

    void aCopyKeepsAFixedBitRateControl()
    {
        const QString skipped = copy(modernCamera(), configDevice(6, "IPC", 1), [this] {
            m_site->set("bitstreamControl", 0);
            QCOMPARE(confirm(), "");
            m_site->net->changeEncodeCapabilities = [](sdk::EncodeCapabilities &capabilities) {
                for (sdk::EncodeCapabilityBlock &block : capabilities.blocks)
                    block.missingValues |= 1U << static_cast<unsigned>(sdk::EncodeValue::BitRateControl);
            };
        });
        QCOMPARE(skipped, "未复制：主码流码率控制");
        QCOMPARE(written(1100, 1).value("bitRateControl").toInt(), 1);
    }

    void aCopyKeepsProfilesThatTheSourceLacks_data()
    {
        // compression: of the source, which reports no profiles
        // profiles: reported by the target
        const auto row = dataTable<int, QVariantList, int>({"compression", "profiles", "written"});
        row("H.265", 8, QVariantList{1, 2, 4}, 2);
        row("H.264", 7, QVariantList{1, 4}, 1);
        row("H.264, and the target has none either", 7, QVariantList(), 2);
    }

    void aCopyKeepsProfilesThatTheSourceLacks()
    {
        QFETCH(int, compression);
        QFETCH(QVariantList, profiles);
        SceneDevice source = modernCamera();
        const QJsonObject plain = {{"compressions", list({compression})}, {"profiles", list({})}};
        source.capabilities = {{"encode", QJsonObject{{"main", plain}, {"sub", plain}}}};
        SceneDevice target = configDevice(6, "IPC", 1);
        const QJsonObject stream = {{"compressions", list({7, 8})}, {"profiles", list(profiles)}};
        target.capabilities = {{"encode", QJsonObject{{"main", stream}, {"sub", stream}}}};
        const QString skipped = copy(source, target);
        QCOMPARE(skipped, "");
        QCOMPARE(written(1100, 1).value("compression").toInt(), compression);
        QTEST(written(1103, 1).value("profile").toInt(), "written");
    }

    void settingsAreCopiedToOtherDevices()
    {
        SceneDevice refusing = configDevice(4, "IPC", 1);
        refusing.faults = {{Fault::RefusesItem, 1105}};
        SceneDevice locked = configDevice(5, "IPC", 1);
        locked.faults = {{Fault::WrongPassword}};
        SceneDevice twin = configDevice(6, "IPC", 1);
        const QJsonObject sub = {{"sizes", list({"352*288", "704*576"})}}; // the small size is selected
        twin.capabilities = {{"encode", QJsonObject{{"sub", sub}}}};
        m_site = std::make_unique<ConfigSite>(QList{modernCamera(), oldCamera(), refusing, locked, twin});
        const QStringList targets = {ipportOf(oldCamera()), ipportOf(refusing), ipportOf(locked),
                                     "192.168.1.99:37777", ipportOf(twin)};
        for (const SceneDevice &device : {oldCamera(), twin})
            m_site->factory->getLoginDevice("dh", device.address, "admin", "secret1", "37777");
        QSignalSpy results(m_site->factory.get(), &CDeviceFactory::signalRetToCopyConfig);
        m_site->factory->copyConfigToDevice("dh",
                                            {ipportOf(twin)}); // nothing has been read that could be copied
        QCOMPARE(results.takeFirst().at(1).toInt(), 10);

        QCOMPARE(m_site->login(modernCamera()), 0);
        QCOMPARE(read(), 0);
        m_site->set("curResolution", "1080P");
        m_site->set("curBitStream", "1500");
        m_site->set("frameRate", 10);
        m_site->set("subCurBitStream", "3072");
        m_site->site->requests().clear();
        m_site->factory->copyConfigToDevice("dh", targets);
        QStringList reported;
        for (const QList<QVariant> &result : results)
            reported.append(result.at(0).toString() + ' ' + result.at(1).toString());
        QCOMPARE(reported, QStringList({"192.168.1.2:37777 0", "192.168.1.4:37777 999", "192.168.1.5:37777 2",
                                        "192.168.1.99:37777 5", "192.168.1.6:37777 0"}));
        QCOMPARE(m_site->site->requests().of("NetLogout").size(), 3);
        const auto rowResult = [this](const SceneDevice &device) {
            return m_site->factory->getDeviceInfo("dh", ipportOf(device)).value("result").toString();
        };
        QVERIFY2(rowResult(oldCamera()).contains("主码流分辨率"), qPrintable(rowResult(oldCamera())));
        QCOMPARE(rowResult(twin), "");

        QCOMPARE(m_site->login(twin), 0);
        QCOMPARE(read(), 0);
        QCOMPARE(m_site->shown("curResolution subCurResolution"),
                 "1080P|D1"); // the larger size allows the bit rate
        QCOMPARE(m_site->get("subBitStream").toStringList().value(m_site->get("subCurBitStream").toInt()),
                 "3072");
        QCOMPARE(m_site->login(oldCamera()), 0);
        QCOMPARE(read(), 0);
        QCOMPARE(m_site->shown("curEncodeMode curResolution frameRate curBitStream"), "MPEG4|D1|10|-1");
    }
};

QTEST_GUILESS_MAIN(TestEncodeConfig)
#include "tst_encodeconfig.moc"

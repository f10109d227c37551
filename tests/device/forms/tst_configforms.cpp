// The configuration forms with valid and invalid values of a back end.
#include "device/forms/cameraform.h"
#include "device/forms/encodeform.h"
#include "device/registry/devicebase.h"
#include "device/registry/devicefactory.h"
#include "tests/datatable.h"

namespace {

class ValuesBackEnd : public CDeviceBase
{
    Q_OBJECT
public:
    ValuesBackEnd() : CDeviceBase(nullptr) {}

    QVariant getConfigData(const QString &key, const QVariant & /*channel*/) override
    {
        return values.value(key);
    }
    void setConfigData(const QString &key, const QVariant &value, const QString & /*otype*/) override
    {
        values.insert(key, value);
    }

    QVariantMap values;
};

} // namespace

class TestConfigForms : public QObject
{
    Q_OBJECT

    std::shared_ptr<ValuesBackEnd> m_backEnd = std::make_shared<ValuesBackEnd>();
    CDeviceFactory m_factory{{{QStringLiteral("dh"), [this] {
                                   return m_backEnd;
                               }}}};

    static QVariant of(const QVariantMap &stream, const char *setting, const char *part)
    {
        return stream.value(setting).toMap().value(part);
    }

private Q_SLOTS:
    void init()
    {
        m_backEnd->values = {{"channelNum", QStringList({"1", "2"})},
                             {"curChannel", 1},
                             {"encodeMode", QStringList({"H.264 B", "H.265"})},
                             {"curEncodeMode", "H.265"},
                             {"resolution", QStringList({"1080P"})},
                             {"curResolution", "1080P"},
                             {"frameRateMax", 25},
                             {"frameRate", 20},
                             {"bitStream", QStringList({"1024", "2048", "自定义"})},
                             {"curBitStream", 1},
                             {"bitRate", 2048}};
    }

    void savedSettingsAreNoLongerCountedAsChanged()
    {
        EncodeForm form;
        form.setDeviceFactory(&m_factory);
        form.set("curEncodeMode", "H.264 B"); // together with its profile
        form.set("frameRate", 10);
        form.set("subFrameRate", 10);
        form.set("curSamplingFrequency", "16000");
        QCOMPARE(form.changedCount(), 4);
        m_backEnd->values.insert("takenItems", QVariantList{0, 3});
        form.takeSaved();
        QCOMPARE(form.changedCount(), 2);
        QVERIFY(of(form.mainStream(), "encodeMode", "changed").toBool());
        QVERIFY(of(form.subStream(), "frameRate", "changed").toBool());
        m_backEnd->values.insert("unreadIndexes", QVariantList{1}); // the profile
        form.takeSaved();
        QVERIFY(!of(form.mainStream(), "encodeMode", "changed").toBool());
        m_backEnd->values.remove("takenItems");
        form.set("frameRate", 20); // differs from the device's value
        QCOMPARE(form.changedCount(), 2);
    }

    void theCurrentValueIsShownEvenIfItIsNotOffered()
    {
        m_backEnd->values.insert("curResolution", "800*600");
        m_backEnd->values.insert("frameRate", 30);
        m_backEnd->values.insert("curBitStream", -1);
        m_backEnd->values.insert("bitRate", 3000);
        EncodeForm form;
        form.setDeviceFactory(&m_factory);
        const QVariantMap stream = form.mainStream();
        QCOMPARE(of(stream, "resolution", "choices").toStringList(), QStringList({"1080P", "800*600"}));
        QCOMPARE(of(stream, "resolution", "names").toStringList(), QStringList({"1080P", "800 × 600"}));
        QCOMPARE(of(stream, "resolution", "index").toInt(), 1);
        QCOMPARE(of(stream, "frameRate", "maximum").toInt(), 30);
        QCOMPARE(of(stream, "bitRate", "index").toInt(), 2); // a custom value
        QCOMPARE(of(stream, "bitRate", "value").toInt(), 3000);
        form.set("curResolution", "1080P");
        QCOMPARE(of(form.mainStream(), "resolution", "choices").toStringList(),
                 QStringList({"1080P", "800*600"})); // the previous value remains selectable
        form.set("bitRate", 3100);                   // not one of the listed values
        QVERIFY(of(form.mainStream(), "bitRate", "changed").toBool());
    }

    void theOnlyBitRateControlIsNotSelectable()
    {
        m_backEnd->values.insert("bitstreamControl", 1);
        EncodeForm form;
        form.setDeviceFactory(&m_factory);
        QVERIFY(of(form.mainStream(), "control", "usable").toBool());
        m_backEnd->values.insert("missingSettings", QStringList("control"));
        EncodeForm limited;
        limited.setDeviceFactory(&m_factory);
        QVERIFY(!of(limited.mainStream(), "control", "usable").toBool());
        QCOMPARE(of(limited.mainStream(), "control", "value").toInt(), 1);
    }

    void invalidValuesGiveACompleteForm_data()
    {
        const auto row = dataTable<QVariantMap>({"values"});
        row("nothing", QVariantMap());
        row("empty lists", QVariantMap{{"channelNum", QStringList()},
                                       {"encodeMode", QStringList()},
                                       {"resolution", QStringList()},
                                       {"bitStream", QStringList()}});
        row("a list without a value", QVariantMap{{"encodeMode", QStringList("H.265")}});
        row("other kinds", QVariantMap{{"channelNum", 3},
                                       {"encodeMode", QVariantMap{{"a", 1}}},
                                       {"curBitStream", "none"},
                                       {"frameRateMax", "many"},
                                       {"picture", 7},
                                       {"curSwitchMode", QStringList()}});
    }
    void invalidValuesGiveACompleteForm()
    {
        QFETCH(QVariantMap, values);
        m_backEnd->values = values;
        EncodeForm form;
        form.setDeviceFactory(&m_factory);
        QVERIFY(!form.isComplete());
        QVERIFY(!form.channels().isEmpty());
        for (QVariantMap stream : {form.mainStream(), form.subStream()}) {
            QVERIFY(stream.take("exists").toBool() && stream.take("hasAudio").toBool());
            QCOMPARE(stream.size(), 10);
            for (const QVariant &setting : std::as_const(stream))
                QCOMPARE(setting.toMap().keys(), QStringList({"changed", "choices", "index", "key", "maximum",
                                                              "minimum", "names", "usable", "value"}));
            QCOMPARE(of(stream, "encodeMode", "index").toInt(), -1);
            for (const char *unknown :
                 {"encodeMode", "frameRate", "quality", "control", "audioEnable", "bitRate"})
                QVERIFY2(!of(stream, unknown, "usable").toBool(), unknown);
            QCOMPARE(of(stream, "control", "value").toInt(), -1);
            QCOMPARE(of(stream, "bitRate", "index").toInt(), -1);
        }
        CameraForm camera;
        camera.setDeviceFactory(&m_factory);
        QCOMPARE(camera.groups().size(), 11);
        QVERIFY(!camera.supportsAny());
        QVERIFY(!camera.channels().isEmpty());
    }

    void shutterTimesHaveAnIndex_data()
    {
        const auto row = dataTable<double, double, int>({"shortest", "longest", "index"});
        row("shortest", 0.01, 0.01, 0);
        row("as stored by devices", static_cast<double>(1000.0F / 30000),
            static_cast<double>(1000.0F / 30000), 1);
        row("longest", 40.0, 40.0, 9);
        row("a range", 0.0, 40.0, -1);
        row("a time that is not listed", 25.0, 25.0, -1);
        row("nothing", 0.0, 0.0, -1);
    }
    void shutterTimesHaveAnIndex()
    {
        QFETCH(double, shortest);
        QFETCH(double, longest);
        const CameraForm form;
        QTEST(form.shutterIndex(shortest, longest), "index");
    }
};

QTEST_GUILESS_MAIN(TestConfigForms)
#include "tst_configforms.moc"

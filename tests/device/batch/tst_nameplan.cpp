// Names of channels and cameras that are generated from a pattern.
#include "device/batch/nameplan.h"
#include "tests/datatable.h"
#include "tests/device/rowsbackend.h"

class TestNamePlan : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void patternsGenerateNames_data()
    {
        const auto row = dataTable<QString, int, int, QStringList, QString, bool>(
            {"pattern", "start", "digits", "names", "fault", "repeated"});
        row("numbers", " Hall {n} ", 9, 2, {"Hall 09", "Hall 10"}, {}, false);
        row("a number twice", "{n}/{n}", 1, 1, {"1/1", "2/2"}, {}, false);
        row("model and address", "{model}-{ip4}", 1, 1, {"B-2230-IR-8", "B-2230-IR-21"}, {}, false);
        row("the same for all", "Hall", 1, 1, {"Hall", "Hall"}, {}, true);
        row("empty", " ", 1, 1, {"", ""}, QStringLiteral("请输入命名规则"), true);
        row("an unknown placeholder", "{x}", 1, 1, {"{x}", "{x}"},
            QStringLiteral("只能使用 {n}、{model} 和 {ip4}"), true);
        row("too many bytes", QString(128, QChar(0x5385)), 1, 1,
            {QString(128, QChar(0x5385)), QString(128, QChar(0x5385))},
            QStringLiteral("名称过长，最多 255 字节"), true);
    }

    void patternsGenerateNames()
    {
        QFETCH(QString, pattern);
        QFETCH(int, start);
        QFETCH(int, digits);
        RowsFactory site;
        site.rows->add({.address = "192.168.1.8", .mac = "m0"});
        site.rows->add({.address = "192.168.1.21", .mac = "m1"});
        NamePlan plan;
        plan.setDeviceFactory(&site.factory);
        plan.setPattern(pattern);
        plan.setStart(start);
        plan.setDigits(digits);
        QStringList cameras;
        for (const QVariant &listed : std::as_const(site.rows->ipv4))
            cameras.append(listed.toJsonObject().value(QLatin1StringView("ipport")).toString());
        plan.takeCameras(cameras);
        QTEST(plan.names(), "names");
        QTEST(plan.fault(), "fault");
        QTEST(plan.isRepeated(), "repeated");
        QCOMPARE(plan.checkedIdentities(), cameras);
    }

    /// Its channel 1 shows a camera that already has a name.
    void aRecorderAmongCamerasIsSkippedAndNotCounted()
    {
        RowsFactory site;
        site.rows->add({.address = "192.168.1.8", .mac = "m0", .name = "B-2230-IR east"});
        site.rows->add({.address = "192.168.1.9", .mac = "m1", .type = "NVR"});
        site.rows->add({.address = "192.168.1.10", .mac = "m2"});
        NamePlan plan;
        plan.setDeviceFactory(&site.factory);
        plan.setPattern("C{n}");
        const QStringList devices = {"192.168.1.8:37777", "192.168.1.9:37777", "192.168.1.10:37777"};
        QCOMPARE(plan.countCameras(devices), 2);
        plan.takeCameras(devices);
        QCOMPARE(plan.names(), QStringList({"C1", "C2"}));
        QCOMPARE(plan.namedIdentities(), QStringList({devices.first(), devices.last()}));
        QCOMPARE(plan.skippedCount(), 1);
        QVERIFY(plan.get(1).value("note").toString().startsWith(QStringLiteral("录像机")));
        QCOMPARE(plan.get(0).value("title").toString(), QStringLiteral("B-2230-IR east"));
        QCOMPARE(plan.get(2).value("title").toString(), QStringLiteral("东门 · B-2230-IR"));
        plan.takeChannels(devices.at(1), 2); // its own channels have names
        QCOMPARE(plan.names(), QStringList({"C1", "C2"}));
    }

    /// Editing the pattern keeps the unticked channels and the numbers of the others.
    void anUntickedChannelGetsNoName()
    {
        RowsFactory site;
        NamePlan plan;
        plan.setDeviceFactory(&site.factory);
        plan.takeChannels("192.168.1.8:8800", 3);
        plan.setRangeChecked(1, 1, false);
        plan.setPattern("C{n}");
        QCOMPARE(plan.names(), QStringList({"C1", "C3"}));
        QCOMPARE(plan.checkedIdentities(), QStringList({"0", "2"}));
    }
};

QTEST_GUILESS_MAIN(TestNamePlan)

#include "tst_nameplan.moc"

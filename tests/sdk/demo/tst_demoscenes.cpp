// Scenes: reading them, what the built-in ones promise, and fleets.
#include "sdk/clock.h"
#include "sdk/demo/demosite.h"
#include "sdk/demo/fleetgenerator.h"
#include "sdk/demo/scenereader.h"
#include "tests/datatable.h"
#include "tests/files/filecontents.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>
#include <QTemporaryDir>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;
using namespace sdk::demo;

namespace {

/// A scene of one good device, with `changes` put over its keys.
QByteArray sceneWith(const QJsonObject &changes)
{
    QJsonObject device = {{u"mac"_s, u"02:1a:c5:00:00:01"_s},
                          {u"address"_s, u"192.168.1.9"_s},
                          {u"type"_s, u"IPC"_s},
                          {u"port"_s, 8800}};
    for (auto change = changes.begin(); change != changes.end(); ++change) {
        if (change.value().isUndefined() || change.value().isNull())
            device.remove(change.key());
        else
            device.insert(change.key(), change.value());
    }
    return QJsonDocument(QJsonObject{{u"devices"_s, QJsonArray{device}}}).toJson();
}

std::shared_ptr<DemoSite> openSite(const QString &name, QString *error)
{
    return DemoSite::open(name, std::make_shared<sdk::SystemClock>(), error);
}

} // namespace

class ScenesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void refusesWithClearError_data()
    {
        // words: that the complaint must hold
        const auto row = dataTable<QByteArray, QStringList>({"json", "words"});

        const auto deviceRow = [&row](const char *title, const QString &key, const QJsonValue &value,
                                      const QStringList &words) {
            row(title, sceneWith({{key, value}}), words + QStringList{u"device 1"_s, u'"' + key + u'"'});
        };
        row("empty file", "", {u"not JSON"_s});
        row("no devices", "{}", {u"\"devices\" is missing"_s});
        row("unknown scene key", R"({"devices": [], "tittle": "x"})", {u"\"tittle\""_s, u"title"_s});

        deviceRow("MAC with dashes", u"mac"_s, u"02-1a-c5-00-00-01"_s, {u"six pairs"_s});
        deviceRow("bad address", u"address"_s, u"192.168.1.256"_s, {u"192.168.1.256"_s, u"IPv4"_s});
        deviceRow("mask with a hole", u"mask"_s, u"255.0.255.0"_s, {u"mask"_s});
        deviceRow("port 0", u"port"_s, 0, {u"from 1 to 65535"_s, u"but is 0"_s});
        deviceRow("port as text", u"port"_s, u"80"_s, {u"whole number"_s, u"\"80\""_s});
        deviceRow("unknown state", u"initialised"_s, u"maybe"_s, {u"unreported"_s, u"maybe"_s});
        row("remote without P2P ID", sceneWith({{u"segment"_s, u"remote"_s}}),
            {u"\"p2pId\" is missing"_s, u"device 1"_s});

        const auto entryRow = [&row](const char *title, const QString &key, const QJsonValue &entry,
                                     const QStringList &words) {
            row(title, sceneWith({{key, QJsonArray{entry}}}), words + QStringList{u"device 1"_s});
        };
        entryRow("unknown fault", u"faults"_s, u"burns"_s,
                 {u"\"burns\""_s, u"noAnswer"_s, u"overLongTexts"_s});
        entryRow("fault without its number", u"faults"_s, u"lateAnswer"_s, {u"\"value\" is missing"_s});
        row("fault twice", sceneWith({{u"faults"_s, QJsonArray{u"noAnswer"_s, u"noAnswer"_s}}}),
            {u"twice"_s});

        row("MAC twice", R"({"devices": [
        {"mac": "02:1a:c5:00:00:aa", "address": "10.0.0.1", "type": "IPC", "port": 1},
        {"mac": "02:1A:C5:00:00:AA", "address": "10.0.0.2", "type": "IPC", "port": 1}]})",
            {u"device 2 (02:1A:C5:00:00:AA)"_s, u"device 1"_s, u"unique"_s});
        QJsonArray tooMany;
        for (int place = 0; place <= maximumSceneDevices; ++place)
            tooMany.append(QJsonObject());
        row("too many devices", QJsonDocument(QJsonObject{{u"devices"_s, tooMany}}).toJson(),
            {u"20001"_s, u"20000"_s});
    }

    void refusesWithClearError()
    {
        QFETCH(QByteArray, json);
        QFETCH(QStringList, words);
        QString error;
        QVERIFY(!SceneReader::read(json, &error));
        for (const QString &word : words)
            QVERIFY2(error.contains(word), qPrintable(u"%1 | lacks: %2"_s.arg(error, word)));
        QVERIFY(!SceneReader::read(json, nullptr));
    }

    void readsEveryKey()
    {
        QString error;
        const std::optional<Scene> scene = SceneReader::read(R"({"title": "T", "description": "D",
        "localAddress": "10.1.1.1", "localIpv6": "fe80:0::1",
        "devices": [{"mac": "02:1A:C5:00:40:17", "address": "10.0.0.9", "ipv6": "FD00:0:0::9/56",
        "mask": "255.255.0.0", "gateway": "10.0.0.1", "dhcp": true, "p2pId": "OV1", "port": 65535, "httpPort": 0,
        "httpAuthentication": "basic",
        "name": "大门", "type": "NVR", "model": "R-1", "version": "2.1", "serial": "S1",
        "initialised": "unreported", "resetWay": "mail", "accounts": [{"user": "admin", "password": "p"}],
        "channels": [{"connected": false}, {"name": "C2"}], "capabilities": {"a": 1}, "configuration": {"b": 2},
        "latency": 0, "segment": "other", "knowsFirstSearch": false,
        "faults": ["oddBytes", {"name": "lateAnswer", "value": 70}]},
        {"mac": "02:1a:c5:00:40:18", "ipv6": "fd00::a", "type": "IPC", "port": 1, "channels": 3,
         "segment": "remote", "p2pId": "OV2"}]})",
                                                             &error);
        QVERIFY2(scene.has_value(), qPrintable(error));
        QCOMPARE(scene->title + scene->description + scene->localAddress + scene->localIpv6,
                 u"TD10.1.1.1fe80::1"_s);
        QCOMPARE(scene->devices.size(), 2);

        const SceneDevice &full = scene->devices.first();
        QCOMPARE(QStringList({full.mac, full.address, full.ipv6, full.mask, full.gateway}),
                 QStringList(
                     {u"02:1a:c5:00:40:17"_s, u"10.0.0.9"_s, u"fd00::9"_s, u"255.255.0.0"_s, u"10.0.0.1"_s}));
        QCOMPARE(QStringList({full.name, full.type, full.model, full.version, full.serial}),
                 QStringList({u"大门"_s, u"NVR"_s, u"R-1"_s, u"2.1"_s, u"S1"_s}));
        QCOMPARE(QList<int>({full.ipv6PrefixLength, full.port, full.httpPort, full.resetWay}),
                 QList<int>({56, 65535, 0, 2}));
        QCOMPARE(full.httpAuthentication, HttpAuthenticationKind::Basic);
        QVERIFY(full.dhcp && full.inOtherSegment && !full.isRemote && !full.knowsFirstSearch);
        QCOMPARE(full.initialisation, sdk::InitialisationBits::NotReported);
        QCOMPARE(full.latency.count(), 0);
        QCOMPARE(full.accounts.first().user + full.accounts.first().password, u"adminp"_s);
        QVERIFY(!full.channels.at(0).connected && full.channels.at(1).connected);
        QCOMPARE(full.capabilities.value(u"a").toInt() + full.configuration.value(u"b").toInt(), 3);
        QVERIFY(full.hasFault(Fault::OddBytes) && !full.hasFault(Fault::NoAnswer));
        QCOMPARE(full.fault(Fault::LateAnswer)->number, 70);

        const SceneDevice &sparse = scene->devices.last();
        QVERIFY(sparse.address.isEmpty() && !sparse.dhcp && sparse.isRemote && sparse.knowsFirstSearch);
        QVERIFY(sparse.inOtherSegment); // out of reach of local searches as well
        QCOMPARE(full.p2pId + sparse.p2pId, u"OV1OV2"_s);
        QCOMPARE(sparse.initialisation, sdk::InitialisationBits::Initialised);
        QCOMPARE(sparse.channels.size(), 3);
    }

    void opensFilesAndNamesMistakes()
    {
        QTemporaryDir directory;
        const QString path = directory.filePath(u"mine.json"_s);
        QVERIFY(writeFile(path, sceneWith({{u"name"_s, u"Mine"_s}})));
        QString error = u"old"_s;
        const std::shared_ptr<DemoSite> site = openSite(path, &error);
        QVERIFY2(site != nullptr, qPrintable(error));
        QVERIFY(error.isEmpty());
        QCOMPARE(site->device(u"02:1A:C5:00:00:01"_s)->name, u"Mine"_s);
        QVERIFY(!site->device(u"02:1a:c5:00:00:02"_s));

        const QList<std::pair<QString, QStringList>> mistakes = {
            {u"ofice"_s, {u"\"ofice\""_s, u"office"_s, u"factory"_s, u"faulty"_s, u"fleet:N"_s}},
            {u""_s, {u"office"_s}},
            {u"fleet:0"_s, {u"1 to 20000"_s}},
            {u"fleet:20001"_s, {u"1 to 20000"_s}},
            {u"fleet:many"_s, {u"\"fleet:many\""_s, u"1 to 20000"_s}},
            {directory.filePath(u"none.json"_s), {u"none.json"_s, u"cannot be read"_s}},
            {directory.path(), {directory.path(), u"is no file"_s}},
            {u"/dev/zero"_s, {u"/dev/zero"_s, u"is no file"_s}},
            {u"fleet:%1"_s, {u"\"fleet:%1\""_s, u"1 to 20000"_s}},
        };
        for (const auto &[name, words] : mistakes) {
            QVERIFY(!openSite(name, &error));
            for (const QString &word : words)
                QVERIFY2(error.contains(word), qPrintable(u"%1 | lacks: %2"_s.arg(error, word)));
            QVERIFY(!openSite(name, nullptr));
        }
    }

    void fleetIsUniqueAndMixed()
    {
        QString error;
        const std::shared_ptr<DemoSite> site = openSite(u"fleet:20000"_s, &error);
        QVERIFY2(site != nullptr, qPrintable(error));
        QSet<QString> macs;
        QSet<QString> addresses;
        QSet<QString> types;
        int uninitialised = 0;
        std::array<int, 5> answersOfHalfSecond = {};
        for (const SceneDevice &device : site->devices()) {
            macs.insert(device.mac);
            addresses.insert(device.address);
            types.insert(device.type);
            QVERIFY(device.address.startsWith(u"10."));
            uninitialised += device.initialisation == sdk::InitialisationBits::Uninitialised ? 1 : 0;
            ++answersOfHalfSecond[static_cast<std::size_t>(
                std::clamp<qint64>(device.latency.count() / 500, 0, 4))];
        }
        QCOMPARE(macs.size(), maximumSceneDevices);
        QCOMPARE(addresses.size(), maximumSceneDevices);
        QCOMPARE(types.size(), 8);
        QVERIFY2(uninitialised > 2000 && uninitialised < 4000, qPrintable(QString::number(uninitialised)));
        for (const int answers : answersOfHalfSecond)
            QVERIFY2(answers > 3000, qPrintable(QString::number(answers)));
    }
};

QTEST_GUILESS_MAIN(ScenesTest)
#include "tst_demoscenes.moc"

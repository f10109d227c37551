// Error messages for invalid scene files and names.
#include "sdk/clock.h"
#include "sdk/demo/demosite.h"
#include "sdk/demo/scene/scenereader.h"
#include "sdk/netlibrary.h"
#include "sdk/providerblocks.h"
#include "tests/datatable.h"
#include "tests/files/filecontents.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace sdk::demo;

namespace {

/// A scene of one valid device whose keys are overwritten by `changes`.
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
    void refusesInvalidFilesWithAClearMessage_data()
    {
        // words: required in the error message
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
        for (int index = 0; index <= maximumSceneDevices; ++index)
            tooMany.append(QJsonObject());
        row("too many devices", QJsonDocument(QJsonObject{{u"devices"_s, tooMany}}).toJson(),
            {u"20001"_s, u"20000"_s});
    }

    void refusesInvalidFilesWithAClearMessage()
    {
        QFETCH(QByteArray, json);
        QFETCH(QStringList, words);
        QString error;
        QVERIFY(!SceneReader::read(json, &error));
        for (const QString &word : words)
            QVERIFY2(error.contains(word), qPrintable(u"%1 | lacks: %2"_s.arg(error, word)));
        QVERIFY(!SceneReader::read(json, nullptr));
    }

    void opensFilesAndReportsInvalidNames()
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
        sdk::ProviderInformation provider{};
        provider.size = sizeof(provider);
        site->libraries().net->NetGetProviderInformation(provider);
        QCOMPARE(provider.defaultPort, 8800); // the default in the dialog for adding a device

        const QList<std::pair<QString, QStringList>> mistakes = {
            {u"ofice"_s, {u"\"ofice\""_s, u"office"_s, u"factory"_s, u"faulty"_s, u"fleet:N"_s}},
            {u"fleet:20001"_s, {u"1 to 20000"_s}},
            {directory.filePath(u"none.json"_s), {u"none.json"_s, u"cannot be read"_s}},
            {u"/dev/zero"_s, {u"/dev/zero"_s, u"is not a file"_s}},
            {u"fleet:%1"_s, {u"\"fleet:%1\""_s, u"1 to 20000"_s}},
        };
        for (const auto &[name, words] : mistakes) {
            QVERIFY(!openSite(name, &error));
            for (const QString &word : words)
                QVERIFY2(error.contains(word), qPrintable(u"%1 | lacks: %2"_s.arg(error, word)));
            QVERIFY(!openSite(name, nullptr));
        }
    }
};

QTEST_GUILESS_MAIN(ScenesTest)
#include "tst_demoscenes.moc"

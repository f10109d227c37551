// Configuration text: unpacking, refused texts, and packing as the reverse.
#include "sdk/blocktext.h"
#include "sdk/camerablocks.h"
#include "sdk/configrecords.h"
#include "sdk/configtext/configtext.h"
#include "sdk/configtext/configtextlibrary.h"
#include "sdk/encodeblocks.h"
#include "sdk/systemrecords.h"
#include "tests/datatable.h"

#include <cstring>

using namespace Qt::StringLiterals;
using namespace sdk;

namespace {

std::string_view viewOf(const QByteArray &bytes)
{
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

} // namespace

class ConfigTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void unpacksExistingKeys()
    {
        ConfigTextLibrary library;
        NetworkRecord record = {};
        setBlockText(record.gateway, "10.0.0.1");
        record.reserved.fill(7);
        std::uint32_t filled = 0;
        QVERIFY(library.ConfigParseData(
            "Network", R"({"Network":{"dhcp":true,"address":"10.0.0.9","later":[1]},"Https":3})", &record,
            sizeof(record) + 100, filled));
        QCOMPARE(filled, sizeof(NetworkRecord));
        QCOMPARE(record.size, sizeof(NetworkRecord));
        QCOMPARE(record.dhcpEnabled, 1);
        QVERIFY(blockText(record.address) == "10.0.0.9" && blockText(record.gateway) == "10.0.0.1");
        QCOMPARE(record.reserved.back(), 7);
    }

    void truncatesStringsBetweenCharacters_data()
    {
        const auto row = dataTable<QString, QByteArray>({"name", "kept"});
        const QByteArray letters(60, 'a');
        row("one byte too long", QString::fromUtf8(letters + "bcde"), letters + "bcd");
        row("character of three bytes exceeds the limit", QString::fromUtf8(letters + "b门"), letters + "b");
        row("zero inside", u"a\\u0000b"_s, QByteArray("a"));
    }

    void truncatesStringsBetweenCharacters()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, kept);
        NetworkRecord record = {};
        record.hostName.fill('x');
        const QByteArray text = u"{\"Network\":{\"hostName\":\"%1\"}}"_s.arg(name).toUtf8();
        QVERIFY(unpackConfigText("Network", viewOf(text), &record, sizeof(record)));
        const QByteArray field(record.hostName.data(), record.hostName.size());
        QCOMPARE(field, kept.leftJustified(field.size(), '\0'));
    }

    void refusesAndLeavesTheRecord_data()
    {
        const auto addRow = dataTable<QByteArray, QByteArray, quint32>({"name", "text", "recordSize"});
        const auto row = [&addRow](const char *title, const QByteArray &text,
                                   const QByteArray &name = "Https",
                                   quint32 recordSize = sizeof(HttpsRecord)) {
            addRow(title, name, text, recordSize);
        };
        const auto ports = [&row](const char *title, const QByteArray &port) {
            row(title, "{\"Https\":{\"enabled\":true,\"port\":" + port + "}}");
        };
        const QByteArray good = R"({"Https":{"enabled":true,"port":443}})";
        row("unknown name", R"({"Smoke":{"enabled":true}})", "Smoke");
        row("record too small", good, "Https", sizeof(HttpsRecord) - 1);
        row("truncated", good.chopped(2));
        row("further text after it", good + '\0' + good);
        row("invalid UTF-8", "{\"Https\":{\"enabled\":true,\"\xff\xfe\":1}}");
        row("too long", good + QByteArray(512 * 1024, ' '));
        row("text as number", R"({"Network":{"dhcp":true,"address":5}})", "Network", sizeof(NetworkRecord));
        const auto streams = [&row](const char *title, const QByteArray &stream) {
            row(title, "{\"Encode\":{\"mainNormal\":{\"width\":1},\"sub\":" + stream + "}}", "Encode",
                sizeof(EncodeRecord));
        };
        streams("no object inside a record", "[1]");
        streams("bad number in an inner object", R"({"width":70000})");
        ports("number as text", "\"443\"");
        ports("too high", "65536");
        ports("beyond a double", "1e999");
        ports("fraction", "443.5");
    }

    void refusesAndLeavesTheRecord()
    {
        QFETCH(QByteArray, name);
        QFETCH(QByteArray, text);
        QFETCH(quint32, recordSize);
        QByteArray record(sizeof(EncodeRecord), 'r');
        ConfigTextLibrary library;
        std::uint32_t filled = 99;
        QVERIFY(!library.ConfigParseData(viewOf(name), viewOf(text), record.data(), recordSize, filled));
        QCOMPARE(filled, 0u);
        QCOMPARE(record, QByteArray(record.size(), 'r'));
    }

    void packedTextUnpacksToTheSame()
    {
        const auto goesRound = [](const char *name, auto record) {
            record.size = sizeof(record);
            const std::optional<QByteArray> text = packConfigText(name, &record, sizeof(record));
            QVERIFY(text);
            auto back = decltype(record)();
            QCOMPARE(unpackConfigText(name, viewOf(*text), &back, sizeof(back)), sizeof(record));
            QVERIFY2(std::memcmp(&back, &record, sizeof(record)) == 0, text->constData());
        };
        NetworkRecord network = {};
        network.dhcpEnabled = 1;
        setBlockText(network.hostName, "大门 \"<b>\\");
        setBlockText(network.mac, "02:1a:c5:00:40:17");
        setBlockText(network.address, "fd00::9");
        setBlockText(network.subnetMask, "64");
        setBlockText(network.gateway, "10.0.0.1");
        goesRound("Network", network);
        goesRound("DVRIP", ServiceRecord{0, 65535, 2147483647, {}});
        goesRound("Https", HttpsRecord{0, 1, 8443, 0});
        EncodeRecord encode = {};
        encode.streams[3] = {1, 8, 4, 704, 576, 1, 512, 25, 6, 1, 5, 16000, {}};
        goesRound("Encode", encode);
        VideoColorRecord color = {};
        color.pictures[2] = {0, 0, 3, 1, 2, 3, 4, 100, {}};
        goesRound("VideoColor", color);
        goesRound("Locales", LocalesRecord{0, 1, {3, -1, 0, 2, 0}, {10, 0, 31, 23, 59}, {"HH:mm"}, {}});
        goesRound("AutoMaintain", AutoMaintainRecord{0, -1, 23, 59, {}, 1, {}});
        goesRound("NTP", NtpRecord{0, 1, {"time.example"}, 65535, 65535, 39, {}});
    }

    void refusesToPackBadRecords()
    {
        HttpsRecord record = {sizeof(HttpsRecord), 1, 443, 0};
        QVERIFY(packConfigText("Https", &record, sizeof(record)));
        record.port = 65536;
        QVERIFY(!packConfigText("Https", &record, sizeof(record)));
        EncodeRecord encode = {};
        encode.streams[1].quality = 7; // in an inner object
        QVERIFY(!packConfigText("Encode", &encode, sizeof(encode)));
        const AutoMaintainRecord byteOutOfRange{sizeof(AutoMaintainRecord), 0, 0, 0, {}, 2, {}};
        QVERIFY(!packConfigText("AutoMaintain", &byteOutOfRange, sizeof(byteOutOfRange)));

        NetworkRecord broken = {};
        broken.hostName.fill('\xe5'); // incomplete characters up to the last byte
        const std::optional<QByteArray> text = packConfigText("Network", &broken, sizeof(broken));
        QVERIFY(text && QString::fromUtf8(*text).contains(QChar::ReplacementCharacter));
    }
};

QTEST_GUILESS_MAIN(ConfigTextTest)
#include "tst_configtext.moc"

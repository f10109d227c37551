#include "device/store/devicerow.h"
#include "device/store/devicestore.h"
#include "sdk/demo/steppableclock.h"
#include "tests/datatable.h"
#include "tests/device/searchresponses.h"
#include "tests/values.h"

#include <array>
#include <atomic>
#include <cstring>
#include <thread>
#include <utility>

using namespace std::chrono_literals;

namespace {

QStringList values(const QVariantList &rows, QLatin1StringView key)
{
    QStringList texts;
    for (const QVariant &row : rows)
        texts.append(row.toJsonObject().value(key).toVariant().toString());
    return texts;
}

} // namespace

class TestDeviceStore : public QObject
{
    Q_OBJECT
private:
    std::shared_ptr<sdk::demo::SteppableClock> m_clock;
    std::unique_ptr<DeviceStore> m_store;

private Q_SLOTS:
    void init()
    {
        m_clock = std::make_shared<sdk::demo::SteppableClock>();
        m_store = std::make_unique<DeviceStore>(m_clock);
    }

    void stateComesFromTheLowTwoBits_data()
    {
        const auto row = dataTable<int, bool>({"byte", "initialised"});
        row("uninitialised", 1, false);
        row("initialised", 2, true);
        row("uninitialised, other bits set", 0xFD, false);
    }

    void stateComesFromTheLowTwoBits()
    {
        QFETCH(int, byte);
        QFETCH(bool, initialised);
        sdk::SearchResponse response = searchResponse({});
        response.device.initialisationState = static_cast<std::uint8_t>(byte);
        m_store->addResponse(response);
        QCOMPARE(m_store->ipv4Rows().value(0).toJsonObject().value("state").toBool(), initialised);
    }

    void theFirstResponseOfADeviceCounts()
    {
        m_store->addResponse(searchResponse({.address = "192.168.1.64"}));
        QCOMPARE(valuesOf(m_store->row("02:1a:c5:00:40:17"),
                          "name type model ipport vision res upgrade upgraderes httpport"),
                 "东门|IPC|B-2230-IR|192.168.1.64:37777|v2.840.1|-1|0|-1|80");
        const DeviceStore::Addition second =
            m_store->addResponse(searchResponse({.address = "192.168.1.99"}));
        QVERIFY(!second.added);
        QCOMPARE(values(m_store->ipv4Rows(), DeviceRowKey::ipport), QStringList("192.168.1.64:37777"));
        QCOMPARE(sdk::blockText(m_store->record("02:1a:c5:00:40:17")->device.address), "192.168.1.64");

        m_store->addResponse(searchResponse({.address = "fe80::1", .ipVersion = 6}));
        m_store->addResponse(searchResponse({.address = "fe80::1", .ipVersion = 6}));
        QCOMPARE(m_store->ipv6Rows().size(), 1);
    }

    void aSearchFindsALimitedNumberOfDevices()
    {
        for (int number = 0; number < DeviceStore::maximumFound; ++number) {
            const bool ipv4 = number % 2 == 0;
            m_store->addResponse(searchResponse({.address = ipv4 ? "192.168.1.64" : "fe80::1",
                                                 .mac = numberedMac(number),
                                                 .ipVersion = ipv4 ? 4 : 6}));
        }
        for (int number = 19'990; number < 20'003; ++number) // the last three devices exceed the limit
            QVERIFY(!m_store
                         ->addResponse(searchResponse({.address = number % 2 ? "fe80::1" : "192.168.1.64",
                                                       .mac = numberedMac(number),
                                                       .ipVersion = number % 2 ? 6 : 4}))
                         .added);
        QCOMPARE(m_store->ipv4Rows().size() + m_store->ipv6Rows().size(), 20'000);
        QCOMPARE(m_store->leftOut(), 3);
        m_store->clear();
        QCOMPARE(m_store->leftOut(), 0);
        QVERIFY(m_store->addResponse(searchResponse({})).added);
    }

    void aRemovedDeviceIsNotListedUntilTheNextSearch()
    {
        const sdk::SearchResponse ipv4 = searchResponse({});
        const sdk::SearchResponse ipv6 = searchResponse({.address = "fe80::1", .ipVersion = 6});
        const QString mac = "02:1a:c5:00:40:17";
        m_store->upsertRow({{"mac", "added by hand"}});
        m_store->addResponse(ipv4);
        m_store->addResponse(ipv6);
        m_store->removeRows({mac, "added by hand"});
        m_store->removeIPv6Rows({"[fe80::1]:37777"});
        m_store->addResponse(ipv4);
        m_store->addResponse(ipv6);
        m_store->addResponse(searchResponse({.mac = "added by hand"}));
        QCOMPARE(m_store->ipv4Rows().size() + m_store->ipv6Rows().size(), 0);
        m_store->upsertRow({{"mac", mac}});
        QCOMPARE(m_store->ipv4Rows().size(), 1);
        m_store->clear();
        QVERIFY(m_store->addResponse(ipv4).added);
        QVERIFY(m_store->addResponse(ipv6).added);
    }

    void ipv6RowsWithTheSameAddressAreRemovedSeparately()
    {
        for (int number = 0; number < 3; ++number)
            m_store->addResponse(searchResponse(
                {.address = "0.0.0.0", .mac = numberedMac(number), .name = std::to_string(number)}));
        const auto names = [this] {
            return values(m_store->ipv6Rows(), DeviceRowKey::name);
        };
        m_store->removeIPv6Rows({"0.0.0.0:37777"});
        QCOMPARE(names(), QStringList({"1", "2"}));
        // Neither a remaining nor an added row has the name of the removed one.
        m_store->addResponse(searchResponse({.address = "0.0.0.0", .mac = numberedMac(3), .name = "3"}));
        QVERIFY(!m_store->changeRowNamed("0.0.0.0:37777", [](QJsonObject &) {}));
        QCOMPARE(m_store->rowNamed("0.0.0.0:37777#1").value("name").toString(), "1");
        m_store->removeIPv6Rows({"0.0.0.0:37777#2"});
        QCOMPARE(names(), QStringList({"1", "3"}));
    }

    void anAddressBelongsToTheFirstRow()
    {
        const QString shared = "192.168.1.108:37777";
        const auto setAddress = [this](const QString &mac, const QString &ipport) {
            QVERIFY(m_store->changeRow(mac, [&](QJsonObject &row) { row.insert("ipport", ipport); }));
        };
        for (const char *mac : {"a", "b", "c"})
            m_store->addResponse(searchResponse({.address = "192.168.1.108", .mac = mac}));
        const auto first = [&] {
            return m_store->rowAt(shared).value("mac").toString();
        };
        QCOMPARE(first(), "a");
        setAddress("a", "192.168.1.1:37777");
        QCOMPARE(first(), "b");
        setAddress("a", shared);
        QCOMPARE(first(), "a");
        m_store->removeRows({"a"});
        QCOMPARE(first(), "b");
        QVERIFY(m_store->changeRowAt(shared, [](QJsonObject &row) { row.insert("res", 7); }));
        QCOMPARE(values(m_store->ipv4Rows(), DeviceRowKey::res), QStringList({"7", "-1"}));
        QVERIFY(m_store->rowAt("192.168.1.1:37777").isEmpty());
    }

    void aRowWithoutAMacKeepsItsName()
    {
        const QString name = "192.168.1.64:37777";
        m_store->addResponse(searchResponse({.mac = ""}));
        QVERIFY(
            m_store->changeRow(name, [](QJsonObject &row) { row.insert("ipport", "192.168.1.65:37777"); }));
        const sdk::SearchResponse moved =
            searchResponse({.address = "192.168.1.65", .mac = "", .name = "gate"});
        QCOMPARE(m_store->nameOf(moved), name);
        QVERIFY(m_store->updateRow(name, moved, "192.168.1.65"));
        QCOMPARE(rowName(m_store->ipv4Rows().value(0).toJsonObject()), name);
        QCOMPARE(m_store->row(name).value("name").toString(), "gate");
        QCOMPARE(sdk::blockText(m_store->record(name)->device.address), "192.168.1.65");
        // Another device at the old address is not mistaken for it, and is recognised itself.
        for (int time = 0; time < 2; ++time)
            m_store->upsertRow({{"ipport", name}}, searchResponse({.mac = ""}));
        QCOMPARE(values(m_store->ipv4Rows(), DeviceRowKey::name), QStringList({"gate", ""}));
        QCOMPARE(sdk::blockText(m_store->record(name + "#1")->device.address), "192.168.1.64");
    }

    void aDeviceIsIdentifiedByMacThenUuidThenAddress_data()
    {
        // first, second: the responses; rows: name and MAC of each row after them
        const auto row = dataTable<ResponseTexts, ResponseTexts, QStringList>({"first", "second", "rows"});
        const ResponseTexts own = {.mac = "", .uuid = "5f5a"};
        const ResponseTexts withMac = {.mac = "m1", .uuid = "5f5a"};
        const ResponseTexts other = {.address = "192.168.1.65", .mac = "", .uuid = "5f5a"};
        row("the same again", own, own, {"uuid:5f5a "});
        row("the MAC comes later", own, withMac, {"uuid:5f5a m1"});
        row("the MAC came before", withMac, own, {"m1 m1"});
        row("another device reports the UUID", own, other, {"uuid:5f5a ", "192.168.1.65:37777 "});
        row("that of a device with a MAC", withMac, other, {"m1 m1", "192.168.1.65:37777 "});
        row("another device with a MAC", own, {.address = "192.168.1.65", .mac = "m2", .uuid = "5f5a"},
            {"uuid:5f5a ", "m2 m2"});
        row("copies from the factory", withMac, {.mac = "m2", .uuid = "5f5a"}, {"m1 m1", "m2 m2"});
        row("neither", {.mac = ""}, {.mac = ""}, {"192.168.1.64:37777 "});
    }

    void aDeviceIsIdentifiedByMacThenUuidThenAddress()
    {
        QFETCH(ResponseTexts, first);
        QFETCH(ResponseTexts, second);
        QFETCH(QStringList, rows);
        QStringList removed;
        for (int time = 0; time < 2; ++time) { // repeated responses add no rows
            m_store->addResponse(searchResponse(first));
            m_store->addResponse(searchResponse(second));
            QStringList found;
            for (const QVariant &value : m_store->ipv4Rows()) {
                const QJsonObject row = value.toJsonObject();
                found.append(rowName(row) + ' ' + row.value("mac").toString());
                QVERIFY(m_store->record(rowName(row)));
                removed.append(rowName(row));
            }
            QCOMPARE(found, rows);
        }
        m_store->removeRows({removed.cbegin(), removed.cend()});
        m_store->addResponse(searchResponse(second));
        QVERIFY(m_store->ipv4Rows().isEmpty());
    }

    void aRowWithAUuidGetsTheMacOfTheNextSearch_data()
    {
        // found: names and MACs of the rows after a response of the next search; "lost" of the kept row
        const auto row =
            dataTable<ResponseTexts, ResponseTexts, QString, bool>({"kept", "response", "rows", "isLost"});
        const ResponseTexts bare = {.mac = "", .uuid = "5f5a"};
        const ResponseTexts withMac = {.mac = "m1", .uuid = "5f5a"};
        const ResponseTexts moved = {.address = "192.168.1.65", .mac = "m1", .uuid = "5f5a"};
        row("same address", bare, withMac, "uuid:5f5a m1", false);
        row("other address", bare, moved, "uuid:5f5a m1", false);
        row("other UUID", bare, {.mac = "m1", .uuid = "6f"}, "uuid:5f5a |m1 m1", true);
    }

    /// Marks that refer to the row's name, such as failures, remain valid.
    void aRowWithAUuidGetsTheMacOfTheNextSearch()
    {
        QFETCH(ResponseTexts, kept);
        QFETCH(ResponseTexts, response);
        QFETCH(QString, rows);
        QFETCH(bool, isLost);
        m_store->addResponse(searchResponse(kept));
        m_store->setKept({"uuid:5f5a"});
        const auto rowsNow = [this] {
            QStringList texts;
            for (const QVariant &value : m_store->ipv4Rows()) {
                const QJsonObject row = value.toJsonObject();
                texts.append(rowName(row) + ' ' + row.value("mac").toString());
            }
            return texts.join('|');
        };
        for (int search = 0; search < 2; ++search) {
            m_store->clear();
            m_store->addResponse(searchResponse(response));
            m_store->addResponse(searchResponse(response));
            QCOMPARE(rowsNow(), rows);
            QCOMPARE(m_store->rowNamed("uuid:5f5a").value("lost").toBool(), isLost);
        }
        // A device that copies the UUID does not belong to that row.
        m_store->clear();
        m_store->addResponse(searchResponse({.mac = "m2", .uuid = "5f5a"}));
        QCOMPARE(m_store->rowNamed("m2").value("mac").toString(), isLost ? "" : "m2");
    }

    void aDeviceWithAUuidIsFoundAtItsNewAddress()
    {
        const QString name = "uuid:5f5a";
        m_store->addResponse(searchResponse({.mac = "", .uuid = "5f5a"}));
        const sdk::SearchResponse moved =
            searchResponse({.address = "192.168.1.65", .mac = "m1", .uuid = "5f5a"});
        QCOMPARE(m_store->nameOf(moved), name);
        QVERIFY(m_store->updateRow(name, moved, "192.168.1.64"));
        QCOMPARE(valuesOf(m_store->rowNamed(name), "ipport mac"), "192.168.1.65:37777|m1");
        QCOMPARE(m_store->nameOf(searchResponse({.mac = "m2", .uuid = "5f5a"})), QString());
        // The row at the address of a response takes precedence over its UUID, because any device may report
        // that UUID.
        m_store->upsertRow({{"ipport", "192.168.1.66:37777"}});
        const ResponseTexts listed = {.address = "192.168.1.66", .mac = "", .uuid = "5f5a"};
        QCOMPARE(m_store->nameOf(searchResponse(listed)), "192.168.1.66:37777");
        m_store->upsertRow({{"identity", name}, {"ipport", "192.168.1.67:37777"}});
        QCOMPARE(valuesOf(m_store->rowNamed(name), "ipport mac"), "192.168.1.67:37777|");
    }

    void concurrentChangesOfARowAreKept()
    {
        const QString mac = "02:1a:c5:00:40:17";
        m_store->addResponse(searchResponse({}));
        bool overtaken = false;
        m_store->changeRow(mac, [&](QJsonObject &row) {
            if (!std::exchange(overtaken, true)) // as by another thread
                m_store->changeRow(mac, [](QJsonObject &same) { same.insert("res", 7); });
            row.insert("upgrade", 50);
        });
        QCOMPARE(m_store->row(mac).value("res").toInt(), 7);
        QCOMPARE(m_store->row(mac).value("upgrade").toInt(), 50);
        QVERIFY(!m_store->changeRow(mac, [&](QJsonObject &) { m_store->removeRows({mac}); }));
        QVERIFY(m_store->ipv4Rows().isEmpty());
    }

    void aRecordIsReturnedUnchanged_data()
    {
        // filling: repeated to fill the record
        const auto row = dataTable<QByteArray>({"filling"});
        row("no zeros", QByteArray(1, 'x'));
        QByteArray runs;
        for (int zeros = 0; zeros < 12; ++zeros)
            runs += 'x' + QByteArray(zeros, '\0');
        row("zeros between, and at the end", runs);
        row("a byte at the end", QByteArray(sizeof(sdk::SearchResponse) - 1, '\0') + 'x');
    }

    void aRecordIsReturnedUnchanged()
    {
        QFETCH(QByteArray, filling);
        const QByteArray bytes = filling.repeated(sizeof(sdk::SearchResponse) / filling.size() + 1);
        sdk::SearchResponse response;
        std::memcpy(&response, bytes.constData(), sizeof(response));
        m_store->putRecord("device", response);
        const std::optional<sdk::SearchResponse> record = m_store->record("device");
        QVERIFY(record);
        QCOMPARE(std::memcmp(&*record, &response, sizeof(response)), 0);
    }

    void keptRowsAreLostUntilTheirDevicesAreFoundAgain()
    {
        const auto address = [this](const QString &name) {
            return m_store->rowNamed(name).value("ipport").toString();
        };
        const sdk::SearchResponse kept = searchResponse({.address = "192.168.1.64", .mac = numberedMac(1)});
        const sdk::SearchResponse keptIPv6 =
            searchResponse({.address = "fe80::9", .mac = numberedMac(2), .ipVersion = 6});
        const QString name = QString::fromStdString(numberedMac(1));
        for (const sdk::SearchResponse &response : {kept, keptIPv6, searchResponse({.mac = numberedMac(3)})})
            m_store->addResponse(response);
        m_store->changeRowNamed(name, [](QJsonObject &row) { row.insert("username", "installer"); });
        m_store->setKept({name, "[fe80::9]:37777", "never listed"});
        m_store->clear();
        QCOMPARE(values(m_store->ipv4Rows(), DeviceRowKey::lost), QStringList("true"));
        QCOMPARE(values(m_store->ipv6Rows(), DeviceRowKey::lost), QStringList("true"));
        QCOMPARE(m_store->ipv4Count(), 0);
        QVERIFY(m_store->record(name)); // the device can still be accessed
        QCOMPARE(m_store->rowNamed(name).value("username").toString(), "installer");

        // Another device that now has its address takes precedence.
        m_store->addResponse(searchResponse({.address = "192.168.1.64", .mac = numberedMac(4)}));
        QCOMPARE(m_store->rowAt("192.168.1.64:37777").value("mac").toString().toStdString(), numberedMac(4));

        sdk::SearchResponse again = searchResponse({.address = "192.168.1.77", .mac = numberedMac(1)});
        for (const sdk::SearchResponse &response : {again, again, keptIPv6, keptIPv6})
            m_store->addResponse(response);
        QCOMPARE(address(name), "192.168.1.77:37777");
        QCOMPARE(m_store->ipv4Count(), 2);
        QCOMPARE(values(m_store->ipv4Rows(), DeviceRowKey::lost), QStringList({"", ""}));
        QCOMPARE(values(m_store->ipv6Rows(), DeviceRowKey::lost), QStringList(""));
        m_store->setKept({});
        m_store->clear();
        QVERIFY(m_store->ipv4Rows().isEmpty() && m_store->ipv6Rows().isEmpty());
    }

    void aLoopbackDeviceIsFirstInTheList()
    {
        for (int number = 0; number < 10; ++number)
            m_store->addResponse(searchResponse({.mac = numberedMac(number)}));
        m_store->addResponse(
            searchResponse({.address = "127.0.0.1", .mac = numberedMac(10), .type = "PC-NVR"}));
        m_store->addResponse(
            searchResponse({.address = "127.0.0.1", .mac = numberedMac(11), .type = "Other"}));
        const QStringList macs = values(m_store->ipv4Rows(), DeviceRowKey::mac);
        QCOMPARE(macs.size(), 12);
        QCOMPARE(macs.first().toStdString(), numberedMac(10));
        QCOMPARE(macs.at(1).toStdString(), numberedMac(0));
        QCOMPARE(macs.last().toStdString(), numberedMac(11));
        // A row that was moved to the front is still recognised.
        QVERIFY(
            !m_store->addResponse(searchResponse({.address = "127.0.0.1", .mac = numberedMac(10)})).added);
    }

    void stringsMayFillTheirFieldsAndContainAnyBytes()
    {
        sdk::SearchResponse response = searchResponse({});
        response.device.deviceName.fill('n');
        response.device.mac.fill('m');
        response.device.address.fill('1');
        response.device.softwareVersion.fill('\xFF');
        response.device.port = -1;
        m_store->addResponse(response);
        const QJsonObject row = m_store->ipv4Rows().value(0).toJsonObject();
        QCOMPARE(row.value("name").toString(), QString(64, 'n'));
        QCOMPARE(row.value("mac").toString(), QString(40, 'm'));
        QCOMPARE(row.value("ipport").toString(), QString(64, '1') + ":-1");
        QCOMPARE(row.value("vision").toString(), 'v' + QString(128, QChar::ReplacementCharacter));
    }

    void addedRowsAreReportedOncePerSecond()
    {
        int notifications = 0;
        int number = 0;
        const auto add = [&] {
            notifications +=
                m_store->addResponse(searchResponse({.mac = numberedMac(number++)})).notify ? 1 : 0;
        };
        for (int response = 0; response < 50; ++response) {
            m_clock->advance(6ms);
            add();
        }
        QCOMPARE(notifications, 0);
        m_clock->advance(705ms); // 999 ms after the first response, which started the interval
        add();
        QCOMPARE(notifications, 0);
        m_clock->advance(1ms);
        add();
        QCOMPARE(notifications, 1);
        m_clock->advance(999ms);
        add();
        QCOMPARE(notifications, 1);
        m_clock->advance(1ms);
        add();
        QCOMPARE(notifications, 2);
    }

    void threadsCanAddWhileAnotherReads()
    {
        constexpr int devices = 2000;
        std::atomic<int> added = 0;
        std::atomic<int> torn = 0;
        std::atomic<bool> ended = false;
        std::thread reader([&] {
            while (!ended) {
                const QVariantList rows = m_store->ipv4Rows();
                for (const QVariant &row : rows)
                    torn += row.toJsonObject().size() == 17 ? 0 : 1;
            }
        });
        std::array<std::thread, 4> writers;
        for (std::thread &writer : writers) {
            writer = std::thread([&] {
                for (int number = 0; number < devices; ++number)
                    added += m_store->addResponse(searchResponse({.mac = numberedMac(number)})).added ? 1 : 0;
            });
        }
        for (std::thread &writer : writers)
            writer.join();
        ended = true;
        reader.join();
        QCOMPARE(torn.load(), 0);
        QCOMPARE(added.load(), devices);
        QCOMPARE(m_store->ipv4Count(), devices);
        const QStringList macs = values(m_store->ipv4Rows(), DeviceRowKey::mac);
        QCOMPARE(QSet<QString>(macs.cbegin(), macs.cend()).size(), devices);
    }
};

QTEST_GUILESS_MAIN(TestDeviceStore)
#include "tst_devicestore.moc"

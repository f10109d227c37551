#include "device/devicerow.h"
#include "device/devicestore.h"
#include "sdk/demo/steppableclock.h"
#include "tests/device/searchanswers.h"

#include <QTest>

#include <array>
#include <atomic>
#include <thread>

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

    void anIPv4RowHoldsEveryKey()
    {
        QVERIFY(m_store->addAnswer(searchAnswer({})).added);
        const QJsonObject expected = {
            {"checked", false},
            {"num", ""},
            {"state", true},
            {"name", "东门"},
            {"type", "IPC"},
            {"model", "B-2230-IR"},
            {"ipport", "192.168.1.64:37777"},
            {"mac", "02:1a:c5:00:40:17"},
            {"vision", "v2.840.1"},
            {"res", -1},
            {"operate", ""},
            {"filepath", ""},
            {"upgrade", 0},
            {"upgraderes", -1},
            {"url", ""},
            {"result", ""},
            {"httpport", 80},
        };
        QCOMPARE(m_store->ipv4Rows().value(0).toJsonObject(), expected);
    }

    void anIPv6RowHoldsTheReducedKeys()
    {
        m_store->addAnswer(searchAnswer({.address = "fe80::1", .ipVersion = 6}));
        const QJsonObject row = m_store->ipv6Rows().value(0).toJsonObject();
        QStringList keys = row.keys();
        keys.sort();
        QCOMPARE(keys, QStringList({"checked", "httpport", "ipport", "model", "name", "operate", "result",
                                    "state", "type", "vision"}));
        QCOMPARE(row.value("ipport").toString(), "[fe80::1]:37777");
    }

    void anAnswerGoesToItsList_data()
    {
        QTest::addColumn<int>("ipVersion");
        QTest::addColumn<QByteArray>("address");
        QTest::addColumn<bool>("ipv4");
        QTest::newRow("IPv4") << 4 << QByteArray("192.168.1.64") << true;
        QTest::newRow("unset IPv4") << 4 << QByteArray("0.0.0.0") << false;
        QTest::newRow("IPv6") << 6 << QByteArray("fe80::1") << false;
        QTest::newRow("no version at all") << 0 << QByteArray("192.168.1.64") << false;
    }

    void anAnswerGoesToItsList()
    {
        QFETCH(int, ipVersion);
        QFETCH(QByteArray, address);
        QFETCH(bool, ipv4);
        m_store->addAnswer(searchAnswer({.address = address.toStdString(), .ipVersion = ipVersion}));
        QCOMPARE(m_store->ipv4Rows().size(), ipv4 ? 1 : 0);
        QCOMPARE(m_store->ipv6Rows().size(), ipv4 ? 0 : 1);
        QCOMPARE(m_store->ipv4Count(), ipv4 ? 1 : 0);
    }

    void stateComesFromTheLowTwoBits_data()
    {
        QTest::addColumn<int>("byte");
        QTest::addColumn<bool>("initialised");
        QTest::newRow("not reported") << 0 << true;
        QTest::newRow("uninitialised") << 1 << false;
        QTest::newRow("initialised") << 2 << true;
        QTest::newRow("both bits") << 3 << true;
        QTest::newRow("uninitialised, other bits set") << 0xFD << false;
    }

    void stateComesFromTheLowTwoBits()
    {
        QFETCH(int, byte);
        QFETCH(bool, initialised);
        sdk::SearchAnswer answer = searchAnswer({});
        answer.device.initialisationState = static_cast<std::uint8_t>(byte);
        m_store->addAnswer(answer);
        QCOMPARE(m_store->ipv4Rows().value(0).toJsonObject().value("state").toBool(), initialised);
    }

    void theFirstAnswerOfADeviceWins()
    {
        m_store->addAnswer(searchAnswer({.address = "192.168.1.64"}));
        const DeviceStore::Addition second = m_store->addAnswer(searchAnswer({.address = "192.168.1.99"}));
        QVERIFY(!second.added);
        QCOMPARE(values(m_store->ipv4Rows(), DeviceRowKey::ipport), QStringList("192.168.1.64:37777"));
        QCOMPARE(sdk::blockText(m_store->record("02:1a:c5:00:40:17")->device.address), "192.168.1.64");

        m_store->addAnswer(searchAnswer({.address = "fe80::1", .ipVersion = 6}));
        m_store->addAnswer(searchAnswer({.address = "fe80::1", .ipVersion = 6}));
        QCOMPARE(m_store->ipv6Rows().size(), 1);
    }

    void requestsAreBuiltFromTheIPv4AnswerOfADualStackDevice()
    {
        m_store->addAnswer(searchAnswer({.address = "fe80::1", .ipVersion = 6}));
        m_store->addAnswer(searchAnswer({.address = "192.168.1.64"}));
        m_store->addAnswer(searchAnswer({.address = "fe80::2", .ipVersion = 6}));
        QCOMPARE(sdk::blockText(m_store->record("02:1a:c5:00:40:17")->device.address), "192.168.1.64");
    }

    void aLoopbackDeviceHeadsTheList()
    {
        for (int number = 0; number < 10; ++number)
            m_store->addAnswer(searchAnswer({.mac = numberedMac(number)}));
        m_store->addAnswer(searchAnswer({.address = "127.0.0.1", .mac = numberedMac(10), .type = "PC-NVR"}));
        m_store->addAnswer(searchAnswer({.address = "127.0.0.1", .mac = numberedMac(11), .type = "Other"}));
        const QStringList macs = values(m_store->ipv4Rows(), DeviceRowKey::mac);
        QCOMPARE(macs.size(), 12);
        QCOMPARE(macs.first().toStdString(), numberedMac(10));
        QCOMPARE(macs.at(1).toStdString(), numberedMac(0));
        QCOMPARE(macs.last().toStdString(), numberedMac(11));
        // A row that was put in front is still known.
        QVERIFY(!m_store->addAnswer(searchAnswer({.address = "127.0.0.1", .mac = numberedMac(10)})).added);
    }

    void textsMayFillTheirFieldsAndHoldAnything()
    {
        sdk::SearchAnswer answer = searchAnswer({});
        answer.device.deviceName.fill('n');
        answer.device.mac.fill('m');
        answer.device.address.fill('1');
        answer.device.softwareVersion.fill('\xFF');
        answer.device.port = -1;
        m_store->addAnswer(answer);
        const QJsonObject row = m_store->ipv4Rows().value(0).toJsonObject();
        QCOMPARE(row.value("name").toString(), QString(64, 'n'));
        QCOMPARE(row.value("mac").toString(), QString(40, 'm'));
        QCOMPARE(row.value("ipport").toString(), QString(64, '1') + ":-1");
        QCOMPARE(row.value("vision").toString(), 'v' + QString(128, QChar::ReplacementCharacter));
    }

    void rowsOfOneSecondAreAnnouncedTogether()
    {
        int notifications = 0;
        int number = 0;
        const auto add = [&] {
            notifications += m_store->addAnswer(searchAnswer({.mac = numberedMac(number++)})).notify ? 1 : 0;
        };
        for (int answer = 0; answer < 50; ++answer) {
            m_clock->advance(6ms);
            add();
        }
        QCOMPARE(notifications, 0);
        m_clock->advance(705ms); // 999 ms after the first answer, which began the count
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

    void manyThreadsAddAndOneReads()
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
                    added += m_store->addAnswer(searchAnswer({.mac = numberedMac(number)})).added ? 1 : 0;
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

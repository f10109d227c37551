// Requests to simulated devices that nobody is logged in to: first accounts, new addresses, one address
// asked.
#include "tests/sdk/demo/testsite.h"

#include <QJsonDocument>

#include <future>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace sdk;
using namespace sdk::demo;

namespace {

SceneDevice factoryNew(int number)
{
    SceneDevice device = camera(number, 0ms);
    device.initialisation = InitialisationBits::Uninitialised;
    device.accounts.clear();
    return device;
}

InitDeviceAccountInput accountFor(const QString &mac, const QString &account = u"admin"_s,
                                  const QString &password = u"New-Pass-7"_s)
{
    InitDeviceAccountInput input = {};
    input.size = sizeof(input);
    setBlockText(input.mac, mac.toStdString());
    setBlockText(input.account, account.toStdString());
    setBlockText(input.password, password.toStdString());
    input.passwordResetWay = 3;
    return input;
}

/// As the tool makes it: from the device's own answer.
ModifyDeviceInput changeOf(const TestSite &site, const QString &mac)
{
    Collector collector;
    site.search(collector, 0ms);
    ModifyDeviceInput input = {};
    input.size = sizeof(input);
    for (const SearchAnswer &answer : collector.answers()) {
        if (textOf(answer.device.mac) == mac && answer.device.ipVersion == 4)
            input.device = answer.device;
    }
    return input;
}

DeviceRequestOutput requestOutput()
{
    return {sizeof(DeviceRequestOutput)};
}

} // namespace

class RequestsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initialisedDeviceTakesItsPassword();
    void dhcpGivesEachItsOwnAddress();
    void silentDevicesTakeTheWait();
    void oneAddressIsAskedUntilItAnswers();
};

void RequestsTest::initialisedDeviceTakesItsPassword()
{
    SceneDevice byFault = camera(2, 0ms);
    byFault.faults = {{Fault::NotInitialised}};
    const TestSite site({factoryNew(1), byFault});
    for (const SceneDevice &device : site.site->devices()) {
        QCOMPARE(Login(*site.net, device.address, 8800).netError(), NetError::NotSupported);
        DeviceRequestOutput output = requestOutput();
        QVERIFY(
            site.net->NetInitDeviceAccount(accountFor(device.mac.toUpper(), u"boss"_s), output, 5000ms, ""));
        QVERIFY(Login(*site.net, device.address, 8800, u"boss"_s, u"New-Pass-7"_s).handle > 0);
        QVERIFY(!site.net->NetInitDeviceAccount(accountFor(device.mac), output, 5000ms, ""));
        QCOMPARE(netError(*site.net), NetError::NotSupported);
        const RecordedRequest request = site.site->requests().of(u"NetInitDeviceAccount"_s).last();
        QCOMPARE(request.mac, device.mac);
        QCOMPARE(request.request.value(u"passwordLength"_s).toInt(), 10);
        QVERIFY(!QJsonDocument(request.request).toJson().contains("New-Pass-7"));
    }
    Collector collector;
    site.search(collector, 0ms);
    QCOMPARE(collector.count(), 2);
    for (const SearchAnswer &answer : collector.answers())
        QCOMPARE(initialisationBits(answer.device.initialisationState), InitialisationBits::Initialised);
}

void RequestsTest::dhcpGivesEachItsOwnAddress()
{
    QList<SceneDevice> devices;
    for (int number = 1; number <= 22; ++number)
        devices.append(camera(number, 0ms));
    devices[0].address = u"192.168.1.221"_s; // in the way, until it has a lease itself
    const TestSite site(devices);
    QStringList addresses;
    const auto ask = [&site](const QString &mac) {
        ModifyDeviceInput input = changeOf(site, mac);
        setBlockText(input.device.address, "nonsense"); // DHCP does not look at it
        input.device.dhcpEnabled = 1;
        DeviceRequestOutput output = requestOutput();
        return site.net->NetModifyDeviceBySearch(input, output, 0ms);
    };
    for (qsizetype place = 21; place >= 0; --place) {
        const QString mac = devices.at(place).mac;
        QVERIFY(ask(mac));
        const SceneDevice now = *site.site->device(mac);
        QVERIFY(now.dhcp);
        QCOMPARE(now.gateway, u"192.168.1.1"_s);
        addresses.append(now.address);
        QVERIFY(ask(mac));
        QCOMPARE(site.site->device(mac)->address, now.address); // keeps its lease
        QVERIFY(changeOf(site, mac).device.dhcpEnabled == 1);
    }
    QCOMPARE(addresses.mid(0, 2), QStringList({u"192.168.1.220"_s, u"192.168.1.222"_s}));
    QCOMPARE(addresses.count(u"0.0.0.0"_s), 2); // the twenty were given, one of them at the end
    QCOMPARE(addresses.last(), u"192.168.1.221"_s);
    QCOMPARE(QSet<QString>(addresses.begin(), addresses.end()).size(), 21);
}

void RequestsTest::silentDevicesTakeTheWait()
{
    SceneDevice silent = factoryNew(1);
    silent.faults = {{Fault::NoAnswer}};
    const TestSite site({silent});
    const auto send = [&](bool firstAccount) {
        DeviceRequestOutput output = requestOutput();
        ModifyDeviceInput change = {};
        change.size = sizeof(change);
        setBlockText(change.device.mac, silent.mac.toStdString());
        const bool isDone = firstAccount
                                ? site.net->NetInitDeviceAccount(accountFor(silent.mac), output, 5000ms, "")
                                : site.net->NetModifyDeviceBySearch(change, output, 5000ms);
        return isDone ? NetError::None : netError(*site.net);
    };
    std::future<NetError> first = std::async(std::launch::async, send, true);
    std::future<NetError> change = std::async(std::launch::async, send, false);
    QVERIFY(site.clock->waitForWaiters(2));
    site.clock->advance(4999ms);
    QCOMPARE(site.clock->waiters(), 2);
    site.clock->advance(1ms);
    QCOMPARE(first.get(), NetError::ConnectTimeout);
    QCOMPARE(change.get(), NetError::ConnectTimeout);

    std::future<NetError> cutShort = std::async(std::launch::async, send, true);
    QVERIFY(site.clock->waitForWaiters(1));
    site.net->NetCleanup();
    QCOMPARE(cutShort.get(), NetError::NetworkFailure);
}

void RequestsTest::oneAddressIsAskedUntilItAnswers()
{
    SceneDevice twin = camera(3, 200ms);
    twin.address = camera(2, 0ms).address;
    SceneDevice secondOnly = camera(4, 0ms);
    secondOnly.knowsFirstSearch = false;
    const TestSite site({camera(1, 0ms), camera(2, 100ms), twin, secondOnly});
    Collector collector;
    const auto ask = [&](const QStringList &addresses) {
        site.net->NetSearchDeviceByIp(requestFor(addresses), &Collector::handle, &collector, 3000ms);
    };
    std::future<void> search = std::async(std::launch::async, ask, QStringList{twin.address});
    QVERIFY(site.clock->waitForWaiters(2)); // the caller and the answer
    site.clock->advance(100ms);
    search.get();
    QCOMPARE(collector.lines(), QStringList{u"02:1a:c5:00:00:02 192.168.1.2"_s}); // the first to answer
    QCOMPARE(collector.handles(), QSet<std::int64_t>{0});

    ask({secondOnly.address});
    QCOMPARE(collector.count(), 2);

    std::future<void> unanswered = std::async(std::launch::async, ask, QStringList{u"192.168.1.99"_s});
    QVERIFY(site.clock->waitForWaiters(1));
    site.clock->advance(3000ms);
    unanswered.get();
    ask({u"192.168.1.1"_s, u"192.168.1.4"_s});
    QCOMPARE(lastError(*site.net), DemoError::WrongCount);
    QCOMPARE(collector.count(), 2);
    QCOMPARE(site.site->requests().of(u"NetSearchDeviceByIp"_s).size(), 4);
}

QTEST_GUILESS_MAIN(RequestsTest)
#include "tst_demorequests.moc"

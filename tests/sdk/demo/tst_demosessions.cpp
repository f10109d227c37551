// Logins to simulated devices, and what sessions ask them.
#include "sdk/configlibrary.h"
#include "sdk/configrecords.h"
#include "tests/sdk/demo/testsite.h"

#include <QJsonDocument>

#include <future>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace sdk;
using namespace sdk::demo;

namespace {

LoginSecureInput secureInput(const QString &address, int port, const QString &account,
                             const QString &password)
{
    LoginSecureInput input = {};
    input.size = sizeof(input);
    input.port = port;
    setBlockText(input.address, address.toStdString());
    setBlockText(input.account, account.toStdString());
    setBlockText(input.password, password.toStdString());
    return input;
}

LoginSecureOutput secureOutput()
{
    LoginSecureOutput output = {};
    output.size = sizeof(output);
    return output;
}

} // namespace

class SessionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void loginIsAnsweredByTheDevice_data();
    void loginIsAnsweredByTheDevice();
    void accountLocksForGood();
    void nothingAnswersForItsTime();
    void cleanupEndsLoginsAndSessions();
    void configurationIsTheStateOfTheDevice();
    void recordKeepsNoPassword();
};

void SessionsTest::loginIsAnsweredByTheDevice_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<int>("port");
    QTest::addColumn<QString>("account");
    QTest::addColumn<QString>("password");
    QTest::addColumn<int>("fault"); // of the device, -1 for none
    QTest::addColumn<NetError>("error");
    QTest::addColumn<NetError>("secureError");
    const auto row = [](const char *title, const char *address, int port, NetError error, int fault = -1,
                        const char *account = "admin", const char *password = "Pass-1",
                        NetError secureError = NetError::None) {
        QTest::newRow(title) << QString::fromUtf8(address) << port << QString::fromUtf8(account)
                             << QString::fromUtf8(password) << fault << error
                             << (secureError == NetError::None ? error : secureError);
    };
    const auto faultRow = [&row](const char *title, Fault fault, NetError error, NetError secureError) {
        row(title, "192.168.1.1", 8800, error, static_cast<int>(fault), "admin", "Pass-1", secureError);
    };
    const NetError none = NetError::None;
    row("right", "192.168.1.1", 8800, none);
    row("IPv6 in another spelling", "FD00:0::1", 8800, none);
    row("other segment", "192.168.2.2", 8800, none);
    row("twins: the first answers", "192.168.1.3", 8800, none);
    row("twins: the second alone has the port", "192.168.1.3", 8801, none, -1, "admin", "Pass-4");
    row("other port", "192.168.1.1", 8801, NetError::ConnectFailed);
    row("port out of range", "192.168.1.1", -1, NetError::ConnectFailed);
    row("loopback without a mapping", "127.0.0.1", 8800, NetError::ConnectFailed);
    row("unknown account", "192.168.1.1", 8800, NetError::NoSuchAccount, -1, "Admin");
    row("empty account", "192.168.1.1", 8800, NetError::NoSuchAccount, -1, "");
    row("wrong password", "192.168.1.1", 8800, NetError::WrongPassword, -1, "admin", "pass-1",
        NetError::WrongPasswordSecure);
    faultRow("no password is right", Fault::WrongPassword, NetError::WrongPassword,
             NetError::WrongPasswordSecure);
    faultRow("locked from the start", Fault::AccountLocked, NetError::AccountLocked, none);
    faultRow("logged in already", Fault::AccountLoggedIn, NetError::AccountLoggedIn,
             NetError::AccountLoggedInSecure);
    faultRow("waits for its first password", Fault::NotInitialised, NetError::NotSupported, none);
}

void SessionsTest::loginIsAnsweredByTheDevice()
{
    QFETCH(QString, address);
    QFETCH(int, port);
    QFETCH(QString, account);
    QFETCH(QString, password);
    QFETCH(int, fault);
    QFETCH(NetError, error);
    QFETCH(NetError, secureError);

    SceneDevice dual = camera(1, 100ms);
    dual.ipv6 = u"fd00::1"_s;
    if (fault >= 0)
        dual.faults = {{static_cast<Fault>(fault)}};
    SceneDevice elsewhere = camera(2, 100ms);
    elsewhere.address = u"192.168.2.2"_s;
    elsewhere.inOtherSegment = true;
    SceneDevice twin = camera(3, 100ms);
    SceneDevice otherTwin = camera(4, 0ms);
    otherTwin.address = twin.address;
    otherTwin.accounts = {{u"admin"_s, u"Pass-4"_s}};
    SceneDevice hiddenTwin = otherTwin;
    hiddenTwin.mac = camera(5, 0ms).mac;
    otherTwin.port = 8801;
    const TestSite site({dual, elsewhere, twin, otherTwin, hiddenTwin});

    const Login first(*site.net, address, port, account, password);
    QCOMPARE(first.netError(), error);
    QCOMPARE(first.handle > 0, error == NetError::None);
    LoginSecureOutput output = secureOutput();
    const std::int64_t secure =
        site.net->NetLoginSecure(secureInput(address, port, account, password), output);
    QCOMPARE(static_cast<NetError>(output.error), secureError);
    QCOMPARE(secure > 0, secureError == NetError::None);
    if (error != NetError::None)
        QCOMPARE(netError(*site.net), secureError);
}

void SessionsTest::accountLocksForGood()
{
    SceneDevice device = camera(1, 0ms);
    device.faults = {{Fault::AccountLocked, 2}};
    device.accounts.append({u"guest"_s, u"Pass-1"_s});
    const TestSite site({device});
    const auto login = [&site](const QString &password, const QString &account = u"admin"_s) {
        return Login(*site.net, u"192.168.1.1"_s, 8800, account, password).netError();
    };
    const auto secure = [&site](const QString &password) {
        LoginSecureOutput output = secureOutput();
        site.net->NetLoginSecure(secureInput(u"192.168.1.1"_s, 8800, u"admin"_s, password), output);
        return static_cast<NetError>(output.error);
    };
    QCOMPARE(secure(u"wrong"_s), NetError::WrongPasswordTriesLeft);
    QCOMPARE(login(u"Pass-1"_s), NetError::None); // forgets the tries before
    QCOMPARE(login(u"wrong"_s), NetError::WrongPassword);
    QCOMPARE(secure(u"wrong"_s), NetError::WrongPasswordSecure);
    QCOMPARE(secure(u"Pass-1"_s), NetError::AccountLocked);
    site.net->NetCleanup();
    site.net->NetInit();
    site.clock->advance(24h);
    QCOMPARE(login(u"Pass-1"_s), NetError::AccountLocked);
    QCOMPARE(login(u"Pass-1"_s, u"guest"_s), NetError::None);
}

void SessionsTest::nothingAnswersForItsTime()
{
    SceneDevice silent = camera(1, 0ms);
    silent.faults = {{Fault::NoAnswer}};
    SceneDevice remote = camera(2, 0ms);
    remote.inOtherSegment = remote.isRemote = true;
    SceneDevice unset = camera(3, 0ms);
    unset.address = u"0.0.0.0"_s;
    const TestSite site({silent, remote, unset});
    for (const QString &address : {silent.address, remote.address, unset.address, u"192.168.1.99"_s, u""_s}) {
        std::future<NetError> login = std::async(
            std::launch::async, [&site, address] { return Login(*site.net, address, 8800).netError(); });
        QVERIFY2(site.clock->waitForWaiters(1), qPrintable(address));
        site.clock->advance(2999ms);
        QCOMPARE(login.wait_for(0ms), std::future_status::timeout);
        site.clock->advance(1ms);
        QCOMPARE(login.get(), NetError::ConnectTimeout);
    }
}

void SessionsTest::cleanupEndsLoginsAndSessions()
{
    const TestSite site(threeCameras);
    const Login open(*site.net, u"192.168.1.1"_s, 8800);
    std::future<NetError> login = std::async(
        std::launch::async, [&site] { return Login(*site.net, u"192.168.1.99"_s, 8800).netError(); });
    QVERIFY(site.clock->waitForWaiters(1));
    site.net->NetCleanup();
    QCOMPARE(login.get(), NetError::NetworkFailure);
    QVERIFY(Login(*site.net, u"192.168.1.1"_s, 8800).handle < 1);
    QCOMPARE(lastError(*site.net), DemoError::NotPrepared);

    site.net->NetInit();
    QVERIFY(!site.net->NetLogout(open.handle));
    QCOMPARE(lastError(*site.net), DemoError::UnknownHandle);
    QVERIFY(Login(*site.net, u"192.168.1.1"_s, 8800).handle > open.handle);
}

void SessionsTest::configurationIsTheStateOfTheDevice()
{
    SceneDevice device = camera(1, 0ms);
    device.gateway = u"192.168.1.254"_s;
    device.dhcp = true;
    device.configuration = {{u"Https"_s, QJsonObject{{u"enabled"_s, true}, {u"port"_s, 8443}}}};
    SceneDevice plain = camera(2, 0ms);
    const TestSite site({device, plain});
    const std::shared_ptr<ConfigLibrary> config = site.site->libraries().config;
    const auto fetch = [&](const SceneDevice &from, const char *name, auto &record) {
        const Login login(*site.net, from.address, 8800);
        QByteArray text(32768, 't');
        std::int32_t error = 99;
        std::uint32_t size = 0;
        QVERIFY(site.net->NetGetNewConfig(login.handle, name, -1, text.data(),
                                          static_cast<std::uint32_t>(text.size()), error, 5000ms));
        QCOMPARE(error, 0);
        QVERIFY2(config->ConfigParseData(name, text.constData(), &record, sizeof(record), size),
                 text.constData());
    };
    NetworkRecord network = {};
    fetch(device, "Network", network);
    QCOMPARE(network.dhcpEnabled, 1);
    QCOMPARE(QStringList({textOf(network.hostName), textOf(network.mac), textOf(network.address),
                          textOf(network.subnetMask), textOf(network.gateway)}),
             QStringList({device.name, device.mac, device.address, device.mask, device.gateway}));
    ServiceRecord service = {};
    fetch(device, "DVRIP", service);
    QCOMPARE(service.tcpPort, 8800);
    HttpsRecord https = {};
    fetch(device, "Https", https);
    QCOMPARE(QList<int>({https.enabled, https.port}), QList<int>({1, 8443}));
    fetch(plain, "Https", https);
    QCOMPARE(https.enabled, 0);
}

void SessionsTest::recordKeepsNoPassword()
{
    const TestSite site(threeCameras);
    const Login right(*site.net, u"192.168.1.1"_s, 8800);
    const Login wrong(*site.net, u"192.168.1.1"_s, 8800, u"admin"_s, u"Secret-99"_s);
    LoginSecureOutput output = secureOutput();
    LoginSecureInput input = secureInput(u"192.168.1.2"_s, 8800, u"admin"_s, u"Pass-1"_s);
    input.mode = LoginMode::Tunnel;
    QVERIFY(site.net->NetLoginSecure(input, output) > 0);

    const QList<RecordedRequest> logins = site.site->requests().of(u"NetLogin"_s);
    QCOMPARE(logins.size(), 2);
    QCOMPARE(logins.at(0).mac, threeCameras.at(0).mac);
    QJsonObject expected = {{u"address"_s, u"192.168.1.1"_s},
                            {u"port"_s, 8800},
                            {u"account"_s, u"admin"_s},
                            {u"passwordLength"_s, 6},
                            {u"passwordMatches"_s, true}};
    QCOMPARE(logins.at(0).request, expected);
    expected[u"passwordLength"_s] = 9;
    expected[u"passwordMatches"_s] = false;
    QCOMPARE(logins.at(1).request, expected);
    const RecordedRequest secure = site.site->requests().of(u"NetLoginSecure"_s).first();
    QCOMPARE(secure.mac, threeCameras.at(1).mac);
    QCOMPARE(secure.request.value(u"mode"_s).toInt(), 19);
    for (const RecordedRequest &request : site.site->requests().all()) {
        const QByteArray text = QJsonDocument(request.request).toJson();
        QVERIFY2(!text.contains("Pass-1") && !text.contains("Secret-99"), text.constData());
    }
}

QTEST_GUILESS_MAIN(SessionsTest)
#include "tst_demosessions.moc"

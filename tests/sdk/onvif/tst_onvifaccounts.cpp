// Refused operations and login methods of devices of a simulated site. Runs inside the site's network
// (scripts/lab).
#include "sdk/blocktext.h"
#include "sdk/onvif/onvifnetlibrary.h"
#include "sdk/onvif/services/deviceservice.h"
#include "tests/datatable.h"
#include "tests/sdk/netlogin.h"
#include "tests/sdk/realdatawatcher.h"

using namespace sdk;
using namespace std::chrono_literals;

namespace {

const char *const password = "Right-1";

} // namespace

class OnvifAccountsTest : public QObject
{
    Q_OBJECT
private:
    onvif::OnvifNetLibrary m_net;

    LLONG login(const QByteArray &address, const char *account = "admin")
    {
        return logIn(m_net, address.constData(), account, password);
    }

    /// Creates the account "operator", which may not set the clock.
    static bool makeOperator(const QByteArray &address)
    {
        onvif::SoapClient client({.account = "admin", .password = password},
                                 std::make_shared<onvif::HttpClient>());
        onvif::ServiceAddress service;
        service.host = address.toStdString();
        const onvif::SoapRequest request("tds:CreateUsers");
        const pugi::xml_node user = onvif::append(request.operation(), "tds:User");
        onvif::append(user, "tt:Username", "operator");
        onvif::append(user, "tt:Password", password);
        onvif::append(user, "tt:UserLevel", "Operator");
        const auto deadline = std::chrono::steady_clock::now() + 5s;
        // The password is confirmed first, as in every login.
        return client.call(service, onvif::SoapRequest("tds:GetDeviceInformation"), deadline).isOk() &&
               client.call(service, request, deadline).isOk();
    }

    bool setTime(LLONG handle, std::uint32_t year)
    {
        const TimeRecord time = {.year = year, .month = 5, .day = 6, .hour = 7, .minute = 8, .second = 9};
        return m_net.NetSetDeviceSetting(handle, DeviceSetting::Time, -1, &time, sizeof(time), 5000ms);
    }

private Q_SLOTS:
    void initTestCase() { QVERIFY(m_net.NetInit()); }

    void cleanupTestCase() { m_net.NetCleanup(); }

    void aMissingRightDoesNotEndTheSession_data()
    {
        const auto row = dataTable<QByteArray>({"address"});
        row("digest", "192.168.8.11");
        row("token", "192.168.8.13");
    }

    void aMissingRightDoesNotEndTheSession()
    {
        QFETCH(const QByteArray, address);
        QVERIFY(makeOperator(address));
        const LLONG handle = login(address, "operator");
        QVERIFY(handle > 0);
        QVERIFY(!setTime(handle, 2031));
        QCOMPARE(m_net.NetGetLastError(), static_cast<quint32>(NetError::Refused));
        QVERIFY(m_net.NetIsDeviceAlive(handle, 5000ms));
        const std::int64_t stream = m_net.NetStartRealStream(handle, 0, 0, LiveStreamKind::Main);
        QVERIFY(stream > 0);
        QVERIFY(m_net.NetStopRealStream(stream));
        m_net.NetLogout(handle);
    }

    /// Tokens follow the device's clock, which another session sets.
    void aChangedClockDoesNotEndTheSession()
    {
        const LLONG first = login("192.168.8.13");
        const LLONG second = login("192.168.8.13");
        QVERIFY(first > 0 && second > 0);
        QVERIFY(setTime(first, 2033));
        QVERIFY(m_net.NetIsDeviceAlive(second, 5000ms));
        QVERIFY(m_net.NetIsDeviceAlive(first, 5000ms));
        m_net.NetLogout(first);
        m_net.NetLogout(second);
    }

    void aStreamPlaysRegardlessOfTheLastChallenge_data()
    {
        const auto row = dataTable<QByteArray>({"address"});
        row("MD5", "192.168.8.11");
        row("SHA-256", "192.168.8.12");
    }

    void aStreamPlaysRegardlessOfTheLastChallenge()
    {
        QFETCH(const QByteArray, address);
        const LLONG handle = login(address);
        QVERIFY(handle > 0);
        const std::int64_t stream = m_net.NetStartRealStream(handle, 0, 0, LiveStreamKind::Main);
        QVERIFY2(stream > 0, QByteArray::number(m_net.NetGetLastError(), 16).constData());
        RealDataWatcher watcher;
        QVERIFY(m_net.NetSetRealDataCallback(stream, &RealDataWatcher::take, &watcher, 1));
        QTRY_VERIFY_WITH_TIMEOUT(watcher.bytes().size() > 1000, 20000);
        QVERIFY(m_net.NetStopRealStream(stream));
        m_net.NetLogout(handle);
    }
};

QTEST_GUILESS_MAIN(OnvifAccountsTest)
#include "tst_onvifaccounts.moc"

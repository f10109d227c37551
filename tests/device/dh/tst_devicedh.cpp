#include "device/dh/logins/rowlogin.h"
#include "device/models/devicetablemodel.h"
#include "tests/datatable.h"
#include "tests/device/dh/factorysite.h"
#include "tests/media/quietnetlibrary.h"

namespace {

const QString camera = QStringLiteral("02:1a:c5:00:00:01");
const QString newCamera = QStringLiteral("02:1a:c5:00:00:02");
const QString recorder = QStringLiteral("02:1a:c5:00:00:03");

/// Accepts every login as a device of one type.
class OneTypeLibrary : public QuietNetLibrary
{
public:
    explicit OneTypeLibrary(int typeCode) : m_typeCode(static_cast<std::uint8_t>(typeCode)) {}
    std::int64_t NetLogin(const char *, std::int32_t, const char *, const char *, std::int32_t, void *,
                          sdk::LoginDeviceInformation &device, std::int32_t &) override
    {
        device.deviceType = m_typeCode;
        return 1;
    }

private:
    const std::uint8_t m_typeCode;
};

} // namespace

/// Operations that QML requests of the back end, on a simulated site.
class TestDeviceDH : public QObject, private FactorySite
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        QList<sdk::demo::SceneDevice> devices = {sceneDevice(camera, "192.168.1.10"),
                                                 sceneDevice(newCamera, "192.168.1.11"),
                                                 sceneDevice(recorder, "192.168.1.12", "NVR")};
        devices[1].initialisation = sdk::InitialisationBits::Uninitialised;
        devices[1].accounts.clear();
        devices[1].resetWay = 3;
        openSite(devices);
    }

    void cleanup() { closeSite(); }

    void aLoginAddsARow()
    {
        QSignalSpy added(m_factory.get(), &CDeviceFactory::signalAddSingleDeviceToTable);
        QCOMPARE(m_factory->getLoginDevice("dh", "192.168.1.12", "admin", "secret1", "37777"), 0);
        QCOMPARE(added.size(), 1);
        const QJsonObject made = row(recorder);
        QCOMPARE(valuesOf(made, "username password loginType type ipport name vision num res httpport"),
                 "admin|secret1|IP|NVR|192.168.1.12:37777|东门|v2.840.1|1|-1|8080");
        QVERIFY(made.value("state").toBool());
        QCOMPARE(asked("NetLogout"), 1);
        QCOMPARE(m_factory->getDeviceDetail("dh", recorder).value("submask").toString(), "255.255.255.0");
    }

    void aLoginWithoutALibraryIsReported()
    {
        CDeviceDH backEnd(m_store, {}, [] { return SearchSettings(); });
        const QSignalSpy reported(&backEnd, &CDeviceBase::signalCDeviceHighLevelLoginRet);
        QCOMPARE(backEnd.findAndLoginDevice("192.168.1.12:37777", "admin", "secret1"), 5);
        QCOMPARE(reported.size(), 1);
        QCOMPARE(reported.first().first().toInt(), 5);
    }

    void typeCodesHaveTheirNames()
    {
        const QMap<int, QString> names = {{19, "SD"},  {20, "IPC"},  {29, "SVR"},   {30, "SVR"},
                                          {31, "NVR"}, {0, "Other"}, {18, "Other"}, {255, "Other"}};
        RowLoginRequest request;
        request.address = "192.168.1.10";
        for (auto name = names.cbegin(); name != names.cend(); ++name) {
            sdk::SdkLibraries libraries;
            libraries.net = std::make_shared<OneTypeLibrary>(name.key());
            QCOMPARE(loginForRow(libraries, request).row.value("type").toString(), name.value());
        }
    }

    void theWebPortFollowsHttps_data()
    {
        const auto row = dataTable<QJsonObject, int, int>({"https", "httpPort", "webPort"});
        row("without", QJsonObject{{"enabled", false}, {"port", 8443}}, 8080, 8080);
        row("with", QJsonObject{{"enabled", true}, {"port", 8443}}, 8080, 8443);
        row("with, no port", QJsonObject{{"enabled", true}, {"port", 0}}, 8080, 80);
    }

    void theWebPortFollowsHttps()
    {
        QFETCH(QJsonObject, https);
        QFETCH(int, httpPort);
        m_site->changeDevice(recorder, [&](sdk::demo::SceneDevice &device, const auto &) {
            device.configuration.insert("Https", https);
            device.httpPort = httpPort;
        });
        QCOMPARE(m_factory->getLoginDevice("dh", "192.168.1.12", "admin", "secret1", "37777"), 0);
        QTEST(row(recorder).value("httpport").toInt(), "webPort");
    }

    void aDeviceRespondsAtItsNewAddress()
    {
        m_site->changeDevice(camera,
                             [](sdk::demo::SceneDevice &device, const auto &) { device.dhcp = true; });
        search();
        m_factory->modifyIP("dh", camera, "192.168.1.77", "255.255.0.0", "192.168.1.254", false);
        QVERIFY(!m_site->device(camera)->dhcp);
        QCOMPARE(row(camera).value("ipport").toString(), "192.168.1.77:37777");
        QCOMPARE(row(camera).value("res").toInt(), 0);
        search();
        QCOMPARE(row(camera).value("ipport").toString(), "192.168.1.77:37777");
        QCOMPARE(m_factory->getDeviceDetail("dh", camera).value("submask").toString(), "255.255.0.0");
        QCOMPARE(m_factory->getDeviceDetail("dh", camera).value("gateway").toString(), "192.168.1.254");
    }

    void invalidAddressChangesAreNotSent()
    {
        search();
        m_factory->modifyIP("dh", newCamera, "192.168.1.78", "255.255.255.0", "192.168.1.1", false);
        QCOMPARE(row(newCamera).value("res").toInt(), 7);
        QCOMPARE(row(newCamera).value("ipport").toString(), "192.168.1.11:37777");
        m_factory->modifyIP("dh", "02:1a:c5:ff:ff:ff", "192.168.1.79", "", "", false);
        QCOMPARE(asked("NetModifyDeviceBySearch"), 0);

        m_factory->modifyIP("dh", camera, "192.168.1.79", "255.255.255.0", "192.168.1.1", false);
        m_factory->modifyIP("dh", recorder, "", "", "", true);
        m_factory->modifyIP("dh", camera, "not an address", "", "", true); // DHCP ignores the addresses
        QCOMPARE(row(camera).value("res").toInt(), 0);
        QCOMPARE(row(camera).value("ipport").toString(), ":37777");
        const auto changes = m_site->requests().of("NetModifyDeviceBySearch");
        QCOMPARE(changes.last().request.value("address"), "192.168.1.79"); // the device's current address
        QVERIFY(m_site->device(camera)->dhcp);
        // Until a search finds them, they are identified by their MACs and are not in conflict.
        DeviceTableModel table;
        table.setDeviceFactory(m_factory.get());
        QCOMPARE(table.conflictCount(), 0);
        QCOMPARE(m_factory->findAndLoginDevice("dh", ":37777", "admin", "secret1"), 5);
        QCOMPARE(asked("NetLoginSecure"), 0);
        m_factory->modifyIP("dh", camera, "192.168.1.77", "255.255.255.0", "192.168.1.1", false);
        QCOMPARE(row(camera).value("ipport").toString(), "192.168.1.77:37777");
        search();
        QCOMPARE(row(camera).value("ipport").toString(), "192.168.1.77:37777");
        QCOMPARE(row(recorder).value("ipport").toString(), m_site->device(recorder)->address + ":37777");
    }

    void aFirstPasswordIsRequiredAfterwards()
    {
        search();
        QVERIFY(!row(newCamera).value("state").toBool());
        m_factory->setInitAccount("dh", newCamera, "admin", "first-1");
        QCOMPARE(row(newCamera).value("res").toInt(), 0);
        QCOMPARE(m_site->requests().of("NetInitDeviceAccount").last().request.value("passwordResetWay"), 3);
        search();
        QVERIFY(row(newCamera).value("state").toBool());
        QCOMPARE(m_factory->getLoginDevice("dh", "192.168.1.11", "admin", "first-2", "37777"), 2);
        QCOMPARE(m_factory->getLoginDevice("dh", "192.168.1.11", "admin", "first-1", "37777"), 0);

        m_factory->setInitAccount("dh", camera, "admin", "first-1"); // already has a password
        QVERIFY(row(camera).value("res").toInt() > 0);
    }

    void rowsAreUpdatedWithoutASearch()
    {
        search();
        m_factory->setInitAccount("dh", newCamera, "admin", "first-1");
        m_factory->modifyIP("dh", newCamera, "192.168.1.78", "255.255.255.0", "192.168.1.1", false);
        QCOMPARE(row(newCamera).value("res").toInt(), 7); // the row still shows an uninitialised device
        m_factory->updataDeviceInfo("dh", "username", "installer", newCamera, "");
        m_site->changeDevice(newCamera, [](auto &device, const auto &) { device.name = "West gate"; });
        // The camera is removed and another device has its address: the response of that device is not the
        // camera's.
        const QJsonObject lost = row(camera);
        const QJsonObject other = row(recorder);
        m_site->removeDevice(camera);
        m_site->changeDevice(recorder, [](auto &device, const auto &) { device.address = "192.168.1.10"; });

        const QSignalSpy changed(m_factory.get(), &CDeviceFactory::signalAddSingleDeviceToTable);
        m_factory->refreshDevices("dh", {newCamera, camera, "02:1a:c5:ff:ff:ff"});
        QTRY_VERIFY(row(newCamera).value("state").toBool());
        QTRY_VERIFY(!changed.isEmpty());
        QCOMPARE(row(newCamera).value("name").toString(), "West gate");
        QCOMPARE(row(newCamera).value("username").toString(), "installer");
        QCOMPARE(row(newCamera).value("res").toInt(), 7);
        m_factory->modifyIP("dh", newCamera, "192.168.1.78", "255.255.255.0", "192.168.1.1", false);
        QCOMPARE(row(newCamera).value("res").toInt(), 0);
        QVERIFY(m_site->requests().waitFor("NetSearchDevicesByIPsEx", 2));
        m_factory->refreshDevices("dh", {newCamera}); // ends after the first refresh
        QVERIFY(m_site->requests().waitFor("NetSearchDevicesByIPs", 3));
        QCOMPARE(row(newCamera).value("ipport").toString(), "192.168.1.78:37777");
        QCOMPARE(row(camera), lost);
        QCOMPARE(row(recorder), other); // it was not queried
    }

    void anUnknownDeviceIsNotChanged()
    {
        const QString unknown = "02:1a:c5:ff:ff:ff";
        const int notSupported = 12;
        QCOMPARE(
            m_factory->backEnd("dh")->initialisationStep(unknown, "admin", "first-1")(StepControl()).result,
            notSupported);
        QCOMPARE(m_factory->backEnd("dh")
                     ->addressStep(unknown, "192.168.1.9", "255.255.255.0", "", false)(StepControl())
                     .result,
                 notSupported);
    }

    void aMovedDeviceIsFoundByItsMac()
    {
        search();
        m_factory->modifyIP("dh", recorder, {}, {}, {}, true); // the row has no address afterwards
        const auto move = [this](const QString &mac, const QString &address) {
            m_site->changeDevice(mac, [&address](auto &device, const auto &) { device.address = address; });
        };
        move(camera, "192.168.1.66");
        move(recorder, "192.168.1.67");
        m_factory->refreshDevices("dh", {camera, recorder});
        QTRY_COMPARE(row(camera).value("ipport").toString(), "192.168.1.66:37777");
        QTRY_COMPARE(row(recorder).value("ipport").toString().section(':', 0, 0), "192.168.1.67");
    }

    void aLoginThroughATunnelHasASeparateMode()
    {
        m_factory->findAndLoginDevice("dh", "192.168.1.10:37777", "admin", "secret1");
        m_factory->findAndLoginDevice("dh", "127.0.0.1:20001", "admin", "secret1"); // no tunnel ends there
        const auto logins = m_site->requests().of("NetLoginSecure");
        QCOMPARE(logins.at(0).request.value("mode").toInt(), 0);
        QCOMPARE(logins.at(1).request.value("mode").toInt(), 19);
    }

    /// A page that uses the session is not affected when another page checks a password.
    void aPasswordCheckKeepsTheSession()
    {
        QSignalSpy result(m_factory.get(), &CDeviceFactory::signalHighLevelLoginRet);
        QCOMPARE(m_factory->findAndLoginDevice("dh", "192.168.1.10:37777", "admin", "secret1"), 0);
        QCOMPARE(m_factory->checkLogin("dh", "192.168.1.12:37777", "admin", "wrong"), 2);
        QCOMPARE(asked("NetLogout"), 0);
        QCOMPARE(m_factory->checkLogin("dh", "192.168.1.12:37777", "admin", "secret1"), 0);
        QCOMPARE(asked("NetLogout"), 1);
        QCOMPARE(result.size(), 1);
        QCOMPARE(m_factory->checkLogin("none", "192.168.1.12:37777", "admin", "wrong"), 0);
    }

    void faultsAreReportedInRowsAndResults_data()
    {
        // name: of the result that is not a success
        const auto row = dataTable<QString, int, int, QString>({"mac", "login", "modification", "name"});
        row("wrong password", "02:1a:c5:00:4c:7c", 2, 0, "密码错误");
        row("account locked", "02:1a:c5:00:4c:a1", 3, 0, "账号被锁定");
        row("account logged in", "02:1a:c5:00:4d:38", 4, 0, "账号已登录");
        row("not initialised", "02:1a:c5:00:4c:c6", 12, 7, "设备未初始化");
        row("refuses a new address", "02:1a:c5:00:4d:82", 0, 999, "设备拒绝了此操作");
    }

    /// Each fault has its result code in the row, and a name for the user.
    void faultsAreReportedInRowsAndResults()
    {
        QFETCH(QString, mac);
        QFETCH(int, login);
        QFETCH(int, modification);
        openSite("faulty");
        search();
        const QString address = row(mac).value("ipport").toString().section(':', 0, 0);
        const QString port = row(mac).value("ipport").toString().section(':', 1);
        const auto tryToLogIn = [&](const QString &password) {
            return m_factory->getLoginDevice("dh", address, "admin", password, port);
        };
        for (int attempt = 0; login == 3 && attempt < 5; ++attempt)
            tryToLogIn("not the password");
        const QString password = m_site->device(mac)->accounts.value(0).password;
        QCOMPARE(tryToLogIn(password), login);
        if (login == 3)
            QCOMPARE(tryToLogIn(password), login); // the account remains locked
        // A check of a listed device detects that it is not initialised; a login by address does not.
        const QString ipport = address + ':' + port;
        QCOMPARE(m_factory->checkLogin("dh", ipport, "admin", password), login == 12 ? 7 : login);
        m_factory->modifyIP("dh", mac, "192.168.1.250", "255.255.255.0", "192.168.1.1", false);
        QCOMPARE(row(mac).value("res").toInt(), modification);
        QTEST(m_factory->getErrorName(modification != 0 ? modification : login), "name");
        const QString refuses = QStringLiteral("02:1a:c5:00:4d:5d");
        m_factory->setInitAccount("dh", refuses, "admin", "first-1");
        QCOMPARE(row(refuses).value("res").toInt(), 999);
        QVERIFY(row("02:1a:c5:00:4c:0d").isEmpty()); // the device that never responds
    }

    void aBrokenTunnelIsReported()
    {
        QCOMPARE(m_factory->getLoginDevice("dh", "192.168.1.12", "admin", "secret1", "37777"), 0);
        QVERIFY(m_factory->updataDeviceInfo("dh", "ipport", "127.0.0.1:20001", recorder, ""));
        QSignalSpy broken(m_factory.get(), &CDeviceFactory::signalTunnelBroken);
        std::thread([] {
            CDeviceDH::agentMessage(sdk::P2PAgentEvent::TunnelBroken, "OV1", 20001, nullptr);
        }).join();
        QVERIFY(broken.wait());
        QCOMPARE(broken.first(), QVariantList({"OV1", 20001}));
        QCOMPARE(row(recorder).value("res").toInt(), 5);
        m_factory.reset();
        CDeviceDH::agentMessage(sdk::P2PAgentEvent::TunnelBroken, "OV1", 20001,
                                nullptr); // there is no factory
    }
};

QTEST_GUILESS_MAIN(TestDeviceDH)
#include "tst_devicedh.moc"

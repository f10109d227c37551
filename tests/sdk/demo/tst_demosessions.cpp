// Logins to simulated devices, and what sessions ask them.
#include "sdk/demo/internal/maintenance.h"
#include "tests/datatable.h"
#include "tests/sdk/demo/testsite.h"

#include <array>
#include <atomic>
#include <thread>

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

} // namespace

class SessionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void loginIsAnsweredByTheDevice_data()
    {
        // fault: of the device at 192.168.1.1
        const auto row = dataTable<QString, int, QString, QString, std::optional<Fault>, NetError, NetError>(
            {"address", "port", "account", "password", "fault", "error", "secureError"});
        const auto faultRow = [&row](const char *title, Fault fault, NetError error, NetError secureError) {
            row(title, "192.168.1.1", 8800, "admin", "Pass-1", fault, error, secureError);
        };
        const NetError none = NetError::None;
        const NetError failed = NetError::ConnectFailed;
        const NetError unknown = NetError::NoSuchAccount;
        row("right", "192.168.1.1", 8800, "admin", "Pass-1", {}, none, none);
        row("IPv6 in another spelling", "FD00:0::1", 8800, "admin", "Pass-1", {}, none, none);
        row("other segment", "192.168.2.2", 8800, "admin", "Pass-1", {}, none, none);
        row("twins: the first answers", "192.168.1.3", 8800, "admin", "Pass-1", {}, none, none);
        row("twins: the second alone has the port", "192.168.1.3", 8801, "admin", "Pass-4", {}, none, none);
        row("other port", "192.168.1.1", 8801, "admin", "Pass-1", {}, failed, failed);
        row("port out of range", "192.168.1.1", -1, "admin", "Pass-1", {}, failed, failed);
        row("loopback without a mapping", "127.0.0.1", 8800, "admin", "Pass-1", {}, failed, failed);
        row("unknown account", "192.168.1.1", 8800, "Admin", "Pass-1", {}, unknown, unknown);
        row("wrong password", "192.168.1.1", 8800, "admin", "pass-1", {}, NetError::WrongPassword,
            NetError::WrongPasswordSecure);
        faultRow("no password is right", Fault::WrongPassword, NetError::WrongPassword,
                 NetError::WrongPasswordSecure);
        faultRow("locked from the start", Fault::AccountLocked, NetError::AccountLocked,
                 NetError::AccountLocked);
        faultRow("logged in already", Fault::AccountLoggedIn, NetError::AccountLoggedIn,
                 NetError::AccountLoggedInSecure);
        faultRow("waits for its first password", Fault::NotInitialised, NetError::NotSupported,
                 NetError::NotSupported);
    }

    void loginIsAnsweredByTheDevice()
    {
        QFETCH(QString, address);
        QFETCH(int, port);
        QFETCH(QString, account);
        QFETCH(QString, password);
        QFETCH(std::optional<Fault>, fault);
        QFETCH(NetError, error);
        QFETCH(NetError, secureError);

        SceneDevice dual = camera(1, 100ms);
        dual.ipv6 = u"fd00::1"_s;
        if (fault)
            dual.faults = {{*fault}};
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
        LoginSecureOutput output = {};
        output.size = sizeof(output);
        const std::int64_t secure =
            site.net->NetLoginSecure(secureInput(address, port, account, password), output);
        QCOMPARE(static_cast<NetError>(output.error), secureError);
        QCOMPARE(secure > 0, secureError == NetError::None);
        if (error != NetError::None)
            QCOMPARE(netError(*site.net), secureError);
    }

    void aSessionServesSeveralThreads()
    {
        const TestSite test({camera(1, 100ms)});
        const std::int64_t handle = Login(*test.net, u"192.168.1.1"_s, 8800).handle;
        test.site->setFault(camera(1, 0ms).mac, {.fault = Fault::SlowAnswers, .number = 1000, .text = {}});
        std::atomic<int> answered = 0;
        const auto ask = [&] {
            DeviceAttributes attributes = {};
            std::uint32_t size = 0;
            if (test.net->NetQueryConfig(handle, QueryCommand::DeviceAttributes, -1, &attributes,
                                         sizeof(attributes), size, 5000ms))
                ++answered;
        };
        {
            const std::array<std::jthread, 4> threads = {std::jthread(ask), std::jthread(ask),
                                                         std::jthread(ask), std::jthread(ask)};
            QVERIFY(test.clock->waitForWaiters(4)); // none waits for another one
            QVERIFY(test.net->NetLogout(handle));
            test.clock->advance(1000ms);
        }
        QCOMPARE(answered, 4); // they came before the logout
        ask();
        QCOMPARE(lastError(*test.net), DemoError::UnknownHandle);
    }

    void anOldDeviceHasItsFirstPasswordAgainAfterAReset()
    {
        SceneDevice old = camera(1, 0ms);
        old.initialisation = InitialisationBits::NotReported;
        const TestSite test({old});
        const Login login(*test.net, "192.168.1.1", 8800);
        const ResetSystemInput input{sizeof(input)};
        ResetSystemOutput output{sizeof(output)};
        QVERIFY(test.net->NetResetSystem(login.handle, input, output, 10ms));
        test.clock->advance(usualReboot);
        QCOMPARE(Login(*test.net, "192.168.1.1", 8800).netError(), NetError::WrongPassword);
        QVERIFY(Login(*test.net, "192.168.1.1", 8800, "admin", "admin").handle > 0);
    }
};

QTEST_GUILESS_MAIN(SessionsTest)
#include "tst_demosessions.moc"

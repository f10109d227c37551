// Maintenance of simulated devices, as far as the program's own requests do not show it.
#include "sdk/demo/internal/maintenance.h"
#include "tests/sdk/demo/testsite.h"

#include <QJsonDocument>

using namespace std::chrono_literals;
using namespace sdk;
using namespace sdk::demo;

class MaintenanceTest : public QObject
{
    Q_OBJECT
private:
    static constexpr auto wait = 10ms;

private Q_SLOTS:
    void aRebootEndsEverySessionAndSilencesTheDevice()
    {
        const TestSite test(threeCameras);
        const Login first(*test.net, "192.168.1.1", 8800);
        const Login second(*test.net, "192.168.1.1", 8800);
        QVERIFY(test.net->NetRebootDevice(first.handle, wait));
        QCOMPARE(test.found(2s).size(), 2);
        test.clock->advance(usualReboot);
        QCOMPARE(test.found(2s).size(), 3);
        DeviceAttributes attributes = {};
        std::uint32_t returned = 0;
        // The device is there again, but the session is not.
        QVERIFY(!test.net->NetQueryConfig(second.handle, QueryCommand::DeviceAttributes, 0, &attributes,
                                          sizeof(attributes), returned, 0ms));
        QCOMPARE(netError(*test.net), NetError::NetworkFailure);
        QVERIFY(test.net->NetLogout(second.handle));
        QVERIFY(Login(*test.net, "192.168.1.1", 8800).handle > 0);
    }

    void anOldDeviceHasItsFirstPasswordAgain()
    {
        SceneDevice old = camera(1, 0ms);
        old.initialisation = InitialisationBits::NotReported;
        const TestSite test({old});
        const Login login(*test.net, "192.168.1.1", 8800);
        const ResetSystemInput input{sizeof(input)};
        ResetSystemOutput output{sizeof(output)};
        QVERIFY(test.net->NetResetSystem(login.handle, input, output, wait));
        test.clock->advance(usualReboot);
        QCOMPARE(Login(*test.net, "192.168.1.1", 8800).netError(), NetError::WrongPassword);
        QVERIFY(Login(*test.net, "192.168.1.1", 8800, "admin", "admin").handle > 0);
    }

    void aPasswordIsChangedByWhoKnowsTheOldOne()
    {
        const TestSite test(threeCameras);
        const Login login(*test.net, "192.168.1.1", 8800);
        const auto change = [&](const char *account, const char *old, const char *next) {
            ModifyPasswordInput input = {};
            input.size = sizeof(input);
            setBlockText(input.account, account);
            setBlockText(input.oldPassword, old);
            setBlockText(input.newPassword, next);
            return test.net->NetModifyPassword(login.handle, input, wait);
        };
        QVERIFY(!change("root", "Pass-1", "Pass-2"));
        QVERIFY(!change("admin", "Pass-0", "Pass-2"));
        QVERIFY(!change("admin", "Pass-1", ""));
        QVERIFY(change("admin", "Pass-1", "Pass-2"));
        QVERIFY(Login(*test.net, "192.168.1.1", 8800, "admin", "Pass-2").handle > 0);
        for (const RecordedRequest &request : test.site->requests().all())
            QVERIFY(!QJsonDocument(request.request).toJson().contains("Pass-"));
    }
};

QTEST_GUILESS_MAIN(MaintenanceTest)
#include "tst_demomaintenance.moc"

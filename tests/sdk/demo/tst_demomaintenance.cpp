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

    void malformedBlocksChangeNothing()
    {
        const TestSite test(threeCameras);
        const Login login(*test.net, "192.168.1.1", 8800);
        TimeRecord time = {2024, 2, 29, 0, 0, 0};
        const auto setTime = [&](std::uint32_t size) {
            return test.net->NetSetDeviceSetting(login.handle, DeviceSetting::Time, -1, &time, size, wait);
        };
        QVERIFY(!setTime(sizeof(time) - 1));
        QCOMPARE(lastError(*test.net), DemoError::WrongSize);
        time.month = 4000000000U;
        QVERIFY(!setTime(sizeof(time)));
        VideoStandardItem item = {sizeof(item) - 1, VideoStandard::Ntsc};
        const auto setItem = [&](std::uint32_t number) {
            return test.net->NetSetItem(login.handle, number, -1, &item, sizeof(item), wait);
        };
        QVERIFY(!setItem(videoStandardItem));
        item = {sizeof(item), static_cast<VideoStandard>(3)};
        QVERIFY(!setItem(videoStandardItem) && !setItem(12));
        const ResetSystemInput input{sizeof(input) + 1};
        ResetSystemOutput output{sizeof(output)};
        QVERIFY(!test.net->NetResetSystem(login.handle, input, output, wait));
        QVERIFY(!test.net->NetModifyPassword(login.handle, {}, wait));
        QVERIFY(Login(*test.net, "192.168.1.1", 8800).handle > 0);
        QCOMPARE(test.site->device("02:1a:c5:00:00:01")->maintenance.clockAhead, 0ms);
    }

    void configurationTextsThatAreNoneAreRefused_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("unknown name") << QByteArray("Smoke") << QByteArray(R"({"Smoke":{"on":true}})");
        QTest::newRow("another name") << QByteArray("NTP") << QByteArray(R"({"Locales":{}})");
        QTest::newRow("out of range") << QByteArray("NTP") << QByteArray(R"({"NTP":{"timeZone":40}})");
        QTest::newRow("no JSON") << QByteArray("NTP") << QByteArray("{");
        QTest::newRow("empty") << QByteArray("NTP") << QByteArray();
    }

    void configurationTextsThatAreNoneAreRefused()
    {
        QFETCH(QByteArray, name);
        QFETCH(QByteArray, text);
        const TestSite test(threeCameras);
        const Login login(*test.net, "192.168.1.1", 8800);
        const auto size = static_cast<std::uint32_t>(text.size());
        std::int32_t error = 0;
        QVERIFY(!test.net->NetSetNewConfig(login.handle, name.constData(), -1, text.constData(), size + 1,
                                           error, wait));
        QCOMPARE(static_cast<std::uint32_t>(error), test.net->NetGetLastError());
        // Without the zero that ends it.
        QVERIFY(!test.net->NetSetNewConfig(login.handle, name.constData(), -1, text.constData(), size, error,
                                           wait));
        QVERIFY(test.site->device("02:1a:c5:00:00:01")->configuration.isEmpty());
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

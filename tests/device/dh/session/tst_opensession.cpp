// Sessions that are opened in the background: the current one if it is alive, otherwise a new login.
#include "sdk/netlibrary.h"
#include "tests/datatable.h"
#include "tests/device/dh/configsite.h"

using sdk::demo::Fault;
using sdk::demo::SceneDevice;

namespace {

SceneDevice recorder(int channels = 3)
{
    SceneDevice device = configDevice(1, "NVR", channels);
    device.channels[0].name = "大门";
    if (channels > 1)
        device.channels[1].connected = false;
    return device;
}

} // namespace

class TestOpenSession : public QObject
{
    Q_OBJECT
private:
    std::unique_ptr<ConfigSite> m_site;
    std::unique_ptr<QSignalSpy> m_opened;
    std::unique_ptr<QSignalSpy> m_logins;
    const SceneDevice m_recorder = recorder();
    const SceneDevice m_camera = configDevice(2, "IPC", 1);

    void makeSite(const QList<SceneDevice> &devices)
    {
        m_site = std::make_unique<ConfigSite>(devices);
        m_opened = std::make_unique<QSignalSpy>(m_site->factory.get(), &CDeviceFactory::signalSessionOpened);
        m_logins =
            std::make_unique<QSignalSpy>(m_site->factory.get(), &CDeviceFactory::signalHighLevelLoginRet);
    }

    void open(const QString &ipport, const QString &password = "secret1", bool readsChannels = true) const
    {
        m_site->factory->openSession("dh", ipport, "admin", password, readsChannels);
    }

    /// Waits until every login has been logged out.
    [[nodiscard]] bool everyLoginEnds() const
    {
        return QTest::qWaitFor([this] {
            const auto &requests = m_site->site->requests();
            return requests.of("NetLoginSecure").size() == requests.of("NetLogout").size();
        });
    }

private Q_SLOTS:
    void init() { makeSite({m_recorder, m_camera}); }

    void cleanup()
    {
        m_opened.reset();
        m_logins.reset();
        m_site.reset();
    }

    void aNewLoginReportsTheChannels()
    {
        open(ipportOf(m_recorder));
        QCOMPARE(m_opened->size(), 0); // the call returns before the login
        QVERIFY(m_opened->wait());
        QCOMPARE(m_opened->first().at(0).toString(), ipportOf(m_recorder));
        QCOMPARE(m_opened->first().at(1).toInt(), 0);
        const QVariantList channels = m_opened->first().at(2).toList();
        QCOMPARE(channels.size(), 3);
        QCOMPARE(channels.at(0).toMap(),
                 QVariantMap({{"channel", 0}, {"name", "大门"}, {"connected", true}}));
        QCOMPARE(channels.at(1).toMap().value("connected").toBool(), false);
        QCOMPARE(m_logins->size(), 1); // the other pages are notified
        QCOMPARE(m_site->get("sessionDevice").toString(), ipportOf(m_recorder));
    }

    void anAliveSessionContinues()
    {
        QCOMPARE(m_site->login(m_recorder), 0);
        const QVariant handle = m_site->get("loginHandle");
        open(ipportOf(m_recorder));
        QVERIFY(m_opened->wait());
        QCOMPARE(m_opened->first().at(2).toList().size(), 3);
        m_site->site->requests().clear();
        open(ipportOf(m_recorder), "secret1", false);
        QVERIFY(m_opened->wait());
        QCOMPARE(m_opened->last().at(1).toInt(), 0);
        QVERIFY(m_site->asked("NetGetItem").isEmpty());
        QVERIFY(m_site->asked("NetLoginSecure").isEmpty());
        QCOMPARE(m_logins->size(), 1); // of the first login only, so that pages keep their unsaved changes
        QCOMPARE(m_site->get("loginHandle"), handle);
    }

    void aRestartedDeviceGetsANewLogin()
    {
        QCOMPARE(m_site->login(m_recorder), 0);
        const qint64 handle = m_site->get("loginHandle").toLongLong();
        m_site->site->setFault(m_recorder.mac, {.fault = Fault::RebootTakes, .number = 1, .text = {}});
        QVERIFY(m_site->net->NetRebootDevice(handle, std::chrono::seconds(1)));
        QVERIFY(QTest::qWaitFor([&] {
            open(ipportOf(m_recorder), "secret1", false);
            return m_opened->wait() && m_opened->last().at(1).toInt() == 0;
        }));
        QVERIFY(m_site->get("loginHandle").toLongLong() != handle);
        QCOMPARE(m_opened->last().at(2).toList().size(), 3);
    }

    void aRefusedPasswordIsNotSentAgain()
    {
        const int ended = 16;
        QCOMPARE(m_site->login(m_recorder), 0);
        m_site->site->changeDevice(m_recorder.mac, [](SceneDevice &device, const auto &) {
            device.accounts[0].password = "secret2";
        });
        m_site->site->requests().clear();
        open(ipportOf(m_recorder));
        QVERIFY(m_opened->wait());
        QCOMPARE(m_opened->last().at(1).toInt(), ended);
        QVERIFY(m_site->asked("NetLoginSecure").isEmpty());
        QSignalSpy checked(m_site->factory.get(), &CDeviceFactory::signalSessionChecked);
        m_site->factory->checkSession("dh");
        QVERIFY(checked.wait());
        QCOMPARE(checked.first().first().toBool(), false);

        m_site->factory->openSession("dh", ipportOf(m_recorder), "admin", "secret1", true,
                                     true); // requested by the user
        QVERIFY(m_opened->wait());
        QCOMPARE(m_opened->last().at(1).toInt(), 2);
        QCOMPARE(m_site->asked("NetLoginSecure").size(), 1);
        open(ipportOf(m_recorder), "secret2");
        QVERIFY(m_opened->wait());
        QCOMPARE(m_opened->last().at(1).toInt(), 0);
    }

    /// The rights of the session are those of its account, and a wrong password must not remain unnoticed.
    void anEnteredAccountIsCheckedInAnAliveSession()
    {
        QCOMPARE(m_site->login(m_recorder), 0);
        const QVariant before = m_site->get("loginHandle");
        const auto enter = [this](const QString &password) {
            m_site->factory->openSession("dh", ipportOf(m_recorder), "admin", password, true, true);
            return m_opened->wait() ? m_opened->last().at(1).toInt() : -1;
        };
        QCOMPARE(enter("secret9"), 2);
        QCOMPARE(m_site->get("loginHandle"), before);
        QCOMPARE(enter("secret1"), 0);
        QVERIFY(m_site->get("loginHandle") != before);
        QCOMPARE(m_opened->last().at(2).toList().size(), 3);
    }

    void aCancelledLoginLeavesNoSession()
    {
        open(ipportOf(m_recorder));
        QVERIFY(m_site->site->requests().waitFor("NetLoginSecure", 1));
        m_site->factory->stopOpeningSession("dh");
        QVERIFY(everyLoginEnds());
        QCOMPARE(m_site->get("loginHandle").toLongLong(), 0);
        QCOMPARE(m_opened->size(), 0);

        open(ipportOf(m_recorder)); // replaced by the next request
        open(ipportOf(m_camera));
        QVERIFY(m_opened->wait());
        QCOMPARE(m_opened->first().at(0).toString(), ipportOf(m_camera));
        QCOMPARE(m_site->get("sessionDevice").toString(), ipportOf(m_camera));
    }

    void closingDuringALoginEndsCleanly()
    {
        open(ipportOf(m_recorder));
        open("192.168.1.77:37777");
        m_site->factory->checkSession("dh");
        QVERIFY(m_site->site->requests().waitFor("NetLoginSecure", 1));
        m_site->factory.reset();
        QCoreApplication::processEvents();
        QCOMPARE(m_opened->size(), 0);
    }
};

QTEST_GUILESS_MAIN(TestOpenSession)
#include "tst_opensession.moc"

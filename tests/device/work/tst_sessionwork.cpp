// Operations of the configuration page that run while QML handles events.
#include "device/work/sessionwork.h"
#include "tests/datatable.h"
#include "tests/device/dh/configsite.h"

using sdk::demo::Fault;
using sdk::demo::SceneDevice;

namespace {

using Begin = std::function<void(SessionWork &work)>;

/// An operation whose end is controlled by the test, even if it has been dropped.
class HeldBackEnd : public CDeviceBase
{
public:
    HeldBackEnd() : CDeviceBase(nullptr) {}

    int taken = 0;
    QList<std::function<void()>> ends; ///< of the operations, in order

    PageStep loginStep(const QString &, const QString &, const QString &) override
    {
        return [this](const StepControl &) {
            return PageOutcome{.value = 0, .take = [this] {
                                   ++taken;
                               }};
        };
    }
    void runForPage(const PageStep &step, const std::stop_token &,
                    const std::function<void(const PageOutcome &outcome)> &ended) override
    {
        ends.append([step, ended] { ended(step(StepControl())); });
    }
};

} // namespace
Q_DECLARE_METATYPE(Begin)

class TestSessionWork : public QObject
{
    Q_OBJECT
private:
    const SceneDevice m_recorder = configDevice(1, "NVR", 2);
    const SceneDevice m_camera = configDevice(2, "IPC", 1);
    std::unique_ptr<ConfigSite> m_site;
    std::unique_ptr<SessionWork> m_work;
    static constexpr int slowness = 300; ///< milliseconds
    QStringList m_reported;              ///< signals of the factory and of the operation, in order

    void setFault(const SceneDevice &device, Fault fault, int number = 0) const
    {
        m_site->site->setFault(device.mac, {.fault = fault, .number = number, .text = {}});
    }
    void login(const SceneDevice &device) const { m_work->login(ipportOf(device), "admin", "secret1"); }
    /// True if all logins except `open` ones were logged out.
    [[nodiscard]] bool loginsAreOpen(qsizetype open) const
    {
        return m_site->asked("NetLoginSecure").size() == m_site->asked("NetLogout").size() + open;
    }

private Q_SLOTS:
    void init()
    {
        m_site = std::make_unique<ConfigSite>(QList<SceneDevice>{m_recorder, m_camera});
        m_work = std::make_unique<SessionWork>();
        m_work->setDeviceFactory(m_site->factory.get());
        m_reported.clear();
        const CDeviceFactory *factory = m_site->factory.get();
        connect(factory, &CDeviceFactory::signalHighLevelLoginRet, m_work.get(),
                [this](int result) { m_reported.append("login " + QString::number(result)); });
        connect(factory, &CDeviceFactory::signalGetDeviceCapRet, m_work.get(), [this](int result) {
            m_reported.append(isDeviceAway(static_cast<std::uint32_t>(result))
                                  ? QString("away")
                                  : "cap " + QString::number(result));
        });
        connect(factory, &CDeviceFactory::signalChangeEncodeChannel, m_work.get(),
                [this] { m_reported.append("encode channel"); });
        connect(factory, &CDeviceFactory::signalChangeVideoChannel, m_work.get(),
                [this] { m_reported.append("video channel"); });
        connect(factory, &CDeviceFactory::signalChangeVideoType, m_work.get(),
                [this] { m_reported.append("video type"); });
        connect(factory, &CDeviceFactory::signalConfirmEncodeConfig, m_work.get(),
                [this](const QString &text) { m_reported.append(text.isEmpty() ? "saved" : "not saved"); });
        connect(m_work.get(), &DeviceWork::ended, m_work.get(), [this] { m_reported.append("ended"); });
        connect(m_work.get(), &SessionWork::otherLogin, m_work.get(), [this] { m_reported.append("other"); });
    }

    void cleanup()
    {
        m_work.reset();
        m_site.reset();
    }

    void eventsAreHandledAndSignalsKeepTheirOrder_data()
    {
        const auto row = dataTable<bool, Begin, QStringList>({"isOffline", "begin", "reported"});
        const QString ipport = ipportOf(m_recorder);
        const Begin logIn = [ipport](SessionWork &work) {
            work.login(ipport, "admin", "secret1");
        };
        const Begin detail = [ipport](SessionWork &work) {
            work.readDetail(ipport);
        };
        const Begin read = &SessionWork::readEncoding;
        const Begin choose = [](SessionWork &work) {
            work.chooseEncoding("curChannel", 1);
        };
        const Begin write = [](SessionWork &work) {
            work.writeEncodeValue("subCurResolution", "CIF");
        };
        const Begin save = &SessionWork::saveEncoding;
        const Begin image = [](SessionWork &work) {
            work.readImage(1);
        };
        const Begin changeImage = [](SessionWork &work) {
            work.writeImage("curChannelName", {QVariant(QVariantList{"", "west"})});
        };
        const Begin names = &SessionWork::readNames;
        const Begin name = [](SessionWork &work) {
            work.writeName(1, "east");
        };
        row("login", false, logIn, {"login 0", "ended"});
        row("login, offline", true, logIn, {"login 5", "ended"});
        row("detail", false, detail, {"ended"});
        row("encoding", false, read, {"cap 0", "ended"});
        row("encoding, offline", true, read, {"away", "ended"});
        row("channel", false, choose, {"encode channel", "cap 0", "ended"});
        row("size, offline", true, write, {"not saved", "away", "ended"});
        row("save", false, save, {"saved", "ended"});
        row("save, offline", true, save, {"not saved", "away", "ended"});
        row("image", false, image, {"video channel", "ended"});
        row("image, offline", true, image, {"away", "ended"}); // no further request is sent
        row("image write, offline", true, changeImage, {"video type", "away", "ended"});
        row("names", false, names, {"ended"});
        row("names, offline", true, names, {"away", "ended"});
        row("name, offline", true, name, {"away", "ended"});
    }

    /// One device goes offline between the login and the request, the other one responds.
    void eventsAreHandledAndSignalsKeepTheirOrder()
    {
        QFETCH(bool, isOffline);
        QFETCH(Begin, begin);
        QCOMPARE(m_site->login(m_recorder), 0);
        m_site->factory->getEncodeCaps("dh");
        m_site->factory->getCameraConfig("dh");
        m_site->factory->getVideoIn("dh");
        if (isOffline)
            setFault(m_recorder, Fault::NoAnswer);
        else
            setFault(m_recorder, Fault::SlowAnswers, slowness);
        m_reported.clear();
        m_site->stopTime();
        begin(*m_work);
        QTRY_VERIFY(m_site->clock().waiters() >
                    0); // the operation waits for the device while events are handled
        QVERIFY(m_work->isRunning());
        QCOMPARE(m_site->get("sessionDevice").toString(), ipportOf(m_recorder));
        QCOMPARE(m_site->shown("curChannel curVideoChannel"), "0|0");
        QVERIFY(!m_site->get("encodeMode").toStringList().isEmpty());
        QCOMPARE(m_reported, QStringList());
        m_site->letTimePass();
        QTRY_VERIFY(!m_work->isRunning());
        QTEST(m_reported, "reported");
    }

    void aQueuedResultIsDroppedToo()
    {
        const auto backEnd = std::make_shared<HeldBackEnd>();
        CDeviceFactory factory({{"dh", [backEnd] {
                                     return backEnd;
                                 }}});
        m_work->setDeviceFactory(&factory);
        login(m_recorder);
        login(m_camera);
        backEnd->ends.at(0)();
        QCOMPARE(backEnd->taken, 0);
        QVERIFY(m_work->isRunning());
        backEnd->ends.at(1)();
        QCOMPARE(backEnd->taken, 1);
        QCOMPARE(m_reported, QStringList("ended"));
        m_work->setDeviceFactory(nullptr);
    }

    void anUnusedLoginIsLoggedOut()
    {
        login(m_recorder);
        QVERIFY(m_site->site->requests().waitFor("NetLoginSecure", 1));
        m_work.reset(); // the page is destroyed
        QTRY_VERIFY(loginsAreOpen(0));
        QCOMPARE(m_site->get("loginHandle").toLongLong(), 0);
    }

    /// The live view uses the same session.
    void aLoginOfAnotherPageDropsTheOperation()
    {
        QCOMPARE(m_site->login(m_recorder), 0);
        setFault(m_recorder, Fault::NoAnswer);
        setFault(m_camera, Fault::SlowAnswers, slowness);
        m_reported.clear();
        m_site->stopTime();
        m_work->chooseEncoding("curChannel", 1);
        QTRY_COMPARE(m_site->clock().waiters(), 1);
        m_site->factory->openSession("dh", ipportOf(m_camera), "admin", "secret1", false);
        QTRY_COMPARE(m_site->clock().waiters(), 2);
        QVERIFY(QTest::qWaitFor([this] {
            if (m_site->clock().waiters() == 2)
                m_site->clock().advance(std::chrono::milliseconds(slowness));
            return m_reported.contains("other");
        }));
        QVERIFY(!m_work->isRunning());
        m_site->letTimePass();
        QTRY_COMPARE(m_site->clock().waiters(), 0);
        QCoreApplication::processEvents();
        QVERIFY(!m_reported.contains("ended") && !m_reported.contains("encode channel"));
        QCOMPARE(m_site->shown("sessionDevice curChannel"), ipportOf(m_camera) + "|0");
    }
};

QTEST_GUILESS_MAIN(TestSessionWork)
#include "tst_sessionwork.moc"

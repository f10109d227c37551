#include "tests/datatable.h"
#include "tests/qml/configtools/qmlscene.h"

#include <QVariantMap>

namespace {

const QString device = QStringLiteral("192.168.1.20:37777");
const QString other = QStringLiteral("192.168.1.21:37777");

const char *const scene = "    visible: true\n"
                          "    LiveDevice {\n"
                          "        objectName: 'live'; deviceFactory: factory\n"
                          "    }\n";

} // namespace

/// A factory whose sessions a test controls.
class SessionFactory : public QObject
{
    Q_OBJECT
public:
    QStringList asked;   ///< "account password", with "channels" if they are to be read
    int given = 0;       ///< cancelled sessions
    QString sessionWith; ///< address of the device

    /// Ends the requested login.
    void respond(int result, const QString &ipport = device)
    {
        const QVariantList channels = {QVariantMap{{"channel", 0}, {"name", "A"}, {"connected", true}}};
        if (result == 0)
            sessionWith = ipport;
        Q_EMIT signalSessionOpened(ipport, result, result == 0 ? channels : QVariantList());
    }
    void logInElsewhere(const QString &ipport)
    {
        sessionWith = ipport;
        Q_EMIT signalHighLevelLoginRet(0);
    }

    Q_INVOKABLE void openSession(const QString &, const QString &, const QString &account,
                                 const QString &password, bool readsChannels, bool isGivenNow)
    {
        asked.append(account + ' ' + password + (readsChannels ? " channels" : "") +
                     (isGivenNow ? " given" : ""));
    }
    Q_INVOKABLE void stopOpeningSession(const QString &) { ++given; }
    Q_INVOKABLE QVariant getConfigData(const QString &, const QString &) const { return sessionWith; }
    Q_INVOKABLE QVariantMap getDeviceInfo(const QString &, const QString &ipport) const
    {
        return ipport == other ? QVariantMap() : QVariantMap{{"name", "东门"}};
    }
    Q_INVOKABLE QVariantMap accountOf(const QString &, const QString &ipport) const
    {
        if (ipport == other)
            return {{"account", "usual"}, {"password", "usual-1"}, {"isDefault", true}};
        return {{"account", "admin"}, {"password", "secret1"}, {"isDefault", false}};
    }
    Q_INVOKABLE QString getErrorName(int code) const { return QStringLiteral("result %1").arg(code); }

Q_SIGNALS:
    void signalSessionOpened(const QString &ipport, int result, const QVariantList &channels);
    void signalHighLevelLoginRet(int loginRet);
};

/// The login of the live window, and its retries for an offline device.
class TestLiveDevice : public QObject
{
    Q_OBJECT
private:
    std::unique_ptr<SessionFactory> m_factory;
    std::unique_ptr<QQmlEngine> m_engine;
    std::unique_ptr<QQuickWindow> m_window;
    QObject *m_live = nullptr;
    std::unique_ptr<QSignalSpy> m_checked;
    std::unique_ptr<QSignalSpy> m_lost;

    void open(const QString &ipport = device) const
    {
        QVERIFY(QMetaObject::invokeMethod(m_live, "open", Q_ARG(QVariant, ipport)));
    }
    void call(const char *function) const { QVERIFY(QMetaObject::invokeMethod(m_live, function)); }
    QVariant get(const char *name) const { return m_live->property(name); }

private Q_SLOTS:
    void init()
    {
        m_factory = std::make_unique<SessionFactory>();
        m_engine = std::make_unique<QQmlEngine>();
        m_window = openScene(*m_engine, scene, {{"factory", m_factory.get()}});
        QVERIFY(m_window);
        m_live = m_window->findChild<QObject *>("live");
        m_checked = std::make_unique<QSignalSpy>(m_live, SIGNAL(checked(bool)));
        m_lost = std::make_unique<QSignalSpy>(m_live, SIGNAL(lost()));
    }

    void cleanup()
    {
        m_checked.reset();
        m_lost.reset();
        m_window.reset();
        m_engine.reset();
    }

    void anOfflineDeviceIsRetried()
    {
        const QSignalSpy opened(m_live, SIGNAL(opened()));
        open();
        QVERIFY(get("busy").toBool());
        m_factory->respond(5);
        QVERIFY(!get("busy").toBool());
        QCOMPARE(get("failure").toString(), device + " 没有应答");
        QCOMPARE(get("retrySeconds").toInt(), 1);
        QTRY_COMPARE(m_factory->asked.size(), 2);
        QVERIFY(get("busy").toBool());
        m_factory->respond(5);
        QCOMPARE(get("retrySeconds").toInt(), 2);
        call("tryAgain"); // immediately
        QCOMPARE(m_factory->asked, QStringList(3, "admin secret1 channels"));
        m_factory->respond(5);
        QCOMPARE(get("retrySeconds").toInt(), 4);
        call("tryAgain");
        m_factory->respond(0);
        QCOMPARE(opened.size(), 1);
        QCOMPARE(get("channels").toList().size(), 1);
        QVERIFY(!get("waitingForRetry").toBool());
    }

    void permanentFailuresAreNotRetried_data()
    {
        const auto row = dataTable<int>({"result"});
        row("wrong password", 2);
        row("account locked", 3);
        row("not initialised", 7);
        row("session ended", 16);
    }

    void permanentFailuresAreNotRetried()
    {
        QFETCH(int, result);
        open();
        m_factory->respond(result);
        QVERIFY(!get("waitingForRetry").toBool() && !get("checking").toBool());
        QVERIFY(!get("failure").toString().isEmpty());

        open(); // also after an earlier login for a stream
        m_factory->respond(0);
        call("expireResponse");
        call("check");
        m_factory->respond(result);
        QVERIFY(!get("loggedIn").toBool());
        call("check");
        QCOMPARE(m_checked->last().first().toBool(), false);
        QCOMPARE(m_factory->asked.size(), 3);
    }

    void streamsGetTheStateOfTheDevice()
    {
        open();
        m_factory->respond(0);
        call("check"); // it has just responded
        QCOMPARE(m_checked->last().first().toBool(), true);
        QCOMPARE(m_factory->asked.size(), 1);
        call("expireResponse");
        call("check");
        call("check"); // for another stream
        QCOMPARE(m_factory->asked.size(), 2);
        QCOMPARE(m_factory->asked.last(), "admin secret1"); // its channels have been read
        m_factory->respond(5);
        QCOMPARE(m_checked->size(), 2);
        QCOMPARE(m_checked->last().first().toBool(), false);
        QVERIFY(get("loggedIn").toBool() &&
                !get("waitingForRetry").toBool()); // the streams pause on their own
        call("check");
        m_factory->respond(0);
        QCOMPARE(m_checked->last().first().toBool(), true);
    }

    void theSessionOfAnotherDeviceIsKept()
    {
        open();
        m_factory->respond(5);
        m_factory->logInElsewhere(other);
        QVERIFY(!get("waitingForRetry").toBool());
        QCOMPARE(m_lost->size(), 0);

        open(other); // without a separate account
        QCOMPARE(m_factory->asked.last(), "usual usual-1 channels");
        m_factory->respond(0, other);
        m_factory->logInElsewhere(device);
        QCOMPARE(m_lost->size(), 1);
    }
};

QTEST_MAIN(TestLiveDevice)
#include "tst_livedevice.moc"

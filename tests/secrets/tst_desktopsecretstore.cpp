// The secret service of the desktop: a real one on a bus of its own, without the bus and the files of the
// user.
#include "secrets/desktopsecretstore.h"
#include "tests/files/filecontents.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>

#include <thread>

namespace {

/// A bus that starts no services.
const char *const busSettings = "<busconfig><type>session</type><listen>%1</listen>"
                                "<auth>EXTERNAL</auth><policy context='default'><allow send_destination='*'/>"
                                "<allow receive_sender='*'/><allow own='*'/></policy></busconfig>";

const QString connectionName = QStringLiteral("test");
const QString serviceName = QStringLiteral("org.freedesktop.secrets");

void stop(QProcess &process)
{
    process.kill();
    process.waitForFinished();
}

} // namespace

/// A prompt of the desktop that the user does not answer.
class SilentPrompter : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.gnome.keyring.internal.Prompter")
public Q_SLOTS:
    void BeginPrompting(const QDBusObjectPath &) { ++begun; }
    void StopPrompting(const QDBusObjectPath &) {}

public:
    int begun = 0;
};

class TestDesktopSecretStore : public QObject
{
    Q_OBJECT
private:
    const QTemporaryDir m_folder;
    QProcess m_bus;
    QProcess m_service;
    const Secret m_secret = {.file = "/home/user/fav/a_80.json", .title = "a:80", .value = "s€cret \"1\""};

    static DesktopSecretStore::Options
    options(std::chrono::milliseconds promptLimit = std::chrono::minutes(1))
    {
        return {.product = "Product", .hasBus = true, .promptLimit = promptLimit};
    }

    QString busAddress() const { return "unix:path=" + m_folder.filePath("bus"); }

    /// At the same address again: the process has one.
    void startBus()
    {
        QDBusConnection::disconnectFromBus(connectionName);
        QFile::remove(m_folder.filePath("bus"));
        m_bus.start("dbus-daemon",
                    {"--config-file=" + m_folder.filePath("bus.conf"), "--nofork", "--print-address"});
        QVERIFY(m_bus.waitForReadyRead());
        QVERIFY(QDBusConnection::connectToBus(busAddress(), connectionName).isConnected());
    }

    void startService()
    {
        m_service.start("gnome-keyring-daemon", {"--unlock", "--foreground", "--components=secrets"});
        QVERIFY(m_service.waitForStarted());
        m_service.write("password of the login");
        m_service.closeWriteChannel();
        QTRY_VERIFY(
            QDBusConnection(connectionName)
                .call(QDBusMessage::createMethodCall(serviceName, "/org/freedesktop/secrets/collection/login",
                                                     "org.freedesktop.DBus.Introspectable", "Introspect"))
                .type() == QDBusMessage::ReplyMessage);
    }

    static void lockService()
    {
        QDBusMessage call = QDBusMessage::createMethodCall(serviceName, "/org/freedesktop/secrets",
                                                           "org.freedesktop.Secret.Service", "Lock");
        const QList<QDBusObjectPath> paths = {QDBusObjectPath("/org/freedesktop/secrets/collection/login")};
        call.setArguments({QVariant::fromValue(paths)});
        QCOMPARE(QDBusConnection(connectionName).call(call).type(), QDBusMessage::ReplyMessage);
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(
            QFile::setPermissions(m_folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        for (const char *variable : {"HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR", "XDG_CACHE_HOME"})
            qputenv(variable, m_folder.path().toUtf8());
        qputenv("DBUS_SESSION_BUS_ADDRESS", busAddress().toUtf8());
        QVERIFY(writeFile(m_folder.filePath("bus.conf"),
                          QByteArray(busSettings).replace("%1", busAddress().toUtf8())));
        startBus();
    }

    void cleanupTestCase()
    {
        QDBusConnection::disconnectFromBus(connectionName);
        stop(m_bus);
    }

    void cleanup() { stop(m_service); }

    void theEndOfTheBusIsReported()
    {
        const auto restart = qScopeGuard([this] { startBus(); });
        startService();
        DesktopSecretStore store(options());
        QVERIFY(!store.store(m_secret).isProblem());
        stop(m_bus);
        QVERIFY(store.readAll().problem.isProblem()); // GLib would end the process
        QVERIFY(store.store(m_secret).isProblem());
    }

    void anAbsentServiceIsReported()
    {
        DesktopSecretStore store(options());
        QCOMPARE(store.readAll().problem.kind, SecretProblem::Absent);
        QCOMPARE(store.store(m_secret).kind, SecretProblem::Absent);
        DesktopSecretStore withoutBus(DesktopSecretStore::Options{.product = "Product", .hasBus = false});
        QCOMPARE(withoutBus.readAll().problem.kind, SecretProblem::Absent);
    }

    void passwordsAreStoredReadAndRemoved()
    {
        startService();
        const Secret other = {.file = "/home/user/LocalConfig.ini", .title = "default", .value = "1"};
        {
            DesktopSecretStore store(options());
            QVERIFY(!store.store({.file = m_secret.file, .title = m_secret.title, .value = "0"}).isProblem());
            QVERIFY(!store.store(m_secret).isProblem());
            QVERIFY(!store.store(other).isProblem());
        }
        stop(m_service);
        startService();
        DesktopSecretStore store(options());
        const StoredSecrets read = store.readAll();
        QCOMPARE(read.problem.text(), "");
        QCOMPARE(read.values, (QHash<QString, QString>{{m_secret.file, m_secret.value}, {other.file, "1"}}));
        QVERIFY(!store.remove(m_secret.file).isProblem());
        QVERIFY(!store.remove(m_secret.file).isProblem()); // not stored any more
        QCOMPARE(store.readAll().values, (QHash<QString, QString>{{other.file, "1"}}));
    }

    void aRestartedServiceIsUsedAgain()
    {
        startService();
        DesktopSecretStore store(options());
        QVERIFY(!store.store(m_secret).isProblem());
        stop(m_service);
        QVERIFY(store.store(m_secret).isProblem());
        startService();
        QVERIFY(!store.store(m_secret).isProblem());
    }

    /// Without a program for prompts, the service refuses to unlock, as after a prompt that the user has
    /// closed.
    void aLockedServiceIsReported()
    {
        startService();
        DesktopSecretStore store(options());
        QVERIFY(!store.store(m_secret).isProblem());
        lockService();
        QCOMPARE(store.readAll().problem.kind, SecretProblem::Locked);
        QCOMPARE(store.store(m_secret).kind, SecretProblem::Locked);
        QVERIFY(store.remove(m_secret.file).isProblem());
    }

    void aPromptThatIsNotAnsweredEnds_data()
    {
        QTest::addColumn<bool>("isInterrupted");
        QTest::newRow("time limit") << false;
        QTest::newRow("end of the application") << true;
    }

    void aPromptThatIsNotAnsweredEnds()
    {
        QFETCH(bool, isInterrupted);
        QDBusConnection bus(connectionName);
        SilentPrompter prompter;
        QVERIFY(
            bus.registerObject("/org/gnome/keyring/Prompter", &prompter, QDBusConnection::ExportAllSlots));
        QVERIFY(bus.registerService("org.gnome.keyring.SystemPrompter"));
        startService();
        QVERIFY(!DesktopSecretStore(options()).store(m_secret).isProblem());
        lockService();
        DesktopSecretStore store(options(isInterrupted ? std::chrono::minutes(1) : std::chrono::seconds(2)));
        QElapsedTimer timer;
        timer.start();
        StoredSecrets read;
        std::atomic<bool> hasEnded = false;
        std::thread reader([&] {
            read = store.readAll();
            hasEnded = true;
        });
        const auto tidy = qScopeGuard([&] {
            store.interrupt();
            reader.join();
            bus.unregisterService("org.gnome.keyring.SystemPrompter");
            bus.unregisterObject("/org/gnome/keyring/Prompter");
        });
        QTRY_COMPARE(prompter.begun, 1);
        if (isInterrupted)
            store.interrupt();
        QTRY_VERIFY_WITH_TIMEOUT(hasEnded, 10'000);
        QVERIFY(read.problem.isProblem());
        QVERIFY(timer.elapsed() < 10'000);
    }
};

QTEST_GUILESS_MAIN(TestDesktopSecretStore)
#include "tst_desktopsecretstore.moc"

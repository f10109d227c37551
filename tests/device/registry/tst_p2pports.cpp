#include "device/registry/devicefactory.h"
#include "device/registry/p2pports.h"
#include "tests/datatable.h"
#include "tests/files/filecontents.h"

#include <QDir>
#include <QTemporaryDir>

namespace {

/// An agent with the mappings of a test, which records its calls.
class NotingAgent : public sdk::P2PAgentLibrary
{
public:
    bool OAgent_ClientInit(const sdk::P2PAgentServices &services) override
    {
        calls.append(QStringLiteral("init %1 %2 %3 %4 %5 %6 %7 %8 %9")
                         .arg(services.tunnelHost, QString::number(services.tunnelPort), services.relayHost,
                              QString::number(services.relayPort), services.serverSecret, services.domain,
                              services.restAddress, services.mediaHost, QString::number(services.mediaPort)));
        return starts;
    }
    void OAgent_SetMessageCallback(sdk::P2PAgentMessageHandler, void *user) override
    {
        calls.append(user ? "callback with user" : "callback");
    }
    bool OAgent_ClientGetDeviceLocalPort(const char *, std::int32_t, std::int32_t *localPorts,
                                         std::int32_t capacity, std::int32_t &count) override
    {
        count = static_cast<std::int32_t>(existing.size());
        for (int index = 0; index < count && index < capacity; ++index)
            localPorts[index] = existing.at(index);
        return true;
    }
    bool OAgent_ClientAddPort(const char *deviceId, std::int32_t devicePort, std::int32_t &localPort,
                              std::int32_t flag) override
    {
        calls.append(
            QStringLiteral("add %1 %2 %3 %4").arg(deviceId).arg(devicePort).arg(localPort).arg(flag));
        if (localPort == 0)
            localPort = 50001;
        return adds;
    }
    bool OAgent_ClientDelPort(std::int32_t localPort) override
    {
        calls.append(QStringLiteral("delete %1").arg(localPort));
        return true;
    }
    void OAgent_ClientRelease() override { calls.append("release"); }

    bool starts = true;
    bool adds = true;
    QList<int> existing;
    QStringList calls;
};

void noHandler(sdk::P2PAgentEvent, const char *, std::int32_t, void *) {}

} // namespace

class TestP2PPorts : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void readsItsSettings_data()
    {
        // file: null: no file
        // fault: the reported setting
        const auto row = dataTable<QByteArray, QString, QString>({"file", "started", "fault"});
        row("no file", QByteArray(),
            "init tunnel.kelda.example 7885 relay.kelda.example 443 tamsvelorink kelda "
            "https://api.kelda.example video.kelda.example 8300",
            QString());
        row("every key from the file",
            QByteArray("[p2p]\ntunnel=t.example\ntunnel_port=1\ntrans=r.example\ntrans_port=2\ndomain=d\n"
                       "saas=https://s.example\nmnserver=m.example\nmnport=3\n"),
            "init t.example 1 r.example 2 tamsvelorink d https://s.example m.example 3", QString());
        row("missing keys", QByteArray("[p2p]\ntunnel=t\ntunnel_port=1\n"), "init t 1  0 tamsvelorink    0",
            "p2p/trans");
    }

    void readsItsSettings()
    {
        QFETCH(QByteArray, file);
        QFETCH(QString, fault);
        const QTemporaryDir directory;
        QDir::setCurrent(directory.path());
        QVERIFY(file.isNull() || writeFile("p2p.ini", file));
        const auto agent = std::make_shared<NotingAgent>();
        {
            CDeviceFactory factory(CDeviceFactory::BackEndCreators(),
                                   CDeviceFactory::P2PAgent{agent, &noHandler});
            QCOMPARE(factory.p2pFault(),
                     fault.isEmpty() ? QString() : "p2p.ini 中的 " + fault + " 缺失或无效");
        }
        QDir::setCurrent(QDir::rootPath());
        QTEST(agent->calls.value(0), "started");
        QCOMPARE(agent->calls.mid(1), QStringList({"callback", "release"}));
    }

    void assignsPorts_data()
    {
        const auto row = dataTable<QList<int>, int, int, QString>({"existing", "requested", "port", "asked"});
        row("none there", QList<int>(), 0, 50001, "add ID 37777 0 0");
        row("a request for another port", QList{50005}, 37778, 0, QString());
        row("one exists, the device's port is requested", QList{50005}, 37777, 37777, "add ID 37777 37777 0");
        row("the device's there", QList{37777}, 0, 50001, "add ID 37777 0 0");
        row("the device's port exists and is requested", QList{37777}, 37777, 37777, QString());
        row("more there", QList{37777, 50006, 50007}, 0, 50006, QString());
    }

    void assignsPorts()
    {
        QFETCH(QList<int>, existing);
        QFETCH(int, requested);
        QFETCH(QString, asked);
        const auto agent = std::make_shared<NotingAgent>();
        P2PPorts ports(agent, P2PSettings::builtIn(), &noHandler);
        agent->calls.clear();
        agent->existing = existing;
        QTEST(ports.portFor("ID", 37777, requested), "port");
        QCOMPARE(agent->calls.join('\n'), asked);
    }

    /// Two callers that add the same device share a port. A failure of one of them does not close it.
    void aUsedPortRemainsOpen_data()
    {
        const auto row = dataTable<bool, bool, bool, bool>({"others", "isKnown", "isListed", "stays"});
        row("not used", false, false, false, false);
        row("another caller", true, false, false, true);
        row("a known device", false, true, false, true);
        row("a row", false, false, true, true);
    }

    void aUsedPortRemainsOpen()
    {
        QFETCH(bool, others);
        QFETCH(bool, isKnown);
        QFETCH(bool, isListed);
        const auto agent = std::make_shared<NotingAgent>();
        P2PPorts ports(agent, P2PSettings::builtIn(), &noHandler);
        const int port = ports.claim("ID", 37777);
        QVERIFY(port > 0);
        if (others)
            agent->existing = {port};
        if (others)
            QCOMPARE(ports.claim("ID", 37777), port);
        if (isKnown)
            ports.note(port);
        agent->calls.clear();
        ports.giveBack(port, [&] { return isListed; });
        QTEST(agent->calls.isEmpty(), "stays");
    }

    void anAgentThatFailsGivesNoPorts()
    {
        const auto agent = std::make_shared<NotingAgent>();
        agent->adds = false;
        {
            P2PPorts ports(agent, P2PSettings::builtIn(), &noHandler);
            QCOMPARE(ports.portFor("ID", 37777, 0), 0);
        }
        agent->starts = false;
        agent->calls.clear();
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("cannot be started"));
        P2PPorts ports(agent, P2PSettings::builtIn(), &noHandler);
        QCOMPARE(ports.portFor("ID", 37777, 0), 0);
        QCOMPARE(agent->calls.size(), 1);
        QVERIFY(!ports.faultText().isEmpty());
        P2PPorts none(nullptr, P2PSettings::builtIn(), &noHandler);
        QCOMPARE(none.portFor("ID", 37777, 0), 0);
    }
};

QTEST_GUILESS_MAIN(TestP2PPorts)
#include "tst_p2pports.moc"

// The simulated port agent: real local ports, where they lead, and its events.
#include "sdk/demo/demop2pagentlibrary.h"
#include "sdk/p2pagentlibrary.h"
#include "tests/sdk/demo/testsite.h"

#include <QJsonDocument>

#include <future>
#include <latch>

#include <arpa/inet.h>
#include <sys/socket.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace sdk;
using namespace sdk::demo;

namespace {

constexpr char deviceId[] = "OV1";

/// Keeps "event device port" of the events that it receives.
class Events
{
public:
    static void handle(P2PAgentEvent event, const char *id, std::int32_t localPort, void *user)
    {
        auto *events = static_cast<Events *>(user);
        if (events->onEvent)
            events->onEvent();
        const std::lock_guard lock(events->m_mutex);
        events->m_lines.append(
            u"%1 %2 %3"_s.arg(static_cast<int>(event)).arg(QString::fromUtf8(id)).arg(localPort));
    }

    QStringList lines()
    {
        const std::lock_guard lock(m_mutex);
        return m_lines;
    }

    std::function<void()> onEvent;

private:
    std::mutex m_mutex;
    QStringList m_lines;
};

/// Whether 127.0.0.1 takes a connection at `port`; asks nothing, and waits until the other side has closed
/// it.
bool isListening(int port)
{
    const int connection = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<std::uint16_t>(port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    char byte = 0;
    const bool isConnected =
        ::connect(connection, reinterpret_cast<const sockaddr *>(&address), sizeof(address)) == 0;
    ::shutdown(connection, SHUT_WR);
    const bool isClosed = isConnected && ::recv(connection, &byte, 1, 0) <= 0;
    ::close(connection);
    return isClosed;
}

struct AgentSite : TestSite
{
    AgentSite() : TestSite({remote(1), camera(2, 0ms)}), agent(site->libraries().p2pAgent)
    {
        agent->OAgent_SetMessageCallback(&Events::handle, &events);
        agent->OAgent_ClientInit(services);
    }
    ~AgentSite() { agent->OAgent_ClientRelease(); }

    static SceneDevice remote(int number)
    {
        SceneDevice device = camera(number, 0ms);
        device.p2pId = QString::fromLatin1(deviceId);
        device.inOtherSegment = device.isRemote = true;
        return device;
    }

    /// The port that was given, 0 on failure.
    [[nodiscard]] int add(int devicePort, int wish = 0, const char *id = deviceId) const
    {
        std::int32_t localPort = wish;
        return agent->OAgent_ClientAddPort(id, devicePort, localPort, 0) ? localPort : 0;
    }

    [[nodiscard]] QList<int> localPorts(int devicePort, int capacity = maximumLocalPorts) const
    {
        std::array<std::int32_t, maximumLocalPorts> ports = {};
        std::int32_t count = -1;
        if (!agent->OAgent_ClientGetDeviceLocalPort(deviceId, devicePort, ports.data(), capacity, count))
            return {-1};
        return QList<int>(ports.begin(), ports.begin() + count);
    }

    static constexpr P2PAgentServices services = {
        "tunnel.invalid", 7885, "relay.invalid", 443, "se-cret", "kelda", "https://rest.invalid",
        "media.invalid",  8300};
    Events events;
    std::shared_ptr<P2PAgentLibrary> agent;
};

} // namespace

class P2PAgentTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void mapsRealPorts()
    {
        const AgentSite site;
        QCOMPARE(site.localPorts(8800), QList<int>());
        const int first = site.add(8800);
        const int second = site.add(8800);
        const int web = site.add(80);
        QVERIFY(first > 0 && second > 0 && web > 0);
        QCOMPARE(site.localPorts(8800), QList<int>({first, second}));
        QCOMPARE(site.localPorts(8800, 1), QList<int>({first}));
        QCOMPARE(site.localPorts(80), QList<int>({web}));
        QVERIFY(isListening(first) && isListening(web) && isListening(first));

        QCOMPARE(site.add(554, first), 0); // taken
        QVERIFY(site.agent->OAgent_ClientDelPort(first));
        QVERIFY(!isListening(first));
        QVERIFY(!site.agent->OAgent_ClientDelPort(first));
        QCOMPARE(site.localPorts(8800), QList<int>({second}));
        QCOMPARE(site.add(554, first), first); // free again, though connections of before linger
    }

    void releaseEndsEverything()
    {
        AgentSite site;
        const int port = site.add(8800);
        std::latch handlerRuns(1);
        std::latch handlerMayEnd(1);
        site.events.onEvent = [&] {
            if (!handlerRuns.try_wait())
                handlerRuns.count_down();
            handlerMayEnd.wait();
        };
        site.clock->advance(100ms);
        handlerRuns.wait();
        std::future<void> release =
            std::async(std::launch::async, [&site] { site.agent->OAgent_ClientRelease(); });
        QVERIFY(site.site->requests().waitFor(u"OAgent_ClientRelease"_s, 1));
        QCOMPARE(release.wait_for(0ms), std::future_status::timeout);
        handlerMayEnd.count_down();
        release.get();
        const QStringList told = site.events.lines();
        QVERIFY(!isListening(port));
        QCOMPARE(site.add(8800), 0);
        QCOMPARE(site.localPorts(8800), QList<int>({-1}));
        QVERIFY(site.agent->OAgent_ClientInit(AgentSite::services));
        QVERIFY(site.add(8800, port) == port);
        QCOMPARE(site.events.lines(), told); // nothing is told before the service is connected again
        const QList<RecordedRequest> starts = site.site->requests().of(u"OAgent_ClientInit"_s);
        QCOMPARE(starts.last().request.value(u"tunnelPort"_s).toInt(), 7885);
        QVERIFY(!QJsonDocument(starts.last().request).toJson().contains("se-cret"));
    }
};

QTEST_GUILESS_MAIN(P2PAgentTest)
#include "tst_demop2pagent.moc"

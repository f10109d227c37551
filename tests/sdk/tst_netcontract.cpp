// Rules of every implementation of the network library. Runs on the demo site, and on simulated devices with
// open standards in a separate network (scripts/lab).
#include "sdk/blocktext.h"
#include "sdk/callstop.h"
#include "sdk/clock.h"
#include "sdk/demo/demosite.h"
#include "sdk/encodeblocks.h"
#include "sdk/onvif/onvifnetlibrary.h"
#include "tests/datatable.h"
#include "tests/sdk/netlogin.h"
#include "tests/sdk/netoperations.h"
#include "tests/sdk/realdatawatcher.h"

#include <QTemporaryFile>

#include <algorithm>
#include <atomic>
#include <future>

using namespace sdk;
using namespace std::chrono_literals;

namespace {

const char *const good = "192.168.1.10";
const char *const slow = "192.168.1.11";
const char *const refusing = "192.168.1.12";
const char *const changingPassword = "192.168.1.13";
const char *const dropping = "192.168.1.14";
const char *const leaving = "192.168.1.15";
const char *const returning = "192.168.1.16";
const char *const soundless = "192.168.1.17";
const char *const moving = "192.168.1.18";
const char *const movingToo = "192.168.1.19";
const char *const unusedAddress = "192.168.1.99";

constexpr auto slowness = 600ms; // of the slow device
constexpr auto usualWait = 5000ms;

QString nameOf(std::uint32_t error)
{
    return QString::number(error, 16);
}

QString nameOf(NetError error)
{
    return nameOf(static_cast<std::uint32_t>(error));
}

/// Counts the responses of a search.
struct SearchCounter
{
    static void take(std::int64_t, const SearchResponse *, void *user)
    {
        auto *counter = static_cast<SearchCounter *>(user);
        ++counter->count;
        if (counter->hasEnded)
            ++counter->late;
    }

    std::atomic<int> count = 0;
    std::atomic<int> late = 0; ///< received after the end
    std::atomic<bool> hasEnded = false;
};

} // namespace

class NetContractTest : public QObject
{
    Q_OBJECT
private:
    std::shared_ptr<demo::DemoSite> m_site; ///< null on real sockets
    std::shared_ptr<NetLibrary> m_net;
    QTemporaryFile m_firmware;
    QList<NetOperation> m_operations;

    LLONG login(const char *address, const char *account = "admin", const char *password = "Contract-1")
    {
        return logIn(*m_net, address, account, password);
    }

    /// The result of an operation: its error code, or "done".
    QString outcome(const NetOperation &operation, LLONG session, std::chrono::milliseconds wait)
    {
        return operation.run(*m_net, session, wait) ? QString("done") : nameOf(m_net->NetGetLastError());
    }

    /// The names and results of all operations whose result is not `expected`.
    QStringList otherOutcomes(LLONG session, std::chrono::milliseconds wait, const QString &expected)
    {
        QStringList others;
        for (const NetOperation &operation : std::as_const(m_operations)) {
            const QString seen = outcome(operation, session, wait);
            if (seen != expected)
                others.append(QString("%1: %2").arg(operation.name, seen));
        }
        return others;
    }

    /// The last parts of a device's MAC and address are equal.
    static std::string macOf(const std::string &address)
    {
        return "02:1a:c5:00:0c:" + address.substr(address.rfind('.') + 1);
    }

    /// A device may still respond for a moment after a reboot request.
    bool isOffline(LLONG session)
    {
        return !m_net->NetIsDeviceAlive(session, 300ms) &&
               nameOf(m_net->NetGetLastError()) == nameOf(NetError::ConnectTimeout);
    }

    /// Runs an operation on another thread.
    std::future<QString> begin(const char *name, LLONG session)
    {
        const auto operation =
            std::find_if(m_operations.begin(), m_operations.end(),
                         [name](const NetOperation &known) { return qstrcmp(known.name, name) == 0; });
        return std::async(std::launch::async, [this, chosen = *operation, session] {
            return outcome(chosen, session, usualWait);
        });
    }

    /// The numbers of the queried and of the responding addresses.
    [[nodiscard]] QList<std::uint32_t> countersOfSearches() const
    {
        SearchReport report{};
        report.size = sizeof(report);
        return m_net->NetGetSearchReport(report)
                   ? QList<std::uint32_t>{report.addressesAsked, report.addressesResponding}
                   : QList<std::uint32_t>();
    }

private Q_SLOTS:
    void initTestCase()
    {
        if (qEnvironmentVariableIsSet("CONFIGTOOLS_CONTRACT_ON_SOCKETS")) {
            m_net = std::make_shared<onvif::OnvifNetLibrary>();
        } else {
            QString error;
            m_site = demo::DemoSite::open(SCENE, std::make_shared<SystemClock>(), &error);
            QVERIFY2(m_site, qPrintable(error));
            m_net = m_site->libraries().net;
        }
        QVERIFY(m_firmware.open());
        m_firmware.write("BRELM-FIRMWARE 1\nmodel=X\nversion=9\n\n");
        m_firmware.flush();
        m_operations = netOperations(m_firmware.fileName().toLocal8Bit());
    }

    void init() { QVERIFY(m_net->NetInit()); }
    void cleanup() { m_net->NetCleanup(); }

    void operationsRequireInit()
    {
        const LLONG session = login(good);
        QVERIFY(session > 0);
        m_net->NetCleanup();
        SearchCounter counter;
        const SearchParameter parameter = {
            .size = sizeof(parameter), .reserved = 0, .handler = &SearchCounter::take, .user = &counter};
        QCOMPARE(m_net->NetStartSearchDevices(parameter, 4ms), 0);
        QVERIFY(login(good) < 1);
        for (const NetOperation &operation : std::as_const(m_operations))
            QVERIFY2(!operation.run(*m_net, session, usualWait), operation.name);
        QVERIFY(m_net->NetInit());
        QVERIFY(!m_net->NetIsDeviceAlive(session, usualWait)); // the session has ended
        QVERIFY(login(good) > 0);
    }

    void logsIn_data()
    {
        const auto row = dataTable<QByteArray, QByteArray, QByteArray, QStringList>(
            {"address", "account", "password", "errors"});
        const QStringList wrong = {nameOf(NetError::WrongPassword), nameOf(NetError::WrongPasswordSecure),
                                   nameOf(NetError::NoSuchAccount)};
        row("correct", good, "admin", "Contract-1", {"done"});
        row("wrong password", good, "admin", "Contract-9", wrong);
        row("unknown account", good, "someone", "Contract-1", wrong);
        row("no device", unusedAddress, "admin", "Contract-1", {nameOf(NetError::ConnectTimeout)});
        row("refused", refusing, "admin", "Contract-1", {nameOf(NetError::ConnectFailed)});
    }

    void logsIn()
    {
        QFETCH(const QByteArray, address);
        QFETCH(const QByteArray, account);
        QFETCH(const QByteArray, password);
        QFETCH(const QStringList, errors);
        const LLONG session = login(address.constData(), account.constData(), password.constData());
        const QString seen = session > 0 ? QString("done") : nameOf(m_net->NetGetLastError());
        QVERIFY2(errors.contains(seen) && session >= 0, qPrintable(seen));
        QCOMPARE(m_net->NetLogout(session), session > 0);
        QVERIFY(!m_net->NetLogout(session));
    }

    void refusesInvalidHandles()
    {
        const LLONG session = login(good);
        QVERIFY(m_net->NetLogout(session));
        const QString ended = nameOf(NetError::SessionEnded);
        const QString invalid = nameOf(NetError::InvalidValue);
        for (const LLONG none : {LLONG(0), LLONG(-1), session}) {
            QCOMPARE(otherOutcomes(none, usualWait, ended).join(", "), QString());
            QStringList outcomes;
            const auto note = [&](bool isDone) {
                outcomes.append(isDone ? QString("done") : nameOf(m_net->NetGetLastError()));
            };
            note(m_net->NetLogout(none));
            note(m_net->NetCancelCalls(none));
            note(m_net->NetStopRealStream(none));
            note(m_net->NetStreamFollowUp(none, 0, 0));
            note(m_net->NetSetRealDataCallback(none, nullptr, nullptr, 1));
            note(m_net->NetStopUpgrade(none));
            note(m_net->NetStopSearchDevices(none));
            QCOMPARE(outcomes, QStringList({ended, ended, invalid, invalid, invalid, invalid, invalid}));
        }
    }

    void reportsUnsupportedOperations()
    {
        const LLONG session = login(good);
        std::array<char, 1000> block{};
        std::uint32_t returned = 0;
        std::int32_t error = 0;
        const QString expected = nameOf(NetError::NotSupported);
        QVERIFY(!m_net->NetQueryConfig(session, static_cast<QueryCommand>(9999), 0, block.data(),
                                       block.size(), returned, usualWait));
        QCOMPARE(nameOf(m_net->NetGetLastError()), expected);
        QVERIFY(
            !m_net->NetGetNewConfig(session, "Nothing", -1, block.data(), block.size(), error, usualWait));
        QCOMPARE(nameOf(static_cast<std::uint32_t>(error)), expected);
        QVERIFY(!m_net->NetGetItem(session, 9999, 0, block.data(), block.size(), usualWait));
        QCOMPARE(nameOf(m_net->NetGetLastError()), expected);
        QVERIFY(!m_net->NetSetDeviceSetting(session, static_cast<DeviceSetting>(9999), -1, block.data(),
                                            block.size(), usualWait));
        QCOMPARE(nameOf(m_net->NetGetLastError()), expected);
        QCOMPARE(m_net->NetStartRealStream(session, 7, 0, LiveStreamKind::Main), 0);
        QCOMPARE(nameOf(m_net->NetGetLastError()), expected);
    }

    void reportsWhetherADeviceHasSound_data()
    {
        const auto row = dataTable<QByteArray, bool>({"address", "hasSound"});
        row("sound", good, true);
        row("none", soundless, false);
    }

    void reportsWhetherADeviceHasSound()
    {
        QFETCH(const QByteArray, address);
        QFETCH(const bool, hasSound);
        const LLONG session = login(address.constData());
        QVERIFY(session > 0);
        auto capabilities = std::make_unique<EncodeCapabilities>();
        capabilities->size = sizeof(*capabilities);
        for (EncodeCapabilityBlock &block : capabilities->blocks)
            block.size = sizeof(block);
        const EncodeCapabilityInput input = {
            .size = sizeof(input), .reserved1 = 0, .channel = 0, .reserved2 = 0, .text = R"({"Encode":{}})"};
        QVERIFY(m_net->NetQueryCapabilities(session, CapabilityQuery::Encode, &input, capabilities.get(),
                                            usualWait));
        for (const StreamKind kind : {StreamKind::MainNormal, StreamKind::Sub}) {
            const EncodeCapabilityBlock &block = capabilities->blocks[static_cast<std::size_t>(kind)];
            QCOMPARE((block.missingValues >> static_cast<unsigned>(EncodeValue::Audio) & 1) == 0, hasSound);
            QCOMPARE((block.missingValues >> static_cast<unsigned>(EncodeValue::Stream) & 1), 0U);
            QStringList rates;
            for (std::uint32_t index = 0; index < block.audioRateCount; ++index) {
                const AudioRate &rate = block.audioRates[index];
                if (rate.format == 8)
                    rates.append(QString::number(rate.frequency));
            }
            QCOMPARE(rates.join(' '), hasSound ? "8000 16000" : "");
            QCOMPARE(block.audioFormatCount > 0, hasSound);
        }
    }

    void twoThreadsCanUseOneSession()
    {
        const LLONG session = login(good);
        QVERIFY(session > 0);
        const auto readAll = [this, session] {
            QStringList failures;
            for (const NetOperation &operation : std::as_const(m_operations)) {
                const QString seen = operation.isHarmless ? outcome(operation, session, usualWait) : "done";
                if (seen != "done")
                    failures.append(QString("%1: %2").arg(operation.name, seen));
            }
            return failures;
        };
        auto other = std::async(std::launch::async, readAll);
        QCOMPARE(readAll().join(", "), QString());
        QCOMPARE(other.get().join(", "), QString());
    }

    void aSlowResponseIsAwaitedUntilTheTimeout()
    {
        const LLONG session = login(slow);
        QVERIFY(session > 0);
        QVERIFY(!m_net->NetIsDeviceAlive(session, slowness / 3));
        QCOMPARE(nameOf(m_net->NetGetLastError()), nameOf(NetError::ConnectTimeout));
        QVERIFY(m_net->NetIsDeviceAlive(session, usualWait));
    }

    void callsAreCancelled_data()
    {
        const auto row = dataTable<QByteArray>({"operation"});
        for (const char *operation : {"alive", "attributes", "network", "capabilities of encoders", "stream"})
            row(operation, operation);
    }

    void callsAreCancelled()
    {
        QFETCH(const QByteArray, operation);
        const LLONG session = login(slow);
        QVERIFY(session > 0);
        std::future<QString> call = begin(operation.constData(), session);
        QElapsedTimer timer;
        timer.start();
        do {
            QVERIFY(m_net->NetCancelCalls(session)); // repeated, because the call may not have started yet
        } while (call.wait_for(5ms) != std::future_status::ready);
        QVERIFY2(timer.elapsed() < slowness.count() / 2, qPrintable(QString::number(timer.elapsed())));
        QCOMPARE(call.get(), nameOf(NetError::Cancelled));
        QVERIFY(m_net->NetIsDeviceAlive(session, usualWait));
    }

    void aLogoutEndsCalls()
    {
        const LLONG session = login(slow);
        QVERIFY(session > 0);
        std::future<QString> call = begin("attributes", session);
        QVERIFY(m_net->NetLogout(session));
        QVERIFY(call.wait_for(slowness / 2) == std::future_status::ready);
        QVERIFY(call.get() != "done");
    }

    void aCleanupEndsCalls()
    {
        const LLONG session = login(slow);
        QVERIFY(session > 0);
        std::future<QString> call = begin("attributes", session);
        m_net->NetCleanup();
        QVERIFY(call.wait_for(slowness / 2) == std::future_status::ready);
        QVERIFY(call.get() != "done");
    }

    void anAddressChangeCanBeEnded_data()
    {
        const auto row = dataTable<QByteArray, bool, int>({"device", "isLate", "checks"});
        row("stopped before it is sent", good, false, 0);
        row("deadline before it is sent", good, true, 0);
        row("stopped while waiting for the device", moving, false, 1);
        row("deadline while waiting for the device", movingToo, true, 1);
    }

    /// The devices respond slowly. On real sockets they are not reachable at the new address.
    void anAddressChangeCanBeEnded()
    {
        QFETCH(const QByteArray, device);
        QFETCH(const bool, isLate);
        QFETCH(const int, checks); // checks of the deadline before it expires
        ModifyDeviceInput change{};
        change.size = sizeof(change);
        change.device.ipVersion = 4;
        change.device.port = 80;
        setBlockText(change.device.mac, macOf(device.toStdString()));
        setBlockText(change.device.currentAddress, device.toStdString());
        setBlockText(change.device.address, "10.99.0.5");
        setBlockText(change.device.subnetMask, "255.255.255.0");
        setBlockText(change.device.account, "admin");
        setBlockText(change.device.password, "Contract-1");
        DeviceRequestOutput output = {.size = sizeof(output)};
        std::stop_source stop;
        int seen = 0;
        const CallStop callStop(stop.get_token(), [&] {
            if (seen++ < checks)
                return false;
            if (!isLate)
                stop.request_stop();
            return isLate;
        });
        if (checks == 0 && !isLate)
            stop.request_stop();
        QElapsedTimer timer;
        timer.start();
        QVERIFY(!m_net->NetModifyDeviceBySearch(change, output, usualWait));
        const QString error = nameOf(m_net->NetGetLastError());
        QVERIFY2(timer.elapsed() < 20000, qPrintable(QString::number(timer.elapsed())));
        if (checks == 0) {
            QCOMPARE(error, nameOf(NetError::Cancelled));
            QVERIFY(login(device.constData()) > 0); // at its old address
        } else {
            const QStringList withoutResponse = {nameOf(NetError::ConnectTimeout),
                                                 nameOf(NetError::NetworkFailure),
                                                 nameOf(NetError::Unconfirmed)};
            QVERIFY2(withoutResponse.contains(error), qPrintable(error));
        }
    }

    void everyOperationReportsAnOfflineDevice()
    {
        const LLONG session = login(leaving);
        QVERIFY(session > 0 && m_net->NetIsDeviceAlive(session, usualWait));
        QVERIFY(m_net->NetRebootDevice(session, usualWait));
        QTRY_VERIFY_WITH_TIMEOUT(isOffline(session), 20000);
        const QString offline = nameOf(NetError::ConnectTimeout);
        QCOMPARE(otherOutcomes(session, 300ms, offline).join(", "), QString());

        InitDeviceAccountInput first{};
        first.size = sizeof(first);
        first.port = 80;
        setBlockText(first.mac, "02:1a:c5:00:0c:99");
        setBlockText(first.address, unusedAddress);
        setBlockText(first.account, "admin");
        setBlockText(first.password, "Contract-1");
        DeviceRequestOutput output = {.size = sizeof(output)};
        QVERIFY(!m_net->NetInitDeviceAccount(first, output, 300ms, ""));
        QCOMPARE(nameOf(m_net->NetGetLastError()), offline);
        ModifyDeviceInput change{};
        change.size = sizeof(change);
        change.device.ipVersion = 4;
        change.device.port = 80;
        setBlockText(change.device.mac, "02:1a:c5:00:0c:99");
        setBlockText(change.device.currentAddress, unusedAddress);
        setBlockText(change.device.address, "192.168.1.98");
        setBlockText(change.device.subnetMask, "255.255.255.0");
        QVERIFY(!m_net->NetModifyDeviceBySearch(change, output, 300ms));
        QCOMPARE(nameOf(m_net->NetGetLastError()), offline);
    }

    void aRebootEndsTheSessions()
    {
        const LLONG session = login(returning);
        const LLONG other = login(returning);
        QVERIFY(session > 0 && other > 0);
        QVERIFY(m_net->NetRebootDevice(session, usualWait));
        QTRY_VERIFY_WITH_TIMEOUT(isOffline(session), 20000);
        LLONG later = 0;
        QTRY_VERIFY_WITH_TIMEOUT((later = login(returning)) > 0, 20000);
        for (const LLONG ended : {session, other}) {
            QCOMPARE(otherOutcomes(ended, usualWait, nameOf(NetError::NetworkFailure)).join(", "), QString());
            QVERIFY(m_net->NetLogout(ended));
        }
        QVERIFY(m_net->NetIsDeviceAlive(later, usualWait));
    }

    void aChangedPasswordEndsTheSession()
    {
        const LLONG session = login(changingPassword);
        QVERIFY(session > 0);
        QTRY_VERIFY(!m_net->NetIsDeviceAlive(session, usualWait));
        QCOMPARE(otherOutcomes(session, usualWait, nameOf(NetError::SessionEnded)).join(", "), QString());
        QVERIFY(m_net->NetLogout(session));
        QVERIFY(login(changingPassword, "admin", "Contract-1-2") > 0);
    }

    void aStreamDeliversDataUntilItsStop()
    {
        const LLONG session = login(good);
        const std::int64_t stream = m_net->NetStartRealStream(session, 0, 0, LiveStreamKind::Main);
        QVERIFY(stream > 0);
        RealDataWatcher watcher;
        QVERIFY(m_net->NetSetRealDataCallback(stream, &RealDataWatcher::take, &watcher, 1));
        QVERIFY(m_net->NetStreamFollowUp(stream, 0, 0));
        QTRY_VERIFY_WITH_TIMEOUT(watcher.calls() > 5, 20000);
        QVERIFY(watcher.bytes().startsWith("\x1a\x45\xdf\xa3")); // the start of the container
        QVERIFY(m_net->NetStopRealStream(stream));
        const int calls = watcher.calls();
        QVERIFY(!m_net->NetStopRealStream(stream));
        QVERIFY(m_net->NetIsDeviceAlive(session, usualWait));
        QCOMPARE(watcher.calls(), calls);
        QCOMPARE(watcher.ends(), QList<int>());
    }

    void theEndOfAStreamHasAReason()
    {
        const LLONG session = login(dropping);
        const std::int64_t stream = m_net->NetStartRealStream(session, 0, 0, LiveStreamKind::Main);
        QVERIFY(stream > 0);
        RealDataWatcher watcher;
        QVERIFY(m_net->NetSetRealDataCallback(stream, &RealDataWatcher::take, &watcher, 1));
        QTRY_COMPARE_WITH_TIMEOUT(watcher.ends(), QList{static_cast<int>(StreamEndReason::EndedByDevice)},
                                  20000);
        QVERIFY(m_net->NetIsDeviceAlive(session, usualWait));
        QVERIFY(watcher.calls() > 1 && !watcher.hasLateData());
        QVERIFY(m_net->NetStopRealStream(stream)); // the handle is valid until then
        QCOMPARE(watcher.ends().size(), 1);
    }

    void noResponseIsReportedAfterASearch()
    {
        SearchCounter first;
        SearchCounter second;
        const auto start = [this](SearchCounter &counter) {
            const SearchParameter parameter = {
                .size = sizeof(parameter), .reserved = 0, .handler = &SearchCounter::take, .user = &counter};
            return m_net->NetStartSearchDevices(parameter, 4ms);
        };
        const std::int64_t search = start(first);
        QVERIFY(search > 0);
        QTRY_VERIFY_WITH_TIMEOUT(first.count > 0, 10000);
        QVERIFY(m_net->NetStopSearchDevices(search));
        first.hasEnded = true;
        QVERIFY(start(second) > 0);
        QTRY_VERIFY_WITH_TIMEOUT(second.count > 0, 10000);
        m_net->NetCleanup();
        second.hasEnded = true;

        SearchCounter single;
        SearchByAddressesRequest request{};
        request.size = sizeof(request);
        request.count = 1;
        setBlockText(request.addresses[0], good);
        QVERIFY(m_net->NetInit());
        m_net->NetSearchDeviceByIp(request, &SearchCounter::take, &single, 3000ms);
        QCOMPARE(single.count.load(), 1);
        QCOMPARE(first.late + second.late, 0);
        QCOMPARE(countersOfSearches(), QList<std::uint32_t>({1, 1}));

        m_net->NetCleanup();
        QVERIFY(m_net->NetInit());
        QCOMPARE(countersOfSearches(), QList<std::uint32_t>({0, 0}));
        request.count = 2; // the operation is for one address
        setBlockText(request.addresses[1], slow);
        m_net->NetSearchDeviceByIp(request, &SearchCounter::take, &single, 3000ms);
        QCOMPARE(single.count.load(), 1);
    }
};

QTEST_GUILESS_MAIN(NetContractTest)
#include "tst_netcontract.moc"

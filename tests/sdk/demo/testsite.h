// What the tests of the simulated site share.
#pragma once

#include "sdk/blocktext.h"
#include "sdk/demo/demoerror.h"
#include "sdk/demo/demosite.h"
#include "sdk/demo/steppableclock.h"
#include "sdk/netlibrary.h"

#include <QSet>
#include <QTest>

#include <functional>
#include <memory>
#include <mutex>

namespace sdk::demo {

template<std::size_t size>
QString textOf(const std::array<char, size> &field)
{
    const std::string_view text = blockText(field);
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// Keeps copies of the answers that it receives, on any thread.
class Collector
{
public:
    static void handle(std::int64_t searchHandle, const SearchAnswer *answer, void *user)
    {
        auto *collector = static_cast<Collector *>(user);
        if (collector->onAnswer)
            collector->onAnswer();
        const std::lock_guard lock(collector->m_mutex);
        collector->m_answers.append(*answer);
        collector->m_handles.insert(searchHandle);
    }

    [[nodiscard]] QList<SearchAnswer> answers() const
    {
        const std::lock_guard lock(m_mutex);
        return m_answers;
    }
    [[nodiscard]] qsizetype count() const { return answers().size(); }
    [[nodiscard]] QSet<std::int64_t> handles() const
    {
        const std::lock_guard lock(m_mutex);
        return m_handles;
    }

    /// "MAC address", sorted.
    [[nodiscard]] QStringList lines() const
    {
        QStringList lines;
        for (const SearchAnswer &answer : answers())
            lines.append(textOf(answer.device.mac) + u' ' + textOf(answer.device.address));
        lines.sort();
        return lines;
    }

    std::function<void()> onAnswer; ///< runs first in every handler

private:
    mutable std::mutex m_mutex;
    QList<SearchAnswer> m_answers;
    QSet<std::int64_t> m_handles;
};

inline SearchParameter parameterFor(Collector &collector)
{
    return {sizeof(SearchParameter), 0, &Collector::handle, &collector};
}

inline SearchByAddressesRequest requestFor(const QStringList &addresses)
{
    SearchByAddressesRequest request = {};
    request.size = sizeof(request);
    request.count = static_cast<std::int32_t>(addresses.size());
    for (qsizetype place = 0; place < addresses.size(); ++place)
        setBlockText(request.addresses[static_cast<std::size_t>(place)], addresses.at(place).toStdString());
    return request;
}

inline DemoError lastError(const NetLibrary &net)
{
    return static_cast<DemoError>(net.NetGetLastError());
}

inline NetError netError(const NetLibrary &net)
{
    return static_cast<NetError>(net.NetGetLastError());
}

/// What a login with these gives; `device` and `error` are filled as by NetLogin.
struct Login
{
    Login(NetLibrary &net, const QString &address, int port, const QString &account = QStringLiteral("admin"),
          const QString &password = QStringLiteral("Pass-1"))
    {
        handle = net.NetLogin(address.toUtf8().constData(), port, account.toUtf8().constData(),
                              password.toUtf8().constData(), 0, nullptr, device, error);
    }
    [[nodiscard]] NetError netError() const { return static_cast<NetError>(error); }

    LoginDeviceInformation device = {};
    std::int32_t error = 99;
    std::int64_t handle = 0;
};

inline SceneDevice camera(int number, std::chrono::milliseconds latency)
{
    SceneDevice device;
    device.mac = QStringLiteral("02:1a:c5:00:00:%1").arg(number, 2, 16, QLatin1Char('0'));
    device.address = QStringLiteral("192.168.1.%1").arg(number);
    device.mask = QStringLiteral("255.255.255.0");
    device.port = 8800;
    device.type = QStringLiteral("IPC");
    device.name = QStringLiteral("大门");
    device.model = QStringLiteral("B-2230-IR");
    device.version = QStringLiteral("2.840.1");
    device.serial = QStringLiteral("S%1").arg(number);
    device.accounts = {{QStringLiteral("admin"), QStringLiteral("Pass-1")}};
    device.latency = latency;
    return device;
}

/// They answer after 100, 500 and 900 ms.
inline const QList<SceneDevice> threeCameras = {camera(1, std::chrono::milliseconds(100)),
                                                camera(2, std::chrono::milliseconds(500)),
                                                camera(3, std::chrono::milliseconds(900))};

/// A prepared library on a site of `devices`, whose clock stands still.
struct TestSite
{
    explicit TestSite(const QList<SceneDevice> &devices)
    {
        Scene scene;
        scene.devices = devices;
        site = DemoSite::create(scene, clock);
        net = site->libraries().net;
        net->NetInit();
    }

    /// Searches the local segment for `duration`; all that is found has reached `collector` at the return.
    void search(Collector &collector, std::chrono::milliseconds duration) const
    {
        const std::int64_t handle =
            net->NetStartSearchDevices(parameterFor(collector), std::chrono::milliseconds(4));
        QVERIFY(handle != 0);
        clock->advance(duration);
        QVERIFY(net->NetStopSearchDevices(handle));
        QCOMPARE(collector.handles().contains(handle), collector.count() > 0);
    }

    /// What Collector::lines() shows of such a search.
    [[nodiscard]] QStringList found(std::chrono::milliseconds duration) const
    {
        Collector collector;
        search(collector, duration);
        return collector.lines();
    }

    std::shared_ptr<SteppableClock> clock = std::make_shared<SteppableClock>();
    std::shared_ptr<DemoSite> site;
    std::shared_ptr<NetLibrary> net;
};

} // namespace sdk::demo

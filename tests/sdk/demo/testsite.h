// What the tests of the simulated site share.
#pragma once

#include "sdk/blocktext.h"
#include "sdk/demo/demoerror.h"
#include "sdk/demo/demosite.h"
#include "sdk/demo/steppableclock.h"
#include "sdk/netlibrary.h"

#include <QTest>

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
    static void handle(std::int64_t, const SearchAnswer *answer, void *user)
    {
        auto *collector = static_cast<Collector *>(user);
        const std::lock_guard lock(collector->m_mutex);
        collector->m_answers.append(*answer);
    }

    [[nodiscard]] QList<SearchAnswer> answers() const
    {
        const std::lock_guard lock(m_mutex);
        return m_answers;
    }

private:
    mutable std::mutex m_mutex;
    QList<SearchAnswer> m_answers;
};

inline DemoError lastError(const NetLibrary &net)
{
    return static_cast<DemoError>(net.NetGetLastError());
}

/// A session with the account of every camera.
struct Login
{
    Login(NetLibrary &net, const QString &address, int port)
    {
        LoginDeviceInformation device = {};
        std::int32_t error = 0;
        handle =
            net.NetLogin(address.toUtf8().constData(), port, "admin", "Pass-1", 0, nullptr, device, error);
    }

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

    /// What a search of the local segment finds within `duration`.
    [[nodiscard]] QList<SearchAnswer> found(std::chrono::milliseconds duration) const
    {
        Collector collector;
        const std::int64_t handle = net->NetStartSearchDevices(
            {sizeof(SearchParameter), 0, &Collector::handle, &collector}, std::chrono::milliseconds(4));
        clock->advance(duration);
        net->NetStopSearchDevices(handle);
        return collector.answers();
    }

    std::shared_ptr<SteppableClock> clock = std::make_shared<SteppableClock>();
    std::shared_ptr<DemoSite> site;
    std::shared_ptr<NetLibrary> net;
};

} // namespace sdk::demo

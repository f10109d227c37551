// A simulated site with the factory on it, for the tests of the configuration pages.
#pragma once

#include "device/dh/devicedh.h"
#include "device/registry/devicefactory.h"
#include "device/store/devicestore.h"
#include "sdk/demo/demonetlibrary.h"
#include "sdk/demo/demosite.h"
#include "sdk/neterror.h"
#include "tests/device/dh/flowingclock.h"
#include "tests/values.h"

#include <QJsonArray>
#include <QSemaphore>
#include <QSignalSpy>

#include <atomic>

/// An initialised device of the type `type` ("IPC", "NVR") at 192.168.1.`number`, port 37777, with the
/// account "admin" and the password "secret1". `number` also makes its MAC unique.
inline sdk::demo::SceneDevice configDevice(int number, const QString &type, int channels)
{
    sdk::demo::SceneDevice device;
    device.mac = QStringLiteral("02:1a:c5:00:00:%1").arg(number, 2, 16, QLatin1Char('0'));
    device.address = QStringLiteral("192.168.1.%1").arg(number);
    device.port = 37777;
    device.name = QStringLiteral("东门");
    device.type = type;
    device.accounts = {{QStringLiteral("admin"), QStringLiteral("secret1")}};
    device.channels.resize(channels);
    return device;
}

/// "address:port" of the device.
inline QString ipportOf(const sdk::demo::SceneDevice &device)
{
    return QStringLiteral("%1:%2").arg(device.address).arg(device.port);
}

/// The network library of the site with faults that a test sets in its public members: an item (a group of
/// settings with a number) that cannot be read, failed writes, changed capabilities, and a gate that delays
/// password changes. The members are set while no request runs.
class SilentNetLibrary : public sdk::demo::DemoNetLibrary
{
public:
    using DemoNetLibrary::DemoNetLibrary;

    int silentItem = 0;                       ///< number of the item whose read times out; 0 for none
    std::unique_ptr<QSemaphore> passwordGate; ///< each resource admits one password change; null: all pass
    std::atomic<int> passwordsAtGate = 0;     ///< password changes that have reached the gate

    bool NetModifyPassword(std::int64_t loginHandle, const sdk::ModifyPasswordInput &input,
                           std::chrono::milliseconds wait) override
    {
        ++passwordsAtGate;
        if (passwordGate)
            passwordGate->acquire();
        return DemoNetLibrary::NetModifyPassword(loginHandle, input, wait);
    }

    std::function<void(sdk::EncodeCapabilities &)>
        changeEncodeCapabilities; ///< changes the capabilities that any device reports; may be empty

    bool NetQueryCapabilities(std::int64_t loginHandle, sdk::CapabilityQuery query, const void *input,
                              void *output, std::chrono::milliseconds wait) override
    {
        const bool hasResponse =
            DemoNetLibrary::NetQueryCapabilities(loginHandle, query, input, output, wait);
        if (hasResponse && query == sdk::CapabilityQuery::Encode && changeEncodeCapabilities)
            changeEncodeCapabilities(*static_cast<sdk::EncodeCapabilities *>(output));
        return hasResponse;
    }

    std::function<void()> beforeWriting; ///< called before an item is written; may be empty
    sdk::NetError writeError =
        sdk::NetError::None; ///< writes report this failure, although they reach the device; None: no fault

    bool NetSetItem(std::int64_t loginHandle, std::uint32_t item, std::int32_t channel, const void *block,
                    std::uint32_t blockSize, std::chrono::milliseconds wait) override
    {
        if (beforeWriting)
            beforeWriting();
        return DemoNetLibrary::NetSetItem(loginHandle, item, channel, block, blockSize, wait) &&
               writeError == sdk::NetError::None;
    }

    bool NetGetItem(std::int64_t loginHandle, std::uint32_t item, std::int32_t channel, void *block,
                    std::uint32_t blockSize, std::chrono::milliseconds wait) override
    {
        m_isSilent = static_cast<int>(item) == silentItem;
        return DemoNetLibrary::NetGetItem(loginHandle, item, channel, block, blockSize, wait) && !m_isSilent;
    }
    [[nodiscard]] std::uint32_t NetGetLastError() const override
    {
        if (writeError != sdk::NetError::None)
            return static_cast<std::uint32_t>(writeError);
        return m_isSilent ? static_cast<std::uint32_t>(sdk::NetError::ConnectTimeout)
                          : DemoNetLibrary::NetGetLastError();
    }

private:
    bool m_isSilent = false; ///< at the last read of an item
};

/// A simulated site with these devices, the factory and the back end "dh" on it. The default account is that
/// of configDevice(). The clock of the site advances whenever a thread waits for it, unless stopTime() was
/// called. Main thread.
class ConfigSite
{
public:
    explicit ConfigSite(const QList<sdk::demo::SceneDevice> &devices)
    {
        sdk::demo::Scene scene;
        scene.devices = devices;
        site = sdk::demo::DemoSite::create(scene, m_clock);
        net = std::make_shared<SilentNetLibrary>(*site);
        store = std::make_shared<DeviceStore>(m_clock);
        engine = std::make_shared<BatchEngine>(m_clock);
        factory = std::make_unique<CDeviceFactory>(CDeviceFactory::BackEndCreators{
            {QStringLiteral("dh"), [this] {
                 sdk::SdkLibraries libraries = site->libraries();
                 libraries.net = net;
                 auto dh = std::make_shared<CDeviceDH>(
                     store, libraries, [] { return SearchSettings(); }, UpgradeLimits(), engine);
                 dh->setStoredAccounts([this](const QStringList &identities) {
                     return storedAccounts ? storedAccounts(identities) : std::nullopt;
                 });
                 return dh;
             }}});
        factory->setDefaultAccount(QStringLiteral("dh"), QStringLiteral("admin"), QStringLiteral("secret1"));
    }

    /// Stops the clock: waits for devices do not end until letTimePass(), or until the test advances clock().
    void stopTime() { m_time.reset(); }
    /// Lets the clock advance by itself again.
    void letTimePass() { m_time = std::make_unique<FlowingClock>(*m_clock); }
    [[nodiscard]] sdk::demo::SteppableClock &clock() const { return *m_clock; }

    /// Logs in to the device for the current session, and clears the recorded requests. Returns the result, a
    /// LoginResult. Blocks.
    int login(const sdk::demo::SceneDevice &device) const
    {
        const int result = factory->findAndLoginDevice(QStringLiteral("dh"), ipportOf(device),
                                                       QStringLiteral("admin"), QStringLiteral("secret1"));
        site->requests().clear();
        return result;
    }

    /// A value of the current session, by its key (EncodeKey, CameraKey).
    [[nodiscard]] QVariant get(const QString &key) const
    {
        return factory->getConfigData(QStringLiteral("dh"), key);
    }
    /// The values of `keys` (separated by spaces) as text, separated by "|".
    [[nodiscard]] QString shown(const QString &keys) const
    {
        QVariantMap values;
        for (const QString &key : keys.split(' '))
            values.insert(key, get(key));
        return valuesOf(values, keys);
    }
    /// Sets a value of the current session. `subKey` is the name of the setting if `key` is a group of image
    /// settings (CameraKey).
    void set(const QString &key, const QVariant &value, const QString &subKey = QString()) const
    {
        factory->setConfigData(QStringLiteral("dh"), key, value, subKey);
    }

    /// The recorded requests of an operation of the network library ("NetSetItem"), the oldest first.
    [[nodiscard]] QList<QJsonObject> asked(const QString &operation) const
    {
        QList<QJsonObject> requests;
        for (const sdk::demo::RecordedRequest &request : site->requests().of(operation))
            requests.append(request.request);
        return requests;
    }

    /// The requests of an operation on items as "item/stream@channel size wait" ("item/mode@..." for camera
    /// items): numbers of the item, of its stream or mode and of the channel (from 0), bytes of the block,
    /// timeout in milliseconds.
    [[nodiscard]] QStringList askedItems(const QString &operation) const
    {
        QStringList lines;
        for (const QJsonObject &request : asked(operation)) {
            const QJsonValue selector = request.value(
                request.contains(QLatin1String("stream")) ? QLatin1String("stream") : QLatin1String("mode"));
            lines.append(QStringLiteral("%1/%2@%3 %4 %5")
                             .arg(request.value(QLatin1String("item")).toInt())
                             .arg(selector.toInt())
                             .arg(request.value(QLatin1String("channel")).toInt())
                             .arg(request.value(QLatin1String("blockSize")).toInt())
                             .arg(request.value(QLatin1String("wait")).toInt()));
        }
        return lines;
    }

private:
    // Declared first because the objects below use it.
    std::shared_ptr<sdk::demo::SteppableClock> m_clock = std::make_shared<sdk::demo::SteppableClock>();

public:
    std::shared_ptr<sdk::demo::DemoSite> site;
    std::shared_ptr<SilentNetLibrary> net; ///< of the factory; uses the site
    AccountChoice::Stored storedAccounts;  ///< finds the stored account of a device; empty: there is none
    std::shared_ptr<DeviceStore> store;
    std::shared_ptr<BatchEngine> engine; ///< of the back end
    std::unique_ptr<CDeviceFactory> factory;

private:
    std::unique_ptr<FlowingClock> m_time = std::make_unique<FlowingClock>(
        *m_clock); // destroyed last: waits of the objects above end while it runs
};

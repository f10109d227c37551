// The upgrade of a simulated device.
#pragma once

#include "sdk/demo/site/demosessions.h"
#include "sdk/firmwarehead.h"
#include "sdk/neterror.h"
#include "sdk/upgradeblocks.h"

#include <QString>

#include <atomic>
#include <chrono>
#include <cstdint>
#include <mutex>
#include <optional>
#include <thread>

namespace sdk::demo {

class SiteState;
struct SceneDevice;

/// What an upgrade was begun with.
struct UpgradeOrder
{
    std::int64_t loginHandle = 0;
    DemoSession session;
    std::optional<FirmwareHead> firmware; ///< nothing for a file that does not tell
    UpgradeProgressHandler handler = nullptr;
    void *user = nullptr;
};

/// Brings a file to a device that writes it and reboots, on a thread of its own and at the site's time.
/// Thread-safe.
class DeviceUpgrade
{
public:
    static constexpr std::chrono::milliseconds usualSending{8000};
    static constexpr std::chrono::milliseconds writing{5000};

    /// `site` and `sessions` must outlive it.
    DeviceUpgrade(SiteState &site, DemoSessions &sessions, std::int64_t handle, UpgradeOrder order);

    /// Gives up what has not come to its end. Must not run in a handler.
    ~DeviceUpgrade();

    [[nodiscard]] const UpgradeOrder &order() const { return m_order; }
    [[nodiscard]] bool hasEnded() const { return m_hasEnded; }

    /// Lets the device drop the file; to be destroyed then. False once it is writing.
    [[nodiscard]] bool drop();

    /// The handler runs no more after the return.
    void letGoOfHandler();

    /// Whether the calling thread is inside a handler of any upgrade of this process.
    [[nodiscard]] static bool isInsideHandler();

private:
    void run(const std::stop_token &stop);
    [[nodiscard]] bool goThrough(UpgradePhase phase, std::chrono::milliseconds duration,
                                 const std::stop_token &stop);
    [[nodiscard]] bool standsAt(const SceneDevice &device, UpgradePhase phase, int percent,
                                const std::stop_token &stop);
    [[nodiscard]] bool beginWriting();
    void finish();
    bool fail(NetError error);
    void tell(const UpgradeProgress &progress);

    SiteState &m_site;
    DemoSessions &m_sessions;
    const std::int64_t m_handle;
    const UpgradeOrder m_order;
    std::atomic<bool> m_hasEnded = false;

    std::mutex m_phaseMutex; // of the two
    bool m_isDropped = false;
    bool m_isWriting = false;

    std::mutex m_handlerMutex; // held while the handler runs
    bool m_hasHandler = true;
    std::jthread m_thread; // last: it uses all of them
};

} // namespace sdk::demo

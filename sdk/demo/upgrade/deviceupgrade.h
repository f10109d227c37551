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

/// The parameters of an upgrade.
struct UpgradeOrder
{
    std::int64_t loginHandle = 0;
    DemoSession session;
    std::optional<FirmwareHead> firmware; ///< nullopt for a file without a valid head
    UpgradeProgressHandler handler = nullptr;
    void *user = nullptr;
};

/// Transfers a file to a device, which writes it and reboots. It has a thread and follows the site's clock.
/// Thread-safe.
class DeviceUpgrade
{
public:
    static constexpr std::chrono::milliseconds usualSending{8000};
    static constexpr std::chrono::milliseconds writing{5000};

    /// `site` and `sessions` must outlive the upgrade.
    DeviceUpgrade(SiteState &site, DemoSessions &sessions, std::int64_t handle, UpgradeOrder order);

    /// Cancels an unfinished upgrade. Must not run in a handler.
    ~DeviceUpgrade();

    [[nodiscard]] const UpgradeOrder &order() const { return m_order; }
    [[nodiscard]] bool hasEnded() const { return m_hasEnded; }

    /// Cancels the transfer; the caller must then destroy the upgrade. Returns false while the device is
    /// writing.
    [[nodiscard]] bool cancelTransfer();

    /// The handler is not called after the return.
    void clearHandler();

    /// Whether the calling thread is inside a handler of any upgrade of this process.
    [[nodiscard]] static bool isInsideHandler();

private:
    void run(const std::stop_token &stop);
    [[nodiscard]] bool runPhase(UpgradePhase phase, std::chrono::milliseconds duration,
                                const std::stop_token &stop);
    [[nodiscard]] bool passes(const SceneDevice &device, UpgradePhase phase, int percent,
                              const std::stop_token &stop);
    [[nodiscard]] bool startWriting();
    void finish();
    bool fail(NetError error);
    void report(const UpgradeProgress &progress);

    SiteState &m_site;
    DemoSessions &m_sessions;
    const std::int64_t m_handle;
    const UpgradeOrder m_order;
    std::atomic<bool> m_hasEnded = false;

    std::mutex m_phaseMutex; // guards the two members below
    bool m_isCancelled = false;
    bool m_isWriting = false;

    std::mutex m_handlerMutex; // held while the handler runs
    bool m_hasHandler = true;
    std::jthread m_thread; // last: it uses the other members
};

} // namespace sdk::demo

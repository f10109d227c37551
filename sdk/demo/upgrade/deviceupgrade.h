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
    std::int64_t loginHandle = 0;             ///< of the session
    DemoSession session;                      ///< its device is upgraded, and must stay reachable through it
    std::optional<FirmwareHead> firmware;     ///< nullopt: the device refuses the file after its transfer
    UpgradeProgressHandler handler = nullptr; ///< not null
    void *user = nullptr;
};

/// Simulates the transfer of a file to a device, which writes it, has the new version and reboots. A separate
/// thread follows the site's clock and calls the handler: for each percent of Sending and of Writing, and at
/// last with Done or Failed. Thread-safe, except for the destructor.
class DeviceUpgrade
{
public:
    // Durations of the phases, on the site's clock.
    static constexpr std::chrono::milliseconds usualSending{8000}; ///< without Fault::UpgradeTakes
    static constexpr std::chrono::milliseconds writing{5000};

    /// Starts the upgrade. `handle` is passed to the handler. `site` and `sessions` must outlive the object.
    /// Throws std::system_error if the host provides no thread.
    DeviceUpgrade(SiteState &site, DemoSessions &sessions, std::int64_t handle, UpgradeOrder order);

    /// Ends an unfinished upgrade in any phase, without a report, and waits for a running handler: the device
    /// keeps its firmware. Must not run in a handler.
    ~DeviceUpgrade();

    [[nodiscard]] const UpgradeOrder &order() const { return m_order; }

    /// True once the upgrade has ended, already while the handler is called with Done or Failed.
    [[nodiscard]] bool hasEnded() const { return m_hasEnded; }

    /// Cancels the transfer, or has no effect on an upgrade that has ended. Returns true in both cases: the
    /// caller must then destroy the upgrade. Returns false, without an effect, while the device is writing.
    [[nodiscard]] bool cancelTransfer();

    /// Removes the handler and waits for its running call; the upgrade continues. Must not be called from the
    /// handler.
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

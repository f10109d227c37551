#include "sdk/demo/upgrade/deviceupgrade.h"

#include "sdk/clock.h"
#include "sdk/demo/device/maintenance.h"
#include "sdk/demo/site/devicereach.h"
#include "sdk/demo/site/sitestate.h"

#include <utility>

namespace sdk::demo {

namespace {

constexpr int fullPercent = 100; // percent
thread_local bool insideUpgradeHandler = false;

/// Whether the fault `kind` takes effect at `percent` of `phase`: below 100 while sending, otherwise while
/// writing.
bool takesEffect(const SceneDevice &device, Fault kind, UpgradePhase phase, int percent)
{
    const std::optional<FaultSetting> fault = device.fault(kind);
    if (!fault)
        return false;
    return phase == UpgradePhase::Sending ? fault->number < fullPercent && percent >= fault->number
                                          : fault->number == fullPercent;
}

} // namespace

DeviceUpgrade::DeviceUpgrade(SiteState &site, DemoSessions &sessions, std::int64_t handle, UpgradeOrder order)
    : m_site(site), m_sessions(sessions), m_handle(handle), m_order(std::move(order)),
      m_thread([this](const std::stop_token &stop) { run(stop); })
{
}

DeviceUpgrade::~DeviceUpgrade() = default;

bool DeviceUpgrade::cancelTransfer()
{
    {
        const std::lock_guard lock(m_phaseMutex);
        if (m_isWriting && !m_hasEnded)
            return false;
        m_isCancelled = true;
    }
    m_thread.request_stop();
    return true;
}

void DeviceUpgrade::clearHandler()
{
    const std::lock_guard lock(m_handlerMutex);
    m_hasHandler = false;
}

bool DeviceUpgrade::isInsideHandler()
{
    return insideUpgradeHandler;
}

void DeviceUpgrade::run(const std::stop_token &stop)
{
    std::chrono::milliseconds sending = usualSending;
    const std::optional<SceneDevice> device = m_site.device(m_order.session.mac);
    const std::optional<FaultSetting> takes = device ? device->fault(Fault::UpgradeTakes) : std::nullopt;
    if (takes)
        sending = std::chrono::seconds(takes->number);
    if (runPhase(UpgradePhase::Sending, sending, stop) && startWriting() &&
        runPhase(UpgradePhase::Writing, writing, stop))
        finish();
    m_hasEnded = true;
}

bool DeviceUpgrade::runPhase(UpgradePhase phase, std::chrono::milliseconds duration,
                             const std::stop_token &stop)
{
    const std::int64_t start = m_site.clock().now();
    for (int percent = 1; percent <= fullPercent; ++percent) {
        if (!m_site.clock().waitUntil(start + duration.count() * percent / fullPercent, stop))
            return false;
        const std::optional<SceneDevice> device = m_site.device(m_order.session.mac);
        if (!device || !isReachable(m_site, m_order.session))
            return fail(NetError::NetworkFailure);
        if (takesEffect(*device, Fault::UpgradeFailsAt, phase, percent))
            return fail(NetError::UpgradeFailed);
        if (!passes(*device, phase, percent, stop))
            return false;
        report({.size = sizeof(UpgradeProgress), .phase = phase, .percent = percent, .error = 0});
    }
    // The device checks the file after the complete transfer.
    return m_order.firmware || fail(NetError::FirmwareRefused);
}

bool DeviceUpgrade::passes(const SceneDevice &device, UpgradePhase phase, int percent,
                           const std::stop_token &stop)
{
    if (!takesEffect(device, Fault::UpgradeHangsAt, phase, percent))
        return true;
    while (m_site.clock().wait(std::chrono::hours(1), stop)) {
    }
    return false;
}

bool DeviceUpgrade::startWriting()
{
    const std::lock_guard lock(m_phaseMutex);
    m_isWriting = !m_isCancelled;
    return m_isWriting;
}

void DeviceUpgrade::finish()
{
    m_site.changeDevice(m_order.session.mac, [this](SceneDevice &device, const DeviceAddresses &) {
        installFirmware(device, *m_order.firmware, m_site.clock().now());
    });
    m_sessions.endSessionsTo(m_order.session.mac);
    report(
        {.size = sizeof(UpgradeProgress), .phase = UpgradePhase::Done, .percent = fullPercent, .error = 0});
}

bool DeviceUpgrade::fail(NetError error)
{
    report({.size = sizeof(UpgradeProgress),
            .phase = UpgradePhase::Failed,
            .percent = 0,
            .error = static_cast<std::uint32_t>(error)});
    return false;
}

void DeviceUpgrade::report(const UpgradeProgress &progress)
{
    if (progress.phase == UpgradePhase::Done || progress.phase == UpgradePhase::Failed)
        m_hasEnded = true; // the handler's owner may release the upgrade immediately
    const std::lock_guard lock(m_handlerMutex);
    if (!m_hasHandler)
        return;
    insideUpgradeHandler = true;
    m_order.handler(m_handle, &progress, m_order.user);
    insideUpgradeHandler = false;
}

} // namespace sdk::demo

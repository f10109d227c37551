// Requests of the simulated network library without a login.
#include "sdk/callstop.h"
#include "sdk/clock.h"
#include "sdk/demo/demonetlibrary.h"
#include "sdk/demo/device/fieldtext.h"
#include "sdk/demo/scene/addresstext.h"
#include "sdk/demo/site/devicechanges.h"
#include "sdk/demo/site/sitestate.h"

#include <algorithm>

namespace sdk::demo {

using namespace std::chrono_literals;

bool DemoNetLibrary::waitUnlessStopped(std::chrono::milliseconds duration, const std::stop_token &stop) const
{
    constexpr auto checkInterval = 100ms;
    Clock &clock = m_site.clock();
    const std::int64_t end = clock.now() + duration.count();
    std::int64_t next = 0;
    do {
        next = std::min(end, clock.now() + checkInterval.count());
        if (CallStop::isRequested() || !clock.waitUntil(next, stop))
            return false;
    } while (next < end);
    return true;
}

bool DemoNetLibrary::responds(const CallGate::Call &call, const QString &mac, bool fromOtherSegment,
                              std::chrono::milliseconds wait)
{
    if (!call.isAllowed())
        return m_error.fail(DemoError::NotPrepared);
    std::stop_source stop; // stops with the library, or with the caller's wait
    const std::stop_callback onCleanup(call.stop(), [&stop] { stop.request_stop(); });
    const std::stop_callback onCallStop(CallStop::token(), [&stop] { stop.request_stop(); });
    const std::optional<SceneDevice> device = m_site.device(mac);
    if (device && !device->isRemote && (fromOtherSegment || !device->inOtherSegment) &&
        device->isListening(m_site.clock().now())) {
        if (device->hasFault(Fault::RefusesConnections))
            return m_error.fail(NetError::ConnectFailed);
        return waitForResponse(stop.get_token(), *device, wait) || m_error.fail(NetError::ConnectTimeout);
    }
    if (waitUnlessStopped(bounded(wait), stop.get_token()))
        return m_error.fail(NetError::ConnectTimeout);
    // Without a connection nothing was sent.
    return m_error.fail(CallStop::isRequested() ? NetError::Cancelled : NetError::NetworkFailure);
}

bool DemoNetLibrary::NetInitDeviceAccount(const InitDeviceAccountInput &input, DeviceRequestOutput &output,
                                          std::chrono::milliseconds wait, const char *localAddress)
{
    const CallGate::Call call(m_gate);
    const QString mac = canonicalMac(textOf(input.mac));
    const SceneAccount account = {textOf(input.account), textOf(input.password)};
    record("NetInitDeviceAccount",
           {{QStringLiteral("size"), static_cast<qint64>(input.size)},
            {QStringLiteral("mac"), textOf(input.mac)},
            {QStringLiteral("account"), account.user},
            {QStringLiteral("passwordLength"), account.password.size()},
            {QStringLiteral("passwordResetWay"), input.passwordResetWay},
            {QStringLiteral("localAddress"), QString::fromLocal8Bit(localAddress)},
            {QStringLiteral("wait"), static_cast<qint64>(wait.count())}},
           mac);
    if (input.size != sizeof(InitDeviceAccountInput) || output.size != sizeof(DeviceRequestOutput))
        return m_error.fail(DemoError::WrongSize);
    if (!responds(call, mac, false, wait))
        return false;
    const NetError error = initialiseDevice(m_site, mac, account);
    return error == NetError::None || m_error.fail(error);
}

bool DemoNetLibrary::NetModifyDeviceBySearch(const ModifyDeviceInput &input, DeviceRequestOutput &output,
                                             std::chrono::milliseconds wait)
{
    const CallGate::Call call(m_gate);
    const SearchDeviceInformation &requested = input.device;
    const QString mac = canonicalMac(textOf(requested.mac));
    record("NetModifyDeviceBySearch",
           {{QStringLiteral("size"), static_cast<qint64>(input.size)},
            {QStringLiteral("mac"), textOf(requested.mac)},
            {QStringLiteral("ipVersion"), requested.ipVersion},
            {QStringLiteral("address"), textOf(requested.address)},
            {QStringLiteral("subnetMask"), textOf(requested.subnetMask)},
            {QStringLiteral("gateway"), textOf(requested.gateway)},
            {QStringLiteral("dhcpEnabled"), requested.dhcpEnabled},
            {QStringLiteral("wait"), static_cast<qint64>(wait.count())}},
           mac);
    if (input.size != sizeof(ModifyDeviceInput) || output.size != sizeof(DeviceRequestOutput))
        return m_error.fail(DemoError::WrongSize);
    if (CallStop::isRequested())
        return m_error.fail(NetError::Cancelled);
    if (!responds(call, mac, true, wait))
        return false;
    const NetError error = changeDeviceAddress(m_site, mac, requested);
    return error == NetError::None || m_error.fail(error);
}

} // namespace sdk::demo

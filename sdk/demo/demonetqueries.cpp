// Queries and configuration texts of the simulated network library.
#include "sdk/clock.h"
#include "sdk/demo/demonetlibrary.h"
#include "sdk/demo/device/deviceresponses.h"
#include "sdk/demo/device/maintenance.h"
#include "sdk/demo/site/devicereach.h"
#include "sdk/demo/site/sitestate.h"

#include <algorithm>
#include <cstring>

namespace sdk::demo {

std::optional<SceneDevice> DemoNetLibrary::askedDevice(const CallGate::Call &call,
                                                       const std::optional<DemoSession> &session,
                                                       std::chrono::milliseconds wait)
{
    if (!call.isAllowed()) {
        m_error.fail(DemoError::NotPrepared);
        return std::nullopt;
    }
    if (!session) {
        m_error.fail(NetError::SessionEnded);
        return std::nullopt;
    }
    std::optional<SceneDevice> device;
    const NetError error = waitForDevice(call, *session, wait, device);
    if (error != NetError::None) {
        m_error.fail(error);
        device.reset();
    }
    return device;
}

NetError DemoNetLibrary::waitForDevice(const CallGate::Call &call, const DemoSession &session,
                                       std::chrono::milliseconds wait, std::optional<SceneDevice> &device)
{
    std::stop_source stop; // stops with the library, with the session, or with its calls
    const std::stop_callback onCleanup(call.stop(), [&stop] { stop.request_stop(); });
    const std::stop_callback onCancel(session.calls, [&stop] { stop.request_stop(); });
    if (isReachable(m_site, session))
        device = m_site.device(session.mac);
    if (device && device->hasFault(Fault::RefusesConnections))
        return NetError::ConnectFailed;
    const bool hasResponse = device && waitForResponse(stop.get_token(), *device, wait);
    if (!device)
        m_site.clock().wait(bounded(wait), stop.get_token());
    if (call.stop().stop_requested())
        return NetError::NetworkFailure;
    if (session.calls.stop_requested())
        return m_sessions.session(session.handle) ? NetError::Cancelled : NetError::SessionEnded;
    if (!hasResponse)
        return NetError::ConnectTimeout;
    // The restart has closed the connection. The login is not refused: the caller may repeat it without
    // asking the user.
    if (session.hasEnded)
        return NetError::NetworkFailure;
    const SceneAccount *account = accountOf(*device, session.account);
    if (!account || account->password != session.password)
        return NetError::SessionEnded;
    noteRequest(*device);
    return NetError::None;
}

bool DemoNetLibrary::waitForResponse(const std::stop_token &stop, const SceneDevice &device,
                                     std::chrono::milliseconds wait) const
{
    const std::optional<FaultSetting> slow = device.fault(Fault::SlowAnswers);
    if (!slow)
        return true;
    const std::chrono::milliseconds time(slow->number);
    return waitUnlessStopped(std::min(time, bounded(wait)), stop) && time <= bounded(wait);
}

void DemoNetLibrary::noteRequest(const SceneDevice &device)
{
    if (device.hasFault(Fault::PasswordChangesAfter))
        m_site.changeDevice(device.mac,
                            [](SceneDevice &changed, const DeviceAddresses &) { noteLogin(changed); });
}

bool DemoNetLibrary::NetQueryConfig(std::int64_t loginHandle, QueryCommand command, std::int32_t channel,
                                    void *buffer, std::uint32_t bufferSize, std::uint32_t &returnedSize,
                                    std::chrono::milliseconds wait)
{
    const CallGate::Call call(m_gate);
    const std::optional<DemoSession> session = m_sessions.session(loginHandle);
    record("NetQueryConfig",
           {{QStringLiteral("loginHandle"), static_cast<qint64>(loginHandle)},
            {QStringLiteral("command"), static_cast<int>(command)},
            {QStringLiteral("channel"), channel},
            {QStringLiteral("bufferSize"), static_cast<qint64>(bufferSize)},
            {QStringLiteral("wait"), static_cast<qint64>(wait.count())}},
           session.value_or(DemoSession()).mac);
    returnedSize = 0;
    const std::optional<SceneDevice> device = askedDevice(call, session, wait);
    if (!device)
        return false;
    const auto copyOut = [&](const auto &block) {
        if (!buffer || bufferSize < sizeof(block))
            return m_error.fail(DemoError::WrongSize);
        std::memcpy(buffer, &block, sizeof(block));
        returnedSize = sizeof(block);
        return true;
    };
    switch (command) {
    case QueryCommand::DeviceAttributes:
        return copyOut(deviceAttributes(*device));
    case QueryCommand::Time:
        return copyOut(deviceTime(*device, m_site.clock().now()));
    case QueryCommand::NetworkServices:
        return copyOut(networkServices(*device));
    }
    return m_error.fail(NetError::NotSupported);
}

bool DemoNetLibrary::NetGetNewConfig(std::int64_t loginHandle, const char *name, std::int32_t channel,
                                     char *text, std::uint32_t textSize, std::int32_t &error,
                                     std::chrono::milliseconds wait)
{
    const CallGate::Call call(m_gate);
    const std::optional<DemoSession> session = m_sessions.session(loginHandle);
    const QString requested = QString::fromLocal8Bit(name);
    record("NetGetNewConfig",
           {{QStringLiteral("loginHandle"), static_cast<qint64>(loginHandle)},
            {QStringLiteral("name"), requested},
            {QStringLiteral("channel"), channel},
            {QStringLiteral("textSize"), static_cast<qint64>(textSize)},
            {QStringLiteral("wait"), static_cast<qint64>(wait.count())}},
           session.value_or(DemoSession()).mac);
    const bool isFetched = fetchConfig(call, session, requested, channel, text, textSize, wait);
    error = isFetched ? 0 : static_cast<std::int32_t>(m_error.last());
    return isFetched;
}

bool DemoNetLibrary::fetchConfig(const CallGate::Call &call, const std::optional<DemoSession> &session,
                                 const QString &name, std::int32_t channel, char *text,
                                 std::uint32_t textSize, std::chrono::milliseconds wait)
{
    const std::optional<SceneDevice> device = askedDevice(call, session, wait);
    if (!device)
        return false;
    const std::optional<FaultSetting> refusal = device->fault(Fault::RefusesConfiguration);
    const std::optional<QByteArray> response = configurationText(*device, name, channel);
    if (!response || (refusal && refusal->text == name))
        return m_error.fail(NetError::NotSupported);
    // The constant data of a byte array has a terminating zero.
    const auto size = static_cast<std::size_t>(response->size()) + 1;
    if (!text || textSize < size)
        return m_error.fail(DemoError::WrongSize);
    std::memcpy(text, response->constData(), size);
    return true;
}

} // namespace sdk::demo

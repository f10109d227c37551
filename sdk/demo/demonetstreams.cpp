// Live streams of simulated devices.
#include "sdk/clock.h"
#include "sdk/demo/demonetlibrary.h"
#include "sdk/demo/device/streamsettings.h"
#include "sdk/demo/site/sitestate.h"

namespace sdk::demo {

namespace {

/// A device without a list of channels has one channel.
ChannelStates statesOf(const SceneDevice &device)
{
    ChannelStates states = {};
    states.size = sizeof(states);
    if (device.channels.isEmpty()) {
        states.count = 1;
        states.states[0] = {0, ChannelConnection::Connected};
        return states;
    }
    const auto count =
        std::min<std::size_t>(static_cast<std::size_t>(device.channels.size()), maximumChannelStates);
    for (std::size_t index = 0; index < count; ++index) {
        const bool isConnected = device.channels.at(static_cast<qsizetype>(index)).connected;
        states.states[index] = {static_cast<std::int32_t>(index),
                                isConnected ? ChannelConnection::Connected : ChannelConnection::NotConnected};
    }
    states.count = static_cast<std::uint32_t>(count);
    return states;
}

} // namespace

std::int64_t DemoNetLibrary::NetStartRealStream(std::int64_t loginHandle, std::int32_t channel,
                                                std::uintptr_t window, LiveStreamKind kind)
{
    const CallGate::Call call(m_gate);
    const std::optional<DemoSession> session = m_sessions.session(loginHandle);
    record("NetStartRealStream",
           {{QStringLiteral("loginHandle"), static_cast<qint64>(loginHandle)},
            {QStringLiteral("channel"), channel},
            {QStringLiteral("window"), static_cast<qint64>(window)},
            {QStringLiteral("kind"), static_cast<int>(kind)}},
           session.value_or(DemoSession()).mac);
    const auto fail = [this](auto error) {
        m_error.fail(error);
        return std::int64_t(0);
    };
    const std::optional<SceneDevice> device = askedDevice(call, session, longestStreamStart);
    if (!device)
        return 0;
    if (device->isUninitialised() || !streamSettings(*device, channel, kind))
        return fail(NetError::NotSupported);
    const std::optional<FaultSetting> late = device->fault(Fault::FirstPictureLate);
    const std::int64_t startTime = m_site.clock().now() + (late ? late->number : 0);
    const std::int64_t handle = m_streams.open({loginHandle, session->mac, channel, kind, startTime});
    if (handle == 0)
        return fail(DemoError::NoThread);
    if (!m_sessions.session(loginHandle)) { // the session and its streams were closed meanwhile
        m_streams.close(handle);
        return fail(NetError::SessionEnded);
    }
    return handle;
}

bool DemoNetLibrary::NetSetRealDataCallback(std::int64_t streamHandle, RealDataHandler handler, void *user,
                                            std::uint32_t flag)
{
    recordOfStream("NetSetRealDataCallback", streamHandle,
                   {{QStringLiteral("hasHandler"), handler != nullptr},
                    {QStringLiteral("flag"), static_cast<qint64>(flag)}});
    if (LiveStream::isInsideHandler())
        return m_error.fail(DemoError::InsideHandler);
    const CallGate::Call call(m_gate);
    return m_streams.setHandler(streamHandle, handler, user) || m_error.fail(NetError::InvalidValue);
}

bool DemoNetLibrary::NetStreamFollowUp(std::int64_t streamHandle, std::int32_t channel,
                                       std::uint32_t reserved)
{
    recordOfStream(
        "NetStreamFollowUp", streamHandle,
        {{QStringLiteral("channel"), channel}, {QStringLiteral("reserved"), static_cast<qint64>(reserved)}});
    const CallGate::Call call(m_gate);
    const std::optional<LiveStreamOrder> order = m_streams.order(streamHandle);
    if (order && order->channel != channel)
        return m_error.fail(NetError::NotSupported);
    return m_streams.requestKeyFrame(streamHandle) || m_error.fail(NetError::InvalidValue);
}

bool DemoNetLibrary::NetStopRealStream(std::int64_t streamHandle)
{
    recordOfStream("NetStopRealStream", streamHandle, {});
    if (LiveStream::isInsideHandler())
        return m_error.fail(DemoError::InsideHandler);
    const CallGate::Call call(m_gate);
    return m_streams.close(streamHandle) || m_error.fail(NetError::InvalidValue);
}

bool DemoNetLibrary::NetQueryChannelStates(std::int64_t loginHandle, ChannelStates &states,
                                           std::chrono::milliseconds wait)
{
    const CallGate::Call call(m_gate);
    const std::optional<DemoSession> session = m_sessions.session(loginHandle);
    record("NetQueryChannelStates",
           {{QStringLiteral("loginHandle"), static_cast<qint64>(loginHandle)},
            {QStringLiteral("size"), static_cast<qint64>(states.size)},
            {QStringLiteral("wait"), static_cast<qint64>(wait.count())}},
           session.value_or(DemoSession()).mac);
    if (states.size != sizeof(states))
        return m_error.fail(DemoError::WrongSize);
    const std::optional<SceneDevice> device = askedDevice(call, session, wait);
    if (!device)
        return false;
    if (device->hasFault(Fault::RefusesChannelStates))
        return m_error.fail(NetError::NotSupported);
    states = statesOf(*device);
    return true;
}

void DemoNetLibrary::recordOfStream(const char *operation, std::int64_t streamHandle,
                                    QJsonObject request) const
{
    request.insert(QStringLiteral("streamHandle"), static_cast<qint64>(streamHandle));
    record(operation, request, m_streams.order(streamHandle).value_or(LiveStreamOrder()).mac);
}

} // namespace sdk::demo

// Logins, and requests to a device in a session.
#include "sdk/blocktext.h"
#include "sdk/onvif/mapping/cameramapping.h"
#include "sdk/onvif/mapping/encodemapping.h"
#include "sdk/onvif/mapping/systemmapping.h"
#include "sdk/onvif/onvifnetlibrary.h"
#include "sdk/onvif/session/clocktime.h"

#include <algorithm>
#include <cstring>

namespace sdk::onvif {

namespace {

using namespace std::chrono_literals;

OnvifSession::Deadline deadlineAfter(std::chrono::milliseconds wait)
{
    return std::chrono::steady_clock::now() + std::max(wait, 0ms);
}

LoginDeviceInformation loginInformation(const OnvifSession &session)
{
    LoginDeviceInformation device{};
    setBlockText(device.serialNumber, session.information().serialNumber);
    setBlockText(device.model, session.information().model);
    const auto kind = session.channels().size() > 1 ? DeviceTypeCode::Recorder : DeviceTypeCode::Camera;
    device.deviceType = static_cast<std::uint8_t>(kind);
    device.channelCount = static_cast<std::uint16_t>(session.channels().size());
    return device;
}

/// Devices without the operation, and devices that do not report their interfaces, have no MAC.
NetError readAttributes(OnvifSession &session, DeviceAttributes &attributes, OnvifSession::Deadline deadline)
{
    attributes.size = sizeof(attributes);
    setBlockText(attributes.serialNumber, session.information().serialNumber);
    setBlockText(attributes.softwareVersion, session.information().firmwareVersion);
    setBlockText(attributes.detailModel, session.information().model);
    const auto interfaces = session.device(deadline).interfaces();
    if (!interfaces.isOk() && interfaces.error != NetError::NotSupported &&
        interfaces.error != NetError::Refused)
        return interfaces.error;
    if (const DeviceInterface *interface = interfaceInUse(interfaces.value, session.service().host))
        setBlockText(attributes.mac, interface->mac);
    attributes.videoInputs = static_cast<std::int32_t>(session.channels().size());
    return NetError::None;
}

/// The error of a session whose device has restarted: the device is still offline, it has another key, or
/// else the connection is lost. The login is not refused, so it may be sent again without asking the user.
NetError errorOfEnded(OnvifSession &session, OnvifSession::Deadline deadline)
{
    const NetError error = session.device(deadline).information().error;
    switch (error) {
    case NetError::ConnectTimeout:
    case NetError::ConnectFailed:
    case NetError::UnknownCertificate:
    case NetError::ChangedCertificate:
        return error;
    default:
        return NetError::NetworkFailure;
    }
}

bool isEncodeItem(std::uint32_t item)
{
    return item >= static_cast<std::uint32_t>(EncodeItem::VideoFormat) &&
           item <= static_cast<std::uint32_t>(EncodeItem::AudioFormat);
}

} // namespace

LLONG OnvifNetLibrary::login(const ServiceAddress &service, const HttpLogin &login,
                             LoginDeviceInformation &device)
{
    const CallGate::Call call(m_gate);
    if (!call.isAllowed()) {
        m_error.fail(NetError::InvalidValue);
        return 0;
    }
    NetError error = NetError::None;
    const auto http = std::make_shared<HttpClient>(m_certificates);
    const std::stop_callback cancelOnCleanup(call.stop(), [http] { http->cancel(); });
    std::shared_ptr<OnvifSession> session =
        OnvifSession::open(service, login, http, deadlineAfter(longestLogin), error);
    if (!session) {
        m_error.fail(error);
        return 0;
    }
    device = loginInformation(*session);
    const std::scoped_lock lock(m_mutex);
    const LLONG handle = ++m_lastHandle;
    m_sessions.emplace(handle, std::move(session));
    return handle;
}

LLONG OnvifNetLibrary::NetLogin(const char *address, std::int32_t port, const char *account,
                                const char *password, std::int32_t, void *, LoginDeviceInformation &device,
                                std::int32_t &error)
{
    const CallGate::Call call(m_gate);
    LLONG handle = 0;
    if (call.isAllowed())
        handle =
            login(m_discovery->serviceAt(address, port), {.account = account, .password = password}, device);
    else
        m_error.fail(NetError::InvalidValue);
    error = handle > 0 ? 0 : static_cast<std::int32_t>(m_error.last());
    return handle;
}

LLONG OnvifNetLibrary::NetLoginSecure(const LoginSecureInput &input, LoginSecureOutput &output)
{
    const CallGate::Call call(m_gate);
    LLONG handle = 0;
    if (call.isAllowed() && input.size == sizeof(input) && output.size == sizeof(output))
        handle = login(m_discovery->serviceAt(std::string(blockText(input.address)), input.port),
                       {.account = std::string(blockText(input.account)),
                        .password = std::string(blockText(input.password))},
                       output.device);
    else
        m_error.fail(NetError::InvalidValue);
    output.error = handle > 0 ? 0 : m_error.last();
    return handle;
}

bool OnvifNetLibrary::NetLogout(LLONG loginHandle)
{
    const CallGate::Call call(m_gate);
    std::shared_ptr<OnvifSession> session;
    {
        const std::scoped_lock lock(m_mutex);
        const auto found = m_sessions.find(loginHandle);
        if (found == m_sessions.end())
            return m_error.fail(NetError::SessionEnded);
        session = std::move(found->second);
        m_sessions.erase(found);
    }
    session->cancel(); // the calls of other threads end
    m_streams.closeAllOf(loginHandle);
    m_uploads.closeAllOf(loginHandle);
    return true;
}

bool OnvifNetLibrary::NetCancelCalls(LLONG loginHandle)
{
    const CallGate::Call call(m_gate);
    const std::shared_ptr<OnvifSession> session = this->session(loginHandle);
    if (!call.isAllowed() || !session)
        return m_error.fail(NetError::SessionEnded);
    session->calls().cancel();
    return true;
}

bool OnvifNetLibrary::NetIsDeviceAlive(LLONG loginHandle, std::chrono::milliseconds wait)
{
    return onSession(loginHandle, wait, [](OnvifSession &session, Deadline deadline) {
        return session.device(deadline).information().error;
    });
}

std::shared_ptr<OnvifSession> OnvifNetLibrary::session(LLONG loginHandle) const
{
    const std::scoped_lock lock(m_mutex);
    const auto found = m_sessions.find(loginHandle);
    return found == m_sessions.end() ? nullptr : found->second;
}

void OnvifNetLibrary::endSessionsTo(const std::string &host)
{
    const std::scoped_lock lock(m_mutex);
    for (const auto &[handle, session] : m_sessions) {
        if (session->service().host == host)
            session->end();
    }
}

bool OnvifNetLibrary::onSession(LLONG loginHandle, std::chrono::milliseconds wait, const SessionWork &work)
{
    const CallGate::Call call(m_gate);
    const std::shared_ptr<OnvifSession> session = this->session(loginHandle);
    if (!call.isAllowed() || !session)
        return m_error.fail(NetError::SessionEnded);
    const std::stop_token stop = session->calls().stop();
    const std::stop_callback cancelOnCleanup(call.stop(), [&session] { session->cancel(); });
    NetError error = NetError::None;
    {
        const RunningCall running(stop);
        const Deadline deadline = deadlineAfter(wait);
        error = session->hasEnded() ? errorOfEnded(*session, deadline) : work(*session, deadline);
    }
    if (stop.stop_requested())
        error = !call.stop().stop_requested() && this->session(loginHandle) ? NetError::Cancelled
                                                                            : NetError::SessionEnded;
    return error == NetError::None || m_error.fail(error);
}

bool OnvifNetLibrary::NetQueryConfig(LLONG loginHandle, QueryCommand command, std::int32_t, void *buffer,
                                     std::uint32_t bufferSize, std::uint32_t &returnedSize,
                                     std::chrono::milliseconds wait)
{
    returnedSize = 0;
    const auto copyOut = [&](const auto &block) {
        if (!buffer || bufferSize < sizeof(block))
            return NetError::InvalidValue;
        std::memcpy(buffer, &block, sizeof(block));
        returnedSize = sizeof(block);
        return NetError::None;
    };
    return onSession(loginHandle, wait, [&](OnvifSession &session, Deadline deadline) {
        switch (command) {
        case QueryCommand::DeviceAttributes: {
            DeviceAttributes attributes{};
            const NetError error = readAttributes(session, attributes, deadline);
            return error == NetError::None ? copyOut(attributes) : error;
        }
        case QueryCommand::Time: {
            const auto clock = session.device(deadline).clock();
            const std::optional<DateTime> shown = shownTime(clock.value);
            if (clock.isOk() && shown)
                return copyOut(timeRecord(*shown));
            return clock.isOk() ? NetError::NotSupported : clock.error;
        }
        case QueryCommand::NetworkServices: {
            const auto protocols = session.device(deadline).protocols();
            NetworkServices services{};
            services.size = sizeof(services);
            services.webPort = portOf(protocols.value, "HTTP");
            services.servicePort = session.service().port;
            services.rtspPort = portOf(protocols.value, "RTSP");
            return protocols.isOk() ? copyOut(services) : protocols.error;
        }
        }
        return NetError::NotSupported;
    });
}

bool OnvifNetLibrary::NetGetNewConfig(LLONG loginHandle, const char *name, std::int32_t channel, char *text,
                                      std::uint32_t textSize, std::int32_t &error,
                                      std::chrono::milliseconds wait)
{
    const bool isRead = onSession(loginHandle, wait, [&](OnvifSession &session, Deadline deadline) {
        const std::string_view requested = name;
        NetError failure = NetError::None;
        std::string read;
        if (requested == "Encode")
            read = encodeConfiguration(session, channel, deadline, failure);
        else if (requested == "VideoColor")
            read = colorConfiguration(session, channel, deadline, failure);
        else
            read = systemConfiguration(session, requested, deadline, failure);
        if (failure != NetError::None)
            return failure;
        if (!text || textSize <= read.size())
            return NetError::InvalidValue;
        std::memcpy(text, read.c_str(), read.size() + 1);
        return NetError::None;
    });
    error = isRead ? 0 : static_cast<std::int32_t>(m_error.last());
    return isRead;
}

bool OnvifNetLibrary::NetSetNewConfig(LLONG loginHandle, const char *name, std::int32_t channel,
                                      const char *text, std::uint32_t textSize, std::int32_t &error,
                                      std::chrono::milliseconds wait)
{
    const std::string_view complete(text, textSize);
    const std::string_view content = complete.substr(0, complete.find('\0'));
    const bool isWritten = onSession(loginHandle, wait, [&](OnvifSession &session, Deadline deadline) {
        const std::string_view requested = name;
        if (requested == "Encode")
            return setEncodeConfiguration(session, channel, content, deadline);
        if (requested == "VideoColor")
            return setColorConfiguration(session, channel, content, deadline);
        return setSystemConfiguration(session, requested, content, deadline);
    });
    error = isWritten ? 0 : static_cast<std::int32_t>(m_error.last());
    return isWritten;
}

bool OnvifNetLibrary::NetQueryCapabilities(LLONG loginHandle, CapabilityQuery query, const void *input,
                                           void *output, std::chrono::milliseconds wait)
{
    return onSession(loginHandle, wait, [&](OnvifSession &session, Deadline deadline) {
        if (!input || !output)
            return NetError::InvalidValue;
        switch (query) {
        case CapabilityQuery::Encode:
            return encodeCapabilities(session, *static_cast<const EncodeCapabilityInput *>(input),
                                      *static_cast<EncodeCapabilities *>(output), deadline);
        case CapabilityQuery::Camera:
            return cameraCapabilities(session, *static_cast<const CameraCapabilityInput *>(input),
                                      *static_cast<CameraCapabilities *>(output), deadline);
        }
        return NetError::NotSupported;
    });
}

bool OnvifNetLibrary::NetGetItem(LLONG loginHandle, std::uint32_t item, std::int32_t channel, void *block,
                                 std::uint32_t blockSize, std::chrono::milliseconds wait)
{
    return onSession(loginHandle, wait, [&](OnvifSession &session, Deadline deadline) {
        return isEncodeItem(item) ? encodeItem(session, item, channel, block, blockSize, deadline)
                                  : cameraItem(session, item, channel, block, blockSize, deadline);
    });
}

bool OnvifNetLibrary::NetSetItem(LLONG loginHandle, std::uint32_t item, std::int32_t channel,
                                 const void *block, std::uint32_t blockSize, std::chrono::milliseconds wait)
{
    return onSession(loginHandle, wait, [&](OnvifSession &session, Deadline deadline) {
        return isEncodeItem(item) ? setEncodeItem(session, item, channel, block, blockSize, deadline)
                                  : setCameraItem(session, item, channel, block, blockSize, deadline);
    });
}

bool OnvifNetLibrary::NetQueryChannelStates(LLONG loginHandle, ChannelStates &states,
                                            std::chrono::milliseconds wait)
{
    return onSession(loginHandle, wait, [&](OnvifSession &session, Deadline deadline) {
        if (states.size != sizeof(states))
            return NetError::InvalidValue;
        const auto profiles = session.profiles(deadline);
        if (!profiles.isOk() && !session.channels().empty())
            return profiles.error;
        const std::vector<MediaChannel> present = channelsOf(profiles.value);
        states.count = static_cast<std::uint32_t>(session.channels().size());
        for (std::uint32_t channel = 0; channel < states.count; ++channel) {
            const std::string &source = session.channels()[channel].sourceToken;
            const bool isPresent =
                std::any_of(present.begin(), present.end(), [&source](const MediaChannel &candidate) {
                    return candidate.sourceToken == source;
                });
            states.states[channel] = {.channel = static_cast<std::int32_t>(channel),
                                      .connection = isPresent ? ChannelConnection::Connected
                                                              : ChannelConnection::NotConnected};
        }
        return NetError::None;
    });
}

} // namespace sdk::onvif

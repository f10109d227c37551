// Live streams and firmware.
#include "sdk/onvif/onvifnetlibrary.h"
#include "sdk/onvif/soap/logging.h"

#include <algorithm>

namespace sdk::onvif {

namespace {

using namespace std::chrono_literals;

constexpr auto keyFrameWait = 2s;

/// The profile of a stream of a channel; empty if there is none.
std::string profileOf(const OnvifSession &session, std::int32_t channel, LiveStreamKind kind)
{
    if (channel < 0 || static_cast<std::size_t>(channel) >= session.channels().size())
        return {};
    const MediaChannel &found = session.channels()[static_cast<std::size_t>(channel)];
    return kind == LiveStreamKind::Sub ? found.subProfile : found.mainProfile;
}

/// `url` with the host of `reached` and without an account: the device's URL contains its address as the
/// device knows it.
std::string reachedUrl(const std::string &url, const ServiceAddress &reached)
{
    constexpr std::string_view scheme = "rtsp://";
    if (!url.starts_with(scheme))
        return {};
    const std::size_t authorityEnd = std::min(url.find_first_of("/?", scheme.size()), url.size());
    std::string authority = url.substr(scheme.size(), authorityEnd - scheme.size());
    if (const std::size_t account = authority.rfind('@'); account != std::string::npos)
        authority.erase(0, account + 1);
    const std::size_t bracket = authority.find(']');
    const std::size_t colon = authority.find(':', bracket == std::string::npos ? 0 : bracket);
    const std::string port = colon == std::string::npos ? std::string() : authority.substr(colon);
    return std::string(scheme) + bracketed(reached.host) + port + url.substr(authorityEnd);
}

} // namespace

std::int64_t OnvifNetLibrary::NetStartRealStream(LLONG loginHandle, std::int32_t channel, std::uintptr_t,
                                                 LiveStreamKind kind)
{
    const CallGate::Call call(m_gate); // lasts until the stream of a failed start is closed
    std::int64_t handle = 0;
    const bool isStarted =
        onSession(loginHandle, longestStreamStart, [&](OnvifSession &session, Deadline deadline) {
            const std::string profile = profileOf(session, channel, kind);
            std::optional<MediaService> media = session.media(deadline);
            if (profile.empty() || !media)
                return NetError::NotSupported;
            const ServiceResult<std::string> url = media->streamUrl(profile);
            if (!url.isOk())
                return url.error;
            if (const std::optional<NetError> refusal = session.client().refusal())
                return *refusal;
            const HttpLogin login = session.client().login();
            RtspOrder order;
            order.url = reachedUrl(url.value, session.service());
            order.account = login.account;
            order.password = login.password;
            order.timeouts.response = std::chrono::duration_cast<std::chrono::milliseconds>(
                deadline - std::chrono::steady_clock::now());
            const auto onRefusal = [this, loginHandle, login] { // no other request sends the password again
                if (const std::shared_ptr<OnvifSession> refused = this->session(loginHandle))
                    refused->client().setRefused(login);
            };
            NetError error = NetError::None;
            handle = m_streams.open(loginHandle, profile, order, onRefusal, error);
            if (error == NetError::WrongPassword) {
                session.client().setRefused(login); // the stream's thread may not have called it yet
                return session.client().refusal().value_or(
                    NetError::NetworkFailure); // none: it was an old password
            }
            return error;
        });
    if (!isStarted)
        m_streams.close(handle); // ended while it started
    return isStarted ? handle : 0;
}

bool OnvifNetLibrary::NetSetRealDataCallback(std::int64_t streamHandle, RealDataHandler handler, void *user,
                                             std::uint32_t)
{
    const CallGate::Call call(m_gate);
    const std::shared_ptr<LiveStream> stream = m_streams.stream(streamHandle);
    if (!call.isAllowed() || !stream)
        return m_error.fail(NetError::InvalidValue);
    stream->setHandler(handler, user);
    return true;
}

bool OnvifNetLibrary::NetStreamFollowUp(std::int64_t streamHandle, std::int32_t, std::uint32_t)
{
    const CallGate::Call call(m_gate);
    const std::shared_ptr<LiveStream> stream = m_streams.stream(streamHandle);
    if (!call.isAllowed() || !stream)
        return m_error.fail(NetError::InvalidValue);
    stream->restart();
    // The request for a key frame is sent in the background: without it the stream starts with the next
    // regular key frame.
    if (const std::shared_ptr<OnvifSession> session = this->session(stream->loginHandle())) {
        m_keyFrameRequests.start([session, profile = stream->profile()] {
            if (auto media = session->media(std::chrono::steady_clock::now() + keyFrameWait))
                (void)media->requestKeyFrame(profile);
        });
    }
    return true;
}

bool OnvifNetLibrary::NetStopRealStream(std::int64_t streamHandle)
{
    const CallGate::Call call(m_gate);
    return (call.isAllowed() && m_streams.close(streamHandle)) || m_error.fail(NetError::InvalidValue);
}

std::int64_t OnvifNetLibrary::NetStartUpgrade(LLONG loginHandle, const char *fileName,
                                              UpgradeProgressHandler handler, void *user,
                                              std::chrono::milliseconds wait)
{
    const CallGate::Call call(m_gate); // lasts until the upload of a failed start is closed
    std::int64_t handle = 0;
    const bool isStarted = onSession(loginHandle, wait, [&](OnvifSession &session, Deadline deadline) {
        if (!FirmwareUploads::isReadable(fileName))
            return NetError::UnusableFile;
        const auto upload = session.device(deadline).startFirmwareUpgrade();
        if (!upload.isOk())
            return upload.error;
        handle = m_uploads.open(loginHandle, upload.value, session.client().login(), fileName, handler, user,
                                [this, host = session.service().host] { endSessionsTo(host); });
        return handle > 0 ? NetError::None : NetError::NetworkFailure;
    });
    if (!isStarted && handle > 0)
        (void)m_uploads.close(handle); // ended while it started
    return isStarted ? handle : 0;
}

bool OnvifNetLibrary::NetStopUpgrade(std::int64_t upgradeHandle)
{
    const CallGate::Call call(m_gate);
    if (!call.isAllowed())
        return m_error.fail(NetError::InvalidValue);
    const NetError error = m_uploads.close(upgradeHandle);
    return error == NetError::None || m_error.fail(error);
}

} // namespace sdk::onvif

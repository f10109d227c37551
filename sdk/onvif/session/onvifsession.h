// A session with a device: the login, and what was learnt of the device at its begin.
#pragma once

#include "sdk/loginblocks.h"
#include "sdk/onvif/services/deviceservice.h"
#include "sdk/onvif/services/mediaservice.h"
#include "sdk/onvif/soap/runningcall.h"
#include "sdk/onvif/soap/soapclient.h"

#include <atomic>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace sdk::onvif {

/// The profiles of one video source.
struct MediaChannel
{
    std::string sourceToken = {};
    std::string mainProfile = {}; ///< token; never empty
    std::string subProfile = {};  ///< token; empty if the source has one profile only
};

/// Thread-safe. Operations on one device need no order: each is a request of its own.
class OnvifSession
{
public:
    using Deadline = SoapClient::Deadline;

    /// Logs in. On failure `error` is set and the result is null. A device that has no administrator yet, or
    /// that answers everything without a login, takes no login: NotSupported.
    [[nodiscard]] static std::shared_ptr<OnvifSession> open(const ServiceAddress &service,
                                                            const HttpLogin &login,
                                                            const std::shared_ptr<HttpClient> &http,
                                                            Deadline deadline, NetError &error);

    OnvifSession(const ServiceAddress &service, std::unique_ptr<SoapClient> client);

    [[nodiscard]] SoapClient &client() { return *m_client; }
    [[nodiscard]] DeviceService device(Deadline deadline) { return {*m_client, m_service, deadline}; }

    /// Nothing if the device has no such service.
    [[nodiscard]] std::optional<MediaService> media(Deadline deadline);
    [[nodiscard]] std::optional<ServiceAddress> imagingService() const { return m_imaging; }
    [[nodiscard]] std::optional<ServiceAddress> deviceIoService() const { return m_deviceIo; }

    [[nodiscard]] const ServiceAddress &service() const { return m_service; }
    [[nodiscard]] const DeviceInformation &information() const { return m_information; }

    /// The video sources in the order of the device, at most `maximumChannels`, as they were at the login.
    static constexpr std::size_t maximumChannels = 1024;
    [[nodiscard]] const std::vector<MediaChannel> &channels() const { return m_channels; }

    /// The profiles as the device has them now.
    [[nodiscard]] ServiceResult<std::vector<MediaProfile>> profiles(Deadline deadline);

    /// The profiles as they were at most `recently` ago: the items of a page, and the names of all channels,
    /// are read one after another, each from all profiles.
    static constexpr std::chrono::seconds recently{2};
    [[nodiscard]] ServiceResult<std::vector<MediaProfile>> recentProfiles(Deadline deadline);

    /// A setting of a profile has been written.
    void forgetProfiles();

    /// The device reboots. Its sessions end then in every provider, although this kind of device takes the
    /// login with each request and would go on doing so.
    void end() { m_hasEnded = true; }
    [[nodiscard]] bool hasEnded() const { return m_hasEnded; }

    /// The calls that run on the session.
    [[nodiscard]] RunningCalls &calls() { return m_calls; }

    /// Ends every call, and later ones as well.
    void cancel();

private:
    [[nodiscard]] NetError logIn(Deadline deadline);
    [[nodiscard]] NetError confirmPassword(Deadline deadline);
    [[nodiscard]] NetError confirmByUsers(Deadline deadline);
    [[nodiscard]] NetError learnServices(Deadline deadline);
    [[nodiscard]] NetError learnChannels(Deadline deadline);

    const ServiceAddress m_service;
    const std::unique_ptr<SoapClient> m_client;
    RunningCalls m_calls;
    std::atomic_bool m_hasEnded = false;
    DeviceInformation m_information;
    std::optional<ServiceAddress> m_media;
    std::optional<ServiceAddress> m_media2;
    std::optional<ServiceAddress> m_imaging;
    std::optional<ServiceAddress> m_deviceIo;
    std::vector<MediaChannel> m_channels;

    std::mutex m_profilesMutex;           ///< of what follows; not held over a request
    std::vector<MediaProfile> m_profiles; ///< empty if none were read
    std::chrono::steady_clock::time_point m_profilesTime;
    int m_profileChanges = 0; ///< calls of forgetProfiles()
};

/// The video sources of `profiles`: of each, the profile of the largest picture and the next one.
[[nodiscard]] std::vector<MediaChannel> channelsOf(const std::vector<MediaProfile> &profiles);

} // namespace sdk::onvif

// A session with a device: the login, and the properties of the device that were read at its start.
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

/// Thread-safe. Operations on one device are independent requests and need no order.
class OnvifSession
{
public:
    using Deadline = SoapClient::Deadline;

    /// Logs in. On failure `error` is set and the result is null. NotSupported for a device without an
    /// administrator, and for a device that returns everything, including its users, without a login.
    [[nodiscard]] static std::shared_ptr<OnvifSession> open(const ServiceAddress &service,
                                                            const HttpLogin &login,
                                                            const std::shared_ptr<HttpClient> &http,
                                                            Deadline deadline, NetError &error);

    /// Used by open(). The object has no properties of the device yet.
    OnvifSession(const ServiceAddress &service, std::unique_ptr<SoapClient> client);

    [[nodiscard]] SoapClient &client() { return *m_client; }
    [[nodiscard]] DeviceService device(Deadline deadline) { return {*m_client, m_service, deadline}; }

    /// The newer media service, otherwise the older one; nothing if the device has neither.
    [[nodiscard]] std::optional<MediaService> media(Deadline deadline);
    [[nodiscard]] std::optional<ServiceAddress> imagingService() const { return m_imaging; }
    [[nodiscard]] std::optional<ServiceAddress> deviceIoService() const { return m_deviceIo; }

    [[nodiscard]] const ServiceAddress &service() const { return m_service; }
    [[nodiscard]] const DeviceInformation &information() const { return m_information; }

    /// The video sources in the order of the device, at most `maximumChannels`, as they were at the login.
    static constexpr std::size_t maximumChannels = 1024;
    [[nodiscard]] const std::vector<MediaChannel> &channels() const { return m_channels; }

    /// The present profiles of the device.
    [[nodiscard]] ServiceResult<std::vector<MediaProfile>> profiles(Deadline deadline);

    /// The profiles, which may be up to `recently` old. The cache serves the items of a page and the names of
    /// all channels, which are read one after another, each from all profiles.
    static constexpr std::chrono::seconds recently{2};
    [[nodiscard]] ServiceResult<std::vector<MediaProfile>> recentProfiles(Deadline deadline);

    /// Invalidates the cache of recentProfiles(), after a setting of a profile was written.
    void clearProfiles();

    /// Marks the session as ended, because the device reboots. The sessions end in every provider, although a
    /// device of this type gets the login with each request and would continue to accept it.
    void end() { m_hasEnded = true; }
    [[nodiscard]] bool hasEnded() const { return m_hasEnded; }

    /// The calls that run on the session.
    [[nodiscard]] RunningCalls &calls() { return m_calls; }

    /// Ends every call; later calls fail.
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

    std::mutex m_profilesMutex;           ///< guards the members below; not held during a request
    std::vector<MediaProfile> m_profiles; ///< empty if none have been read
    std::chrono::steady_clock::time_point m_profilesTime;
    int m_profileChanges = 0; ///< number of calls of clearProfiles()
};

/// The video sources of `profiles` in their order. The main profile of a source is the one with the largest
/// frame; the second profile is the largest one that has another encoder. Profiles without video are ignored.
[[nodiscard]] std::vector<MediaChannel> channelsOf(const std::vector<MediaProfile> &profiles);

} // namespace sdk::onvif

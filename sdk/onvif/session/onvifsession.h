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

/// A video source of a device, which is a channel of the library, with the profiles (stream settings) of its
/// main and its sub stream. Tokens are identifiers that the device assigns.
struct MediaChannel
{
    std::string sourceToken = {};
    std::string mainProfile = {}; ///< token
    std::string subProfile = {};  ///< token; empty if all profiles of the source have the same encoder
};

/// A login at a device, for the sessions of NetLibrary. ONVIF has no sessions: each request contains the
/// login. The properties that open() reads do not change later. Thread-safe: operations on one device are
/// independent requests and need no order. The destructor sends nothing.
class OnvifSession
{
public:
    using Deadline = SoapClient::Deadline;

    /// Logs in to the device service `service` and reads the properties of the device. `http` sends the
    /// requests of the session; cancel() also cancels it for other users. Blocks until `deadline` at most.
    /// `error` is set in either case, to None on success; on failure the result is null. SoapResponse and
    /// SoapClient state the errors: WrongPassword, for instance. NotSupported for a device without an
    /// administrator, and for a device that returns everything, including its users, without a login: the
    /// password cannot be checked there. A device that requires no login and has no operation for users
    /// accepts any password. A device without media services has a session without channels.
    [[nodiscard]] static std::shared_ptr<OnvifSession> open(const ServiceAddress &service,
                                                            const HttpLogin &login,
                                                            const std::shared_ptr<HttpClient> &http,
                                                            Deadline deadline, NetError &error);

    /// Used by open(). The object has no properties of the device yet.
    OnvifSession(const ServiceAddress &service, std::unique_ptr<SoapClient> client);

    /// The client with the login; owned by the session.
    [[nodiscard]] SoapClient &client() { return *m_client; }
    /// The device service, for operations up to `deadline`. The session must outlive the object.
    [[nodiscard]] DeviceService device(Deadline deadline) { return {*m_client, m_service, deadline}; }

    /// The newer media service, otherwise the older one; nothing if the device has neither. The session must
    /// outlive the object.
    [[nodiscard]] std::optional<MediaService> media(Deadline deadline);
    /// Nothing if the device does not have the service.
    [[nodiscard]] std::optional<ServiceAddress> imagingService() const { return m_imaging; }
    [[nodiscard]] std::optional<ServiceAddress> deviceIoService() const { return m_deviceIo; }

    /// The device service that the session was opened with.
    [[nodiscard]] const ServiceAddress &service() const { return m_service; }
    [[nodiscard]] const DeviceInformation &information() const { return m_information; }

    /// The video sources in the order of the device, at most `maximumChannels`, as they were at the login.
    static constexpr std::size_t maximumChannels = 1024;
    [[nodiscard]] const std::vector<MediaChannel> &channels() const { return m_channels; }

    /// Requests the profiles from the device. NotSupported for a device without a media service.
    [[nodiscard]] ServiceResult<std::vector<MediaProfile>> profiles(Deadline deadline);

    /// The profiles of the last request if it was made within `recently`, otherwise those of a new request.
    /// The cache serves the items of a page and the names of all channels, which are read one after another,
    /// each from all profiles.
    static constexpr std::chrono::seconds recently{2};
    [[nodiscard]] ServiceResult<std::vector<MediaProfile>> recentProfiles(Deadline deadline);

    /// Clears the cache of recentProfiles(). To be called after a setting of a profile was written.
    void clearProfiles();

    /// Marks the session as ended, because the device reboots. The object itself does not evaluate the mark:
    /// the library refuses later calls. Sessions end at a reboot in every implementation of NetLibrary. An
    /// ONVIF device gets the login with each request and would continue to accept it.
    void end() { m_hasEnded = true; }
    [[nodiscard]] bool hasEnded() const { return m_hasEnded; }

    /// The calls that run on the session. Their cancellation does not affect later calls.
    [[nodiscard]] RunningCalls &calls() { return m_calls; }

    /// Ends the running calls, for the end of the session, without waiting for them. Later calls fail with
    /// NetworkFailure.
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

/// The video sources of `profiles` in the order of their first profiles, at most
/// OnvifSession::maximumChannels. The main profile of a source is the one with the largest frame area. The
/// sub profile is the largest one that has another encoder than the main profile. Profiles without a video
/// source or a video encoder are ignored.
[[nodiscard]] std::vector<MediaChannel> channelsOf(const std::vector<MediaProfile> &profiles);

} // namespace sdk::onvif

#include "sdk/onvif/session/onvifsession.h"

#include "sdk/onvif/session/clocktime.h"
#include "sdk/onvif/soap/onvifnamespaces.h"

#include <algorithm>
#include <map>

namespace sdk::onvif {

namespace {

constexpr std::string_view administrator = "Administrator";

bool isOffline(NetError error)
{
    return error == NetError::ConnectTimeout || error == NetError::ConnectFailed ||
           error == NetError::NetworkFailure || error == NetError::UnknownCertificate ||
           error == NetError::ChangedCertificate;
}

/// `error` if it prevents a session; None if it means that the device lacks an operation.
NetError lasting(NetError error)
{
    const bool isRefusedLogin = error == NetError::WrongPassword || error == NetError::AccountLocked ||
                                error == NetError::SessionEnded;
    return isOffline(error) || isRefusedLogin ? error : NetError::None;
}

bool hasAdministrator(const std::vector<DeviceUser> &users)
{
    return std::any_of(users.begin(), users.end(),
                       [](const DeviceUser &user) { return user.level == administrator; });
}

std::int64_t frameArea(const MediaProfile &profile)
{
    return profile.video ? static_cast<std::int64_t>(profile.video->width) * profile.video->height : 0;
}

} // namespace

std::vector<MediaChannel> channelsOf(const std::vector<MediaProfile> &profiles)
{
    std::vector<std::string> order;
    std::map<std::string, std::vector<const MediaProfile *>> bySource;
    for (const MediaProfile &profile : profiles) {
        if (profile.sourceToken.empty() || !profile.video)
            continue;
        std::vector<const MediaProfile *> &ofSource = bySource[profile.sourceToken];
        if (ofSource.empty())
            order.push_back(profile.sourceToken);
        ofSource.push_back(&profile);
    }
    std::vector<MediaChannel> channels;
    for (const std::string &source : order) {
        std::vector<const MediaProfile *> &ofSource = bySource[source];
        // Profiles with the same encoder are the same stream: the first of them represents it.
        std::stable_sort(ofSource.begin(), ofSource.end(),
                         [](const MediaProfile *left, const MediaProfile *right) {
                             return frameArea(*left) > frameArea(*right);
                         });
        const MediaProfile *main = ofSource.front();
        const auto sub = std::find_if(ofSource.begin(), ofSource.end(), [main](const MediaProfile *profile) {
            return profile->video->token != main->video->token;
        });
        channels.push_back({.sourceToken = source,
                            .mainProfile = main->token,
                            .subProfile = sub == ofSource.end() ? std::string() : (*sub)->token});
        if (channels.size() == OnvifSession::maximumChannels)
            break;
    }
    return channels;
}

OnvifSession::OnvifSession(const ServiceAddress &service, std::unique_ptr<SoapClient> client)
    : m_service(service), m_client(std::move(client))
{
    m_client->setClockReader([this](Deadline deadline) -> std::optional<std::chrono::milliseconds> {
        const ServiceResult<DeviceClock> clock = device(deadline).clockOpenly();
        if (!clock.isOk() || !clock.value.utc)
            return std::nullopt;
        return clockOffset(*clock.value.utc);
    });
}

std::shared_ptr<OnvifSession> OnvifSession::open(const ServiceAddress &service, const HttpLogin &login,
                                                 const std::shared_ptr<HttpClient> &http, Deadline deadline,
                                                 NetError &error)
{
    auto session = std::make_shared<OnvifSession>(service, std::make_unique<SoapClient>(login, http));
    for (const auto step : {&OnvifSession::logIn, &OnvifSession::learnServices, &OnvifSession::learnChannels,
                            &OnvifSession::confirmByUsers}) {
        error = ((*session).*step)(deadline);
        if (error != NetError::None)
            return nullptr;
    }
    return session;
}

void OnvifSession::cancel()
{
    m_client->http().cancel();
    m_calls.cancel();
}

NetError OnvifSession::logIn(Deadline deadline)
{
    DeviceService service = device(deadline);
    const ServiceResult<DeviceClock> clock = service.clockOpenly();
    if (clock.isOk() && clock.value.utc)
        m_client->setClockOffset(clockOffset(*clock.value.utc));
    else if (isOffline(clock.error))
        return clock.error;
    ServiceResult<DeviceInformation> information = service.information();
    if (!information.isOk())
        return information.error;
    m_information = std::move(information.value);
    return m_client->isConfirmed() ? NetError::None : confirmPassword(deadline);
}

/// For a device that returns its information without a login.
NetError OnvifSession::confirmPassword(Deadline deadline)
{
    DeviceService service = device(deadline);
    const auto users = service.usersOpenly();
    if (isOffline(users.error))
        return users.error;
    if (users.isOk() && !hasAdministrator(users.value))
        return NetError::NotSupported;
    return lasting(service.interfaces().error); // every account level may read them
}

/// For a device that has responded to all requests so far without a login.
NetError OnvifSession::confirmByUsers(Deadline deadline)
{
    if (m_client->isConfirmed())
        return NetError::None;
    const auto users = device(deadline).users();
    if (users.isOk())
        return m_client->isConfirmed() ? NetError::None : NetError::NotSupported;
    return lasting(users.error); // a device without the operation has no accounts
}

NetError OnvifSession::learnServices(Deadline deadline)
{
    const auto services = device(deadline).services();
    const auto find = [&](std::string_view uri) -> std::optional<ServiceAddress> {
        const auto service = services.value.find(std::string(uri));
        return service == services.value.end() ? std::nullopt : serviceAt(m_service, service->second);
    };
    m_media = find(ns::media);
    m_media2 = find(ns::media2);
    m_imaging = find(ns::imaging);
    m_deviceIo = find(ns::deviceIo);
    return lasting(services.error);
}

NetError OnvifSession::learnChannels(Deadline deadline)
{
    ServiceResult<std::vector<MediaProfile>> found = profiles(deadline);
    const bool isThere = found.error == NetError::None || found.error == NetError::ConnectTimeout ||
                         found.error == NetError::WrongPassword;
    if (!isThere && m_media2 && m_media) {
        m_media2.reset(); // announced, but missing: the older service is used
        found = profiles(deadline);
    }
    m_channels = channelsOf(found.value);
    // The announced port of a service may be unreachable while the device is reachable.
    return found.error == NetError::ConnectFailed ? NetError::None : lasting(found.error);
}

std::optional<MediaService> OnvifSession::media(Deadline deadline)
{
    if (m_media2)
        return MediaService(*m_client, *m_media2, MediaVersion::Second, deadline);
    if (m_media)
        return MediaService(*m_client, *m_media, MediaVersion::First, deadline);
    return std::nullopt;
}

ServiceResult<std::vector<MediaProfile>> OnvifSession::profiles(Deadline deadline)
{
    std::optional<MediaService> service = media(deadline);
    if (!service)
        return {.error = NetError::NotSupported};
    const auto time = std::chrono::steady_clock::now();
    int changes = 0;
    {
        const std::scoped_lock lock(m_profilesMutex);
        changes = m_profileChanges;
    }
    ServiceResult<std::vector<MediaProfile>> read = service->profiles();
    const std::scoped_lock lock(m_profilesMutex);
    if (read.isOk() && changes == m_profileChanges) { // otherwise they may lack a change
        m_profiles = read.value;
        m_profilesTime = time;
    }
    return read;
}

ServiceResult<std::vector<MediaProfile>> OnvifSession::recentProfiles(Deadline deadline)
{
    {
        const std::scoped_lock lock(m_profilesMutex);
        if (!m_profiles.empty() && std::chrono::steady_clock::now() - m_profilesTime < recently)
            return {.value = m_profiles};
    }
    return profiles(deadline);
}

void OnvifSession::clearProfiles()
{
    const std::scoped_lock lock(m_profilesMutex);
    m_profiles.clear();
    ++m_profileChanges;
}

} // namespace sdk::onvif

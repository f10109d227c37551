// Start and end of the library, and searches.
#include "sdk/onvif/onvifnetlibrary.h"

#include "sdk/blocktext.h"

#include <string>
#include <utility>

namespace sdk::onvif {

OnvifNetLibrary::OnvifNetLibrary() = default;

OnvifNetLibrary::~OnvifNetLibrary()
{
    NetCleanup();
}

bool OnvifNetLibrary::NetInit()
{
    if (!m_discovery)
        m_discovery = std::make_unique<DeviceDiscovery>(m_certificates);
    m_gate.open();
    return true;
}

void OnvifNetLibrary::NetCleanup()
{
    if (m_discovery)
        m_discovery->cancel();
    // First the calls, which end immediately: a running one may still open a session, a stream or an upload.
    m_gate.close();
    std::map<LLONG, std::shared_ptr<OnvifSession>> sessions;
    {
        const std::scoped_lock lock(m_mutex);
        sessions.swap(m_sessions);
    }
    for (const auto &[handle, session] : sessions)
        session->cancel(); // requests for key frames still use it
    m_streams.closeAll();
    m_uploads.closeAll();
    m_discovery.reset();
}

std::uint32_t OnvifNetLibrary::NetGetLastError() const
{
    return m_error.last();
}

void OnvifNetLibrary::NetGetProviderInformation(ProviderInformation &information) const
{
    constexpr auto bit = [](ProviderFunction function) {
        return 1U << static_cast<std::uint32_t>(function);
    };
    information = {.size = sizeof(information),
                   .defaultPort = httpPort,
                   .missingFunctions = bit(ProviderFunction::VideoStandard) |
                                       bit(ProviderFunction::AutomaticMaintenance) |
                                       bit(ProviderFunction::TimeServerDetails),
                   .reserved = 0};
}

void OnvifNetLibrary::NetSetCertificateHandler(CertificateHandler handler, void *user)
{
    m_certificates->setHandler(handler, user);
}

bool OnvifNetLibrary::NetGetSearchReport(SearchReport &report)
{
    const CallGate::Call call(m_gate);
    if (!call.isAllowed() || report.size != sizeof(report))
        return m_error.fail(NetError::InvalidValue);
    m_discovery->fillReport(report);
    return true;
}

std::int64_t OnvifNetLibrary::NetStartSearchDevices(const SearchParameter &parameter,
                                                    std::chrono::milliseconds)
{
    const CallGate::Call call(m_gate);
    if (!call.isAllowed() || parameter.size != sizeof(parameter) || !parameter.handler) {
        m_error.fail(NetError::InvalidValue);
        return 0;
    }
    const std::int64_t handle = m_discovery->start(parameter.handler, parameter.user);
    if (handle == 0)
        m_error.fail(NetError::NetworkFailure);
    return handle;
}

std::int64_t OnvifNetLibrary::NetStartSearchDevicesEx(const SearchParameterEx &parameter,
                                                      std::chrono::milliseconds wait)
{
    const CallGate::Call call(m_gate);
    if (parameter.size != sizeof(parameter)) {
        m_error.fail(NetError::InvalidValue);
        return 0;
    }
    // There is one type of search: the second request repeats the first.
    return NetStartSearchDevices({.size = sizeof(SearchParameter),
                                  .reserved = 0,
                                  .handler = parameter.handler,
                                  .user = parameter.user},
                                 wait);
}

bool OnvifNetLibrary::NetStopSearchDevices(std::int64_t searchHandle)
{
    const CallGate::Call call(m_gate);
    return (call.isAllowed() && m_discovery->stop(searchHandle)) || m_error.fail(NetError::InvalidValue);
}

bool OnvifNetLibrary::searchByAddresses(const SearchByAddressesRequest &request,
                                        SearchResponseHandler handler, void *user,
                                        std::chrono::milliseconds wait)
{
    const CallGate::Call call(m_gate);
    if (!call.isAllowed() || request.size != sizeof(request) || !handler || request.count < 0 ||
        request.count > maximumSearchAddresses)
        return m_error.fail(NetError::InvalidValue);
    std::vector<std::string> addresses;
    for (std::size_t index = 0; index < static_cast<std::size_t>(request.count); ++index)
        addresses.emplace_back(blockText(request.addresses[index]));
    m_discovery->searchAddresses(addresses, handler, user, wait);
    return true;
}

bool OnvifNetLibrary::NetSearchDevicesByIPs(const SearchByAddressesRequest &request,
                                            SearchResponseHandler handler, void *user, const char *,
                                            std::chrono::milliseconds wait)
{
    return searchByAddresses(request, handler, user, wait);
}

bool OnvifNetLibrary::NetSearchDevicesByIPsEx(const SearchByAddressesRequest &request, SearchResponseHandler,
                                              void *, const char *, std::chrono::milliseconds)
{
    // The same devices would respond once more.
    const CallGate::Call call(m_gate);
    const bool isSound = call.isAllowed() && request.size == sizeof(request) && request.count >= 0 &&
                         request.count <= maximumSearchAddresses;
    return isSound || m_error.fail(NetError::InvalidValue);
}

void OnvifNetLibrary::NetSearchDeviceByIp(const SearchByAddressesRequest &request,
                                          SearchResponseHandler handler, void *user,
                                          std::chrono::milliseconds wait)
{
    if (request.count == 1)
        searchByAddresses(request, handler, user, wait);
    else
        m_error.fail(NetError::InvalidValue);
}

} // namespace sdk::onvif

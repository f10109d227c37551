#include "sdk/onvif/discovery/searchcounters.h"

#include "sdk/blocktext.h"

#include <algorithm>
#include <cerrno>
#include <limits>

namespace sdk::onvif {

namespace {

void increment(std::uint32_t &count)
{
    if (count < std::numeric_limits<std::uint32_t>::max())
        ++count;
}

constexpr std::uint32_t bit(SearchObstacle obstacle)
{
    return 1U << static_cast<std::uint32_t>(obstacle);
}

bool isNoRoute(int error)
{
    return error == ENETUNREACH || error == EHOSTUNREACH || error == ENETDOWN;
}

/// True if the device is outside of the network of every interface. IPv6 devices respond from the link.
bool isForeign(const ReportedDevice &device, const std::vector<InterfaceState> &interfaces)
{
    return device.address.find(':') == std::string::npos &&
           std::none_of(interfaces.begin(), interfaces.end(), [&device](const InterfaceState &interface) {
               return isInNetwork(device.address, interface);
           });
}

} // namespace

void SearchCounters::clear()
{
    const std::scoped_lock lock(m_mutex);
    m_counts.clear();
    m_askedAddresses = m_respondingAddresses = m_unroutedAddresses = 0;
}

void SearchCounters::noteRequest(const std::string &localAddress, int error)
{
    const std::scoped_lock lock(m_mutex);
    Counts &counts = m_counts[localAddress];
    if (error == 0)
        increment(counts.requests);
    else
        counts.sendError = error;
}

void SearchCounters::noteMessage(const std::string &localAddress)
{
    const std::scoped_lock lock(m_mutex);
    increment(m_counts[localAddress].messages);
}

void SearchCounters::noteDiscarded(const std::string &localAddress, SearchDiscard reason)
{
    const std::scoped_lock lock(m_mutex);
    increment(m_counts[localAddress].discarded[static_cast<std::size_t>(reason)]);
}

void SearchCounters::noteAskedAddress(int error)
{
    const std::scoped_lock lock(m_mutex);
    increment(m_askedAddresses);
    if (isNoRoute(error))
        increment(m_unroutedAddresses);
}

void SearchCounters::noteRespondingAddress()
{
    const std::scoped_lock lock(m_mutex);
    increment(m_respondingAddresses);
}

void SearchCounters::fill(SearchReport &report, const std::vector<InterfaceState> &interfaces,
                          const std::vector<ReportedDevice> &devices) const
{
    const bool isLoopbackOnly =
        std::all_of(interfaces.begin(), interfaces.end(),
                    [](const InterfaceState &interface) { return interface.isLoopback; });
    const std::scoped_lock lock(m_mutex);
    report = {};
    report.size = sizeof(report);
    for (const InterfaceState &interface : interfaces) {
        if (report.count == maximumReportedInterfaces)
            break;
        if (!interface.isLoopback || isLoopbackOnly)
            report.interfaces[report.count++] = reportOf(interface, devices);
    }
    report.addressesAsked = m_askedAddresses;
    report.addressesResponding = m_respondingAddresses;
    report.addressesNoRoute = m_unroutedAddresses;
    report.foreignDevices = static_cast<std::uint32_t>(
        std::count_if(devices.begin(), devices.end(),
                      [&](const ReportedDevice &device) { return isForeign(device, interfaces); }));
}

std::uint32_t SearchCounters::obstaclesOf(const InterfaceState &interface, const Counts &counts)
{
    std::uint32_t obstacles = 0;
    if (!interface.isUp)
        obstacles |= bit(SearchObstacle::InterfaceDown);
    else if (!interface.hasLink)
        obstacles |= bit(SearchObstacle::NoLink);
    if (interface.address.empty())
        obstacles |= bit(SearchObstacle::NoAddress);
    if (!interface.sendsToGroups)
        obstacles |= bit(SearchObstacle::NoMulticast);
    if (counts.sendError != 0)
        obstacles |= bit(SearchObstacle::SendFailed);
    if (counts.requests > 0 && counts.messages == 0)
        obstacles |= bit(SearchObstacle::NoResponse);
    return obstacles;
}

SearchInterfaceReport SearchCounters::reportOf(const InterfaceState &interface,
                                               const std::vector<ReportedDevice> &devices) const
{
    // Messages of an unknown interface are counted under the empty address, which no interface has.
    Counts counts;
    if (const auto known = m_counts.find(interface.address); known != m_counts.end() && !known->first.empty())
        counts = known->second;
    SearchInterfaceReport report{};
    setBlockText(report.name, interface.name);
    setBlockText(report.address, interface.address);
    report.prefixLength = interface.prefixLength;
    report.obstacles = obstaclesOf(interface, counts);
    report.sendError = counts.sendError;
    report.requestsSent = counts.requests;
    report.messagesReceived = counts.messages;
    report.devicesFound = static_cast<std::uint32_t>(
        std::count_if(devices.begin(), devices.end(), [&interface](const ReportedDevice &device) {
            return !interface.address.empty() && device.localAddress == interface.address;
        }));
    report.discarded = counts.discarded;
    return report;
}

} // namespace sdk::onvif

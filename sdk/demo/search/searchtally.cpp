#include "sdk/demo/search/searchtally.h"

#include "sdk/demo/device/fieldtext.h"
#include "sdk/demo/scene/addresstext.h"

#include <algorithm>

namespace sdk::demo {

namespace {

constexpr int prefixLength = 24;

/// The network part of a dotted address.
QStringView networkOf(QStringView address)
{
    return address.left(address.lastIndexOf(QLatin1Char('.')));
}

} // namespace

void SearchTally::clear()
{
    const std::scoped_lock lock(m_mutex);
    m_requests = m_messages = m_askedAddresses = m_respondingAddresses = 0;
    m_found.clear();
    m_responded.clear();
}

void SearchTally::noteRequest()
{
    const std::scoped_lock lock(m_mutex);
    ++m_requests;
}

void SearchTally::noteAskedAddresses(const QSet<QString> &addresses)
{
    const std::scoped_lock lock(m_mutex);
    m_askedAddresses += static_cast<std::uint32_t>(addresses.size());
    m_responded.subtract(addresses);
}

void SearchTally::noteLocalResponse(const QString &mac, const QString &address)
{
    const std::scoped_lock lock(m_mutex);
    ++m_messages;
    QString &known = m_found[mac];
    if (known.isEmpty() || isIpv4Address(address)) // a device may respond over both families
        known = address;
}

void SearchTally::noteAddressResponse(const QString &address)
{
    const std::scoped_lock lock(m_mutex);
    if (m_responded.contains(address))
        return;
    m_responded.insert(address);
    ++m_respondingAddresses;
}

void SearchTally::fill(SearchReport &report, const QString &localAddress) const
{
    const std::scoped_lock lock(m_mutex);
    report = {};
    report.size = sizeof(report);
    report.count = 1;
    SearchInterfaceReport &interface = report.interfaces[0];
    writePlain(interface.name, QStringLiteral("demo0"));
    writePlain(interface.address, localAddress);
    interface.prefixLength = prefixLength;
    interface.requestsSent = m_requests;
    interface.messagesReceived = m_messages;
    interface.devicesFound = static_cast<std::uint32_t>(m_found.size());
    if (m_requests > 0 && m_messages == 0)
        interface.obstacles = 1U << static_cast<std::uint32_t>(SearchObstacle::NoResponse);
    report.addressesAsked = m_askedAddresses;
    report.addressesResponding = m_respondingAddresses;
    report.foreignDevices = static_cast<std::uint32_t>(
        std::count_if(m_found.cbegin(), m_found.cend(), [&localAddress](const QString &address) {
            return isIpv4Address(address) && address != QLatin1String("0.0.0.0") &&
                   !address.startsWith(QLatin1String("127.")) &&
                   networkOf(address) != networkOf(localAddress);
        }));
}

} // namespace sdk::demo

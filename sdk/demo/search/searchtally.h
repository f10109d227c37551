// Counts the requests and responses of a simulated site's searches, for the search report.
#pragma once

#include "sdk/searchreportblocks.h"

#include <QHash>
#include <QSet>
#include <QString>

#include <mutex>

namespace sdk::demo {

/// Thread-safe.
class SearchTally
{
public:
    /// Resets all counters.
    void clear();

    /// Counts the request of a local search.
    void noteRequest();

    /// Counts a request to each of the addresses.
    void noteAskedAddresses(const QSet<QString> &addresses);

    /// Counts a response to a local search from the device `mac` at `address`. A device with several
    /// responses counts as one found device.
    void noteLocalResponse(const QString &mac, const QString &address);

    /// Counts a response to the search of an address. Further responses from the address count only after the
    /// next request to it.
    void noteAddressResponse(const QString &address);

    /// Replaces `report` by one of a single interface, "demo0", which has `localAddress` (IPv4) with a prefix
    /// length of 24. Found devices with an IPv4 address outside this network are counted as foreign, except
    /// for 0.0.0.0 and loopback addresses. Without a response to a local search it has the obstacle
    /// NoResponse.
    void fill(SearchReport &report, const QString &localAddress) const;

private:
    mutable std::mutex m_mutex;
    std::uint32_t m_requests = 0;
    std::uint32_t m_messages = 0;
    std::uint32_t m_askedAddresses = 0;
    std::uint32_t m_respondingAddresses = 0;
    QSet<QString> m_responded;       ///< addresses that have responded to their latest request
    QHash<QString, QString> m_found; ///< addresses of the devices found by local searches, by MAC
};

} // namespace sdk::demo

// Counts the packets of a simulated site's searches, for the search report.
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
    /// Clears the counters at the start of a search.
    void clear();

    void noteRequest();
    void noteAskedAddresses(const QSet<QString> &addresses);

    /// A response to a local search.
    void noteLocalResponse(const QString &mac, const QString &address);
    /// A response to the search of an address. It is counted once for each request to the address.
    void noteAddressResponse(const QString &address);

    /// Fills a report of one interface, which has `localAddress`.
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

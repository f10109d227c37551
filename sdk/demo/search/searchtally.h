// What the searches of a simulated site have sent and received, for a report.
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
    /// Begins again, as a search does.
    void clear();

    void noteRequest();
    void noteAskedAddresses(const QSet<QString> &addresses);

    /// An answer to a local search.
    void noteLocalAnswer(const QString &mac, const QString &address);
    /// An answer to the search of an address: counted once for each time that the address is asked.
    void noteAddressAnswer(const QString &address);

    /// Fills a report of one interface with `localAddress`, to which the site is connected.
    void fill(SearchReport &report, const QString &localAddress) const;

private:
    mutable std::mutex m_mutex;
    std::uint32_t m_requests = 0;
    std::uint32_t m_messages = 0;
    std::uint32_t m_askedAddresses = 0;
    std::uint32_t m_answeredAddresses = 0;
    QSet<QString> m_answered;        ///< addresses, since each was last asked
    QHash<QString, QString> m_found; ///< by MAC: the addresses of the devices that local searches have found
};

} // namespace sdk::demo

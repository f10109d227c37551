// The devices that respond to a search, and the times of their responses.
#pragma once

#include <QSet>
#include <QString>

#include <cstdint>
#include <vector>

namespace sdk::demo {

class SiteState;

/// The two kinds of search of NetLibrary; the second one is that of the operations "...Ex". Every device
/// supports the second kind. A device with SceneDevice::knowsFirstSearch supports the first kind, too.
enum class SearchKind
{
    First,
    Second,
};

/// One future response.
struct PlannedResponse
{
    std::int64_t time; ///< on the site's clock, ms since 1970
    QString mac;
    int ipVersion; ///< 4 or 6
};

// Times are those of the site's clock, in ms since 1970. Devices that are remote, or do not listen at
// `start`, have no response. A device that is found over both IP versions has a response for each;
// Fault::AnswerTwice doubles each response.

/// The responses to a local search that starts at `start`, in the order of their times. Devices of the other
/// segment have no response.
[[nodiscard]] std::vector<PlannedResponse> planLocalSearch(const SiteState &site, SearchKind kind,
                                                           std::int64_t start);

/// The responses to a search of `addresses` (IPv4, or IPv6 as canonicalIpv6Address() writes it) that starts
/// at `start`, in the order of their times. Responses after `end` are left out.
[[nodiscard]] std::vector<PlannedResponse> planAddressSearch(const SiteState &site, SearchKind kind,
                                                             const QSet<QString> &addresses,
                                                             std::int64_t start, std::int64_t end);

} // namespace sdk::demo

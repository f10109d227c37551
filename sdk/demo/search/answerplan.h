// Which devices answer a search, and when.
#pragma once

#include <QSet>
#include <QString>

#include <cstdint>
#include <vector>

namespace sdk::demo {

class SiteState;

/// The two kinds of search that devices know. Every device knows the second.
enum class SearchKind
{
    First,
    Second,
};

/// One answer that is to come.
struct PlannedAnswer
{
    std::int64_t time; ///< on the site's clock, ms since 1970
    QString mac;
    int ipVersion; ///< 4 or 6
};

/// The answers to a local search that starts at `start`, in the order of their times.
[[nodiscard]] std::vector<PlannedAnswer> planLocalSearch(const SiteState &site, SearchKind kind,
                                                         std::int64_t start);

/// The answers to a search of `addresses` (IPv4 and canonical IPv6 texts) that starts at `start`, in the
/// order of their times; those that would come after `end` are lost.
[[nodiscard]] std::vector<PlannedAnswer> planAddressSearch(const SiteState &site, SearchKind kind,
                                                           const QSet<QString> &addresses, std::int64_t start,
                                                           std::int64_t end);

} // namespace sdk::demo

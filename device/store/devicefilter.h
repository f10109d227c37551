// The filters of CDeviceFactory::filterData() (IPv4 list) and filterDataIPV6() (IPv6 list).
#pragma once

#include <QJsonObject>
#include <QString>
#include <QVariantList>

/// The list that a filter applies to. The filter "single" exists for IPv4 only.
enum class RowFamily
{
    IPv4,
    IPv6,
};

/// Names of the filters. Each comment states the rows that pass.
namespace RowFilter {
inline constexpr QLatin1StringView all("nofilter");             ///< all rows
inline constexpr QLatin1StringView none("removeall");           ///< no row
inline constexpr QLatin1StringView uninitialised("removeinit"); ///< rows of uninitialised devices
inline constexpr QLatin1StringView initialised("removeuninit"); ///< rows of initialised devices
inline constexpr QLatin1StringView containsText("search");      ///< rows for which ::containsText() is true
/// The first row with a given "address:port". No row passes it in the IPv6 list.
inline constexpr QLatin1StringView singleAddress("single");
} // namespace RowFilter

/// The rows (JSON objects) that pass a filter of RowFilter, in the order of `rows`. Empty for an unknown
/// filter. `searchtext` is the text of the filter `containsText` or the "address:port" of `singleAddress`;
/// other filters ignore it.
[[nodiscard]] QVariantList filteredRows(const QVariantList &rows, const QString &filtertype,
                                        const QString &searchtext, RowFamily family);

/// Whether the "type", "model", "ipport" (address and port), "mac", "vision" (version) or "name" of the row
/// contains `searchtext`. The case is ignored. True for an empty text.
[[nodiscard]] bool containsText(const QJsonObject &row, const QString &searchtext);

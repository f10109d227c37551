// The filters of filterData() and filterDataIPV6().
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

/// Filters of filterData() and filterDataIPV6().
namespace RowFilter {
inline constexpr QLatin1StringView all("nofilter");
inline constexpr QLatin1StringView none("removeall");
inline constexpr QLatin1StringView uninitialised("removeinit"); ///< without initialised devices
inline constexpr QLatin1StringView initialised("removeuninit"); ///< without uninitialised devices
inline constexpr QLatin1StringView containsText("search");      ///< ::containsText()
/// The first row with the "address:port". IPv4 only.
inline constexpr QLatin1StringView singleAddress("single");
} // namespace RowFilter

/// The rows that pass a filter of RowFilter; no row passes any other filter. `searchtext` is the text or the
/// address of the filter.
[[nodiscard]] QVariantList filteredRows(const QVariantList &rows, const QString &filtertype,
                                        const QString &searchtext, RowFamily family);

/// Whether the "type", "model", "ipport", "mac", "vision" or "name" of the row contains `searchtext`. The
/// case is ignored.
[[nodiscard]] bool containsText(const QJsonObject &row, const QString &searchtext);

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

/// The rows that pass the filter `filtertype`: "nofilter", "removeall", "removeinit" (without initialised
/// devices), "removeuninit" (without uninitialised devices), "search" (containsText()) or "single" (the row
/// whose "ipport" is `searchtext`). No row passes any other filter.
[[nodiscard]] QVariantList filteredRows(const QVariantList &rows, const QString &filtertype,
                                        const QString &searchtext, RowFamily family);

/// Whether the "type", "model", "ipport", "mac", "vision" or "name" of the row contains `searchtext`. The
/// case is ignored.
[[nodiscard]] bool containsText(const QJsonObject &row, const QString &searchtext);

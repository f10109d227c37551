// Filtering of device rows, as filterData and filterDataIPV6 offer it.
#pragma once

#include <QJsonObject>
#include <QString>
#include <QVariantList>

/// Which of the two lists a filter works on: "single" knows IPv4 rows only.
enum class RowFamily
{
    IPv4,
    IPv6,
};

/// The rows that `filtertype` keeps: "nofilter", "removeall", "removeinit" (initialised ones removed),
/// "removeuninit" (uninitialised ones removed), "search" (those that hold `searchtext`) or "single" (the one
/// whose "ipport" is `searchtext`). Any other word keeps none.
[[nodiscard]] QVariantList filteredRows(const QVariantList &rows, const QString &filtertype,
                                        const QString &searchtext, RowFamily family);

/// True when `searchtext` is a part of the row's "type", "model", "ipport", "mac", "vision" or "name", in
/// capital or small letters.
[[nodiscard]] bool holdsText(const QJsonObject &row, const QString &searchtext);

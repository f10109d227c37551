// The rows that a device table shows: filtered and ordered.
#pragma once

#include "device/registry/deviceorder.h"

#include <QJsonObject>
#include <QList>
#include <QSet>
#include <QString>
#include <QVariantList>

class FailedMarks;

/// A row with what is computed from it once, when the list is read.
struct DeviceTableRow
{
    QJsonObject values;
    QString identity;      ///< see rowName()
    bool conflict = false; ///< another row of the list, shown or not, has the same "ipport"
    QString reason = {};   ///< of the mark, while only failed devices are shown

    /// The value of a key; for one that the row lacks, as IPv6 rows do, the value that new rows begin with.
    [[nodiscard]] QVariant value(QLatin1StringView key) const;

    /// Its texts in tab-separated columns, for the clipboard.
    [[nodiscard]] QString text() const;

    bool operator==(const DeviceTableRow &) const = default;
};

/// Which rows of a list are shown.
struct DeviceTableFilter
{
    bool showInitialised = true;
    bool showUninitialised = true;
    QString searchText = {};
    const FailedMarks *onlyThose = nullptr; ///< shows only the devices that have marks; null: all
};

/// How they are ordered.
struct DeviceTableOrder
{
    QString key = {}; ///< empty: the order of the list, or by reason and then by address if only failed
                      ///< devices are shown
    Qt::SortOrder direction = Qt::AscendingOrder;
    DeviceOrder::OddAddresses oddAddresses = DeviceOrder::OddAddresses::Behind;
};

/// The names of all rows of `list`, see rowName().
[[nodiscard]] QSet<QString> namesOf(const QVariantList &list);

/// The rows of `list` (JSON objects, as the factory's filterData gives them) that a table shows.
[[nodiscard]] QList<DeviceTableRow> deviceTableRows(const QVariantList &list, const DeviceTableFilter &filter,
                                                    const DeviceTableOrder &order);

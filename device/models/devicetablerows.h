// Filter and order of the rows of a device table.
#pragma once

#include "device/store/deviceorder.h"

#include <QJsonObject>
#include <QList>
#include <QSet>
#include <QString>
#include <QVariantList>

class FollowedMarks;

/// A row of the list with the values that are computed when the list is read.
struct DeviceTableRow
{
    QJsonObject values;
    QString identity; ///< see rowName()
    /// Another row of a device that is not offline has the same "ipport". Always false if `isAbsent` is true
    /// or the row has no address (":port").
    bool conflict = false;
    /// By SiteKey::presence: an earlier search has found the device, but it is not in the present device
    /// list. Nothing can be done with it.
    bool isAbsent = false;
    QString reason = {}; ///< FollowedMarks::reasonOf(); empty unless only marked devices are shown

    /// The value of a key. A missing key (IPv6 rows lack some) gives -1 for "res" and "upgraderes", 0 for
    /// "upgrade" and otherwise an empty string.
    [[nodiscard]] QVariant value(QLatin1StringView key) const;

    /// Name, type, model, address and port, MAC and version, separated by tabs, for the clipboard.
    [[nodiscard]] QString text() const;

    bool operator==(const DeviceTableRow &) const = default;
};

/// Selects the rows that are shown.
struct DeviceTableFilter
{
    bool showInitialised = true;
    bool showUninitialised = true; ///< also rows without a "state"
    /// A text in the values (see containsText()), the note or the group of a row, ignoring the case; empty:
    /// all rows.
    QString searchText = {};
    const FollowedMarks *onlyThose = nullptr; ///< not null: rows with a mark for its operation() only
};

/// The order of the rows.
struct DeviceTableOrder
{
    /// Key of the rows. Empty: the order of the list; with `onlyThose`, by reason (ascending) and then by
    /// address.
    QString key = {};
    Qt::SortOrder direction = Qt::AscendingOrder;
    /// The position of rows without an IPv4 address in an order by "ipport".
    DeviceOrder::OddAddresses oddAddresses = DeviceOrder::OddAddresses::Last;
};

/// The names of all rows of `list`, see rowName().
[[nodiscard]] QSet<QString> namesOf(const QVariantList &list);

/// The filtered and ordered rows of `list`: JSON objects as filterData() returns them, with the group, the
/// presence and the absent devices of KnownDevices::complete() and the notes of the devices.
/// Conflicts are those of the whole list, before the filter.
[[nodiscard]] QList<DeviceTableRow> deviceTableRows(const QVariantList &list, const DeviceTableFilter &filter,
                                                    const DeviceTableOrder &order);

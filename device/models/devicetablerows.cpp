#include "device/models/devicetablerows.h"

#include "device/models/followedmarks.h"
#include "device/sites/knowndevice.h"
#include "device/store/devicefilter.h"
#include "device/store/devicenotes.h"
#include "device/store/devicerow.h"

#include <QHash>

#include <algorithm>
#include <numeric>
#include <utility>
#include <vector>

namespace {

bool isShown(const QJsonObject &row, const DeviceTableFilter &filter)
{
    const bool isWanted =
        row.value(DeviceRowKey::state).toBool() ? filter.showInitialised : filter.showUninitialised;
    return isWanted &&
           (filter.searchText.isEmpty() || containsText(row, filter.searchText) ||
            row.value(noteKey).toString().contains(filter.searchText, Qt::CaseInsensitive) ||
            row.value(SiteKey::group).toString().contains(filter.searchText, Qt::CaseInsensitive));
}

QList<DeviceTableRow> ordered(QList<DeviceTableRow> rows, const DeviceTableOrder &wanted, bool isByReason)
{
    const DeviceOrder order(isByReason ? QString(DeviceRowKey::ipport) : wanted.key, wanted.oddAddresses);
    std::vector<DeviceOrder::SortKey> keys;
    keys.reserve(rows.size());
    for (const DeviceTableRow &row : std::as_const(rows))
        keys.push_back(order.sortKey(row.values));

    std::vector<qsizetype> indexes(rows.size());
    std::iota(indexes.begin(), indexes.end(), 0);
    const int direction = wanted.direction == Qt::AscendingOrder ? 1 : -1;
    std::stable_sort(indexes.begin(), indexes.end(), [&](qsizetype left, qsizetype right) {
        const int reasons = isByReason ? rows.at(left).reason.compare(rows.at(right).reason) : 0;
        return reasons != 0 ? reasons < 0 : direction * DeviceOrder::compare(keys[left], keys[right]) < 0;
    });

    QList<DeviceTableRow> sorted;
    sorted.reserve(rows.size());
    for (const qsizetype index : indexes)
        sorted.append(std::move(rows[index]));
    return sorted;
}

} // namespace

QVariant DeviceTableRow::value(QLatin1StringView key) const
{
    const QJsonValue value = values.value(key);
    if (!value.isUndefined())
        return value.toVariant();
    if (key == DeviceRowKey::res || key == DeviceRowKey::upgraderes)
        return -1;
    return key == DeviceRowKey::upgrade ? QVariant(0) : QVariant(QString());
}

QString DeviceTableRow::text() const
{
    QStringList cells;
    for (const QLatin1StringView key : {DeviceRowKey::name, DeviceRowKey::type, DeviceRowKey::model,
                                        DeviceRowKey::ipport, DeviceRowKey::mac, DeviceRowKey::vision})
        cells.append(values.value(key).toString().simplified());
    return cells.join(QLatin1Char('\t'));
}

QSet<QString> namesOf(const QVariantList &list)
{
    QSet<QString> names;
    names.reserve(list.size());
    for (const QVariant &row : list)
        names.insert(rowName(row.toJsonObject()));
    return names;
}

QList<DeviceTableRow> deviceTableRows(const QVariantList &list, const DeviceTableFilter &filter,
                                      const DeviceTableOrder &order)
{
    QHash<QString, int> rowsOfAddress;
    rowsOfAddress.reserve(list.size());
    QList<DeviceTableRow> shown;
    QStringList addresses; // of the shown rows
    shown.reserve(list.size());
    addresses.reserve(list.size());
    for (const QVariant &value : list) {
        const QJsonObject values = value.toJsonObject();
        const QString ipport = values.value(DeviceRowKey::ipport).toString();
        // The address of an offline device may be used by another device now.
        const bool isKnownOnly = isAbsent(values);
        const bool isLost = isKnownOnly || values.value(DeviceRowKey::lost).toBool();
        rowsOfAddress[ipport] += isLost ? 0 : 1;
        if (!isShown(values, filter))
            continue;
        const QString identity = rowName(values);
        const QString reason = filter.onlyThose ? filter.onlyThose->reasonOf(identity) : QString();
        if (filter.onlyThose && reason.isEmpty())
            continue;
        shown.append({.values = values, .identity = identity, .isAbsent = isKnownOnly, .reason = reason});
        addresses.append(ipport);
    }
    for (qsizetype index = 0; index < shown.size(); ++index) {
        // A device without an address (waiting for DHCP) has ":port" only and cannot be in conflict.
        const QString &ipport = addresses.at(index);
        const bool isLost = shown.at(index).values.value(DeviceRowKey::lost).toBool();
        shown[index].conflict = !shown.at(index).isAbsent && !ipport.startsWith(QLatin1Char(':')) &&
                                rowsOfAddress.value(ipport) > (isLost ? 0 : 1);
    }
    const bool isByReason = order.key.isEmpty() && filter.onlyThose;
    return order.key.isEmpty() && !isByReason ? shown : ordered(std::move(shown), order, isByReason);
}

#include "device/store/devicefilter.h"

#include "device/store/devicerow.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace {

template<typename Predicate>
QVariantList rowsThat(const QVariantList &rows, Predicate keeps)
{
    QVariantList kept;
    std::copy_if(rows.cbegin(), rows.cend(), std::back_inserter(kept),
                 [&keeps](const QVariant &row) { return keeps(row.toJsonObject()); });
    return kept;
}

} // namespace

QVariantList filteredRows(const QVariantList &rows, const QString &filtertype, const QString &searchtext,
                          RowFamily family)
{
    if (filtertype == RowFilter::all)
        return rows;
    if (filtertype == RowFilter::none)
        return {};
    if (filtertype == RowFilter::uninitialised)
        return rowsThat(rows,
                        [](const QJsonObject &row) { return !row.value(DeviceRowKey::state).toBool(); });
    if (filtertype == RowFilter::initialised)
        return rowsThat(rows, [](const QJsonObject &row) { return row.value(DeviceRowKey::state).toBool(); });
    if (filtertype == RowFilter::containsText)
        return rowsThat(rows, [&](const QJsonObject &row) { return containsText(row, searchtext); });
    if (filtertype == RowFilter::singleAddress && family == RowFamily::IPv4) {
        const auto hasAddress = [&](const QVariant &row) {
            return row.toJsonObject().value(DeviceRowKey::ipport).toString() == searchtext;
        };
        const auto single = std::find_if(rows.cbegin(), rows.cend(), hasAddress);
        return single == rows.cend() ? QVariantList() : QVariantList{*single};
    }
    return {};
}

bool containsText(const QJsonObject &row, const QString &searchtext)
{
    constexpr std::array searchedKeys = {DeviceRowKey::type, DeviceRowKey::model,  DeviceRowKey::ipport,
                                         DeviceRowKey::mac,  DeviceRowKey::vision, DeviceRowKey::name};
    return std::any_of(searchedKeys.begin(), searchedKeys.end(), [&](QLatin1StringView key) {
        return row.value(key).toString().contains(searchtext, Qt::CaseInsensitive);
    });
}

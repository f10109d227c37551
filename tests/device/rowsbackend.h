// A back end whose rows a test sets.
#pragma once

#include "device/registry/devicebase.h"
#include "device/registry/devicefactory.h"
#include "device/registry/upgradetools.h"
#include "device/store/devicefilter.h"
#include "device/store/devicerow.h"
#include "tests/device/searchresponses.h"

#include <algorithm>
#include <utility>

class RowsBackEnd : public CDeviceBase
{
    Q_OBJECT
public:
    RowsBackEnd() : CDeviceBase(nullptr) {}

    QVariantMap getDeviceInfo(const QString &ipport) override
    {
        const auto row = std::ranges::find_if(std::as_const(ipv4), [&ipport](const QVariant &candidate) {
            return candidate.toJsonObject().value("ipport").toString() == ipport;
        });
        return row == ipv4.cend() ? QVariantMap() : row->toJsonObject().toVariantMap();
    }
    QVariantList filterData(const QString &filtertype, const QString &searchtext) override
    {
        if (beforeReading)
            beforeReading();
        return filteredRows(ipv4, filtertype, searchtext, RowFamily::IPv4);
    }
    QVariantList filterDataIPV6(const QString &filtertype, const QString &searchtext) override
    {
        return filteredRows(ipv6, filtertype, searchtext, RowFamily::IPv6);
    }

    void add(const ResponseTexts &texts)
    {
        const sdk::SearchResponse response = searchResponse(texts);
        if (texts.ipVersion == 4)
            ipv4.append(ipv4Row(response));
        else
            ipv6.append(ipv6Row(response));
    }

    /// Sets the upgrade result of an IPv4 row.
    void setUpgrade(qsizetype index, UpgradeTools::Result result)
    {
        QJsonObject row = ipv4.at(index).toJsonObject();
        row.insert(DeviceRowKey::upgraderes, result);
        ipv4[index] = row;
    }

    std::function<void()> beforeReading; ///< called before the IPv4 rows are read
    QVariantList ipv4;
    QVariantList ipv6;
};

/// A factory of one RowsBackEnd under the name "dh".
struct RowsFactory
{
    std::shared_ptr<RowsBackEnd> rows = std::make_shared<RowsBackEnd>();
    CDeviceFactory factory{{{QStringLiteral("dh"), [this] {
                                 return rows;
                             }}}};
};

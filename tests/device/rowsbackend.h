// A back end without devices, whose device list a test sets.
#pragma once

#include "device/registry/devicebase.h"
#include "device/registry/devicefactory.h"
#include "device/registry/upgradetools.h"
#include "device/store/devicefilter.h"
#include "device/store/devicerow.h"
#include "tests/device/searchresponses.h"

#include <algorithm>
#include <utility>

/// Has the device list only: other operations have the defaults of CDeviceBase. Main thread.
class RowsBackEnd : public CDeviceBase
{
    Q_OBJECT
public:
    RowsBackEnd() : CDeviceBase(nullptr) {}

    /// The IPv4 row at this "address:port"; empty if there is none.
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

    /// Adds the row of a device that has sent this search response, to the list of its IP version.
    void add(const ResponseTexts &texts)
    {
        const sdk::SearchResponse response = searchResponse(texts);
        if (texts.ipVersion == 4)
            ipv4.append(ipv4Row(response));
        else
            ipv6.append(ipv6Row(response));
    }

    /// Sets the upgrade result of the IPv4 row with this index, from 0.
    void setUpgrade(qsizetype index, UpgradeTools::Result result)
    {
        QJsonObject row = ipv4.at(index).toJsonObject();
        row.insert(DeviceRowKey::upgraderes, result);
        ipv4[index] = row;
    }

    std::function<void()> beforeReading; ///< called by filterData() before it reads the rows; may be empty
    QVariantList ipv4;                   ///< rows of the IPv4 list, JSON objects by column
    QVariantList ipv6;                   ///< rows of the IPv6 list
};

/// A factory whose back end "dh" is a RowsBackEnd.
struct RowsFactory
{
    std::shared_ptr<RowsBackEnd> rows = std::make_shared<RowsBackEnd>();
    CDeviceFactory factory{{{QStringLiteral("dh"), [this] {
                                 return rows;
                             }}}};
};

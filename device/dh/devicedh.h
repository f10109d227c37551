#pragma once

#include "device/devicebase.h"
#include "device/devicesearch.h"
#include "sdk/sdklibraries.h"

#include <functional>
#include <memory>

/// What a search reads from the local configuration.
struct SearchSettings
{
    bool localDomain = true; ///< search the local segment
};

/// The family "dh": the one complete back end. Each group of its operations stands in a file of its own.
class CDeviceDH : public CDeviceBase
{
    Q_OBJECT
public:
    /// `searchSettings` is called on the scene's thread at each start of a search.
    CDeviceDH(std::shared_ptr<DeviceStore> store, sdk::SdkLibraries libraries,
              std::function<SearchSettings()> searchSettings);

    /// Ends running searches and releases the network library.
    ~CDeviceDH() override;

    // Search: devicedhsearch.cpp
    void startSearch() override;
    void setSearchByIPInfo(quint32 beginip, quint32 endip) override;
    QVariantList filterData(const QString &filtertype, const QString &searchtext) override;
    QVariantList filterDataIPV6(const QString &filtertype, const QString &searchtext) override;

private:
    const sdk::SdkLibraries m_libraries;
    const std::function<SearchSettings()> m_searchSettings;
    std::unique_ptr<DeviceSearch> m_search;
};

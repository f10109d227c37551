// Searches for devices, with the logins to those that they find.
#pragma once

#include "device/registry/backendsignals.h"
#include "device/registry/devicestep.h"
#include "sdk/sdklibraries.h"

#include <QStringList>

#include <functional>
#include <memory>

class DeviceLogins;
class DeviceRefresh;
class DeviceSearch;
class DeviceStore;
class FoundLogins;

/// What a search reads from the local configuration.
struct SearchSettings
{
    bool localDomain = true; ///< search the local segment
    bool logsIn = false;     ///< log in to the devices that are found, with the account of each
};

/// Lives on the scene's thread. Signals of the back end come from threads of the searches.
class SearchOperations
{
public:
    /// `settings` is called at each start of a search.
    SearchOperations(const std::shared_ptr<DeviceStore> &store, const sdk::SdkLibraries &libraries,
                     std::function<SearchSettings()> settings, const DeviceLogins &logins,
                     BackEndSignals &backEndSignals);

    /// Waits for the searches and the logins that run.
    ~SearchOperations();
    SearchOperations(const SearchOperations &) = delete;
    SearchOperations &operator=(const SearchOperations &) = delete;

    void start();

    /// The range of the next search.
    void setRange(quint32 begin, quint32 end);

    /// Ends the search that runs: what it has found stays.
    void stop();

    /// Queries the devices of these rows again.
    void refresh(const QStringList &macs);

    /// Of refresh(), as CDeviceBase::locationStep().
    [[nodiscard]] DeviceStep locationStep(const QStringList &macs);

    /// Ends everything at its next step, and emits nothing any more. Does not wait.
    void requestEnd();

private:
    const std::function<SearchSettings()> m_settings;
    const DeviceLogins &m_logins;
    // The logins get the rows of the search, which ends first.
    const std::unique_ptr<DeviceRefresh> m_refresh;
    const std::unique_ptr<FoundLogins> m_foundLogins;
    const std::unique_ptr<DeviceSearch> m_search;
};

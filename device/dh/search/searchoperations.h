// Searches for devices, and logins to the found devices.
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

/// Settings of a search.
struct SearchSettings
{
    bool localDomain = true; ///< search the local segment
    bool logsIn = false;     ///< log in to found devices; ignored without a default account
};

/// Implements the search operations of CDeviceBase. Lives on the main thread. Signals of the back end are
/// emitted on the threads of the searches.
class SearchOperations
{
public:
    /// `settings` is called at each start of a search, on the main thread. The referenced `logins` and
    /// `backEndSignals` must outlive this object, which must outlive its steps.
    SearchOperations(const std::shared_ptr<DeviceStore> &store, const sdk::SdkLibraries &libraries,
                     std::function<SearchSettings()> settings, const DeviceLogins &logins,
                     BackEndSignals &backEndSignals);

    /// Waits for running searches and logins.
    ~SearchOperations();
    SearchOperations(const SearchOperations &) = delete;
    SearchOperations &operator=(const SearchOperations &) = delete;

    void start();

    /// Sets the address range of the next search (host byte order; 0: none).
    void setRange(quint32 begin, quint32 end);

    /// Stops the running search and drops logins that have not started; found devices are kept.
    void stop();

    /// Queries the devices of these rows again in the background, see DeviceRefresh::start().
    void refresh(const QStringList &macs);

    /// See CDeviceBase::locationStep().
    [[nodiscard]] DeviceStep locationStep(const QStringList &macs);

    /// Stops everything at its next step, without waiting. Signals of the search are not emitted any more;
    /// running logins and queries may still report changed rows.
    void requestEnd();

private:
    const std::function<SearchSettings()> m_settings;
    const DeviceLogins &m_logins;
    // m_search is declared last: it is destroyed first, since it sends its rows to m_foundLogins.
    const std::unique_ptr<DeviceRefresh> m_refresh;
    const std::unique_ptr<FoundLogins> m_foundLogins;
    const std::unique_ptr<DeviceSearch> m_search;
};

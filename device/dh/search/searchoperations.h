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
    bool localDomain = true; ///< search the local segment; the range of setRange() is searched in any case
    /// Log in to found devices whose model, version or MAC is missing; ignored without a default account.
    bool logsIn = false;
};

/// Implements the search operations of CDeviceBase. Lives on the main thread. Signals of the back end are
/// emitted on the threads of the searches and logins.
class SearchOperations
{
public:
    /// `settings` is called at each start of a search, on the main thread. The referenced `logins` and
    /// `backEndSignals` must outlive this object, which must outlive its steps.
    SearchOperations(const std::shared_ptr<DeviceStore> &store, const sdk::SdkLibraries &libraries,
                     std::function<SearchSettings()> settings, const DeviceLogins &logins,
                     BackEndSignals &backEndSignals);

    /// Ends running searches and logins and waits for their threads.
    ~SearchOperations();
    SearchOperations(const SearchOperations &) = delete;
    SearchOperations &operator=(const SearchOperations &) = delete;

    /// Starts a search in the background, with the settings and accounts at this time. The search first
    /// removes the rows, except those of DeviceStore::setKept(). A search that is still running continues
    /// beside it. Logins of the earlier search that have not started are dropped.
    void start();

    /// Sets the address range of the next search: first and last address in host byte order, 0 in either for
    /// no range. The range must have passed searchRangeError(). Later searches have no range unless it is
    /// set again.
    void setRange(quint32 begin, quint32 end);

    /// Stops running searches at their next step, without waiting, and drops logins that have not started.
    /// The rows stay, and running logins continue.
    void stop();

    /// Queries the devices of these rows again in the background, see DeviceRefresh::start().
    void refresh(const QStringList &macs);

    /// A step that queries the devices of these rows again, see DeviceRefresh::locate(). It blocks for about
    /// 6 s for up to 4096 devices; its outcome is always a success.
    [[nodiscard]] DeviceStep locationStep(const QStringList &macs);

    /// Stops running searches, refreshes and logins at their next step, without waiting. Location steps end
    /// only by their StepControl. start() must not be called afterwards. The progress and the end of a search
    /// are not signalled any more. Late responses, running logins and queries may still report changed rows.
    void requestEnd();

private:
    const std::function<SearchSettings()> m_settings;
    const DeviceLogins &m_logins;
    // m_search is declared last: it is destroyed first, since it sends its rows to m_foundLogins.
    const std::unique_ptr<DeviceRefresh> m_refresh;
    const std::unique_ptr<FoundLogins> m_foundLogins;
    const std::unique_ptr<DeviceSearch> m_search;
};

#include "device/dh/search/searchoperations.h"

#include "device/dh/logins/devicelogins.h"
#include "device/dh/logins/foundlogins.h"
#include "device/search/devicerefresh.h"
#include "device/search/devicesearch.h"

#include <optional>
#include <utility>

SearchOperations::SearchOperations(const std::shared_ptr<DeviceStore> &store,
                                   const sdk::SdkLibraries &libraries,
                                   std::function<SearchSettings()> settings, const DeviceLogins &logins,
                                   BackEndSignals &backEndSignals)
    : m_settings(std::move(settings)), m_logins(logins),
      m_refresh(std::make_unique<DeviceRefresh>(store, libraries)),
      m_foundLogins(std::make_unique<FoundLogins>(store, libraries)),
      m_search(std::make_unique<DeviceSearch>(store, libraries))
{
    const DeviceSearch *const search = m_search.get();
    backEndSignals.relay<&CDeviceBase::signalCDeviceAddDeviceToTable>(search, &DeviceSearch::rowsAdded);
    backEndSignals.relay<&CDeviceBase::signalCDeviceSearchCount>(search, &DeviceSearch::counted);
    backEndSignals.relay<&CDeviceBase::signalCDeviceSearchLimited>(search, &DeviceSearch::limited);
    backEndSignals.relay<&CDeviceBase::signalCDeviceSearchProgress>(search, &DeviceSearch::progressed);
    backEndSignals.relay<&CDeviceBase::signalCDeviceSearchDone>(search, &DeviceSearch::done);
    QObject::connect(m_search.get(), &DeviceSearch::rowsAdded, m_foundLogins.get(), &FoundLogins::logInToNew,
                     Qt::DirectConnection);
    backEndSignals.relayChangedRows(m_foundLogins.get(), &FoundLogins::rowsChanged);
    backEndSignals.relayChangedRows(m_refresh.get(), &DeviceRefresh::rowsChanged);
}

SearchOperations::~SearchOperations() = default;

void SearchOperations::start()
{
    const SearchSettings settings = m_settings();
    const bool logsIn = settings.logsIn && !m_logins.accounts().defaultAccount().account.isEmpty();
    m_foundLogins->begin(logsIn ? std::optional(m_logins.accounts()) : std::nullopt);
    m_search->start(settings.localDomain);
}

void SearchOperations::setRange(quint32 begin, quint32 end)
{
    m_search->setRange({.begin = begin, .end = end});
}

void SearchOperations::stop()
{
    m_search->stop();
    m_foundLogins->stop();
}

void SearchOperations::refresh(const QStringList &macs)
{
    m_refresh->start(macs);
}

DeviceStep SearchOperations::locationStep(const QStringList &macs)
{
    return [this, macs](const StepControl &control) {
        m_refresh->locate(macs, control.stopToken());
        return StepOutcome();
    };
}

void SearchOperations::requestEnd()
{
    m_search->requestStop();
    m_refresh->requestStop();
    m_foundLogins->requestStop();
}

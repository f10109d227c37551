#include "device/dh/devicedh.h"
#include "device/dh/logins/foundlogins.h"
#include "device/registry/devicefilter.h"
#include "device/registry/devicestore.h"

void CDeviceDH::startSearch()
{
    const SearchSettings settings = m_searchSettings();
    const bool logsIn = settings.logsIn && !m_accounts.defaultAccount().account.isEmpty();
    m_foundLogins->begin(logsIn ? std::optional(m_accounts) : std::nullopt);
    m_search->start(settings.localDomain);
}

void CDeviceDH::setSearchByIPInfo(quint32 beginip, quint32 endip)
{
    m_search->setRange({.begin = beginip, .end = endip});
}

void CDeviceDH::stopSearch()
{
    m_search->stop();
    m_foundLogins->stop();
}

void CDeviceDH::refreshDevices(const QStringList &macs)
{
    m_refresh->start(macs);
}

DeviceStep CDeviceDH::locationStep(const QStringList &macs)
{
    return [this, macs](const StepControl &control) {
        m_refresh->locate(macs, control.stopToken());
        return StepOutcome();
    };
}

QVariantList CDeviceDH::filterData(const QString &filtertype, const QString &searchtext)
{
    return filteredRows(store().ipv4Rows(), filtertype, searchtext, RowFamily::IPv4);
}

QVariantList CDeviceDH::filterDataIPV6(const QString &filtertype, const QString &searchtext)
{
    return filteredRows(store().ipv6Rows(), filtertype, searchtext, RowFamily::IPv6);
}

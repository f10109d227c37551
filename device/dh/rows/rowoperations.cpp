#include "device/dh/rows/rowoperations.h"

#include "device/dh/logins/devicelogins.h"
#include "device/dh/logins/rowadding.h"
#include "device/registry/backendsignals.h"
#include "device/registry/mapkeys.h"
#include "device/store/devicefilter.h"
#include "device/store/devicerow.h"
#include "device/store/devicestore.h"

#include <QSet>

#include <utility>

RowOperations::RowOperations(std::shared_ptr<DeviceStore> store, sdk::SdkLibraries libraries,
                             const DeviceLogins &logins, UpgradeCheck isUpgrading,
                             BackEndSignals &backEndSignals)
    : m_store(std::move(store)), m_libraries(std::move(libraries)), m_logins(logins),
      m_isUpgrading(std::move(isUpgrading)), m_signals(backEndSignals)
{
}

int RowOperations::add(const RowLoginRequest &request)
{
    const RowLoginOutcome outcome = loginForRow(m_libraries, request);
    if (outcome.result == LoginResult::Success) {
        m_store->upsertRow(outcome.row, outcome.record);
        m_signals.emitNow<&CDeviceBase::signalCDeviceAddSingleDeviceToTable>();
    }
    return resultCode(outcome.result);
}

DeviceStep RowOperations::addingStep(const DeviceToAdd &device, const std::shared_ptr<P2PPorts> &ports) const
{
    return [adding = RowAdding(*m_store, m_libraries, ports), device](const StepControl &control) {
        return adding.addNew(device, control);
    };
}

bool RowOperations::update(const QString &key, const QVariant &newValue, const QString &mac,
                           const QString &ipport)
{
    const auto write = [&](QJsonObject &row) {
        row.insert(key, QJsonValue::fromVariant(newValue));
    };
    const bool isWritten =
        (!mac.isEmpty() && m_store->changeRowNamed(mac, write)) || m_store->changeRowAt(ipport, write);
    if (isWritten && key == DeviceRowKey::name) // other values are shown only by the page that writes them
        m_signals.noteChangedRows();
    return isWritten;
}

QVariantMap RowOperations::accountOf(const QString &name) const
{
    const QJsonObject row = m_store->rowNamed(name);
    const AccountChoice::Chosen chosen = m_logins.accounts().of(row.isEmpty() ? m_store->rowAt(name) : row);
    return {{AccountKey::account, chosen.account.account},
            {AccountKey::password, chosen.account.password},
            {AccountKey::isStored, chosen.source == AccountChoice::Source::Stored},
            {AccountKey::isDefault, chosen.source == AccountChoice::Source::Default},
            {AccountKey::isFollowing, chosen.source == AccountChoice::Source::Default && chosen.isFollowing}};
}

QVariantMap RowOperations::rowAt(const QString &ipport) const
{
    return m_store->rowAt(ipport).toVariantMap();
}

QJsonObject RowOperations::rowNamed(const QString &name) const
{
    return m_store->rowNamed(name);
}

QVariantMap RowOperations::detail(const QString &mac) const
{
    const QJsonObject row = m_store->rowNamed(mac);
    QVariantMap detail = row.toVariantMap();
    const AccountChoice::Chosen chosen = m_logins.accounts().of(row);
    if (chosen.source == AccountChoice::Source::Stored)
        detail.insert(DeviceRowKey::username, chosen.account.account);
    detail.remove(DeviceRowKey::password); // details are shown and exported
    const std::optional<sdk::SearchResponse> record = m_store->record(mac);
    if (!record)
        return detail;
    const sdk::SearchDeviceInformation &device = record->device;
    detail.insert(DeviceDetailKey::submask, fieldText(device.subnetMask));
    detail.insert(DeviceDetailKey::gateway, fieldText(device.gateway));
    detail.insert(DeviceDetailKey::dhcp, device.dhcpEnabled != 0);
    detail.insert(DeviceDetailKey::serial, fieldText(device.serialNumber));
    detail.insert(DeviceDetailKey::uuid, fieldText(device.uuid));
    detail.insert(DeviceDetailKey::localAddress, fieldText(record->localAddress));
    return detail;
}

QVariantMap RowOperations::detailAt(const QString &ipport) const
{
    return detail(rowName(m_store->rowAt(ipport)));
}

QVariantList RowOperations::filtered(const QString &filter, const QString &text) const
{
    return filteredRows(m_store->ipv4Rows(), filter, text, RowFamily::IPv4);
}

QVariantList RowOperations::filteredIPv6(const QString &filter, const QString &text) const
{
    return filteredRows(m_store->ipv6Rows(), filter, text, RowFamily::IPv6);
}

void RowOperations::remove(const QVariantMap &macs, const QString &ipversion)
{
    QSet<QString> deleted;
    for (auto name = macs.keyBegin(); name != macs.keyEnd(); ++name) {
        if (!m_isUpgrading(*name))
            deleted.insert(*name);
    }
    if (ipversion == QLatin1String("IPV6"))
        m_store->removeIPv6Rows(deleted);
    else
        m_store->removeRows(deleted);
    m_signals.emitNow<&CDeviceBase::signalCDeviceAddSingleDeviceToTable>();
}

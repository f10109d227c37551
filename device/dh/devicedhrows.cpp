// Rows and their logins.
#include "device/dh/devicedh.h"
#include "device/dh/logins/devicelogins.h"
#include "device/dh/logins/rowadding.h"
#include "device/dh/upgrade/upgraderound.h"
#include "device/registry/devicefilter.h"
#include "device/registry/devicerow.h"
#include "device/registry/devicestore.h"

int CDeviceDH::getLoginDevice(const QString &address, const QString &account, const QString &password,
                              const QString &port, int loginType, const QString &devicePort)
{
    const RowLoginRequest request = {.address = address,
                                     .account = account,
                                     .password = password,
                                     .port = port.toInt(),
                                     .reachedBy = static_cast<ReachedBy>(loginType),
                                     .devicePort = devicePort};
    const RowLoginOutcome outcome = loginForRow(m_libraries, request);
    if (outcome.result == LoginResult::Success) {
        store().putRow(outcome.row, outcome.record);
        Q_EMIT signalCDeviceAddSingleDeviceToTable();
    }
    return resultCode(outcome.result);
}

DeviceStep CDeviceDH::addingStep(const DeviceToAdd &device)
{
    return [adding = RowAdding(store(), m_libraries, p2pPorts()), device](const StepControl &control) {
        return adding.addNew(device, control);
    };
}

void CDeviceDH::setDefaultAccount(const QString &account, const QString &password)
{
    m_logins->setDefaultAccount({.account = account, .password = password});
}

void CDeviceDH::setFollowingAccount(const QString &account, const QString &password)
{
    m_accounts.setFollowing({.account = account, .password = password});
}

QVariantMap CDeviceDH::accountOf(const QString &name)
{
    const QJsonObject row = store().rowNamed(name);
    const AccountChoice::Chosen chosen = m_logins->accounts().of(row.isEmpty() ? store().rowAt(name) : row);
    return {{QStringLiteral("account"), chosen.account.account},
            {QStringLiteral("password"), chosen.account.password},
            {QStringLiteral("isStored"), chosen.source == AccountChoice::Source::Stored},
            {QStringLiteral("isDefault"), chosen.source == AccountChoice::Source::Default},
            {QStringLiteral("isFollowing"),
             chosen.source == AccountChoice::Source::Default && chosen.isFollowing}};
}

bool CDeviceDH::updataDeviceInfo(const QString &key, const QVariant &newValue, const QString &mac,
                                 const QString &ipport)
{
    const auto write = [&](QJsonObject &row) {
        row.insert(key, QJsonValue::fromVariant(newValue));
    };
    const bool isWritten =
        (!mac.isEmpty() && store().changeRowNamed(mac, write)) || store().changeRowAt(ipport, write);
    if (isWritten && key == DeviceRowKey::name) // other values are shown by the page that writes them
        m_signals.noteChangedRows();
    return isWritten;
}

QVariantMap CDeviceDH::getDeviceInfo(const QString &ipport)
{
    return store().rowAt(ipport).toVariantMap();
}

QVariantMap CDeviceDH::getDeviceDetail(const QString &mac)
{
    const QJsonObject row = store().rowNamed(mac);
    QVariantMap detail = row.toVariantMap();
    const AccountChoice::Chosen chosen = m_logins->accounts().of(row);
    if (chosen.source == AccountChoice::Source::Stored)
        detail.insert(DeviceRowKey::username, chosen.account.account);
    detail.remove(DeviceRowKey::password); // details are shown and handed on
    const std::optional<sdk::SearchAnswer> record = store().record(mac);
    if (!record)
        return detail;
    const sdk::SearchDeviceInformation &device = record->device;
    detail.insert(QStringLiteral("submask"), fieldText(device.subnetMask));
    detail.insert(QStringLiteral("gateway"), fieldText(device.gateway));
    detail.insert(QStringLiteral("dhcp"), device.dhcpEnabled != 0);
    detail.insert(QStringLiteral("serial"), fieldText(device.serialNumber));
    detail.insert(QStringLiteral("uuid"), fieldText(device.uuid));
    detail.insert(QStringLiteral("localAddress"), fieldText(record->localAddress));
    return detail;
}

QJsonObject CDeviceDH::deviceRow(const QString &name)
{
    return store().rowNamed(name);
}

QVariantMap CDeviceDH::getDeviceDetailByAddress(const QString &ipport)
{
    return getDeviceDetail(rowName(store().rowAt(ipport)));
}

void CDeviceDH::setDeleteDevice(const QString &mac, const QString &ipvision)
{
    setBatchDeleteDevice({{mac, true}}, ipvision);
}

void CDeviceDH::setBatchDeleteDevice(const QVariantMap &macs, const QString &ipversion)
{
    QSet<QString> deleted;
    for (auto name = macs.keyBegin(); name != macs.keyEnd(); ++name) {
        if (!m_upgrades->isUpgrading(*name))
            deleted.insert(*name);
    }
    if (ipversion == QLatin1String("IPV6"))
        store().removeIPv6Rows(deleted);
    else
        store().removeRows(deleted);
    Q_EMIT signalCDeviceAddSingleDeviceToTable();
}

QVariantList CDeviceDH::filterData(const QString &filtertype, const QString &searchtext)
{
    return filteredRows(store().ipv4Rows(), filtertype, searchtext, RowFamily::IPv4);
}

QVariantList CDeviceDH::filterDataIPV6(const QString &filtertype, const QString &searchtext)
{
    return filteredRows(store().ipv6Rows(), filtertype, searchtext, RowFamily::IPv6);
}

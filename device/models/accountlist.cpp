#include "device/models/accountlist.h"

#include "device/models/modelkeys.h"
#include "device/registry/devicefactory.h"
#include "device/registry/devicefamily.h"
#include "device/store/devicerow.h"
#include "favourites/favouritepasswords.h"

#include <algorithm>
#include <utility>

namespace {

const QString accountPrefix = QStringLiteral("account ");

} // namespace

AccountList::AccountList(CDeviceFactory &factory, std::shared_ptr<AccountStore> store, Defaults defaults,
                         QObject *parent)
    : DialogRows(parent), m_factory(factory), m_store(std::move(store)), m_defaults(std::move(defaults))
{
    load();
}

void AccountList::load()
{
    beginResetModel();
    m_default = m_defaults.read();
    m_accounts = m_store->accounts();
    m_deviceCounts = m_store->deviceCounts();
    endResetModel();
    Q_EMIT changed();
}

int AccountList::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_accounts.size()) + 1;
}

QVariantMap AccountList::valuesOf(int row) const
{
    const bool isDefault = row == 0;
    const StoredAccount account = isDefault ? StoredAccount() : m_accounts.at(row - 1);
    return {{RowKey::identity, isDefault ? QStringLiteral("default") : accountPrefix + account.name},
            {DeviceRowKey::name, account.name},
            {RowKey::account, isDefault ? m_default.account : account.account},
            {RowKey::deviceCount, m_deviceCounts.value(account.name)},
            {RowKey::isDefault, isDefault}};
}

QString AccountList::put(const QString &before, const QString &name, const QString &account,
                         const QString &password)
{
    const std::optional<StoredAccount> known = m_store->account(before);
    const bool keepsPassword = known && password.isEmpty();
    QString failure = m_store->put(
        before,
        {.name = name.trimmed(), .account = account, .password = keepsPassword ? known->password : password});
    load();
    return failure;
}

QString AccountList::remove(const QString &name)
{
    QString failure = m_store->remove(name);
    load();
    return failure;
}

QStringList AccountList::unused() const
{
    QStringList names;
    for (const StoredAccount &account : m_accounts) {
        if (m_deviceCounts.value(account.name) == 0)
            names.append(account.name);
    }
    return names;
}

QString AccountList::removeUnused()
{
    load(); // an account may have been assigned to a device since the last load()
    QString failure;
    const QStringList names = unused();
    for (qsizetype position = 0; position < names.size() && failure.isEmpty(); ++position)
        failure = m_store->remove(names.at(position));
    load();
    return failure;
}

AccountList::Device AccountList::deviceOf(const QString &name) const
{
    QJsonObject row = m_factory.backEnd(dhFamily)->deviceRow(name);
    if (row.isEmpty())
        row = QJsonObject::fromVariantMap(m_factory.getDeviceInfo(dhFamily, name));
    return {.name = rowName(row),
            .ipport = row.value(DeviceRowKey::ipport).toString(),
            .identities = accountIdentities(row),
            .own = {.account = row.value(DeviceRowKey::username).toString(),
                    .password = row.value(DeviceRowKey::password).toString()}};
}

QList<AccountList::Device> AccountList::devicesOf(const QStringList &names) const
{
    QList<Device> devices;
    devices.reserve(names.size());
    for (const QString &name : names) {
        Device device = deviceOf(name);
        if (!device.name.isEmpty())
            devices.append(std::move(device));
    }
    return devices;
}

QList<AccountStore::Device> AccountList::identitiesOf(const QList<Device> &devices)
{
    QList<AccountStore::Device> identities;
    for (const Device &device : devices) {
        if (!device.identities.isEmpty())
            identities.append(device.identities);
    }
    return identities;
}

void AccountList::setRowAccount(const Device &device, const DeviceAccount &account)
{
    if (device.own == account)
        return;
    m_factory.updataDeviceInfo(dhFamily, DeviceRowKey::username, account.account, device.name, device.ipport);
    m_factory.updataDeviceInfo(dhFamily, DeviceRowKey::password, account.password, device.name,
                               device.ipport);
}

int AccountList::rowOfName(const QString &name) const
{
    return rowOf(accountPrefix + name);
}

int AccountList::rowOfDevice(const QString &device) const
{
    const Device known = deviceOf(device);
    if (!known.own.account.isEmpty() || !known.own.password.isEmpty())
        return -1;
    const std::optional<StoredAccount> stored = m_store->accountOf(known.identities);
    return stored ? rowOfName(stored->name) : 0;
}

QString AccountList::select(const QStringList &devices, const QString &name)
{
    const QList<Device> found = devicesOf(devices);
    QString failure = m_store->assign(identitiesOf(found), name);
    if (!failure.isEmpty())
        return failure;
    const StoredAccount account = m_store->account(name).value_or(StoredAccount());
    for (const Device &device : found) {
        const bool isStored = !device.identities.isEmpty();
        setRowAccount(device, isStored
                                  ? DeviceAccount()
                                  : DeviceAccount{.account = account.account, .password = account.password});
    }
    load();
    return failure;
}

int AccountList::countUnidentified(const QStringList &devices) const
{
    const QList<Device> found = devicesOf(devices);
    return static_cast<int>(
        std::ranges::count_if(found, [](const Device &device) { return device.identities.isEmpty(); }));
}

void AccountList::keepForDevices(const QList<Device> &devices, QString &failure)
{
    // Devices of one batch usually have the same account: one write for each run of equal accounts.
    for (qsizetype first = 0; first < devices.size() && failure.isEmpty();) {
        const DeviceAccount account = devices.at(first).own;
        QList<Device> alike;
        for (; first < devices.size() && devices.at(first).own == account; ++first) {
            if (!devices.at(first).identities.isEmpty() && !account.password.isEmpty())
                alike.append(devices.at(first));
        }
        if (alike.isEmpty())
            continue;
        failure = m_store->keep(identitiesOf(alike), account.account, account.password);
        for (const Device &device : std::as_const(alike)) {
            if (failure.isEmpty())
                setRowAccount(device, {});
        }
    }
}

void AccountList::renewFavourites(const QList<Device> &devices) const
{
    QList<AcceptedPassword> accepted;
    accepted.reserve(devices.size());
    for (const Device &device : devices) {
        const QString &account = device.own.account.isEmpty() ? m_default.account : device.own.account;
        accepted.append({.ipport = device.ipport, .account = account, .password = device.own.password});
    }
    renewFavouritePasswords(m_favourites, accepted);
}

QString AccountList::keepNew(const QStringList &devices, Keeping keeping)
{
    const QList<Device> found = devicesOf(devices);
    renewFavourites(found);
    QString failure;
    if (keeping == ForDevices) {
        keepForDevices(found, failure);
    } else {
        failure = m_store->assign(identitiesOf(found), {});
        const auto taken =
            std::ranges::find_if(found, [](const Device &device) { return !device.own.password.isEmpty(); });
        if (failure.isEmpty() && keeping == AsDefault && taken != found.cend()) {
            m_defaults.write(taken->own);
            for (const Device &device : found)
                setRowAccount(device, {});
        }
    }
    load();
    return failure;
}

QString AccountList::keep(const QString &device, const QString &account, const QString &password)
{
    const Device found = deviceOf(device);
    if (found.identities.isEmpty())
        return tr("设备没有MAC和UUID，账号只用到下次搜索");
    QString failure = m_store->keep({found.identities}, account, password);
    if (failure.isEmpty())
        setRowAccount(found, {});
    load();
    return failure;
}

#include "device/dh/upgrade/upgradeorders.h"

#include "device/batch/batchplan.h"
#include "device/dh/logins/devicelogins.h"
#include "device/store/devicerow.h"
#include "device/store/devicestore.h"

#include <utility>

UpgradeOrders::UpgradeOrders(std::shared_ptr<DeviceStore> store, const DeviceLogins &logins)
    : m_store(std::move(store)), m_logins(logins)
{
}

UpgradeOrder UpgradeOrders::orderOf(const QJsonObject &row) const
{
    const QString name = rowName(row);
    const QString ipport = row.value(DeviceRowKey::ipport).toString();
    const DeviceAccount account = accountOf(row);
    return {.key = name,
            .row = name,
            .ipport = ipport,
            .account = account.account,
            .password = account.password,
            .model = row.value(DeviceRowKey::model).toString(),
            .file = row.value(DeviceRowKey::filepath).toString(),
            .device = workKey(m_store->rowAt(ipport), ipport, name)};
}

UpgradeOrder UpgradeOrders::orderOf(const UpgradeDocumentLine &line, const QJsonObject &row) const
{
    UpgradeOrder order = orderOf(row);
    order.ipport = line.ipport;
    order.file = line.file;
    if (order.key.isEmpty())
        order.key = line.ipport;
    order.device = workKey(m_store->rowAt(line.ipport), line.ipport, order.key);
    const DeviceAccount usual = m_logins.accountOf(row);
    order.account = line.user.isEmpty() ? usual.account : line.user;
    order.password = line.user.isEmpty() && line.password.isEmpty() ? usual.password : line.password;
    return order;
}

std::optional<UpgradeOrder> UpgradeOrders::orderNamed(const QString &name) const
{
    const QJsonObject row = m_store->rowNamed(name);
    if (!row.isEmpty())
        return orderOf(row);
    const auto rowless = m_rowless.constFind(name);
    return rowless == m_rowless.cend() ? std::nullopt : std::optional(*rowless);
}

void UpgradeOrders::keep(const UpgradeOrder &order, const QJsonObject &row)
{
    if (order.row.isEmpty())
        m_rowless.insert(order.key, order);
    else
        m_documentAccounts.insert(
            order.row, {.used = {order.account, order.password}, .usual = m_logins.accountOf(row)});
}

DeviceAccount UpgradeOrders::accountOf(const QJsonObject &row) const
{
    DeviceAccount usual = m_logins.accountOf(row);
    const auto known = m_documentAccounts.constFind(rowName(row));
    if (known == m_documentAccounts.cend() || known->usual != usual)
        return usual;
    const int result = row.value(DeviceRowKey::upgraderes).toInt(UpgradeTools::None);
    const bool isRefused = result == UpgradeTools::WrongPassword || result == UpgradeTools::NoSuchAccount;
    return isRefused ? usual : known->used;
}

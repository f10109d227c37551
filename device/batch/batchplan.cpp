#include "device/batch/batchplan.h"

#include "device/models/batchreport.h"
#include "device/registry/devicefactory.h"
#include "device/registry/devicerow.h"

#include <QCoreApplication>

BatchDevice batchDevice(CDeviceFactory &factory, const QString &family, const QString &name)
{
    // Rows are found by MAC or by address; a MAC has more than one colon, or none.
    QJsonObject row = factory.deviceRow(family, name);
    if (row.isEmpty())
        row = QJsonObject::fromVariantMap(factory.getDeviceInfo(family, name));
    const QString ipport = row.value(DeviceRowKey::ipport).toString(name);
    return {.name = name,
            .identity = row.isEmpty() ? name : rowName(row),
            .ipport = ipport,
            .title = deviceTitle(row.value(DeviceRowKey::name).toString(),
                                 row.value(DeviceRowKey::model).toString())};
}

QList<BatchDevice> batchDevices(CDeviceFactory &factory, const QString &family, const QStringList &names)
{
    QList<BatchDevice> devices;
    devices.reserve(names.size());
    QStringList different = names; // one that is named twice is asked once
    different.removeDuplicates();
    for (const QString &name : std::as_const(different))
        devices.append(batchDevice(factory, family, name));
    return devices;
}

QHash<QString, QJsonObject> rowsByAddress(const QVariantList &rows)
{
    QHash<QString, QJsonObject> found;
    found.reserve(rows.size());
    for (const QVariant &value : rows) {
        const QJsonObject row = value.toJsonObject();
        const QString ipport = row.value(DeviceRowKey::ipport).toString();
        const auto known = found.constFind(ipport);
        if (known == found.cend() || known->value(DeviceRowKey::lost).toBool())
            found.insert(ipport, row);
    }
    return found;
}

QString workKey(const QJsonObject &rowThere, const QString &ipport, const QString &identity)
{
    if (ipport.isEmpty() || ipport.startsWith(QLatin1Char(':'))) // waits for an address by DHCP
        return identity;
    return rowThere.isEmpty() ? ipport : rowName(rowThere);
}

QString macOf(const BatchDevice &device)
{
    // A row without a MAC is named by the device's UUID or by the address that it was found with.
    const bool isOther = device.identity == device.ipport || device.identity.contains(QLatin1Char('.')) ||
                         device.identity.startsWith(uuidPrefix);
    return isOther ? QString() : device.identity;
}

QString outcomeText(const StepOutcome &outcome)
{
    const QString result = outcome.result == BatchReport::Waiting
                               ? QCoreApplication::translate("BatchResult", "旧密码正确")
                               : resultName(outcome.result);
    if (BatchReport::isSkipped(outcome.result))
        return QCoreApplication::translate("BatchResult", "%1，已跳过").arg(result);
    return outcome.text.isEmpty()
               ? result
               : QCoreApplication::translate("BatchResult", "%1：%2").arg(result, outcome.text);
}

bool maySucceedLater(const StepOutcome &outcome)
{
    switch (outcome.result) {
    case resultCode(LoginResult::AccountLoggedIn):
    case resultCode(LoginResult::NetworkFailure):
    case resultCode(LoginResult::Upgrading):
    case resultCode(LoginResult::NotDone):
    case resultCode(LoginResult::UnknownCertificate): // the user may have agreed meanwhile
    case resultCode(LoginResult::ChangedCertificate):
    case deviceBusy:
    case upgradeFailed:
    case upgradeUnconfirmed:
        return true;
    default:
        return outcome.isUnanswered;
    }
}

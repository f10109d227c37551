#include "device/batch/batchplan.h"

#include "device/models/batchreport.h"
#include "device/registry/devicefactory.h"
#include "device/store/devicerow.h"

#include <QCoreApplication>

BatchDevice batchDevice(CDeviceFactory &factory, const QString &family, const QString &name)
{
    // `name` is a MAC or "address:port".
    QJsonObject row = factory.backEnd(family)->deviceRow(name);
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
    QStringList different = names;
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
    if (ipport.isEmpty() || ipport.startsWith(QLatin1Char(':'))) // no address yet: waiting for DHCP
        return identity;
    return rowThere.isEmpty() ? ipport : rowName(rowThere);
}

QString macOf(const BatchDevice &device)
{
    // The identity of a device without MAC is its UUID, or the address at which it was found.
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
    case resultCode(LoginResult::UnknownCertificate): // the user may have accepted it since
    case resultCode(LoginResult::ChangedCertificate):
    case deviceBusy:
    case upgradeFailed:
    case upgradeUnconfirmed:
        return true;
    default:
        return outcome.hasNoResponse;
    }
}

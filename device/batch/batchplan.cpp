#include "device/batch/batchplan.h"

#include "device/devicefactory.h"
#include "device/devicerow.h"

BatchDevice batchDevice(CDeviceFactory &factory, const QString &family, const QString &name)
{
    // Rows are found by MAC or by address; a MAC has more than one colon, or none.
    QVariantMap row = factory.getDeviceDetail(family, name);
    if (row.isEmpty())
        row = factory.getDeviceInfo(family, name);
    const QString ipport = row.value(DeviceRowKey::ipport, name).toString();
    QStringList words = {row.value(DeviceRowKey::name).toString(), row.value(DeviceRowKey::model).toString()};
    words.removeAll(QString());
    return {.name = name,
            .identity = row.isEmpty() ? name : rowName(QJsonObject::fromVariantMap(row)),
            .ipport = ipport,
            .title = words.join(QStringLiteral(" · "))};
}

QList<BatchDevice> batchDevices(CDeviceFactory &factory, const QString &family, const QStringList &names)
{
    QList<BatchDevice> devices;
    devices.reserve(names.size());
    for (const QString &name : names)
        devices.append(batchDevice(factory, family, name));
    return devices;
}

bool maySucceedLater(int result)
{
    switch (static_cast<LoginResult>(result)) {
    case LoginResult::AccountLoggedIn:
    case LoginResult::NetworkFailure:
    case LoginResult::Upgrading:
    case LoginResult::NotDone:
        return true;
    default:
        return false;
    }
}

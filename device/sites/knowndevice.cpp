#include "device/sites/knowndevice.h"

#include "device/store/devicerow.h"

#include <QLocale>

bool isAbsent(const QJsonObject &row)
{
    const auto presence = static_cast<Presence>(row.value(SiteKey::presence).toInt());
    return presence == Presence::Waiting || presence == Presence::Missing;
}

namespace {

/// Devices report MACs in several spellings.
QString keyOf(const QString &mac, const QString &name, bool isIPv6)
{
    if (isIPv6)
        return QLatin1String("ipv6 ") + name.toLower();
    return mac.isEmpty() ? name.toLower() : mac.toLower().replace(QLatin1Char('-'), QLatin1Char(':'));
}

} // namespace

QString KnownDevice::key() const
{
    return keyOf(mac, identity.isEmpty() ? mac : identity, isIPv6);
}

QJsonObject KnownDevice::row(Presence presence) const
{
    QJsonObject row = {
        {DeviceRowKey::state, isInitialised}, {DeviceRowKey::name, name},
        {DeviceRowKey::type, type},           {DeviceRowKey::model, model},
        {DeviceRowKey::ipport, ipport},       {DeviceRowKey::mac, mac},
        {DeviceRowKey::vision, version},      {DeviceRowKey::httpport, httpPort},
        {SiteKey::presence, int(presence)},
    };
    if (!identity.isEmpty())
        row.insert(DeviceRowKey::identity, identity);
    if (!group.isEmpty())
        row.insert(SiteKey::group, group);
    if (lastSeen.isValid())
        row.insert(SiteKey::lastSeen, QLocale().toString(lastSeen.toLocalTime(), QLocale::ShortFormat));
    return row;
}

bool KnownDevice::isSameAs(const KnownDevice &other) const
{
    return identity == other.identity && mac == other.mac && ipport == other.ipport && name == other.name &&
           type == other.type && model == other.model && version == other.version && serial == other.serial &&
           group == other.group && note == other.note && httpPort == other.httpPort &&
           isInitialised == other.isInitialised && isIPv6 == other.isIPv6;
}

QStringList knownKeys(const QJsonObject &row, bool isIPv6)
{
    QStringList keys = {keyOf(row.value(DeviceRowKey::mac).toString(), rowName(row), isIPv6),
                        keyOf({}, rowName(row), isIPv6)};
    keys.removeDuplicates();
    keys.removeAll(QString());
    return keys;
}

KnownDevice knownDevice(const QJsonObject &row, bool isIPv6)
{
    const QString mac = row.value(DeviceRowKey::mac).toString();
    return {.identity = mac.isEmpty() ? rowName(row) : QString(),
            .mac = mac,
            .ipport = row.value(DeviceRowKey::ipport).toString(),
            .name = row.value(DeviceRowKey::name).toString(),
            .type = row.value(DeviceRowKey::type).toString(),
            .model = row.value(DeviceRowKey::model).toString(),
            .version = row.value(DeviceRowKey::vision).toString(),
            .serial = {},
            .group = {},
            .note = {},
            .httpPort = row.value(DeviceRowKey::httpport).toInt(),
            .isInitialised = row.value(DeviceRowKey::state).toBool(),
            .isIPv6 = isIPv6,
            .lastSeen = {}};
}

#include "sdk/demo/device/deviceresponses.h"

#include "sdk/configrecords.h"
#include "sdk/configtext/configtext.h"
#include "sdk/demo/device/channelitems.h"
#include "sdk/demo/device/fieldtext.h"
#include "sdk/systemrecords.h"

#include <QDateTime>
#include <QJsonDocument>

namespace sdk::demo {

namespace {

constexpr int rtspPort = 554;
constexpr int maximumConnections = 10;

NetworkRecord networkRecord(const SceneDevice &device)
{
    NetworkRecord record = {};
    record.size = sizeof(record);
    record.dhcpEnabled = device.dhcp ? 1 : 0;
    FieldWriter(device).write(record.hostName, device.name);
    writePlain(record.mac, device.mac);
    if (device.address.isEmpty()) {
        writePlain(record.address, device.ipv6);
        writePlain(record.subnetMask, QString::number(device.ipv6PrefixLength));
    } else {
        writePlain(record.address, device.address);
        writePlain(record.subnetMask, device.mask);
        writePlain(record.gateway, device.gateway);
    }
    return record;
}

/// Factory settings. Later changes are in the device's configuration.
std::optional<QByteArray> maintenanceText(const QString &name)
{
    constexpr int fetchingPort = 123;
    if (name == QLatin1String("Locales")) {
        LocalesRecord record = {
            sizeof(record), 0, {4, 1, 0, 2, 0}, {10, DaylightSavingPoint::lastWeek, 0, 2, 0}, {}, {}};
        writePlain(record.timeFormat, QStringLiteral("yyyy-MM-dd HH:mm:ss"));
        return packConfigText("Locales", &record, sizeof(record));
    }
    if (name == QLatin1String("AutoMaintain")) {
        const AutoMaintainRecord record = {sizeof(record), AutoMaintainRecord::never, 0, 0, {}, 0, {}};
        return packConfigText("AutoMaintain", &record, sizeof(record));
    }
    if (name == QLatin1String("NTP")) {
        const NtpRecord record = {sizeof(record), 0, {}, fetchingPort, 10, 0, {}};
        return packConfigText("NTP", &record, sizeof(record));
    }
    return std::nullopt;
}

std::optional<QByteArray> ownText(const SceneDevice &device, const QString &name)
{
    if (name == QLatin1String("Network")) {
        const NetworkRecord record = networkRecord(device);
        return packConfigText("Network", &record, sizeof(record));
    }
    if (name == QLatin1String("DVRIP")) {
        const ServiceRecord record = {sizeof(record), device.port, maximumConnections, {}};
        return packConfigText("DVRIP", &record, sizeof(record));
    }
    if (name == QLatin1String("Https")) {
        const HttpsRecord record = {sizeof(record), 0, usualHttpsPort, 0};
        return packConfigText("Https", &record, sizeof(record));
    }
    return maintenanceText(name);
}

} // namespace

int httpsPortOf(const SceneDevice &device)
{
    const QJsonObject https = device.configuration.value(QLatin1String("Https")).toObject();
    return https.value(QLatin1String("enabled")).toBool()
               ? https.value(QLatin1String("port")).toInt(usualHttpsPort)
               : 0;
}

DeviceAttributes deviceAttributes(const SceneDevice &device)
{
    DeviceAttributes attributes = {};
    attributes.size = sizeof(attributes);
    const FieldWriter writer(device);
    writer.write(attributes.serialNumber, device.serial);
    writer.write(attributes.softwareVersion, device.version);
    writer.write(attributes.detailModel, device.model);
    writePlain(attributes.mac, device.mac);
    attributes.videoInputs = static_cast<std::int32_t>(device.channels.size());
    attributes.alarmInputs = device.capabilities.value(QLatin1String("alarmInputs")).toInt();
    attributes.disks = device.capabilities.value(QLatin1String("disks")).toInt();
    return attributes;
}

NetworkServices networkServices(const SceneDevice &device)
{
    NetworkServices services = {};
    services.size = sizeof(services);
    services.webPort = device.httpPort;
    services.servicePort = device.port;
    services.rtspPort = rtspPort;
    return services;
}

TimeRecord deviceTime(const SceneDevice &device, std::int64_t now)
{
    const std::int64_t shown = now + device.maintenance.clockAhead.count();
    const QDateTime time = QDateTime::fromMSecsSinceEpoch(shown, Qt::UTC);
    const auto part = [](int number) {
        return static_cast<std::uint32_t>(number);
    };
    return {part(time.date().year()), part(time.date().month()),  part(time.date().day()),
            part(time.time().hour()), part(time.time().minute()), part(time.time().second())};
}

std::optional<QByteArray> configurationText(const SceneDevice &device, const QString &name,
                                            std::int32_t channel)
{
    std::optional<QByteArray> text =
        isChannelConfiguration(name) ? channelText(device, name, channel) : ownText(device, name);
    const QJsonObject laidOver = device.configuration.value(name).toObject();
    if (!text)
        return text;
    if (const std::optional<FaultSetting> odd = device.fault(Fault::OddConfiguration);
        odd && odd->text == name)
        return text->chopped(1) + "\x07\xff\n"; // without its last bracket
    if (const std::optional<FaultSetting> odd = device.fault(Fault::OverLongConfiguration);
        odd && odd->text == name)
        return *text + QByteArray(static_cast<qsizetype>(longestConfigText), ' ');
    if (laidOver.isEmpty())
        return text;
    QJsonObject object = QJsonDocument::fromJson(*text).object().value(name).toObject();
    for (auto entry = laidOver.constBegin(); entry != laidOver.constEnd(); ++entry)
        object.insert(entry.key(), entry.value());
    return QJsonDocument(QJsonObject{{name, object}}).toJson(QJsonDocument::Compact);
}

} // namespace sdk::demo

#include "device/sites/sitefile.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>

#include <algorithm>
#include <array>
#include <utility>

namespace {

const QString siteFormat = QStringLiteral("configtools-site");
const QString formatKey = QStringLiteral("format");
const QString versionKey = QStringLiteral("version");
const QString siteNameKey = QStringLiteral("name");
const QString siteDevicesKey = QStringLiteral("devices");
const QString httpPortKey = QStringLiteral("httpPort");
const QString initialisedKey = QStringLiteral("initialised");
const QString ipv6Key = QStringLiteral("ipv6");
const QString lastSeenKey = QStringLiteral("lastSeen");
constexpr int highestHttpPort = 65535;

/// A text of a device, its key and its limit.
struct DeviceText
{
    QLatin1StringView key;
    QString KnownDevice::*member;
    qsizetype longest = SiteFile::longestText;
};

constexpr std::array<DeviceText, 10> deviceTexts = {{
    {QLatin1StringView("identity"), &KnownDevice::identity},
    {QLatin1StringView("mac"), &KnownDevice::mac},
    {QLatin1StringView("address"), &KnownDevice::ipport},
    {QLatin1StringView("name"), &KnownDevice::name},
    {QLatin1StringView("type"), &KnownDevice::type},
    {QLatin1StringView("model"), &KnownDevice::model},
    {QLatin1StringView("firmware"), &KnownDevice::version},
    {QLatin1StringView("serial"), &KnownDevice::serial},
    {QLatin1StringView("group"), &KnownDevice::group, KnownDevice::longestGroup},
    {QLatin1StringView("note"), &KnownDevice::note},
}};

QString siteText(const char *text)
{
    return QCoreApplication::translate("SiteFile", text);
}

/// Control characters would break the rows of tables.
bool isTextValid(const QString &text, qsizetype longest)
{
    return text.size() <= longest && std::none_of(text.cbegin(), text.cend(), [](QChar character) {
               return character.category() == QChar::Other_Control;
           });
}

/// A text that isTextValid().
QString validText(const QString &text, qsizetype longest)
{
    QString valid = text.left(longest);
    for (QChar &character : valid) {
        if (character.category() == QChar::Other_Control)
            character = QLatin1Char(' ');
    }
    return valid;
}

/// Whether a member is missing or has this type.
bool isMissingOr(QJsonValue::Type type, const QJsonValue &member)
{
    return member.isUndefined() || member.type() == type;
}

/// Reads a device. Returns the name of the first invalid key; empty on success.
QString readDevice(const QJsonValue &value, KnownDevice &device)
{
    const QJsonObject object = value.toObject();
    for (const DeviceText &text : deviceTexts) {
        const QJsonValue member = object.value(text.key);
        device.*text.member = member.toString();
        if (!isMissingOr(QJsonValue::String, member) || !isTextValid(device.*text.member, text.longest))
            return text.key;
    }
    constexpr int invalidPort = -1; // also of a text and of a fraction
    device.httpPort = object.contains(httpPortKey) ? object.value(httpPortKey).toInt(invalidPort) : 0;
    if (device.httpPort < 0 || device.httpPort > highestHttpPort)
        return httpPortKey;
    for (const QString &key : {initialisedKey, ipv6Key}) {
        if (!isMissingOr(QJsonValue::Bool, object.value(key)))
            return key;
    }
    device.isInitialised = object.value(initialisedKey).toBool(true);
    device.isIPv6 = object.value(ipv6Key).toBool(false);
    device.lastSeen = QDateTime::fromString(object.value(lastSeenKey).toString(), Qt::ISODate);
    if (object.contains(lastSeenKey) && !device.lastSeen.isValid())
        return lastSeenKey;
    return device.mac.isEmpty() && device.identity.isEmpty() ? QStringLiteral("mac") : QString();
}

SiteFile::Contents refusedSite(const QString &reason)
{
    return {.site = {}, .refusal = reason};
}

} // namespace

SiteFile::Contents SiteFile::read(const QByteArray &text)
{
    const QJsonObject file = QJsonDocument::fromJson(text).object();
    if (file.value(formatKey) != siteFormat || !file.value(siteDevicesKey).isArray())
        return refusedSite(siteText(QT_TRANSLATE_NOOP("SiteFile", "文件不是现场文件，或者已损坏")));
    if (file.value(versionKey).toInt() != version)
        return refusedSite(siteText(QT_TRANSLATE_NOOP("SiteFile", "现场文件由更新的版本保存，无法读取")));
    const QJsonArray devices = file.value(siteDevicesKey).toArray();
    if (devices.size() > mostDevices)
        return refusedSite(
            siteText(QT_TRANSLATE_NOOP("SiteFile", "现场文件的设备超过 %1 台")).arg(mostDevices));
    Contents contents;
    contents.site.name = file.value(siteNameKey).toString();
    if (!isMissingOr(QJsonValue::String, file.value(siteNameKey)) ||
        !isTextValid(contents.site.name, longestText))
        return refusedSite(siteText(QT_TRANSLATE_NOOP("SiteFile", "现场文件中的名称无效")));
    QSet<QString> keys;
    for (const auto &value : devices) {
        KnownDevice device;
        const QString fault = readDevice(value, device);
        if (!fault.isEmpty())
            return refusedSite(siteText(QT_TRANSLATE_NOOP("SiteFile", "现场文件中第 %1 台设备的 %2 无效"))
                                   .arg(contents.site.devices.size() + 1)
                                   .arg(fault));
        const qsizetype known = keys.size();
        keys.insert(device.key());
        if (keys.size() == known)
            return refusedSite(siteText(QT_TRANSLATE_NOOP("SiteFile", "现场文件中第 %1 台设备重复"))
                                   .arg(contents.site.devices.size() + 1));
        contents.site.devices.append(std::move(device));
    }
    return contents;
}

SiteFile::Contents SiteFile::readFile(const QString &path)
{
    QFile file(path);
    // A folder or a pipe can be opened as well; reading a pipe would not end.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        Contents contents = refusedSite(siteText(QT_TRANSLATE_NOOP("SiteFile", "无法打开文件")));
        contents.isUnopened = true;
        return contents;
    }
    const QByteArray text = file.read(largestFile + 1);
    if (text.size() > largestFile)
        return refusedSite(siteText(QT_TRANSLATE_NOOP("SiteFile", "文件过大")));
    return read(text);
}

QByteArray SiteFile::text(const Site &site)
{
    QJsonArray devices;
    for (const KnownDevice &device : site.devices) {
        QJsonObject object = {{initialisedKey, device.isInitialised}};
        for (const DeviceText &text : deviceTexts) {
            if (!(device.*text.member).isEmpty())
                object.insert(text.key, validText(device.*text.member, text.longest));
        }
        if (device.httpPort != 0)
            object.insert(httpPortKey, device.httpPort);
        if (device.isIPv6)
            object.insert(ipv6Key, true);
        if (device.lastSeen.isValid())
            object.insert(lastSeenKey, device.lastSeen.toUTC().toString(Qt::ISODate));
        devices.append(object);
    }
    return QJsonDocument(QJsonObject{{formatKey, siteFormat},
                                     {versionKey, version},
                                     {siteNameKey, validText(site.name, longestText)},
                                     {siteDevicesKey, devices}})
        .toJson();
}

#include "sdk/demo/scene/scenereader.h"

#include "sdk/demo/scene/addresstext.h"
#include "sdk/demo/scene/jsonkeys.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QJsonDocument>

#include <array>

using namespace Qt::StringLiterals;

namespace sdk::demo {

namespace {

constexpr int highestPort = 65535;
constexpr int mostChannels = 1024;
constexpr int longestLatency = 600000;

/// "device 3 (02:1a:c5:00:40:17)": by position, and by MAC if there is one.
QString deviceTitle(qsizetype index, const QJsonObject &device)
{
    const QString mac = device.value(u"mac").toString();
    const QString title = u"device %1"_s.arg(index + 1);
    return mac.isEmpty() ? title : u"%1 (%2)"_s.arg(title, mac.left(40));
}

void readAddresses(JsonKeys &keys, SceneDevice &device)
{
    device.mac = canonicalMac(keys.requiredText(u"mac"_s));
    if (device.mac.isEmpty())
        keys.reportError(u"mac"_s, u"six pairs of hexadecimal digits with colons"_s);

    device.address = keys.text(u"address"_s);
    const QString ipv6 = keys.text(u"ipv6"_s);
    if (device.address.isEmpty() && ipv6.isEmpty())
        keys.reportError(u"address"_s, u"a dotted IPv4 address, unless \"ipv6\" is given"_s);
    if (!device.address.isEmpty() && !isIpv4Address(device.address))
        keys.reportError(u"address"_s, u"a dotted IPv4 address"_s);
    if (!ipv6.isEmpty()) {
        const QStringList parts = ipv6.split(u'/');
        bool isNumber = true;
        device.ipv6 = canonicalIpv6Address(parts.first());
        if (parts.size() > 1)
            device.ipv6PrefixLength = parts.at(1).toInt(&isNumber);
        if (device.ipv6.isEmpty() || !isNumber || parts.size() > 2 || device.ipv6PrefixLength < 0 ||
            device.ipv6PrefixLength > 128) {
            keys.reportError(u"ipv6"_s,
                             u"an IPv6 address, with or without \"/\" and a prefix length to 128"_s);
        }
    }

    device.mask = keys.text(u"mask"_s, u"255.255.255.0"_s);
    if (!isIpv4Mask(device.mask))
        keys.reportError(u"mask"_s, u"a dotted IPv4 subnet mask"_s);
    device.gateway = keys.text(u"gateway"_s);
    if (!device.gateway.isEmpty() && !isIpv4Address(device.gateway))
        keys.reportError(u"gateway"_s, u"a dotted IPv4 address, or empty"_s);
    device.dhcp = keys.boolean(u"dhcp"_s, false);
    device.port = keys.requiredNumber(u"port"_s, 1, highestPort);
    device.httpPort = keys.number(u"httpPort"_s, 0, highestPort, device.httpPort);
    const bool isBasic = keys.choice(u"httpAuthentication"_s, {u"digest"_s, u"basic"_s}, 0) == 1;
    device.httpAuthentication = isBasic ? HttpAuthenticationKind::Basic : HttpAuthenticationKind::Digest;
    const int segment = keys.choice(u"segment"_s, {u"local"_s, u"other"_s, u"remote"_s}, 0);
    device.inOtherSegment = segment > 0;
    device.isRemote = segment == 2;
    device.p2pId = keys.text(u"p2pId"_s);
    if (device.isRemote && device.p2pId.isEmpty())
        keys.reportError(u"p2pId"_s, u"a non-empty string, because the device is remote"_s);
}

void readIdentity(JsonKeys &keys, SceneDevice &device)
{
    device.name = keys.text(u"name"_s);
    device.type = keys.requiredText(u"type"_s);
    device.model = keys.text(u"model"_s);
    device.version = keys.text(u"version"_s);
    device.serial = keys.text(u"serial"_s);

    constexpr std::array states = {InitialisationBits::Initialised, InitialisationBits::Uninitialised,
                                   InitialisationBits::NotReported};
    const int state = keys.choice(u"initialised"_s, {u"yes"_s, u"no"_s, u"unreported"_s}, 0);
    device.initialisation = states[static_cast<std::size_t>(state)];

    // The indexes are the bits: telephone 1, mail 2.
    const QStringList resetWays = {u"none"_s, u"telephone"_s, u"mail"_s, u"both"_s};
    device.resetWay = static_cast<std::uint8_t>(keys.choice(u"resetWay"_s, resetWays, 0));
}

/// The error of the account; empty if it is valid.
QString readAccount(const QJsonObject &json, const QString &where, SceneAccount &account)
{
    JsonKeys keys(json, where);
    account.user = keys.requiredText(u"user"_s);
    account.password = keys.text(u"password"_s);
    keys.rejectOtherKeys();
    return keys.error();
}

QString readChannel(const QJsonObject &json, const QString &where, SceneChannel &channel)
{
    JsonKeys keys(json, where);
    channel.name = keys.text(u"name"_s);
    channel.connected = keys.boolean(u"connected"_s, true);
    keys.rejectOtherKeys();
    return keys.error();
}

/// A fault is a name, or an object with a "name" and the "value" of its parameter.
QString readFault(const QJsonValue &json, const QString &where, FaultSetting &setting)
{
    const QJsonObject object = json.isString() ? QJsonObject{{u"name"_s, json}} : json.toObject();
    JsonKeys keys(object, where);
    const QString name = keys.requiredText(u"name"_s);
    if (!keys.error().isEmpty())
        return keys.error();
    const std::optional<Fault> fault = faultNamed(name);
    if (!fault) {
        return u"%1: there is no fault \"%2\"; known are %3"_s.arg(where, name.left(60),
                                                                   knownFaultNames().join(u", "_s));
    }
    setting.fault = *fault;
    switch (faultValue(*fault)) {
    case FaultValue::None:
        break;
    case FaultValue::Number:
        setting.number = keys.requiredNumber(u"value"_s, 0, maximumFaultNumber(*fault));
        break;
    case FaultValue::Text:
        setting.text = keys.requiredText(u"value"_s);
        break;
    }
    keys.rejectOtherKeys();
    return keys.error();
}

/// Reads the list of `key`, whose entries `readEntry` reads one by one. Returns the first error.
template<typename Entry, typename ReadEntry>
QString readList(const QJsonArray &list, const QString &where, const QString &entryTitle,
                 QList<Entry> &entries, ReadEntry readEntry)
{
    for (qsizetype index = 0; index < list.size(); ++index) {
        const QString title = u"%1, %2 %3"_s.arg(where, entryTitle).arg(index + 1);
        Entry entry = {};
        QString error = readEntry(list.at(index), title, entry);
        if (!error.isEmpty())
            return error;
        entries.append(entry);
    }
    return QString();
}

/// Adapts an object reader to any value. Values other than objects are errors.
template<typename Entry>
auto ofObjects(QString (*readObject)(const QJsonObject &, const QString &, Entry &))
{
    return [readObject](const QJsonValue &json, const QString &title, Entry &entry) {
        if (!json.isObject())
            return u"%1 must be an object, but is %2"_s.arg(title, shownJsonValue(json));
        return readObject(json.toObject(), title, entry);
    };
}

QString readFaults(const QJsonArray &list, const QString &where, QList<FaultSetting> &faults)
{
    const auto readEntry = [&faults](const QJsonValue &json, const QString &title, FaultSetting &setting) {
        if (!json.isString() && !json.isObject()) {
            return u"%1 must be the name of a fault or an object with its \"name\" and \"value\", but is %2"_s
                .arg(title, shownJsonValue(json));
        }
        const QString error = readFault(json, title, setting);
        const bool isRepeated =
            std::any_of(faults.cbegin(), faults.cend(),
                        [&setting](const FaultSetting &other) { return other.fault == setting.fault; });
        return error.isEmpty() && isRepeated
                   ? u"%1: \"%2\" occurs twice"_s.arg(title, faultName(setting.fault))
                   : error;
    };
    return readList(list, where, u"fault"_s, faults, readEntry);
}

/// Channels are a number of connected channels, or a list.
QString readChannels(JsonKeys &keys, const QString &where, QList<SceneChannel> &channels)
{
    const QString key = u"channels"_s;
    const QJsonValue json = keys.value(key);
    if (json.isArray() && json.toArray().size() <= mostChannels)
        return readList(json.toArray(), where, u"channel"_s, channels, ofObjects(&readChannel));
    const int count = json.toInt(-1);
    if (json.isDouble() && count >= 0 && count <= mostChannels)
        channels.resize(count);
    else if (!json.isUndefined())
        keys.reportError(key, u"a number or a list of up to %1 channels"_s.arg(mostChannels));
    return QString();
}

QString readDevice(const QJsonObject &json, const QString &where, SceneDevice &device)
{
    JsonKeys keys(json, where);
    readAddresses(keys, device);
    readIdentity(keys, device);
    device.capabilities = keys.object(u"capabilities"_s);
    device.configuration = keys.object(u"configuration"_s);
    device.knowsFirstSearch = keys.boolean(u"knowsFirstSearch"_s, true);
    device.latency = std::chrono::milliseconds(
        keys.number(u"latency"_s, 0, longestLatency, static_cast<int>(device.latency.count())));
    const QJsonArray accounts = keys.list(u"accounts"_s);
    const QJsonArray faults = keys.list(u"faults"_s);

    QString entryError = readChannels(keys, where, device.channels);
    if (entryError.isEmpty())
        entryError = readList(accounts, where, u"account"_s, device.accounts, ofObjects(&readAccount));
    if (entryError.isEmpty())
        entryError = readFaults(faults, where, device.faults);
    keys.rejectOtherKeys();
    return keys.error().isEmpty() ? entryError : keys.error();
}

QString readDevices(const QJsonArray &list, QList<SceneDevice> &devices)
{
    if (list.size() > maximumSceneDevices)
        return u"the scene has %1 devices; the maximum is %2"_s.arg(list.size()).arg(maximumSceneDevices);
    QHash<QString, qsizetype> indexOfMac;
    indexOfMac.reserve(list.size());
    devices.reserve(list.size());
    for (qsizetype index = 0; index < list.size(); ++index) {
        if (!list.at(index).isObject())
            return u"device %1 must be an object, but is %2"_s.arg(index + 1).arg(
                shownJsonValue(list.at(index)));
        const QJsonObject json = list.at(index).toObject();
        SceneDevice device;
        const QString title = deviceTitle(index, json);
        QString error = readDevice(json, title, device);
        if (!error.isEmpty())
            return error;
        const auto other = indexOfMac.constFind(device.mac);
        if (other != indexOfMac.constEnd())
            return u"%1: \"mac\" is that of device %2 already; it must be unique"_s.arg(title).arg(*other +
                                                                                                   1);
        indexOfMac.insert(device.mac, index);
        devices.append(device);
    }
    return QString();
}

QString readScene(const QByteArray &json, Scene &scene)
{
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(json, &parseError);
    if (parseError.error != QJsonParseError::NoError) {
        const qsizetype line = json.left(parseError.offset).count('\n') + 1;
        return u"this is not JSON: %1 in line %2"_s.arg(parseError.errorString()).arg(line);
    }
    if (!document.isObject())
        return u"a scene must be a JSON object, but this is a list"_s;

    JsonKeys keys(document.object(), u"the scene"_s);
    scene.title = keys.text(u"title"_s);
    scene.description = keys.text(u"description"_s);
    scene.localAddress = keys.text(u"localAddress"_s, scene.localAddress);
    if (!isIpv4Address(scene.localAddress))
        keys.reportError(u"localAddress"_s, u"a dotted IPv4 address"_s);
    scene.localIpv6 = canonicalIpv6Address(keys.text(u"localIpv6"_s, scene.localIpv6));
    if (scene.localIpv6.isEmpty())
        keys.reportError(u"localIpv6"_s, u"an IPv6 address"_s);
    if (!document.object().contains(u"devices"))
        keys.reportError(u"devices"_s, u"a list"_s);
    const QJsonArray devices = keys.list(u"devices"_s);
    keys.rejectOtherKeys();
    return keys.error().isEmpty() ? readDevices(devices, scene.devices) : keys.error();
}

} // namespace

std::optional<Scene> SceneReader::read(const QByteArray &json, QString *error)
{
    Scene scene;
    const QString problem = readScene(json, scene);
    if (error)
        *error = problem;
    return problem.isEmpty() ? std::optional(scene) : std::nullopt;
}

/// In bytes; 20,000 devices need much less.
constexpr qint64 maximumSceneFileSize = qint64{256} * 1024 * 1024;

std::optional<Scene> SceneReader::readFile(const QString &path, QString *error)
{
    QFile file(path);
    if (QFileInfo::exists(path) && !path.startsWith(u':') && !QFileInfo(path).isFile()) {
        // Opening a pipe waits for a writer, and a device file has no end.
        if (error)
            *error = u"%1: is not a file"_s.arg(path);
        return std::nullopt;
    }
    if (!file.open(QIODevice::ReadOnly)) {
        if (error)
            *error = u"%1: cannot be read: %2"_s.arg(path, file.errorString());
        return std::nullopt;
    }
    if (file.size() > maximumSceneFileSize) {
        if (error)
            *error = u"%1: is larger than a scene can be"_s.arg(path);
        return std::nullopt;
    }
    std::optional<Scene> scene = read(file.readAll(), error);
    if (!scene && error)
        error->prepend(path + u": "_s);
    return scene;
}

} // namespace sdk::demo

#include "device/dh/lists/devicelistvalues.h"

#include "device/store/devicerow.h"

namespace {

constexpr QLatin1StringView trafficWord("ITC");
constexpr QLatin1StringView videoWallWord("Matrix");
constexpr qsizetype maximumTypeLength = 32;

// Keys of a device's detail for values of its search record.
constexpr QLatin1StringView serialKey("serial");
constexpr QLatin1StringView maskKey("submask");
constexpr QLatin1StringView gatewayKey("gateway");

void setType(DeviceListLine &line, const QString &type)
{
    line[ListColumn::DeviceCategory] = ListWord::encoder;
    line[ListColumn::DeviceType] = type.left(maximumTypeLength);
    if (type.contains(trafficWord)) {
        line[ListColumn::DeviceCategory] = ListWord::traffic;
        line[ListColumn::DeviceType] = ListWord::traffic;
    } else if (type.contains(videoWallWord)) {
        line[ListColumn::DeviceCategory] = ListWord::videoWall;
        line[ListColumn::DeviceType] = ListWord::videoWallType;
    }
}

/// Sets address and port. For a device behind a tunnel these are its P2P ID and own port, since the local
/// port is closed when the application exits.
void setAddress(DeviceListLine &line, const QJsonObject &row)
{
    const QString ipport = row.value(DeviceRowKey::ipport).toString();
    const qsizetype colon = ipport.lastIndexOf(QLatin1Char(':'));
    QString address = ipport.left(colon);
    if (address.startsWith(QLatin1Char('[')) && address.endsWith(QLatin1Char(']')))
        address = address.sliced(1, address.size() - 2); // brackets of an IPv6 address
    line[ListColumn::AddMode] =
        address.contains(ListWord::serviceAddress) ? ListWord::byP2P : ListWord::byAddress;
    line[ListColumn::IPAddress] = address;
    line[ListColumn::DevicePort] = ipport.mid(colon + 1);
    if (row.value(DeviceRowKey::loginType).toString() == ListWord::byP2P) {
        line[ListColumn::IPAddress] = row.value(DeviceRowKey::name).toString();
        line[ListColumn::DevicePort] = row.value(DeviceRowKey::devp2pPort).toString();
    }
}

void insertMissing(QJsonObject &row, QLatin1StringView key, const QString &value)
{
    if (!value.isEmpty() && row.value(key).toString().isEmpty())
        row.insert(key, value);
}

/// A version without the prefix "v" that rows have.
QString plainVersion(const QString &vision)
{
    return vision.startsWith(QLatin1Char('v')) ? vision.sliced(1) : vision;
}

} // namespace

DeviceListLine listLineOf(const ListedDevice &device, const DeviceAccount &usual)
{
    const QJsonObject row = device.row.isEmpty() && device.record ? ipv4Row(*device.record) : device.row;
    const auto text = [&row](QLatin1StringView key) {
        return row.value(key).toString();
    };
    DeviceListLine line;
    setType(line, device.record ? fieldText(device.record->device.deviceType) : text(DeviceRowKey::type));
    setAddress(line, row);
    line[ListColumn::AccessProtocol] = ListWord::general;
    line[ListColumn::ServiceIP] = ListWord::serviceAddress;
    line[ListColumn::DeviceName] = text(DeviceRowKey::name);
    line[ListColumn::Model] = text(DeviceRowKey::model);
    line[ListColumn::Mac] = text(DeviceRowKey::mac);

    const bool initialised = row.value(DeviceRowKey::state).toBool();
    line[ListColumn::InitStatus] = initialised ? ListWord::initialised : ListWord::notInitialised;
    const bool hasOwnAccount = !text(DeviceRowKey::username).isEmpty();
    if (hasOwnAccount || initialised) {
        line[ListColumn::Username] = hasOwnAccount ? text(DeviceRowKey::username) : usual.account;
        line[ListColumn::Password] = hasOwnAccount ? text(DeviceRowKey::password) : usual.password;
    }

    if (device.record) {
        const sdk::SearchDeviceInformation &reported = device.record->device;
        line[ListColumn::SerialNumber] = fieldText(reported.serialNumber);
        line[ListColumn::Version] = fieldText(reported.softwareVersion);
        line[ListColumn::SubnetMask] = fieldText(reported.subnetMask);
        line[ListColumn::Gateway] = fieldText(reported.gateway);
    } else {
        line[ListColumn::SerialNumber] = text(serialKey);
        line[ListColumn::Version] = plainVersion(text(DeviceRowKey::vision));
        line[ListColumn::SubnetMask] = text(maskKey);
        line[ListColumn::Gateway] = text(gatewayKey);
    }
    return line;
}

QString deviceTypeOf(const DeviceListLine &line)
{
    const QString &type = line[ListColumn::DeviceType];
    if (type == ListWord::traffic)
        return trafficWord;
    // Exported lists use another word for video walls; in other categories that word may be a device type.
    const bool isVideoWall = line[ListColumn::DeviceCategory] == ListWord::videoWall;
    return isVideoWall && type == ListWord::videoWallType ? QString(videoWallWord) : type;
}

void completeFrom(QJsonObject &row, const DeviceListLine &line, bool hasRecord)
{
    if (row.value(DeviceRowKey::type).toString() == otherDeviceType() && !deviceTypeOf(line).isEmpty())
        row.insert(DeviceRowKey::type, deviceTypeOf(line));
    insertMissing(row, DeviceRowKey::name, line[ListColumn::DeviceName]);
    insertMissing(row, DeviceRowKey::name, line[ListColumn::IPAddress]);
    insertMissing(row, DeviceRowKey::model, line[ListColumn::Model]);
    insertMissing(row, DeviceRowKey::mac, line[ListColumn::Mac]);
    insertMissing(row, DeviceRowKey::vision, versionText(line[ListColumn::Version]));
    if (!hasRecord) {
        insertMissing(row, serialKey, line[ListColumn::SerialNumber]);
        insertMissing(row, maskKey, line[ListColumn::SubnetMask]);
        insertMissing(row, gatewayKey, line[ListColumn::Gateway]);
    }
    // Without that column the state is the one that the login has found.
    if (!line[ListColumn::InitStatus].isEmpty())
        row.insert(DeviceRowKey::state, line[ListColumn::InitStatus] == ListWord::initialised);
}

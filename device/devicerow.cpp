#include "device/devicerow.h"

#include "sdk/blocktext.h"
#include "sdk/searchblocks.h"

#include <QCoreApplication>

namespace {

/// Text of a block field, decoded as local 8-bit text. Bytes that are no text become replacement characters.
template<std::size_t size>
QString fieldText(const std::array<char, size> &field)
{
    const std::string_view text = sdk::blockText(field);
    return QString::fromLocal8Bit(QByteArrayView(text.data(), static_cast<qsizetype>(text.size())));
}

bool isInitialised(const sdk::SearchDeviceInformation &device)
{
    return sdk::initialisationBits(device.initialisationState) != sdk::InitialisationBits::Uninitialised;
}

QString versionText(const sdk::SearchDeviceInformation &device)
{
    const QString version = fieldText(device.softwareVersion);
    return version.isEmpty() ? QString() : QLatin1Char('v') + version;
}

} // namespace

QString otherDeviceType()
{
    return QCoreApplication::translate("DeviceRow", "Other");
}

bool hasIPv4Address(const sdk::SearchAnswer &answer)
{
    return answer.device.ipVersion == 4 && sdk::blockText(answer.device.address) != "0.0.0.0";
}

QString macText(const sdk::SearchAnswer &answer)
{
    return fieldText(answer.device.mac);
}

QString addressAndPort(const sdk::SearchAnswer &answer)
{
    const QString address = fieldText(answer.device.address);
    const QString port = QString::number(answer.device.port);
    return address.contains(QLatin1Char(':')) ? QLatin1Char('[') + address + QLatin1String("]:") + port
                                              : address + QLatin1Char(':') + port;
}

/// What rows of both lists hold.
static QJsonObject commonRow(const sdk::SearchAnswer &answer)
{
    const sdk::SearchDeviceInformation &device = answer.device;
    return {
        {DeviceRowKey::checked, false},
        {DeviceRowKey::state, isInitialised(device)},
        {DeviceRowKey::name, fieldText(device.deviceName)},
        {DeviceRowKey::type, fieldText(device.deviceType)},
        {DeviceRowKey::model, fieldText(device.detailModel)},
        {DeviceRowKey::ipport, addressAndPort(answer)},
        {DeviceRowKey::vision, versionText(device)},
        {DeviceRowKey::operate, QString()},
        {DeviceRowKey::result, QString()},
        {DeviceRowKey::httpport, device.httpPort},
    };
}

QJsonObject ipv4Row(const sdk::SearchAnswer &answer)
{
    QJsonObject row = commonRow(answer);
    row.insert(DeviceRowKey::num, QString());
    row.insert(DeviceRowKey::mac, macText(answer));
    row.insert(DeviceRowKey::res, -1);
    row.insert(DeviceRowKey::filepath, QString());
    row.insert(DeviceRowKey::upgrade, 0);
    row.insert(DeviceRowKey::upgraderes, -1);
    row.insert(DeviceRowKey::url, QString());
    return row;
}

QJsonObject ipv6Row(const sdk::SearchAnswer &answer)
{
    return commonRow(answer);
}

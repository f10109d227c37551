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
    QString decoded =
        QString::fromLocal8Bit(QByteArrayView(text.data(), static_cast<qsizetype>(text.size())));
    // Line breaks and other control characters would break the lines of tables and of the clipboard.
    for (QChar &letter : decoded) {
        if (letter.category() == QChar::Other_Control)
            letter = QLatin1Char(' ');
    }
    return decoded;
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

/// Writes what rows of both lists take from an answer.
void fillIn(QJsonObject &row, const sdk::SearchAnswer &answer)
{
    const sdk::SearchDeviceInformation &device = answer.device;
    row.insert(DeviceRowKey::state, isInitialised(device));
    row.insert(DeviceRowKey::name, fieldText(device.deviceName));
    row.insert(DeviceRowKey::type, fieldText(device.deviceType));
    row.insert(DeviceRowKey::model, fieldText(device.detailModel));
    row.insert(DeviceRowKey::ipport, addressAndPort(answer));
    row.insert(DeviceRowKey::vision, versionText(device));
    row.insert(DeviceRowKey::httpport, device.httpPort);
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

QJsonObject ipv4Row(const sdk::SearchAnswer &answer)
{
    // A copy of what every new row holds, filled in: less than half the cost of seventeen insertions.
    static const QJsonObject newRow = {
        {DeviceRowKey::checked, false},     {DeviceRowKey::num, QString()},
        {DeviceRowKey::state, false},       {DeviceRowKey::name, QString()},
        {DeviceRowKey::type, QString()},    {DeviceRowKey::model, QString()},
        {DeviceRowKey::ipport, QString()},  {DeviceRowKey::mac, QString()},
        {DeviceRowKey::vision, QString()},  {DeviceRowKey::res, -1},
        {DeviceRowKey::operate, QString()}, {DeviceRowKey::filepath, QString()},
        {DeviceRowKey::upgrade, 0},         {DeviceRowKey::upgraderes, -1},
        {DeviceRowKey::url, QString()},     {DeviceRowKey::result, QString()},
        {DeviceRowKey::httpport, 0},
    };
    QJsonObject row = newRow;
    fillIn(row, answer);
    row.insert(DeviceRowKey::mac, macText(answer));
    return row;
}

QJsonObject ipv6Row(const sdk::SearchAnswer &answer)
{
    QJsonObject row = {
        {DeviceRowKey::checked, false},
        {DeviceRowKey::operate, QString()},
        {DeviceRowKey::result, QString()},
    };
    fillIn(row, answer);
    return row;
}

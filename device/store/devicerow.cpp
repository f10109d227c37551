#include "device/store/devicerow.h"

#include "sdk/searchblocks.h"

#include <QCoreApplication>
#include <QRegularExpression>

namespace {

/// Writes the values of a response that rows of both lists contain.
void fillIn(QJsonObject &row, const sdk::SearchResponse &response)
{
    const sdk::SearchDeviceInformation &device = response.device;
    row.insert(DeviceRowKey::state, isInitialised(device));
    row.insert(DeviceRowKey::name, fieldText(device.deviceName));
    row.insert(DeviceRowKey::type, fieldText(device.deviceType));
    row.insert(DeviceRowKey::model, fieldText(device.detailModel));
    row.insert(DeviceRowKey::ipport, addressAndPort(response));
    row.insert(DeviceRowKey::vision, versionText(fieldText(device.softwareVersion)));
    row.insert(DeviceRowKey::httpport, device.httpPort);
}

} // namespace

QString fieldText(std::string_view bytes)
{
    QString text = QString::fromLocal8Bit(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())));
    for (QChar &character : text) {
        if (character.category() == QChar::Other_Control)
            character = QLatin1Char(' ');
    }
    return text;
}

QString otherDeviceType()
{
    return QCoreApplication::translate("DeviceRow", "Other");
}

QString deviceTitle(const QString &name, const QString &model)
{
    if (name.isEmpty() || name.contains(model, Qt::CaseInsensitive))
        return name.isEmpty() ? model : name;
    return name + QStringLiteral(" · ") + model;
}

bool isRecorderType(const QString &type)
{
    static const QRegularExpression recorders(QStringLiteral("NVR|SVR|DVR|Matrix"));
    return type.contains(recorders);
}

QString versionText(const QString &version)
{
    return version.isEmpty() ? QString() : QLatin1Char('v') + version;
}

bool hasIPv4Address(const sdk::SearchResponse &response)
{
    return response.device.ipVersion == 4 && sdk::blockText(response.device.address) != "0.0.0.0";
}

bool isInitialised(const sdk::SearchDeviceInformation &device)
{
    return sdk::initialisationBits(device.initialisationState) != sdk::InitialisationBits::Uninitialised;
}

QString macText(const sdk::SearchResponse &response)
{
    return fieldText(response.device.mac);
}

QString uuidName(const sdk::SearchResponse &response)
{
    const QString uuid = fieldText(response.device.uuid);
    return uuid.isEmpty() ? QString() : uuidPrefix + uuid;
}

QString addressAndPort(const sdk::SearchResponse &response)
{
    const QString address = fieldText(response.device.address);
    const QString port = QString::number(response.device.port);
    return address.contains(QLatin1Char(':')) ? QLatin1Char('[') + address + QLatin1String("]:") + port
                                              : address + QLatin1Char(':') + port;
}

QString rowName(const QJsonObject &row)
{
    for (const QLatin1StringView key : {DeviceRowKey::identity, DeviceRowKey::mac}) {
        QString name = row.value(key).toString();
        if (!name.isEmpty())
            return name;
    }
    const QString ipport = row.value(DeviceRowKey::ipport).toString();
    const int duplicate = row.value(DeviceRowKey::duplicate).toInt();
    return duplicate > 0 ? ipport + QLatin1Char('#') + QString::number(duplicate) : ipport;
}

QString rowAddress(const QJsonObject &row)
{
    const QString ipport = row.value(DeviceRowKey::ipport).toString();
    return ipport.left(ipport.lastIndexOf(QLatin1Char(':')));
}

QJsonObject ipv4Row(const sdk::SearchResponse &response)
{
    // Copying a prepared row costs less than half of seventeen insertions. Values that each response replaces
    // are null in it: even an empty string would leave unused bytes in the row, most rows would exceed 512
    // bytes, and their buffers would be twice as large.
    static const QJsonObject newRow = {
        {DeviceRowKey::checked, false},       {DeviceRowKey::num, QString()},
        {DeviceRowKey::state, false},         {DeviceRowKey::name, QJsonValue()},
        {DeviceRowKey::type, QJsonValue()},   {DeviceRowKey::model, QJsonValue()},
        {DeviceRowKey::ipport, QJsonValue()}, {DeviceRowKey::mac, QJsonValue()},
        {DeviceRowKey::vision, QJsonValue()}, {DeviceRowKey::res, -1},
        {DeviceRowKey::operate, QString()},   {DeviceRowKey::filepath, QString()},
        {DeviceRowKey::upgrade, 0},           {DeviceRowKey::upgraderes, -1},
        {DeviceRowKey::url, QString()},       {DeviceRowKey::result, QString()},
        {DeviceRowKey::httpport, 0},
    };
    QJsonObject row = newRow;
    fillIn(row, response);
    row.insert(DeviceRowKey::mac, macText(response));
    return row;
}

QJsonObject ipv6Row(const sdk::SearchResponse &response)
{
    QJsonObject row = {
        {DeviceRowKey::checked, false},
        {DeviceRowKey::operate, QString()},
        {DeviceRowKey::result, QString()},
    };
    fillIn(row, response);
    return row;
}

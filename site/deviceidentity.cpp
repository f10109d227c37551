#include "site/deviceidentity.h"

#include "sdk/blocktext.h"
#include "sdk/demo/device/deviceresponses.h"
#include "sdk/demo/device/searchresponses.h"

#include <QUrl>
#include <QUuid>

using namespace Qt::StringLiterals;

namespace site {

namespace {

constexpr int httpPort = 80;

QString scope(const QString &path)
{
    return u"onvif://www.onvif.org/"_s + path;
}

QString encoded(const std::string &text)
{
    return QString::fromLatin1(QByteArray::fromStdString(text).toPercentEncoding());
}

} // namespace

int servicePortOf(const sdk::demo::SceneDevice &device)
{
    return device.httpPort == 0 ? httpPort : device.httpPort;
}

QString endpointOf(const sdk::demo::SceneDevice &device)
{
    static const QUuid names(u"6f2d3c1e-1f5b-4c7a-9d6e-2a7b54c0e913"_s);
    return u"urn:uuid:"_s + QUuid::createUuidV5(names, device.mac).toString(QUuid::WithoutBraces);
}

QStringList scopesOf(const sdk::demo::SceneDevice &device, const DeviceManner &manner)
{
    QStringList scopes = {scope(u"type/video_encoder"_s), scope(u"type/Network_Video_Transmitter"_s),
                          scope(u"Profile/Streaming"_s)};
    if (manner.hasMedia2)
        scopes.append(scope(u"Profile/T"_s));
    scopes.append(scope(u"location/"_s));
    scopes.append(scope(u"hardware/"_s + encoded(reportedModel(device))));
    scopes.append(scope(u"name/"_s + encoded(reportedName(device))));
    return scopes;
}

QString serviceRoot(const QString &address, int port, bool isSecure)
{
    const QString host = address.contains(u':') ? u'[' + address + u']' : address;
    const int usualPort = isSecure ? sdk::demo::usualHttpsPort : httpPort;
    return (isSecure ? u"https://"_s : u"http://"_s) + host +
           (port == usualPort ? QString() : u":%1"_s.arg(port));
}

DiscoveryIdentity discoveryIdentity(const sdk::demo::SceneDevice &device, const DeviceManner &manner,
                                    int ipVersion)
{
    DiscoveryIdentity identity{endpointOf(device), scopesOf(device, manner), {}};
    for (const QString &address : {device.address, device.ipv6}) {
        if (!address.isEmpty() && address != u"0.0.0.0")
            identity.addresses.append(serviceRoot(address, servicePortOf(device)) +
                                      QLatin1String(deviceServicePath));
    }
    if (ipVersion == 6)
        std::reverse(identity.addresses.begin(), identity.addresses.end());
    return identity;
}

std::string reportedName(const sdk::demo::SceneDevice &device)
{
    constexpr int anyVersion = 4;
    return std::string(sdk::blockText(searchResponse(device, anyVersion, {}).device.deviceName));
}

std::string reportedModel(const sdk::demo::SceneDevice &device)
{
    constexpr int anyVersion = 4;
    return std::string(sdk::blockText(searchResponse(device, anyVersion, {}).device.detailModel));
}

} // namespace site

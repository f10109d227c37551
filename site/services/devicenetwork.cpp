#include "site/services/devicenetwork.h"

#include "sdk/demo/device/deviceresponses.h"
#include "sdk/demo/device/fieldtext.h"
#include "sdk/demo/scene/addresstext.h"
#include "sdk/demo/site/devicechanges.h"
#include "site/deviceidentity.h"
#include "site/services/servicestate.h"

#include <QHostAddress>

#include <bit>

using namespace sdk::demo;
using namespace Qt::StringLiterals;

namespace site {

namespace {

constexpr const char *interfaceToken = "eth0";
const QString pendingKey = u"pendingAddress"_s;

QString maskOf(int prefixLength)
{
    constexpr int bits = 32;
    const quint32 ones = prefixLength == 0 ? 0 : ~quint32{0} << (bits - prefixLength);
    return QHostAddress(ones).toString();
}

/// IPv4 settings as one value.
struct Ipv4Settings
{
    bool dhcp = false;
    QString address;
    QString mask;
    QString gateway;
};

Ipv4Settings settingsOf(const SceneDevice &device)
{
    return {device.dhcp, device.address, device.mask, device.gateway};
}

sdk::NetError give(const ServiceCall &call, const Ipv4Settings &settings)
{
    sdk::SearchDeviceInformation requested = {};
    requested.ipVersion = 4;
    requested.dhcpEnabled = settings.dhcp ? 1 : 0;
    writePlain(requested.address, settings.address);
    writePlain(requested.subnetMask, settings.mask);
    writePlain(requested.gateway, settings.gateway);
    return changeDeviceAddress(call.context.site, call.device.mac, requested);
}

/// Applies the settings immediately, or at the next restart; then `needsReboot` is set.
sdk::NetError take(const ServiceCall &call, const Ipv4Settings &settings, bool &needsReboot)
{
    needsReboot = call.manner.changesAddressAtReboot;
    if (!needsReboot)
        return give(call, settings);
    if (call.device.hasFault(Fault::RefusesAddressChange))
        return sdk::NetError::ConnectFailed;
    return call.change([&settings](SceneDevice &device) {
        setServiceState(device, pendingKey,
                        QJsonObject{{u"dhcp"_s, settings.dhcp},
                                    {u"address"_s, settings.address},
                                    {u"mask"_s, settings.mask},
                                    {u"gateway"_s, settings.gateway}});
        return sdk::NetError::None;
    });
}

Ipv4Settings pendingOf(const SceneDevice &device)
{
    const QJsonObject pending = serviceState(device, pendingKey).toObject();
    if (pending.isEmpty())
        return settingsOf(device);
    return {pending.value(u"dhcp").toBool(), pending.value(u"address").toString(),
            pending.value(u"mask").toString(), pending.value(u"gateway").toString()};
}

bool isTrue(const std::optional<QString> &text)
{
    return text == u"true"_s || text == u"1"_s;
}

/// Reads `element` into `settings`. Returns a fault for invalid values.
ServiceResult readIpv4(pugi::xml_node element, Ipv4Settings &settings)
{
    settings.dhcp = isTrue(textAt(element, "tt:DHCP"));
    const pugi::xml_node manual = childNamed(element, "tt:Manual");
    if (!manual)
        return settings.dhcp ? std::nullopt
                             : ServiceResult(SoapFault::invalid("ter:InvalidIPv4Address",
                                                                u"An address or DHCP is required"_s));
    settings.address = textAt(manual, "tt:Address").value_or(QString());
    bool isNumber = false;
    const int prefixLength = textAt(manual, "tt:PrefixLength").value_or(QString()).toInt(&isNumber);
    constexpr int longest = 30;
    if (!isNumber || prefixLength < 1 || prefixLength > longest)
        return SoapFault::invalid("ter:InvalidPrefixLength", u"The prefix length is invalid"_s);
    settings.mask = maskOf(prefixLength);
    const quint32 number = QHostAddress(settings.address).toIPv4Address();
    constexpr quint32 firstGroup = 0xE0000000;
    if (!isIpv4Address(settings.address) || number == 0 || number >= firstGroup)
        return SoapFault::invalid("ter:InvalidIPv4Address", u"The address is invalid"_s);
    return std::nullopt;
}

void writeIpv4(XmlElement element, const SceneDevice &device)
{
    element.add("tt:Enabled", true);
    XmlElement configuration = element.add("tt:Config");
    if (device.address != u"0.0.0.0") {
        XmlElement address = configuration.add(device.dhcp ? "tt:FromDHCP" : "tt:Manual");
        address.add("tt:Address", device.address);
        address.add("tt:PrefixLength", prefixLengthOf(device.mask));
    }
    configuration.add("tt:DHCP", device.dhcp);
}

void writeIpv6(XmlElement element, const SceneDevice &device)
{
    element.add("tt:Enabled", true);
    XmlElement configuration = element.add("tt:Config");
    configuration.add("tt:DHCP", "Off");
    XmlElement address = configuration.add("tt:Manual");
    address.add("tt:Address", device.ipv6);
    address.add("tt:PrefixLength", device.ipv6PrefixLength);
}

} // namespace

int prefixLengthOf(const QString &mask)
{
    return std::popcount(QHostAddress(mask).toIPv4Address());
}

ServiceResult getNetworkInterfaces(ServiceCall &call)
{
    constexpr int largestPacket = 1500;
    XmlElement element = call.response.add("tds:NetworkInterfaces");
    element.attribute("token", interfaceToken);
    element.add("tt:Enabled", true);
    XmlElement information = element.add("tt:Info");
    information.add("tt:Name", interfaceToken);
    information.add("tt:HwAddress", call.device.mac);
    information.add("tt:MTU", largestPacket);
    if (!call.device.address.isEmpty())
        writeIpv4(element.add("tt:IPv4"), call.device);
    if (!call.device.ipv6.isEmpty())
        writeIpv6(element.add("tt:IPv6"), call.device);
    return std::nullopt;
}

ServiceResult setNetworkInterfaces(ServiceCall &call)
{
    if (textAt(call.request, "tds:InterfaceToken") != QLatin1String(interfaceToken))
        return SoapFault::invalid("ter:InvalidNetworkInterface", u"The network interface is unknown"_s);
    const pugi::xml_node ipv4 = nodeAt(call.request, "tds:NetworkInterface/tt:IPv4");
    bool needsReboot = false;
    if (ipv4) {
        Ipv4Settings settings = pendingOf(call.device);
        if (ServiceResult objection = readIpv4(ipv4, settings))
            return objection;
        if (take(call, settings, needsReboot) != sdk::NetError::None)
            return SoapFault::prohibited(u"The device refuses the new address"_s);
    }
    call.response.add("tds:RebootNeeded", needsReboot);
    return std::nullopt;
}

ServiceResult getNetworkDefaultGateway(ServiceCall &call)
{
    XmlElement element = call.response.add("tds:NetworkGateway");
    if (!call.device.gateway.isEmpty())
        element.add("tt:IPv4Address", call.device.gateway);
    return std::nullopt;
}

ServiceResult setNetworkDefaultGateway(ServiceCall &call)
{
    Ipv4Settings settings = pendingOf(call.device);
    settings.gateway = textAt(call.request, "tds:IPv4Address").value_or(QString());
    if (!settings.gateway.isEmpty() && !isIpv4Address(settings.gateway))
        return SoapFault::invalid("ter:InvalidGatewayAddress", u"The address is invalid"_s);
    // With DHCP, the gateway comes from the DHCP server.
    if (settings.dhcp)
        return std::nullopt;
    bool needsReboot = false;
    return resultOf(take(call, settings, needsReboot),
                    SoapFault::prohibited(u"The device refuses the new gateway"_s));
}

void applyPendingAddress(const ServiceCall &call)
{
    if (serviceState(call.device, pendingKey).isUndefined())
        return;
    (void)give(call, pendingOf(call.device));
    (void)call.change([](SceneDevice &device) {
        setServiceState(device, pendingKey, QJsonValue(QJsonValue::Undefined));
        return sdk::NetError::None;
    });
}

ServiceResult getNetworkProtocols(ServiceCall &call)
{
    const auto add = [&call](const char *name, int port) {
        XmlElement element = call.response.add("tds:NetworkProtocols");
        element.add("tt:Name", name);
        element.add("tt:Enabled", true);
        element.add("tt:Port", port);
    };
    add("HTTP", servicePortOf(call.device));
    if (const int httpsPort = httpsPortOf(call.device); httpsPort != 0)
        add("HTTPS", httpsPort);
    add("RTSP", rtspPort);
    return std::nullopt;
}

ServiceResult getHostname(ServiceCall &call)
{
    XmlElement element = call.response.add("tds:HostnameInformation");
    element.add("tt:FromDHCP", false);
    element.add("tt:Name",
                call.device.type.toLower() + u'-' + QString(call.device.mac).remove(u':').right(6));
    return std::nullopt;
}

ServiceResult getDns(ServiceCall &call)
{
    call.response.add("tds:DNSInformation").add("tt:FromDHCP", call.device.dhcp);
    return std::nullopt;
}

} // namespace site

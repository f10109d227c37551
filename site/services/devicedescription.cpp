#include "site/services/devicedescription.h"

#include "sdk/blocktext.h"
#include "sdk/demo/device/deviceresponses.h"
#include "site/deviceidentity.h"
#include "site/services/services.h"
#include "site/soap/namespaces.h"

#include <QUrl>

using namespace sdk::demo;
using namespace Qt::StringLiterals;

namespace site {

namespace {

constexpr int mostUsers = 20;
constexpr int longestText = 63;

QString addressOf(const ServiceCall &call, const char *prefix)
{
    for (const ServiceDescription &service : servicesOf(call.manner)) {
        if (std::string_view(service.prefix) == prefix)
            return call.root() + QLatin1String(service.path);
    }
    return {};
}

void writeDeviceServiceCapabilities(XmlElement element, const ServiceCall &call)
{
    element.add("tds:Network")
        .attribute("IPFilter", false)
        .attribute("ZeroConfiguration", false)
        .attribute("IPVersion6", !call.device.ipv6.isEmpty())
        .attribute("DynDNS", false)
        .attribute("NTP", 1);
    element.add("tds:Security")
        .attribute("UsernameToken", call.manner.takesToken)
        .attribute("HttpDigest", call.manner.takesDigest)
        .attribute("MaxUsers", mostUsers)
        .attribute("MaxUserNameLength", longestText)
        .attribute("MaxPasswordLength", longestText)
        .attribute("HashingAlgorithms", !call.manner.offersSha256 ? "MD5"
                                        : call.manner.offersMd5   ? "MD5,SHA-256"
                                                                  : "SHA-256");
    element.add("tds:System")
        .attribute("DiscoveryResolve", true)
        .attribute("DiscoveryBye", true)
        .attribute("RemoteDiscovery", false)
        .attribute("FirmwareUpgrade", false)
        .attribute("HttpFirmwareUpgrade", true);
}

void writeDevice(XmlElement element, const ServiceCall &call)
{
    element.add("tt:XAddr", addressOf(call, "tds"));
    XmlElement network = element.add("tt:Network");
    network.add("tt:IPFilter", false);
    network.add("tt:ZeroConfiguration", false);
    network.add("tt:IPVersion6", !call.device.ipv6.isEmpty());
    network.add("tt:DynDNS", false);
    XmlElement system = element.add("tt:System");
    for (const char *name : {"tt:DiscoveryResolve", "tt:DiscoveryBye"})
        system.add(name, true);
    for (const char *name :
         {"tt:RemoteDiscovery", "tt:SystemBackup", "tt:SystemLogging", "tt:FirmwareUpgrade"})
        system.add(name, false);
    XmlElement version = system.add("tt:SupportedVersions");
    version.add("tt:Major", 2);
    version.add("tt:Minor", 60);
    XmlElement http = system.add("tt:Extension");
    http.add("tt:HttpFirmwareUpgrade", true);
    XmlElement security = element.add("tt:Security");
    for (const char *name : {"tt:TLS1.1", "tt:TLS1.2", "tt:OnboardKeyGeneration", "tt:AccessPolicyConfig",
                             "tt:X.509Token", "tt:SAMLToken", "tt:KerberosToken", "tt:RELToken"})
        security.add(name, false);
}

void writeMedia(XmlElement element, const ServiceCall &call)
{
    element.add("tt:XAddr", addressOf(call, "trt"));
    XmlElement streaming = element.add("tt:StreamingCapabilities");
    streaming.add("tt:RTPMulticast", false);
    streaming.add("tt:RTP_TCP", true);
    streaming.add("tt:RTP_RTSP_TCP", true);
}

int channelsOf(const SceneDevice &device)
{
    return static_cast<int>(std::max<qsizetype>(device.channels.size(), 1));
}

} // namespace

ServiceResult getDeviceInformation(ServiceCall &call)
{
    const sdk::DeviceAttributes attributes = deviceAttributes(call.device);
    call.response.add("tds:Manufacturer", "BRELM");
    call.response.add("tds:Model", sdk::blockText(attributes.detailModel));
    call.response.add("tds:FirmwareVersion", sdk::blockText(attributes.softwareVersion));
    call.response.add("tds:SerialNumber", sdk::blockText(attributes.serialNumber));
    call.response.add("tds:HardwareId", call.device.type);
    return std::nullopt;
}

ServiceResult getServices(ServiceCall &call)
{
    const QString includesCapability = textAt(call.request, "tds:IncludeCapability").value_or(QString());
    for (const ServiceDescription &service : servicesOf(call.manner)) {
        XmlElement element = call.response.add("tds:Service");
        element.add("tds:Namespace", namespaceUri(service.prefix));
        element.add("tds:XAddr", call.root() + QLatin1String(service.path));
        if ((includesCapability == u"true" || includesCapability == u"1") &&
            std::string_view(service.prefix) == "tds")
            writeDeviceServiceCapabilities(element.add("tds:Capabilities").add("tds:Capabilities"), call);
        XmlElement version = element.add("tds:Version");
        version.add("tt:Major", service.majorVersion);
        version.add("tt:Minor", service.minorVersion);
    }
    return std::nullopt;
}

ServiceResult getCapabilities(ServiceCall &call)
{
    QStringList requested;
    for (const pugi::xml_node element : call.request.children()) {
        if (isNamed(element, "tds:Category"))
            requested.append(textOf(element).trimmed());
    }
    const auto isRequested = [&requested](const char *category) {
        return requested.isEmpty() || requested.contains(u"All"_s) ||
               requested.contains(QLatin1String(category));
    };
    for (const QString &category : std::as_const(requested)) {
        if (category == u"Events" || category == u"PTZ" || category == u"Analytics")
            return SoapFault{false, "ter:ActionNotSupported", "ter:NoSuchService",
                             u"The device has no such service"_s};
    }
    XmlElement capabilities = call.response.add("tds:Capabilities");
    if (isRequested("Device"))
        writeDevice(capabilities.add("tt:Device"), call);
    if (isRequested("Imaging"))
        capabilities.add("tt:Imaging").add("tt:XAddr", addressOf(call, "timg"));
    if (isRequested("Media"))
        writeMedia(capabilities.add("tt:Media"), call);
    if (isRequested("All")) {
        XmlElement io = capabilities.add("tt:Extension").add("tt:DeviceIO");
        io.add("tt:XAddr", addressOf(call, "tmd"));
        io.add("tt:VideoSources", channelsOf(call.device));
        io.add("tt:VideoOutputs", 0);
        io.add("tt:AudioSources", channelsOf(call.device));
        io.add("tt:AudioOutputs", 0);
        io.add("tt:RelayOutputs", 0);
    }
    return std::nullopt;
}

ServiceResult getDeviceServiceCapabilities(ServiceCall &call)
{
    writeDeviceServiceCapabilities(call.response.add("tds:Capabilities"), call);
    return std::nullopt;
}

ServiceResult getWsdlUrl(ServiceCall &call)
{
    call.response.add("tds:WsdlUrl", call.root() + u"/onvif/wsdl"_s);
    return std::nullopt;
}

ServiceResult getScopes(ServiceCall &call)
{
    const QStringList scopes = scopesOf(call.device, call.manner);
    for (const QString &scope : scopes) {
        const bool isOwn = scope.contains(u"/name/") || scope.contains(u"/location/");
        XmlElement element = call.response.add("tds:Scopes");
        element.add("tt:ScopeDef", isOwn ? "Configurable" : "Fixed");
        element.add("tt:ScopeItem", scope);
    }
    return std::nullopt;
}

ServiceResult setScopes(ServiceCall &call)
{
    constexpr QLatin1String namePrefix("onvif://www.onvif.org/name/");
    for (const pugi::xml_node element : call.request.children()) {
        const QString scope = textOf(element).trimmed();
        if (!isNamed(element, "tds:Scopes") || !scope.startsWith(namePrefix))
            continue;
        const sdk::NetError error = call.change([&](SceneDevice &device) {
            device.name = QUrl::fromPercentEncoding(scope.mid(namePrefix.size()).toUtf8());
            return sdk::NetError::None;
        });
        return resultOf(error, SoapFault::failed(u"The name cannot be stored"_s));
    }
    return std::nullopt;
}

} // namespace site

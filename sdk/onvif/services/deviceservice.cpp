#include "sdk/onvif/services/deviceservice.h"

#include "sdk/onvif/services/macaddress.h"
#include "sdk/onvif/soap/onvifnamespaces.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace sdk::onvif {

namespace {

constexpr std::size_t maximumItems = 64;
constexpr std::size_t longestDeviceText = 256;

std::string textOf(const XmlElement &element)
{
    return std::string(element.text().substr(0, longestDeviceText));
}

std::vector<XmlElement> bounded(std::vector<XmlElement> elements)
{
    if (elements.size() > maximumItems)
        elements.resize(maximumItems);
    return elements;
}

std::optional<DateTime> readDateTime(const XmlElement &element)
{
    const XmlElement date = element.child("Date");
    const XmlElement time = element.child("Time");
    const DateTime read = {.year = date.child("Year").integer().value_or(0),
                           .month = date.child("Month").integer().value_or(0),
                           .day = date.child("Day").integer().value_or(0),
                           .hour = time.child("Hour").integer().value_or(-1),
                           .minute = time.child("Minute").integer().value_or(-1),
                           .second = time.child("Second").integer().value_or(-1)};
    return read.isValid() ? std::optional(read) : std::nullopt;
}

void appendDateTime(pugi::xml_node parent, const DateTime &value)
{
    pugi::xml_node time = append(parent, "tt:Time");
    append(time, "tt:Hour", value.hour);
    append(time, "tt:Minute", value.minute);
    append(time, "tt:Second", value.second);
    pugi::xml_node date = append(parent, "tt:Date");
    append(date, "tt:Year", value.year);
    append(date, "tt:Month", value.month);
    append(date, "tt:Day", value.day);
}

DeviceClock readClock(const XmlElement &response)
{
    const XmlElement content = response.child(ns::device, "SystemDateAndTime");
    return {.followsNtp = content.child("DateTimeType").text() == "NTP",
            .daylightSaving = content.child("DaylightSavings").boolean().value_or(false),
            .timeZone = textOf(content.at({"TimeZone", "TZ"})),
            .utc = readDateTime(content.child("UTCDateTime")),
            .local = readDateTime(content.child("LocalDateTime"))};
}

std::vector<DeviceUser> readUsers(const XmlElement &response)
{
    std::vector<DeviceUser> users;
    for (const XmlElement &user : bounded(response.children(ns::device, "User")))
        users.push_back({.name = textOf(user.child("Username")), .level = textOf(user.child("UserLevel"))});
    return users;
}

DeviceInterface readInterface(const XmlElement &element)
{
    DeviceInterface read;
    read.token = std::string(element.attribute("token").substr(0, longestDeviceText));
    read.isEnabled = element.child("Enabled").boolean().value_or(true);
    read.mac = canonicalMac(element.at({"Info", "HwAddress"}).text());
    const XmlElement config = element.at({"IPv4", "Config"});
    read.hasIPv4 = config.exists() && element.at({"IPv4", "Enabled"}).boolean().value_or(true);
    read.dhcp = config.child("DHCP").boolean().value_or(false);
    // The address from DHCP has a separate element; some devices report it among the manual ones.
    const XmlElement leased = config.child("FromDHCP");
    const XmlElement manual = config.child("Manual");
    const XmlElement address = read.dhcp && leased.exists() ? leased
                               : manual.exists()            ? manual
                                                            : config.child("LinkLocal");
    read.address = textOf(address.child("Address"));
    read.prefixLength = address.child("PrefixLength").integer().value_or(0);
    const XmlElement ipv6 = element.at({"IPv6", "Config"});
    for (const std::string_view kind : {"Manual", "LinkLocal", "FromDHCP", "FromRA"}) {
        for (const XmlElement &entry : bounded(ipv6.children(kind)))
            read.ipv6Addresses.push_back(textOf(entry.child("Address")));
    }
    return read;
}

std::vector<DeviceInterface> readInterfaces(const XmlElement &response)
{
    std::vector<DeviceInterface> interfaces;
    for (const XmlElement &element : bounded(response.children(ns::device, "NetworkInterfaces")))
        interfaces.push_back(readInterface(element));
    return interfaces;
}

std::map<std::string, std::string> readServices(const XmlElement &response)
{
    std::map<std::string, std::string> services;
    for (const XmlElement &service : bounded(response.children(ns::device, "Service")))
        services.emplace(textOf(service.child(ns::device, "Namespace")),
                         service.child(ns::device, "XAddr").text());
    return services;
}

/// The response of the older operation has one element for each service.
std::map<std::string, std::string> readCapabilities(const XmlElement &response)
{
    const XmlElement content = response.child(ns::device, "Capabilities");
    std::map<std::string, std::string> services;
    const auto take = [&services](std::string_view uri, const XmlElement &service) {
        if (const XmlElement address = service.child("XAddr"); address.exists())
            services.emplace(uri, address.text());
    };
    take(ns::device, content.child("Device"));
    take(ns::media, content.child("Media"));
    take(ns::imaging, content.child("Imaging"));
    take(ns::deviceIo, content.at({"Extension", "DeviceIO"}));
    return services;
}

std::string readHost(const XmlElement &host)
{
    for (const std::string_view kind : {"DNSname", "IPv4Address", "IPv6Address"}) {
        if (std::string text = textOf(host.child(kind)); !text.empty())
            return text;
    }
    return {};
}

void appendHost(pugi::xml_node parent, const std::string &host)
{
    const bool isIPv6 = host.find(':') != std::string::npos;
    const bool isIPv4 = host.find_first_not_of("0123456789.") == std::string::npos;
    append(parent, "tt:Type", isIPv6 ? "IPv6" : isIPv4 ? "IPv4" : "DNS");
    append(parent, isIPv6 ? "tt:IPv6Address" : isIPv4 ? "tt:IPv4Address" : "tt:DNSname", host);
}

} // namespace

bool DateTime::isValid() const
{
    return year >= 1970 && year <= 2200 && month >= 1 && month <= 12 && day >= 1 && day <= 31 && hour >= 0 &&
           hour <= 23 && minute >= 0 && minute <= 59 && second >= 0 && second <= 60;
}

std::chrono::seconds xmlDuration(std::string_view text)
{
    constexpr std::chrono::seconds longest{24 * 3600};
    if (!text.starts_with('P'))
        return std::chrono::seconds(0);
    text.remove_prefix(1);
    double seconds = 0;
    bool isTime = false;
    while (!text.empty()) {
        if (text.front() == 'T') {
            isTime = true;
            text.remove_prefix(1);
            continue;
        }
        double number = 0;
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
        if (error != std::errc() || end == text.data() + text.size() || !std::isfinite(number) || number < 0)
            return std::chrono::seconds(0);
        const char unit = *end;
        text.remove_prefix(static_cast<std::size_t>(end - text.data()) + 1);
        const double factor = unit == 'D' && !isTime  ? 24.0 * 3600
                              : unit == 'H' && isTime ? 3600
                              : unit == 'M' && isTime ? 60
                              : unit == 'S' && isTime ? 1
                                                      : 0;
        seconds += number * factor;
        if (seconds > static_cast<double>(longest.count()))
            return longest;
    }
    return std::chrono::seconds(static_cast<std::int64_t>(seconds));
}

DeviceService::DeviceService(SoapClient &client, const ServiceAddress &address, Deadline deadline)
    : m_client(client), m_address(address), m_deadline(deadline)
{
}

SoapResponse DeviceService::call(const SoapRequest &request)
{
    return m_client.call(m_address, request, m_deadline);
}

ServiceOutcome DeviceService::callPlain(const SoapRequest &request, std::string_view response)
{
    return resultOf(call(request), ns::device, response, [](const XmlElement &) { return Nothing(); });
}

ServiceResult<DeviceClock> DeviceService::clockOpenly()
{
    return resultOf(m_client.callOpenly(m_address, SoapRequest("tds:GetSystemDateAndTime"), m_deadline),
                    ns::device, "GetSystemDateAndTimeResponse", readClock);
}

ServiceResult<DeviceClock> DeviceService::clock()
{
    return resultOf(call(SoapRequest("tds:GetSystemDateAndTime")), ns::device, "GetSystemDateAndTimeResponse",
                    readClock);
}

ServiceOutcome DeviceService::setClock(const DeviceClock &clock)
{
    const SoapRequest request("tds:SetSystemDateAndTime");
    append(request.operation(), "tds:DateTimeType", clock.followsNtp ? "NTP" : "Manual");
    appendBoolean(request.operation(), "tds:DaylightSavings", clock.daylightSaving);
    if (!clock.timeZone.empty())
        append(append(request.operation(), "tds:TimeZone"), "tt:TZ", clock.timeZone);
    if (clock.utc && !clock.followsNtp)
        appendDateTime(append(request.operation(), "tds:UTCDateTime"), *clock.utc);
    return callPlain(request, "SetSystemDateAndTimeResponse");
}

ServiceResult<std::vector<DeviceUser>> DeviceService::usersOpenly()
{
    return resultOf(m_client.callOpenly(m_address, SoapRequest("tds:GetUsers"), m_deadline), ns::device,
                    "GetUsersResponse", readUsers);
}

ServiceResult<std::vector<DeviceUser>> DeviceService::users()
{
    return resultOf(call(SoapRequest("tds:GetUsers")), ns::device, "GetUsersResponse", readUsers);
}

ServiceOutcome DeviceService::createAdministratorOpenly(const std::string &name, const std::string &password)
{
    const SoapRequest request("tds:CreateUsers");
    pugi::xml_node user = append(request.operation(), "tds:User");
    append(user, "tt:Username", name);
    append(user, "tt:Password", password);
    append(user, "tt:UserLevel", "Administrator");
    return resultOf(m_client.callOpenly(m_address, request, m_deadline), ns::device, "CreateUsersResponse",
                    [](const XmlElement &) { return Nothing(); });
}

ServiceOutcome DeviceService::setPassword(const DeviceUser &user, const std::string &password)
{
    const SoapRequest request("tds:SetUser");
    pugi::xml_node element = append(request.operation(), "tds:User");
    append(element, "tt:Username", user.name);
    append(element, "tt:Password", password);
    append(element, "tt:UserLevel", user.level);
    return callPlain(request, "SetUserResponse");
}

ServiceResult<DeviceInformation> DeviceService::information()
{
    return resultOf(call(SoapRequest("tds:GetDeviceInformation")), ns::device, "GetDeviceInformationResponse",
                    [](const XmlElement &response) {
                        const auto text = [&response](std::string_view name) {
                            return textOf(response.child(ns::device, name));
                        };
                        return DeviceInformation{.manufacturer = text("Manufacturer"),
                                                 .model = text("Model"),
                                                 .firmwareVersion = text("FirmwareVersion"),
                                                 .serialNumber = text("SerialNumber"),
                                                 .hardwareId = text("HardwareId")};
                    });
}

ServiceResult<std::map<std::string, std::string>> DeviceService::services()
{
    const SoapRequest request("tds:GetServices");
    appendBoolean(request.operation(), "tds:IncludeCapability", false);
    ServiceResult<std::map<std::string, std::string>> newer =
        resultOf(call(request), ns::device, "GetServicesResponse", readServices);
    if (newer.isOk() || newer.error == NetError::WrongPassword || newer.error == NetError::SessionEnded ||
        newer.error == NetError::ConnectTimeout)
        return newer;
    const SoapRequest older("tds:GetCapabilities");
    append(older.operation(), "tds:Category", "All");
    return resultOf(call(older), ns::device, "GetCapabilitiesResponse", readCapabilities);
}

ServiceResult<std::vector<DeviceInterface>> DeviceService::interfaces()
{
    return resultOf(call(SoapRequest("tds:GetNetworkInterfaces")), ns::device, "GetNetworkInterfacesResponse",
                    readInterfaces);
}

ServiceResult<std::vector<DeviceInterface>> DeviceService::interfacesOpenly()
{
    return resultOf(m_client.callOpenly(m_address, SoapRequest("tds:GetNetworkInterfaces"), m_deadline),
                    ns::device, "GetNetworkInterfacesResponse", readInterfaces);
}

ServiceResult<std::string> DeviceService::defaultGateway()
{
    return resultOf(call(SoapRequest("tds:GetNetworkDefaultGateway")), ns::device,
                    "GetNetworkDefaultGatewayResponse", [](const XmlElement &response) {
                        return textOf(response.child(ns::device, "NetworkGateway").child("IPv4Address"));
                    });
}

ServiceResult<std::vector<DeviceProtocol>> DeviceService::protocols()
{
    return resultOf(
        call(SoapRequest("tds:GetNetworkProtocols")), ns::device, "GetNetworkProtocolsResponse",
        [](const XmlElement &response) {
            std::vector<DeviceProtocol> protocols;
            for (const XmlElement &element : bounded(response.children(ns::device, "NetworkProtocols"))) {
                const int port = element.child("Port").integer().value_or(0);
                protocols.push_back({.name = textOf(element.child("Name")),
                                     .isEnabled = element.child("Enabled").boolean().value_or(false),
                                     .port = port > 0 && port <= 65535 ? port : 0});
            }
            return protocols;
        });
}

ServiceResult<NtpSettings> DeviceService::ntp()
{
    return resultOf(call(SoapRequest("tds:GetNTP")), ns::device, "GetNTPResponse",
                    [](const XmlElement &response) {
                        const XmlElement content = response.child(ns::device, "NTPInformation");
                        const bool fromDhcp = content.child("FromDHCP").boolean().value_or(false);
                        std::string server = readHost(content.child("NTPManual"));
                        if (server.empty())
                            server = readHost(content.child("NTPFromDHCP"));
                        return NtpSettings{.fromDhcp = fromDhcp, .server = server};
                    });
}

ServiceOutcome DeviceService::setNtp(const NtpSettings &settings)
{
    const SoapRequest request("tds:SetNTP");
    appendBoolean(request.operation(), "tds:FromDHCP", settings.fromDhcp);
    if (!settings.fromDhcp && !settings.server.empty())
        appendHost(append(request.operation(), "tds:NTPManual"), settings.server);
    return callPlain(request, "SetNTPResponse");
}

ServiceResult<std::string> DeviceService::hostName()
{
    return resultOf(call(SoapRequest("tds:GetHostname")), ns::device, "GetHostnameResponse",
                    [](const XmlElement &response) {
                        return textOf(response.child(ns::device, "HostnameInformation").child("Name"));
                    });
}

ServiceResult<bool> DeviceService::setAddress(const DeviceInterface &interface)
{
    const SoapRequest request("tds:SetNetworkInterfaces");
    append(request.operation(), "tds:InterfaceToken", interface.token);
    pugi::xml_node settings = append(request.operation(), "tds:NetworkInterface");
    appendBoolean(settings, "tt:Enabled", true);
    pugi::xml_node ipv4 = append(settings, "tt:IPv4");
    appendBoolean(ipv4, "tt:Enabled", true);
    if (!interface.dhcp) {
        pugi::xml_node manual = append(ipv4, "tt:Manual");
        append(manual, "tt:Address", interface.address);
        append(manual, "tt:PrefixLength", interface.prefixLength);
    }
    appendBoolean(ipv4, "tt:DHCP", interface.dhcp);
    return resultOf(call(request), ns::device, "SetNetworkInterfacesResponse",
                    [](const XmlElement &response) {
                        return response.child(ns::device, "RebootNeeded").boolean().value_or(false);
                    });
}

ServiceOutcome DeviceService::setDefaultGateway(const std::string &address)
{
    const SoapRequest request("tds:SetNetworkDefaultGateway");
    if (!address.empty())
        append(request.operation(), "tds:IPv4Address", address);
    return callPlain(request, "SetNetworkDefaultGatewayResponse");
}

ServiceOutcome DeviceService::reboot()
{
    return callPlain(SoapRequest("tds:SystemReboot"), "SystemRebootResponse");
}

ServiceOutcome DeviceService::resetCompletely()
{
    const SoapRequest request("tds:SetSystemFactoryDefault");
    append(request.operation(), "tds:FactoryDefault", "Hard");
    return callPlain(request, "SetSystemFactoryDefaultResponse");
}

ServiceResult<FirmwareUpload> DeviceService::startFirmwareUpgrade()
{
    const SoapResponse start = call(SoapRequest("tds:StartFirmwareUpgrade"));
    ServiceResult<FirmwareUpload> result =
        resultOf(start, ns::device, "StartFirmwareUpgradeResponse", [this](const XmlElement &response) {
            FirmwareUpload upload;
            const std::optional<ServiceAddress> address =
                serviceAt(m_address, response.child(ns::device, "UploadUri").text());
            upload.address = address.value_or(ServiceAddress{.host = {}});
            upload.delay = xmlDuration(response.child(ns::device, "UploadDelay").text());
            upload.downTime = xmlDuration(response.child(ns::device, "ExpectedDownTime").text());
            return upload;
        });
    if (result.isOk() && result.value.address.host.empty())
        result.error = NetError::ProtocolMismatch;
    return result;
}

} // namespace sdk::onvif

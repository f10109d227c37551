// The device service (ONVIF Core, chapter 8): identity, network, users, clock and maintenance of a device.
#pragma once

#include "sdk/onvif/services/serviceresult.h"

#include <chrono>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace sdk::onvif {

struct DeviceInformation
{
    std::string manufacturer = {};
    std::string model = {};
    std::string firmwareVersion = {};
    std::string serialNumber = {};
    std::string hardwareId = {};
};

/// A date and time without a zone.
struct DateTime
{
    int year = 0;
    int month = 0; ///< 1 to 12
    int day = 0;
    int hour = 0;
    int minute = 0;
    int second = 0; ///< 0 to 60

    /// True if every part is in its range, the year from 1970 to 2200. A day up to 31 is valid in any month.
    [[nodiscard]] bool isValid() const;
};

struct DeviceClock
{
    bool followsNtp = false;
    bool daylightSaving = false; ///< the zone's rule is applied
    std::string timeZone = {};   ///< POSIX 1003.1 string, empty if the device does not report it
    std::optional<DateTime> utc = {};
    std::optional<DateTime> local = {};
};

/// One network interface of a device.
struct DeviceInterface
{
    std::string token = {};
    bool isEnabled = true;
    std::string mac = {}; ///< as canonicalMac() writes it
    bool hasIPv4 = false; ///< IPv4 is configured and enabled
    bool dhcp = false;
    std::string address = {}; ///< the IPv4 address in use; empty if there is none
    int prefixLength = 0;     ///< of `address`; 0 if not reported
    std::vector<std::string> ipv6Addresses = {};
};

struct DeviceProtocol
{
    std::string name = {}; ///< "HTTP", "HTTPS", "RTSP"
    bool isEnabled = false;
    int port = 0; ///< 0 if not reported or invalid
};

struct DeviceUser
{
    std::string name = {};
    std::string level = {}; ///< "Administrator", "Operator", "User", "Anonymous", "Extended"
};

struct NtpSettings
{
    bool fromDhcp = false;
    std::string server = {}; ///< an address or a name: the manual server, otherwise the one from DHCP
};

/// The parameters of a firmware upload.
struct FirmwareUpload
{
    ServiceAddress address = {};
    std::chrono::seconds delay{0};    ///< to wait before sending
    std::chrono::seconds downTime{0}; ///< offline time afterwards, 0 if not reported
};

/// Operations of one device. Each blocks until the response has arrived or `deadline` has passed. Used by one
/// thread; several objects may share the client.
class DeviceService
{
public:
    using Deadline = SoapClient::Deadline;

    /// Both must outlive the object.
    DeviceService(SoapClient &client, const ServiceAddress &address, Deadline deadline);

    // Without the login.

    [[nodiscard]] ServiceResult<DeviceClock> clockOpenly();
    /// Succeeds on a device without an administrator. Some devices with an administrator also respond, with
    /// all their users or with none.
    [[nodiscard]] ServiceResult<std::vector<DeviceUser>> usersOpenly();
    [[nodiscard]] ServiceResult<std::vector<DeviceInterface>> interfacesOpenly();
    [[nodiscard]] ServiceOutcome createAdministratorOpenly(const std::string &name,
                                                           const std::string &password);

    // With the login.

    [[nodiscard]] ServiceResult<DeviceInformation> information();
    [[nodiscard]] ServiceResult<DeviceClock> clock();
    /// Sends `utc` only if the clock does not follow NTP, and the zone only if it is not empty. `local` is
    /// not sent.
    [[nodiscard]] ServiceOutcome setClock(const DeviceClock &clock);
    /// URLs of the services by namespace. The older operation is used for a device without the newer one.
    [[nodiscard]] ServiceResult<std::map<std::string, std::string>> services();
    [[nodiscard]] ServiceResult<std::vector<DeviceInterface>> interfaces();
    [[nodiscard]] ServiceResult<std::string> defaultGateway();
    [[nodiscard]] ServiceResult<std::vector<DeviceProtocol>> protocols();
    [[nodiscard]] ServiceResult<std::vector<DeviceUser>> users();
    [[nodiscard]] ServiceOutcome setPassword(const DeviceUser &user, const std::string &password);
    [[nodiscard]] ServiceResult<NtpSettings> ntp();
    /// Sends the server only if it is not empty and not from DHCP.
    [[nodiscard]] ServiceOutcome setNtp(const NtpSettings &settings);
    [[nodiscard]] ServiceResult<std::string> hostName();

    /// Sets the IPv4 address and prefix length of `interface`, or DHCP. The value is true if the device must
    /// be rebooted before they are in use.
    [[nodiscard]] ServiceResult<bool> setAddress(const DeviceInterface &interface);
    [[nodiscard]] ServiceOutcome setDefaultGateway(const std::string &address);
    [[nodiscard]] ServiceOutcome reboot();
    /// Resets all settings to the factory defaults, including the network settings.
    [[nodiscard]] ServiceOutcome resetCompletely();
    /// ProtocolMismatch if the response contains no usable address for the upload.
    [[nodiscard]] ServiceResult<FirmwareUpload> startFirmwareUpgrade();

private:
    [[nodiscard]] SoapResponse call(const SoapRequest &request);
    [[nodiscard]] ServiceOutcome callPlain(const SoapRequest &request, std::string_view response);

    SoapClient &m_client;
    const ServiceAddress &m_address;
    const Deadline m_deadline;
};

/// A duration of XML Schema ("PT5S", "PT1M30S") in whole seconds. Years and months count as 0. A longer
/// duration than a day is limited to a day. 0 for an invalid string.
[[nodiscard]] std::chrono::seconds xmlDuration(std::string_view text);

} // namespace sdk::onvif

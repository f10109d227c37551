// The device service (ONVIF Core, chapter 8): identity, network, users, clock and maintenance of a device.
//
// Strings from a device are truncated after 256 bytes, except URLs, and lists after 64 entries. A value that
// the device does not report is empty or 0.
#pragma once

#include "sdk/onvif/services/serviceresult.h"

#include <chrono>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace sdk::onvif {

/// The identity of a device, as it reports it.
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

/// The clock of a device, as it reports it or as it is to be set.
struct DeviceClock
{
    bool followsNtp = false;            ///< the time comes from a time server
    bool daylightSaving = false;        ///< the zone's rule is applied
    std::string timeZone = {};          ///< POSIX 1003.1 ("CST-8"), empty if the device does not report it
    std::optional<DateTime> utc = {};   ///< nothing if it is not reported or invalid
    std::optional<DateTime> local = {}; ///< the same
};

/// One network interface of a device.
struct DeviceInterface
{
    std::string token = {};
    bool isEnabled = true;
    std::string mac = {}; ///< "02:1a:c5:00:40:17"; empty if unknown
    bool hasIPv4 = false; ///< IPv4 is configured and enabled
    bool dhcp = false;
    /// The IPv4 address in use: with DHCP the leased one, if it is reported, otherwise the manual or the
    /// link-local one. Empty if there is none.
    std::string address = {};
    int prefixLength = 0; ///< of `address`; 0 if not reported
    /// Up to 64 of each origin, in this order: manual, link-local, from DHCP, from router advertisements.
    std::vector<std::string> ipv6Addresses = {};
};

/// A protocol of a device and its port.
struct DeviceProtocol
{
    std::string name = {}; ///< "HTTP", "HTTPS", "RTSP"
    bool isEnabled = false;
    int port = 0; ///< 0 if not reported or invalid
};

/// An account of a device, without its password.
struct DeviceUser
{
    std::string name = {};
    std::string level = {}; ///< "Administrator", "Operator", "User", "Anonymous", "Extended"
};

/// The time server of a device.
struct NtpSettings
{
    bool fromDhcp = false;   ///< the device gets its server by DHCP
    std::string server = {}; ///< an address or a name: the manual server, otherwise the one from DHCP
};

/// The parameters of a firmware upload.
struct FirmwareUpload
{
    ServiceAddress address = {};      ///< for a POST with the content of the file
    std::chrono::seconds delay{0};    ///< to wait before sending
    std::chrono::seconds downTime{0}; ///< offline time after the upload, 0 if not reported
};

/// Operations of one device, created for a call or a few. Each sends a request and blocks until the response
/// has arrived or `deadline` has passed. Errors are ConnectTimeout, ConnectFailed, NetworkFailure and the two
/// of certificates for the connection, WrongPassword, AccountLocked and SessionEnded for the login,
/// NotSupported, InvalidValue and Refused for the request, ProtocolMismatch for the response; SoapResponse
/// and SoapClient state the details. Used by one thread; several objects may share the client.
class DeviceService
{
public:
    using Deadline = SoapClient::Deadline;

    /// `client` has the login and sends the requests to `address`; both must outlive the object. `deadline`
    /// limits all operations together.
    DeviceService(SoapClient &client, const ServiceAddress &address, Deadline deadline);

    // Without the login. WrongPassword means that the device requires a login.

    [[nodiscard]] ServiceResult<DeviceClock> clockOpenly();
    /// Succeeds on a device without an administrator. Most devices with an administrator refuse the request;
    /// some respond with all their users or with an empty list.
    [[nodiscard]] ServiceResult<std::vector<DeviceUser>> usersOpenly();
    [[nodiscard]] ServiceResult<std::vector<DeviceInterface>> interfacesOpenly();
    /// Creates an account with the level "Administrator".
    [[nodiscard]] ServiceOutcome createAdministratorOpenly(const std::string &name,
                                                           const std::string &password);

    // With the login of the client, if the device requires one.

    [[nodiscard]] ServiceResult<DeviceInformation> information();
    [[nodiscard]] ServiceResult<DeviceClock> clock();
    /// Sends whether the clock follows NTP, and the switch of daylight saving. Sends `utc` only if it is set
    /// and the clock does not follow NTP. Sends the zone only if it is not empty. `local` is not sent.
    [[nodiscard]] ServiceOutcome setClock(const DeviceClock &clock);
    /// The URLs of the services, as the device knows them, by namespace. If the request fails with another
    /// error than WrongPassword, SessionEnded or ConnectTimeout, an older operation is requested, which some
    /// devices have instead; its response has the device, media, imaging and device IO services only.
    [[nodiscard]] ServiceResult<std::map<std::string, std::string>> services();
    [[nodiscard]] ServiceResult<std::vector<DeviceInterface>> interfaces();
    /// The first IPv4 gateway; empty if the device has none.
    [[nodiscard]] ServiceResult<std::string> defaultGateway();
    [[nodiscard]] ServiceResult<std::vector<DeviceProtocol>> protocols();
    /// The accounts of the device.
    [[nodiscard]] ServiceResult<std::vector<DeviceUser>> users();
    /// Sets the password and the level of the account `user.name`. The password of the client is not changed,
    /// see SoapClient::setPassword().
    [[nodiscard]] ServiceOutcome setPassword(const DeviceUser &user, const std::string &password);
    [[nodiscard]] ServiceResult<NtpSettings> ntp();
    /// Sends the source of the server, and the server only if it is not empty and not from DHCP.
    [[nodiscard]] ServiceOutcome setNtp(const NtpSettings &settings);
    [[nodiscard]] ServiceResult<std::string> hostName();

    /// Sends the token of `interface` with DHCP, or with the IPv4 address and the prefix length. Enables the
    /// interface and IPv4. The value is true if the device must be rebooted before the settings are in use.
    [[nodiscard]] ServiceResult<bool> setAddress(const DeviceInterface &interface);
    /// Sets the IPv4 gateway. With an empty `address`, the request contains no gateway.
    [[nodiscard]] ServiceOutcome setDefaultGateway(const std::string &address);
    /// Succeeds when the device has accepted the request; the reboot follows.
    [[nodiscard]] ServiceOutcome reboot();
    /// Resets all settings to the factory defaults, including the network settings.
    [[nodiscard]] ServiceOutcome resetCompletely();
    /// Asks the device to prepare an upgrade, and returns the parameters of the upload. ProtocolMismatch if
    /// the response contains no usable address for the upload.
    [[nodiscard]] ServiceResult<FirmwareUpload> startFirmwareUpgrade();

private:
    [[nodiscard]] SoapResponse call(const SoapRequest &request);
    [[nodiscard]] ServiceOutcome callPlain(const SoapRequest &request, std::string_view response);

    SoapClient &m_client;
    const ServiceAddress &m_address;
    const Deadline m_deadline;
};

/// A duration of XML Schema ("PT5S", "PT1M30S") in whole seconds, rounded down, at most one day. Years,
/// months and unknown units count as 0. 0 for an invalid string and for a negative duration.
[[nodiscard]] std::chrono::seconds xmlDuration(std::string_view text);

} // namespace sdk::onvif

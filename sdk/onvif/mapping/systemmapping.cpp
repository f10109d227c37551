#include "sdk/onvif/mapping/systemmapping.h"

#include "sdk/blocktext.h"
#include "sdk/configrecords.h"
#include "sdk/configtext/configtext.h"
#include "sdk/onvif/discovery/founddevice.h"
#include "sdk/onvif/mapping/timezonenumbers.h"
#include "sdk/onvif/session/clocktime.h"
#include "sdk/onvif/session/posixtimezone.h"
#include "sdk/systemrecords.h"

#include <algorithm>

namespace sdk::onvif {

namespace {

using Deadline = OnvifSession::Deadline;

constexpr int ntpPort = 123;
constexpr int dayInMinutes = 1440;
constexpr int daylightSavingMinutes = 60;

template<typename Record>
std::string packed(std::string_view name, Record record)
{
    record.size = sizeof(record);
    const std::optional<QByteArray> text = packConfigText(name, &record, sizeof(record));
    return text ? text->toStdString() : std::string();
}

/// Reads the keys of `text` into `record`. Returns false for an invalid text.
template<typename Record>
bool unpack(std::string_view name, std::string_view text, Record &record)
{
    return unpackConfigText(name, text, &record, sizeof(record)).has_value();
}

std::string networkText(OnvifSession &session, Deadline deadline, NetError &error)
{
    DeviceService device = session.device(deadline);
    const auto interfaces = device.interfaces();
    error = interfaces.error;
    const DeviceInterface *interface = interfaceInUse(interfaces.value, session.service().host);
    if (!interface)
        return {};
    NetworkRecord record{};
    record.dhcpEnabled = interface->dhcp ? 1 : 0;
    setBlockText(record.mac, interface->mac);
    setBlockText(record.address, interface->address);
    setBlockText(record.subnetMask, maskOf(interface->prefixLength));
    setBlockText(record.gateway, device.defaultGateway().value);
    setBlockText(record.hostName, device.hostName().value);
    return packed("Network", record);
}

std::string httpsText(OnvifSession &session, Deadline deadline, NetError &error)
{
    const auto protocols = session.device(deadline).protocols();
    error = protocols.error;
    const int port = portOf(protocols.value, "HTTPS");
    return packed("Https", HttpsRecord{.size = 0, .enabled = port > 0 ? 1 : 0, .port = port, .reserved = 0});
}

std::string serviceText(const OnvifSession &session)
{
    ServiceRecord record{};
    record.tcpPort = session.service().port;
    return packed("DVRIP", record);
}

int shownTimeZone(const DeviceClock &clock)
{
    const std::optional<PosixTimeZone> zone = readPosixTimeZone(clock.timeZone);
    return std::max(timeZoneNumber(zone ? zone->offset : 0), 0);
}

std::string ntpText(OnvifSession &session, Deadline deadline, NetError &error)
{
    DeviceService device = session.device(deadline);
    const auto clock = device.clock();
    error = clock.error;
    if (!clock.isOk())
        return {};
    NtpRecord record{};
    record.enabled = clock.value.followsNtp ? 1 : 0;
    setBlockText(record.address, device.ntp().value.server);
    record.port = ntpPort;
    record.updatePeriod = dayInMinutes;
    record.timeZone = shownTimeZone(clock.value);
    return packed("NTP", record);
}

LocalesRecord localesOf(const DeviceClock &clock)
{
    LocalesRecord record{};
    if (const std::optional<PosixTimeZone> zone = readPosixTimeZone(clock.timeZone)) {
        record.daylightSavingEnabled = clock.daylightSaving && zone->hasDaylightSaving() ? 1 : 0;
        record.begin = zone->begin;
        record.end = zone->end;
    }
    setBlockText(record.timeFormat, "yyyy-MM-dd HH:mm:ss");
    return record;
}

/// False for a point that was never set, and for a weekday that does not exist.
bool isUsable(const DaylightSavingPoint &point)
{
    constexpr int saturday = 6;
    return point.month > 0 &&
           (point.week == DaylightSavingPoint::byDate ? point.day > 0 : point.day <= saturday);
}

std::string localesText(OnvifSession &session, Deadline deadline, NetError &error)
{
    const auto clock = session.device(deadline).clock();
    error = clock.error;
    if (!clock.isOk())
        return {};
    return packed("Locales", localesOf(clock.value));
}

/// The zone `text` with another offset and the same rule of daylight saving.
std::string movedZone(const std::string &text, int offset)
{
    PosixTimeZone zone = readPosixTimeZone(text).value_or(PosixTimeZone{.name = "UTC"});
    zone.daylightOffset += offset - zone.offset;
    zone.offset = offset;
    zone.name = offset == 0 ? "UTC" : "TZONE"; // the name of the old offset would be a wrong one
    return zone.text();
}

NetError setNtp(OnvifSession &session, std::string_view text, Deadline deadline)
{
    DeviceService device = session.device(deadline);
    const auto clock = device.clock();
    if (!clock.isOk())
        return clock.error;
    NtpRecord record{};
    record.enabled = clock.value.followsNtp ? 1 : 0;
    record.timeZone = shownTimeZone(clock.value);
    if (!unpack("NTP", text, record))
        return NetError::InvalidValue;
    if (record.enabled != 0 && !blockText(record.address).empty()) {
        const NtpSettings settings = {.fromDhcp = false, .server = std::string(blockText(record.address))};
        if (const ServiceOutcome outcome = device.setNtp(settings); !outcome.isOk())
            return outcome.error;
    }
    DeviceClock changed = clock.value;
    changed.followsNtp = record.enabled != 0;
    if (record.timeZone != shownTimeZone(clock.value)) // otherwise the string is kept
        changed.timeZone = movedZone(clock.value.timeZone, timeZoneOffset(record.timeZone));
    return device.setClock(changed).error;
}

NetError setLocales(OnvifSession &session, std::string_view text, Deadline deadline)
{
    DeviceService device = session.device(deadline);
    const auto clock = device.clock();
    if (!clock.isOk())
        return clock.error;
    LocalesRecord record = localesOf(clock.value);
    if (!unpack("Locales", text, record) ||
        (record.daylightSavingEnabled != 0 && !(isUsable(record.begin) && isUsable(record.end))))
        return NetError::InvalidValue;
    DeviceClock changed = clock.value;
    PosixTimeZone zone = readPosixTimeZone(clock.value.timeZone).value_or(PosixTimeZone{.name = "UTC"});
    changed.daylightSaving = record.daylightSavingEnabled != 0;
    if (changed.daylightSaving) {
        if (zone.daylightName.empty()) {
            zone.daylightName = "DST";
            zone.daylightOffset = zone.offset + daylightSavingMinutes;
        }
        zone.begin = record.begin;
        zone.end = record.end;
    } else {
        // Some devices follow the rule in the string regardless of the switch.
        zone.daylightName.clear();
    }
    changed.timeZone = zone.text();
    return device.setClock(changed).error;
}

} // namespace

bool isOtherDevice(const std::vector<DeviceInterface> &interfaces, const std::string &mac)
{
    const auto hasMac = [](const DeviceInterface &interface) {
        return !interface.mac.empty();
    };
    return !mac.empty() && !interfaces.empty() && std::all_of(interfaces.begin(), interfaces.end(), hasMac) &&
           std::none_of(interfaces.begin(), interfaces.end(),
                        [&mac](const DeviceInterface &interface) { return interface.mac == mac; });
}

const DeviceInterface *interfaceInUse(const std::vector<DeviceInterface> &interfaces,
                                      std::string_view address)
{
    const DeviceInterface *first = nullptr;
    for (const DeviceInterface &interface : interfaces) {
        const bool hasAddress =
            interface.address == address ||
            std::find(interface.ipv6Addresses.begin(), interface.ipv6Addresses.end(),
                      address.substr(0, address.find('%'))) != interface.ipv6Addresses.end();
        if (hasAddress)
            return &interface;
        if (!first && interface.isEnabled && interface.hasIPv4)
            first = &interface;
    }
    return first;
}

int portOf(const std::vector<DeviceProtocol> &protocols, std::string_view name)
{
    const auto found =
        std::find_if(protocols.begin(), protocols.end(), [name](const DeviceProtocol &protocol) {
            return protocol.isEnabled && protocol.name == name;
        });
    return found == protocols.end() ? 0 : found->port;
}

std::string systemConfiguration(OnvifSession &session, std::string_view name, Deadline deadline,
                                NetError &error)
{
    std::string text;
    error = NetError::None;
    if (name == "Network")
        text = networkText(session, deadline, error);
    else if (name == "DVRIP")
        text = serviceText(session);
    else if (name == "Https")
        text = httpsText(session, deadline, error);
    else if (name == "NTP")
        text = ntpText(session, deadline, error);
    else if (name == "Locales")
        text = localesText(session, deadline, error);
    if (text.empty() && error == NetError::None)
        error = NetError::NotSupported;
    return error == NetError::None ? text : std::string();
}

NetError setSystemConfiguration(OnvifSession &session, std::string_view name, std::string_view text,
                                Deadline deadline)
{
    if (name == "NTP")
        return setNtp(session, text, deadline);
    if (name == "Locales")
        return setLocales(session, text, deadline);
    return NetError::NotSupported;
}

NetError setDeviceTime(OnvifSession &session, const TimeRecord &time, Deadline deadline)
{
    DeviceService device = session.device(deadline);
    const auto clock = device.clock();
    if (!clock.isOk())
        return clock.error;
    const DateTime shown = dateTimeOf(time);
    if (!shown.isValid())
        return NetError::InvalidValue;
    DeviceClock changed = clock.value;
    changed.followsNtp = false;
    changed.utc = utcOfShown(shown, clock.value);
    return device.setClock(changed).error;
}

} // namespace sdk::onvif

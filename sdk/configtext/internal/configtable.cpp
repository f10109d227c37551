#include "sdk/configtext/internal/configtable.h"

#include "sdk/configrecords.h"
#include "sdk/configtext/internal/picturetables.h"
#include "sdk/systemrecords.h"

#include <algorithm>
#include <array>
#include <limits>

namespace sdk {

namespace {

constexpr std::int32_t highestPort = 65535;
constexpr std::int32_t largestNumber = std::numeric_limits<std::int32_t>::max();

constexpr ConfigField number(const char *key, std::size_t offset, std::int32_t minimum, std::int32_t maximum)
{
    return {key, offset, ConfigFieldKind::Number, minimum, maximum};
}

constexpr ConfigField flag(const char *key, std::size_t offset)
{
    return {key, offset, ConfigFieldKind::Flag, 0, 1};
}

constexpr ConfigField text(const char *key, std::size_t offset, std::size_t size)
{
    return {key, offset, ConfigFieldKind::Text, 0, 0, size};
}

constexpr std::array networkFields = {
    flag("dhcp", offsetof(NetworkRecord, dhcpEnabled)),
    text("hostName", offsetof(NetworkRecord, hostName), sizeof(NetworkRecord::hostName)),
    text("mac", offsetof(NetworkRecord, mac), sizeof(NetworkRecord::mac)),
    text("address", offsetof(NetworkRecord, address), sizeof(NetworkRecord::address)),
    text("subnetMask", offsetof(NetworkRecord, subnetMask), sizeof(NetworkRecord::subnetMask)),
    text("gateway", offsetof(NetworkRecord, gateway), sizeof(NetworkRecord::gateway)),
};

constexpr std::array serviceFields = {
    number("tcpPort", offsetof(ServiceRecord, tcpPort), 0, highestPort),
    number("maximumConnections", offsetof(ServiceRecord, maximumConnections), 0, largestNumber),
};

constexpr std::array httpsFields = {
    flag("enabled", offsetof(HttpsRecord, enabled)),
    number("port", offsetof(HttpsRecord, port), 0, highestPort),
};

// Maintenance

constexpr ConfigField byteFlag(const char *key, std::size_t offset)
{
    return {key, offset, ConfigFieldKind::ByteFlag, 0, 1, 1};
}

constexpr std::int32_t lastMinute = 59;
constexpr std::int32_t lastHour = 23;
constexpr std::int32_t longestMonth = 31;

constexpr std::size_t daylightBegin = offsetof(LocalesRecord, begin);
constexpr std::size_t daylightEnd = offsetof(LocalesRecord, end);
constexpr std::array localesFields = {
    flag("daylightSaving", offsetof(LocalesRecord, daylightSavingEnabled)),
    number("beginMonth", daylightBegin + offsetof(DaylightSavingPoint, month), 0, 12),
    number("beginWeek", daylightBegin + offsetof(DaylightSavingPoint, week), DaylightSavingPoint::lastWeek,
           4),
    number("beginDay", daylightBegin + offsetof(DaylightSavingPoint, day), 0, longestMonth),
    number("beginHour", daylightBegin + offsetof(DaylightSavingPoint, hour), 0, lastHour),
    number("beginMinute", daylightBegin + offsetof(DaylightSavingPoint, minute), 0, lastMinute),
    number("endMonth", daylightEnd + offsetof(DaylightSavingPoint, month), 0, 12),
    number("endWeek", daylightEnd + offsetof(DaylightSavingPoint, week), DaylightSavingPoint::lastWeek, 4),
    number("endDay", daylightEnd + offsetof(DaylightSavingPoint, day), 0, longestMonth),
    number("endHour", daylightEnd + offsetof(DaylightSavingPoint, hour), 0, lastHour),
    number("endMinute", daylightEnd + offsetof(DaylightSavingPoint, minute), 0, lastMinute),
    text("timeFormat", offsetof(LocalesRecord, timeFormat), sizeof(LocalesRecord::timeFormat)),
};

constexpr std::array autoMaintainFields = {
    number("rebootDay", offsetof(AutoMaintainRecord, rebootDay), AutoMaintainRecord::never,
           AutoMaintainRecord::everyDay),
    number("rebootHour", offsetof(AutoMaintainRecord, rebootHour), 0, lastHour),
    number("rebootMinute", offsetof(AutoMaintainRecord, rebootMinute), 0, lastMinute),
    byteFlag("rebootEnabled", offsetof(AutoMaintainRecord, rebootEnabled)),
};

constexpr std::array ntpFields = {
    flag("enabled", offsetof(NtpRecord, enabled)),
    text("address", offsetof(NtpRecord, address), sizeof(NtpRecord::address)),
    number("port", offsetof(NtpRecord, port), 0, highestPort),
    number("updatePeriod", offsetof(NtpRecord, updatePeriod), 0, 65535),
    number("timeZone", offsetof(NtpRecord, timeZone), 0, NtpRecord::timeZones - 1),
};

constexpr std::array tables = {
    ConfigTable{"Network", sizeof(NetworkRecord), networkFields},
    ConfigTable{"DVRIP", sizeof(ServiceRecord), serviceFields},
    ConfigTable{"Https", sizeof(HttpsRecord), httpsFields},
    ConfigTable{"Locales", sizeof(LocalesRecord), localesFields},
    ConfigTable{"AutoMaintain", sizeof(AutoMaintainRecord), autoMaintainFields},
    ConfigTable{"NTP", sizeof(NtpRecord), ntpFields},
    ConfigTable{"Encode", sizeof(EncodeRecord), picturetables::encodeFields},
    ConfigTable{"VideoColor", sizeof(VideoColorRecord), picturetables::videoColorFields},
    ConfigTable{"Lighting_V2", sizeof(LightingRecord), picturetables::lightingFields},
};

/// The size of a field in bytes, with its inner fields.
constexpr std::size_t fieldSize(const ConfigField &field)
{
    if (field.kind == ConfigFieldKind::Text || field.kind == ConfigFieldKind::ByteFlag)
        return field.size;
    if (field.kind != ConfigFieldKind::Object)
        return sizeof(std::int32_t);
    std::size_t size = 0;
    for (std::size_t index = 0; index < field.innerCount; ++index)
        size = std::max(size, field.inner[index].offset + fieldSize(field.inner[index]));
    return size;
}

/// Every field is after the record's size field and ends within the record.
constexpr bool fieldsLieInRecord(const ConfigTable &table)
{
    return std::all_of(table.fields.begin(), table.fields.end(), [&table](const ConfigField &field) {
        const std::size_t size = fieldSize(field);
        return size > 0 && field.offset >= sizeof(std::uint32_t) && field.offset + size <= table.recordSize;
    });
}
static_assert(std::all_of(tables.begin(), tables.end(), fieldsLieInRecord));

} // namespace

const ConfigTable *configTable(std::string_view name)
{
    const auto found = std::find_if(tables.begin(), tables.end(),
                                    [name](const ConfigTable &table) { return table.name == name; });
    return found == tables.end() ? nullptr : &*found;
}

} // namespace sdk

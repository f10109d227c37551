#include "sdk/configtext/internal/configtable.h"

#include "sdk/configrecords.h"

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

constexpr std::array tables = {
    ConfigTable{"Network", sizeof(NetworkRecord), networkFields},
    ConfigTable{"DVRIP", sizeof(ServiceRecord), serviceFields},
    ConfigTable{"Https", sizeof(HttpsRecord), httpsFields},
};

/// Every field lies behind the record's own size and ends within the record.
constexpr bool fieldsLieInRecord(const ConfigTable &table)
{
    return std::all_of(table.fields.begin(), table.fields.end(), [&table](const ConfigField &field) {
        const bool isText = field.kind == ConfigFieldKind::Text;
        const std::size_t size = isText ? field.size : sizeof(std::int32_t);
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

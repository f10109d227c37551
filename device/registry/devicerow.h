// Device rows: one JSON object per device, keyed by the column names of the device tables.
#pragma once

#include "sdk/blocktext.h"

#include <QJsonObject>
#include <QString>

namespace sdk {
struct SearchAnswer;
struct SearchDeviceInformation;
} // namespace sdk

/// Keys of a device row.
namespace DeviceRowKey {
inline constexpr QLatin1StringView checked("checked");       ///< bool: tick box of the row
inline constexpr QLatin1StringView num("num");               ///< text: row number, filled by the page
inline constexpr QLatin1StringView state("state");           ///< bool: initialised
inline constexpr QLatin1StringView name("name");             ///< text: device name
inline constexpr QLatin1StringView type("type");             ///< text: device type
inline constexpr QLatin1StringView model("model");           ///< text: detailed model
inline constexpr QLatin1StringView ipport("ipport");         ///< text: "address:port", names the device
inline constexpr QLatin1StringView mac("mac");               ///< text: identity of the device in the lists
inline constexpr QLatin1StringView vision("vision");         ///< text: software version, "v" in front
inline constexpr QLatin1StringView res("res");               ///< int: last IP modification, -1 none yet
inline constexpr QLatin1StringView operate("operate");       ///< text of the operation column
inline constexpr QLatin1StringView filepath("filepath");     ///< text: firmware file chosen for the device
inline constexpr QLatin1StringView upgrade("upgrade");       ///< int: upgrade progress in percent
inline constexpr QLatin1StringView upgraderes("upgraderes"); ///< int: last upgrade, -1 none yet
inline constexpr QLatin1StringView url("url");               ///< text: address used for CGI commands
inline constexpr QLatin1StringView result("result");         ///< text result of the last batch operation
inline constexpr QLatin1StringView httpport("httpport");     ///< int: HTTP port

/// Text: last upgrade in words. Only rows of devices that were to be upgraded have it: "result" belongs to
/// other operations, whose pages show it.
inline constexpr QLatin1StringView upgradetext("upgradetext");

// Keys of devices that were added by hand, or that the user has given an account.
inline constexpr QLatin1StringView username("username");
inline constexpr QLatin1StringView password("password");
inline constexpr QLatin1StringView loginType("loginType");   ///< text: "IP" or "P2P"
inline constexpr QLatin1StringView devp2pPort("devp2pPort"); ///< text: the device's own port behind a tunnel
inline constexpr QLatin1StringView https("https");           ///< bool: the HTTP port is an encrypted one

/// Int, from 1: rows whose name was this address and port before. Only rows without a MAC have it, and only
/// when there were any.
inline constexpr QLatin1StringView duplicate("duplicate");
/// A bool: the address is what a change that failed asked for, and the device has not been found since.
inline constexpr QLatin1StringView unconfirmed("unconfirmed");

/// Bool: the last search has not found the device, whose row is kept since a batch failed with it. Other rows
/// may lack it.
inline constexpr QLatin1StringView lost("lost");

/// Bool: whether the last login to the device succeeded. Rows lack it until the first one.
inline constexpr QLatin1StringView loggedIn("loggedIn");

/// Text: the name of a row whose MAC and address do not give it: of a device that is identified by its UUID,
/// and of a row whose values have changed. Other rows lack it.
inline constexpr QLatin1StringView identity("identity");
} // namespace DeviceRowKey

/// Text of a block field, decoded as local 8-bit text. Bytes that are no text become replacement characters,
/// and control characters blanks: a line break would break the lines of tables and of the clipboard.
[[nodiscard]] QString fieldText(std::string_view bytes);

template<std::size_t size>
[[nodiscard]] QString fieldText(const std::array<char, size> &field)
{
    return fieldText(sdk::blockText(field));
}

/// Type of the devices that no name is known for; translated, since it is shown.
[[nodiscard]] QString otherDeviceType();

/// Name and model of a device, as one text for lists that have no column for each. A name that holds the
/// model, as many devices have from the factory, stands alone.
[[nodiscard]] QString deviceTitle(const QString &name, const QString &model);

/// True for a type of devices that record the channels of others, and have a name of their own beside those
/// of the channels.
[[nodiscard]] bool isRecorderType(const QString &type);

/// A version as rows show it: "v" in front, empty when it is not known.
[[nodiscard]] QString versionText(const QString &version);

/// True when the answer belongs into the list of IPv4 devices: its version is 4 and its address is set.
[[nodiscard]] bool hasIPv4Address(const sdk::SearchAnswer &answer);

/// True for a device that has its first password, and for one that does not report whether it has.
[[nodiscard]] bool isInitialised(const sdk::SearchDeviceInformation &device);

/// MAC of the device that answered: its identity.
[[nodiscard]] QString macText(const sdk::SearchAnswer &answer);

/// Begins the names of rows whose devices are identified by their UUIDs.
inline constexpr QLatin1StringView uuidPrefix("uuid:");

/// "uuid:5f5a69c2-e0ae-504f-829b-00000000000b": names the row of a device that does not report its MAC. Empty
/// if it has no UUID either.
[[nodiscard]] QString uuidName(const sdk::SearchAnswer &answer);

/// "address:port" by which operations name the device; an IPv6 address stands in brackets, as addresses with
/// colons are written beside a port (RFC 3986).
[[nodiscard]] QString addressAndPort(const sdk::SearchAnswer &answer);

/// Identifies a row in its list: the MAC, or uuidName(), or the address and port that a row with neither had
/// at first, followed by "#" and a number if there were rows of the same name before. Empty for an empty row.
[[nodiscard]] QString rowName(const QJsonObject &row);

/// The address of an IPv4 row without its port.
[[nodiscard]] QString rowAddress(const QJsonObject &row);

/// Row of an IPv4 answer, with all 17 keys.
[[nodiscard]] QJsonObject ipv4Row(const sdk::SearchAnswer &answer);

/// Row of any other answer, with the ten keys that IPv6 rows carry.
[[nodiscard]] QJsonObject ipv6Row(const sdk::SearchAnswer &answer);

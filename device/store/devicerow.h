// Device rows: one JSON object per device, keyed by the column names of the device tables.
#pragma once

#include "sdk/blocktext.h"

#include <QJsonObject>
#include <QString>

namespace sdk {
struct SearchResponse;
struct SearchDeviceInformation;
} // namespace sdk

/// Keys of a device row.
namespace DeviceRowKey {
inline constexpr QLatin1StringView checked("checked"); ///< bool: tick box of the row
inline constexpr QLatin1StringView num("num");         ///< text: row number; empty in rows of a search
inline constexpr QLatin1StringView state("state");     ///< bool: initialised
inline constexpr QLatin1StringView name("name");       ///< text: device name
inline constexpr QLatin1StringView type("type");       ///< text: device type
inline constexpr QLatin1StringView model("model");     ///< text: detailed model
inline constexpr QLatin1StringView ipport("ipport");   ///< text: "address:port"
inline constexpr QLatin1StringView mac("mac");       ///< text: MAC; empty if the device has not reported one
inline constexpr QLatin1StringView vision("vision"); ///< text: software version, "v" in front
/// Int: the LoginResult of the last address change or initialisation, -1 for none.
inline constexpr QLatin1StringView res("res");
inline constexpr QLatin1StringView operate("operate");   ///< text of the operation column; always empty
inline constexpr QLatin1StringView filepath("filepath"); ///< text: firmware file chosen for the device
inline constexpr QLatin1StringView upgrade("upgrade");   ///< int: upgrade progress in percent
/// Int: UpgradeTools::Result of the last upgrade, or of the check of "filepath".
inline constexpr QLatin1StringView upgraderes("upgraderes");
inline constexpr QLatin1StringView url("url");           ///< text: command of the last batch over HTTP
inline constexpr QLatin1StringView result("result");     ///< text: result of the last batch operation
inline constexpr QLatin1StringView httpport("httpport"); ///< int: web port, see `https`

/// Text: "upgraderes" in the user's language. Only rows with a firmware file or an upgrade have it: "result"
/// is that of other operations.
inline constexpr QLatin1StringView upgradetext("upgradetext");

// Keys of devices that were added manually, or for which the user has entered an account.
inline constexpr QLatin1StringView username("username");
inline constexpr QLatin1StringView password("password");
inline constexpr QLatin1StringView loginType("loginType");   ///< text: "IP" or "P2P"
inline constexpr QLatin1StringView devp2pPort("devp2pPort"); ///< text: port of the device behind NAT
inline constexpr QLatin1StringView https("https");           ///< bool: "httpport" is an HTTPS port

/// Int, from 1: number of earlier rows that were named by the same address and port. Only rows without a MAC
/// have it. A row without this key is the first one.
inline constexpr QLatin1StringView duplicate("duplicate");
/// Bool: the address is the new one of a failed change, and the device has not been found since.
inline constexpr QLatin1StringView unconfirmed("unconfirmed");

/// Bool: the last search has not found the device. Its row was kept, see DeviceStore::setKept(). May be
/// missing.
inline constexpr QLatin1StringView lost("lost");

/// Bool: the last login to the device succeeded. Missing before the first login.
inline constexpr QLatin1StringView loggedIn("loggedIn");

/// Text: the name of the row (see rowName()), if it is not the MAC or the address: for a device that is
/// identified by its UUID, and for a row whose MAC or address has changed. Otherwise missing.
inline constexpr QLatin1StringView identity("identity");
} // namespace DeviceRowKey

/// The string of a block field, decoded from the local 8-bit encoding. Invalid bytes become replacement
/// characters. Control characters become spaces, since a line break would break tables and the clipboard.
[[nodiscard]] QString fieldText(std::string_view bytes);

template<std::size_t size>
[[nodiscard]] QString fieldText(const std::array<char, size> &field)
{
    return fieldText(sdk::blockText(field));
}

/// The type of devices of unknown type, in the user's language.
[[nodiscard]] QString otherDeviceType();

/// Name and model of a device as one string, for lists without a column for each. The name alone if it
/// contains the model, as the factory setting of many devices does.
[[nodiscard]] QString deviceTitle(const QString &name, const QString &model);

/// Whether devices of this type record other cameras. They have a name in addition to the names of the
/// channels.
[[nodiscard]] bool isRecorderType(const QString &type);

/// The version with the prefix "v"; empty if unknown.
[[nodiscard]] QString versionText(const QString &version);

/// Whether the response belongs to the IPv4 list: its IP version is 4 and its address is not 0.0.0.0.
[[nodiscard]] bool hasIPv4Address(const sdk::SearchResponse &response);

/// Whether the device is initialised. True if it does not report that.
[[nodiscard]] bool isInitialised(const sdk::SearchDeviceInformation &device);

/// MAC of the device that responded; empty if not reported.
[[nodiscard]] QString macText(const sdk::SearchResponse &response);

/// Prefix of the names of rows whose devices are identified by their UUIDs.
inline constexpr QLatin1StringView uuidPrefix("uuid:");

/// The name of the row of a device without a MAC: "uuid:5f5a69c2-e0ae-504f-829b-00000000000b". Empty if the
/// device reports no UUID.
[[nodiscard]] QString uuidName(const sdk::SearchResponse &response);

/// The "address:port" of the device in operations. An IPv6 address is in brackets (RFC 3986).
[[nodiscard]] QString addressAndPort(const sdk::SearchResponse &response);

/// The name of a row, which identifies it in its list: its key "identity" if it has one, otherwise the MAC,
/// otherwise the address and port, followed by "#" and a number if earlier rows had the same name. Empty for
/// an empty row.
[[nodiscard]] QString rowName(const QJsonObject &row);

/// The address of an IPv4 row without its port.
[[nodiscard]] QString rowAddress(const QJsonObject &row);

/// A new row for an IPv4 response, with 17 keys.
[[nodiscard]] QJsonObject ipv4Row(const sdk::SearchResponse &response);

/// A new row for an IPv6 response, with ten keys.
[[nodiscard]] QJsonObject ipv6Row(const sdk::SearchResponse &response);

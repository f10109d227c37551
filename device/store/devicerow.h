// Device rows: one JSON object per device, keyed by the column names of the device tables.
#pragma once

#include "sdk/blocktext.h"

#include <QJsonObject>
#include <QString>

namespace sdk {
struct SearchResponse;
struct SearchDeviceInformation;
} // namespace sdk

/// Keys of a device row. Rows of the IPv4 list have the keys `checked` to `httpport`. Rows of the IPv6 list
/// have these except `num`, `mac`, `res`, `filepath`, `upgrade`, `upgraderes` and `url`. The keys after
/// `httpport` may be missing in every row.
namespace DeviceRowKey {
inline constexpr QLatin1StringView checked("checked"); ///< bool: tick box of the row; false in the store
inline constexpr QLatin1StringView num("num");         ///< text: row number; empty in rows of a search
inline constexpr QLatin1StringView state("state");     ///< bool: the device is initialised
inline constexpr QLatin1StringView name("name");       ///< text: device name
inline constexpr QLatin1StringView type("type");       ///< text: device type
inline constexpr QLatin1StringView model("model");     ///< text: detailed model
/// Text: "address:port", an IPv6 address in brackets. Of a device behind NAT it is the host's end of the
/// tunnel.
inline constexpr QLatin1StringView ipport("ipport");
inline constexpr QLatin1StringView mac("mac");       ///< text: MAC; empty if the device has not reported one
inline constexpr QLatin1StringView vision("vision"); ///< text: software version, "v" in front
/// Int: the LoginResult of the last address change or initialisation, or NetworkFailure after the tunnel to a
/// device behind NAT has broken; -1 without these.
inline constexpr QLatin1StringView res("res");
inline constexpr QLatin1StringView operate("operate");   ///< text of the operation column; always empty
inline constexpr QLatin1StringView filepath("filepath"); ///< text: firmware file chosen for the device
inline constexpr QLatin1StringView upgrade("upgrade");   ///< int: upgrade progress in percent
/// Int: UpgradeTools::Result, the state of the running upgrade, the result of the last one, or the reason
/// why `filepath` cannot be used. UpgradeTools::None (-1) without these.
inline constexpr QLatin1StringView upgraderes("upgraderes");
inline constexpr QLatin1StringView url("url"); ///< text: CGI command of the last batch of commands
/// Text: result of the last CGI command, or the settings that the last copy of encode settings left out.
inline constexpr QLatin1StringView result("result");
inline constexpr QLatin1StringView httpport("httpport"); ///< int: HTTP port, HTTPS port if `https`; 0: none

/// Text: `upgraderes` in the user's language. Missing before a firmware file is chosen or an upgrade starts.
inline constexpr QLatin1StringView upgradetext("upgradetext");

// Keys of devices that were added manually, or for which the user has entered an account.
inline constexpr QLatin1StringView username("username");   ///< text
inline constexpr QLatin1StringView password("password");   ///< text, not encrypted
inline constexpr QLatin1StringView loginType("loginType"); ///< text: added by "IP" (address) or by "P2P" ID
/// Text: the device's own service port, of a device behind NAT.
inline constexpr QLatin1StringView devp2pPort("devp2pPort");
inline constexpr QLatin1StringView https("https"); ///< bool: `httpport` is an HTTPS port

/// Int, from 1: number of earlier rows that were named by the same address and port. Only rows without a MAC
/// have it; the first row of an address and port does not.
inline constexpr QLatin1StringView duplicate("duplicate");
/// Bool: an address change to the address of this row has failed, and the device has not been found since.
inline constexpr QLatin1StringView unconfirmed("unconfirmed");

/// Bool: the last search, which may still run, has not found the device. Its row was kept because of
/// DeviceStore::setKept().
inline constexpr QLatin1StringView lost("lost");

/// Bool: the last login to the device succeeded. Missing until a login has succeeded. Logins for upgrades,
/// for the gallery and for additional live sessions, and failed logins of a search, do not change it.
inline constexpr QLatin1StringView loggedIn("loggedIn");

/// Text: the name of the row (see rowName()), if the row had another name without this key: for a device that
/// is identified by its UUID, and for a row whose MAC or address has changed since it got its name.
inline constexpr QLatin1StringView identity("identity");
} // namespace DeviceRowKey

/// The string of a block field, decoded from the local 8-bit encoding. Invalid bytes become replacement
/// characters. Control characters become spaces, since a line break would break tables and the clipboard.
[[nodiscard]] QString fieldText(std::string_view bytes);

/// Same for a block field up to its first zero byte.
template<std::size_t size>
[[nodiscard]] QString fieldText(const std::array<char, size> &field)
{
    return fieldText(sdk::blockText(field));
}

/// The value of "type" for devices of unknown type, in the user's language.
[[nodiscard]] QString otherDeviceType();

/// Name and model of a device as one string, for lists without a column for each. Only the name if it
/// contains the model, as the factory setting of many devices does. Only the model if the name is empty.
[[nodiscard]] QString deviceTitle(const QString &name, const QString &model);

/// Whether devices of this type (the value of "type") are recorders. A recorder has a device name in addition
/// to the names of its channels; the name of a camera is that of its channel.
[[nodiscard]] bool isRecorderType(const QString &type);

/// The version with the prefix "v"; empty if unknown.
[[nodiscard]] QString versionText(const QString &version);

/// Whether the response belongs to the IPv4 list: its IP version is 4 and its address is not 0.0.0.0. Other
/// responses belong to the IPv6 list.
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

/// The "ipport" of a row for the response: "address:port", an IPv6 address in brackets (RFC 3986).
[[nodiscard]] QString addressAndPort(const sdk::SearchResponse &response);

/// The name of a row, which identifies the row in its list: its "identity" if it has one, otherwise its MAC,
/// otherwise its "ipport", followed by "#" and its "duplicate" if it has one. Rows of the IPv6 list have no
/// MAC. Empty for an empty row.
[[nodiscard]] QString rowName(const QJsonObject &row);

/// The address of a row without its port. An IPv6 address keeps its brackets.
[[nodiscard]] QString rowAddress(const QJsonObject &row);

/// A new row for an IPv4 response, with the 17 keys from `checked` to `httpport`. The keys without a value in
/// the response have their initial values. A row without a MAC gets no "identity" here.
[[nodiscard]] QJsonObject ipv4Row(const sdk::SearchResponse &response);

/// A new row for an IPv6 response, with the ten keys of the IPv6 list, see DeviceRowKey.
[[nodiscard]] QJsonObject ipv6Row(const sdk::SearchResponse &response);

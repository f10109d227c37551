// Keys of the maps that models return to QML, in addition to those of DeviceRowKey.
#pragma once

#include <QString>

/// Rows of tables. `identity` names the row in its model; the other keys are columns. Values are texts unless
/// stated otherwise.
namespace RowKey {
inline constexpr QLatin1StringView identity("identity");
inline constexpr QLatin1StringView title("title");     ///< name of a device or of a work, for the user
inline constexpr QLatin1StringView time("time");       ///< "HH:mm:ss"
inline constexpr QLatin1StringView changed("changed"); ///< bool: differs from the stored value

// DeviceTableModel: the marks of the device, see FailedMarks.

/// Lines with the results of its marks, and a line if the last search did not find the device, in the user's
/// language. Empty for neither.
inline constexpr QLatin1StringView failure("failure");
/// Bool: all marks of the device are from batches that did not reach it; true without marks.
inline constexpr QLatin1StringView onlyNotDone("onlyNotDone");
/// Bool: the device is known from an earlier search, but not in the list, see KnownDevices.
inline constexpr QLatin1StringView absent("absent");

// Devices of batches, their previews and their results.
inline constexpr QLatin1StringView device("device");         ///< "address:port", or another name for the user
inline constexpr QLatin1StringView action("action");         ///< the new value, for the user
inline constexpr QLatin1StringView newAddress("newAddress"); ///< address that a batch assigns
/// Reason or warning, in the user's language. Of a favourite: the user's note.
inline constexpr QLatin1StringView note("note");
inline constexpr QLatin1StringView kind("kind");       ///< int: see BatchPreview
inline constexpr QLatin1StringView issue("issue");     ///< int: the problem of the row, see AddressPlan
inline constexpr QLatin1StringView state("state");     ///< int: see BatchResultModel
inline constexpr QLatin1StringView message("message"); ///< result in the user's language
/// Why the device is skipped, in the user's language.
inline constexpr QLatin1StringView hindrance("hindrance");

// BatchHistory
inline constexpr QLatin1StringView counts("counts"); ///< "done / total", see BatchHistory
/// Bool: the batch has ended, and no device failed or was not done.
inline constexpr QLatin1StringView complete("complete");
inline constexpr QLatin1StringView running("running"); ///< bool

// AccountList
inline constexpr QLatin1StringView account("account");         ///< the user name
inline constexpr QLatin1StringView deviceCount("deviceCount"); ///< int: devices with the account
inline constexpr QLatin1StringView isDefault("isDefault");     ///< bool

// CertificateList
inline constexpr QLatin1StringView subject("subject");         ///< of the certificate
inline constexpr QLatin1StringView validity("validity");       ///< first and last day; empty if unknown
inline constexpr QLatin1StringView fingerprint("fingerprint"); ///< of the refused certificate
inline constexpr QLatin1StringView stored("stored"); ///< fingerprint of the stored key; empty for none

// ChannelNameForm
inline constexpr QLatin1StringView saved("saved");     ///< the name on the device
inline constexpr QLatin1StringView bytes("bytes");     ///< int: length in UTF-8, without spaces at the ends
inline constexpr QLatin1StringView trouble("trouble"); ///< int: see ChannelNameForm

// WatchedDevices
inline constexpr QLatin1StringView heading("heading");     ///< of the first channel of a device
inline constexpr QLatin1StringView caption("caption");     ///< of a channel, see WatchedDevices::channels
inline constexpr QLatin1StringView companion("companion"); ///< QObject: see WatchedDevices

// FavouriteListModel
inline constexpr QLatin1StringView fileName("fileName"); ///< without the folder
inline constexpr QLatin1StringView ip("ip");             ///< address or P2P ID
inline constexpr QLatin1StringView port("port");
inline constexpr QLatin1StringView progress("progress"); ///< int: FavouriteListModel::Progress
inline constexpr QLatin1StringView cipher("cipher");     ///< encrypted password
} // namespace RowKey

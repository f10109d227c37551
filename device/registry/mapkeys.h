// Keys of the maps that the back ends exchange with QML. The keys of device rows are in devicerow.h, those of
// the configuration pages in encodekeys.h, camerakeys.h and systemkeys.h.
#pragma once

#include <QString>

/// Keys of getConfigData(), setConfigData() and getDeviceChannelData() of the current session that belong to
/// no page. Read only unless stated otherwise.
namespace SessionKey {
inline constexpr QLatin1StringView loginHandle("loginHandle"); ///< qint64: of the current session, 0 for none
/// String: "address:port", empty without a session.
inline constexpr QLatin1StringView sessionDevice("sessionDevice");
inline constexpr QLatin1StringView library("library"); ///< map with the keys of LibraryKey
/// String, read and write: name of the channel in the argument `channel` or `otype`. A read sends a request;
/// it returns null if the request fails.
inline constexpr QLatin1StringView channelName("channelName");
/// Int: the result of the last write of the name of the channel in the argument `channel`. 0 on success,
/// LoginResult::Refused, LoginResult::Upgrading, or an error of the network library if the device did not
/// respond; -1 if there was none.
inline constexpr QLatin1StringView channelNameResult("channelNameResult");
/// Write only, after the last of several names: emits signalCDeviceSetChannelNameFinished, unless no name was
/// written since the last one.
inline constexpr QLatin1StringView channelNamesSaved("channelNamesSaved");
/// Int: the combined result of the writes before the last channelNamesSaved: 0 if all succeeded, otherwise
/// the result of the last failed one, see channelNameResult; -1 if there was none.
inline constexpr QLatin1StringView channelNamesResult("channelNamesResult");
/// Of getDeviceChannelData(): list of strings. An unread name is null.
inline constexpr QLatin1StringView channelNames("channelNames");
/// Of getDeviceChannelData(): list of bool. A value is false only if the device reports that the channel has
/// no camera. It is true for a channel without a reported state, and for all channels if the request fails.
inline constexpr QLatin1StringView channelsConnected("channelsConnected");
/// Of getConfigData(): the same for all channels. A read sends a request. Empty without a session.
inline constexpr QLatin1StringView connectedChannels("connectedChannels");
} // namespace SessionKey

/// Settings of signalCDeviceSettingWritten. Those of the image page are "image.", the group (a key of
/// CameraKey), and "." with the key of CameraSetting unless that is CameraSetting::value or empty.
namespace WrittenSetting {
inline constexpr QLatin1StringView channelName("channelName");
inline constexpr QLatin1StringView encode("encode");
inline constexpr QLatin1StringView imagePrefix("image.");
} // namespace WrittenSetting

/// Capabilities of the network library. A bool states whether it has the operation.
namespace LibraryKey {
inline constexpr QLatin1StringView defaultPort("defaultPort");     ///< int: service port of most devices
inline constexpr QLatin1StringView videoStandard("videoStandard"); ///< bool
inline constexpr QLatin1StringView automaticMaintenance("automaticMaintenance"); ///< bool
inline constexpr QLatin1StringView timeServerDetails("timeServerDetails");       ///< bool
} // namespace LibraryKey

/// A channel of a device. `channel` is an int, counted from 0.
namespace ChannelKey {
inline constexpr QLatin1StringView channel("channel");
inline constexpr QLatin1StringView name("name"); ///< string
/// Bool: a camera is connected. True also if the device does not report the state of the channel.
inline constexpr QLatin1StringView connected("connected");
} // namespace ChannelKey

/// The channels of a device, as lists in the order of the channels.
namespace ChannelListKey {
inline constexpr QLatin1StringView names("names");         ///< list of strings, null if unread
inline constexpr QLatin1StringView connected("connected"); ///< list of bool, see ChannelKey::connected
} // namespace ChannelListKey

/// Properties of a device in addition to those of its row. Strings, unless stated otherwise; ports and counts
/// are int. Unknown ones are missing or empty.
namespace DeviceDetailKey {
inline constexpr QLatin1StringView loginResult("loginResult"); ///< int: a LoginResult
inline constexpr QLatin1StringView serial("serial");
inline constexpr QLatin1StringView uuid("uuid");
inline constexpr QLatin1StringView hostName("hostName");
/// Of the host, on the network of the device.
inline constexpr QLatin1StringView localAddress("localAddress");
inline constexpr QLatin1StringView address("address"); ///< of the device itself, also behind NAT
inline constexpr QLatin1StringView submask("submask");
inline constexpr QLatin1StringView gateway("gateway");
inline constexpr QLatin1StringView dhcp("dhcp"); ///< bool
inline constexpr QLatin1StringView servicePort("servicePort");
inline constexpr QLatin1StringView webPort("webPort");
inline constexpr QLatin1StringView httpsPort("httpsPort"); ///< 0: HTTPS is off
inline constexpr QLatin1StringView rtspPort("rtspPort");
inline constexpr QLatin1StringView maximumConnections("maximumConnections");
inline constexpr QLatin1StringView channelCount("channelCount");
inline constexpr QLatin1StringView connectedCount("connectedCount"); ///< int: channels with a camera
inline constexpr QLatin1StringView alarmInputs("alarmInputs");
inline constexpr QLatin1StringView disks("disks");
} // namespace DeviceDetailKey

/// The account of a device, see CDeviceBase::accountOf(). Values are strings, unless stated otherwise.
namespace AccountKey {
inline constexpr QLatin1StringView account("account");
inline constexpr QLatin1StringView password("password");
inline constexpr QLatin1StringView isStored("isStored"); ///< bool: it is the stored account of the device
/// Bool: it is the default account, or that of setFollowingAccount().
inline constexpr QLatin1StringView isDefault("isDefault");
/// Bool: see CDeviceBase::setFollowingAccount().
inline constexpr QLatin1StringView isFollowing("isFollowing");
} // namespace AccountKey

/// A device to add, see DeviceToAdd. Values are strings, unless stated otherwise.
namespace DeviceToAddKey {
inline constexpr QLatin1StringView identity("identity"); ///< text of the caller, returned with the result
inline constexpr QLatin1StringView mode("mode");         ///< int: 0 by address, 1 by P2P ID
inline constexpr QLatin1StringView address("address");   ///< or the P2P ID
inline constexpr QLatin1StringView port("port");         ///< int or its text: service port of the device
inline constexpr QLatin1StringView account("account");
inline constexpr QLatin1StringView password("password");
} // namespace DeviceToAddKey

/// The result of an operation with a device. A map has only those keys that its function states. Values are
/// strings, unless stated otherwise.
namespace ResultKey {
inline constexpr QLatin1StringView identity("identity"); ///< DeviceToAddKey::identity
inline constexpr QLatin1StringView result("result");   ///< int: a LoginResult or another code of resultName()
inline constexpr QLatin1StringView message("message"); ///< the result in the user's language
inline constexpr QLatin1StringView text("text");       ///< more than the result says, in the user's language
inline constexpr QLatin1StringView name("name");       ///< the name of a channel after it was written
} // namespace ResultKey

/// A line of a device list or an upgrade document. Values are strings, unless stated otherwise.
namespace ListLineKey {
inline constexpr QLatin1StringView line("line");       ///< int: its number in the file, from 1
inline constexpr QLatin1StringView address("address"); ///< in the line; of a document "address:port"
/// Int: a LoginResult; of a document an UpgradeTools::Result.
inline constexpr QLatin1StringView code("code");
inline constexpr QLatin1StringView reason("reason");   ///< of the code, in the user's language
inline constexpr QLatin1StringView mac("mac");         ///< name of the row of the device; empty for none
inline constexpr QLatin1StringView file("file");       ///< firmware file
inline constexpr QLatin1StringView version("version"); ///< of the firmware file; empty if unknown
inline constexpr QLatin1StringView device("device");   ///< map: the row; of upgradeDocumentReading() only
} // namespace ListLineKey

/// An upgrade document.
namespace UpgradeDocumentKey {
/// String: why the document cannot be used, in the user's language; empty if it can.
inline constexpr QLatin1StringView refusal("refusal");
inline constexpr QLatin1StringView lines("lines"); ///< list of maps with the keys of ListLineKey
} // namespace UpgradeDocumentKey

/// Progress: int, numbers of lines or devices.
namespace ProgressKey {
inline constexpr QLatin1StringView total("total");
inline constexpr QLatin1StringView done("done"); ///< finished, with or without success
} // namespace ProgressKey

/// A string of an exported list that the file format cannot keep: it differs when the file is read again.
/// Values are strings.
namespace ExportFaultKey {
inline constexpr QLatin1StringView address("address");
inline constexpr QLatin1StringView name("name");     ///< of the device
inline constexpr QLatin1StringView column("column"); ///< header of the column
inline constexpr QLatin1StringView reason("reason"); ///< in the user's language
} // namespace ExportFaultKey

// Keys of the encode page: of getConfigData() and setConfigData().
#pragma once

#include <QString>

#include <array>
#include <cstdint>
#include <optional>

/// The items of a stream, in the order in which they are read and written. An item is a set of settings that
/// the device reads and writes together.
enum class EncodeItemIndex : std::uint8_t
{
    VideoFormat,
    VideoProfile,
    AudioCompression,
    AudioFormat,
};

inline constexpr int itemsOfStream = 4; ///< number of values of EncodeItemIndex

/// Keys of the values of a stream. The keys below are those of the main stream; a key of the sub stream is
/// "sub" and the key with a capital first letter, see encodeKey(). A value whose item was not read is
/// invalid. Lists are read only: the choices of the value under them.
namespace EncodeKey {
inline constexpr QLatin1StringView allStreamType("allStreamType"); ///< list of strings: of curStreamType
inline constexpr QLatin1StringView encodeMode("encodeMode");       ///< list of strings: video compressions
/// String of encodeMode. Writing it for the sub stream sets the compression of the main stream; only the
/// profile is set for the sub stream.
inline constexpr QLatin1StringView curEncodeMode("curEncodeMode");
inline constexpr QLatin1StringView resolution("resolution");       ///< list of strings
inline constexpr QLatin1StringView curResolution("curResolution"); ///< string of resolution
/// Int: 0 constant, 1 variable bit rate.
inline constexpr QLatin1StringView bitstreamControl("bitstreamControl");
inline constexpr QLatin1StringView bitStream("bitStream"); ///< list of strings: steps, and "custom"
/// Read: int, index in bitStream, -1 if the bit rate is not a step; write: kbit/s.
inline constexpr QLatin1StringView curBitStream("curBitStream");
inline constexpr QLatin1StringView bitRate("bitRate");           ///< int: kbit/s; read only, see curBitStream
inline constexpr QLatin1StringView frameRate("frameRate");       ///< int: frames per second
inline constexpr QLatin1StringView frameRateMax("frameRateMax"); ///< int: frames per second; read only
inline constexpr QLatin1StringView quality("quality");           ///< int: 1 to 6, the best
inline constexpr QLatin1StringView audioEnable("audioEnable");   ///< int: 0 or 1
inline constexpr QLatin1StringView audioCompression("audioCompression");       ///< list of strings
inline constexpr QLatin1StringView curAudioCompression("curAudioCompression"); ///< string of audioCompression
inline constexpr QLatin1StringView samplingFrequency("samplingFrequency");     ///< list of strings: hertz
inline constexpr QLatin1StringView curSamplingFrequency("curSamplingFrequency"); ///< string: hertz
/// List of strings: settings of the stream in EncodeForm that the device does not have.
inline constexpr QLatin1StringView missingSettings("missingSettings");

// Of the sub stream only.

/// StreamKey::field of subVideoEnable; no key of getConfigData() itself.
inline constexpr QLatin1StringView videoEnable("videoEnable");
inline constexpr QLatin1StringView subVideoEnable("subVideoEnable"); ///< int: 0 or 1, the sub stream is on
/// curResolution of the sub stream; setConfigData() writes it to the device immediately, to the channel
/// curVideoChannel.
inline constexpr QLatin1StringView subCurResolution("subCurResolution");

// Keys that have no stream.

/// List of strings: the channels, counted from "1".
inline constexpr QLatin1StringView channelNum("channelNum");
inline constexpr QLatin1StringView curChannel("curChannel"); ///< int: of the encode page, from 0
/// Int: of the camera image page, from 0.
inline constexpr QLatin1StringView curVideoChannel("curVideoChannel");
/// Int: main stream of the encode page, 0 normal, 1 motion, 2 alarm.
inline constexpr QLatin1StringView curStreamType("curStreamType");
inline constexpr QLatin1StringView offeredStreamTypes("offeredStreamTypes"); ///< int: number of main streams
// An item is the int of its EncodeItemIndex, plus itemsOfStream for the sub stream.

/// List of int: items that the device accepted in the last write. Empty after a read.
inline constexpr QLatin1StringView takenItems("takenItems");
inline constexpr QLatin1StringView unreadIndexes("unreadIndexes"); ///< list of int: items that were not read
inline constexpr QLatin1StringView unreadItems("unreadItems");     ///< list of strings: names of these items
} // namespace EncodeKey

/// Settings of a stream in EncodeForm that have other names than their keys.
namespace EncodeSetting {
inline constexpr QLatin1StringView stream("stream");   ///< in missingSettings only
inline constexpr QLatin1StringView audio("audio");     ///< in missingSettings only
inline constexpr QLatin1StringView control("control"); ///< bitstreamControl
} // namespace EncodeSetting

/// A key of a stream, and the item of the stream that contains its value.
struct EncodeField
{
    QLatin1StringView key;
    /// Empty for lists and frameRateMax, which are not in an item and are read only.
    std::optional<EncodeItemIndex> item = std::nullopt;
};

/// Every key that both streams have.
inline constexpr std::array encodeFields = {
    EncodeField{EncodeKey::allStreamType},
    EncodeField{EncodeKey::encodeMode},
    EncodeField{EncodeKey::curEncodeMode, EncodeItemIndex::VideoFormat},
    EncodeField{EncodeKey::resolution},
    EncodeField{EncodeKey::curResolution, EncodeItemIndex::VideoFormat},
    EncodeField{EncodeKey::bitstreamControl, EncodeItemIndex::VideoFormat},
    EncodeField{EncodeKey::bitStream},
    EncodeField{EncodeKey::curBitStream, EncodeItemIndex::VideoFormat},
    EncodeField{EncodeKey::bitRate, EncodeItemIndex::VideoFormat},
    EncodeField{EncodeKey::frameRate, EncodeItemIndex::VideoFormat},
    EncodeField{EncodeKey::frameRateMax},
    EncodeField{EncodeKey::quality, EncodeItemIndex::VideoFormat},
    EncodeField{EncodeKey::audioEnable, EncodeItemIndex::AudioCompression},
    EncodeField{EncodeKey::audioCompression},
    EncodeField{EncodeKey::curAudioCompression, EncodeItemIndex::AudioCompression},
    EncodeField{EncodeKey::samplingFrequency},
    EncodeField{EncodeKey::curSamplingFrequency, EncodeItemIndex::AudioFormat},
    EncodeField{EncodeKey::missingSettings},
};

/// A key, split into its stream and the key of the main stream.
struct StreamKey
{
    bool isSub = false; ///< the sub stream
    QString field;      ///< the key of the main stream, see EncodeKey
};
/// Splits any text: a text that begins with "sub" and has more characters is a key of the sub stream. The
/// result need not be an existing key.
[[nodiscard]] StreamKey splitEncodeKey(const QString &key);

/// The reverse of splitEncodeKey(). `field` must not be empty.
[[nodiscard]] QString encodeKey(bool isSub, QLatin1StringView field);

/// The item that contains the value of a StreamKey::field, also of videoEnable. Empty for lists, for
/// frameRateMax and for all other texts.
[[nodiscard]] std::optional<EncodeItemIndex> encodeItemIndexOf(const QString &field);

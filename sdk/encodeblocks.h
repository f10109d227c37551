// Blocks of the encode configuration: the items of a stream, and the capabilities of a device's encoder. An
// item is a group of settings that is read and written as one block, by its number (NetGetItem, NetSetItem).
// Numbers are little-endian words of 32 bits unless their type says otherwise; those named "reserved" are not
// used. Items and capabilities have different codes of audio formats: AudioCompressionItem::format and
// EncodeCapabilityBlock::audioFormats.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace sdk {

/// The kinds of streams of a channel. Each has separate items and a separate capability block. MainNormal,
/// MainMotion and MainAlarm are the main stream usually, during motion and during an alarm.
enum class StreamKind : std::int32_t
{
    MainNormal = 0,
    MainMotion = 1,
    MainAlarm = 2,
    Sub = 3,
};

inline constexpr std::size_t streamKindCount = 4;

/// The value of the word "stream" of items for a kind: 1 to 4.
[[nodiscard]] constexpr std::int32_t streamNumber(StreamKind kind)
{
    return static_cast<std::int32_t>(kind) + 1;
}

/// Item numbers of NetGetItem and NetSetItem that belong to a stream of a channel. The caller sets the word
/// "size" to the size of the struct and the word "stream" to streamNumber(), before reading and writing.
enum class EncodeItem : std::uint32_t
{
    VideoFormat = 1100,
    VideoProfile = 1103,
    AudioCompression = 1104,
    AudioFormat = 1105,
};

/// Compression codes: 0 MPEG4, 5 MJPEG, 7 H.264, 8 H.265; others exist.
/// EncodeCapabilityBlock::compressionMask has a bit for each code.
inline constexpr std::int32_t compressionH264 = 7;

/// Codes are 0 to compressionCount - 1.
inline constexpr std::uint32_t compressionCount = 10;

/// EncodeItem::VideoFormat.
struct VideoFormatItem
{
    std::int32_t size;
    std::int32_t stream;
    std::int32_t videoEnable;    ///< 0 or 1
    std::int32_t compression;    ///< compression code, 0 to 9
    std::int32_t width;          ///< in pixels
    std::int32_t height;         ///< in pixels
    std::int32_t bitRateControl; ///< 0 fixed, 1 variable
    std::int32_t bitRate;        ///< kbit/s
    float frameRate;             ///< frames per second
    std::int32_t reserved;
    std::int32_t quality; ///< 1 (lowest) to 6 (highest)
};
static_assert(sizeof(VideoFormatItem) == 44);
static_assert(offsetof(VideoFormatItem, stream) == 4);
static_assert(offsetof(VideoFormatItem, frameRate) == 32);
static_assert(offsetof(VideoFormatItem, quality) == 40);

/// EncodeItem::VideoProfile.
struct VideoProfileItem
{
    std::int32_t size;
    std::int32_t stream;
    std::int32_t profile; ///< of H.264: 1 Baseline, 2 Main, 3 Extended, 4 High
};
static_assert(sizeof(VideoProfileItem) == 12);
static_assert(offsetof(VideoProfileItem, profile) == 8);

/// EncodeItem::AudioCompression. It is the only item whose word "stream" is not the second word.
struct AudioCompressionItem
{
    std::int32_t size;
    std::int32_t audioEnable; ///< 0 or 1
    std::int32_t stream;
    std::int32_t format; ///< 1 G.711 A-law, 2 PCM, 3 G.711 u-law, 5 AAC, 6 G.726; others exist
};
static_assert(sizeof(AudioCompressionItem) == 16);
static_assert(offsetof(AudioCompressionItem, stream) == 8);

/// EncodeItem::AudioFormat.
struct AudioFormatItem
{
    std::int32_t size;
    std::int32_t stream;
    std::int32_t reserved1;
    std::int32_t samplingFrequency; ///< Hz
    std::array<std::int32_t, 3> reserved2;
};
static_assert(sizeof(AudioFormatItem) == 28);
static_assert(offsetof(AudioFormatItem, samplingFrequency) == 12);

/// The size of a frame in pixels.
struct FrameSize
{
    std::uint16_t width;
    std::uint16_t height;
};
static_assert(sizeof(FrameSize) == 4);

inline constexpr std::size_t maximumFrameSizes = 64;

/// A list of frame sizes in a block. `count` comes from a device and is not checked: its user must limit it
/// to maximumFrameSizes.
struct FrameSizeList
{
    std::uint32_t count; ///< used entries of `sizes`
    std::array<FrameSize, maximumFrameSizes> sizes;
};
static_assert(sizeof(FrameSizeList) == 260);

/// Features of a stream that a device may lack. Bit numbers of EncodeCapabilityBlock::missingValues. The
/// comments state the meaning of a set bit.
enum class EncodeValue : std::uint32_t
{
    Stream = 0,     ///< the device has no stream of this kind
    StreamSwitch,   ///< the stream cannot be switched on and off
    BitRateControl, ///< there is no choice between a fixed and a variable bit rate
    Audio,          ///< the stream never has sound
    AudioSwitch,    ///< sound cannot be switched on and off
};

/// A supported sampling frequency of an audio format. A format with several frequencies has several entries.
struct AudioRate
{
    std::int32_t format;    ///< as in EncodeCapabilityBlock::audioFormats
    std::int32_t frequency; ///< Hz
};
static_assert(sizeof(AudioRate) == 8);

inline constexpr std::size_t maximumAudioRates = 24;

/// The capabilities of the encoder for one kind of stream. The counts come from a device and are not checked:
/// their users must limit them to the sizes of the arrays.
struct EncodeCapabilityBlock
{
    std::uint32_t size;                    ///< sizeof(EncodeCapabilityBlock), set by the caller
    std::uint32_t compressionMask;         ///< bit N is set if the device supports compression code N
    std::int32_t sizesDependOnCompression; ///< if not 0, `sizesByCompression` is used instead of `sizes`
    std::int32_t minimumBitRate;           ///< kbit/s
    std::int32_t maximumBitRate;           ///< kbit/s; may depend on the size in EncodeCapabilityInput::text
    std::int32_t maximumFrameRate;         ///< frames per second
    std::uint32_t profileCount;            ///< used entries of `profiles`
    std::array<std::int32_t, 8> profiles;  ///< as VideoProfileItem::profile; entries of 0 are ignored
    std::uint32_t audioFormatCount;        ///< used entries of `audioFormats`
    /// 1 PCM, 2 G.711 A-law, 4 G.711 u-law, 5 G.726, 8 AAC; others exist.
    std::array<std::int32_t, 64> audioFormats;
    FrameSizeList sizes;
    std::array<FrameSizeList, 16> sizesByCompression; ///< indexed by compression code
    std::uint32_t missingValues;  ///< EncodeValue: bit N is set if the device lacks the value
    std::uint32_t audioRateCount; ///< used entries of `audioRates`; 0 if the device reports no frequencies
    std::array<AudioRate, maximumAudioRates> audioRates;
    std::array<std::uint8_t, 36> reserved;
};
static_assert(sizeof(EncodeCapabilityBlock) == 4976);
static_assert(offsetof(EncodeCapabilityBlock, missingValues) == 4740);
static_assert(offsetof(EncodeCapabilityBlock, sizes) == 320);

/// Output of CapabilityQuery::Encode. The first streamKindCount blocks are indexed by StreamKind, the others
/// are reserved. The caller sets the size of every block as well.
struct EncodeCapabilities
{
    std::uint32_t size; ///< sizeof(EncodeCapabilities), set by the caller
    std::array<std::uint32_t, 3> reserved;
    std::array<EncodeCapabilityBlock, 8> blocks;
};
static_assert(sizeof(EncodeCapabilities) == 39824);
static_assert(offsetof(EncodeCapabilities, blocks) == 16);

/// Input of CapabilityQuery::Encode.
struct EncodeCapabilityInput
{
    std::uint32_t size; ///< sizeof(EncodeCapabilityInput)
    std::uint32_t reserved1;
    std::int32_t channel; ///< from 0
    std::uint32_t reserved2;
    const char *text; ///< configuration text "Encode", ended by a zero: capabilities may depend on it
};
static_assert(sizeof(EncodeCapabilityInput) == 24);
static_assert(offsetof(EncodeCapabilityInput, channel) == 8);
static_assert(offsetof(EncodeCapabilityInput, text) == 16);

/// One stream in EncodeRecord. The values have the meanings and units of the item words with the same names.
struct EncodeStreamRecord
{
    std::int32_t videoEnabled; ///< 0 or 1
    std::int32_t compression;
    std::int32_t profile; ///< as VideoProfileItem::profile; 0 if not reported
    std::int32_t width;
    std::int32_t height;
    std::int32_t bitRateControl;
    std::int32_t bitRate;
    std::int32_t frameRate; ///< frames per second, whole
    std::int32_t quality;
    std::int32_t audioEnabled; ///< 0 or 1
    std::int32_t audioFormat;  ///< as AudioCompressionItem::format
    std::int32_t samplingFrequency;
    std::array<std::int32_t, 4> reserved;
};
static_assert(sizeof(EncodeStreamRecord) == 64);

/// Configuration "Encode": the streams of a channel.
struct EncodeRecord
{
    std::uint32_t size; ///< sizeof(EncodeRecord)
    std::int32_t reserved1;
    std::array<EncodeStreamRecord, streamKindCount> streams; ///< indexed by StreamKind
    std::array<std::uint8_t, 2568> reserved2;
};
static_assert(sizeof(EncodeRecord) == 2832);
static_assert(offsetof(EncodeRecord, streams) == 8);

} // namespace sdk

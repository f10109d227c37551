#include "sdk/demo/device/streamsettings.h"

#include "sdk/demo/device/channelitems.h"
#include "sdk/encodeblocks.h"

#include <cstring>

namespace sdk::demo {

namespace {

constexpr std::int32_t compressionMotionJpeg = 5;
constexpr std::int32_t compressionH265 = 8;

template<typename Item>
std::optional<Item> itemOf(const SceneDevice &device, EncodeItem number, std::int32_t channel,
                           StreamKind kind)
{
    const ItemKey itemKey = {static_cast<std::uint32_t>(number), channel, streamNumber(kind)};
    const std::optional<QByteArray> block = channelItem(device, itemKey);
    if (!block || block->size() != sizeof(Item))
        return std::nullopt;
    Item item;
    std::memcpy(&item, block->constData(), sizeof(item));
    return item;
}

/// The old and rare compressions (MPEG4, H263, SVAC and the like) are streamed as H.264 in the configured
/// size and rate: decoders need not support them.
StreamCodec codecOf(std::int32_t compression)
{
    switch (compression) {
    case compressionMotionJpeg:
        return StreamCodec::MotionJpeg;
    case compressionH265:
        return StreamCodec::H265;
    default:
        return StreamCodec::H264;
    }
}

/// By the numbers of configurations; other formats are not streamed.
SoundCodec soundCodecOf(const AudioCompressionItem &item)
{
    constexpr std::int32_t g711a = 1;
    constexpr std::int32_t pcm = 2;
    constexpr std::int32_t g711u = 3;
    constexpr std::int32_t aac = 5;
    if (item.audioEnable == 0)
        return SoundCodec::None;
    switch (item.format) {
    case g711a:
        return SoundCodec::G711A;
    case pcm:
        return SoundCodec::Pcm;
    case g711u:
        return SoundCodec::G711Mu;
    case aac:
        return SoundCodec::Aac;
    default:
        return SoundCodec::None;
    }
}

void takeSound(StreamSettings &settings, const SceneDevice &device, std::int32_t channel, StreamKind kind)
{
    const auto compression =
        itemOf<AudioCompressionItem>(device, EncodeItem::AudioCompression, channel, kind);
    const auto format = itemOf<AudioFormatItem>(device, EncodeItem::AudioFormat, channel, kind);
    if (!compression || !format || soundCodecOf(*compression) == SoundCodec::None)
        return;
    constexpr int usualFrequency = 8000;
    constexpr int highestFrequency = 48000;
    const int frequency = format->samplingFrequency == 0 ? usualFrequency : format->samplingFrequency;
    settings.sound = soundCodecOf(*compression);
    settings.samplingFrequency = std::clamp(frequency, usualFrequency, highestFrequency);
}

} // namespace

std::optional<StreamSettings> streamSettings(const SceneDevice &device, std::int32_t channel,
                                             LiveStreamKind kind)
{
    if (kind != LiveStreamKind::Main && kind != LiveStreamKind::Sub)
        return std::nullopt;
    const StreamKind stream = kind == LiveStreamKind::Sub ? StreamKind::Sub : StreamKind::MainNormal;
    const auto video = itemOf<VideoFormatItem>(device, EncodeItem::VideoFormat, channel, stream);
    constexpr int smallestSide = 64;
    constexpr int largestSide = 8192;
    const auto isSide = [](std::int32_t side) {
        return side >= smallestSide && side <= largestSide;
    };
    if (!video || video->videoEnable == 0 || !isSide(video->width) || !isSide(video->height))
        return std::nullopt;
    constexpr float highestRate = 60;
    constexpr int lowestBitRate = 16;
    constexpr int highestBitRate = 65536;
    StreamSettings settings;
    settings.codec = codecOf(video->compression);
    settings.width = video->width / 2 * 2;
    settings.height = video->height / 2 * 2;
    settings.frameRate = static_cast<double>(std::clamp(video->frameRate, 1.0F, highestRate));
    settings.bitRate = std::clamp(video->bitRate, lowestBitRate, highestBitRate);
    takeSound(settings, device, channel, stream);
    return settings;
}

} // namespace sdk::demo

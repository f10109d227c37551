#include "sdk/demo/device/channelitems.h"

#include "sdk/camerablocks.h"
#include "sdk/configtext/configtext.h"
#include "sdk/demo/device/cameraabilities.h"
#include "sdk/demo/device/encodeabilities.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace sdk::demo {

namespace {

constexpr std::array configurations = {"Encode", "VideoColor", "Lighting_V2"};

template<typename Block>
Block blockOf(const QByteArray &bytes)
{
    Block block = {};
    std::memcpy(&block, bytes.constData(),
                std::min<std::size_t>(sizeof(block), static_cast<std::size_t>(bytes.size())));
    return block;
}

template<typename Block>
QByteArray bytesOf(const Block &block)
{
    return {reinterpret_cast<const char *>(&block), sizeof(block)};
}

std::string_view recordView(const QByteArray &bytes)
{
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

/// A device without a list of channels has one channel.
bool hasChannel(const SceneDevice &device, std::int32_t channel)
{
    if (device.channels.isEmpty())
        return channel == 0;
    return channel >= 0 && channel < device.channels.size() && device.channels.at(channel).connected;
}

std::optional<QByteArray> usualEncodeItem(const SceneDevice &device, const ItemKey &itemKey)
{
    if (itemKey.selector < 1 || itemKey.selector > static_cast<std::int32_t>(streamKindCount))
        return std::nullopt;
    const auto kind = static_cast<StreamKind>(itemKey.selector - 1);
    switch (static_cast<EncodeItem>(itemKey.item)) {
    case EncodeItem::VideoFormat:
        return bytesOf(usualVideoFormat(device, kind));
    case EncodeItem::VideoProfile:
        return bytesOf(usualVideoProfile(device, kind));
    case EncodeItem::AudioCompression:
        return bytesOf(usualAudioCompression(device, kind));
    case EncodeItem::AudioFormat:
        return bytesOf(usualAudioFormat(device, kind));
    }
    return std::nullopt;
}

template<typename Item>
Item itemOf(const SceneDevice &device, auto number, std::int32_t channel, std::int32_t selector)
{
    const ItemKey itemKey = {static_cast<std::uint32_t>(number), channel, selector};
    return blockOf<Item>(channelItem(device, itemKey).value_or(QByteArray()));
}

EncodeRecord encodeRecord(const SceneDevice &device, std::int32_t channel)
{
    EncodeRecord record = {};
    record.size = sizeof(record);
    for (std::size_t index = 0; index < streamKindCount; ++index) {
        const std::int32_t stream = streamNumber(static_cast<StreamKind>(index));
        const auto video = itemOf<VideoFormatItem>(device, EncodeItem::VideoFormat, channel, stream);
        const auto profile = itemOf<VideoProfileItem>(device, EncodeItem::VideoProfile, channel, stream);
        const auto audio =
            itemOf<AudioCompressionItem>(device, EncodeItem::AudioCompression, channel, stream);
        const auto format = itemOf<AudioFormatItem>(device, EncodeItem::AudioFormat, channel, stream);
        record.streams[index] = {video.videoEnable,
                                 video.compression,
                                 profile.profile,
                                 video.width,
                                 video.height,
                                 video.bitRateControl,
                                 video.bitRate,
                                 static_cast<std::int32_t>(video.frameRate),
                                 video.quality,
                                 audio.audioEnable,
                                 audio.format,
                                 format.samplingFrequency,
                                 {}};
    }
    return record;
}

/// A record whose entries are the items of a channel by mode.
template<typename Record, typename Item>
Record recordOfModes(const SceneDevice &device, CameraItem item, std::int32_t channel,
                     Item *entries(Record &))
{
    Record record = {};
    record.size = sizeof(record);
    for (std::size_t mode = 0; mode < cameraModeCount; ++mode)
        entries(record)[mode] = itemOf<Item>(device, item, channel, static_cast<std::int32_t>(mode));
    return record;
}

/// The reverse.
template<typename Item>
void takeModes(SceneDevice &device, CameraItem item, std::int32_t channel, Item *entries)
{
    for (std::size_t mode = 0; mode < cameraModeCount; ++mode) {
        entries[mode].size = sizeof(Item);
        entries[mode].mode = static_cast<std::int32_t>(mode);
        device.channelSettings.insert({static_cast<std::uint32_t>(item), channel, entries[mode].mode},
                                      bytesOf(entries[mode]));
    }
}

VideoColorRecord colorRecord(const SceneDevice &device, std::int32_t channel)
{
    return recordOfModes<VideoColorRecord, PictureItem>(
        device, CameraItem::Picture, channel,
        [](VideoColorRecord &record) { return record.pictures.data(); });
}

LightingRecord lightingRecord(const SceneDevice &device, std::int32_t channel)
{
    return recordOfModes<LightingRecord, MixedLightItem>(
        device, CameraItem::MixedLight, channel, [](LightingRecord &record) { return record.lights.data(); });
}

/// By the capabilities of its encoder; for an item of a camera by its faults only.
bool takesItem(const SceneDevice &device, const ItemKey &itemKey, const QByteArray &block)
{
    switch (static_cast<EncodeItem>(itemKey.item)) {
    case EncodeItem::VideoFormat:
        return takes(device, blockOf<VideoFormatItem>(block));
    case EncodeItem::VideoProfile:
        return takes(device, blockOf<VideoProfileItem>(block));
    case EncodeItem::AudioCompression:
        return takes(device, blockOf<AudioCompressionItem>(block));
    case EncodeItem::AudioFormat:
        return takes(device, blockOf<AudioFormatItem>(block));
    }
    const std::optional<FaultSetting> refusal = device.fault(Fault::RefusesItem);
    return !refusal || refusal->number != static_cast<int>(itemKey.item);
}

} // namespace

std::optional<QByteArray> channelItem(const SceneDevice &device, const ItemKey &itemKey)
{
    if (!hasChannel(device, itemKey.channel))
        return std::nullopt;
    const auto written = device.channelSettings.constFind(itemKey);
    if (written != device.channelSettings.constEnd())
        return *written;
    const std::optional<QByteArray> encode = usualEncodeItem(device, itemKey);
    return encode ? encode : usualCameraItem(device, itemKey);
}

NetError setChannelItem(SceneDevice &device, const ItemKey &itemKey, const QByteArray &block)
{
    // An item that cannot be read cannot be written.
    if (!channelItem(device, itemKey) || !takesItem(device, itemKey, block))
        return NetError::NotSupported;
    device.channelSettings.insert(itemKey, block);
    return NetError::None;
}

bool isChannelConfiguration(const QString &name)
{
    return std::any_of(configurations.begin(), configurations.end(),
                       [&name](const char *known) { return name == QLatin1String(known); });
}

std::optional<QByteArray> channelText(const SceneDevice &device, const QString &name, std::int32_t channel)
{
    const auto has = [&](CameraItem item) {
        return channelItem(device, {static_cast<std::uint32_t>(item), channel, 0}).has_value();
    };
    if (!hasChannel(device, channel))
        return std::nullopt;
    if (name == QLatin1String("Encode")) {
        const EncodeRecord record = encodeRecord(device, channel);
        return packConfigText("Encode", &record, sizeof(record));
    }
    if (name == QLatin1String("VideoColor") && has(CameraItem::Picture)) {
        const VideoColorRecord record = colorRecord(device, channel);
        return packConfigText("VideoColor", &record, sizeof(record));
    }
    if (name == QLatin1String("Lighting_V2") && has(CameraItem::MixedLight)) {
        const LightingRecord record = lightingRecord(device, channel);
        return packConfigText("Lighting_V2", &record, sizeof(record));
    }
    return std::nullopt;
}

NetError setChannelText(SceneDevice &device, const QString &name, std::int32_t channel,
                        const QByteArray &text)
{
    const std::optional<FaultSetting> refusal = device.fault(Fault::RefusesConfiguration);
    if ((refusal && refusal->text == name) || !channelText(device, name, channel))
        return NetError::NotSupported;
    if (name == QLatin1String("VideoColor")) {
        VideoColorRecord record = colorRecord(device, channel);
        if (!unpackConfigText("VideoColor", recordView(text), &record, sizeof(record)))
            return NetError::NotSupported;
        takeModes(device, CameraItem::Picture, channel, record.pictures.data());
        return NetError::None;
    }
    if (name == QLatin1String("Lighting_V2")) {
        LightingRecord record = lightingRecord(device, channel);
        if (!unpackConfigText("Lighting_V2", recordView(text), &record, sizeof(record)))
            return NetError::NotSupported;
        takeModes(device, CameraItem::MixedLight, channel, record.lights.data());
        return NetError::None;
    }
    return NetError::NotSupported;
}

NetError fillEncodeCapabilities(const SceneDevice &device, std::int32_t channel, const QByteArray &text,
                                EncodeCapabilities &capabilities)
{
    EncodeRecord settings = encodeRecord(device, channel);
    if (!hasChannel(device, channel) ||
        !unpackConfigText("Encode", recordView(text), &settings, sizeof(settings)))
        return NetError::NotSupported;
    for (std::size_t index = 0; index < streamKindCount; ++index) {
        capabilities.blocks[index] =
            capabilityBlock(device, static_cast<StreamKind>(index), settings.streams[index]);
    }
    return NetError::None;
}

} // namespace sdk::demo

#include "site/services/encodesettings.h"

#include "sdk/demo/device/channelitems.h"
#include "site/services/servicestate.h"

#include <array>
#include <cmath>
#include <cstring>

using namespace sdk::demo;
using namespace Qt::StringLiterals;

namespace site {

namespace {

constexpr std::array codecs = {
    CodecName{7, "H264", "H264"},
    CodecName{8, "", "H265"},
    CodecName{5, "JPEG", "JPEG"},
    CodecName{0, "MPEG4", "MPV4-ES"},
};

constexpr std::array<std::string_view, 5> profileNames = {"", "Baseline", "Main", "Extended", "High"};

template<typename Item>
ItemKey keyOfItem(sdk::EncodeItem item, const MediaStream &stream)
{
    return {static_cast<std::uint32_t>(item), stream.channel, sdk::streamNumber(stream.encodeKind())};
}

template<typename Item>
bool read(const SceneDevice &device, sdk::EncodeItem number, const MediaStream &stream, Item &item)
{
    const std::optional<FaultSetting> withheld = device.fault(Fault::WithholdsItem);
    const std::optional<QByteArray> block = channelItem(device, keyOfItem<Item>(number, stream));
    if (!block || block->size() != sizeof(Item) || (withheld && withheld->number == static_cast<int>(number)))
        return false;
    std::memcpy(&item, block->constData(), sizeof(item));
    return true;
}

template<typename Item>
sdk::NetError write(SceneDevice &device, sdk::EncodeItem number, const MediaStream &stream, const Item &item)
{
    const QByteArray block(reinterpret_cast<const char *>(&item), sizeof(item));
    const ItemKey itemKey = keyOfItem<Item>(number, stream);
    return channelItem(device, itemKey) == block ? sdk::NetError::None
                                                 : setChannelItem(device, itemKey, block);
}

QString keyDistanceKey(const MediaStream &stream)
{
    return u"keyFrameInterval"_s + tokenOf(MediaObject::VideoEncoder, stream);
}

bool knows(const StreamAbilities &abilities, int compression)
{
    return abilities.compressions.contains(compression);
}

} // namespace

std::string_view mediaCodec(int compression)
{
    for (const CodecName &codec : codecs) {
        if (codec.compression == compression)
            return codec.media;
    }
    return "MPEG4"; // the old and rare ones
}

std::string_view media2Codec(int compression)
{
    for (const CodecName &codec : codecs) {
        if (codec.compression == compression)
            return codec.media2;
    }
    return "MPV4-ES";
}

std::optional<int> compressionOfMedia(const StreamAbilities &abilities, const QString &name)
{
    for (const CodecName &codec : codecs) {
        if (!codec.media.empty() && name.toStdString() == codec.media && knows(abilities, codec.compression))
            return codec.compression;
    }
    return std::nullopt;
}

std::optional<int> compressionOfMedia2(const StreamAbilities &abilities, const QString &name)
{
    for (const CodecName &codec : codecs) {
        if (name.toStdString() == codec.media2 && knows(abilities, codec.compression))
            return codec.compression;
    }
    return std::nullopt;
}

std::string_view profileName(int profile)
{
    const bool isKnown = profile > 0 && profile < static_cast<int>(profileNames.size());
    return profileNames[isKnown ? static_cast<std::size_t>(profile) : 2];
}

std::optional<int> profileNamed(const QString &name)
{
    for (std::size_t profile = 1; profile < profileNames.size(); ++profile) {
        if (name.toStdString() == profileNames[profile])
            return static_cast<int>(profile);
    }
    return std::nullopt;
}

std::string_view mediaSound(int format)
{
    constexpr int aac = 5;
    return format == aac ? "AAC" : "G711";
}

std::string_view media2Sound(int format)
{
    switch (format) {
    case 1:
        return "PCMA";
    case 2:
        return "L16";
    case 5:
        return "MP4A-LATM";
    default:
        return "PCMU";
    }
}

std::optional<EncodeSettings> encodeSettings(const SceneDevice &device, const MediaStream &stream)
{
    EncodeSettings settings = {};
    if (!read(device, sdk::EncodeItem::VideoFormat, stream, settings.video) ||
        !read(device, sdk::EncodeItem::VideoProfile, stream, settings.profile) ||
        !read(device, sdk::EncodeItem::AudioCompression, stream, settings.sound) ||
        !read(device, sdk::EncodeItem::AudioFormat, stream, settings.soundFormat))
        return std::nullopt;
    const int usualDistance = 2 * static_cast<int>(std::lround(settings.video.frameRate));
    settings.keyFrameInterval = serviceState(device, keyDistanceKey(stream)).toInt(usualDistance);
    return settings;
}

sdk::NetError takeEncodeSettings(const ServiceCall &call, const MediaStream &stream,
                                 const EncodeSettings &settings)
{
    return call.change([&](SceneDevice &device) {
        const ChannelSettings before = device.channelSettings;
        sdk::NetError error = write(device, sdk::EncodeItem::VideoFormat, stream, settings.video);
        if (error == sdk::NetError::None)
            error = write(device, sdk::EncodeItem::VideoProfile, stream, settings.profile);
        if (error == sdk::NetError::None)
            error = write(device, sdk::EncodeItem::AudioCompression, stream, settings.sound);
        if (error == sdk::NetError::None)
            error = write(device, sdk::EncodeItem::AudioFormat, stream, settings.soundFormat);
        if (error == sdk::NetError::None)
            setServiceState(device, keyDistanceKey(stream), settings.keyFrameInterval);
        else
            device.channelSettings = before;
        return error;
    });
}

QList<int> soundFormats(const SceneDevice &device, const MediaStream &stream)
{
    QList<int> formats;
    for (int format = 1; format <= 5; ++format) {
        const sdk::AudioCompressionItem item = {sizeof(item), 1, sdk::streamNumber(stream.encodeKind()),
                                                format};
        if (takes(device, item))
            formats.append(format);
    }
    return formats;
}

} // namespace site

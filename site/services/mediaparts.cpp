#include "site/services/mediaparts.h"

#include "sdk/blocktext.h"
#include "sdk/camerablocks.h"
#include "sdk/demo/device/channelitems.h"
#include "site/deviceidentity.h"
#include "site/rtsp/keyframes.h"

#include <cstring>

using namespace sdk::demo;
using namespace Qt::StringLiterals;

namespace site {

ServiceResult noSuchProfile()
{
    return SoapFault::invalid("ter:NoProfile", u"The profile is unknown"_s);
}

ServiceResult noSuchConfiguration()
{
    return SoapFault::invalid("ter:NoConfig", u"The configuration is unknown"_s);
}

ServiceResult refusedSettings()
{
    return SoapFault::invalid("ter:ConfigModify", u"The device refuses these settings"_s);
}

void writeRange(XmlElement parent, const char *name, double minimum, double maximum)
{
    XmlElement range = parent.add(name);
    range.add("tt:Min", minimum);
    range.add("tt:Max", maximum);
}

sdk::FrameSize largestSize(const SceneDevice &device)
{
    const StreamAbilities abilities = streamAbilities(device, sdk::StreamKind::MainNormal);
    sdk::FrameSize largest = {};
    for (const int compression : abilities.compressions) {
        for (const sdk::FrameSize size : abilities.sizesOf(compression)) {
            if (size.width * size.height > largest.width * largest.height)
                largest = size;
        }
    }
    return largest;
}

QString channelName(const SceneDevice &device, int channel)
{
    const std::optional<QByteArray> block =
        channelItem(device, {static_cast<std::uint32_t>(sdk::CameraItem::ChannelName), channel, 0});
    sdk::ChannelNameItem item = {};
    if (block && block->size() == sizeof(item))
        std::memcpy(&item, block->constData(), sizeof(item));
    return QString::fromStdString(std::string(sdk::blockText(item.name)));
}

QString profileTitle(const SceneDevice &device, const MediaStream &stream)
{
    return channelName(device, stream.channel) +
           (stream.kind == sdk::LiveStreamKind::Sub ? u" sub"_s : u" main"_s);
}

void writeVideoSourceConfiguration(XmlElement element, const ServiceCall &call, int channel)
{
    const sdk::FrameSize size = largestSize(call.device);
    element.attribute("token", videoSourceConfigurationToken(channel));
    element.add("tt:Name", channelName(call.device, channel));
    element.add("tt:UseCount", 2);
    element.add("tt:SourceToken", videoSourceToken(channel));
    element.add("tt:Bounds")
        .attribute("x", 0)
        .attribute("y", 0)
        .attribute("width", size.width)
        .attribute("height", size.height);
}

void writeAudioSourceConfiguration(XmlElement element, const ServiceCall &call, int channel)
{
    element.attribute("token", audioSourceConfigurationToken(channel));
    element.add("tt:Name", channelName(call.device, channel));
    element.add("tt:UseCount", 2);
    element.add("tt:SourceToken", audioSourceToken(channel));
}

bool hasSound(const SceneDevice &device, const MediaStream &stream)
{
    const std::optional<EncodeSettings> settings = encodeSettings(device, stream);
    return settings && settings->sound.audioEnable != 0;
}

sdk::NetError switchSound(const ServiceCall &call, const MediaStream &stream, bool isOn)
{
    std::optional<EncodeSettings> settings = encodeSettings(call.device, stream);
    if (!settings)
        return sdk::NetError::NotSupported;
    settings->sound.audioEnable = isOn ? 1 : 0;
    return takeEncodeSettings(call, stream, *settings);
}

QString streamUri(const ServiceCall &call, const MediaStream &stream)
{
    QString root = serviceRoot(call.receiver.address, 80);
    root.replace(0, 4, u"rtsp"_s);
    return root + u":%1"_s.arg(rtspPort) + pathOf(stream);
}

QString snapshotUri(const ServiceCall &call, const MediaStream &stream)
{
    if (call.device.httpPort == 0)
        return {};
    return call.root() + u"/cgi-bin/snapshot?channel=%1"_s.arg(stream.channel + 1);
}

void writeMulticast(XmlElement parent)
{
    XmlElement multicast = parent.add("tt:Multicast");
    XmlElement address = multicast.add("tt:Address");
    address.add("tt:Type", "IPv4");
    address.add("tt:IPv4Address", "0.0.0.0");
    multicast.add("tt:Port", 0);
    multicast.add("tt:TTL", 0);
    multicast.add("tt:AutoStart", false);
}

ServiceResult requestKeyFrame(ServiceCall &call, const char *profileToken)
{
    const std::optional<MediaStream> stream =
        streamOf(call.device, MediaObject::Profile, textAt(call.request, profileToken).value_or(QString()));
    if (!stream)
        return noSuchProfile();
    call.context.keyFrames.request(call.device.mac, *stream);
    return std::nullopt;
}

} // namespace site

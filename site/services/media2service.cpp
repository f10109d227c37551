// The operations of the second media service.
#include "site/services/encodesettings.h"
#include "site/services/mediaparts.h"
#include "site/services/mediavideooptions.h"
#include "site/services/services.h"

#include <array>
#include <cmath>

using namespace sdk::demo;
using namespace Qt::StringLiterals;

namespace site {

namespace {

constexpr int aacFormat = 5;

/// The streams of a request for configurations: the requested one, or all. Nothing for an unknown one.
std::optional<QList<MediaStream>> requestedStreams(const ServiceCall &call, MediaObject object)
{
    const QString configuration = textAt(call.request, "tr2:ConfigurationToken").value_or(QString());
    const QString profile = textAt(call.request, "tr2:ProfileToken").value_or(QString());
    if (configuration.isEmpty() && profile.isEmpty())
        return streamsOf(call.device);
    const std::optional<MediaStream> stream = configuration.isEmpty()
                                                  ? streamOf(call.device, MediaObject::Profile, profile)
                                                  : streamOf(call.device, object, configuration);
    return stream ? std::optional(QList<MediaStream>{*stream}) : std::nullopt;
}

std::optional<MediaStream> askedProfile(const ServiceCall &call)
{
    return streamOf(call.device, MediaObject::Profile,
                    textAt(call.request, "tr2:ProfileToken").value_or(QString()));
}

void writeVideoEncoder(XmlElement element, const ServiceCall &call, const MediaStream &stream,
                       const EncodeSettings &settings)
{
    element.attribute("token", tokenOf(MediaObject::VideoEncoder, stream));
    element.attribute("GovLength", settings.keyFrameInterval);
    if (settings.video.compression == sdk::compressionH264)
        element.attribute("Profile", profileName(settings.profile.profile));
    element.add("tt:Name", profileTitle(call.device, stream));
    element.add("tt:UseCount", 1);
    element.add("tt:Encoding", media2Codec(settings.video.compression));
    XmlElement size = element.add("tt:Resolution");
    size.add("tt:Width", settings.video.width);
    size.add("tt:Height", settings.video.height);
    XmlElement rate = element.add("tt:RateControl");
    rate.attribute("ConstantBitRate", settings.video.bitRateControl == 0);
    rate.add("tt:FrameRateLimit", static_cast<double>(settings.video.frameRate));
    rate.add("tt:BitrateLimit", settings.video.bitRate);
    element.add("tt:Quality", settings.video.quality);
}

void writeAudioEncoder(XmlElement element, const ServiceCall &call, const MediaStream &stream,
                       const EncodeSettings &settings)
{
    element.attribute("token", tokenOf(MediaObject::AudioEncoder, stream));
    element.add("tt:Name", profileTitle(call.device, stream));
    element.add("tt:UseCount", settings.sound.audioEnable != 0 ? 1 : 0);
    element.add("tt:Encoding", media2Sound(settings.sound.format));
    element.add("tt:Bitrate", settings.sound.format == aacFormat ? 32 : 64);
    element.add("tt:SampleRate", settings.soundFormat.samplingFrequency / 1000);
}

ServiceResult getServiceCapabilities(ServiceCall &call)
{
    XmlElement capabilities = call.response.add("tr2:Capabilities");
    capabilities.attribute("SnapshotUri", call.device.httpPort != 0).attribute("Rotation", false);
    capabilities.add("tr2:ProfileCapabilities")
        .attribute("MaximumNumberOfProfiles", static_cast<int>(streamsOf(call.device).size()))
        .attribute("ConfigurationsSupported", "VideoSource VideoEncoder AudioSource AudioEncoder");
    capabilities.add("tr2:StreamingCapabilities")
        .attribute("RTSPStreaming", true)
        .attribute("RTPMulticast", false)
        .attribute("RTP_RTSP_TCP", true);
    return std::nullopt;
}

ServiceResult getProfiles(ServiceCall &call)
{
    const QString token = textAt(call.request, "tr2:Token").value_or(QString());
    QStringList types;
    for (const pugi::xml_node element : call.request.children()) {
        if (isNamed(element, "tr2:Type"))
            types.append(textOf(element).trimmed());
    }
    const auto isRequested = [&types](const char *type) {
        return types.contains(u"All"_s) || types.contains(QLatin1String(type));
    };
    const QList<MediaStream> streams = streamsOf(call.device);
    bool isKnown = token.isEmpty();
    for (const MediaStream &stream : streams) {
        if (!token.isEmpty() && token != tokenOf(MediaObject::Profile, stream))
            continue;
        isKnown = true;
        const std::optional<EncodeSettings> settings = encodeSettings(call.device, stream);
        XmlElement profile = call.response.add("tr2:Profiles");
        profile.attribute("token", tokenOf(MediaObject::Profile, stream)).attribute("fixed", true);
        profile.add("tr2:Name", profileTitle(call.device, stream));
        if (types.isEmpty())
            continue;
        XmlElement set = profile.add("tr2:Configurations");
        if (isRequested("VideoSource"))
            writeVideoSourceConfiguration(set.add("tr2:VideoSource"), call, stream.channel);
        if (isRequested("AudioSource"))
            writeAudioSourceConfiguration(set.add("tr2:AudioSource"), call, stream.channel);
        if (settings && isRequested("VideoEncoder"))
            writeVideoEncoder(set.add("tr2:VideoEncoder"), call, stream, *settings);
        if (settings && settings->sound.audioEnable != 0 && isRequested("AudioEncoder"))
            writeAudioEncoder(set.add("tr2:AudioEncoder"), call, stream, *settings);
    }
    return isKnown ? std::nullopt : noSuchProfile();
}

ServiceResult getVideoSourceConfigurations(ServiceCall &call)
{
    for (int channel = 0; channel < channelCount(call.device); ++channel)
        writeVideoSourceConfiguration(call.response.add("tr2:Configurations"), call, channel);
    return std::nullopt;
}

ServiceResult getAudioSourceConfigurations(ServiceCall &call)
{
    for (int channel = 0; channel < channelCount(call.device); ++channel)
        writeAudioSourceConfiguration(call.response.add("tr2:Configurations"), call, channel);
    return std::nullopt;
}

ServiceResult getVideoEncoderConfigurations(ServiceCall &call)
{
    const std::optional<QList<MediaStream>> streams = requestedStreams(call, MediaObject::VideoEncoder);
    if (!streams)
        return noSuchConfiguration();
    for (const MediaStream &stream : *streams) {
        if (const std::optional<EncodeSettings> settings = encodeSettings(call.device, stream))
            writeVideoEncoder(call.response.add("tr2:Configurations"), call, stream, *settings);
    }
    return std::nullopt;
}

ServiceResult setVideoEncoderConfiguration(ServiceCall &call)
{
    const pugi::xml_node requested = childNamed(call.request, "tr2:Configuration");
    const std::optional<MediaStream> stream = streamOf(
        call.device, MediaObject::VideoEncoder, QString::fromUtf8(requested.attribute("token").value()));
    std::optional<EncodeSettings> settings = stream ? encodeSettings(call.device, *stream) : std::nullopt;
    if (!settings)
        return noSuchConfiguration();
    const StreamAbilities abilities = streamAbilities(call.device, stream->encodeKind());
    const std::optional<int> compression =
        compressionOfMedia2(abilities, textAt(requested, "tt:Encoding").value_or(QString()));
    if (!compression)
        return refusedSettings();
    const auto number = [requested](const char *path, double before) {
        return textAt(requested, path).value_or(QString::number(before)).toDouble();
    };
    const auto integer = [&number](const char *path, int before) {
        return static_cast<int>(std::lround(number(path, before)));
    };
    sdk::VideoFormatItem &video = settings->video;
    video.compression = *compression;
    video.width = integer("tt:Resolution/tt:Width", video.width);
    video.height = integer("tt:Resolution/tt:Height", video.height);
    video.quality = integer("tt:Quality", video.quality);
    video.frameRate =
        static_cast<float>(number("tt:RateControl/tt:FrameRateLimit", static_cast<double>(video.frameRate)));
    video.bitRate = integer("tt:RateControl/tt:BitrateLimit", video.bitRate);
    if (const pugi::xml_attribute constant =
            childNamed(requested, "tt:RateControl").attribute("ConstantBitRate"))
        video.bitRateControl = constant.as_bool() ? 0 : 1;
    settings->keyFrameInterval = requested.attribute("GovLength").as_int(settings->keyFrameInterval);
    if (const pugi::xml_attribute profile = requested.attribute("Profile");
        profile && *compression == sdk::compressionH264)
        settings->profile.profile = profileNamed(QString::fromUtf8(profile.value())).value_or(0);
    if (takeEncodeSettings(call, *stream, *settings) != sdk::NetError::None)
        return refusedSettings();
    return std::nullopt;
}

ServiceResult writeOptions(ServiceCall &call, MediaObject object,
                           void (*write)(XmlElement response, const SceneDevice &device,
                                         const MediaStream &stream))
{
    const std::optional<QList<MediaStream>> streams = requestedStreams(call, object);
    if (!streams || streams->isEmpty())
        return noSuchConfiguration();
    if (call.device.hasFault(Fault::RefusesCapabilities))
        return SoapFault::failed(u"The device does not report its capabilities"_s);
    write(call.response, call.device, streams->first());
    return std::nullopt;
}

ServiceResult getVideoEncoderConfigurationOptions(ServiceCall &call)
{
    return writeOptions(call, MediaObject::VideoEncoder, writeMedia2VideoOptions);
}

ServiceResult getAudioEncoderConfigurationOptions(ServiceCall &call)
{
    return writeOptions(call, MediaObject::AudioEncoder, writeMedia2AudioOptions);
}

ServiceResult getVideoEncoderInstances(ServiceCall &call)
{
    call.response.add("tr2:Info").add("tr2:Total", 2);
    return std::nullopt;
}

ServiceResult getAudioEncoderConfigurations(ServiceCall &call)
{
    const std::optional<QList<MediaStream>> streams = requestedStreams(call, MediaObject::AudioEncoder);
    if (!streams)
        return noSuchConfiguration();
    for (const MediaStream &stream : *streams) {
        if (const std::optional<EncodeSettings> settings = encodeSettings(call.device, stream))
            writeAudioEncoder(call.response.add("tr2:Configurations"), call, stream, *settings);
    }
    return std::nullopt;
}

ServiceResult setAudioEncoderConfiguration(ServiceCall &call)
{
    const pugi::xml_node requested = childNamed(call.request, "tr2:Configuration");
    const std::optional<MediaStream> stream = streamOf(
        call.device, MediaObject::AudioEncoder, QString::fromUtf8(requested.attribute("token").value()));
    std::optional<EncodeSettings> settings = stream ? encodeSettings(call.device, *stream) : std::nullopt;
    if (!settings)
        return noSuchConfiguration();
    const std::string encoding = textAt(requested, "tt:Encoding").value_or(QString()).toStdString();
    settings->sound.format = 0; // refused, unless the device supports it
    for (const int format : soundFormats(call.device, *stream)) {
        if (encoding == media2Sound(format))
            settings->sound.format = format;
    }
    bool isNumber = false;
    const int kilohertz = textAt(requested, "tt:SampleRate").value_or(QString()).toInt(&isNumber);
    if (isNumber)
        settings->soundFormat.samplingFrequency = kilohertz * 1000;
    if (takeEncodeSettings(call, *stream, *settings) != sdk::NetError::None)
        return refusedSettings();
    return std::nullopt;
}

/// Only the audio encoder configuration can be added to a profile and removed from it.
ServiceResult changeProfile(ServiceCall &call, bool isAdded)
{
    const std::optional<MediaStream> stream = askedProfile(call);
    if (!stream)
        return noSuchProfile();
    for (const pugi::xml_node element : call.request.children()) {
        if (!isNamed(element, "tr2:Configuration"))
            continue;
        const QString type = textAt(element, "tr2:Type").value_or(QString());
        if (type != u"AudioEncoder")
            return SoapFault::invalid("ter:ConfigurationConflict", u"The profile is fixed"_s);
        if (switchSound(call, *stream, isAdded) != sdk::NetError::None)
            return refusedSettings();
    }
    return std::nullopt;
}

ServiceResult addConfiguration(ServiceCall &call)
{
    return changeProfile(call, true);
}

ServiceResult removeConfiguration(ServiceCall &call)
{
    return changeProfile(call, false);
}

ServiceResult getStreamUri(ServiceCall &call)
{
    const std::optional<MediaStream> stream = askedProfile(call);
    if (!stream)
        return noSuchProfile();
    const QString protocol = textAt(call.request, "tr2:Protocol").value_or(QString());
    if (protocol != u"RtspUnicast" && protocol != u"RTSP")
        return SoapFault::invalid("ter:InvalidStreamSetup", u"The device does not support this transport"_s);
    call.response.add("tr2:Uri", streamUri(call, *stream));
    return std::nullopt;
}

ServiceResult getSnapshotUri(ServiceCall &call)
{
    const std::optional<MediaStream> stream = askedProfile(call);
    if (!stream)
        return noSuchProfile();
    if (snapshotUri(call, *stream).isEmpty())
        return SoapFault::unknownOperation(u"The device has no snapshots"_s);
    call.response.add("tr2:Uri", snapshotUri(call, *stream));
    return std::nullopt;
}

ServiceResult setSynchronizationPoint(ServiceCall &call)
{
    return requestKeyFrame(call, "tr2:ProfileToken");
}

} // namespace

ServiceOperations media2Operations()
{
    static constexpr std::array operations = {
        ServiceOperation{"GetServiceCapabilities", Access::BeforeLogin, getServiceCapabilities},
        ServiceOperation{"GetProfiles", Access::ReadMedia, getProfiles},
        ServiceOperation{"AddConfiguration", Access::Actuate, addConfiguration},
        ServiceOperation{"RemoveConfiguration", Access::Actuate, removeConfiguration},
        ServiceOperation{"GetVideoSourceConfigurations", Access::ReadMedia, getVideoSourceConfigurations},
        ServiceOperation{"GetAudioSourceConfigurations", Access::ReadMedia, getAudioSourceConfigurations},
        ServiceOperation{"GetVideoEncoderConfigurations", Access::ReadMedia, getVideoEncoderConfigurations},
        ServiceOperation{"SetVideoEncoderConfiguration", Access::Actuate, setVideoEncoderConfiguration},
        ServiceOperation{"GetVideoEncoderConfigurationOptions", Access::ReadMedia,
                         getVideoEncoderConfigurationOptions},
        ServiceOperation{"GetVideoEncoderInstances", Access::ReadMedia, getVideoEncoderInstances},
        ServiceOperation{"GetAudioEncoderConfigurations", Access::ReadMedia, getAudioEncoderConfigurations},
        ServiceOperation{"SetAudioEncoderConfiguration", Access::Actuate, setAudioEncoderConfiguration},
        ServiceOperation{"GetAudioEncoderConfigurationOptions", Access::ReadMedia,
                         getAudioEncoderConfigurationOptions},
        ServiceOperation{"GetStreamUri", Access::ReadMedia, getStreamUri},
        ServiceOperation{"GetSnapshotUri", Access::ReadMedia, getSnapshotUri},
        ServiceOperation{"SetSynchronizationPoint", Access::ReadMedia, setSynchronizationPoint},
    };
    return operations;
}

} // namespace site

// The operations of the media service.
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

std::optional<MediaStream> askedStream(const ServiceCall &call, MediaObject object, const char *path)
{
    return streamOf(call.device, object, textAt(call.request, path).value_or(QString()));
}

/// The service does not report codecs that are newer than itself.
bool isShown(const std::optional<EncodeSettings> &settings)
{
    return settings && !mediaCodec(settings->video.compression).empty();
}

void writeVideoEncoder(XmlElement element, const ServiceCall &call, const MediaStream &stream,
                       const EncodeSettings &settings)
{
    const std::string_view codec = mediaCodec(settings.video.compression);
    element.attribute("token", tokenOf(MediaObject::VideoEncoder, stream));
    element.add("tt:Name", profileTitle(call.device, stream));
    element.add("tt:UseCount", 1);
    element.add("tt:Encoding", codec);
    XmlElement size = element.add("tt:Resolution");
    size.add("tt:Width", settings.video.width);
    size.add("tt:Height", settings.video.height);
    element.add("tt:Quality", settings.video.quality);
    XmlElement rate = element.add("tt:RateControl");
    rate.add("tt:FrameRateLimit", static_cast<int>(std::lround(settings.video.frameRate)));
    rate.add("tt:EncodingInterval", 1);
    rate.add("tt:BitrateLimit", settings.video.bitRate);
    if (codec == "H264") {
        XmlElement h264 = element.add("tt:H264");
        h264.add("tt:GovLength", settings.keyFrameInterval);
        h264.add("tt:H264Profile", profileName(settings.profile.profile));
    } else if (codec == "MPEG4") {
        XmlElement mpeg4 = element.add("tt:MPEG4");
        mpeg4.add("tt:GovLength", settings.keyFrameInterval);
        mpeg4.add("tt:Mpeg4Profile", "SP");
    }
    writeMulticast(element);
    element.add("tt:SessionTimeout", "PT60S");
}

void writeAudioEncoder(XmlElement element, const ServiceCall &call, const MediaStream &stream,
                       const EncodeSettings &settings)
{
    element.attribute("token", tokenOf(MediaObject::AudioEncoder, stream));
    element.add("tt:Name", profileTitle(call.device, stream));
    element.add("tt:UseCount", settings.sound.audioEnable != 0 ? 1 : 0);
    element.add("tt:Encoding", mediaSound(settings.sound.format));
    element.add("tt:Bitrate", settings.sound.format == aacFormat ? 32 : 64);
    element.add("tt:SampleRate", settings.soundFormat.samplingFrequency / 1000);
    writeMulticast(element);
    element.add("tt:SessionTimeout", "PT60S");
}

void writeProfile(XmlElement element, const ServiceCall &call, const MediaStream &stream)
{
    const std::optional<EncodeSettings> settings = encodeSettings(call.device, stream);
    element.attribute("token", tokenOf(MediaObject::Profile, stream)).attribute("fixed", true);
    element.add("tt:Name", profileTitle(call.device, stream));
    writeVideoSourceConfiguration(element.add("tt:VideoSourceConfiguration"), call, stream.channel);
    writeAudioSourceConfiguration(element.add("tt:AudioSourceConfiguration"), call, stream.channel);
    if (isShown(settings))
        writeVideoEncoder(element.add("tt:VideoEncoderConfiguration"), call, stream, *settings);
    if (settings && settings->sound.audioEnable != 0)
        writeAudioEncoder(element.add("tt:AudioEncoderConfiguration"), call, stream, *settings);
}

ServiceResult getServiceCapabilities(ServiceCall &call)
{
    XmlElement capabilities = call.response.add("trt:Capabilities");
    capabilities.attribute("SnapshotUri", call.device.httpPort != 0).attribute("Rotation", false);
    capabilities.add("trt:ProfileCapabilities")
        .attribute("MaximumNumberOfProfiles", static_cast<int>(streamsOf(call.device).size()));
    capabilities.add("trt:StreamingCapabilities")
        .attribute("RTPMulticast", false)
        .attribute("RTP_TCP", true)
        .attribute("RTP_RTSP_TCP", true);
    return std::nullopt;
}

ServiceResult getProfiles(ServiceCall &call)
{
    const QList<MediaStream> streams = streamsOf(call.device);
    for (const MediaStream &stream : streams)
        writeProfile(call.response.add("trt:Profiles"), call, stream);
    return std::nullopt;
}

ServiceResult getProfile(ServiceCall &call)
{
    const std::optional<MediaStream> stream = askedStream(call, MediaObject::Profile, "trt:ProfileToken");
    if (!stream)
        return noSuchProfile();
    writeProfile(call.response.add("trt:Profile"), call, *stream);
    return std::nullopt;
}

ServiceResult getVideoSources(ServiceCall &call)
{
    const sdk::FrameSize size = largestSize(call.device);
    const int rate = streamAbilities(call.device, sdk::StreamKind::MainNormal).maximumFrameRate;
    for (int channel = 0; channel < channelCount(call.device); ++channel) {
        XmlElement source = call.response.add("trt:VideoSources");
        source.attribute("token", videoSourceToken(channel));
        source.add("tt:Framerate", rate);
        XmlElement resolution = source.add("tt:Resolution");
        resolution.add("tt:Width", size.width);
        resolution.add("tt:Height", size.height);
    }
    return std::nullopt;
}

ServiceResult getVideoSourceConfigurations(ServiceCall &call)
{
    for (int channel = 0; channel < channelCount(call.device); ++channel)
        writeVideoSourceConfiguration(call.response.add("trt:Configurations"), call, channel);
    return std::nullopt;
}

ServiceResult getAudioSources(ServiceCall &call)
{
    for (int channel = 0; channel < channelCount(call.device); ++channel) {
        XmlElement source = call.response.add("trt:AudioSources");
        source.attribute("token", audioSourceToken(channel));
        source.add("tt:Channels", 1);
    }
    return std::nullopt;
}

ServiceResult getAudioSourceConfigurations(ServiceCall &call)
{
    for (int channel = 0; channel < channelCount(call.device); ++channel)
        writeAudioSourceConfiguration(call.response.add("trt:Configurations"), call, channel);
    return std::nullopt;
}

ServiceResult getVideoEncoderConfigurations(ServiceCall &call)
{
    const QList<MediaStream> streams = streamsOf(call.device);
    for (const MediaStream &stream : streams) {
        if (const std::optional<EncodeSettings> settings = encodeSettings(call.device, stream);
            isShown(settings))
            writeVideoEncoder(call.response.add("trt:Configurations"), call, stream, *settings);
    }
    return std::nullopt;
}

ServiceResult getVideoEncoderConfiguration(ServiceCall &call)
{
    const std::optional<MediaStream> stream =
        askedStream(call, MediaObject::VideoEncoder, "trt:ConfigurationToken");
    const std::optional<EncodeSettings> settings =
        stream ? encodeSettings(call.device, *stream) : std::nullopt;
    if (!isShown(settings))
        return noSuchConfiguration();
    writeVideoEncoder(call.response.add("trt:Configuration"), call, *stream, *settings);
    return std::nullopt;
}

ServiceResult setVideoEncoderConfiguration(ServiceCall &call)
{
    const pugi::xml_node requested = childNamed(call.request, "trt:Configuration");
    const std::optional<MediaStream> stream = streamOf(
        call.device, MediaObject::VideoEncoder, QString::fromUtf8(requested.attribute("token").value()));
    std::optional<EncodeSettings> settings = stream ? encodeSettings(call.device, *stream) : std::nullopt;
    if (!settings)
        return noSuchConfiguration();
    const auto number = [requested](const char *path, int before) {
        return textAt(requested, path).value_or(QString::number(before)).toInt();
    };
    const StreamAbilities abilities = streamAbilities(call.device, stream->encodeKind());
    const std::optional<int> compression =
        compressionOfMedia(abilities, textAt(requested, "tt:Encoding").value_or(QString()));
    if (!compression)
        return refusedSettings();
    sdk::VideoFormatItem &video = settings->video;
    video.compression = *compression;
    video.width = number("tt:Resolution/tt:Width", video.width);
    video.height = number("tt:Resolution/tt:Height", video.height);
    video.quality = static_cast<int>(
        std::lround(textAt(requested, "tt:Quality").value_or(QString::number(video.quality)).toDouble()));
    video.frameRate = static_cast<float>(
        number("tt:RateControl/tt:FrameRateLimit", static_cast<int>(std::lround(video.frameRate))));
    video.bitRate = number("tt:RateControl/tt:BitrateLimit", video.bitRate);
    settings->keyFrameInterval = number("tt:H264/tt:GovLength", settings->keyFrameInterval);
    if (const std::optional<QString> profile = textAt(requested, "tt:H264/tt:H264Profile"))
        settings->profile.profile = profileNamed(*profile).value_or(0);
    if (takeEncodeSettings(call, *stream, *settings) != sdk::NetError::None)
        return refusedSettings();
    return std::nullopt;
}

ServiceResult writeOptions(ServiceCall &call, MediaObject object,
                           void (*write)(XmlElement options, const SceneDevice &device,
                                         const MediaStream &stream))
{
    const QString configuration = textAt(call.request, "trt:ConfigurationToken").value_or(QString());
    const QString profile = textAt(call.request, "trt:ProfileToken").value_or(QString());
    std::optional<MediaStream> stream = MediaStream();
    if (!configuration.isEmpty())
        stream = streamOf(call.device, object, configuration);
    else if (!profile.isEmpty())
        stream = streamOf(call.device, MediaObject::Profile, profile);
    if (!stream)
        return noSuchConfiguration();
    if (call.device.hasFault(Fault::RefusesCapabilities))
        return SoapFault::failed(u"The device does not report its capabilities"_s);
    write(call.response.add("trt:Options"), call.device, *stream);
    return std::nullopt;
}

ServiceResult getVideoEncoderConfigurationOptions(ServiceCall &call)
{
    return writeOptions(call, MediaObject::VideoEncoder, writeMediaVideoOptions);
}

ServiceResult getGuaranteedNumber(ServiceCall &call)
{
    call.response.add("trt:TotalNumber", 2);
    return std::nullopt;
}

ServiceResult getAudioEncoderConfigurations(ServiceCall &call)
{
    const QList<MediaStream> streams = streamsOf(call.device);
    for (const MediaStream &stream : streams) {
        if (const std::optional<EncodeSettings> settings = encodeSettings(call.device, stream))
            writeAudioEncoder(call.response.add("trt:Configurations"), call, stream, *settings);
    }
    return std::nullopt;
}

ServiceResult getAudioEncoderConfiguration(ServiceCall &call)
{
    const std::optional<MediaStream> stream =
        askedStream(call, MediaObject::AudioEncoder, "trt:ConfigurationToken");
    const std::optional<EncodeSettings> settings =
        stream ? encodeSettings(call.device, *stream) : std::nullopt;
    if (!settings)
        return noSuchConfiguration();
    writeAudioEncoder(call.response.add("trt:Configuration"), call, *stream, *settings);
    return std::nullopt;
}

ServiceResult setAudioEncoderConfiguration(ServiceCall &call)
{
    const pugi::xml_node requested = childNamed(call.request, "trt:Configuration");
    const std::optional<MediaStream> stream = streamOf(
        call.device, MediaObject::AudioEncoder, QString::fromUtf8(requested.attribute("token").value()));
    std::optional<EncodeSettings> settings = stream ? encodeSettings(call.device, *stream) : std::nullopt;
    if (!settings)
        return noSuchConfiguration();
    const QString encoding = textAt(requested, "tt:Encoding").value_or(QString());
    // Both variants of G.711 have the same name: the present variant is kept.
    if (encoding.toStdString() != mediaSound(settings->sound.format)) {
        settings->sound.format = 0;
        for (const int format : soundFormats(call.device, *stream)) {
            if (settings->sound.format == 0 && encoding.toStdString() == mediaSound(format))
                settings->sound.format = format;
        }
    }
    bool isNumber = false;
    const int kilohertz = textAt(requested, "tt:SampleRate").value_or(QString()).toInt(&isNumber);
    if (isNumber)
        settings->soundFormat.samplingFrequency = kilohertz * 1000;
    if (takeEncodeSettings(call, *stream, *settings) != sdk::NetError::None)
        return refusedSettings();
    return std::nullopt;
}

ServiceResult getAudioEncoderConfigurationOptions(ServiceCall &call)
{
    return writeOptions(call, MediaObject::AudioEncoder, writeMediaAudioOptions);
}

ServiceResult switchAudio(ServiceCall &call, bool isOn)
{
    const std::optional<MediaStream> stream = askedStream(call, MediaObject::Profile, "trt:ProfileToken");
    if (!stream)
        return noSuchProfile();
    return resultOf(switchSound(call, *stream, isOn), *refusedSettings());
}

ServiceResult addAudioEncoderConfiguration(ServiceCall &call)
{
    return switchAudio(call, true);
}

ServiceResult removeAudioEncoderConfiguration(ServiceCall &call)
{
    return switchAudio(call, false);
}

ServiceResult getStreamUri(ServiceCall &call)
{
    const std::optional<MediaStream> stream = askedStream(call, MediaObject::Profile, "trt:ProfileToken");
    if (!stream)
        return noSuchProfile();
    const QString protocol =
        textAt(call.request, "trt:StreamSetup/tt:Transport/tt:Protocol").value_or(QString());
    if (textAt(call.request, "trt:StreamSetup/tt:Stream") == u"RTP-Multicast"_s || protocol == u"HTTP")
        return SoapFault::invalid("ter:InvalidStreamSetup", u"The device does not support this transport"_s);
    XmlElement uri = call.response.add("trt:MediaUri");
    uri.add("tt:Uri", streamUri(call, *stream));
    uri.add("tt:InvalidAfterConnect", false);
    uri.add("tt:InvalidAfterReboot", false);
    uri.add("tt:Timeout", "PT60S");
    return std::nullopt;
}

ServiceResult getSnapshotUri(ServiceCall &call)
{
    const std::optional<MediaStream> stream = askedStream(call, MediaObject::Profile, "trt:ProfileToken");
    if (!stream)
        return noSuchProfile();
    if (snapshotUri(call, *stream).isEmpty())
        return SoapFault::unknownOperation(u"The device has no snapshots"_s);
    XmlElement uri = call.response.add("trt:MediaUri");
    uri.add("tt:Uri", snapshotUri(call, *stream));
    uri.add("tt:InvalidAfterConnect", false);
    uri.add("tt:InvalidAfterReboot", false);
    uri.add("tt:Timeout", "PT0S");
    return std::nullopt;
}

ServiceResult setSynchronizationPoint(ServiceCall &call)
{
    return requestKeyFrame(call, "trt:ProfileToken");
}

} // namespace

ServiceOperations mediaOperations()
{
    static constexpr std::array operations = {
        ServiceOperation{"GetServiceCapabilities", Access::BeforeLogin, getServiceCapabilities},
        ServiceOperation{"GetProfiles", Access::ReadMedia, getProfiles},
        ServiceOperation{"GetProfile", Access::ReadMedia, getProfile},
        ServiceOperation{"GetVideoSources", Access::ReadMedia, getVideoSources},
        ServiceOperation{"GetVideoSourceConfigurations", Access::ReadMedia, getVideoSourceConfigurations},
        ServiceOperation{"GetVideoEncoderConfigurations", Access::ReadMedia, getVideoEncoderConfigurations},
        ServiceOperation{"GetVideoEncoderConfiguration", Access::ReadMedia, getVideoEncoderConfiguration},
        ServiceOperation{"SetVideoEncoderConfiguration", Access::Actuate, setVideoEncoderConfiguration},
        ServiceOperation{"GetVideoEncoderConfigurationOptions", Access::ReadMedia,
                         getVideoEncoderConfigurationOptions},
        ServiceOperation{"GetGuaranteedNumberOfVideoEncoderInstances", Access::ReadMedia,
                         getGuaranteedNumber},
        ServiceOperation{"GetAudioSources", Access::ReadMedia, getAudioSources},
        ServiceOperation{"GetAudioSourceConfigurations", Access::ReadMedia, getAudioSourceConfigurations},
        ServiceOperation{"GetAudioEncoderConfigurations", Access::ReadMedia, getAudioEncoderConfigurations},
        ServiceOperation{"GetAudioEncoderConfiguration", Access::ReadMedia, getAudioEncoderConfiguration},
        ServiceOperation{"SetAudioEncoderConfiguration", Access::Actuate, setAudioEncoderConfiguration},
        ServiceOperation{"GetAudioEncoderConfigurationOptions", Access::ReadMedia,
                         getAudioEncoderConfigurationOptions},
        ServiceOperation{"AddAudioEncoderConfiguration", Access::Actuate, addAudioEncoderConfiguration},
        ServiceOperation{"RemoveAudioEncoderConfiguration", Access::Actuate, removeAudioEncoderConfiguration},
        ServiceOperation{"GetStreamUri", Access::ReadMedia, getStreamUri},
        ServiceOperation{"GetSnapshotUri", Access::ReadMedia, getSnapshotUri},
        ServiceOperation{"SetSynchronizationPoint", Access::ReadMedia, setSynchronizationPoint},
    };
    return operations;
}

} // namespace site

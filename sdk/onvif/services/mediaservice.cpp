#include "sdk/onvif/services/mediaservice.h"

#include "sdk/onvif/soap/onvifnamespaces.h"

#include <algorithm>

namespace sdk::onvif {

namespace {

constexpr std::size_t longestText = 256;
constexpr std::size_t longestUrl = 1024;
constexpr int largestNumber = 1'000'000;

std::string textOf(std::string_view text)
{
    return std::string(text.substr(0, longestText));
}

int boundedNumber(const XmlElement &element)
{
    return std::clamp(element.integer().value_or(0), 0, largestNumber);
}

double boundedDecimal(const XmlElement &element)
{
    return std::clamp(element.number().value_or(0), 0.0, static_cast<double>(largestNumber));
}

/// The encoding of a name in the older service, or in the registry of RTP, which the newer service uses.
std::string encodingOf(std::string_view text)
{
    return text == "JPEG" || text == "H264" || text == "H265" || text == "MPEG4" ? std::string(text)
                                                                                 : textOf(text);
}

} // namespace

VideoEncoder readVideoEncoder(const XmlElement &element)
{
    VideoEncoder encoder;
    encoder.token = textOf(element.attribute("token"));
    encoder.encoding = encodingOf(element.child("Encoding").text());
    encoder.width = boundedNumber(element.at({"Resolution", "Width"}));
    encoder.height = boundedNumber(element.at({"Resolution", "Height"}));
    encoder.quality = boundedDecimal(element.child("Quality"));
    const XmlElement rate = element.child("RateControl");
    encoder.frameRate = boundedDecimal(rate.child("FrameRateLimit"));
    encoder.bitRate = boundedNumber(rate.child("BitrateLimit"));
    encoder.constantBitRate = rate.attribute("ConstantBitRate") == "true";
    // The older service has elements for each codec, the newer one has attributes.
    for (const std::string_view codec : {"H264", "MPEG4"}) {
        const XmlElement settings = element.child(codec);
        if (!settings.exists())
            continue;
        encoder.keyInterval = boundedNumber(settings.child("GovLength"));
        encoder.profile =
            textOf(settings.child(std::string(codec == "H264" ? "H264Profile" : "Mpeg4Profile")).text());
    }
    if (const std::string_view interval = element.attribute("GovLength"); !interval.empty())
        encoder.keyInterval = std::clamp(std::atoi(std::string(interval).c_str()), 0, largestNumber);
    if (const std::string_view profile = element.attribute("Profile"); !profile.empty())
        encoder.profile = textOf(profile);
    return encoder;
}

AudioEncoder readAudioEncoder(const XmlElement &element)
{
    return {.token = textOf(element.attribute("token")),
            .encoding = textOf(element.child("Encoding").text()),
            .bitRate = boundedNumber(element.child("Bitrate")),
            .sampleRate = boundedNumber(element.child("SampleRate"))};
}

MediaService::MediaService(SoapClient &client, const ServiceAddress &address, MediaVersion version,
                           Deadline deadline)
    : m_client(client), m_address(address), m_version(version), m_deadline(deadline)
{
}

std::string_view MediaService::uri() const
{
    return m_version == MediaVersion::Second ? ns::media2 : ns::media;
}

SoapRequest MediaService::request(std::string_view operation) const
{
    return SoapRequest((m_version == MediaVersion::Second ? "tr2:" : "trt:") + std::string(operation));
}

SoapResponse MediaService::call(const SoapRequest &request)
{
    return m_client.call(m_address, request, m_deadline);
}

MediaProfile MediaService::readProfile(const XmlElement &element) const
{
    MediaProfile profile;
    profile.token = textOf(element.attribute("token"));
    const bool isSecond = m_version == MediaVersion::Second;
    profile.name = textOf((isSecond ? element.child(ns::media2, "Name") : element.child("Name")).text());
    const XmlElement parts = isSecond ? element.child(ns::media2, "Configurations") : element;
    const auto part = [&](std::string_view second, std::string_view first) {
        return isSecond ? parts.child(ns::media2, second) : parts.child(first);
    };
    const XmlElement source = part("VideoSource", "VideoSourceConfiguration");
    profile.sourceToken = textOf(source.child("SourceToken").text());
    profile.sourceConfiguration = textOf(source.attribute("token"));
    profile.sourceName = textOf(source.child("Name").text());
    if (const XmlElement video = part("VideoEncoder", "VideoEncoderConfiguration"); video.exists())
        profile.video = readVideoEncoder(video);
    if (const XmlElement audio = part("AudioEncoder", "AudioEncoderConfiguration"); audio.exists())
        profile.audio = readAudioEncoder(audio);
    return profile;
}

ServiceResult<std::vector<MediaProfile>> MediaService::profiles()
{
    const SoapRequest profilesRequest = request("GetProfiles");
    if (m_version == MediaVersion::Second)
        append(profilesRequest.operation(), "tr2:Type", "All");
    return resultOf(call(profilesRequest), uri(), "GetProfilesResponse", [this](const XmlElement &response) {
        std::vector<MediaProfile> profiles;
        for (const XmlElement &element : response.children(uri(), "Profiles")) {
            if (profiles.size() < maximumProfiles)
                profiles.push_back(readProfile(element));
        }
        return profiles;
    });
}

ServiceResult<std::string> MediaService::streamUrl(const std::string &profileToken)
{
    const SoapRequest uriRequest = request("GetStreamUri");
    if (m_version == MediaVersion::Second) {
        append(uriRequest.operation(), "tr2:Protocol", "RTSP");
        append(uriRequest.operation(), "tr2:ProfileToken", profileToken);
        return resultOf(call(uriRequest), ns::media2, "GetStreamUriResponse", [](const XmlElement &response) {
            return std::string(response.child(ns::media2, "Uri").text().substr(0, longestUrl));
        });
    }
    pugi::xml_node setup = append(uriRequest.operation(), "trt:StreamSetup");
    append(setup, "tt:Stream", "RTP-Unicast");
    append(append(setup, "tt:Transport"), "tt:Protocol", "RTSP");
    append(uriRequest.operation(), "trt:ProfileToken", profileToken);
    return resultOf(call(uriRequest), ns::media, "GetStreamUriResponse", [](const XmlElement &response) {
        return std::string(response.child(ns::media, "MediaUri").child("Uri").text().substr(0, longestUrl));
    });
}

ServiceResult<std::string> MediaService::snapshotUrl(const std::string &profileToken)
{
    const SoapRequest uriRequest = request("GetSnapshotUri");
    const bool isSecond = m_version == MediaVersion::Second;
    append(uriRequest.operation(), isSecond ? "tr2:ProfileToken" : "trt:ProfileToken", profileToken);
    return resultOf(
        call(uriRequest), uri(), "GetSnapshotUriResponse", [isSecond](const XmlElement &response) {
            const XmlElement address = isSecond ? response.child(ns::media2, "Uri")
                                                : response.child(ns::media, "MediaUri").child("Uri");
            return std::string(address.text().substr(0, longestUrl));
        });
}

ServiceOutcome MediaService::requestKeyFrame(const std::string &profileToken)
{
    const SoapRequest pointRequest = request("SetSynchronizationPoint");
    append(pointRequest.operation(),
           m_version == MediaVersion::Second ? "tr2:ProfileToken" : "trt:ProfileToken", profileToken);
    return resultOf(call(pointRequest), uri(), "SetSynchronizationPointResponse",
                    [](const XmlElement &) { return Nothing(); });
}

} // namespace sdk::onvif

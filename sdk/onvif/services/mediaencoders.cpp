// Encoders of the media services: reading their options and writing their settings.
#include "sdk/onvif/services/mediaservice.h"

#include "sdk/onvif/soap/onvifnamespaces.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace sdk::onvif {

namespace {

constexpr std::size_t maximumOptions = 64;
constexpr std::size_t maximumWords = 1024; ///< of a list in an attribute, such as all frame rates
constexpr int largestValue = 1'000'000;

std::vector<std::string_view> words(std::string_view text)
{
    constexpr std::string_view separators = " \t\r\n,";
    std::vector<std::string_view> found;
    for (std::size_t begin = text.find_first_not_of(separators);
         begin != std::string_view::npos && found.size() < maximumWords;) {
        const std::size_t end = std::min(text.find_first_of(separators, begin), text.size());
        found.push_back(text.substr(begin, end - begin));
        begin = text.find_first_not_of(separators, end);
    }
    return found;
}

double numberOf(std::string_view text)
{
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc() && std::isfinite(value) ? std::clamp(value, 0.0, double(largestValue)) : 0;
}

int integerOf(std::string_view text)
{
    return static_cast<int>(numberOf(text));
}

void takeSizes(VideoEncodingOptions &options, const XmlElement &element)
{
    for (const XmlElement &size : element.children("ResolutionsAvailable")) {
        const int width = integerOf(size.child("Width").text());
        const int height = integerOf(size.child("Height").text());
        const std::pair<int, int> pair(width, height);
        if (width > 0 && height > 0 && options.sizes.size() < maximumOptions &&
            std::find(options.sizes.begin(), options.sizes.end(), pair) == options.sizes.end())
            options.sizes.push_back(pair);
    }
}

/// The options of one encoding in the older service. `extension` contains the additions of later versions.
VideoEncodingOptions firstOptions(std::string_view encoding, const XmlElement &element,
                                  const XmlElement &extension, const XmlElement &quality)
{
    VideoEncodingOptions options;
    options.encoding = encoding;
    takeSizes(options, element);
    options.maximumFrameRate = numberOf(element.at({"FrameRateRange", "Max"}).text());
    options.minimumKeyInterval = integerOf(element.at({"GovLengthRange", "Min"}).text());
    options.maximumKeyInterval = integerOf(element.at({"GovLengthRange", "Max"}).text());
    for (const XmlElement &profile : element.children("H264ProfilesSupported")) {
        if (options.profiles.size() < maximumOptions)
            options.profiles.emplace_back(profile.text());
    }
    options.minimumBitRate = integerOf(extension.at({"BitrateRange", "Min"}).text());
    options.maximumBitRate = integerOf(extension.at({"BitrateRange", "Max"}).text());
    options.minimumQuality = numberOf(quality.child("Min").text());
    options.maximumQuality = numberOf(quality.child("Max").text());
    return options;
}

std::vector<VideoEncodingOptions> readFirstOptions(const XmlElement &response)
{
    const XmlElement element = response.child(ns::media, "Options");
    std::vector<VideoEncodingOptions> found;
    for (const std::string_view encoding : {"JPEG", "MPEG4", "H264"}) {
        if (const XmlElement options = element.child(encoding); options.exists())
            found.push_back(firstOptions(encoding, options, element.child("Extension").child(encoding),
                                         element.child("QualityRange")));
    }
    return found;
}

std::vector<VideoEncodingOptions> readSecondOptions(const XmlElement &response)
{
    std::vector<VideoEncodingOptions> found;
    for (const XmlElement &element : response.children(ns::media2, "Options")) {
        if (found.size() == maximumOptions)
            break;
        VideoEncodingOptions options;
        options.encoding = std::string(element.child("Encoding").text());
        takeSizes(options, element);
        options.minimumBitRate = integerOf(element.at({"BitrateRange", "Min"}).text());
        options.maximumBitRate = integerOf(element.at({"BitrateRange", "Max"}).text());
        options.minimumQuality = numberOf(element.at({"QualityRange", "Min"}).text());
        options.maximumQuality = numberOf(element.at({"QualityRange", "Max"}).text());
        for (const std::string_view rate : words(element.attribute("FrameRatesSupported")))
            options.maximumFrameRate = std::max(options.maximumFrameRate, numberOf(rate));
        const std::vector<std::string_view> interval = words(element.attribute("GovLengthRange"));
        if (!interval.empty()) {
            options.minimumKeyInterval = integerOf(interval.front());
            options.maximumKeyInterval = integerOf(interval.back());
        }
        for (const std::string_view profile : words(element.attribute("ProfilesSupported"))) {
            if (options.profiles.size() < maximumOptions)
                options.profiles.emplace_back(profile);
        }
        options.offersConstantBitRate = element.attribute("ConstantBitRateSupported") == "true";
        found.push_back(std::move(options));
    }
    return found;
}

std::vector<int> readNumbers(const XmlElement &list)
{
    std::vector<int> numbers;
    for (const XmlElement &item : list.children("Items")) {
        if (numbers.size() < maximumOptions)
            numbers.push_back(integerOf(item.text()));
    }
    return numbers;
}

AudioEncodingOptions readAudioOptions(const XmlElement &element)
{
    return {.encoding = std::string(element.child("Encoding").text()),
            .bitRates = readNumbers(element.child("BitrateList")),
            .sampleRates = readNumbers(element.child("SampleRateList"))};
}

std::string decimalText(double number)
{
    std::array<char, 32> text{};
    const auto end = std::to_chars(text.begin(), text.end(), number, std::chars_format::fixed).ptr;
    return {text.data(), end};
}

/// The settings of a codec in the older service: the block of the chosen encoding, and no other one.
void setCodecBlock(pugi::xml_node settings, const VideoEncoder &encoder)
{
    for (const char *const name : {"tt:H264", "tt:MPEG4"}) {
        if (encoder.encoding != std::string_view(name).substr(3))
            settings.remove_child(name);
    }
    if (encoder.encoding != "H264" && encoder.encoding != "MPEG4")
        return;
    const std::string name = "tt:" + encoder.encoding;
    const std::string profileName = encoder.encoding == "H264" ? "tt:H264Profile" : "tt:Mpeg4Profile";
    pugi::xml_node block = settings.child(name.c_str());
    if (!block) {
        block = settings.insert_child_after(name.c_str(), settings.child("tt:RateControl")
                                                              ? settings.child("tt:RateControl")
                                                              : settings.child("tt:Quality"));
        append(block, "tt:GovLength", std::max(encoder.keyInterval, 1));
        append(block, profileName, encoder.profile.empty() ? "Main" : encoder.profile);
    }
    if (encoder.keyInterval > 0)
        setChild(block, "GovLength", std::to_string(encoder.keyInterval));
    if (!encoder.profile.empty())
        setChild(block, profileName.substr(3), encoder.profile);
}

void setVideo(pugi::xml_node settings, const VideoEncoder &encoder, MediaVersion version)
{
    setChild(settings, "Encoding", encoder.encoding);
    pugi::xml_node size = settings.child("tt:Resolution");
    setChild(size, "Width", std::to_string(encoder.width));
    setChild(size, "Height", std::to_string(encoder.height));
    setChild(settings, "Quality", decimalText(encoder.quality));
    if (pugi::xml_node rate = settings.child("tt:RateControl")) {
        const bool isSecond = version == MediaVersion::Second;
        setChild(rate, "FrameRateLimit",
                 isSecond ? decimalText(encoder.frameRate) : std::to_string(std::lround(encoder.frameRate)));
        setChild(rate, "BitrateLimit", std::to_string(encoder.bitRate));
        if (isSecond && (encoder.constantBitRate || rate.attribute("ConstantBitRate")))
            setAttribute(rate, "ConstantBitRate", encoder.constantBitRate ? "true" : "false");
    }
    if (version == MediaVersion::First) {
        setCodecBlock(settings, encoder);
        return;
    }
    if (encoder.keyInterval > 0)
        setAttribute(settings, "GovLength", std::to_string(encoder.keyInterval));
    if (encoder.encoding == "JPEG") {
        settings.remove_attribute("GovLength");
        settings.remove_attribute("Profile");
    } else if (!encoder.profile.empty()) {
        setAttribute(settings, "Profile", encoder.profile);
    }
}

} // namespace

SoapResponse MediaService::readConfiguration(std::string_view kind, const std::string &token,
                                             XmlElement &configuration)
{
    // The older service has an operation for a single configuration, the newer one a filter.
    const bool isSecond = m_version == MediaVersion::Second;
    const std::string name = "Get" + std::string(kind) + "Configuration" + (isSecond ? "s" : "");
    const SoapRequest readRequest = request(name);
    append(readRequest.operation(), isSecond ? "tr2:ConfigurationToken" : "trt:ConfigurationToken", token);
    SoapResponse response = call(readRequest);
    if (!response.isOk())
        return response;
    const std::string_view element = isSecond ? "Configurations" : "Configuration";
    for (const XmlElement &candidate : response.content.children(uri(), element)) {
        if (candidate.attribute("token") == token)
            configuration = candidate;
    }
    if (!configuration.exists())
        response.error = NetError::ProtocolMismatch;
    return response;
}

SoapResponse MediaService::readOptions(std::string_view operation, const std::string &encoderToken,
                                       const std::string &profileToken)
{
    const std::string prefix = m_version == MediaVersion::Second ? "tr2:" : "trt:";
    const SoapRequest optionsRequest = request(operation);
    append(optionsRequest.operation(), prefix + "ConfigurationToken", encoderToken);
    append(optionsRequest.operation(), prefix + "ProfileToken", profileToken);
    return call(optionsRequest);
}

ServiceResult<std::vector<VideoEncodingOptions>> MediaService::videoOptions(const std::string &encoderToken,
                                                                            const std::string &profileToken)
{
    return resultOf(readOptions("GetVideoEncoderConfigurationOptions", encoderToken, profileToken), uri(),
                    "GetVideoEncoderConfigurationOptionsResponse", [this](const XmlElement &response) {
                        return m_version == MediaVersion::Second ? readSecondOptions(response)
                                                                 : readFirstOptions(response);
                    });
}

ServiceResult<std::vector<AudioEncodingOptions>> MediaService::audioOptions(const std::string &encoderToken,
                                                                            const std::string &profileToken)
{
    return resultOf(readOptions("GetAudioEncoderConfigurationOptions", encoderToken, profileToken), uri(),
                    "GetAudioEncoderConfigurationOptionsResponse", [this](const XmlElement &response) {
                        const bool isSecond = m_version == MediaVersion::Second;
                        const std::vector<XmlElement> elements =
                            isSecond ? response.children(ns::media2, "Options")
                                     : response.child(ns::media, "Options").children("Options");
                        std::vector<AudioEncodingOptions> found;
                        for (const XmlElement &element : elements) {
                            if (found.size() < maximumOptions)
                                found.push_back(readAudioOptions(element));
                        }
                        return found;
                    });
}

ServiceOutcome MediaService::setVideoEncoder(const VideoEncoder &encoder)
{
    XmlElement configuration;
    const SoapResponse response = readConfiguration("VideoEncoder", encoder.token, configuration);
    if (!response.isOk())
        return {.error = response.error, .reason = response.reason};
    const bool isSecond = m_version == MediaVersion::Second;
    const SoapRequest setRequest = request("SetVideoEncoderConfiguration");
    pugi::xml_node settings = appendCopy(setRequest.operation(),
                                         isSecond ? "tr2:Configuration" : "trt:Configuration", configuration);
    setVideo(settings, encoder, m_version);
    if (!isSecond)
        appendBoolean(setRequest.operation(), "trt:ForcePersistence", true);
    return resultOf(call(setRequest), uri(), "SetVideoEncoderConfigurationResponse",
                    [](const XmlElement &) { return Nothing(); });
}

ServiceOutcome MediaService::setAudioEncoder(const AudioEncoder &encoder)
{
    XmlElement configuration;
    const SoapResponse response = readConfiguration("AudioEncoder", encoder.token, configuration);
    if (!response.isOk())
        return {.error = response.error, .reason = response.reason};
    const bool isSecond = m_version == MediaVersion::Second;
    const SoapRequest setRequest = request("SetAudioEncoderConfiguration");
    pugi::xml_node settings = appendCopy(setRequest.operation(),
                                         isSecond ? "tr2:Configuration" : "trt:Configuration", configuration);
    setChild(settings, "Encoding", encoder.encoding);
    setChild(settings, "Bitrate", std::to_string(encoder.bitRate));
    setChild(settings, "SampleRate", std::to_string(encoder.sampleRate));
    if (!isSecond)
        appendBoolean(setRequest.operation(), "trt:ForcePersistence", true);
    return resultOf(call(setRequest), uri(), "SetAudioEncoderConfigurationResponse",
                    [](const XmlElement &) { return Nothing(); });
}

ServiceOutcome MediaService::setSourceName(const std::string &configurationToken, const std::string &name)
{
    XmlElement configuration;
    const SoapResponse response = readConfiguration("VideoSource", configurationToken, configuration);
    if (!response.isOk())
        return {.error = response.error, .reason = response.reason};
    const bool isSecond = m_version == MediaVersion::Second;
    const SoapRequest setRequest = request("SetVideoSourceConfiguration");
    pugi::xml_node settings = appendCopy(setRequest.operation(),
                                         isSecond ? "tr2:Configuration" : "trt:Configuration", configuration);
    setChild(settings, "Name", name);
    if (!isSecond)
        appendBoolean(setRequest.operation(), "trt:ForcePersistence", true);
    return resultOf(call(setRequest), uri(), "SetVideoSourceConfigurationResponse",
                    [](const XmlElement &) { return Nothing(); });
}

} // namespace sdk::onvif

#include "sdk/onvif/services/imagingservice.h"

#include "sdk/onvif/soap/onvifnamespaces.h"

namespace sdk::onvif {

namespace {

constexpr std::size_t maximumModes = 16;
constexpr std::size_t longestMode = 32;

std::string modeText(const XmlElement &element)
{
    return std::string(element.text().substr(0, longestMode));
}

std::optional<ModeAndLevel> readMode(const XmlElement &element)
{
    if (!element.exists())
        return std::nullopt;
    return ModeAndLevel{.mode = modeText(element.child("Mode")), .level = element.child("Level").number()};
}

ImagingRange readRange(const XmlElement &element)
{
    return {.minimum = element.child("Min").number().value_or(0),
            .maximum = element.child("Max").number().value_or(0)};
}

std::vector<std::string> readModes(const XmlElement &element, std::string_view name = "Mode")
{
    std::vector<std::string> modes;
    for (const XmlElement &mode : element.children(name)) {
        if (modes.size() < maximumModes)
            modes.push_back(modeText(mode));
    }
    return modes;
}

std::optional<ExposureSettings> readExposure(const XmlElement &element)
{
    if (!element.exists())
        return std::nullopt;
    return ExposureSettings{.mode = modeText(element.child("Mode")),
                            .minimumTime = element.child("MinExposureTime").number(),
                            .maximumTime = element.child("MaxExposureTime").number(),
                            .minimumGain = element.child("MinGain").number(),
                            .maximumGain = element.child("MaxGain").number(),
                            .time = element.child("ExposureTime").number(),
                            .gain = element.child("Gain").number()};
}

std::optional<WhiteBalanceSettings> readWhiteBalance(const XmlElement &element)
{
    if (!element.exists())
        return std::nullopt;
    return WhiteBalanceSettings{.mode = modeText(element.child("Mode")),
                                .redGain = element.child("CrGain").number(),
                                .blueGain = element.child("CbGain").number()};
}

/// Later versions of the standard added settings in nested extensions.
XmlElement lateExtension(const XmlElement &element)
{
    return element.at({"Extension", "Extension", "Extension"});
}

ImagingSettings readSettings(const XmlElement &response)
{
    const XmlElement element = response.child(ns::imaging, "ImagingSettings");
    const XmlElement later = lateExtension(element);
    ImagingSettings settings;
    settings.brightness = element.child("Brightness").number();
    settings.contrast = element.child("Contrast").number();
    settings.saturation = element.child("ColorSaturation").number();
    settings.sharpness = element.child("Sharpness").number();
    settings.backlightCompensation = readMode(element.child("BacklightCompensation"));
    settings.wideDynamicRange = readMode(element.child("WideDynamicRange"));
    settings.exposure = readExposure(element.child("Exposure"));
    settings.whiteBalance = readWhiteBalance(element.child("WhiteBalance"));
    settings.irCutFilter = modeText(element.child("IrCutFilter"));
    settings.stabilisation = readMode(element.at({"Extension", "ImageStabilization"}));
    settings.defogging = readMode(later.child("Defogging"));
    settings.noiseReduction = later.at({"NoiseReduction", "Level"}).number();
    return settings;
}

ImagingOptions readOptions(const XmlElement &response)
{
    const XmlElement element = response.child(ns::imaging, "ImagingOptions");
    const XmlElement exposure = element.child("Exposure");
    const XmlElement later = lateExtension(element);
    ImagingOptions options;
    options.brightness = readRange(element.child("Brightness"));
    options.contrast = readRange(element.child("Contrast"));
    options.saturation = readRange(element.child("ColorSaturation"));
    options.sharpness = readRange(element.child("Sharpness"));
    options.backlightModes = readModes(element.child("BacklightCompensation"));
    options.backlightLevel = readRange(element.at({"BacklightCompensation", "Level"}));
    options.wideDynamicModes = readModes(element.child("WideDynamicRange"));
    options.wideDynamicLevel = readRange(element.at({"WideDynamicRange", "Level"}));
    options.exposureModes = readModes(exposure);
    options.exposureTime = readRange(exposure.child("ExposureTime"));
    options.minimumExposureTime = readRange(exposure.child("MinExposureTime"));
    options.maximumExposureTime = readRange(exposure.child("MaxExposureTime"));
    options.gain = readRange(exposure.child("Gain"));
    options.minimumGain = readRange(exposure.child("MinGain"));
    options.maximumGain = readRange(exposure.child("MaxGain"));
    options.whiteBalanceModes = readModes(element.child("WhiteBalance"));
    options.redGain = readRange(element.at({"WhiteBalance", "YrGain"}));
    options.blueGain = readRange(element.at({"WhiteBalance", "YbGain"}));
    options.irCutFilterModes = readModes(element, "IrCutFilterModes");
    options.stabilisationModes = readModes(element.at({"Extension", "ImageStabilization"}));
    options.defoggingModes = readModes(later.child("DefoggingOptions"));
    options.hasDefoggingLevel = later.at({"DefoggingOptions", "Level"}).boolean().value_or(false);
    options.hasNoiseReduction = later.at({"NoiseReductionOptions", "Level"}).boolean().value_or(false);
    return options;
}

void appendOptional(pugi::xml_node parent, std::string_view name, const std::optional<double> &value)
{
    if (value)
        append(parent, name, *value);
}

void appendMode(pugi::xml_node parent, std::string_view name, const std::optional<ModeAndLevel> &value)
{
    if (!value)
        return;
    pugi::xml_node element = append(parent, name);
    append(element, "tt:Mode", value->mode);
    appendOptional(element, "tt:Level", value->level);
}

void appendExposure(pugi::xml_node parent, const std::optional<ExposureSettings> &exposure)
{
    if (!exposure)
        return;
    pugi::xml_node element = append(parent, "tt:Exposure");
    append(element, "tt:Mode", exposure->mode);
    appendOptional(element, "tt:MinExposureTime", exposure->minimumTime);
    appendOptional(element, "tt:MaxExposureTime", exposure->maximumTime);
    appendOptional(element, "tt:MinGain", exposure->minimumGain);
    appendOptional(element, "tt:MaxGain", exposure->maximumGain);
    appendOptional(element, "tt:ExposureTime", exposure->time);
    appendOptional(element, "tt:Gain", exposure->gain);
}

/// In the order of the schema.
void appendSettings(pugi::xml_node parent, const ImagingSettings &settings)
{
    appendMode(parent, "tt:BacklightCompensation", settings.backlightCompensation);
    appendOptional(parent, "tt:Brightness", settings.brightness);
    appendOptional(parent, "tt:ColorSaturation", settings.saturation);
    appendOptional(parent, "tt:Contrast", settings.contrast);
    appendExposure(parent, settings.exposure);
    if (!settings.irCutFilter.empty())
        append(parent, "tt:IrCutFilter", settings.irCutFilter);
    appendOptional(parent, "tt:Sharpness", settings.sharpness);
    appendMode(parent, "tt:WideDynamicRange", settings.wideDynamicRange);
    if (settings.whiteBalance) {
        pugi::xml_node element = append(parent, "tt:WhiteBalance");
        append(element, "tt:Mode", settings.whiteBalance->mode);
        appendOptional(element, "tt:CrGain", settings.whiteBalance->redGain);
        appendOptional(element, "tt:CbGain", settings.whiteBalance->blueGain);
    }
    if (!settings.stabilisation && !settings.defogging && !settings.noiseReduction)
        return;
    pugi::xml_node extension = append(parent, "tt:Extension");
    appendMode(extension, "tt:ImageStabilization", settings.stabilisation);
    if (!settings.defogging && !settings.noiseReduction)
        return;
    pugi::xml_node later = append(append(extension, "tt:Extension"), "tt:Extension");
    appendMode(later, "tt:Defogging", settings.defogging);
    if (settings.noiseReduction)
        append(append(later, "tt:NoiseReduction"), "tt:Level", *settings.noiseReduction);
}

} // namespace

ImagingService::ImagingService(SoapClient &client, const ServiceAddress &address, Deadline deadline)
    : m_client(client), m_address(address), m_deadline(deadline)
{
}

ServiceResult<ImagingSettings> ImagingService::settings(const std::string &sourceToken)
{
    const SoapRequest request("timg:GetImagingSettings");
    append(request.operation(), "timg:VideoSourceToken", sourceToken);
    return resultOf(m_client.call(m_address, request, m_deadline), ns::imaging, "GetImagingSettingsResponse",
                    readSettings);
}

ServiceResult<ImagingOptions> ImagingService::options(const std::string &sourceToken)
{
    const SoapRequest request("timg:GetOptions");
    append(request.operation(), "timg:VideoSourceToken", sourceToken);
    return resultOf(m_client.call(m_address, request, m_deadline), ns::imaging, "GetOptionsResponse",
                    readOptions);
}

ServiceOutcome ImagingService::setSettings(const std::string &sourceToken, const ImagingSettings &settings)
{
    const SoapRequest request("timg:SetImagingSettings");
    append(request.operation(), "timg:VideoSourceToken", sourceToken);
    appendSettings(append(request.operation(), "timg:ImagingSettings"), settings);
    appendBoolean(request.operation(), "timg:ForcePersistence", true);
    return resultOf(m_client.call(m_address, request, m_deadline), ns::imaging, "SetImagingSettingsResponse",
                    [](const XmlElement &) { return Nothing(); });
}

} // namespace sdk::onvif

#include "site/services/imagesettings.h"

#include "sdk/demo/device/cameraabilities.h"
#include "sdk/demo/device/channelitems.h"
#include "site/services/mediaparts.h"

#include <array>
#include <cmath>
#include <cstring>
#include <type_traits>

using namespace sdk::demo;

namespace site {

namespace {

constexpr double millisecond = 1000; // in microseconds
constexpr int percent = 100;

constexpr int colour = 0;
constexpr int blackAndWhite = 2;
constexpr int backLightOn = 1;
constexpr int wideDynamicOn = 2;
constexpr int manualWhiteBalance = 4;
constexpr int manualExposure = 1;

ItemKey keyOfItem(sdk::CameraItem item, int channel)
{
    return {static_cast<std::uint32_t>(item), channel, static_cast<std::int32_t>(sdk::CameraMode::Normal)};
}

template<typename Item>
std::optional<Item> read(const SceneDevice &device, sdk::CameraItem number, int channel)
{
    const std::optional<FaultSetting> withheld = device.fault(Fault::WithholdsItem);
    const std::optional<QByteArray> block = channelItem(device, keyOfItem(number, channel));
    if (!block || block->size() != sizeof(Item) || (withheld && withheld->number == static_cast<int>(number)))
        return std::nullopt;
    Item item;
    std::memcpy(&item, block->constData(), sizeof(item));
    return item;
}

template<typename Item>
sdk::NetError write(SceneDevice &device, sdk::CameraItem number, int channel, const std::optional<Item> &item)
{
    if (!item)
        return sdk::NetError::None;
    const QByteArray block(reinterpret_cast<const char *>(&*item), sizeof(Item));
    const ItemKey itemKey = keyOfItem(number, channel);
    return channelItem(device, itemKey) == block ? sdk::NetError::None
                                                 : setChannelItem(device, itemKey, block);
}

/// Reads a number of a range. A missing element changes nothing.
template<typename Number>
bool takeNumber(pugi::xml_node element, std::string_view path, double minimum, double maximum, Number &number)
{
    const std::optional<QString> text = textAt(element, path);
    if (!text)
        return true;
    bool isNumber = false;
    const double value = text->toDouble(&isNumber);
    if (!isNumber || value < minimum || value > maximum)
        return false;
    number = static_cast<Number>(std::is_integral_v<Number> ? std::round(value) : value);
    return true;
}

bool takePercent(pugi::xml_node element, std::string_view path, std::int32_t &number)
{
    return takeNumber(element, path, 0, percent, number);
}

bool readPicture(pugi::xml_node element, ImageSettings &settings)
{
    sdk::PictureItem none = {};
    sdk::PictureItem &picture = settings.picture ? *settings.picture : none;
    sdk::SharpnessItem noSharpness = {};
    sdk::SharpnessItem &sharpness = settings.sharpness ? *settings.sharpness : noSharpness;
    const bool hasPicture = childNamed(element, "tt:Brightness") ||
                            childNamed(element, "tt:ColorSaturation") || childNamed(element, "tt:Contrast");
    return (settings.picture || !hasPicture) &&
           (settings.sharpness || !childNamed(element, "tt:Sharpness")) &&
           takePercent(element, "tt:Brightness", picture.brightness) &&
           takePercent(element, "tt:ColorSaturation", picture.saturation) &&
           takePercent(element, "tt:Contrast", picture.contrast) &&
           takePercent(element, "tt:Sharpness", sharpness.sharpness);
}

/// Both are modes of one item.
bool readBackLight(pugi::xml_node element, ImageSettings &settings)
{
    const std::optional<QString> compensation = textAt(element, "tt:BacklightCompensation/tt:Mode");
    const std::optional<QString> wideDynamic = textAt(element, "tt:WideDynamicRange/tt:Mode");
    if (!compensation && !wideDynamic)
        return true;
    if (!settings.backLight)
        return false;
    sdk::BackLightItem &item = *settings.backLight;
    const QString on = QStringLiteral("ON");
    if (wideDynamic == on)
        item.backMode = wideDynamicOn;
    else if (compensation == on)
        item.backMode = backLightOn;
    else if ((wideDynamic && item.backMode == wideDynamicOn) ||
             (compensation && item.backMode == backLightOn))
        item.backMode = 0;
    return takePercent(element, "tt:WideDynamicRange/tt:Level", item.wideDynamic);
}

bool readExposure(pugi::xml_node element, ImageSettings &settings)
{
    const pugi::xml_node exposure = childNamed(element, "tt:Exposure");
    if (!exposure)
        return true;
    if (!settings.exposure)
        return false;
    sdk::ExposureItem &item = *settings.exposure;
    const bool isManual = textAt(exposure, "tt:Mode") == QStringLiteral("MANUAL");
    if (isManual || item.exposure == manualExposure)
        item.exposure = isManual ? manualExposure : 0;
    double shortest = static_cast<double>(item.shortestShutter) * millisecond;
    double longest = static_cast<double>(item.longestShutter) * millisecond;
    const double most = 1e6;
    const bool isGood = takeNumber(exposure, "tt:MinExposureTime", 0, most, shortest) &&
                        takeNumber(exposure, "tt:MaxExposureTime", 0, most, longest) &&
                        takeNumber(exposure, "tt:ExposureTime", 0, most, longest) &&
                        takePercent(exposure, "tt:MinGain", item.gainMinimum) &&
                        takePercent(exposure, "tt:MaxGain", item.gainMaximum) &&
                        takePercent(exposure, "tt:Gain", item.gain);
    item.shortestShutter = static_cast<float>(shortest / millisecond);
    item.longestShutter = static_cast<float>(longest / millisecond);
    return isGood && shortest <= longest;
}

bool readWhiteBalance(pugi::xml_node element, ImageSettings &settings)
{
    const pugi::xml_node balance = childNamed(element, "tt:WhiteBalance");
    if (!balance)
        return true;
    if (!settings.whiteBalance)
        return false;
    sdk::WhiteBalanceItem &item = *settings.whiteBalance;
    const bool isManual = textAt(balance, "tt:Mode") == QStringLiteral("MANUAL");
    if (isManual || item.type == manualWhiteBalance)
        item.type = isManual ? manualWhiteBalance : 0;
    return takePercent(balance, "tt:CrGain", item.gainRed) &&
           takePercent(balance, "tt:CbGain", item.gainBlue);
}

bool readFilter(pugi::xml_node element, ImageSettings &settings)
{
    const std::optional<QString> filter = textAt(element, "tt:IrCutFilter");
    if (!filter)
        return true;
    if (!settings.dayNight)
        return false;
    if (*filter == QLatin1String("AUTO"))
        settings.dayNight->type = 1;
    else if (*filter == QLatin1String("ON"))
        settings.dayNight->type = colour;
    else if (*filter == QLatin1String("OFF"))
        settings.dayNight->type = blackAndWhite;
    else
        return false;
    return true;
}

const char *filterOf(const sdk::DayNightItem &item)
{
    return item.type == colour ? "ON" : item.type == blackAndWhite ? "OFF" : "AUTO";
}

bool readDefog(pugi::xml_node element, ImageSettings &settings)
{
    const pugi::xml_node defog = nodeAt(element, "tt:Extension/tt:Extension/tt:Extension/tt:Defogging");
    if (!defog)
        return true;
    if (!settings.defog)
        return false;
    const std::optional<QString> mode = textAt(defog, "tt:Mode");
    double level = settings.defog->intensity / static_cast<double>(percent);
    settings.defog->defogMode = mode == QStringLiteral("AUTO") ? 2 : mode == QStringLiteral("ON") ? 1 : 0;
    const bool isGood = takeNumber(defog, "tt:Level", 0, 1, level);
    settings.defog->intensity = static_cast<std::int32_t>(std::lround(level * percent));
    return isGood;
}

void writeExposure(XmlElement element, const sdk::ExposureItem &item)
{
    const bool isManual = item.exposure == manualExposure;
    element.add("tt:Mode", isManual ? "MANUAL" : "AUTO");
    element.add("tt:MinExposureTime", static_cast<double>(item.shortestShutter) * millisecond);
    element.add("tt:MaxExposureTime", static_cast<double>(item.longestShutter) * millisecond);
    element.add("tt:MinGain", item.gainMinimum);
    element.add("tt:MaxGain", item.gainMaximum);
    if (isManual) {
        element.add("tt:ExposureTime", static_cast<double>(item.longestShutter) * millisecond);
        element.add("tt:Gain", item.gain);
    }
}

void addModes(XmlElement element, const char *name, std::initializer_list<const char *> modes)
{
    for (const char *mode : modes)
        element.add(name, mode);
}

} // namespace

std::optional<ImageSettings> imageSettings(const SceneDevice &device, int channel)
{
    using sdk::CameraItem;
    const ImageSettings settings = {
        read<sdk::PictureItem>(device, CameraItem::Picture, channel),
        read<sdk::SharpnessItem>(device, CameraItem::Sharpness, channel),
        read<sdk::ExposureItem>(device, CameraItem::Exposure, channel),
        read<sdk::BackLightItem>(device, CameraItem::BackLight, channel),
        read<sdk::WhiteBalanceItem>(device, CameraItem::WhiteBalance, channel),
        read<sdk::DayNightItem>(device, CameraItem::DayNight, channel),
        read<sdk::DefogItem>(device, CameraItem::Defog, channel),
    };
    return settings.picture || settings.exposure ? std::optional(settings) : std::nullopt;
}

void writeImageSettings(XmlElement element, const ImageSettings &settings)
{
    if (settings.backLight)
        element.add("tt:BacklightCompensation")
            .add("tt:Mode", settings.backLight->backMode == backLightOn ? "ON" : "OFF");
    if (settings.picture) {
        element.add("tt:Brightness", settings.picture->brightness);
        element.add("tt:ColorSaturation", settings.picture->saturation);
        element.add("tt:Contrast", settings.picture->contrast);
    }
    if (settings.exposure)
        writeExposure(element.add("tt:Exposure"), *settings.exposure);
    if (settings.dayNight)
        element.add("tt:IrCutFilter", filterOf(*settings.dayNight));
    if (settings.sharpness)
        element.add("tt:Sharpness", settings.sharpness->sharpness);
    if (settings.backLight) {
        XmlElement range = element.add("tt:WideDynamicRange");
        range.add("tt:Mode", settings.backLight->backMode == wideDynamicOn ? "ON" : "OFF");
        range.add("tt:Level", settings.backLight->wideDynamic);
    }
    if (settings.whiteBalance) {
        const bool isManual = settings.whiteBalance->type == manualWhiteBalance;
        XmlElement balance = element.add("tt:WhiteBalance");
        balance.add("tt:Mode", isManual ? "MANUAL" : "AUTO");
        if (isManual) {
            balance.add("tt:CrGain", settings.whiteBalance->gainRed);
            balance.add("tt:CbGain", settings.whiteBalance->gainBlue);
        }
    }
    if (settings.defog) {
        const int mode = settings.defog->defogMode;
        XmlElement defog =
            element.add("tt:Extension").add("tt:Extension").add("tt:Extension").add("tt:Defogging");
        defog.add("tt:Mode", mode == 2 ? "AUTO" : mode == 1 ? "ON" : "OFF");
        defog.add("tt:Level", settings.defog->intensity / static_cast<double>(percent));
    }
}

bool readImageSettings(pugi::xml_node element, ImageSettings &settings)
{
    return readPicture(element, settings) && readBackLight(element, settings) &&
           readExposure(element, settings) && readWhiteBalance(element, settings) &&
           readFilter(element, settings) && readDefog(element, settings);
}

sdk::NetError takeImageSettings(const ServiceCall &call, int channel, const ImageSettings &settings)
{
    using sdk::CameraItem;
    return call.change([&](SceneDevice &device) {
        const ChannelSettings before = device.channelSettings;
        const std::array results = {
            write(device, CameraItem::Picture, channel, settings.picture),
            write(device, CameraItem::Sharpness, channel, settings.sharpness),
            write(device, CameraItem::Exposure, channel, settings.exposure),
            write(device, CameraItem::BackLight, channel, settings.backLight),
            write(device, CameraItem::WhiteBalance, channel, settings.whiteBalance),
            write(device, CameraItem::DayNight, channel, settings.dayNight),
            write(device, CameraItem::Defog, channel, settings.defog),
        };
        for (const sdk::NetError result : results) {
            if (result != sdk::NetError::None) {
                device.channelSettings = before;
                return result;
            }
        }
        return sdk::NetError::None;
    });
}

void writeImageOptions(XmlElement element, const SceneDevice &device, const ImageSettings &settings)
{
    const sdk::CameraCapabilities capabilities = cameraCapabilities(device);
    const auto range = [](XmlElement parent, const char *name, const sdk::ValueRange &values) {
        writeRange(parent, name, values.minimum, values.maximum);
    };
    if (settings.backLight)
        addModes(element.add("tt:BacklightCompensation"), "tt:Mode", {"OFF", "ON"});
    if (settings.picture) {
        for (const char *name : {"tt:Brightness", "tt:ColorSaturation", "tt:Contrast"})
            range(element, name, capabilities.picture);
    }
    if (settings.exposure) {
        constexpr double longest = 40000;
        XmlElement exposure = element.add("tt:Exposure");
        addModes(exposure, "tt:Mode", {"AUTO", "MANUAL"});
        writeRange(exposure, "tt:MinExposureTime", 0, longest);
        writeRange(exposure, "tt:MaxExposureTime", 0, longest);
        range(exposure, "tt:MinGain", capabilities.gain);
        range(exposure, "tt:MaxGain", capabilities.gain);
        writeRange(exposure, "tt:ExposureTime", 0, longest);
        range(exposure, "tt:Gain", capabilities.gain);
    }
    if (settings.dayNight)
        addModes(element, "tt:IrCutFilterModes", {"ON", "OFF", "AUTO"});
    if (settings.sharpness)
        range(element, "tt:Sharpness", capabilities.sharpness);
    if (settings.backLight) {
        XmlElement wideDynamic = element.add("tt:WideDynamicRange");
        addModes(wideDynamic, "tt:Mode", {"OFF", "ON"});
        range(wideDynamic, "tt:Level", capabilities.wideDynamic);
    }
    if (settings.whiteBalance) {
        XmlElement balance = element.add("tt:WhiteBalance");
        addModes(balance, "tt:Mode", {"AUTO", "MANUAL"});
        range(balance, "tt:YrGain", capabilities.whiteBalanceGain);
        range(balance, "tt:YbGain", capabilities.whiteBalanceGain);
    }
    if (settings.defog) {
        XmlElement defog =
            element.add("tt:Extension").add("tt:Extension").add("tt:Extension").add("tt:DefoggingOptions");
        addModes(defog, "tt:Mode", {"OFF", "ON", "AUTO"});
        defog.add("tt:Level", true);
    }
}

} // namespace site

// The image settings of a channel for the imaging service.
#pragma once

#include "sdk/camerablocks.h"
#include "site/services/mediatokens.h"
#include "site/services/servicecall.h"

#include <optional>

namespace site {

/// The items of a channel (from 0) in CameraMode::Normal. Items that the camera does not support are empty.
struct ImageSettings
{
    std::optional<sdk::PictureItem> picture;
    std::optional<sdk::SharpnessItem> sharpness;
    std::optional<sdk::ExposureItem> exposure;
    std::optional<sdk::BackLightItem> backLight;
    std::optional<sdk::WhiteBalanceItem> whiteBalance;
    std::optional<sdk::DayNightItem> dayNight;
    std::optional<sdk::DefogItem> defog;
};

/// Nothing when the channel has neither picture nor exposure settings.
[[nodiscard]] std::optional<ImageSettings> imageSettings(const sdk::demo::SceneDevice &device, int channel);

/// Adds an element for each setting, as children of "timg:ImagingSettings".
void writeImageSettings(XmlElement element, const ImageSettings &settings);

/// Reads the settings of `element`. Missing elements change nothing. Returns false for settings that the
/// camera does not have, and for values out of range; `settings` may be changed in part then.
[[nodiscard]] bool readImageSettings(pugi::xml_node element, ImageSettings &settings);

/// Writes the settings. The device accepts all or none of them.
[[nodiscard]] sdk::NetError takeImageSettings(const ServiceCall &call, int channel,
                                              const ImageSettings &settings);

/// Adds the range or the modes of each setting, as children of "timg:ImagingOptions".
void writeImageOptions(XmlElement element, const sdk::demo::SceneDevice &device,
                       const ImageSettings &settings);

} // namespace site

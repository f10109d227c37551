// The image settings of a channel for the imaging service.
#pragma once

#include "sdk/camerablocks.h"
#include "site/services/mediatokens.h"
#include "site/services/servicecall.h"

#include <optional>

namespace site {

/// The items (blocks of settings) of a channel in CameraMode::Normal. An item is empty if the camera does not
/// support it or Fault::WithholdsItem withholds it.
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

/// The items of a channel (from 0). Nothing when it has neither picture nor exposure settings, or does not
/// exist.
[[nodiscard]] std::optional<ImageSettings> imageSettings(const sdk::demo::SceneDevice &device, int channel);

/// Adds the settings as children of `element`, a "timg:ImagingSettings". Empty items add nothing.
void writeImageSettings(XmlElement element, const ImageSettings &settings);

/// Changes `settings` by the children of `element`. Missing children change nothing. Returns false for a
/// setting whose item is empty, and for values out of range; `settings` may be changed in part then.
[[nodiscard]] bool readImageSettings(pugi::xml_node element, ImageSettings &settings);

/// Writes the items of `settings` that differ from those of the device; empty items are not written. The
/// device accepts all or none of them. Returns None, the first error, or ConnectTimeout if the device has
/// left the site (ServiceCall::change()).
[[nodiscard]] sdk::NetError takeImageSettings(const ServiceCall &call, int channel,
                                              const ImageSettings &settings);

/// Adds the range or the modes of each setting as children of `element`, a "timg:ImagingOptions". Empty items
/// add nothing.
void writeImageOptions(XmlElement element, const sdk::demo::SceneDevice &device,
                       const ImageSettings &settings);

} // namespace site

// The picture of a channel, as the imaging service shows and changes it.
#pragma once

#include "sdk/camerablocks.h"
#include "site/services/mediatokens.h"
#include "site/services/servicecall.h"

#include <optional>

namespace site {

/// The items of a channel that hold at all times. What a camera cannot do is missing.
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

/// Nothing when there is nothing to set.
[[nodiscard]] std::optional<ImageSettings> imageSettings(const sdk::demo::SceneDevice &device, int channel);

void writeImageSettings(XmlElement element, const ImageSettings &settings);

/// Takes over what stands in `element`. Returns false for what the camera does not have, and for values out
/// of range.
[[nodiscard]] bool readImageSettings(pugi::xml_node element, ImageSettings &settings);

/// The device keeps all of them or none.
[[nodiscard]] sdk::NetError takeImageSettings(const ServiceCall &call, int channel,
                                              const ImageSettings &settings);

void writeImageOptions(XmlElement element, const sdk::demo::SceneDevice &device,
                       const ImageSettings &settings);

} // namespace site

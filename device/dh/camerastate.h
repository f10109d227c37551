// What is known about the camera of one channel, and how it is read.
#pragma once

#include "device/dh/configsession.h"
#include "sdk/camerablocks.h"

/// Items hold for `mode`; those of groups that the camera does not support are zero.
struct CameraState
{
    sdk::CameraMode mode = sdk::CameraMode::Day;
    sdk::CameraCapabilities capabilities{};
    std::uint32_t unreadGroups = 0; ///< a bit for each group whose item could not be read: it is not known
    sdk::VideoColorRecord color{};
    int colorChannel = 0; ///< that the record was read of, or asked of
    sdk::LightingRecord lighting{};
    bool isColorKnown =
        false; ///< otherwise the record must not be written: it would undo what it does not know
    bool isLightingKnown = false;
    sdk::ChannelNameItem channelName{};

    sdk::PictureItem picture{};
    sdk::SharpnessItem sharpness{};
    sdk::MirrorItem mirror{};
    sdk::StableItem stable{};
    sdk::ExposureItem exposure{};
    sdk::NoiseReductionItem noiseReduction{};
    sdk::BackLightItem backLight{};
    sdk::BackLightItem backLightByMode{}; ///< second copy, for the choice of the mode alone
    sdk::WhiteBalanceItem whiteBalance{};
    sdk::DayNightItem dayNight{};
    sdk::DayNightItem dayNightByMode{}; ///< second copy, for the choice of the mode alone
    sdk::DefogItem defog{};
    sdk::LightItem light{};
    sdk::MixedLightItem mixedLight{};

    [[nodiscard]] bool supports(sdk::CameraGroup group) const
    {
        return ((capabilities.groups & ~unreadGroups) >> static_cast<std::uint32_t>(group) & 1) != 0;
    }

    /// The picture of the current mode in the configuration.
    [[nodiscard]] sdk::PictureItem &colorOfMode() { return color.pictures[static_cast<std::size_t>(mode)]; }
    [[nodiscard]] const sdk::PictureItem &colorOfMode() const
    {
        return color.pictures[static_cast<std::size_t>(mode)];
    }
};

/// Size of the texts of "VideoColor" and "Lighting_V2", and how long they may take.
inline constexpr std::uint32_t cameraTextSize = 4096;
inline constexpr std::chrono::milliseconds cameraTextWait{3000};

/// Reads the configuration "VideoColor", which is unknown when it cannot be had.
void readVideoColor(const ConfigSession &session, int channel, CameraState &state);

/// Reads what the camera can do, its configurations and its channel's name; items and mode stay. Returns
/// false when the device does not tell what the camera can do: no group is supported then.
[[nodiscard]] bool readCameraCapabilities(const ConfigSession &session, int channel, CameraState &state);

/// Reads the items of the groups that the camera supports, for the current mode. A group whose item cannot be
/// read counts as one that is not supported until it is read, since its other values would be lost by writing
/// one. Returns false when the device is away.
[[nodiscard]] bool readCameraItems(const ConfigSession &session, int channel, CameraState &state);

/// Reads the one item that is read anew before it is changed. Returns false, with the state unchanged, when
/// it cannot be read.
[[nodiscard]] bool readDefog(const ConfigSession &session, int channel, CameraState &state);

// What is known about the camera of one channel, and how it is read.
#pragma once

#include "device/dh/session/configsession.h"
#include "sdk/camerablocks.h"

/// Items hold for `mode`; those of groups that the camera does not support are zero.
struct CameraState
{
    static constexpr std::uint32_t allGroups = ~0u;

    sdk::CameraMode mode = sdk::CameraMode::Day;
    sdk::CameraCapabilities capabilities{};
    std::uint32_t unreadGroups = allGroups; ///< a bit for each group whose item was not read: it is not known
    bool isNoiseReductionRead = false;      ///< the second item of the exposure
    bool isChannelNameRead = false;
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

    /// Whether the camera has the group.
    [[nodiscard]] bool has(sdk::CameraGroup group) const
    {
        return (capabilities.groups >> static_cast<std::uint32_t>(group) & 1) != 0;
    }

    /// Whether it has the group and the group's item was read.
    [[nodiscard]] bool supports(sdk::CameraGroup group) const
    {
        return has(group) && (unreadGroups >> static_cast<std::uint32_t>(group) & 1) == 0;
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

/// How a reading ended.
enum class CameraReading
{
    Done,
    Refused,    ///< by the device, or not to be understood
    Unanswered, ///< the device is away; what follows was not asked for
};

/// Reads the configuration "VideoColor", which is unknown when it cannot be had.
CameraReading readVideoColor(const ConfigSession &session, int channel, CameraState &state);

/// Reads what the camera can do, its configurations and its channel's name; items and mode stay. Refused says
/// that the device does not tell what the camera can do: no group is supported then. A configuration or a
/// name that is refused is unknown.
[[nodiscard]] CameraReading readCameraCapabilities(const ConfigSession &session, int channel,
                                                   CameraState &state);

/// Reads the items of the groups that the camera has, for the current mode. A group whose item cannot be read
/// counts as one that is not supported until it is read, since its other values would be lost by writing one.
/// Returns false when the device is away.
[[nodiscard]] bool readCameraItems(const ConfigSession &session, int channel, CameraState &state);

/// Reads the item that is read again each time before it is changed. Returns false, with the state unchanged,
/// when it cannot be read.
[[nodiscard]] bool readDefog(const ConfigSession &session, int channel, CameraState &state);

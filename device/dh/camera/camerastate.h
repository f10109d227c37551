// The state of one camera channel, and functions that read it.
#pragma once

#include "device/dh/session/configsession.h"
#include "sdk/camerablocks.h"

/// State read from one camera channel. The items belong to `mode`. After readCameraItems() an item that was
/// not read is zero.
struct CameraState
{
    static constexpr std::uint32_t allGroups = ~0u;

    sdk::CameraMode mode = sdk::CameraMode::Day;
    sdk::CameraCapabilities capabilities{};
    std::uint32_t unreadGroups = allGroups; ///< bit n: the item of group n was not read
    bool isNoiseReductionRead = false;      ///< noise reduction is a second item of the group Exposure
    bool isChannelNameRead = false;
    sdk::VideoColorRecord color{};
    int colorChannel = 0; ///< channel of `color`
    sdk::LightingRecord lighting{};
    bool isColorKnown =
        false; ///< whether `color` was read; otherwise writing it would overwrite unknown values
    bool isLightingKnown = false;
    sdk::ChannelNameItem channelName{};

    sdk::PictureItem picture{};
    sdk::SharpnessItem sharpness{};
    sdk::MirrorItem mirror{};
    sdk::StableItem stable{};
    sdk::ExposureItem exposure{};
    sdk::NoiseReductionItem noiseReduction{};
    sdk::BackLightItem backLight{};
    sdk::BackLightItem backLightByMode{}; ///< second copy, for changes of the mode only
    sdk::WhiteBalanceItem whiteBalance{};
    sdk::DayNightItem dayNight{};
    sdk::DayNightItem dayNightByMode{}; ///< second copy, for changes of the mode only
    sdk::DefogItem defog{};
    sdk::LightItem light{};
    sdk::MixedLightItem mixedLight{};

    /// Whether the camera has the group.
    [[nodiscard]] bool has(sdk::CameraGroup group) const
    {
        return (capabilities.groups >> static_cast<std::uint32_t>(group) & 1) != 0;
    }

    /// Whether the camera has the group and its item was read.
    [[nodiscard]] bool supports(sdk::CameraGroup group) const
    {
        return has(group) && (unreadGroups >> static_cast<std::uint32_t>(group) & 1) == 0;
    }

    /// The picture values of the current mode in the configuration "VideoColor".
    [[nodiscard]] sdk::PictureItem &colorOfMode() { return color.pictures[static_cast<std::size_t>(mode)]; }
    [[nodiscard]] const sdk::PictureItem &colorOfMode() const
    {
        return color.pictures[static_cast<std::size_t>(mode)];
    }
};

/// Maximum size of the texts of "VideoColor" and "Lighting_V2", and the timeout for each.
inline constexpr std::uint32_t cameraTextSize = 4096;
inline constexpr std::chrono::milliseconds cameraTextWait{3000};

/// Result of a read.
enum class CameraReading
{
    Done,
    Refused,    ///< refused by the device, or the response is invalid
    NoResponse, ///< the device does not respond; further requests were not sent
};

/// Reads the configuration "VideoColor" of a channel. `state.isColorKnown` is false on failure.
CameraReading readVideoColor(const ConfigSession &session, int channel, CameraState &state);

/// Reads capabilities, configurations and channel name; items and mode are unchanged. Refused: the device
/// does not report its capabilities, and no group is supported. A refused configuration or name is marked as
/// unknown.
[[nodiscard]] CameraReading readCameraCapabilities(const ConfigSession &session, int channel,
                                                   CameraState &state);

/// Reads the items of the camera's groups for the current mode. A group whose item cannot be read counts as
/// unsupported until it is read, since writing one value would overwrite its other values. Returns false if
/// the device does not respond.
[[nodiscard]] bool readCameraItems(const ConfigSession &session, int channel, CameraState &state);

/// Reads the defog item, which is read again before each change. Returns false, and leaves the state
/// unchanged, on failure.
[[nodiscard]] bool readDefog(const ConfigSession &session, int channel, CameraState &state);

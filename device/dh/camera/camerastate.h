// The state of one camera channel, and functions that read it.
#pragma once

#include "device/dh/session/configsession.h"
#include "sdk/camerablocks.h"

/// State read from one camera channel. The items belong to `mode`, the selected mode. An item of
/// readCameraItems() that could not be read is zero.
struct CameraState
{
    static constexpr std::uint32_t allGroups = ~0u;

    sdk::CameraMode mode = sdk::CameraMode::Day;
    sdk::CameraCapabilities capabilities{};
    std::uint32_t unreadGroups = allGroups; ///< bit n: the item of sdk::CameraGroup n was not read
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

    /// Whether the camera reports the group in its capabilities.
    [[nodiscard]] bool has(sdk::CameraGroup group) const
    {
        return (capabilities.groups >> static_cast<std::uint32_t>(group) & 1) != 0;
    }

    /// Whether the camera has the group and its item was read, so that it can be written.
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

/// Maximum size in bytes of the texts of the configurations "VideoColor" and "Lighting_V2", and the timeout
/// of a request for one of them.
inline constexpr std::uint32_t cameraTextSize = 4096;
inline constexpr std::chrono::milliseconds cameraTextWait{3000};

/// Result of a read.
enum class CameraReading
{
    Done,
    Refused,    ///< refused by the device, or the response is invalid
    NoResponse, ///< the device does not respond; further requests were not sent
};

// The functions below block for the timeouts of the device library. Channels are counted from 0.

/// Reads the configuration "VideoColor" of a channel. On failure `state.color` is zero and
/// `state.isColorKnown` false.
CameraReading readVideoColor(const ConfigSession &session, int channel, CameraState &state);

/// Reads the capabilities, the configurations that belong to them and the channel name; items and mode are
/// unchanged. Refused: the device does not report its capabilities; no group is supported then, and the
/// earlier configurations and name stay. A refused configuration or name is marked as unknown, and the result
/// is Done. NoResponse: `state` contains the responses received before; capabilities that were not received
/// are empty.
[[nodiscard]] CameraReading readCameraCapabilities(const ConfigSession &session, int channel,
                                                   CameraState &state);

/// Reads the items of the groups in the capabilities for the current mode. A group whose item cannot be read
/// counts as unsupported until it is read, since writing one of its values would overwrite the others.
/// Returns false if the device does not respond; the items that were not requested count as not read.
[[nodiscard]] bool readCameraItems(const ConfigSession &session, int channel, CameraState &state);

/// Reads the defog item, which is read again before each change. Returns false, and leaves the state
/// unchanged, on failure.
[[nodiscard]] bool readDefog(const ConfigSession &session, int channel, CameraState &state);

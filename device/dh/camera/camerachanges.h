// Changes of the image settings, and the writes that they need.
#pragma once

#include "device/dh/camera/cameravalues.h"

#include <QList>

/// One write request to the device: an item (see sdk::CameraItem) unless stated otherwise.
enum class CameraWrite
{
    Picture,
    ColorRecord, ///< picture item written as the record of all modes
    VideoColor,  ///< configuration "VideoColor"
    Sharpness,
    Mirror,
    Stable,
    Exposure,
    NoiseReduction,
    BackLight,
    BackLightByMode, ///< item BackLight with the values of CameraState::backLightByMode
    WhiteBalance,
    DayNight,
    DayNightByMode, ///< item DayNight with the values of CameraState::dayNightByMode
    Defog,
    Light,
    MixedLight,
    Lighting, ///< configuration "Lighting_V2"
    ChannelName,
};

/// Whether a change of `key` (see CameraKey) changes the configuration "VideoColor" in the state or on the
/// device. The caller must read that configuration of the channel before; a change of a single value of it
/// (curBrightness, ...) is refused while it is unknown.
[[nodiscard]] bool changesColor(const QString &key);

/// Applies a change to `state` and returns the writes that send it to the device, in their order; sends
/// nothing. `key` is a CameraKey and `subKey` a CameraSetting, which state the type of `value`; an empty
/// sub-key means "value", the main value of a group. Keys without sub-keys ignore it. Returns an empty list
/// and leaves `state` unchanged for an unknown key or sub-key, a group that the camera does not support or
/// that was not read, or an invalid value. Numbers are clamped to their range, those of sliders to the
/// camera's. An exposure time outside 0 to 100000 ms and a sensitivity of the mixed light other than 1, 3 and
/// 5 are not clamped, but invalid. A channel name is stored without invisible characters and surrounding
/// spaces, and truncated to the bytes that a device can store; an empty one is invalid.
[[nodiscard]] QList<CameraWrite> changeCamera(const QString &key, const QString &subKey,
                                              const QVariant &value, const ValueTables &tables,
                                              CameraState &state);

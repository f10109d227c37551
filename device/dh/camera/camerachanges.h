// Changes of the image settings, and the writes that they need.
#pragma once

#include "device/dh/camera/cameravalues.h"

#include <QList>

/// One write request to the device.
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
    BackLightByMode,
    WhiteBalance,
    DayNight,
    DayNightByMode,
    Defog,
    Light,
    MixedLight,
    Lighting, ///< configuration "Lighting_V2"
    ChannelName,
};

/// Whether a change of `key` changes the configuration "VideoColor" in the state or on the device.
[[nodiscard]] bool changesColor(const QString &key);

/// Applies a change to `state` and returns the writes in their order. Returns an empty list and leaves
/// `state` unchanged for an unknown key or sub-key, a group that the camera does not support, or an invalid
/// value. Numbers are clamped to their range, those of sliders to the camera's. An empty sub-key means
/// "value", the main value of a group. Keys without sub-keys ignore it.
[[nodiscard]] QList<CameraWrite> changeCamera(const QString &key, const QString &subKey,
                                              const QVariant &value, const ValueTables &tables,
                                              CameraState &state);

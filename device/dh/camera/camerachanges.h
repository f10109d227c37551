// What a changed value of the camera image page does to the state, and what is to be written for it.
#pragma once

#include "device/dh/camera/cameravalues.h"

#include <QList>

/// One write to the device.
enum class CameraWrite
{
    Picture,
    ColorRecord, ///< the item of the picture, written with the pictures of all modes
    VideoColor,  ///< configuration
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

/// Whether a change of `key` changes the configuration "VideoColor" in the state, or writes it.
[[nodiscard]] bool changesColor(const QString &key);

/// Changes `state` and returns the writes in their order. Nothing, with the state unchanged, for an unknown
/// key or sub-key, a group that the camera does not support, or a value that is none; numbers out of the
/// camera's range are brought into it. A sub-key may be left out where a group has one value only.
[[nodiscard]] QList<CameraWrite> changeCamera(const QString &key, const QString &subKey,
                                              const QVariant &value, const ValueTables &tables,
                                              CameraState &state);

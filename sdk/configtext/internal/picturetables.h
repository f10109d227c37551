// Tables of the image configurations: "Encode", "VideoColor" and "Lighting_V2". A table lists the JSON keys
// of a configuration and the fields of its record: encodeFields of EncodeRecord, videoColorFields of
// VideoColorRecord, lightingFields of LightingRecord. The other tables are their inner objects.
#pragma once

#include "sdk/camerablocks.h"
#include "sdk/configtext/internal/configfield.h"
#include "sdk/encodeblocks.h"

#include <array>
#include <limits>

namespace sdk::picturetables {

constexpr std::int32_t largest = std::numeric_limits<std::int32_t>::max(); ///< for numbers without a limit
constexpr std::int32_t largestSide = 65535;                                ///< of a frame, in pixels
constexpr std::int32_t largestValue = 10000; ///< of a camera's setting with a slider or a list

// Fields of the three kinds that the image configurations need. `offset` is in bytes from the start of the
// record, or of the inner struct. A number is valid from 0 to `maximum`.

constexpr ConfigField number(const char *key, std::size_t offset, std::int32_t maximum)
{
    return {key, offset, ConfigFieldKind::Number, 0, maximum};
}

constexpr ConfigField flag(const char *key, std::size_t offset)
{
    return {key, offset, ConfigFieldKind::Flag, 0, 1};
}

template<std::size_t count>
constexpr ConfigField object(const char *key, std::size_t offset, const std::array<ConfigField, count> &inner)
{
    return {key, offset, ConfigFieldKind::Object, 0, 0, 0, inner.data(), count};
}

constexpr std::array streamFields = {
    flag("videoEnabled", offsetof(EncodeStreamRecord, videoEnabled)),
    number("compression", offsetof(EncodeStreamRecord, compression), 31),
    number("profile", offsetof(EncodeStreamRecord, profile), 255),
    number("width", offsetof(EncodeStreamRecord, width), largestSide),
    number("height", offsetof(EncodeStreamRecord, height), largestSide),
    number("bitRateControl", offsetof(EncodeStreamRecord, bitRateControl), 1),
    number("bitRate", offsetof(EncodeStreamRecord, bitRate), largest),
    number("frameRate", offsetof(EncodeStreamRecord, frameRate), 1000),
    number("quality", offsetof(EncodeStreamRecord, quality), 6),
    flag("audioEnabled", offsetof(EncodeStreamRecord, audioEnabled)),
    number("audioFormat", offsetof(EncodeStreamRecord, audioFormat), 255),
    number("samplingFrequency", offsetof(EncodeStreamRecord, samplingFrequency), largest),
};

/// The offset of a stream in EncodeRecord, in bytes.
constexpr std::size_t streamOffset(StreamKind kind)
{
    return offsetof(EncodeRecord, streams) + static_cast<std::size_t>(kind) * sizeof(EncodeStreamRecord);
}

constexpr std::array encodeFields = {
    object("mainNormal", streamOffset(StreamKind::MainNormal), streamFields),
    object("mainMotion", streamOffset(StreamKind::MainMotion), streamFields),
    object("mainAlarm", streamOffset(StreamKind::MainAlarm), streamFields),
    object("sub", streamOffset(StreamKind::Sub), streamFields),
};

constexpr std::array pictureFields = {
    number("colorStyle", offsetof(PictureItem, colorStyle), largestValue),
    number("brightness", offsetof(PictureItem, brightness), largestValue),
    number("contrast", offsetof(PictureItem, contrast), largestValue),
    number("saturation", offsetof(PictureItem, saturation), largestValue),
    number("hue", offsetof(PictureItem, hue), largestValue),
    number("gamma", offsetof(PictureItem, gamma), largestValue),
};

/// The offset of a mode in VideoColorRecord, in bytes.
constexpr std::size_t pictureOffset(CameraMode mode)
{
    return offsetof(VideoColorRecord, pictures) + static_cast<std::size_t>(mode) * sizeof(PictureItem);
}

constexpr std::array videoColorFields = {
    object("day", pictureOffset(CameraMode::Day), pictureFields),
    object("night", pictureOffset(CameraMode::Night), pictureFields),
    object("normal", pictureOffset(CameraMode::Normal), pictureFields),
};

constexpr std::array lightFields = {
    number("controlMode", offsetof(MixedLightItem, controlMode), largestValue),
    number("mixMode", offsetof(MixedLightItem, mixMode), largestValue),
    number("lightMode", offsetof(MixedLightItem, lightMode), largestValue),
    number("sensitive", offsetof(MixedLightItem, sensitive), largestValue),
    number("correction", offsetof(MixedLightItem, correction), largestValue),
    number("brightness", offsetof(MixedLightItem, brightness), largestValue),
    number("delay", offsetof(MixedLightItem, delay), largestValue),
};

/// The offset of a mode in LightingRecord, in bytes.
constexpr std::size_t lightOffset(CameraMode mode)
{
    return offsetof(LightingRecord, lights) + static_cast<std::size_t>(mode) * sizeof(MixedLightItem);
}

constexpr std::array lightingFields = {
    object("day", lightOffset(CameraMode::Day), lightFields),
    object("night", lightOffset(CameraMode::Night), lightFields),
    object("normal", lightOffset(CameraMode::Normal), lightFields),
};

} // namespace sdk::picturetables

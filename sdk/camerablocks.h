// Blocks of the image configuration: the items of a video input, and the capabilities of its camera. An item
// is a group of settings that is read and written as one block, by its number (NetGetItem, NetSetItem).
//
// Every number is a little-endian word of 32 bits. The caller sets the word "size" of an item to the size of
// its struct, and the word "mode", if the item has one, to a CameraMode: before reading, to select the
// settings of that mode, and before writing. A level without a stated range has the range of the same name in
// CameraCapabilities. Words named "reserved" are not used.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace sdk {

/// The condition in which the settings of an item apply. A device has separate settings for each mode that
/// it supports (CameraCapabilities::switchModeMask).
enum class CameraMode : std::int32_t
{
    Day = 0,
    Night = 1,
    Normal = 2,
};

inline constexpr std::size_t cameraModeCount = 3;

/// Item numbers of NetGetItem and NetSetItem that belong to a video input. NetSetItem also accepts a
/// VideoColorRecord with the number Picture, which writes the settings of all modes.
enum class CameraItem : std::uint32_t
{
    ChannelName = 1108,
    Picture = 1301,
    Mirror = 1302,
    Stable = 1303,
    Exposure = 1306,
    BackLight = 1309,
    Light = 1311,
    WhiteBalance = 1315,
    DayNight = 1316,
    Defog = 1317,
    Sharpness = 1318,
    NoiseReduction = 1320,
    MixedLight = 1324,
};

/// CameraItem::ChannelName.
struct ChannelNameItem
{
    std::uint32_t size;
    std::array<char, 256> name; ///< UTF-8
};
static_assert(sizeof(ChannelNameItem) == 260);

/// CameraItem::Picture. Brightness to gamma have the range CameraCapabilities::picture, usually 0 to 100.
struct PictureItem
{
    std::uint32_t size;
    std::int32_t mode;
    std::int32_t colorStyle; ///< 1 soft, 2 standard, 3 vivid
    std::int32_t brightness;
    std::int32_t contrast;
    std::int32_t saturation;
    std::int32_t hue;
    std::int32_t gamma;
    std::array<std::int32_t, 8> reserved;
};
static_assert(sizeof(PictureItem) == 64);
static_assert(offsetof(PictureItem, brightness) == 12);

/// CameraItem::Sharpness.
struct SharpnessItem
{
    std::uint32_t size;
    std::int32_t mode;
    std::int32_t sharpness;
    std::array<std::int32_t, 2> reserved;
};
static_assert(sizeof(SharpnessItem) == 20);

/// CameraItem::Mirror.
struct MirrorItem
{
    std::uint32_t size;
    std::int32_t mode;
    std::int32_t mirror; ///< 0 or 1
    std::int32_t rotate; ///< 0 normal, 1 and 2 the corridor modes (upright images), 3 upside down
    std::int32_t reserved;
};
static_assert(sizeof(MirrorItem) == 20);

/// CameraItem::Stable.
struct StableItem
{
    std::uint32_t size;
    std::int32_t mode;
    std::int32_t stable; ///< 0 or 1: electronic image stabilisation
};
static_assert(sizeof(StableItem) == 12);

/// CameraItem::Exposure.
struct ExposureItem
{
    std::uint32_t size;
    std::int32_t mode;
    std::int32_t antiFlicker;   ///< 0 outdoors, 1 50 Hz, 2 60 Hz
    std::int32_t exposure;      ///< 0 automatic, 1 manual, 2 gain priority, 3 shutter priority
    float shortestShutter;      ///< in milliseconds
    float longestShutter;       ///< in milliseconds
    std::int32_t gain;          ///< with a fixed gain; range CameraCapabilities::gain
    std::int32_t gainMinimum;   ///< of an automatic gain; the same range
    std::int32_t gainMaximum;   ///< of an automatic gain; the same range
    std::int32_t compensation;  ///< level of the exposure compensation
    std::int32_t irisAutomatic; ///< 0 or 1
    std::array<std::int32_t, 5> reserved;
};
static_assert(sizeof(ExposureItem) == 64);
static_assert(offsetof(ExposureItem, shortestShutter) == 16);

/// CameraItem::NoiseReduction. It belongs to CameraGroup::Exposure.
struct NoiseReductionItem
{
    std::uint32_t size;
    std::int32_t mode;
    std::int32_t type;  ///< 0 off, 1 automatic
    std::int32_t level; ///< of the reduction over time; range CameraCapabilities::noiseReduction
};
static_assert(sizeof(NoiseReductionItem) == 16);

/// CameraItem::BackLight.
struct BackLightItem
{
    std::uint32_t size;
    std::int32_t mode;
    std::int32_t backMode;        ///< 0 off, 1 backlight compensation, 2 wide dynamic range, 3 reduction of
                                  ///< strong light
    std::int32_t backLightMode;   ///< of backlight compensation: 0 complete image, 1 the region
    std::int32_t wideDynamic;     ///< level of the wide dynamic range
    std::int32_t glareInhibition; ///< level of the reduction of strong light
    std::int32_t regionTop;       ///< sides of the region from the upper left, 0 to 8192 (the complete image)
    std::int32_t regionBottom;
    std::int32_t regionLeft;
    std::int32_t regionRight;
};
static_assert(sizeof(BackLightItem) == 40);
static_assert(offsetof(BackLightItem, regionTop) == 24);

/// CameraItem::WhiteBalance.
struct WhiteBalanceItem
{
    std::uint32_t size;
    std::int32_t mode;
    std::int32_t type;     ///< 0 automatic, 1 natural light, 2 street lamp, 3 outdoors, 4 manual, 5 region
    std::int32_t gainBlue; ///< of the manual type; range CameraCapabilities::whiteBalanceGain
    std::int32_t gainRed;  ///< the same
    std::array<std::int32_t, 2> reserved;
};
static_assert(sizeof(WhiteBalanceItem) == 28);

/// CameraItem::DayNight.
struct DayNightItem
{
    std::uint32_t size;
    std::int32_t mode;
    std::int32_t type;        ///< 0 colour, 1 automatic, 2 black and white
    std::int32_t sensitivity; ///< 1 low, 2 medium, 3 high
    std::int32_t switchDelay; ///< in seconds, 2 to 10
};
static_assert(sizeof(DayNightItem) == 20);

/// CameraItem::Defog.
struct DefogItem
{
    std::uint32_t size;
    std::int32_t mode;
    std::int32_t defogMode; ///< 0 off, 1 manual, 2 automatic
    std::int32_t intensity; ///< with the manual mode; range CameraCapabilities::defogIntensity
    std::array<std::int32_t, 4> reserved;
};
static_assert(sizeof(DefogItem) == 32);

/// CameraItem::Light: cameras with one type of light. The item has no mode: its settings apply in every
/// condition. The levels have the range CameraCapabilities::light.
struct LightItem
{
    std::uint32_t size;
    std::int32_t controlMode; ///< 0 off, 1 manual, 2 automatic
    std::int32_t lightMode;   ///< which lamps: 0 near and far, 1 near, 2 far
    std::int32_t nearLight;   ///< level
    std::int32_t farLight;    ///< level
    std::int32_t correction;  ///< level of the light correction
};
static_assert(sizeof(LightItem) == 24);

/// CameraItem::MixedLight: cameras with infrared and white light. The levels have the range
/// CameraCapabilities::mixedLight.
struct MixedLightItem
{
    std::uint32_t size;
    std::int32_t mode;
    std::int32_t controlMode; ///< 0 off, 1 manual, 2 automatic
    std::int32_t mixMode;     ///< which lights: 0 infrared, 1 white, 2 selected by the camera
    std::int32_t lightMode;   ///< which lamps: 0 near and far, 1 near, 2 far
    std::int32_t sensitive;   ///< sensitivity: 1 low, 3 medium, 5 high
    std::int32_t correction;  ///< level of the light correction
    std::int32_t brightness;  ///< level
    std::int32_t delay;       ///< in seconds, 0 to 3600
    std::int32_t reserved;
};
static_assert(sizeof(MixedLightItem) == 40);

/// Configuration "VideoColor": the image settings of a channel, as CameraItem::Picture. The first three
/// entries are indexed by CameraMode. The other entries are settings for times of day, and are not used.
struct VideoColorRecord
{
    std::uint32_t size;
    std::int32_t reserved;
    std::array<PictureItem, 24> pictures; ///< the words "size" and "mode" of the entries are not used
};
static_assert(sizeof(VideoColorRecord) == 1544);
static_assert(offsetof(VideoColorRecord, pictures) == 8);

/// Configuration "Lighting_V2": the lights of a channel, as CameraItem::MixedLight.
struct LightingRecord
{
    std::uint32_t size;
    std::int32_t reserved1;
    std::array<MixedLightItem, cameraModeCount> lights; ///< indexed by CameraMode
    std::array<std::uint8_t, 384> reserved2;
};
static_assert(sizeof(LightingRecord) == 512);

/// Groups of settings, each with the CameraItem of the same name (Exposure also with NoiseReduction). A
/// camera that lacks a group does not have its items. Bit numbers of CameraCapabilities::groups.
enum class CameraGroup : std::uint32_t
{
    Picture = 0,
    Sharpness,
    Mirror,
    Stable,
    Exposure,
    BackLight,
    WhiteBalance,
    DayNight,
    Defog,
    Light,
    MixedLight,
};

inline constexpr std::uint32_t cameraGroupCount = 11;

/// The range of a setting, both ends included. It comes from a device and is not checked: both ends may be
/// equal, or `minimum` may exceed `maximum`.
struct ValueRange
{
    std::int32_t minimum;
    std::int32_t maximum;
};
static_assert(sizeof(ValueRange) == 8);

/// Single values of a supported group that a camera may lack. Bit numbers of
/// CameraCapabilities::missingValues.
enum class CameraValue : std::uint32_t
{
    Brightness = 0,
    Contrast,
    Saturation,
    Hue,
    Gamma,
    ColorStyle,
    AntiFlicker,
    ShutterTimes,
    Gain,
    Compensation,
    IrisAutomatic,
    NoiseReduction,
    WideDynamicLevel,
    GlareInhibition,
    BacklightRegion,
    WhiteBalanceGains,
    DayNightSensitivity,
    DayNightDelay,
    DefogIntensity,
};

/// Output of CapabilityQuery::Camera. In a mask, bit N is set if the camera supports the value N of the named
/// word. Bits of values that this header does not define are ignored.
struct CameraCapabilities
{
    std::uint32_t size;             ///< sizeof(CameraCapabilities), set by the caller
    std::uint32_t groups;           ///< CameraGroup: bit N is set if the camera has the group
    std::uint32_t switchModeMask;   ///< CameraMode: the modes with separate settings
    std::uint32_t colorStyleMask;   ///< PictureItem::colorStyle
    std::uint32_t rotateMask;       ///< MirrorItem::rotate
    std::uint32_t antiFlickerMask;  ///< ExposureItem::antiFlicker
    std::uint32_t exposureMask;     ///< ExposureItem::exposure
    std::uint32_t backModeMask;     ///< BackLightItem::backMode
    std::uint32_t whiteBalanceMask; ///< WhiteBalanceItem::type
    std::uint32_t dayNightMask;     ///< DayNightItem::type
    std::uint32_t defogMask;        ///< DefogItem::defogMode
    std::uint32_t lightControlMask; ///< LightItem::controlMode and MixedLightItem::controlMode
    std::uint32_t mixedLightMask;   ///< MixedLightItem::mixMode
    std::uint32_t missingValues;    ///< CameraValue: bit N is set if the camera lacks the value
    ValueRange picture;             ///< brightness, contrast, saturation, hue, gamma
    ValueRange sharpness;
    ValueRange gain;
    ValueRange compensation;
    ValueRange noiseReduction;
    ValueRange wideDynamic;
    ValueRange glareInhibition;
    ValueRange whiteBalanceGain;
    ValueRange defogIntensity;
    ValueRange light;      ///< near and far light, correction
    ValueRange mixedLight; ///< correction, brightness
    std::array<std::uint8_t, 112> reserved2;
};
static_assert(sizeof(CameraCapabilities) == 256);
static_assert(offsetof(CameraCapabilities, picture) == 56);

/// Input of CapabilityQuery::Camera.
struct CameraCapabilityInput
{
    std::uint32_t size;   ///< sizeof(CameraCapabilityInput)
    std::int32_t channel; ///< from 0
};
static_assert(sizeof(CameraCapabilityInput) == 8);

} // namespace sdk

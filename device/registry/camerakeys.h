// Keys of the camera image page: of getConfigData() and setConfigData(), and of the maps that they exchange
// with QML.
#pragma once

#include <QString>

#include <array>

/// Keys of getConfigData() and setConfigData(). The keys up to lightControlEx are the names of groups of
/// settings. getConfigData() returns a map for a group, with the keys of CameraGroupKey and CameraSetting.
/// setConfigData() writes one setting of a group: its sub-key, the argument `otype`, is a key of
/// CameraSetting.
namespace CameraKey {
inline constexpr QLatin1StringView picture("picture");
inline constexpr QLatin1StringView sharpness("sharpness");
inline constexpr QLatin1StringView mirror("mirror");
inline constexpr QLatin1StringView stable("stable"); ///< electronic image stabilisation
inline constexpr QLatin1StringView exposure("exposure");
inline constexpr QLatin1StringView backMode("backMode"); ///< backlight and wide dynamic range
inline constexpr QLatin1StringView whiteBalance("whiteBalance");
inline constexpr QLatin1StringView dayNight("dayNight");
inline constexpr QLatin1StringView inDefog("inDefog");
inline constexpr QLatin1StringView lightControl("lightControl");     ///< one type of light
inline constexpr QLatin1StringView lightControlEx("lightControlEx"); ///< mixed infrared and white light

/// All groups.
inline constexpr std::array groups = {picture,      sharpness, mirror,  stable,       exposure,      backMode,
                                      whiteBalance, dayNight,  inDefog, lightControl, lightControlEx};

/// List of strings: the modes of curSwitchMode. A camera has separate settings for each mode.
inline constexpr QLatin1StringView allSwitchMode("allSwitchMode");
inline constexpr QLatin1StringView curSwitchMode("curSwitchMode"); ///< int: index in allSwitchMode
/// Int: 0 day, 1 night, 2 normal. A write applies the settings of the group dayNight to this mode.
inline constexpr QLatin1StringView curDayNightMode("curDayNightMode");
/// Int: the backlight mode, 0 off, 1 backlight, 2 wide dynamic range, 3 strong light.
inline constexpr QLatin1StringView curBackLightMode("curBackLightMode");
inline constexpr QLatin1StringView curChannelName("curChannelName"); ///< string; null if it was not read
// Int: single picture settings of the current mode. Their ranges are those of the group picture.
inline constexpr QLatin1StringView curColorStyle("curColorStyle"); ///< 1 to 3; 2 is the standard
inline constexpr QLatin1StringView curBrightness("curBrightness");
inline constexpr QLatin1StringView curContrast("curContrast");
inline constexpr QLatin1StringView curSaturation("curSaturation");
inline constexpr QLatin1StringView curGamma("curGamma");
/// Write only, the value is ignored: sets the standard style and the middle of the range of the other picture
/// settings.
inline constexpr QLatin1StringView setDefault("setDefault");
} // namespace CameraKey

/// Keys of the map of a group, in addition to its settings.
namespace CameraGroupKey {
inline constexpr QLatin1StringView support("support"); ///< bool: the camera has the group, and it was read
inline constexpr QLatin1StringView unread("unread"); ///< bool: the camera has the group, but it was not read
/// List of strings: settings (keys of CameraSetting) that the camera does not have. May be missing.
inline constexpr QLatin1StringView missing("missing");
/// Map: a map of `min` and `max` for each setting that has a range.
inline constexpr QLatin1StringView ranges("ranges");
inline constexpr QLatin1StringView min("min"); ///< int, included
inline constexpr QLatin1StringView max("max"); ///< int, included
} // namespace CameraGroupKey

/// Settings of the groups, as keys of their maps and as sub-keys of setConfigData(). A key "all..." is a list
/// of strings, read only: the choices of another setting, which is an index in this list, -1 for none. Other
/// settings are int unless stated otherwise. Their units are those of the camera unless stated; the map
/// `ranges` of the group has their ranges, as far as they have one.
namespace CameraSetting {
/// The main setting of the groups sharpness (int), mirror and stable (bool), and exposure (index in
/// allExposureType).
inline constexpr QLatin1StringView value("value");

// picture
inline constexpr QLatin1StringView colorStyle("colorStyle"); ///< 1 to 3; 2 is the standard
inline constexpr QLatin1StringView brightnessSlider("brightnessSlider");
inline constexpr QLatin1StringView contrastSlider("contrastSlider");
inline constexpr QLatin1StringView saturationSlider("saturationSlider");
inline constexpr QLatin1StringView hue("hue");
inline constexpr QLatin1StringView gamma("gamma");

// mirror
inline constexpr QLatin1StringView rotate("Rotate"); ///< int: 0 normal, 1 and 2 corridor, 3 upside down
inline constexpr QLatin1StringView rotateSupport("rotateSupport"); ///< bool; read only

// exposure
inline constexpr QLatin1StringView allAntiFlickerType("allAntiFlickerType");
inline constexpr QLatin1StringView antiFlicker("antiFlicker");
inline constexpr QLatin1StringView allExposureType("allExposureType");
inline constexpr QLatin1StringView shortestShutter("dbExposureValue1"); ///< milliseconds
inline constexpr QLatin1StringView longestShutter("dbExposureValue2");  ///< milliseconds
inline constexpr QLatin1StringView gainValue("GainValue");
inline constexpr QLatin1StringView gainMin("GainMin");
inline constexpr QLatin1StringView gainMax("GainMax");
inline constexpr QLatin1StringView compensation("Compensation");
inline constexpr QLatin1StringView irisAuto("irisAuto");                           ///< bool
inline constexpr QLatin1StringView noiseReductionSupport("noiseReductionSupport"); ///< bool: it was read
inline constexpr QLatin1StringView noiseReductionType("3DType");                   ///< 0 off, 1 automatic
inline constexpr QLatin1StringView noiseReductionLevel("3D");
inline constexpr QLatin1StringView shutter("shutter"); ///< in `missing` only: both shutter times
inline constexpr QLatin1StringView gain("gain");       ///< in `missing` only: all gain values

// backMode
inline constexpr QLatin1StringView allBackModeType("allBackModeType");
inline constexpr QLatin1StringView backmode("backmode"); ///< index in allBackModeType
/// 0 complete image, 1 the region. In `missing` it stands for backlightRegion as well.
inline constexpr QLatin1StringView backlightmode("backlightmode");
inline constexpr QLatin1StringView wideDynamic("WideDynamic");
inline constexpr QLatin1StringView glareInhibition("GlareInhibition");
inline constexpr QLatin1StringView backlightRegion("BacklightRegion"); ///< map of the four sides, 0 to 8192
inline constexpr QLatin1StringView top("Top");
inline constexpr QLatin1StringView bottom("Bottom");
inline constexpr QLatin1StringView left("Left");
inline constexpr QLatin1StringView right("Right");

// whiteBalance
inline constexpr QLatin1StringView allType("allType");
inline constexpr QLatin1StringView whiteBalanceType("whiteBalanceType"); ///< index in allType
inline constexpr QLatin1StringView gainBlue("GainBlue");
inline constexpr QLatin1StringView gainRed("GainRed");

// dayNight
inline constexpr QLatin1StringView allDayNightType("allDayNightType");
inline constexpr QLatin1StringView dayNightType("Type");       ///< index in allDayNightType
inline constexpr QLatin1StringView sensitivity("Sensitivity"); ///< 1 low, 2 medium, 3 high
inline constexpr QLatin1StringView switchDelay("SwitchDelay"); ///< seconds, 2 to 10

// inDefog
inline constexpr QLatin1StringView allInDefogType("allInDefogType");
inline constexpr QLatin1StringView defogMode("DefogMode"); ///< index in allInDefogType
inline constexpr QLatin1StringView intensity("Intensity");

// lightControl, lightControlEx
inline constexpr QLatin1StringView allLightControlType("allLightControlType");
inline constexpr QLatin1StringView controlMode("controlMode"); ///< index in allLightControlType
inline constexpr QLatin1StringView allmixLightType("allmixLightType");
inline constexpr QLatin1StringView mixMode("mixMode");     ///< index in allmixLightType
inline constexpr QLatin1StringView lightMode("LightMode"); ///< lamps: 0 near and far, 1 near, 2 far
inline constexpr QLatin1StringView nearLight("NearLight");
inline constexpr QLatin1StringView farLight("FarLight");
inline constexpr QLatin1StringView correction("Correction");
inline constexpr QLatin1StringView sensitive("Sensitive"); ///< 1 low, 3 medium, 5 high
inline constexpr QLatin1StringView brightness("Brightness");
inline constexpr QLatin1StringView delay("Delay"); ///< seconds
} // namespace CameraSetting

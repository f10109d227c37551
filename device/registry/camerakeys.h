// Keys of the camera image page: of getConfigData() and setConfigData(), and of the maps that they exchange
// with QML.
#pragma once

#include <QString>

#include <array>

/// Keys of getConfigData() and setConfigData(). Those of a group of settings have maps as values, with the
/// keys of CameraGroupKey and CameraSetting.
namespace CameraKey {
inline constexpr QLatin1StringView picture("picture");
inline constexpr QLatin1StringView sharpness("sharpness");
inline constexpr QLatin1StringView mirror("mirror");
inline constexpr QLatin1StringView stable("stable");
inline constexpr QLatin1StringView exposure("exposure");
inline constexpr QLatin1StringView backMode("backMode");
inline constexpr QLatin1StringView whiteBalance("whiteBalance");
inline constexpr QLatin1StringView dayNight("dayNight");
inline constexpr QLatin1StringView inDefog("inDefog");
inline constexpr QLatin1StringView lightControl("lightControl");
inline constexpr QLatin1StringView lightControlEx("lightControlEx"); ///< mixed infrared and white light

inline constexpr std::array groups = {picture,      sharpness, mirror,  stable,       exposure,      backMode,
                                      whiteBalance, dayNight,  inDefog, lightControl, lightControlEx};

/// List of strings: the modes of curSwitchMode.
inline constexpr QLatin1StringView allSwitchMode("allSwitchMode");
inline constexpr QLatin1StringView curSwitchMode("curSwitchMode"); ///< int: index in allSwitchMode
inline constexpr QLatin1StringView curDayNightMode("curDayNightMode");
inline constexpr QLatin1StringView curBackLightMode("curBackLightMode");
inline constexpr QLatin1StringView curChannelName("curChannelName"); ///< string
inline constexpr QLatin1StringView curColorStyle("curColorStyle");
inline constexpr QLatin1StringView curBrightness("curBrightness");
inline constexpr QLatin1StringView curContrast("curContrast");
inline constexpr QLatin1StringView curSaturation("curSaturation");
inline constexpr QLatin1StringView curGamma("curGamma");
inline constexpr QLatin1StringView setDefault("setDefault"); ///< write only: the default picture settings
} // namespace CameraKey

/// Keys of the map of a group, beside its settings.
namespace CameraGroupKey {
inline constexpr QLatin1StringView support("support"); ///< bool: the camera has the group, and it was read
inline constexpr QLatin1StringView unread("unread"); ///< bool: the camera has the group, but it was not read
inline constexpr QLatin1StringView missing("missing"); ///< list of settings that the camera does not have
inline constexpr QLatin1StringView ranges("ranges");   ///< map by setting: maps of `min` and `max`
inline constexpr QLatin1StringView min("min");
inline constexpr QLatin1StringView max("max");
} // namespace CameraGroupKey

/// Settings of the groups, in their maps and as sub-keys of setConfigData(). A choice is an index in its list
/// ("all..."), -1 for none.
namespace CameraSetting {
inline constexpr QLatin1StringView value("value"); ///< the setting of a group that has one main setting

// picture
inline constexpr QLatin1StringView colorStyle("colorStyle");
inline constexpr QLatin1StringView brightnessSlider("brightnessSlider");
inline constexpr QLatin1StringView contrastSlider("contrastSlider");
inline constexpr QLatin1StringView saturationSlider("saturationSlider");
inline constexpr QLatin1StringView hue("hue");
inline constexpr QLatin1StringView gamma("gamma");

// mirror
inline constexpr QLatin1StringView rotate("Rotate"); ///< int: 0 normal, 1 and 2 corridor, 3 upside down
inline constexpr QLatin1StringView rotateSupport("rotateSupport");

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
inline constexpr QLatin1StringView irisAuto("irisAuto");
inline constexpr QLatin1StringView noiseReductionSupport("noiseReductionSupport");
inline constexpr QLatin1StringView noiseReductionType("3DType");
inline constexpr QLatin1StringView noiseReductionLevel("3D");
inline constexpr QLatin1StringView shutter("shutter"); ///< in `missing` only: both shutter times
inline constexpr QLatin1StringView gain("gain");       ///< in `missing` only: all gain values

// backMode
inline constexpr QLatin1StringView allBackModeType("allBackModeType");
inline constexpr QLatin1StringView backmode("backmode");
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
inline constexpr QLatin1StringView whiteBalanceType("whiteBalanceType");
inline constexpr QLatin1StringView gainBlue("GainBlue");
inline constexpr QLatin1StringView gainRed("GainRed");

// dayNight
inline constexpr QLatin1StringView allDayNightType("allDayNightType");
inline constexpr QLatin1StringView dayNightType("Type");
inline constexpr QLatin1StringView sensitivity("Sensitivity");
inline constexpr QLatin1StringView switchDelay("SwitchDelay");

// inDefog
inline constexpr QLatin1StringView allInDefogType("allInDefogType");
inline constexpr QLatin1StringView defogMode("DefogMode");
inline constexpr QLatin1StringView intensity("Intensity");

// lightControl, lightControlEx
inline constexpr QLatin1StringView allLightControlType("allLightControlType");
inline constexpr QLatin1StringView controlMode("controlMode");
inline constexpr QLatin1StringView allmixLightType("allmixLightType");
inline constexpr QLatin1StringView mixMode("mixMode");
inline constexpr QLatin1StringView lightMode("LightMode");
inline constexpr QLatin1StringView nearLight("NearLight");
inline constexpr QLatin1StringView farLight("FarLight");
inline constexpr QLatin1StringView correction("Correction");
inline constexpr QLatin1StringView sensitive("Sensitive");
inline constexpr QLatin1StringView brightness("Brightness");
inline constexpr QLatin1StringView delay("Delay");
} // namespace CameraSetting

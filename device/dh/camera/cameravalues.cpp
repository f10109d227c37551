#include "device/dh/camera/cameravalues.h"

#include "device/registry/camerakeys.h"
#include "sdk/blocktext.h"

#include <QHash>

#include <array>

namespace {

using Group = sdk::CameraGroup;

QVariantMap groupMap(const CameraState &state, Group group)
{
    return {{CameraGroupKey::support, state.supports(group)},
            {CameraGroupKey::unread, state.has(group) && !state.supports(group)}};
}

QVariantMap rangeMap(sdk::ValueRange reported)
{
    const sdk::ValueRange range = usableRange(reported);
    return {{CameraGroupKey::min, range.minimum}, {CameraGroupKey::max, range.maximum}};
}

QVariant picture(const CameraState &state, const CameraOptions &)
{
    const sdk::PictureItem &item = state.picture;
    const QVariantMap range = rangeMap(state.capabilities.picture);
    QVariantMap map = groupMap(state, Group::Picture);
    map.insert(CameraSetting::colorStyle, item.colorStyle);
    map.insert(CameraSetting::brightnessSlider, item.brightness);
    map.insert(CameraSetting::contrastSlider, item.contrast);
    map.insert(CameraSetting::saturationSlider, item.saturation);
    map.insert(CameraSetting::hue, item.hue);
    map.insert(CameraSetting::gamma, item.gamma);
    map.insert(CameraGroupKey::ranges, QVariantMap{{CameraSetting::brightnessSlider, range},
                                                   {CameraSetting::contrastSlider, range},
                                                   {CameraSetting::saturationSlider, range},
                                                   {CameraSetting::hue, range},
                                                   {CameraSetting::gamma, range}});
    return map;
}

QVariant sharpness(const CameraState &state, const CameraOptions &)
{
    QVariantMap map = groupMap(state, Group::Sharpness);
    map.insert(CameraSetting::value, state.sharpness.sharpness);
    map.insert(CameraGroupKey::ranges,
               QVariantMap{{CameraSetting::value, rangeMap(state.capabilities.sharpness)}});
    return map;
}

QVariant mirror(const CameraState &state, const CameraOptions &)
{
    QVariantMap map = groupMap(state, Group::Mirror);
    map.insert(CameraSetting::value, state.mirror.mirror != 0);
    map.insert(CameraSetting::rotate, state.mirror.rotate);
    map.insert(CameraSetting::rotateSupport, state.capabilities.rotateMask > 1);
    return map;
}

QVariant stable(const CameraState &state, const CameraOptions &)
{
    QVariantMap map = groupMap(state, Group::Stable);
    map.insert(CameraSetting::value, state.stable.stable != 0);
    return map;
}

QVariant exposure(const CameraState &state, const CameraOptions &options)
{
    const sdk::ExposureItem &item = state.exposure;
    const QVariantMap gain = rangeMap(state.capabilities.gain);
    QVariantMap map = groupMap(state, Group::Exposure);
    map.insert(CameraSetting::allAntiFlickerType, options.antiFlickerTypes.names());
    map.insert(CameraSetting::antiFlicker, options.antiFlickerTypes.indexOf(item.antiFlicker));
    map.insert(CameraSetting::allExposureType, options.exposureTypes.names());
    map.insert(CameraSetting::value, options.exposureTypes.indexOf(item.exposure));
    map.insert(CameraSetting::shortestShutter, static_cast<double>(item.shortestShutter));
    map.insert(CameraSetting::longestShutter, static_cast<double>(item.longestShutter));
    map.insert(CameraSetting::gainValue, item.gain);
    map.insert(CameraSetting::gainMin, item.gainMinimum);
    map.insert(CameraSetting::gainMax, item.gainMaximum);
    map.insert(CameraSetting::compensation, item.compensation);
    map.insert(CameraSetting::irisAuto, item.irisAutomatic != 0);
    map.insert(CameraSetting::noiseReductionSupport, state.isNoiseReductionRead);
    map.insert(CameraSetting::noiseReductionType, state.noiseReduction.type);
    map.insert(CameraSetting::noiseReductionLevel, state.noiseReduction.level);
    map.insert(
        CameraGroupKey::ranges,
        QVariantMap{{CameraSetting::gainValue, gain},
                    {CameraSetting::gainMin, gain},
                    {CameraSetting::gainMax, gain},
                    {CameraSetting::compensation, rangeMap(state.capabilities.compensation)},
                    {CameraSetting::noiseReductionLevel, rangeMap(state.capabilities.noiseReduction)}});
    return map;
}

QVariant backMode(const CameraState &state, const CameraOptions &options)
{
    const sdk::BackLightItem &item = state.backLight;
    QVariantMap map = groupMap(state, Group::BackLight);
    map.insert(CameraSetting::allBackModeType, options.backModes.names());
    map.insert(CameraSetting::backmode, options.backModes.indexOf(item.backMode));
    map.insert(CameraSetting::backlightmode, item.backLightMode);
    map.insert(CameraSetting::wideDynamic, item.wideDynamic);
    map.insert(CameraSetting::glareInhibition, item.glareInhibition);
    map.insert(CameraSetting::backlightRegion, QVariantMap{{CameraSetting::top, item.regionTop},
                                                           {CameraSetting::bottom, item.regionBottom},
                                                           {CameraSetting::left, item.regionLeft},
                                                           {CameraSetting::right, item.regionRight}});
    map.insert(CameraGroupKey::ranges,
               QVariantMap{{CameraSetting::wideDynamic, rangeMap(state.capabilities.wideDynamic)},
                           {CameraSetting::glareInhibition, rangeMap(state.capabilities.glareInhibition)}});
    return map;
}

QVariant whiteBalance(const CameraState &state, const CameraOptions &options)
{
    const QVariantMap range = rangeMap(state.capabilities.whiteBalanceGain);
    QVariantMap map = groupMap(state, Group::WhiteBalance);
    map.insert(CameraSetting::allType, options.whiteBalanceTypes.names());
    map.insert(CameraSetting::whiteBalanceType, options.whiteBalanceTypes.indexOf(state.whiteBalance.type));
    map.insert(CameraSetting::gainBlue, state.whiteBalance.gainBlue);
    map.insert(CameraSetting::gainRed, state.whiteBalance.gainRed);
    map.insert(CameraGroupKey::ranges,
               QVariantMap{{CameraSetting::gainBlue, range}, {CameraSetting::gainRed, range}});
    return map;
}

QVariant dayNight(const CameraState &state, const CameraOptions &options)
{
    QVariantMap map = groupMap(state, Group::DayNight);
    map.insert(CameraSetting::allDayNightType, options.dayNightTypes.names());
    map.insert(CameraSetting::dayNightType, options.dayNightTypes.indexOf(state.dayNight.type));
    map.insert(CameraSetting::sensitivity, state.dayNight.sensitivity);
    map.insert(CameraSetting::switchDelay, state.dayNight.switchDelay);
    return map;
}

QVariant inDefog(const CameraState &state, const CameraOptions &options)
{
    QVariantMap map = groupMap(state, Group::Defog);
    map.insert(CameraSetting::allInDefogType, options.defogModes.names());
    map.insert(CameraSetting::defogMode, options.defogModes.indexOf(state.defog.defogMode));
    map.insert(CameraSetting::intensity, state.defog.intensity);
    map.insert(CameraGroupKey::ranges,
               QVariantMap{{CameraSetting::intensity, rangeMap(state.capabilities.defogIntensity)}});
    return map;
}

QVariant lightControl(const CameraState &state, const CameraOptions &options)
{
    const sdk::LightItem &item = state.light;
    const QVariantMap range = rangeMap(state.capabilities.light);
    QVariantMap map = groupMap(state, Group::Light);
    map.insert(CameraSetting::allLightControlType, options.lightControls.names());
    map.insert(CameraSetting::controlMode, options.lightControls.indexOf(item.controlMode));
    map.insert(CameraSetting::lightMode, item.lightMode);
    map.insert(CameraSetting::nearLight, item.nearLight);
    map.insert(CameraSetting::farLight, item.farLight);
    map.insert(CameraSetting::correction, item.correction);
    map.insert(CameraGroupKey::ranges, QVariantMap{{CameraSetting::nearLight, range},
                                                   {CameraSetting::farLight, range},
                                                   {CameraSetting::correction, range}});
    return map;
}

QVariant lightControlEx(const CameraState &state, const CameraOptions &options)
{
    const sdk::MixedLightItem &item = state.mixedLight;
    const QVariantMap range = rangeMap(state.capabilities.mixedLight);
    QVariantMap map = groupMap(state, Group::MixedLight);
    map.insert(CameraSetting::allLightControlType, options.lightControls.names());
    map.insert(CameraSetting::controlMode, options.lightControls.indexOf(item.controlMode));
    map.insert(CameraSetting::allmixLightType, options.mixedLights.names());
    map.insert(CameraSetting::mixMode, options.mixedLights.indexOf(item.mixMode));
    map.insert(CameraSetting::lightMode, item.lightMode);
    map.insert(CameraSetting::sensitive, item.sensitive);
    map.insert(CameraSetting::correction, item.correction);
    map.insert(CameraSetting::brightness, item.brightness);
    map.insert(CameraSetting::delay, item.delay);
    map.insert(CameraGroupKey::ranges,
               QVariantMap{{CameraSetting::correction, range}, {CameraSetting::brightness, range}});
    return map;
}

using ValueOf = QVariant (*)(const CameraState &, const CameraOptions &);

const QHash<QString, ValueOf> &values()
{
    static const QHash<QString, ValueOf> table = {
        {CameraKey::picture, &picture},
        {CameraKey::sharpness, &sharpness},
        {CameraKey::mirror, &mirror},
        {CameraKey::stable, &stable},
        {CameraKey::exposure, &exposure},
        {CameraKey::backMode, &backMode},
        {CameraKey::whiteBalance, &whiteBalance},
        {CameraKey::dayNight, &dayNight},
        {CameraKey::inDefog, &inDefog},
        {CameraKey::lightControl, &lightControl},
        {CameraKey::lightControlEx, &lightControlEx},
        {CameraKey::allSwitchMode,
         [](const CameraState &, const CameraOptions &options) {
             return QVariant(options.switchModes.names());
         }},
        {CameraKey::curSwitchMode,
         [](const CameraState &state, const CameraOptions &options) {
             return QVariant(options.switchModes.indexOf(static_cast<int>(state.mode)));
         }},
        {CameraKey::curDayNightMode,
         [](const CameraState &state, const CameraOptions &) {
             return QVariant(state.dayNightByMode.mode);
         }},
        {CameraKey::curBackLightMode,
         [](const CameraState &state, const CameraOptions &) {
             return QVariant(state.backLightByMode.backMode);
         }},
        {CameraKey::curChannelName,
         [](const CameraState &state, const CameraOptions &) {
             if (!state.isChannelNameRead)
                 return QVariant();
             const std::string_view name = sdk::blockText(state.channelName.name);
             return QVariant(QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())));
         }},
        {CameraKey::curColorStyle,
         [](const CameraState &state, const CameraOptions &) {
             return QVariant(state.colorOfMode().colorStyle);
         }},
        {CameraKey::curBrightness,
         [](const CameraState &state, const CameraOptions &) {
             return QVariant(state.colorOfMode().brightness);
         }},
        {CameraKey::curContrast,
         [](const CameraState &state, const CameraOptions &) {
             return QVariant(state.colorOfMode().contrast);
         }},
        {CameraKey::curSaturation,
         [](const CameraState &state, const CameraOptions &) {
             return QVariant(state.colorOfMode().saturation);
         }},
        {CameraKey::curGamma,
         [](const CameraState &state, const CameraOptions &) {
             return QVariant(state.colorOfMode().gamma);
         }},
    };
    return table;
}

/// A setting that cameras with its group may lack.
struct LackableSetting
{
    QLatin1StringView group;
    QLatin1StringView setting;
    sdk::CameraValue value;
};

constexpr std::array lackableSettings = {
    LackableSetting{CameraKey::picture, CameraSetting::colorStyle, sdk::CameraValue::ColorStyle},
    LackableSetting{CameraKey::picture, CameraSetting::brightnessSlider, sdk::CameraValue::Brightness},
    LackableSetting{CameraKey::picture, CameraSetting::contrastSlider, sdk::CameraValue::Contrast},
    LackableSetting{CameraKey::picture, CameraSetting::saturationSlider, sdk::CameraValue::Saturation},
    LackableSetting{CameraKey::picture, CameraSetting::hue, sdk::CameraValue::Hue},
    LackableSetting{CameraKey::picture, CameraSetting::gamma, sdk::CameraValue::Gamma},
    LackableSetting{CameraKey::exposure, CameraSetting::antiFlicker, sdk::CameraValue::AntiFlicker},
    LackableSetting{CameraKey::exposure, CameraSetting::shutter, sdk::CameraValue::ShutterTimes},
    LackableSetting{CameraKey::exposure, CameraSetting::gain, sdk::CameraValue::Gain},
    LackableSetting{CameraKey::exposure, CameraSetting::compensation, sdk::CameraValue::Compensation},
    LackableSetting{CameraKey::exposure, CameraSetting::irisAuto, sdk::CameraValue::IrisAutomatic},
    LackableSetting{CameraKey::backMode, CameraSetting::backlightmode, sdk::CameraValue::BacklightRegion},
    LackableSetting{CameraKey::backMode, CameraSetting::wideDynamic, sdk::CameraValue::WideDynamicLevel},
    LackableSetting{CameraKey::backMode, CameraSetting::glareInhibition, sdk::CameraValue::GlareInhibition},
    LackableSetting{CameraKey::whiteBalance, CameraSetting::gainBlue, sdk::CameraValue::WhiteBalanceGains},
    LackableSetting{CameraKey::whiteBalance, CameraSetting::gainRed, sdk::CameraValue::WhiteBalanceGains},
    LackableSetting{CameraKey::dayNight, CameraSetting::sensitivity, sdk::CameraValue::DayNightSensitivity},
    LackableSetting{CameraKey::dayNight, CameraSetting::switchDelay, sdk::CameraValue::DayNightDelay},
    LackableSetting{CameraKey::inDefog, CameraSetting::intensity, sdk::CameraValue::DefogIntensity},
};

/// The settings of a group that this camera lacks.
QStringList missingSettings(const QString &group, std::uint32_t missingValues)
{
    QStringList missing;
    for (const LackableSetting &lackable : lackableSettings) {
        if (lackable.group == group && (missingValues >> static_cast<std::uint32_t>(lackable.value) & 1) != 0)
            missing.append(lackable.setting);
    }
    return missing;
}

} // namespace

CameraOptions::CameraOptions(const ValueTables &tables, const sdk::CameraCapabilities &capabilities)
    : switchModes(tables.DayNightModeNames, capabilities.switchModeMask),
      antiFlickerTypes(CameraNames::antiFlickerTypes(), capabilities.antiFlickerMask),
      exposureTypes(CameraNames::exposureTypes(), capabilities.exposureMask),
      backModes(tables.BackLightModeNames, capabilities.backModeMask),
      whiteBalanceTypes(CameraNames::whiteBalanceTypes(), capabilities.whiteBalanceMask),
      dayNightTypes(CameraNames::dayNightTypes(), capabilities.dayNightMask),
      defogModes(CameraNames::defogModes(), capabilities.defogMask),
      lightControls(CameraNames::lightControls(), capabilities.lightControlMask),
      mixedLights(CameraNames::mixedLights(), capabilities.mixedLightMask)
{
}

sdk::ValueRange usableRange(sdk::ValueRange reported)
{
    constexpr sdk::ValueRange usual = {0, 100};
    return reported.minimum < reported.maximum ? reported : usual;
}

QVariant cameraValue(const QString &key, const CameraState &state, const ValueTables &tables)
{
    const ValueOf valueOf = values().value(key, nullptr);
    if (!valueOf)
        return {};
    QVariant value = valueOf(state, CameraOptions(tables, state.capabilities));
    const QStringList missing = missingSettings(key, state.capabilities.missingValues);
    if (missing.isEmpty())
        return value;
    QVariantMap map = value.toMap();
    map.insert(CameraGroupKey::missing, missing);
    return map;
}

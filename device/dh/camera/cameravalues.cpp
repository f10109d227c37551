#include "device/dh/camera/cameravalues.h"

#include "sdk/blocktext.h"

#include <QHash>

#include <array>

namespace {

using Group = sdk::CameraGroup;

QVariantMap groupMap(const CameraState &state, Group group)
{
    return {{QStringLiteral("support"), state.supports(group)},
            {QStringLiteral("unread"), state.has(group) && !state.supports(group)}};
}

QVariantMap rangeMap(sdk::ValueRange told)
{
    const sdk::ValueRange range = usableRange(told);
    return {{QStringLiteral("min"), range.minimum}, {QStringLiteral("max"), range.maximum}};
}

QVariant picture(const CameraState &state, const CameraLists &)
{
    const sdk::PictureItem &item = state.picture;
    const QVariantMap range = rangeMap(state.capabilities.picture);
    QVariantMap map = groupMap(state, Group::Picture);
    map.insert(QStringLiteral("colorStyle"), item.colorStyle);
    map.insert(QStringLiteral("brightnessSlider"), item.brightness);
    map.insert(QStringLiteral("contrastSlider"), item.contrast);
    map.insert(QStringLiteral("saturationSlider"), item.saturation);
    map.insert(QStringLiteral("hue"), item.hue);
    map.insert(QStringLiteral("gamma"), item.gamma);
    map.insert(QStringLiteral("ranges"), QVariantMap{{QStringLiteral("brightnessSlider"), range},
                                                     {QStringLiteral("contrastSlider"), range},
                                                     {QStringLiteral("saturationSlider"), range},
                                                     {QStringLiteral("hue"), range},
                                                     {QStringLiteral("gamma"), range}});
    return map;
}

QVariant sharpness(const CameraState &state, const CameraLists &)
{
    QVariantMap map = groupMap(state, Group::Sharpness);
    map.insert(QStringLiteral("value"), state.sharpness.sharpness);
    map.insert(QStringLiteral("ranges"),
               QVariantMap{{QStringLiteral("value"), rangeMap(state.capabilities.sharpness)}});
    return map;
}

QVariant mirror(const CameraState &state, const CameraLists &)
{
    QVariantMap map = groupMap(state, Group::Mirror);
    map.insert(QStringLiteral("value"), state.mirror.mirror != 0);
    map.insert(QStringLiteral("Rotate"), state.mirror.rotate);
    map.insert(QStringLiteral("rotateSupport"), state.capabilities.rotateMask > 1);
    return map;
}

QVariant stable(const CameraState &state, const CameraLists &)
{
    QVariantMap map = groupMap(state, Group::Stable);
    map.insert(QStringLiteral("value"), state.stable.stable != 0);
    return map;
}

QVariant exposure(const CameraState &state, const CameraLists &lists)
{
    const sdk::ExposureItem &item = state.exposure;
    const QVariantMap gain = rangeMap(state.capabilities.gain);
    QVariantMap map = groupMap(state, Group::Exposure);
    map.insert(QStringLiteral("allAntiFlickerType"), lists.antiFlickerTypes.names());
    map.insert(QStringLiteral("antiFlicker"), lists.antiFlickerTypes.placeOf(item.antiFlicker));
    map.insert(QStringLiteral("allExposureType"), lists.exposureTypes.names());
    map.insert(QStringLiteral("value"), lists.exposureTypes.placeOf(item.exposure));
    map.insert(QStringLiteral("dbExposureValue1"), static_cast<double>(item.shortestShutter));
    map.insert(QStringLiteral("dbExposureValue2"), static_cast<double>(item.longestShutter));
    map.insert(QStringLiteral("GainValue"), item.gain);
    map.insert(QStringLiteral("GainMin"), item.gainMinimum);
    map.insert(QStringLiteral("GainMax"), item.gainMaximum);
    map.insert(QStringLiteral("Compensation"), item.compensation);
    map.insert(QStringLiteral("irisAuto"), item.irisAutomatic != 0);
    map.insert(QStringLiteral("noiseReductionSupport"), state.isNoiseReductionRead);
    map.insert(QStringLiteral("3DType"), state.noiseReduction.type);
    map.insert(QStringLiteral("3D"), state.noiseReduction.level);
    map.insert(QStringLiteral("ranges"),
               QVariantMap{{QStringLiteral("GainValue"), gain},
                           {QStringLiteral("GainMin"), gain},
                           {QStringLiteral("GainMax"), gain},
                           {QStringLiteral("Compensation"), rangeMap(state.capabilities.compensation)},
                           {QStringLiteral("3D"), rangeMap(state.capabilities.noiseReduction)}});
    return map;
}

QVariant backMode(const CameraState &state, const CameraLists &lists)
{
    const sdk::BackLightItem &item = state.backLight;
    QVariantMap map = groupMap(state, Group::BackLight);
    map.insert(QStringLiteral("allBackModeType"), lists.backModes.names());
    map.insert(QStringLiteral("backmode"), lists.backModes.placeOf(item.backMode));
    map.insert(QStringLiteral("backlightmode"), item.backLightMode);
    map.insert(QStringLiteral("WideDynamic"), item.wideDynamic);
    map.insert(QStringLiteral("GlareInhibition"), item.glareInhibition);
    map.insert(QStringLiteral("BacklightRegion"), QVariantMap{{QStringLiteral("Top"), item.regionTop},
                                                              {QStringLiteral("Bottom"), item.regionBottom},
                                                              {QStringLiteral("Left"), item.regionLeft},
                                                              {QStringLiteral("Right"), item.regionRight}});
    map.insert(
        QStringLiteral("ranges"),
        QVariantMap{{QStringLiteral("WideDynamic"), rangeMap(state.capabilities.wideDynamic)},
                    {QStringLiteral("GlareInhibition"), rangeMap(state.capabilities.glareInhibition)}});
    return map;
}

QVariant whiteBalance(const CameraState &state, const CameraLists &lists)
{
    const QVariantMap range = rangeMap(state.capabilities.whiteBalanceGain);
    QVariantMap map = groupMap(state, Group::WhiteBalance);
    map.insert(QStringLiteral("allType"), lists.whiteBalanceTypes.names());
    map.insert(QStringLiteral("whiteBalanceType"), lists.whiteBalanceTypes.placeOf(state.whiteBalance.type));
    map.insert(QStringLiteral("GainBlue"), state.whiteBalance.gainBlue);
    map.insert(QStringLiteral("GainRed"), state.whiteBalance.gainRed);
    map.insert(QStringLiteral("ranges"),
               QVariantMap{{QStringLiteral("GainBlue"), range}, {QStringLiteral("GainRed"), range}});
    return map;
}

QVariant dayNight(const CameraState &state, const CameraLists &lists)
{
    QVariantMap map = groupMap(state, Group::DayNight);
    map.insert(QStringLiteral("allDayNightType"), lists.dayNightTypes.names());
    map.insert(QStringLiteral("Type"), lists.dayNightTypes.placeOf(state.dayNight.type));
    map.insert(QStringLiteral("Sensitivity"), state.dayNight.sensitivity);
    map.insert(QStringLiteral("SwitchDelay"), state.dayNight.switchDelay);
    return map;
}

QVariant inDefog(const CameraState &state, const CameraLists &lists)
{
    QVariantMap map = groupMap(state, Group::Defog);
    map.insert(QStringLiteral("allInDefogType"), lists.defogModes.names());
    map.insert(QStringLiteral("DefogMode"), lists.defogModes.placeOf(state.defog.defogMode));
    map.insert(QStringLiteral("Intensity"), state.defog.intensity);
    map.insert(QStringLiteral("ranges"),
               QVariantMap{{QStringLiteral("Intensity"), rangeMap(state.capabilities.defogIntensity)}});
    return map;
}

QVariant lightControl(const CameraState &state, const CameraLists &lists)
{
    const sdk::LightItem &item = state.light;
    const QVariantMap range = rangeMap(state.capabilities.light);
    QVariantMap map = groupMap(state, Group::Light);
    map.insert(QStringLiteral("allLightControlType"), lists.lightControls.names());
    map.insert(QStringLiteral("controlMode"), lists.lightControls.placeOf(item.controlMode));
    map.insert(QStringLiteral("LightMode"), item.lightMode);
    map.insert(QStringLiteral("NearLight"), item.nearLight);
    map.insert(QStringLiteral("FarLight"), item.farLight);
    map.insert(QStringLiteral("Correction"), item.correction);
    map.insert(QStringLiteral("ranges"), QVariantMap{{QStringLiteral("NearLight"), range},
                                                     {QStringLiteral("FarLight"), range},
                                                     {QStringLiteral("Correction"), range}});
    return map;
}

QVariant lightControlEx(const CameraState &state, const CameraLists &lists)
{
    const sdk::MixedLightItem &item = state.mixedLight;
    const QVariantMap range = rangeMap(state.capabilities.mixedLight);
    QVariantMap map = groupMap(state, Group::MixedLight);
    map.insert(QStringLiteral("allLightControlType"), lists.lightControls.names());
    map.insert(QStringLiteral("controlMode"), lists.lightControls.placeOf(item.controlMode));
    map.insert(QStringLiteral("allmixLightType"), lists.mixedLights.names());
    map.insert(QStringLiteral("mixMode"), lists.mixedLights.placeOf(item.mixMode));
    map.insert(QStringLiteral("LightMode"), item.lightMode);
    map.insert(QStringLiteral("Sensitive"), item.sensitive);
    map.insert(QStringLiteral("Correction"), item.correction);
    map.insert(QStringLiteral("Brightness"), item.brightness);
    map.insert(QStringLiteral("Delay"), item.delay);
    map.insert(QStringLiteral("ranges"),
               QVariantMap{{QStringLiteral("Correction"), range}, {QStringLiteral("Brightness"), range}});
    return map;
}

using ValueOf = QVariant (*)(const CameraState &, const CameraLists &);

const QHash<QString, ValueOf> &values()
{
    static const QHash<QString, ValueOf> table = {
        {QStringLiteral("picture"), &picture},
        {QStringLiteral("sharpness"), &sharpness},
        {QStringLiteral("mirror"), &mirror},
        {QStringLiteral("stable"), &stable},
        {QStringLiteral("exposure"), &exposure},
        {QStringLiteral("backMode"), &backMode},
        {QStringLiteral("whiteBalance"), &whiteBalance},
        {QStringLiteral("dayNight"), &dayNight},
        {QStringLiteral("inDefog"), &inDefog},
        {QStringLiteral("lightControl"), &lightControl},
        {QStringLiteral("lightControlEx"), &lightControlEx},
        {QStringLiteral("allSwitchMode"),
         [](const CameraState &, const CameraLists &lists) {
             return QVariant(lists.switchModes.names());
         }},
        {QStringLiteral("curSwitchMode"),
         [](const CameraState &state, const CameraLists &lists) {
             return QVariant(lists.switchModes.placeOf(static_cast<int>(state.mode)));
         }},
        {QStringLiteral("curDayNightMode"),
         [](const CameraState &state, const CameraLists &) {
             return QVariant(state.dayNightByMode.mode);
         }},
        {QStringLiteral("curBackLightMode"),
         [](const CameraState &state, const CameraLists &) {
             return QVariant(state.backLightByMode.backMode);
         }},
        {QStringLiteral("curChannelName"),
         [](const CameraState &state, const CameraLists &) {
             if (!state.isChannelNameRead)
                 return QVariant();
             const std::string_view name = sdk::blockText(state.channelName.name);
             return QVariant(QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())));
         }},
        {QStringLiteral("curColorStyle"),
         [](const CameraState &state, const CameraLists &) {
             return QVariant(state.colorOfMode().colorStyle);
         }},
        {QStringLiteral("curBrightness"),
         [](const CameraState &state, const CameraLists &) {
             return QVariant(state.colorOfMode().brightness);
         }},
        {QStringLiteral("curContrast"),
         [](const CameraState &state, const CameraLists &) {
             return QVariant(state.colorOfMode().contrast);
         }},
        {QStringLiteral("curSaturation"),
         [](const CameraState &state, const CameraLists &) {
             return QVariant(state.colorOfMode().saturation);
         }},
        {QStringLiteral("curGamma"),
         [](const CameraState &state, const CameraLists &) {
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
    LackableSetting{QLatin1StringView("picture"), QLatin1StringView("colorStyle"),
                    sdk::CameraValue::ColorStyle},
    LackableSetting{QLatin1StringView("picture"), QLatin1StringView("brightnessSlider"),
                    sdk::CameraValue::Brightness},
    LackableSetting{QLatin1StringView("picture"), QLatin1StringView("contrastSlider"),
                    sdk::CameraValue::Contrast},
    LackableSetting{QLatin1StringView("picture"), QLatin1StringView("saturationSlider"),
                    sdk::CameraValue::Saturation},
    LackableSetting{QLatin1StringView("picture"), QLatin1StringView("hue"), sdk::CameraValue::Hue},
    LackableSetting{QLatin1StringView("picture"), QLatin1StringView("gamma"), sdk::CameraValue::Gamma},
    LackableSetting{QLatin1StringView("exposure"), QLatin1StringView("antiFlicker"),
                    sdk::CameraValue::AntiFlicker},
    LackableSetting{QLatin1StringView("exposure"), QLatin1StringView("shutter"),
                    sdk::CameraValue::ShutterTimes},
    LackableSetting{QLatin1StringView("exposure"), QLatin1StringView("gain"), sdk::CameraValue::Gain},
    LackableSetting{QLatin1StringView("exposure"), QLatin1StringView("Compensation"),
                    sdk::CameraValue::Compensation},
    LackableSetting{QLatin1StringView("exposure"), QLatin1StringView("irisAuto"),
                    sdk::CameraValue::IrisAutomatic},
    LackableSetting{QLatin1StringView("backMode"), QLatin1StringView("backlightmode"),
                    sdk::CameraValue::BacklightRegion},
    LackableSetting{QLatin1StringView("backMode"), QLatin1StringView("WideDynamic"),
                    sdk::CameraValue::WideDynamicLevel},
    LackableSetting{QLatin1StringView("backMode"), QLatin1StringView("GlareInhibition"),
                    sdk::CameraValue::GlareInhibition},
    LackableSetting{QLatin1StringView("whiteBalance"), QLatin1StringView("GainBlue"),
                    sdk::CameraValue::WhiteBalanceGains},
    LackableSetting{QLatin1StringView("whiteBalance"), QLatin1StringView("GainRed"),
                    sdk::CameraValue::WhiteBalanceGains},
    LackableSetting{QLatin1StringView("dayNight"), QLatin1StringView("Sensitivity"),
                    sdk::CameraValue::DayNightSensitivity},
    LackableSetting{QLatin1StringView("dayNight"), QLatin1StringView("SwitchDelay"),
                    sdk::CameraValue::DayNightDelay},
    LackableSetting{QLatin1StringView("inDefog"), QLatin1StringView("Intensity"),
                    sdk::CameraValue::DefogIntensity},
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

CameraLists::CameraLists(const ValueTables &tables, const sdk::CameraCapabilities &capabilities)
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

sdk::ValueRange usableRange(sdk::ValueRange told)
{
    constexpr sdk::ValueRange usual = {0, 100};
    return told.minimum < told.maximum ? told : usual;
}

QVariant cameraValue(const QString &key, const CameraState &state, const ValueTables &tables)
{
    const ValueOf valueOf = values().value(key, nullptr);
    if (!valueOf)
        return {};
    QVariant value = valueOf(state, CameraLists(tables, state.capabilities));
    const QStringList missing = missingSettings(key, state.capabilities.missingValues);
    if (missing.isEmpty())
        return value;
    QVariantMap map = value.toMap();
    map.insert(QStringLiteral("missing"), missing);
    return map;
}

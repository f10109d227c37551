#include "device/dh/camera/camerachanges.h"

#include "device/dh/camera/camerachange.h"
#include "device/registry/bytetext.h"
#include "device/registry/camerakeys.h"
#include "sdk/blocktext.h"

#include <QHash>

#include <array>
#include <numeric>

namespace {

using Change = CameraChange;
using Writes = QList<CameraWrite>;

constexpr sdk::ValueRange colorStyles = {1, 3};
constexpr sdk::ValueRange rotations = {0, 3};
constexpr sdk::ValueRange flags = {0, 1};
constexpr sdk::ValueRange sensitivities = {1, 3};
constexpr sdk::ValueRange switchDelays = {2, 10};
constexpr std::array mixedSensitivities = {1, 3, 5};
constexpr sdk::ValueRange lightDelays = {0, 3600};
constexpr sdk::ValueRange lightModes = {0, 255};
constexpr sdk::ValueRange regionSides = {0, 8192};

Writes when(bool isChanged, const Writes &writes)
{
    return isChanged ? writes : Writes();
}

Writes changePicture(const Change &change)
{
    CameraState &state = change.state;
    sdk::PictureItem item = state.picture;
    const sdk::ValueRange range = state.capabilities.picture;
    const bool isChanged =
        (change.is(CameraSetting::colorStyle) && change.number(colorStyles, item.colorStyle)) ||
        (change.is(CameraSetting::brightnessSlider) && change.slider(range, item.brightness)) ||
        (change.is(CameraSetting::contrastSlider) && change.slider(range, item.contrast)) ||
        (change.is(CameraSetting::saturationSlider) && change.slider(range, item.saturation)) ||
        (change.is(CameraSetting::hue) && change.slider(range, item.hue)) ||
        (change.is(CameraSetting::gamma) && change.slider(range, item.gamma));
    if (isChanged) // the item and the configuration hold the same values
        state.picture = state.colorOfMode() = item;
    return when(isChanged, {CameraWrite::Picture});
}

Writes changeSharpness(const Change &change)
{
    CameraState &state = change.state;
    return when(change.isPlain() && change.slider(state.capabilities.sharpness, state.sharpness.sharpness),
                {CameraWrite::Sharpness});
}

Writes changeMirror(const Change &change)
{
    sdk::MirrorItem &item = change.state.mirror;
    return when((change.isPlain() && change.number(flags, item.mirror)) ||
                    (change.is(CameraSetting::rotate) && change.number(rotations, item.rotate)),
                {CameraWrite::Mirror});
}

Writes changeStable(const Change &change)
{
    return when(change.isPlain() && change.number(flags, change.state.stable.stable), {CameraWrite::Stable});
}

Writes changeExposure(const Change &change)
{
    CameraState &state = change.state;
    sdk::ExposureItem &item = state.exposure;
    const sdk::ValueRange gain = state.capabilities.gain;
    if (change.is(CameraSetting::noiseReductionType) || change.is(CameraSetting::noiseReductionLevel)) {
        const bool isReduced =
            state.isNoiseReductionRead &&
            (change.is(CameraSetting::noiseReductionType)
                 ? change.number(flags, state.noiseReduction.type)
                 : change.slider(state.capabilities.noiseReduction, state.noiseReduction.level));
        return when(isReduced, {CameraWrite::Exposure, CameraWrite::NoiseReduction});
    }
    const bool isChanged =
        (change.is(CameraSetting::antiFlicker) &&
         change.choice(change.options().antiFlickerTypes, item.antiFlicker)) ||
        (change.isPlain() && change.choice(change.options().exposureTypes, item.exposure)) ||
        (change.is(CameraSetting::shortestShutter) && change.shutter(item.shortestShutter)) ||
        (change.is(CameraSetting::longestShutter) && change.shutter(item.longestShutter)) ||
        (change.is(CameraSetting::gainValue) && change.slider(gain, item.gain)) ||
        (change.is(CameraSetting::gainMin) && change.slider(gain, item.gainMinimum)) ||
        (change.is(CameraSetting::gainMax) && change.slider(gain, item.gainMaximum)) ||
        (change.is(CameraSetting::compensation) &&
         change.slider(state.capabilities.compensation, item.compensation)) ||
        (change.is(CameraSetting::irisAuto) && change.number(flags, item.irisAutomatic));
    return when(isChanged, {CameraWrite::Exposure});
}

bool changeRegion(const Change &change, sdk::BackLightItem &item)
{
    const QVariantMap region = change.value.toMap();
    sdk::BackLightItem changed = item;
    const auto side = [&](QLatin1StringView name, std::int32_t &field) {
        const QVariant value = region.value(name);
        return Change{change.subKey, value, change.tables, change.state}.number(regionSides, field);
    };
    if (!side(CameraSetting::top, changed.regionTop) || !side(CameraSetting::bottom, changed.regionBottom) ||
        !side(CameraSetting::left, changed.regionLeft) || !side(CameraSetting::right, changed.regionRight))
        return false;
    item = changed;
    return true;
}

Writes changeBackLight(const Change &change)
{
    CameraState &state = change.state;
    sdk::BackLightItem &item = state.backLight;
    const bool isChanged =
        (change.is(CameraSetting::backmode) && change.choice(change.options().backModes, item.backMode)) ||
        (change.is(CameraSetting::backlightmode) && change.number(flags, item.backLightMode)) ||
        (change.is(CameraSetting::wideDynamic) &&
         change.slider(state.capabilities.wideDynamic, item.wideDynamic)) ||
        (change.is(CameraSetting::glareInhibition) &&
         change.slider(state.capabilities.glareInhibition, item.glareInhibition)) ||
        (change.is(CameraSetting::backlightRegion) && changeRegion(change, item));
    if (isChanged)
        state.backLightByMode = item;
    return when(isChanged, {CameraWrite::BackLight});
}

/// Changes the mode in the second copy of the item.
Writes changeBackLightMode(const Change &change)
{
    CameraState &state = change.state;
    if (!change.choice({change.tables.BackLightModeNames, ~0u}, state.backLightByMode.backMode))
        return {};
    state.backLight = state.backLightByMode;
    return {CameraWrite::BackLightByMode};
}

Writes changeWhiteBalance(const Change &change)
{
    sdk::WhiteBalanceItem &item = change.state.whiteBalance;
    const sdk::ValueRange range = change.state.capabilities.whiteBalanceGain;
    return when((change.is(CameraSetting::whiteBalanceType) &&
                 change.choice(change.options().whiteBalanceTypes, item.type)) ||
                    (change.is(CameraSetting::gainBlue) && change.slider(range, item.gainBlue)) ||
                    (change.is(CameraSetting::gainRed) && change.slider(range, item.gainRed)),
                {CameraWrite::WhiteBalance});
}

Writes changeDayNight(const Change &change)
{
    CameraState &state = change.state;
    sdk::DayNightItem &item = state.dayNight;
    const bool isChanged =
        (change.is(CameraSetting::dayNightType) &&
         change.choice(change.options().dayNightTypes, item.type)) ||
        (change.is(CameraSetting::sensitivity) && change.number(sensitivities, item.sensitivity)) ||
        (change.is(CameraSetting::switchDelay) && change.number(switchDelays, item.switchDelay));
    if (isChanged) { // the mode of the second copy is selected separately
        const std::int32_t mode = state.dayNightByMode.mode;
        state.dayNightByMode = item;
        state.dayNightByMode.mode = mode;
    }
    return when(isChanged, {CameraWrite::DayNight});
}

/// Changes the mode in the second copy of the item: its settings apply to that mode.
Writes changeDayNightMode(const Change &change)
{
    return when(change.choice({change.tables.DayNightModeNames, ~0u}, change.state.dayNightByMode.mode),
                {CameraWrite::DayNightByMode});
}

Writes changeDefog(const Change &change)
{
    CameraState &state = change.state;
    return when((change.is(CameraSetting::defogMode) &&
                 change.choice(change.options().defogModes, state.defog.defogMode)) ||
                    (change.is(CameraSetting::intensity) &&
                     change.slider(state.capabilities.defogIntensity, state.defog.intensity)),
                {CameraWrite::Defog});
}

Writes changeLight(const Change &change)
{
    sdk::LightItem &item = change.state.light;
    const sdk::ValueRange range = change.state.capabilities.light;
    return when((change.is(CameraSetting::controlMode) &&
                 change.choice(change.options().lightControls, item.controlMode)) ||
                    (change.is(CameraSetting::lightMode) && change.number(lightModes, item.lightMode)) ||
                    (change.is(CameraSetting::nearLight) && change.slider(range, item.nearLight)) ||
                    (change.is(CameraSetting::farLight) && change.slider(range, item.farLight)) ||
                    (change.is(CameraSetting::correction) && change.slider(range, item.correction)),
                {CameraWrite::Light});
}

Writes changeMixedLight(const Change &change)
{
    CameraState &state = change.state;
    sdk::MixedLightItem &item = state.mixedLight;
    const sdk::ValueRange range = state.capabilities.mixedLight;
    const bool isChanged =
        (change.is(CameraSetting::controlMode) &&
         change.choice(change.options().lightControls, item.controlMode)) ||
        (change.is(CameraSetting::mixMode) && change.choice(change.options().mixedLights, item.mixMode)) ||
        (change.is(CameraSetting::lightMode) && change.number(lightModes, item.lightMode)) ||
        (change.is(CameraSetting::sensitive) && change.oneOf(mixedSensitivities, item.sensitive)) ||
        (change.is(CameraSetting::correction) && change.slider(range, item.correction)) ||
        (change.is(CameraSetting::brightness) && change.slider(range, item.brightness)) ||
        (change.is(CameraSetting::delay) && change.number(lightDelays, item.delay));
    if (!isChanged || !state.isLightingKnown)
        return when(isChanged, {CameraWrite::MixedLight});
    state.lighting.lights[static_cast<std::size_t>(state.mode)] = item;
    return {CameraWrite::MixedLight, CameraWrite::Lighting};
}

/// Changes one value in the configuration "VideoColor" and in the picture item.
Writes changeColor(const Change &change, std::int32_t sdk::PictureItem::*field, sdk::ValueRange range,
                   CameraWrite write)
{
    CameraState &state = change.state;
    if (!state.isColorKnown || !change.number(range, state.colorOfMode().*field))
        return {};
    state.picture.*field = state.colorOfMode().*field;
    return {write};
}

Writes setDefaults(const Change &change)
{
    CameraState &state = change.state;
    const sdk::ValueRange range = usableRange(state.capabilities.picture);
    const std::int32_t middle = std::midpoint(range.minimum, range.maximum); // does not overflow
    constexpr std::int32_t standardStyle = 2;
    sdk::PictureItem &item = state.picture;
    item.colorStyle = standardStyle;
    item.brightness = item.contrast = item.saturation = item.hue = item.gamma = middle;
    state.colorOfMode() = item;
    return state.isColorKnown ? Writes{CameraWrite::VideoColor, CameraWrite::Picture}
                              : Writes{CameraWrite::Picture};
}

Writes changeChannelName(const Change &change)
{
    const QString visible = ByteText::withoutInvisible(change.value.toString()).trimmed();
    const QString name = ByteText::truncated(visible, ByteText::channelNameBytes());
    if (name.isEmpty())
        return {};
    sdk::ChannelNameItem &item = change.state.channelName;
    item.size = sizeof(item);
    sdk::setBlockText(item.name, name.toStdString());
    change.state.isChannelNameRead = true; // the item has no other value
    return {CameraWrite::ChannelName};
}

struct Changer
{
    std::optional<sdk::CameraGroup> group; ///< group that the camera must support
    Writes (*change)(const Change &);
};

template<std::int32_t sdk::PictureItem::*field>
Writes changeColorNumber(const Change &change)
{
    return changeColor(change, field, usableRange(change.state.capabilities.picture),
                       CameraWrite::VideoColor);
}

const QHash<QString, Changer> &changers()
{
    using Group = sdk::CameraGroup;
    static const QHash<QString, Changer> table = {
        {CameraKey::picture, {Group::Picture, &changePicture}},
        {CameraKey::sharpness, {Group::Sharpness, &changeSharpness}},
        {CameraKey::mirror, {Group::Mirror, &changeMirror}},
        {CameraKey::stable, {Group::Stable, &changeStable}},
        {CameraKey::exposure, {Group::Exposure, &changeExposure}},
        {CameraKey::backMode, {Group::BackLight, &changeBackLight}},
        {CameraKey::whiteBalance, {Group::WhiteBalance, &changeWhiteBalance}},
        {CameraKey::dayNight, {Group::DayNight, &changeDayNight}},
        {CameraKey::inDefog, {Group::Defog, &changeDefog}},
        {CameraKey::lightControl, {Group::Light, &changeLight}},
        {CameraKey::lightControlEx, {Group::MixedLight, &changeMixedLight}},
        {CameraKey::curDayNightMode, {Group::DayNight, &changeDayNightMode}},
        {CameraKey::curBackLightMode, {Group::BackLight, &changeBackLightMode}},
        {CameraKey::curChannelName, {std::nullopt, &changeChannelName}},
        {CameraKey::curColorStyle,
         {Group::Picture,
          [](const Change &change) {
              return changeColor(change, &sdk::PictureItem::colorStyle, colorStyles,
                                 CameraWrite::ColorRecord);
          }}},
        {CameraKey::curBrightness, {Group::Picture, &changeColorNumber<&sdk::PictureItem::brightness>}},
        {CameraKey::curContrast, {Group::Picture, &changeColorNumber<&sdk::PictureItem::contrast>}},
        {CameraKey::curSaturation, {Group::Picture, &changeColorNumber<&sdk::PictureItem::saturation>}},
        {CameraKey::curGamma, {Group::Picture, &changeColorNumber<&sdk::PictureItem::gamma>}},
        {CameraKey::setDefault, {Group::Picture, &setDefaults}},
    };
    return table;
}

} // namespace

bool changesColor(const QString &key)
{
    const auto changer = changers().constFind(key);
    return changer != changers().constEnd() && changer->group == sdk::CameraGroup::Picture;
}

QList<CameraWrite> changeCamera(const QString &key, const QString &subKey, const QVariant &value,
                                const ValueTables &tables, CameraState &state)
{
    const auto changer = changers().constFind(key);
    if (changer == changers().constEnd() || (changer->group && !state.supports(*changer->group)))
        return {};
    return changer->change({subKey, value, tables, state});
}

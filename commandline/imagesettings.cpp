#include "commandline/settings.h"
#include "device/registry/camerakeys.h"
#include "device/registry/encodekeys.h"

#include <QStringList>
#include <QVariantMap>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace commandline {

namespace {

enum class ImageKind
{
    Number,
    Flag,
    Choice, ///< a text of a list; the device library uses its index
};

struct ImageEntry
{
    QLatin1StringView name;
    QLatin1StringView group;
    QLatin1StringView setting;
    ImageKind kind = ImageKind::Number;
    QLatin1StringView list = {}; ///< setting with the choices
    int minimum = 0;             ///< of a number without a range of the camera
    int maximum = 100;
    /// The setting in CameraGroupKey::missing, if it has another name there.
    QLatin1StringView missing = {};
};

constexpr int longestShutterTime = 100000; // milliseconds
constexpr int longestLightDelay = 3600;    // seconds

constexpr std::array imageEntries = {
    ImageEntry{"brightness"_L1, CameraKey::picture, CameraSetting::brightnessSlider},
    ImageEntry{"contrast"_L1, CameraKey::picture, CameraSetting::contrastSlider},
    ImageEntry{"saturation"_L1, CameraKey::picture, CameraSetting::saturationSlider},
    ImageEntry{"hue"_L1, CameraKey::picture, CameraSetting::hue},
    ImageEntry{"gamma"_L1, CameraKey::picture, CameraSetting::gamma},
    ImageEntry{.name = "style"_L1,
               .group = CameraKey::picture,
               .setting = CameraSetting::colorStyle,
               .minimum = 1,
               .maximum = 3},
    ImageEntry{"sharpness"_L1, CameraKey::sharpness, CameraSetting::value},
    ImageEntry{"mirror"_L1, CameraKey::mirror, CameraSetting::value, ImageKind::Flag},
    ImageEntry{
        .name = "rotation"_L1, .group = CameraKey::mirror, .setting = CameraSetting::rotate, .maximum = 3},
    ImageEntry{"stabilisation"_L1, CameraKey::stable, CameraSetting::value, ImageKind::Flag},
    ImageEntry{"exposure.mode"_L1, CameraKey::exposure, CameraSetting::value, ImageKind::Choice,
               CameraSetting::allExposureType},
    ImageEntry{"exposure.antiFlicker"_L1, CameraKey::exposure, CameraSetting::antiFlicker, ImageKind::Choice,
               CameraSetting::allAntiFlickerType},
    ImageEntry{.name = "exposure.shutterMin"_L1,
               .group = CameraKey::exposure,
               .setting = CameraSetting::shortestShutter,
               .maximum = longestShutterTime,
               .missing = CameraSetting::shutter},
    ImageEntry{.name = "exposure.shutterMax"_L1,
               .group = CameraKey::exposure,
               .setting = CameraSetting::longestShutter,
               .maximum = longestShutterTime,
               .missing = CameraSetting::shutter},
    ImageEntry{.name = "exposure.gain"_L1,
               .group = CameraKey::exposure,
               .setting = CameraSetting::gainValue,
               .missing = CameraSetting::gain},
    ImageEntry{.name = "exposure.gainMin"_L1,
               .group = CameraKey::exposure,
               .setting = CameraSetting::gainMin,
               .missing = CameraSetting::gain},
    ImageEntry{.name = "exposure.gainMax"_L1,
               .group = CameraKey::exposure,
               .setting = CameraSetting::gainMax,
               .missing = CameraSetting::gain},
    ImageEntry{"exposure.compensation"_L1, CameraKey::exposure, CameraSetting::compensation},
    ImageEntry{"exposure.autoIris"_L1, CameraKey::exposure, CameraSetting::irisAuto, ImageKind::Flag},
    ImageEntry{"backLight.mode"_L1, CameraKey::backMode, CameraSetting::backmode, ImageKind::Choice,
               CameraSetting::allBackModeType},
    ImageEntry{"backLight.wideDynamic"_L1, CameraKey::backMode, CameraSetting::wideDynamic},
    ImageEntry{"backLight.glareInhibition"_L1, CameraKey::backMode, CameraSetting::glareInhibition},
    ImageEntry{"whiteBalance.mode"_L1, CameraKey::whiteBalance, CameraSetting::whiteBalanceType,
               ImageKind::Choice, CameraSetting::allType},
    ImageEntry{"whiteBalance.gainBlue"_L1, CameraKey::whiteBalance, CameraSetting::gainBlue},
    ImageEntry{"whiteBalance.gainRed"_L1, CameraKey::whiteBalance, CameraSetting::gainRed},
    ImageEntry{"dayNight.mode"_L1, CameraKey::dayNight, CameraSetting::dayNightType, ImageKind::Choice,
               CameraSetting::allDayNightType},
    ImageEntry{.name = "dayNight.sensitivity"_L1,
               .group = CameraKey::dayNight,
               .setting = CameraSetting::sensitivity,
               .minimum = 1,
               .maximum = 3},
    ImageEntry{.name = "dayNight.switchDelay"_L1,
               .group = CameraKey::dayNight,
               .setting = CameraSetting::switchDelay,
               .minimum = 2,
               .maximum = 10},
    ImageEntry{"defog.mode"_L1, CameraKey::inDefog, CameraSetting::defogMode, ImageKind::Choice,
               CameraSetting::allInDefogType},
    ImageEntry{"defog.intensity"_L1, CameraKey::inDefog, CameraSetting::intensity},
    ImageEntry{"light.mode"_L1, CameraKey::lightControl, CameraSetting::controlMode, ImageKind::Choice,
               CameraSetting::allLightControlType},
    ImageEntry{"light.near"_L1, CameraKey::lightControl, CameraSetting::nearLight},
    ImageEntry{"light.far"_L1, CameraKey::lightControl, CameraSetting::farLight},
    ImageEntry{"light.correction"_L1, CameraKey::lightControl, CameraSetting::correction},
    ImageEntry{"mixedLight.mode"_L1, CameraKey::lightControlEx, CameraSetting::controlMode, ImageKind::Choice,
               CameraSetting::allLightControlType},
    ImageEntry{"mixedLight.lamp"_L1, CameraKey::lightControlEx, CameraSetting::mixMode, ImageKind::Choice,
               CameraSetting::allmixLightType},
    ImageEntry{"mixedLight.brightness"_L1, CameraKey::lightControlEx, CameraSetting::brightness},
    ImageEntry{.name = "mixedLight.delay"_L1,
               .group = CameraKey::lightControlEx,
               .setting = CameraSetting::delay,
               .maximum = longestLightDelay},
};

const ImageEntry *imageEntryNamed(const QString &name)
{
    const auto found = std::find_if(imageEntries.cbegin(), imageEntries.cend(),
                                    [&name](const ImageEntry &entry) { return entry.name == name; });
    return found == imageEntries.cend() ? nullptr : &*found;
}

bool isImageSettingOffered(const QVariantMap &group, const ImageEntry &entry)
{
    const QLatin1StringView missing = entry.missing.isEmpty() ? entry.setting : entry.missing;
    return group.value(CameraGroupKey::support).toBool() && group.value(entry.setting).isValid() &&
           !group.value(CameraGroupKey::missing).toStringList().contains(missing);
}

struct ImageRange
{
    int minimum = 0;
    int maximum = 0;
};

ImageRange imageRangeOf(const QVariantMap &group, const ImageEntry &entry)
{
    const QVariantMap range = group.value(CameraGroupKey::ranges).toMap().value(entry.setting).toMap();
    return {.minimum = range.value(CameraGroupKey::min, entry.minimum).toInt(),
            .maximum = range.value(CameraGroupKey::max, entry.maximum).toInt()};
}

QVariant shownImageValue(const QVariantMap &group, const ImageEntry &entry)
{
    const QVariant value = group.value(entry.setting);
    switch (entry.kind) {
    case ImageKind::Flag:
        return flagText(value.toBool());
    case ImageKind::Choice:
        return group.value(entry.list).toStringList().value(value.toInt());
    default:
        return value;
    }
}

std::vector<SettingInfo> imageNames()
{
    std::vector<SettingInfo> names;
    for (const ImageEntry &entry : imageEntries) {
        const bool isTime =
            entry.setting == CameraSetting::shortestShutter || entry.setting == CameraSetting::longestShutter;
        names.push_back({.name = entry.name,
                         .values = entry.kind == ImageKind::Flag     ? "on, off"_L1
                                   : entry.kind == ImageKind::Choice ? "as the camera offers"_L1
                                   : isTime                          ? "milliseconds"_L1
                                                                     : "a number"_L1});
    }
    return names;
}

bool loadImage(SessionOperations &device, int channel)
{
    if (!selectChannel(device, EncodeKey::curVideoChannel, channel))
        return false;
    device.getCameraConfig();
    if (!device.isDeviceAway())
        device.getVideoInByChangeChannel();
    return true;
}

QList<SettingValue> readImage(SessionOperations &device)
{
    QList<SettingValue> values;
    for (const ImageEntry &entry : imageEntries) {
        const QVariantMap group = device.getConfigData(entry.group, {}).toMap();
        if (isImageSettingOffered(group, entry))
            values.append({.name = entry.name, .value = shownImageValue(group, entry)});
    }
    return values;
}

QString faultOfImage(SessionOperations &device, const Assignment &assignment)
{
    const ImageEntry &entry = *imageEntryNamed(assignment.name);
    const QVariantMap group = device.getConfigData(entry.group, {}).toMap();
    if (!isImageSettingOffered(group, entry))
        return u"the camera does not have %1"_s.arg(assignment.name);
    if (entry.kind == ImageKind::Flag)
        return flagFrom(assignment.value) ? QString() : u"%1 is on or off"_s.arg(assignment.name);
    if (entry.kind == ImageKind::Choice) {
        const QStringList choices = group.value(entry.list).toStringList();
        return choiceIndex(choices, assignment.value) >= 0
                   ? QString()
                   : u"%1 is one of: %2"_s.arg(assignment.name, choices.join(u", "_s));
    }
    const ImageRange range = imageRangeOf(group, entry);
    bool isNumber = false;
    const double number = assignment.value.toDouble(&isNumber);
    return isNumber && number >= range.minimum && number <= range.maximum
               ? QString()
               : u"%1 is %2 to %3"_s.arg(assignment.name).arg(range.minimum).arg(range.maximum);
}

void writeImage(SessionOperations &device, const QList<Assignment> &assignments)
{
    for (const Assignment &assignment : assignments) {
        const ImageEntry &entry = *imageEntryNamed(assignment.name);
        const QVariantMap group = device.getConfigData(entry.group, {}).toMap();
        QVariant value = assignment.value.toDouble();
        if (entry.kind == ImageKind::Flag)
            value = flagFrom(assignment.value).value_or(false) ? 1 : 0;
        else if (entry.kind == ImageKind::Choice)
            value = static_cast<int>(choiceIndex(group.value(entry.list).toStringList(), assignment.value));
        if (!device.isDeviceAway())
            device.setConfigData(entry.group, value, entry.setting);
    }
}

} // namespace

const SessionSubject &imageSubject()
{
    static const SessionSubject subject = {.names = &imageNames,
                                           .load = &loadImage,
                                           .read = &readImage,
                                           .faultOf = &faultOfImage,
                                           .write = &writeImage};
    return subject;
}

} // namespace commandline

#include "sdk/onvif/mapping/cameramapping.h"

#include "sdk/blocktext.h"
#include "sdk/configtext/configtext.h"
#include "sdk/onvif/mapping/imagingscale.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

namespace sdk::onvif {

namespace {

using Deadline = OnvifSession::Deadline;

constexpr ValueRange percentRange = {.minimum = 0, .maximum = 100};
constexpr ImagingRange unitRange = {.minimum = 0, .maximum = 1};
constexpr double microsecondsOfMillisecond = 1000;
constexpr int noiseLevels = 4;

// Values of the items.
constexpr int exposureAutomatic = 0;
constexpr int exposureManual = 1;
constexpr int backlightOff = 0;
constexpr int backlightOn = 1;
constexpr int backlightWideDynamic = 2;
constexpr int whiteBalanceAutomatic = 0;
constexpr int whiteBalanceManual = 4;

/// Modes of the standard, indexed by the numbers of the items.
constexpr std::array<std::string_view, 3> dayNightModes = {"ON", "AUTO", "OFF"}; // of the infrared filter
constexpr std::array<std::string_view, 3> defogModes = {"OFF", "ON", "AUTO"};

template<std::size_t count>
int numberOf(std::string_view mode, const std::array<std::string_view, count> &modes)
{
    const auto *const found = std::find(modes.begin(), modes.end(), mode);
    return found == modes.end() ? 0 : static_cast<int>(found - modes.begin());
}

template<std::size_t count>
std::string modeOf(int number, const std::array<std::string_view, count> &modes)
{
    const bool isKnown = number >= 0 && number < static_cast<int>(count);
    return isKnown ? std::string(modes[static_cast<std::size_t>(number)]) : std::string();
}

bool offers(const std::vector<std::string> &modes, std::string_view mode)
{
    return std::find(modes.begin(), modes.end(), mode) != modes.end();
}

constexpr std::uint32_t bit(std::uint32_t number)
{
    return 1U << number;
}

constexpr std::uint32_t bit(CameraGroup group)
{
    return bit(static_cast<std::uint32_t>(group));
}

/// The settings and the options of one video source.
struct Source
{
    std::string token = {};
    ImagingSettings settings = {};
    ImagingOptions options = {};
};

std::string sourceToken(const OnvifSession &session, int channel)
{
    const bool isKnown = channel >= 0 && static_cast<std::size_t>(channel) < session.channels().size();
    return isKnown ? session.channels()[static_cast<std::size_t>(channel)].sourceToken : std::string();
}

ServiceResult<Source> readSource(OnvifSession &session, int channel, Deadline deadline)
{
    const std::optional<ServiceAddress> service = session.imagingService();
    const std::string token = sourceToken(session, channel);
    if (!service || token.empty())
        return {.error = NetError::NotSupported};
    ImagingService imaging(session.client(), *service, deadline);
    auto settings = imaging.settings(token);
    if (!settings.isOk())
        return {.error = settings.error, .reason = settings.reason};
    auto options = imaging.options(token);
    if (!options.isOk())
        return {.error = options.error, .reason = options.reason};
    return {.value = {
                .token = token, .settings = std::move(settings.value), .options = std::move(options.value)}};
}

NetError writeSettings(OnvifSession &session, const Source &source, const ImagingSettings &settings,
                       Deadline deadline)
{
    const std::optional<ServiceAddress> service = session.imagingService();
    if (!service)
        return NetError::NotSupported;
    return ImagingService(session.client(), *service, deadline).setSettings(source.token, settings).error;
}

// The groups: availability in a source, reading an item and writing a changed item. Each `change` returns the
// settings to write, or nothing for values that the standard cannot express.

bool hasPicture(const ImagingOptions &options)
{
    return options.brightness.isUsable() || options.contrast.isUsable() || options.saturation.isUsable();
}

void fill(PictureItem &item, const Source &source)
{
    constexpr int standardStyle = 2;
    item.colorStyle = standardStyle;
    item.brightness = percentOf(source.settings.brightness.value_or(0), source.options.brightness);
    item.contrast = percentOf(source.settings.contrast.value_or(0), source.options.contrast);
    item.saturation = percentOf(source.settings.saturation.value_or(0), source.options.saturation);
}

std::optional<double> changed(int percent, const std::optional<double> &current, const ImagingRange &range)
{
    if (!current || !range.isUsable())
        return std::nullopt; // the source does not have it
    return valueFor(percent, *current, range);
}

std::optional<ImagingSettings> change(const PictureItem &item, const Source &source)
{
    return ImagingSettings{
        .brightness = changed(item.brightness, source.settings.brightness, source.options.brightness),
        .contrast = changed(item.contrast, source.settings.contrast, source.options.contrast),
        .saturation = changed(item.saturation, source.settings.saturation, source.options.saturation)};
}

void fill(SharpnessItem &item, const Source &source)
{
    item.sharpness = percentOf(source.settings.sharpness.value_or(0), source.options.sharpness);
}

std::optional<ImagingSettings> change(const SharpnessItem &item, const Source &source)
{
    return ImagingSettings{.sharpness =
                               changed(item.sharpness, source.settings.sharpness, source.options.sharpness)};
}

void fill(StableItem &item, const Source &source)
{
    item.stable = source.settings.stabilisation && source.settings.stabilisation->mode != "OFF" ? 1 : 0;
}

std::optional<ImagingSettings> change(const StableItem &item, const Source &source)
{
    ModeAndLevel requested = source.settings.stabilisation.value_or(ModeAndLevel());
    const bool isOn = !requested.mode.empty() && requested.mode != "OFF";
    if (isOn != (item.stable != 0))
        requested.mode = item.stable == 0                                  ? "OFF"
                         : offers(source.options.stabilisationModes, "ON") ? "ON"
                                                                           : "AUTO";
    return ImagingSettings{.stabilisation = requested};
}

void fill(ExposureItem &item, const Source &source)
{
    const ExposureSettings exposure = source.settings.exposure.value_or(ExposureSettings());
    const bool isManual = exposure.mode == "MANUAL";
    item.exposure = isManual ? exposureManual : exposureAutomatic;
    const double shortest = isManual ? exposure.time.value_or(0) : exposure.minimumTime.value_or(0);
    const double longest = isManual ? exposure.time.value_or(0) : exposure.maximumTime.value_or(0);
    item.shortestShutter = static_cast<float>(shortest / microsecondsOfMillisecond);
    item.longestShutter = static_cast<float>(longest / microsecondsOfMillisecond);
    item.gain = percentOf(exposure.gain.value_or(0), source.options.gain);
    item.gainMinimum = percentOf(exposure.minimumGain.value_or(0), source.options.minimumGain);
    item.gainMaximum = percentOf(exposure.maximumGain.value_or(0), source.options.maximumGain);
    item.irisAutomatic = 1;
}

/// A time in microseconds within its range; nothing if the device reports no range.
std::optional<double> exposureTime(float milliseconds, const ImagingRange &range)
{
    if (!range.isUsable())
        return std::nullopt;
    return std::clamp(milliseconds * microsecondsOfMillisecond, range.minimum, range.maximum);
}

std::optional<ImagingSettings> change(const ExposureItem &item, const Source &source)
{
    const ImagingOptions &options = source.options;
    const ExposureSettings current = source.settings.exposure.value_or(ExposureSettings());
    ExposureSettings requested;
    if (item.exposure == exposureManual) {
        requested.mode = "MANUAL";
        requested.time = exposureTime(item.longestShutter, options.exposureTime);
        if (options.gain.isUsable())
            requested.gain = valueFor(item.gain, current.gain.value_or(options.gain.minimum), options.gain);
    } else if (item.exposure == exposureAutomatic) {
        requested.mode = "AUTO";
        if (current.minimumTime && item.shortestShutter > 0)
            requested.minimumTime = exposureTime(item.shortestShutter, options.minimumExposureTime);
        if (current.maximumTime && item.longestShutter > 0)
            requested.maximumTime = exposureTime(item.longestShutter, options.maximumExposureTime);
        requested.minimumGain = changed(item.gainMinimum, current.minimumGain, options.minimumGain);
        requested.maximumGain = changed(item.gainMaximum, current.maximumGain, options.maximumGain);
    }
    if (!offers(options.exposureModes, requested.mode))
        return std::nullopt;
    return ImagingSettings{.exposure = requested};
}

void fill(NoiseReductionItem &item, const Source &source)
{
    item.level = static_cast<int>(std::lround(source.settings.noiseReduction.value_or(0) * noiseLevels));
    item.type = item.level > 0 ? 1 : 0;
}

std::optional<ImagingSettings> change(const NoiseReductionItem &item, const Source &source)
{
    NoiseReductionItem current{};
    fill(current, source);
    const int level = item.type == 0 ? 0 : std::clamp(item.level, 1, noiseLevels);
    if (level == current.level)
        return ImagingSettings{.noiseReduction = source.settings.noiseReduction};
    return ImagingSettings{.noiseReduction = static_cast<double>(level) / noiseLevels};
}

bool isOn(const std::optional<ModeAndLevel> &setting)
{
    return setting && setting->mode == "ON";
}

void fill(BackLightItem &item, const Source &source)
{
    item.backMode = isOn(source.settings.wideDynamicRange)        ? backlightWideDynamic
                    : isOn(source.settings.backlightCompensation) ? backlightOn
                                                                  : backlightOff;
    const double level = source.settings.wideDynamicRange.value_or(ModeAndLevel()).level.value_or(0);
    item.wideDynamic = percentOf(level, source.options.wideDynamicLevel);
}

std::optional<ImagingSettings> change(const BackLightItem &item, const Source &source)
{
    if (item.backMode < backlightOff || item.backMode > backlightWideDynamic)
        return std::nullopt;
    ImagingSettings requested;
    if (source.settings.backlightCompensation) {
        requested.backlightCompensation = source.settings.backlightCompensation;
        requested.backlightCompensation->mode = item.backMode == backlightOn ? "ON" : "OFF";
    } else if (item.backMode == backlightOn) {
        return std::nullopt;
    }
    if (source.settings.wideDynamicRange) {
        requested.wideDynamicRange = source.settings.wideDynamicRange;
        requested.wideDynamicRange->mode = item.backMode == backlightWideDynamic ? "ON" : "OFF";
        if (source.options.wideDynamicLevel.isUsable())
            requested.wideDynamicRange->level =
                valueFor(item.wideDynamic, requested.wideDynamicRange->level.value_or(0),
                         source.options.wideDynamicLevel);
    } else if (item.backMode == backlightWideDynamic) {
        return std::nullopt;
    }
    return requested;
}

void fill(WhiteBalanceItem &item, const Source &source)
{
    const WhiteBalanceSettings balance = source.settings.whiteBalance.value_or(WhiteBalanceSettings());
    item.type = balance.mode == "MANUAL" ? whiteBalanceManual : whiteBalanceAutomatic;
    item.gainRed = percentOf(balance.redGain.value_or(0), source.options.redGain);
    item.gainBlue = percentOf(balance.blueGain.value_or(0), source.options.blueGain);
}

std::optional<ImagingSettings> change(const WhiteBalanceItem &item, const Source &source)
{
    const WhiteBalanceSettings current = source.settings.whiteBalance.value_or(WhiteBalanceSettings());
    WhiteBalanceSettings requested;
    if (item.type == whiteBalanceManual) {
        requested.mode = "MANUAL";
        if (source.options.redGain.isUsable())
            requested.redGain = valueFor(item.gainRed, current.redGain.value_or(0), source.options.redGain);
        if (source.options.blueGain.isUsable())
            requested.blueGain =
                valueFor(item.gainBlue, current.blueGain.value_or(0), source.options.blueGain);
    } else if (item.type == whiteBalanceAutomatic) {
        requested.mode = "AUTO";
    }
    if (!offers(source.options.whiteBalanceModes, requested.mode))
        return std::nullopt;
    return ImagingSettings{.whiteBalance = requested};
}

void fill(DayNightItem &item, const Source &source)
{
    item.type = numberOf(source.settings.irCutFilter, dayNightModes);
}

std::optional<ImagingSettings> change(const DayNightItem &item, const Source &source)
{
    const std::string mode = modeOf(item.type, dayNightModes);
    if (!offers(source.options.irCutFilterModes, mode))
        return std::nullopt;
    return ImagingSettings{.irCutFilter = mode};
}

void fill(DefogItem &item, const Source &source)
{
    const ModeAndLevel defogging = source.settings.defogging.value_or(ModeAndLevel());
    item.defogMode = numberOf(defogging.mode, defogModes);
    item.intensity = percentOf(defogging.level.value_or(0), unitRange);
}

std::optional<ImagingSettings> change(const DefogItem &item, const Source &source)
{
    ModeAndLevel requested = source.settings.defogging.value_or(ModeAndLevel());
    requested.mode = modeOf(item.defogMode, defogModes);
    if (!offers(source.options.defoggingModes, requested.mode))
        return std::nullopt;
    if (source.options.hasDefoggingLevel)
        requested.level = valueFor(item.intensity, requested.level.value_or(0), unitRange);
    return ImagingSettings{.defogging = requested};
}

std::uint32_t groupsOf(const ImagingOptions &options)
{
    std::uint32_t groups = 0;
    const auto add = [&groups](CameraGroup group, bool isThere) {
        groups |= isThere ? bit(group) : 0;
    };
    add(CameraGroup::Picture, hasPicture(options));
    add(CameraGroup::Sharpness, options.sharpness.isUsable());
    add(CameraGroup::Stable, !options.stabilisationModes.empty());
    add(CameraGroup::Exposure, !options.exposureModes.empty());
    add(CameraGroup::BackLight, !options.backlightModes.empty() || !options.wideDynamicModes.empty());
    add(CameraGroup::WhiteBalance, !options.whiteBalanceModes.empty());
    add(CameraGroup::DayNight, !options.irCutFilterModes.empty());
    add(CameraGroup::Defog, !options.defoggingModes.empty());
    return groups;
}

std::uint32_t missingValuesOf(const ImagingOptions &options)
{
    std::uint32_t missing = 0;
    const auto add = [&missing](CameraValue value, bool isThere) {
        missing |= isThere ? 0 : bit(static_cast<std::uint32_t>(value));
    };
    add(CameraValue::Brightness, options.brightness.isUsable());
    add(CameraValue::Contrast, options.contrast.isUsable());
    add(CameraValue::Saturation, options.saturation.isUsable());
    add(CameraValue::ShutterTimes, options.exposureTime.isUsable() || options.maximumExposureTime.isUsable());
    add(CameraValue::Gain, options.gain.isUsable());
    add(CameraValue::NoiseReduction, options.hasNoiseReduction);
    add(CameraValue::WideDynamicLevel, options.wideDynamicLevel.isUsable());
    add(CameraValue::WhiteBalanceGains, options.redGain.isUsable() && options.blueGain.isUsable());
    add(CameraValue::DefogIntensity, options.hasDefoggingLevel);
    for (const CameraValue value :
         {CameraValue::Hue, CameraValue::Gamma, CameraValue::ColorStyle, CameraValue::AntiFlicker,
          CameraValue::Compensation, CameraValue::IrisAutomatic, CameraValue::GlareInhibition,
          CameraValue::BacklightRegion, CameraValue::DayNightSensitivity, CameraValue::DayNightDelay})
        add(value, false); // the standard does not have them
    return missing;
}

CameraCapabilities capabilitiesOf(const ImagingOptions &options)
{
    CameraCapabilities capabilities{};
    capabilities.size = sizeof(capabilities);
    capabilities.groups = groupsOf(options);
    capabilities.switchModeMask = bit(static_cast<std::uint32_t>(CameraMode::Normal));
    capabilities.missingValues = missingValuesOf(options);
    const auto add = [](std::uint32_t &mask, int number, bool isThere) {
        mask |= isThere ? bit(static_cast<std::uint32_t>(number)) : 0;
    };
    add(capabilities.exposureMask, exposureAutomatic, offers(options.exposureModes, "AUTO"));
    add(capabilities.exposureMask, exposureManual, offers(options.exposureModes, "MANUAL"));
    add(capabilities.backModeMask, backlightOff, true);
    add(capabilities.backModeMask, backlightOn, offers(options.backlightModes, "ON"));
    add(capabilities.backModeMask, backlightWideDynamic, offers(options.wideDynamicModes, "ON"));
    add(capabilities.whiteBalanceMask, whiteBalanceAutomatic, offers(options.whiteBalanceModes, "AUTO"));
    add(capabilities.whiteBalanceMask, whiteBalanceManual, offers(options.whiteBalanceModes, "MANUAL"));
    for (int number = 0; number < static_cast<int>(dayNightModes.size()); ++number) {
        add(capabilities.dayNightMask, number,
            offers(options.irCutFilterModes, modeOf(number, dayNightModes)));
        add(capabilities.defogMask, number, offers(options.defoggingModes, modeOf(number, defogModes)));
    }
    capabilities.picture = capabilities.sharpness = capabilities.gain = percentRange;
    capabilities.noiseReduction = {.minimum = 0, .maximum = noiseLevels};
    capabilities.wideDynamic = percentRange;
    capabilities.whiteBalanceGain = capabilities.defogIntensity = percentRange;
    return capabilities;
}

/// True if the source has the settings of the item.
bool has(const ImagingOptions &options, CameraItem item)
{
    const std::uint32_t groups = groupsOf(options);
    switch (item) {
    case CameraItem::Picture:
        return (groups & bit(CameraGroup::Picture)) != 0;
    case CameraItem::Sharpness:
        return (groups & bit(CameraGroup::Sharpness)) != 0;
    case CameraItem::Stable:
        return (groups & bit(CameraGroup::Stable)) != 0;
    case CameraItem::Exposure:
        return (groups & bit(CameraGroup::Exposure)) != 0;
    case CameraItem::NoiseReduction:
        return options.hasNoiseReduction;
    case CameraItem::BackLight:
        return (groups & bit(CameraGroup::BackLight)) != 0;
    case CameraItem::WhiteBalance:
        return (groups & bit(CameraGroup::WhiteBalance)) != 0;
    case CameraItem::DayNight:
        return (groups & bit(CameraGroup::DayNight)) != 0;
    case CameraItem::Defog:
        return (groups & bit(CameraGroup::Defog)) != 0;
    default:
        return false;
    }
}

/// Calls `work` with an empty block of the item. NotSupported for an item that the standard does not have.
template<typename Work>
NetError withBlock(CameraItem item, Work work)
{
    switch (item) {
    case CameraItem::Picture:
        return work(PictureItem{});
    case CameraItem::Sharpness:
        return work(SharpnessItem{});
    case CameraItem::Stable:
        return work(StableItem{});
    case CameraItem::Exposure:
        return work(ExposureItem{});
    case CameraItem::NoiseReduction:
        return work(NoiseReductionItem{});
    case CameraItem::BackLight:
        return work(BackLightItem{});
    case CameraItem::WhiteBalance:
        return work(WhiteBalanceItem{});
    case CameraItem::DayNight:
        return work(DayNightItem{});
    case CameraItem::Defog:
        return work(DefogItem{});
    default:
        return NetError::NotSupported;
    }
}

NetError readName(OnvifSession &session, int channel, void *block, std::uint32_t size, Deadline deadline)
{
    ChannelNameItem item{};
    if (!block || size != sizeof(item))
        return NetError::InvalidValue;
    const auto profiles = session.recentProfiles(deadline);
    const std::string token = sourceToken(session, channel);
    const auto profile =
        std::find_if(profiles.value.begin(), profiles.value.end(), [&token](const auto &candidate) {
            return !token.empty() && candidate.sourceToken == token;
        });
    if (profile == profiles.value.end())
        return profiles.isOk() ? NetError::NotSupported : profiles.error;
    item.size = sizeof(item);
    setBlockText(item.name, profile->sourceName);
    std::memcpy(block, &item, sizeof(item));
    return NetError::None;
}

NetError writeName(OnvifSession &session, int channel, const void *block, std::uint32_t size,
                   Deadline deadline)
{
    ChannelNameItem item{};
    if (!block || size != sizeof(item))
        return NetError::InvalidValue;
    std::memcpy(&item, block, sizeof(item));
    const auto profiles = session.profiles(deadline);
    const std::string token = sourceToken(session, channel);
    const auto profile =
        std::find_if(profiles.value.begin(), profiles.value.end(), [&token](const auto &candidate) {
            return !token.empty() && candidate.sourceToken == token;
        });
    std::optional<MediaService> media = session.media(deadline);
    if (profile == profiles.value.end() || !media)
        return profiles.isOk() ? NetError::NotSupported : profiles.error;
    const NetError error =
        media->setSourceName(profile->sourceConfiguration, std::string(blockText(item.name))).error;
    session.clearProfiles();
    return error;
}

template<typename Work>
NetError onColor(OnvifSession &session, int channel, Deadline deadline, Work work)
{
    const ServiceResult<Source> source = readSource(session, channel, deadline);
    if (!source.isOk())
        return source.error;
    return hasPicture(source.value.options) ? work(source.value) : NetError::NotSupported;
}

NetError writeColors(OnvifSession &session, int channel, const VideoColorRecord &record, Deadline deadline)
{
    return onColor(session, channel, deadline, [&](const Source &source) {
        const PictureItem &picture = record.pictures[static_cast<std::size_t>(CameraMode::Normal)];
        return writeSettings(session, source, change(picture, source).value_or(ImagingSettings()), deadline);
    });
}

} // namespace

std::string colorConfiguration(OnvifSession &session, int channel, Deadline deadline, NetError &error)
{
    std::string text;
    error = onColor(session, channel, deadline, [&text](const Source &source) {
        VideoColorRecord record{};
        record.size = sizeof(record);
        for (std::size_t mode = 0; mode < cameraModeCount; ++mode)
            fill(record.pictures[mode], source);
        const std::optional<QByteArray> packed = packConfigText("VideoColor", &record, sizeof(record));
        text = packed ? packed->toStdString() : std::string();
        return packed ? NetError::None : NetError::ProtocolMismatch;
    });
    return text;
}

NetError setColorConfiguration(OnvifSession &session, int channel, std::string_view text, Deadline deadline)
{
    VideoColorRecord record{};
    if (!unpackConfigText("VideoColor", text, &record, sizeof(record)))
        return NetError::InvalidValue;
    return writeColors(session, channel, record, deadline);
}

NetError cameraItem(OnvifSession &session, std::uint32_t item, int channel, void *block, std::uint32_t size,
                    Deadline deadline)
{
    const auto requested = static_cast<CameraItem>(item);
    if (requested == CameraItem::ChannelName)
        return readName(session, channel, block, size, deadline);
    return withBlock(requested, [&](auto typedBlock) {
        if (!block || size != sizeof(typedBlock))
            return NetError::InvalidValue;
        std::memcpy(&typedBlock, block, sizeof(typedBlock));
        const ServiceResult<Source> source = readSource(session, channel, deadline);
        if (!source.isOk())
            return source.error;
        if (!has(source.value.options, requested))
            return NetError::NotSupported;
        fill(typedBlock, source.value);
        std::memcpy(block, &typedBlock, sizeof(typedBlock));
        return NetError::None;
    });
}

NetError setCameraItem(OnvifSession &session, std::uint32_t item, int channel, const void *block,
                       std::uint32_t size, Deadline deadline)
{
    const auto requested = static_cast<CameraItem>(item);
    if (requested == CameraItem::ChannelName)
        return writeName(session, channel, block, size, deadline);
    if (requested == CameraItem::Picture && block && size == sizeof(VideoColorRecord)) {
        VideoColorRecord record{};
        std::memcpy(&record, block, sizeof(record));
        return writeColors(session, channel, record, deadline);
    }
    return withBlock(requested, [&](auto typedBlock) {
        if (!block || size != sizeof(typedBlock))
            return NetError::InvalidValue;
        std::memcpy(&typedBlock, block, sizeof(typedBlock));
        const ServiceResult<Source> source = readSource(session, channel, deadline);
        if (!source.isOk())
            return source.error;
        if (!has(source.value.options, requested))
            return NetError::NotSupported;
        const std::optional<ImagingSettings> settings = change(typedBlock, source.value);
        return settings ? writeSettings(session, source.value, *settings, deadline) : NetError::InvalidValue;
    });
}

NetError cameraCapabilities(OnvifSession &session, const CameraCapabilityInput &input,
                            CameraCapabilities &output, Deadline deadline)
{
    if (input.size != sizeof(input) || output.size != sizeof(output))
        return NetError::InvalidValue;
    const ServiceResult<Source> source = readSource(session, input.channel, deadline);
    if (!source.isOk())
        return source.error;
    output = capabilitiesOf(source.value.options);
    return NetError::None;
}

} // namespace sdk::onvif

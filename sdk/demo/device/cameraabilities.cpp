#include "sdk/demo/device/cameraabilities.h"

#include "sdk/blocktext.h"

#include <QJsonArray>

#include <array>
#include <optional>

using namespace Qt::StringLiterals;

namespace sdk::demo {

namespace {

/// Names of groups in scenes, by bit.
constexpr std::array groupNames = {"picture",      "sharpness", "mirror", "stable", "exposure",  "backLight",
                                   "whiteBalance", "dayNight",  "defog",  "light",  "mixedLight"};
static_assert(groupNames.size() == cameraGroupCount);

constexpr std::uint32_t bit(CameraGroup group)
{
    return 1u << static_cast<std::uint32_t>(group);
}

std::uint32_t usualGroups(const SceneDevice &device)
{
    const bool isCamera = device.type == u"IPC" || device.type == u"SD" || device.type == u"ITC";
    if (!isCamera)
        return bit(CameraGroup::Picture); // of connected cameras, only this group can be set
    constexpr std::uint32_t all = (1u << cameraGroupCount) - 1;
    return all & ~bit(CameraGroup::MixedLight);
}

/// Values 0 to `count` - 1.
constexpr std::uint32_t values(int count)
{
    return (1u << count) - 1;
}

template<typename Item>
QByteArray bytesOf(Item item, std::int32_t mode)
{
    item.size = sizeof(item);
    if constexpr (requires { item.mode; })
        item.mode = mode;
    return {reinterpret_cast<const char *>(&item), sizeof(item)};
}

/// The group of an item; nullopt for the name of a channel, which every device supports.
std::optional<CameraGroup> groupOf(CameraItem item)
{
    switch (item) {
    case CameraItem::ChannelName:
        return std::nullopt;
    case CameraItem::Picture:
        return CameraGroup::Picture;
    case CameraItem::Mirror:
        return CameraGroup::Mirror;
    case CameraItem::Stable:
        return CameraGroup::Stable;
    case CameraItem::Exposure:
    case CameraItem::NoiseReduction:
        return CameraGroup::Exposure;
    case CameraItem::BackLight:
        return CameraGroup::BackLight;
    case CameraItem::Light:
        return CameraGroup::Light;
    case CameraItem::WhiteBalance:
        return CameraGroup::WhiteBalance;
    case CameraItem::DayNight:
        return CameraGroup::DayNight;
    case CameraItem::Defog:
        return CameraGroup::Defog;
    case CameraItem::Sharpness:
        return CameraGroup::Sharpness;
    case CameraItem::MixedLight:
        return CameraGroup::MixedLight;
    }
    return std::nullopt;
}

QByteArray channelName(const SceneDevice &device, std::int32_t channel)
{
    ChannelNameItem item = {};
    QString name = device.channels.value(channel).name;
    if (name.isEmpty())
        name = u"%1 %2"_s.arg(device.name).arg(channel + 1);
    setBlockText(item.name, name.toStdString());
    return bytesOf(item, 0);
}

} // namespace

CameraCapabilities cameraCapabilities(const SceneDevice &device)
{
    CameraCapabilities block = {};
    block.size = sizeof(block);
    block.groups = usualGroups(device);
    const QJsonValue named = device.capabilities.value(u"camera");
    if (named.isArray()) {
        block.groups = 0;
        for (std::uint32_t group = 0; group < cameraGroupCount; ++group) {
            if (named.toArray().contains(QJsonValue(QLatin1String(groupNames[group]))))
                block.groups |= 1u << group;
        }
    }
    const bool isOld = device.initialisation == InitialisationBits::NotReported;
    block.switchModeMask = isOld ? values(1) : values(3);
    block.colorStyleMask = values(4) & ~1u; // counted from 1
    block.rotateMask = isOld ? values(1) : values(4);
    block.antiFlickerMask = values(3);
    block.exposureMask = isOld ? values(2) : values(4);
    block.backModeMask = isOld ? values(2) : values(4);
    block.whiteBalanceMask = isOld ? values(2) : values(6);
    block.dayNightMask = values(3);
    block.defogMask = values(3);
    block.lightControlMask = values(3);
    block.mixedLightMask = values(3);
    const ValueRange percent = {0, 100};
    block.picture = block.sharpness = block.gain = block.compensation = block.wideDynamic = percent;
    block.glareInhibition = block.whiteBalanceGain = block.defogIntensity = block.light = percent;
    block.noiseReduction = {0, 4};
    block.mixedLight = {1, 100};
    if (device.hasFault(Fault::OddCapabilities)) {
        block.groups = block.exposureMask = block.backModeMask = block.whiteBalanceMask = 0xFFFFFFFF;
        block.picture = {100, -100};
        block.gain = {0, 0};
    }
    return block;
}

std::optional<QByteArray> usualCameraItem(const SceneDevice &device, const ItemKey &itemKey)
{
    const auto item = static_cast<CameraItem>(itemKey.item);
    const std::optional<CameraGroup> group = groupOf(item);
    const bool isMode =
        itemKey.selector >= 0 && itemKey.selector < static_cast<std::int32_t>(cameraModeCount);
    if (!isMode || (group && (cameraCapabilities(device).groups & bit(*group)) == 0))
        return std::nullopt;
    const std::int32_t mode = itemKey.selector;
    const bool isNight = mode == static_cast<std::int32_t>(CameraMode::Night);
    constexpr int half = 50;      // of a percentage
    constexpr int quarter = 2048; // of the image's side
    switch (item) {
    case CameraItem::ChannelName:
        return channelName(device, itemKey.channel);
    case CameraItem::Picture:
        return bytesOf(PictureItem{0, 0, 2, isNight ? 40 : half, half, half, half, half, {}}, mode);
    case CameraItem::Mirror:
        return bytesOf(MirrorItem{}, mode);
    case CameraItem::Stable:
        return bytesOf(StableItem{}, mode);
    case CameraItem::Exposure:
        return bytesOf(ExposureItem{0, 0, 0, 0, 0, 40, half, 0, half, half, 1, {}}, mode);
    case CameraItem::NoiseReduction:
        return bytesOf(NoiseReductionItem{0, 0, 1, 2}, mode);
    case CameraItem::BackLight:
        return bytesOf(BackLightItem{0, 0, 0, 0, half, half, quarter, 3 * quarter, quarter, 3 * quarter},
                       mode);
    case CameraItem::Light:
        return bytesOf(LightItem{0, 2, 0, half, half, half}, mode);
    case CameraItem::WhiteBalance:
        return bytesOf(WhiteBalanceItem{0, 0, 0, half, half, {}}, mode);
    case CameraItem::DayNight:
        return bytesOf(DayNightItem{0, 0, 1, 2, 6}, mode);
    case CameraItem::Defog:
        return bytesOf(DefogItem{0, 0, 0, half, {}}, mode);
    case CameraItem::Sharpness:
        return bytesOf(SharpnessItem{0, 0, half, {}}, mode);
    case CameraItem::MixedLight:
        return bytesOf(MixedLightItem{0, 0, 2, 2, 0, 3, half, half, 30, 0}, mode);
    }
    return std::nullopt;
}

} // namespace sdk::demo

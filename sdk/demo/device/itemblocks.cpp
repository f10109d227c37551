#include "sdk/demo/device/itemblocks.h"

#include "sdk/blocktext.h"
#include "sdk/camerablocks.h"
#include "sdk/encodeblocks.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace sdk::demo {

namespace {

constexpr const char *none = nullptr;

constexpr std::array videoFormat = {"size",      "stream", "videoEnable",    "compression",
                                    "width",     "height", "bitRateControl", "bitRate",
                                    "frameRate", none,     "quality"};
constexpr std::array videoProfile = {"size", "stream", "profile"};
constexpr std::array audioCompression = {"size", "audioEnable", "stream", "format"};
constexpr std::array audioFormat = {"size", "stream", none, "samplingFrequency", none, none, none};
constexpr std::array pictureMembers = {"size", "mode",  "colorStyle", "brightness", "contrast", "saturation",
                                       "hue",  "gamma", none,         none,         none,       none,
                                       none,   none,    none,         none};
constexpr std::array sharpness = {"size", "mode", "sharpness", none, none};
constexpr std::array mirror = {"size", "mode", "mirror", "rotate", none};
constexpr std::array stable = {"size", "mode", "stable"};
constexpr std::array exposure = {"size",
                                 "mode",
                                 "antiFlicker",
                                 "exposure",
                                 "shortestShutter",
                                 "longestShutter",
                                 "gain",
                                 "gainMinimum",
                                 "gainMaximum",
                                 "compensation",
                                 "irisAutomatic",
                                 none,
                                 none,
                                 none,
                                 none,
                                 none};
constexpr std::array noiseReduction = {"size", "mode", "type", "level"};
constexpr std::array backLight = {
    "size",      "mode",         "backMode",   "backLightMode", "wideDynamic", "glareInhibition",
    "regionTop", "regionBottom", "regionLeft", "regionRight"};
constexpr std::array whiteBalance = {"size", "mode", "type", "gainBlue", "gainRed", none, none};
constexpr std::array dayNight = {"size", "mode", "type", "sensitivity", "switchDelay"};
constexpr std::array defog = {"size", "mode", "defogMode", "intensity", none, none, none, none};
constexpr std::array light = {"size", "controlMode", "lightMode", "nearLight", "farLight", "correction"};
constexpr std::array mixedLight = {"size",      "mode",       "controlMode", "mixMode", "lightMode",
                                   "sensitive", "correction", "brightness",  "delay",   none};

constexpr ItemBlock entry(auto number, std::size_t size, std::span<const char *const> words,
                          std::size_t selectorWord, std::uint32_t floatWords = 0)
{
    return {static_cast<std::uint32_t>(number), static_cast<std::uint32_t>(size), words, selectorWord,
            floatWords};
}

constexpr std::array items = {
    entry(EncodeItem::VideoFormat, sizeof(VideoFormatItem), videoFormat, 1, 1u << 8),
    entry(EncodeItem::VideoProfile, sizeof(VideoProfileItem), videoProfile, 1),
    entry(EncodeItem::AudioCompression, sizeof(AudioCompressionItem), audioCompression, 2),
    entry(EncodeItem::AudioFormat, sizeof(AudioFormatItem), audioFormat, 1),
    entry(CameraItem::ChannelName, sizeof(ChannelNameItem), {}, 0),
    entry(CameraItem::Picture, sizeof(PictureItem), pictureMembers, 1),
    entry(CameraItem::Mirror, sizeof(MirrorItem), mirror, 1),
    entry(CameraItem::Stable, sizeof(StableItem), stable, 1),
    entry(CameraItem::Exposure, sizeof(ExposureItem), exposure, 1, 3u << 4),
    entry(CameraItem::BackLight, sizeof(BackLightItem), backLight, 1),
    entry(CameraItem::Light, sizeof(LightItem), light, 0),
    entry(CameraItem::WhiteBalance, sizeof(WhiteBalanceItem), whiteBalance, 1),
    entry(CameraItem::DayNight, sizeof(DayNightItem), dayNight, 1),
    entry(CameraItem::Defog, sizeof(DefogItem), defog, 1),
    entry(CameraItem::Sharpness, sizeof(SharpnessItem), sharpness, 1),
    entry(CameraItem::NoiseReduction, sizeof(NoiseReductionItem), noiseReduction, 1),
    entry(CameraItem::MixedLight, sizeof(MixedLightItem), mixedLight, 1),
};
static_assert(std::all_of(items.begin(), items.end(), [](const ItemBlock &item) {
    return item.words.empty() || item.words.size() * sizeof(std::int32_t) == item.size;
}));

std::int32_t wordAt(const void *block, std::size_t index)
{
    std::int32_t word = 0;
    std::memcpy(&word, static_cast<const char *>(block) + index * sizeof(word), sizeof(word));
    return word;
}

} // namespace

const ItemBlock *itemBlock(std::uint32_t number)
{
    const auto found = std::find_if(items.begin(), items.end(),
                                    [number](const ItemBlock &item) { return item.number == number; });
    return found == items.end() ? nullptr : &*found;
}

QJsonObject decodedItem(const ItemBlock &item, const void *block)
{
    QJsonObject decoded;
    for (std::size_t index = 0; index < item.words.size(); ++index) {
        if (!item.words[index])
            continue;
        const std::int32_t word = wordAt(block, index);
        float number = 0;
        std::memcpy(&number, &word, sizeof(number));
        const bool isFloat = (item.floatWords >> index & 1) != 0;
        decoded.insert(QLatin1String(item.words[index]),
                       isFloat ? QJsonValue(double(number)) : QJsonValue(word));
    }
    if (item.words.empty()) {
        ChannelNameItem name;
        std::memcpy(&name, block, sizeof(name));
        const std::string_view text = blockText(name.name);
        decoded.insert(QStringLiteral("size"), static_cast<qint64>(name.size));
        decoded.insert(QStringLiteral("name"),
                       QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
    }
    return decoded;
}

std::uint32_t statedSize(const void *block, std::uint32_t blockSize)
{
    return block && blockSize >= sizeof(std::uint32_t) ? static_cast<std::uint32_t>(wordAt(block, 0)) : 0;
}

ItemKey itemKeyOf(const ItemBlock &item, std::int32_t channel, const void *block)
{
    return {item.number, channel, item.selectorWord == 0 ? 0 : wordAt(block, item.selectorWord)};
}

} // namespace sdk::demo

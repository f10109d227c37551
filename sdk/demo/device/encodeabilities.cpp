#include "sdk/demo/device/encodeabilities.h"

#include <QJsonArray>

#include <algorithm>
#include <array>
#include <optional>

using namespace Qt::StringLiterals;

namespace sdk::demo {

namespace {

/// The encoder's limit: pixels of an image for each kbit/s.
constexpr int pixelsPerKilobit = 50;

/// Format numbers of configurations, by the codes of capabilities.
constexpr std::array configurationFormats = {0,  2,  1, 4, 3, 6, 6, 6, 5, 11, 7, 9,
                                             10, 13, 0, 0, 0, 0, 0, 0, 0, 8,  12};

int configurationFormat(int code)
{
    const bool isKnown = code > 0 && code < static_cast<int>(configurationFormats.size());
    return isKnown ? configurationFormats[static_cast<std::size_t>(code)] : 0;
}

QList<int> numbers(const QJsonValue &list, const QList<int> &usual)
{
    if (!list.isArray())
        return usual;
    QList<int> found;
    const QJsonArray values = list.toArray();
    for (const auto &value : values)
        found.append(value.toInt());
    return found;
}

/// "1920*1080"
QList<FrameSize> sizes(const QJsonValue &list, const QList<FrameSize> &usual)
{
    if (!list.isArray())
        return usual;
    QList<FrameSize> found;
    const QJsonArray values = list.toArray();
    for (const auto &value : values) {
        const QStringList sides = value.toString().split(u'*');
        found.append({sides.value(0).toUShort(), sides.value(1).toUShort()});
    }
    return found;
}

StreamAbilities usualAbilities(StreamKind kind)
{
    constexpr int codeH265 = 8;
    constexpr int codeMotionJpeg = 5;
    StreamAbilities usual;
    usual.compressions = {codeMotionJpeg, compressionH264, codeH265};
    usual.profiles = {1, 2, 4};
    usual.minimumBitRate = 32;
    usual.maximumFrameRate = 25;
    usual.audioFormats = {2, 4, 8}; // G711a, G711u, AAC
    usual.samplingFrequencies = {8000, 16000};
    if (kind == StreamKind::Sub) {
        usual.sizes = {{704, 576}, {640, 480}, {352, 288}};
        usual.maximumBitRate = 4096;
    } else {
        usual.sizes = {{2688, 1520}, {1920, 1080}, {1280, 720}};
        usual.maximumBitRate = 16384;
    }
    return usual;
}

template<typename Entry, std::size_t capacity>
std::uint32_t fill(std::array<Entry, capacity> &entries, const QList<Entry> &values)
{
    const qsizetype count = std::min<qsizetype>(values.size(), capacity);
    std::copy_n(values.begin(), count, entries.begin());
    return static_cast<std::uint32_t>(count);
}

void fill(FrameSizeList &list, const QList<FrameSize> &values)
{
    list.count = fill(list.sizes, values);
}

/// Counts out of range, unknown bits and codes, sizes of 0.
void makeOdd(EncodeCapabilityBlock &block)
{
    constexpr std::uint32_t tooMany = 0xFFFFFFFF;
    block.compressionMask = tooMany;
    block.profileCount = tooMany;
    block.profiles.back() = -1;
    block.audioFormatCount = tooMany;
    block.audioFormats.back() = 1 << 30;
    block.audioRateCount = tooMany;
    block.audioRates.back() = {.format = block.audioFormats.front(), .frequency = -1};
    block.sizes.count = tooMany;
    block.sizes.sizes[0] = {0, 0};
    for (FrameSizeList &list : block.sizesByCompression)
        list.count = tooMany;
    block.maximumFrameRate = -1;
}

std::optional<StreamKind> kindOf(std::int32_t stream)
{
    if (stream < 1 || stream > static_cast<std::int32_t>(streamKindCount))
        return std::nullopt;
    return static_cast<StreamKind>(stream - 1);
}

bool isRefused(const SceneDevice &device, EncodeItem item)
{
    const std::optional<FaultSetting> refusal = device.fault(Fault::RefusesItem);
    return refusal && refusal->number == static_cast<int>(item);
}

bool isBetween(double value, double minimum, double maximum)
{
    return value >= minimum && value <= maximum;
}

} // namespace

int StreamAbilities::maximumBitRateOf(int width, int height) const
{
    if (width <= 0 || height <= 0)
        return maximumBitRate;
    return std::clamp(width * height / pixelsPerKilobit, minimumBitRate,
                      std::max(minimumBitRate, maximumBitRate));
}

StreamAbilities streamAbilities(const SceneDevice &device, StreamKind kind)
{
    StreamAbilities abilities = usualAbilities(kind);
    const QJsonObject json = device.capabilities.value(u"encode")
                                 .toObject()
                                 .value(kind == StreamKind::Sub ? u"sub"_s : u"main"_s)
                                 .toObject();
    abilities.compressions = numbers(json.value(u"compressions"), abilities.compressions);
    abilities.profiles = numbers(json.value(u"profiles"), abilities.profiles);
    abilities.sizes = sizes(json.value(u"sizes"), abilities.sizes);
    const QJsonObject byCompression = json.value(u"sizesByCompression").toObject();
    for (auto entry = byCompression.constBegin(); entry != byCompression.constEnd(); ++entry)
        abilities.sizesByCompression.insert(entry.key().toInt(), sizes(entry.value(), {}));
    const QList<int> bitRates =
        numbers(json.value(u"bitRates"), {abilities.minimumBitRate, abilities.maximumBitRate});
    abilities.minimumBitRate = bitRates.value(0);
    abilities.maximumBitRate = bitRates.value(1);
    abilities.maximumFrameRate = json.value(u"frameRate").toInt(abilities.maximumFrameRate);
    abilities.audioFormats = numbers(json.value(u"audioFormats"), abilities.audioFormats);
    abilities.samplingFrequencies =
        numbers(json.value(u"samplingFrequencies"), abilities.samplingFrequencies);
    return abilities;
}

EncodeCapabilityBlock capabilityBlock(const SceneDevice &device, StreamKind kind,
                                      const EncodeStreamRecord &format)
{
    const StreamAbilities abilities = streamAbilities(device, kind);
    EncodeCapabilityBlock block = {};
    block.size = sizeof(block);
    for (const int code : abilities.compressions)
        block.compressionMask |= code >= 0 && code < 32 ? 1u << code : 0u;
    block.minimumBitRate = abilities.minimumBitRate;
    block.maximumBitRate = abilities.maximumBitRateOf(format.width, format.height);
    block.maximumFrameRate = abilities.maximumFrameRate;
    block.profileCount = fill(block.profiles, abilities.profiles);
    block.audioFormatCount = fill(block.audioFormats, abilities.audioFormats);
    if (abilities.audioFormats.isEmpty())
        block.missingValues |= 1U << static_cast<std::uint32_t>(EncodeValue::Audio);
    for (const int sound : abilities.audioFormats) {
        for (const int frequency : abilities.samplingFrequencies) {
            if (block.audioRateCount < block.audioRates.size())
                block.audioRates[block.audioRateCount++] = {.format = sound, .frequency = frequency};
        }
    }
    block.sizesDependOnCompression = abilities.sizesByCompression.isEmpty() ? 0 : 1;
    fill(block.sizes, abilities.sizes);
    for (auto entry = abilities.sizesByCompression.constBegin();
         entry != abilities.sizesByCompression.constEnd(); ++entry) {
        if (entry.key() >= 0 && entry.key() < static_cast<int>(block.sizesByCompression.size()))
            fill(block.sizesByCompression[static_cast<std::size_t>(entry.key())], entry.value());
    }
    if (device.hasFault(Fault::OddCapabilities))
        makeOdd(block);
    return block;
}

VideoFormatItem usualVideoFormat(const SceneDevice &device, StreamKind kind)
{
    constexpr int usualMainBitRate = 4096;
    constexpr int usualSubBitRate = 512;
    constexpr int usualQuality = 4;
    const StreamAbilities abilities = streamAbilities(device, kind);
    VideoFormatItem item = {};
    item.size = sizeof(item);
    item.stream = streamNumber(kind);
    item.videoEnable = 1;
    item.compression =
        abilities.compressions.contains(compressionH264) ? compressionH264 : abilities.compressions.value(0);
    const FrameSize size = abilities.sizesOf(item.compression).value(0);
    item.width = size.width;
    item.height = size.height;
    item.bitRateControl = 1;
    const int maximum = abilities.maximumBitRateOf(item.width, item.height);
    item.bitRate = std::clamp(kind == StreamKind::Sub ? usualSubBitRate : usualMainBitRate,
                              abilities.minimumBitRate, std::max(abilities.minimumBitRate, maximum));
    item.frameRate = static_cast<float>(abilities.maximumFrameRate);
    item.quality = usualQuality;
    return item;
}

VideoProfileItem usualVideoProfile(const SceneDevice &device, StreamKind kind)
{
    const QList<int> profiles = streamAbilities(device, kind).profiles;
    constexpr int plain = 2;
    return {sizeof(VideoProfileItem), streamNumber(kind),
            profiles.contains(plain) ? plain : profiles.value(0)};
}

AudioCompressionItem usualAudioCompression(const SceneDevice &device, StreamKind kind)
{
    const int code = streamAbilities(device, kind).audioFormats.value(0);
    return {sizeof(AudioCompressionItem), code > 0 ? 1 : 0, streamNumber(kind), configurationFormat(code)};
}

AudioFormatItem usualAudioFormat(const SceneDevice &device, StreamKind kind)
{
    return {sizeof(AudioFormatItem),
            streamNumber(kind),
            0,
            streamAbilities(device, kind).samplingFrequencies.value(0),
            {}};
}

bool takes(const SceneDevice &device, const VideoFormatItem &item)
{
    const std::optional<StreamKind> kind = kindOf(item.stream);
    if (!kind || isRefused(device, EncodeItem::VideoFormat))
        return false;
    const StreamAbilities abilities = streamAbilities(device, *kind);
    const QList<FrameSize> known = abilities.sizesOf(item.compression);
    const bool knowsSize = std::any_of(known.begin(), known.end(), [&item](FrameSize size) {
        return size.width == item.width && size.height == item.height;
    });
    const std::optional<FaultSetting> limit = device.fault(Fault::RefusesBitRatesAbove);
    constexpr int bestQuality = 6;
    return abilities.compressions.contains(item.compression) && knowsSize &&
           isBetween(item.bitRate, abilities.minimumBitRate,
                     abilities.maximumBitRateOf(item.width, item.height)) &&
           (!limit || item.bitRate <= limit->number) &&
           isBetween(item.frameRate, 1, abilities.maximumFrameRate) &&
           isBetween(item.quality, 1, bestQuality) && isBetween(item.bitRateControl, 0, 1) &&
           isBetween(item.videoEnable, 0, 1);
}

bool takes(const SceneDevice &device, const VideoProfileItem &item)
{
    const std::optional<StreamKind> kind = kindOf(item.stream);
    if (!kind || isRefused(device, EncodeItem::VideoProfile))
        return false;
    const QList<int> profiles = streamAbilities(device, *kind).profiles;
    return profiles.isEmpty() || profiles.contains(item.profile);
}

bool takes(const SceneDevice &device, const AudioCompressionItem &item)
{
    const std::optional<StreamKind> kind = kindOf(item.stream);
    if (!kind || isRefused(device, EncodeItem::AudioCompression) || !isBetween(item.audioEnable, 0, 1))
        return false;
    const QList<int> codes = streamAbilities(device, *kind).audioFormats;
    return (codes.isEmpty() && item.audioEnable == 0) ||
           std::any_of(codes.begin(), codes.end(),
                       [&item](int code) { return configurationFormat(code) == item.format; });
}

bool takes(const SceneDevice &device, const AudioFormatItem &item)
{
    const std::optional<StreamKind> kind = kindOf(item.stream);
    if (!kind || isRefused(device, EncodeItem::AudioFormat))
        return false;
    const QList<int> frequencies = streamAbilities(device, *kind).samplingFrequencies;
    return frequencies.isEmpty() || frequencies.contains(item.samplingFrequency);
}

} // namespace sdk::demo

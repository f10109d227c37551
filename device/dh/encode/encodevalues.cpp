#include "device/dh/encode/encodevalues.h"

#include "device/dh/encode/encodechoices.h"
#include "device/registry/encodekeys.h"

#include <QCoreApplication>
#include <QSet>

#include <cmath>
#include <optional>

namespace {

constexpr int worstQuality = 1;
constexpr int bestQuality = 6;
constexpr int highestBitRate = 1000000;
constexpr int highestFrameRate = 1000;
constexpr int highestSamplingFrequency = 1000000;

class PageTexts
{
    Q_DECLARE_TR_FUNCTIONS(EncodeValues)
public:
    static QString customBitRate() { return tr("自定义"); }
};

/// The number of kinds of main stream that the device has, counted from "normal"; all if it reports none.
int offeredTypes(const EncodeState &state)
{
    constexpr int all = 3;
    int offered = 0;
    while (offered < all && state.mainBlock(offered).compressionMask != 0)
        ++offered;
    return offered > 0 ? offered : all;
}

/// An integer from `minimum` to `maximum`, given as number, bool or decimal text.
std::optional<int> numberOf(const QVariant &value, int minimum, int maximum)
{
    bool isNumber = false;
    const double number = value.typeId() == QMetaType::QString
                              ? value.toString().trimmed().toInt(&isNumber, 10)
                              : value.toDouble(&isNumber);
    // This form of the condition also rejects NaN.
    if (!isNumber || !(number >= minimum && number <= maximum))
        return std::nullopt;
    return static_cast<int>(std::lround(number));
}

/// Returns false, and leaves the field unchanged, if the value is not a number in the range.
bool setNumber(const QVariant &value, int minimum, int maximum, auto &field)
{
    const std::optional<int> number = numberOf(value, minimum, maximum);
    if (number)
        field = static_cast<std::remove_reference_t<decltype(field)>>(*number);
    return number.has_value();
}

bool setFlag(const QVariant &value, std::int32_t &field)
{
    return setNumber(value, 0, 1, field);
}

int shownFrameRate(float frameRate)
{
    return frameRate > 0 && frameRate <= highestFrameRate ? static_cast<int>(std::lround(frameRate)) : 0;
}

/// The offered frequencies, and the current one if it is not among them.
QStringList samplingFrequencies(const EncodeChoices &choices, const EncodeItems &items)
{
    QList<int> frequencies =
        choices.samplingFrequencies(ValueTables::audioFormatToName(items.audioCompression.format));
    const int current = items.audioFormat.samplingFrequency;
    if (current > 0 && !frequencies.contains(current))
        frequencies.append(current);
    QStringList names;
    for (const int frequency : std::as_const(frequencies))
        names.append(QString::number(frequency));
    return names;
}

/// What the device does not have: "stream", "audio", or single settings by their names in EncodeForm.
QStringList missingSettings(const EncodeChoices &choices)
{
    QStringList missing;
    const auto add = [&](sdk::EncodeValue value, QLatin1StringView setting) {
        if (choices.isMissing(value))
            missing.append(setting);
    };
    add(sdk::EncodeValue::Stream, EncodeSetting::stream);
    add(sdk::EncodeValue::StreamSwitch, EncodeKey::videoEnable);
    add(sdk::EncodeValue::BitRateControl, EncodeSetting::control);
    add(sdk::EncodeValue::Audio, EncodeSetting::audio);
    add(sdk::EncodeValue::AudioSwitch, EncodeKey::audioEnable);
    return missing;
}

} // namespace

bool EncodeValues::isKey(const QString &key)
{
    constexpr std::array otherKeys = {EncodeKey::subVideoEnable, EncodeKey::offeredStreamTypes,
                                      EncodeKey::takenItems, EncodeKey::unreadItems,
                                      EncodeKey::unreadIndexes};
    const QString field = splitEncodeKey(key).field;
    return std::any_of(otherKeys.begin(), otherKeys.end(),
                       [&key](QLatin1StringView other) { return other == key; }) ||
           std::any_of(encodeFields.begin(), encodeFields.end(),
                       [&field](const EncodeField &candidate) { return candidate.key == field; });
}

QVariant EncodeValues::value(const QString &key, const EncodeState &state, int streamType) const
{
    const StreamKey parts = splitEncodeKey(key);
    const std::optional<EncodeItemIndex> index = encodeItemIndexOf(parts.field);
    if (index && !(parts.isSub ? state.sub : state.main).knows(*index))
        return {};
    if (key == EncodeKey::offeredStreamTypes)
        return offeredTypes(state);
    if (key == EncodeKey::subVideoEnable)
        return state.sub.videoFormat.videoEnable != 0 ? 1 : 0;
    return parts.isSub ? streamValue(parts.field, true, state.sub, state.subBlock())
                       : streamValue(parts.field, false, state.main, state.mainBlock(streamType));
}

QVariant EncodeValues::streamValue(const QString &field, bool isSub, const EncodeItems &items,
                                   const sdk::EncodeCapabilityBlock &block) const
{
    const sdk::VideoFormatItem &video = items.videoFormat;
    if (field == EncodeKey::curEncodeMode) {
        const bool hasProfiles = EncodeChoices(m_tables, block).hasProfiles();
        return compressionName(m_tables, video.compression, hasProfiles ? items.videoProfile.profile : 0);
    }
    if (field == EncodeKey::bitstreamControl)
        return video.bitRateControl != 0 ? 1 : 0;
    if (field == EncodeKey::audioEnable)
        return items.audioCompression.audioEnable != 0 ? 1 : 0;
    if (field == EncodeKey::curAudioCompression)
        return ValueTables::audioFormatToName(items.audioCompression.format);
    if (field == EncodeKey::curSamplingFrequency)
        return QString::number(items.audioFormat.samplingFrequency);
    if (field == EncodeKey::curResolution)
        return resolutionName(m_tables, video.width, video.height);
    if (field == EncodeKey::frameRateMax)
        return qBound(0, block.maximumFrameRate, highestFrameRate);
    if (field == EncodeKey::frameRate)
        return shownFrameRate(video.frameRate);
    if (field == EncodeKey::quality)
        return qBound(worstQuality, video.quality, bestQuality);
    if (field == EncodeKey::curBitStream) {
        const QStringList steps = EncodeChoices(m_tables, block).bitRates();
        return static_cast<int>(steps.indexOf(QString::number(video.bitRate)));
    }
    if (field == EncodeKey::bitRate)
        return qBound(0, video.bitRate, highestBitRate);
    return listValue(field, isSub, items, block);
}

QVariant EncodeValues::listValue(const QString &field, bool isSub, const EncodeItems &items,
                                 const sdk::EncodeCapabilityBlock &block) const
{
    const EncodeChoices choices(m_tables, block);
    if (field == EncodeKey::allStreamType)
        return isSub ? m_tables.StreamTypeNames.first(1) : m_tables.StreamTypeNames;
    if (field == EncodeKey::encodeMode)
        return choices.compressions();
    if (field == EncodeKey::resolution)
        return choices.resolutions();
    if (field == EncodeKey::bitStream)
        return choices.bitRates() + QStringList(PageTexts::customBitRate());
    if (field == EncodeKey::audioCompression)
        return choices.audioCompressions();
    if (field == EncodeKey::samplingFrequency)
        return samplingFrequencies(choices, items);
    if (field == EncodeKey::missingSettings)
        return missingSettings(choices);
    return {};
}

bool EncodeValues::setCompression(const QString &name, EncodeItems &items, EncodeState &state) const
{
    const std::optional<CompressionChoice> choice = compressionChoice(m_tables, name);
    if (!choice || !state.main.knows(EncodeItemIndex::VideoFormat))
        return false;
    // Devices expect this: the compression is always that of the main stream; only the profile is set for the
    // selected stream.
    state.main.videoFormat.compression = choice->code;
    if (choice->profile > 0 && items.knows(EncodeItemIndex::VideoProfile))
        items.videoProfile.profile = choice->profile;
    return true;
}

bool EncodeValues::setAudioCompression(const QString &name, EncodeItems &items,
                                       const sdk::EncodeCapabilityBlock &block) const
{
    const int format = ValueTables::audioNameToFormat(name);
    if (format == 0)
        return false;
    items.audioCompression.format = format;
    const QList<int> frequencies = EncodeChoices(m_tables, block).samplingFrequencies(name);
    // If the device does not report frequencies, the current one may be valid.
    if (block.audioRateCount > 0 && items.knows(EncodeItemIndex::AudioFormat) && !frequencies.isEmpty() &&
        !frequencies.contains(items.audioFormat.samplingFrequency))
        items.audioFormat.samplingFrequency = frequencies.first();
    return true;
}

bool EncodeValues::setValue(const QString &key, const QVariant &value, EncodeState &state,
                            int streamType) const
{
    const StreamKey parts = splitEncodeKey(key);
    EncodeItems &items = parts.isSub ? state.sub : state.main;
    sdk::VideoFormatItem &video = items.videoFormat;
    const std::optional<EncodeItemIndex> index = encodeItemIndexOf(parts.field);
    if (!index || !items.knows(*index))
        return false;
    if (key == EncodeKey::subVideoEnable)
        return setFlag(value, video.videoEnable);
    if (parts.field == EncodeKey::curEncodeMode)
        return setCompression(value.toString(), items, state);
    if (parts.field == EncodeKey::bitstreamControl)
        return setFlag(value, video.bitRateControl);
    if (parts.field == EncodeKey::audioEnable)
        return setFlag(value, items.audioCompression.audioEnable);
    if (parts.field == EncodeKey::frameRate)
        return setNumber(value, 1, highestFrameRate, video.frameRate);
    if (parts.field == EncodeKey::quality)
        return setNumber(value, worstQuality, bestQuality, video.quality);
    if (parts.field == EncodeKey::curBitStream)
        return setNumber(value, 1, highestBitRate, video.bitRate);
    if (parts.field == EncodeKey::curSamplingFrequency)
        return setNumber(value, 1, highestSamplingFrequency, items.audioFormat.samplingFrequency);
    if (parts.field == EncodeKey::curAudioCompression) {
        const sdk::EncodeCapabilityBlock &block =
            parts.isSub ? state.subBlock() : state.mainBlock(streamType);
        return setAudioCompression(value.toString(), items, block);
    }
    if (parts.field == EncodeKey::curResolution) {
        const std::optional<ResolutionChoice> choice = resolutionChoice(m_tables, value.toString());
        if (!choice)
            return false;
        video.width = choice->width;
        video.height = choice->height;
        return true;
    }
    return false;
}

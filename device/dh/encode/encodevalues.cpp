#include "device/dh/encode/encodevalues.h"

#include "device/dh/encode/encodechoices.h"

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

/// A key split into stream and field.
struct StreamKey
{
    bool isSub = false;
    QString field; ///< key of the main stream
};

StreamKey parted(const QString &key)
{
    const QLatin1StringView prefix("sub");
    if (!key.startsWith(prefix) || key.size() == prefix.size())
        return {.isSub = false, .field = key};
    QString field = key.mid(prefix.size());
    field[0] = field.at(0).toLower();
    return {.isSub = true, .field = field};
}

constexpr QLatin1StringView missingSettingsKey("missingSettings");

const QSet<QString> &streamFields()
{
    static const QSet<QString> fields = {QStringLiteral("allStreamType"),
                                         QStringLiteral("encodeMode"),
                                         QStringLiteral("curEncodeMode"),
                                         QStringLiteral("bitstreamControl"),
                                         QStringLiteral("audioEnable"),
                                         QStringLiteral("audioCompression"),
                                         QStringLiteral("curAudioCompression"),
                                         QStringLiteral("samplingFrequency"),
                                         QStringLiteral("curSamplingFrequency"),
                                         QStringLiteral("resolution"),
                                         QStringLiteral("curResolution"),
                                         QStringLiteral("frameRateMax"),
                                         QStringLiteral("frameRate"),
                                         QStringLiteral("quality"),
                                         QStringLiteral("bitStream"),
                                         QStringLiteral("curBitStream"),
                                         QStringLiteral("bitRate"),
                                         missingSettingsKey};
    return fields;
}

constexpr QLatin1StringView offeredTypesKey("offeredStreamTypes");

/// The number of kinds of main stream that the device has, counted from "normal"; all if it reports none.
int offeredTypes(const EncodeState &state)
{
    constexpr int all = 3;
    int offered = 0;
    while (offered < all && state.mainBlock(offered).compressionMask != 0)
        ++offered;
    return offered > 0 ? offered : all;
}

/// The item that contains a value; nullopt for a list.
std::optional<EncodePlace> placeOf(const QString &field)
{
    static const QSet<QString> ofVideoFormat = {
        QStringLiteral("videoEnable"),   QStringLiteral("curEncodeMode"), QStringLiteral("bitstreamControl"),
        QStringLiteral("curResolution"), QStringLiteral("frameRate"),     QStringLiteral("quality"),
        QStringLiteral("curBitStream"),  QStringLiteral("bitRate")};
    if (ofVideoFormat.contains(field))
        return EncodePlace::VideoFormat;
    if (field == QLatin1String("audioEnable") || field == QLatin1String("curAudioCompression"))
        return EncodePlace::AudioCompression;
    if (field == QLatin1String("curSamplingFrequency"))
        return EncodePlace::AudioFormat;
    return std::nullopt;
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
    const auto add = [&](sdk::EncodeValue value, const char *setting) {
        if (choices.isMissing(value))
            missing.append(QString::fromLatin1(setting));
    };
    add(sdk::EncodeValue::Stream, "stream");
    add(sdk::EncodeValue::StreamSwitch, "videoEnable");
    add(sdk::EncodeValue::BitRateControl, "control");
    add(sdk::EncodeValue::Audio, "audio");
    add(sdk::EncodeValue::AudioSwitch, "audioEnable");
    return missing;
}

} // namespace

bool EncodeValues::isKey(const QString &key)
{
    return key == QLatin1String("subVideoEnable") || key == offeredTypesKey || key == takenItemsKey ||
           key == unreadItemsKey || key == unreadPlacesKey || streamFields().contains(parted(key).field);
}

QVariant EncodeValues::value(const QString &key, const EncodeState &state, int streamType) const
{
    const StreamKey parts = parted(key);
    const std::optional<EncodePlace> place = placeOf(parts.field);
    if (place && !(parts.isSub ? state.sub : state.main).knows(*place))
        return {};
    if (key == offeredTypesKey)
        return offeredTypes(state);
    if (key == QLatin1String("subVideoEnable"))
        return state.sub.videoFormat.videoEnable != 0 ? 1 : 0;
    return parts.isSub ? streamValue(parts.field, true, state.sub, state.subBlock())
                       : streamValue(parts.field, false, state.main, state.mainBlock(streamType));
}

QVariant EncodeValues::streamValue(const QString &field, bool isSub, const EncodeItems &items,
                                   const sdk::EncodeCapabilityBlock &block) const
{
    const sdk::VideoFormatItem &video = items.videoFormat;
    if (field == QLatin1String("curEncodeMode")) {
        const bool hasProfiles = EncodeChoices(m_tables, block).hasProfiles();
        return compressionName(m_tables, video.compression, hasProfiles ? items.videoProfile.profile : 0);
    }
    if (field == QLatin1String("bitstreamControl"))
        return video.bitRateControl != 0 ? 1 : 0;
    if (field == QLatin1String("audioEnable"))
        return items.audioCompression.audioEnable != 0 ? 1 : 0;
    if (field == QLatin1String("curAudioCompression"))
        return ValueTables::audioFormatToName(items.audioCompression.format);
    if (field == QLatin1String("curSamplingFrequency"))
        return QString::number(items.audioFormat.samplingFrequency);
    if (field == QLatin1String("curResolution"))
        return resolutionName(m_tables, video.width, video.height);
    if (field == QLatin1String("frameRateMax"))
        return qBound(0, block.maximumFrameRate, highestFrameRate);
    if (field == QLatin1String("frameRate"))
        return shownFrameRate(video.frameRate);
    if (field == QLatin1String("quality"))
        return qBound(worstQuality, video.quality, bestQuality);
    if (field == QLatin1String("curBitStream")) {
        const QStringList steps = EncodeChoices(m_tables, block).bitRates();
        return static_cast<int>(steps.indexOf(QString::number(video.bitRate)));
    }
    if (field == QLatin1String("bitRate"))
        return qBound(0, video.bitRate, highestBitRate);
    return listValue(field, isSub, items, block);
}

QVariant EncodeValues::listValue(const QString &field, bool isSub, const EncodeItems &items,
                                 const sdk::EncodeCapabilityBlock &block) const
{
    const EncodeChoices choices(m_tables, block);
    if (field == QLatin1String("allStreamType"))
        return isSub ? m_tables.StreamTypeNames.first(1) : m_tables.StreamTypeNames;
    if (field == QLatin1String("encodeMode"))
        return choices.compressions();
    if (field == QLatin1String("resolution"))
        return choices.resolutions();
    if (field == QLatin1String("bitStream"))
        return choices.bitRates() + QStringList(PageTexts::customBitRate());
    if (field == QLatin1String("audioCompression"))
        return choices.audioCompressions();
    if (field == QLatin1String("samplingFrequency"))
        return samplingFrequencies(choices, items);
    if (field == missingSettingsKey)
        return missingSettings(choices);
    return {};
}

bool EncodeValues::setCompression(const QString &name, EncodeItems &items, EncodeState &state) const
{
    const std::optional<CompressionChoice> choice = compressionChoice(m_tables, name);
    if (!choice || !state.main.knows(EncodePlace::VideoFormat))
        return false;
    // Devices expect this: the compression is always that of the main stream; only the profile is set for the
    // selected stream.
    state.main.videoFormat.compression = choice->code;
    if (choice->profile > 0 && items.knows(EncodePlace::VideoProfile))
        items.videoProfile.profile = choice->profile;
    return true;
}

void EncodeValues::setAudioCompression(const QString &name, EncodeItems &items,
                                       const sdk::EncodeCapabilityBlock &block) const
{
    items.audioCompression.format = ValueTables::audioNameToFormat(name);
    const QList<int> frequencies = EncodeChoices(m_tables, block).samplingFrequencies(name);
    // If the device does not report frequencies, the current one may be valid.
    if (block.audioRateCount > 0 && items.knows(EncodePlace::AudioFormat) && !frequencies.isEmpty() &&
        !frequencies.contains(items.audioFormat.samplingFrequency))
        items.audioFormat.samplingFrequency = frequencies.first();
}

bool EncodeValues::setValue(const QString &key, const QVariant &value, EncodeState &state,
                            int streamType) const
{
    const StreamKey parts = parted(key);
    EncodeItems &items = parts.isSub ? state.sub : state.main;
    sdk::VideoFormatItem &video = items.videoFormat;
    const std::optional<EncodePlace> place = placeOf(parts.field);
    if (!place || !items.knows(*place))
        return false;
    if (key == QLatin1String("subVideoEnable"))
        return setFlag(value, video.videoEnable);
    if (parts.field == QLatin1String("curEncodeMode"))
        return setCompression(value.toString(), items, state);
    if (parts.field == QLatin1String("bitstreamControl"))
        return setFlag(value, video.bitRateControl);
    if (parts.field == QLatin1String("audioEnable"))
        return setFlag(value, items.audioCompression.audioEnable);
    if (parts.field == QLatin1String("frameRate"))
        return setNumber(value, 1, highestFrameRate, video.frameRate);
    if (parts.field == QLatin1String("quality"))
        return setNumber(value, worstQuality, bestQuality, video.quality);
    if (parts.field == QLatin1String("curBitStream"))
        return setNumber(value, 1, highestBitRate, video.bitRate);
    if (parts.field == QLatin1String("curSamplingFrequency"))
        return setNumber(value, 1, highestSamplingFrequency, items.audioFormat.samplingFrequency);
    if (parts.field == QLatin1String("curAudioCompression")) {
        const sdk::EncodeCapabilityBlock &block =
            parts.isSub ? state.subBlock() : state.mainBlock(streamType);
        setAudioCompression(value.toString(), items, block);
        return true;
    }
    if (parts.field == QLatin1String("curResolution")) {
        const std::optional<ResolutionChoice> choice = resolutionChoice(m_tables, value.toString());
        if (!choice)
            return false;
        video.width = choice->width;
        video.height = choice->height;
        return true;
    }
    return false;
}

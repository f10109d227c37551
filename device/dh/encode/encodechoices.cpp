#include "device/dh/encode/encodechoices.h"

#include <algorithm>
#include <span>

namespace {

constexpr int largestSide = 65535;

/// Number of bit rate steps that are offered.
constexpr std::size_t offeredBitRateSteps = 32;

template<typename Entry, std::size_t size>
std::span<const Entry> used(const std::array<Entry, size> &entries, std::uint32_t count)
{
    return std::span(entries).first(std::min<std::size_t>(count, size));
}

std::optional<int> sideOf(QStringView text)
{
    bool isNumber = false;
    const int side = text.toInt(&isNumber, 10);
    return isNumber && side > 0 && side <= largestSide ? std::optional(side) : std::nullopt;
}

} // namespace

bool EncodeChoices::hasProfiles() const
{
    return isFilled() && m_block.profileCount > 0;
}

QStringList EncodeChoices::compressions() const
{
    QStringList names;
    for (std::uint32_t code = 0; isFilled() && code < sdk::compressionCount; ++code) {
        if ((m_block.compressionMask >> code & 1) == 0)
            continue;
        if (code != sdk::compressionH264 || !hasProfiles()) {
            names.append(m_tables.VideoCompressionNames.at(code));
            continue;
        }
        for (const int profile : used(m_block.profiles, m_block.profileCount)) {
            if (isH264Profile(profile))
                names.append(m_tables.H264ProfileNames.at(profile - 1));
        }
    }
    return names;
}

bool EncodeChoices::offersCompression(int code, int profile) const
{
    const bool isKnown = code >= 0 && code < static_cast<int>(sdk::compressionCount);
    if (!isFilled() || !isKnown || (m_block.compressionMask >> code & 1) == 0)
        return false;
    if (code != sdk::compressionH264 || !hasProfiles())
        return true;
    const auto profiles = used(m_block.profiles, m_block.profileCount);
    if (!isH264Profile(profile))
        return std::any_of(profiles.begin(), profiles.end(), isH264Profile);
    return std::find(profiles.begin(), profiles.end(), profile) != profiles.end();
}

void EncodeChoices::appendSizes(QStringList &names, const sdk::FrameSizeList &list) const
{
    for (const sdk::FrameSize size : used(list.sizes, list.count)) {
        if (size.width > 0 && size.height > 0)
            names.append(resolutionName(m_tables, size.width, size.height));
    }
}

QStringList EncodeChoices::resolutions() const
{
    QStringList names;
    if (!isFilled())
        return names;
    if (m_block.sizesDependOnCompression == 0) {
        appendSizes(names, m_block.sizes);
        return names;
    }
    for (std::uint32_t code = 0; code < sdk::compressionCount; ++code) {
        if ((m_block.compressionMask >> code & 1) != 0)
            appendSizes(names, m_block.sizesByCompression[code]);
    }
    return names;
}

bool EncodeChoices::offersSize(int compression, int width, int height) const
{
    const bool isKnown = compression >= 0 && compression < static_cast<int>(sdk::compressionCount);
    if (!isFilled() || !isKnown)
        return false;
    const sdk::FrameSizeList &list = m_block.sizesDependOnCompression == 0
                                         ? m_block.sizes
                                         : m_block.sizesByCompression[static_cast<std::size_t>(compression)];
    const auto sizes = used(list.sizes, list.count);
    return std::any_of(sizes.begin(), sizes.end(), [width, height](sdk::FrameSize size) {
        return size.width == width && size.height == height;
    });
}

QStringList EncodeChoices::bitRates() const
{
    QStringList names;
    if (!isFilled())
        return names;
    const auto steps = std::span(m_tables.BitRateSteps).first(offeredBitRateSteps);
    auto first =
        std::find_if(steps.begin(), steps.end(), [this](int step) { return step >= m_block.minimumBitRate; });
    if (first == steps.end())
        first = steps.begin();
    auto last = std::find_if(steps.rbegin(), steps.rend(), [this](int step) {
                    return step <= m_block.maximumBitRate;
                }).base(); // one past the last step
    if (last == steps.begin())
        last = steps.end();
    for (; first < last; ++first)
        names.append(QString::number(*first));
    return names;
}

QStringList EncodeChoices::audioCompressions() const
{
    QStringList names;
    if (!isFilled())
        return names;
    for (const int code : used(m_block.audioFormats, m_block.audioFormatCount)) {
        const QString name = m_tables.AudioCompressionNames.value(code);
        if (!name.isEmpty())
            names.append(name);
    }
    return names;
}

QList<int> EncodeChoices::samplingFrequencies(const QString &audioCompression) const
{
    QList<int> frequencies;
    const auto append = [&frequencies](int frequency) {
        if (frequency > 0 && !frequencies.contains(frequency))
            frequencies.append(frequency);
    };
    for (const sdk::AudioRate &rate : used(m_block.audioRates, isFilled() ? m_block.audioRateCount : 0)) {
        if (!audioCompression.isEmpty() &&
            m_tables.AudioCompressionNames.value(rate.format) == audioCompression)
            append(rate.frequency);
    }
    if (frequencies.isEmpty())
        std::for_each(m_tables.AudioSamplingFrequencies.begin(), m_tables.AudioSamplingFrequencies.end(),
                      append);
    return frequencies;
}

bool EncodeChoices::isMissing(sdk::EncodeValue value) const
{
    return isFilled() && (m_block.missingValues >> static_cast<std::uint32_t>(value) & 1) != 0;
}

bool isH264Profile(int value)
{
    return value >= 1 && value <= 4;
}

std::optional<CompressionChoice> compressionChoice(const ValueTables &tables, const QString &name)
{
    const int profileIndex = static_cast<int>(tables.H264ProfileNames.indexOf(name));
    if (profileIndex >= 0)
        return CompressionChoice{.code = sdk::compressionH264, .profile = profileIndex + 1};
    const int code = static_cast<int>(tables.VideoCompressionNames.indexOf(name));
    if (code < 0)
        return std::nullopt;
    return CompressionChoice{.code = code,
                             .profile = code == sdk::compressionH264 ? profileWithoutLetter : 0};
}

QString compressionName(const ValueTables &tables, int code, int profile)
{
    if (code == sdk::compressionH264 && isH264Profile(profile))
        return tables.H264ProfileNames.at(profile - 1);
    return tables.VideoCompressionNames.value(code);
}

std::optional<ResolutionChoice> resolutionChoice(const ValueTables &tables, const QString &name)
{
    ResolutionChoice choice;
    const int index = static_cast<int>(tables.ResolutionNames.indexOf(name));
    if (tables.resolutionSizeFromIndex(index, choice.width, choice.height))
        return choice;
    const qsizetype star = name.indexOf(QLatin1Char('*'));
    if (star < 0)
        return std::nullopt;
    const std::optional<int> width = sideOf(QStringView(name).first(star));
    const std::optional<int> height = sideOf(QStringView(name).sliced(star + 1));
    if (!width || !height)
        return std::nullopt;
    return ResolutionChoice{.width = *width, .height = *height};
}

QString resolutionName(const ValueTables &tables, int width, int height)
{
    if (width <= 0 || height <= 0)
        return {};
    const int index = tables.resolutionIndexFromSize(width, height);
    return index >= 0 ? tables.ResolutionNames.at(index) : QStringLiteral("%1*%2").arg(width).arg(height);
}

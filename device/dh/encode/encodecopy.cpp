#include "device/dh/encode/encodecopy.h"

#include "device/dh/encode/encodechoices.h"
#include "device/dh/encode/encodeconfig.h"
#include "device/registry/loginresult.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

class SettingNames
{
    Q_DECLARE_TR_FUNCTIONS(EncodeCopy)
public:
    static QString compression(bool isSub) { return isSub ? tr("辅码流编码模式") : tr("主码流编码模式"); }
    static QString resolution(bool isSub) { return isSub ? tr("辅码流分辨率") : tr("主码流分辨率"); }
    static QString bitRate(bool isSub) { return isSub ? tr("辅码流码率") : tr("主码流码率"); }
    static QString bitRateControl(bool isSub) { return isSub ? tr("辅码流码率控制") : tr("主码流码率控制"); }
    static QString frameRate(bool isSub) { return isSub ? tr("辅码流帧率") : tr("主码流帧率"); }
    static QString audio(bool isSub) { return isSub ? tr("辅码流音频编码") : tr("主码流音频编码"); }
};

bool offersAudio(const EncodeChoices &choices, int format)
{
    const QStringList names = choices.audioCompressions();
    return std::any_of(names.begin(), names.end(), [format](const QString &name) {
        return ValueTables::audioNameToFormat(name) == format;
    });
}

/// Copies compression and size from `from` to `to` if `choices` offers them. Returns the names of those that
/// are not offered.
QStringList takeVideo(const EncodeChoices &choices, const EncodeItems &from, bool isSub, EncodeItems &to)
{
    const sdk::VideoFormatItem &wanted = from.videoFormat;
    sdk::VideoFormatItem &video = to.videoFormat;
    QStringList skipped;
    const int profile = from.videoProfile.profile;
    if (choices.offersCompression(wanted.compression, profile)) {
        video.compression = wanted.compression;
        // Only H.264 has profiles, and some devices do not report one: the target's profile stays then.
        if (wanted.compression == sdk::compressionH264 && isH264Profile(profile))
            to.videoProfile.profile = profile;
        else if (wanted.compression == sdk::compressionH264 && !isH264Profile(to.videoProfile.profile))
            to.videoProfile.profile = profileWithoutLetter;
    } else {
        skipped.append(SettingNames::compression(isSub));
    }
    if (choices.offersSize(video.compression, wanted.width, wanted.height)) {
        video.width = wanted.width;
        video.height = wanted.height;
    } else {
        skipped.append(SettingNames::resolution(isSub));
    }
    return skipped;
}

/// Same for bit rate, frame rate and the other video values.
QStringList takeRates(const EncodeChoices &choices, const sdk::EncodeCapabilityBlock &block,
                      const EncodeItems &from, bool isSub, EncodeItems &to)
{
    const sdk::VideoFormatItem &wanted = from.videoFormat;
    sdk::VideoFormatItem &video = to.videoFormat;
    QStringList skipped;
    if (wanted.bitRate >= block.minimumBitRate && wanted.bitRate <= block.maximumBitRate)
        video.bitRate = wanted.bitRate;
    else
        skipped.append(SettingNames::bitRate(isSub));
    if (wanted.frameRate <= static_cast<float>(block.maximumFrameRate))
        video.frameRate = wanted.frameRate;
    else
        skipped.append(SettingNames::frameRate(isSub));
    video.videoEnable = wanted.videoEnable;
    if (!choices.isMissing(sdk::EncodeValue::BitRateControl))
        video.bitRateControl = wanted.bitRateControl;
    else if (video.bitRateControl != wanted.bitRateControl)
        skipped.append(SettingNames::bitRateControl(isSub));
    video.quality = wanted.quality;
    return skipped;
}

/// Same for audio.
QStringList takeAudio(const EncodeChoices &choices, const EncodeItems &from, bool isSub, EncodeItems &to)
{
    if (offersAudio(choices, from.audioCompression.format)) {
        to.audioCompression.audioEnable = from.audioCompression.audioEnable;
        to.audioCompression.format = from.audioCompression.format;
        to.audioFormat.samplingFrequency = from.audioFormat.samplingFrequency;
    } else if (from.audioCompression.format != 0) { // a source without audio has nothing to copy
        return {SettingNames::audio(isSub)};
    }
    return {};
}

/// Indexes of the items that cannot be copied from `from`.
QList<int> itemsLeftOut(const EncodeState &from)
{
    QList<int> indexes = from.unreadItems();
    constexpr int compression = static_cast<int>(EncodeItemIndex::AudioCompression);
    constexpr int format = static_cast<int>(EncodeItemIndex::AudioFormat);
    for (const int stream : {0, itemsOfStream}) {
        // A sampling frequency is only valid with its compression.
        if (indexes.contains(stream + compression) && !indexes.contains(stream + format))
            indexes.append(stream + format);
    }
    return indexes;
}

/// Copies compression and size to the record with which capabilities are queried.
void putIntoRecord(const EncodeItems &items, sdk::EncodeStreamRecord &record)
{
    if (!items.knows(EncodeItemIndex::VideoFormat))
        return;
    record.compression = items.videoFormat.compression;
    record.width = items.videoFormat.width;
    record.height = items.videoFormat.height;
}

/// The result for the row if the settings of the device cannot be read.
int rowResult(const EncodeReading &reading)
{
    return isLibraryError(reading.result)
               ? resultCode(loginResultOf(static_cast<std::uint32_t>(reading.result)))
               : capabilitiesUnknown;
}

} // namespace

EncodeCopyOutcome copyEncodeSettings(const ValueTables &tables, const EncodeState &from,
                                     const ChannelChoice &channels, const ConfigSession &session,
                                     const StepControl &control)
{
    EncodeState to;
    const EncodeReading reading =
        readEncodeState(session, channels.curChannel, channels.curStreamType, to, control);
    if (control.shouldEnd())
        return {.result = resultCode(LoginResult::NotDone), .skipped = {}};
    if (reading.result != 0)
        return {.result = rowResult(reading), .skipped = {}};
    EncodeCopyOutcome outcome;
    const int streamType = channels.curStreamType;
    const sdk::EncodeCapabilityBlock &main = to.mainBlock(streamType);
    const sdk::EncodeCapabilityBlock &sub = to.subBlock();
    const EncodeChoices mainChoices(tables, main);
    const EncodeChoices subChoices(tables, sub);
    // Items of the source that were not read are left out and listed below.
    const bool hasMain = from.main.knows(EncodeItemIndex::VideoFormat);
    const bool hasSub = from.sub.knows(EncodeItemIndex::VideoFormat);
    if (hasMain)
        outcome.skipped += takeVideo(mainChoices, from.main, false, to.main);
    if (hasSub)
        outcome.skipped += takeVideo(subChoices, from.sub, true, to.sub);
    // The supported bit rates depend on the size.
    putIntoRecord(to.main, to.record.streams[static_cast<std::size_t>(streamType)]);
    putIntoRecord(to.sub, to.record.streams[static_cast<std::size_t>(sdk::StreamKind::Sub)]);
    refreshEncodeCapabilities(session, channels.curChannel, to);
    if (hasMain)
        outcome.skipped += takeRates(mainChoices, main, from.main, false, to.main);
    outcome.skipped += takeAudio(mainChoices, from.main, false, to.main);
    if (hasSub)
        outcome.skipped += takeRates(subChoices, sub, from.sub, true, to.sub);
    outcome.skipped += takeAudio(subChoices, from.sub, true, to.sub);
    const QList<int> leftOut = itemsLeftOut(from);
    // Items that one of the devices does not have are not listed.
    const QList<int> missing = from.missingItems(streamType) + to.missingItems(streamType);
    if (control.shouldEnd())
        return {.result = resultCode(LoginResult::NotDone), .skipped = {}};
    const EncodeWriting writing =
        writeEncodeItems(session, channels.curChannel, to, leftOut + missing, control);
    if (control.shouldEnd() && !writing.notTaken.isEmpty())
        outcome.result = resultCode(LoginResult::NotDone); // some items have been written
    else if (writing.isDeviceAway)
        outcome.result = resultCode(LoginResult::NetworkFailure);
    else if (!writing.notTaken.isEmpty())
        outcome.result = refusedByDevice;
    for (int index = 0; index < 2 * itemsOfStream; ++index) {
        if (missing.contains(index))
            continue;
        if (leftOut.contains(index) || to.unreadItems().contains(index) || writing.notTaken.contains(index))
            outcome.skipped.append(EncodeConfig::itemNames().at(index));
    }
    return outcome;
}

#include "device/dh/encodecopy.h"

#include "device/dh/encodechoices.h"
#include "device/dh/encodeconfig.h"
#include "device/loginresult.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

constexpr int refusedByDevice = 999;

class SettingNames
{
    Q_DECLARE_TR_FUNCTIONS(EncodeCopy)
public:
    static QString compression(bool isSub) { return isSub ? tr("辅码流编码模式") : tr("主码流编码模式"); }
    static QString resolution(bool isSub) { return isSub ? tr("辅码流分辨率") : tr("主码流分辨率"); }
    static QString bitRate(bool isSub) { return isSub ? tr("辅码流码率") : tr("主码流码率"); }
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

/// Puts the compression and the size of `from` into `to` as far as its device offers them.
/// Returns the names of the others.
QStringList takePicture(const EncodeChoices &choices, const EncodeItems &from, bool isSub, EncodeItems &to)
{
    const sdk::VideoFormatItem &wanted = from.videoFormat;
    sdk::VideoFormatItem &video = to.videoFormat;
    QStringList skipped;
    const int profile = from.videoProfile.profile;
    if (choices.offersCompression(wanted.compression, profile)) {
        video.compression = wanted.compression;
        // Other compressions have no profile, and not every device tells one of H.264: then the own one
        // stays.
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

/// The same for everything else.
QStringList takeRest(const EncodeChoices &choices, const sdk::EncodeCapabilityBlock &block,
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
    if (offersAudio(choices, from.audioCompression.format)) {
        to.audioCompression.audioEnable = from.audioCompression.audioEnable;
        to.audioCompression.format = from.audioCompression.format;
        to.audioFormat.samplingFrequency = from.audioFormat.samplingFrequency;
    } else if (from.audioCompression.format != 0) { // a source without audio has none to copy
        skipped.append(SettingNames::audio(isSub));
    }
    video.videoEnable = wanted.videoEnable;
    video.bitRateControl = wanted.bitRateControl;
    video.quality = wanted.quality;
    return skipped;
}

/// Puts compression and size of `items` into the record that capabilities are asked for with.
void putIntoRecord(const EncodeItems &items, sdk::EncodeStreamRecord &record)
{
    record.compression = items.videoFormat.compression;
    record.width = items.videoFormat.width;
    record.height = items.videoFormat.height;
}

/// What a row says of a device whose settings cannot be read.
int rowResult(const EncodeReading &reading)
{
    return reading.isFetched ? capabilitiesUnknown
                             : resultCode(loginResultOf(static_cast<std::uint32_t>(reading.result)));
}

} // namespace

EncodeCopyOutcome copyEncodeSettings(const ValueTables &tables, const EncodeState &from,
                                     const ChannelChoice &channels, const ConfigSession &session)
{
    EncodeState to;
    const EncodeReading reading = readEncodeState(session, channels.curChannel, channels.curStreamType, to);
    if (reading.result != 0)
        return {.result = rowResult(reading), .skipped = {}};
    EncodeCopyOutcome outcome;
    const int streamType = channels.curStreamType;
    const sdk::EncodeCapabilityBlock &main = to.mainBlock(streamType);
    const sdk::EncodeCapabilityBlock &sub = to.subBlock();
    const EncodeChoices mainChoices(tables, main);
    const EncodeChoices subChoices(tables, sub);
    outcome.skipped = takePicture(mainChoices, from.main, false, to.main);
    outcome.skipped += takePicture(subChoices, from.sub, true, to.sub);
    // The bit rates that a device can do follow the size.
    putIntoRecord(to.main, to.record.streams[static_cast<std::size_t>(streamType)]);
    putIntoRecord(to.sub, to.record.streams[static_cast<std::size_t>(sdk::StreamKind::Sub)]);
    refreshEncodeCapabilities(session, channels.curChannel, to);
    outcome.skipped += takeRest(mainChoices, main, from.main, false, to.main);
    outcome.skipped += takeRest(subChoices, sub, from.sub, true, to.sub);
    // One that could not be read lacks what is to stay as it is there.
    const QList<int> &unread = reading.unreadItems;
    const QList<int> refused = writeEncodeItems(session, channels.curChannel, to.main, to.sub, unread);
    if (!refused.isEmpty())
        outcome.result = refusedByDevice;
    for (const int place : unread + refused)
        outcome.skipped.append(EncodeConfig::itemNames().at(place));
    return outcome;
}

#include "commandline/settings.h"
#include "device/registry/encodekeys.h"

#include <QStringList>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace commandline {

namespace {

enum class EncodeKind
{
    Choice,  ///< a text of a list
    Number,  ///< in `minimum` to `maximum`
    Control, ///< constant or variable bit rate
    Flag,
};

struct EncodeEntry
{
    QLatin1StringView name; ///< after "main." or "sub."
    QLatin1StringView field;
    EncodeKind kind = EncodeKind::Choice;
    QLatin1StringView list = {}; ///< field with the choices
    QLatin1StringView help = {};
    int minimum = 0;
    int maximum = 0;
    bool ofSubOnly = false;
};

constexpr int highestNumber = 1000000;

constexpr std::array encodeEntries = {
    EncodeEntry{.name = "enabled"_L1,
                .field = EncodeKey::videoEnable,
                .kind = EncodeKind::Flag,
                .help = "on, off"_L1,
                .ofSubOnly = true},
    EncodeEntry{.name = "compression"_L1,
                .field = EncodeKey::curEncodeMode,
                .list = EncodeKey::encodeMode,
                .help = "as the device offers, for example H.265"_L1},
    EncodeEntry{.name = "resolution"_L1,
                .field = EncodeKey::curResolution,
                .list = EncodeKey::resolution,
                .help = "as the device offers, for example 1080P"_L1},
    EncodeEntry{.name = "frameRate"_L1,
                .field = EncodeKey::frameRate,
                .kind = EncodeKind::Number,
                .help = "frames per second"_L1,
                .minimum = 1,
                .maximum = 0}, // that of the device
    EncodeEntry{.name = "bitRateControl"_L1,
                .field = EncodeKey::bitstreamControl,
                .kind = EncodeKind::Control,
                .help = "constant, variable"_L1},
    EncodeEntry{.name = "bitRate"_L1,
                .field = EncodeKey::curBitStream,
                .kind = EncodeKind::Number,
                .help = "kbit/s"_L1,
                .minimum = 1,
                .maximum = highestNumber},
    EncodeEntry{.name = "quality"_L1,
                .field = EncodeKey::quality,
                .kind = EncodeKind::Number,
                .help = "1 to 6, the best"_L1,
                .minimum = 1,
                .maximum = 6},
    EncodeEntry{
        .name = "audio"_L1, .field = EncodeKey::audioEnable, .kind = EncodeKind::Flag, .help = "on, off"_L1},
    EncodeEntry{.name = "audioCompression"_L1,
                .field = EncodeKey::curAudioCompression,
                .list = EncodeKey::audioCompression,
                .help = "as the device offers, for example AAC"_L1},
    EncodeEntry{.name = "samplingFrequency"_L1,
                .field = EncodeKey::curSamplingFrequency,
                .list = EncodeKey::samplingFrequency,
                .help = "hertz"_L1},
};

QString streamPrefix(bool isSub)
{
    return isSub ? u"sub."_s : u"main."_s;
}

QString encodeKeyOf(const EncodeEntry &entry, bool isSub)
{
    return entry.ofSubOnly ? QString(EncodeKey::subVideoEnable) : encodeKey(isSub, entry.field);
}

struct FoundEncodeEntry
{
    const EncodeEntry *entry = nullptr;
    bool isSub = false;
};

std::optional<FoundEncodeEntry> encodeEntryNamed(const QString &name)
{
    for (const bool isSub : {false, true}) {
        for (const EncodeEntry &entry : encodeEntries) {
            if ((isSub || !entry.ofSubOnly) && name == streamPrefix(isSub) + entry.name)
                return FoundEncodeEntry{.entry = &entry, .isSub = isSub};
        }
    }
    return std::nullopt;
}

/// The settings that the device lacks, by their names in EncodeForm.
bool isEncodingMissing(SessionOperations &device, const EncodeEntry &entry, bool isSub)
{
    const QStringList missing =
        device.getConfigData(encodeKey(isSub, EncodeKey::missingSettings), {}).toStringList();
    const QLatin1StringView field = entry.field;
    const bool isAudio = field == EncodeKey::audioEnable || field == EncodeKey::curAudioCompression ||
                         field == EncodeKey::curSamplingFrequency;
    return missing.contains(EncodeSetting::stream) || missing.contains(field) ||
           (isAudio && missing.contains(EncodeSetting::audio)) ||
           (field == EncodeKey::bitstreamControl && missing.contains(EncodeSetting::control));
}

QVariant shownEncodeValue(SessionOperations &device, const EncodeEntry &entry, bool isSub)
{
    const QVariant value = entry.field == EncodeKey::curBitStream
                               ? device.getConfigData(encodeKey(isSub, EncodeKey::bitRate), {})
                               : device.getConfigData(encodeKeyOf(entry, isSub), {});
    if (!value.isValid())
        return value;
    switch (entry.kind) {
    case EncodeKind::Control:
        return value.toInt() == 0 ? u"constant"_s : u"variable"_s;
    case EncodeKind::Flag:
        return flagText(value.toInt() != 0);
    case EncodeKind::Number:
        return value.toInt();
    default:
        return value.toString();
    }
}

QStringList encodeChoices(SessionOperations &device, const EncodeEntry &entry, bool isSub)
{
    return device.getConfigData(encodeKey(isSub, entry.list), {}).toStringList();
}

std::vector<SettingInfo> encodeNames()
{
    std::vector<SettingInfo> names;
    for (const bool isSub : {false, true}) {
        for (const EncodeEntry &entry : encodeEntries) {
            if (isSub || !entry.ofSubOnly)
                names.push_back({.name = streamPrefix(isSub) + entry.name, .values = entry.help});
        }
    }
    return names;
}

bool loadEncoding(SessionOperations &device, int channel)
{
    if (!selectChannel(device, EncodeKey::curChannel, channel))
        return false;
    device.getEncodeCaps();
    return true;
}

QList<SettingValue> readEncoding(SessionOperations &device)
{
    QList<SettingValue> values;
    for (const bool isSub : {false, true}) {
        for (const EncodeEntry &entry : encodeEntries) {
            if ((entry.ofSubOnly && !isSub) || isEncodingMissing(device, entry, isSub))
                continue;
            const QVariant value = shownEncodeValue(device, entry, isSub);
            if (value.isValid())
                values.append({.name = streamPrefix(isSub) + entry.name, .value = value});
        }
    }
    return values;
}

QString faultOfEncoding(SessionOperations &device, const Assignment &assignment)
{
    const FoundEncodeEntry found = encodeEntryNamed(assignment.name).value_or(FoundEncodeEntry());
    const EncodeEntry &entry = *found.entry;
    if (isEncodingMissing(device, entry, found.isSub) ||
        !shownEncodeValue(device, entry, found.isSub).isValid())
        return u"the device does not have %1"_s.arg(assignment.name);
    bool isNumber = false;
    const int number = assignment.value.toInt(&isNumber);
    const int frames = device.getConfigData(encodeKey(found.isSub, EncodeKey::frameRateMax), {}).toInt();
    const int maximum = entry.maximum > 0 ? entry.maximum : std::max(1, frames);
    switch (entry.kind) {
    case EncodeKind::Number:
        return isNumber && number >= entry.minimum && number <= maximum
                   ? QString()
                   : u"%1 is %2 to %3"_s.arg(assignment.name).arg(entry.minimum).arg(maximum);
    case EncodeKind::Control:
        return choiceIndex({u"constant"_s, u"variable"_s}, assignment.value) >= 0
                   ? QString()
                   : u"%1 is constant or variable"_s.arg(assignment.name);
    case EncodeKind::Flag:
        return flagFrom(assignment.value) ? QString() : u"%1 is on or off"_s.arg(assignment.name);
    default:
        break;
    }
    const QStringList choices = encodeChoices(device, entry, found.isSub);
    return choiceIndex(choices, assignment.value) >= 0
               ? QString()
               : u"%1 is one of: %2"_s.arg(assignment.name, choices.join(u", "_s));
}

QVariant writtenEncodeValue(SessionOperations &device, const FoundEncodeEntry &found, const QString &value)
{
    switch (found.entry->kind) {
    case EncodeKind::Number:
        return value.toInt();
    case EncodeKind::Control:
        return static_cast<int>(choiceIndex({u"constant"_s, u"variable"_s}, value));
    case EncodeKind::Flag:
        return flagFrom(value).value_or(false) ? 1 : 0;
    default:
        const QStringList choices = encodeChoices(device, *found.entry, found.isSub);
        return choices.value(choiceIndex(choices, value));
    }
}

void writeEncoding(SessionOperations &device, const QList<Assignment> &assignments)
{
    for (const Assignment &assignment : assignments) {
        const FoundEncodeEntry found = encodeEntryNamed(assignment.name).value_or(FoundEncodeEntry());
        if (!device.isDeviceAway())
            device.setConfigData(encodeKeyOf(*found.entry, found.isSub),
                                 writtenEncodeValue(device, found, assignment.value), {});
    }
    if (!device.isDeviceAway())
        device.confirmConfigData();
}

} // namespace

const SessionSubject &encodeSubject()
{
    static const SessionSubject subject = {.names = &encodeNames,
                                           .load = &loadEncoding,
                                           .read = &readEncoding,
                                           .faultOf = &faultOfEncoding,
                                           .write = &writeEncoding};
    return subject;
}

} // namespace commandline

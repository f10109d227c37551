#include "device/dh/encode/encodestate.h"

#include "device/store/logging.h"

namespace {

constexpr std::size_t encodeTextSize = 524288;

template<typename Item>
bool readStreamItem(const ConfigSession &session, sdk::EncodeItem number, int channel, int stream, Item &item)
{
    item = {};
    item.size = sizeof(item);
    item.stream = stream;
    const bool isRead = session.readItem(static_cast<std::uint32_t>(number), channel, item);
    if (!isRead)
        qCWarning(logDevice) << "Encode: item" << static_cast<int>(number) << "of stream" << stream
                             << "cannot be read, error" << session.lastError();
    // The device may have overwritten the request fields, which are sent back on a write.
    item.size = sizeof(item);
    item.stream = stream;
    return isRead;
}

/// Returns false if the device stops responding; no further request is sent then.
bool readItems(const ConfigSession &session, int channel, int stream, EncodeItems &items,
               const StepControl &control)
{
    items = {};
    bool isAway = false;
    std::size_t index = 0;
    const auto read = [&](sdk::EncodeItem number, auto &item) {
        const bool isRead =
            !isAway && !control.shouldEnd() && readStreamItem(session, number, channel, stream, item);
        isAway = isAway || (!isRead && !control.shouldEnd() && session.isDeviceAway());
        items.isRead[index++] = isRead;
    };
    read(sdk::EncodeItem::VideoFormat, items.videoFormat);
    read(sdk::EncodeItem::VideoProfile, items.videoProfile);
    read(sdk::EncodeItem::AudioCompression, items.audioCompression);
    read(sdk::EncodeItem::AudioFormat, items.audioFormat);
    return !isAway;
}

void clear(sdk::EncodeCapabilities &capabilities)
{
    capabilities = {};
    capabilities.size = sizeof(capabilities);
    for (sdk::EncodeCapabilityBlock &block : capabilities.blocks)
        block.size = sizeof(block);
}

} // namespace

QList<int> EncodeState::unreadItems() const
{
    QList<int> unread;
    for (int index = 0; index < 2 * itemsOfStream; ++index) {
        const EncodeItems &items = index < itemsOfStream ? main : sub;
        if (!items.isRead[static_cast<std::size_t>(index % itemsOfStream)])
            unread.append(index);
    }
    return unread;
}

QList<int> EncodeState::missingItems(int streamType) const
{
    QList<int> missing;
    const auto append = [&missing](const sdk::EncodeCapabilityBlock &block, int first) {
        const auto lacks = [&block](sdk::EncodeValue value) {
            return (block.missingValues >> static_cast<std::uint32_t>(value) & 1) != 0;
        };
        for (int index = 0; index < itemsOfStream; ++index) {
            const bool isAudio = index >= static_cast<int>(EncodeItemIndex::AudioCompression);
            if (lacks(sdk::EncodeValue::Stream) || (isAudio && lacks(sdk::EncodeValue::Audio)))
                missing.append(first + index);
        }
    };
    append(mainBlock(streamType), 0);
    append(subBlock(), itemsOfStream);
    return missing;
}

QList<int> EncodeState::withheldItems(int streamType) const
{
    QList<int> withheld = unreadItems();
    withheld.removeIf([missing = missingItems(streamType)](int index) { return missing.contains(index); });
    return withheld;
}

EncodeReading readEncodeCapabilities(const ConfigSession &session, int channel, EncodeState &state)
{
    ConfigText text(encodeTextSize);
    const std::int32_t error = session.fetchText("Encode", channel, text, ConfigSession::usualWait);
    if (error != 0)
        return {.result = error};
    state.record = {};
    EncodeReading reading = {.result = 0, .isFetched = true};
    if (!session.unpack("Encode", text, state.record))
        reading.result = configurationUnreadable;
    if (!session.pack("Encode", state.record, text))
        return reading;

    reading.isQueried = true;
    clear(state.capabilities);
    const sdk::EncodeCapabilityInput input = {sizeof(input), 0, channel, 0, text.data()};
    if (!session.queryCapabilities(sdk::CapabilityQuery::Encode, input, state.capabilities)) {
        qCWarning(logDevice) << "Encode: no capabilities of channel" << channel << "error"
                             << session.lastError();
        reading.result = session.isDeviceAway() ? static_cast<int>(session.lastError()) : capabilitiesUnknown;
    }
    return reading;
}

bool refreshEncodeCapabilities(const ConfigSession &session, int channel, EncodeState &state)
{
    ConfigText text(encodeTextSize);
    sdk::EncodeCapabilities capabilities;
    clear(capabilities);
    const sdk::EncodeCapabilityInput input = {sizeof(input), 0, channel, 0, text.data()};
    if (!session.pack("Encode", state.record, text) ||
        !session.queryCapabilities(sdk::CapabilityQuery::Encode, input, capabilities))
        return false;
    state.capabilities = capabilities;
    return true;
}

EncodeReading readEncodeState(const ConfigSession &session, int channel, int streamType, EncodeState &state,
                              const StepControl &control)
{
    EncodeReading reading = readEncodeCapabilities(session, channel, state);
    if (!reading.isQueried)
        return reading;
    state.main = state.sub = {};
    if (isLibraryError(reading.result))
        return reading;
    if (!readItems(session, channel, streamType + 1, state.main, control) ||
        !readItems(session, channel, sdk::streamNumber(sdk::StreamKind::Sub), state.sub, control))
        reading.result = static_cast<int>(session.lastError());
    return reading;
}

EncodeWriting writeEncodeItems(const ConfigSession &session, int channel, const EncodeState &state,
                               const QList<int> &unwanted, const StepControl &control)
{
    EncodeWriting writing;
    const QList<int> left = unwanted + state.unreadItems();
    int index = 0;
    const auto write = [&](sdk::EncodeItem number, const auto &item) {
        const int here = index++;
        if (left.contains(here))
            return;
        const bool isSent = !writing.isDeviceAway && !control.shouldEnd();
        if (isSent && session.writeItem(static_cast<std::uint32_t>(number), channel, item))
            return;
        writing.notTaken.append(here);
        if (!isSent)
            return;
        qCWarning(logDevice) << "Encode: item" << static_cast<int>(number) << "of stream" << item.stream
                             << "was not written, error" << session.lastError();
        writing.isDeviceAway = session.isDeviceAway();
    };
    for (const EncodeItems *items : {&state.main, &state.sub}) {
        write(sdk::EncodeItem::VideoFormat, items->videoFormat);
        write(sdk::EncodeItem::VideoProfile, items->videoProfile);
        write(sdk::EncodeItem::AudioCompression, items->audioCompression);
        write(sdk::EncodeItem::AudioFormat, items->audioFormat);
    }
    return writing;
}

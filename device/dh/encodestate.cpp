#include "device/dh/encodestate.h"

#include "device/logging.h"

namespace {

constexpr std::size_t encodeTextSize = 524288;
constexpr int itemsOfStream = 4;

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
    // Whatever the device filled in: these two are sent back.
    item.size = sizeof(item);
    item.stream = stream;
    return isRead;
}

/// Returns the places of those that cannot be read, from 0.
QList<int> readItems(const ConfigSession &session, int channel, int stream, EncodeItems &items)
{
    QList<int> unread;
    int place = 0;
    const auto read = [&](sdk::EncodeItem number, auto &item) {
        if (!readStreamItem(session, number, channel, stream, item))
            unread.append(place);
        ++place;
    };
    read(sdk::EncodeItem::VideoFormat, items.videoFormat);
    read(sdk::EncodeItem::VideoProfile, items.videoProfile);
    read(sdk::EncodeItem::AudioCompression, items.audioCompression);
    read(sdk::EncodeItem::AudioFormat, items.audioFormat);
    return unread;
}

void clear(sdk::EncodeCapabilities &capabilities)
{
    capabilities = {};
    capabilities.size = sizeof(capabilities);
    for (sdk::EncodeCapabilityBlock &block : capabilities.blocks)
        block.size = sizeof(block);
}

} // namespace

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

    reading.isAsked = true;
    clear(state.capabilities);
    const sdk::EncodeCapabilityInput input = {sizeof(input), 0, channel, 0, text.data()};
    if (!session.queryCapabilities(sdk::CapabilityQuery::Encode, input, state.capabilities)) {
        qCWarning(logDevice) << "Encode: no capabilities of channel" << channel << "error"
                             << session.lastError();
        reading.result = capabilitiesUnknown;
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

EncodeReading readEncodeState(const ConfigSession &session, int channel, int streamType, EncodeState &state)
{
    EncodeReading reading = readEncodeCapabilities(session, channel, state);
    if (reading.isAsked) {
        reading.unreadItems = readItems(session, channel, streamType + 1, state.main);
        const QList<int> ofSub =
            readItems(session, channel, sdk::streamNumber(sdk::StreamKind::Sub), state.sub);
        for (const int place : ofSub)
            reading.unreadItems.append(place + itemsOfStream);
    }
    return reading;
}

QList<int> writeEncodeItems(const ConfigSession &session, int channel, const EncodeItems &main,
                            const EncodeItems &sub, const QList<int> &left)
{
    QList<int> refused;
    int place = 0;
    const auto write = [&](sdk::EncodeItem number, const auto &item) {
        if (!left.contains(place) && !session.writeItem(static_cast<std::uint32_t>(number), channel, item)) {
            qCWarning(logDevice) << "Encode: item" << static_cast<int>(number) << "of stream" << item.stream
                                 << "is refused, error" << session.lastError();
            refused.append(place);
        }
        ++place;
    };
    for (const EncodeItems *items : {&main, &sub}) {
        write(sdk::EncodeItem::VideoFormat, items->videoFormat);
        write(sdk::EncodeItem::VideoProfile, items->videoProfile);
        write(sdk::EncodeItem::AudioCompression, items->audioCompression);
        write(sdk::EncodeItem::AudioFormat, items->audioFormat);
    }
    return refused;
}

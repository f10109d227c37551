// Items, configuration texts and capabilities of channels through the simulated network library.
#include "sdk/camerablocks.h"
#include "sdk/configtext/configtext.h"
#include "sdk/demo/demonetlibrary.h"
#include "sdk/demo/device/cameraabilities.h"
#include "sdk/demo/device/channelitems.h"
#include "sdk/demo/device/itemblocks.h"
#include "sdk/demo/site/sitestate.h"
#include "sdk/encodeblocks.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <cstring>

namespace sdk::demo {

namespace {

/// The common log values of a session's requests to a channel.
QJsonObject logValues(std::int64_t loginHandle, std::int32_t channel, std::chrono::milliseconds wait)
{
    return {{QStringLiteral("loginHandle"), static_cast<qint64>(loginHandle)},
            {QStringLiteral("channel"), channel},
            {QStringLiteral("wait"), static_cast<qint64>(wait.count())}};
}

void addFields(QJsonObject &request, const QJsonObject &fields)
{
    for (auto entry = fields.constBegin(); entry != fields.constEnd(); ++entry)
        request.insert(entry.key(), entry.value());
}

/// One block with the image settings of all modes, which the item may be written with.
bool isColorRecord(std::uint32_t item, std::uint32_t blockSize)
{
    return item == static_cast<std::uint32_t>(CameraItem::Picture) && blockSize == sizeof(VideoColorRecord);
}

/// The single items in `block`.
QList<QByteArray> itemBlocks(std::uint32_t item, const void *block, std::uint32_t blockSize)
{
    const auto *bytes = static_cast<const char *>(block);
    if (!isColorRecord(item, blockSize))
        return {QByteArray(bytes, static_cast<qsizetype>(blockSize))};
    VideoColorRecord record;
    std::memcpy(&record, bytes, sizeof(record));
    QList<QByteArray> blocks;
    for (std::size_t mode = 0; mode < cameraModeCount; ++mode) {
        PictureItem picture = record.pictures[mode];
        picture.size = sizeof(picture);
        picture.mode = static_cast<std::int32_t>(mode);
        blocks.append({reinterpret_cast<const char *>(&picture), sizeof(picture)});
    }
    return blocks;
}

} // namespace

bool DemoNetLibrary::NetGetItem(std::int64_t loginHandle, std::uint32_t item, std::int32_t channel,
                                void *block, std::uint32_t blockSize, std::chrono::milliseconds wait)
{
    const CallGate::Call call(m_gate);
    const std::optional<DemoSession> session = m_sessions.session(loginHandle);
    const ItemBlock *known = itemBlock(item);
    const bool isValid = known && blockSize == known->size && statedSize(block, blockSize) == known->size;
    QJsonObject request = logValues(loginHandle, channel, wait);
    request.insert(QStringLiteral("item"), static_cast<qint64>(item));
    request.insert(QStringLiteral("blockSize"), static_cast<qint64>(blockSize));
    if (isValid)
        addFields(request, decodedItem(*known, block));
    record("NetGetItem", request, session.value_or(DemoSession()).mac);
    if (known && !isValid)
        return m_error.fail(DemoError::WrongSize);
    const std::optional<SceneDevice> device = askedDevice(call, session, wait);
    if (!device)
        return false;
    const std::optional<QByteArray> response =
        known ? channelItem(*device, itemKeyOf(*known, channel, block)) : std::nullopt;
    const std::optional<FaultSetting> withheld = device->fault(Fault::WithholdsItem);
    if (!response || (withheld && withheld->number == static_cast<int>(item)))
        return m_error.fail(NetError::NotSupported);
    std::memcpy(block, response->constData(), static_cast<std::size_t>(response->size()));
    return true;
}

bool DemoNetLibrary::setItemOfChannel(const CallGate::Call &call, std::int64_t loginHandle,
                                      const std::optional<DemoSession> &session, std::uint32_t item,
                                      std::int32_t channel, const void *block, std::uint32_t blockSize,
                                      std::chrono::milliseconds wait)
{
    const ItemBlock *known = itemBlock(item);
    const bool isValid = known && (blockSize == known->size || isColorRecord(item, blockSize)) &&
                         statedSize(block, blockSize) == blockSize;
    QJsonObject request = logValues(loginHandle, channel, wait);
    request.insert(QStringLiteral("item"), static_cast<qint64>(item));
    request.insert(QStringLiteral("blockSize"), static_cast<qint64>(blockSize));
    const QList<QByteArray> blocks = isValid ? itemBlocks(item, block, blockSize) : QList<QByteArray>();
    if (blocks.size() == 1)
        addFields(request, decodedItem(*known, block));
    record("NetSetItem", request, session.value_or(DemoSession()).mac);
    if (known && !isValid)
        return m_error.fail(DemoError::WrongSize);
    return maintain(call, session, wait, [&](SceneDevice &device) {
        for (const QByteArray &single : blocks) {
            const NetError error =
                setChannelItem(device, itemKeyOf(*known, channel, single.constData()), single);
            if (error != NetError::None)
                return error;
        }
        return NetError::None;
    });
}

bool DemoNetLibrary::NetQueryCapabilities(std::int64_t loginHandle, CapabilityQuery query, const void *input,
                                          void *output, std::chrono::milliseconds wait)
{
    const CallGate::Call call(m_gate);
    const std::optional<DemoSession> session = m_sessions.session(loginHandle);
    switch (query) {
    case CapabilityQuery::Encode:
        return queryEncode(call, loginHandle, session, static_cast<const EncodeCapabilityInput *>(input),
                           static_cast<EncodeCapabilities *>(output), wait);
    case CapabilityQuery::Camera:
        return queryCamera(call, loginHandle, session, static_cast<const CameraCapabilityInput *>(input),
                           static_cast<CameraCapabilities *>(output), wait);
    }
    QJsonObject request = logValues(loginHandle, 0, wait);
    request.insert(QStringLiteral("query"), static_cast<int>(query));
    record("NetQueryCapabilities", request, session.value_or(DemoSession()).mac);
    return askedDevice(call, session, wait) && m_error.fail(NetError::NotSupported);
}

bool DemoNetLibrary::queryEncode(const CallGate::Call &call, std::int64_t loginHandle,
                                 const std::optional<DemoSession> &session,
                                 const EncodeCapabilityInput *input, EncodeCapabilities *output,
                                 std::chrono::milliseconds wait)
{
    const bool isValid =
        input && input->size == sizeof(*input) && input->text && output && output->size == sizeof(*output) &&
        std::all_of(output->blocks.begin(), output->blocks.end(),
                    [](const EncodeCapabilityBlock &block) { return block.size == sizeof(block); });
    const QByteArray text = isValid ? QByteArray(input->text) : QByteArray();
    QJsonObject request = logValues(loginHandle, input ? input->channel : 0, wait);
    request.insert(QStringLiteral("query"), static_cast<int>(CapabilityQuery::Encode));
    request.insert(QStringLiteral("size"), input ? static_cast<qint64>(input->size) : 0);
    request.insert(QStringLiteral("outputSize"), output ? static_cast<qint64>(output->size) : 0);
    request.insert(QStringLiteral("text"), QJsonDocument::fromJson(text).object());
    record("NetQueryCapabilities", request, session.value_or(DemoSession()).mac);
    if (!isValid)
        return m_error.fail(DemoError::WrongSize);
    const std::optional<SceneDevice> device = askedDevice(call, session, wait);
    if (!device)
        return false;
    if (device->hasFault(Fault::RefusesCapabilities))
        return m_error.fail(NetError::NotSupported);
    const NetError error = fillEncodeCapabilities(*device, input->channel, text, *output);
    return error == NetError::None || m_error.fail(error);
}

bool DemoNetLibrary::queryCamera(const CallGate::Call &call, std::int64_t loginHandle,
                                 const std::optional<DemoSession> &session,
                                 const CameraCapabilityInput *input, CameraCapabilities *output,
                                 std::chrono::milliseconds wait)
{
    QJsonObject request = logValues(loginHandle, input ? input->channel : 0, wait);
    request.insert(QStringLiteral("query"), static_cast<int>(CapabilityQuery::Camera));
    request.insert(QStringLiteral("size"), input ? static_cast<qint64>(input->size) : 0);
    request.insert(QStringLiteral("outputSize"), output ? static_cast<qint64>(output->size) : 0);
    record("NetQueryCapabilities", request, session.value_or(DemoSession()).mac);
    if (!input || input->size != sizeof(*input) || !output || output->size != sizeof(*output))
        return m_error.fail(DemoError::WrongSize);
    const std::optional<SceneDevice> device = askedDevice(call, session, wait);
    if (!device)
        return false;
    const ItemKey name = {static_cast<std::uint32_t>(CameraItem::ChannelName), input->channel, 0};
    if (device->hasFault(Fault::RefusesCapabilities) || !channelItem(*device, name))
        return m_error.fail(NetError::NotSupported);
    *output = cameraCapabilities(*device);
    return true;
}

} // namespace sdk::demo

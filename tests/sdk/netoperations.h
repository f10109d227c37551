// The operations of a login session of the network library as a list, so that a test runs the same check on
// each.
#pragma once

#include "sdk/blocktext.h"
#include "sdk/camerablocks.h"
#include "sdk/configtext/configtext.h"
#include "sdk/encodeblocks.h"
#include "sdk/netlibrary.h"
#include "sdk/systemrecords.h"

#include <QByteArray>
#include <QList>

#include <array>
#include <chrono>
#include <functional>
#include <memory>

/// One operation of the network library in a session.
struct NetOperation
{
    /// Sends the request in the session with the handle `session`, with the timeout `wait`. Returns whether
    /// the operation succeeded.
    using Run = std::function<bool(sdk::NetLibrary &net, sdk::LLONG session, std::chrono::milliseconds wait)>;

    const char *name; ///< for messages
    bool isHarmless;  ///< the device is not changed
    Run run;
};

/// A query of the device with NetQueryConfig().
inline NetOperation queryOperation(const char *name, sdk::QueryCommand command)
{
    return {name, true, [command](auto &net, auto session, auto wait) {
                std::array<char, 4096> block{};
                std::uint32_t returned = 0;
                return net.NetQueryConfig(session, command, 0, block.data(), block.size(), returned, wait);
            }};
}

/// A read of a configuration text, such as "Encode", with NetGetNewConfig(). `channel` is from 0; -1 for a
/// configuration of the device.
inline NetOperation readOperation(const char *name, const char *configuration, int channel)
{
    return {name, true, [configuration, channel](auto &net, auto session, auto wait) {
                QByteArray text(65536, '\0');
                std::int32_t error = 0;
                return net.NetGetNewConfig(session, configuration, channel, text.data(),
                                           static_cast<std::uint32_t>(text.size()), error, wait);
            }};
}

/// An empty block for a read or a write of an item, with its size set.
template<typename Item>
Item requestedItem()
{
    Item item{};
    item.size = sizeof(item);
    return item;
}

/// All operations, those that change nothing first. `file` is the path of the firmware file of the upgrade,
/// in the local encoding. The operation "password" changes the password of "admin" from "Contract-1" to
/// "Contract-2".
inline QList<NetOperation> netOperations(const QByteArray &file)
{
    using namespace sdk;
    const QList<NetOperation> reading = {
        queryOperation("attributes", QueryCommand::DeviceAttributes),
        queryOperation("time", QueryCommand::Time),
        queryOperation("services", QueryCommand::NetworkServices),
        readOperation("network", "Network", -1),
        readOperation("encode text", "Encode", 0),
    };
    const QList<NetOperation> others = {
        {"alive", true,
         [](auto &net, auto session, auto wait) {
             return net.NetIsDeviceAlive(session, wait);
         }},
        {"capabilities of encoders", true,
         [](auto &net, auto session, auto wait) {
             QByteArray text(65536, '\0');
             std::int32_t error = 0;
             if (!net.NetGetNewConfig(session, "Encode", 0, text.data(),
                                      static_cast<std::uint32_t>(text.size()), error, wait))
                 return false;
             auto output = std::make_unique<EncodeCapabilities>();
             output->size = sizeof(*output);
             for (EncodeCapabilityBlock &block : output->blocks)
                 block.size = sizeof(block);
             const EncodeCapabilityInput input = {.size = sizeof(input),
                                                  .reserved1 = 0,
                                                  .channel = 0,
                                                  .reserved2 = 0,
                                                  .text = text.constData()};
             return net.NetQueryCapabilities(session, CapabilityQuery::Encode, &input, output.get(), wait);
         }},
        {"capabilities of cameras", true,
         [](auto &net, auto session, auto wait) {
             CameraCapabilities output{};
             output.size = sizeof(output);
             const CameraCapabilityInput input = {.size = sizeof(input), .channel = 0};
             return net.NetQueryCapabilities(session, CapabilityQuery::Camera, &input, &output, wait);
         }},
        {"read of an item", true,
         [](auto &net, auto session, auto wait) {
             auto item = requestedItem<PictureItem>();
             return net.NetGetItem(session, static_cast<std::uint32_t>(CameraItem::Picture), 0, &item,
                                   sizeof(item), wait);
         }},
        {"channel states", true,
         [](auto &net, auto session, auto wait) {
             auto states = std::make_unique<ChannelStates>();
             states->size = sizeof(*states);
             return net.NetQueryChannelStates(session, *states, wait);
         }},
        {"stream", true,
         [](auto &net, auto session, auto) {
             const std::int64_t stream = net.NetStartRealStream(session, 0, 0, LiveStreamKind::Main);
             return stream > 0 && net.NetStopRealStream(stream);
         }},
        {"write of an item", false,
         [](auto &net, auto session, auto wait) {
             auto item = requestedItem<PictureItem>();
             return net.NetSetItem(session, static_cast<std::uint32_t>(CameraItem::Picture), 0, &item,
                                   sizeof(item), wait);
         }},
        {"write of a text", false,
         [](auto &net, auto session, auto wait) {
             NtpRecord record{};
             setBlockText(record.address, "192.168.1.1");
             const auto text = packConfigText("NTP", &record, sizeof(record));
             std::int32_t error = 0;
             return net.NetSetNewConfig(session, "NTP", -1, text->constData(),
                                        static_cast<std::uint32_t>(text->size() + 1), error, wait);
         }},
        {"clock", false,
         [](auto &net, auto session, auto wait) {
             const TimeRecord time = {
                 .year = 2030, .month = 1, .day = 2, .hour = 3, .minute = 4, .second = 5};
             return net.NetSetDeviceSetting(session, DeviceSetting::Time, -1, &time, sizeof(time), wait);
         }},
        {"password", false,
         [](auto &net, auto session, auto wait) {
             ModifyPasswordInput input{};
             input.size = sizeof(input);
             setBlockText(input.account, "admin");
             setBlockText(input.oldPassword, "Contract-1");
             setBlockText(input.newPassword, "Contract-2");
             return net.NetModifyPassword(session, input, wait);
         }},
        {"upgrade", false,
         [file](auto &net, auto session, auto wait) {
             const auto ignore = [](std::int64_t, const UpgradeProgress *, void *) {
             };
             return net.NetStartUpgrade(session, file.constData(), ignore, nullptr, wait) > 0;
         }},
        {"reboot", false,
         [](auto &net, auto session, auto wait) {
             return net.NetRebootDevice(session, wait);
         }},
        {"reset", false,
         [](auto &net, auto session, auto wait) {
             const ResetSystemInput input = {.size = sizeof(input)};
             ResetSystemOutput output = {.size = sizeof(output)};
             return net.NetResetSystem(session, input, output, wait);
         }},
    };
    return reading + others;
}

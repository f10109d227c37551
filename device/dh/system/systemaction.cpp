#include "device/dh/system/systemaction.h"

#include "device/dh/session/configsession.h"
#include "device/dh/system/systemdata.h"
#include "device/registry/systemkeys.h"
#include "device/store/logging.h"
#include "sdk/neterror.h"
#include "sdk/netlibrary.h"

using namespace std::chrono_literals;

namespace {

constexpr auto timeWait = 3000ms;
constexpr auto requestWait = 5000ms;
constexpr std::int32_t wholeDevice = -1;
constexpr std::int32_t firstChannel = 0;
constexpr std::uint32_t localesTextSize = 32768;
constexpr std::uint32_t writtenTextSize = 4096;

/// The library's error of a call: 0 if it succeeded.
std::uint32_t errorOf(const sdk::NetLibrary &net, bool isDone)
{
    return isDone ? 0 : net.NetGetLastError();
}

std::uint32_t setTime(const sdk::SdkLibraries &libraries, std::int64_t handle, const sdk::TimeRecord &time)
{
    const std::uint32_t error = errorOf(
        *libraries.net, libraries.net->NetSetDeviceSetting(handle, sdk::DeviceSetting::Time, wholeDevice,
                                                           &time, sizeof(time), timeWait));
    if (error != 0)
        qCWarning(logDevice) << "The time was refused, error" << Qt::hex << error;
    return error;
}

/// Writes a configuration of the device. Nothing is sent without a library for configuration texts.
template<typename Record>
std::uint32_t writeConfiguration(const sdk::SdkLibraries &libraries, std::int64_t handle, const char *name,
                                 const Record &record, std::uint32_t textSize)
{
    const ConfigSession session(libraries, handle);
    ConfigText text(textSize);
    if (!session.pack(name, record, text))
        return ConfigSession::unusableText;
    return errorOf(*libraries.net, session.writeText(name, wholeDevice, text, requestWait));
}

/// Changes only the rule in the configuration of the device.
std::uint32_t setDaylightSaving(const sdk::SdkLibraries &libraries, std::int64_t handle,
                                const DaylightSaving &rule)
{
    const char *const name = "Locales";
    if (!libraries.config)
        return ConfigSession::unusableText;
    sdk::LocalesRecord record{};
    const std::int32_t error =
        ConfigSession(libraries, handle).read(name, wholeDevice, record, localesTextSize, requestWait);
    if (error != 0)
        return static_cast<std::uint32_t>(error);
    record.daylightSavingEnabled = rule.enabled ? 1 : 0;
    record.begin = rule.begin;
    record.end = rule.end;
    return writeConfiguration(libraries, handle, name, record, localesTextSize);
}

std::uint32_t resetSystem(const sdk::SdkLibraries &libraries, std::int64_t handle)
{
    const sdk::ResetSystemInput input{.size = sizeof(input)};
    sdk::ResetSystemOutput output{.size = sizeof(output)};
    return errorOf(*libraries.net, libraries.net->NetResetSystem(handle, input, output, requestWait));
}

using Make = std::optional<SystemAction> (*)(const sdk::SdkLibraries &libraries, const QVariantMap &data);

std::optional<SystemAction> timeAction(const sdk::SdkLibraries &libraries, const QVariantMap &data)
{
    const auto time = timeFrom(data);
    if (!time)
        return std::nullopt;
    return [libraries, time = *time](std::int64_t handle) {
        return setTime(libraries, handle, time);
    };
}

std::optional<SystemAction> daylightSavingAction(const sdk::SdkLibraries &libraries, const QVariantMap &data)
{
    const auto rule = daylightSavingFrom(data);
    if (!rule)
        return std::nullopt;
    return [libraries, rule = *rule](std::int64_t handle) {
        return setDaylightSaving(libraries, handle, rule);
    };
}

std::optional<SystemAction> ntpAction(const sdk::SdkLibraries &libraries, const QVariantMap &data)
{
    const auto record = ntpFrom(data);
    if (!record)
        return std::nullopt;
    return [libraries, record = *record](std::int64_t handle) {
        return writeConfiguration(libraries, handle, "NTP", record, writtenTextSize);
    };
}

std::optional<SystemAction> autoMaintainAction(const sdk::SdkLibraries &libraries, const QVariantMap &data)
{
    const auto record = autoMaintainFrom(data);
    if (!record)
        return std::nullopt;
    return [libraries, record = *record](std::int64_t handle) {
        return writeConfiguration(libraries, handle, "AutoMaintain", record, writtenTextSize);
    };
}

std::optional<SystemAction> rebootAction(const sdk::SdkLibraries &libraries, const QVariantMap &)
{
    return [libraries](std::int64_t handle) {
        return errorOf(*libraries.net, libraries.net->NetRebootDevice(handle, requestWait));
    };
}

std::optional<SystemAction> resetAction(const sdk::SdkLibraries &libraries, const QVariantMap &)
{
    return [libraries](std::int64_t handle) {
        return resetSystem(libraries, handle);
    };
}

std::optional<SystemAction> videoStandardAction(const sdk::SdkLibraries &libraries, const QVariantMap &data)
{
    const auto item = videoStandardFrom(data);
    if (!item)
        return std::nullopt;
    return [libraries, item = *item](std::int64_t handle) {
        return errorOf(*libraries.net, libraries.net->NetSetItem(handle, sdk::videoStandardItem, wholeDevice,
                                                                 &item, sizeof(item), requestWait));
    };
}

std::optional<SystemAction> channelNameAction(const sdk::SdkLibraries &libraries, const QVariantMap &data)
{
    const auto item = channelNameFrom(data);
    if (!item)
        return std::nullopt;
    return [libraries, item = *item](std::int64_t handle) {
        return errorOf(*libraries.net, libraries.net->NetSetItem(
                                           handle, static_cast<std::uint32_t>(sdk::CameraItem::ChannelName),
                                           firstChannel, &item, sizeof(item), requestWait));
    };
}

struct CommandEntry
{
    QLatin1StringView command;
    Make make;
};

constexpr std::array commands = {
    CommandEntry{SystemCommand::setTimeByPC, &timeAction},
    CommandEntry{SystemCommand::setTimeByManual, &timeAction},
    CommandEntry{SystemCommand::dstConfig, &daylightSavingAction},
    CommandEntry{SystemCommand::ntpConfig, &ntpAction},
    CommandEntry{SystemCommand::autoMaintain, &autoMaintainAction},
    CommandEntry{SystemCommand::rebootDevice, &rebootAction},
    CommandEntry{SystemCommand::resetSystem, &resetAction},
    CommandEntry{SystemCommand::videoStandard, &videoStandardAction},
    CommandEntry{SystemCommand::channelName, &channelNameAction},
};

} // namespace

std::optional<SystemAction> systemAction(const sdk::SdkLibraries &libraries, const QString &command,
                                         const QVariantMap &data)
{
    for (const CommandEntry &entry : commands) {
        if (entry.command == command)
            return entry.make(libraries, data);
    }
    return std::nullopt;
}

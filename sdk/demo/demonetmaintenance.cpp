// Maintenance through the simulated network library.
#include "sdk/clock.h"
#include "sdk/configtext/configtext.h"
#include "sdk/demo/demonetlibrary.h"
#include "sdk/demo/device/channelitems.h"
#include "sdk/demo/device/fieldtext.h"
#include "sdk/demo/device/itemblocks.h"
#include "sdk/demo/device/maintenance.h"
#include "sdk/demo/site/sitestate.h"

#include <QJsonDocument>

#include <cstring>

namespace sdk::demo {

namespace {

/// The block in `bytes`; nullopt if there are too few.
template<typename Block>
std::optional<Block> blockOf(const void *bytes, std::uint32_t size)
{
    if (!bytes || size < sizeof(Block))
        return std::nullopt;
    Block block;
    std::memcpy(&block, bytes, sizeof(block));
    return block;
}

/// The common log values of a session's requests.
QJsonObject logValues(std::int64_t loginHandle, std::chrono::milliseconds wait)
{
    return {{QStringLiteral("loginHandle"), static_cast<qint64>(loginHandle)},
            {QStringLiteral("wait"), static_cast<qint64>(wait.count())}};
}

QString macOf(const std::optional<DemoSession> &session)
{
    return session.value_or(DemoSession()).mac;
}

} // namespace

bool DemoNetLibrary::maintain(const CallGate::Call &call, const std::optional<DemoSession> &session,
                              std::chrono::milliseconds wait,
                              const std::function<NetError(SceneDevice &device)> &change)
{
    if (!askedDevice(call, session, wait))
        return false;
    NetError error = NetError::NetworkFailure;
    m_site.changeDevice(session->mac,
                        [&](SceneDevice &device, const DeviceAddresses &) { error = change(device); });
    return error == NetError::None || m_error.fail(error);
}

bool DemoNetLibrary::NetSetDeviceSetting(std::int64_t loginHandle, DeviceSetting setting,
                                         std::int32_t channel, const void *block, std::uint32_t blockSize,
                                         std::chrono::milliseconds wait)
{
    const CallGate::Call call(m_gate);
    const std::optional<DemoSession> session = m_sessions.session(loginHandle);
    QJsonObject request = logValues(loginHandle, wait);
    request.insert(QStringLiteral("setting"), static_cast<int>(setting));
    request.insert(QStringLiteral("channel"), channel);
    request.insert(QStringLiteral("blockSize"), static_cast<qint64>(blockSize));
    const bool isTime = setting == DeviceSetting::Time;
    const std::optional<TimeRecord> time = isTime ? blockOf<TimeRecord>(block, blockSize) : std::nullopt;
    if (time) {
        request.insert(QStringLiteral("time"), QStringLiteral("%1-%2-%3 %4:%5:%6")
                                                   .arg(time->year)
                                                   .arg(time->month)
                                                   .arg(time->day)
                                                   .arg(time->hour)
                                                   .arg(time->minute)
                                                   .arg(time->second));
    }
    record("NetSetDeviceSetting", request, macOf(session));
    if (isTime && !time)
        return m_error.fail(DemoError::WrongSize);
    return maintain(call, session, wait, [&](SceneDevice &device) {
        return time ? setDeviceTime(device, *time, m_site.clock().now()) : NetError::NotSupported;
    });
}

bool DemoNetLibrary::NetSetItem(std::int64_t loginHandle, std::uint32_t item, std::int32_t channel,
                                const void *block, std::uint32_t blockSize, std::chrono::milliseconds wait)
{
    const CallGate::Call call(m_gate);
    const std::optional<DemoSession> session = m_sessions.session(loginHandle);
    if (itemBlock(item))
        return setItemOfChannel(call, loginHandle, session, item, channel, block, blockSize, wait);
    QJsonObject request = logValues(loginHandle, wait);
    request.insert(QStringLiteral("item"), static_cast<qint64>(item));
    request.insert(QStringLiteral("channel"), channel);
    request.insert(QStringLiteral("blockSize"), static_cast<qint64>(blockSize));
    const bool isStandard = item == videoStandardItem;
    const std::optional<VideoStandardItem> standard =
        isStandard ? blockOf<VideoStandardItem>(block, blockSize) : std::nullopt;
    if (standard) {
        request.insert(QStringLiteral("size"), static_cast<qint64>(standard->size));
        request.insert(QStringLiteral("standard"), static_cast<int>(standard->standard));
    }
    record("NetSetItem", request, macOf(session));
    if (isStandard && (!standard || standard->size != sizeof(VideoStandardItem)))
        return m_error.fail(DemoError::WrongSize);
    return maintain(call, session, wait, [&](SceneDevice &device) {
        return standard ? setVideoStandard(device, standard->standard) : NetError::NotSupported;
    });
}

bool DemoNetLibrary::NetSetNewConfig(std::int64_t loginHandle, const char *name, std::int32_t channel,
                                     const char *text, std::uint32_t textSize, std::int32_t &error,
                                     std::chrono::milliseconds wait)
{
    const CallGate::Call call(m_gate);
    const std::optional<DemoSession> session = m_sessions.session(loginHandle);
    const QString written = QString::fromLocal8Bit(name);
    const std::string_view buffer(text ? text : "", text ? textSize : 0);
    const std::size_t length = buffer.find('\0'); // larger than every string without a terminating zero
    const bool isEnded = length <= longestConfigText;
    const QByteArray json = isEnded ? QByteArray(text, static_cast<qsizetype>(length)) : QByteArray();
    QJsonObject request = logValues(loginHandle, wait);
    request.insert(QStringLiteral("name"), written);
    request.insert(QStringLiteral("channel"), channel);
    request.insert(QStringLiteral("textSize"), static_cast<qint64>(textSize));
    request.insert(QStringLiteral("text"), QJsonDocument::fromJson(json).object());
    record("NetSetNewConfig", request, macOf(session));
    const bool isWritten = isEnded ? maintain(call, session, wait,
                                              [&](SceneDevice &device) {
                                                  return isChannelConfiguration(written)
                                                             ? setChannelText(device, written, channel, json)
                                                             : setConfiguration(device, written, json);
                                              })
                                   : m_error.fail(DemoError::WrongSize);
    error = isWritten ? 0 : static_cast<std::int32_t>(m_error.last());
    return isWritten;
}

bool DemoNetLibrary::NetRebootDevice(std::int64_t loginHandle, std::chrono::milliseconds wait)
{
    const CallGate::Call call(m_gate);
    const std::optional<DemoSession> session = m_sessions.session(loginHandle);
    record("NetRebootDevice", logValues(loginHandle, wait), macOf(session));
    const bool isOffline = maintain(
        call, session, wait, [this](SceneDevice &device) { return reboot(device, m_site.clock().now()); });
    if (isOffline)
        m_sessions.endSessionsTo(session->mac);
    return isOffline;
}

bool DemoNetLibrary::NetResetSystem(std::int64_t loginHandle, const ResetSystemInput &input,
                                    ResetSystemOutput &output, std::chrono::milliseconds wait)
{
    const CallGate::Call call(m_gate);
    const std::optional<DemoSession> session = m_sessions.session(loginHandle);
    QJsonObject request = logValues(loginHandle, wait);
    request.insert(QStringLiteral("size"), static_cast<qint64>(input.size));
    request.insert(QStringLiteral("outputSize"), static_cast<qint64>(output.size));
    record("NetResetSystem", request, macOf(session));
    if (input.size != sizeof(input) || output.size != sizeof(output))
        return m_error.fail(DemoError::WrongSize);
    const bool isOffline = maintain(call, session, wait, [this](SceneDevice &device) {
        return resetToFactory(device, m_site.clock().now());
    });
    if (isOffline)
        m_sessions.endSessionsTo(session->mac);
    return isOffline;
}

bool DemoNetLibrary::NetModifyPassword(std::int64_t loginHandle, const ModifyPasswordInput &input,
                                       std::chrono::milliseconds wait)
{
    const CallGate::Call call(m_gate);
    const std::optional<DemoSession> session = m_sessions.session(loginHandle);
    const QString account = textOf(input.account);
    const QString newPassword = textOf(input.newPassword);
    QJsonObject request = logValues(loginHandle, wait);
    request.insert(QStringLiteral("size"), static_cast<qint64>(input.size));
    request.insert(QStringLiteral("account"), account);
    request.insert(QStringLiteral("passwordLength"), newPassword.size());
    record("NetModifyPassword", request, macOf(session));
    if (input.size != sizeof(input))
        return m_error.fail(DemoError::WrongSize);
    const bool isChanged = maintain(call, session, wait, [&](SceneDevice &device) {
        return changePassword(device, account, textOf(input.oldPassword), newPassword);
    });
    if (isChanged && session->account == account)
        m_sessions.setPassword(loginHandle, newPassword);
    return isChanged;
}

} // namespace sdk::demo

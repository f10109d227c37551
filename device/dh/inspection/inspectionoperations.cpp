#include "device/dh/inspection/inspectionoperations.h"

#include "device/dh/encode/valuetables.h"
#include "device/dh/logins/devicelogins.h"
#include "device/dh/session/configsession.h"
#include "device/dh/session/logindetail.h"
#include "device/dh/session/securelogin.h"
#include "device/dh/system/deviceclock.h"
#include "device/store/devicerow.h"
#include "device/store/devicestore.h"
#include "sdk/systemrecords.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::uint32_t timeServerTextSize = 32768;

/// Reads the main stream of a channel. A refused request leaves no entry. Returns false if the device does
/// not respond.
bool readStream(const ConfigSession &session, int channel, const ValueTables &tables,
                QList<StreamSettings> &streams)
{
    sdk::VideoFormatItem item{};
    item.size = sizeof(item);
    item.stream = sdk::streamNumber(sdk::StreamKind::MainNormal);
    if (!session.readItem(static_cast<std::uint32_t>(sdk::EncodeItem::VideoFormat), channel, item))
        return !session.isDeviceAway();
    streams.append({.channel = channel,
                    .compression = tables.VideoCompressionNames.value(item.compression),
                    .width = item.width,
                    .height = item.height,
                    .frameRate = static_cast<double>(item.frameRate),
                    .bitRate = item.bitRate,
                    .isVariable = item.bitRateControl != 0});
    return true;
}

bool readTimeServer(const ConfigSession &session, DeviceInspection &inspection)
{
    sdk::NtpRecord record{};
    const std::int32_t error = session.read("NTP", -1, record, timeServerTextSize, ConfigSession::usualWait);
    if (error == 0) {
        inspection.usesTimeServer = record.enabled != 0;
        inspection.timeServer = fieldText(record.address);
    }
    return error == 0 || !isSessionLost(static_cast<std::uint32_t>(error));
}

} // namespace

InspectionOperations::InspectionOperations(std::shared_ptr<DeviceStore> store, sdk::SdkLibraries libraries,
                                           const DeviceLogins &logins, UpgradeCheck isUpgradingAt)
    : m_store(std::move(store)), m_libraries(std::move(libraries)), m_logins(logins),
      m_isUpgradingAt(std::move(isUpgradingAt))
{
}

DeviceStep InspectionOperations::step(const InspectionOrder &order) const
{
    const QJsonObject row = m_store->rowAt(order.ipport);
    const QJsonValue state = row.value(DeviceRowKey::state);
    return [this, order, account = m_logins.accountOf(row),
            isInitialised = !state.isBool() || state.toBool()](const StepControl &control) {
        if (!isInitialised) // an uninitialised device accepts no login
            return StepOutcome{.result = resultCode(LoginResult::NotInitialised), .text = {}};
        if (m_isUpgradingAt(order.ipport)) // requests could disturb the upgrade
            return StepOutcome{.result = resultCode(LoginResult::Upgrading), .text = {}};
        if (control.shouldEnd())
            return StepOutcome{.result = resultCode(LoginResult::NotDone), .text = {}};
        const SecureLogin login = m_logins.logIn(order.ipport, account);
        if (login.result != LoginResult::Success)
            return StepOutcome{.result = resultCode(login.result), .text = {}};
        const UntakenLogin end(m_libraries.net, login);
        DeviceInspection inspection;
        inspection.channelCount = login.channelCount;
        const bool isComplete = read(ConfigSession(m_libraries, login.handle), control, inspection);
        if (order.inspected)
            order.inspected(inspection);
        if (isComplete)
            return StepOutcome();
        return StepOutcome{
            .result = resultCode(control.isStopped() ? LoginResult::NotDone : LoginResult::NetworkFailure),
            .text = {}};
    };
}

bool InspectionOperations::read(const ConfigSession &session, const StepControl &control,
                                DeviceInspection &inspection) const
{
    inspection.detail = loginDetail(session);
    control.noteProgress();
    if (!readClock(session, inspection) || control.shouldEnd() || !readTimeServer(session, inspection))
        return false;
    const ValueTables tables;
    const int channels = std::clamp(inspection.channelCount, 1, InspectionOrder::maximumStreams);
    for (int channel = 0; channel < channels; ++channel) {
        if (control.shouldEnd() || !readStream(session, channel, tables, inspection.streams))
            return false;
        control.noteProgress(); // a recorder has many channels
    }
    return true;
}

bool InspectionOperations::readClock(const ConfigSession &session, DeviceInspection &inspection) const
{
    std::uint32_t error = 0;
    const std::optional<QDateTime> time = readDeviceClock(*m_libraries.net, session.handle(), error);
    if (time)
        inspection.clockOffset = QDateTime::currentDateTime().secsTo(*time);
    return error == 0 || !isSessionLost(error);
}

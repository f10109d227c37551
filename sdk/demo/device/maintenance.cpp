#include "sdk/demo/device/maintenance.h"

#include "sdk/configtext/configtext.h"
#include "sdk/demo/device/deviceresponses.h"

#include <QDateTime>
#include <QJsonDocument>

#include <iterator>
#include <limits>

namespace sdk::demo {

namespace {

bool isRefusedByNumber(const SceneDevice &device, Fault fault, int number)
{
    const std::optional<FaultSetting> setting = device.fault(fault);
    return setting && setting->number == number;
}

void leaveForReboot(SceneDevice &device, std::int64_t now)
{
    device.maintenance.offlineFrom = now;
    std::chrono::milliseconds away = usualReboot;
    if (const std::optional<FaultSetting> fault = device.fault(Fault::RebootTakes))
        away = std::chrono::seconds(fault->number);
    device.maintenance.offlineUntil = now + away.count();
}

std::string_view viewOf(const QByteArray &bytes)
{
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

} // namespace

NetError setDeviceTime(SceneDevice &device, const TimeRecord &time, std::int64_t now)
{
    const auto part = [](std::uint32_t number) {
        return static_cast<int>(number);
    };
    const QDate date(part(time.year), part(time.month), part(time.day));
    const QTime hours(part(time.hour), part(time.minute), part(time.second));
    if (!date.isValid() || !hours.isValid() ||
        isRefusedByNumber(device, Fault::RefusesSetting, static_cast<int>(DeviceSetting::Time)))
        return NetError::NotSupported;
    const std::int64_t shown = QDateTime(date, hours, Qt::UTC).toMSecsSinceEpoch();
    device.maintenance.clockAhead = std::chrono::milliseconds(shown - now);
    return NetError::None;
}

NetError setVideoStandard(SceneDevice &device, VideoStandard standard)
{
    if ((standard != VideoStandard::Pal && standard != VideoStandard::Ntsc) ||
        isRefusedByNumber(device, Fault::RefusesItem, static_cast<int>(videoStandardItem)))
        return NetError::NotSupported;
    device.maintenance.videoStandard = standard;
    return NetError::None;
}

NetError setConfiguration(SceneDevice &device, const QString &name, const QByteArray &text)
{
    const std::optional<FaultSetting> refusal = device.fault(Fault::RefusesConfiguration);
    if ((refusal && refusal->text == name) || !configurationText(device, name))
        return NetError::NotSupported;
    constexpr std::size_t largestRecord = 8192;
    std::array<char, largestRecord> record = {};
    if (!unpackConfigText(viewOf(name.toUtf8()), viewOf(text), record.data(), largestRecord))
        return NetError::NotSupported;
    const QJsonObject given = QJsonDocument::fromJson(text).object().value(name).toObject();
    QJsonObject kept = device.configuration.value(name).toObject();
    for (auto entry = given.constBegin(); entry != given.constEnd(); ++entry)
        kept.insert(entry.key(), entry.value());
    device.configuration.insert(name, kept);
    return NetError::None;
}

NetError reboot(SceneDevice &device, std::int64_t now)
{
    if (device.hasFault(Fault::RefusesReboot))
        return NetError::NotSupported;
    leaveForReboot(device, now);
    return NetError::None;
}

NetError rebootAfterResponse(SceneDevice &device, std::int64_t now)
{
    constexpr std::chrono::milliseconds moment = std::chrono::seconds(2);
    const bool isAboutTo = device.maintenance.offlineFrom > now;
    return isAboutTo ? NetError::None : reboot(device, now + moment.count());
}

NetError resetToFactory(SceneDevice &device, std::int64_t now)
{
    if (device.hasFault(Fault::RefusesReset))
        return NetError::NotSupported;
    // Old devices without initialisation have a default password.
    const bool knowsFirstPassword = device.initialisation != InitialisationBits::NotReported;
    device.accounts.clear();
    if (knowsFirstPassword)
        device.initialisation = InitialisationBits::Uninitialised;
    else
        device.accounts.append({QStringLiteral("admin"), QStringLiteral("admin")});
    device.configuration = {};
    device.channelSettings.clear();
    device.maintenance.videoStandard = VideoStandard::Pal;
    leaveForReboot(device, now);
    return NetError::None;
}

void installFirmware(SceneDevice &device, const FirmwareHead &firmware, std::int64_t now)
{
    if (!device.hasFault(Fault::UpgradeKeepsVersion))
        device.version = QString::fromStdString(firmware.version);
    leaveForReboot(device, now);
    if (device.hasFault(Fault::UpgradeNeverReturns))
        device.maintenance.offlineUntil = std::numeric_limits<std::int64_t>::max();
}

NetError changePassword(SceneDevice &device, const QString &user, const QString &oldPassword,
                        const QString &newPassword)
{
    const auto account = std::find_if(device.accounts.begin(), device.accounts.end(),
                                      [&user](const SceneAccount &known) { return known.user == user; });
    if (account == device.accounts.end() || account->password != oldPassword || newPassword.isEmpty() ||
        device.hasFault(Fault::RefusesPasswordChange))
        return NetError::NotSupported;
    account->password = newPassword;
    return NetError::None;
}

void noteLogin(SceneDevice &device)
{
    const auto change =
        std::find_if(device.faults.begin(), device.faults.end(), [](const FaultSetting &setting) {
            return setting.fault == Fault::PasswordChangesAfter;
        });
    if (change == device.faults.end() || --change->number > 0)
        return;
    device.faults.removeAt(std::distance(device.faults.begin(), change));
    for (SceneAccount &account : device.accounts)
        account.password += QStringLiteral("-2");
}

} // namespace sdk::demo

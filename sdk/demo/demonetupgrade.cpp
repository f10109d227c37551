// Firmware upgrades of simulated devices.
#include "sdk/demo/demonetlibrary.h"
#include "sdk/demo/site/sitestate.h"

#include <QFile>

namespace sdk::demo {

namespace {

/// The start of a file, up to the maximum length of a head; nullopt if it cannot be read.
std::optional<QByteArray> beginningOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QFile::ReadOnly))
        return std::nullopt;
    QByteArray bytes = file.read(longestFirmwareHead);
    return bytes.isEmpty() ? std::nullopt : std::optional(std::move(bytes));
}

FirmwareHeadReading headIn(const QByteArray &bytes)
{
    return readFirmwareHead({bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

} // namespace

std::int64_t DemoNetLibrary::NetStartUpgrade(std::int64_t loginHandle, const char *fileName,
                                             UpgradeProgressHandler handler, void *user,
                                             std::chrono::milliseconds wait)
{
    const CallGate::Call call(m_gate);
    const std::optional<DemoSession> session = m_sessions.session(loginHandle);
    const QString path = QString::fromLocal8Bit(fileName);
    record("NetStartUpgrade",
           {{QStringLiteral("loginHandle"), static_cast<qint64>(loginHandle)},
            {QStringLiteral("file"), path},
            {QStringLiteral("wait"), static_cast<qint64>(wait.count())}},
           session.value_or(DemoSession()).mac);
    const auto fail = [this](auto error) {
        m_error.fail(error);
        return std::int64_t(0);
    };
    if (!handler)
        return fail(DemoError::NoHandler);
    const std::optional<SceneDevice> device = askedDevice(call, session, wait);
    if (!device)
        return 0;
    const std::optional<QByteArray> beginning = beginningOf(path);
    if (!beginning)
        return fail(NetError::UnusableFile);
    if (device->hasFault(Fault::UpgradeBusy) || m_upgrades.isUpgrading(session->mac))
        return fail(NetError::DeviceBusy);
    const FirmwareHeadReading reading = headIn(*beginning);
    const bool isKnown = reading.kind == FirmwareHeadReading::Kind::Known;
    if (reading.kind == FirmwareHeadReading::Kind::Damaged ||
        (isKnown && !reading.head.fits(device->model.toStdString())))
        return fail(NetError::FirmwareRefused);
    const std::int64_t handle =
        m_upgrades.open({.loginHandle = loginHandle,
                         .session = *session,
                         .firmware = isKnown ? std::optional(reading.head) : std::nullopt,
                         .handler = handler,
                         .user = user});
    if (handle == 0)
        return fail(DemoError::NoThread);
    if (!m_sessions.session(loginHandle)) { // the session was closed meanwhile
        m_upgrades.closeAllOf(loginHandle);
        return fail(NetError::SessionEnded);
    }
    return handle;
}

bool DemoNetLibrary::NetStopUpgrade(std::int64_t upgradeHandle)
{
    const CallGate::Call call(m_gate);
    const QString mac = m_upgrades.macOf(upgradeHandle);
    record("NetStopUpgrade", {{QStringLiteral("upgradeHandle"), static_cast<qint64>(upgradeHandle)}}, mac);
    if (DeviceUpgrade::isInsideHandler())
        return m_error.fail(DemoError::InsideHandler);
    const std::optional<SceneDevice> device = m_site.device(mac);
    if (device && device->hasFault(Fault::RefusesUpgradeStop))
        return m_error.fail(NetError::DeviceBusy);
    switch (m_upgrades.close(upgradeHandle)) {
    case DeviceUpgrades::Closing::Closed:
        return true;
    case DeviceUpgrades::Closing::IsWriting:
        return m_error.fail(NetError::NotSupported);
    case DeviceUpgrades::Closing::Unknown:
        break;
    }
    return m_error.fail(NetError::InvalidValue);
}

} // namespace sdk::demo

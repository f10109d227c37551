#include "device/dh/upgrade/upgradework.h"

#include "device/dh/session/securelogin.h"
#include "device/store/devicerow.h"
#include "device/store/logging.h"
#include "sdk/clock.h"
#include "sdk/netlibrary.h"

#include <QCoreApplication>

#include <algorithm>
#include <mutex>
#include <optional>
#include <utility>

using namespace std::chrono_literals;

namespace {

constexpr auto upgradeAttributesWait = 3000ms;
constexpr auto upgradeStartWait = 10000ms;
constexpr auto lookInterval = 200ms;    ///< between two checks of the library's progress
constexpr auto returnInterval = 1000ms; ///< between two login attempts after the restart
constexpr auto versionWait = 10000ms;   ///< maximum wait for a version after the first login

// Start of the phases in percent of an upgrade.
constexpr int writingFrom = 70;
constexpr int restartingFrom = 95;

/// Texts in addition to those of the results.
class UpgradeTexts
{
    Q_DECLARE_TR_FUNCTIONS(UpgradeTexts)
public:
    static QString cannotStop() { return tr("已开始写入，无法停止"); }
    static QString stopFails() { return tr("尚未停止，正在重试"); }
    static QString restarts() { return tr("固件已写入，设备正在重启，无法停止"); }
    static QString versions(const QString &before, const QString &now)
    {
        return before.isEmpty() ? now : QStringLiteral("%1 → %2").arg(before, now);
    }
    static QString done(const QString &versions) { return tr("升级成功：%1").arg(versions); }
    static QString noVersion(const QString &reason) { return tr("%1：未读到版本号").arg(reason); }
    static QString nothingToCompare(const QString &reason, const QString &now)
    {
        return tr("%1：现为 %2，升级前的版本未知").arg(reason, now);
    }
    static QString failedAt(const QString &reason, int percent)
    {
        return tr("%1（%2%）").arg(reason).arg(percent);
    }
};

UpgradeTools::Result resultOfLogin(LoginResult result)
{
    switch (result) {
    case LoginResult::NoSuchAccount:
        return UpgradeTools::NoSuchAccount;
    case LoginResult::WrongPassword:
        return UpgradeTools::WrongPassword;
    case LoginResult::AccountLocked:
        return UpgradeTools::AccountLocked;
    case LoginResult::AccountLoggedIn:
        return UpgradeTools::DeviceBusy;
    case LoginResult::NotInitialised:
        return UpgradeTools::NotInitialised;
    case LoginResult::ProtocolMismatch:
    case LoginResult::NotSupported:
        return UpgradeTools::NotSupported;
    case LoginResult::UnknownCertificate:
        return UpgradeTools::UnknownCertificate;
    case LoginResult::ChangedCertificate:
        return UpgradeTools::ChangedCertificate;
    default:
        return UpgradeTools::NoResponse;
    }
}

bool isCertificateRefused(UpgradeTools::Result result)
{
    return result == UpgradeTools::UnknownCertificate || result == UpgradeTools::ChangedCertificate;
}

UpgradeTools::Result resultOfError(std::uint32_t error)
{
    switch (static_cast<sdk::NetError>(error)) {
    case sdk::NetError::UnusableFile:
        return UpgradeTools::FileUnreadable;
    case sdk::NetError::DeviceBusy:
        return UpgradeTools::DeviceBusy;
    case sdk::NetError::FirmwareRefused:
        return UpgradeTools::FirmwareRefused;
    case sdk::NetError::NotSupported:
        return UpgradeTools::NotSupported;
    case sdk::NetError::UnknownCertificate:
        return UpgradeTools::UnknownCertificate;
    case sdk::NetError::ChangedCertificate:
        return UpgradeTools::ChangedCertificate;
    default:
        return isDeviceAway(error) ? UpgradeTools::NoResponse : UpgradeTools::Failed;
    }
}

} // namespace

/// Latest progress reported by the library. Its callback runs on a thread of the library.
class UpgradeWork::UpgradeProgressInbox
{
public:
    static void handle(std::int64_t, const sdk::UpgradeProgress *progress, void *user)
    {
        if (!progress || progress->size != sizeof(*progress))
            return;
        auto *inbox = static_cast<UpgradeProgressInbox *>(user);
        const std::scoped_lock lock(inbox->m_mutex);
        if (inbox->hasEnded()) // late reports are ignored
            return;
        inbox->m_latest = *progress;
        if (!inbox->hasEnded())
            inbox->m_lastBeforeEnd = *progress;
    }

    [[nodiscard]] sdk::UpgradeProgress latest() const
    {
        const std::scoped_lock lock(m_mutex);
        return m_latest;
    }

    /// The latest progress before the end: the report of an end has no percent.
    [[nodiscard]] sdk::UpgradeProgress lastBeforeEnd() const
    {
        const std::scoped_lock lock(m_mutex);
        return m_lastBeforeEnd;
    }

private:
    [[nodiscard]] bool hasEnded() const
    {
        return m_latest.phase == sdk::UpgradePhase::Done || m_latest.phase == sdk::UpgradePhase::Failed;
    }

    mutable std::mutex m_mutex;
    sdk::UpgradeProgress m_lastBeforeEnd = {
        .size = sizeof(sdk::UpgradeProgress), .phase = sdk::UpgradePhase::Sending, .percent = 0, .error = 0};
    sdk::UpgradeProgress m_latest = m_lastBeforeEnd;
};

UpgradeWork::UpgradeWork(const sdk::SdkLibraries &libraries, const UpgradeLimits &limits,
                         const UpgradeOrder &order, UpgradeStop stop, Report report)
    : m_libraries(libraries), m_limits(limits), m_order(order), m_stop(std::move(stop)),
      m_report(std::move(report))
{
}

bool UpgradeWork::shouldStop(const StepControl &control) const
{
    // Closing the application stops batches as well; m_stop.end is handled separately.
    return (m_stop.isRequested || control.isStopped()) && !m_stop.end.stop_requested();
}

UpgradeState UpgradeWork::run(const StepControl &control)
{
    report(UpgradeTools::Preparing, 0);
    const FirmwareFile file = checkFirmwareFile(m_order.file);
    if (file.refusal != UpgradeTools::None)
        return ended(file.refusal);
    if (!file.fits(m_order.model))
        return ended(UpgradeTools::WrongModel);
    if (shouldStop(control))
        return ended(UpgradeTools::Stopped);
    const SecureLogin login =
        secureLogin(m_libraries.net.get(), m_order.ipport, m_order.account, m_order.password);
    if (login.result != LoginResult::Success)
        return ended(resultOfLogin(login.result));
    UpgradeProgressInbox inbox;
    UpgradeState state = send(login.handle, file, inbox, control);
    m_libraries.net->NetLogout(login.handle); // no progress callback after this, even if a stop was refused
    if (state.result != UpgradeTools::Restarting)
        return state;
    control.releaseSlot();
    return waitForReturn(file, control);
}

UpgradeState UpgradeWork::send(std::int64_t loginHandle, const FirmwareFile &file,
                               UpgradeProgressInbox &inbox, const StepControl &control)
{
    const Identity device = identity(loginHandle);
    if (!file.fits(device.model))
        return ended(UpgradeTools::WrongModel);
    if (m_stop.end.stop_requested())
        return ended(UpgradeTools::Cut);
    if (shouldStop(control))
        return ended(UpgradeTools::Stopped);
    m_oldVersion = device.version;
    const std::int64_t handle =
        m_libraries.net->NetStartUpgrade(loginHandle, m_order.file.toLocal8Bit().constData(),
                                         &UpgradeProgressInbox::handle, &inbox, upgradeStartWait);
    if (handle == 0) {
        const std::uint32_t error = m_libraries.net->NetGetLastError();
        qCWarning(logDevice) << "The upgrade of" << m_order.ipport << "was refused, error" << Qt::hex
                             << error;
        return ended(resultOfError(error));
    }
    UpgradeState state = follow(handle, inbox, control);
    if (state.result != UpgradeTools::Stopped) // otherwise it is stopped already
        m_libraries.net->NetStopUpgrade(handle);
    return state;
}

UpgradeState UpgradeWork::follow(std::int64_t upgradeHandle, const UpgradeProgressInbox &inbox,
                                 const StepControl &control)
{
    sdk::Clock &clock = *m_libraries.clock;
    const std::int64_t start = clock.now();
    std::int64_t lastChange = start;
    sdk::UpgradeProgress seen = inbox.latest();
    report(UpgradeTools::Sending, 0);
    while (clock.wait(lookInterval, m_stop.end)) {
        const sdk::UpgradeProgress now = inbox.latest();
        if (now.phase == sdk::UpgradePhase::Done) {
            report(UpgradeTools::Restarting, restartingFrom);
            return m_state;
        }
        if (now.phase == sdk::UpgradePhase::Failed) {
            reportProgress(inbox.lastBeforeEnd());
            return ended(resultOfError(now.error));
        }
        if (now.phase != seen.phase || now.percent != seen.percent)
            lastChange = clock.now();
        seen = now;
        const bool isWriting = now.phase == sdk::UpgradePhase::Writing;
        if (!(m_stopRefused && isWriting) && shouldStop(control)) {
            if (m_libraries.net->NetStopUpgrade(upgradeHandle))
                return ended(UpgradeTools::Stopped);
            // A device that writes its firmware continues. Before that, the stop is requested again.
            m_stopRefused = isWriting;
            m_stopRemark = m_stopRefused ? UpgradeTexts::cannotStop() : UpgradeTexts::stopFails();
        }
        reportProgress(now);
        const auto longest = isWriting ? m_limits.writingStandsStill : m_limits.sendingStandsStill;
        if (clock.now() - lastChange > longest.count() || clock.now() - start > m_limits.whole.count())
            return ended(UpgradeTools::Stuck);
    }
    return ended(UpgradeTools::Cut);
}

UpgradeState UpgradeWork::waitForReturn(const FirmwareFile &file, const StepControl &control)
{
    sdk::Clock &clock = *m_libraries.clock;
    const std::int64_t start = clock.now();
    bool wasAway = false;
    std::optional<std::int64_t> letInAt; // time of the first login after the reboot
    while (clock.wait(returnInterval, m_stop.end)) {
        if (shouldStop(control))
            report(UpgradeTools::Restarting, restartingFrom, UpgradeTexts::restarts());
        const SecureLogin login =
            secureLogin(m_libraries.net.get(), m_order.ipport, m_order.account, m_order.password);
        const UpgradeTools::Result refusal = resultOfLogin(login.result);
        const auto passed = clock.now() - start;
        if (login.result == LoginResult::Success) {
            m_state.version = identity(login.handle).version;
            m_libraries.net->NetLogout(login.handle);
            // Some devices respond for a moment before they reboot.
            const bool hasRebooted = wasAway || passed > m_limits.leaves.count();
            const UpgradeTools::Result outcome = outcomeOf(file, m_state.version);
            const bool isOther = !m_oldVersion.isEmpty() && m_state.version != m_oldVersion;
            if (!m_state.version.isEmpty() && (hasRebooted || (outcome == UpgradeTools::Success && isOther)))
                return ended(outcome);
            if (hasRebooted && clock.now() - letInAt.value_or(clock.now()) >= versionWait.count())
                return ended(UpgradeTools::VersionUnknown);
            if (hasRebooted && !letInAt)
                letInAt = clock.now();
        } else if (refusal == UpgradeTools::NoResponse) {
            wasAway = true;
        } else if (UpgradeTools::canTryAgain(refusal) && !isCertificateRefused(refusal)) {
            qCInfo(logDevice) << m_order.ipport << "does not let in yet after its upgrade";
        } else {
            return ended(refusal); // it has lost its accounts, or has a new key, which the user must accept
        }
        if (passed > m_limits.comesBack.count())
            return ended(UpgradeTools::NotBack);
    }
    return ended(UpgradeTools::Cut);
}

UpgradeTools::Result UpgradeWork::outcomeOf(const FirmwareFile &file, const QString &version) const
{
    if (file.head && sdk::isSameVersion(version.toStdString(), file.head->version))
        return UpgradeTools::Success;
    if (m_oldVersion.isEmpty())
        return UpgradeTools::VersionUnknown;
    return version == m_oldVersion ? UpgradeTools::KeptVersion : UpgradeTools::Success;
}

UpgradeWork::Identity UpgradeWork::identity(std::int64_t loginHandle) const
{
    sdk::DeviceAttributes attributes{};
    std::uint32_t returned = 0;
    if (!m_libraries.net->NetQueryConfig(loginHandle, sdk::QueryCommand::DeviceAttributes, 0, &attributes,
                                         sizeof(attributes), returned, upgradeAttributesWait))
        return {};
    return {.model = fieldText(attributes.detailModel).trimmed(),
            .version = fieldText(attributes.softwareVersion).trimmed()};
}

void UpgradeWork::report(UpgradeTools::Result result, int percent, const QString &remark)
{
    const QString text = remark.isEmpty() ? UpgradeTools::text(result) : remark;
    if (m_state.result == result && m_state.percent == percent && m_state.text == text)
        return;
    m_state.result = result;
    m_state.percent = percent;
    m_state.text = text;
    m_report(m_state);
}

void UpgradeWork::reportProgress(const sdk::UpgradeProgress &progress)
{
    const bool isWriting = progress.phase == sdk::UpgradePhase::Writing;
    const int percent = std::clamp(progress.percent, 0, 100);
    report(isWriting ? UpgradeTools::Writing : UpgradeTools::Sending,
           isWriting ? writingFrom + percent * (restartingFrom - writingFrom) / 100
                     : percent * writingFrom / 100,
           m_stopRemark);
}

UpgradeState UpgradeWork::ended(UpgradeTools::Result result) const
{
    UpgradeState state = m_state;
    const bool isOnWay = state.result == UpgradeTools::Sending || state.result == UpgradeTools::Writing;
    state.text = UpgradeTools::text(result);
    if (result == UpgradeTools::Success) {
        state.percent = 100;
        state.versions = UpgradeTexts::versions(m_oldVersion, state.version);
        state.text = UpgradeTexts::done(state.versions);
    } else if (result == UpgradeTools::VersionUnknown) {
        state.text = state.version.isEmpty() ? UpgradeTexts::noVersion(state.text)
                                             : UpgradeTexts::nothingToCompare(state.text, state.version);
    } else if (isOnWay && (result == UpgradeTools::Failed || result == UpgradeTools::Stuck)) {
        state.text = UpgradeTexts::failedAt(state.text, state.percent);
    }
    state.result = result;
    return state;
}

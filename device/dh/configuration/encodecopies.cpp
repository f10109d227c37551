#include "device/dh/configuration/encodecopies.h"

#include "device/dh/configuration/currentsession.h"
#include "device/dh/logins/devicelogins.h"
#include "device/store/devicerow.h"
#include "device/store/devicestore.h"
#include "sdk/netlibrary.h"

#include <utility>

EncodeCopies::EncodeCopies(std::shared_ptr<DeviceStore> store, sdk::SdkLibraries libraries,
                           const DeviceLogins &logins, UpgradeCheck isUpgradingAt,
                           const CurrentSession &session, BackEndSignals &backEndSignals)
    : m_store(std::move(store)), m_libraries(std::move(libraries)), m_logins(logins),
      m_isUpgradingAt(std::move(isUpgradingAt)), m_session(session), m_signals(backEndSignals)
{
}

void EncodeCopies::copyTo(const QStringList &devices)
{
    // All steps are made before the first runs: a receiver of the signal may change the page's channel.
    const DeviceStepMaker stepFor = steps();
    QList<DeviceStep> copies;
    for (const QString &ipport : devices)
        copies.append(stepFor(ipport));
    for (qsizetype index = 0; index < copies.size(); ++index)
        m_signals.emitNow<&CDeviceBase::signalCDeviceRetToCopyConfig>(devices.at(index),
                                                                      copies.at(index)(StepControl()).result);
}

DeviceStepMaker EncodeCopies::steps()
{
    // All steps share the settings, which are large.
    const auto state = std::make_shared<const std::optional<EncodeState>>(m_session.state().encode.state());
    return [this, state, channels = m_session.state().channels](const QString &ipport) -> DeviceStep {
        return [this, ipport, state, channels,
                credentials = m_logins.accountAt(ipport)](const StepControl &control) {
            EncodeCopyOutcome outcome = {.result = capabilitiesUnknown, .skipped = {}};
            if (m_isUpgradingAt(ipport))
                outcome.result = resultCode(LoginResult::Upgrading);
            else if (*state && (*state)->unreadItems().size() < qsizetype{2} * itemsOfStream)
                outcome = copyTo(ipport, credentials, **state, channels, control);
            const QString skipped =
                outcome.skipped.isEmpty() ? QString() : tr("未复制：%1").arg(outcome.skipped.join(tr("、")));
            m_store->changeRowAt(ipport,
                                 [&](QJsonObject &row) { row.insert(DeviceRowKey::result, skipped); });
            return StepOutcome{.result = outcome.result, .text = skipped};
        };
    };
}

EncodeCopyOutcome EncodeCopies::copyTo(const QString &ipport, const DeviceAccount &credentials,
                                       const EncodeState &state, const ChannelChoice &channels,
                                       const StepControl &control) const
{
    const SecureLogin login = m_logins.logIn(ipport, credentials);
    if (login.result != LoginResult::Success)
        return {.result = resultCode(login.result), .skipped = {}};
    EncodeCopyOutcome outcome =
        control.shouldEnd() ? EncodeCopyOutcome{.result = resultCode(LoginResult::NotDone), .skipped = {}}
                            : copyEncodeSettings(m_session.tables(), state, channels,
                                                 ConfigSession(m_libraries, login.handle), control);
    m_libraries.net->NetLogout(login.handle);
    return outcome;
}

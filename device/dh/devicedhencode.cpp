// The copy of encode settings.
#include "device/dh/devicedh.h"
#include "device/dh/encode/encodeconfig.h"
#include "device/dh/encode/encodecopy.h"
#include "device/dh/logins/devicelogins.h"
#include "device/dh/session/securelogin.h"
#include "device/dh/upgrade/upgraderound.h"
#include "device/registry/devicerow.h"
#include "device/registry/devicestore.h"
#include "sdk/netlibrary.h"

void CDeviceDH::copyConfigToDevice(const QStringList &devlist)
{
    // All of them are made before the first one runs: the page may change its channel while a signal is being
    // looked at.
    const DeviceStepMaker copyTo = encodeCopy();
    QList<DeviceStep> steps;
    for (const QString &ipport : devlist)
        steps.append(copyTo(ipport));
    for (qsizetype place = 0; place < steps.size(); ++place)
        Q_EMIT signalCDeviceRetToCopyConfig(devlist.at(place), steps.at(place)(StepControl()).result);
}

DeviceStepMaker CDeviceDH::encodeCopy()
{
    // All steps share what is copied, which is large.
    const auto state = std::make_shared<const std::optional<EncodeState>>(m_state->encode.state());
    return [this, state, channels = m_state->channels](const QString &ipport) -> DeviceStep {
        return [this, ipport, state, channels,
                credentials = m_logins->accountAt(ipport)](const StepControl &control) {
            EncodeCopyOutcome outcome = {.result = capabilitiesUnknown, .skipped = {}};
            if (m_upgrades->isUpgradingAt(ipport))
                outcome.result = resultCode(LoginResult::Upgrading);
            else if (*state && (*state)->unreadItems().size() < qsizetype{2} * itemsOfStream)
                outcome = copyTo(ipport, credentials, **state, channels, control);
            const QString skipped =
                outcome.skipped.isEmpty() ? QString() : tr("未复制：%1").arg(outcome.skipped.join(tr("、")));
            store().changeRowAt(ipport, [&](QJsonObject &row) { row.insert(DeviceRowKey::result, skipped); });
            return StepOutcome{.result = outcome.result, .text = skipped};
        };
    };
}

EncodeCopyOutcome CDeviceDH::copyTo(const QString &ipport, const DeviceAccount &credentials,
                                    const EncodeState &state, const ChannelChoice &channels,
                                    const StepControl &control)
{
    const SecureLogin login = m_logins->logIn(ipport, credentials);
    if (login.result != LoginResult::Success)
        return {.result = resultCode(login.result), .skipped = {}};
    EncodeCopyOutcome outcome =
        control.shouldEnd() ? EncodeCopyOutcome{.result = resultCode(LoginResult::NotDone), .skipped = {}}
                            : copyEncodeSettings(m_tables, state, channels,
                                                 ConfigSession(m_libraries, login.handle), control);
    m_libraries.net->NetLogout(login.handle);
    return outcome;
}

// The encode page.
#include "device/devicerow.h"
#include "device/devicestore.h"
#include "device/dh/cameraconfig.h"
#include "device/dh/devicedh.h"
#include "device/dh/encodeconfig.h"
#include "device/dh/encodecopy.h"
#include "device/dh/securelogin.h"
#include "sdk/netlibrary.h"

void CDeviceDH::getEncodeCaps()
{
    const int result = m_encode->read();
    if (!isLibraryError(result))
        m_camera->readColor(m_channels.curChannel);
    Q_EMIT signalCDeviceGetDeviceCapRet(result);
}

void CDeviceDH::getEncodeInfo()
{
    const int result = m_encode->read();
    Q_EMIT signalCDeviceChangeEncodeChannel();
    Q_EMIT signalCDeviceGetDeviceCapRet(result);
}

QVariant CDeviceDH::getConfigData(const QString &key, const QVariant &channel)
{
    if (key == QLatin1String("loginHandle"))
        return QVariant::fromValue<qint64>(m_loginHandle);
    if (key == QLatin1String("sessionDevice"))
        return m_session.ipport;
    if (key == QLatin1String("connectedChannels"))
        return sessionConnections();
    if (key == QLatin1String("channelName"))
        return m_channelNames.name(channel.toInt());
    if (key == QLatin1String("channelNameResult"))
        return m_channelNames.result(channel.toInt());
    if (key == QLatin1String("channelNamesResult"))
        return m_channelNames.savingResult();
    if (ChannelChoice::isKey(key))
        return m_channels.value(key);
    if (EncodeValues::isKey(key))
        return m_encode->value(key);
    return m_camera->value(key);
}

void CDeviceDH::setConfigData(const QString &key, const QVariant &value, const QString &otype)
{
    if (ChannelChoice::isKey(key)) {
        const ChannelChoice before = m_channels;
        m_channels.choose(key, value);
        if (m_channels.curVideoChannel != before.curVideoChannel)
            m_camera->forgetItems();
        if (m_channels.curChannel != before.curChannel || m_channels.curStreamType != before.curStreamType)
            m_encode->forgetItems();
        return;
    }
    if (key == QLatin1String("channelName")) {
        writeChannelName(value.toString(), otype);
        return;
    }
    if (key == QLatin1String("channelNamesSaved")) {
        if (m_channelNames.endSaving())
            Q_EMIT signalCDeviceSetChannelNameFinished();
        return;
    }
    if (!EncodeValues::isKey(key)) {
        setCameraValue(key, value, otype);
        return;
    }
    // It is written at once.
    if (key == QLatin1String("subCurResolution") && isUpgradingAt(m_session.ipport)) {
        Q_EMIT signalCDeviceConfirmEncodeConfig(resultName(resultCode(LoginResult::Upgrading)) + u'\n');
        return;
    }
    const EncodeConfig::Outcome outcome = m_encode->setValue(key, value);
    if (!outcome.notWritten.isEmpty())
        Q_EMIT signalCDeviceConfirmEncodeConfig(outcome.notWritten);
    if (outcome.result != 0)
        Q_EMIT signalCDeviceGetDeviceCapRet(outcome.result);
}

void CDeviceDH::confirmConfigData()
{
    if (isUpgradingAt(m_session.ipport)) {
        Q_EMIT signalCDeviceConfirmEncodeConfig(resultName(resultCode(LoginResult::Upgrading)) + u'\n');
        return;
    }
    const EncodeConfig::Outcome outcome = m_encode->confirm();
    Q_EMIT signalCDeviceConfirmEncodeConfig(outcome.notWritten);
    if (outcome.result != 0)
        Q_EMIT signalCDeviceGetDeviceCapRet(outcome.result);
}

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
    const auto state = std::make_shared<const std::optional<EncodeState>>(m_encode->state());
    return [this, state, channels = m_channels](const QString &ipport) -> DeviceStep {
        return [this, ipport, state, channels,
                credentials = credentialsOf(ipport)](const StepControl &control) {
            EncodeCopyOutcome outcome = {.result = capabilitiesUnknown, .skipped = {}};
            if (isUpgradingAt(ipport))
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

EncodeCopyOutcome CDeviceDH::copyTo(const QString &ipport, const Credentials &credentials,
                                    const EncodeState &state, const ChannelChoice &channels,
                                    const StepControl &control)
{
    const SecureLogin login =
        secureLogin(m_libraries.net.get(), ipport, credentials.account, credentials.password);
    if (login.result != LoginResult::Success)
        return {.result = resultCode(login.result), .skipped = {}};
    EncodeCopyOutcome outcome =
        control.shouldEnd() ? EncodeCopyOutcome{.result = resultCode(LoginResult::NotDone), .skipped = {}}
                            : copyEncodeSettings(m_tables, state, channels,
                                                 ConfigSession(m_libraries, login.handle), control);
    m_libraries.net->NetLogout(login.handle);
    return outcome;
}

#include "device/dh/configuration/sessionrun.h"

#include "device/dh/session/livechannels.h"
#include "device/registry/camerakeys.h"
#include "device/registry/encodekeys.h"
#include "device/registry/loginresult.h"
#include "device/registry/mapkeys.h"
#include "device/store/logging.h"

#include <algorithm>
#include <utility>

namespace {

QVariantList listOf(const QList<bool> &values)
{
    QVariantList list;
    std::copy(values.cbegin(), values.cend(), std::back_inserter(list));
    return list;
}

/// The list of choices (a key of CameraSetting) of a setting whose value is an index; empty for another one.
QLatin1StringView choicesOf(const QString &group, const QString &setting)
{
    if (group == CameraKey::exposure && setting == CameraSetting::value)
        return CameraSetting::allExposureType;
    constexpr std::array choices = {
        std::pair(CameraSetting::antiFlicker, CameraSetting::allAntiFlickerType),
        std::pair(CameraSetting::backmode, CameraSetting::allBackModeType),
        std::pair(CameraSetting::whiteBalanceType, CameraSetting::allType),
        std::pair(CameraSetting::dayNightType, CameraSetting::allDayNightType),
        std::pair(CameraSetting::defogMode, CameraSetting::allInDefogType),
        std::pair(CameraSetting::controlMode, CameraSetting::allLightControlType),
        std::pair(CameraSetting::mixMode, CameraSetting::allmixLightType),
    };
    for (const auto &[name, list] : choices) {
        if (setting == name)
            return list;
    }
    return {};
}

} // namespace

SessionRun::SessionRun(SessionState &state, std::function<bool()> isUpgrading,
                       std::function<void(int channel)> beforeImageChange)
    : m_state(state), m_isUpgrading(std::move(isUpgrading)), m_beforeImageChange(std::move(beforeImageChange))
{
}

std::vector<SessionRun::SignalCall> SessionRun::takeSignals()
{
    return std::exchange(m_signals, {});
}

void SessionRun::noteResult(int result)
{
    m_isDeviceAway = m_isDeviceAway || isSessionLost(static_cast<std::uint32_t>(result));
    collect<&CDeviceBase::signalCDeviceGetDeviceCapRet>(result);
}

void SessionRun::noteUpgrading()
{
    collect<&CDeviceBase::signalCDeviceConfirmEncodeConfig>(resultName(resultCode(LoginResult::Upgrading)) +
                                                            u'\n');
}

void SessionRun::noteWritten(const QString &setting, int channel, const QString &value)
{
    collect<&CDeviceBase::signalCDeviceSettingWritten>(m_state.ipport, setting, channel, value);
}

QString SessionRun::encodeText() const
{
    QStringList parts;
    for (const QLatin1StringView key : {EncodeKey::curEncodeMode, EncodeKey::curResolution}) {
        const QString part = m_state.encode.value(key, m_state.channels).toString().trimmed();
        if (!part.isEmpty())
            parts.append(part);
    }
    return parts.join(u' ');
}

void SessionRun::getEncodeCaps()
{
    const int result = m_state.encode.read(m_state.channels);
    if (!isLibraryError(result))
        m_state.camera.readColor(m_state.channels.curChannel);
    noteResult(result);
}

void SessionRun::getEncodeInfo()
{
    const int result = m_state.encode.read(m_state.channels);
    collect<&CDeviceBase::signalCDeviceChangeEncodeChannel>();
    noteResult(result);
}

void SessionRun::confirmConfigData()
{
    if (m_isUpgrading()) {
        noteUpgrading();
        return;
    }
    const EncodeConfig::Outcome outcome = m_state.encode.confirm(m_state.channels);
    collect<&CDeviceBase::signalCDeviceConfirmEncodeConfig>(outcome.notWritten);
    if (outcome.notWritten.isEmpty())
        noteWritten(WrittenSetting::encode, m_state.channels.curChannel, encodeText());
    if (outcome.result != 0)
        noteResult(outcome.result);
}

QVariant SessionRun::getConfigData(const QString &key, const QVariant &channel)
{
    if (key == SessionKey::connectedChannels)
        return m_state.session.isOpen()
                   ? listOf(connectedChannels(m_state.session, m_state.channels.channelCount))
                   : QVariantList();
    if (key == SessionKey::channelName)
        return m_state.names.name(channel.toInt());
    if (key == SessionKey::channelNameResult)
        return m_state.names.result(channel.toInt());
    if (key == SessionKey::channelNamesResult)
        return m_state.names.savingResult();
    if (ChannelChoice::isKey(key))
        return m_state.channels.value(key);
    if (EncodeValues::isKey(key))
        return m_state.encode.value(key, m_state.channels);
    return m_state.camera.value(key);
}

void SessionRun::setConfigData(const QString &key, const QVariant &value, const QString &otype)
{
    if (ChannelChoice::isKey(key)) {
        const ChannelChoice before = m_state.channels;
        m_state.channels.choose(key, value);
        if (m_state.channels.curVideoChannel != before.curVideoChannel)
            m_state.camera.markItemsUnread();
        if (m_state.channels.curChannel != before.curChannel ||
            m_state.channels.curStreamType != before.curStreamType)
            m_state.encode.markItemsUnread();
    } else if (key == SessionKey::channelName) {
        writeChannelName(value.toString(), otype);
    } else if (key == SessionKey::channelNamesSaved) {
        if (m_state.names.endSaving())
            collect<&CDeviceBase::signalCDeviceSetChannelNameFinished>();
    } else if (EncodeValues::isKey(key)) {
        setEncodeValue(key, value);
    } else {
        setCameraValue(key, value, otype);
    }
}

void SessionRun::setEncodeValue(const QString &key, const QVariant &value)
{
    // "subCurResolution" is written to the device immediately.
    if (key == EncodeKey::subCurResolution && m_isUpgrading()) {
        noteUpgrading();
        return;
    }
    const EncodeConfig::Outcome outcome = m_state.encode.setValue(key, value, m_state.channels);
    if (!outcome.notWritten.isEmpty())
        collect<&CDeviceBase::signalCDeviceConfirmEncodeConfig>(outcome.notWritten);
    else if (key == EncodeKey::subCurResolution && outcome.result == 0)
        noteWritten(WrittenSetting::encode, m_state.channels.curVideoChannel, value.toString());
    if (outcome.result != 0)
        noteResult(outcome.result);
}

// Image page. Failures are reported after the signals that update the values.

void SessionRun::getCameraConfig()
{
    const int result = m_state.camera.readCapabilities(m_state.channels.curVideoChannel);
    if (result != 0)
        noteResult(result);
}

void SessionRun::getVideoIn()
{
    const int result = m_state.camera.readItems(m_state.channels.curVideoChannel);
    collect<&CDeviceBase::signalCDeviceChangeVideoType>();
    if (result != 0)
        noteResult(result);
}

void SessionRun::getVideoInByChangeChannel()
{
    const int result = m_state.camera.readItems(m_state.channels.curVideoChannel);
    collect<&CDeviceBase::signalCDeviceChangeVideoChannel>();
    if (result != 0)
        noteResult(result);
}

void SessionRun::setCameraValue(const QString &key, const QVariant &value, const QString &subKey)
{
    int failure = 0;
    if (key != CameraKey::curSwitchMode && m_isUpgrading()) {
        failure = resultCode(LoginResult::Upgrading);
    } else {
        const int channel = m_state.channels.curVideoChannel;
        if (m_beforeImageChange && key != CameraKey::curSwitchMode && key != CameraKey::curChannelName)
            m_beforeImageChange(channel);
        switch (m_state.camera.setValue(key, value, subKey, channel)) {
        case CameraConfig::Outcome::Ignored:
            break;
        case CameraConfig::Outcome::Taken:
            if (key == CameraKey::curChannelName)
                collect<&CDeviceBase::signalCDeviceSetChannelNameFinished>();
            if (key != CameraKey::curSwitchMode)
                noteCameraValue(key, value, subKey);
            break;
        case CameraConfig::Outcome::Refused:
            failure = m_state.camera.lastError();
            break;
        case CameraConfig::Outcome::NoResponse:
            failure = deviceAway;
            break;
        }
    }
    if (failure == 0)
        return;
    collect<&CDeviceBase::signalCDeviceChangeVideoType>(); // the page shows the device's values again
    noteResult(failure);
}

void SessionRun::noteCameraValue(const QString &key, const QVariant &value, const QString &subKey)
{
    const int channel = m_state.channels.curVideoChannel;
    if (key == CameraKey::curChannelName) {
        noteWritten(WrittenSetting::channelName, channel, value.toString());
        return;
    }
    QString text = key == CameraKey::setDefault ? QString() : value.toString();
    const QLatin1StringView choices = choicesOf(key, subKey);
    if (!choices.isEmpty())
        text = m_state.camera.value(key).toMap().value(choices).toStringList().value(value.toInt());
    const bool isMain = subKey.isEmpty() || subKey == CameraSetting::value;
    noteWritten(WrittenSetting::imagePrefix + key + (isMain ? QString() : u'.' + subKey), channel, text);
}

// The names of the channels.

int SessionRun::askedChannels(int wanted) const
{
    if (!m_state.session.isOpen())
        return 0;
    // A device that reports no channels has one.
    const int all = std::clamp(m_state.channels.channelCount, 1, ChannelNames::maximumChannels);
    return wanted > 0 ? std::min(wanted, all) : all;
}

QVariantList SessionRun::getDeviceChannelData(const QString &key, int channelNum)
{
    const int count = askedChannels(channelNum);
    if (count == 0)
        return {};
    if (key == SessionKey::channelNames) {
        QVariantList names = m_state.names.names(count);
        if (m_state.names.isDeviceAway())
            noteResult(deviceAway);
        return names;
    }
    return key == SessionKey::channelsConnected ? listOf(connectedChannels(m_state.session, count))
                                                : QVariantList();
}

void SessionRun::writeChannelName(const QString &name, const QString &channel)
{
    bool isNumber = false;
    const int number = channel.toInt(&isNumber);
    if (!isNumber || number < 0 || number >= askedChannels(0)) {
        qCWarning(logDevice) << "there is no channel" << channel << "to name";
        return;
    }
    if (m_isUpgrading()) {
        m_state.names.noteFailure(number, resultCode(LoginResult::Upgrading));
        return;
    }
    const int result = m_state.names.write(number, name);
    if (result == deviceAway)
        noteResult(deviceAway);
    else if (result == 0)
        noteWritten(WrittenSetting::channelName, number, name);
}

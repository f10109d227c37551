// The names of the channels of the current session's device.
#include "device/dh/devicedh.h"
#include "device/dh/livechannels.h"
#include "device/logging.h"
#include "device/loginresult.h"

#include <algorithm>

int CDeviceDH::askedChannels(int wanted) const
{
    if (m_session.handle == 0)
        return 0;
    // One that tells of no channels has one.
    const int all = std::clamp(m_channels.channelCount, 1, ChannelNames::maximumChannels);
    return wanted > 0 ? std::min(wanted, all) : all;
}

QVariantList CDeviceDH::getDeviceChannelData(const QString &key, int channelNum)
{
    const int count = askedChannels(channelNum);
    if (count == 0)
        return {};
    if (key == QLatin1String("channelNames")) {
        QVariantList names = m_channelNames.names(count);
        if (m_channelNames.isDeviceAway())
            Q_EMIT signalCDeviceGetDeviceCapRet(deviceAway);
        return names;
    }
    QVariantList states;
    if (key == QLatin1String("channelsConnected")) {
        const QList<bool> connected = connectedChannels(ConfigSession(m_libraries, m_session.handle), count);
        std::copy(connected.cbegin(), connected.cend(), std::back_inserter(states));
    }
    return states;
}

void CDeviceDH::writeChannelName(const QString &name, const QString &channel)
{
    bool isNumber = false;
    const int number = channel.toInt(&isNumber);
    if (!isNumber || number < 0 || number >= askedChannels(0)) {
        qCWarning(logDevice) << "there is no channel" << channel << "to name";
        return;
    }
    if (isUpgradingAt(m_session.ipport)) {
        m_channelNames.noteFailure(number, resultCode(LoginResult::Upgrading));
        return;
    }
    if (m_channelNames.write(number, name) == deviceAway)
        Q_EMIT signalCDeviceGetDeviceCapRet(deviceAway);
}

// Live view and snapshots of the current session's device.
#include "device/dh/devicedh.h"
#include "device/dh/livechannels.h"
#include "media/snapthread.h"

#include <algorithm>

namespace {

const QString allChannels = QStringLiteral("liveCapture");
const QString oneChannel = QStringLiteral("againCapture");

/// A text as the name of a folder: what would lead elsewhere, or what no file system takes, is replaced.
QString folderName(const QString &text)
{
    QString name = text.left(120);
    for (QChar &letter : name) {
        if (letter.unicode() < 0x20 || QStringLiteral("/\\:*?\"<>|").contains(letter))
            letter = u'_';
    }
    const bool isOnlyDots =
        std::all_of(name.cbegin(), name.cend(), [](QChar letter) { return letter == u'.'; });
    return isOnlyDots ? QStringLiteral("device") : name;
}

} // namespace

QVariantList CDeviceDH::sessionConnections() const
{
    QVariantList connected;
    if (m_session.handle != 0) {
        const ConfigSession session(m_libraries, m_session.handle);
        for (const bool isConnected : connectedChannels(session, m_channels.channelCount))
            connected.append(isConnected);
    }
    return connected;
}

void CDeviceDH::snapPictureToFile(const QString &kind, const QVariant &channelNum, const QString &address)
{
    if (kind != allChannels && kind != oneChannel)
        return;
    if (!m_snapshots) {
        m_snapshots = std::make_unique<SnapThread>();
        connect(m_snapshots.get(), &SnapThread::captured, this, &CDeviceDH::noteSnapshot);
    }
    const int channelCount = m_channels.channelCount;
    const int onlyChannel = kind == oneChannel ? channelNum.toInt() : -1;
    m_snapshots->take(
        {.kind = kind,
         .folder = folderName(address),
         .isDeviceCurrent =
             [this, generation = m_deviceGeneration.load()] { return m_deviceGeneration == generation; },
         .sessionHandle = [this] { return m_loginHandle.load(); },
         .channels =
             [libraries = m_libraries, handle = m_session.handle, channelCount, onlyChannel] {
                 const QList<bool> connected =
                     connectedChannels(ConfigSession(libraries, handle), channelCount);
                 if (onlyChannel >= 0)
                     return QList<SnapChannel>{{onlyChannel, connected.value(onlyChannel, true)}};
                 QList<SnapChannel> channels;
                 for (int channel = 0; channel < connected.size(); ++channel)
                     channels.append({channel, connected.at(channel)});
                 return channels;
             }});
}

void CDeviceDH::noteSnapshot(const QString &kind, int channel, const QString &path, const QString &message)
{
    if (kind == allChannels)
        Q_EMIT signalSnapPictureToFile(channel, path, message);
    else
        Q_EMIT signalSnapPictureToFileAgain(channel, path, message);
}

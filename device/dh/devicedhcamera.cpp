// The camera image page. Failures are reported after what the page is to show.
#include "device/dh/cameraconfig.h"
#include "device/dh/devicedh.h"
#include "device/loginresult.h"

void CDeviceDH::getCameraConfig()
{
    const int result = m_camera->readCapabilities();
    if (result != 0)
        Q_EMIT signalCDeviceGetDeviceCapRet(result);
}

void CDeviceDH::getVideoIn()
{
    const int result = m_camera->readItems();
    Q_EMIT signalCDeviceChangeVideoType();
    if (result != 0)
        Q_EMIT signalCDeviceGetDeviceCapRet(result);
}

void CDeviceDH::getVideoInByChangeChannel()
{
    const int result = m_camera->readItems();
    Q_EMIT signalCDeviceChangeVideoChannel();
    if (result != 0)
        Q_EMIT signalCDeviceGetDeviceCapRet(result);
}

void CDeviceDH::setCameraValue(const QString &key, const QVariant &value, const QString &subKey)
{
    if (key != QLatin1String("curSwitchMode") && isUpgradingAt(m_session.ipport)) {
        Q_EMIT signalCDeviceChangeVideoType();
        Q_EMIT signalCDeviceGetDeviceCapRet(resultCode(LoginResult::Upgrading));
        return;
    }
    switch (m_camera->setValue(key, value, subKey)) {
    case CameraConfig::Outcome::Ignored:
        break;
    case CameraConfig::Outcome::Taken:
        if (key == QLatin1String("curChannelName"))
            Q_EMIT signalCDeviceSetChannelNameFinished();
        break;
    case CameraConfig::Outcome::Refused:
        Q_EMIT signalCDeviceChangeVideoType(); // the page shows again what the device has
        Q_EMIT signalCDeviceGetDeviceCapRet(m_camera->lastError());
        break;
    case CameraConfig::Outcome::Unanswered:
        Q_EMIT signalCDeviceChangeVideoType();
        Q_EMIT signalCDeviceGetDeviceCapRet(deviceAway);
        break;
    }
}

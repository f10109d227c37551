// The camera image page.
#include "device/dh/cameraconfig.h"
#include "device/dh/devicedh.h"
#include "device/dh/encodestate.h"

void CDeviceDH::getCameraConfig()
{
    if (!m_camera->readCapabilities())
        Q_EMIT signalCDeviceGetDeviceCapRet(capabilitiesUnknown);
}

void CDeviceDH::getVideoIn()
{
    m_camera->readItems();
    Q_EMIT signalCDeviceChangeVideoType();
}

void CDeviceDH::getVideoInByChangeChannel()
{
    m_camera->readItems();
    Q_EMIT signalCDeviceChangeVideoChannel();
}

void CDeviceDH::setCameraValue(const QString &key, const QVariant &value, const QString &subKey)
{
    const CameraConfig::Outcome outcome = m_camera->setValue(key, value, subKey);
    if (outcome == CameraConfig::Outcome::Refused)
        Q_EMIT signalCDeviceChangeVideoType(); // the page shows again what the device has
    else if (outcome == CameraConfig::Outcome::Taken && key == QLatin1String("curChannelName"))
        Q_EMIT signalCDeviceSetChannelNameFinished();
}

#include "device/forms/cameraform.h"

#include "device/registry/camerakeys.h"
#include "device/registry/devicefactory.h"
#include "device/registry/devicefamily.h"
#include "device/registry/encodekeys.h"

#include <algorithm>
#include <array>

namespace {

/// Denominators of the exposure times in seconds, shortest time first.
constexpr std::array shutterParts = {100000, 30000, 10000, 4000, 2000, 500, 250, 100, 50, 25};

double millisecondsOf(int part)
{
    return 1000.0 / part;
}

/// Devices store times with single precision.
bool isSameTime(double first, double second)
{
    constexpr double part = 1e-4;
    return qAbs(first - second) <= part * qMax(first, second);
}

} // namespace

CameraForm::CameraForm(QObject *parent) : QObject(parent)
{
    read(); // `groups` always has all groups
}

CDeviceFactory *CameraForm::deviceFactory() const
{
    return m_deviceFactory;
}

void CameraForm::setDeviceFactory(CDeviceFactory *deviceFactory)
{
    if (m_deviceFactory == deviceFactory)
        return;
    m_deviceFactory = deviceFactory;
    Q_EMIT deviceFactoryChanged();
    read();
}

bool CameraForm::supportsAny() const
{
    return std::any_of(m_groups.cbegin(), m_groups.cend(), [](const QVariant &group) {
        return group.toMap().value(CameraGroupKey::support).toBool();
    });
}

void CameraForm::read()
{
    const auto value = [this](const QString &key) {
        return m_deviceFactory ? m_deviceFactory->getConfigData(dhFamily, key) : QVariant();
    };
    m_channels = value(EncodeKey::channelNum).toStringList();
    if (m_channels.isEmpty()) // a device that reports no channels has one
        m_channels.append(QStringLiteral("1"));
    m_channel = value(EncodeKey::curVideoChannel).toInt();
    m_channelName = value(CameraKey::curChannelName).toString();
    m_switchModes = value(CameraKey::allSwitchMode).toStringList();
    const QVariant mode = value(CameraKey::curSwitchMode);
    m_switchMode = mode.isValid() ? mode.toInt() : -1;
    for (const QLatin1StringView name : CameraKey::groups) {
        QVariantMap group = value(name).toMap();
        group.insert(CameraGroupKey::support, group.value(CameraGroupKey::support).toBool());
        m_groups.insert(name, group);
    }
    Q_EMIT changed();
}

QStringList CameraForm::shutterTimes()
{
    QStringList texts;
    for (const int part : shutterParts)
        texts.append(QStringLiteral("1/%1").arg(part));
    return texts;
}

double CameraForm::shutterMilliseconds(int index) const
{
    const bool isValid = index >= 0 && index < static_cast<int>(shutterParts.size());
    return isValid ? millisecondsOf(shutterParts[static_cast<std::size_t>(index)]) : 0;
}

int CameraForm::shutterIndex(double shortest, double longest) const
{
    if (!isSameTime(shortest, longest))
        return -1;
    const auto *const found = std::find_if(shutterParts.begin(), shutterParts.end(), [longest](int part) {
        return isSameTime(millisecondsOf(part), longest);
    });
    return found == shutterParts.end() ? -1 : static_cast<int>(found - shutterParts.begin());
}

QVariantList CameraForm::shutterWrites(double longestNow, double shortest, double longest) const
{
    const QVariantList lower = {CameraSetting::shortestShutter, shortest};
    const QVariantList upper = {CameraSetting::longestShutter, longest};
    return shortest > longestNow ? QVariantList{QVariant(upper), QVariant(lower)}
                                 : QVariantList{QVariant(lower), QVariant(upper)};
}

#include "device/models/cameraform.h"

#include "device/registry/devicefactory.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::array groupKeys = {"picture",  "sharpness",    "mirror",        "stable",
                                  "exposure", "backMode",     "whiteBalance",  "dayNight",
                                  "inDefog",  "lightControl", "lightControlEx"};

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
        return group.toMap().value(QStringLiteral("support")).toBool();
    });
}

void CameraForm::read()
{
    const auto value = [this](const QString &key) {
        return m_deviceFactory ? m_deviceFactory->getConfigData(QStringLiteral("dh"), key) : QVariant();
    };
    m_channels = value(QStringLiteral("channelNum")).toStringList();
    if (m_channels.isEmpty()) // a device that reports no channels has one
        m_channels.append(QStringLiteral("1"));
    m_channel = value(QStringLiteral("curVideoChannel")).toInt();
    m_channelName = value(QStringLiteral("curChannelName")).toString();
    m_switchModes = value(QStringLiteral("allSwitchMode")).toStringList();
    const QVariant mode = value(QStringLiteral("curSwitchMode"));
    m_switchMode = mode.isValid() ? mode.toInt() : -1;
    for (const char *key : groupKeys) {
        const QString name = QString::fromLatin1(key);
        QVariantMap group = value(name).toMap();
        group.insert(QStringLiteral("support"), group.value(QStringLiteral("support")).toBool());
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

double CameraForm::shutterMilliseconds(int place) const
{
    const bool isPlace = place >= 0 && place < static_cast<int>(shutterParts.size());
    return isPlace ? millisecondsOf(shutterParts[static_cast<std::size_t>(place)]) : 0;
}

int CameraForm::shutterPlace(double shortest, double longest) const
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
    const QVariantList lower = {QStringLiteral("dbExposureValue1"), shortest};
    const QVariantList upper = {QStringLiteral("dbExposureValue2"), longest};
    return shortest > longestNow ? QVariantList{QVariant(upper), QVariant(lower)}
                                 : QVariantList{QVariant(lower), QVariant(upper)};
}

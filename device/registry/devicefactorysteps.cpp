// What batches need of the back ends: steps, and what is known before they begin.
#include "device/registry/devicefactory.h"

#include <QJsonObject>

DeviceStep CDeviceFactory::systemStep(const QString &family, const QString &command, const QVariantMap &data,
                                      const QString &ipport)
{
    return forward(family, &CDeviceBase::systemStep, command, data, ipport);
}

DeviceStep CDeviceFactory::initialisationStep(const QString &family, const QString &mac,
                                              const QString &account, const QString &password)
{
    return forward(family, &CDeviceBase::initialisationStep, mac, account, password);
}

DeviceStep CDeviceFactory::addressStep(const QString &family, const QString &mac, const QString &newip,
                                       const QString &newsubmask, const QString &newgateway, bool dhcpON)
{
    return forward(family, &CDeviceBase::addressStep, mac, newip, newsubmask, newgateway, dhcpON);
}

DeviceStepMaker CDeviceFactory::encodeCopy(const QString &family)
{
    const DeviceStepMaker maker = forward(family, &CDeviceBase::encodeCopy);
    return maker ? maker : DeviceStepMaker([](const QString &) { return DeviceStep(); });
}

QJsonObject CDeviceFactory::deviceRow(const QString &family, const QString &name)
{
    return forward(family, &CDeviceBase::deviceRow, name);
}

QList<DeviceStep> CDeviceFactory::snapshotSteps(const QString &family, const QString &address)
{
    return forward(family, &CDeviceBase::snapshotSteps, address);
}

DeviceStep CDeviceFactory::pictureStep(const QString &family, const PictureOrder &order)
{
    return forward(family, &CDeviceBase::pictureStep, order);
}

DeviceStep CDeviceFactory::locationStep(const QString &family, const QStringList &macs)
{
    return forward(family, &CDeviceBase::locationStep, macs);
}

DeviceStep CDeviceFactory::addingStep(const QString &family, const DeviceToAdd &device)
{
    return forward(family, &CDeviceBase::addingStep, device);
}

DeviceStep CDeviceFactory::upgradeStep(const QString &family, const QString &mac)
{
    return forward(family, &CDeviceBase::upgradeStep, mac);
}

DeviceStep CDeviceFactory::repeatedDocumentStep(const QString &family, const QString &mac)
{
    return forward(family, &CDeviceBase::repeatedDocumentStep, mac);
}

SceneStep CDeviceFactory::upgradeDocumentReading(const QString &family, const QString &path)
{
    return forward(family, &CDeviceBase::upgradeDocumentReading, path);
}

QList<UpgradeDocumentStep> CDeviceFactory::upgradeDocumentSteps(const QString &family, const QString &path,
                                                                const QList<int> &lines)
{
    return forward(family, &CDeviceBase::upgradeDocumentSteps, path, lines);
}

QList<PlannedUpgrade> CDeviceFactory::plannedUpgrades(const QString &family, const QStringList &macs)
{
    return forward(family, &CDeviceBase::plannedUpgrades, macs);
}

QList<int> CDeviceFactory::setUpgradeFiles(const QString &family, const QStringList &macs,
                                           const QString &path)
{
    return forward(family, &CDeviceBase::setUpgradeFiles, macs, path);
}

QStringList CDeviceFactory::takeChangedUpgrades(const QString &family)
{
    return forward(family, &CDeviceBase::takeChangedUpgrades);
}

ImportPlan CDeviceFactory::importPlan(const QString &family, const QString &path)
{
    return forward(family, &CDeviceBase::importPlan, path);
}

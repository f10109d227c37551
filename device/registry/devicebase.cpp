// Defaults of a family that does not support an operation, as far as they are more than an empty value.
#include "device/registry/devicebase.h"

#include <QJsonObject>

#include <utility>

namespace {

DeviceStep unsupportedStep()
{
    return [](const StepControl &) {
        return StepOutcome{.result = resultCode(LoginResult::NotSupported), .text = {}};
    };
}

SceneStep emptySceneStep()
{
    return [](const StepControl &) {
        return SceneOutcome();
    };
}

} // namespace

DeviceStep CDeviceBase::systemStep(const QString &, const QVariantMap &, const QString &)
{
    return unsupportedStep();
}

DeviceStep CDeviceBase::initialisationStep(const QString &, const QString &, const QString &)
{
    return unsupportedStep();
}

DeviceStep CDeviceBase::addressStep(const QString &, const QString &, const QString &, const QString &, bool)
{
    return unsupportedStep();
}

DeviceStepMaker CDeviceBase::encodeCopy()
{
    return [](const QString &) {
        return unsupportedStep();
    };
}

QJsonObject CDeviceBase::deviceRow(const QString &name)
{
    return QJsonObject::fromVariantMap(getDeviceDetail(name));
}

DeviceStep CDeviceBase::locationStep(const QStringList &)
{
    return unsupportedStep();
}

DeviceStep CDeviceBase::addingStep(const DeviceToAdd &)
{
    return unsupportedStep();
}

SceneStep CDeviceBase::loginStep(const QString &, const QString &, const QString &)
{
    return [](const StepControl &) {
        return SceneOutcome{.value = resultCode(LoginResult::NotSupported), .take = {}};
    };
}

SceneStep CDeviceBase::sessionStep(const SessionJob &)
{
    return emptySceneStep();
}

SceneStep CDeviceBase::detailStep(const QString &)
{
    return emptySceneStep();
}

void CDeviceBase::runForScene(const SceneStep &step, const std::stop_token &,
                              const std::function<void(const SceneOutcome &outcome)> &ended)
{
    ended(step(StepControl())); // the default steps do not block
}

DeviceStep CDeviceBase::upgradeStep(const QString &)
{
    return unsupportedStep();
}

DeviceStep CDeviceBase::repeatedDocumentStep(const QString &)
{
    return unsupportedStep();
}

SceneStep CDeviceBase::upgradeDocumentReading(const QString &)
{
    return emptySceneStep();
}

QList<PlannedUpgrade> CDeviceBase::plannedUpgrades(const QStringList &macs)
{
    return QList<PlannedUpgrade>(macs.size());
}

QList<int> CDeviceBase::setUpgradeFiles(const QStringList &macs, const QString &)
{
    return QList<int>(macs.size(), UpgradeTools::NotSupported);
}

DeviceStep CDeviceBase::pictureStep(const PictureOrder &)
{
    return unsupportedStep();
}

OwnSessionStep CDeviceBase::ownSessionStep(const OwnSessionOrder &)
{
    return [](const StepControl &) {
        return OwnSessionOffer();
    };
}

CDeviceBase::LoginCheck CDeviceBase::loginCheck()
{
    return [this](const QString &ipport, const QString &account, const QString &password) {
        return checkLogin(ipport, account, password);
    };
}

void CDeviceBase::setP2PPorts(std::shared_ptr<P2PPorts> ports)
{
    m_p2pPorts = std::move(ports);
}

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

PageStep emptyPageStep()
{
    return [](const StepControl &) {
        return PageOutcome();
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

PageStep CDeviceBase::loginStep(const QString &, const QString &, const QString &)
{
    return [](const StepControl &) {
        return PageOutcome{.value = resultCode(LoginResult::NotSupported), .take = {}};
    };
}

PageStep CDeviceBase::sessionStep(const SessionJob &)
{
    return emptyPageStep();
}

PageStep CDeviceBase::detailStep(const QString &)
{
    return emptyPageStep();
}

void CDeviceBase::runForPage(const PageStep &step, const std::stop_token &,
                             const std::function<void(const PageOutcome &outcome)> &ended)
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

PageStep CDeviceBase::upgradeDocumentReading(const QString &)
{
    return emptyPageStep();
}

QList<PlannedUpgrade> CDeviceBase::plannedUpgrades(const QStringList &macs)
{
    return QList<PlannedUpgrade>(macs.size());
}

QList<int> CDeviceBase::setUpgradeFiles(const QStringList &macs, const QString &)
{
    return QList<int>(macs.size(), UpgradeTools::NotSupported);
}

DeviceStep CDeviceBase::imageStep(const ImageOrder &)
{
    return unsupportedStep();
}

DeviceStep CDeviceBase::inspectionStep(const InspectionOrder &)
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

void CDeviceBase::setBeforeImages(std::shared_ptr<BeforeImages> images)
{
    m_beforeImages = std::move(images);
}

void CDeviceBase::setP2PPorts(std::shared_ptr<P2PPorts> ports)
{
    m_p2pPorts = std::move(ports);
}

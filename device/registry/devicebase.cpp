#include "device/registry/devicebase.h"

#include "device/registry/devicestore.h"

#include <utility>

CDeviceBase::CDeviceBase(std::shared_ptr<DeviceStore> store) : m_store(std::move(store)) {}

CDeviceBase::~CDeviceBase() = default;

void CDeviceBase::startSearch() {}

void CDeviceBase::setSearchByIPInfo(quint32, quint32) {}

QVariantList CDeviceBase::filterData(const QString &, const QString &)
{
    return {};
}

QVariantList CDeviceBase::filterDataIPV6(const QString &, const QString &)
{
    return {};
}

void CDeviceBase::modifyIP(const QString &, const QString &, const QString &, const QString &, bool) {}

void CDeviceBase::setDefaultAccount(const QString &, const QString &) {}

void CDeviceBase::setInitAccount(const QString &, const QString &, const QString &) {}

void CDeviceBase::setDeleteDevice(const QString &, const QString &) {}

void CDeviceBase::setBatchDeleteDevice(const QVariantMap &, const QString &) {}

QVariantMap CDeviceBase::getDeviceInfo(const QString &)
{
    return {};
}

QVariantMap CDeviceBase::getDeviceDetail(const QString &)
{
    return {};
}

QVariantMap CDeviceBase::getDeviceDetailByAddress(const QString &)
{
    return {};
}

int CDeviceBase::getLoginDevice(const QString &, const QString &, const QString &, const QString &, int,
                                const QString &)
{
    return 0;
}

void CDeviceBase::setUpgradeFilePath(const QString &, const QString &) {}

void CDeviceBase::startUpgrade(const QStringList &) {}

void CDeviceBase::startUpgradeByDocument(const QStringList &) {}

void CDeviceBase::stopUpgrade(const QString &) {}

QStringList CDeviceBase::upgradesToRetry()
{
    return {};
}

QVariantList CDeviceBase::importUpgradeDocument(const QString &)
{
    return {};
}

int CDeviceBase::findAndLoginDevice(const QString &, const QString &, const QString &)
{
    return 0;
}

bool CDeviceBase::updataDeviceInfo(const QString &, const QVariant &, const QString &, const QString &)
{
    return false;
}

void CDeviceBase::getCameraConfig() {}

void CDeviceBase::getEncodeCaps() {}

QVariant CDeviceBase::getConfigData(const QString &, const QVariant &)
{
    return {};
}

void CDeviceBase::setConfigData(const QString &, const QVariant &, const QString &) {}

QVariantList CDeviceBase::getDeviceChannelData(const QString &, int)
{
    return {};
}

void CDeviceBase::confirmConfigData() {}

void CDeviceBase::getVideoIn() {}

void CDeviceBase::getVideoInByChangeChannel() {}

void CDeviceBase::copyConfigToDevice(const QStringList &) {}

void CDeviceBase::getEncodeInfo() {}

void CDeviceBase::unusedOperation() {}

void CDeviceBase::systemConfig(const QString &, const QVariantMap &, const QStringList &) {}

QString CDeviceBase::upgradeDocumentResult()
{
    return {};
}

QVariantMap CDeviceBase::upgradeDocumentProgress()
{
    return {};
}

int CDeviceBase::upgradeDocumentSuccesses()
{
    return 0;
}

void CDeviceBase::refreshDevices(const QStringList &) {}

void CDeviceBase::stopSearch() {}

void CDeviceBase::factoryEnds() {}

void CDeviceBase::openSession(const QString &, const QString &, const QString &, bool, bool) {}

void CDeviceBase::stopOpeningSession() {}

void CDeviceBase::checkSession() {}

void CDeviceBase::snapPictureToFile(const QString &, const QVariant &, const QString &) {}

bool CDeviceBase::hasDeviceUpgrading()
{
    return false;
}

bool CDeviceBase::importDevice(const QString &, ImportSummary &)
{
    return false;
}

bool CDeviceBase::exportDevice(const QString &, const QStringList &, const QString &)
{
    return false;
}

void CDeviceBase::unusedListOperation() {}

QVariantList CDeviceBase::importFailures()
{
    return {};
}

int CDeviceBase::checkLogin(const QString &, const QString &, const QString &)
{
    return 0;
}

QVariantMap CDeviceBase::readDeviceDetail(const QString &)
{
    return {};
}

QVariantList CDeviceBase::exportFaults()
{
    return {};
}

bool CDeviceBase::isInSession(const QString &)
{
    return false;
}

QString CDeviceBase::importError()
{
    return {};
}

namespace {

DeviceStep unsupportedStep()
{
    return [](const StepControl &) {
        return StepOutcome{.result = resultCode(LoginResult::NotSupported), .text = {}};
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

QList<DeviceStep> CDeviceBase::snapshotSteps(const QString &)
{
    return {};
}

void CDeviceBase::setFollowingAccount(const QString &, const QString &) {}

QVariantMap CDeviceBase::accountOf(const QString &)
{
    return {};
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
    return [](const StepControl &) {
        return SceneOutcome();
    };
}

SceneStep CDeviceBase::detailStep(const QString &)
{
    return [](const StepControl &) {
        return SceneOutcome();
    };
}

void CDeviceBase::runForScene(const SceneStep &step, const std::stop_token &,
                              const std::function<void(const SceneOutcome &outcome)> &ended)
{
    ended(step(StepControl())); // a family that has no threads does not wait for devices either
}

ImportPlan CDeviceBase::importPlan(const QString &)
{
    return {};
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
    return [](const StepControl &) {
        return SceneOutcome();
    };
}

QList<UpgradeDocumentStep> CDeviceBase::upgradeDocumentSteps(const QString &, const QList<int> &)
{
    return {};
}

QList<PlannedUpgrade> CDeviceBase::plannedUpgrades(const QStringList &macs)
{
    return QList<PlannedUpgrade>(macs.size());
}

QList<int> CDeviceBase::setUpgradeFiles(const QStringList &macs, const QString &)
{
    return QList<int>(macs.size(), UpgradeTools::NotSupported);
}

QStringList CDeviceBase::takeChangedUpgrades()
{
    return {};
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

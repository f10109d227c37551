#include "device/dh/devicedh.h"

#include "device/dh/agentlistener.h"
#include "device/dh/configuration/configurationpages.h"
#include "device/dh/configuration/currentsession.h"
#include "device/dh/configuration/devicereservations.h"
#include "device/dh/configuration/encodecopies.h"
#include "device/dh/configuration/sessionlogins.h"
#include "device/dh/images/imageoperations.h"
#include "device/dh/inspection/inspectionoperations.h"
#include "device/dh/lists/devicelists.h"
#include "device/dh/logins/devicelogins.h"
#include "device/dh/logins/rowlogin.h"
#include "device/dh/rows/founddevices.h"
#include "device/dh/rows/rowoperations.h"
#include "device/dh/session/sessionthreads.h"
#include "device/dh/system/systemoperations.h"
#include "device/dh/upgrade/documentupgrades.h"
#include "device/dh/upgrade/rowupgrades.h"
#include "device/dh/upgrade/upgradeorders.h"
#include "device/dh/upgrade/upgraderound.h"
#include "device/registry/beforeimages.h"
#include "device/registry/mapkeys.h"
#include "device/store/devicerow.h"
#include "device/store/devicestore.h"
#include "device/store/logging.h"
#include "sdk/netlibrary.h"

#include <utility>

CDeviceDH::CDeviceDH(std::shared_ptr<DeviceStore> store, sdk::SdkLibraries libraries,
                     std::function<SearchSettings()> searchSettings, const UpgradeLimits &upgradeLimits,
                     std::shared_ptr<BatchEngine> engine)
    : m_libraries(std::move(libraries)),
      m_engine(engine ? std::move(engine) : std::make_shared<BatchEngine>(m_libraries.clock)),
      m_logins(std::make_unique<DeviceLogins>(store, m_libraries)),
      m_threads(std::make_shared<SessionThreads>(m_libraries.net, m_signals)),
      m_upgrades(std::make_unique<UpgradeRound>(store, m_libraries, upgradeLimits, m_engine, m_signals)),
      m_upgradeOrders(std::make_unique<UpgradeOrders>(store, *m_logins)),
      m_rowUpgrades(std::make_unique<RowUpgrades>(store, *m_upgrades, *m_upgradeOrders, m_signals)),
      m_documentUpgrades(std::make_unique<DocumentUpgrades>(store, *m_upgrades, *m_upgradeOrders)),
      m_rows(std::make_unique<RowOperations>(store, m_libraries, *m_logins, isUpgrading(), m_signals)),
      m_foundDevices(std::make_unique<FoundDevices>(store, m_libraries, *m_logins, isUpgrading())),
      m_lists(std::make_unique<DeviceLists>(store, m_libraries, *m_logins, m_signals)),
      m_system(std::make_unique<SystemOperations>(store, m_libraries, *m_logins, *m_threads, isUpgradingAt(),
                                                  m_signals)),
      m_reservations(std::make_unique<DeviceReservations>(store, m_engine, isUpgradingAt())),
      m_session(std::make_unique<CurrentSession>(m_libraries, *m_threads)),
      m_sessionLogins(std::make_unique<SessionLogins>(
          store, m_libraries, *m_logins, m_threads, takeOwnImage(), *m_reservations, *m_session, m_signals)),
      m_pages(std::make_unique<ConfigurationPages>(
          m_libraries, *m_reservations, *m_session, m_signals,
          [this, store](const QString &ipport, qint64 handle, int channel) {
              takeBeforeChange(*store, ipport, handle, channel);
          })),
      m_encodeCopies(std::make_unique<EncodeCopies>(store, m_libraries, *m_logins, isUpgradingAt(),
                                                    *m_session, m_signals)),
      m_images(std::make_unique<ImageOperations>(store, m_libraries, *m_logins, isUpgradingAt(), *m_session,
                                                 m_signals)),
      m_inspections(std::make_unique<InspectionOperations>(store, m_libraries, *m_logins, isUpgradingAt())),
      m_search(std::make_unique<SearchOperations>(store, m_libraries, std::move(searchSettings), *m_logins,
                                                  m_signals))
{
    if (m_libraries.net && !m_libraries.net->NetInit())
        qCWarning(logDevice) << "CDeviceDH: the network library cannot be initialised";
    m_agentListener = std::make_unique<AgentListener>(std::move(store), m_signals);
}

OwnImageTaker CDeviceDH::takeOwnImage() const
{
    return [libraries = m_libraries](const OwnImageOrder &order, const StepControl &control) {
        return ImageOperations::takeOwnImage(libraries, order, control);
    };
}

void CDeviceDH::takeBeforeChange(const DeviceStore &store, const QString &ipport, qint64 handle,
                                 int channel) const
{
    if (!beforeImages())
        return;
    const QString device = rowName(store.rowAt(ipport));
    const QString folder = beforeImages()->claim(device.isEmpty() ? ipport : device, channel);
    if (folder.isEmpty())
        return;
    const QString path =
        ImageOperations::takeQuickImage(m_libraries, handle, channel, folder, BeforeImages::maximumTries);
    if (!path.isEmpty())
        beforeImages()->add(device.isEmpty() ? ipport : device, channel, path);
}

UpgradeCheck CDeviceDH::isUpgrading() const
{
    return [&round = *m_upgrades](const QString &name) {
        return round.isUpgrading(name);
    };
}

UpgradeCheck CDeviceDH::isUpgradingAt() const
{
    return [&round = *m_upgrades](const QString &ipport) {
        return round.isUpgradingAt(ipport);
    };
}

CDeviceDH::~CDeviceDH()
{
    m_agentListener.reset();
    // Before the engine, whose end would mark waiting upgrades as stopped by the user.
    m_upgrades->requestEnd();
    m_engine->requestEnd();
    m_search->requestEnd();
    m_images->cancelSnapshots();
    m_upgrades->end();
    m_threads->clear();
    m_session->end();
    m_system->closeLogins();
    if (m_libraries.net)
        m_libraries.net->NetCleanup(); // aborts the timeouts of running searches
    m_engine->end();
    m_threads->waitForDone();
    m_upgrades->waitForDocuments();
    m_search.reset();
}

void CDeviceDH::setStoredAccounts(const AccountChoice::Stored &stored)
{
    m_logins->setStoredAccounts(stored);
}

void CDeviceDH::factoryEnds()
{
    m_upgrades->requestEnd();
    m_engine->requestEnd();
    m_images->cancelSnapshots();
    m_upgrades->end();
    m_upgrades->noteDocuments();
    m_upgrades->waitForDocuments();
}

void CDeviceDH::agentMessage(sdk::P2PAgentEvent event, const char *deviceId, std::int32_t localPort, void *)
{
    AgentListener::take(event, deviceId, localPort);
}

void CDeviceDH::startSearch()
{
    m_search->start();
}

void CDeviceDH::setSearchByIPInfo(quint32 beginip, quint32 endip)
{
    m_search->setRange(beginip, endip);
}

void CDeviceDH::stopSearch()
{
    m_search->stop();
}

void CDeviceDH::refreshDevices(const QStringList &macs)
{
    m_search->refresh(macs);
}

DeviceStep CDeviceDH::locationStep(const QStringList &macs)
{
    return m_search->locationStep(macs);
}

bool CDeviceDH::exportDevice(const QString &folder, const QStringList &macs, const QString &fileName)
{
    return m_lists->exportDevices(folder, macs, fileName);
}

QVariantList CDeviceDH::exportFaults()
{
    return m_lists->exportFaults();
}

bool CDeviceDH::exportProtected(const QString &folder, const QStringList &macs, const QString &fileName,
                                const ListProtection &protection)
{
    return m_lists->exportDevices(folder, macs, fileName, protection);
}

ImportPlan CDeviceDH::importPlan(const QString &path, const QString &passphrase)
{
    return m_lists->importPlan(path, passphrase, p2pPorts());
}

bool CDeviceDH::importDevice(const QString &path, ImportSummary &summary)
{
    m_importError = m_lists->importDevices(path, p2pPorts(), summary);
    return m_importError.isEmpty();
}

QVariantList CDeviceDH::importFailures()
{
    return m_lists->importFailures();
}

QString CDeviceDH::importError()
{
    return m_importError;
}

void CDeviceDH::systemConfig(const QString &command, const QVariantMap &data, const QStringList &ipports)
{
    m_system->run(command, data, ipports);
}

DeviceStep CDeviceDH::systemStep(const QString &command, const QVariantMap &data, const QString &ipport)
{
    return m_system->step(command, data, ipport);
}

void CDeviceDH::setUpgradeFilePath(const QString &mac, const QString &path)
{
    m_rowUpgrades->setFiles({mac}, path);
}

QList<int> CDeviceDH::setUpgradeFiles(const QStringList &macs, const QString &path)
{
    return m_rowUpgrades->setFiles(macs, path);
}

void CDeviceDH::startUpgrade(const QStringList &macs)
{
    m_rowUpgrades->start(macs);
}

DeviceStep CDeviceDH::upgradeStep(const QString &mac)
{
    return m_rowUpgrades->step(mac);
}

DeviceStep CDeviceDH::repeatedDocumentStep(const QString &mac)
{
    return m_rowUpgrades->repeatedDocumentStep(mac);
}

QList<PlannedUpgrade> CDeviceDH::plannedUpgrades(const QStringList &macs)
{
    return m_rowUpgrades->planned(macs);
}

QStringList CDeviceDH::upgradesToRetry()
{
    return m_rowUpgrades->toRetry();
}

QStringList CDeviceDH::takeChangedUpgrades()
{
    return m_upgrades->takeChanged();
}

void CDeviceDH::stopUpgrade(const QString &mac)
{
    m_upgrades->runner().stop(mac);
}

bool CDeviceDH::hasDeviceUpgrading()
{
    return m_upgrades->isOpen();
}

QVariantList CDeviceDH::importUpgradeDocument(const QString &file)
{
    return m_documentUpgrades->report(file, m_importError);
}

PageStep CDeviceDH::upgradeDocumentReading(const QString &path)
{
    return m_documentUpgrades->reading(path);
}

void CDeviceDH::startUpgradeByDocument(const QStringList &paths)
{
    m_documentUpgrades->start(paths);
}

QList<UpgradeDocumentStep> CDeviceDH::upgradeDocumentSteps(const QString &path, const QList<int> &lines)
{
    return m_documentUpgrades->steps(path, lines);
}

QString CDeviceDH::upgradeDocumentResult()
{
    return m_upgrades->documents().resultText().trimmed();
}

QVariantMap CDeviceDH::upgradeDocumentProgress()
{
    const UpgradeDocuments::Progress progress = m_upgrades->documents().progress();
    return {{ProgressKey::done, progress.done}, {ProgressKey::total, progress.total}};
}

int CDeviceDH::upgradeDocumentSuccesses()
{
    return m_upgrades->documents().succeeded();
}

int CDeviceDH::getLoginDevice(const QString &address, const QString &account, const QString &password,
                              const QString &port, int loginType, const QString &devicePort)
{
    return m_rows->add({.address = address,
                        .account = account,
                        .password = password,
                        .port = port.toInt(),
                        .reachedBy = static_cast<ReachedBy>(loginType),
                        .devicePort = devicePort});
}

DeviceStep CDeviceDH::addingStep(const DeviceToAdd &device)
{
    return m_rows->addingStep(device, p2pPorts());
}

void CDeviceDH::setDefaultAccount(const QString &account, const QString &password)
{
    m_logins->setDefaultAccount({.account = account, .password = password});
}

void CDeviceDH::setFollowingAccount(const QString &account, const QString &password)
{
    m_logins->setFollowingAccount({.account = account, .password = password});
}

QVariantMap CDeviceDH::accountOf(const QString &name)
{
    return m_rows->accountOf(name);
}

bool CDeviceDH::updataDeviceInfo(const QString &key, const QVariant &newValue, const QString &mac,
                                 const QString &ipport)
{
    return m_rows->update(key, newValue, mac, ipport);
}

QVariantMap CDeviceDH::getDeviceInfo(const QString &ipport)
{
    return m_rows->rowAt(ipport);
}

QJsonObject CDeviceDH::deviceRow(const QString &name)
{
    return m_rows->rowNamed(name);
}

QVariantMap CDeviceDH::getDeviceDetail(const QString &mac)
{
    return m_rows->detail(mac);
}

QVariantMap CDeviceDH::getDeviceDetailByAddress(const QString &ipport)
{
    return m_rows->detailAt(ipport);
}

QVariantList CDeviceDH::filterData(const QString &filtertype, const QString &searchtext)
{
    return m_rows->filtered(filtertype, searchtext);
}

QVariantList CDeviceDH::filterDataIPV6(const QString &filtertype, const QString &searchtext)
{
    return m_rows->filteredIPv6(filtertype, searchtext);
}

void CDeviceDH::setDeleteDevice(const QString &mac, const QString &ipvision)
{
    m_rows->remove({{mac, true}}, ipvision);
}

void CDeviceDH::setBatchDeleteDevice(const QVariantMap &macs, const QString &ipversion)
{
    m_rows->remove(macs, ipversion);
}

void CDeviceDH::setInitAccount(const QString &mac, const QString &account, const QString &password)
{
    m_foundDevices->initialise(mac, account, password);
}

DeviceStep CDeviceDH::initialisationStep(const QString &mac, const QString &account, const QString &password)
{
    return m_foundDevices->initialisationStep(mac, account, password);
}

void CDeviceDH::modifyIP(const QString &mac, const QString &newip, const QString &newsubmask,
                         const QString &newgateway, bool dhcpON)
{
    m_foundDevices->changeAddress(mac, newip, newsubmask, newgateway, dhcpON);
}

DeviceStep CDeviceDH::addressStep(const QString &mac, const QString &newip, const QString &newsubmask,
                                  const QString &newgateway, bool dhcpON)
{
    return m_foundDevices->addressStep(mac, newip, newsubmask, newgateway, dhcpON);
}

int CDeviceDH::findAndLoginDevice(const QString &ipport, const QString &account, const QString &password)
{
    return m_sessionLogins->findAndLogin(ipport, account, password);
}

PageStep CDeviceDH::loginStep(const QString &ipport, const QString &account, const QString &password)
{
    return m_sessionLogins->loginStep(ipport, account, password);
}

int CDeviceDH::checkLogin(const QString &ipport, const QString &account, const QString &password)
{
    return m_sessionLogins->check(ipport, account, password);
}

QVariantMap CDeviceDH::readDeviceDetail(const QString &ipport)
{
    return m_sessionLogins->readDetail(ipport);
}

PageStep CDeviceDH::detailStep(const QString &ipport)
{
    return m_sessionLogins->detailStep(ipport);
}

OwnSessionStep CDeviceDH::ownSessionStep(const OwnSessionOrder &order)
{
    return m_sessionLogins->ownSessionStep(order);
}

void CDeviceDH::openSession(const QString &ipport, const QString &account, const QString &password,
                            bool readsChannels, bool isGivenNow)
{
    m_sessionLogins->openSession(ipport, account, password, readsChannels, isGivenNow);
}

void CDeviceDH::stopOpeningSession()
{
    m_sessionLogins->stopOpeningSession();
}

void CDeviceDH::checkSession()
{
    m_sessionLogins->checkSession();
}

bool CDeviceDH::isInSession(const QString &ipport)
{
    return m_session->isWith(ipport);
}

void CDeviceDH::runForPage(const PageStep &step, const std::stop_token &stop,
                           const std::function<void(const PageOutcome &outcome)> &ended)
{
    m_threads->runForPage(step, stop, ended);
}

void CDeviceDH::getEncodeCaps()
{
    m_pages->perform([](SessionOperations &operations) { operations.getEncodeCaps(); });
}

void CDeviceDH::getEncodeInfo()
{
    m_pages->perform([](SessionOperations &operations) { operations.getEncodeInfo(); });
}

QVariant CDeviceDH::getConfigData(const QString &key, const QVariant &channel)
{
    return m_pages->value(key, channel);
}

void CDeviceDH::setConfigData(const QString &key, const QVariant &value, const QString &otype)
{
    m_pages->perform([&](SessionOperations &operations) { operations.setConfigData(key, value, otype); });
}

QVariantList CDeviceDH::getDeviceChannelData(const QString &key, int channelNum)
{
    QVariantList data;
    m_pages->perform(
        [&](SessionOperations &operations) { data = operations.getDeviceChannelData(key, channelNum); });
    return data;
}

void CDeviceDH::confirmConfigData()
{
    m_pages->perform([](SessionOperations &operations) { operations.confirmConfigData(); });
}

void CDeviceDH::getCameraConfig()
{
    m_pages->perform([](SessionOperations &operations) { operations.getCameraConfig(); });
}

void CDeviceDH::getVideoIn()
{
    m_pages->perform([](SessionOperations &operations) { operations.getVideoIn(); });
}

void CDeviceDH::getVideoInByChangeChannel()
{
    m_pages->perform([](SessionOperations &operations) { operations.getVideoInByChangeChannel(); });
}

PageStep CDeviceDH::sessionStep(const SessionJob &job)
{
    return m_pages->step(job);
}

void CDeviceDH::copyConfigToDevice(const QStringList &devlist)
{
    m_encodeCopies->copyTo(devlist);
}

DeviceStepMaker CDeviceDH::encodeCopy()
{
    return m_encodeCopies->steps();
}

void CDeviceDH::snapPictureToFile(const QString &kind, const QVariant &channelNum, const QString &address)
{
    m_images->takeSnapshots(kind, channelNum.toInt(), address);
}

QList<DeviceStep> CDeviceDH::snapshotSteps(const QString &address)
{
    return m_images->snapshotSteps(address);
}

DeviceStep CDeviceDH::inspectionStep(const InspectionOrder &order)
{
    return m_inspections->step(order);
}

DeviceStep CDeviceDH::imageStep(const ImageOrder &order)
{
    return m_images->imageStep(order);
}

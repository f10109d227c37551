#pragma once

#include "device/accounts/accountchoice.h"
#include "device/batch/batchengine.h"
#include "device/dh/search/searchoperations.h"
#include "device/dh/upgrade/upgradework.h"
#include "device/registry/backendsignals.h"
#include "device/registry/devicebase.h"
#include "device/registry/upgradecheck.h"
#include "sdk/p2pagentlibrary.h"
#include "sdk/sdklibraries.h"

#include <functional>
#include <memory>

class AgentListener;
class ConfigurationPages;
class CurrentSession;
class DeviceLists;
class DeviceLogins;
class DocumentUpgrades;
class EncodeCopies;
class FoundDevices;
class DeviceReservations;
class ImageOperations;
class InspectionOperations;
class RowOperations;
class RowUpgrades;
class SessionLogins;
class SessionThreads;
class SystemOperations;
class UpgradeOrders;
class UpgradeRound;

/// The back end "dh", which implements all operations of CDeviceBase with the network library. Each group of
/// operations is a component; this class creates the components, forwards the operations to them and destroys
/// them. Each group below begins with the name of its component. Parameters, results and threads are as
/// documented in CDeviceBase, unless a declaration says otherwise. Created on the main thread by
/// CDeviceFactory.
class CDeviceDH : public CDeviceBase
{
    Q_OBJECT
public:
    /// Initialises the network library; a failure is logged only. `searchSettings` is called on the main
    /// thread at each start of a search. `engine` runs the batch steps of this back end; null: a new engine.
    /// The destructor of this back end ends the engine.
    CDeviceDH(std::shared_ptr<DeviceStore> store, sdk::SdkLibraries libraries,
              std::function<SearchSettings()> searchSettings,
              const UpgradeLimits &upgradeLimits = UpgradeLimits(),
              std::shared_ptr<BatchEngine> engine = nullptr);

    /// Ends searches, batch steps, upgrades and the session, releases the network library, which aborts
    /// running requests, and waits for all threads. Main thread.
    ~CDeviceDH() override;

    /// Sets the function that returns the stored account of a device. The function is called on any thread.
    /// Must be called before any operation.
    void setStoredAccounts(const AccountChoice::Stored &stored);

    /// Callback of the port agent on its threads; forwards to AgentListener::take(). `user` is not used.
    static void agentMessage(sdk::P2PAgentEvent event, const char *deviceId, std::int32_t localPort,
                             void *user);

    // SearchOperations: searches for devices, and queries of listed devices.
    void startSearch() override;
    void setSearchByIPInfo(quint32 beginip, quint32 endip) override;
    void refreshDevices(const QStringList &macs) override;
    void stopSearch() override;
    DeviceStep locationStep(const QStringList &macs) override;

    // RowOperations: adds, reads, changes and removes rows; accounts.
    int getLoginDevice(const QString &address, const QString &account, const QString &password,
                       const QString &port, int loginType, const QString &devicePort) override;
    DeviceStep addingStep(const DeviceToAdd &device) override;
    void setDefaultAccount(const QString &account, const QString &password) override;
    void setFollowingAccount(const QString &account, const QString &password) override;
    QVariantMap accountOf(const QString &name) override;
    bool updataDeviceInfo(const QString &key, const QVariant &newValue, const QString &mac,
                          const QString &ipport) override;
    QVariantList filterData(const QString &filtertype, const QString &searchtext) override;
    QVariantList filterDataIPV6(const QString &filtertype, const QString &searchtext) override;
    QJsonObject deviceRow(const QString &name) override;
    QVariantMap getDeviceInfo(const QString &ipport) override;
    QVariantMap getDeviceDetail(const QString &mac) override;
    QVariantMap getDeviceDetailByAddress(const QString &ipport) override;
    void setDeleteDevice(const QString &mac, const QString &ipvision) override;
    void setBatchDeleteDevice(const QVariantMap &macs, const QString &ipversion) override;

    // SessionLogins: logins for the current session, for separate sessions and for checks; work of pages.
    int findAndLoginDevice(const QString &ipport, const QString &account, const QString &password) override;
    QVariantMap readDeviceDetail(const QString &ipport) override;
    int checkLogin(const QString &ipport, const QString &account, const QString &password) override;
    void openSession(const QString &ipport, const QString &account, const QString &password,
                     bool readsChannels, bool isGivenNow) override;
    void stopOpeningSession() override;
    void checkSession() override;
    bool isInSession(const QString &ipport) override;
    PageStep loginStep(const QString &ipport, const QString &account, const QString &password) override;
    PageStep detailStep(const QString &ipport) override;
    OwnSessionStep ownSessionStep(const OwnSessionOrder &order) override;
    void runForPage(const PageStep &step, const std::stop_token &stop,
                    const std::function<void(const PageOutcome &outcome)> &ended) override;

    // FoundDevices: initialisation and address changes, with the search records of the devices.
    void setInitAccount(const QString &mac, const QString &account, const QString &password) override;
    void modifyIP(const QString &mac, const QString &newip, const QString &newsubmask,
                  const QString &newgateway, bool dhcpON) override;
    DeviceStep initialisationStep(const QString &mac, const QString &account,
                                  const QString &password) override;
    DeviceStep addressStep(const QString &mac, const QString &newip, const QString &newsubmask,
                           const QString &newgateway, bool dhcpON) override;

    // DeviceLists: device lists as files.
    bool exportDevice(const QString &folder, const QStringList &macs, const QString &fileName) override;
    bool importDevice(const QString &path, ImportSummary &summary) override;
    QVariantList exportFaults() override;
    QVariantList importFailures() override;
    QString importError() override;
    ImportPlan importPlan(const QString &path, const QString &passphrase) override;
    bool exportProtected(const QString &folder, const QStringList &macs, const QString &fileName,
                         const ListProtection &protection) override;

    // SystemOperations: maintenance commands of the system page.
    void systemConfig(const QString &command, const QVariantMap &data, const QStringList &ipports) override;
    DeviceStep systemStep(const QString &command, const QVariantMap &data, const QString &ipport) override;

    // ConfigurationPages: the encode page and the image page, in the current session.
    void getEncodeCaps() override;
    void getEncodeInfo() override;
    /// Additional keys are those of SessionKey, such as "loginHandle" (handle of the current session, 0
    /// without one), which may be read on any thread.
    QVariant getConfigData(const QString &key, const QVariant &channel) override;
    /// `otype` is the sub-key of a value of the image page. For "channelName" it is the channel (from 0), and
    /// the name is written to the device immediately; getConfigData("channelNameResult", channel) returns the
    /// result. The key "channelNamesSaved" ends a series of names: signalCDeviceSetChannelNameFinished is
    /// emitted once, and getConfigData("channelNamesResult") returns the combined result.
    void setConfigData(const QString &key, const QVariant &value, const QString &otype) override;
    /// `key` "channelNames" returns the names in channel order, null for a name that the device does not
    /// report; "channelsConnected" returns a bool for each channel, see SessionKey::channelsConnected. Covers
    /// the first `channelNum` channels of the current session, all of them for 0 or less. Empty for other
    /// keys and without a session. Blocks for one request for each name, or for one request for
    /// "channelsConnected".
    QVariantList getDeviceChannelData(const QString &key, int channelNum) override;
    void confirmConfigData() override;
    PageStep sessionStep(const SessionJob &job) override;
    /// Reads capabilities and configurations; getVideoIn() reads the values.
    void getCameraConfig() override;
    void getVideoIn() override;
    void getVideoInByChangeChannel() override;

    // EncodeCopies: copies encode settings to other devices.
    void copyConfigToDevice(const QStringList &devlist) override;
    DeviceStepMaker encodeCopy() override;

    // ImageOperations: snapshots of the current session, images of many devices.
    void snapPictureToFile(const QString &kind, const QVariant &channelNum, const QString &address) override;
    QList<DeviceStep> snapshotSteps(const QString &address) override;
    DeviceStep imageStep(const ImageOrder &order) override;

    // InspectionOperations
    DeviceStep inspectionStep(const InspectionOrder &order) override;

    /// Cancels running snapshots and upgrades and requests the end of all batch steps. Waits half a second
    /// at most for the upgrades, and until the result files of upgrade documents are written.
    void factoryEnds() override;

    // RowUpgrades, DocumentUpgrades and UpgradeRound: firmware upgrades of rows and of upgrade documents.
    void setUpgradeFilePath(const QString &mac, const QString &path) override;
    void startUpgrade(const QStringList &macs) override;
    DeviceStep upgradeStep(const QString &mac) override;
    DeviceStep repeatedDocumentStep(const QString &mac) override;
    PageStep upgradeDocumentReading(const QString &path) override;
    QList<UpgradeDocumentStep> upgradeDocumentSteps(const QString &path, const QList<int> &lines) override;
    QList<PlannedUpgrade> plannedUpgrades(const QStringList &macs) override;
    QList<int> setUpgradeFiles(const QStringList &macs, const QString &path) override;
    QStringList takeChangedUpgrades() override;
    void stopUpgrade(const QString &mac) override;
    QStringList upgradesToRetry() override;
    bool hasDeviceUpgrading() override;
    void startUpgradeByDocument(const QStringList &paths) override;
    QVariantList importUpgradeDocument(const QString &file) override;
    QString upgradeDocumentResult() override;
    QVariantMap upgradeDocumentProgress() override;
    int upgradeDocumentSuccesses() override;

private:
    /// A function that takes one snapshot with a given login. It does not use this object.
    [[nodiscard]] OwnImageTaker takeOwnImage() const;
    /// Stores the image of a channel of the device at `ipport` in beforeImages(), with the login `handle`.
    void takeBeforeChange(const DeviceStore &store, const QString &ipport, qint64 handle, int channel) const;
    // The functions use m_upgrades; any thread.

    /// Upgrade check by row name.
    [[nodiscard]] UpgradeCheck isUpgrading() const;
    /// Upgrade check by address and port.
    [[nodiscard]] UpgradeCheck isUpgradingAt() const;

    const sdk::SdkLibraries m_libraries;
    const std::shared_ptr<BatchEngine> m_engine;
    // Each component uses only those declared before it.
    BackEndSignals m_signals{*this};
    const std::unique_ptr<DeviceLogins> m_logins;
    const std::shared_ptr<SessionThreads> m_threads; ///< never null; sessions hold weak references
    const std::unique_ptr<UpgradeRound> m_upgrades;
    const std::unique_ptr<UpgradeOrders> m_upgradeOrders;
    const std::unique_ptr<RowUpgrades> m_rowUpgrades;
    const std::unique_ptr<DocumentUpgrades> m_documentUpgrades;
    const std::unique_ptr<RowOperations> m_rows;
    const std::unique_ptr<FoundDevices> m_foundDevices;
    const std::unique_ptr<DeviceLists> m_lists;
    const std::unique_ptr<SystemOperations> m_system;
    const std::unique_ptr<DeviceReservations> m_reservations;
    const std::unique_ptr<CurrentSession> m_session;
    const std::unique_ptr<SessionLogins> m_sessionLogins;
    const std::unique_ptr<ConfigurationPages> m_pages;
    const std::unique_ptr<EncodeCopies> m_encodeCopies;
    const std::unique_ptr<ImageOperations> m_images;
    const std::unique_ptr<InspectionOperations> m_inspections;
    std::unique_ptr<SearchOperations> m_search;     ///< destroyed after the network library is released
    std::unique_ptr<AgentListener> m_agentListener; ///< destroyed first: no further events
    QString m_importError;                          ///< of the last device list or upgrade document
};

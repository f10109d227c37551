#pragma once

#include "device/accounts/accountchoice.h"
#include "device/batch/batchengine.h"
#include "device/dh/configuration/sessionrun.h"
#include "device/dh/configuration/sessionstate.h"
#include "device/dh/encode/valuetables.h"
#include "device/dh/search/searchoperations.h"
#include "device/dh/upgrade/upgradework.h"
#include "device/registry/backendsignals.h"
#include "device/registry/devicebase.h"
#include "device/registry/upgradecheck.h"
#include "sdk/p2pagentlibrary.h"
#include "sdk/sdklibraries.h"

#include <QThreadPool>

#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <vector>

class DeviceLists;
class DeviceLogins;
class DocumentUpgrades;
class FoundDevices;
class SessionThreads;
class SystemOperations;
class SnapThread;
struct SnapTask;
class RowOperations;
class RowUpgrades;
class UpgradeOrders;
class UpgradeRound;
struct SecureLogin;
struct SessionOffer;
struct SessionOrder;
struct EncodeCopyOutcome;
struct EncodeState;

/// The family "dh": the one complete back end. Each group of its operations stands in a file of its own.
class CDeviceDH : public CDeviceBase
{
    Q_OBJECT
public:
    /// `searchSettings` is called on the scene's thread at each start of a search. `engine` runs the steps of
    /// this back end and ends with it; null for one of its own.
    CDeviceDH(std::shared_ptr<DeviceStore> store, sdk::SdkLibraries libraries,
              std::function<SearchSettings()> searchSettings,
              const UpgradeLimits &upgradeLimits = UpgradeLimits(),
              std::shared_ptr<BatchEngine> engine = nullptr);

    /// Ends running searches and the session, and releases the network library.
    ~CDeviceDH() override;

    /// The accounts that the user keeps for devices; asked on any thread. To be called before anything else.
    void setStoredAccounts(const AccountChoice::Stored &stored);

    /// Takes the port agent's events, on a thread of the agent: logs them. Of a tunnel that broke the user
    /// learns: the device's row gets the result of a network failure, and signalCDeviceTunnelBroken is
    /// emitted, both on the thread of the back end that was made last. So does he of the loss of the service,
    /// which has no device.
    static void agentMessage(sdk::P2PAgentEvent event, const char *deviceId, std::int32_t localPort,
                             void *user);

    // Search: devicedhsearch.cpp
    void startSearch() override;
    void setSearchByIPInfo(quint32 beginip, quint32 endip) override;
    QVariantList filterData(const QString &filtertype, const QString &searchtext) override;
    QVariantList filterDataIPV6(const QString &filtertype, const QString &searchtext) override;
    void refreshDevices(const QStringList &macs) override;
    void stopSearch() override;

    // Rows and their logins: devicedhrows.cpp
    int getLoginDevice(const QString &address, const QString &account, const QString &password,
                       const QString &port, int loginType, const QString &devicePort) override;
    DeviceStep addingStep(const DeviceToAdd &device) override;
    void setDefaultAccount(const QString &account, const QString &password) override;
    void setFollowingAccount(const QString &account, const QString &password) override;
    QVariantMap accountOf(const QString &name) override;
    bool updataDeviceInfo(const QString &key, const QVariant &newValue, const QString &mac,
                          const QString &ipport) override;
    QVariantMap getDeviceInfo(const QString &ipport) override;
    QVariantMap getDeviceDetail(const QString &mac) override;
    QVariantMap getDeviceDetailByAddress(const QString &ipport) override;
    /// `mac` is an address and port when `ipvision` is "IPV6", whose rows have no MAC. A row whose device is
    /// being upgraded stays.
    void setDeleteDevice(const QString &mac, const QString &ipvision) override;
    /// The keys of `macs` name the rows, as `mac` does in setDeleteDevice().
    void setBatchDeleteDevice(const QVariantMap &macs, const QString &ipversion) override;

    // The current session: devicedhsession.cpp
    int findAndLoginDevice(const QString &ipport, const QString &account, const QString &password) override;
    QVariantMap readDeviceDetail(const QString &ipport) override;
    int checkLogin(const QString &ipport, const QString &account, const QString &password) override;
    void openSession(const QString &ipport, const QString &account, const QString &password,
                     bool readsChannels, bool isGivenNow) override;
    void stopOpeningSession() override;
    void checkSession() override;
    bool isInSession(const QString &ipport) override;
    SceneStep loginStep(const QString &ipport, const QString &account, const QString &password) override;
    SceneStep detailStep(const QString &ipport) override;
    OwnSessionStep ownSessionStep(const OwnSessionOrder &order) override;
    void runForScene(const SceneStep &step, const std::stop_token &stop,
                     const std::function<void(const SceneOutcome &outcome)> &ended) override;

    // Requests to devices that a search has found: devicedhrequests.cpp
    void setInitAccount(const QString &mac, const QString &account, const QString &password) override;
    /// A device that is being upgraded is not asked; "res" says so.
    void modifyIP(const QString &mac, const QString &newip, const QString &newsubmask,
                  const QString &newgateway, bool dhcpON) override;
    DeviceStep initialisationStep(const QString &mac, const QString &account,
                                  const QString &password) override;
    DeviceStep addressStep(const QString &mac, const QString &newip, const QString &newsubmask,
                           const QString &newgateway, bool dhcpON) override;

    // Device lists: devicedhlists.cpp
    bool exportDevice(const QString &folder, const QStringList &macs, const QString &fileName) override;
    bool importDevice(const QString &path, ImportSummary &summary) override;
    QVariantList exportFaults() override;
    QVariantList importFailures() override;
    QString importError() override;
    ImportPlan importPlan(const QString &path) override;

    // System configuration: devicedhsystem.cpp
    void systemConfig(const QString &command, const QVariantMap &data, const QStringList &ipports) override;
    DeviceStep systemStep(const QString &command, const QVariantMap &data, const QString &ipport) override;

    // The configuration pages, of the current session's device: devicedhconfig.cpp, devicedhencode.cpp
    void getEncodeCaps() override;
    void getEncodeInfo() override;
    /// The key "loginHandle", the current session's handle or 0, may be read on any thread.
    QVariant getConfigData(const QString &key, const QVariant &channel) override;
    /// `otype` is the sub-key of a value of the camera image page; of "channelName" it is the channel from 0.
    /// A name goes to the device at once; what came of it getConfigData("channelNameResult", channel) tells.
    /// The key "channelNamesSaved" ends a saving of one name or many: signalCDeviceSetChannelNameFinished
    /// says so once, and getConfigData("channelNamesResult") tells how it went as a whole.
    void setConfigData(const QString &key, const QVariant &value, const QString &otype) override;
    /// `key` is "channelNames", the names in their order, null for one that the device does not tell, or
    /// "channelsConnected", a bool for each. Of the first `channelNum` channels of the current session's
    /// device, of all of them for 0 or less. Blocks for a request per name, while the device is there.
    QVariantList getDeviceChannelData(const QString &key, int channelNum) override;
    void confirmConfigData() override;
    SceneStep sessionStep(const SessionJob &job) override;
    /// The settings of the current channel go to the channel of the same number of each device. What a device
    /// cannot do is skipped, and named in its row's "result".
    void copyConfigToDevice(const QStringList &devlist) override;
    DeviceStepMaker encodeCopy() override;
    QJsonObject deviceRow(const QString &name) override;
    QList<DeviceStep> snapshotSteps(const QString &address) override;
    DeviceStep pictureStep(const PictureOrder &order) override;
    DeviceStep locationStep(const QStringList &macs) override;
    /// What the camera can do and its configurations; the values come with getVideoIn().
    void getCameraConfig() override;
    void getVideoIn() override;
    void getVideoInByChangeChannel() override;

    // Live view and snapshots: devicedhlive.cpp
    /// Returns at once; the pictures are taken one after another on a thread of their own. `address` names
    /// the device's folder.
    void snapPictureToFile(const QString &kind, const QVariant &channelNum, const QString &address) override;
    /// Gives up the snapshots that are being taken, and the upgrades.
    void factoryEnds() override;

    // Firmware upgrades: devicedhupgrade.cpp

    // Rows are named by MAC, or by address and port where they have none, as those of IPv6 devices.

    /// `path` may be a "file:///" address. A device that is being upgraded keeps its file. The row's
    /// "upgraderes" and "result" tell what is wrong with the file, which is looked at again at the start.
    void setUpgradeFilePath(const QString &mac, const QString &path) override;
    /// Returns at once; the rows tell how far each device is and what has come of it: "upgrade" in percent,
    /// "upgraderes" an UpgradeTools::Result, "upgradetext" in words, and "vision" at the end.
    void startUpgrade(const QStringList &macs) override;
    DeviceStep upgradeStep(const QString &mac) override;
    DeviceStep repeatedDocumentStep(const QString &mac) override;
    SceneStep upgradeDocumentReading(const QString &path) override;
    QList<UpgradeDocumentStep> upgradeDocumentSteps(const QString &path, const QList<int> &lines) override;
    QList<PlannedUpgrade> plannedUpgrades(const QStringList &macs) override;
    QList<int> setUpgradeFiles(const QStringList &macs, const QString &path) override;
    QStringList takeChangedUpgrades() override;
    void stopUpgrade(const QString &mac) override;
    QStringList upgradesToRetry() override;
    bool hasDeviceUpgrading() override;
    /// The signals name each document by its entry of `paths`. Its results are in it when 100 % is told.
    void startUpgradeByDocument(const QStringList &paths) override;
    QVariantList importUpgradeDocument(const QString &file) override;
    QString upgradeDocumentResult() override;
    QVariantMap upgradeDocumentProgress() override;
    int upgradeDocumentSuccesses() override;

private:
    /// The one login that configuration, live view and snapshots use.
    struct Session
    {
        std::int32_t loginKind = 0;
        std::int64_t handle = 0; ///< 0 while there is none
        QString ipport;
        QString account;
        QString password;
    };

    /// An openSession() that is under way.
    struct SessionRequest
    {
        int number = 0;
        std::int64_t sessionBefore = 0; ///< handle of the session that there was
    };

    void beginSession(const QString &ipport, const QString &account, const QString &password,
                      const SecureLogin &login);
    void endSession();
    void takeOffer(const SessionRequest &request, const SessionOrder &order, const SessionOffer &offer);
    /// By the name of a row.
    [[nodiscard]] UpgradeCheck isUpgrading() const;
    /// By address and port.
    [[nodiscard]] UpgradeCheck isUpgradingAt() const;
    static void tellAgentListener(const QString &deviceId, int localPort);
    void noteBrokenTunnel(const QString &deviceId, int localPort);
    /// Takes the pictures of an order in a login.
    [[nodiscard]] OwnPicture takeOwnPicture(std::int64_t handle, int channelCount, int channel,
                                            const QString &folder, const StepControl &control) const;
    [[nodiscard]] StepOutcome takePictures(const PictureOrder &order, const SecureLogin &login,
                                           const StepControl &control) const;
    /// Of one channel, or of all for -1.
    [[nodiscard]] SnapTask snapTask(const QString &kind, int onlyChannel, const QString &address) const;
    /// Any thread.
    void noteSnapshot(const QString &kind, int channel, const QString &path, const QString &message);
    /// Does operations of the configuration pages on this thread.
    void perform(const std::function<void(SessionRun &run)> &operations);
    void tell(const std::vector<SessionRun::News> &news);
    [[nodiscard]] std::function<bool()> upgradeCheck(const QString &ipport) const;

    [[nodiscard]] EncodeCopyOutcome copyTo(const QString &ipport, const DeviceAccount &credentials,
                                           const EncodeState &state, const ChannelChoice &channels,
                                           const StepControl &control);
    /// What the network library can do at all: getConfigData("library").
    [[nodiscard]] QVariantMap libraryValues() const;

    /// Keeps the steps of batches away from a device that a page works with. On any thread but the scene's:
    /// it waits for the step that runs.
    [[nodiscard]] BatchEngine::Hold holdDevice(const QString &ipport, const StepControl &control) const;

    const ValueTables m_tables;
    const sdk::SdkLibraries m_libraries;
    const std::shared_ptr<BatchEngine> m_engine;
    BackEndSignals m_signals{*this};
    const std::unique_ptr<DeviceLogins> m_logins;
    const std::shared_ptr<SessionThreads> m_threads; ///< ends with this object
    const std::unique_ptr<UpgradeRound> m_upgrades;
    const std::unique_ptr<UpgradeOrders> m_upgradeOrders;
    const std::unique_ptr<RowUpgrades> m_rowUpgrades;
    const std::unique_ptr<DocumentUpgrades> m_documentUpgrades;
    const std::unique_ptr<RowOperations> m_rows;
    const std::unique_ptr<FoundDevices> m_foundDevices;
    const std::unique_ptr<DeviceLists> m_lists;
    const std::unique_ptr<SystemOperations> m_system;
    std::unique_ptr<SearchOperations> m_search;
    Session m_session;
    std::atomic<int> m_sessionRequest = 0;       ///< the number of the last openSession() that counts
    std::atomic<int> m_deviceGeneration = 0;     ///< rises when another device is logged in to
    std::atomic<std::int64_t> m_loginHandle = 0; ///< of the session, for other threads
    std::shared_ptr<SessionState> m_state;       ///< never null; on the scene's thread
    std::unique_ptr<SnapThread> m_snapshots;     ///< null until the first snapshot
    QString m_importError;
};

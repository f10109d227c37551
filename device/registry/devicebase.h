#pragma once

#include "device/registry/deviceimport.h"
#include "device/registry/devicepictures.h"
#include "device/registry/ownsession.h"
#include "device/registry/scenestep.h"
#include "device/registry/upgradeplan.h"

#include <QObject>
#include <QStringList>
#include <QVariant>

#include <memory>

class DeviceStore;
class P2PPorts;

/// Outcome of reading a device list file.
struct ImportSummary
{
    int total = 0;    ///< devices read
    int errcount = 0; ///< devices of them that failed
};

/// The back end of one family of devices, speaking to them through its own library. The factory picks one by
/// family name, forwards each operation of the scene to it and relays its signals.
///
/// Operations are called on the scene's thread, unless they say otherwise; signals may come from any. An
/// operation that a family does not override does nothing and returns an empty value. The row lists are
/// shared by all back ends.
class CDeviceBase : public QObject
{
    Q_OBJECT
public:
    explicit CDeviceBase(std::shared_ptr<DeviceStore> store);
    ~CDeviceBase() override;

    // Back ends may be built apart from this class: the order of the virtual operations is kept, new ones go
    // to the end.

    virtual void startSearch();
    virtual void setSearchByIPInfo(quint32 beginip, quint32 endip);
    virtual QVariantList filterData(const QString &filtertype, const QString &searchtext);
    virtual QVariantList filterDataIPV6(const QString &filtertype, const QString &searchtext);
    virtual void modifyIP(const QString &mac, const QString &newip, const QString &newsubmask,
                          const QString &newgateway, bool dhcpON);
    virtual void setDefaultAccount(const QString &account, const QString &password);
    virtual void setInitAccount(const QString &mac, const QString &account, const QString &password);
    virtual void setDeleteDevice(const QString &mac, const QString &ipvision);
    virtual void setBatchDeleteDevice(const QVariantMap &macs, const QString &ipversion);
    virtual QVariantMap getDeviceInfo(const QString &ipport);
    virtual QVariantMap getDeviceDetail(const QString &mac);
    /// Detail of the device at one address.
    virtual QVariantMap getDeviceDetailByAddress(const QString &ipport);
    virtual int getLoginDevice(const QString &address, const QString &account, const QString &password,
                               const QString &port, int loginType, const QString &devicePort);
    virtual void setUpgradeFilePath(const QString &mac, const QString &path);
    virtual void startUpgrade(const QStringList &macs);
    virtual void startUpgradeByDocument(const QStringList &paths);
    virtual void stopUpgrade(const QString &mac);
    /// A map for each line: "line" (its number in the file), "address", "mac" (the name of its row, if it has
    /// one), "file", "code" (an UpgradeTools::Result, None when it can be upgraded) and "reason". Why a
    /// document was refused as a whole is told by importError().
    virtual QVariantList importUpgradeDocument(const QString &file);
    virtual int findAndLoginDevice(const QString &ipport, const QString &account, const QString &password);
    /// signalCDeviceAddSingleDeviceToTable follows when the name has changed, which several pages show.
    virtual bool updataDeviceInfo(const QString &key, const QVariant &newValue, const QString &mac,
                                  const QString &ipport);
    virtual void getCameraConfig();
    virtual void getEncodeCaps();
    virtual QVariant getConfigData(const QString &key, const QVariant &channel);
    virtual void setConfigData(const QString &key, const QVariant &value, const QString &otype);
    virtual QVariantList getDeviceChannelData(const QString &key, int channelNum);
    virtual void confirmConfigData();
    virtual void getVideoIn();
    virtual void getVideoInByChangeChannel();
    virtual void copyConfigToDevice(const QStringList &devlist);
    virtual void getEncodeInfo();
    /// Kept for its place in the order; does nothing in every family.
    virtual void unusedOperation();
    virtual void systemConfig(const QString &command, const QVariantMap &data, const QStringList &ipports);
    virtual void snapPictureToFile(const QString &kind, const QVariant &channelNum, const QString &address);
    virtual bool hasDeviceUpgrading();

    // Device lists work on the rows alone.

    virtual bool importDevice(const QString &path, ImportSummary &summary);
    virtual bool exportDevice(const QString &folder, const QStringList &macs, const QString &fileName);
    /// Kept for its place in the order; nothing calls it.
    virtual void unusedListOperation();

    /// The lines of the last imported list that brought no device, in their order: maps of "line" (its number
    /// in the file), "address", "code" (a LoginResult) and "reason" (in the user's language).
    virtual QVariantList importFailures();
    /// Why the last list was refused as a whole, in the user's language; empty when it was not.
    virtual QString importError();

    /// Asks the device whether it lets this account in, and logs out again at once: the current session of
    /// findAndLoginDevice() stays as it is. Returns a LoginResult. May be called
    /// on any thread, which it blocks.
    virtual int checkLogin(const QString &ipport, const QString &account, const QString &password);

    /// Logs in to the device as checkLogin() does and asks it for everything that it tells of itself. Holds
    /// "loginResult" (a LoginResult as int), and what the device told.
    virtual QVariantMap readDeviceDetail(const QString &ipport);

    /// Called by the factory at its end: ends the threads that may ask it, while it can still be asked.
    virtual void factoryEnds();

    /// What has come of the documents of the last startUpgradeByDocument(), a line for each, in the user's
    /// language; empty while they are worked on.
    virtual QString upgradeDocumentResult();

    /// Lines of the documents of the last startUpgradeByDocument(): "total" of them, "done" with.
    virtual QVariantMap upgradeDocumentProgress();

    /// Keeps the current session if it is with the device and the device responds in it, otherwise logs in,
    /// which is reported as by findAndLoginDevice(). Returns at once; signalCDeviceSessionOpened reports the
    /// end, unless another device is logged in to or requested during that. With `readsChannels`, the
    /// channels of a kept session are requested as well.
    virtual void openSession(const QString &ipport, const QString &account, const QString &password,
                             bool readsChannels, bool isGivenNow);
    /// Gives up what openSession() began: nothing comes of it any more.
    virtual void stopOpeningSession();
    /// Asks whether the device answers in the current session. Returns at once; signalCDeviceSessionChecked
    /// tells.
    virtual void checkSession();

    /// How many of their devices were upgraded, of the documents that are done.
    virtual int upgradeDocumentSuccesses();

    /// The names of the rows whose upgrade has failed and may go well another time, of both lists.
    virtual QStringList upgradesToRetry();

    /// The texts of the last exported list that do not come back when its file is read: maps of "address",
    /// "name" (of the device), "column" and "reason" (in the user's language).
    virtual QVariantList exportFaults();

    /// Whether the current session is with the device at this address: it goes on when the row is gone.
    virtual bool isInSession(const QString &ipport);

    /// Queries the devices of these IPv4 rows again, after work that changed what the rows show. Returns at
    /// once; signalCDeviceAddSingleDeviceToTable tells of rows that have changed.
    virtual void refreshDevices(const QStringList &macs);

    /// Ends the search that runs: what it has found stays, and signalCDeviceSearchDone tells the end.
    virtual void stopSearch();

    // The work that an operation does with one device, to be run on any other thread: the operation itself
    // does the same on the caller's thread. A step may be run until the back end ends. Of a family that does
    // not have the operation it is one that does nothing and ends with LoginResult::NotSupported.

    /// Of systemConfig(). With "timeOfRequest" in `data`, "time" is that of the device's own request. The
    /// command "readTime" asks for the device's clock: the text of the outcome is its time, compared with
    /// this computer's.
    virtual DeviceStep systemStep(const QString &command, const QVariantMap &data, const QString &ipport);
    /// Of setInitAccount().
    virtual DeviceStep initialisationStep(const QString &mac, const QString &account,
                                          const QString &password);
    /// Of modifyIP().
    virtual DeviceStep addressStep(const QString &mac, const QString &newip, const QString &newsubmask,
                                   const QString &newgateway, bool dhcpON);
    /// Of copyConfigToDevice(). What is copied is what the current session has read now, also by a step that
    /// is made later. The text of the outcome names what the device has skipped.
    virtual DeviceStepMaker encodeCopy();
    /// Of snapPictureToFile() with "liveCapture": a step for each channel of the current session, in their
    /// order. Each reports its channel by signalSnapPictureToFile, on the thread that it runs on. Empty
    /// without a session.
    virtual QList<DeviceStep> snapshotSteps(const QString &address);
    /// Logs in to a device and adds its row, as getLoginDevice() does, and opens and closes the local ports
    /// that lead to it. LoginResult::AlreadyListed for an address and port that a row has.
    virtual DeviceStep addingStep(const DeviceToAdd &device);

    /// Reads a device list for importDevice(). May be called on any thread, which it blocks for the file.
    virtual ImportPlan importPlan(const QString &path);

    /// The row of a device as it is in the list, of either list; empty when there is none.
    virtual QJsonObject deviceRow(const QString &name);

    /// Of refreshDevices(), with one query at the addresses of the rows, before devices are searched by their
    /// MACs. Blocks up to 6 s.
    virtual DeviceStep locationStep(const QStringList &macs);

    // Work that a page waits for while the scene goes on. Steps are made on the scene's thread.

    /// Of findAndLoginDevice(). The value is its result.
    virtual SceneStep loginStep(const QString &ipport, const QString &account, const QString &password);
    /// Of operations in the current session, as it is when the step is made. When there is another session
    /// before the outcome is taken, nothing is put in place. What is set meanwhile on the scene's thread is
    /// lost: the page keeps the user from it.
    virtual SceneStep sessionStep(const SessionJob &job);
    /// Of readDeviceDetail(). The value is what that returns.
    virtual SceneStep detailStep(const QString &ipport);

    /// Runs a step on a thread of the back end, which it ends with, and returns at once. `ended` is called on
    /// the scene's thread, with the outcome to be taken, unless `stop` was requested before: what is under
    /// way then goes on to its next safe point and is dropped.
    virtual void runForScene(const SceneStep &step, const std::stop_token &stop,
                             const std::function<void(const SceneOutcome &outcome)> &ended);

    // Upgrades. Rows are named by MAC, or by address and port where they have none.

    /// Of startUpgrade(). The row shows from now on that it waits, and then how far the upgrade is; one that
    /// stopUpgrade() stops, or whose step goes without having been run, is stopped.
    virtual DeviceStep upgradeStep(const QString &mac);
    /// Of importUpgradeDocument(). The value is a map of "refusal", why the document cannot be used in the
    /// user's language, and "lines", what importUpgradeDocument() returns, each with its row as "device".
    virtual SceneStep upgradeDocumentReading(const QString &path);
    /// Of startUpgradeByDocument(), for those of the document's lines that have these numbers. A line that
    /// cannot be upgraded has a step that says so. Empty for a document that is refused. A document whose
    /// reading was taken and whose file is unchanged is not read again.
    virtual QList<UpgradeDocumentStep> upgradeDocumentSteps(const QString &path, const QList<int> &lines);
    /// upgradeStep() for a device whose line of a document was upgraded before: the result goes into the file
    /// as well, when the other lines that are upgraded again are done.
    virtual DeviceStep repeatedDocumentStep(const QString &mac);
    /// What upgradeStep() would do with each of these rows, by what the rows and their files contain.
    virtual QList<PlannedUpgrade> plannedUpgrades(const QStringList &macs);
    /// setUpgradeFilePath() for many rows, which looks at the file once. Returns what speaks against the
    /// upgrade of each, an UpgradeTools::Result.
    virtual QList<int> setUpgradeFiles(const QStringList &macs, const QString &path);
    /// The names of the rows in which upgrades have changed something since the last call.
    virtual QStringList takeChangedUpgrades();
    /// The one account that the device is logged in to with, see AccountChoice: "account", "password",
    /// "isStored", "isDefault" and "isFollowing". `name` is that of its row, or its address and port.
    virtual QVariantMap accountOf(const QString &name);

    /// Logs in to a device with its row's account, else the default one, takes pictures of its channels, one
    /// after another, and logs out. The current session stays as it is.
    virtual DeviceStep pictureStep(const PictureOrder &order);
    /// Logs in to a device beside the current session, for live pictures. As a step of many devices at the
    /// same time, it may run on any thread.
    virtual OwnSessionStep ownSessionStep(const OwnSessionOrder &order);
    /// Takes the place of the default account, until another default account is set.
    virtual void setFollowingAccount(const QString &account, const QString &password);

    /// Gives the back end the way to devices behind NAT, or takes it away by null. Called by the factory,
    /// which owns the ports.
    void setP2PPorts(P2PPorts *ports) { m_p2pPorts = ports; }

Q_SIGNALS:
    void signalCDeviceAddDeviceToTable();        ///< new rows are there
    void signalCDeviceSearchCount(int devCount); ///< IPv4 rows found so far
    void signalCDeviceSearchDone();              ///< a search has ended
    void signalCDeviceAddSingleDeviceToTable();  ///< one row added or changed outside a search
    void signalCDeviceUpdateSchedule(int value); ///< progress of an upgrade
    void signalCDeviceUpdateScheduleUpgradeByDocument(const QString &filename, int value);
    void signalCDeviceShowUpgradeFinishTip(); ///< all upgrades have finished
    void signalCDeviceRetToCopyConfig(const QString &ipport, int result);
    void signalCDeviceRetToSystemConfig(const QString &ipport, int result);
    void signalCDeviceSystemConfigEnablePassword();
    void signalCDeviceHighLevelLoginRet(int loginRet);
    void signalCDeviceGetDeviceCapRet(int GetDeviceCapRet);
    void signalCDeviceChangeVideoType();
    void signalCDeviceChangeVideoChannel();
    void signalCDeviceChangeEncodeChannel();
    /// What was refused, a line for each; empty on success. Also for what setConfigData() wrote at once,
    /// when it is refused.
    void signalCDeviceConfirmEncodeConfig(const QString &resStr);
    void signalCDeviceSetChannelNameFinished();
    void signalSnapPictureToFile(int channel, const QString &path, const QString &message);
    void signalSnapPictureToFileAgain(int channel, const QString &path, const QString &message);
    void signalCDeviceTunnelBroken(const QString &deviceId, int localPort); ///< no device: all of them
    void signalCDeviceImportProgress(int done, int total); ///< devices of a list, after each of them
    /// `result` is a LoginResult. `channels` are maps of "channel" (from 0), "name" and "connected"; empty
    /// when they were not read.
    void signalCDeviceSessionOpened(const QString &ipport, int result, const QVariantList &channels);
    void signalCDeviceSessionChecked(bool answers); ///< false also when there is none
    /// A search that ends found more devices than it lists: `leftOut` answers came after so many `rows`.
    void signalCDeviceSearchLimited(int rows, int leftOut);
    void signalCDeviceSearchProgress(int percent); ///< of a search that runs, 0 to 100

protected:
    [[nodiscard]] DeviceStore &store() const { return *m_store; }
    /// Null when there are none. Steps keep them: the ports live longer than the back end. Anything else asks
    /// again with each call, since the factory may take them away.
    [[nodiscard]] P2PPorts *p2pPorts() const { return m_p2pPorts; }

private:
    const std::shared_ptr<DeviceStore> m_store;
    P2PPorts *m_p2pPorts = nullptr;
};

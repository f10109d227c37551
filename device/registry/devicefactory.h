#pragma once

#include "device/registry/busystate.h"
#include "device/registry/devicebase.h"
#include "device/registry/p2pports.h"

#include <QJSValue>
#include <QMap>

#include <functional>
#include <memory>

/// The one object through which the scene reaches devices. It owns one back end per device family, forwards
/// each operation to the one that its first argument names, and emits the back ends' signals under its own
/// names. For an unknown family an operation does nothing and returns an empty value.
///
/// Operations are called on the scene's thread, where the factory lives; signals of back ends arrive there
/// queued when they come from another thread.
class CDeviceFactory : public QObject
{
    Q_OBJECT
public:
    using BackEndCreator = std::function<std::shared_ptr<CDeviceBase>()>;
    using BackEndCreators = QMap<QString, BackEndCreator>; ///< by family name

    /// Registers the creator of a family's back end. To be called before the first getinstance(): this is how
    /// the factory comes to own back ends that it does not know.
    static void registerBackEnd(const QString &family, const BackEndCreator &creator);

    /// The port agent of the process-wide factory and what takes its events. To be called before the first
    /// getinstance(), as registerBackEnd() is.
    struct P2PAgent
    {
        std::shared_ptr<sdk::P2PAgentLibrary> library; ///< null for none
        sdk::P2PAgentMessageHandler handler = nullptr;
    };
    static void registerP2PAgent(const P2PAgent &agent);

    /// The process-wide factory, created on first use with the registered families, on the main thread. Once
    /// it is there, other threads may ask for it too, to read what a back end gives to any thread; they have
    /// ended before deleteInstance().
    static CDeviceFactory *getinstance();

    /// Deletes the process-wide factory with its back ends and forgets the registered families.
    static void deleteInstance();

    /// Starts the port agent with the settings of "p2p.ini" in the working directory.
    CDeviceFactory(const BackEndCreators &creators, const P2PAgent &agent);

    /// A factory without a port agent.
    explicit CDeviceFactory(const BackEndCreators &creators);
    ~CDeviceFactory() override;

    /// What is being done with devices. Owned by the factory.
    [[nodiscard]] BusyState *busyState() { return &m_busyState; }

    /// While a work needs the rows, nothing is searched: signalSearchDone is emitted at once.
    Q_INVOKABLE void startSearch(const QString &family);
    Q_INVOKABLE void setSearchByIPInfo(const QString &family, quint32 beginip, quint32 endip);
    Q_INVOKABLE QVariantList filterData(const QString &family, const QString &filtertype,
                                        const QString &searchtext = QString());
    Q_INVOKABLE QVariantList filterDataIPV6(const QString &family, const QString &filtertype,
                                            const QString &searchtext = QString());
    Q_INVOKABLE void modifyIP(const QString &family, const QString &mac, const QString &newip,
                              const QString &newsubmask, const QString &newgateway, bool dhcpON);
    Q_INVOKABLE void setDefaultAccount(const QString &family, const QString &account,
                                       const QString &password);
    Q_INVOKABLE void setInitAccount(const QString &family, const QString &mac, const QString &account,
                                    const QString &password);
    /// See CDeviceBase::setFollowingAccount().
    Q_INVOKABLE void setFollowingAccount(const QString &family, const QString &account,
                                         const QString &password);
    /// See CDeviceBase::accountOf().
    Q_INVOKABLE [[nodiscard]] QVariantMap accountOf(const QString &family, const QString &name);
    /// Returns the local port that leads to the device, 0 on failure.
    Q_INVOKABLE int setAddDevice(const QString &family, const QString &deviceId, const QString &account,
                                 const QString &password, const QString &port, int p2pPort);
    Q_INVOKABLE void setPluginPort(const QString &family, const QString &mac, int devp2pPort);
    Q_INVOKABLE void setDeleteDevice(const QString &family, const QString &mac, const QString &ipvision);
    Q_INVOKABLE void setBatchDeleteDevice(const QString &family, const QVariantMap &macs,
                                          const QString &ipversion);
    /// The device's row and its search record, without the password.
    Q_INVOKABLE QVariantMap getDeviceDetail(const QString &family, const QString &mac);
    /// The detail as one text in the user's language, a line "label: value" for each, by groups.
    Q_INVOKABLE QString getDeviceDetailString(const QString &family, const QString &mac);
    Q_INVOKABLE QVariantMap getDeviceInfo(const QString &family, const QString &ipport);
    /// Fills the properties "total" and "errcount" of `msg`, or calls it with the two when it is a function.
    Q_INVOKABLE bool importDevice(const QString &family, const QString &path, QJSValue msg);
    Q_INVOKABLE bool exportDevice(const QString &family, const QString &folder, const QStringList &macs,
                                  const QString &fileName);
    Q_INVOKABLE int getLoginDevice(const QString &family, const QString &address, const QString &account,
                                   const QString &password, const QString &port, int loginType = 0,
                                   const QString &devp2pPort = QString());
    Q_INVOKABLE int getPassWordType(const QString &password);
    Q_INVOKABLE void setUpgradeFilePath(const QString &family, const QString &mac, const QString &path);
    Q_INVOKABLE void startUpgrade(const QString &family, const QStringList &macs);
    Q_INVOKABLE void startUpgradeByDocument(const QString &family, const QStringList &paths);
    Q_INVOKABLE void stopUpgrade(const QString &family, const QString &mac);
    /// Shows the workbook that upgrades by document begin from, with the program that the system has for it.
    /// Returns false when it is not there or when there is no such program.
    Q_INVOKABLE bool openTemplate();
    Q_INVOKABLE QVariantList importUpgradeDocument(const QString &family, const QString &file);
    Q_INVOKABLE QString getErrorName(int error);
    Q_INVOKABLE int findAndLoginDevice(const QString &family, const QString &ipport, const QString &account,
                                       const QString &password);
    Q_INVOKABLE bool updataDeviceInfo(const QString &family, const QString &key, const QVariant &newValue,
                                      const QString &mac, const QString &ipport);
    Q_INVOKABLE void getCameraConfig(const QString &family);
    Q_INVOKABLE QVariant getConfigData(const QString &family, const QString &key,
                                       const QVariant &channel = QVariant());
    Q_INVOKABLE void getEncodeCaps(const QString &family);
    Q_INVOKABLE void setConfigData(const QString &family, const QString &key, const QVariant &value,
                                   const QString &otype = QString());
    Q_INVOKABLE QVariantList getDeviceChannelData(const QString &family, const QString &key, int channelNum);
    Q_INVOKABLE void confirmConfigData(const QString &family);
    Q_INVOKABLE void getVideoIn(const QString &family);
    Q_INVOKABLE void getVideoInByChangeChannel(const QString &family);
    Q_INVOKABLE void getEncodeInfo(const QString &family);
    Q_INVOKABLE void copyConfigToDevice(const QString &family, const QStringList &devlist);
    Q_INVOKABLE void systemConfig(const QString &family, const QString &command, const QVariantMap &data,
                                  const QStringList &ipports);
    Q_INVOKABLE void addP2PPort(int p2pPort, int webPort);
    Q_INVOKABLE int getP2PWebPort(int port);
    /// The days of a month (1 to 12) of this year, as numbers from 1; none for any other number.
    Q_INVOKABLE QVariantList getDays(int month);
    /// True while a device of any family is being upgraded.
    Q_INVOKABLE bool hasDeviceUpgrading();
    Q_INVOKABLE void snapPictureToFile(const QString &family, const QString &kind, const QVariant &channelNum,
                                       const QString &address);
    Q_INVOKABLE void startSnap(const QString &family, const QVariant &channelNum, const QString &address);
    /// Asks the application to leave its event loop with exit code 0.
    Q_INVOKABLE void exitProgram();
    /// Removes a mapping; that of the current session's device when the session has ended.
    Q_INVOKABLE void releaseP2PPort(int p2pPort);
    /// Why setAddDevice() may fail for every device, in the user's language: a wrong setting, or a port agent
    /// that did not start. Empty when neither is so.
    Q_INVOKABLE QString p2pFault();
    /// The texts of the last exported list that do not come back when its file is read: maps of "address",
    /// "name", "column", "reason".
    Q_INVOKABLE QVariantList exportFaults(const QString &family);
    /// The lines of the last imported list that brought no device: maps of "line", "address", "code",
    /// "reason".
    Q_INVOKABLE QVariantList importFailures(const QString &family);
    /// Why importDevice() refused the last list as a whole.
    Q_INVOKABLE QString importError(const QString &family);
    /// Logs in to a device with its row's account, else the default one, and asks it for everything that it
    /// tells of itself. Holds "loginResult" (0 for success) and keys as getDeviceDetail() has, never a
    /// password. Blocks for the waits of the library; the session of findAndLoginDevice() stays as it is.
    Q_INVOKABLE QVariantMap readDeviceDetail(const QString &family, const QString &ipport);

    /// What has come of the documents of the last startUpgradeByDocument().
    Q_INVOKABLE QString upgradeDocumentResult(const QString &family);
    /// How many of their devices were upgraded.
    Q_INVOKABLE int upgradeDocumentSuccesses(const QString &family);
    /// The names of the rows whose upgrade has failed and may go well another time.
    Q_INVOKABLE QStringList upgradesToRetry(const QString &family);

    /// How many lines of those documents there are ("total"), and with how many nothing is to be done any
    /// more ("done").
    Q_INVOKABLE QVariantMap upgradeDocumentProgress(const QString &family);

    /// Sees to it, without holding up the scene, that there is a session with the device: the current one,
    /// where the device answers in it, else that of a new login. signalSessionOpened tells the end, unless
    /// another device is logged in to or asked for meanwhile. A login that the device has refused in its
    /// session is sent again only if `isGivenNow`: the user has just given it.
    Q_INVOKABLE void openSession(const QString &family, const QString &ipport, const QString &account,
                                 const QString &password, bool readsChannels, bool isGivenNow = false);
    /// Gives up what openSession() began.
    Q_INVOKABLE void stopOpeningSession(const QString &family);
    /// Asks, without holding up the scene, whether the device answers in the current session.
    Q_INVOKABLE void checkSession(const QString &family);

    /// Queries the devices of these rows again in the background. signalAddSingleDeviceToTable tells of rows
    /// that have changed.
    Q_INVOKABLE void refreshDevices(const QString &family, const QStringList &macs);

    /// Ends the search that runs: what it has found stays, and signalSearchDone tells the end.
    Q_INVOKABLE void stopSearch(const QString &family);

    // The work that an operation does with one device, for another thread. Each may be run until the factory
    // ends. For an unknown family it is null.

    [[nodiscard]] DeviceStep systemStep(const QString &family, const QString &command,
                                        const QVariantMap &data, const QString &ipport);
    [[nodiscard]] DeviceStep initialisationStep(const QString &family, const QString &mac,
                                                const QString &account, const QString &password);
    [[nodiscard]] DeviceStep addressStep(const QString &family, const QString &mac, const QString &newip,
                                         const QString &newsubmask, const QString &newgateway, bool dhcpON);
    [[nodiscard]] DeviceStepMaker encodeCopy(const QString &family);
    [[nodiscard]] QJsonObject deviceRow(const QString &family, const QString &name);
    [[nodiscard]] QList<DeviceStep> snapshotSteps(const QString &family, const QString &address);
    [[nodiscard]] DeviceStep pictureStep(const QString &family, const PictureOrder &order);
    [[nodiscard]] DeviceStep locationStep(const QString &family, const QStringList &macs);
    [[nodiscard]] DeviceStep addingStep(const QString &family, const DeviceToAdd &device);
    [[nodiscard]] DeviceStep upgradeStep(const QString &family, const QString &mac);
    [[nodiscard]] DeviceStep repeatedDocumentStep(const QString &family, const QString &mac);
    [[nodiscard]] SceneStep upgradeDocumentReading(const QString &family, const QString &path);
    [[nodiscard]] QList<UpgradeDocumentStep> upgradeDocumentSteps(const QString &family, const QString &path,
                                                                  const QList<int> &lines);

    [[nodiscard]] QList<PlannedUpgrade> plannedUpgrades(const QString &family, const QStringList &macs);
    QList<int> setUpgradeFiles(const QString &family, const QStringList &macs, const QString &path);
    QStringList takeChangedUpgrades(const QString &family);

    /// Reads a device list, on any thread.
    [[nodiscard]] ImportPlan importPlan(const QString &family, const QString &path);

    // Work that a page waits for while the scene goes on, by DeviceWork. See the same operations of
    // CDeviceBase.

    [[nodiscard]] SceneStep loginStep(const QString &family, const QString &ipport, const QString &account,
                                      const QString &password);
    [[nodiscard]] SceneStep sessionStep(const QString &family, const SessionJob &job);
    [[nodiscard]] SceneStep detailStep(const QString &family, const QString &ipport);
    [[nodiscard]] OwnSessionStep ownSessionStep(const QString &family, const OwnSessionOrder &order);
    void runForScene(const QString &family, const SceneStep &step, const std::stop_token &stop,
                     const std::function<void(const SceneOutcome &outcome)> &ended);

    /// Releases the ports of devices that have left the list, but for those of a current session: they go
    /// when it ends. To be called when steps have replaced rows.
    void releaseUnneededP2PPorts();

    /// Asks as checkLogin() does, on any thread, until the factory ends.
    using LoginCheck =
        std::function<int(const QString &ipport, const QString &account, const QString &password)>;
    [[nodiscard]] LoginCheck loginCheck(const QString &family) const;

    /// Whether the device at `ipport` lets the account in, as a LoginResult. Blocks as a login does; the
    /// session of findAndLoginDevice() stays as it is.
    int checkLogin(const QString &family, const QString &ipport, const QString &account,
                   const QString &password);

Q_SIGNALS:
    // Twins of the back ends' signals, in their order. Each is relayed from the signal of the same name with
    // "CDevice" behind "signal".

    void signalAddDeviceToTable();
    void signalSearchCount(int devCount);
    void signalSearchDone();
    void signalAddSingleDeviceToTable();
    void signalUpdateSchedule(int value);
    void signalUpdateScheduleUpgradeByDocument(const QString &filename, int value);
    void signalShowUpgradeFinishTip();
    void signalRetToCopyConfig(const QString &ipport, int result);
    void signalRetToSystemConfig(const QString &ipport, int result);
    void signalSystemConfigEnablePassword();
    void signalHighLevelLoginRet(int loginRet);
    void signalGetDeviceCapRet(int GetDeviceCapRet);
    void signalChangeVideoType();
    void signalChangeVideoChannel();
    void signalChangeEncodeChannel();
    void signalConfirmEncodeConfig(const QString &resStr);
    void signalSetChannelNameFinished();
    void signalSnapPictureToFile(int channel, const QString &path, const QString &message);
    void signalSnapPictureToFileAgain(int channel, const QString &path, const QString &message);
    void signalTunnelBroken(const QString &deviceId, int localPort);
    void signalImportProgress(int done, int total);
    void signalSessionOpened(const QString &ipport, int result, const QVariantList &channels);
    void signalSessionChecked(bool answers);
    void signalSearchLimited(int rows, int leftOut);
    void signalSearchProgress(int percent);

private:
    void relaySignals(const CDeviceBase &backEnd);

    /// Calls an operation of the family's back end, which lives at least until the call has returned.
    template<typename Result, typename... Parameters, typename... Arguments>
    Result forward(const QString &family, Result (CDeviceBase::*operation)(Parameters...),
                   const Arguments &...arguments)
    {
        const std::shared_ptr<CDeviceBase> backEnd = m_backEnds.value(family);
        if (!backEnd)
            return Result();
        return (backEnd.get()->*operation)(arguments...);
    }

    /// Makes the ports of a row known, if it is one of a device behind NAT.
    void noteP2PPortsOf(const QVariantMap &row);
    /// Releases the ports of those of the rows, by name, that were deleted.
    void releaseP2PPortsOf(const QString &family, const QVariantMap &rows);
    [[nodiscard]] bool isListedAt(int p2pPort) const;
    [[nodiscard]] bool isInUse(int p2pPort) const;

    BusyState m_busyState;
    P2PPorts m_p2pPorts; ///< outlives the back ends, which use it
    QMap<QString, std::shared_ptr<CDeviceBase>> m_backEnds;
};

#pragma once

#include "device/registry/busystate.h"
#include "device/registry/devicebase.h"
#include "device/registry/p2pports.h"

#include <QJSValue>
#include <QMap>

#include <functional>
#include <memory>

/// QML's access to devices. It owns one back end for each device family, forwards each operation to the back
/// end of the family in the first argument, and forwards the signals of the back ends under its own names.
/// An operation or signal without a comment is the one of CDeviceBase with the same name; its comment is
/// there. For an unknown family, an operation does nothing and returns an empty value.
///
/// Thread: operations are called on the main thread unless stated otherwise. Signals are emitted there,
/// queued if a back end emits them on another thread.
class CDeviceFactory : public QObject
{
    Q_OBJECT
public:
    using BackEndCreator = std::function<std::shared_ptr<CDeviceBase>()>;
    using BackEndCreators = QMap<QString, BackEndCreator>; ///< by family name

    /// Registers the creator of a family's back end. Must be called before the first getinstance(). The
    /// factory does not know the classes of the back ends.
    static void registerBackEnd(const QString &family, const BackEndCreator &creator);

    /// The port agent of the process-wide factory and the receiver of its events. Must be registered before
    /// the first getinstance().
    struct P2PAgent
    {
        std::shared_ptr<sdk::P2PAgentLibrary> library; ///< null for none
        sdk::P2PAgentMessageHandler handler = nullptr;
    };
    static void registerP2PAgent(const P2PAgent &agent);

    /// The process-wide factory. The first call creates it with the registered families, on the main thread.
    /// Later calls may come from any thread, for operations of any thread. Such threads must end before
    /// deleteInstance().
    static CDeviceFactory *getinstance();

    /// Deletes the process-wide factory with its back ends and clears the registered families.
    static void deleteInstance();

    /// Creates the back ends, and starts the port agent with the settings of
    /// ApplicationFolders::portAgentSettings().
    CDeviceFactory(const BackEndCreators &creators, const P2PAgent &agent);

    /// A factory without a port agent.
    explicit CDeviceFactory(const BackEndCreators &creators);

    /// Calls CDeviceBase::factoryEnds() of each back end, which may block.
    ~CDeviceFactory() override;

    /// The running work with devices. Owned by the factory.
    [[nodiscard]] BusyState *busyState() { return &m_busyState; }

    /// The back end of a family, for C++ code: steps and other operations that QML does not use. Never null:
    /// an unknown family has a back end without operations. Any thread. The caller does not keep the pointer:
    /// the factory destroys the back ends on the main thread.
    [[nodiscard]] std::shared_ptr<CDeviceBase> backEnd(const QString &family) const
    {
        return m_backEnds.value(family, m_unknownFamily);
    }

    // NOLINTBEGIN(readability-make-member-function-const): the operations change devices and the back end.

    /// CDeviceBase::startSearch(). While running work needs the rows (BusyState::areRowsInUse()), no search
    /// is started and the rows stay; signalSearchDone is emitted in this call.
    Q_INVOKABLE void startSearch(const QString &family);
    Q_INVOKABLE void setSearchByIPInfo(const QString &family, quint32 beginip, quint32 endip)
    {
        backEnd(family)->setSearchByIPInfo(beginip, endip);
    }
    Q_INVOKABLE QVariantList filterData(const QString &family, const QString &filtertype,
                                        const QString &searchtext = QString())
    {
        return backEnd(family)->filterData(filtertype, searchtext);
    }
    Q_INVOKABLE QVariantList filterDataIPV6(const QString &family, const QString &filtertype,
                                            const QString &searchtext = QString())
    {
        return backEnd(family)->filterDataIPV6(filtertype, searchtext);
    }
    Q_INVOKABLE void modifyIP(const QString &family, const QString &mac, const QString &newip,
                              const QString &newsubmask, const QString &newgateway, bool dhcpON)
    {
        backEnd(family)->modifyIP(mac, newip, newsubmask, newgateway, dhcpON);
    }
    Q_INVOKABLE void setDefaultAccount(const QString &family, const QString &account, const QString &password)
    {
        backEnd(family)->setDefaultAccount(account, password);
    }
    Q_INVOKABLE void setInitAccount(const QString &family, const QString &mac, const QString &account,
                                    const QString &password)
    {
        backEnd(family)->setInitAccount(mac, account, password);
    }
    Q_INVOKABLE void setFollowingAccount(const QString &family, const QString &account,
                                         const QString &password)
    {
        backEnd(family)->setFollowingAccount(account, password);
    }
    Q_INVOKABLE [[nodiscard]] QVariantMap accountOf(const QString &family, const QString &name)
    {
        return backEnd(family)->accountOf(name);
    }
    /// Opens a tunnel to a device behind NAT. No row is added. Returns the local port for `port` of the
    /// device with this P2P ID, 0 on failure. A `p2pPort` other than 0 must be equal to `port`, see
    /// P2PPorts::portFor(). Account and password are not used. Blocks until the port agent responds.
    Q_INVOKABLE int setAddDevice(const QString &family, const QString &deviceId, const QString &account,
                                 const QString &password, const QString &port, int p2pPort);
    /// Sets "devp2pPort" of a row. Does nothing if there is no such row.
    Q_INVOKABLE void setPluginPort(const QString &family, const QString &mac, int devp2pPort);

    // These two also release the local ports of deleted devices behind NAT, except the port of the current
    // session.
    Q_INVOKABLE void setDeleteDevice(const QString &family, const QString &mac, const QString &ipvision);
    Q_INVOKABLE void setBatchDeleteDevice(const QString &family, const QVariantMap &macs,
                                          const QString &ipversion);
    /// The device's row and its search record, without the password.
    Q_INVOKABLE QVariantMap getDeviceDetail(const QString &family, const QString &mac)
    {
        return backEnd(family)->getDeviceDetail(mac);
    }
    /// getDeviceDetail() as text in the user's language, see DeviceDetail::textOf().
    Q_INVOKABLE QString getDeviceDetailString(const QString &family, const QString &mac);
    Q_INVOKABLE QVariantMap getDeviceInfo(const QString &family, const QString &ipport)
    {
        return backEnd(family)->getDeviceInfo(ipport);
    }
    /// CDeviceBase::importDevice(). The summary (see ImportSummary) is returned in `msg`: its properties
    /// "total" and "errcount" are set, or, if `msg` is a function, it is called with the two numbers in this
    /// order.
    Q_INVOKABLE bool importDevice(const QString &family, const QString &path, QJSValue msg);
    Q_INVOKABLE bool exportDevice(const QString &family, const QString &folder, const QStringList &macs,
                                  const QString &fileName)
    {
        return backEnd(family)->exportDevice(folder, macs, fileName);
    }
    Q_INVOKABLE int getLoginDevice(const QString &family, const QString &address, const QString &account,
                                   const QString &password, const QString &port, int loginType = 0,
                                   const QString &devp2pPort = QString());
    /// passwordStrength() of the password, 0 to 3.
    Q_INVOKABLE int getPassWordType(const QString &password);
    Q_INVOKABLE void setUpgradeFilePath(const QString &family, const QString &mac, const QString &path)
    {
        backEnd(family)->setUpgradeFilePath(mac, path);
    }
    Q_INVOKABLE void startUpgrade(const QString &family, const QStringList &macs)
    {
        backEnd(family)->startUpgrade(macs);
    }
    Q_INVOKABLE void startUpgradeByDocument(const QString &family, const QStringList &paths)
    {
        backEnd(family)->startUpgradeByDocument(paths);
    }
    Q_INVOKABLE void stopUpgrade(const QString &family, const QString &mac)
    {
        backEnd(family)->stopUpgrade(mac);
    }
    /// Opens the template of upgrade documents in the default application of the system. Returns false if the
    /// file is missing or there is no application for it.
    Q_INVOKABLE bool openTemplate();
    Q_INVOKABLE QVariantList importUpgradeDocument(const QString &family, const QString &file)
    {
        return backEnd(family)->importUpgradeDocument(file);
    }
    /// The resultName() of a result code.
    Q_INVOKABLE QString getErrorName(int error);
    Q_INVOKABLE int findAndLoginDevice(const QString &family, const QString &ipport, const QString &account,
                                       const QString &password)
    {
        return backEnd(family)->findAndLoginDevice(ipport, account, password);
    }
    Q_INVOKABLE bool updataDeviceInfo(const QString &family, const QString &key, const QVariant &newValue,
                                      const QString &mac, const QString &ipport)
    {
        return backEnd(family)->updataDeviceInfo(key, newValue, mac, ipport);
    }
    Q_INVOKABLE void getCameraConfig(const QString &family) { backEnd(family)->getCameraConfig(); }
    Q_INVOKABLE QVariant getConfigData(const QString &family, const QString &key,
                                       const QVariant &channel = QVariant())
    {
        return backEnd(family)->getConfigData(key, channel);
    }
    Q_INVOKABLE void getEncodeCaps(const QString &family) { backEnd(family)->getEncodeCaps(); }
    Q_INVOKABLE void setConfigData(const QString &family, const QString &key, const QVariant &value,
                                   const QString &otype = QString())
    {
        backEnd(family)->setConfigData(key, value, otype);
    }
    Q_INVOKABLE QVariantList getDeviceChannelData(const QString &family, const QString &key, int channelNum)
    {
        return backEnd(family)->getDeviceChannelData(key, channelNum);
    }
    Q_INVOKABLE void confirmConfigData(const QString &family) { backEnd(family)->confirmConfigData(); }
    Q_INVOKABLE void getVideoIn(const QString &family) { backEnd(family)->getVideoIn(); }
    Q_INVOKABLE void getVideoInByChangeChannel(const QString &family)
    {
        backEnd(family)->getVideoInByChangeChannel();
    }
    Q_INVOKABLE void getEncodeInfo(const QString &family) { backEnd(family)->getEncodeInfo(); }
    Q_INVOKABLE void copyConfigToDevice(const QString &family, const QStringList &devlist)
    {
        backEnd(family)->copyConfigToDevice(devlist);
    }
    Q_INVOKABLE void systemConfig(const QString &family, const QString &command, const QVariantMap &data,
                                  const QStringList &ipports)
    {
        backEnd(family)->systemConfig(command, data, ipports);
    }
    /// Registers the local login port and the local web port (0 for none) of a device behind NAT, see
    /// P2PPorts::pair().
    Q_INVOKABLE void addP2PPort(int p2pPort, int webPort);
    /// The local web port of a local login port, 0 for none.
    Q_INVOKABLE int getP2PWebPort(int port);
    /// The days of a month (1 to 12) of the current year, as a list of numbers from 1. Empty for other
    /// months.
    Q_INVOKABLE QVariantList getDays(int month);
    /// Whether a device of any family is being upgraded.
    Q_INVOKABLE bool hasDeviceUpgrading();
    Q_INVOKABLE void snapPictureToFile(const QString &family, const QString &kind, const QVariant &channelNum,
                                       const QString &address)
    {
        backEnd(family)->snapPictureToFile(kind, channelNum, address);
    }
    /// snapPictureToFile() with "liveCapture".
    Q_INVOKABLE void startSnap(const QString &family, const QVariant &channelNum, const QString &address);
    /// Asks the application to leave its event loop with exit code 0.
    Q_INVOKABLE void exitProgram();
    /// Releases the local login port `p2pPort` of a device and its web port. If the current session uses the
    /// port, the ports are released when the session is replaced.
    Q_INVOKABLE void releaseP2PPort(int p2pPort);
    /// The reason why setAddDevice() fails for every device, in the user's language, see
    /// P2PPorts::faultText(). Otherwise empty.
    Q_INVOKABLE QString p2pFault();
    Q_INVOKABLE QVariantList exportFaults(const QString &family) { return backEnd(family)->exportFaults(); }
    Q_INVOKABLE QVariantList importFailures(const QString &family)
    {
        return backEnd(family)->importFailures();
    }
    Q_INVOKABLE QString importError(const QString &family) { return backEnd(family)->importError(); }
    Q_INVOKABLE QVariantMap readDeviceDetail(const QString &family, const QString &ipport)
    {
        return backEnd(family)->readDeviceDetail(ipport);
    }

    Q_INVOKABLE QString upgradeDocumentResult(const QString &family)
    {
        return backEnd(family)->upgradeDocumentResult();
    }
    Q_INVOKABLE int upgradeDocumentSuccesses(const QString &family)
    {
        return backEnd(family)->upgradeDocumentSuccesses();
    }
    Q_INVOKABLE QStringList upgradesToRetry(const QString &family)
    {
        return backEnd(family)->upgradesToRetry();
    }

    Q_INVOKABLE QVariantMap upgradeDocumentProgress(const QString &family)
    {
        return backEnd(family)->upgradeDocumentProgress();
    }

    Q_INVOKABLE void openSession(const QString &family, const QString &ipport, const QString &account,
                                 const QString &password, bool readsChannels, bool isGivenNow = false)
    {
        backEnd(family)->openSession(ipport, account, password, readsChannels, isGivenNow);
    }
    Q_INVOKABLE void stopOpeningSession(const QString &family) { backEnd(family)->stopOpeningSession(); }
    Q_INVOKABLE void checkSession(const QString &family) { backEnd(family)->checkSession(); }

    Q_INVOKABLE void refreshDevices(const QString &family, const QStringList &macs)
    {
        backEnd(family)->refreshDevices(macs);
    }

    Q_INVOKABLE void stopSearch(const QString &family) { backEnd(family)->stopSearch(); }

    /// Releases the registered local ports of devices that are no longer listed, except those of a current
    /// session. Must be called on the main thread after steps have added or replaced rows.
    void releaseUnneededP2PPorts();

    /// CDeviceBase::checkLogin(). Any thread; blocks it.
    int checkLogin(const QString &family, const QString &ipport, const QString &account,
                   const QString &password)
    {
        return backEnd(family)->checkLogin(ipport, account, password);
    }
    // NOLINTEND(readability-make-member-function-const)

Q_SIGNALS:
    // The signals of the back ends, see forwardedSignals, without "CDevice" in their names.

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
    void signalSessionChecked(bool responses);
    void signalSearchLimited(int rows, int leftOut);
    void signalSearchProgress(int percent);

private:
    void forwardSignals(const CDeviceBase &backEnd);

    /// Registers the local ports of a row if its device is behind NAT.
    void noteP2PPortsOf(const QVariantMap &row);
    /// Releases the ports of the deleted ones of these rows. `rows` are by name.
    void releaseP2PPortsOf(const QString &family, const QVariantMap &rows);
    [[nodiscard]] bool isListedAt(int p2pPort) const;
    [[nodiscard]] bool isInUse(int p2pPort) const;

    BusyState m_busyState;
    const std::shared_ptr<P2PPorts> m_p2pPorts; ///< never null; shared with the back ends
    const std::shared_ptr<CDeviceBase> m_unknownFamily = std::make_shared<CDeviceBase>();
    QMap<QString, std::shared_ptr<CDeviceBase>> m_backEnds; ///< by family name
};

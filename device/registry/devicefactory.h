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
/// The comments of operations and signals that are only forwarded are summaries: the complete ones are those
/// of CDeviceBase under the same names. For an unknown family, an operation does nothing and returns an empty
/// value.
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

    /// Deletes the process-wide factory with its back ends and clears the registered families and port
    /// agent.
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
    /// Sets the IPv4 range of the next startSearch(): first and last address in host byte order, 0 in either
    /// for no range. The range must have passed searchRangeError().
    Q_INVOKABLE void setSearchByIPInfo(const QString &family, quint32 beginip, quint32 endip)
    {
        backEnd(family)->setSearchByIPInfo(beginip, endip);
    }
    /// The IPv4 rows (JSON objects with the keys of DeviceRowKey) that pass a filter of RowFilter.
    Q_INVOKABLE QVariantList filterData(const QString &family, const QString &filtertype,
                                        const QString &searchtext = QString())
    {
        return backEnd(family)->filterData(filtertype, searchtext);
    }
    /// The same for the IPv6 rows.
    Q_INVOKABLE QVariantList filterDataIPV6(const QString &family, const QString &filtertype,
                                            const QString &searchtext = QString())
    {
        return backEnd(family)->filterDataIPV6(filtertype, searchtext);
    }
    /// Changes the address of the device of the row `mac` (name of a row) to these dotted IPv4 texts, or to
    /// DHCP. Blocks. The result is in "res" of the row.
    Q_INVOKABLE void modifyIP(const QString &family, const QString &mac, const QString &newip,
                              const QString &newsubmask, const QString &newgateway, bool dhcpON)
    {
        backEnd(family)->modifyIP(mac, newip, newsubmask, newgateway, dhcpON);
    }
    /// Sets the account for logins to devices without an account in their row and without a stored one.
    Q_INVOKABLE void setDefaultAccount(const QString &family, const QString &account, const QString &password)
    {
        backEnd(family)->setDefaultAccount(account, password);
    }
    /// Creates the first account of the device of the row `mac`. Blocks. The result is in "res" of the row.
    Q_INVOKABLE void setInitAccount(const QString &family, const QString &mac, const QString &account,
                                    const QString &password)
    {
        backEnd(family)->setInitAccount(mac, account, password);
    }
    /// Replaces the default account for these logins until setDefaultAccount() sets a different one.
    Q_INVOKABLE void setFollowingAccount(const QString &family, const QString &account,
                                         const QString &password)
    {
        backEnd(family)->setFollowingAccount(account, password);
    }
    /// The account that a login to the device would use now, a map with the keys of AccountKey. `name` is the
    /// name of a row, or an "address:port".
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

    // These two remove rows of the IPv4 list or, with "IPV6" as the last argument, of the IPv6 list: the row
    // `mac`, or the rows that the keys of `macs` name. They also release the local ports of deleted devices
    // behind NAT, except the port of the current session.
    Q_INVOKABLE void setDeleteDevice(const QString &family, const QString &mac, const QString &ipvision);
    Q_INVOKABLE void setBatchDeleteDevice(const QString &family, const QVariantMap &macs,
                                          const QString &ipversion);
    /// The row of this name, of either list, with values of its search record and without the password.
    /// Nothing is sent to the device.
    Q_INVOKABLE QVariantMap getDeviceDetail(const QString &family, const QString &mac)
    {
        return backEnd(family)->getDeviceDetail(mac);
    }
    /// getDeviceDetail() as text in the user's language, see DeviceDetail::textOf().
    Q_INVOKABLE QString getDeviceDetailString(const QString &family, const QString &mac);
    /// The IPv4 row at this "address:port", with its password; empty if there is none.
    Q_INVOKABLE QVariantMap getDeviceInfo(const QString &family, const QString &ipport)
    {
        return backEnd(family)->getDeviceInfo(ipport);
    }
    /// Logs in to the devices of a list file (a path or "file:///" URL) and adds their rows. Blocks. False if
    /// the complete list is refused, see importError(). The summary (see ImportSummary) is returned in `msg`:
    /// its properties "total" and "errcount" are set, or, if `msg` is a function, it is called with the two
    /// numbers in this order.
    Q_INVOKABLE bool importDevice(const QString &family, const QString &path, QJSValue msg);
    /// Writes the IPv4 rows of these names to the list file `fileName` in `folder`; the suffix selects the
    /// format. The file contains passwords in plain text, but not those of stored accounts. False if no row
    /// is left or the file cannot be written.
    Q_INVOKABLE bool exportDevice(const QString &family, const QString &folder, const QStringList &macs,
                                  const QString &fileName)
    {
        return backEnd(family)->exportDevice(folder, macs, fileName);
    }
    /// Logs in to a device, adds or replaces its row on success, and logs out. Blocks. Returns a LoginResult.
    /// `loginType` is 0 for a device at `address` and `port`, 1 for a device behind NAT with the P2P ID
    /// `address`, the local port `port` and the service port `devp2pPort`. Also releases local ports that the
    /// device does not need any more.
    Q_INVOKABLE int getLoginDevice(const QString &family, const QString &address, const QString &account,
                                   const QString &password, const QString &port, int loginType = 0,
                                   const QString &devp2pPort = QString());
    /// passwordStrength() of the password, 0 to 3.
    Q_INVOKABLE int getPassWordType(const QString &password);
    /// Sets the firmware file (a path or "file:///" URL) of a row; empty removes it.
    Q_INVOKABLE void setUpgradeFilePath(const QString &family, const QString &mac, const QString &path)
    {
        backEnd(family)->setUpgradeFilePath(mac, path);
    }
    /// Upgrades the devices of these rows with their files. Returns immediately.
    Q_INVOKABLE void startUpgrade(const QString &family, const QStringList &macs)
    {
        backEnd(family)->startUpgrade(macs);
    }
    /// Upgrades the devices of upgrade documents (workbooks). Blocks while it reads the documents.
    Q_INVOKABLE void startUpgradeByDocument(const QString &family, const QStringList &paths)
    {
        backEnd(family)->startUpgradeByDocument(paths);
    }
    /// Requests a stop of the upgrade of a row; ignored while the device writes the firmware.
    Q_INVOKABLE void stopUpgrade(const QString &family, const QString &mac)
    {
        backEnd(family)->stopUpgrade(mac);
    }
    /// Opens the template of upgrade documents in the default application of the system. Returns false if the
    /// file is missing or there is no application for it.
    Q_INVOKABLE bool openTemplate();
    /// The lines of an upgrade document, maps with the keys of ListLineKey, without starting upgrades. Empty
    /// if it is refused, see importError().
    Q_INVOKABLE QVariantList importUpgradeDocument(const QString &family, const QString &file)
    {
        return backEnd(family)->importUpgradeDocument(file);
    }
    /// The resultName() of a result code.
    Q_INVOKABLE QString getErrorName(int error);
    /// Logs in for the current session, which it replaces on success. Blocks. Returns a LoginResult.
    Q_INVOKABLE int findAndLoginDevice(const QString &family, const QString &ipport, const QString &account,
                                       const QString &password)
    {
        return backEnd(family)->findAndLoginDevice(ipport, account, password);
    }
    /// Sets the value of `key` (see DeviceRowKey) in the row `mac` or, if there is none, in the first row at
    /// `ipport`. Nothing is sent to the device. Returns whether there is such a row.
    Q_INVOKABLE bool updataDeviceInfo(const QString &family, const QString &key, const QVariant &newValue,
                                      const QString &mac, const QString &ipport)
    {
        return backEnd(family)->updataDeviceInfo(key, newValue, mac, ipport);
    }

    // Operations on the current session, the one login of the configuration pages. They block for its device.

    /// Reads the capabilities of the camera of the image page.
    Q_INVOKABLE void getCameraConfig(const QString &family) { backEnd(family)->getCameraConfig(); }
    /// The value of a key of SessionKey, EncodeKey or CameraKey in the state of the session; invalid if the
    /// key is unknown or the value was not read. `channel` (from 0) is used for the names of channels only.
    /// Only SessionKey::channelName and SessionKey::connectedChannels send a request, and block. With the key
    /// "loginHandle": any thread.
    Q_INVOKABLE QVariant getConfigData(const QString &family, const QString &key,
                                       const QVariant &channel = QVariant())
    {
        return backEnd(family)->getConfigData(key, channel);
    }
    /// Reads the choices and the values of the encode page, and the colours of its channel.
    Q_INVOKABLE void getEncodeCaps(const QString &family) { backEnd(family)->getEncodeCaps(); }
    /// Sets a value. Values of the image page, names of channels and EncodeKey::subCurResolution are written
    /// to the device immediately. Other encode values are only stored, until confirmConfigData(). The
    /// selected channels, stream type and image mode are not sent. `otype` is the setting of an image group,
    /// or the channel (from 0) of a name; otherwise it is ignored.
    Q_INVOKABLE void setConfigData(const QString &family, const QString &key, const QVariant &value,
                                   const QString &otype = QString())
    {
        backEnd(family)->setConfigData(key, value, otype);
    }
    /// Reads SessionKey::channelNames or SessionKey::channelsConnected from the device, of the first
    /// `channelNum` channels, of all for 0 or less. Empty without a session.
    Q_INVOKABLE QVariantList getDeviceChannelData(const QString &family, const QString &key, int channelNum)
    {
        return backEnd(family)->getDeviceChannelData(key, channelNum);
    }
    /// Writes the encode values of the selected channel to the device.
    Q_INVOKABLE void confirmConfigData(const QString &family) { backEnd(family)->confirmConfigData(); }
    /// Reads the image settings of the selected channel; signalChangeVideoType follows.
    Q_INVOKABLE void getVideoIn(const QString &family) { backEnd(family)->getVideoIn(); }
    /// The same with signalChangeVideoChannel.
    Q_INVOKABLE void getVideoInByChangeChannel(const QString &family)
    {
        backEnd(family)->getVideoInByChangeChannel();
    }
    /// Reads the encode values of the selected channel; signalChangeEncodeChannel follows.
    Q_INVOKABLE void getEncodeInfo(const QString &family) { backEnd(family)->getEncodeInfo(); }
    /// Copies the encode values of the session to the devices at these addresses and ports.
    /// signalRetToCopyConfig reports each result.
    Q_INVOKABLE void copyConfigToDevice(const QString &family, const QStringList &devlist)
    {
        backEnd(family)->copyConfigToDevice(devlist);
    }
    /// Runs a command of SystemCommand with its data (keys of SystemDataKey) on each device. Blocks.
    /// signalRetToSystemConfig reports each result.
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
    /// Whether a device of any family is being upgraded, or results of an upgrade document are not written
    /// yet.
    Q_INVOKABLE bool hasDeviceUpgrading();
    /// Takes snapshots in the current session into the folder `address` in the folder of snapshots: of all
    /// channels (`kind` "liveCapture") or of one ("againCapture"). Returns immediately.
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
    /// CDeviceBase::exportProtected(). An empty `passphrase` means a list that is not encrypted.
    Q_INVOKABLE bool exportProtected(const QString &family, const QString &folder, const QStringList &macs,
                                     const QString &fileName, bool leavesOutPasswords,
                                     const QString &passphrase)
    {
        return backEnd(family)->exportProtected(
            folder, macs, fileName, {.leavesOutPasswords = leavesOutPasswords, .passphrase = passphrase});
    }
    /// Strings that the format of the last exported list cannot keep: maps with the keys of ExportFaultKey.
    Q_INVOKABLE QVariantList exportFaults(const QString &family) { return backEnd(family)->exportFaults(); }
    /// The lines of the last imported list that failed: maps with the keys of ListLineKey.
    Q_INVOKABLE QVariantList importFailures(const QString &family)
    {
        return backEnd(family)->importFailures();
    }
    /// Why the last importDevice() or importUpgradeDocument() was refused, in the user's language; empty if
    /// it was not.
    Q_INVOKABLE QString importError(const QString &family) { return backEnd(family)->importError(); }
    /// Logs in to the device, reads its properties and logs out. Blocks. A map with the keys of
    /// DeviceDetailKey; "loginResult" is the LoginResult.
    Q_INVOKABLE QVariantMap readDeviceDetail(const QString &family, const QString &ipport)
    {
        return backEnd(family)->readDeviceDetail(ipport);
    }

    /// The results of the latest upgrade documents, in the user's language. Empty while their upgrades run.
    Q_INVOKABLE QString upgradeDocumentResult(const QString &family)
    {
        return backEnd(family)->upgradeDocumentResult();
    }
    /// The number of devices that finished documents have upgraded.
    Q_INVOKABLE int upgradeDocumentSuccesses(const QString &family)
    {
        return backEnd(family)->upgradeDocumentSuccesses();
    }
    /// The names of the rows whose last upgrade failed and may succeed if repeated.
    Q_INVOKABLE QStringList upgradesToRetry(const QString &family)
    {
        return backEnd(family)->upgradesToRetry();
    }

    /// Numbers of lines of the latest upgrade documents, a map with the keys of ProgressKey.
    Q_INVOKABLE QVariantMap upgradeDocumentProgress(const QString &family)
    {
        return backEnd(family)->upgradeDocumentProgress();
    }

    /// Makes the current session one with this device. A session in which the device responds is kept, unless
    /// `isGivenNow` is set: the user has just entered the account. `readsChannels`: the channels are also
    /// read if the session is kept. Returns immediately; signalSessionOpened follows, unless openSession() or
    /// stopOpeningSession() is called before, or another page logs in to another device.
    Q_INVOKABLE void openSession(const QString &family, const QString &ipport, const QString &account,
                                 const QString &password, bool readsChannels, bool isGivenNow = false)
    {
        backEnd(family)->openSession(ipport, account, password, readsChannels, isGivenNow);
    }
    /// Cancels openSession(), without a signal.
    Q_INVOKABLE void stopOpeningSession(const QString &family) { backEnd(family)->stopOpeningSession(); }
    /// Checks whether the device responds in the session; signalSessionChecked follows.
    Q_INVOKABLE void checkSession(const QString &family) { backEnd(family)->checkSession(); }

    /// Queries the devices of these IPv4 rows again in the background.
    Q_INVOKABLE void refreshDevices(const QString &family, const QStringList &macs)
    {
        backEnd(family)->refreshDevices(macs);
    }

    /// Ends the running search and keeps its rows; signalSearchDone reports the end.
    Q_INVOKABLE void stopSearch(const QString &family) { backEnd(family)->stopSearch(); }

    /// Releases the registered local ports of devices that are no longer listed, except those of a current
    /// session. Must be called on the main thread after steps have added or replaced rows.
    void releaseUnneededP2PPorts();

    /// Logs in to the device and out again; returns a LoginResult. Any thread; blocks it.
    int checkLogin(const QString &family, const QString &ipport, const QString &account,
                   const QString &password)
    {
        return backEnd(family)->checkLogin(ipport, account, password);
    }
    // NOLINTEND(readability-make-member-function-const)

Q_SIGNALS:
    // The signals of the back ends, see forwardedSignals, without "CDevice" in their names.

    void signalAddDeviceToTable();        ///< the running search has added or removed rows
    void signalSearchCount(int devCount); ///< number of IPv4 rows found so far
    void signalSearchDone();              ///< a search has ended
    void signalAddSingleDeviceToTable();  ///< rows were added, changed or removed outside a search
    void signalUpdateSchedule(int value); ///< progress of all running upgrades in percent
    /// Progress of an upgrade document (its path) in percent; 100 when its results are written.
    void signalUpdateScheduleUpgradeByDocument(const QString &filename, int value);
    void signalShowUpgradeFinishTip(); ///< all upgrades have finished
    /// The result (see resultName()) of a device of copyConfigToDevice().
    void signalRetToCopyConfig(const QString &ipport, int result);
    /// The result of a device of systemConfig(); -1 from "loginCheck" if the password is correct.
    void signalRetToSystemConfig(const QString &ipport, int result);
    void signalSystemConfigEnablePassword();    ///< "loginCheck" has succeeded for at least one device
    void signalHighLevelLoginRet(int loginRet); ///< LoginResult of a login for the current session
    /// The result of an operation on the current session: 0, 1 (unreadable configuration), 10 (unknown
    /// capabilities), LoginResult::Upgrading, or an error of the network library.
    void signalGetDeviceCapRet(int GetDeviceCapRet);
    void signalChangeVideoType();     ///< the image settings were read, or a change of one has failed
    void signalChangeVideoChannel();  ///< those of another channel were read
    void signalChangeEncodeChannel(); ///< the encode values were read
    /// The names of the encode values that the device has refused, one line for each; empty on success.
    void signalConfirmEncodeConfig(const QString &resStr);
    void signalSetChannelNameFinished(); ///< channel names were written
    /// A snapshot of `channel` (from 0) is finished. `path` is "file:///" and the absolute path of the file,
    /// empty on failure; `message` is then the reason.
    void signalSnapPictureToFile(int channel, const QString &path, const QString &message);
    /// The same for a snapshot of the kind "againCapture".
    void signalSnapPictureToFileAgain(int channel, const QString &path, const QString &message);
    /// The tunnel behind a local port is broken; with an empty `deviceId`, all tunnels are.
    void signalTunnelBroken(const QString &deviceId, int localPort);
    void signalImportProgress(int done, int total); ///< numbers of devices of the list of importDevice()
    /// openSession() has ended with a LoginResult. `channels` are maps with the keys of ChannelKey.
    void signalSessionOpened(const QString &ipport, int result, const QVariantList &channels);
    void signalSessionChecked(bool responses); ///< result of checkSession()
    /// A search has ended with `rows` rows, the maximum; `leftOut` responses were dropped.
    void signalSearchLimited(int rows, int leftOut);
    void signalSearchProgress(int percent); ///< of the running search, 0 to 100
    /// An operation of the configuration pages has changed a setting (of WrittenSetting) of a device.
    void signalSettingWritten(const QString &ipport, const QString &setting, int channel,
                              const QString &value);

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

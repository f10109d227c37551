#pragma once

#include "device/registry/deviceimages.h"
#include "device/registry/deviceimport.h"
#include "device/registry/deviceinspection.h"
#include "device/registry/listprotection.h"
#include "device/registry/ownsession.h"
#include "device/registry/pagestep.h"
#include "device/registry/upgradeplan.h"

#include <QObject>
#include <QStringList>
#include <QVariant>

#include <memory>
#include <tuple>

class BeforeImages;
class P2PPorts;

/// Result of importing a device list file. Both are 0 if the list is refused.
struct ImportSummary
{
    int total = 0;    ///< number of devices in the file
    int errcount = 0; ///< number of those devices that could not be added
};

/// The back end of one family of devices. It accesses the devices with the family's library. CDeviceFactory
/// owns one back end for each family name, forwards the operations of QML to it and forwards its signals.
///
/// Thread: operations are called on the main thread unless stated otherwise. Signals are emitted on any
/// thread. A family overrides the operations that it supports; the others do nothing and return an empty
/// value (false, 0, an empty string or list), so this class itself is the back end of a family without
/// operations.
///
/// Parameters: `ipport` is the "address:port" of a device, an IPv6 address in brackets. `mac` is the name of
/// a row: its MAC, or another identity if the device has not reported a MAC, see rowName(). `macs` are such
/// names. `newip`, `newsubmask` and `newgateway` are dotted IPv4 texts. "Blocks" means: until the device
/// responds or the timeouts of the network library have passed.
///
/// Rows: a row is a JSON object or map with the keys of DeviceRowKey. Its search record is the last search
/// response of its device. The current session is the one login that the back end keeps for the configuration
/// pages.
class CDeviceBase : public QObject
{
    Q_OBJECT
public:
    explicit CDeviceBase(QObject *parent = nullptr) : QObject(parent) {}

    // The order of the virtual operations is part of the interface, since back ends may be compiled
    // separately. New operations are added at the end.

    /// Starts a search for devices in the background. The search first removes the rows, except those of
    /// devices with failed operations (DeviceStore::setKept()). Returns immediately; signalCDeviceSearchDone
    /// reports the end. The back end reads its settings itself: whether the local segment is
    /// searched, and whether the search logs in to found devices that lack model, version or MAC.
    virtual void startSearch() {}
    /// Sets the range that the next startSearch() searches; later searches have no range unless it is set
    /// again. Addresses in host byte order; 0 in either for no range. The range must have passed
    /// searchRangeError().
    virtual void setSearchByIPInfo(quint32 /*beginip*/, quint32 /*endip*/) {}
    /// The IPv4 rows (JSON objects) that pass a filter of RowFilter, see filteredRows().
    virtual QVariantList filterData(const QString & /*filtertype*/, const QString & /*searchtext*/)
    {
        return {};
    }
    /// The same for the IPv6 rows.
    virtual QVariantList filterDataIPV6(const QString & /*filtertype*/, const QString & /*searchtext*/)
    {
        return {};
    }
    /// Changes the address of the device of an IPv4 row; the texts are ignored with `dhcpON`. Blocks. The
    /// LoginResult is written to "res" of the row. Once the request was sent, the row shows the new address
    /// (an empty one with `dhcpON`), also after a failure; "unconfirmed" is true then. Without a search
    /// record nothing is sent, but the row is changed as after a success: the record must exist.
    virtual void modifyIP(const QString & /*mac*/, const QString & /*newip*/, const QString & /*newsubmask*/,
                          const QString & /*newgateway*/, bool /*dhcpON*/)
    {
    }
    /// Sets the account for logins to devices without an account in their row and without a stored one, see
    /// AccountChoice.
    virtual void setDefaultAccount(const QString & /*account*/, const QString & /*password*/) {}
    /// Initialises the device of an IPv4 row: creates its first account. Blocks. The LoginResult is written
    /// to "res" of the row. After a successful request, the row also gets the account. Without a search
    /// record nothing is sent, but the result is a success: the record must exist.
    virtual void setInitAccount(const QString & /*mac*/, const QString & /*account*/,
                                const QString & /*password*/)
    {
    }
    /// Removes a row from the list; nothing is sent to the device. "IPV6" as the last argument means the IPv6
    /// list, any other text the IPv4 list. The row of a device that is being upgraded stays.
    virtual void setDeleteDevice(const QString & /*mac*/, const QString & /*ipvision*/) {}
    /// The same for the rows whose names are the keys of `macs`; its values are ignored.
    virtual void setBatchDeleteDevice(const QVariantMap & /*macs*/, const QString & /*ipversion*/) {}
    /// The IPv4 row at an address, with its password; empty if there is none.
    virtual QVariantMap getDeviceInfo(const QString & /*ipport*/) { return {}; }
    /// The row of either list without its password. The values of the search record of an IPv4 row are added
    /// with the keys of DeviceDetailKey. "username" is that of the stored account if logins use it. Nothing
    /// is sent to the device. Empty if there is neither a row nor a search record of this name.
    virtual QVariantMap getDeviceDetail(const QString & /*mac*/) { return {}; }
    /// The same for the IPv4 row at an address.
    virtual QVariantMap getDeviceDetailByAddress(const QString & /*ipport*/) { return {}; }
    /// Logs in to a device, adds or replaces its row on success, and logs out. Blocks. Returns a LoginResult;
    /// signalCDeviceAddSingleDeviceToTable follows a success. `loginType` is 0 for a device at `address` and
    /// `port`; `devicePort` is ignored then. It is 1 for a device behind NAT: `address` is its P2P ID, `port`
    /// the local port of the tunnel, `devicePort` the service port of the device itself.
    virtual int getLoginDevice(const QString & /*address*/, const QString & /*account*/,
                               const QString & /*password*/, const QString & /*port*/, int /*loginType*/,
                               const QString & /*devicePort*/)
    {
        return {};
    }
    /// Sets the firmware file of a row: a path or "file:///" URL, empty to remove the file. Nothing is sent.
    /// "upgraderes" of the row is then the reason why the file cannot be used, or UpgradeTools::None. Does
    /// nothing while the device is being upgraded.
    virtual void setUpgradeFilePath(const QString & /*mac*/, const QString & /*path*/) {}
    /// Upgrades the devices of these rows with their files. Returns immediately. The rows show progress and
    /// result; signalCDeviceUpdateSchedule and signalCDeviceShowUpgradeFinishTip report them.
    virtual void startUpgrade(const QStringList & /*macs*/) {}
    /// Upgrades the devices in these upgrade documents (workbooks with devices and firmware files). Blocks
    /// while it reads the documents, then returns. The results are written to the documents at the end, which
    /// signalCDeviceUpdateScheduleUpgradeByDocument reports.
    virtual void startUpgradeByDocument(const QStringList & /*paths*/) {}
    /// Requests a stop of the upgrade of a row. Ignored while the device writes the firmware.
    virtual void stopUpgrade(const QString & /*mac*/) {}
    /// Reads an upgrade document without starting upgrades. Returns a map for each line, with the keys of
    /// ListLineKey. Empty for a document that is refused; importError() returns the reason then.
    virtual QVariantList importUpgradeDocument(const QString & /*file*/) { return {}; }
    /// Logs in to the device for the current session, which it replaces on success. Blocks. Returns a
    /// LoginResult and emits signalCDeviceHighLevelLoginRet with it. The earlier session is kept after a
    /// failure.
    virtual int findAndLoginDevice(const QString & /*ipport*/, const QString & /*account*/,
                                   const QString & /*password*/)
    {
        return {};
    }
    /// Sets the value of `key` (see DeviceRowKey) in the row `mac` of either list or, if there is none, in
    /// the first row at `ipport`. Nothing is sent to the device. Returns whether there is such a row. For the
    /// key "name", which several pages show, emits signalCDeviceAddSingleDeviceToTable later; for other keys
    /// no signal.
    virtual bool updataDeviceInfo(const QString & /*key*/, const QVariant & /*newValue*/,
                                  const QString & /*mac*/, const QString & /*ipport*/)
    {
        return {};
    }

    // Operations on the current session. The pages read with them into the session's state and get the values
    // by getConfigData(). They block for the device of the session. signalCDeviceGetDeviceCapRet reports
    // failures, and the results of getEncodeCaps() and getEncodeInfo().

    /// Reads the capabilities of the camera of the image page. getVideoIn() reads its settings.
    virtual void getCameraConfig() {}
    /// Reads the choices and the values of the encode page, and the colours of its channel.
    virtual void getEncodeCaps() {}
    /// The value of a key of SessionKey, EncodeKey or CameraKey in the session's state; invalid if the key is
    /// unknown or the value was not read. `channel` (from 0) is used for the names of channels only. Only
    /// SessionKey::channelName and SessionKey::connectedChannels send a request, and block.
    virtual QVariant getConfigData(const QString & /*key*/, const QVariant & /*channel*/) { return {}; }
    /// Sets a value. Values of the image page, names of channels and EncodeKey::subCurResolution are written
    /// to the device immediately. Other encode values are only stored, until confirmConfigData(). The
    /// selected channels, stream type and image mode (CameraKey::curSwitchMode) are not sent. `otype` is the
    /// setting of an image group, or the channel (from 0) of a name; otherwise it is ignored. Unknown keys
    /// and invalid values have no effect.
    virtual void setConfigData(const QString & /*key*/, const QVariant & /*value*/, const QString & /*otype*/)
    {
    }
    /// Reads a value of each channel from the device: SessionKey::channelNames or
    /// SessionKey::channelsConnected. The list covers the first `channelNum` channels, all of them for 0 or
    /// less. Empty without a session, and for another key.
    virtual QVariantList getDeviceChannelData(const QString & /*key*/, int /*channelNum*/) { return {}; }
    /// Writes the encode values of the selected channel to the device; signalCDeviceConfirmEncodeConfig
    /// reports which of them were not written.
    virtual void confirmConfigData() {}
    /// Reads the image settings of the selected channel; emits signalCDeviceChangeVideoType.
    virtual void getVideoIn() {}
    /// The same with signalCDeviceChangeVideoChannel.
    virtual void getVideoInByChangeChannel() {}
    /// Copies the encode values of the session to the devices at these addresses and ports, one after
    /// another, and blocks for them; signalCDeviceRetToCopyConfig reports the result of each.
    virtual void copyConfigToDevice(const QStringList & /*devlist*/) {}
    /// Reads the encode values of the selected channel; emits signalCDeviceChangeEncodeChannel.
    virtual void getEncodeInfo() {}

    /// Keeps its position in the order of the operations. Nothing calls it.
    virtual void unusedOperation() {}
    /// Runs a command of SystemCommand on each device. Blocks. signalCDeviceRetToSystemConfig reports the
    /// result of each, except for "cancelLogin", and for "modifyPassword" on a device whose login
    /// "loginCheck" has not kept. `data` has the keys of SystemDataKey.
    virtual void systemConfig(const QString & /*command*/, const QVariantMap & /*data*/,
                              const QStringList & /*ipports*/)
    {
    }
    /// Takes snapshots in the current session into the folder `address` in the folder of snapshots. `kind` is
    /// "liveCapture" for all channels (`channelNum` is ignored) or "againCapture" for the channel
    /// `channelNum` (from 0). Returns immediately; signalSnapPictureToFile or signalSnapPictureToFileAgain
    /// reports each snapshot.
    virtual void snapPictureToFile(const QString & /*kind*/, const QVariant & /*channelNum*/,
                                   const QString & /*address*/)
    {
    }
    /// Whether the firmware of any device is being upgraded, or the results of a document are not written
    /// yet.
    virtual bool hasDeviceUpgrading() { return {}; }

    /// Logs in to the devices of a list file (a path or "file:///" URL) and adds their rows. Blocks for all
    /// devices. Returns false if the complete list is refused, see importError(). Devices that could not be
    /// added are in importFailures() and are no reason for false.
    virtual bool importDevice(const QString & /*path*/, ImportSummary & /*summary*/) { return {}; }
    /// Writes the IPv4 rows of these names to a list file, replacing an existing one; the suffix of
    /// `fileName` selects the format. `folder` is a path or "file:///" URL. Names with neither an IPv4 row
    /// nor a search record are left out. The file contains passwords in plain text, but not those of stored
    /// accounts. Returns false if no device is left or the file cannot be written.
    virtual bool exportDevice(const QString & /*folder*/, const QStringList & /*macs*/,
                              const QString & /*fileName*/)
    {
        return {};
    }
    /// Keeps its position in the order of the operations. Nothing calls it.
    virtual void unusedListOperation() {}

    /// The lines of the last imported list whose devices could not be added, in the order of the file: maps
    /// with the keys of ListLineKey, see importFailure().
    virtual QVariantList importFailures() { return {}; }
    /// The reason why the last importDevice() or importUpgradeDocument() was refused completely, in the
    /// user's language; empty if it was not.
    virtual QString importError() { return {}; }

    /// Logs in to the device and out again, and returns a LoginResult; Upgrading, without a request, during
    /// an upgrade of the device. The current session is not affected. Any thread; blocks it.
    virtual int checkLogin(const QString & /*ipport*/, const QString & /*account*/,
                           const QString & /*password*/)
    {
        return {};
    }

    /// Logs in to the device with the account of accountOf(), reads all its properties and logs out. Blocks.
    /// The map contains "loginResult" (a LoginResult) and, as far as the device has responded, other keys of
    /// DeviceDetailKey, "mac", "model" and "vision".
    virtual QVariantMap readDeviceDetail(const QString & /*ipport*/) { return {}; }

    /// Called by the destructor of the factory. Ends running upgrades, snapshots and batch steps. May block.
    virtual void factoryEnds() {}

    // "The latest documents" are those of the last startUpgradeByDocument(), upgradeDocumentSteps() or
    // repeatedDocumentStep(), and those that were not finished at that call.

    /// Results of the latest documents, one line for each document, in the user's language. Empty while their
    /// upgrades are running.
    virtual QString upgradeDocumentResult() { return {}; }

    /// Progress of the latest documents, a map with the keys of ProgressKey: numbers of lines.
    virtual QVariantMap upgradeDocumentProgress() { return {}; }

    /// Makes the current session one with this device. A session in which the device responds is kept, unless
    /// `isGivenNow` is set: the user has just entered the account. Otherwise logs in, which
    /// signalCDeviceHighLevelLoginRet reports as well; the earlier session is kept after a failure. Returns
    /// immediately; signalCDeviceSessionOpened reports the end, unless openSession() or stopOpeningSession()
    /// is called before, or another page logs in to another device. `readsChannels`: the channels are also
    /// read if the session is kept. Without `isGivenNow`, an account that the device no longer accepts in the
    /// session is not tried again in a new login.
    virtual void openSession(const QString & /*ipport*/, const QString & /*account*/,
                             const QString & /*password*/, bool /*readsChannels*/, bool /*isGivenNow*/)
    {
    }
    /// Cancels openSession(). No signal reports its end; the current session is kept.
    virtual void stopOpeningSession() {}
    /// Checks whether the device responds in the current session. Returns immediately;
    /// signalCDeviceSessionChecked reports the result.
    virtual void checkSession() {}

    /// The number of devices that the latest documents have upgraded, as far as the documents are finished.
    virtual int upgradeDocumentSuccesses() { return {}; }

    /// The names of the rows, of both lists, whose last upgrade failed in a way that a repetition may
    /// succeed.
    virtual QStringList upgradesToRetry() { return {}; }

    /// The strings of the last exported list that its file format cannot keep, so that they differ when the
    /// file is read again: maps with the keys of ExportFaultKey.
    virtual QVariantList exportFaults() { return {}; }

    /// Whether the current session is with the device at this "address:port", also when its row was removed.
    virtual bool isInSession(const QString & /*ipport*/) { return {}; }

    /// Queries the devices of these IPv4 rows again, see DeviceRefresh::start(). Returns immediately;
    /// signalCDeviceAddSingleDeviceToTable reports changed rows. The end is not reported.
    virtual void refreshDevices(const QStringList & /*macs*/) {}

    /// Ends the running search and keeps its rows. Returns immediately; signalCDeviceSearchDone reports the
    /// end.
    virtual void stopSearch() {}

    // Steps: the work of an operation with one device, as a function for any thread except the main thread. A
    // comment "For x()" means: the step does the work of x() with one device, and its outcome is the result
    // of x(). Steps are created on the main thread and may run until the back end is destroyed. The step of a
    // family without the operation returns LoginResult::NotSupported.

    /// For systemConfig(), `command` and `data` as there. In addition, the command "readTime" reads the
    /// device's clock: the text of the outcome is its time, compared with the host's.
    virtual DeviceStep systemStep(const QString &command, const QVariantMap &data, const QString &ipport);
    /// For setInitAccount(). NotSupported, without a request, if there is no search record, or if the record
    /// has neither a MAC nor a UUID.
    virtual DeviceStep initialisationStep(const QString &mac, const QString &account,
                                          const QString &password);
    /// For modifyIP(). NotSupported as in initialisationStep(); the address of the row is unchanged then.
    virtual DeviceStep addressStep(const QString &mac, const QString &newip, const QString &newsubmask,
                                   const QString &newgateway, bool dhcpON);
    /// For copyConfigToDevice(). Copies the values that the current session has read before this call. The
    /// text of the outcome lists the values that the device does not take.
    virtual DeviceStepMaker encodeCopy();
    /// For snapPictureToFile() with "liveCapture": a step for each channel of the current session, in their
    /// order. Each step emits signalSnapPictureToFile on its thread, unless it is ended early. Empty without
    /// a session.
    virtual QList<DeviceStep> snapshotSteps(const QString & /*address*/) { return {}; }
    /// For getLoginDevice(). Opens the local ports of a device behind NAT itself, and closes them after a
    /// failure. For a device that is not behind NAT, the result is LoginResult::AlreadyListed, without a
    /// request, if a row has this address and port.
    virtual DeviceStep addingStep(const DeviceToAdd &device);

    /// Reads a device list and returns the steps of importDevice(), without running them. Any thread; blocks
    /// it while reading the file. `path` is a path or "file:///" URL. `passphrase` is that of an encrypted
    /// list; empty for other lists.
    virtual ImportPlan importPlan(const QString & /*path*/, const QString & /*passphrase*/) { return {}; }

    /// For exportDevice(), with passwords protected as `protection` states. Returns false if the passphrase
    /// does not fit the format of `fileName`.
    virtual bool exportProtected(const QString & /*folder*/, const QStringList & /*macs*/,
                                 const QString & /*fileName*/, const ListProtection & /*protection*/)
    {
        return {};
    }

    /// The row of this name, of either list; empty if there is none. It may contain the password. The default
    /// converts getDeviceDetail().
    virtual QJsonObject deviceRow(const QString &name);

    /// For refreshDevices(), but in the step itself, see DeviceRefresh::locate(). Blocks for about 6 s for up
    /// to 4096 devices. The outcome is a success, also if no device responds.
    virtual DeviceStep locationStep(const QStringList &macs);

    // Steps of pages. They are created on the main thread.

    /// For findAndLoginDevice(). The value of the outcome is its result, a LoginResult.
    virtual PageStep loginStep(const QString &ipport, const QString &account, const QString &password);
    /// For operations in the session that is current when the step is created. The outcome is discarded if
    /// another session is current when it is taken. Values that are set on the main thread while the step
    /// runs are lost: the page blocks its input.
    virtual PageStep sessionStep(const SessionJob &job);
    /// For readDeviceDetail(). The value of the outcome is its map. Taking the outcome also writes the MAC of
    /// the device to its row, if the row has none.
    virtual PageStep detailStep(const QString &ipport);

    /// Runs a step on a thread of the back end and returns immediately. `ended` is called on the main thread
    /// with the outcome, whose `take` it must call unless that is empty. If `stop` is requested before the
    /// end of the step, the step runs to its next safe point, its outcome is dropped, and `ended` is not
    /// called. After a later request, `ended` may still be called. A family without operations runs the step,
    /// and calls `ended`, in this call.
    virtual void runForPage(const PageStep &step, const std::stop_token &stop,
                            const std::function<void(const PageOutcome &outcome)> &ended);

    // Upgrades.

    /// For startUpgrade(). "upgraderes" of the row is UpgradeTools::Waiting from this call on and later shows
    /// the progress. It becomes UpgradeTools::Stopped after stopUpgrade() and when the step is destroyed
    /// without having run. The result of the outcome is that of UpgradeTools::batchResult().
    virtual DeviceStep upgradeStep(const QString &mac);
    /// For importUpgradeDocument(). The value is a map of "refusal", the reason why the document cannot be
    /// used in the user's language, and "lines", the result of importUpgradeDocument() with the row of each
    /// line as "device".
    virtual PageStep upgradeDocumentReading(const QString &path);
    /// For startUpgradeByDocument(), for the lines with these numbers. The step of a line that cannot be
    /// upgraded returns the reason. Empty for a document that is refused. A document that was read and whose
    /// file is unchanged is not read again.
    virtual QList<UpgradeDocumentStep> upgradeDocumentSteps(const QString & /*path*/,
                                                            const QList<int> & /*lines*/)
    {
        return {};
    }
    /// upgradeStep() for a device whose upgrade from a document line has failed. The result is also written
    /// to the document, when all repeated lines are done.
    virtual DeviceStep repeatedDocumentStep(const QString &mac);
    /// The plan of upgradeStep() for each of these rows, from the rows and their files.
    virtual QList<PlannedUpgrade> plannedUpgrades(const QStringList &macs);
    /// setUpgradeFilePath() for many rows; reads the file once. Returns for each row an UpgradeTools::Result:
    /// the reason why it cannot be upgraded with the file, or None. NotListed for a name without a row;
    /// DeviceBusy during an upgrade, when the row is not changed.
    virtual QList<int> setUpgradeFiles(const QStringList &macs, const QString &path);
    /// The names of the rows that upgrades have changed since the last call of this function.
    virtual QStringList takeChangedUpgrades() { return {}; }
    /// The account that a login to the device would use now, see AccountChoice: a map with the keys of
    /// AccountKey. `name` is the name of a row, or its address and port. Without a row: the default account.
    virtual QVariantMap accountOf(const QString & /*name*/) { return {}; }

    /// Logs in to a device with the account of accountOf(), takes images of its channels one after another,
    /// and logs out. The current session is not affected. The outcome is NotDone if the step was ended
    /// between two channels, also after some images. Otherwise it is a failure only if no image was taken,
    /// and the text of a success states how many are missing.
    virtual DeviceStep imageStep(const ImageOrder &order);
    /// Logs in to a device in a separate session, for live video. Steps for several devices may run at the
    /// same time.
    virtual OwnSessionStep ownSessionStep(const OwnSessionOrder &order);
    /// Sets the account of all devices without an account in their row and without a stored one. It replaces
    /// the default account until setDefaultAccount() sets a different one.
    virtual void setFollowingAccount(const QString & /*account*/, const QString & /*password*/) {}
    /// Logs in to a device with the account of accountOf(), reads its properties, the main stream of each
    /// channel, its clock and its time server, and logs out. The current session is not affected. A device
    /// that is not initialised or is being upgraded gets no request.
    virtual DeviceStep inspectionStep(const InspectionOrder &order);

    /// checkLogin() as a function for any thread. It must not be called after the back end is destroyed.
    using LoginCheck =
        std::function<int(const QString &ipport, const QString &account, const QString &password)>;
    [[nodiscard]] LoginCheck loginCheck();

    /// Sets the local ports of devices behind NAT. Called by the factory before any operation, and with null
    /// at its end.
    void setP2PPorts(std::shared_ptr<P2PPorts> ports);

    /// Sets where the images from before a change of image settings are stored. Without it, none is taken.
    /// Called before any operation.
    void setBeforeImages(std::shared_ptr<BeforeImages> images);

Q_SIGNALS:
    void signalCDeviceAddDeviceToTable();        ///< the running search has added or removed rows
    void signalCDeviceSearchCount(int devCount); ///< number of IPv4 rows found so far
    void signalCDeviceSearchDone();              ///< a search has ended
    void signalCDeviceAddSingleDeviceToTable();  ///< rows were added, changed or removed outside a search
    void signalCDeviceUpdateSchedule(int value); ///< progress of all running upgrades in percent
    /// Progress of a document in percent; 100 when its results are written. `filename` is its path as passed
    /// to startUpgradeByDocument().
    void signalCDeviceUpdateScheduleUpgradeByDocument(const QString &filename, int value);
    /// All upgrades have finished, and the results of documents are written.
    void signalCDeviceShowUpgradeFinishTip();
    /// The result of a device of copyConfigToDevice(): a LoginResult or another code of resultName().
    void signalCDeviceRetToCopyConfig(const QString &ipport, int result);
    /// The same for systemConfig(). The command "loginCheck" reports -1 if the password is correct.
    void signalCDeviceRetToSystemConfig(const QString &ipport, int result);
    /// The command "loginCheck" has succeeded for at least one device: a new password can be set.
    void signalCDeviceSystemConfigEnablePassword();
    /// The LoginResult of a login for the current session.
    void signalCDeviceHighLevelLoginRet(int loginRet);
    /// The result of an operation on the current session: 0 on success, 1 for an unreadable configuration, 10
    /// for unknown capabilities, LoginResult::Upgrading, or an error of the network library.
    void signalCDeviceGetDeviceCapRet(int GetDeviceCapRet);
    void signalCDeviceChangeVideoType();     ///< the image settings were read, or a change of one has failed
    void signalCDeviceChangeVideoChannel();  ///< those of another channel were read
    void signalCDeviceChangeEncodeChannel(); ///< the encode values were read
    /// The names of the items (groups of encode values, see EncodeItemIndex) that were not written, one line
    /// for each, in the user's language: the device has refused them, or they were not read before. Empty on
    /// success. During an upgrade of the device the text of LoginResult::Upgrading. Also emitted for values
    /// that setConfigData() wrote immediately and the device refused.
    void signalCDeviceConfirmEncodeConfig(const QString &resStr);
    /// A series of channel names was written (see SessionKey::channelNamesSaved), with or without failures,
    /// or the name of the image page's channel was written with success.
    void signalCDeviceSetChannelNameFinished();
    /// A snapshot of `channel` (from 0) is finished. `path` is "file:///" and the absolute path of the file,
    /// empty on failure; `message` is then the reason in the user's language.
    void signalSnapPictureToFile(int channel, const QString &path, const QString &message);
    /// The same for a snapshot of the kind "againCapture".
    void signalSnapPictureToFileAgain(int channel, const QString &path, const QString &message);
    /// The tunnel behind a local port to the device with this P2P ID is broken; emitted only if a row uses
    /// the port. If `deviceId` is empty, the tunnels of all devices are broken, and `localPort` has no
    /// meaning.
    void signalCDeviceTunnelBroken(const QString &deviceId, int localPort);
    void signalCDeviceImportProgress(int done, int total); ///< numbers of devices of the list
    /// openSession() has ended. `result` is a LoginResult. `channels` are maps with the keys of ChannelKey;
    /// empty when they were not read.
    void signalCDeviceSessionOpened(const QString &ipport, int result, const QVariantList &channels);
    /// The result of checkSession(): the device responds. False without a session.
    void signalCDeviceSessionChecked(bool responses);
    /// A finished search found more devices than it lists: `rows` are listed, `leftOut` responses are not.
    void signalCDeviceSearchLimited(int rows, int leftOut);
    void signalCDeviceSearchProgress(int percent); ///< of the running search, 0 to 100
    /// An operation of the configuration pages has changed a setting of the device at `ipport`. `setting` is
    /// a key of WrittenSetting, `channel` is from 0. `value` is the new value, "true" or "false" for a
    /// switch, empty if it has no short form.
    void signalCDeviceSettingWritten(const QString &ipport, const QString &setting, int channel,
                                     const QString &value);

protected:
    /// The local ports of setP2PPorts(); null before it and at the end of the factory. Any thread.
    [[nodiscard]] const std::shared_ptr<P2PPorts> &p2pPorts() const { return m_p2pPorts; }
    /// The images of setBeforeImages(); may be null. Any thread.
    [[nodiscard]] const std::shared_ptr<BeforeImages> &beforeImages() const { return m_beforeImages; }

private:
    std::shared_ptr<P2PPorts> m_p2pPorts;
    std::shared_ptr<BeforeImages> m_beforeImages;
};

/// The signals of a back end in the order of their declaration. A signal outside this list cannot be emitted
/// by BackEndSignals, and CDeviceFactory does not compile unless it forwards each signal of the list.
inline constexpr std::tuple forwardedSignals(
    &CDeviceBase::signalCDeviceAddDeviceToTable, &CDeviceBase::signalCDeviceSearchCount,
    &CDeviceBase::signalCDeviceSearchDone, &CDeviceBase::signalCDeviceAddSingleDeviceToTable,
    &CDeviceBase::signalCDeviceUpdateSchedule, &CDeviceBase::signalCDeviceUpdateScheduleUpgradeByDocument,
    &CDeviceBase::signalCDeviceShowUpgradeFinishTip, &CDeviceBase::signalCDeviceRetToCopyConfig,
    &CDeviceBase::signalCDeviceRetToSystemConfig, &CDeviceBase::signalCDeviceSystemConfigEnablePassword,
    &CDeviceBase::signalCDeviceHighLevelLoginRet, &CDeviceBase::signalCDeviceGetDeviceCapRet,
    &CDeviceBase::signalCDeviceChangeVideoType, &CDeviceBase::signalCDeviceChangeVideoChannel,
    &CDeviceBase::signalCDeviceChangeEncodeChannel, &CDeviceBase::signalCDeviceConfirmEncodeConfig,
    &CDeviceBase::signalCDeviceSetChannelNameFinished, &CDeviceBase::signalSnapPictureToFile,
    &CDeviceBase::signalSnapPictureToFileAgain, &CDeviceBase::signalCDeviceTunnelBroken,
    &CDeviceBase::signalCDeviceImportProgress, &CDeviceBase::signalCDeviceSessionOpened,
    &CDeviceBase::signalCDeviceSessionChecked, &CDeviceBase::signalCDeviceSearchLimited,
    &CDeviceBase::signalCDeviceSearchProgress, &CDeviceBase::signalCDeviceSettingWritten);

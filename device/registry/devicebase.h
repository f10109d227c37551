#pragma once

#include "device/registry/deviceimport.h"
#include "device/registry/devicepictures.h"
#include "device/registry/ownsession.h"
#include "device/registry/pagestep.h"
#include "device/registry/upgradeplan.h"

#include <QObject>
#include <QStringList>
#include <QVariant>

#include <memory>
#include <tuple>

class P2PPorts;

/// Result of importing a device list file.
struct ImportSummary
{
    int total = 0;    ///< devices in the file
    int errcount = 0; ///< devices of the file that could not be added
};

/// The back end of one family of devices. It accesses the devices with the family's library. CDeviceFactory
/// owns one back end for each family name, forwards the operations of QML to it and forwards its signals.
///
/// Thread: operations are called on the main thread unless stated otherwise. Signals are emitted on any
/// thread. A family overrides the operations that it supports; the others do nothing and return an empty
/// value, so this class itself is the back end of a family without operations.
///
/// Parameters: `ipport` is the "address:port" of a device, an IPv6 address in brackets. `mac` is the name of
/// a row: its MAC, or another identity if the device has not reported a MAC, see rowName().
class CDeviceBase : public QObject
{
    Q_OBJECT
public:
    explicit CDeviceBase(QObject *parent = nullptr) : QObject(parent) {}

    // The order of the virtual operations is part of the interface, since back ends may be compiled
    // separately. New operations are added at the end.

    virtual void startSearch() {}
    /// Addresses in host byte order; 0 for no range.
    virtual void setSearchByIPInfo(quint32 /*beginip*/, quint32 /*endip*/) {}
    virtual QVariantList filterData(const QString & /*filtertype*/, const QString & /*searchtext*/)
    {
        return {};
    }
    virtual QVariantList filterDataIPV6(const QString & /*filtertype*/, const QString & /*searchtext*/)
    {
        return {};
    }
    virtual void modifyIP(const QString & /*mac*/, const QString & /*newip*/, const QString & /*newsubmask*/,
                          const QString & /*newgateway*/, bool /*dhcpON*/)
    {
    }
    virtual void setDefaultAccount(const QString & /*account*/, const QString & /*password*/) {}
    virtual void setInitAccount(const QString & /*mac*/, const QString & /*account*/,
                                const QString & /*password*/)
    {
    }
    virtual void setDeleteDevice(const QString & /*mac*/, const QString & /*ipvision*/) {}
    virtual void setBatchDeleteDevice(const QVariantMap & /*macs*/, const QString & /*ipversion*/) {}
    virtual QVariantMap getDeviceInfo(const QString & /*ipport*/) { return {}; }
    virtual QVariantMap getDeviceDetail(const QString & /*mac*/) { return {}; }
    virtual QVariantMap getDeviceDetailByAddress(const QString & /*ipport*/) { return {}; }
    virtual int getLoginDevice(const QString & /*address*/, const QString & /*account*/,
                               const QString & /*password*/, const QString & /*port*/, int /*loginType*/,
                               const QString & /*devicePort*/)
    {
        return {};
    }
    virtual void setUpgradeFilePath(const QString & /*mac*/, const QString & /*path*/) {}
    virtual void startUpgrade(const QStringList & /*macs*/) {}
    virtual void startUpgradeByDocument(const QStringList & /*paths*/) {}
    virtual void stopUpgrade(const QString & /*mac*/) {}
    /// A map for each line of the document, with the keys of UpgradeLineKey. importError() returns why a
    /// document is refused.
    virtual QVariantList importUpgradeDocument(const QString & /*file*/) { return {}; }
    virtual int findAndLoginDevice(const QString & /*ipport*/, const QString & /*account*/,
                                   const QString & /*password*/)
    {
        return {};
    }
    /// Emits signalCDeviceAddSingleDeviceToTable later if the name has changed: several pages show it.
    virtual bool updataDeviceInfo(const QString & /*key*/, const QVariant & /*newValue*/,
                                  const QString & /*mac*/, const QString & /*ipport*/)
    {
        return {};
    }
    virtual void getCameraConfig() {}
    virtual void getEncodeCaps() {}
    virtual QVariant getConfigData(const QString & /*key*/, const QVariant & /*channel*/) { return {}; }
    virtual void setConfigData(const QString & /*key*/, const QVariant & /*value*/, const QString & /*otype*/)
    {
    }
    virtual QVariantList getDeviceChannelData(const QString & /*key*/, int /*channelNum*/) { return {}; }
    virtual void confirmConfigData() {}
    virtual void getVideoIn() {}
    virtual void getVideoInByChangeChannel() {}
    virtual void copyConfigToDevice(const QStringList & /*devlist*/) {}
    virtual void getEncodeInfo() {}
    /// Keeps its position in the order of the operations. Nothing calls it.
    virtual void unusedOperation() {}
    virtual void systemConfig(const QString & /*command*/, const QVariantMap & /*data*/,
                              const QStringList & /*ipports*/)
    {
    }
    virtual void snapPictureToFile(const QString & /*kind*/, const QVariant & /*channelNum*/,
                                   const QString & /*address*/)
    {
    }
    virtual bool hasDeviceUpgrading() { return {}; }

    virtual bool importDevice(const QString & /*path*/, ImportSummary & /*summary*/) { return {}; }
    virtual bool exportDevice(const QString & /*folder*/, const QStringList & /*macs*/,
                              const QString & /*fileName*/)
    {
        return {};
    }
    /// Keeps its position in the order of the operations. Nothing calls it.
    virtual void unusedListOperation() {}

    /// The lines of the last imported list whose devices could not be added, in the order of the file: maps
    /// with the keys of ImportFailureKey.
    virtual QVariantList importFailures() { return {}; }
    /// The reason why the last list or document was refused completely, in the user's language; otherwise
    /// empty.
    virtual QString importError() { return {}; }

    /// Logs in to the device and out again, and returns a LoginResult. The current session is not affected.
    /// Any thread; blocks it.
    virtual int checkLogin(const QString & /*ipport*/, const QString & /*account*/,
                           const QString & /*password*/)
    {
        return {};
    }

    /// Logs in to the device as checkLogin() does and reads all its properties. Contains "loginResult" (a
    /// LoginResult) and keys of DeviceDetailKey.
    virtual QVariantMap readDeviceDetail(const QString & /*ipport*/) { return {}; }

    /// Called by the destructor of the factory. Ends the threads that call the factory.
    virtual void factoryEnds() {}

    /// Results of the documents of the last startUpgradeByDocument(), one line for each document, in the
    /// user's language. Empty while they are running.
    virtual QString upgradeDocumentResult() { return {}; }

    /// Progress of the documents of the last startUpgradeByDocument(): "total" and "done" number of lines.
    virtual QVariantMap upgradeDocumentProgress() { return {}; }

    /// Keeps the current session if it is with the device and the device responds in it, otherwise logs in,
    /// which is reported as by findAndLoginDevice(). Returns immediately; signalCDeviceSessionOpened reports
    /// the end, unless another login is requested before. With `readsChannels`, the channels of a kept
    /// session are read as well. A login that the device has refused in its session is repeated only with
    /// `isGivenNow`: the user has just entered it.
    virtual void openSession(const QString & /*ipport*/, const QString & /*account*/,
                             const QString & /*password*/, bool /*readsChannels*/, bool /*isGivenNow*/)
    {
    }
    /// Cancels openSession(). No signal reports its end.
    virtual void stopOpeningSession() {}
    /// Checks whether the device responds in the current session. Returns immediately;
    /// signalCDeviceSessionChecked reports the result.
    virtual void checkSession() {}

    /// The number of upgraded devices of the documents that are finished.
    virtual int upgradeDocumentSuccesses() { return {}; }

    /// The names of the rows, of both lists, whose upgrade failed in a way that may succeed later.
    virtual QStringList upgradesToRetry() { return {}; }

    /// The strings of the last exported list that change when its file is read: maps with the keys of
    /// ExportFaultKey.
    virtual QVariantList exportFaults() { return {}; }

    /// Whether the current session is with the device at this address, also when its row was removed.
    virtual bool isInSession(const QString & /*ipport*/) { return {}; }

    /// Queries the devices of these IPv4 rows again. Returns immediately; signalCDeviceAddSingleDeviceToTable
    /// reports changed rows.
    virtual void refreshDevices(const QStringList & /*macs*/) {}

    /// Ends the running search and keeps its rows. signalCDeviceSearchDone reports the end.
    virtual void stopSearch() {}

    // Steps: the work of an operation with one device, for any thread. They are created on the main thread
    // and may run until the back end is destroyed. The default returns LoginResult::NotSupported.

    /// For systemConfig(). With "timeOfRequest" in `data`, "time" is the time of the request of this device.
    /// The command "readTime" reads the device's clock: the text of the outcome is its time, compared with
    /// the host's.
    virtual DeviceStep systemStep(const QString &command, const QVariantMap &data, const QString &ipport);
    /// For setInitAccount().
    virtual DeviceStep initialisationStep(const QString &mac, const QString &account,
                                          const QString &password);
    /// For modifyIP().
    virtual DeviceStep addressStep(const QString &mac, const QString &newip, const QString &newsubmask,
                                   const QString &newgateway, bool dhcpON);
    /// For copyConfigToDevice(). Copies the values that the current session has read before this call. The
    /// text of the outcome lists the values that the device does not take.
    virtual DeviceStepMaker encodeCopy();
    /// For snapPictureToFile() with "liveCapture": a step for each channel of the current session, in their
    /// order. Each emits signalSnapPictureToFile on its thread. Empty without a session.
    virtual QList<DeviceStep> snapshotSteps(const QString & /*address*/) { return {}; }
    /// Logs in to a device and adds its row, as getLoginDevice() does. Opens and closes the local ports of a
    /// device behind NAT. LoginResult::AlreadyListed if a row has this address and port.
    virtual DeviceStep addingStep(const DeviceToAdd &device);

    /// Reads a device list for importDevice(). Any thread; blocks it while reading the file.
    virtual ImportPlan importPlan(const QString & /*path*/) { return {}; }

    /// The row of a device, of either list; empty if there is none. The default converts getDeviceDetail().
    virtual QJsonObject deviceRow(const QString &name);

    /// For refreshDevices(), with one query at the addresses of the rows, before devices are searched by
    /// their MACs. Blocks up to 6 s.
    virtual DeviceStep locationStep(const QStringList &macs);

    // Steps of pages. They are created on the main thread.

    /// For findAndLoginDevice(). The value of the outcome is its result.
    virtual PageStep loginStep(const QString &ipport, const QString &account, const QString &password);
    /// For operations in the session that is current when the step is created. The outcome is discarded if
    /// another session is current when it is taken. Values that are set on the main thread while the step
    /// runs are lost: the page blocks its input.
    virtual PageStep sessionStep(const SessionJob &job);
    /// For readDeviceDetail(). The value of the outcome is its result.
    virtual PageStep detailStep(const QString &ipport);

    /// Runs a step on a thread of the back end and returns immediately. `ended` is called on the main thread
    /// with the outcome, unless `stop` was requested before: the step then runs to its next safe point and
    /// its outcome is dropped. The default runs the step in the call.
    virtual void runForPage(const PageStep &step, const std::stop_token &stop,
                            const std::function<void(const PageOutcome &outcome)> &ended);

    // Upgrades. Rows are named by MAC, or by address and port if they have none.

    /// For startUpgrade(). The row shows immediately that it is waiting, and later the progress. It shows a
    /// stopped upgrade after stopUpgrade() and when the step is destroyed without having run.
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
    /// upgradeStep() for a device whose line of a document was upgraded before. The result is also written to
    /// the file, when the other repeated lines are done.
    virtual DeviceStep repeatedDocumentStep(const QString &mac);
    /// The plan of upgradeStep() for each of these rows, from the rows and their files.
    virtual QList<PlannedUpgrade> plannedUpgrades(const QStringList &macs);
    /// setUpgradeFilePath() for many rows; reads the file once. Returns for each row an UpgradeTools::Result:
    /// the reason why it cannot be upgraded with the file, or None.
    virtual QList<int> setUpgradeFiles(const QStringList &macs, const QString &path);
    /// The names of the rows that upgrades have changed since the last call.
    virtual QStringList takeChangedUpgrades() { return {}; }
    /// The account that the device is logged in to with, see AccountChoice: the keys of AccountKey. `name` is
    /// the name of a row, or its address and port.
    virtual QVariantMap accountOf(const QString & /*name*/) { return {}; }

    /// Logs in to a device with the account of accountOf(), takes images of its channels one after another,
    /// and logs out. The current session is not affected.
    virtual DeviceStep pictureStep(const PictureOrder &order);
    /// Logs in to a device in a separate session, for live video. Any thread; for several devices at the same
    /// time.
    virtual OwnSessionStep ownSessionStep(const OwnSessionOrder &order);
    /// Replaces the default account until setDefaultAccount() sets another one.
    virtual void setFollowingAccount(const QString & /*account*/, const QString & /*password*/) {}

    /// checkLogin() as a function for any thread, until the back end is destroyed.
    using LoginCheck =
        std::function<int(const QString &ipport, const QString &account, const QString &password)>;
    [[nodiscard]] LoginCheck loginCheck();

    /// Sets the local ports of devices behind NAT. Called by the factory before any operation, and with null
    /// at its end.
    void setP2PPorts(std::shared_ptr<P2PPorts> ports);

Q_SIGNALS:
    void signalCDeviceAddDeviceToTable();        ///< the running search has added rows
    void signalCDeviceSearchCount(int devCount); ///< number of IPv4 rows found so far
    void signalCDeviceSearchDone();              ///< a search has ended
    void signalCDeviceAddSingleDeviceToTable();  ///< rows were added or changed outside a search
    void signalCDeviceUpdateSchedule(int value); ///< progress of an upgrade in percent
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
    /// The refused values, one line for each; empty on success. Also emitted for values that setConfigData()
    /// wrote immediately and the device refused.
    void signalCDeviceConfirmEncodeConfig(const QString &resStr);
    void signalCDeviceSetChannelNameFinished();
    void signalSnapPictureToFile(int channel, const QString &path, const QString &message);
    void signalSnapPictureToFileAgain(int channel, const QString &path, const QString &message);
    void signalCDeviceTunnelBroken(const QString &deviceId, int localPort); ///< empty `deviceId`: all devices
    void signalCDeviceImportProgress(int done, int total); ///< numbers of devices of the list
    /// `result` is a LoginResult. `channels` are maps with the keys of ChannelKey; empty when they were not
    /// read.
    void signalCDeviceSessionOpened(const QString &ipport, int result, const QVariantList &channels);
    void signalCDeviceSessionChecked(bool answers); ///< also false without a session
    /// A finished search found more devices than it lists: `rows` are listed, `leftOut` responses are not.
    void signalCDeviceSearchLimited(int rows, int leftOut);
    void signalCDeviceSearchProgress(int percent); ///< of the running search, 0 to 100

protected:
    /// Null for none. Any thread.
    [[nodiscard]] const std::shared_ptr<P2PPorts> &p2pPorts() const { return m_p2pPorts; }

private:
    std::shared_ptr<P2PPorts> m_p2pPorts;
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
    &CDeviceBase::signalCDeviceSearchProgress);

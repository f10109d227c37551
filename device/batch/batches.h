#pragma once

#include "device/batch/batch.h"
#include "device/batch/batchresultsfile.h"
#include "device/models/failedmarks.h"

#include <QThreadPool>
#include <QVariantMap>

#include <optional>

class CDeviceFactory;
class DeviceStore;

/// The batches of the session, and the place where the scene starts one. One batch runs at a time; another
/// one is refused until it has ended. While it runs, the busy state knows it.
///
/// Lives on the scene's thread.
class Batches : public QObject
{
    Q_OBJECT
    Q_PROPERTY(Batch *current READ current NOTIFY currentChanged)
    Q_PROPERTY(bool running READ isRunning NOTIFY runningChanged)
    Q_PROPERTY(FailedMarks *failedMarks READ failedMarks CONSTANT)
public:
    /// Batches that are kept, the running one included.
    static constexpr int maximumKept = 50;

    /// `factory` and `engine` live longer than this. `atOnce` tells how many devices are worked on at the
    /// same time.
    Batches(CDeviceFactory &factory, BatchEngine &engine, std::function<int()> atOnce,
            QObject *parent = nullptr);

    /// Waits for results that are being written.
    ~Batches() override;

    /// The last one that was started; null before the first.
    [[nodiscard]] Batch *current() const { return m_kept.isEmpty() ? nullptr : m_kept.constLast(); }
    [[nodiscard]] bool isRunning() const { return current() && current()->isRunning(); }
    [[nodiscard]] const QList<Batch *> &kept() const { return m_kept; }

    /// The devices that the batches of the session failed with or did not come to.
    [[nodiscard]] FailedMarks *failedMarks() { return &m_failedMarks; }

    /// Keeps the rows of marked devices in `store` through searches, until their marks are gone.
    void keepFailedIn(const std::shared_ptr<DeviceStore> &store);

    // Each starts a batch and returns it, or null after refused(). The scene does not own it.

    /// A command of systemConfig(), for devices by address and port. For "setTimeByPC" each device gets the
    /// time of its own request.
    Q_INVOKABLE Batch *configureSystem(const QString &family, const QString &command, const QString &title,
                                       const QVariantMap &data, const QStringList &ipports);

    /// A name for the first channel of each device, at its place in `names`. Devices go by address and port.
    /// The row of a camera that has taken its name shows it.
    Q_INVOKABLE Batch *nameCameras(const QString &family, const QString &title, const QStringList &ipports,
                                   const QStringList &names);

    /// First passwords for factory-new devices, one after another in the order of the list.
    Q_INVOKABLE Batch *setFirstPasswords(const QString &family, const QString &title, const QStringList &macs,
                                         const QString &account, const QString &password);

    /// A new address for each device, at its place in `addresses`; none with DHCP. One after another in the
    /// order of the list, but a device that gets the address of another one comes after it. Refused when
    /// there is no such order.
    Q_INVOKABLE Batch *changeAddresses(const QString &family, const QString &title, const QStringList &macs,
                                       const QStringList &addresses, const QString &mask,
                                       const QString &gateway, bool dhcp);

    /// What putAddressesBack() gives to which device, as BatchPreview::setEntries() takes it: the settings
    /// that the changed devices of an ended changeAddresses() had before. A device that has not answered is
    /// one of them: it may have changed its address nevertheless.
    Q_INVOKABLE [[nodiscard]] QVariantList addressesToPutBack(Batch *batch) const;

    /// Puts the addresses of these devices of the batch back, by identity. Devices that do not respond at the
    /// addresses of their rows, or that have no row any more, are searched by their MACs first.
    Q_INVOKABLE Batch *putAddressesBack(Batch *batch, const QString &title, const QStringList &identities);

    /// The encode settings of the current session's channel, for devices by address and port.
    Q_INVOKABLE Batch *copyEncodeSettings(const QString &family, const QString &title,
                                          const QStringList &ipports);

    /// Snapshots of all channels of the current session, one after another. `ipport` names its device,
    /// `channelNames` its channels, `folder` the folder of the pictures.
    Q_INVOKABLE Batch *takeSnapshots(const QString &family, const QString &title, const QString &ipport,
                                     const QStringList &channelNames, const QString &folder);

    /// The program ends during the batch that runs: it is stopped, and the log names the devices that are not
    /// done.
    Q_INVOKABLE void giveUp() const;

    /// The devices of an ended batch again that may succeed in another try.
    Q_INVOKABLE Batch *retry(Batch *batch);

    /// The same for the device with this identity only.
    Q_INVOKABLE Batch *retryDevice(Batch *batch, const QString &identity);

    /// Writes what has come of each device until now to a file, on a thread of its own: a workbook, or
    /// comma-separated text for a name that ends in ".csv". resultsSaved() follows.
    Q_INVOKABLE void saveResults(Batch *batch, const QString &path);

    /// The same for all batches that are kept, in one file.
    Q_INVOKABLE void saveAllResults(const QString &path);

    /// The accounts of devices have changed.
    void noteAccounts() const;

    /// For a plan whose steps log in with the accounts of the rows.
    [[nodiscard]] std::function<DeviceAccount(const BatchDevice &device)>
    rowAccounts(const QString &family) const;

    /// How many devices are worked on at the same time, and how long a step may take, unless the work says
    /// otherwise.
    [[nodiscard]] BatchPolicy usualPolicy() const;

    /// Whether a batch may start now; otherwise refused() says why not.
    Q_INVOKABLE [[nodiscard]] bool mayStart();

    Batch *start(BatchPlan plan);

Q_SIGNALS:
    void currentChanged();
    void runningChanged();
    void refused(const QString &message);

    void retried(Batch *earlier, Batch *again); ///< before the first result of `again`

    /// `reason` tells why the file could not be written, in the words of the system; the file is then as it
    /// was. Empty on success.
    void resultsSaved(const QString &path, const QString &reason);

private:
    /// Whether the addresses of the devices are looked up before they are changed.
    enum class Locating
    {
        None,
        Before,
    };

    /// `targets` hold what each device gets, by identity.
    Batch *startAddresses(BatchPlan plan, const QHash<QString, AddressSettings> &targets,
                          Locating locating = Locating::None);
    /// A device of an ended batch as its row shows it now; as the batch left it when it has no row any more.
    [[nodiscard]] BatchDevice deviceNow(const BatchPlan &plan, const Batch::Entry &entry) const;
    /// What a device had before the last change of its address, if that failed: its row shows since then what
    /// it was asked for.
    [[nodiscard]] std::optional<AddressSettings> settingsBeforeFailure(const QString &identity) const;
    /// With an empty identity, all devices.
    Batch *retryWhere(Batch *batch, const QString &identity);
    void leaveOutMoved(BatchPlan &plan);
    /// A recorder has a name of its own, apart from that of its first channel.
    void noteCameraName(const QString &family, const BatchDevice &device, const QString &name);
    void saveRecords(const QList<BatchRecord> &records, const QString &path);
    void finish(Batch *batch, int work);
    void markFailed(const Batch &batch);
    /// Whether addresses may be changed now; otherwise refused() says why not.
    [[nodiscard]] bool mayChangeAddresses();

    CDeviceFactory &m_factory;
    BatchEngine &m_engine;
    const std::function<int()> m_atOnce;
    QList<Batch *> m_kept; ///< owned, oldest first
    FailedMarks m_failedMarks;
    QThreadPool m_files; ///< one thread, which writes results
};

#pragma once

#include "device/batch/batch.h"
#include "device/batch/batchresultsfile.h"
#include "device/models/failedmarks.h"

#include <QThreadPool>
#include <QVariantMap>

#include <optional>

class CDeviceFactory;
class DeviceStore;

/// Starts batches and keeps those of the session. One batch runs at a time; starting another one is refused
/// until it has ended. A running batch is registered in BusyState.
///
/// Lives on the main thread.
class Batches : public QObject
{
    Q_OBJECT
    Q_PROPERTY(Batch *current READ current NOTIFY currentChanged)
    Q_PROPERTY(bool running READ isRunning NOTIFY runningChanged)
    Q_PROPERTY(FailedMarks *failedMarks READ failedMarks CONSTANT)
public:
    /// Maximum number of batches that are kept, including the running one. The oldest one is deleted.
    static constexpr int maximumKept = 50;

    /// `factory` and `engine` must outlive this object. `maximumParallel` returns the maximum number of
    /// devices in parallel.
    Batches(CDeviceFactory &factory, BatchEngine &engine, std::function<int()> maximumParallel,
            QObject *parent = nullptr);

    /// Waits until pending result files are written.
    ~Batches() override;

    /// The latest batch; null before the first.
    [[nodiscard]] Batch *current() const { return m_kept.isEmpty() ? nullptr : m_kept.constLast(); }
    [[nodiscard]] bool isRunning() const { return current() && current()->isRunning(); }
    /// Oldest first.
    [[nodiscard]] const QList<Batch *> &kept() const { return m_kept; }

    /// Marks of the devices that failed, or were not reached, in the batches of the session.
    [[nodiscard]] FailedMarks *failedMarks() { return &m_failedMarks; }

    /// Keeps the rows of marked devices in `store` through searches.
    void keepFailedIn(const std::shared_ptr<DeviceStore> &store);

    // The functions below that return a batch have started it. They return null after refused(), or without
    // it if there is no device to work on. QML does not own the batch.

    /// Runs a command of CDeviceBase::systemConfig() for devices by address and port. "setTimeByPC" sends
    /// each device the time of its own request.
    Q_INVOKABLE Batch *configureSystem(const QString &family, const QString &command, const QString &title,
                                       const QVariantMap &data, const QStringList &ipports);

    /// Sets the name of channel 1 of each device; `names` is parallel to `ipports`. Updates the name in the
    /// rows of cameras.
    Q_INVOKABLE Batch *nameCameras(const QString &family, const QString &title, const QStringList &ipports,
                                   const QStringList &names);

    /// Initialises factory-new devices with an account, one device after another.
    Q_INVOKABLE Batch *initialiseDevices(const QString &family, const QString &title, const QStringList &macs,
                                         const QString &account, const QString &password);

    /// Changes the addresses of devices, one after another in the order of `macs`, but a device that gets the
    /// address of another one follows it. `addresses` is parallel to `macs`; the last address of a repeated
    /// MAC applies. With `dhcp`, `addresses`, `mask` and `gateway` are ignored. Refused if devices exchange
    /// addresses in a circle.
    Q_INVOKABLE Batch *changeAddresses(const QString &family, const QString &title, const QStringList &macs,
                                       const QStringList &addresses, const QString &mask,
                                       const QString &gateway, bool dhcp);

    /// The devices and settings of putAddressesBack(), as entries for BatchPreview::setEntries(): the
    /// settings before an ended changeAddresses(). Includes devices that did not respond, since their address
    /// may have changed nevertheless.
    Q_INVOKABLE [[nodiscard]] QVariantList addressesToPutBack(Batch *batch) const;

    /// Restores the addresses of the devices of the batch with these identities. Devices that do not respond
    /// at their rows' addresses, or have no row, are searched by MAC first. Null without refused() if `batch`
    /// is null or running.
    Q_INVOKABLE Batch *putAddressesBack(Batch *batch, const QString &title, const QStringList &identities);

    /// Copies the encode settings of the current session's channel to devices by address and port.
    Q_INVOKABLE Batch *copyEncodeSettings(const QString &family, const QString &title,
                                          const QStringList &ipports);

    /// Saves a snapshot of each channel of the current session to `folder`, one after another. `ipport` is
    /// the address and port of its device, `channelNames` are shown in the results.
    Q_INVOKABLE Batch *takeSnapshots(const QString &family, const QString &title, const QString &ipport,
                                     const QStringList &channelNames, const QString &folder);

    /// Stops the running batch because the application closes, and logs the devices that are not done.
    Q_INVOKABLE void stopForExit() const;

    /// Repeats an ended batch for the devices that may succeed now. If the steps log in by address, devices
    /// whose rows are gone or have other addresses now are left out, and reported by refused(). Null without
    /// refused() if `batch` is null or running.
    Q_INVOKABLE Batch *retry(Batch *batch);

    /// Same for the device with this identity only.
    Q_INVOKABLE Batch *retryDevice(Batch *batch, const QString &identity);

    /// Writes the results of a batch to a file on a separate thread: a workbook, or comma-separated text if
    /// the name ends in ".csv". resultsSaved() follows. Does nothing without a batch.
    Q_INVOKABLE void saveResults(Batch *batch, const QString &path);

    /// Same for all kept batches, in one file.
    Q_INVOKABLE void saveAllResults(const QString &path);

    /// Accounts of devices have changed: refused devices of the latest batch may be retryable.
    void noteAccounts() const;

    /// BatchPlan::accountOf for steps that log in with the accounts of the rows.
    [[nodiscard]] std::function<DeviceAccount(const BatchDevice &device)>
    rowAccounts(const QString &family) const;

    /// The default policy: devices in parallel as set by the user, deadline of 60 s, pause after 5 refusals.
    [[nodiscard]] BatchPolicy usualPolicy() const;

    /// Whether a batch can start now. If not, emits refused() with the reason.
    Q_INVOKABLE [[nodiscard]] bool mayStart();

    /// Starts a batch with this plan. Returns null after refused() if another batch runs or no thread is
    /// free.
    Batch *start(BatchPlan plan);

Q_SIGNALS:
    void currentChanged();
    void runningChanged();
    void refused(const QString &message);

    void retried(Batch *earlier, Batch *again); ///< emitted before the first result of `again`

    /// `reason` is the system's error message; the file is unchanged in that case. Empty on success.
    void resultsSaved(const QString &path, const QString &reason);

private:
    /// Whether the devices are searched by MAC before their addresses are changed.
    enum class Locating
    {
        None,
        Before,
    };

    /// `targets` are the new settings by identity.
    Batch *startAddresses(BatchPlan plan, const QHash<QString, AddressSettings> &targets,
                          Locating locating = Locating::None);
    /// The current row of a device of an ended batch; without a row, its state after the batch.
    [[nodiscard]] BatchDevice deviceNow(const BatchPlan &plan, const Batch::Entry &entry) const;
    /// The settings before the last address change of a device, if that failed. Its row shows the new address
    /// since then.
    [[nodiscard]] std::optional<AddressSettings> settingsBeforeFailure(const QString &identity) const;
    /// Retries the device with this identity, or all devices if it is empty.
    Batch *retryWhere(Batch *batch, const QString &identity);
    void removeMoved(BatchPlan &plan);
    /// Updates the row of a camera. A recorder's name is separate from the name of its channel 1.
    void noteCameraName(const QString &family, const BatchDevice &device, const QString &name);
    void saveRecords(const QList<BatchRecord> &records, const QString &path);
    void finish(Batch *batch, int work);
    void markFailed(const Batch &batch);
    /// Whether BusyState allows address changes now. If not, emits refused() with the reason.
    [[nodiscard]] bool mayChangeAddresses();

    CDeviceFactory &m_factory;
    BatchEngine &m_engine;
    const std::function<int()> m_maximumParallel;
    QList<Batch *> m_kept; ///< owned, oldest first
    FailedMarks m_failedMarks;
    QThreadPool m_files; ///< one thread, which writes results
};

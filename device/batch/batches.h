#pragma once

#include "device/batch/batch.h"
#include "device/models/failedmarks.h"

#include <QVariantMap>

#include <memory>

class BatchResultsWriter;
class CDeviceFactory;
class DeviceStore;

/// Starts batches and keeps the batches since the start of the application with their results. One batch runs
/// at a time; starting another one is refused until it has ended. A running batch is registered in BusyState,
/// so that pages refuse actions that would disturb it. Only the latest batch can be retried.
///
/// Lives on the main thread.
class Batches : public QObject
{
    Q_OBJECT
    Q_PROPERTY(Batch *current READ current NOTIFY currentChanged)
    Q_PROPERTY(bool running READ isRunning NOTIFY runningChanged)
    Q_PROPERTY(FailedMarks *failedMarks READ failedMarks CONSTANT)
public:
    /// Maximum number of batches that are kept, including the running one. When another batch starts, the
    /// oldest one is deleted.
    static constexpr int maximumKept = 50;

    /// `factory` and `engine` must outlive this object. `maximumParallel` returns the maximum number of
    /// devices in parallel.
    Batches(CDeviceFactory &factory, BatchEngine &engine, std::function<int()> maximumParallel,
            QObject *parent = nullptr);

    /// Waits until pending result files are written.
    ~Batches() override;

    /// The latest batch; null before the first.
    [[nodiscard]] Batch *current() const { return m_kept.isEmpty() ? nullptr : m_kept.constLast(); }
    /// Whether current() runs.
    [[nodiscard]] bool isRunning() const { return current() && current()->isRunning(); }
    /// Oldest first.
    [[nodiscard]] const QList<Batch *> &kept() const { return m_kept; }

    /// Marks of the devices that failed or were not done in the batches since the start of the application.
    /// Owned by this object.
    [[nodiscard]] FailedMarks *failedMarks() { return &m_failedMarks; }

    /// From now on, the searches of `store` keep the rows of marked devices, see DeviceStore::setKept().
    void keepFailedIn(const std::shared_ptr<DeviceStore> &store);

    // The functions below that return a batch have started it. A null return means that nothing was started;
    // refused() was emitted with the reason unless stated otherwise. QML does not own the batch. `title` is
    // the name of the work for the user, `ipports` are addresses and ports, `macs` are names of rows. Unless
    // stated otherwise, the steps log in with the accounts of the rows (CDeviceBase::accountOf()) and run in
    // parallel.

    /// Runs a command of CDeviceBase::systemConfig() for these devices; `data` as there. "setTimeByPC" sends
    /// each device the host's time at its request. The commands of a password change use the passwords in
    /// `data`.
    Q_INVOKABLE Batch *configureSystem(const QString &family, const QString &command, const QString &title,
                                       const QVariantMap &data, const QStringList &ipports);

    /// Sets the name of channel 1 of each device; `names` is parallel to `ipports`. After a success, the name
    /// in the row of a camera is updated; that of a recorder is its device name and stays.
    Q_INVOKABLE Batch *nameCameras(const QString &family, const QString &title, const QStringList &ipports,
                                   const QStringList &names);

    /// Initialises factory-new devices, one after another: creates this account on each device.
    Q_INVOKABLE Batch *initialiseDevices(const QString &family, const QString &title, const QStringList &macs,
                                         const QString &account, const QString &password);

    /// Changes the addresses of devices one after another, in the order of `macs`, except that a device that
    /// gets the address of another device of the batch is changed after that device. If that device keeps its
    /// address, no request is sent. `addresses` is parallel to `macs`; the last address of a repeated name
    /// applies. With `dhcp`, `addresses`, `mask` and `gateway` are ignored. Refused if devices exchange
    /// addresses in a circle.
    Q_INVOKABLE Batch *changeAddresses(const QString &family, const QString &title, const QStringList &macs,
                                       const QStringList &addresses, const QString &mask,
                                       const QString &gateway, bool dhcp);

    /// What putAddressesBack() would do for an ended batch that changed addresses: its devices, each with the
    /// settings before the batch, as entries for BatchPreview::setEntries(). Devices whose address is
    /// certainly unchanged are left out; devices that did not respond are included, since their address may
    /// have changed. Changes nothing. Empty if `batch` is null.
    Q_INVOKABLE [[nodiscard]] QVariantList addressesToPutBack(Batch *batch) const;

    /// Changes the devices of `batch` with these identities back to their settings before that batch. Devices
    /// that do not respond at their rows' addresses, or have no row, are searched by MAC or UUID first. Null
    /// without refused() if `batch` is null or running, or has none of the devices.
    Q_INVOKABLE Batch *putAddressesBack(Batch *batch, const QString &title, const QStringList &identities);

    /// Copies the encode settings of the current session's selected channel to these devices.
    Q_INVOKABLE Batch *copyEncodeSettings(const QString &family, const QString &title,
                                          const QStringList &ipports);

    /// Saves a snapshot of each channel of the current session to the folder `folder` in the folder of
    /// snapshots, one after another. `ipport` is the address and port of the session's device, `channelNames`
    /// are shown in the results. Cannot be retried. Null without refused() if there is no session.
    Q_INVOKABLE Batch *takeSnapshots(const QString &family, const QString &title, const QString &ipport,
                                     const QStringList &channelNames, const QString &folder);

    /// Stops the running batch because the application closes, and writes a log message with the devices that
    /// are not done. Does not wait. Does nothing without a running batch.
    Q_INVOKABLE void stopForExit() const;

    /// Repeats an ended batch for its Batch::devicesToRetry(). If the steps log in by address, devices whose
    /// rows are gone or have other addresses now are left out; refused() states them, also if a batch is
    /// started for the others. Null without refused() if `batch` is null or running, or has no device to
    /// retry.
    Q_INVOKABLE Batch *retry(Batch *batch);

    /// Same for the device with this identity only.
    Q_INVOKABLE Batch *retryDevice(Batch *batch, const QString &identity);

    /// Writes the results of a batch to the file `path` (a local path) on a separate thread and returns
    /// immediately, see saveBatchResults(). resultsSaved() follows. Does nothing if `batch` is null.
    Q_INVOKABLE void saveResults(Batch *batch, const QString &path);

    /// Same for all kept batches, in one file. Does nothing if there are none.
    Q_INVOKABLE void saveAllResults(const QString &path);

    /// Must be called after accounts of devices have changed: devices of the latest batch that refused their
    /// account may be retryable.
    void noteAccounts() const;

    /// Makes a step that runs before the step of a device, in the same turn; empty for none. `work` is
    /// BatchPlan::work. `usesRowAccount`: the step of the device logs in with the account of its row.
    using StepBefore =
        std::function<DeviceStep(const QString &work, bool usesRowAccount, const BatchDevice &device)>;
    /// Sets StepBefore for all following batches. If its step reports that the device refuses the account,
    /// that is the outcome, and the step of the device does not run: each attempt counts towards the
    /// device's lock. Any other failure is ignored.
    void setStepBefore(StepBefore stepBefore) { m_stepBefore = std::move(stepBefore); }

    /// A BatchPlan::accountOf for steps that log in with the accounts of the rows.
    [[nodiscard]] std::function<DeviceAccount(const BatchDevice &device)>
    rowAccounts(const QString &family) const;

    /// The default policy: the number of devices in parallel that the user has set, a deadline of 60 s for
    /// each step, a pause after 5 refused passwords in a row.
    [[nodiscard]] BatchPolicy usualPolicy() const;

    /// Whether no batch runs, so that a batch can start now. If one runs, emits refused() and returns false.
    Q_INVOKABLE [[nodiscard]] bool mayStart();

    /// Starts a batch with this plan and releases the steps of the earlier batches. Returns null after
    /// refused() if another batch runs or the engine does not accept the batch.
    Batch *start(BatchPlan plan);

Q_SIGNALS:
    void currentChanged();                ///< a batch has started, which is current() now
    void runningChanged();                ///< a batch has started or ended
    void refused(const QString &message); ///< reason or hint in the user's language

    /// `again` has started as a retry of `earlier`. Emitted before the first result of `again`.
    void retried(Batch *earlier, Batch *again);

    /// saveResults() or saveAllResults() has ended. `reason` is empty on success, otherwise an error message;
    /// the file is unchanged then.
    void resultsSaved(const QString &path, const QString &reason);

private:
    /// A plan without devices and steps: the usual policy and the accounts of the rows.
    [[nodiscard]] BatchPlan usualPlan(const QString &family, const QString &title) const;
    /// Retries the device with this identity, or all devices if it is empty.
    Batch *retryWhere(Batch *batch, const QString &identity);
    /// Removes devices whose row has another address now: another device may have the old address.
    void removeMoved(BatchPlan &plan);
    /// Adds the steps of m_stepBefore to those of the plan.
    void addStepBefore(BatchPlan &plan) const;
    void finish(Batch *batch, int work);
    void markFailed(const Batch &batch);
    /// Whether BusyState allows address changes now. If not, emits refused() with the reason.
    [[nodiscard]] bool mayChangeAddresses();

    CDeviceFactory &m_factory;
    BatchEngine &m_engine;
    const std::function<int()> m_maximumParallel;
    StepBefore m_stepBefore;
    QList<Batch *> m_kept; ///< owned, oldest first
    FailedMarks m_failedMarks;
    const std::unique_ptr<BatchResultsWriter> m_results;
};

// The devices and the work of a batch.
#pragma once

#include "device/accounts/accountchoice.h"
#include "device/batch/batchengine.h"

#include <QHash>
#include <QJsonObject>
#include <QList>
#include <QString>
#include <QVariantList>

#include <functional>

class CDeviceFactory;

/// Network settings of a device.
struct AddressSettings
{
    QString address;
    QString mask;
    QString gateway;
    bool dhcp = false;
};

/// A device of a batch.
struct BatchDevice
{
    QString name;             ///< name that the page uses: address and port, or MAC
    QString identity;         ///< name of its row, see rowName()
    QString ipport;           ///< address and port at the start of the batch; ":port" without an address
    QString title;            ///< name and model, shown to the user
    QString login = {};       ///< see BatchItem::login
    QString key = {};         ///< see workKey(); set at the start of the batch
    bool isUpgrading = false; ///< being upgraded at the start of the batch: gets no request
};

/// Result of one device of a batch.
struct BatchOutcome
{
    BatchDevice device;
    StepOutcome outcome;
};

/// Definition of a batch.
struct BatchPlan
{
    QString family; ///< of the devices
    QString title;  ///< name of the work, shown to the user

    /// Id of the work. Success in a batch removes the failed marks of earlier batches with the same id.
    /// Empty: `title` is the id.
    QString work = {};

    QList<BatchDevice> devices = {};
    BatchPolicy policy = {};

    /// Makes the step of a device. Called on the main thread, at the start and at each retry.
    std::function<DeviceStep(const BatchDevice &device)> stepOf = {};

    /// The account that the step of a device uses now. After a refused login, a device is retried only if
    /// this account has changed. Called on the main thread. Empty if the steps use other accounts.
    std::function<DeviceAccount(const BatchDevice &device)> accountOf = {};

    /// Runs once in each batch and each retry, on the thread of the first step, before that step. May be
    /// empty.
    DeviceStep preparation = {};

    /// Receives the results of devices in the order of completion, at most once every 16 ms, and at the end
    /// of the batch those of devices that were not reached. Called on the main thread, before
    /// Batch::resulted(). May be empty.
    std::function<void(const QList<BatchOutcome> &outcomes)> takeOutcomes = {};

    /// Whether the steps log in by address. Two rows with one address are then the same device.
    bool isByAddress = false;

    /// Whether failed devices can be retried in another batch.
    bool canBeRetried = true;

    /// Whether the work changes values in the rows. If so, the reached devices are queried again at the end.
    bool changesRows = false;

    /// Whether rows may not be removed from the list while the batch runs. Not needed for upgrades: the back
    /// end keeps the row of a device that is being upgraded.
    bool holdsRows = true;

    /// Whether results are written to "res" of the rows. The steps write their own results; the batch writes
    /// those of devices that were not done or are being upgraded.
    bool notesResults = false;

    /// Whether failed devices get a mark (FailedMarks). False for work that only reads from devices.
    bool marksFailed = true;

    /// Whether an upgrade state in a row is that of this batch itself, and is no reason to skip the device.
    bool rowsShowIt = false;

    QHash<QString, AddressSettings> addressesBefore = {}; ///< by identity; only for address changes
};

/// Makes the BatchDevice of a device that a page names by address and port or by MAC. Without a row, `name`
/// is also its identity and ipport. Main thread.
[[nodiscard]] BatchDevice batchDevice(CDeviceFactory &factory, const QString &family, const QString &name);
/// Same for several devices; duplicate names are removed.
[[nodiscard]] QList<BatchDevice> batchDevices(CDeviceFactory &factory, const QString &family,
                                              const QStringList &names);

/// Rows by "ipport". Of several rows with one address the first that is not offline; the last one if all are
/// offline.
[[nodiscard]] QHash<QString, QJsonObject> rowsByAddress(const QVariantList &rows);

/// The key of a device in BatchEngine. Batches and pages reserve the device with it. `rowThere` is the row
/// for `ipport` from rowsByAddress(), empty if there is none. `identity` is the key of a device without
/// address.
[[nodiscard]] QString workKey(const QJsonObject &rowThere, const QString &ipport, const QString &identity);

/// The MAC of a device; empty if its row has none.
[[nodiscard]] QString macOf(const BatchDevice &device);

/// The result of a device and its text, in the user's language.
[[nodiscard]] QString outcomeText(const StepOutcome &outcome);

/// Whether a retry with the same data may succeed.
[[nodiscard]] bool maySucceedLater(const StepOutcome &outcome);

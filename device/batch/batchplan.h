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

/// Network settings of a device: dotted IPv4 texts without a port. They are empty if unknown or if the device
/// gets them by DHCP.
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
    QString name;     ///< unique in the batch; the page's name: address and port, MAC, or other text
    QString identity; ///< name of its row, see rowName(); without a row, `name`
    /// Address and port at the start of the batch; ":port" without an address. Of a line of an imported list
    /// the address only.
    QString ipport;
    QString title;            ///< deviceTitle(): name and model, shown to the user
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
    QString family; ///< device family, see dhFamily
    QString title;  ///< name of the work, shown to the user

    /// Id of the work. If a device succeeds in the batch, its failed mark (FailedMarks) of earlier batches
    /// with the same id is removed. Empty: `title` is the id.
    QString work = {};

    QList<BatchDevice> devices = {};
    BatchPolicy policy = {};

    /// Makes the step of a device. Called on the main thread for each device that is not being upgraded, at
    /// the start and at each retry. Must not be empty at the start; it is released when the batch cannot be
    /// retried any more.
    std::function<DeviceStep(const BatchDevice &device)> stepOf = {};

    /// The account that the step of a device uses now. After a refused login, a device is retried only if
    /// this account has changed. Called on the main thread. Empty if the steps use other accounts.
    std::function<DeviceAccount(const BatchDevice &device)> accountOf = {};

    /// Runs once in each batch and each retry, on the thread of the first step, before that step; the other
    /// steps wait for it. Its outcome is ignored. May be empty.
    DeviceStep preparation = {};

    /// Receives the results of devices in the order of completion, at most once every 16 ms, and at the end
    /// of the batch those of devices that were not reached. Called on the main thread, before
    /// Batch::resulted(). May be empty.
    std::function<void(const QList<BatchOutcome> &outcomes)> takeOutcomes = {};

    /// Whether rows with the same address count as one device: after one of them has refused an account, the
    /// account is not tried for the others. True for steps that log in by address, and for address changes.
    bool isByAddress = false;

    /// Whether failed devices can be retried in another batch.
    bool canBeRetried = true;

    /// Whether the work changes values in the rows. If so, the reached devices are queried again at the end.
    bool changesRows = false;

    /// Whether rows may not be removed from the list while the batch runs. Not needed for upgrades: the back
    /// end keeps the row of a device that is being upgraded.
    bool holdsRows = true;

    /// Whether "res" of the rows shows the results. The steps themselves write it; if this is true, the batch
    /// writes it for the devices whose step did not run: not done, or being upgraded.
    bool notesResults = false;

    /// Whether failed devices get a mark (FailedMarks). False for work that only reads from devices.
    bool marksFailed = true;

    /// Whether a success has changed the device. False for work that only reads from devices or adds rows.
    bool changesDevices = true;

    /// The values that the work sets, as a short text in the user's language without secrets, for the record
    /// of changes. Empty if they differ between devices: the text of a successful outcome applies then.
    QString values = {};

    /// Whether the rows already show the upgrades of this batch when it starts. If so, a running upgrade in a
    /// row is no reason to skip the device.
    bool rowsShowIt = false;

    /// Settings of the devices before the batch, by identity; only for address changes, otherwise empty.
    QHash<QString, AddressSettings> addressesBefore = {};
};

/// Makes the BatchDevice of the row with this name (see rowName()) or, if there is none, of the row at this
/// address and port. Without a row, `name` is also its identity and ipport, and its title is empty. Main
/// thread.
[[nodiscard]] BatchDevice batchDevice(CDeviceFactory &factory, const QString &family, const QString &name);
/// Same for several devices, in their order; duplicate names are removed.
[[nodiscard]] QList<BatchDevice> batchDevices(CDeviceFactory &factory, const QString &family,
                                              const QStringList &names);

/// Rows (JSON objects) by "ipport". Of several rows with one address: the first one that is not "lost", or
/// the last one if all are lost.
[[nodiscard]] QHash<QString, QJsonObject> rowsByAddress(const QVariantList &rows);

/// The key of a device in BatchEngine (BatchItem::device), which batches and pages use for the same device.
/// `rowThere` is the row for `ipport` from rowsByAddress(), empty if there is none. The key is the name of
/// that row, `ipport` without a row, or `identity` if `ipport` has no address.
[[nodiscard]] QString workKey(const QJsonObject &rowThere, const QString &ipport, const QString &identity);

/// The MAC of a device, if its row is named by it; otherwise empty.
[[nodiscard]] QString macOf(const BatchDevice &device);

/// The result of a device and the text of its outcome as one text, in the user's language. For a skipped
/// device only the result, with a note that it was skipped.
[[nodiscard]] QString outcomeText(const StepOutcome &outcome);

/// Whether a retry with the same data and account may succeed. True for LoginResult::NotDone.
[[nodiscard]] bool maySucceedLater(const StepOutcome &outcome);

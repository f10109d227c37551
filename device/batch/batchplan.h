// What a batch is to do.
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

/// What a device had before its address was changed.
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
    QString name;       ///< as the page names it that asks for the batch: its address and port, or its MAC
    QString identity;   ///< the name of its row
    QString ipport;     ///< as of the start of the batch
    QString title;      ///< its name and model, for the user
    QString login = {}; ///< as BatchItem has it
    QString key = {};   ///< see workKey(); as of the start of the batch
    bool isUpgrading = false; ///< its firmware is being upgraded when the batch starts: it is not asked
};

/// What has come of a device of a batch.
struct BatchOutcome
{
    BatchDevice device;
    StepOutcome outcome;
};

struct BatchPlan
{
    QString family; ///< of the devices
    QString title;  ///< of the work, for the user

    /// Tells which batches do the same work: one that succeeds with a device makes up for one that failed.
    /// Empty: those of the same title.
    QString work = {};

    QList<BatchDevice> devices = {};
    BatchPolicy policy = {};

    /// Makes the step of a device. Called on the scene's thread, at the start and at each retry.
    std::function<DeviceStep(const BatchDevice &device)> stepOf = {};

    /// The account that a step logs in to a device with at present: after a refused login, another try helps
    /// once it has changed. Called on the scene's thread; empty when the plan itself has the accounts.
    std::function<DeviceAccount(const BatchDevice &device)> accountOf = {};

    /// Runs once in each batch, also in a retry, on the thread of its first step and before that; may be
    /// empty.
    DeviceStep preparation = {};

    /// Takes what has come of devices, in the order in which it came, once for each painted frame at most,
    /// and at the end of the batch that of the devices that it did not come to. Called on the scene's thread;
    /// may be empty.
    std::function<void(const QList<BatchOutcome> &outcomes)> takeOutcomes = {};

    /// Whether the steps log in at the addresses of the devices: of two rows with one address, the same
    /// device responds.
    bool isByAddress = false;

    /// Whether another batch may do it for some of the devices again.
    bool canBeRetried = true;

    /// Whether the devices that were reached are queried again at the end, since what their rows show
    /// changes.
    bool changesRows = false;

    /// Whether no row of the list may be removed meanwhile. The back end keeps the row of a device that is
    /// being upgraded by itself.
    bool holdsRows = true;

    /// Whether the rows hold the results, in "res". A step writes its own; the batch writes those of devices
    /// that were not done.
    bool notesResults = false;

    /// Whether the devices that it fails with are marked. Work that only looks at devices leaves no marks.
    bool marksFailed = true;

    /// Whether the rows say already that their devices are being upgraded, by this batch.
    bool rowsShowIt = false;

    QHash<QString, AddressSettings> addressesBefore = {}; ///< by identity; of a batch that changes addresses
};

/// The device that a page names by address and port or by MAC.
[[nodiscard]] BatchDevice batchDevice(CDeviceFactory &factory, const QString &family, const QString &name);
[[nodiscard]] QList<BatchDevice> batchDevices(CDeviceFactory &factory, const QString &family,
                                              const QStringList &names);

/// Rows by "ipport". Several rows may have one: the first of them, a lost one only if there is no other.
[[nodiscard]] QHash<QString, QJsonObject> rowsByAddress(const QVariantList &rows);

/// The name of a device at an address and port in the engine. Batches and pages reserve the device under this
/// name. `rowThere` is the first row of that address, a lost one only if
/// there is no other; empty when there is none. `identity` names a device that has no address.
[[nodiscard]] QString workKey(const QJsonObject &rowThere, const QString &ipport, const QString &identity);

/// Empty for a device that has none.
[[nodiscard]] QString macOf(const BatchDevice &device);

/// What has come of a device, in the user's language.
[[nodiscard]] QString outcomeText(const StepOutcome &outcome);

/// Whether another try with the same data may succeed.
[[nodiscard]] bool maySucceedLater(const StepOutcome &outcome);

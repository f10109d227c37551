// The devices of a command: filling the device list, choosing its rows, and the account for logins. A row is
// the entry of a device in the device list, a JSON object by column ("mac", "ipport", "name" and others).
#pragma once

#include "commandline/commandcontext.h"

#include <QJsonObject>

namespace commandline {

/// The devices that the arguments name.
struct DeviceChoice
{
    /// Rows of devices with an IPv4 address; in the order of the arguments without duplicates, "all" by
    /// address.
    QList<QJsonObject> rows;
    QStringList missing; ///< names in the arguments that fit no row

    /// The identities of the rows in their order: the key of a row, usually its MAC.
    [[nodiscard]] QStringList identities() const;

    /// "address:port" of each row, in the order of the rows.
    [[nodiscard]] QStringList addresses() const;
};

// The functions below that return an exit code return AllDone on success. Otherwise they write the reason to
// standard error and return the stated code; the command ends with it.

/// Fills the device list by a search, or by the list file of "--list" with readDeviceList(). Waits for the
/// end. Returns UsageError for an invalid "--range", NothingDone after an interrupted search or a stopped
/// list, or the code of readDeviceList(). Runs the event loop.
[[nodiscard]] int fillDeviceList(CommandContext &context);

/// Logs in to the devices of the list file `path` with the accounts of its lines. The devices that accept the
/// account get rows in the device list. Sets `batch`, which must be null, to the ended batch, which has the
/// results; Batches owns it. Returns AllDone also if devices refused their account, and SomeFailed if the
/// batch was stopped, see awaitBatch(). `batch` stays null with these codes: UsageError if the passphrase of
/// an encrypted list cannot be read, NothingDone if the list is refused or the batch cannot start. Runs the
/// event loop.
[[nodiscard]] int readDeviceList(CommandContext &context, const QString &path, Batch *&batch);

/// The rows of the device list that "--devices" (by default "all") names and "--filter" accepts. If a file of
/// "--devices" cannot be read or no device is named, sets `error` to the reason in English and returns an
/// empty choice.
[[nodiscard]] DeviceChoice chooseDevices(const CommandContext &context, QString &error);

/// The rows with these names: addresses, "address:port", MACs (with ":" or "-", in any case), or row
/// identities. An address may name several rows. A row that "--filter" does not accept counts as missing.
[[nodiscard]] DeviceChoice devicesNamed(const CommandContext &context, const QStringList &names);

/// Sets `choice` as chooseDevices() does, after fillDeviceList(). Returns UsageError without "--devices" or
/// with an invalid one, before the search; the code of fillDeviceList(); or NothingDone if no device is
/// found. If only some devices are found, returns AllDone, and `choice` has the missing names.
[[nodiscard]] int findDevices(CommandContext &context, DeviceChoice &choice);

/// Sets the account for logins to devices without a stored account: the user name of "--user" (default
/// "admin") and the password of "--password-file" or of the environment (readPassword()). Without both: on a
/// simulated site the account of the site is used (with the user name of "--user", if given); with "--list"
/// no account is set, since the lines of the list have accounts; otherwise a prompt asks for the password.
/// Returns UsageError if no password can be read.
[[nodiscard]] int setAccount(const CommandContext &context);

} // namespace commandline

// The devices of a command.
#pragma once

#include "commandline/commandcontext.h"

#include <QJsonObject>

namespace commandline {

/// The devices that the arguments name.
struct DeviceChoice
{
    QList<QJsonObject> rows; ///< IPv4 rows of the list; in the order of the arguments, "all" by address
    QStringList missing;     ///< names in the arguments that fit no row

    /// The row identities (rowName()) of the rows.
    [[nodiscard]] QStringList identities() const;

    /// "address:port" of each row.
    [[nodiscard]] QStringList addresses() const;
};

// The functions below that return an exit code return AllDone on success. Otherwise they write the reason to
// standard error and return the stated code; the command ends with it.

/// Fills the device list by a search, or by the list file of "--list" with readDeviceList(). Waits for the
/// end. Returns UsageError for an invalid "--range", NothingDone after an interrupted search, or the code of
/// readDeviceList(). Runs the event loop.
[[nodiscard]] int fillDeviceList(CommandContext &context);

/// Logs in to the devices of the list file `path` with the accounts of its lines. The devices that accept the
/// account get rows in the device list. Sets `batch` to the ended batch, which has the results; Batches owns
/// it. Returns AllDone also if devices refused their account. Returns NothingDone if the list is refused;
/// `batch` is unchanged then. Runs the event loop.
[[nodiscard]] int readDeviceList(CommandContext &context, const QString &path, Batch *&batch);

/// The rows of the device list that "--devices" (by default "all") names and "--filter" accepts. If a file of
/// "--devices" cannot be read or no device is named, sets `error` to the reason in English and returns
/// nothing.
[[nodiscard]] DeviceChoice chooseDevices(const CommandContext &context, QString &error);

/// The rows with these names: addresses, "address:port", MACs, or row identities. A row that "--filter" does
/// not accept counts as missing.
[[nodiscard]] DeviceChoice devicesNamed(const CommandContext &context, const QStringList &names);

/// Sets `choice` with fillDeviceList() and chooseDevices(). Returns UsageError without "--devices" or with an
/// invalid one, before the search; the code of fillDeviceList(); or NothingDone if no device is found. If
/// only some devices are found, returns AllDone, and `choice` has the missing names.
[[nodiscard]] int findDevices(CommandContext &context, DeviceChoice &choice);

/// Sets the account that devices without a stored account use: "--user" (default "admin") and the password of
/// readPassword(). The prompt is the last resort: on a simulated site, the account of the site is used
/// instead (its user name unless "--user" is given). With "--list", no account is set instead, since the
/// lines of the list have accounts. Returns UsageError if no password can be read.
[[nodiscard]] int setAccount(const CommandContext &context);

} // namespace commandline

// The devices of a command.
#pragma once

#include "commandline/commandcontext.h"

#include <QJsonObject>

namespace commandline {

/// The devices that the arguments name.
struct DeviceChoice
{
    QList<QJsonObject> rows; ///< IPv4 rows; in the order of the arguments, "all" by address
    QStringList missing;     ///< names in the arguments without a row

    /// The names of the rows, see rowName().
    [[nodiscard]] QStringList identities() const;

    /// "address:port" of each row.
    [[nodiscard]] QStringList addresses() const;
};

/// Fills the device list by a search, or by the list file of "--list". Returns AllDone, or writes the reason
/// and returns the exit code. Runs the event loop.
[[nodiscard]] int fillDeviceList(CommandContext &context);

/// Logs in to the devices of a list file with the accounts of its lines; those that accept it get rows. Sets
/// `batch` to the ended batch. Returns AllDone, or writes why the list is refused and returns NothingDone.
[[nodiscard]] int readDeviceList(CommandContext &context, const QString &path, Batch *&batch);

/// The rows of "--devices" and "--filter".
[[nodiscard]] DeviceChoice chooseDevices(const CommandContext &context, QString &error);

/// The rows with these names: addresses, "address:port", MACs, or names of rows.
[[nodiscard]] DeviceChoice devicesNamed(const CommandContext &context, const QStringList &names);

/// fillDeviceList() and chooseDevices(). Without a device, writes that and returns NothingDone.
[[nodiscard]] int findDevices(CommandContext &context, DeviceChoice &choice);

/// Sets the account for the logins of the command: the password of readPassword(), or the account of the
/// simulated site. Returns AllDone, or writes the reason and returns the exit code.
[[nodiscard]] int setAccount(const CommandContext &context);

} // namespace commandline

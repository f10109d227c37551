// Devices to be added to the device list by a login, and device lists to be imported.
#pragma once

#include "device/registry/devicestep.h"

#include <QString>
#include <QVariantMap>

#include <vector>

/// A device to log in to.
struct DeviceToAdd
{
    QString address; ///< IPv4 address or host name, or the P2P ID if `p2p`
    int port = 0;    ///< service port of the device itself, not the local port of the port agent
    QString account;
    QString password;
    bool p2p = false; ///< the device is behind NAT and is reached through the port agent
};

/// Converts a map of QML with the keys of DeviceToAddKey ("mode", "address", "port", "account", "password");
/// nothing is checked. A missing value is empty, 0 or false.
[[nodiscard]] DeviceToAdd deviceToAdd(const QVariantMap &values);

/// The position of a line of a device list, for messages to the user.
struct ImportPosition
{
    int number = 0;  ///< line number in the file, from 1
    QString address; ///< the text of the line's address, truncated if it is long
};

/// A line of a device list, with the step that adds its device.
struct ImportLine
{
    ImportPosition position;
    /// Name of the row of the device, or its address and port without a row. Lines with the same device have
    /// the same text.
    QString device;
    QString title; ///< name and model in the line, as one text
    /// Text that stands for the account and its password without containing them: equal for lines with the
    /// same account.
    QString login;
    /// Logs in to the device and adds its row. For a line with invalid values: returns unusableLine.
    DeviceStep step;
};

/// The steps of importing a list, one for each line.
struct ImportPlan
{
    QString refusal; ///< why the complete list is refused, in the user's language; otherwise empty
    std::vector<ImportLine> lines; ///< in the order of the file; empty if the list is refused
    /// The refused list is encrypted, and another passphrase may be the right one.
    bool isPassphraseRefused = false;
};

/// StepOutcome::result of a line with invalid values. No request was sent. The text of the outcome is the
/// reason.
inline constexpr int unusableLine = 997;

/// A failed line as a map with the keys `line`, `address`, `code` and `reason` of ListLineKey. The code of an
/// unusable line is LoginResult::Unknown.
[[nodiscard]] QVariantMap importFailure(const ImportPosition &position, const StepOutcome &outcome);

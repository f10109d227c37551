// Devices to be added to the device list by a login, and device lists to be imported.
#pragma once

#include "device/registry/devicestep.h"

#include <QString>
#include <QVariantMap>

#include <vector>

/// A device to log in to.
struct DeviceToAdd
{
    QString address; ///< IPv4 address or host name, or the P2P ID
    int port = 0;    ///< of the device itself; behind NAT it is not the local port of the port agent
    QString account;
    QString password;
    bool p2p = false;
};

/// Reads a map of QML with the keys of DeviceToAddKey. A missing value is empty or 0.
[[nodiscard]] DeviceToAdd deviceToAdd(const QVariantMap &values);

/// A line of a device list, for the user.
struct ImportPosition
{
    int number = 0;  ///< line number in the file, from 1
    QString address; ///< of the line, truncated
};

/// A line of a device list, with the step that adds its device.
struct ImportLine
{
    ImportPosition position;
    QString device; ///< name of the row of the device, or its address and port; equal for the same device
    QString title;  ///< name and model in the line
    QString login;  ///< equal for lines with the same account
    DeviceStep step;
};

/// The steps of importing a list.
struct ImportPlan
{
    QString refusal; ///< why the list is refused, in the user's language; otherwise empty
    std::vector<ImportLine> lines;
};

/// The result of a line with invalid values. No request was sent. The text of the outcome is the reason.
inline constexpr int unusableLine = 997;

/// A failed line as a map with the keys of ListLineKey. The code of an unusable line is LoginResult::Unknown.
[[nodiscard]] QVariantMap importFailure(const ImportPosition &position, const StepOutcome &outcome);

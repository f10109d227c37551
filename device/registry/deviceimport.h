// Devices that are to be added to the list by logging in to them.
#pragma once

#include "device/registry/devicestep.h"

#include <QString>
#include <QVariantMap>

#include <vector>

/// A device to log in to.
struct DeviceToAdd
{
    QString address; ///< IPv4 text or the name of a host; or the P2P ID
    int port = 0;    ///< the device's own
    QString account;
    QString password;
    bool p2p = false;
};

/// The device that a map of the scene describes: "mode" (0 by address, 1 by P2P ID), "address", "port",
/// "account" and "password".
[[nodiscard]] DeviceToAdd deviceToAdd(const QVariantMap &values);

/// Where a line of a device list stands and leads, for the user.
struct ImportPlace
{
    int number = 0;  ///< of the line in its file, counted from 1
    QString address; ///< as the line has it, shortened
};

/// A line of a device list, and the work of adding its device.
struct ImportLine
{
    ImportPlace place;
    QString device; ///< the same for lines of one device: the name of its row, or its address and port
    QString title;  ///< its name and model, as the line has them
    QString login;  ///< tells apart the accounts of lines
    DeviceStep step;
};

/// What is to be done to import a list.
struct ImportPlan
{
    QString
        refusal; ///< why the list cannot be imported as a whole, in the user's language; empty when it can
    std::vector<ImportLine> lines;
};

/// The outcome of a line that nothing was asked for, since it says nothing that could be asked. Its text says
/// why.
inline constexpr int unusableLine = 997;

/// Why a line brought no device: "line" (its number), "address", "code" (a LoginResult; Unknown when nothing
/// was asked of the device) and "reason" (in the user's language).
[[nodiscard]] QVariantMap importFailure(const ImportPlace &place, const StepOutcome &outcome);

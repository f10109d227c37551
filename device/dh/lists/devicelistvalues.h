// What the columns of a device list say of a device.
#pragma once

#include "device/accounts/accountchoice.h"
#include "device/dh/lists/devicelistline.h"
#include "sdk/searchblocks.h"

#include <QJsonObject>

#include <optional>

/// What is known of a device that goes into a list.
struct ListedDevice
{
    QJsonObject row;                         ///< empty when only its search record is left
    std::optional<sdk::SearchAnswer> record; ///< nothing for a device that no search has found
};

/// The line of a device. Its row counts, since that is what the user sees and what requests go to; the search
/// record tells what rows do not. A device whose row has no account gets `usual`, with which the tool would
/// log in to it, unless it waits for its first password and has none.
[[nodiscard]] DeviceListLine listLineOf(const ListedDevice &device, const DeviceAccount &usual);

/// The device's own word for the type that a line names.
[[nodiscard]] QString deviceTypeOf(const DeviceListLine &line);

/// Adds to the row of a device what the device has not told itself, and its state as the line has it. What
/// only a search record would hold goes under the keys of the device's detail.
void completeFrom(QJsonObject &row, const DeviceListLine &line, bool hasRecord);

// Conversion between device rows and lines of a device list.
#pragma once

#include "device/accounts/accountchoice.h"
#include "device/dh/lists/devicelistline.h"
#include "sdk/searchblocks.h"

#include <QJsonObject>

#include <optional>

/// A device to export.
struct ListedDevice
{
    QJsonObject row; ///< keys of DeviceRowKey; empty if only a search record is left
    std::optional<sdk::SearchResponse> record; ///< nullopt if no search has found the device
};

/// The line of a device for an export. Type, version, serial number, mask and gateway are those of the search
/// record, if there is one; the other values come from the row. The address of a device behind a tunnel is
/// its P2P ID with its own port. A device without an account in its row gets `usual`, the account that would
/// be used to log in, if it is initialised; otherwise user name and password are empty.
[[nodiscard]] DeviceListLine listLineOf(const ListedDevice &device, const DeviceAccount &usual);

/// The device type, as devices report it, of a line that was read. Exported lists have other words for some
/// types.
[[nodiscard]] QString deviceTypeOf(const DeviceListLine &line);

/// Fills empty fields of a device's row, and an unknown type, from a line of a list. A row without a name
/// gets the address of a line without one. The state is set if the line has one. Serial number, mask and
/// gateway are set under the keys of the device's detail, unless `hasRecord`: the search record has them.
void completeFrom(QJsonObject &row, const DeviceListLine &line, bool hasRecord);

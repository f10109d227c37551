// The steps of users with their tasks.
#pragma once

#include <QString>

class Driver;

namespace sdk::demo {
class DemoSite;
}

/// Sets up twelve factory-new devices.
void walkInstaller(Driver &driver);
/// Batches on a fleet of devices, attempts to search and to close during them, and some upgrades.
void walkAdministrator(Driver &driver, sdk::demo::DemoSite &site);
/// Continues after walkAdministrator(): stops a batch and retries the rest, saves its results in `folder`,
/// and restores changed addresses.
void walkBatches(Driver &driver, sdk::demo::DemoSite &site, const QString &folder);
/// The stage's scene that stands for the file of writeEmptyScene().
inline QString emptyScene()
{
    return QStringLiteral("empty");
}
/// Writes a site whose only device is not found by a search of the local network. Returns the path.
QString writeEmptyScene(const QString &folder);
/// A user with an empty list, at that site.
void walkNewcomer(Driver &driver);
/// A user without any device.
void walkNoDevices(Driver &driver);
/// Continues after walkNoDevices(): the demo site replaces the application.
void walkToDemoSite(Driver &driver);
/// An impatient user with wrong passwords. A batch runs at the end.
void walkImpatient(Driver &driver, sdk::demo::DemoSite &site);
/// Closes the application during a batch.
void walkEndDuringBatch(Driver &driver);
/// The system page: selects an account for a device, and filters devices by their login state.
void walkDeviceAccounts(Driver &driver, sdk::demo::DemoSite &site);
/// A user without a mouse: navigation to the table, the actions of rows, a wrong password, names.
void walkKeyboard(Driver &driver, sdk::demo::DemoSite &site);
/// Closes the application without a mouse.
void walkOutByKeyboard(Driver &driver);

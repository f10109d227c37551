// The steps of users with their tasks, from the start of the application on. Each function drives the main
// window and checks the results; a failed check ends the process. `site` is the simulated site, whose devices
// the step changes.
#pragma once

#include <QString>

class Driver;

namespace sdk::demo {
class DemoSite;
}

/// Sets up twelve factory-new devices: accounts, addresses and names; saves images and exports the list.
void walkInstaller(Driver &driver);
/// Batches on a fleet of 200 devices, attempts to search and to close during them, and some upgrades.
void walkAdministrator(Driver &driver, sdk::demo::DemoSite &site);
/// Continues after walkAdministrator(): stops a batch and retries the rest, saves its results in `folder`,
/// and restores changed addresses.
void walkBatches(Driver &driver, sdk::demo::DemoSite &site, const QString &folder);
/// The name for Stage::scene that stands for the scene file of writeEmptyScene().
inline QString emptyScene()
{
    return QStringLiteral("empty");
}
/// Writes the scene file of a site whose only device is not found by a search of the local network, into the
/// existing folder `folder`. Returns the path; empty on failure.
QString writeEmptyScene(const QString &folder);
/// A user with an empty list, at that site: adds the device by its address, and finds it with other search
/// settings.
void walkNewcomer(Driver &driver);
/// A user without any device, on the real network.
void walkNoDevices(Driver &driver);
/// Continues after walkNoDevices(): opens the demo site; another process replaces this one.
void walkToDemoSite(Driver &driver);
/// An impatient user with wrong passwords, who clicks everything twice. A batch still runs at the end.
void walkImpatient(Driver &driver, sdk::demo::DemoSite &site);
/// Continues after walkImpatient(): closes the application during the batch.
void walkEndDuringBatch(Driver &driver);
/// The system page: selects an account for a device, and filters devices by their login state. Part of
/// walkImpatient().
void walkDeviceAccounts(Driver &driver, sdk::demo::DemoSite &site);
/// A user without a mouse: navigation to the table, the actions of rows, a wrong password, names of cameras.
void walkKeyboard(Driver &driver, sdk::demo::DemoSite &site);
/// Continues after walkKeyboard(): closes the application without a mouse.
void walkOutByKeyboard(Driver &driver);

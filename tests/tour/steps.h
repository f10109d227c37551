// The steps of the tour, by subject.
#pragma once

#include <QString>

class Driver;

namespace sdk::demo {
class DemoSite;
}

/// The search at the start: its progress and result.
void walkFirstSearch(Driver &driver);
/// Sorting, ticks, the filters and the text search.
void walkTable(Driver &driver);
/// Search settings, invalid settings, and a search of another segment.
void walkSearchSettings(Driver &driver);
/// Tabs, menus, the about box and maximising.
void walkWindow(Driver &driver);
/// First passwords, address changes of single devices and in batches, details, web pages and deleting.
void walkDevices(Driver &driver);
/// Writes device lists in every format into `folder`, and reads one back.
void walkLists(Driver &driver, const QString &folder);
/// Adding devices by hand and from favourites.
void walkAdding(Driver &driver);
/// The system page with three devices, one of which is temporarily offline.
void walkSystem(Driver &driver, sdk::demo::DemoSite &site);
/// Encode and image settings of single devices, and copying them to others with fewer features.
void walkConfiguration(Driver &driver, sdk::demo::DemoSite &site);
/// The names of a recorder's channels, and the details of a device, which are exported to `folder`.
void walkChannelNames(Driver &driver, sdk::demo::DemoSite &site, const QString &folder);
/// Live views of a camera and of a recorder, and snapshots. Images are saved in `folder`.
void walkLive(Driver &driver, sdk::demo::DemoSite &site, const QString &folder);
/// HTTP commands to one device, to several, and from a workbook in `folder`.
void walkCommands(Driver &driver, const QString &folder);
/// Upgrades of six devices, of which one fails, one stalls and one is stopped, and upgrades by document. The
/// files are written to `folder`.
void walkUpgrade(Driver &driver, sdk::demo::DemoSite &site, const QString &folder);
/// Sets up twelve factory-new devices.
void walkInstaller(Driver &driver);
/// Batches on a fleet of devices, attempts to search and to close during them, and some upgrades.
void walkAdministrator(Driver &driver, sdk::demo::DemoSite &site);
/// Continues after walkAdministrator(): stops a batch and retries the rest, saves its results in `folder`,
/// and restores changed addresses.
void walkBatches(Driver &driver, sdk::demo::DemoSite &site, const QString &folder);
/// Images of many devices in the gallery, saved in `folder`, and live views of several devices. Requires the
/// default account to be that of the site's devices.
void walkGallery(Driver &driver, sdk::demo::DemoSite &site, const QString &folder);

/// The main operations on devices of a site on real sockets (scripts/lab).
void walkLab(Driver &driver);
/// Batches on the same devices.
void walkLabBatches(Driver &driver);
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
/// The selection of colours, and pages and dialogs in the dark theme.
void walkLooks(Driver &driver);
/// Columns, notes, order and the position of the window.
void walkColumns(Driver &driver);
/// The application after walkColumns() and a restart, and after a second restart.
void walkRestored(Driver &driver);
void walkRestoredAgain(Driver &driver);
/// Starts a second instance.
void walkSecondStart(Driver &driver, const QString &imageFolder);
/// Selects another language and restarts: this process ends, and the next one uses that language.
void walkLanguageChange(Driver &driver, const QString &otherLanguage);

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
/// Images of many devices in the gallery, saved in `folder`, and live views of several devices. Requires the
/// default account to be that of the site's devices.
void walkGallery(Driver &driver, sdk::demo::DemoSite &site, const QString &folder);
/// Repeats work on devices with faults for soakMinutes() and prints the figures of the process after each
/// round. Fails if they grow. Requires the scene "faulty".
void walkSoak(Driver &driver, sdk::demo::DemoSite &site);
/// CONFIGTOOLS_SOAK_MINUTES of the environment; 120 without a valid number there.
[[nodiscard]] int soakMinutes();
/// The main operations on devices of a site on real sockets (scripts/lab).
void walkLab(Driver &driver);
/// Batches on the same devices.
void walkLabBatches(Driver &driver);
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

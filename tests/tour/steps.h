// The steps of the tour, by subject. Each function drives the main window of the running application, checks
// the results, and reports images of the window. A failed check ends the process. The order of calls matters
// (main.cpp and stages.cpp): a step starts at the page where the previous step has ended. `site` is the
// simulated site, whose devices the step changes or whose requests it reads. A folder is created if missing.
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
/// Tabs, menus, the about box, the operations for IPv6 devices, and maximising.
void walkWindow(Driver &driver);
/// Initialisation (creation of the first account), address changes of single devices and in batches, details,
/// web pages and deleting.
void walkDevices(Driver &driver);
/// Writes device lists in every format into `folder`, and reads one back.
void walkLists(Driver &driver, const QString &folder);
/// Adding devices by hand and from favourites.
void walkAdding(Driver &driver);
/// The system page with three devices, one of which is temporarily offline.
void walkSystem(Driver &driver, sdk::demo::DemoSite &site);
/// Encode and image settings of single devices, and copying them to others with fewer features.
void walkConfiguration(Driver &driver, sdk::demo::DemoSite &site);
/// The names of a recorder's channels, and the details of a device, which are exported to the folder
/// `folder`.
void walkChannelNames(Driver &driver, sdk::demo::DemoSite &site, const QString &folder);
/// Live views of a camera and of a recorder, also after interruptions, and snapshots. The images of the live
/// window are saved in `folder`.
void walkLive(Driver &driver, sdk::demo::DemoSite &site, const QString &folder);
/// HTTP commands to one device, to several, and from a workbook in `folder`.
void walkCommands(Driver &driver, const QString &folder);
/// Upgrades of six devices, of which one fails, one stalls and one is stopped, and upgrades by document. The
/// files are written to `folder`.
void walkUpgrade(Driver &driver, sdk::demo::DemoSite &site, const QString &folder);
/// The gallery window with images of many devices, which the application saves in its own folder, and live
/// views of several devices. The tour's images of these windows are saved in `folder`. Requires the default
/// account to be that of the site's devices.
void walkGallery(Driver &driver, sdk::demo::DemoSite &site, const QString &folder);
/// The report of the ticked devices, with its files in `folder`. Requires the same default account.
void walkSiteReport(Driver &driver, const QString &folder);
/// Saves the images of the manual, which documents/images.txt lists. Requires the default account to be that
/// of the site's devices.
void takeManualImages(Driver &driver, sdk::demo::DemoSite &site);
/// Repeats work on devices with faults for soakMinutes() and prints the figures of the process after each
/// round. Fails if they grow. Requires the scene "faulty".
void walkSoak(Driver &driver, sdk::demo::DemoSite &site);
/// CONFIGTOOLS_SOAK_MINUTES of the environment; 120 without a valid number there.
[[nodiscard]] int soakMinutes();
/// The main operations on devices of a site on real sockets (scripts/lab).
void walkLab(Driver &driver);
/// Batches on the same devices; after walkLab(), which sets the default account.
void walkLabBatches(Driver &driver);
/// The selection of colours, and pages and dialogs in the dark theme.
void walkLooks(Driver &driver);
/// Changes the columns of the device table, notes, the order of rows and the position of the window.
void walkColumns(Driver &driver);
/// After walkColumns() and a restart: checks that all of that is restored, resets the columns and maximises
/// the window.
void walkRestored(Driver &driver);
/// After walkRestored() and another restart: checks the default columns, the notes and the maximised window.
void walkRestoredAgain(Driver &driver);
/// A later start with the devices of the last list: greyed, found again, missing. Groups and sites in
/// `folder`.
void walkKnown(Driver &driver, sdk::demo::DemoSite &site, const QString &folder);
/// Starts a second instance of the application, which must end with a message that the application runs
/// already. `imageFolder` receives an image of the message.
void walkSecondStart(Driver &driver, const QString &imageFolder);
/// Selects another language, a code such as "en_US", and confirms the restart: this process ends, and the
/// next one uses that language. The last step of a process.
void walkLanguageChange(Driver &driver, const QString &otherLanguage);

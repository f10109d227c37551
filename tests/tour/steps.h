// The steps of the tour, by subject.
#pragma once

class Driver;
class QString;

namespace sdk::demo {
class DemoSite;
}

/// The window opens, searches by itself, and its controls do what they say.
void walkFirstSearch(Driver &driver);
/// Sorting, ticks, the filters and the text search.
void walkTable(Driver &driver);
/// Search settings, their refusals, and a search of another segment.
void walkSearchSettings(Driver &driver);
/// Tabs, menus, the about box, maximising, and closing.
void walkWindow(Driver &driver);
/// First passwords, new addresses singly and in batches, details, web pages and deleting.
void walkDevices(Driver &driver);
/// Writes device lists in every format into `folder`, and reads one back.
void walkLists(Driver &driver, const QString &folder);
/// Adding devices by hand and from favourites.
void walkAdding(Driver &driver);
/// The maintenance of three devices, one of which is away for a while.
void walkSystem(Driver &driver, sdk::demo::DemoSite &site);
/// Encode and image settings of single devices, and copying them to others, of which one can do less.
void walkConfiguration(Driver &driver, sdk::demo::DemoSite &site);
/// The names of a recorder's channels, and the panel with everything that is known of a device, which is
/// written into `folder`.
void walkChannelNames(Driver &driver, sdk::demo::DemoSite &site, const QString &folder);
/// Live pictures of a camera and of a recorder, and snapshots; their pictures go into `folder`.
void walkLive(Driver &driver, sdk::demo::DemoSite &site, const QString &folder);
/// Commands over HTTP to one device, to several, and from a workbook, which is written into `folder`.
void walkCommands(Driver &driver, const QString &folder);
/// Upgrades of six devices, of which one fails, one stands still and one is stopped, and upgrades by
/// document; the firmware and the document are written into `folder`.
void walkUpgrade(Driver &driver, sdk::demo::DemoSite &site, const QString &folder);
/// Batches over the devices of a fleet, which are left alone, searched for and closed meanwhile.
void walkFleet(Driver &driver, sdk::demo::DemoSite &site);
/// On the page that walkFleet() leaves: a batch is stopped and its rest retried, its results are saved into
/// `folder`, and changed addresses are put back.
void walkBatches(Driver &driver, sdk::demo::DemoSite &site, const QString &folder);
/// The main job on devices of a site on real sockets (scripts/lab).
/// Needs the search settings' account to be that of the site's devices.
void walkGallery(Driver &driver, sdk::demo::DemoSite &site, const QString &folder);

void walkLab(Driver &driver);
/// On the same devices: work on several of them at the same time.
void walkLabBatches(Driver &driver);
/// Somebody without a mouse: the way to the table, the actions of rows, a wrong password.
void walkKeyboard(Driver &driver, sdk::demo::DemoSite &site);
/// The choice of colours, and pages and dialogs in the dark theme.
void walkLooks(Driver &driver);
/// Accounts of devices: a new password is kept, and one of several accounts is selected for a device.
void walkDeviceAccounts(Driver &driver, sdk::demo::DemoSite &site);
/// Columns, notes, order and the place of the window, which outlive the program.
void walkColumns(Driver &driver);
/// The program after walkColumns(), and after that once more.
void walkRestored(Driver &driver);
void walkRestoredAgain(Driver &driver);
/// A second start beside this one.
void walkSecondStart(Driver &driver, const QString &pictureFolder);
/// Chooses another language and restarts: this process ends, and the next one finds itself in that language.
void walkLanguageChange(Driver &driver, const QString &otherLanguage);

// The steps of the tour, by subject.
#pragma once

#include <QString>

class Driver;

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
/// Someone with twelve factory-new devices, until all are set up.
void walkInstaller(Driver &driver);
/// Someone with a fleet: batches over its devices, which are left alone, searched for and closed meanwhile,
/// and some upgrades.
void walkAdministrator(Driver &driver, sdk::demo::DemoSite &site);
/// On the page that walkAdministrator() leaves: a batch is stopped and its rest retried, its results are
/// saved into `folder`, and changed addresses are put back.
void walkBatches(Driver &driver, sdk::demo::DemoSite &site, const QString &folder);
/// The main job on devices of a site on real sockets (scripts/lab).
/// Needs the search settings' account to be that of the site's devices.
void walkGallery(Driver &driver, sdk::demo::DemoSite &site, const QString &folder);

void walkLab(Driver &driver);
/// On the same devices: work on several of them at the same time.
void walkLabBatches(Driver &driver);
/// The argument that stands for the scene of writeEmptyScene().
inline QString emptyScene()
{
    return QStringLiteral("empty");
}
/// A site whose only device no search of the local network finds. Returns the path of its file.
QString writeEmptyScene(const QString &folder);
/// Someone whose list is empty, at that site.
void walkNewcomer(Driver &driver);
/// The same without any device.
void walkNoDevices(Driver &driver);
/// After it: the demo site takes the place of the program.
void walkToDemoSite(Driver &driver);
/// Someone with wrong passwords who does not wait. A batch runs at the end.
void walkImpatient(Driver &driver, sdk::demo::DemoSite &site);
/// Ends the program during a batch.
void walkEndDuringBatch(Driver &driver);
/// On the page for maintenance: one of several accounts is selected for a device, and its state is looked
/// for.
void walkDeviceAccounts(Driver &driver, sdk::demo::DemoSite &site);
/// Someone without a mouse: the way to the table, the actions of rows, a wrong password, names.
void walkKeyboard(Driver &driver, sdk::demo::DemoSite &site);
/// Ends the program without the mouse.
void walkOutByKeyboard(Driver &driver);
/// The choice of colours, and pages and dialogs in the dark theme.
void walkLooks(Driver &driver);
/// Columns, notes, order and the place of the window, which outlive the program.
void walkColumns(Driver &driver);
/// The program after walkColumns(), and after that once more.
void walkRestored(Driver &driver);
void walkRestoredAgain(Driver &driver);
/// A second start beside this one.
void walkSecondStart(Driver &driver, const QString &pictureFolder);
/// Chooses another language and restarts: this process ends, and the next one finds itself in that language.
void walkLanguageChange(Driver &driver, const QString &otherLanguage);

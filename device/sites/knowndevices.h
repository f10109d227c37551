#pragma once

#include "device/sites/knowndevice.h"
#include "device/sites/recentsites.h"
#include "device/sites/sitecopies.h"
#include "device/store/devicenotes.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QThreadPool>
#include <QVariantList>
#include <QVariantMap>

#include <memory>

class DeviceStore;

/// The devices of the current site, as earlier searches have found them: a layer beside the device list,
/// which a search empties. Tables add the known devices that are not listed. The user may put devices into
/// groups, and save and open sites as files.
///
/// The current site is stored in the folder of the user's data, at the end of each search, after a change by
/// the user, and in the destructor. A listed device is added at the end of a search, when it gets a group,
/// and when the site is saved as a file; until then, a device that was added by hand is not known. A device
/// stays known until the user removes it from the site. While the stored file exists but could not be opened,
/// the current site is not stored. Devices behind NAT are not known, since their addresses are local ports.
/// Lives on the main thread; the file is written on a separate one.
class KnownDevices : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString siteName READ siteName NOTIFY siteChanged)
    /// Path of the file that the site was opened from or saved to; empty for none.
    Q_PROPERTY(QString sitePath READ sitePath NOTIFY siteChanged)
    /// Maps of "name" and "path" of the sites that were opened or saved last, at most RecentSites::most.
    Q_PROPERTY(QVariantList recentSites READ recentSites NOTIFY siteChanged)
    Q_PROPERTY(QStringList groups READ groups NOTIFY changed)
    Q_PROPERTY(int count READ count NOTIFY changed)
    Q_PROPERTY(int longestGroup READ longestGroup CONSTANT)
    Q_PROPERTY(QString problem READ problem NOTIFY problemChanged)
public:
    /// Presence, for QML.
    enum PresenceValue
    {
        Listed = int(Presence::Listed),
        New = int(Presence::New),
        Waiting = int(Presence::Waiting),
        Missing = int(Presence::Missing),
    };
    Q_ENUM(PresenceValue)

    /// Names of the files, so that the demo site has its own.
    struct Files
    {
        QString folder; ///< must exist
        QString prefix; ///< of the names
    };

    /// Reads the current site. `store` has the device list.
    KnownDevices(std::shared_ptr<DeviceStore> store, Files files, QObject *parent = nullptr);
    ~KnownDevices() override;

    /// The notes that are saved in site files and added from them. Not owned; null for none.
    void setNotes(DeviceNotes *notes) { m_notes = notes; }

    [[nodiscard]] const QString &siteName() const { return m_site.name; }
    [[nodiscard]] const QString &sitePath() const { return m_recent.current(); }
    [[nodiscard]] QVariantList recentSites() const;
    /// Names of the groups that have devices, sorted as in the user's locale, numbers by their value.
    [[nodiscard]] QStringList groups() const;
    [[nodiscard]] int count() const { return static_cast<int>(m_site.devices.size()); } ///< known devices
    [[nodiscard]] static int longestGroup() { return KnownDevice::longestGroup; }
    /// Why the site cannot be read or stored, in the user's language; empty if it can.
    [[nodiscard]] const QString &problem() const { return m_problem; }

    /// Called before a search starts: known devices are Waiting until they are found, devices that are not
    /// known are New.
    Q_INVOKABLE void beginSearch();

    /// Called when a search has ended. Adds the listed devices to the site. Devices that were not found are
    /// Missing; after a search that was stopped they stay Waiting.
    Q_INVOKABLE void endSearch(bool isStopped);

    // `isIPv6` selects the list of the devices: the IPv6 list, or that of IPv4.

    /// Adds the values of addValues() to the rows (QJsonObjects) of the list `list`, and appends a row for
    /// each known device of this list that is not in it, with "presence" Waiting or Missing and "lastSeen".
    void complete(QVariantList &list, bool isIPv6) const;

    /// Adds "group" and "presence" (see SiteKey) to a row of the list: the group, if the device has one, and
    /// Presence::New for a device that was not known before the last search. Rows that are lost or behind NAT
    /// are not New.
    void addValues(QJsonObject &row, bool isIPv6) const;

    /// Leaves the devices of these rows out of complete() until the next search begins. Called before the
    /// user removes them from the list. They stay known.
    void hide(const QList<QJsonObject> &rows, bool isIPv6);

    // The following functions are for QML. `rows` are maps from get() of a table model. Those with a
    // result return an empty string on success, otherwise the reason in the user's language; the site is
    // unchanged then, unless stated otherwise.

    /// Puts devices into the group; an empty name removes them from their groups. Spaces at the ends are
    /// removed, several spaces become one. Fails for a name that is too long, for devices behind NAT, and if
    /// the site would get more than the maximum number of devices.
    Q_INVOKABLE [[nodiscard]] QString setGroup(const QVariantList &rows, const QString &group, bool isIPv6);

    /// Removes a device from the site. Does nothing for a device that is not known.
    Q_INVOKABLE void forget(const QVariantMap &row, bool isIPv6);

    /// Replaces the site by that of a file: a path or a "file:///" URL. Adds the notes of the file to devices
    /// that have none. If the replaced site has changes that were not saved, a copy of it is kept first and
    /// listed in recentSites. A file that cannot be read is removed from recentSites.
    Q_INVOKABLE [[nodiscard]] QString open(const QString &path);

    /// Adds the listed devices to the site, also if the file cannot be written. Writes the site, with the
    /// notes of its devices, and replaces an existing file. The name of the file becomes the name of the
    /// site.
    Q_INVOKABLE [[nodiscard]] QString saveAs(const QString &path);

    /// Replaces the site by an empty one. A copy is kept as in open().
    Q_INVOKABLE [[nodiscard]] QString startNew();

Q_SIGNALS:
    void changed();     ///< known devices, their groups or the presence of devices have changed
    void siteChanged(); ///< the site was replaced or saved, or a site was removed from recentSites
    void problemChanged();

private:
    /// Devices that an update from the list adds to the site.
    enum class Additions
    {
        None,
        All,
    };

    [[nodiscard]] QString currentFile() const;
    [[nodiscard]] qsizetype indexOf(const QStringList &keys) const;
    void addValues(QJsonObject &row, const QStringList &keys) const;
    void read();
    void replaceSite(Site site);
    void indexDevices();
    void takeListed(Additions additions);
    void takeRows(const QVariantList &rows, bool isIPv6, Additions additions);
    KnownDevice *take(const QJsonObject &row, bool isIPv6);
    void store();
    void takeResult(const QString &failure);
    [[nodiscard]] QString keepCopy();

    const std::shared_ptr<DeviceStore> m_store;
    const Files m_files;
    QPointer<DeviceNotes> m_notes;
    RecentSites m_recent;
    const SiteCopies m_copies;
    Site m_site;
    QHash<QString, qsizetype> m_index; ///< of m_site.devices by KnownDevice::key()
    /// Keys of the devices that were known before the last search. Empty if none was: no device is New then.
    QSet<QString> m_before;
    QSet<QString> m_hidden;    ///< keys, see hide()
    bool m_isComplete = false; ///< the last search has ended without being stopped
    bool m_isModified = false; ///< since the site was opened or saved
    bool m_isUnopened = false; ///< the file exists but cannot be opened: it is not replaced
    bool m_isDamaged =
        false; ///< the file is renamed before it is replaced; of the writing thread after read()
    QString m_problem;
    QThreadPool m_writers; ///< one thread
};

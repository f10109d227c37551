// The device table of a page, filtered and ordered.
#pragma once

#include "device/models/devicetablerows.h"
#include "device/models/followedmarks.h"
#include "device/sites/knowndevices.h"
#include "device/store/devicenotes.h"

#include <QAbstractListModel>
#include <QHash>
#include <QList>
#include <QPointer>
#include <QSet>

class CDeviceFactory;

/// The rows of one device page, from the IPv4 or the IPv6 list. The roles are those keys of DeviceRowKey
/// that the tables of the pages show ("state", "name", ...), and these:
///
///  - "checked" (bool), "num" (number of the row as shown, from 1, as text)
///  - "conflict": another row has the same "ipport". Rows that a filter hides count; offline devices do not.
///  - "identity": the name of the row, see rowName()
///  - "absent" (bool, see below)
///  - "note" and "group": the user's note about the device, and the group of the device in its site, which
///    the text search includes
///
/// get() returns all keys of the row, also "username" and "password", and in addition "checked", "num",
/// "identity", "failure" (see FollowedMarks::messagesOf()), "onlyNotDone" (see FailedMarks), "absent" and, if
/// the device has them, "note" and "group", but not "conflict".
///
/// With `knownDevices`, the rows of known devices that are not in the list follow those of the list. They are
/// "absent": they cannot be checked, and no count of checked rows includes them.
///
/// refresh() reads all rows with one call of the factory's filterData() or filterDataIPV6(); the model then
/// filters and orders them, so that rows, counts and conflicts are consistent. Check marks belong to the
/// identity of a row: they survive a refresh and a filter that hides the row, until the row is removed from
/// the list. The two lists have separate check marks. Functions about checked rows consider shown rows only,
/// unless they say otherwise.
///
/// Lives on the main thread. A change of a property reads the rows again, except that of `failedMarks`, which
/// does so only with `onlyFailed`, or if it clears `failedOperation`.
///
/// Qt's TableModel is not used because it reads its rows through JavaScript objects: with 10,000 devices
/// each refresh would block the window for a quarter of a second, once a second during a search.
class DeviceTableModel : public QAbstractListModel
{
    Q_OBJECT
    Q_MOC_INCLUDE("device/registry/devicefactory.h")
    Q_PROPERTY(
        CDeviceFactory *deviceFactory READ deviceFactory WRITE setDeviceFactory NOTIFY deviceFactoryChanged)
    Q_PROPERTY(bool showInitialised READ showInitialised WRITE setShowInitialised NOTIFY filterChanged)
    Q_PROPERTY(bool showUninitialised READ showUninitialised WRITE setShowUninitialised NOTIFY filterChanged)
    /// Whether the rows are those of the IPv6 list.
    Q_PROPERTY(bool ipv6 READ ipv6 WRITE setIpv6 NOTIFY filterChanged)
    /// A text in the values, the note or the group of a shown row; the case is ignored. Empty: all rows.
    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY filterChanged)
    /// The marks and the notes are not owned. Null: no device has one.
    Q_PROPERTY(FailedMarks *failedMarks READ failedMarks WRITE setFailedMarks NOTIFY failedMarksChanged)
    Q_PROPERTY(DeviceNotes *notes READ notes WRITE setNotes NOTIFY notesChanged)
    /// Not owned. Null: only devices of the list are shown.
    Q_PROPERTY(KnownDevices *knownDevices READ knownDevices WRITE setKnownDevices NOTIFY knownDevicesChanged)
    /// Whether only marked devices are shown, ordered by reason and then by address unless the user has
    /// chosen another order. Becomes false when no mark is left. A change clears failedOperation.
    Q_PROPERTY(bool onlyFailed READ onlyFailed WRITE setOnlyFailed NOTIFY filterChanged)
    Q_PROPERTY(QString failedOperation READ failedOperation WRITE setFailedOperation NOTIFY filterChanged)
    /// Position of the rows whose address is not IPv4 in an order by address: before the IPv4 addresses if
    /// true, otherwise after them.
    Q_PROPERTY(bool oddAddressesFirst READ oddAddressesFirst WRITE setOddAddressesFirst NOTIFY filterChanged)
    Q_PROPERTY(QString sortKey READ sortKey NOTIFY sortChanged)
    Q_PROPERTY(Qt::SortOrder sortOrder READ sortOrder NOTIFY sortChanged)
    Q_PROPERTY(int count READ rowCount NOTIFY countChanged)
    Q_PROPERTY(int totalCount READ totalCount NOTIFY countChanged)
    Q_PROPERTY(int listedCount READ listedCount NOTIFY countChanged)
    Q_PROPERTY(int failedCount READ failedCount NOTIFY failedCountChanged)
    Q_PROPERTY(int checkedCount READ checkedCount NOTIFY checkedCountChanged)
    Q_PROPERTY(int checkedUpgradingCount READ checkedUpgradingCount NOTIFY checkedCountChanged)
    Q_PROPERTY(int conflictCount READ conflictCount NOTIFY countChanged)
    Q_PROPERTY(Qt::CheckState checkState READ checkState NOTIFY checkedCountChanged)
public:
    explicit DeviceTableModel(QObject *parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override; ///< "checked" only
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    [[nodiscard]] CDeviceFactory *deviceFactory() const;
    void setDeviceFactory(CDeviceFactory *deviceFactory);
    [[nodiscard]] bool showInitialised() const { return m_showInitialised; }
    void setShowInitialised(bool show);
    [[nodiscard]] bool showUninitialised() const { return m_showUninitialised; }
    void setShowUninitialised(bool show);
    [[nodiscard]] bool ipv6() const { return m_ipv6; }
    void setIpv6(bool ipv6);
    [[nodiscard]] bool oddAddressesFirst() const { return m_oddAddressesFirst; }
    void setOddAddressesFirst(bool first);
    [[nodiscard]] QString searchText() const { return m_searchText; }
    void setSearchText(const QString &searchText);
    [[nodiscard]] FailedMarks *failedMarks() const { return m_failedMarks.get(); }
    void setFailedMarks(FailedMarks *marks);
    [[nodiscard]] DeviceNotes *notes() const { return m_notes; }
    void setNotes(DeviceNotes *notes);
    [[nodiscard]] KnownDevices *knownDevices() const { return m_known; }
    void setKnownDevices(KnownDevices *known);
    [[nodiscard]] bool onlyFailed() const { return m_onlyFailed; }
    /// Title of the work to whose marks onlyFailed and failedCount are restricted; empty: all marks. Becomes
    /// empty when that work has no mark left.
    [[nodiscard]] QString failedOperation() const { return m_failedMarks.operation(); }
    void setFailedOperation(const QString &operation);
    void setOnlyFailed(bool only);
    [[nodiscard]] QString sortKey() const { return m_sortKey; }
    [[nodiscard]] Qt::SortOrder sortOrder() const { return m_sortOrder; }

    [[nodiscard]] int totalCount() const { return m_totalCount; }   ///< rows before any filter, also absent
    [[nodiscard]] int listedCount() const { return m_listedCount; } ///< rows of the list before any filter
    /// Rows of the list with a mark of failedOperation, also those that a filter hides.
    [[nodiscard]] int failedCount() const { return m_failedCount; }
    [[nodiscard]] int checkedCount() const { return m_checkedCount; } ///< shown rows that are checked
    [[nodiscard]] int checkedUpgradingCount() const
    {
        return m_checkedUpgradingCount;
    }                                                                   ///< checked rows being upgraded
    [[nodiscard]] int conflictCount() const { return m_conflictCount; } ///< shown rows in conflict
    [[nodiscard]] Qt::CheckState
    checkState() const; ///< of the shown rows that can be checked, for the check box of the header

    /// Reads the rows again; does nothing without a factory. The page calls it on the factory's
    /// signalAddDeviceToTable.
    Q_INVOKABLE void refresh();

    /// Reads the values of one row again, by its identity. Ignores a row that is not shown or was deleted.
    /// Used for the results of a batch: reading all rows for each result would take longer than the batch.
    /// Filters, order, counts and "conflict" are updated by refresh() only.
    Q_INVOKABLE void refreshDevice(const QString &mac);
    /// Same for several rows, with one signal for all.
    Q_INVOKABLE void refreshDevices(const QStringList &macs);

    /// Changes the order by a column: ascending, then descending, then the order of the list. Another `key`
    /// starts with ascending. Addresses are compared as numbers, strings by the rules of the user's
    /// language.
    Q_INVOKABLE void toggleSort(const QString &key);

    /// Sets key and direction of the order. An empty key is the order of the list.
    Q_INVOKABLE void setSort(const QString &key, Qt::SortOrder order);

    // Check marks of shown rows. Indexes out of range are ignored.
    Q_INVOKABLE void setChecked(int row, bool checked);
    Q_INVOKABLE void setRangeChecked(int first, int last, bool checked); ///< both included
    Q_INVOKABLE void setAllChecked(bool checked);                        ///< hidden rows keep their marks

    /// Checks the rows with these identities, also hidden ones, and unchecks all others of the list. An
    /// identity that the list does not have is dropped by the next refresh().
    Q_INVOKABLE void setCheckedDevices(const QStringList &identities);

    /// The values of a row by key, for QML; empty if `row` is out of range.
    Q_INVOKABLE [[nodiscard]] QVariantMap get(int row) const;

    /// The index of the row with this identity; -1 if it is not shown.
    Q_INVOKABLE [[nodiscard]] int rowOf(const QString &identity) const;

    /// The first row, starting at `from` and wrapping around, whose address or name starts with `text`; -1 if
    /// there is none. Ignores case.
    Q_INVOKABLE [[nodiscard]] int rowStarting(const QString &text, int from) const;

    /// Checks the shown rows that have the same value of `key` as `row`, and unchecks all other rows, also
    /// hidden ones. Does nothing if `row` is out of range.
    Q_INVOKABLE void checkSimilar(int row, const QString &key);

    /// The identities of the checked rows, in the order shown. The operations of the factory take them as
    /// `mac`.
    Q_INVOKABLE [[nodiscard]] QStringList checkedMacs() const;

    /// The checked rows as get() returns them, in the order shown.
    Q_INVOKABLE [[nodiscard]] QVariantList checkedRows() const;

    /// Same, only the initialised devices, or only the uninitialised ones.
    Q_INVOKABLE [[nodiscard]] QVariantList checkedRowsWith(bool initialised) const;

    /// Removes the checked rows from the device list and reads the rows again. A row whose device is being
    /// upgraded stays. The removed devices are not shown as absent until the next search. Returns the number
    /// of checked rows that stay; 0 without a factory.
    Q_INVOKABLE int deleteChecked();

    /// The given rows as lines for the clipboard, see DeviceTableRow::text(). Rows out of range are ignored.
    Q_INVOKABLE [[nodiscard]] QString textOf(const QList<int> &rows) const;

Q_SIGNALS:
    void deviceFactoryChanged();
    void filterChanged();
    void failedMarksChanged();
    void notesChanged();
    void knownDevicesChanged();
    void sortChanged();
    void countChanged();
    void failedCountChanged();
    void checkedCountChanged();

private:
    [[nodiscard]] QVariantList readList() const; ///< m_deviceFactory must not be null
    [[nodiscard]] QList<DeviceTableRow> readRows();
    void updateMarks();
    void addNotes(QVariantList &list) const;
    [[nodiscard]] qsizetype presentCount() const;
    void uncheckRemoved(const QVariantList &list);
    [[nodiscard]] QSet<QString> &checkedIdentities() { return m_ipv6 ? m_checkedIPv6 : m_checkedIPv4; }
    [[nodiscard]] const QSet<QString> &checkedIdentities() const
    {
        return m_ipv6 ? m_checkedIPv6 : m_checkedIPv4;
    }
    void replaceRows(QList<DeviceTableRow> rows);
    void updateRowIndex(qsizetype first); ///< updates m_rowByIdentity from this row on
    void applyFilter();
    void countChecked();
    void countFailed(const QVariantList &list);

    QPointer<CDeviceFactory> m_deviceFactory; ///< not owned; may be destroyed before this object
    bool m_showInitialised = true;
    bool m_showUninitialised = true;
    bool m_ipv6 = false;
    QString m_searchText;
    FollowedMarks m_failedMarks;
    QPointer<DeviceNotes> m_notes;  ///< not owned; null without notes
    QPointer<KnownDevices> m_known; ///< not owned; null without known devices
    bool m_onlyFailed = false;
    bool m_oddAddressesFirst = false;
    QString m_sortKey; ///< empty: the order of the list
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;

    QList<DeviceTableRow> m_rows;
    QHash<QString, int> m_rowByIdentity; ///< row by identity
    // Identities of the checked rows, including rows that a filter hides.
    QSet<QString> m_checkedIPv4;
    QSet<QString> m_checkedIPv6;
    int m_totalCount = 0;
    int m_listedCount = 0;
    int m_failedCount = 0;
    int m_checkedCount = 0;
    int m_checkedUpgradingCount = 0;
    int m_conflictCount = 0;
};

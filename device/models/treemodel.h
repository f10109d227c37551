// The device tree of the configuration pages, grouped by type.
#pragma once

#include "device/models/followedmarks.h"
#include "device/sites/knowndevices.h"

#include <QAbstractItemModel>
#include <QHash>
#include <QList>
#include <QPointer>
#include <QVariantList>

#include <utility>

class CDeviceFactory;

/// A tree of two levels: groups named by device type ("IPC", "NVR", ...), each with its devices, named by
/// "ipport". A device without a type is in the group "Other". Groups are in alphabetical order, with
/// "PC-NVR" and "Other" last since they are not device hardware. Devices are in address order. The check box
/// of a group covers its devices; it is partial if only some are checked.
///
/// resetItems() reads the rows; the page calls it whenever the device list has changed. The tree contains
/// the devices that pass the filter of resetItems(), belong to `shown` and have an address. All other
/// devices are hidden. Check marks and results survive a rebuild, also those of hidden devices. They belong
/// to the name of the row (see rowName()): a device keeps them when its address changes, and a device that
/// takes over an address does not inherit them. Functions about checked devices consider the devices of the
/// tree only, unless they say otherwise.
///
/// With Shown::Failed, the groups are the failure reasons in alphabetical order. Lives on the main thread.
class OVTreeModel : public QAbstractItemModel
{
    Q_OBJECT
    Q_MOC_INCLUDE("device/registry/devicefactory.h")
    Q_PROPERTY(
        CDeviceFactory *deviceFactory READ deviceFactory WRITE setDeviceFactory NOTIFY deviceFactoryChanged)
    /// Not owned. Null: no device is marked.
    Q_PROPERTY(FailedMarks *failedMarks READ failedMarks WRITE setFailedMarks NOTIFY failedMarksChanged)
    /// Not owned. Null: no device is marked as new.
    Q_PROPERTY(KnownDevices *knownDevices READ knownDevices WRITE setKnownDevices NOTIFY knownDevicesChanged)
    Q_PROPERTY(Shown shown READ shown WRITE setShown NOTIFY shownChanged)
    Q_PROPERTY(QString failedOperation READ failedOperation WRITE setFailedOperation NOTIFY shownChanged)
    Q_PROPERTY(int loggedOutCount READ loggedOutCount NOTIFY checkedDevicesChanged)
    Q_PROPERTY(int failedCount READ failedCount NOTIFY checkedDevicesChanged)
    Q_PROPERTY(int failedElsewhereCount READ failedElsewhereCount NOTIFY checkedDevicesChanged)
    Q_PROPERTY(int unaddressedCount READ unaddressedCount NOTIFY checkedDevicesChanged)
    Q_PROPERTY(QStringList checkedDevices READ checkedDevices NOTIFY checkedDevicesChanged)
    Q_PROPERTY(int checkedCount READ checkedCount NOTIFY checkedDevicesChanged)
    Q_PROPERTY(int checkedUpgradingCount READ checkedUpgradingCount NOTIFY checkedDevicesChanged)
    Q_PROPERTY(int deviceCount READ deviceCount NOTIFY checkedDevicesChanged)
    Q_PROPERTY(Qt::CheckState checkState READ checkState NOTIFY checkedDevicesChanged)
public:
    /// Values of "copyRet" in addition to LoginResult.
    enum Result
    {
        NoResult = -1,
        WaitsForPassword = -2, ///< the old password was accepted; the new one is not set yet
        PartlyDone = -3,       ///< done, except for settings that the device does not support
    };
    Q_ENUM(Result)

    /// Selects the devices of the tree.
    enum Shown
    {
        All,
        /// Devices with a mark. After a change of the marks it becomes All if no mark is left, or if no
        /// device that passes the filter is marked and there is no search text.
        Failed,
        LoggedOut, ///< devices without a login so far, or whose last login failed
    };
    Q_ENUM(Shown)

    enum Role
    {
        NameRole = Qt::UserRole, ///< "name": text of the node
        IsCheckedRole,           ///< "isChecked": a Qt::CheckState
        CopyRetRole,             ///< "copyRet": result of the last batch with the device, NoResult initially
        IdentityRole,    ///< not in roleNames(): unique string of a device, or of a group among the groups
        FailureRole,     ///< not in roleNames(): see FollowedMarks::messagesOf()
        OnlyNotDoneRole, ///< not in roleNames(): see FailedMarks::isOnlyNotDone()
        NewRole,         ///< not in roleNames(): the device is Presence::New
        LabelRole,       ///< not in roleNames(): the address, without the port that most devices have
    };

    explicit OVTreeModel(QObject *parent = nullptr);

    [[nodiscard]] QModelIndex index(int row, int column,
                                    const QModelIndex &parent = QModelIndex()) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex &child) const override;
    [[nodiscard]] int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

    /// Writes "isChecked" (a bool or a Qt::CheckState; for a group to all its devices) or "copyRet" (of a
    /// device). Returns false, and writes nothing, for another role or index.
    Q_INVOKABLE bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    [[nodiscard]] CDeviceFactory *deviceFactory() const;
    void setDeviceFactory(CDeviceFactory *deviceFactory);
    [[nodiscard]] FailedMarks *failedMarks() const { return m_failedMarks.get(); }
    void setFailedMarks(FailedMarks *marks);
    [[nodiscard]] KnownDevices *knownDevices() const { return m_known; }
    void setKnownDevices(KnownDevices *known);
    [[nodiscard]] Shown shown() const { return m_shown; }
    void setShown(Shown shown);
    /// Title of the work to whose marks Shown::Failed and the counts are restricted; empty: all marks.
    /// Becomes empty when that work has no mark left, and when `shown` changes.
    [[nodiscard]] QString failedOperation() const { return m_failedMarks.operation(); }
    void setFailedOperation(const QString &operation);

    // Numbers of the devices with an address that passed the filter of the last resetItems(), in the tree or
    // hidden by `shown`.
    [[nodiscard]] int loggedOutCount() const { return m_loggedOutCount; } ///< without a successful last login
    [[nodiscard]] int failedCount() const { return m_failedCount; }       ///< with a mark

    /// The number of marked devices that are not in failedCount(): they did not pass the filter of the last
    /// resetItems(), or have no address. 0 while there is a search text.
    [[nodiscard]] int failedElsewhereCount() const;

    /// The number of devices that passed the filter of the last resetItems() and have no address yet
    /// (waiting for DHCP). They are not in the tree.
    [[nodiscard]] int unaddressedCount() const { return m_unaddressedCount; }

    /// Rebuilds the tree from the IPv4 rows. `type` is a filter of RowFilter: usually "removeuninit"
    /// (initialised devices only), or "search" (devices whose type, model, address, MAC, version or name
    /// contains `searchText`). Does nothing without a factory.
    Q_INVOKABLE void resetItems(const QString &type, const QString &searchText);

    /// "ipport" of the checked devices, in tree order.
    [[nodiscard]] QStringList checkedDevices() const;
    [[nodiscard]] int checkedCount() const;
    [[nodiscard]] int checkedUpgradingCount() const; ///< checked devices being upgraded at the last rebuild
    [[nodiscard]] int deviceCount() const;           ///< devices of the tree

    /// checkedDevices() as a function: QML gets a copy that later checks do not change, whereas a binding to
    /// the property would update.
    Q_INVOKABLE [[nodiscard]] QStringList tickedNow() const { return checkedDevices(); }

    /// Whether exactly the devices with these addresses and ports are checked, in any order.
    Q_INVOKABLE [[nodiscard]] bool areTicked(const QStringList &devices) const;

    /// `devices` without each occurrence of `device`.
    Q_INVOKABLE [[nodiscard]] static QStringList without(const QStringList &devices, const QString &device);

    /// Maps of "ipport" and "name" of the checked devices, or of all devices of the tree if none is checked,
    /// in tree order. Empty without a factory.
    Q_INVOKABLE [[nodiscard]] QVariantList devicesToWatch() const;

    /// The state of the check box for the complete tree.
    [[nodiscard]] Qt::CheckState checkState() const;
    /// Checks or unchecks the devices of the tree. Hidden devices keep their check marks.
    Q_INVOKABLE void setAllChecked(bool checked);

    /// Checks the devices with these identities and unchecks all others, in the tree and hidden. A device
    /// that is not listed yet is checked when it appears in the tree.
    Q_INVOKABLE void setCheckedDevices(const QStringList &identities);

    /// Checks the devices of the tree whose rows have the same text under `key` as the device `identity`,
    /// and unchecks all others, also hidden ones. Does nothing if that device does not pass the filter of the
    /// last resetItems(), and without a factory.
    Q_INVOKABLE void checkSimilar(const QString &identity, const QString &key);

    /// Sets "copyRet" of the devices with this address and port. Does nothing if the tree has none.
    Q_INVOKABLE void setResult(const QString &ipport, int result);

    /// Same for many devices, with one result.
    Q_INVOKABLE void setResultOfAll(const QStringList &ipports, int result);

    /// Sets the results of a batch; the entries of the three lists belong together by index. A result is a
    /// code of resultName(). LoginResult::Unknown becomes WaitsForPassword. A success with a text becomes
    /// PartlyDone; a missing text is empty.
    Q_INVOKABLE void takeResults(const QStringList &ipports, const QList<int> &results,
                                 const QStringList &texts);

    /// Clears all results, including those of hidden devices.
    Q_INVOKABLE void clearResults();

Q_SIGNALS:
    void deviceFactoryChanged();
    void failedMarksChanged();
    void knownDevicesChanged();
    void shownChanged();          ///< `shown` or `failedOperation` has changed
    void checkedDevicesChanged(); ///< check marks, marks or the devices of the tree may have changed

private:
    struct Device
    {
        QString identity;
        QString ipport;
        bool checked = false;
        int copyRet = NoResult;
        QString detail = {}; ///< tool tip: name and model
        bool isUpgrading = false;
        bool isLost = false;
        bool isNew = false;
    };
    struct Group
    {
        QString type;
        QList<Device> devices;
        int checkedCount = 0;
    };

    [[nodiscard]] static bool isGroup(const QModelIndex &index) { return index.internalId() == 0; }
    [[nodiscard]] const Group &groupOf(const QModelIndex &device) const;
    [[nodiscard]] Device deviceOf(const QString &identity, const QJsonObject &row) const;
    void updateMarks();
    [[nodiscard]] QVariantList readRows() const;
    void noteUsualPort(const QVariantList &rows);
    /// The group of a row; empty if the row is not shown.
    [[nodiscard]] QString groupNameOf(const QJsonObject &row, const QString &identity) const;
    void countFailed();
    void rememberDevices();
    void updatePositions();
    void checkGroup(const QModelIndex &group, bool checked);
    void writeResult(const QModelIndex &device, int result);
    [[nodiscard]] QVariant groupData(const Group &group, int role) const;
    [[nodiscard]] QVariant deviceData(const Device &device, int role) const;
    void setDeviceChecked(const QModelIndex &device, bool checked);

    QPointer<CDeviceFactory> m_deviceFactory; ///< not owned; may be destroyed before this object
    FollowedMarks m_failedMarks;
    QPointer<KnownDevices> m_known; ///< not owned; null without known devices
    Shown m_shown = All;
    int m_loggedOutCount = 0;
    int m_failedCount = 0;
    int m_unaddressedCount = 0;
    QStringList m_found;  ///< identities of the devices that the last rebuild found, shown or not
    QString m_usualPort;  ///< ":port" that most devices have
    QString m_filterType; ///< of the last resetItems(); empty before the first
    QString m_searchText;
    QList<Group> m_groups;
    QMultiHash<QString, std::pair<int, int>> m_positions; ///< group and row of each device, by ipport
    QHash<QString, Device> m_remembered; ///< checked states and results of hidden devices, by identity
};

// Devices as a tree, grouped by type, for the configuration pages.
#pragma once

#include "device/models/followedmarks.h"

#include <QAbstractItemModel>
#include <QHash>
#include <QList>
#include <QPointer>
#include <QVariantList>

#include <utility>

class CDeviceFactory;

/// Two levels: groups named after a device type ("IPC", "NVR", ...), and in each the devices, named by their
/// "ipport". Devices with no type text stand with those of type "Other". Groups come in alphabetical
/// order with "PC-NVR" and then "Other" at the end, since they are no device hardware; devices in the order
/// of their addresses. The tick of a group covers its devices and is partial when some of them are ticked.
/// Ticks and results outlive a rebuild. They belong to the name of the row (see rowName()): a device that
/// gets another address keeps its tick, and one that gets that address does not inherit it.
///
/// While only the devices that batches failed with are shown, the groups are the reasons, in alphabetical
/// order.
class OVTreeModel : public QAbstractItemModel
{
    Q_OBJECT
    Q_MOC_INCLUDE("device/registry/devicefactory.h")
    Q_PROPERTY(
        CDeviceFactory *deviceFactory READ deviceFactory WRITE setDeviceFactory NOTIFY deviceFactoryChanged)
    Q_PROPERTY(FailedMarks *failedMarks READ failedMarks WRITE setFailedMarks NOTIFY failedMarksChanged)
    Q_PROPERTY(Shown shown READ shown WRITE setShown NOTIFY shownChanged)
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
    /// "copyRet" beside the results of devices.
    enum Result
    {
        NoResult = -1,
        WaitsForPassword = -2, ///< the old password was right, and the new one is to come
        PartlyDone = -3,       ///< done but for what the device cannot do
    };
    Q_ENUM(Result)

    /// Which devices the tree holds.
    enum Shown
    {
        All,
        Failed,    ///< those that batches failed with; ends with the last mark of them
        LoggedOut, ///< those of which the list knows no login, or one that failed
    };
    Q_ENUM(Shown)

    enum Role
    {
        NameRole = Qt::UserRole, ///< "name": text of the node
        IsCheckedRole,           ///< "isChecked": a Qt::CheckState
        CopyRetRole,     ///< "copyRet": result of what was last done with the device, NoResult at first
        IdentityRole,    ///< not for the scene: unique text of a device or of a group among its kind
        FailureRole,     ///< not for the scene: what batches failed with the device, empty when they did not
        OnlyNotDoneRole, ///< not for the scene: whether no batch failed with the device, see FailedMarks
        LabelRole,       ///< not for the scene: the address, without the port that most devices have
    };

    explicit OVTreeModel(QObject *parent = nullptr);

    [[nodiscard]] QModelIndex index(int row, int column,
                                    const QModelIndex &parent = QModelIndex()) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex &child) const override;
    [[nodiscard]] int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

    /// Writes "isChecked" (a bool or a Qt::CheckState; a group passes it on to its devices) or "copyRet".
    Q_INVOKABLE bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    [[nodiscard]] CDeviceFactory *deviceFactory() const;
    void setDeviceFactory(CDeviceFactory *deviceFactory);
    [[nodiscard]] FailedMarks *failedMarks() const { return m_failedMarks.get(); }
    void setFailedMarks(FailedMarks *marks);
    [[nodiscard]] Shown shown() const { return m_shown; }
    void setShown(Shown shown);

    /// Of the devices that the filter of the last rebuild leaves, also when they are not shown.
    [[nodiscard]] int loggedOutCount() const { return m_loggedOutCount; }
    [[nodiscard]] int failedCount() const { return m_failedCount; }

    /// Marked devices that the tree cannot show; 0 with a search text, which may hide some.
    [[nodiscard]] int failedElsewhereCount() const;

    /// Devices that the last rebuild left out because they have no address: they wait for one by DHCP.
    [[nodiscard]] int unaddressedCount() const { return m_unaddressedCount; }

    /// Rebuilds the tree from the IPv4 rows. `type` is "search" (devices that hold `searchText`) or
    /// "removeuninit" (initialised devices only); other filters of the rows are taken as well.
    Q_INVOKABLE void resetItems(const QString &type, const QString &searchText);

    /// "ipport" of the ticked devices, in the order of the tree.
    [[nodiscard]] QStringList checkedDevices() const;
    [[nodiscard]] int checkedCount() const;
    [[nodiscard]] int checkedUpgradingCount() const; ///< of the ticked ones, as of the last rebuild
    [[nodiscard]] int deviceCount() const;

    /// The same as they are now: the list does not follow the ticks.
    Q_INVOKABLE [[nodiscard]] QStringList tickedNow() const { return checkedDevices(); }

    /// Whether these devices are ticked and no others, in whatever order.
    Q_INVOKABLE [[nodiscard]] bool areTicked(const QStringList &devices) const;

    Q_INVOKABLE [[nodiscard]] static QStringList without(const QStringList &devices, const QString &device);

    /// "ipport" and "name" of the ticked devices, or of all while none is ticked, in the order of the tree.
    Q_INVOKABLE [[nodiscard]] QVariantList devicesToWatch() const;

    /// The tick of the whole tree, as that of a group.
    [[nodiscard]] Qt::CheckState checkState() const;
    Q_INVOKABLE void setAllChecked(bool checked);

    /// Ticks the devices with these identities and no others, also those that a search text hides.
    Q_INVOKABLE void setCheckedDevices(const QStringList &identities);

    /// Ticks the devices of the tree whose rows have the same value of `key` as that of this device, and no
    /// other device.
    Q_INVOKABLE void checkSimilar(const QString &identity, const QString &key);

    /// Writes "copyRet" of the device that `ipport` names, and of any that shares its address; does nothing
    /// when the tree has none.
    Q_INVOKABLE void setResult(const QString &ipport, int result);

    /// The same for many devices, and one result for all of them.
    Q_INVOKABLE void setResultOfAll(const QStringList &ipports, int result);

    /// Writes what a batch has done with many devices, each with the result and the text at its place: -1 is
    /// shown as WaitsForPassword, and a success with a text as PartlyDone.
    Q_INVOKABLE void takeResults(const QStringList &ipports, const QList<int> &results,
                                 const QStringList &texts);

    /// Takes every result back, also of devices that a search text hides.
    Q_INVOKABLE void clearResults();

Q_SIGNALS:
    void deviceFactoryChanged();
    void failedMarksChanged();
    void shownChanged();
    void checkedDevicesChanged();

private:
    struct Device
    {
        QString identity;
        QString ipport;
        bool checked = false;
        int copyRet = NoResult;
        QString detail = {}; ///< name and model, the tool tip of the device
        bool isUpgrading = false;
        bool isLost = false;
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
    void takeMarks();
    [[nodiscard]] QVariantList readRows() const;
    void noteUsualPort(const QVariantList &rows);
    /// Name of the group that a row stands in; empty when it is not shown.
    [[nodiscard]] QString groupNameOf(const QJsonObject &row, const QString &identity) const;
    void countFailed();
    void rememberDevices();
    void notePlaces();
    void checkGroup(const QModelIndex &group, bool checked);
    void writeResult(const QModelIndex &device, int result);
    [[nodiscard]] QVariant groupData(const Group &group, int role) const;
    [[nodiscard]] QVariant deviceData(const Device &device, int role) const;
    void setDeviceChecked(const QModelIndex &device, bool checked);

    QPointer<CDeviceFactory> m_deviceFactory; ///< not owned; may be destroyed before the scene is
    FollowedMarks m_failedMarks;
    Shown m_shown = All;
    int m_loggedOutCount = 0;
    int m_failedCount = 0;
    int m_unaddressedCount = 0;
    QStringList m_found;  ///< identities of the devices that the last rebuild found, shown or not
    QString m_usualPort;  ///< of most devices of the tree
    QString m_filterType; ///< of the last resetItems(), empty before it
    QString m_searchText;
    QList<Group> m_groups;
    QMultiHash<QString, std::pair<int, int>> m_places; ///< group and row of each device, by ipport
    QHash<QString, Device>
        m_remembered; ///< ticks and results of devices that a search text hides, by identity
};

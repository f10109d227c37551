// Devices as a tree, grouped by type, for the configuration pages.
#pragma once

#include <QAbstractItemModel>
#include <QHash>
#include <QList>
#include <QPointer>

class CDeviceFactory;

/// Two levels: groups named after a device type ("IPC", "NVR", ...), and in each the devices, named and keyed
/// by their "ipport". Devices with no type text stand with those of type "Other". Groups come in alphabetical
/// order with "PC-NVR" and then "Other" at the end, since they are no device hardware; devices in the order
/// of the list. The tick of a group covers its devices and is partial when some of them are ticked. Ticks and
/// results outlive a rebuild.
class OVTreeModel : public QAbstractItemModel
{
    Q_OBJECT
    Q_PROPERTY(
        CDeviceFactory *deviceFactory READ deviceFactory WRITE setDeviceFactory NOTIFY deviceFactoryChanged)
    Q_PROPERTY(QStringList checkedDevices READ checkedDevices NOTIFY checkedDevicesChanged)
public:
    enum Role
    {
        NameRole = Qt::UserRole, ///< "name": text of the node
        IsCheckedRole,           ///< "isChecked": a Qt::CheckState
        CopyRetRole,             ///< "copyRet": result of copying a configuration to the device, -1 none yet
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

    /// Rebuilds the tree from the IPv4 rows. `type` is "search" (devices that hold `searchText`) or
    /// "removeuninit" (initialised devices only); other filters of the rows are taken as well.
    Q_INVOKABLE void resetItems(const QString &type, const QString &searchText);

    /// "ipport" of the ticked devices, in the order of the tree.
    [[nodiscard]] QStringList checkedDevices() const;

Q_SIGNALS:
    void deviceFactoryChanged();
    void checkedDevicesChanged();

private:
    struct Device
    {
        QString ipport;
        bool checked = false;
        int copyRet = -1;
    };
    struct Group
    {
        QString type;
        QList<Device> devices;
        int checkedCount = 0;
    };

    [[nodiscard]] static bool isGroup(const QModelIndex &index) { return index.internalId() == 0; }
    [[nodiscard]] const Group &groupOf(const QModelIndex &device) const;
    [[nodiscard]] QVariant groupData(const Group &group, int role) const;
    [[nodiscard]] QVariant deviceData(const Device &device, int role) const;
    void setGroupChecked(const QModelIndex &group, bool checked);
    void setDeviceChecked(const QModelIndex &device, bool checked);

    QPointer<CDeviceFactory> m_deviceFactory; ///< not owned; may be destroyed before the scene is
    QList<Group> m_groups;
    QHash<QString, Device> m_remembered; ///< ticks and results of devices that a search text hides, by ipport
};

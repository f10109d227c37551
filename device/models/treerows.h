// The visible rows of a device tree as a flat list.
#pragma once

#include "device/models/treemodel.h"

#include <QAbstractListModel>
#include <QPointer>
#include <QSet>

#include <optional>

/// A flat list for a list view: a row for each group of an OVTreeModel, followed by rows for its devices
/// while the group is open. Groups are open until the user closes them; the state survives a rebuild of the
/// tree. A row is computed from its number and needs no object, so that a tree of thousands of devices is
/// fast. Lives on the main thread.
class DeviceTreeRows : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(OVTreeModel *tree READ tree WRITE setTree NOTIFY treeChanged)
public:
    enum Role
    {
        TitleRole = Qt::UserRole, ///< "title": type of a group, address and port of a device
        LabelRole,                ///< "label": the title, without the port that most devices have
        DetailRole,               ///< "detail": name and model of a device; empty for a group
        TickRole,                 ///< "tick": a Qt::CheckState
        ResultRole,               ///< "result": of a device, see OVTreeModel; NoResult for a group
        IsGroupRole,              ///< "isGroup"
        IsOpenRole,               ///< "isOpen": of a group; false for a device
        CountRole,                ///< "deviceCount": of a group; 0 for a device
        IdentityRole,             ///< "identity": unique string, for rowOf()
        FailureRole,              ///< "failure": see FollowedMarks::messagesOf(); empty for a group
        OnlyNotDoneRole,          ///< "onlyNotDone": see FailedMarks::isOnlyNotDone(); false for a group
        IsNewRole,                ///< "isNew": of a device, see OVTreeModel::NewRole
    };

    explicit DeviceTreeRows(QObject *parent = nullptr) : QAbstractListModel(parent) {}

    /// The tree; not owned. Without one there are no rows.
    [[nodiscard]] OVTreeModel *tree() const { return m_tree; }
    void setTree(OVTreeModel *tree);

    [[nodiscard]] int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    // Functions with a row index do nothing, or return an empty value or -1, if it is out of range.

    /// Opens or closes a group. Does nothing for a device.
    Q_INVOKABLE void setOpen(int row, bool open);
    Q_INVOKABLE void toggleOpen(int row); ///< the same with the opposite of the present state

    /// Checks a row that is not fully checked, and unchecks one that is. For a group this applies to all its
    /// devices, also while it is closed.
    Q_INVOKABLE void toggleTick(int row);

    /// The row with this identity; -1 if it does not exist or its group is closed.
    Q_INVOKABLE [[nodiscard]] int rowOf(const QString &identity) const;

    /// "ipport" of a device; empty for a group.
    Q_INVOKABLE [[nodiscard]] QString deviceAt(int row) const;

    /// "identity" of a row, for rowOf().
    Q_INVOKABLE [[nodiscard]] QString identityAt(int row) const;

    /// The name of a device's row, see rowName(); empty for a group.
    Q_INVOKABLE [[nodiscard]] QString nameAt(int row) const;

    /// The row of the first device, starting at `from` and wrapping around, whose address or detail starts
    /// with `text`; -1 if there is none. Ignores case. Groups, and devices of closed groups, are not found.
    Q_INVOKABLE [[nodiscard]] int rowStarting(const QString &text, int from) const;

    /// The row of the next device below the device with this address and port, also in a later group. -1 if
    /// there is none, and if that device has no row.
    Q_INVOKABLE [[nodiscard]] int deviceAfter(const QString &ipport) const;

    /// The row of the group that contains this row; a group returns itself.
    Q_INVOKABLE [[nodiscard]] int groupRowOf(int row) const;

Q_SIGNALS:
    void treeChanged();

private:
    struct Group
    {
        int row = 0; ///< row of the group itself
        int devices = 0;
        bool isOpen = true;
    };
    struct Position
    {
        int group = 0;
        int device = -1; ///< in the group; -1 for the group itself
    };

    void rebuild();
    void numberGroups(); ///< recomputes the rows of the groups
    void forward(const QModelIndex &first, const QModelIndex &last);
    [[nodiscard]] std::optional<Position> positionOf(int row) const;
    [[nodiscard]] QModelIndex treeIndex(const Position &position) const;

    QPointer<OVTreeModel> m_tree;
    QList<Group> m_groups;
    int m_rows = 0;
    QSet<QString> m_closed; ///< types of the closed groups
};

// The visible rows of a device tree, for a list view.
#pragma once

#include "device/models/treemodel.h"

#include <QAbstractListModel>
#include <QPointer>
#include <QSet>

#include <optional>

/// A row for each group of an OVTreeModel, and below it one for each of its devices while the group is open.
/// Groups are open until they are closed, also through a rebuild of the tree. Rows are numbers here, no
/// objects: a tree of thousands of devices is made and walked at once.
class DeviceTreeRows : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(OVTreeModel *tree READ tree WRITE setTree NOTIFY treeChanged)
public:
    enum Role
    {
        TitleRole = Qt::UserRole, ///< "title": type of a group, address and port of a device
        LabelRole,                ///< "label": the title without the port that most devices have
        DetailRole,               ///< "detail": name and model of a device
        TickRole,                 ///< "tick": a Qt::CheckState
        ResultRole,               ///< "result": of a device, see OVTreeModel
        IsGroupRole,              ///< "isGroup"
        IsOpenRole,               ///< "isOpen": of a group
        CountRole,                ///< "deviceCount": of a group
        IdentityRole,             ///< "identity": text by which rowOf() finds the row again
        FailureRole,              ///< "failure": what batches failed with a device, see OVTreeModel
        OnlyNotDoneRole,          ///< "onlyNotDone": of a device with a failure, see OVTreeModel
    };

    explicit DeviceTreeRows(QObject *parent = nullptr) : QAbstractListModel(parent) {}

    [[nodiscard]] OVTreeModel *tree() const { return m_tree; }
    void setTree(OVTreeModel *tree);

    [[nodiscard]] int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    // Operations on a row; one that there is not does nothing.

    /// Opens or closes a group.
    Q_INVOKABLE void setOpen(int row, bool open);
    Q_INVOKABLE void toggleOpen(int row);

    /// Ticks what is not ticked whole, and unticks what is.
    Q_INVOKABLE void toggleTick(int row);

    /// The row with this identity, -1 when it is not there or its group is closed.
    Q_INVOKABLE [[nodiscard]] int rowOf(const QString &identity) const;

    /// "ipport" of a device, empty for a group.
    Q_INVOKABLE [[nodiscard]] QString deviceAt(int row) const;

    /// Text by which rowOf() finds the row again.
    Q_INVOKABLE [[nodiscard]] QString identityAt(int row) const;

    /// Name of a device's row, see rowName(); empty for a group.
    Q_INVOKABLE [[nodiscard]] QString nameAt(int row) const;

    /// The first device from the row `from` on, and then from the top, whose address or detail begins with
    /// `text`; -1 when there is none. Capitals count as small letters.
    Q_INVOKABLE [[nodiscard]] int rowStarting(const QString &text, int from) const;

    /// The row of the next device below the one at this address and port; -1 when there is none.
    Q_INVOKABLE [[nodiscard]] int deviceAfter(const QString &ipport) const;

    /// The row of the group that a device stands in; the row itself for a group.
    Q_INVOKABLE [[nodiscard]] int groupRowOf(int row) const;

Q_SIGNALS:
    void treeChanged();

private:
    struct Group
    {
        int row = 0; ///< where the group stands
        int devices = 0;
        bool isOpen = true;
    };
    struct Place
    {
        int group = 0;
        int device = -1; ///< in the group; -1 for the group itself
    };

    void rebuild();
    void placeGroups(); ///< numbers the rows of the groups again
    void forward(const QModelIndex &first, const QModelIndex &last);
    [[nodiscard]] std::optional<Place> placeOf(int row) const;
    [[nodiscard]] QModelIndex treeIndex(const Place &place) const;

    QPointer<OVTreeModel> m_tree;
    QList<Group> m_groups;
    int m_rows = 0;
    QSet<QString> m_closed; ///< types of the groups that are closed
};

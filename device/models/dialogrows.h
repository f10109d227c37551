// Base class of the row models of dialogs.
#pragma once

#include <QAbstractListModel>
#include <QVariantMap>

/// Implements the interface that the QML table requires of its model: the roles "checked", "conflict" and
/// "identity", get() and rowOf(). A subclass stores the rows and provides their values; it emits the signals
/// of QAbstractListModel at a change. Lives on the main thread.
class DialogRows : public QAbstractListModel
{
    Q_OBJECT
public:
    explicit DialogRows(QObject *parent = nullptr);

    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const final;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const final;

    /// The values of a row by key; empty if `row` is out of range.
    Q_INVOKABLE [[nodiscard]] QVariantMap get(int row) const;

    /// The index of the last row with this identity (see identityOf()); -1 if there is none.
    Q_INVOKABLE [[nodiscard]] int rowOf(const QString &identity) const;

protected:
    enum Role
    {
        CheckedRole = Qt::UserRole,
        ConflictRole,
        IdentityRole,
    };

    /// Identity of a row: its "identity", or its "mac" if that is empty.
    [[nodiscard]] static QString identityOf(const QVariantMap &values);

    // The functions below are called with a valid index only.

    [[nodiscard]] virtual QVariantMap valuesOf(int row) const = 0; ///< for get(), with the keys of a subclass
    [[nodiscard]] virtual bool isChecked(int row) const;           ///< role "checked"; false by default
    [[nodiscard]] virtual bool isInConflict(int row) const;        ///< role "conflict"; false by default
};

// Rows of devices for a table in a dialog.
#pragma once

#include <QAbstractListModel>
#include <QVariantMap>

/// What a table of the scene asks of its model, over what a model of a dialog knows of its rows: the roles
/// "checked", "conflict" and "identity", the values of a row by get(), and its place by rowOf(). Lives on the
/// scene's thread.
class DialogRows : public QAbstractListModel
{
    Q_OBJECT
public:
    explicit DialogRows(QObject *parent = nullptr);

    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const final;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const final;

    /// The row with its keys; empty when `row` is out of range.
    Q_INVOKABLE [[nodiscard]] QVariantMap get(int row) const;

    /// Position of the device with this identity, -1 when there is none.
    Q_INVOKABLE [[nodiscard]] int rowOf(const QString &identity) const;

protected:
    enum Role
    {
        CheckedRole = Qt::UserRole,
        ConflictRole,
        IdentityRole,
    };

    /// What a row tells its device by: "identity" where the page gave one, otherwise "mac".
    [[nodiscard]] static QString identityOf(const QVariantMap &values);

    // Of a row that is there.

    [[nodiscard]] virtual QVariantMap valuesOf(int row) const = 0;
    [[nodiscard]] virtual bool isChecked(int row) const;
    [[nodiscard]] virtual bool isInConflict(int row) const;
};

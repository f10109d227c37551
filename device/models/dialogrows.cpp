#include "device/models/dialogrows.h"

#include "device/models/modelkeys.h"
#include "device/store/devicerow.h"

DialogRows::DialogRows(QObject *parent) : QAbstractListModel(parent) {}

QVariant DialogRows::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    switch (role) {
    case CheckedRole:
        return isChecked(index.row());
    case ConflictRole:
        return isInConflict(index.row());
    case IdentityRole:
        return identityOf(valuesOf(index.row()));
    default:
        return {};
    }
}

QHash<int, QByteArray> DialogRows::roleNames() const
{
    return {{CheckedRole, "checked"}, {ConflictRole, "conflict"}, {IdentityRole, "identity"}};
}

QVariantMap DialogRows::get(int row) const
{
    return row >= 0 && row < rowCount() ? valuesOf(row) : QVariantMap();
}

int DialogRows::rowOf(const QString &identity) const
{
    int row = rowCount() - 1;
    while (row >= 0 && identityOf(valuesOf(row)) != identity)
        --row;
    return row;
}

QString DialogRows::identityOf(const QVariantMap &values)
{
    const QString identity = values.value(RowKey::identity).toString();
    return identity.isEmpty() ? values.value(DeviceRowKey::mac).toString() : identity;
}

bool DialogRows::isChecked(int) const
{
    return false;
}

bool DialogRows::isInConflict(int) const
{
    return false;
}

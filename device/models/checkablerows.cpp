#include "device/models/checkablerows.h"

#include <algorithm>

CheckableRows::CheckableRows(QObject *parent) : DialogRows(parent) {}

int CheckableRows::checkedCount() const
{
    int count = 0;
    for (int row = 0; row < rowCount(); ++row)
        count += isChecked(row) ? 1 : 0;
    return count;
}

Qt::CheckState CheckableRows::checkState() const
{
    const int checked = checkedCount();
    if (checked == 0)
        return Qt::Unchecked;
    return checked == rowCount() ? Qt::Checked : Qt::PartiallyChecked;
}

void CheckableRows::setRangeChecked(int first, int last, bool checked)
{
    first = std::max(first, 0);
    last = std::min(last, rowCount() - 1);
    if (first > last)
        return;
    for (int row = first; row <= last; ++row)
        setChecked(row, checked);
    Q_EMIT dataChanged(index(first), index(last), {CheckedRole});
    Q_EMIT checkedCountChanged();
}

void CheckableRows::setAllChecked(bool checked)
{
    setRangeChecked(0, rowCount() - 1, checked);
}

QStringList CheckableRows::checkedIdentities() const
{
    QStringList identities;
    for (int row = 0; row < rowCount(); ++row) {
        if (isChecked(row))
            identities.append(identityOf(valuesOf(row)));
    }
    return identities;
}

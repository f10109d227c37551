#include "device/models/deviceselection.h"

#include "device/registry/devicerow.h"

#include <algorithm>

DeviceSelection::DeviceSelection(QObject *parent) : DialogRows(parent) {}

int DeviceSelection::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

Qt::CheckState DeviceSelection::checkState() const
{
    if (m_checkedCount == 0)
        return Qt::Unchecked;
    return m_checkedCount == m_rows.size() ? Qt::Checked : Qt::PartiallyChecked;
}

void DeviceSelection::setRows(const QVariantList &rows)
{
    beginResetModel();
    m_rows.clear();
    m_rows.reserve(rows.size());
    for (const QVariant &row : rows)
        m_rows.append({.values = row.toMap()});
    m_checkedCount = rowCount();
    endResetModel();
    Q_EMIT rowsChanged();
    Q_EMIT checkedCountChanged();
}

void DeviceSelection::setNumberedRows(const QVariantList &rows)
{
    QVariantList numbered;
    numbered.reserve(rows.size());
    for (const QVariant &row : rows) {
        QVariantMap values = row.toMap();
        values.insert(QStringLiteral("mac"), QString::number(numbered.size()));
        numbered.append(values);
    }
    setRows(numbered);
}

void DeviceSelection::setRangeChecked(int first, int last, bool checked)
{
    first = std::max(first, 0);
    last = std::min(last, rowCount() - 1);
    if (first > last)
        return;
    for (int row = first; row <= last; ++row)
        m_rows[row].checked = checked;
    m_checkedCount = static_cast<int>(
        std::count_if(m_rows.cbegin(), m_rows.cend(), [](const Row &row) { return row.checked; }));
    Q_EMIT dataChanged(index(first), index(last), {CheckedRole});
    Q_EMIT checkedCountChanged();
}

void DeviceSelection::setAllChecked(bool checked)
{
    setRangeChecked(0, rowCount() - 1, checked);
}

QVariantMap DeviceSelection::valuesOf(int row) const
{
    QVariantMap values = m_rows.at(row).values;
    values.insert(DeviceRowKey::checked, m_rows.at(row).checked);
    return values;
}

QStringList DeviceSelection::checkedIdentities() const
{
    QStringList identities;
    for (const Row &row : m_rows) {
        if (row.checked)
            identities.append(identityOf(row.values));
    }
    return identities;
}

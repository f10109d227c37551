#include "device/models/deviceselection.h"

#include "device/store/devicerow.h"

DeviceSelection::DeviceSelection(QObject *parent) : CheckableRows(parent) {}

int DeviceSelection::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

void DeviceSelection::setRows(const QVariantList &rows)
{
    beginResetModel();
    m_rows.clear();
    m_rows.reserve(rows.size());
    for (const QVariant &row : rows)
        m_rows.append({.values = row.toMap()});
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
        values.insert(DeviceRowKey::mac, QString::number(numbered.size()));
        numbered.append(values);
    }
    setRows(numbered);
}

QVariantMap DeviceSelection::valuesOf(int row) const
{
    QVariantMap values = m_rows.at(row).values;
    values.insert(DeviceRowKey::checked, m_rows.at(row).checked);
    return values;
}

// Device rows with check boxes, for a table in a dialog.
#pragma once

#include "device/models/checkablerows.h"

#include <QList>
#include <QVariantList>

/// Device rows of a page, copied into a dialog, where each has its own check mark. A row is a map with any
/// keys; its "checked" is that of this dialog and not that of the page. Lives on the main thread.
class DeviceSelection : public CheckableRows
{
    Q_OBJECT
public:
    explicit DeviceSelection(QObject *parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex &parent = QModelIndex()) const override;

    /// Replaces the rows by these maps and checks all of them. The identity of a row is its "identity", or
    /// its "mac" if that is empty.
    Q_INVOKABLE void setRows(const QVariantList &rows);

    /// Same for rows without identities: sets "mac" of each map to its index in `rows` (from 0) as text.
    Q_INVOKABLE void setNumberedRows(const QVariantList &rows);

protected:
    [[nodiscard]] QVariantMap valuesOf(int row) const override;
    [[nodiscard]] bool isChecked(int row) const override { return m_rows.at(row).checked; }
    void setChecked(int row, bool checked) override { m_rows[row].checked = checked; }

private:
    struct Row
    {
        QVariantMap values;
        bool checked = true;
    };

    QList<Row> m_rows;
};

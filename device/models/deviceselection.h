// Device rows with check boxes, for a table in a dialog.
#pragma once

#include "device/models/checkablerows.h"

#include <QList>
#include <QVariantList>

/// Each row is a map with its own checked state, independent of the page that the row comes from. Lives on
/// the main thread.
class DeviceSelection : public CheckableRows
{
    Q_OBJECT
public:
    explicit DeviceSelection(QObject *parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex &parent = QModelIndex()) const override;

    /// Replaces the rows; all of them are checked.
    Q_INVOKABLE void setRows(const QVariantList &rows);

    /// Same for rows without a name: "mac" of each is set to its index (from 0) as text.
    Q_INVOKABLE void setNumberedRows(const QVariantList &rows);

protected:
    [[nodiscard]] QVariantMap valuesOf(int row) const override; ///< "checked" is the state in this dialog
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

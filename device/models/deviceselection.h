// Device rows with check boxes, for a table in a dialog.
#pragma once

#include "device/models/dialogrows.h"

#include <QList>
#include <QVariantList>

/// Each row is a map with its own checked state, independent of the page that the row comes from. Lives on
/// the main thread.
class DeviceSelection : public DialogRows
{
    Q_OBJECT
    Q_PROPERTY(int count READ rowCount NOTIFY rowsChanged)
    Q_PROPERTY(int checkedCount READ checkedCount NOTIFY checkedCountChanged)
    Q_PROPERTY(Qt::CheckState checkState READ checkState NOTIFY checkedCountChanged)
public:
    explicit DeviceSelection(QObject *parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex &parent = QModelIndex()) const override;

    [[nodiscard]] int checkedCount() const { return m_checkedCount; }
    [[nodiscard]] Qt::CheckState checkState() const;

    /// Replaces the rows; all of them are checked.
    Q_INVOKABLE void setRows(const QVariantList &rows);

    /// Same for rows without a name: "mac" of each is set to its index.
    Q_INVOKABLE void setNumberedRows(const QVariantList &rows);

    Q_INVOKABLE void setRangeChecked(int first, int last, bool checked);
    Q_INVOKABLE void setAllChecked(bool checked);

    /// The names of the checked rows, in row order.
    Q_INVOKABLE [[nodiscard]] QStringList checkedIdentities() const;

Q_SIGNALS:
    void rowsChanged();
    void checkedCountChanged();

protected:
    [[nodiscard]] QVariantMap valuesOf(int row) const override; ///< "checked" is the state in this dialog
    [[nodiscard]] bool isChecked(int row) const override { return m_rows.at(row).checked; }

private:
    struct Row
    {
        QVariantMap values;
        bool checked = true;
    };

    QList<Row> m_rows;
    int m_checkedCount = 0;
};

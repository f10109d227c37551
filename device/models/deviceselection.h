// Some device rows that the user chooses from, for a table in a dialog.
#pragma once

#include "device/models/dialogrows.h"

#include <QList>
#include <QVariantList>

/// Rows as maps, each with a tick of its own: what is ticked here says nothing about the page that the rows
/// come from.
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

    /// Takes the rows, all of them ticked.
    Q_INVOKABLE void setRows(const QVariantList &rows);

    /// The same for rows that have no names: each is named by its index.
    Q_INVOKABLE void setNumberedRows(const QVariantList &rows);

    Q_INVOKABLE void setRangeChecked(int first, int last, bool checked);
    Q_INVOKABLE void setAllChecked(bool checked);

    /// Names of the ticked rows in their order.
    Q_INVOKABLE [[nodiscard]] QStringList checkedIdentities() const;

Q_SIGNALS:
    void rowsChanged();
    void checkedCountChanged();

protected:
    [[nodiscard]] QVariantMap valuesOf(int row) const override; ///< "checked" as it is here
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

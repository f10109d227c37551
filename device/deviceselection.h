// Some device rows that the user chooses from, for a table in a dialog.
#pragma once

#include <QAbstractListModel>
#include <QList>
#include <QVariantList>

/// Rows as maps, each with a tick of its own: what is ticked here says nothing about the page that the rows
/// come from. Offers what a table of the scene asks for: the roles "checked", "conflict" (always false) and
/// "identity" ("mac"), and the values of a row by get(). Lives on the scene's thread.
class DeviceSelection : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int count READ rowCount NOTIFY rowsChanged)
    Q_PROPERTY(int checkedCount READ checkedCount NOTIFY checkedCountChanged)
    Q_PROPERTY(Qt::CheckState checkState READ checkState NOTIFY checkedCountChanged)
public:
    explicit DeviceSelection(QObject *parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    [[nodiscard]] int checkedCount() const { return m_checkedCount; }
    [[nodiscard]] Qt::CheckState checkState() const;

    /// Takes the rows, all of them ticked.
    Q_INVOKABLE void setRows(const QVariantList &rows);

    Q_INVOKABLE void setRangeChecked(int first, int last, bool checked);
    Q_INVOKABLE void setAllChecked(bool checked);

    /// The row with its keys, "checked" as it is here; empty when `row` is out of range.
    Q_INVOKABLE [[nodiscard]] QVariantMap get(int row) const;
    /// Position of the row with this "mac", -1 when there is none.
    Q_INVOKABLE [[nodiscard]] int rowOf(const QString &identity) const;

    /// The ticked rows in their order.
    Q_INVOKABLE [[nodiscard]] QVariantList checkedRows() const;

Q_SIGNALS:
    void rowsChanged();
    void checkedCountChanged();

private:
    struct Row
    {
        QVariantMap values;
        bool checked = true;
    };

    QList<Row> m_rows;
    int m_checkedCount = 0;
};

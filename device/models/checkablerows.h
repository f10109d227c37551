// Rows of a dialog with check boxes.
#pragma once

#include "device/models/dialogrows.h"

#include <QStringList>

/// The check boxes of the rows and of the table's header. Lives on the main thread.
class CheckableRows : public DialogRows
{
    Q_OBJECT
    Q_PROPERTY(int count READ rowCount NOTIFY rowsChanged)
    Q_PROPERTY(int checkedCount READ checkedCount NOTIFY checkedCountChanged)
    Q_PROPERTY(Qt::CheckState checkState READ checkState NOTIFY checkedCountChanged)
public:
    explicit CheckableRows(QObject *parent = nullptr);

    [[nodiscard]] int checkedCount() const;
    [[nodiscard]] Qt::CheckState checkState() const; ///< of all rows together; unchecked without rows

    /// Checks or unchecks the rows from `first` to `last`, as far as they exist.
    Q_INVOKABLE void setRangeChecked(int first, int last, bool checked);
    Q_INVOKABLE void setAllChecked(bool checked);

    /// The identities of the checked rows in their order.
    Q_INVOKABLE [[nodiscard]] QStringList checkedIdentities() const;

Q_SIGNALS:
    void rowsChanged();
    void checkedCountChanged();

protected:
    /// Stores the check mark of an existing row. isChecked() returns it.
    virtual void setChecked(int row, bool checked) = 0;
};

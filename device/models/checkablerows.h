// Rows of a dialog with check boxes.
#pragma once

#include "device/models/dialogrows.h"

#include <QStringList>

/// The check boxes of the rows and of the table's header. A subclass stores the rows and their check marks,
/// and emits rowsChanged() and checkedCountChanged() after a change of its rows. Lives on the main thread.
class CheckableRows : public DialogRows
{
    Q_OBJECT
    Q_PROPERTY(int count READ rowCount NOTIFY rowsChanged)
    Q_PROPERTY(int checkedCount READ checkedCount NOTIFY checkedCountChanged)
    Q_PROPERTY(Qt::CheckState checkState READ checkState NOTIFY checkedCountChanged)
public:
    explicit CheckableRows(QObject *parent = nullptr);

    [[nodiscard]] int checkedCount() const;
    /// The state of the header's box: Checked or Unchecked if that is true for all rows, otherwise
    /// PartiallyChecked. Unchecked without rows.
    [[nodiscard]] Qt::CheckState checkState() const;

    /// Checks or unchecks the rows from `first` to `last`, as far as they exist.
    Q_INVOKABLE void setRangeChecked(int first, int last, bool checked);
    Q_INVOKABLE void setAllChecked(bool checked); ///< checks or unchecks all rows

    /// The identities of the checked rows ("identity", or "mac" if that is empty), in the order of the rows.
    Q_INVOKABLE [[nodiscard]] QStringList checkedIdentities() const;

Q_SIGNALS:
    void rowsChanged();
    /// Check marks were set; also emitted if the number of checked rows is the same.
    void checkedCountChanged();

protected:
    /// Stores the check mark of the row with this valid index, which isChecked() then returns. Must not emit
    /// signals: the caller emits them once for all its rows.
    virtual void setChecked(int row, bool checked) = 0;
};

// The contents of a table of the window, read from its model.
#pragma once

#include "tests/tour/driver/driver.h"

#include <QAbstractItemModel>

/// The rows that a table shows at present, from 0 in the displayed order. Values are read by the names of
/// their roles, such as "ipport". The table must exist as long as this object is used.
class Rows
{
public:
    /// Waits for the table with this object name.
    explicit Rows(const Driver &driver, const QString &table = QStringLiteral("deviceTable"))
        : m_model(driver.require(table)->property("model").value<QAbstractItemModel *>())
    {
        driver.check(m_model != nullptr, QStringLiteral("the table has a model"));
    }

    [[nodiscard]] int count() const { return m_model->rowCount(); }
    /// A value of a row; invalid if there is no such row or role.
    [[nodiscard]] QVariant value(int row, const QByteArray &role) const
    {
        return m_model->data(m_model->index(row, 0), m_model->roleNames().key(role));
    }
    /// The last row with this value; -1 if there is none.
    [[nodiscard]] int rowOf(const QByteArray &role, const QVariant &value) const
    {
        int row = count() - 1;
        while (row >= 0 && this->value(row, role) != value)
            --row;
        return row;
    }
    /// The number of rows with this value.
    [[nodiscard]] int countOf(const QByteArray &role, const QVariant &value) const
    {
        int found = 0;
        for (int row = 0; row < count(); ++row)
            found += this->value(row, role) == value ? 1 : 0;
        return found;
    }

private:
    QAbstractItemModel *const m_model;
};

/// Ticks the rows of the devices with these "address:port" by clicks; `rows` are those of the shown table.
/// None of them may be ticked before. The tour fails if a device is not listed.
inline void tickRows(const Driver &driver, const Rows &rows, const QStringList &ipports)
{
    for (const QString &ipport : ipports) {
        const int row = rows.rowOf("ipport", ipport);
        driver.check(row >= 0, QStringLiteral("%1 is listed").arg(ipport));
        driver.click(QStringLiteral("check%1").arg(row));
        driver.check(rows.value(row, "checked").toBool(), QStringLiteral("%1 is ticked").arg(ipport));
    }
}

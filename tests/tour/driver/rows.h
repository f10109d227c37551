// The contents of a table.
#pragma once

#include "tests/tour/driver/driver.h"

#include <QAbstractItemModel>

/// The rows of a table's model, read by role.
class Rows
{
public:
    explicit Rows(const Driver &driver, const QString &table = QStringLiteral("deviceTable"))
        : m_model(driver.require(table)->property("model").value<QAbstractItemModel *>())
    {
        driver.check(m_model != nullptr, QStringLiteral("the table has a model"));
    }

    [[nodiscard]] int count() const { return m_model->rowCount(); }
    [[nodiscard]] QVariant value(int row, const QByteArray &role) const
    {
        return m_model->data(m_model->index(row, 0), m_model->roleNames().key(role));
    }
    /// The first row with this value; -1 if there is none.
    [[nodiscard]] int rowOf(const QByteArray &role, const QVariant &value) const
    {
        int row = count() - 1;
        while (row >= 0 && this->value(row, role) != value)
            --row;
        return row;
    }
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

/// Ticks the rows of devices. None of them is ticked before.
inline void tickRows(const Driver &driver, const Rows &rows, const QStringList &ipports)
{
    for (const QString &ipport : ipports) {
        const int row = rows.rowOf("ipport", ipport);
        driver.check(row >= 0, QStringLiteral("%1 is listed").arg(ipport));
        driver.click(QStringLiteral("check%1").arg(row));
        driver.check(rows.value(row, "checked").toBool(), QStringLiteral("%1 is ticked").arg(ipport));
    }
}

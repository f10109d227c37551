// What a table of the window shows.
#pragma once

#include "tests/tour/driver.h"

#include <QAbstractItemModel>

/// The rows that a table shows, read from its model by role.
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
    /// The first row with this value, -1 when there is none.
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

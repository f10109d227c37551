#pragma once

#include "device/dh/lists/devicelistline.h"

#include <QList>
#include <QStringView>

/// Makes lines of a list from the rows of a table, whose columns are found by their headers: they may stand
/// in any order, and some may be missing, but for the address. Rows above the headers are no devices, and
/// rows without a text are none either.
class DeviceListTable
{
public:
    /// How many rows may stand above the headers, and how many columns are looked at.
    static constexpr int maximumRowsAbove = 50;
    static constexpr int maximumColumns = 64;

    explicit DeviceListTable(DeviceListContents &contents) : m_contents(contents) {}

    /// Takes the next row. Returns false when the table cannot be used; the contents say why.
    bool addRow(int number, const QList<QStringView> &cells);

    /// To be called behind the last row: a table without headers cannot be used.
    bool end();

    /// How many columns the headers take up; 0 before they are found.
    [[nodiscard]] qsizetype width() const { return m_columns.size(); }

    /// True for the places in a row whose text counts: all before the headers are found.
    [[nodiscard]] bool isRead(qsizetype place) const { return m_columns.value(place, 0) >= 0; }

private:
    bool findHeaders(const QList<QStringView> &cells);
    bool refuseWithoutHeaders();

    DeviceListContents &m_contents;
    QList<int> m_columns; ///< which ListColumn each column of the table is, -1 for none
    int m_rowsAbove = 0;
};

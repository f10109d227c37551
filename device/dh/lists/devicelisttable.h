#pragma once

#include "device/dh/lists/devicelistline.h"

#include <QList>
#include <QStringView>

/// Converts the rows of a table to lines of a list. Columns are found by their headers: any order, and all
/// but the address may be missing. Skips rows above the headers and empty rows.
class DeviceListTable
{
public:
    /// Maximum number of rows above the headers, and of columns that are read.
    static constexpr int maximumRowsAbove = 50;
    static constexpr int maximumColumns = 64;

    /// The lines are added to `contents`, which must outlive this object.
    explicit DeviceListTable(DeviceListContents &contents) : m_contents(contents) {}

    /// Adds the next row. Returns false if the table cannot be used; DeviceListContents::refusal has the
    /// reason.
    bool addRow(int number, const QList<QStringView> &cells);

    /// Must be called after the last row. Returns false, and sets the refusal, if no headers were found.
    bool end();

    /// The number of columns of the headers; 0 before they are found.
    [[nodiscard]] qsizetype width() const { return m_columns.size(); }

    /// Whether the column at this index is used; true for all before the headers are found.
    [[nodiscard]] bool isRead(qsizetype index) const { return m_columns.value(index, 0) >= 0; }

private:
    bool findHeaders(const QList<QStringView> &cells);
    bool refuseWithoutHeaders();

    DeviceListContents &m_contents;
    QList<int> m_columns; ///< ListColumn by index of the column, -1: not used
    int m_rowsAbove = 0;
};

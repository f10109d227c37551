#pragma once

#include "device/dh/lists/devicelistline.h"

#include <QList>
#include <QStringView>

/// Converts the rows of a table to lines of a list. The headers are the first row that contains the header of
/// the address. Columns are found by their headers (ListColumnName::header, also after "*"): any order, and
/// all but the address may be missing; unknown columns are ignored. Skips rows above the headers and empty
/// rows.
class DeviceListTable
{
public:
    /// Maximum number of rows above the headers. A table with more of them is refused.
    static constexpr int maximumRowsAbove = 50;
    /// Maximum number of columns in the row of the headers. A row with more cells is not read as the headers:
    /// it counts as a row above them.
    static constexpr int maximumColumns = 64;

    /// The lines are added to `contents`, which must outlive this object.
    explicit DeviceListTable(DeviceListContents &contents) : m_contents(contents) {}

    /// Adds the next row, with its number in the file from 1. A row with more cells than the headers becomes
    /// a line with hasTooManyFields and without values. Returns false if the table cannot be used: no row
    /// may be added then, and DeviceListContents::refusal has the reason.
    bool addRow(int number, const QList<QStringView> &cells);

    /// Must be called after the last row. Returns false, and sets the refusal, if no headers were found.
    bool end();

    /// The number of columns of the headers; 0 before they are found.
    [[nodiscard]] qsizetype width() const { return m_columns.size(); }

    /// Whether the column at this index is used. Also true before the headers are found, and for an index
    /// from width().
    [[nodiscard]] bool isRead(qsizetype index) const { return m_columns.value(index, 0) >= 0; }

private:
    bool findHeaders(const QList<QStringView> &cells);
    bool refuseWithoutHeaders();

    DeviceListContents &m_contents;
    QList<int> m_columns; ///< ListColumn by index of the column, -1: not used
    int m_rowsAbove = 0;
};

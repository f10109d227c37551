#include "device/dh/lists/devicelisttable.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

namespace {

/// The column of a header, -1 if unknown. Headers of mandatory columns may start with "*".
int columnOfHeader(QStringView header)
{
    header = header.trimmed();
    if (header.startsWith(QLatin1Char('*')))
        header = header.sliced(1).trimmed();
    const auto &names = listColumnNames();
    const auto found = std::find_if(names.begin(), names.end(),
                                    [header](const ListColumnName &name) { return name.header == header; });
    return found == names.end() ? -1 : static_cast<int>(found - names.begin());
}

} // namespace

bool DeviceListTable::addRow(int number, const QList<QStringView> &cells)
{
    if (m_columns.isEmpty())
        return findHeaders(cells) || ++m_rowsAbove <= maximumRowsAbove || refuseWithoutHeaders();

    if (std::all_of(cells.begin(), cells.end(), [](QStringView cell) { return cell.trimmed().isEmpty(); }))
        return true;
    DeviceListLine line;
    line.number = number;
    line.hasTooManyFields = cells.size() > m_columns.size();
    const qsizetype count = line.hasTooManyFields ? 0 : cells.size();
    for (qsizetype index = 0; index < count; ++index) {
        if (m_columns.at(index) >= 0) {
            const auto column = static_cast<ListColumn>(m_columns.at(index));
            line[column] = listText(column, cells.at(index));
        }
    }
    return m_contents.add(std::move(line));
}

bool DeviceListTable::end()
{
    return !m_columns.isEmpty() || refuseWithoutHeaders();
}

bool DeviceListTable::findHeaders(const QList<QStringView> &cells)
{
    if (cells.size() > maximumColumns)
        return false;
    QList<int> columns;
    for (const QStringView cell : cells)
        columns.append(columnOfHeader(cell));
    if (!columns.contains(static_cast<int>(ListColumn::IPAddress)))
        return false;
    m_columns = columns;
    return true;
}

bool DeviceListTable::refuseWithoutHeaders()
{
    return m_contents.refuse(QCoreApplication::translate("DeviceList", "文件内没有设备列表的表头"));
}

#include "sheets/internal/worksheetrows.h"

#include "sheets/internal/xmlnames.h"

#include <algorithm>

namespace sheets {

namespace {

/// The position of the cell of that column in `cells`, or the position to insert it.
template<typename Cells>
auto positionOf(Cells &cells, int column)
{
    return std::lower_bound(cells.begin(), cells.end(), column,
                            [](const auto &cell, int requested) { return cell.first < requested; });
}

/// False for a cell with a format only.
bool holdsValue(pugi::xml_node cell)
{
    return childNamed(cell, "v") || childNamed(cell, "is") || childNamed(cell, "f");
}

} // namespace

bool WorksheetRows::load(pugi::xml_node data)
{
    m_data = data;
    m_rows.clear();
    int number = 0;
    for (pugi::xml_node row = childNamed(data, "row"); row; row = nextNamed(row, "row")) {
        const pugi::xml_attribute written = row.attribute("r");
        number = written ? QByteArray(written.value()).toInt() : number + 1;
        if (number < 1 || number > maximumRows)
            return fail(QStringLiteral("a row has the number %1").arg(QString::fromUtf8(written.value())));
        if (!loadRow(number, row))
            return false;
    }
    return true;
}

bool WorksheetRows::loadRow(int number, pugi::xml_node node)
{
    Row &row = m_rows.try_emplace(number, Row{node, {}}).first->second;
    int column = 0;
    for (pugi::xml_node cell = childNamed(node, "c"); cell; cell = nextNamed(cell, "c")) {
        const pugi::xml_attribute written = cell.attribute("r");
        const auto position = written ? cellPosition(QString::fromUtf8(written.value()))
                                      : std::optional(CellPosition{number, column + 1});
        if (!position || !position->isInSheet())
            return fail(QStringLiteral("a cell in row %1 has the position %2")
                            .arg(number)
                            .arg(QString::fromUtf8(written.value())));
        column = position->column;
        const auto insertion = positionOf(row.cells, column);
        // Of two cells at the same position, the first one is used.
        if (insertion == row.cells.end() || insertion->first != column)
            row.cells.insert(insertion, {column, cell});
    }
    return true;
}

UsedRows WorksheetRows::usedRows() const
{
    const auto hasValue = [](const auto &entry) {
        const auto &cells = entry.second.cells;
        return std::any_of(cells.begin(), cells.end(),
                           [](const auto &cell) { return holdsValue(cell.second); });
    };
    const auto first = std::find_if(m_rows.cbegin(), m_rows.cend(), hasValue);
    if (first == m_rows.cend())
        return {};
    const auto last = std::find_if(m_rows.crbegin(), m_rows.crend(), hasValue);
    return {first->first, last->first - first->first + 1};
}

std::optional<CellRange> WorksheetRows::usedRange() const
{
    std::optional<CellRange> range;
    for (const auto &[number, row] : m_rows) {
        if (row.cells.empty())
            continue;
        const int first = row.cells.front().first;
        const int last = row.cells.back().first;
        if (!range)
            range = CellRange{{number, first}, {number, last}};
        range->first.column = std::min(range->first.column, first);
        range->last = {number, std::max(range->last.column, last)};
    }
    return range;
}

pugi::xml_node WorksheetRows::row(int number) const
{
    const Row *row = knownRow(number);
    return row ? row->node : pugi::xml_node();
}

pugi::xml_node WorksheetRows::cell(CellPosition position) const
{
    const Row *row = knownRow(position.row);
    if (!row)
        return {};
    const auto cell = positionOf(row->cells, position.column);
    return cell == row->cells.end() || cell->first != position.column ? pugi::xml_node() : cell->second;
}

const WorksheetRows::Row *WorksheetRows::knownRow(int number) const
{
    // Sheets are usually written from top to bottom, so that it is the last row.
    if (m_rows.empty() || m_rows.rbegin()->first < number)
        return nullptr;
    if (m_rows.rbegin()->first == number)
        return &m_rows.rbegin()->second;
    const auto row = m_rows.find(number);
    return row == m_rows.end() ? nullptr : &row->second;
}

pugi::xml_node WorksheetRows::makeRow(int number)
{
    return madeRow(number).node;
}

WorksheetRows::Row &WorksheetRows::madeRow(int number)
{
    const bool isBelow = m_rows.empty() || m_rows.rbegin()->first < number;
    if (!isBelow && m_rows.rbegin()->first == number)
        return m_rows.rbegin()->second;
    const auto next = isBelow ? m_rows.end() : m_rows.lower_bound(number);
    if (next != m_rows.end() && next->first == number)
        return next->second;
    const std::string name = nameLike(m_data, "row");
    pugi::xml_node row = next == m_rows.end() ? m_data.append_child(name.c_str())
                                              : m_data.insert_child_before(name.c_str(), next->second.node);
    row.append_attribute("r").set_value(number);
    // A row without a number follows the row before it, which may be the new one.
    if (next != m_rows.end())
        attributeOf(next->second.node, "r").set_value(next->first);
    return m_rows.emplace_hint(next, number, Row{row, {}})->second;
}

pugi::xml_node WorksheetRows::makeCell(CellPosition position)
{
    Row &row = madeRow(position.row);
    const auto next = positionOf(row.cells, position.column);
    if (next != row.cells.end() && next->first == position.column)
        return next->second;
    // A neighbour may be in another element with the number of this row.
    pugi::xml_node node = row.cells.empty()         ? row.node
                          : next == row.cells.end() ? row.cells.back().second.parent()
                                                    : next->second.parent();
    const std::string name = nameLike(node, "c");
    pugi::xml_node cell;
    if (next == row.cells.end()) {
        cell = row.cells.empty() ? node.prepend_child(name.c_str())
                                 : node.insert_child_after(name.c_str(), row.cells.back().second);
    } else {
        cell = node.insert_child_before(name.c_str(), next->second);
        attributeOf(next->second, "r")
            .set_value(positionText({position.row, next->first}).toLatin1().constData());
    }
    cell.append_attribute("r").set_value(positionText(position).toLatin1().constData());
    node.remove_attribute("spans"); // a hint on the columns in use, no longer true
    row.cells.insert(next, {position.column, cell});
    return cell;
}

} // namespace sheets

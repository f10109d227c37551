#include "sheets/internal/worksheet.h"

#include "sheets/internal/celltext.h"
#include "sheets/internal/sharedstrings.h"
#include "sheets/internal/stylesheet.h"
#include "sheets/internal/xmlnames.h"

#include <algorithm>
#include <array>

namespace sheets {

namespace {

QString valueText(pugi::xml_node cell)
{
    return textOf(childNamed(cell, "v"));
}

QString shownNumber(const QString &text)
{
    bool isNumber = false;
    const double value = text.toDouble(&isNumber);
    return isNumber ? numberText(value) : text;
}

/// True for a text that starts or ends with a space, which readers may remove without the attribute
/// xml:space.
bool hasOuterSpace(const QString &text)
{
    return text.front().isSpace() || text.back().isSpace();
}

} // namespace

bool Worksheet::load(const QByteArray &bytes)
{
    m_merged.clear();
    m_isModified = m_hasLostFormulas = m_hasNewCells = false;
    if (!m_part.parse(bytes, "worksheet"))
        return fail(m_part.errorText());
    m_data = childNamed(m_part.root(), "sheetData");
    if (!m_data)
        return fail(QStringLiteral("it has no rows"));
    m_columns = childNamed(m_part.root(), "cols");
    const pugi::xml_node merges = childNamed(m_part.root(), "mergeCells");
    for (pugi::xml_node merge = childNamed(merges, "mergeCell"); merge;
         merge = nextNamed(merge, "mergeCell")) {
        if (const auto range = cellRange(QString::fromUtf8(merge.attribute("ref").value())))
            m_merged.append(*range);
    }
    return m_rows.load(m_data) || fail(m_rows.errorText());
}

QString Worksheet::cellText(CellPosition position, const SharedStrings &strings) const
{
    const pugi::xml_node cell = m_rows.cell(position);
    const std::string_view type = cell.attribute("t").value();
    if (type == "s") {
        bool isNumber = false;
        const int index = valueText(cell).toInt(&isNumber);
        return isNumber ? strings.text(index) : QString();
    }
    if (type == "inlineStr")
        return richTextOf(childNamed(cell, "is"));
    const QString text = valueText(cell);
    if (type == "str")
        return unescapedCellText(text);
    if (type == "b")
        return truthText(text.trimmed() == QLatin1String("1") || text.trimmed() == QLatin1String("true"));
    return type.empty() || type == "n" ? shownNumber(text) : text; // errors and dates as they are
}

bool Worksheet::setCellText(CellPosition position, const QString &text, StyleSheet &styles)
{
    pugi::xml_node cell = m_rows.cell(position);
    if (!cell)
        cell = addCell(position);
    else if (checkFormula(position, cell))
        clearCell(cell);
    else
        return false;
    if (!text.isEmpty()) {
        cell.append_attribute("t").set_value("inlineStr");
        pugi::xml_node content =
            cell.append_child(nameLike(cell, "is").c_str()).append_child(nameLike(cell, "t").c_str());
        if (hasOuterSpace(text))
            content.append_attribute("xml:space").set_value("preserve");
        content.append_child(pugi::node_pcdata).set_value(escapedCellText(text).toUtf8().constData());
    }
    setFormat(cell, {.isText = true, .wrap = {}, .bold = {}, .fontSize = {}}, styles);
    return true;
}

bool Worksheet::mergeCells(const CellRange &range)
{
    for (const CellRange &other : std::as_const(m_merged)) {
        if (range.overlaps(other))
            return range == other || fail(QStringLiteral("%1 overlaps the merged cells %2")
                                              .arg(rangeText(range), rangeText(other)));
    }
    bool canClear = true;
    const auto isKept = [&range](CellPosition position) {
        return position == range.first;
    };
    m_rows.forEachCell(range, [&](CellPosition position, pugi::xml_node cell) {
        canClear = canClear && (isKept(position) || checkFormula(position, cell));
    });
    if (!canClear)
        return false;
    m_rows.forEachCell(range, [&](CellPosition position, pugi::xml_node cell) {
        if (!isKept(position))
            clearCell(cell);
    });
    m_merged.append(range);
    pugi::xml_node list = makeMergeList();
    pugi::xml_node merge = list.append_child(nameLike(list, "mergeCell").c_str());
    merge.append_attribute("ref").set_value(rangeText(range).toLatin1().constData());
    attributeOf(list, "count").set_value(int(m_merged.size()));
    m_isModified = true;
    return true;
}

void Worksheet::changeFormat(const CellRange &range, const FormatChange &change, StyleSheet &styles)
{
    for (int row = range.first.row; row <= range.last.row; ++row) {
        for (int column = range.first.column; column <= range.last.column; ++column)
            setFormat(makeCell({row, column}), change, styles);
    }
}

void Worksheet::setRowHeight(int row, double points)
{
    pugi::xml_node node = m_rows.makeRow(row);
    attributeOf(node, "ht").set_value(QByteArray::number(points).constData());
    attributeOf(node, "customHeight").set_value(1);
    m_isModified = true;
}

QByteArray Worksheet::bytes()
{
    if (m_hasNewCells) {
        const auto used = m_rows.usedRange();
        pugi::xml_attribute extent = childNamed(m_part.root(), "dimension").attribute("ref");
        if (used && extent)
            extent.set_value(rangeText(*used).toLatin1().constData());
    }
    return m_part.bytes();
}

/// False for a formula that other cells share: it cannot be removed without them.
bool Worksheet::checkFormula(CellPosition position, pugi::xml_node cell)
{
    const pugi::xml_attribute reference = childNamed(cell, "f").attribute("ref");
    if (!reference)
        return true;
    const auto range = cellRange(QString::fromUtf8(reference.value()));
    return (range && range->cellCount() == 1) ||
           fail(QStringLiteral("the formula in %1 is shared with other cells").arg(positionText(position)));
}

/// Removes the content of the cell, but not its format.
void Worksheet::clearCell(pugi::xml_node cell)
{
    m_hasLostFormulas = m_hasLostFormulas || childNamed(cell, "f");
    cell.remove_children();
    for (const char *ofTheOldValue : {"t", "cm", "vm"})
        cell.remove_attribute(ofTheOldValue);
    m_isModified = true;
}

pugi::xml_node Worksheet::makeCell(CellPosition position)
{
    const pugi::xml_node cell = m_rows.cell(position);
    return cell ? cell : addCell(position);
}

pugi::xml_node Worksheet::addCell(CellPosition position)
{
    const int format = formatOfEmptyCell(position);
    pugi::xml_node cell = m_rows.makeCell(position);
    if (format != 0)
        cell.append_attribute("s").set_value(format);
    m_isModified = m_hasNewCells = true;
    return cell;
}

void Worksheet::setFormat(pugi::xml_node cell, const FormatChange &change, StyleSheet &styles)
{
    const int before = cell.attribute("s").as_int();
    const int after = styles.changed(before, change);
    if (before == after)
        return;
    attributeOf(cell, "s").set_value(after);
    m_isModified = true;
}

/// The format of a missing cell: the format of its row, if any, otherwise of its column.
int Worksheet::formatOfEmptyCell(CellPosition position) const
{
    if (const pugi::xml_node row = m_rows.row(position.row); isOn(row.attribute("customFormat")))
        return row.attribute("s").as_int();
    for (const pugi::xml_node column : m_columns.children()) {
        if (column.attribute("min").as_int() <= position.column &&
            position.column <= column.attribute("max").as_int())
            return column.attribute("style").as_int();
    }
    return 0;
}

/// The list of merged cells; the schema defines its position among the other elements.
pugi::xml_node Worksheet::makeMergeList()
{
    if (const pugi::xml_node list = childNamed(m_part.root(), "mergeCells"))
        return list;
    static constexpr std::array<std::string_view, 8> before = {
        "sheetCalcPr", "sheetProtection", "protectedRanges", "scenarios",
        "autoFilter",  "sortState",       "dataConsolidate", "customSheetViews"};
    pugi::xml_node last = m_data;
    for (pugi::xml_node node = m_data.next_sibling(); node; node = node.next_sibling()) {
        if (std::find(before.begin(), before.end(), localName(node.name())) != before.end())
            last = node;
    }
    return m_part.root().insert_child_after(nameLike(m_data, "mergeCells").c_str(), last);
}

} // namespace sheets

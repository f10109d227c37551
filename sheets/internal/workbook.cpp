#include "sheets/internal/workbook.h"

#include "sheets/internal/xmlnames.h"

namespace sheets {

namespace {

/// The value of an attribute with any prefix.
QString prefixedAttribute(pugi::xml_node node, std::string_view name)
{
    for (const pugi::xml_attribute attribute : node.attributes()) {
        const std::string_view full = attribute.name();
        if (full.size() > name.size() && localName(full) == name)
            return QString::fromUtf8(attribute.value());
    }
    return {};
}

} // namespace

bool Workbook::load(const QByteArray &file)
{
    if (!m_package.load(file))
        return fail(m_package.errorText());
    Relationships ofFile;
    if (!ofFile.load(m_package, QString()))
        return fail(ofFile.errorText());
    const auto part = ofFile.partOfType(QLatin1String("officeDocument"));
    if (!part)
        return fail(QStringLiteral("the file contains no workbook"));
    QByteArray bytes;
    if (!m_package.read(*part, bytes))
        return fail(m_package.errorText());
    XmlPart workbook;
    if (!workbook.parse(bytes, "workbook"))
        return fail(QStringLiteral("part %1: %2").arg(*part, workbook.errorText()));
    if (!m_relationships.load(m_package, *part))
        return fail(m_relationships.errorText());
    return findSheets(workbook.root()) && loadStrings();
}

bool Workbook::findSheets(pugi::xml_node workbook)
{
    const std::string declared = nameLike(workbook, "");
    const std::string attribute =
        declared.empty() ? "xmlns" : "xmlns:" + declared.substr(0, declared.size() - 1);
    m_nameSpace = workbook.attribute(attribute.c_str()).value();
    for (const pugi::xml_node sheet : childNamed(workbook, "sheets").children()) {
        // Chart sheets have relationships of another type, and no cells.
        const auto target = m_relationships.targetById(prefixedAttribute(sheet, "id"));
        if (target && target->type == QLatin1String("worksheet"))
            m_sheetParts.append(target->part);
    }
    return true;
}

bool Workbook::loadStrings()
{
    const auto part = m_relationships.partOfType(QLatin1String("sharedStrings"));
    if (!part)
        return true; // all texts are in their cells
    QByteArray bytes;
    if (!m_package.read(*part, bytes))
        return fail(m_package.errorText());
    return m_strings.load(bytes) || fail(QStringLiteral("part %1: %2").arg(*part, m_strings.errorText()));
}

bool Workbook::selectSheet(int index)
{
    if (index < 1 || index > m_sheetParts.size())
        return fail(QStringLiteral("there is no sheet %1").arg(index));
    const QString &part = m_sheetParts[index - 1];
    if (part == m_sheetPart)
        return true;
    if (!storeSheet())
        return false;
    QByteArray bytes;
    if (!m_package.read(part, bytes))
        return fail(m_package.errorText());
    auto sheet = std::make_unique<Worksheet>();
    if (!sheet->load(bytes))
        return fail(QStringLiteral("part %1: %2").arg(part, sheet->errorText()));
    m_sheet = std::move(sheet);
    m_sheetPart = part;
    return true;
}

UsedRows Workbook::usedRows() const
{
    return m_sheet->usedRows();
}

QString Workbook::cellText(CellPosition position) const
{
    return m_sheet->cellText(position, m_strings);
}

bool Workbook::setCellText(CellPosition position, const QString &text)
{
    return needStyles() && (m_sheet->setCellText(position, text, *m_styles) || fail(m_sheet->errorText()));
}

bool Workbook::mergeCells(const CellRange &range)
{
    return m_sheet->mergeCells(range) || fail(m_sheet->errorText());
}

bool Workbook::changeFormat(const CellRange &range, const FormatChange &change)
{
    if (!needStyles())
        return false;
    m_sheet->changeFormat(range, change, *m_styles);
    return true;
}

bool Workbook::setRowHeight(int row, double points)
{
    m_sheet->setRowHeight(row, points);
    return true;
}

bool Workbook::build(QByteArray &file)
{
    if (!storeSheet())
        return false;
    if (m_styles && m_styles->isModified())
        m_package.replace(m_stylesPart, m_styles->bytes());
    return m_package.build(file) || fail(m_package.errorText());
}

/// Reads the style sheet, or creates one in a workbook without a style sheet.
bool Workbook::needStyles()
{
    if (m_styles)
        return true;
    auto part = m_relationships.partOfType(QLatin1String("styles"));
    if (!part) {
        if (!m_relationships.addPart(m_package, QStringLiteral("styles.xml"), QLatin1String("styles"),
                                     QLatin1String("application/vnd.openxmlformats-officedocument."
                                                   "spreadsheetml.styles+xml"),
                                     StyleSheet::smallest(m_nameSpace)))
            return fail(m_relationships.errorText());
        part = m_relationships.partOfType(QLatin1String("styles"));
    }
    QByteArray bytes;
    if (!m_package.read(*part, bytes))
        return fail(m_package.errorText());
    auto styles = std::make_unique<StyleSheet>();
    if (!styles->load(bytes))
        return fail(QStringLiteral("part %1: %2").arg(*part, styles->errorText()));
    m_styles = std::move(styles);
    m_stylesPart = *part;
    return true;
}

/// Writes the selected sheet to the package.
bool Workbook::storeSheet()
{
    if (!m_sheet || !m_sheet->isModified())
        return true;
    m_package.replace(m_sheetPart, m_sheet->bytes());
    // The calculation chain contains removed formulas. It is optional, and applications create it again.
    if (const auto chain = m_relationships.partOfType(QLatin1String("calcChain"));
        chain && m_sheet->hasLostFormulas())
        return m_relationships.removePart(m_package, *chain) || fail(m_relationships.errorText());
    return true;
}

} // namespace sheets

#include "sheets/internal/stylesheet.h"

#include "sheets/internal/xmlnames.h"

namespace sheets {

namespace {

constexpr int textNumberFormat = 49; // "@", one of the built-in formats

std::vector<pugi::xml_node> childrenNamed(pugi::xml_node parent, std::string_view name)
{
    std::vector<pugi::xml_node> found;
    for (pugi::xml_node child = childNamed(parent, name); child; child = nextNamed(child, name))
        found.push_back(child);
    return found;
}

/// True for a font's property that exists and is not switched off.
bool isSet(pugi::xml_node property)
{
    const pugi::xml_attribute value = property.attribute("val");
    return property && (!value || isOn(value));
}

void setAttribute(pugi::xml_node node, const char *name, int value)
{
    attributeOf(node, name).set_value(value);
}

} // namespace

QByteArray StyleSheet::smallest(const QByteArray &nameSpace)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n<styleSheet xmlns=\"" + nameSpace +
           "\"><fonts count=\"1\"><font><sz val=\"11\"/><name val=\"Calibri\"/></font></fonts>"
           "<fills count=\"2\"><fill><patternFill patternType=\"none\"/></fill>"
           "<fill><patternFill patternType=\"gray125\"/></fill></fills>"
           "<borders count=\"1\"><border><left/><right/><top/><bottom/><diagonal/></border></borders>"
           "<cellStyleXfs count=\"1\"><xf numFmtId=\"0\" fontId=\"0\" fillId=\"0\" "
           "borderId=\"0\"/></cellStyleXfs>"
           "<cellXfs count=\"1\"><xf numFmtId=\"0\" fontId=\"0\" fillId=\"0\" borderId=\"0\" "
           "xfId=\"0\"/></cellXfs>"
           "<cellStyles count=\"1\"><cellStyle name=\"Normal\" xfId=\"0\" builtinId=\"0\"/></cellStyles>"
           "</styleSheet>";
}

bool StyleSheet::load(const QByteArray &bytes)
{
    if (!m_part.parse(bytes, "styleSheet"))
        return fail(m_part.errorText());
    m_cellFormatList = childNamed(m_part.root(), "cellXfs");
    m_fontList = childNamed(m_part.root(), "fonts");
    m_cellFormats = childrenNamed(m_cellFormatList, "xf");
    m_fonts = childrenNamed(m_fontList, "font");
    m_known.clear();
    m_isModified = false;
    return (!m_cellFormats.empty() && !m_fonts.empty()) ||
           fail(QStringLiteral("it has no cell formats or no fonts"));
}

int StyleSheet::changed(int base, const FormatChange &change)
{
    if (base < 0 || std::size_t(base) >= m_cellFormats.size())
        base = 0;
    const auto [known, isNew] = m_known.try_emplace({base, change}, base);
    if (!isNew || hasAll(m_cellFormats[std::size_t(base)], change))
        return known->second;

    pugi::xml_node format = m_cellFormatList.append_copy(m_cellFormats[std::size_t(base)]);
    if (change.isText) {
        setAttribute(format, "numFmtId", *change.isText ? textNumberFormat : 0);
        setAttribute(format, "applyNumberFormat", 1);
    }
    if (change.bold || change.fontSize) {
        setAttribute(format, "fontId", changedFont(fontOf(format), change));
        setAttribute(format, "applyFont", 1);
    }
    if (change.wrap) {
        pugi::xml_node alignment = childNamed(format, "alignment");
        if (!alignment)
            alignment = format.prepend_child(nameLike(format, "alignment").c_str());
        setAttribute(alignment, "wrapText", *change.wrap);
        setAttribute(format, "applyAlignment", 1);
    }
    known->second = int(m_cellFormats.size());
    m_cellFormats.push_back(format);
    setAttribute(m_cellFormatList, "count", int(m_cellFormats.size()));
    m_isModified = true;
    return known->second;
}

/// True for a cell format that the change would not alter.
bool StyleSheet::hasAll(pugi::xml_node format, const FormatChange &change) const
{
    const pugi::xml_node font = fontOf(format);
    if (change.isText && *change.isText != (format.attribute("numFmtId").as_int() == textNumberFormat))
        return false;
    if (change.wrap && *change.wrap != isOn(childNamed(format, "alignment").attribute("wrapText")))
        return false;
    if (change.bold && *change.bold != isSet(childNamed(font, "b")))
        return false;
    // The parser's conversion of numbers is not used, since it depends on the locale's decimal point.
    return !change.fontSize ||
           *change.fontSize == QByteArray(childNamed(font, "sz").attribute("val").value()).toDouble();
}

pugi::xml_node StyleSheet::fontOf(pugi::xml_node format) const
{
    const auto index = std::size_t(format.attribute("fontId").as_uint());
    return m_fonts[index < m_fonts.size() ? index : 0];
}

int StyleSheet::changedFont(pugi::xml_node font, const FormatChange &change)
{
    pugi::xml_node copy = m_fontList.insert_copy_after(font, m_fonts.back());
    if (change.bold) {
        copy.remove_child(childNamed(copy, "b"));
        if (*change.bold)
            copy.prepend_child(nameLike(copy, "b").c_str());
    }
    if (change.fontSize) {
        pugi::xml_node size = childNamed(copy, "sz");
        if (!size)
            size = copy.append_child(nameLike(copy, "sz").c_str());
        attributeOf(size, "val").set_value(QByteArray::number(*change.fontSize).constData());
    }
    m_fonts.push_back(copy);
    setAttribute(m_fontList, "count", int(m_fonts.size()));
    return int(m_fonts.size()) - 1;
}

} // namespace sheets

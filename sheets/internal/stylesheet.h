#pragma once

#include "sheets/formatchange.h"
#include "sheets/internal/xmlpart.h"

#include <map>
#include <vector>

namespace sheets {

/// The looks that cells of a workbook refer to by number.
class StyleSheet : public LastError
{
public:
    /// A style sheet with nothing but the look of an untouched cell.
    [[nodiscard]] static QByteArray smallest(const QByteArray &nameSpace);

    bool load(const QByteArray &bytes);

    /// The number of the look that is `base` but for the change, which is added when there is none yet.
    [[nodiscard]] int changed(int base, const FormatChange &change);

    [[nodiscard]] bool isModified() const { return m_isModified; }
    [[nodiscard]] QByteArray bytes() { return m_part.bytes(); }

private:
    [[nodiscard]] bool hasAll(pugi::xml_node look, const FormatChange &change) const;
    [[nodiscard]] pugi::xml_node fontOf(pugi::xml_node look) const;
    [[nodiscard]] int changedFont(pugi::xml_node font, const FormatChange &change);

    XmlPart m_part;
    pugi::xml_node m_lookList;
    pugi::xml_node m_fontList;
    std::vector<pugi::xml_node> m_looks;
    std::vector<pugi::xml_node> m_fonts;
    std::map<std::pair<int, FormatChange>, int> m_known; ///< results of earlier calls
    bool m_isModified = false;
};

} // namespace sheets

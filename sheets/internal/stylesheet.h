#pragma once

#include "sheets/formatchange.h"
#include "sheets/internal/xmlpart.h"

#include <map>
#include <vector>

namespace sheets {

/// The cell formats of a workbook, which cells refer to by index.
class StyleSheet : public LastError
{
public:
    /// A style sheet with only the default cell format.
    [[nodiscard]] static QByteArray smallest(const QByteArray &nameSpace);

    bool load(const QByteArray &bytes);

    /// The index of the cell format `base` with the change applied. Returns `base` if it has these values
    /// already, otherwise the format that this or an earlier call has added. An invalid `base` counts as 0.
    [[nodiscard]] int changed(int base, const FormatChange &change);

    [[nodiscard]] bool isModified() const { return m_isModified; }
    [[nodiscard]] QByteArray bytes() { return m_part.bytes(); }

private:
    [[nodiscard]] bool hasAll(pugi::xml_node format, const FormatChange &change) const;
    [[nodiscard]] pugi::xml_node fontOf(pugi::xml_node format) const;
    [[nodiscard]] int changedFont(pugi::xml_node font, const FormatChange &change);

    XmlPart m_part;
    pugi::xml_node m_cellFormatList;
    pugi::xml_node m_fontList;
    std::vector<pugi::xml_node> m_cellFormats;
    std::vector<pugi::xml_node> m_fonts;
    std::map<std::pair<int, FormatChange>, int> m_known; ///< results of earlier calls
    bool m_isModified = false;
};

} // namespace sheets

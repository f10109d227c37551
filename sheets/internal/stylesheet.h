#pragma once

#include "sheets/formatchange.h"
#include "sheets/internal/xmlpart.h"

#include <map>
#include <vector>

namespace sheets {

/// The cell formats of a workbook: a list in a part of the file, which cells refer to by index, from 0.
/// Formats are added, never changed or removed.
class StyleSheet : public LastError
{
public:
    /// The XML text of a style sheet with only the default cell format. `nameSpace` is the XML name space of
    /// the workbook.
    [[nodiscard]] static QByteArray smallest(const QByteArray &nameSpace);

    /// Reads the XML part `bytes`. Returns false when it is damaged, or has no cell formats or no fonts; the
    /// object must not be used then.
    bool load(const QByteArray &bytes);

    /// The index of a cell format that is the format with the index `base`, with the change applied. Returns
    /// `base` if that format has these values already. Otherwise a format is added to the style sheet at the
    /// first such call, and its index is returned. An invalid `base` counts as 0.
    [[nodiscard]] int changed(int base, const FormatChange &change);

    /// Whether a format was added since load().
    [[nodiscard]] bool isModified() const { return m_isModified; }
    /// The XML text with the added formats.
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

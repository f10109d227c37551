#pragma once

#include "sheets/lasterror.h"

#include <QByteArray>

#include <pugixml.hpp>

namespace sheets {

/// A part of a workbook as an XML document that is changed and written again. All nodes are kept when it is
/// written, also comments and white space between elements. The encoding is then UTF-8.
class XmlPart : public LastError
{
public:
    /// Reads the text of the part. `rootName` is the name of the root element without its prefix. Fails when
    /// the text is not well-formed, has another root element, is nested deeper than 100 nodes (with texts),
    /// or would take more than 1 GiB of memory. After a failure the document must not be used. Entities that
    /// the document defines are not replaced.
    bool parse(const QByteArray &bytes, const char *rootName);

    /// The root element, which the caller may change. It is valid until the next parse().
    [[nodiscard]] pugi::xml_node root() const { return m_document.document_element(); }

    /// The text of the document with its changes, in UTF-8.
    [[nodiscard]] QByteArray bytes();

private:
    QByteArray m_buffer; ///< contains the names and texts of the document
    pugi::xml_document m_document;
};

} // namespace sheets

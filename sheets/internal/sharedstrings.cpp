#include "sheets/internal/sharedstrings.h"

#include "sheets/internal/xmlnames.h"
#include "sheets/internal/xmlpart.h"

namespace sheets {

bool SharedStrings::load(const QByteArray &bytes)
{
    XmlPart part;
    if (!part.parse(bytes, "sst"))
        return fail(part.errorText());
    m_texts.clear();
    for (pugi::xml_node item = childNamed(part.root(), "si"); item; item = nextNamed(item, "si"))
        m_texts.append(richTextOf(item));
    return true;
}

} // namespace sheets

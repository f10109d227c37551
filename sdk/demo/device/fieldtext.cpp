#include "sdk/demo/device/fieldtext.h"

namespace sdk::demo {

namespace {

// Unusual content of strings: a control character, a line break, markup, a placeholder, a truncated
// three-byte character and bytes that are not valid in UTF-8.
constexpr char oddBytes[] = "\x07<b>%1&amp;</b>\r\n\t\xE4\xB8\xFF\xFE\xC0";

} // namespace

void FieldWriter::write(char *destination, std::size_t size, const QString &text) const
{
    QByteArray bytes = text.toLocal8Bit();
    if (m_oddBytes)
        bytes.append(oddBytes);
    if (!m_overLong) {
        setBlockText(destination, size,
                     std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
        return;
    }
    // Repeated to the last byte: no terminating zero, and usually a truncated character at the end.
    if (bytes.isEmpty())
        bytes = "?";
    for (std::size_t index = 0; index < size; ++index)
        destination[index] = bytes.at(static_cast<qsizetype>(index) % bytes.size());
}

} // namespace sdk::demo

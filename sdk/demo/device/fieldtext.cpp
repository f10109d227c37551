#include "sdk/demo/device/fieldtext.h"

namespace sdk::demo {

namespace {

// What careless administrators and broken firmware leave in texts: a control character, a line break, markup
// and a place holder, half of a three-byte letter and bytes that never stand in UTF-8.
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
    // Repeated to the last byte: no terminating zero, and as a rule half a letter at the end.
    if (bytes.isEmpty())
        bytes = "?";
    for (std::size_t place = 0; place < size; ++place)
        destination[place] = bytes.at(static_cast<qsizetype>(place) % bytes.size());
}

} // namespace sdk::demo

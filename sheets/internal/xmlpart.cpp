#include "sheets/internal/xmlpart.h"

#include "sheets/internal/xmlnames.h"
#include "sheets/xmlbounds.h"

namespace sheets {

namespace {

// A device list of 100,000 rows takes 850 MiB.
constexpr qint64 maximumMemory = 1024LL * 1024 * 1024;
constexpr int maximumDepth = 100;

struct ByteArrayWriter : pugi::xml_writer
{
    QByteArray bytes;

    void write(const void *data, size_t size) override
    {
        bytes.append(static_cast<const char *>(data), qsizetype(size));
    }
};

} // namespace

bool XmlPart::parse(const QByteArray &bytes, const char *rootName)
{
    if (neededXmlMemory(bytes) > maximumMemory)
        return fail(QStringLiteral("it has too many elements"));
    m_document.reset();
    m_buffer = bytes;
    const auto result = m_document.load_buffer_inplace(m_buffer.data(), std::size_t(m_buffer.size()),
                                                       pugi::parse_full | pugi::parse_ws_pcdata);
    if (!result)
        return fail(QString::fromUtf8(result.description()));
    if (localName(root().name()) != rootName)
        return fail(QStringLiteral("its root element is %1 and not %2")
                        .arg(QString::fromUtf8(root().name()), QString::fromUtf8(rootName)));
    return !isNestedDeeper(m_document, maximumDepth) ||
           fail(QStringLiteral("its elements are nested too deeply"));
}

QByteArray XmlPart::bytes()
{
    // The output is UTF-8, regardless of the encoding of the input.
    const pugi::xml_node declaration = m_document.first_child();
    if (declaration.type() == pugi::node_declaration) {
        pugi::xml_attribute encoding = declaration.attribute("encoding");
        if (encoding)
            encoding.set_value("UTF-8");
    }
    ByteArrayWriter writer;
    writer.bytes.reserve(m_buffer.size() + m_buffer.size() / 4);
    m_document.save(writer, "", pugi::format_raw | pugi::format_no_declaration, pugi::encoding_utf8);
    return writer.bytes;
}

} // namespace sheets

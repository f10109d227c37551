#include "sheets/internal/xmlpart.h"

#include "sheets/internal/xmlnames.h"

namespace sheets {

namespace {

constexpr qint64 maximumMemory = 512LL * 1024 * 1024;
constexpr qint64 nodeSize = 64;      // of an element, a text or a comment
constexpr qint64 attributeSize = 40; // as the parser allocates them
constexpr int maximumDepth = 100;

/// At least what a document of these bytes takes. A document can be sixteen times as large as its text.
qint64 neededMemory(const QByteArray &bytes)
{
    qint64 nodes = 0;
    qint64 attributes = 0;
    char previous = 0;
    for (const char character : bytes) {
        nodes += (previous == '<' && character != '/') || (previous == '>' && character != '<');
        attributes += character == '=';
        previous = character;
    }
    return bytes.size() + nodes * nodeSize + attributes * attributeSize;
}

bool isTooDeep(pugi::xml_node top)
{
    int depth = 0;
    for (pugi::xml_node node = top; node && depth <= maximumDepth;) {
        if (node.first_child()) {
            node = node.first_child();
            ++depth;
            continue;
        }
        while (node != top && !node.next_sibling()) {
            node = node.parent();
            --depth;
        }
        if (node == top)
            break;
        node = node.next_sibling();
    }
    return depth > maximumDepth;
}

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
    if (neededMemory(bytes) > maximumMemory)
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
    return !isTooDeep(m_document) || fail(QStringLiteral("its elements are nested too deeply"));
}

QByteArray XmlPart::bytes()
{
    // What is written is UTF-8, whatever was read.
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

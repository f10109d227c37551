#include "device/dh/lists/xmldevicelist.h"

#include "sheets/xmlbounds.h"

#include <QCoreApplication>
#include <QIODevice>
#include <QRegularExpression>
#include <QStringDecoder>

#include <pugixml.hpp>

#include <algorithm>
#include <optional>
#include <string_view>

namespace {

constexpr std::string_view rootName("deviceList");
constexpr const char *deviceName = "device";

/// A list has three levels; extensions may add a few.
constexpr int maximumDepth = 16;

/// A list of 100,000 devices takes 450 MB by the count of neededXmlMemory().
constexpr qint64 maximumMemory = 512LL * 1024 * 1024;

/// References are not replaced by the parser: resolved() does it and detects unknown ones.
constexpr unsigned int parseFlags = pugi::parse_cdata | pugi::parse_eol | pugi::parse_doctype |
                                    pugi::parse_ws_pcdata_single | pugi::parse_embed_pcdata;

/// Whether a character is allowed in XML.
bool isXmlCharacter(char32_t character)
{
    if (character < 0x20)
        return character == '\t' || character == '\n' || character == '\r';
    return character <= QChar::LastValidCodePoint && character != 0xFFFE && character != 0xFFFF &&
           !QChar::isSurrogate(character);
}

/// Approximate index of the first byte that is not valid UTF-8 or not an XML character; nullopt if there is
/// none.
std::optional<qsizetype> invalidByte(QByteArrayView text)
{
    constexpr qsizetype chunkSize = 4096;
    // The decoder does not report a sequence that is truncated at the end of the text.
    if (!text.isEmpty() && (text.back() & 0x80) != 0 && !text.isValidUtf8())
        return text.size();
    QStringDecoder decoder(QStringDecoder::Utf8);
    for (qsizetype start = 0; start < text.size(); start += chunkSize) {
        const QString decoded =
            decoder.decode(text.sliced(start).first(std::min(chunkSize, text.size() - start)));
        const auto isInvalid = [](QChar unit) {
            return !unit.isSurrogate() && !isXmlCharacter(unit.unicode());
        };
        if (decoder.hasError() || std::any_of(decoded.begin(), decoded.end(), isInvalid))
            return start;
    }
    return std::nullopt;
}

/// The encoding of the XML declaration. Empty if it is a Unicode encoding: a declaration that is readable
/// byte by byte is UTF-8 then.
QByteArray declaredEncoding(const QByteArray &text)
{
    constexpr qsizetype longestDeclaration = 256;
    static const QRegularExpression pattern(
        QStringLiteral(R"(^<\?xml\s(?:[^>]*\s)?encoding\s*=\s*["']([A-Za-z][A-Za-z0-9._-]*)["'])"));
    const auto match =
        pattern.match(QString::fromLatin1(text.first(std::min(longestDeclaration, text.size()))));
    const QByteArray name = match.captured(1).toLatin1();
    return name.toUpper().startsWith("UTF") ? QByteArray() : name;
}

/// The character of a reference, which is given without "&" and ";"; nullopt if it is invalid.
std::optional<QString> referenced(QStringView reference)
{
    constexpr std::pair<QLatin1StringView, char16_t> known[] = {{QLatin1StringView("amp"), u'&'},
                                                                {QLatin1StringView("lt"), u'<'},
                                                                {QLatin1StringView("gt"), u'>'},
                                                                {QLatin1StringView("quot"), u'"'},
                                                                {QLatin1StringView("apos"), u'\''}};
    for (const auto &[name, character] : known) {
        if (reference == name)
            return QString(QChar(character));
    }
    if (!reference.startsWith(QLatin1Char('#')))
        return std::nullopt;
    const bool isHexadecimal = reference.startsWith(QLatin1String("#x"));
    bool isNumber = false;
    const char32_t code =
        isHexadecimal ? reference.sliced(2).toUInt(&isNumber, 16) : reference.sliced(1).toUInt(&isNumber, 10);
    if (!isNumber || !isXmlCharacter(code))
        return std::nullopt;
    return QString::fromUcs4(&code, 1);
}

/// A text with its references replaced; nullopt if one of them is invalid.
std::optional<QString> resolved(const QString &text)
{
    QString result;
    qsizetype done = 0;
    for (qsizetype at = text.indexOf(QLatin1Char('&')); at >= 0; at = text.indexOf(QLatin1Char('&'), done)) {
        const qsizetype end = text.indexOf(QLatin1Char(';'), at);
        const std::optional<QString> character =
            end < 0 ? std::nullopt : referenced(QStringView(text).sliced(at + 1, end - at - 1));
        if (!character)
            return std::nullopt;
        result += QStringView(text).sliced(done, at - done);
        result += *character;
        done = end + 1;
    }
    result += QStringView(text).sliced(done);
    return result;
}

/// The text of an element; nullopt if it contains elements or an invalid reference.
std::optional<QString> textOf(pugi::xml_node element)
{
    std::optional<QString> text = resolved(QString::fromUtf8(element.value()));
    for (const pugi::xml_node part : element.children()) {
        const QString written = QString::fromUtf8(part.value());
        const bool isLiteral = part.type() == pugi::node_cdata;
        const std::optional<QString> more = isLiteral                          ? written
                                            : part.type() == pugi::node_pcdata ? resolved(written)
                                                                               : std::nullopt;
        if (!text || !more)
            return std::nullopt;
        *text += *more;
    }
    return text;
}

class XmlListReader
{
public:
    explicit XmlListReader(QByteArray text) : m_text(std::move(text)) {}

    DeviceListContents read()
    {
        if (parse() && checkShape())
            readDevices();
        return std::move(m_contents);
    }

private:
    bool parse()
    {
        if (!decode())
            return false;
        if (const auto at = invalidByte(m_text))
            return refuse(*at, "a character that is none of UTF-8 or XML");
        if (sheets::neededXmlMemory(m_text) > maximumMemory)
            return refuse(0, "too many elements");
        // The parser modifies its input; m_text is kept for counting lines.
        const auto result = m_document.load_buffer(m_text.constData(), std::size_t(m_text.size()), parseFlags,
                                                   pugi::encoding_utf8);
        return result || refuse(result.offset, result.description());
    }

    /// Converts the text to UTF-8.
    bool decode()
    {
        const auto byMark = QStringConverter::encodingForData(m_text, u'<');
        const QByteArray declared = byMark ? QByteArray() : declaredEncoding(m_text);
        if (byMark == QStringConverter::Utf8 || (!byMark && declared.isEmpty()))
            return true;
        QStringDecoder decoder = byMark ? QStringDecoder(*byMark) : QStringDecoder(declared.constData());
        if (!decoder.isValid()) {
            const QString name = QString::fromLatin1(declared);
            m_contents.detail = QStringLiteral("Failed to parse XML file: unknown encoding ") + name;
            return m_contents.refuse(QCoreApplication::translate("DeviceList", "不支持的编码：%1").arg(name));
        }
        const QString text = decoder.decode(m_text);
        if (decoder.hasError())
            return refuse(0, "a character that is none of the encoding");
        m_text = text.toUtf8();
        return true;
    }

    /// Requires one root element with the right name, no document type, and a limited depth.
    bool checkShape()
    {
        const pugi::xml_node root = m_document.document_element();
        for (const pugi::xml_node node : m_document.children()) {
            if (node != root)
                return refuse(node.offset_debug(), "a document type, or a second root element");
        }
        if (root.name() != rootName) {
            constexpr qsizetype shownLength = 64;
            const QString name = QString::fromUtf8(root.name()).left(shownLength);
            m_contents.detail = QStringLiteral("Root element is not 'deviceList': ") + name;
            return m_contents.refuse(
                QCoreApplication::translate("DeviceList", "根元素不是 deviceList：%1").arg(name));
        }
        return !sheets::isNestedDeeper(root, maximumDepth) || refuse(0, "elements too deep in each other");
    }

    bool readDevices()
    {
        for (const pugi::xml_node device : m_document.document_element().children(deviceName)) {
            DeviceListLine line;
            line.number = lineAt(device.offset_debug());
            for (const pugi::xml_node element : device.children()) {
                const auto &names = listColumnNames();
                const auto found =
                    std::find_if(names.begin(), names.end(), [&element](const ListColumnName &name) {
                        return name.element == element.name();
                    });
                if (found == names.end())
                    continue;
                const std::optional<QString> text = textOf(element);
                if (!text)
                    return refuse(element.offset_debug(),
                                  "an element where a text belongs, or a strange \"&\"");
                const auto column = static_cast<ListColumn>(found - names.begin());
                line[column] = listText(column, *text);
            }
            if (!m_contents.add(std::move(line)))
                return false;
        }
        return true;
    }

    /// The line number of an offset in the text. Offsets must be ascending, so that the text is counted once.
    int lineAt(std::ptrdiff_t offset)
    {
        const qsizetype end = std::clamp<qsizetype>(offset, m_countedTo, m_text.size());
        m_line += static_cast<int>(std::count(m_text.cbegin() + m_countedTo, m_text.cbegin() + end, '\n'));
        m_countedTo = end;
        return m_line;
    }

    bool refuse(std::ptrdiff_t offset, const char *reason)
    {
        const int line = lineAt(offset);
        m_contents.detail =
            QStringLiteral("Failed to parse XML file: %1 in line %2").arg(QLatin1String(reason)).arg(line);
        return m_contents.refuse(
            QCoreApplication::translate("DeviceList", "第 %1 行不是有效的XML").arg(line));
    }

    QByteArray m_text;
    qsizetype m_countedTo = 0;
    int m_line = 1;
    pugi::xml_document m_document;
    DeviceListContents m_contents;
};

} // namespace

QByteArray xmlOf(const std::vector<DeviceListLine> &lines)
{
    QByteArray text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<deviceList>\n";
    for (const DeviceListLine &line : lines) {
        text += "  <device>\n";
        for (std::size_t column = 0; column < line.values.size(); ++column) {
            const QLatin1StringView name = listColumnNames().at(column).element;
            text += QByteArrayLiteral("    <") + name.data() + '>' + line.values.at(column).toUtf8() + "</" +
                    name.data() + ">\n";
        }
        text += "  </device>\n";
    }
    return text + "</deviceList>\n";
}

DeviceListContents readXml(QIODevice &file)
{
    return XmlListReader(file.readAll()).read();
}

#include "app/translationfile.h"

#include "app/logging.h"

#include <QFile>
#include <QHash>
#include <QTranslator>
#include <QtEndian>

#include <optional>

namespace {

// A compiled translation is a magic number and sections. A section is a tag byte, a length and that many
// bytes. Numbers are big-endian.

constexpr QByteArrayView magic("\x3c\xb8\x64\x18\xca\xef\x9c\x95\xcd\x21\x1c\xbf\x60\xa1\xbd\xdd", 16);

enum class Section : quint8
{
    Contexts = 0x2f,
    Hashes = 0x42,
    Messages = 0x69,
};

enum class MessageTag : quint8
{
    End = 1,
    SourceText16 = 2,
    Translation = 3,
    Context16 = 4,
    Obsolete = 5,
    SourceText = 6,
    Context = 7,
    Comment = 8,
};

/// Reads numbers and byte ranges in sequence, up to the end of the bytes.
class ByteReader
{
public:
    explicit ByteReader(QByteArrayView bytes) : m_bytes(bytes) {}

    [[nodiscard]] bool atEnd() const { return m_bytes.isEmpty(); }

    template<typename Number>
    [[nodiscard]] std::optional<Number> number()
    {
        const std::optional<QByteArrayView> bytes = range(sizeof(Number));
        return bytes ? std::optional(qFromBigEndian<Number>(bytes->data())) : std::nullopt;
    }

    [[nodiscard]] std::optional<QByteArrayView> range(qint64 size)
    {
        if (size < 0 || size > m_bytes.size())
            return std::nullopt;
        const QByteArrayView bytes = m_bytes.first(static_cast<qsizetype>(size));
        m_bytes = m_bytes.sliced(static_cast<qsizetype>(size));
        return bytes;
    }

private:
    QByteArrayView m_bytes;
};

/// A message is a sequence of tagged parts up to an end tag. A translation consists of 16-bit characters.
bool isValidMessage(QByteArrayView bytes)
{
    constexpr quint32 absent = 0xFFFFFFFF;
    ByteReader reader(bytes);
    while (const std::optional<quint8> tag = reader.number<quint8>()) {
        switch (static_cast<MessageTag>(*tag)) {
        case MessageTag::End:
            return true;
        case MessageTag::Obsolete:
            if (!reader.range(4))
                return false;
            break;
        case MessageTag::Translation: {
            const std::optional<quint32> length = reader.number<quint32>();
            if (!length || *length == absent || *length % 2 != 0 || !reader.range(*length))
                return false;
            break;
        }
        case MessageTag::SourceText16:
        case MessageTag::Context16:
        case MessageTag::SourceText:
        case MessageTag::Context:
        case MessageTag::Comment: {
            const std::optional<quint32> length = reader.number<quint32>();
            if (!length || !reader.range(*length))
                return false;
            break;
        }
        default:
            return false;
        }
    }
    return false;
}

} // namespace

bool isValidTranslation(const QByteArray &bytes)
{
    if (!bytes.startsWith(magic))
        return false;
    QHash<quint8, QByteArrayView> sections;
    ByteReader reader(QByteArrayView(bytes).sliced(magic.size()));
    while (!reader.atEnd()) {
        const std::optional<quint8> tag = reader.number<quint8>();
        const std::optional<quint32> length = reader.number<quint32>();
        const std::optional<QByteArrayView> content = length ? reader.range(*length) : std::nullopt;
        if (!tag || !content)
            return false;
        sections.insert(*tag, *content);
    }
    // An obsolete section that current tools do not write. Its chains have no bounds.
    if (!sections.value(quint8(Section::Contexts)).isEmpty())
        return false;

    const QByteArrayView messages = sections.value(quint8(Section::Messages));
    const QByteArrayView hashes = sections.value(quint8(Section::Hashes));
    constexpr qsizetype entrySize = 8; // a hash and the offset of its message
    if (hashes.isEmpty() || hashes.size() % entrySize != 0)
        return false;
    ByteReader table(hashes);
    while (!table.atEnd()) {
        const std::optional<quint32> hash = table.number<quint32>();
        const std::optional<quint32> offset = table.number<quint32>();
        if (!hash || !offset || *offset >= messages.size() || !isValidMessage(messages.sliced(*offset)))
            return false;
    }
    return true;
}

bool loadTranslation(QTranslator &translator, const QString &path)
{
    QFile file(path);
    if (!file.exists())
        return false;
    if (!file.open(QFile::ReadOnly)) {
        qCWarning(logApp) << "The translation" << path << "cannot be read:" << file.errorString();
        return false;
    }
    constexpr qint64 maximumSize = qint64{64} * 1024 * 1024;
    const QByteArray bytes = file.size() <= maximumSize ? file.readAll() : QByteArray();
    if (!isValidTranslation(bytes) || !translator.load(path)) {
        qCWarning(logApp) << "The translation" << path << "is damaged and not used";
        return false;
    }
    return true;
}

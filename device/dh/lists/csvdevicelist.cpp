#include "device/dh/lists/csvdevicelist.h"

#include "device/dh/lists/devicelisttable.h"

#include <QCoreApplication>
#include <QIODevice>
#include <QStringDecoder>

#include <algorithm>
#include <optional>

namespace {

constexpr qsizetype maximumLineLength = 65'536; // in bytes
constexpr QByteArrayView byteOrderMark("\xEF\xBB\xBF");

/// Splits a file into lines that end with LF, CR or CR LF.
class Lines
{
public:
    explicit Lines(QIODevice &file) : m_file(file) {}

    [[nodiscard]] bool atEnd()
    {
        fill();
        return m_next == m_bytes.size();
    }

    /// The next line without its line end; nullopt if it is too long.
    std::optional<QByteArray> next()
    {
        fill();
        const auto isEnd = [](char character) {
            return character == '\n' || character == '\r';
        };
        const auto begin = m_bytes.cbegin() + m_next;
        const auto end = std::find_if(begin, m_bytes.cend(), isEnd);
        if (end - begin > maximumLineLength)
            return std::nullopt;
        m_next += end - begin;
        const QByteArray line(begin, end - begin);
        if (end != m_bytes.cend())
            m_next += *end == '\r' && m_next + 1 < m_bytes.size() && m_bytes.at(m_next + 1) == '\n' ? 2 : 1;
        return line;
    }

private:
    /// Keeps at least one line of the maximum length and its line end in m_bytes.
    void fill()
    {
        constexpr qsizetype needed = maximumLineLength + 2;
        if (m_bytes.size() - m_next >= needed || m_file.atEnd())
            return;
        m_bytes = m_bytes.sliced(m_next) + m_file.read(4 * needed);
        m_next = 0;
    }

    QIODevice &m_file;
    QByteArray m_bytes;
    qsizetype m_next = 0; ///< start of the next line in m_bytes
};

} // namespace

QByteArray csvOf(const std::vector<DeviceListLine> &lines)
{
    QByteArray text;
    for (const ListColumnName &name : listColumnNames())
        text += name.header.toUtf8() + ',';
    text.back() = '\n';
    for (const DeviceListLine &line : lines) {
        for (const QString &value : line.values)
            text += value.toUtf8() + ',';
        text.back() = '\n';
    }
    return text;
}

DeviceListContents readCsv(QIODevice &file)
{
    DeviceListContents contents;
    DeviceListTable table(contents);
    Lines lines(file);
    for (int number = 1; !lines.atEnd(); ++number) {
        std::optional<QByteArray> bytes = lines.next();
        if (!bytes) {
            contents.refuse(QCoreApplication::translate("DeviceList", "第 %1 行过长").arg(number));
            return contents;
        }
        if (number == 1 && bytes->startsWith(byteOrderMark))
            bytes->remove(0, byteOrderMark.size());
        QStringDecoder decoder(QStringDecoder::Utf8);
        const QString line = decoder.decode(*bytes);
        if (decoder.hasError()) {
            contents.refuse(QCoreApplication::translate("DeviceList", "第 %1 行不是UTF-8编码").arg(number));
            return contents;
        }
        if (!table.addRow(number, QStringView(line).split(QLatin1Char(','))))
            return contents;
    }
    table.end();
    return contents;
}

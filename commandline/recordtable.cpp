#include "commandline/recordtable.h"

#include "commandline/terminal.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace commandline {

namespace {

/// Number of columns of a terminal that a text takes: ideographs and full-width forms take two.
qsizetype widthOf(const QString &text)
{
    qsizetype width = 0;
    for (const char32_t character : text.toUcs4()) {
        const bool isWide =
            (character >= 0x1100 && character <= 0x115F) || (character >= 0x2E80 && character <= 0xA4CF) ||
            (character >= 0xAC00 && character <= 0xD7A3) || (character >= 0xF900 && character <= 0xFAFF) ||
            (character >= 0xFE30 && character <= 0xFE6F) || (character >= 0xFF00 && character <= 0xFF60) ||
            (character >= 0x20000 && character <= 0x3FFFD);
        const bool isCombining = QChar::category(character) == QChar::Mark_NonSpacing;
        width += isWide ? 2 : isCombining ? 0 : 1;
    }
    return width;
}

QString tableText(const QVariant &value)
{
    if (value.typeId() == QMetaType::Bool)
        return value.toBool() ? u"yes"_s : u"no"_s;
    return terminalText(value.toString());
}

/// A field is quoted where RFC 4180 requires it. Texts of devices stay as they are: the reader is a program.
QByteArray csvText(const QVariant &value)
{
    QString text = value.toString();
    const bool isQuoted = std::any_of(text.cbegin(), text.cend(), [](QChar character) {
        return character == u',' || character == u'"' || character == u'\n' || character == u'\r';
    });
    if (isQuoted)
        text = u'"' + text.replace(u'"', "\"\""_L1) + u'"';
    return text.toUtf8();
}

} // namespace

std::optional<RecordFormat> recordFormat(QStringView name)
{
    if (name == "table"_L1)
        return RecordFormat::Table;
    if (name == "json"_L1)
        return RecordFormat::Json;
    return name == "csv"_L1 ? std::optional(RecordFormat::Csv) : std::nullopt;
}

QByteArray RecordTable::text(RecordFormat format) const
{
    switch (format) {
    case RecordFormat::Json:
        return json();
    case RecordFormat::Csv:
        return csv();
    default:
        return table();
    }
}

QByteArray RecordTable::table() const
{
    QList<QStringList> lines;
    QStringList headings;
    for (const QString &column : m_columns)
        headings.append(column.toUpper());
    lines.append(headings);
    for (const QVariantList &record : m_records) {
        QStringList texts;
        for (const QVariant &value : record)
            texts.append(tableText(value));
        lines.append(texts);
    }
    QList<qsizetype> widths(m_columns.size(), 0);
    for (const QStringList &line : std::as_const(lines)) {
        for (qsizetype column = 0; column < widths.size(); ++column)
            widths[column] = std::max(widths.at(column), widthOf(line.value(column)));
    }
    QString text;
    for (const QStringList &line : std::as_const(lines)) {
        QString padded;
        for (qsizetype column = 0; column < widths.size(); ++column) {
            const QString field = line.value(column);
            padded += field + QString(widths.at(column) - widthOf(field) + 2, u' ');
        }
        while (padded.endsWith(u' '))
            padded.chop(1);
        text += padded + u'\n';
    }
    return text.toUtf8();
}

QByteArray RecordTable::json() const
{
    QJsonArray array;
    for (const QVariantList &record : m_records) {
        QJsonObject object;
        for (qsizetype column = 0; column < m_columns.size(); ++column)
            object.insert(m_columns.at(column), QJsonValue::fromVariant(record.value(column)));
        array.append(object);
    }
    return QJsonDocument(array).toJson();
}

QByteArray RecordTable::csv() const
{
    QByteArray text = m_columns.join(u',').toUtf8() + "\r\n";
    for (const QVariantList &record : m_records) {
        QByteArrayList fields;
        for (qsizetype column = 0; column < m_columns.size(); ++column)
            fields.append(csvText(record.value(column)));
        text += fields.join(',') + "\r\n";
    }
    return text;
}

} // namespace commandline

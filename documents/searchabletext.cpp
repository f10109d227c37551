#include "documents/searchabletext.h"

#include <QFont>
#include <QFontDatabase>
#include <QHash>
#include <QList>
#include <QRawFont>
#include <QSet>

namespace {

constexpr char16_t firstRadical = 0x2e80;
constexpr char16_t lastRadical = 0x2fdf;

QByteArray codeOf(char16_t character)
{
    return '<' + QByteArray::number(character, 16).toUpper().rightJustified(4, '0') + '>';
}

/// Codes of the radicals that share a glyph with a character of the text, and that character's code.
QHash<QByteArray, QByteArray> mistakenCodes(const QString &text, const QFont &font)
{
    QHash<QByteArray, QByteArray> codes;
    for (const QString &family : font.families()) {
        QFont one = font;
        one.setFamilies({family});
        const QRawFont face = QRawFont::fromFont(one, QFontDatabase::Any);
        QHash<quint32, char16_t> radicals;
        for (char16_t radical = firstRadical; radical <= lastRadical; ++radical) {
            const QList<quint32> glyphs = face.glyphIndexesForString(QString(QChar(radical)));
            if (glyphs.size() == 1 && glyphs.first() != 0)
                radicals.insert(glyphs.first(), radical);
        }
        const QSet<QChar> characters(text.begin(), text.end());
        for (const QChar character : characters) {
            const QList<quint32> glyphs = face.glyphIndexesForString(QString(character));
            if (glyphs.size() == 1 && character.unicode() > lastRadical && radicals.contains(glyphs.first()))
                codes.insert(codeOf(radicals.value(glyphs.first())), codeOf(character.unicode()));
        }
    }
    return codes;
}

} // namespace

QByteArray withSearchableText(const QByteArray &pdf, const QString &text, const QFont &font)
{
    // The character maps are plain text in the file, and a corrected map has the same length.
    QByteArray result = pdf;
    const QHash<QByteArray, QByteArray> codes = mistakenCodes(text, font);
    for (qsizetype begin = result.indexOf("begincmap"); begin >= 0;
         begin = result.indexOf("begincmap", begin + 1)) {
        const qsizetype length = result.indexOf("endcmap", begin) - begin;
        QByteArray table = result.mid(begin, length);
        for (auto code = codes.begin(); code != codes.end(); ++code)
            table.replace(code.key(), code.value());
        result.replace(begin, length, table);
    }
    return result;
}

#include "sheets/internal/celltext.h"

#include <optional>

namespace sheets {

namespace {

constexpr qsizetype maximumLength = 32'767;
constexpr qsizetype escapeLength = 7; // _xHHHH_

int hexDigit(QChar character)
{
    const char16_t digit = character.unicode();
    if (digit >= u'0' && digit <= u'9')
        return digit - u'0';
    const char16_t capital = digit & ~char16_t(0x20);
    return capital >= u'A' && capital <= u'F' ? capital - u'A' + 10 : -1;
}

/// The character of the escape sequence at `at`, if there is one.
std::optional<char16_t> escapeAt(QStringView text, qsizetype at)
{
    if (text.size() - at < escapeLength || text[at] != QLatin1Char('_') || text[at + 1] != QLatin1Char('x') ||
        text[at + 6] != QLatin1Char('_'))
        return std::nullopt;
    int value = 0;
    for (qsizetype i = at + 2; i < at + 6; ++i) {
        const int digit = hexDigit(text[i]);
        if (digit < 0)
            return std::nullopt;
        value = value * 16 + digit;
    }
    return char16_t(value);
}

/// True for characters that XML cannot contain, and for the carriage return, which XML converts to a line
/// feed.
bool needsEscape(QStringView text, qsizetype at)
{
    const char16_t character = text[at].unicode();
    if (character < 0x20)
        return character != u'\t' && character != u'\n';
    return character >= 0xFFFE || (character == u'_' && escapeAt(text, at));
}

} // namespace

QString escapedCellText(const QString &text)
{
    QString escaped;
    qsizetype done = 0;
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (!needsEscape(text, at))
            continue;
        escaped += QStringView(text).sliced(done, at - done);
        escaped += QStringLiteral("_x%1_").arg(int(text[at].unicode()), 4, 16, QLatin1Char('0')).toUpper();
        escaped[escaped.size() - escapeLength + 1] = QLatin1Char('x');
        done = at + 1;
    }
    if (done == 0)
        return text;
    escaped += QStringView(text).sliced(done);
    return escaped;
}

QString unescapedCellText(const QString &escaped)
{
    QString text;
    qsizetype done = 0;
    for (qsizetype at = escaped.indexOf(QLatin1String("_x")); at >= 0;) {
        qsizetype next = at + 1;
        if (const auto character = escapeAt(escaped, at)) {
            text += QStringView(escaped).sliced(done, at - done);
            text += QChar(*character);
            done = next = at + escapeLength;
        }
        at = escaped.indexOf(QLatin1String("_x"), next);
    }
    if (done == 0)
        return escaped;
    text += QStringView(escaped).sliced(done);
    return text;
}

bool fitsCell(const QString &text)
{
    return text.size() <= maximumLength / escapeLength || escapedCellText(text).size() <= maximumLength;
}

QString numberText(double value)
{
    // A value that is rounded to zero is shown without a sign.
    return value == 0 ? QStringLiteral("0") : QString::number(value, 'G', 15);
}

QString truthText(bool value)
{
    return value ? QStringLiteral("TRUE") : QStringLiteral("FALSE");
}

} // namespace sheets

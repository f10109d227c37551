#include "sheets/cellrange.h"

#include <algorithm>
#include <array>

namespace sheets {

QString positionText(CellPosition position)
{
    // Written from the end: the last digit and the last letter are computed first.
    constexpr std::size_t mostCharacters = 18; // ten digits and eight letters, of the largest numbers
    std::array<char16_t, mostCharacters> text;
    auto first = text.end();
    for (int row = position.row; row > 0; row /= 10)
        *--first = char16_t(u'0' + row % 10);
    for (int column = position.column; column > 0; column = (column - 1) / 26)
        *--first = char16_t(u'A' + (column - 1) % 26);
    return QString(reinterpret_cast<const QChar *>(first), text.end() - first);
}

QString rangeText(const CellRange &range)
{
    const QString first = positionText(range.first);
    return range.first == range.last ? first : first + QLatin1Char(':') + positionText(range.last);
}

std::optional<CellPosition> cellPosition(QStringView text)
{
    qsizetype at = 0;
    const auto skipDollar = [&text, &at] {
        if (at < text.size() && text[at] == QLatin1Char('$'))
            ++at;
    };
    CellPosition position;
    skipDollar();
    for (; at < text.size() && position.column <= maximumColumns; ++at) {
        const char16_t letter = text[at].unicode() & ~char16_t(0x20); // as a capital
        if (letter < u'A' || letter > u'Z')
            break;
        position.column = position.column * 26 + (letter - u'A' + 1);
    }
    skipDollar();
    for (; at < text.size() && position.row <= maximumRows; ++at) {
        const char16_t digit = text[at].unicode();
        if (digit < u'0' || digit > u'9')
            break;
        position.row = position.row * 10 + (digit - u'0');
    }
    return at == text.size() && position.isInSheet() ? std::optional(position) : std::nullopt;
}

std::optional<CellRange> cellRange(QStringView text)
{
    const qsizetype colon = text.indexOf(QLatin1Char(':'));
    const auto first = cellPosition(colon < 0 ? text : text.first(colon));
    const auto last = colon < 0 ? first : cellPosition(text.sliced(colon + 1));
    if (!first || !last)
        return std::nullopt;
    return CellRange{{std::min(first->row, last->row), std::min(first->column, last->column)},
                     {std::max(first->row, last->row), std::max(first->column, last->column)}};
}

} // namespace sheets

#include "sheets/cellrange.h"

#include <algorithm>
#include <array>

namespace sheets {

QString placeText(CellPlace place)
{
    // From the end: the last digit and the last letter are known first.
    constexpr std::size_t mostCharacters = 18; // ten digits and eight letters, of the largest numbers
    std::array<char16_t, mostCharacters> text;
    auto first = text.end();
    for (int row = place.row; row > 0; row /= 10)
        *--first = char16_t(u'0' + row % 10);
    for (int column = place.column; column > 0; column = (column - 1) / 26)
        *--first = char16_t(u'A' + (column - 1) % 26);
    return QString(reinterpret_cast<const QChar *>(first), text.end() - first);
}

QString rangeText(const CellRange &range)
{
    const QString first = placeText(range.first);
    return range.first == range.last ? first : first + QLatin1Char(':') + placeText(range.last);
}

std::optional<CellPlace> cellPlace(QStringView text)
{
    qsizetype at = 0;
    const auto skipDollar = [&text, &at] {
        if (at < text.size() && text[at] == QLatin1Char('$'))
            ++at;
    };
    CellPlace place;
    skipDollar();
    for (; at < text.size() && place.column <= maximumColumns; ++at) {
        const char16_t letter = text[at].unicode() & ~char16_t(0x20); // as a capital
        if (letter < u'A' || letter > u'Z')
            break;
        place.column = place.column * 26 + (letter - u'A' + 1);
    }
    skipDollar();
    for (; at < text.size() && place.row <= maximumRows; ++at) {
        const char16_t digit = text[at].unicode();
        if (digit < u'0' || digit > u'9')
            break;
        place.row = place.row * 10 + (digit - u'0');
    }
    return at == text.size() && place.isInSheet() ? std::optional(place) : std::nullopt;
}

std::optional<CellRange> cellRange(QStringView text)
{
    const qsizetype colon = text.indexOf(QLatin1Char(':'));
    const auto first = cellPlace(colon < 0 ? text : text.first(colon));
    const auto last = colon < 0 ? first : cellPlace(text.sliced(colon + 1));
    if (!first || !last)
        return std::nullopt;
    return CellRange{{std::min(first->row, last->row), std::min(first->column, last->column)},
                     {std::max(first->row, last->row), std::max(first->column, last->column)}};
}

} // namespace sheets

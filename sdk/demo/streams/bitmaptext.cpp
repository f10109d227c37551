#include "sdk/demo/streams/bitmaptext.h"

#include <algorithm>
#include <array>

namespace sdk::demo {

namespace {

/// Rows from the top. In each row, the bit with the value 16 is the leftmost dot.
struct Letter
{
    char name;
    std::array<unsigned char, bitmapLetterHeight> rows;
};

constexpr std::array letters = {
    Letter{' ', {0, 0, 0, 0, 0, 0, 0}},        Letter{'-', {0, 0, 0, 31, 0, 0, 0}},
    Letter{'_', {0, 0, 0, 0, 0, 0, 31}},       Letter{'.', {0, 0, 0, 0, 0, 12, 12}},
    Letter{':', {0, 12, 12, 0, 12, 12, 0}},    Letter{'/', {1, 1, 2, 4, 8, 16, 16}},
    Letter{'*', {0, 17, 10, 4, 10, 17, 0}},    Letter{'#', {10, 10, 31, 10, 31, 10, 10}},
    Letter{'(', {2, 4, 8, 8, 8, 4, 2}},        Letter{')', {8, 4, 2, 2, 2, 4, 8}},
    Letter{'0', {14, 17, 19, 21, 25, 17, 14}}, Letter{'1', {4, 12, 4, 4, 4, 4, 14}},
    Letter{'2', {14, 17, 1, 6, 8, 16, 31}},    Letter{'3', {14, 17, 1, 6, 1, 17, 14}},
    Letter{'4', {2, 6, 10, 18, 31, 2, 2}},     Letter{'5', {31, 16, 30, 1, 1, 17, 14}},
    Letter{'6', {6, 8, 16, 30, 17, 17, 14}},   Letter{'7', {31, 1, 2, 4, 8, 8, 8}},
    Letter{'8', {14, 17, 17, 14, 17, 17, 14}}, Letter{'9', {14, 17, 17, 15, 1, 2, 12}},
    Letter{'A', {14, 17, 17, 31, 17, 17, 17}}, Letter{'B', {30, 17, 17, 30, 17, 17, 30}},
    Letter{'C', {14, 17, 16, 16, 16, 17, 14}}, Letter{'D', {28, 18, 17, 17, 17, 18, 28}},
    Letter{'E', {31, 16, 16, 30, 16, 16, 31}}, Letter{'F', {31, 16, 16, 30, 16, 16, 16}},
    Letter{'G', {14, 17, 16, 23, 17, 17, 15}}, Letter{'H', {17, 17, 17, 31, 17, 17, 17}},
    Letter{'I', {14, 4, 4, 4, 4, 4, 14}},      Letter{'J', {7, 2, 2, 2, 2, 18, 12}},
    Letter{'K', {17, 18, 20, 24, 20, 18, 17}}, Letter{'L', {16, 16, 16, 16, 16, 16, 31}},
    Letter{'M', {17, 27, 21, 21, 17, 17, 17}}, Letter{'N', {17, 25, 21, 19, 17, 17, 17}},
    Letter{'O', {14, 17, 17, 17, 17, 17, 14}}, Letter{'P', {30, 17, 17, 30, 16, 16, 16}},
    Letter{'Q', {14, 17, 17, 17, 21, 18, 13}}, Letter{'R', {30, 17, 17, 30, 20, 18, 17}},
    Letter{'S', {15, 16, 16, 14, 1, 1, 30}},   Letter{'T', {31, 4, 4, 4, 4, 4, 4}},
    Letter{'U', {17, 17, 17, 17, 17, 17, 14}}, Letter{'V', {17, 17, 17, 17, 17, 10, 4}},
    Letter{'W', {17, 17, 17, 21, 21, 21, 10}}, Letter{'X', {17, 17, 10, 4, 10, 17, 17}},
    Letter{'Y', {17, 17, 10, 4, 4, 4, 4}},     Letter{'Z', {31, 1, 2, 4, 8, 16, 31}},
};
constexpr Letter unknownLetter = {'?', {31, 17, 17, 17, 17, 17, 31}};

const Letter &letterOf(QChar character)
{
    const char name = character.toUpper().toLatin1(); // 0 outside Latin-1
    const auto found = std::find_if(letters.begin(), letters.end(),
                                    [name](const Letter &letter) { return letter.name == name; });
    return found == letters.end() ? unknownLetter : *found;
}

} // namespace

void drawBitmapText(QPainter &painter, QPoint corner, int dot, const QString &text)
{
    constexpr int dots = bitmapLetterWidth - 1;
    for (const QChar character : text) {
        const Letter &letter = letterOf(character);
        for (int row = 0; row < bitmapLetterHeight; ++row) {
            for (int column = 0; column < dots; ++column) {
                if ((letter.rows[static_cast<std::size_t>(row)] >> (dots - 1 - column) & 1) != 0)
                    painter.fillRect(corner.x() + column * dot, corner.y() + row * dot, dot, dot,
                                     painter.brush());
            }
        }
        corner.rx() += bitmapLetterWidth * dot;
    }
}

} // namespace sdk::demo

#include "sdk/demo/streams/bitmaptext.h"

#include <algorithm>
#include <array>

namespace sdk::demo {

namespace {

/// Rows from the top. In each row, the bit with the value 16 is the leftmost dot.
struct Glyph
{
    char name;
    std::array<unsigned char, bitmapGlyphHeight> rows;
};

constexpr std::array glyphs = {
    Glyph{' ', {0, 0, 0, 0, 0, 0, 0}},        Glyph{'-', {0, 0, 0, 31, 0, 0, 0}},
    Glyph{'_', {0, 0, 0, 0, 0, 0, 31}},       Glyph{'.', {0, 0, 0, 0, 0, 12, 12}},
    Glyph{':', {0, 12, 12, 0, 12, 12, 0}},    Glyph{'/', {1, 1, 2, 4, 8, 16, 16}},
    Glyph{'*', {0, 17, 10, 4, 10, 17, 0}},    Glyph{'#', {10, 10, 31, 10, 31, 10, 10}},
    Glyph{'(', {2, 4, 8, 8, 8, 4, 2}},        Glyph{')', {8, 4, 2, 2, 2, 4, 8}},
    Glyph{'0', {14, 17, 19, 21, 25, 17, 14}}, Glyph{'1', {4, 12, 4, 4, 4, 4, 14}},
    Glyph{'2', {14, 17, 1, 6, 8, 16, 31}},    Glyph{'3', {14, 17, 1, 6, 1, 17, 14}},
    Glyph{'4', {2, 6, 10, 18, 31, 2, 2}},     Glyph{'5', {31, 16, 30, 1, 1, 17, 14}},
    Glyph{'6', {6, 8, 16, 30, 17, 17, 14}},   Glyph{'7', {31, 1, 2, 4, 8, 8, 8}},
    Glyph{'8', {14, 17, 17, 14, 17, 17, 14}}, Glyph{'9', {14, 17, 17, 15, 1, 2, 12}},
    Glyph{'A', {14, 17, 17, 31, 17, 17, 17}}, Glyph{'B', {30, 17, 17, 30, 17, 17, 30}},
    Glyph{'C', {14, 17, 16, 16, 16, 17, 14}}, Glyph{'D', {28, 18, 17, 17, 17, 18, 28}},
    Glyph{'E', {31, 16, 16, 30, 16, 16, 31}}, Glyph{'F', {31, 16, 16, 30, 16, 16, 16}},
    Glyph{'G', {14, 17, 16, 23, 17, 17, 15}}, Glyph{'H', {17, 17, 17, 31, 17, 17, 17}},
    Glyph{'I', {14, 4, 4, 4, 4, 4, 14}},      Glyph{'J', {7, 2, 2, 2, 2, 18, 12}},
    Glyph{'K', {17, 18, 20, 24, 20, 18, 17}}, Glyph{'L', {16, 16, 16, 16, 16, 16, 31}},
    Glyph{'M', {17, 27, 21, 21, 17, 17, 17}}, Glyph{'N', {17, 25, 21, 19, 17, 17, 17}},
    Glyph{'O', {14, 17, 17, 17, 17, 17, 14}}, Glyph{'P', {30, 17, 17, 30, 16, 16, 16}},
    Glyph{'Q', {14, 17, 17, 17, 21, 18, 13}}, Glyph{'R', {30, 17, 17, 30, 20, 18, 17}},
    Glyph{'S', {15, 16, 16, 14, 1, 1, 30}},   Glyph{'T', {31, 4, 4, 4, 4, 4, 4}},
    Glyph{'U', {17, 17, 17, 17, 17, 17, 14}}, Glyph{'V', {17, 17, 17, 17, 17, 10, 4}},
    Glyph{'W', {17, 17, 17, 21, 21, 21, 10}}, Glyph{'X', {17, 17, 10, 4, 10, 17, 17}},
    Glyph{'Y', {17, 17, 10, 4, 4, 4, 4}},     Glyph{'Z', {31, 1, 2, 4, 8, 16, 31}},
};
constexpr Glyph unknownGlyph = {'?', {31, 17, 17, 17, 17, 17, 31}};

const Glyph &glyphOf(QChar character)
{
    const char name = character.toUpper().toLatin1(); // 0 outside Latin-1
    const auto found =
        std::find_if(glyphs.begin(), glyphs.end(), [name](const Glyph &glyph) { return glyph.name == name; });
    return found == glyphs.end() ? unknownGlyph : *found;
}

} // namespace

void drawBitmapText(QPainter &painter, QPoint corner, int dot, const QString &text)
{
    constexpr int dots = bitmapGlyphWidth - 1;
    for (const QChar character : text) {
        const Glyph &glyph = glyphOf(character);
        for (int row = 0; row < bitmapGlyphHeight; ++row) {
            for (int column = 0; column < dots; ++column) {
                if ((glyph.rows[static_cast<std::size_t>(row)] >> (dots - 1 - column) & 1) != 0)
                    painter.fillRect(corner.x() + column * dot, corner.y() + row * dot, dot, dot,
                                     painter.brush());
            }
        }
        corner.rx() += bitmapGlyphWidth * dot;
    }
}

} // namespace sdk::demo

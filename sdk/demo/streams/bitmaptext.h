// A dot matrix font for images. It needs no fonts of the system and works on any thread.
#pragma once

#include <QPainter>
#include <QString>

namespace sdk::demo {

inline constexpr int bitmapGlyphWidth = 6;  ///< in dots, with the gap to the next character
inline constexpr int bitmapGlyphHeight = 7; ///< in dots

/// Draws one line of `text` with its upper left corner at `corner` (in pixels), in the colour of the
/// painter's brush. A dot is `dot` pixels wide and high. Letters are drawn as upper case. There are glyphs
/// for A to Z, 0 to 9, spaces and the characters in "-_.:/*#()"; any other character is drawn as a box.
void drawBitmapText(QPainter &painter, QPoint corner, int dot, const QString &text);

} // namespace sdk::demo

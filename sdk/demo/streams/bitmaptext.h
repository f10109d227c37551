// A dot matrix font for images. It needs no fonts of the system and works on any thread.
#pragma once

#include <QPainter>
#include <QString>

namespace sdk::demo {

inline constexpr int bitmapGlyphWidth = 6; ///< in dots, with the gap to the next character
inline constexpr int bitmapGlyphHeight = 7;

/// Draws `text` with its upper left corner at `corner`, each dot `dot` pixels wide, in the colour of the
/// painter's brush. Lower case is drawn as upper case, and characters outside ASCII as a box.
void drawBitmapText(QPainter &painter, QPoint corner, int dot, const QString &text);

} // namespace sdk::demo

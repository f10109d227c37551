// Letters of dots, for texts in pictures of a program that has no fonts, and on any thread.
#pragma once

#include <QPainter>
#include <QString>

namespace sdk::demo {

inline constexpr int bitmapLetterWidth = 6; ///< in dots, with the gap to the next letter
inline constexpr int bitmapLetterHeight = 7;

/// Draws `text` with its upper left corner at `corner`, each dot `dot` pixels wide, in the colour of the
/// painter's brush. Small letters are drawn as capitals, and letters beyond those of ASCII as a box.
void drawBitmapText(QPainter &painter, QPoint corner, int dot, const QString &text);

} // namespace sdk::demo

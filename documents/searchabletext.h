// Repairs the text behind the pages of a PDF file that the toolkit wrote.
#pragma once

#include <QByteArray>
#include <QString>

class QFont;

/// A Chinese face draws a radical ("⽤", U+2F64) and the character of the same shape ("用", U+7528) with one
/// glyph. The toolkit's PDF writer notes the radical as the glyph's text, so that a reader finds no word with
/// such a character. Returns `pdf` with the characters of `text` noted instead. `font` is the font of the
/// text.
[[nodiscard]] QByteArray withSearchableText(const QByteArray &pdf, const QString &text, const QFont &font);

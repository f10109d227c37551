// Corrects the searchable text of a PDF file that Qt has written.
#pragma once

#include <QByteArray>
#include <QString>

class QFont;

/// A Chinese face has one glyph for a radical ("⽤", U+2F64) and the character of the same shape ("用",
/// U+7528). Qt's PDF writer maps the glyph to the radical, so that a reader cannot find words with the
/// character. Returns `pdf` with such glyphs mapped to the characters of `text`. `font` is the font of the
/// text.
[[nodiscard]] QByteArray withSearchableText(const QByteArray &pdf, const QString &text, const QFont &font);

// Corrects the searchable text of a PDF file that Qt has written.
#pragma once

#include <QByteArray>
#include <QString>

class QFont;

/// A Chinese font has one glyph for a radical ("⽤", U+2F64) and the character of the same shape ("用",
/// U+7528). Qt's PDF writer maps the glyph to the radical in the character maps of the file, so that a reader
/// cannot find words with the character. Returns the bytes of `pdf` with such glyphs mapped to the characters
/// of `text`, which is the complete text of the document. `font` is the font of that text; all its families
/// are checked. The pages look the same, and the length of the file does not change. Compressed character
/// maps in `pdf` are not corrected. There is no error: a PDF without such glyphs is returned unchanged.
/// Requires the application object.
[[nodiscard]] QByteArray withSearchableText(const QByteArray &pdf, const QString &text, const QFont &font);

#pragma once

#include <QByteArray>
#include <QString>

class QTranslator;

/// True when the bytes of a compiled translation can be read without leaving them: every section, every entry
/// of the table of texts and every text lies within its bounds. The toolkit trusts a file that begins with
/// the right bytes, and a damaged one can end the program at its first text.
[[nodiscard]] bool isSoundTranslation(const QByteArray &bytes);

/// Loads a translation file into `translator`. Returns false, with a warning in the log where there is a
/// file, when there is no sound translation in it.
[[nodiscard]] bool loadTranslation(QTranslator &translator, const QString &path);

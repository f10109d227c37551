#pragma once

#include <QByteArray>
#include <QString>

class QTranslator;

/// Whether all sections, table entries and messages of a compiled translation are within its bounds. Qt
/// checks only the first bytes of a file, and a damaged one can crash the application at its first string.
[[nodiscard]] bool isValidTranslation(const QByteArray &bytes);

/// Loads a translation file into `translator`. Returns false if the file does not exist, or if it is invalid,
/// with a warning in the log.
[[nodiscard]] bool loadTranslation(QTranslator &translator, const QString &path);

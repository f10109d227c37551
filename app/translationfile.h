#pragma once

#include <QByteArray>
#include <QString>

class QTranslator;

/// Whether all sections, table entries and messages of a compiled translation are within its bounds. Qt
/// checks only the first bytes of a file, and a damaged one can crash the application at its first string. A
/// translation without messages is invalid.
[[nodiscard]] bool isValidTranslation(const QByteArray &bytes);

/// Loads a translation file into `translator`. Returns false if the file does not exist. Logs a warning and
/// returns false if the file cannot be read, is invalid or is larger than 64 MiB.
[[nodiscard]] bool loadTranslation(QTranslator &translator, const QString &path);

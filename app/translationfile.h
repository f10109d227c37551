#pragma once

#include <QByteArray>
#include <QString>

class QTranslator;

/// Whether `bytes` are a compiled translation (".qm") whose sections, table entries and messages are all
/// within `bytes`. Qt checks only the first bytes of a file, and a damaged file can crash the application at
/// its first string. A translation without messages, or with the obsolete section of contexts, is invalid.
[[nodiscard]] bool isValidTranslation(const QByteArray &bytes);

/// Loads the translation file `path` into `translator`, which the caller installs. Returns true on success.
/// Returns false without a message if the file does not exist. Logs a warning and returns false if the file
/// cannot be read, is invalid or is larger than 64 MiB.
[[nodiscard]] bool loadTranslation(QTranslator &translator, const QString &path);

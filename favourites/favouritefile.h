// The file of a favourite.
#pragma once

#include <QJsonObject>
#include <QString>

#include <optional>

/// In bytes. Longer files are not favourites and are ignored.
inline constexpr qint64 maximumFavouriteSize = 1'048'576;

/// The contents of a file, if it may be a favourite: a JSON object. Logs the reason otherwise.
[[nodiscard]] std::optional<QJsonObject> readFavourite(const QString &path);

/// The encrypted password in a file; empty if there is none, and if the file cannot be read.
[[nodiscard]] QString cipherIn(const QString &path);

/// Empties the encrypted password in a file, which keeps its other bytes. Does nothing if the file contains
/// another one, or has this text at several places. Logs a failure to write; the file is unchanged then.
void removeCipher(const QString &path, const QString &cipher);

/// The path by which the secret service knows the password of a file.
[[nodiscard]] QString secretFileOf(const QString &path);

// The type of a response by its headers, its text, and the file that it is saved to.
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

enum class ResponseKind
{
    Text,
    Image,
    Recording,
};

/// Image if the headers contain "image/" anywhere, otherwise Recording if they contain "octet-stream",
/// otherwise Text. Upper and lower case differ.
[[nodiscard]] ResponseKind responseKind(const QByteArray &headers);

/// The suffix of the file for a response with these headers, with its dot: ".dav" for a recording, the suffix
/// of the format for an image (".jpg" for an unknown one). Empty for a text.
[[nodiscard]] QString responseFileEnding(const QByteArray &headers);

/// The text of a response's body, which is usually UTF-8. If it is not UTF-8 or has null bytes, the encoding
/// is that of its byte order mark, otherwise the "charset" of the last "Content-Type" header, otherwise
/// UTF-8. Undecodable bytes become replacement characters.
[[nodiscard]] QString responseText(const QByteArray &headers, const QByteArray &body);

/// "<folder>/<yyyyMMddhhmmss><ending>": two responses within a second have the same file, and the later one
/// replaces the earlier one.
[[nodiscard]] QString responseFilePath(const QString &folder, const QDateTime &localTime,
                                       const QString &ending);

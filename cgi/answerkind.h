// What kind of answer the headers announce, the text that it is, and the file that keeps it.
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

enum class AnswerKind
{
    Text,
    Picture,
    Recording,
};

/// Judged by the whole text of the headers, in which capital letters count.
[[nodiscard]] AnswerKind answerKind(const QByteArray &headers);

/// The ending of the file for an answer with these headers, with its point. Empty for a text.
[[nodiscard]] QString answerFileEnding(const QByteArray &headers);

/// The text of an answer's body: UTF-8, as devices send it; what is no UTF-8 in the encoding of its byte
/// order mark, or else in the one that the headers name last. What cannot be read so has a sign in its place.
[[nodiscard]] QString answerText(const QByteArray &headers, const QByteArray &body);

/// "<folder>/<yyyyMMddhhmmss><ending>": two answers within a second have the same file, and the later one
/// stays.
[[nodiscard]] QString answerFilePath(const QString &folder, const QDateTime &localTime,
                                     const QString &ending);

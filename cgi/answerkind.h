// What kind of answer the headers announce, and the file that keeps it.
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

/// "<folder>/<yyyyMMddhhmmss><ending>": two answers within a second have the same file, and the later one
/// stays.
[[nodiscard]] QString answerFilePath(const QString &folder, const QDateTime &localTime,
                                     const QString &ending);

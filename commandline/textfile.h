// Small text files of commands.
#pragma once

#include <QList>
#include <QString>

namespace commandline {

struct TextLine
{
    int number = 0; ///< from 1
    QString text;   ///< without surrounding spaces
};

struct TextLines
{
    QList<TextLine> lines; ///< without empty lines and lines that start with '#'
    QString error;         ///< in English; empty on success
};

/// Reads a UTF-8 file of up to 4 MiB; "-" is standard input.
[[nodiscard]] TextLines readTextLines(const QString &path);

} // namespace commandline

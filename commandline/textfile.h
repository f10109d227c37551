// Small text files that the user passes to commands, such as lists of devices.
#pragma once

#include <QList>
#include <QString>

namespace commandline {

struct TextLine
{
    int number = 0; ///< of the line in the file, from 1
    QString text;   ///< without surrounding spaces
};

struct TextLines
{
    QList<TextLine> lines; ///< without empty lines and lines that start with '#'
    QString error;         ///< in English; empty on success
};

/// Reads the lines of a text file; the path "-" is standard input, which can be read once only. A file that
/// cannot be read, is larger than 4 MiB or is not UTF-8 gives an error and no lines. Blocks.
[[nodiscard]] TextLines readTextLines(const QString &path);

} // namespace commandline

// Reading and writing complete files.
#pragma once

#include <QFile>

/// The contents of a file; empty when it cannot be read.
inline QByteArray fileContents(const QString &path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

/// Writes a file, whose folder must exist; an existing file is replaced. Returns false if not all bytes are
/// written.
inline bool writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QFile::WriteOnly) && file.write(bytes) == bytes.size();
}

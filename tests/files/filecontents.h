// Reading and writing complete files.
#pragma once

#include <QFile>

/// Nothing when the file cannot be read.
inline QByteArray fileContents(const QString &path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

/// Returns true if all bytes are in the file.
inline bool writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QFile::WriteOnly) && file.write(bytes) == bytes.size();
}

#include "commandline/textfile.h"

#include <QFile>
#include <QStringDecoder>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace commandline {

namespace {

constexpr qint64 largestFile = 4LL * 1024 * 1024;

} // namespace

TextLines readTextLines(const QString &path)
{
    TextLines read;
    QFile file(path);
    const bool isOpen =
        path == "-"_L1 ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
    if (!isOpen) {
        read.error = u"%1 cannot be read: %2"_s.arg(path, file.errorString());
        return read;
    }
    const QByteArray bytes = file.read(largestFile + 1);
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder(bytes);
    if (file.error() != QFileDevice::NoError)
        read.error = u"%1 cannot be read: %2"_s.arg(path, file.errorString());
    else if (bytes.size() > largestFile)
        read.error = u"%1 is larger than 4 MiB"_s.arg(path);
    else if (decoder.hasError())
        read.error = u"%1 is not UTF-8 text"_s.arg(path);
    if (!read.error.isEmpty())
        return read;
    int number = 0;
    for (const QString &line : text.split(u'\n')) {
        const QString content = line.trimmed();
        ++number;
        if (!content.isEmpty() && !content.startsWith(u'#'))
            read.lines.append({.number = number, .text = content});
    }
    return read;
}

} // namespace commandline

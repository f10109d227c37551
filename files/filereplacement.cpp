#include "files/filereplacement.h"

#include <QFileInfo>
#include <QSaveFile>

#include <filesystem>
#include <system_error>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <unistd.h>
#endif

namespace {

/// Empty when the disk has the contents. A file system that cannot wait for that is no failure.
QString storeOnDisk([[maybe_unused]] const QFileDevice &file)
{
#ifdef Q_OS_UNIX
    // The toolkit does the same when it commits the file, but ignores errors.
    if (::fsync(file.handle()) != 0 && errno != EINVAL && errno != ENOTSUP)
        return QString::fromLocal8Bit(std::system_category().message(errno).c_str());
#endif
    return {};
}

} // namespace

QString replaceFile(const QString &path, const QByteArray &contents)
{
    const QFileInfo existing(path);
    if (existing.exists() && !existing.isFile())
        return QStringLiteral("Not a regular file");
    QSaveFile file(path);
    // Not through a buffer: the toolkit does not notice when only a part of that could be written.
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || !writeCompletely(file, contents))
        return file.errorString();
    QString failure = storeOnDisk(file);
    if (!failure.isEmpty())
        return failure;
    return file.commit() ? QString() : file.errorString();
}

bool writeCompletely(QFileDevice &file, QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        // A full disk takes the beginning without a complaint, and gives the reason when it is asked again.
        const qint64 written = file.write(bytes.data(), bytes.size());
        if (written <= 0)
            return false;
        bytes = bytes.sliced(written);
    }
    return true;
}

QString renameOver(const QString &from, const QString &to)
{
    // The toolkit's own function refuses a name that is taken.
    std::error_code error;
    std::filesystem::rename(from.toStdU16String(), to.toStdU16String(), error);
    return error ? QString::fromLocal8Bit(error.message().c_str()) : QString();
}

#include "files/filereplacement.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <filesystem>
#include <system_error>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <unistd.h>
#endif

namespace {

/// Waits until the contents are on the disk. Returns the error text, empty on success. A file system without
/// support for that is not an error.
QString storeOnDisk([[maybe_unused]] const QFileDevice &file)
{
#ifdef Q_OS_UNIX
    // Qt does the same when it commits the file, but ignores errors.
    if (::fsync(file.handle()) != 0 && errno != EINVAL && errno != ENOTSUP)
        return QString::fromLocal8Bit(std::system_category().message(errno).c_str());
#endif
    return {};
}

/// Removes the permissions of all except the owner. A file system without permissions is not an error.
void limitToOwner(QFileDevice &file)
{
    constexpr QFileDevice::Permissions ofOthers = QFileDevice::ReadGroup | QFileDevice::WriteGroup |
                                                  QFileDevice::ExeGroup | QFileDevice::ReadOther |
                                                  QFileDevice::WriteOther | QFileDevice::ExeOther;
    file.setPermissions(file.permissions() & ~ofOthers);
}

} // namespace

QString replaceFile(const QString &path, const QByteArray &contents, FileReaders readers)
{
    const QFileInfo existing(path);
    if (existing.exists() && !existing.isFile())
        return QStringLiteral("Not a regular file");
    QSaveFile file(path);
    // Unbuffered: Qt does not detect a partially written buffer.
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return file.errorString();
    if (readers == FileReaders::Owner)
        limitToOwner(file);
    if (!writeCompletely(file, contents))
        return file.errorString();
    QString failure = storeOnDisk(file);
    if (!failure.isEmpty())
        return failure;
    return file.commit() ? QString() : file.errorString();
}

QString reserveForOwner(const QString &path)
{
    QFile file(path);
    // Append: the contents of an existing file are kept.
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append, QFile::ReadOwner | QFile::WriteOwner))
        return file.errorString();
    limitToOwner(file);
    return {};
}

bool writeCompletely(QFileDevice &file, QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        // A full disk accepts the first part without an error, and reports the error at the next write.
        const qint64 written = file.write(bytes.data(), bytes.size());
        if (written <= 0)
            return false;
        bytes = bytes.sliced(written);
    }
    return true;
}

QString renameOver(const QString &from, const QString &to)
{
    // Qt's function does not replace an existing file.
    std::error_code error;
    std::filesystem::rename(from.toStdU16String(), to.toStdU16String(), error);
    return error ? QString::fromLocal8Bit(error.message().c_str()) : QString();
}

QString setDamagedFileAside(const QString &path)
{
    if (!QFileInfo::exists(path))
        return {};
    const QString ending = QStringLiteral(".damaged");
    QString kept = path + ending;
    for (int number = 2; QFileInfo::exists(kept); ++number)
        kept = path + ending + QString::number(number);
    return renameOver(path, kept);
}

// Writing files of the user completely or not at all.
#pragma once

#include <QByteArray>
#include <QString>

class QFileDevice;

/// Who may read a file.
enum class FileReaders
{
    System, ///< those whom the system permits for a new file (umask); an existing file keeps its permissions
    Owner,  ///< for files with passwords: the owner only; an existing file loses the permissions of others
};

/// Replaces the contents of the file `path` by `contents`. They are written to a new file in the same folder,
/// which replaces the old one when it is complete and on the disk: after a full disk, a killed process or a
/// power failure the file has its old or its new contents. `readers` limits the permissions before the
/// contents are written. A symbolic link is followed.
///
/// The file need not exist; its folder must. Returns the error text of the system on failure; empty on
/// success. Fails if the path exists and is not a regular file. Blocks until the contents are on the disk;
/// may be called on any thread.
[[nodiscard]] QString replaceFile(const QString &path, const QByteArray &contents,
                                  FileReaders readers = FileReaders::System);

/// Prepares a file with passwords that another library writes: creates the file `path`, empty, if it is
/// missing, and removes the permissions of all except the owner. Returns the error text of the system on
/// failure, empty on success.
[[nodiscard]] QString reserveForOwner(const QString &path);

/// Writes all the bytes at the position of a file that is open with QIODevice::Unbuffered. Returns false on
/// failure, such as a full disk: the file then contains a part of the bytes, and its errorString() has the
/// reason. Does not wait until the bytes are on the disk.
[[nodiscard]] bool writeCompletely(QFileDevice &file, QByteArrayView bytes);

/// Renames the file `from` to `to` in the same file system; an existing file `to` is replaced. Returns the
/// error text of the system on failure, when both files are unchanged; empty on success.
[[nodiscard]] QString renameOver(const QString &from, const QString &to);

/// Renames the damaged file `path` to a free name in its folder: with the ending ".damaged", ".damaged2" and
/// so on. Returns the error text of the system on failure; empty on success, and if the file is missing.
[[nodiscard]] QString setDamagedFileAside(const QString &path);

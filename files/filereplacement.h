// Files of the user are written completely or not at all.
#pragma once

#include <QByteArray>
#include <QString>

class QFileDevice;

/// Replaces the contents of the file `path` by `contents`. They are written to a new file in the same folder,
/// which replaces the old one when it is complete and on the disk: after a full disk, a killed process or a
/// power failure the file has its old or its new contents. The permissions of an existing file are kept, and
/// a symbolic link is followed.
///
/// Returns the error text of the system on failure; empty on success. Fails if the path exists and is not a
/// regular file. Blocks until the contents are on the disk; may be called on any thread.
[[nodiscard]] QString replaceFile(const QString &path, const QByteArray &contents);

/// Writes all the bytes into a file that is open with QIODevice::Unbuffered. On failure, such as a full disk,
/// the file contains a part of them and its errorString() has the reason.
[[nodiscard]] bool writeCompletely(QFileDevice &file, QByteArrayView bytes);

/// Renames the file `from` to `to` in the same file system; an existing file is replaced. Returns the reason
/// of a failure; empty on success.
[[nodiscard]] QString renameOver(const QString &from, const QString &to);

/// Keeps the damaged file `path` under a free name next to it: with the ending ".damaged", ".damaged2" and so
/// on. Returns the reason of a failure; empty on success.
[[nodiscard]] QString setDamagedFileAside(const QString &path);

// Files of the user are written completely or not at all.
#pragma once

#include <QByteArray>
#include <QString>

class QFileDevice;

/// Makes `contents` the contents of the file `path`. They are written into a new file in the same folder,
/// which takes the old one's place when it is complete and on the disk: after a full disk, a killed process
/// or a power failure the file has its old contents or the new ones. The permissions of an existing file are
/// kept, and a link is followed.
///
/// Returns the reason in the words of the system when the file could not be written; empty on success. A
/// path that exists and is not a regular file is refused. Blocks until the disk has the contents; may be
/// called on any thread.
[[nodiscard]] QString replaceFile(const QString &path, const QByteArray &contents);

/// Writes all the bytes into an open file without a buffer. On failure, as on a full disk, the file holds a
/// part of them and its errorString() says why.
[[nodiscard]] bool writeCompletely(QFileDevice &file, QByteArrayView bytes);

/// Gives the complete file `from` the name `to` in the same file system, in place of a file that has it.
/// Returns the reason when that fails; empty on success.
[[nodiscard]] QString renameOver(const QString &from, const QString &to);

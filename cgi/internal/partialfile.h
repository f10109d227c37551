#pragma once

#include <QByteArrayView>
#include <QFile>

/// A file whose contents arrive in chunks. A chunk is in the file when write() has returned, so that a killed
/// process leaves all received data. Until the file is complete, its name contains ".partial". The destructor
/// does not remove an incomplete file.
class PartialFile
{
public:
    /// `path` is the path of the complete file. The incomplete one is "<name>.partial.<suffix>" in the same
    /// folder.
    explicit PartialFile(const QString &path);

    // These three return false on failure; failure() then has the reason.

    /// Creates the incomplete file, or empties an existing one.
    [[nodiscard]] bool open();

    /// Appends a chunk. After a failure, the file may contain a part of it.
    [[nodiscard]] bool write(QByteArrayView chunk);

    /// Closes the file and renames it to its final name; an existing file is replaced. After a failure, the
    /// file keeps the incomplete name.
    [[nodiscard]] bool complete();

    /// Closes the incomplete file. Returns its path if it has contents. Otherwise removes it and returns an
    /// empty path.
    [[nodiscard]] QString keepPartial();

    /// Removes the incomplete file.
    void remove();

    /// Whether open() or write() has failed, until complete(), or complete() has failed.
    [[nodiscard]] bool hasFailed() const { return !m_failure.isEmpty(); }
    /// The error text of the system for that failure; empty without one.
    [[nodiscard]] const QString &failure() const { return m_failure; }

private:
    const QString m_path;
    QFile m_file;
    QString m_failure;
};

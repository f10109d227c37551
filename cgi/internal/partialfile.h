#pragma once

#include <QByteArrayView>
#include <QFile>

/// A file whose contents arrive in chunks. A chunk is in the file as soon as it has arrived, so that a killed
/// process leaves all received data. Until the file is complete, its name contains ".partial".
class PartialFile
{
public:
    /// `path` is the path of the complete file. The incomplete one is "<name>.partial.<suffix>" in the same
    /// folder.
    explicit PartialFile(const QString &path);

    [[nodiscard]] bool open();

    /// False when the chunk could not be written completely.
    [[nodiscard]] bool write(QByteArrayView chunk);

    /// Renames the file to its final name; an existing file is replaced. False on failure.
    [[nodiscard]] bool complete();

    /// Closes an incomplete file. Returns its path, or removes it and returns an empty path if it is empty.
    [[nodiscard]] QString keepPartial();

    /// Removes the incomplete file.
    void remove();

    [[nodiscard]] bool hasFailed() const { return !m_failure.isEmpty(); }
    [[nodiscard]] const QString &failure() const { return m_failure; } ///< error text of the system

private:
    const QString m_path;
    QFile m_file;
    QString m_failure;
};

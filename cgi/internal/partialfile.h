#pragma once

#include <QByteArrayView>
#include <QFile>

/// A file whose contents arrive piece by piece. A piece is in the file as soon as it has arrived, so that a
/// killed program leaves what there was. Until the file is complete, its name says that it is not.
class PartialFile
{
public:
    /// `path` is the name of the complete file. The incomplete one is "<name>.partial.<ending>" beside it.
    explicit PartialFile(const QString &path);

    [[nodiscard]] bool open();

    /// False when the piece could not be written completely.
    [[nodiscard]] bool write(QByteArrayView piece);

    /// Gives the file its name; a file that has it is replaced. False when that fails.
    [[nodiscard]] bool complete();

    /// Ends an incomplete file. Returns its path when it holds something; otherwise removes it and returns an
    /// empty text.
    [[nodiscard]] QString keepPartial();

    /// Removes the incomplete file.
    void remove();

    [[nodiscard]] bool hasFailed() const { return !m_failure.isEmpty(); }
    [[nodiscard]] const QString &failure() const { return m_failure; } ///< in the words of the system

private:
    const QString m_path;
    QFile m_file;
    QString m_failure;
};

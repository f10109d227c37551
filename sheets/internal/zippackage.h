#pragma once

#include "sheets/lasterror.h"

#include <QByteArray>
#include <QHash>

#include <map>
#include <memory>

struct zip;
struct zip_stat;

namespace sheets {

/// The parts of a workbook file, which is a zip archive. Changed parts are stored separately from the file's
/// bytes. In a file that is built from both, all other parts are identical, byte for byte.
///
/// Part names have no leading slash and are case-insensitive.
class ZipPackage : public LastError
{
public:
    /// Opens the bytes of a file, without decompressing parts; earlier contents and changes are dropped.
    /// Fails for a file that is not an archive, is damaged or encrypted, or has more than 10,000 parts. Also
    /// fails for a part of more than 8 MiB that was compressed to 1/250 or less. After a failure the object
    /// must not be used before another load().
    bool load(const QByteArray &file);

    /// Whether there is a part with this name, after replace() and remove().
    [[nodiscard]] bool contains(const QString &name) const;

    /// Sets `bytes` to the contents of a part, after replace(). Fails when the part is missing or removed,
    /// or, in the file, larger than 192 MiB or damaged; the value of `bytes` is then undefined.
    bool read(const QString &name, QByteArray &bytes);

    /// Replaces the contents of a part by `bytes`, or adds the part.
    void replace(const QString &name, const QByteArray &bytes);

    /// Removes a part, which may be missing.
    void remove(const QString &name);

    /// Sets `file` to the bytes of a file with all changes; without changes, the bytes of load(). Fails when
    /// the archive cannot be written in memory; the value of `file` is then undefined. The package can be
    /// changed further.
    bool build(QByteArray &file);

private:
    struct ArchiveCloser
    {
        void operator()(zip *archive) const;
    };
    using Archive = std::unique_ptr<zip, ArchiveCloser>;

    struct NewPart
    {
        QString name; ///< for a part that is added
        QByteArray bytes;
    };

    bool checkEntry(const struct zip_stat &entry);
    bool writeChanges(Archive archive);
    bool applyChanges(zip *archive);

    QByteArray m_file;
    Archive m_archive; ///< for reading, on m_file
    // By name in lower case.
    QHash<QString, quint64> m_entries; ///< index in the archive
    std::map<QString, NewPart> m_new;  ///< parts to write
    QHash<QString, quint64> m_removed; ///< indices of parts to remove
};

} // namespace sheets

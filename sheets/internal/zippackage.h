#pragma once

#include "sheets/lasterror.h"

#include <QByteArray>
#include <QHash>

#include <map>
#include <memory>

struct zip;
struct zip_stat;

namespace sheets {

/// The parts of a workbook file, which is a zip archive. Changed parts are kept beside the file's bytes, and
/// a file that is built of both holds all other parts byte for byte as they were.
///
/// Part names have no leading slash and are the same part in capitals and small letters.
class ZipPackage : public LastError
{
public:
    /// Takes the bytes of a file. Fails for one that is no archive, damaged, encrypted or suspiciously
    /// packed.
    bool load(const QByteArray &file);

    [[nodiscard]] bool contains(const QString &name) const;

    /// Unpacks a part, as far as it keeps to a bound of 192 MiB; fails when it is damaged or not there.
    bool read(const QString &name, QByteArray &bytes);

    /// Puts `bytes` in place of a part, or adds one.
    void replace(const QString &name, const QByteArray &bytes);

    /// Removes a part, which need not be there.
    void remove(const QString &name);

    /// The bytes of the file with all changes.
    bool build(QByteArray &file);

private:
    struct ArchiveCloser
    {
        void operator()(zip *archive) const;
    };
    using Archive = std::unique_ptr<zip, ArchiveCloser>;

    bool checkEntry(const struct zip_stat &entry);
    bool writeChanges(Archive archive);
    bool applyChanges(zip *archive);

    QByteArray m_file;
    Archive m_archive;                   ///< for reading, on m_file
    QHash<QString, quint64> m_entries;   ///< index in the archive by small name
    std::map<QString, QByteArray> m_new; ///< parts to write, by name as it is to stand there
    QHash<QString, quint64> m_removed;   ///< indices of parts to drop, by small name
};

} // namespace sheets

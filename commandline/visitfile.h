// The file of "--visit": changes of earlier commands, for the report.
#pragma once

#include "report/sitedata.h"

namespace commandline {

/// A file with one JSON object for each change, to which the commands of one visit append. An empty path is
/// no file: nothing is read or written.
class VisitFile
{
public:
    /// A longer file is refused.
    static constexpr qint64 maximumSize = qint64{16} * 1024 * 1024;

    explicit VisitFile(const QString &path) : m_path(path) {}

    /// Reads the changes; a missing file has none. A line without a valid time is skipped. Returns false if
    /// the file cannot be read, is larger than maximumSize, or is not such a file (the first line has no
    /// valid time), see error(). Called once.
    [[nodiscard]] bool read();
    /// Whether changes can be appended, see error() if not: the file cannot be written, or read() would fail.
    /// Creates a missing file. changes() is empty afterwards.
    [[nodiscard]] bool isWritable();
    /// Appends changes. Returns false on failure, see error(); the earlier changes are kept.
    [[nodiscard]] bool append(const QList<VisitChange> &changes);

    [[nodiscard]] const QList<VisitChange> &changes() const { return m_changes; } ///< of read()
    [[nodiscard]] const QString &error() const { return m_error; }                ///< in English

private:
    bool fail(const QString &error);

    QString m_path;
    QList<VisitChange> m_changes;
    QString m_error;
};

} // namespace commandline

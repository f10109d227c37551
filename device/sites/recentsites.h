// The site files that the user has opened or saved last.
#pragma once

#include <QString>
#include <QStringList>

/// Remembers the paths of site files, and the path and state of the current one, in a JSON file. An
/// unreadable file counts as empty, since a loss of the paths does no harm. Each change of a value is written
/// to the file before the call returns. Lives on the main thread.
class RecentSites
{
public:
    static constexpr qsizetype most = 8; ///< paths

    /// Reads the file at `path`.
    explicit RecentSites(QString path);

    [[nodiscard]] const QStringList &paths() const { return m_paths; } ///< the latest one first
    /// The path of the current site; empty if it was not saved.
    [[nodiscard]] const QString &current() const { return m_current; }

    /// Whether the current site has changes that were not saved.
    [[nodiscard]] bool isModified() const { return m_isModified; }

    /// Puts `path` at the front of the list, and drops the last one beyond `most`.
    void add(const QString &path);
    void remove(const QString &path);
    void setCurrent(const QString &path); ///< empty for none; paths() and isModified() do not change
    void setModified(bool isModified);

private:
    void write() const; ///< a failure is logged

    const QString m_path;
    QStringList m_paths;
    QString m_current;
    bool m_isModified = false;
};

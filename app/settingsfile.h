#pragma once

#include <QList>
#include <QPair>
#include <QString>

/// A settings file in INI format, changed completely or not at all.
///
/// The toolkit's settings class does not notice when a full disk cuts what it writes, and then replaces the
/// file by the beginning of it. The class is therefore given a draft in the same folder. The file gets the
/// draft's text when the whole of it can be read back.
class SettingsFile
{
public:
    explicit SettingsFile(const QString &path) : m_path(path) {}

    /// Sets the values of some keys; the others keep theirs. A file that does not exist is created. Returns
    /// why the file could not be changed; empty on success. Blocks until the disk has the file.
    [[nodiscard]] QString change(const QList<QPair<QString, QString>> &values) const;

private:
    const QString m_path;
};

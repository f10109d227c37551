#pragma once

#include <QList>
#include <QPair>
#include <QString>

/// Changes a settings file in INI format completely or not at all.
///
/// QSettings does not detect that a full disk truncates its output, and replaces the file by the truncated
/// one. This class therefore lets QSettings write a draft in the same folder. The draft replaces the file
/// once its values have been read back.
class SettingsFile
{
public:
    explicit SettingsFile(const QString &path) : m_path(path) {}

    /// Sets values, given as pairs of a key ("/group/key") and its value; the other keys are kept. Creates
    /// the file if it does not exist; its folder must exist. Returns an error text for the log; the file is
    /// unchanged then. Empty on success. Blocks until the file is on disk. Two changes of a file must not run
    /// at the same time: one of them would be lost.
    [[nodiscard]] QString change(const QList<QPair<QString, QString>> &values) const;

private:
    const QString m_path;
};

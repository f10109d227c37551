// Copies of sites that were replaced before their changes were saved.
#pragma once

#include "device/sites/knowndevice.h"

/// A folder with the latest copies. Main thread.
class SiteCopies
{
public:
    static constexpr qsizetype most = 8; ///< the oldest copy beyond it is deleted

    /// Result of keep().
    struct Copy
    {
        QString path;    ///< of the file
        QString failure; ///< reason of the system, or the folder that cannot be created; empty on success
    };

    /// `folder` is created with the first copy.
    explicit SiteCopies(QString folder) : m_folder(std::move(folder)) {}

    /// Writes a copy. Its name consists of `title` and the local time.
    [[nodiscard]] Copy keep(const Site &site, const QString &title) const;

private:
    void removeOld() const;

    const QString m_folder;
};

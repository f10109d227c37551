#pragma once

#include <QMap>
#include <QString>

#include <mutex>

/// Unique file names for responses of the same second. Thread-safe.
class ResponsePaths
{
public:
    /// Returns `path` at the first call with this path, then "<name>_2.<suffix>", "<name>_3.<suffix>" and so
    /// on. `path` has a suffix. Existing files are not checked: only the paths of this object differ. The 100
    /// last paths in alphabetical order are remembered, which are the newest, since a name begins with the
    /// time.
    [[nodiscard]] QString own(const QString &path);

private:
    std::mutex m_mutex;
    QMap<QString, int>
        m_counts; ///< of the last paths; the names begin with the time, the oldest is the first
};

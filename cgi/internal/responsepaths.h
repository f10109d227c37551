#pragma once

#include <QHash>
#include <QQueue>
#include <QString>

#include <mutex>

/// Unique file names for responses of the same second. Thread-safe.
class ResponsePaths
{
public:
    /// Returns `path` at the first call with this path, then "<name>_2.<suffix>", "<name>_3.<suffix>" and so
    /// on. `path` has a suffix. Existing files are not checked: only the paths of this object differ. The 100
    /// paths that were passed last for the first time are remembered, whatever their times: the clock may
    /// have been set back.
    [[nodiscard]] QString own(const QString &path);

private:
    std::mutex m_mutex;
    QHash<QString, int> m_counts; ///< calls with each remembered path
    QQueue<QString> m_order;      ///< the remembered paths, the oldest one first
};

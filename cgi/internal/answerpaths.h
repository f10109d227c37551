#pragma once

#include <QMap>
#include <QString>

#include <mutex>

/// Gives answers of the same second different files. Thread-safe.
class AnswerPaths
{
public:
    /// `path` the first time, and then "<name>_2.<ending>", "<name>_3.<ending>" and so on.
    [[nodiscard]] QString own(const QString &path);

private:
    std::mutex m_mutex;
    QMap<QString, int>
        m_counts; ///< of the last paths; the names begin with the time, the oldest is the first
};

#pragma once

#include <QHash>
#include <QStringList>

#include <mutex>

/// Stores complete long responses in memory up to a limit: rows and outcomes contain only their start. The
/// key of a response is the identity of a row or the name of a line. Thread-safe.
class LongResponses
{
public:
    static constexpr qsizetype longestBeginning = 4000;    ///< characters of a start
    static constexpr qsizetype maximumLength = 32'000'000; ///< total number of stored characters

    /// Removes the earlier response of `key` and stores `response`. A response of up to longestBeginning or
    /// more than maximumLength characters is not stored. The oldest responses are removed to make room.
    void keep(const QString &key, const QString &response);

    /// Removes the response of `key`, if there is one.
    void remove(const QString &key);

    /// The response of `key` if it starts with `beginning`, otherwise `beginning`.
    [[nodiscard]] QString complete(const QString &key, const QString &beginning) const;

private:
    /// Requires m_mutex.
    void erase(const QString &key);

    mutable std::mutex m_mutex;
    QHash<QString, QString> m_responses;
    QStringList m_keys; ///< the oldest first
    qsizetype m_length = 0;
};

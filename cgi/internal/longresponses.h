#pragma once

#include <QHash>
#include <QStringList>

#include <mutex>

/// Stores complete long responses up to a limit: rows and outcomes contain only their start. Thread-safe.
class LongResponses
{
public:
    static constexpr qsizetype longestBeginning = 4000;
    static constexpr qsizetype maximumLength = 32'000'000; ///< total number of stored characters

    /// Stores the response of `key` in place of an earlier one. A response up to longestBeginning or longer
    /// than maximumLength is not stored; the oldest ones are removed at the limit.
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

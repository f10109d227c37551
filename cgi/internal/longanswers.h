#pragma once

#include <QHash>
#include <QStringList>

#include <mutex>

/// The whole of long answers, while there is room: rows and outcomes have only their beginnings. Thread-safe.
class LongAnswers
{
public:
    static constexpr qsizetype longestBeginning = 4000;
    static constexpr qsizetype room = 32'000'000; ///< letters of all of them together

    /// Takes the place of what `key` had. A short answer is not kept; the oldest ones make room.
    void keep(const QString &key, const QString &answer);

    void forget(const QString &key);

    /// The answer of `key` that begins so, or the beginning where it is not kept.
    [[nodiscard]] QString whole(const QString &key, const QString &beginning) const;

private:
    void forgetLocked(const QString &key);

    mutable std::mutex m_mutex;
    QHash<QString, QString> m_answers;
    QStringList m_keys; ///< the oldest first
    qsizetype m_length = 0;
};

#include "cgi/internal/longanswers.h"

void LongAnswers::keep(const QString &key, const QString &answer)
{
    const std::lock_guard lock(m_mutex);
    erase(key);
    if (answer.size() <= longestBeginning || answer.size() > maximumLength)
        return;
    while (m_length + answer.size() > maximumLength)
        erase(QString(m_keys.constFirst()));
    m_answers.insert(key, answer);
    m_keys.append(key);
    m_length += answer.size();
}

void LongAnswers::remove(const QString &key)
{
    const std::lock_guard lock(m_mutex);
    erase(key);
}

QString LongAnswers::complete(const QString &key, const QString &beginning) const
{
    const std::lock_guard lock(m_mutex);
    const auto answer = m_answers.constFind(key);
    return answer != m_answers.cend() && answer->startsWith(beginning) ? *answer : beginning;
}

void LongAnswers::erase(const QString &key)
{
    const auto answer = m_answers.constFind(key);
    if (answer == m_answers.cend())
        return;
    m_length -= answer->size();
    m_answers.erase(answer);
    m_keys.removeOne(key);
}

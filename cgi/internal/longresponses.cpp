#include "cgi/internal/longresponses.h"

void LongResponses::keep(const QString &key, const QString &response)
{
    const std::lock_guard lock(m_mutex);
    erase(key);
    if (response.size() <= longestBeginning || response.size() > maximumLength)
        return;
    while (m_length + response.size() > maximumLength)
        erase(QString(m_keys.constFirst()));
    m_responses.insert(key, response);
    m_keys.append(key);
    m_length += response.size();
}

void LongResponses::remove(const QString &key)
{
    const std::lock_guard lock(m_mutex);
    erase(key);
}

QString LongResponses::complete(const QString &key, const QString &beginning) const
{
    const std::lock_guard lock(m_mutex);
    const auto response = m_responses.constFind(key);
    return response != m_responses.cend() && response->startsWith(beginning) ? *response : beginning;
}

void LongResponses::erase(const QString &key)
{
    const auto response = m_responses.constFind(key);
    if (response == m_responses.cend())
        return;
    m_length -= response->size();
    m_responses.erase(response);
    m_keys.removeOne(key);
}

#include "sdk/demo/site/requestlog.h"

#include <algorithm>

namespace sdk::demo {

void RequestLog::add(const RecordedRequest &request)
{
    const std::lock_guard lock(m_mutex);
    if (m_requests.size() == maximumRequests)
        m_requests.removeFirst();
    m_requests.append(request);
    m_added.notify_all();
}

void RequestLog::clear()
{
    const std::lock_guard lock(m_mutex);
    m_requests.clear();
}

QList<RecordedRequest> RequestLog::all() const
{
    const std::lock_guard lock(m_mutex);
    return m_requests;
}

QList<RecordedRequest> RequestLog::of(const QString &operation) const
{
    QList<RecordedRequest> found = all();
    found.removeIf([&operation](const RecordedRequest &request) { return request.operation != operation; });
    return found;
}

bool RequestLog::waitFor(const QString &operation, qsizetype count, std::chrono::milliseconds timeout) const
{
    std::unique_lock lock(m_mutex);
    return m_added.wait_for(lock, timeout, [&] {
        return std::count_if(m_requests.begin(), m_requests.end(),
                             [&operation](const RecordedRequest &request) {
                                 return request.operation == operation;
                             }) >= count;
    });
}

} // namespace sdk::demo

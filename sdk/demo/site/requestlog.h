// The requests that a simulated site has received. Tests assert on them instead of on private state.
#pragma once

#include <QJsonObject>
#include <QList>
#include <QString>

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <mutex>

namespace sdk::demo {

/// One call of an operation, or one HTTP request.
struct RecordedRequest
{
    QString operation;     ///< name in the interface: "NetStartSearchDevices"; "HTTP" for an HTTP request
    QString mac;           ///< the addressed device; empty for requests without one
    QJsonObject request;   ///< the decoded parameters and blocks: "size", "wait" (ms), "addresses", ...
    std::int64_t time = 0; ///< on the site's clock, ms since 1970
};

/// Keeps the latest maximumRequests requests in the order of their arrival, and drops older ones. The callers
/// of add() leave passwords out: "passwordLength" is the length of a password and, for a login,
/// "passwordMatches" the result of its comparison. Thread-safe.
class RequestLog
{
public:
    static constexpr qsizetype maximumRequests = 10000;

    /// Stores a copy of the request, and wakes the threads in waitFor().
    void add(const RecordedRequest &request);

    /// Removes all requests.
    void clear();

    /// The stored requests, the oldest first.
    [[nodiscard]] QList<RecordedRequest> all() const;

    /// The stored requests of one operation, the oldest first.
    [[nodiscard]] QList<RecordedRequest> of(const QString &operation) const;

    /// Blocks until the log contains at least `count` requests of `operation`, for tests that follow another
    /// thread. Returns false after `timeout` of real time.
    [[nodiscard]] bool waitFor(const QString &operation, qsizetype count,
                               std::chrono::milliseconds timeout = std::chrono::seconds(10)) const;

private:
    mutable std::mutex m_mutex;
    mutable std::condition_variable m_added;
    QList<RecordedRequest> m_requests;
};

} // namespace sdk::demo

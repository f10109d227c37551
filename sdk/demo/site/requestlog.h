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

struct RecordedRequest
{
    QString operation;     ///< name in the interface: "NetStartSearchDevices"
    QString mac;           ///< the addressed device; empty for requests without one
    QJsonObject request;   ///< the decoded blocks: "size", "wait" (ms), "addresses", ...
    std::int64_t time = 0; ///< on the site's clock, ms since 1970
};

/// The latest maximumRequests requests in the order of their arrival. Passwords are not stored: only their
/// length ("passwordLength") and, for a login, the result of the comparison ("passwordMatches"). Thread-safe.
class RequestLog
{
public:
    static constexpr qsizetype maximumRequests = 10000;

    void add(const RecordedRequest &request);
    void clear();

    [[nodiscard]] QList<RecordedRequest> all() const;

    /// Those of one operation.
    [[nodiscard]] QList<RecordedRequest> of(const QString &operation) const;

    /// Blocks until `operation` was requested at least `count` times, for tests that follow another thread.
    /// Returns false after `timeout` of real time.
    [[nodiscard]] bool waitFor(const QString &operation, qsizetype count,
                               std::chrono::milliseconds timeout = std::chrono::seconds(10)) const;

private:
    mutable std::mutex m_mutex;
    mutable std::condition_variable m_added;
    QList<RecordedRequest> m_requests;
};

} // namespace sdk::demo

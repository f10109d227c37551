// What a simulated site was asked, so that a test asserts on requests and not on private state.
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
    QString operation;     ///< role name: "NetStartSearchDevices"
    QString mac;           ///< device that was asked, empty for requests to nobody in particular
    QJsonObject request;   ///< the decoded blocks: "size", "wait" (ms), "addresses", ...
    std::int64_t time = 0; ///< on the site's clock, ms since 1970
};

/// The requests in the order of their arrival; the latest maximumRequests of them. Passwords are never kept:
/// only their length ("passwordLength"), and at a login whether it is the account's ("passwordMatches").
/// Thread-safe.
class RequestRecord
{
public:
    static constexpr qsizetype maximumRequests = 10000;

    void add(const RecordedRequest &request);
    void clear();

    [[nodiscard]] QList<RecordedRequest> all() const;

    /// Those of one operation.
    [[nodiscard]] QList<RecordedRequest> of(const QString &operation) const;

    /// Blocks until `operation` was asked at least `count` times, for tests that follow another thread.
    /// Returns false when `timeout` of real time has passed before.
    [[nodiscard]] bool waitFor(const QString &operation, qsizetype count,
                               std::chrono::milliseconds timeout = std::chrono::seconds(10)) const;

private:
    mutable std::mutex m_mutex;
    mutable std::condition_variable m_added;
    QList<RecordedRequest> m_requests;
};

} // namespace sdk::demo

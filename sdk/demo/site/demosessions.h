// The sessions that are open.
#pragma once

#include <QString>

#include <cstdint>
#include <map>
#include <mutex>
#include <optional>
#include <stop_token>

namespace sdk::demo {

/// What a session leads to.
struct DemoSession
{
    QString mac;
    int localPort = 0;     ///< of the port agent, 0 for a session that goes to the device directly
    bool hasEnded = false; ///< the device has rebooted since
    QString account = {};
    QString password = {}; ///< as the device took it
    std::int64_t handle = 0;
    std::stop_token calls = {}; ///< stopped when the calls that run now are to end
};

/// Thread-safe. A handle is never given twice.
class DemoSessions
{
public:
    /// Returns the handle.
    std::int64_t open(const DemoSession &session);

    // These return false for a handle that is no session.

    /// Stops the running calls as well.
    bool close(std::int64_t handle);
    bool cancelCalls(std::int64_t handle);

    void closeAll();

    /// The account of the session has got another password by it.
    void setPassword(std::int64_t handle, const QString &password);

    /// The device accepts its sessions no longer; they are still to be closed.
    void endSessionsTo(const QString &mac);
    [[nodiscard]] std::optional<DemoSession> session(std::int64_t handle) const;

private:
    struct Entry
    {
        DemoSession session;
        std::stop_source calls; ///< of the calls since the last cancellation
    };

    mutable std::mutex m_mutex;
    // Above 32 bits, so that a caller that cuts a handle is found out.
    std::int64_t m_lastHandle = std::int64_t(1) << 32;
    std::map<std::int64_t, Entry> m_sessions;
};

} // namespace sdk::demo

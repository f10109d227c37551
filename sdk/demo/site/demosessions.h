// The open sessions of the simulated network library.
#pragma once

#include <QString>

#include <cstdint>
#include <map>
#include <mutex>
#include <optional>
#include <stop_token>

namespace sdk::demo {

/// The device and the login of a session.
struct DemoSession
{
    QString mac;
    int localPort = 0; ///< of the port agent, through which the session reaches the device; 0 for a direct
                       ///< session
    bool hasEnded = false; ///< the device has rebooted since the login, and rejects the session
    QString account = {};
    QString password = {};      ///< as the device has accepted it at the login or by a change
    std::int64_t handle = 0;    ///< set by DemoSessions
    std::stop_token calls = {}; ///< set by DemoSessions::session(): stopped when the calls that run at that
                                ///< time are cancelled or the session is closed
};

/// Thread-safe. Handles are not reused. A call of a session is cancelled by its stop token
/// DemoSession::calls, which it gets from session() at its start; no function waits for the end of a call.
class DemoSessions
{
public:
    /// Stores a session. Returns its handle.
    std::int64_t open(const DemoSession &session);

    // The next two return false for an unknown handle.

    /// Removes a session and cancels its running calls.
    bool close(std::int64_t handle);

    /// Cancels the running calls of the session. Calls that start later are not affected.
    bool cancelCalls(std::int64_t handle);

    /// Removes all sessions without cancelling their calls: NetCleanup has ended all calls before.
    void closeAll();

    /// Updates the password of a session after it was changed on the device. No effect for an unknown handle.
    void setPassword(std::int64_t handle, const QString &password);

    /// Sets DemoSession::hasEnded of all sessions to the device `mac`. They remain stored until they are
    /// closed.
    void endSessionsTo(const QString &mac);

    /// A copy of the session; nullopt for an unknown handle.
    [[nodiscard]] std::optional<DemoSession> session(std::int64_t handle) const;

private:
    struct Entry
    {
        DemoSession session;
        std::stop_source calls; ///< of the calls since the last cancellation
    };

    mutable std::mutex m_mutex;
    // Above 32 bits, so that a truncated handle is detected.
    std::int64_t m_lastHandle = std::int64_t(1) << 32;
    std::map<std::int64_t, Entry> m_sessions;
};

} // namespace sdk::demo

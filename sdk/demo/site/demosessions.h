// The open sessions.
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
    int localPort = 0;     ///< of the port agent; 0 for a direct session
    bool hasEnded = false; ///< the device has rebooted since the login
    QString account = {};
    QString password = {}; ///< accepted by the device
    std::int64_t handle = 0;
    std::stop_token calls = {}; ///< stopped by the cancellation of the running calls
};

/// Thread-safe. Handles are not reused.
class DemoSessions
{
public:
    /// Returns the handle.
    std::int64_t open(const DemoSession &session);

    // The next two return false for an unknown handle.

    /// Stops the running calls as well.
    bool close(std::int64_t handle);
    /// Stops the running calls of the session; later calls are not affected.
    bool cancelCalls(std::int64_t handle);

    /// Does not stop the running calls.
    void closeAll();

    /// Updates the password of a session that has changed it.
    void setPassword(std::int64_t handle, const QString &password);

    /// The device rejects its sessions from now on. The caller still has to close them.
    void endSessionsTo(const QString &mac);
    /// nullopt for an unknown handle.
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

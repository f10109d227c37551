// The sessions that are open.
#pragma once

#include <QString>

#include <cstdint>
#include <map>
#include <mutex>
#include <optional>

namespace sdk::demo {

/// What a session leads to.
struct DemoSession
{
    QString mac;
    int localPort = 0;     ///< of the port agent, 0 for a session that goes to the device directly
    bool isBroken = false; ///< the device has rebooted since
};

/// Thread-safe. A handle is never given twice.
class DemoSessions
{
public:
    std::int64_t open(const DemoSession &session);
    bool close(std::int64_t handle);
    void closeAll();

    /// Nothing goes through the sessions to a device any more; they are still to be closed.
    void breakSessionsTo(const QString &mac);
    [[nodiscard]] std::optional<DemoSession> session(std::int64_t handle) const;

private:
    mutable std::mutex m_mutex;
    // Above 32 bits, so that a caller that cuts a handle is found out.
    std::int64_t m_lastHandle = std::int64_t(1) << 32;
    std::map<std::int64_t, DemoSession> m_sessions;
};

} // namespace sdk::demo

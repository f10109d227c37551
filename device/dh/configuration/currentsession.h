// The login of the configuration pages, the live view and the snapshots.
#pragma once

#include "device/dh/configuration/sessionstate.h"
#include "device/dh/encode/valuetables.h"
#include "sdk/sdklibraries.h"

#include <QString>

#include <atomic>
#include <cstdint>
#include <memory>

class SessionThreads;
struct SecureLogin;

/// The one login of the configuration pages, live view and snapshots, and the state that was read in it.
/// Owns the login: CDeviceDH calls end() before it destroys this object. Lives on the main thread; functions
/// for other threads say so.
class CurrentSession
{
public:
    /// `threads` must outlive this object.
    CurrentSession(sdk::SdkLibraries libraries, SessionThreads &threads);

    /// Starts a session with a successful login, which this object owns from then on, and clears the state.
    /// An earlier login is logged out in the background.
    void begin(const QString &ipport, const QString &account, const QString &password,
               const SecureLogin &login);

    /// Logs out and clears the state. Blocks for the device. Does nothing without a session.
    void end();

    [[nodiscard]] std::int64_t handle() const { return m_handle; } ///< 0 without a session
    // Of the login; empty or 0 without a session.
    [[nodiscard]] const QString &ipport() const { return m_ipport; }
    [[nodiscard]] const QString &account() const { return m_account; }
    [[nodiscard]] const QString &password() const { return m_password; }
    [[nodiscard]] int channelCount() const { return m_state->channels.channelCount; }

    /// Whether a session with this address and port exists.
    [[nodiscard]] bool isWith(const QString &ipport) const { return m_handle != 0 && m_ipport == ipport; }

    /// handle(); any thread.
    [[nodiscard]] std::int64_t sharedHandle() const { return m_sharedHandle; }

    /// Counter that begin() increments if the session had another address and port, or if there was none. A
    /// snapshot uses it to detect that the session is no longer with its device. Any thread.
    [[nodiscard]] int deviceGeneration() const { return m_deviceGeneration; }

    /// The state read from the device. The reference is valid until setState().
    [[nodiscard]] SessionState &state() { return *m_state; }
    [[nodiscard]] const SessionState &state() const { return *m_state; }

    /// Replaces state() by a changed copy of it, which this object shares. `state` must not be null.
    void setState(const std::shared_ptr<SessionState> &state) { m_state = state; }

    /// Tables for the values of the pages. They live as long as this object.
    [[nodiscard]] const ValueTables &tables() const { return m_tables; }

private:
    const sdk::SdkLibraries m_libraries;
    SessionThreads &m_threads;
    const ValueTables m_tables;
    std::int64_t m_handle = 0;
    QString m_ipport;
    QString m_account;
    QString m_password;
    std::atomic<std::int64_t> m_sharedHandle = 0;
    std::atomic<int> m_deviceGeneration = 0;
    std::shared_ptr<SessionState> m_state; ///< never null
};

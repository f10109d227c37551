// The one login that configuration, live view and snapshots use.
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

/// On the scene's thread, unless an operation says otherwise.
class CurrentSession
{
public:
    CurrentSession(sdk::SdkLibraries libraries, SessionThreads &threads);

    /// Takes over a login in place of the present one, which is logged out later.
    void begin(const QString &ipport, const QString &account, const QString &password,
               const SecureLogin &login);

    /// Logs out. Blocks for the device.
    void end();

    [[nodiscard]] std::int64_t handle() const { return m_handle; } ///< 0 while there is none
    [[nodiscard]] const QString &ipport() const { return m_ipport; }
    [[nodiscard]] const QString &account() const { return m_account; }
    [[nodiscard]] const QString &password() const { return m_password; }
    [[nodiscard]] int channelCount() const { return m_state->channels.channelCount; }

    /// Whether the session is with the device at this address.
    [[nodiscard]] bool isWith(const QString &ipport) const { return m_handle != 0 && m_ipport == ipport; }

    /// handle() for any thread.
    [[nodiscard]] std::int64_t sharedHandle() const { return m_sharedHandle; }

    /// Rises when another device is logged in to. Any thread.
    [[nodiscard]] int deviceGeneration() const { return m_deviceGeneration; }

    /// What is known of the device.
    [[nodiscard]] SessionState &state() { return *m_state; }
    [[nodiscard]] const SessionState &state() const { return *m_state; }

    /// Puts a copy of state() that was worked with in its place.
    void setState(const std::shared_ptr<SessionState> &state) { m_state = state; }

    /// Of the values that the pages show. They live as long as this object.
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

// Operations of the configuration pages on the current session.
#pragma once

#include "device/dh/configuration/sessionrun.h"
#include "device/registry/backendsignals.h"
#include "device/registry/pagestep.h"
#include "sdk/sdklibraries.h"

#include <functional>

class CurrentSession;
class DeviceReservations;

/// Executes the operations of the configuration pages on the current session: on the main thread with
/// perform(), or on another thread with step(). Lives on the main thread; its steps run on any thread.
class ConfigurationPages
{
public:
    /// Stores the image of a channel (from 0) from before its first change. Any thread except the main
    /// thread; blocks it for up to 2 s.
    using BeforeChange = std::function<void(const QString &ipport, qint64 handle, int channel)>;

    /// The referenced objects must outlive this object, which must outlive its steps. The steps call
    /// `beforeChange` before they write image settings; operations on the main thread do not.
    ConfigurationPages(sdk::SdkLibraries libraries, const DeviceReservations &reservations,
                       CurrentSession &session, BackEndSignals &backEndSignals, BeforeChange beforeChange);

    /// Executes operations on the state of the current session, blocks the main thread for the device's
    /// responses, and then emits the signals of the operations. Without a session the requests fail.
    void perform(const std::function<void(SessionOperations &operations)> &operations);

    /// A step that runs `job` on a copy of the state of the session that is current at this call, after the
    /// running batch step of the device has ended. A stop before that gives an empty outcome. When the
    /// outcome is taken, the copy replaces the state and the signals of the operations are emitted, unless
    /// another session is current then.
    [[nodiscard]] PageStep step(const SessionJob &job);

    /// The value of a key of SessionKey, EncodeKey or CameraKey. `channel` (from 0) is used for the names of
    /// channels only. A channel name and SessionKey::connectedChannels are requested from the device, which
    /// blocks; other values are those that were read. Additional keys: "loginHandle" (handle of the current
    /// session, or 0), "sessionDevice" (its address and port, empty without a session) and "library" (a map
    /// of the capabilities of the network library, see LibraryKey). Main thread, except for "loginHandle",
    /// which may be read on any thread.
    [[nodiscard]] QVariant value(const QString &key, const QVariant &channel) const;

private:
    void emitSignals(const std::vector<SessionRun::SignalCall> &calls);
    [[nodiscard]] std::function<bool()> upgradeCheck(const QString &ipport) const;
    [[nodiscard]] QVariantMap libraryValues() const;

    const sdk::SdkLibraries m_libraries;
    const DeviceReservations &m_reservations;
    CurrentSession &m_session;
    BackEndSignals &m_signals;
    const BeforeChange m_beforeChange;
};

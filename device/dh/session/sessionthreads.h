// The threads on which a back end waits for devices beside its steps.
#pragma once

#include "device/registry/backendsignals.h"
#include "device/registry/scenestep.h"

#include <QList>
#include <QThreadPool>

#include <cstdint>
#include <functional>
#include <memory>
#include <stop_token>

namespace sdk {
class NetLibrary;
}

/// Work that the window does not wait for: looking whether a session is alive, logins, logouts. Thread-safe,
/// but begins and ends on the scene's thread. Its end waits for the work.
class SessionThreads
{
public:
    /// `net` may be null.
    SessionThreads(std::shared_ptr<sdk::NetLibrary> net, BackEndSignals &backEndSignals);
    ~SessionThreads();
    SessionThreads(const SessionThreads &) = delete;
    SessionThreads &operator=(const SessionThreads &) = delete;

    void start(const std::function<void()> &work);

    /// As CDeviceBase::runForScene().
    void runForScene(const SceneStep &step, const std::stop_token &stop,
                     const std::function<void(const SceneOutcome &outcome)> &ended);

    /// Logs out on another thread, which the waits of the library may hold up.
    void logOutLater(const QList<std::int64_t> &handles);

    /// Logs out without holding up the scene's thread: on any other thread it is done in this call.
    void logOut(std::int64_t handle);

    /// Drops what has not begun.
    void clear() { m_threads.clear(); }
    void waitForDone() { m_threads.waitForDone(); }

private:
    const std::shared_ptr<sdk::NetLibrary> m_net;
    BackEndSignals &m_signals;
    QThreadPool m_threads;
};

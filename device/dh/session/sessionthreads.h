// Background threads of a back end for work that must not block the window.
#pragma once

#include "device/registry/backendsignals.h"
#include "device/registry/pagestep.h"

#include <QList>
#include <QThreadPool>

#include <cstdint>
#include <functional>
#include <memory>
#include <stop_token>

namespace sdk {
class NetLibrary;
}

/// Runs session checks, logins, logouts and work of pages on up to 16 threads; further work waits for a
/// thread. Thread-safe; created and destroyed on the main thread. The destructor waits for all started and
/// waiting work.
class SessionThreads
{
public:
    /// `net` may be null; nothing may be logged out then. `backEndSignals` must outlive this object.
    SessionThreads(std::shared_ptr<sdk::NetLibrary> net, BackEndSignals &backEndSignals);
    ~SessionThreads();
    SessionThreads(const SessionThreads &) = delete;
    SessionThreads &operator=(const SessionThreads &) = delete;

    /// Runs `work` on one of the threads. Returns immediately.
    void start(const std::function<void()> &work);

    /// Runs `step` on one of the threads and returns immediately. Then calls `ended` with the outcome, queued
    /// on the main thread. If `stop` is requested before the end of the step, its outcome is dropped and
    /// `ended` is not called. The step does not run if `stop` is requested or clear() is called before its
    /// start.
    void runForPage(const PageStep &step, const std::stop_token &stop,
                    const std::function<void(const PageOutcome &outcome)> &ended);

    /// Logs out on one of the threads and returns immediately.
    void logOutLater(const QList<std::int64_t> &handles);

    /// Logs out: on the main thread with logOutLater(), on another thread in this call, which blocks for the
    /// device.
    void logOut(std::int64_t handle);

    /// Drops work that has not started, also logouts. Called when the back end ends, whose library then
    /// releases every login.
    void clear() { m_threads.clear(); }
    /// Blocks until no work is running or waiting for a thread.
    void waitForDone() { m_threads.waitForDone(); }

private:
    const std::shared_ptr<sdk::NetLibrary> m_net;
    BackEndSignals &m_signals;
    QThreadPool m_threads;
};

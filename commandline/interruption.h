// The request of the user to end a command, by a signal of the system.
#pragma once

#include <functional>
#include <memory>

class QSocketNotifier;

namespace commandline {

/// While this object exists, the first SIGINT or SIGTERM does not end the process but calls a function in the
/// event loop of the main thread, so that the command can end at a safe point. A second signal of the same
/// kind ends the process; the first signal of the other kind then has no effect. An object that is created
/// while another one exists takes over the signals until its end, and also calls the function of the other
/// one. Objects end in the reverse order of their creation. Main thread. Has no effect on Windows.
class Interruption
{
public:
    /// `requested` is called at most once, after the first signal, when the event loop runs.
    explicit Interruption(std::function<void()> requested);
    ~Interruption(); ///< of the first object: from then on, each signal ends the process
    Interruption(const Interruption &) = delete;
    Interruption &operator=(const Interruption &) = delete;

    /// Whether a signal was received, also if the event loop has not processed it yet. In that case
    /// `requested` of this object is no longer called for it; those of the outer objects are called in this
    /// call. While an object that was created later exists, true only after that object or the event loop
    /// has processed the signal.
    [[nodiscard]] bool isRequested();

private:
    /// Calls the functions of this object and of the outer ones.
    void request();

    const std::function<void()> m_requested;
    Interruption *m_outer = nullptr; ///< the object that had the signals before
    bool m_isRequested = false;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace commandline

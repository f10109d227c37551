// The request of the user to end a command.
#pragma once

#include <functional>
#include <memory>

class QSocketNotifier;

namespace commandline {

/// While this object exists, the first SIGINT or SIGTERM calls a function on the main thread, in the event
/// loop: running steps end at a safe point. A second signal ends the process. One object at a time. Main
/// thread.
class Interruption
{
public:
    explicit Interruption(std::function<void()> requested);
    ~Interruption();
    Interruption(const Interruption &) = delete;
    Interruption &operator=(const Interruption &) = delete;

    [[nodiscard]] bool isRequested() const { return m_isRequested; }

private:
    const std::function<void()> m_requested;
    bool m_isRequested = false;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace commandline
